' Every number and text of a refusal arrives in Err, and the script goes on.
'
' usage: cscript //nologo errors.vbs FOLDER
Option Explicit

Dim folder, wrong, tried
folder = WScript.Arguments(0) & "\"
wrong = 0
tried = 0

' The description begins with the text; what to do about it may follow.
Sub Expect(number, source, text)
    tried = tried + 1
    If Err.Number <> number Or Err.Source <> source Or Left(Err.Description, Len(text)) <> text Then
        wrong = wrong + 1
        WScript.Echo "expected: " & number & " " & source & " " & text
        WScript.Echo "actual:   " & Err.Number & " " & Err.Source & " " & Err.Description
    End If
    Err.Clear
End Sub

' A refusal of the library, by the number of its message.
Sub ExpectOwn(number, text)
    Expect -2147220991 + number, "Draftwick", text
End Sub
Sub ExpectRun(number, text)
    Expect number, "Draftwick", text
End Sub

Sub WriteFile(name, text)
    Dim file
    Set file = CreateObject("Scripting.FileSystemObject").CreateTextFile(folder & name)
    file.Write text
    file.Close
End Sub

Function NewDocument()
    Set NewDocument = CreateObject("Draftwick.Document")
    NewDocument.TempPath = folder
    NewDocument.Filename = folder & "errors.rtf"
End Function

Dim document, section, paragraph, shape, picture, special
On Error Resume Next
Set document = NewDocument()
document.Fonts.Add ""
ExpectOwn 102, "Names for Fonts can't be zero length."
document.Fonts.Add "Arial"
document.Fonts.Add "arial"
ExpectRun 457, "The collection already has an item of this name: arial"
document.Properties.Remove "Title"
ExpectOwn 103, "You cannot remove built-in property Title."
document.Properties.Add "Mine", 1
document.Properties.Add "Mine", 2
ExpectOwn 108, "An object already exists in this collection with the name Mine."
document.Preview 2
ExpectRun 429, "The object cannot be created"
document.Preview
ExpectOwn 106, "No viewer program could be found."

Set document = NewDocument()
Set section = document.AddSection
section.Columns.Auto 2, 1
section.Columns.Spacing = 0
ExpectRun 28, "Out of stack space"
section.AddHeader 3
ExpectOwn 110, "Invalid Header kind."
section.AddHeader 1
section.AddHeader 1
ExpectOwn 111, "This section already has this kind of Header."
Set paragraph = section.AddParagraph
paragraph.Format.Align = 7
ExpectOwn 101, "Property ParagraphFormat.Align set to out of range value."
paragraph.StyleName = "Sonnet"
ExpectOwn 112, "Item not found 'Sonnet'."
paragraph.Format.IndentLeft = 1000
ExpectRun 6, "Overflow"
paragraph.Borders(7).Width = 1
ExpectRun 9, "Subscript out of range"
paragraph.Format.Align = Array(1)
ExpectRun 13, "Type mismatch: an array cannot be taken, only its elements one by one"
paragraph.FontFormat.Bold = "perhaps"
ExpectRun 13, "Type mismatch: the value is of another kind"
paragraph.Parent = 1
ExpectRun 5, "Invalid procedure call or argument: the property can only be read"
paragraph.AddTextItem
ExpectRun 5, "Invalid procedure call or argument: the argument Text is missing"
paragraph.AddTextItem "a", False, 3
ExpectRun 5, "Invalid procedure call or argument: too many arguments"
Set shape = paragraph.AddShape(1)
shape.AddParagraph.AddShape 1
ExpectOwn 104, "Shapes cannot contain shapes."
Set shape = paragraph.AddShape(1)
shape.Fill.Style = 5 ' a picture, which is looked up when the shape is written
For Each picture In Array("missing.bmp", "a.xyz", "a.bmp")
    If picture <> "missing.bmp" Then WriteFile picture, "no picture"
    shape.Fill.Picture = folder & picture
    paragraph.AddTextItem "Behind it"
    If picture = "missing.bmp" Then ExpectOwn 107, "Picture '" & folder & picture & "' not found."
    If picture = "a.xyz" Then ExpectOwn 105, "Unsupported File Type: " & folder & picture
    If picture = "a.bmp" Then ExpectRun 481, "Invalid picture: " & folder & picture
Next
shape.Fill.Style = 1
paragraph.AddTextItem "Written"
paragraph.Format.Align = 1
ExpectOwn 109, "Invalid operation.  Target already emitted Paragraph."
paragraph.NoSuchThing = 1
Expect 438, "Microsoft VBScript runtime error", "Object doesn't support this property or method"

' What the file system refuses.
Set document = NewDocument()
document.Filename = folder & "no such folder\a.rtf"
document.Finish
ExpectRun 76, "cannot create '" & folder & "no such folder"

Set document = Nothing
Set section = NewDocument().AddSection
section.AddParagraph
ExpectRun 91, "The document of this object is gone"
Set special = CreateObject("Draftwick.Special")
special.Bullet = "x"
ExpectRun 5, "Invalid procedure call or argument: the property can only be read"

WScript.Echo tried & " tried, " & wrong & " wrong"
