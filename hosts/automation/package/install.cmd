@echo off
rem Copies the server to where programs are and enters it: for all users, or without rights for that for the current
rem one. A version that is there already is replaced. Programs that use it have to be closed.
setlocal
set "folder=%ProgramFiles%\Draftwick"
set "how="
mkdir "%folder%" 2>nul
copy /y "%~dp0draftwick_automation.dll" "%folder%\" >nul 2>&1
if errorlevel 1 (
    set "folder=%LOCALAPPDATA%\Programs\Draftwick"
    set "how=/n /i:user"
)
if not exist "%folder%" mkdir "%folder%"
copy /y "%~dp0draftwick_automation.dll" "%folder%\" >nul
if errorlevel 1 exit /b 1
copy /y "%~dp0uninstall.cmd" "%folder%\" >nul
regsvr32 /s %how% "%folder%\draftwick_automation.dll"
if errorlevel 1 exit /b 1
echo Draftwick is installed in %folder%
