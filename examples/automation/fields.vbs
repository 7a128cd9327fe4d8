' Fields, which readers compute, and document properties, which they show as information about the file.
'
' usage: cscript //nologo fields.vbs OUTPUT.rtf
Option Explicit

' [properties]
Const dwBIPTitle = 1, dwBIPAuthor = 3, dwBIPCreationTime = 12

Sub AddProperties(document)
    Dim properties
    Set properties = document.Properties
    properties(dwBIPTitle).Value = "Rules of the allotment"
    properties(dwBIPAuthor).Value = "The committee"
    properties(dwBIPCreationTime).Value = #2026-04-01 09:30:00#
    properties.Add "Plots", 64 ' one of our own
End Sub
' [properties]

Const dwSpellingStandard = 2, dwRoman = 2, dwAlignCenter = 3, dwTabRight = 2, dwTabLeaderDots = 2, dwFooter = 2

Sub AddStyles(document)
    Dim normal, heading, contents
    document.Fonts.Add("Times New Roman").Family = dwRoman
    document.DefaultFontName = "Times New Roman"
    Set normal = document.ParagraphStyles.Add("Normal")
    normal.FontFormat.Size = 11
    normal.Format.SpaceAfter = 6
    Set heading = document.ParagraphStyles.Add("Heading 1")
    heading.BasedOn = "Normal"
    heading.FontFormat.Size = 15
    heading.Format.OutlineLevel = 1
    Set contents = document.ParagraphStyles.Add("Contents")
    contents.BasedOn = "Normal"
    contents.TabStops.Add 4.2, dwTabRight, dwTabLeaderDots
End Sub

Sub WriteFields(filename)
    Dim document, section, footer, reference, heading
    Set document = CreateObject("Draftwick.Document")
    document.Filename = filename
    document.Spelling = dwSpellingStandard
    document.PageWidth = 5.83
    document.PageHeight = 4.1
    document.MarginBottom = 0.9
    AddStyles document
    AddProperties document
    Set section = document.AddSection

    ' [footer]
    ' A field is an instruction and the text that is shown until a reader carries it out. Some readers never do.
    Set footer = section.AddHeader(dwFooter).AddParagraph("Normal")
    footer.Format.Align = dwAlignCenter
    footer.AddField "TITLE", "Rules of the allotment"
    footer.AddTextItem " " & Chr(183) & " page "
    footer.AddField "PAGE", "1"
    footer.AddTextItem " of "
    footer.AddField "NUMPAGES", "2"
    ' [footer]

    section.AddParagraph "Heading 1", "Rules of the allotment"
    section.AddParagraph("Contents").AddField "TOC \o ""1-1""", "Water" & vbTab & "2"

    Set reference = section.AddParagraph("Normal", "What the pump may be used for stands on page ")
    reference.AddField "PAGEREF water", "2"
    reference.AddTextItem ". As of "
    reference.AddField("DATE", "1 April 2026").DatePicture = "d MMMM yyyy"
    reference.AddTextItem " it is locked at night."

    Set heading = section.AddParagraph("Heading 1")
    heading.Format.PageBreakBefore = True
    heading.AddBookmark "water"
    heading.AddTextItem "Water"
    heading.AddBookmark "water", False
    section.AddParagraph "Normal", "For plants, hands and the coffee of the committee."
    document.Finish
End Sub

If WScript.Arguments.Count <> 1 Then
    WScript.Echo "usage: cscript //nologo fields.vbs OUTPUT.rtf"
    WScript.Quit 2
End If
WriteFields WScript.Arguments(0)
