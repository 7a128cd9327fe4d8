' What a script hands over and gets back.
'
' usage: cscript //nologo values.vbs FOLDER
Option Explicit

Dim wrong, tried
wrong = 0
tried = 0

Sub Expect(actual, expected)
    tried = tried + 1
    If TypeName(actual) <> TypeName(expected) Then
        WScript.Echo tried & " expected a " & TypeName(expected) & ", actual a " & TypeName(actual)
    ElseIf actual <> expected Then
        WScript.Echo tried & " expected " & expected & ", actual " & actual
    Else
        Exit Sub
    End If
    wrong = wrong + 1
End Sub

Dim document, section, paragraph, item, names, nobody, shape, record
Set document = CreateObject("Draftwick.Document")
document.TempPath = WScript.Arguments(0)
document.ScaleMode = 3 ' dwPoints

' Numbers, texts and dates in what form they come.
document.MarginLeft = "72"
Expect document.MarginLeft, 72.0
document.MarginLeft = CCur(36.5)
Expect document.MarginLeft, 36.5
document.PageNumberStart = 2.5
Expect document.PageNumberStart, CLng(2)
document.FacingPage = 1
Expect document.FacingPage, True
document.FacingPage = Empty
Expect document.FacingPage, False
document.Caption = 12.5
Expect document.Caption, "12.5"
document.Caption = True
Expect document.Caption, "True"
document.Caption = Null
Expect document.Caption, ""
document.Caption = nobody
Expect document.Caption, ""
document.Properties("CreationTime").Value = #2026-03-01 12:30:00#
Expect document.Properties("CreationTime").Value, #2026-03-01 12:30:00#
document.Properties("Title").Value = "Zo" & Chr(235)
Expect document.Properties(1).Value, "Zo" & Chr(235)
document.Properties.Add "Mine", 3.5
Expect document.Properties("mine").Value, 3.5

' An object of another program stands for its default value.
Class Field
    Public Default Property Get Value
        Value = "from elsewhere"
    End Property
End Class
Set record = New Field
document.Caption = record
Expect document.Caption, "from elsewhere"

' Collections, objects, arguments that are left out, properties with arguments.
document.Fonts.Add("Arial").Family = 3
document.Fonts.Add "Georgia"
names = ""
For Each item In document.Fonts
    names = names & item.Name & ","
Next
Expect names, "Arial,Georgia,"
Expect document.Fonts.Count, CLng(2)
Expect document.fonts("ARIAL") Is document.Fonts.Items(1), True
Expect document.CurrentSection Is Nothing, True
Set section = document.AddSection
Expect section Is document.CurrentSection, True
Expect section.Parent Is document, True
Expect section Is document, False
Set paragraph = section.AddParagraph
paragraph.AddField , "shown"
Set shape = paragraph.AddShape(2)
shape.AdjustValues(1) = 5400
Expect shape.AdjustValues(1), CLng(5400)
Expect TypeName(paragraph), "IParagraph"
Expect CreateObject("Draftwick.Document.1").MarginLeft, 0.5

WScript.Echo tried & " tried, " & wrong & " wrong"
