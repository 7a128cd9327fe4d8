' What a call through automation costs, with what the script itself takes: a document of so many paragraphs, four calls
' each. Its file goes to the folder.
'
' usage: cscript //nologo automation.vbs FOLDER [PARAGRAPHS]
Option Explicit

Dim folder, count, document, section, paragraph, i, seconds, text
folder = WScript.Arguments(0)
count = 100000
If WScript.Arguments.Count > 1 Then count = CLng(WScript.Arguments(1))
text = "The quick brown fox jumps over the lazy dog, and does so on every line of this long document."

seconds = Timer
Set document = CreateObject("Draftwick.Document")
document.Filename = folder & "\automation.rtf"
document.TempPath = folder
Set section = document.AddSection
For i = 1 To count
    Set paragraph = section.AddParagraph
    paragraph.Format.SpaceAfter = 0.1
    paragraph.AddTextItem text
Next
document.Finish
seconds = Timer - seconds
WScript.Echo count & " paragraphs, " & FormatNumber(seconds, 2) & " s, " & _
             FormatNumber(seconds * 1000000 / (4 * count), 2) & " microseconds a call"
