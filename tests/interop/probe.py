"""One line of text in every kind of place: it must come back as it is."""
import re

from model import dw
from topics import say, topic

LINE = "2024 budget {a\\b} é end"


@topic("The same line everywhere")
def probe(t):
    """The line `2024 budget {a\\b} é end` begins with a digit and has the characters that mean something in RTF. Names of
    fonts, styles, lists and bookmarks, the format of a list level's number and the title of the window are written as they
    are, as their headers say: it cannot stand there."""
    t.document.Fonts.Add("Courier New")
    t.document.DefaultFontName = "Courier New"
    t.document.ParagraphStyles.Add("Plain")
    t.document.ParagraphStyles.Add("Quote").FontFormat.Italic = True
    t.document.TextStyles.Add("Loud").FontFormat.Bold = True
    t.document.Lists.Add("Numbers")
    t.document.Properties.Items(dw.BIPTitle).Value = LINE
    t.document.Properties.Add(LINE, LINE)
    section = t.document.AddSection(TitlePage=True)
    kinds = []

    def place(name, container, **settings):
        paragraph = container.AddParagraph(**settings)
        paragraph.AddTextItem(name + ": ")
        kinds.append(name)
        return paragraph

    def line(name, container, **settings):
        place(name, container, **settings).AddTextItem(LINE)

    for name, kind in (("header of the first page", dw.HeaderFirst), ("footer of the first page", dw.FooterFirst),
                       ("header", dw.Header), ("footer", dw.Footer)):
        line(name, section.AddHeader(kind))
    line("body", section)
    say(section, LINE)
    line("paragraph style", section, StyleName="Quote")
    place("text style", section).AddTextItem(LINE, StyleName="Loud")
    place("look of its own", section).AddTextItem(LINE, FontFormat_Underline=2)
    place("font", section).AddTextItem(LINE, FontFormat_FontName="Courier New")
    place("border", section).AddTextItem(LINE, Border_Style=2)
    place("background", section).AddTextItem(LINE, Background_Texture=dw.TextureSolid)
    line("list", section, Format_ListName="Numbers")
    place("field", section).AddField("SOMETHING", LINE)
    place("field with an instruction", section).AddField(f'SOMETHING "{LINE}"', LINE)
    marked = place("bookmark", section)
    marked.AddBookmark("mark")
    marked.AddTextItem(LINE)
    marked.AddBookmark("mark", False)
    place("link", section).AddField('HYPERLINK "https://example.org"', LINE)
    place("added", section).AddTextItem("").AddText(LINE)
    line("frame", section, Frame_ReferenceX=dw.FRXPage, Frame_ReferenceY=dw.FRYPage, Frame_Left=1.0, Frame_Top=9.0,
         Frame_Width=6.0)
    row = section.AddTable()
    cell = row.AddCell(Width=6.5)
    line("cell", cell)
    line("second paragraph of a cell", cell)
    for name, is_end in (("footnote", False), ("endnote", True)):
        paragraph = say(section, f"a {name}")
        paragraph.AddTextItem("").AddSpecial("chftn")
        line(name, paragraph.AddFootnote(is_end))
    noted = say(section.AddTable().AddCell(Width=6.5), "a note in a cell")
    noted.AddTextItem("").AddSpecial("chftn")
    line("note in a cell", noted.AddFootnote())
    anchor = say(section, "a box")
    box = anchor.AddShape(dw.SKTextBox).set(ReferenceY=dw.SRYPage, Top=7.0, Width=6.5, Height=1.5)
    line("text box", box)
    line("cell in a text box", box.AddTable().AddCell(Width=6.0))
    say(section, "second page", Format_PageBreakBefore=True)
    for name in kinds:
        t.shows(name.capitalize(), r"2024 budget \{a\\b\} ", lambda name=name: [
            any(re.fullmatch(r"(\w\.? ?)?" + re.escape(f"{name}: {LINE}"), x) for x in lines)
            for lines in (t.odt.lines(), t.pdf.text.splitlines())],
            [True, True], pandoc=None if "header" in name or "footer" in name else
            ("!" if name.startswith(("field", "link")) else "") + f"{name}: {LINE}", **({} if name != "text box" else {
                "instead": [True, False], "partly": True, "why": "the text is there, in a frame too small to show it"}))
    t.shows("Title of the document", "{\\title 2024 budget", lambda: t.odt.meta("title"), LINE)
    t.shows("Value of a property, and its name", "{\\staticval 2024 budget", lambda: t.odt.meta(LINE), LINE)
