"""What the classic spelling does to readers beyond what the other topics show, and the standard one does not."""
from drawings import SOLID, shape, wmf
from model import dw
from readers import Node
from text import RED
from topics import say, topic


@topic("Quirks of text", only_standard=True)
def quirk_text(t):
    t.document.Caption = "Window"
    section = t.document.AddSection()
    t.shows("Line break, then a letter in another call", r"x\line y", lambda: t.odt.paragraph("x").text, "x\ny")
    item = section.AddParagraph().AddTextItem("x\r\n")
    item.AddText("y")
    t.shows("One-digit escape of a byte", r"\'09", lambda: t.odt.paragraph("tab:").text, "tab:\tend")
    item = say(section, "tab:").AddTextItem("")
    item.AddSpecial("\\'9")
    item.AddText("end")
    for name, code, sign in (("~", "\\~", "\u00a0"), ("_", "\\_", "\u2011"), ("-", "\\-", "\u00ad"), ("'e9", "\\'e9", "é")):
        item = say(section, f"sign {name}:").AddTextItem("a")
        item.AddSpecial(code)
        item.AddText("b")
        t.shows(f"No blank behind \\{name}", f"a\\{name}b", lambda name=name: t.odt.paragraph(f"sign {name}:").text
                .partition(":")[2], f"a{sign}b")
    say(section, "high: café — Žižek")
    t.shows("Bytes above 127", r"caf\'e9", lambda: t.odt.paragraph("high").text, "high: café — Žižek")
    say(section, "other: Ελλάδα 日本 😀")
    t.shows("Text beyond Windows-1252", r"\u917 ?", lambda: t.odt.paragraph("other").text, "other: Ελλάδα 日本 😀")
    say(section, "lone\nfeed")
    t.shows("Lone LF", r"lone\line feed", lambda: t.odt.paragraph("lone").text, "lone\nfeed")
    p = section.AddParagraph(FontFormat_StrikethroughDouble=True)
    p.AddTextItem("struck ")
    p.AddTextItem("unstruck", FontFormat_StrikethroughDouble=False)
    t.shows("Double strikethrough off", r"\striked0", lambda: (bool(t.odt.look("unstruck")), t.odt.look("unstruck").get(
            "text-line-through-type", "none")), (True, "none"))
    p = section.AddParagraph(FontFormat_Superscript=True)
    p.AddTextItem("raised ")
    p.AddTextItem("level", FontFormat_Superscript=False)
    t.shows("Superscript off", r"\nosupersub", lambda: t.odt.look("level").get("text-position") in (None, "0% 100%"), True)
    p = section.AddParagraph(FontFormat_Color=RED)
    p.AddTextItem("black again", FontFormat_Color=0)
    t.shows("Black as the first colour", r"\cf", lambda: t.odt.look("black again").get("color") in (None,
            "#000000"), True)
    say(section, "exact", Format_LineSpacingStyle=dw.SpacingExactly, Format_LineSpacingDistance=15.0)
    t.shows("Exact line spacing", r"\slmult0", lambda: t.odt.look("exact").get("line-height"), "15pt")
    say(section, "wide border", Borders_1_Style=dw.BSSingle, Borders_1_Width=6.0, Borders_1_Color=RED)
    t.shows("Border of 6 points", r"\brdrw120", lambda: t.odt.look("wide border").get("border-top"), "6pt solid #c00000")
    say(section, "last")
    t.shows("The last paragraph", "last", lambda: t.odt.paragraph("last").text, "last")


@topic("Quirks of styles", only_standard=True)
def quirk_styles(t):
    t.document.ParagraphStyles.Add("Plain")
    bold = t.document.ParagraphStyles.Add("Bold centred")
    bold.set(FontFormat_Bold=True, Format_Align=dw.AlignCenter, Format_IndentLeft=1.0, Format_KeepWithNext=True)
    bold.TabStops.Add(2.0, dw.TabLeft, dw.TabLeaderNone)
    section = t.document.AddSection()
    say(section, "styled", StyleName="Bold centred")
    p = section.AddParagraph(StyleName="Bold centred")
    p.set(FontFormat_Bold=False, Format_IndentLeft=0.0, Format_KeepWithNext=False)
    p.AddTextItem("light")
    t.shows("Bold of a style switched off in a paragraph", "Bold centred", lambda: t.odt.look("light").get("font-weight"),
            "normal")
    t.shows("Indent of a style set to 0", "Bold centred", lambda: t.odt.look("light").get("margin-left"), "0pt")
    t.shows("Keep with next of a style switched off", "Bold centred", lambda: t.odt.look("light")
            .get("keep-with-next"), "auto")
    t.shows("Tab stop of a style", "Bold centred", lambda: bool(Node(t.odt, t.odt.styles[
        "Bold_20_centred"][2]).find("tab-stop")), True)


@topic("Quirks of lists", only_standard=True)
def quirk_lists(t):
    t.document.Lists.Add("Numbers")
    t.document.Lists.Add("Long").Levels(1).Format = "A very long text \\L1."
    section = t.document.AddSection()
    for i in (1, 2):
        say(section, f"item {i}", Format_ListName="Numbers", Format_ListLevel=1)
    say(section, "long item", Format_ListName="Long", Format_ListLevel=1)
    t.shows("Level without indents of its own", r"\ls1", lambda: t.pdf.word("item")[1] > 0.55, True)
    t.shows("Text of 19 characters", r"\'13", lambda: "A very long text 1." in t.pdf.text, True)


