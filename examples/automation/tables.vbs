' A table: a head, rows, cells that are merged, amounts that stand below each other.
'
' usage: cscript //nologo tables.vbs OUTPUT.rtf
Option Explicit

' [cell]
Const dwSwiss = 3, dwAlignLeft = 1, dwAlignRight = 2, dwCVACenter = 3, dwTextureShaded = 15, dwBSSingle = 2
Const dwMergeNone = 1, dwMergeFirstHorizontal = 2, dwMergeFirstVertical = 3
Const dwMergeHorizontal = 5, dwMergeVertical = 6

' A cell has a width and borders of its own. Its settings are written with its first paragraph.
Sub AddCell(row, width, text, align, merge, shading)
    Dim cell, side, paragraph
    Set cell = row.AddCell
    cell.Width = width
    cell.Merge = merge
    cell.VerticalAlign = dwCVACenter
    If shading > 0 Then
        cell.Background.Texture = dwTextureShaded
        cell.Background.Shading = shading ' percent
    End If
    For Each side In cell.Borders
        side.Style = dwBSSingle
    Next

    Set paragraph = cell.AddParagraph("In a cell")
    paragraph.Format.Align = align
    paragraph.AddTextItem text
End Sub
' [cell]

Const dwSpellingStandard = 2
Const Bed = 1.1, Plant = 2.4, Amount = 1.2

' [rows]
' Rows that follow each other make one table.
Sub AddTable(section)
    Dim row, line
    Set row = section.AddTable
    row.Header = True ' is repeated on each page that the table goes on to
    AddCell row, Bed, "Bed", dwAlignLeft, dwMergeNone, 20
    AddCell row, Plant, "Plant", dwAlignLeft, dwMergeNone, 20
    AddCell row, Amount, "Rows", dwAlignRight, dwMergeNone, 20
    AddCell row, Amount, "Seed, g", dwAlignRight, dwMergeNone, 20

    ' A cell that spans several rows is the first of merged cells; those below it have no text.
    For Each line In Array(Array("South wall", "Tomatoes", 2, "0.4", dwMergeFirstVertical), _
                           Array("", "Basil", 1, "0.5", dwMergeVertical), _
                           Array("", "French beans", 4, 120, dwMergeVertical), _
                           Array("Hedge", "Spinach", 6, 25, dwMergeNone))
        Set row = section.AddTable
        row.KeepTogether = True
        AddCell row, Bed, line(0), dwAlignLeft, line(4), 0
        AddCell row, Plant, line(1), dwAlignLeft, dwMergeNone, 0
        AddCell row, Amount, line(2), dwAlignRight, dwMergeNone, 0
        AddCell row, Amount, line(3), dwAlignRight, dwMergeNone, 0
    Next

    Set row = section.AddTable
    AddCell row, Bed, "Altogether", dwAlignLeft, dwMergeFirstHorizontal, 8
    AddCell row, Plant, "", dwAlignLeft, dwMergeHorizontal, 8
    AddCell row, Amount, 13, dwAlignRight, dwMergeNone, 8
    AddCell row, Amount, "145.9", dwAlignRight, dwMergeNone, 8
End Sub
' [rows]

Sub WriteTables(filename)
    Dim document, normal, inCell, section
    Set document = CreateObject("Draftwick.Document")
    document.Filename = filename
    document.Spelling = dwSpellingStandard
    document.MarginLeft = 1
    document.MarginRight = 1
    document.Fonts.Add("Arial").Family = dwSwiss
    document.DefaultFontName = "Arial"
    Set normal = document.ParagraphStyles.Add("Normal")
    normal.FontFormat.Size = 11
    normal.Format.SpaceAfter = 6
    Set inCell = document.ParagraphStyles.Add("In a cell")
    inCell.BasedOn = "Normal"
    inCell.FontFormat.Size = 10
    inCell.Format.SpaceBefore = 3
    inCell.Format.SpaceAfter = 3

    Set section = document.AddSection
    section.AddParagraph "Normal", "What is sown in April"
    AddTable section
    document.Finish
End Sub

If WScript.Arguments.Count <> 1 Then
    WScript.Echo "usage: cscript //nologo tables.vbs OUTPUT.rtf"
    WScript.Quit 2
End If
WriteTables WScript.Arguments(0)
