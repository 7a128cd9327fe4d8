# The first document: a title and a paragraph.
#
# usage: powershell -File first_document.ps1 OUTPUT.rtf
param([Parameter(Mandatory)] [string] $Filename)
$ErrorActionPreference = 'Stop'

# [document]
$dwSpellingStandard = 2
$dwRoman = 2
$dwAlignCenter = 3

$document = New-Object -ComObject Draftwick.Document
$document.Filename = $Filename  # a whole path: the folder of the program is not that of PowerShell
$document.Spelling = $dwSpellingStandard
$document.Fonts.Add('Times New Roman').Family = $dwRoman
$document.DefaultFontName = 'Times New Roman'

$section = $document.AddSection()
$title = $section.AddParagraph()
$title.Format.Align = $dwAlignCenter
$title.FontFormat.Size = 18
[void]$title.AddTextItem('Quarterly report')
[void]$section.AddParagraph().AddTextItem('Sales rose by a tenth, complaints fell by half.')
$document.Finish()
# [document]
