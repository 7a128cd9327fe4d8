@echo off
rem Takes the server out again, for the current user and, with the rights for that, for all.
setlocal
for %%f in ("%LOCALAPPDATA%\Programs\Draftwick" "%ProgramFiles%\Draftwick") do (
    if exist "%%~f\draftwick_automation.dll" (
        regsvr32 /s /u "%%~f\draftwick_automation.dll" && del "%%~f\draftwick_automation.dll"
    )
)