@topic("Quirks of tables", only_standard=True)
def quirk_tables(t):
    section = t.document.AddSection(MarginLeft=1.0)
    row = section.AddTable(Left=0.5)
    for text in ("one", "two", "three"):
        say(row.AddCell(Width=1.0), text)
    t.shows("Cells of a row with a left edge keep their width", r"\trleft720", lambda: [round(
        t.pdf.word(b)[1] - t.pdf.word(a)[1], 1) for a, b in (("one", "two"), ("two", "three"))], [1.0, 1.0])
    t.shows("Three cells", r"\cellx5040", lambda: [p.text for c in t.odt.find("table-cell") for p in c.find("p")][:3],
            ["one", "two", "three"])
    say(section, "behind")
    empty = section.AddTable()
    empty.AddCell(Width=1.0)
    say(empty.AddCell(Width=2.0), "second")
    t.shows("An empty cell", "second", lambda: [[p.text for p in c.find("p")] for c in t.odt.find("table-cell")][3:],
            [[""], ["second"]])
    say(section, "end")


@topic("Quirks of headers and shapes", only_standard=True)
def quirk_marks(t):
    section = t.document.AddSection()
    header = section.AddHeader(dw.Header)
    say(header.AddTable().AddCell(Width=2.0), "row of the header")
    p = say(section, "with a shape")
    p.AddShape(dw.SKRectangle).set(Width=0.2, Height=0.2)
    say(section, "behind the shape")
    t.shows("A paragraph behind a shape without text", "behind the shape", lambda: [x for x in t.odt.lines() if "shape" in x],
            ["with a shape", "behind the shape"])
    say(section.AddHeader(dw.Footer), "late footer")
    say(section, "behind the footer")
    t.shows("A paragraph behind a late footer", "behind the footer", lambda: [x for x in t.odt.lines() if "behind the" in x],
            ["behind the shape", "behind the footer"])
    t.shows("A header that ends in a row", "row of the header", lambda: [p.text for p in t.odt.find("p", "styles")
            if p.text or True].count(""), 0)
    anchor = say(section, "anchor")
    place = {}
    for i, (name, settings) in enumerate((("no fill", {}), ("negative", dict(Rotation=-45.0, **SOLID)),
                                          ("bottom up", {}), ("chain", {}))):
        s = shape(anchor, dw.SKTextBox if i > 1 else dw.SKRectangle, 1.0 + 1.6 * i, 4.0, Line_Style=dw.SLSNone, **settings)
        if i == 2:
            s.set(TextFormat_Flow=dw.STFBottomToTop, Height=2.0)
            say(s, "upward")
        if i == 3:
            say(s, "boxed")
        place[name] = (1.0 + 1.6 * i, 4.0)
    ink = lambda p, x, y: t.pdf.image().pixel(p[0] + x, p[1] + y)
    t.shows("No fill, no line: nothing is seen", r"{\sp{\sn shapeType}{\sv 1}}", lambda p=place["no fill"]:
            {ink(p, x / 20, 0.5) for x in range(-2, 22)}, {"ffffff"})
    t.shows("A turn to the left", r"{\sp{\sn shapeType}{\sv 1}}", lambda p=place["negative"]: (ink(p, 0.5, 0.5),
            ink(p, 0.05, 0.05)), ("c00000", "ffffff"))
    t.shows("Text of a box is in it", "boxed", lambda p=place["chain"]: (w := t.pdf.word("boxed")) and
            p[0] <= w[1] < p[0] + 1 and p[1] <= w[2] < p[1] + 1, True)
    say(section, "end")


@topic("Quirks of notes", only_standard=True)
def quirk_notes(t):
    section = t.document.AddSection()
    p = section.AddParagraph()
    p.AddTextItem("text")
    note = p.AddFootnote()
    say(note, "without a mark")
    row = note.AddTable()
    say(row.AddCell(Width=2.0), "cell of a note")
    say(note, "behind the row")
    say(note, "second behind it")
    t.shows("A note without a mark", "without a mark", lambda: t.odt.first("note-citation").text, "1")
    t.shows("Paragraphs around a row in a note", "cell of a note", lambda: [p.text.strip() for p in
            t.odt.first("note-body").find("p")], ["without a mark", "cell of a note", "behind the row", "second behind it"])


@topic("Quirks of pictures", only_standard=True)
def quirk_pictures(t):
    section = t.document.AddSection()
    p = say(section, "inches ")
    p.AddShape(dw.SKPictureFrame).set(InLine=True, Width=2.0, Height=2.0, Fill_Picture=str(t.folder / "quarters.bmp"))
    p.AddTextItem(" behind")
    t.shows("In-line picture of 2 by 2 inches", r"\picwgoal2880\pichgoal2880", lambda: t.pdf.image().share("ff0000"), 1.0)
    (t.folder / "plain.wmf").write_bytes(wmf()[22:])
    anchor = say(section, "anchor")
    shape(anchor, dw.SKPictureFrame, 5.0, 5.0, 1.0, 1.0, Fill_Picture=str(t.folder / "plain.wmf"))
    t.shows("A WMF without a placeable header", r"\wmetafile8", lambda: t.pdf.image().pixel(5.5, 5.5), "0000c0")


@topic("Settings that are off", only_standard=True)
def quirk_off(t):
    t.document.set(FacingPage=False, MarginMirror=False, WidowOrphanControl=False, MarginLeft=2.0, MarginRight=1.0)
    section = t.document.AddSection()
    say(section.AddHeader(dw.Header), "any header")
    for i in range(3):
        say(section, f"page-{i}", Format_PageBreakBefore=i > 0)
    t.shows("Margins that are not mirrored", r"\margr1440", lambda: [t.pdf.word(f"page-{i}")[1] for i in range(3)], [2.0] * 3)
    t.shows("No widow control", r"\pgnstart1", lambda: t.odt.look("page-0").get("widows") in (None, "0"), True)
    t.shows("One header for all pages", r"{\header", lambda: t.pdf.text.count("any header"), 3)
