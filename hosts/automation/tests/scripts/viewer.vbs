' Shows and prints a document from a script, with a program that records what it was started with.
'
' usage: cscript //nologo viewer.vbs FOLDER RECORDER        in the environment: DRAFTWICK_RECORDS=FOLDER
Option Explicit

Const Key = "HKLM\SOFTWARE\Classes\Word.Document.8\shell\wordview\command\"
Const dwViewerWordView97 = 4

Dim folder, shell, files, wrong, tried
folder = WScript.Arguments(0) & "\"
Set shell = CreateObject("WScript.Shell")
Set files = CreateObject("Scripting.FileSystemObject")
wrong = 0
tried = 0

Sub Expect(what, actual, expected)
    tried = tried + 1
    If actual = expected Then Exit Sub
    wrong = wrong + 1
    WScript.Echo what & ": expected " & expected & ", actual " & actual
End Sub

Function NewDocument(name)
    Set NewDocument = CreateObject("Draftwick.Document")
    NewDocument.Filename = folder & name
    NewDocument.AddSection.AddParagraph.AddTextItem "Seen"
End Function

' What the program that the document started has recorded.
Function RecordOf(document)
    Dim name, latest
    name = folder & document.ViewerTaskID
    latest = Timer + 20
    Do Until files.FileExists(name) Or Timer > latest
    Loop
    RecordOf = Replace(files.OpenTextFile(name).ReadAll, Chr(0), " ")
End Function

Dim document
shell.RegWrite Key, WScript.Arguments(1) & " show ""%1""", "REG_SZ"
Set document = NewDocument("shown.rtf")
Expect "Preview", document.Preview, dwViewerWordView97
Expect "the record", RecordOf(document), "show " & folder & "shown.rtf "
Expect "ViewerApp", document.ViewerApp Is Nothing, True

shell.RegWrite Key, WScript.Arguments(1) & " --window", "REG_SZ"
Set document = NewDocument("printed.rtf")
Expect "PrintOut", document.PrintOut(dwViewerWordView97), dwViewerWordView97
Expect "the keys", RecordOf(document), "^P" & vbCr
shell.RegWrite Key, "", "REG_SZ"

WScript.Echo tried & " tried, " & wrong & " wrong"
