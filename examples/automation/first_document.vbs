' The first document: a title and a paragraph.
'
' usage: cscript //nologo first_document.vbs OUTPUT.rtf
Option Explicit

' [document]
Const dwSpellingStandard = 2, dwRoman = 2, dwAlignCenter = 3

Sub WriteReport(filename)
    Dim document, section, title
    Set document = CreateObject("Draftwick.Document")
    document.Filename = filename
    document.Spelling = dwSpellingStandard
    document.Fonts.Add("Times New Roman").Family = dwRoman
    document.DefaultFontName = "Times New Roman"

    Set section = document.AddSection
    Set title = section.AddParagraph
    title.Format.Align = dwAlignCenter
    title.FontFormat.Size = 18
    title.AddTextItem "Quarterly report"
    section.AddParagraph.AddTextItem "Sales rose by a tenth, complaints fell by half."
    document.Finish
End Sub
' [document]

If WScript.Arguments.Count <> 1 Then
    WScript.Echo "usage: cscript //nologo first_document.vbs OUTPUT.rtf"
    WScript.Quit 2
End If
WriteReport WScript.Arguments(0)
