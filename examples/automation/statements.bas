Attribute VB_Name = "Statements"
' An office macro: a statement for each row of the active sheet, whose columns are a name, an amount and a date.
'
' Needs the reference "Draftwick 1" (Tools, References), from which it has the types and the constants.
Option Explicit

' [statements]
Public Sub WriteStatements()
    Dim row As Range
    On Error GoTo Refused
    For Each row In ActiveSheet.UsedRange.Rows
        If row.Row > 1 Then WriteStatement row, ThisWorkbook.Path & "\statement " & row.Row - 1 & ".rtf"
    Next
    Exit Sub
Refused:
    ' Nothing is half done: what was refused changed nothing, and no half of a file is left.
    MsgBox Err.Description, vbExclamation, Err.Source & " " & Err.Number
End Sub

Private Sub WriteStatement(ByVal row As Range, ByVal filename As String)
    Dim document As New Draftwick.Document
    document.Filename = filename
    document.Spelling = dwSpellingStandard
    document.ScaleMode = dwPoints
    document.Fonts.Add("Calibri").Family = dwSwiss
    document.DefaultFontName = "Calibri"
    document.Properties("Title").Value = "Statement for " & row.Cells(1).Value

    With document.AddSection.AddParagraph
        .Format.SpaceAfter = 12
        .FontFormat.Size = 16
        .AddTextItem "Statement for " & row.Cells(1).Value
    End With
    Dim table As Draftwick.Table
    Set table = document.CurrentSection.AddTable
    AddCell table, Format(row.Cells(3).Value, "Long Date"), dwAlignLeft
    AddCell table, Format(row.Cells(2).Value, "Currency"), dwAlignRight
    document.Finish
End Sub

Private Sub AddCell(ByVal table As Draftwick.Table, ByVal text As String, ByVal align As dwParagraphAlign)
    With table.AddCell
        .Width = 160 ' points, as the ScaleMode says
        .Borders(dwCBorderBottom).Style = dwBSSingle
        With .AddParagraph
            .Format.Align = align
            .AddTextItem text
        End With
    End With
End Sub
' [statements]
