"""Tables, headers, columns, sections, pages, notes, bookmarks, fields, properties, frames."""
import datetime
import re

from model import dw
from text import FRONT, IGNORED, RED, SAND
from topics import say, topic


def row(container, *texts, widths=None, cells=(), **settings):
    """A row with a cell for each text; the cells' settings and widths by position."""
    table = container.AddTable(**settings)
    for i, text in enumerate(texts):
        cell = table.AddCell(Width=(widths or [1.5] * len(texts))[i], **(cells[i] if i < len(cells) else {}))
        if text:
            say(cell, text)
    return table


def cell_of(t, text):
    """The cell in which a text stands."""
    return next((c for c in t.odt.find("table-cell") if any(p.text == text for p in c.find("p"))), t.odt.body)


@topic("Tables")
def tables(t):
    section = t.document.AddSection()
    gap = iter(range(100))

    def apart():
        say(section, f"apart {next(gap)}")

    row(section, "h1", "h2", widths=[1.0, 3.0])
    row(section, "h3", "h4", widths=[1.0, 3.0])
    t.shows("Rows and cells", r"\cellx1440", lambda: [[c.find("p")[0].text for c in r.children("table-cell")] for r in
            t.odt.find("table-row")[:2]], [["h1", "h2"], ["h3", "h4"]], pandoc="!<td><p>h3</p></td><td><p>h4</p></td>")
    t.shows("Widths of cells", r"\cellx5760", lambda: [c.get("column-width") for c in t.odt.find("table-column")[:2]],
            ["76.8pt", "215.9pt"])
    apart()
    for align, name in ((dw.TACenter, "center"), (dw.TARight, "right")):
        row(section, f"row {name}", "-", Align=align)
        t.shows(f"Row {name}", rf"\trq{name[0]}", lambda name=name: table_of(f"row {name}").get("align"), name)
        apart()
    row(section, "gap", "-", Gap=0.25)
    t.shows("Gap between cells", r"\trgaph360", lambda: (cell_of(t, "gap").get("padding-left"),
        cell_of(t, "gap").get("padding-right")), ("18pt", "18pt"))
    apart()
    row(section, "left", "-", Left=0.5, widths=[2.0, 1.0])
    t.shows("Left edge of a row", r"\trleft720", lambda: t.pdf.word("left")[1] > 0.95, True)
    apart()
    row(section, "high", "-", Height=0.5)
    t.shows("Least height", r"\trrh720", lambda: row_of("high").get("min-row-height"), "36pt")
    apart()
    row(section, "exact", "-", Height=0.5, HeightExactly=True)
    t.shows("Exact height", r"\trrh-720", lambda: row_of("exact").get("row-height"), "36pt")
    apart()
    row(section, "together", "-", KeepTogether=True)
    t.shows("Row on one page", r"\trkeep", lambda: row_of("together").get("keep-together"), "always")
    apart()
    row(section, "a1", "b1", "c1", cells=[{"Merge": dw.MergeFirstHorizontal}, {"Merge": dw.MergeHorizontal}])
    row(section, "a2", "b2", "c2")
    t.shows("Cells merged across", r"\clmgf", lambda: cell_of(t, "a1").get("number-columns-spanned"), "2",
            pandoc="!colspan")
    apart()
    row(section, "d1", "e1", cells=[{"Merge": dw.MergeFirstVertical}])
    row(section, "", "e2", cells=[{"Merge": dw.MergeVertical}])
    t.shows("Cells merged down", r"\clvmgf", lambda: cell_of(t, "d1").get("number-rows-spanned"), "2",
            pandoc="!rowspan")
    apart()
    row(section, "f1", "", "g1", cells=[{"Merge": dw.MergeFirstBoth}, {"Merge": dw.MergeHorizontal}])
    row(section, "", "", "g2", cells=[{"Merge": dw.MergeVertical}, {"Merge": dw.MergeVertical}])
    row(section, "i1", "i2", "i3")
    t.shows("Cells merged across and down", r"\clmgf\clvmgf",
            lambda: (cell_of(t, "f1").get("number-columns-spanned"), cell_of(t, "f1").get("number-rows-spanned")),
            ("2", "2"))
    apart()
    row(section, "top", "bottom", "centre", cells=[{}, {"VerticalAlign": dw.CVABottom},
        {"VerticalAlign": dw.CVACenter}], Height=0.6)
    t.shows("Text at the bottom of a cell", r"\clvertalb", lambda: cell_of(t, "bottom").get("vertical-align"), "bottom")
    t.shows("Text in the middle of a cell", r"\clvertalc", lambda: cell_of(t, "centre").get("vertical-align"), "middle")
    apart()
    row(section, "up", "down", "across", cells=[{"Orientation": dw.ReadRight}, {"Orientation": dw.ReadLeft}])
    t.shows("Text upwards", r"\cltxbtlr", lambda: cell_of(t, "up").get("writing-mode"), "bt-lr",
            why="the word stands behind its cell: it turns the next one")
    t.shows("Text downwards", r"\cltxbtrl", lambda: cell_of(t, "down").get("writing-mode"), "tb-rl",
            instead="bt-lr", why="unknown; here it is turned by the cell in front of it")
    apart()
    line = {"Style": dw.BSSingle, "Width": 2.0, "Color": RED}
    row(section, "cell lines", "-", cells=[{f"Borders_{side}_{k}": v for side in (1, 2, 3, 4) for k,
        v in line.items()}])
    t.shows("Border of a cell", r"\clbrdrt\brdrs\brdrw40",
            lambda: re.sub(" #.*", "", cell_of(t, "cell lines").get("border", "none")), "2pt solid")
    t.shows("Colour of a cell's border", r"\brdref1", lambda: cell_of(t, "cell lines").get("border", "none"),
            "2pt solid #c00000",
            instead="2pt solid #000000", why="drawn black")
    apart()
    row(section, "row lines", "-", **{f"Borders_{side}_{k}": v for side in range(1, 7) for k, v in line.items()})
    t.shows("Border of a row", r"\trbrdrt\brdrs\brdrw40",
            lambda: re.sub(" #.*", "", cell_of(t, "row lines").get("border", "none")), "2pt solid",
            instead="none", why="not drawn; borders of cells are")
    apart()
    back = {"Background_Color": RED, "Background_BackColor": SAND, "Background_Shading": 25.0}
    row(section, "solid", "shaded", "pattern", cells=[{"Background_Texture": k, **back}
        for k in (dw.TextureSolid, dw.TextureShaded, dw.TextureDiagonalUp)])
    color = lambda name: lambda: cell_of(t, name).get("background-color")
    t.shows("Cell in one colour", r"\clshdng10000\clcbpat2", color("solid"), "#ffe0a0", instead="#000000",
            why="black, as no foreground is written")
    t.shows("Shaded cell", r"\clshdng2500", color("shaded"), "#bfbfbf")
    t.shows("Cell with a pattern", r"\clbgbdiag\clcbpat2\clfpat1", color("pattern"), "pattern", instead="#ffe0a0",
            partly=True, why=FRONT)
    apart()
    row(section, "head", "-", Header=True)
    for i in range(70):
        row(section, f"body {i}", "-")
    t.shows("Row repeated on each page", r"\trhdr", lambda: t.pdf.text.count("head"), 3, instead=1,
            why="it stands on the first page alone")
    apart()
    inner = row(section, "cell with two paragraphs", "-").CurrentCell
    say(inner, "second paragraph")
    t.shows("Paragraphs in a cell", "second paragraph", lambda: [c.find("p")[-1].text for c in t.odt.find("table-cell")
            if c.find("p")[-1].text == "second paragraph"], ["second paragraph"])

    def table_of(text):
        return next(x for x in t.odt.find("table") if any(p.text == text for p in x.find("p")))

    def row_of(text):
        return next(x for x in t.odt.find("table-row") if any(p.text == text for p in x.find("p")))


@topic("Headers and footers")
def headers(t):
    section = t.document.AddSection()
    say(section.AddHeader(dw.Header), "running header")
    footer = section.AddHeader(dw.Footer).AddParagraph(Format_Align=dw.AlignCenter)
    footer.AddTextItem("running footer")
    say(section, "page one")
    say(section, "page two", Format_PageBreakBefore=True)
    second = t.document.AddSection(TitlePage=True)
    say(second.AddHeader(dw.HeaderFirst), "first header")
    say(second.AddHeader(dw.FooterFirst), "first footer")
    table = second.AddHeader(dw.Header)
    row(table, "row in header", "-")
    say(table, "second header")
    say(second, "page three")
    say(second, "page four", Format_PageBreakBefore=True)
    on = lambda page: " ".join(w[4] for w in t.pdf.pages[page - 1])
    t.shows("Header", r"{\header", lambda: ["running header" in on(p) for p in (1, 2, 3, 4)],
            [True, True, False, False])
    t.shows("Footer", r"{\footer", lambda: ["running footer" in on(p) for p in (1, 2)], [True, True])
    t.shows("Header of the first page", r"{\headerf", lambda: ["first header" in on(p) for p in (3, 4)], [True, False])
    t.shows("Footer of the first page", r"{\footerf", lambda: ["first footer" in on(p) for p in (3, 4)], [True, False])
    t.shows("Header of another section", r"\titlepg", lambda: ["second header" in on(p) for p in (3, 4)], [False, True])
    t.shows("Table in a header", "row in header", lambda: [p.text for c in t.odt.find("table-cell", "styles")
        for p in c.find("p")][:1], ["row in header"])


@topic("Facing pages")
def facing(t):
    t.document.set(FacingPage=True, MarginMirror=True, MarginLeft=2.0, MarginRight=1.0, Gutter=0.5)
    section = t.document.AddSection()
    for kind, name in ((dw.HeaderLeft, "left header"), (dw.HeaderRight, "right header"), (dw.FooterLeft, "left footer"),
                       (dw.FooterRight, "right footer")):
        say(section.AddHeader(kind), name)
    for number in ("one", "two", "three"):
        say(section, f"page-{number}", Format_PageBreakBefore=number != "one")
    on = lambda page: " ".join(w[4] for w in t.pdf.pages[page - 1])
    t.shows("Headers of left and right pages", r"\facingp1",
            lambda: [("left header" in on(p), "right header" in on(p)) for p in (1, 2)],
            [(False, True), (True, False)])
    t.shows("Footers of left and right pages", r"{\footerl",
            lambda: [("left footer" in on(p), "right footer" in on(p)) for p in (1, 2)],
            [(False, True), (True, False)])
    t.shows("Mirrored margins", r"\margmirror1", lambda: [t.pdf.word(w)[1] for w in ("page-one", "page-two")],
            [2.0, 1.0])
    t.shows("Gutter", r"\gutter720", lambda: t.pdf.word("page-one")[1], 2.5, instead=2.0, why=IGNORED)


@topic("Columns")
def columns(t):
    first = t.document.AddSection()
    first.Columns.Auto(3, 0.25)
    first.Columns.LineBetween = True
    say(first, "equal")
    second = t.document.AddSection()
    second.Columns.Add(2.0, 0.5)
    second.Columns.Add(5.0, 0.0)
    item = second.AddParagraph().AddTextItem("narrow")
    item.AddSpecial("\\column")
    item.AddText("wide")
    t.shows("Equal columns", r"\cols3", lambda: any((c.get("column-count"), c.get("column-gap")) == ("3", "18pt")
                                                    for c in settings()), True)
    t.shows("Line between columns", r"\linebetcol", lambda: any(c.first("column-sep") for c in settings()), True)
    t.shows("Columns of different width", r"\colno1\colw2880\colsr720",
            lambda: t.pdf.word("wide")[1] - t.pdf.word("narrow")[1], 2.5)
    t.shows("Column break", r"\column", lambda: t.pdf.word("wide")[2] == t.pdf.word("narrow")[2], True)

    def settings():
        return t.odt.find("columns") + t.odt.find("columns", "styles")


@topic("Sections and pages")
def sections(t):
    t.document.set(PageWidth=8.27, PageHeight=11.69, MarginLeft=1.25, MarginTop=1.5, MarginRight=1.0, MarginBottom=0.75)
    first = t.document.AddSection(HeaderY=0.4, FooterY=0.3, LineNumberingVisible=True)
    say(first.AddHeader(dw.Header), "in-header")
    say(first.AddHeader(dw.Footer), "in-footer")
    say(first, "first-section")
    say(first, "uncounted", Format_NoLineNumbering=True)
    say(first, "counted")
    for name, kind in (("continuous", dw.SBKNone), ("paged", dw.SBKPage), ("even", dw.SBKEven), ("odd", dw.SBKOdd)):
        say(t.document.AddSection(Break=kind), name)
    say(t.document.AddSection(Orientation=dw.Landscape), "landscape")
    say(t.document.AddSection(PageWidth=5.0, PageHeight=6.0, MarginLeft=0.5, MarginTop=1.0), "small")
    numbered = t.document.AddSection(PageNumberingFormat=dw.PNRomanUpper, PageNumberingRestart=dw.PNRSection,
        PageNumberingStart=7)
    numbered.AddParagraph().AddTextItem("page-").AddSpecial("\\chpgn")
    say(t.document.AddSection(VerticalAlign=dw.VertCenter), "middle")
    page = lambda word: t.pdf.word(word)[0]

    def number_of(word):
        """What stands in the margin beside a word."""
        number, left, top, *_ = t.pdf.word(word)
        return [w[4] for w in t.pdf.pages[number - 1] if w[0] < left and abs(w[1] - top) < 0.05]

    def usage(text):
        master = t.odt.styles[t.odt.styles[t.odt.paragraph(text).get("style-name")][0]["master-page-name"]][0]
        return t.odt.styles[master["page-layout-name"]][0].get("page-usage")

    t.shows("Size of the page", r"\paperw11909\paperh16834", lambda: (t.pdf.image().width, t.pdf.image().height),
            (827, 1170))
    t.shows("Margins", r"\margl1800", lambda: t.pdf.word("first-section")[1:3], (1.25, 1.5))
    t.shows("Place of headers", r"\headery576", lambda: abs(t.pdf.word("in-header")[2] - 0.4) < 0.1, True)
    t.shows("Place of footers", r"\footery432", lambda: abs(11.69 - t.pdf.word("in-footer")[4] - 0.3) < 0.1, True)
    t.shows("Section without a break", r"\sbknone", lambda: page("continuous") == page("first-section"), True)
    t.shows("Section on a new page", r"\sbkpage", lambda: page("paged") - page("continuous"), 1)
    t.shows("Section on an even page", r"\sbkeven", lambda: (usage("even"), round(t.pdf.word("even")[2], 1)),
            ("left", 1.5), partly=True, instead=("left", 0.7),
            why="on a page of its own, but its upper margin is lost")
    t.shows("Section on an odd page", r"\sbkodd", lambda: (usage("odd"), round(t.pdf.word("odd")[2], 1)),
            ("right", 1.5), partly=True, instead=("right", 0.7),
            why="as above")
    t.shows("Landscape", r"\lndscpsxn", lambda: (t.pdf.image(page("landscape")).width,
        t.pdf.image(page("landscape")).height), (1170, 827))
    t.shows("Page of a section", r"\pgwsxn7200\pghsxn8640",
            lambda: (t.pdf.image(page("small")).width, t.pdf.image(page("small")).height), (500, 600))
    t.shows("Numbers of pages that start again, in Roman numerals", r"\pgnstarts7\pgnrestart\pgnucrm",
            lambda: re.findall("page-(.*)", t.pdf.text), ["VII"],
            instead=["I"], partly=True, why="in Roman numerals, but from I")
    t.shows("Numbers of lines", r"\linemod1\linex720", lambda: number_of("first-section"), ["1"])
    t.shows("Paragraph whose lines are not numbered", r"\noline",
            lambda: (number_of("uncounted"), number_of("counted")),
            ([], ["2"]), instead=(["2"], ["3"]), why=IGNORED)
    t.shows("Margins that are not mirrored", r"\margmirror0", lambda: t.pdf.word("paged")[1], 1.25, instead=1.0,
            why="the word counts, not its number")
    t.shows("Text in the middle of the page", r"\vertalc", lambda: t.pdf.word("middle")[2] > 4, True,
            instead=False, why="it has nothing of the kind")



@topic("Borders of pages")
def page_borders(t):
    for name, display in (("all", dw.PBDAllPages), ("first", dw.PBDFirstPage), ("but-first", dw.PBDExceptFirst)):
        section = t.document.AddSection()
        section.PageBorders.set(Display=display, Offset=dw.PBOPage)
        for side in (1, 2, 3, 4):
            section.PageBorders.Items(side).set(Style=dw.BSSingle, Width=3.0, Color=RED, Spacing=24.0)
        say(section, name)
        say(section, name + "-2", Format_PageBreakBefore=True)
    art = t.document.AddSection()
    art.PageBorders.Items(1).set(Art=12, Width=12.0)
    say(art, "art")
    drawn = lambda word: t.pdf.image(t.pdf.word(word)[0]).share("c00000") > 0
    t.shows("Line around all pages", r"\pgbrdropt32\pgbrdrt\brdrs\brsp480\brdrw60",
            lambda: (drawn("all"), drawn("all-2")), (True, True))
    t.shows("Distance from the edge of the page", r"\brsp480", lambda: t.pdf.image(1).box("c00000"),
            (0.3, 0.3, 8.2, 10.7))
    t.shows("Line around the first page", r"\pgbrdropt33", lambda: (drawn("first"), drawn("first-2")), (True, False),
            instead=(True, True), partly=True, why="around all pages")
    t.shows("Line around all pages but the first", r"\pgbrdropt34", lambda: (drawn("but-first"), drawn("but-first-2")),
            (False, True),
            instead=(True, True), partly=True, why="around all pages")
    t.shows("Picture border", r"\brdrart12", lambda: t.pdf.image(t.pdf.word("art")[0]).box("000000")[2] > 4, True,
            instead=False,
            why="it has no picture borders")


@topic("Notes")
def notes(t):
    t.document.set(FootnoteFormat=dw.FFRomanLower, FootnoteStartAt=3, EndnoteFormat=dw.FFLetterUpper,
                   FootnoteRestart=dw.FRSection)
    section = t.document.AddSection()

    def note(paragraph, text, is_end=False, more=""):
        paragraph.AddTextItem("", FontFormat_Superscript=True).AddSpecial("chftn")
        added = paragraph.AddFootnote(is_end)
        first = added.AddParagraph()
        first.AddTextItem("").AddSpecial("chftn")
        first.AddTextItem(" " + text)
        if more:
            say(added, more)
        return added

    paragraph = say(section, "text")
    note(paragraph, "the footnote")
    paragraph.AddTextItem(" more")
    note(paragraph, "the endnote", True)
    paragraph.AddTextItem(" end")
    other = say(section, "two")
    note(other, "first half", False, "second half")
    cell = row(section, "-", "-").CurrentCell
    note(say(cell, "in a cell"), "from a cell")
    note(say(t.document.AddSection(), "last"), "of the last section")
    bodies = lambda kind: [n.first("note-body").find("p") for n in t.odt.find("note") if n.get("note-class") == kind]
    marks = lambda kind: [n.first("note-citation").text for n in t.odt.find("note") if n.get("note-class") == kind]
    t.shows("Footnote", r"{\footnote", lambda: bodies("footnote")[0][0].text.strip(), "the footnote",
            pandoc="the footnote")
    t.shows("Endnote", r"{\footnote\ftnalt", lambda: bodies("endnote")[0][0].text.strip(), "the endnote",
            pandoc="the endnote")
    t.shows("Numbers in Roman numerals from 3", r"\ftnstart3\ftnnrlc", lambda: marks("footnote")[0], "iii")
    t.shows("Numbers of endnotes in letters", r"\aftnnauc", lambda: marks("endnote")[0], "A")
    t.shows("Endnotes at the end of the section", r"\endnhere",
            lambda: t.pdf.word("endnote")[0] < t.pdf.word("last")[0], True,
            instead=False, why="they stand at the end of the document")
    t.shows("Numbers that start again in each section", r"\ftnrestart", lambda: marks("footnote")[-1], "iii",
            instead="vi",
            why="they go on")
    t.shows("Two paragraphs in a note", "second half", lambda: len(bodies("footnote")[1]), 2, instead=1,
            partly=True, why="they run together")
    t.shows("Note in a cell", "from a cell", lambda: bodies("footnote")[2][0].text.strip(), "from a cell")


@topic("Bookmarks, links and references")
def bookmarks(t):
    section = t.document.AddSection()
    paragraph = section.AddParagraph()
    paragraph.AddBookmark("here")
    paragraph.AddTextItem("marked text")
    paragraph.AddBookmark("here", False)
    second = say(section, "see ")
    second.AddField("REF here \\h", "old reference")
    third = say(section, "page ")
    third.AddField("PAGEREF here", "99")
    fourth = say(section, "go to ")
    fourth.AddField('HYPERLINK "https://example.org/a?b=1"', "the site")
    fifth = say(section, "jump to ")
    fifth.AddField('HYPERLINK \\l "here"', "the place")
    t.shows("Bookmark", r"{\*\bkmkstart here}", lambda: t.odt.first("bookmark-start").get("name"), "here",
            pandoc='id="here"')
    t.shows("Reference to a bookmark", "REF here", lambda: "see marked text" in t.pdf.text, True,
            pandoc="!old reference")
    t.shows("Reference to a page", "PAGEREF here", lambda: "page 1" in t.pdf.text, True)
    t.shows("Hyperlink", "HYPERLINK", lambda: [(a.get("href"), a.text) for a in t.odt.find("a")][:1],
            [("https://example.org/a?b=1", "the site")],
            pandoc="!the site")
    t.shows("Hyperlink to a bookmark", r'HYPERLINK \\l "here"', lambda: [a.get("href") for a in t.odt.find("a")][1:],
            ["#here"], pandoc="!the place")


@topic("Fields")
def fields(t):
    t.document.Properties.Items(dw.BIPTitle).Value = "The title"
    t.document.Properties.Items(dw.BIPAuthor).Value = "The author"
    section = t.document.AddSection()

    def field(name, code, result, written, probe, shown, **others):
        settings = others.pop("settings", {})
        say(section, name + ": ").AddField(code, result).set(**settings)
        t.shows(name, written, lambda: probe(t.odt.paragraph(name + ": ")), shown, **others)

    kind = lambda tag: lambda p: p.first(tag) is not None
    text_of = lambda p: p.text.partition(": ")[2]
    field("Page number", "PAGE", "9", "{\\*\\fldinst PAGE}", kind("page-number"), True, pandoc="!: 9")
    field("Number of pages", "NUMPAGES", "9", "NUMPAGES", kind("page-count"), True)
    field("Date", "DATE", "1 May 2020", 'DATE \\\\@ "d MMMM yyyy"', kind("date"), True,
          settings={"DatePicture": "d MMMM yyyy"}, pandoc="!1 May 2020")
    field("Locked date", "DATE", "1 May 2020", r"\fldlock", lambda p: text_of(p) == "1 May 2020", True,
          settings={"Locked": True},
          instead=False, why="it becomes the day of reading")
    field("Time", "TIME", "10:00", "TIME", lambda p: p.first("time") is not None or p.first("date") is not None, True)
    field("Title", "TITLE", "old", "TITLE", text_of, "The title")
    field("Author", "AUTHOR", "old", "AUTHOR", text_of, "The author", instead="old", partly=True,
          why="the text that was written stays")
    field("Page number in letters", "PAGE", "i", r"\\* ROMAN", lambda p: p.first("page-number").get("num-format"), "I",
          settings={"NumberFormat": dw.FNFRomanUpper})
    field("Calculation", "= 2 + 3", "result 5", "= 2 + 3", text_of, "result 5", pandoc="!result 5")
    field("Sequence", "SEQ Table", "4", "SEQ Table", text_of, "4")
    field("Unknown instruction", "SOMETHING else", "as written", "SOMETHING else", text_of, "as written",
          pandoc="!as written")
    contents = section.AddParagraph()
    contents.AddField("TOC \\o", "Chapter\t3")
    say(section, "Heading", Format_OutlineLevel=1, Format_PageBreakBefore=True)
    t.shows("Table of contents", r"TOC \\o", lambda: t.odt.first("table-of-content") is not None, True,
            pandoc="!Chapter")
    t.shows("Text of a table of contents", "Chapter\\tab", lambda: "Chapter\t3" in t.odt.lines(), True)


@topic("Properties")
def properties(t):
    when = datetime.datetime(2024, 2, 29, 12, 30, 0)
    names = ("title", "subject", "author", "manager", "company", "operator", "category", "keywords", "comment",
             "doccomm",
             "hlinkbase", "creatim", "revtim", "printim", "buptim", "version", "edmins", "nofpages", "nofwords",
             "nofchars")
    keys = dict(author="initial-creator", operator="Operator", company="Company", keywords="keyword",
                doccomm="description",
                creatim="creation-date", revtim="date", printim="print-date", version="editing-cycles",
                edmins="editing-duration")
    whys = {**dict.fromkeys(("manager", "category", "comment", "hlinkbase", "buptim"), IGNORED),
            "edmins": "taken for seconds",
            **dict.fromkeys(("nofpages", "nofwords", "nofchars"), "it counts itself")}
    meta = lambda name: t.odt.meta(keys.get(name, name))
    for position, name in enumerate(names, 1):
        value = f"the {name}" if position <= 11 else when if position <= 15 else position * 3
        t.document.Properties.Items(position).Value = value
        shown = "2024-02-29T12:30:00" if 12 <= position <= 15 else str(value)
        t.shows(f"Property {name}", f"{{\\{name}" if position <= 15 else f"{{\\{name}{value}}}",
                lambda name=name: meta(name),
                "PT51M" if name == "edmins" else shown, instead="PT51S" if name == "edmins" else None,
                partly=name == "edmins", why=whys.get(name, ""))
    for name, value, shown in (("Text", "Zoë {x}", "Zoë {x}"), ("Number", 42, "42"), ("Real", 0.5, "0.5"),
            ("Yes", True, "true"),
                               ("Date", when, "2024-02-29T12:30:00")):
        t.document.Properties.Add(f"My {name}", value)
        t.shows(f"Property of your own: {name.lower()}", f"{{\\propname My {name}}}",
                lambda name=name: t.odt.meta(f"My {name}"), shown,
                why=IGNORED if name == "Date" else "")
    t.document.Properties.Add("Linked", "old", "mark")
    paragraph = t.document.AddSection().AddParagraph()
    paragraph.AddBookmark("mark")
    paragraph.AddTextItem("new")
    paragraph.AddBookmark("mark", False)
    t.shows("Property linked to a bookmark", r"{\linkval mark}", lambda: t.odt.meta("Linked"), "new", instead="old",
            partly=True, why="the value that was written stays")


@topic("Frames and drop caps")
def frames(t):
    section = t.document.AddSection(MarginLeft=1.0)
    placed = section.AddParagraph()
    placed.Frame.set(ReferenceX=dw.FRXPage, ReferenceY=dw.FRYPage, Left=5.0, Top=9.0, Width=2.0, Height=1.0,
                     HeightExactly=True)
    placed.AddTextItem("placed")
    say(section, "after")
    right = section.AddParagraph()
    right.Frame.set(AlignX=dw.FAXRight, ReferenceY=dw.FRYParagraph, Width=1.5, SpacingX=0.2)
    right.AddTextItem("aligned")
    say(section, "beside " + "words " * 60)
    cap = section.AddParagraph(FontFormat_Size=40.0, Format_LineSpacingStyle=dw.SpacingExactly,
        Format_LineSpacingDistance=40.0)
    cap.Frame.set(DropCapLines=3, ReferenceY=dw.FRYParagraph)
    cap.AddTextItem("Q")
    say(section, "uick " + "words " * 60)
    margin = section.AddParagraph(FontFormat_Size=40.0, Format_LineSpacingStyle=dw.SpacingExactly,
        Format_LineSpacingDistance=40.0)
    margin.Frame.set(DropCapLines=3, ReferenceY=dw.FRYParagraph, DropCapInMargin=True)
    margin.AddTextItem("M")
    say(section, "argin " + "words " * 60)
    alone = section.AddParagraph()
    alone.Frame.set(ReferenceY=dw.FRYParagraph, Width=1.5, Wrap=False)
    alone.AddTextItem("alone")
    say(section, "below " + "words " * 60)
    table = section.AddTable()
    table.Frame.set(ReferenceX=dw.FRXPage, ReferenceY=dw.FRYPage, Left=5.0, Top=7.0)
    say(table.AddCell(), "framed")
    say(section, "end")
    t.shows("Frame with a place", r"\absw2880\absh-1440\phpg\posx7200\pvpg\posy12960", lambda: t.pdf.word("placed")[1:3],
            (5.0, 9.0))
    t.shows("Frame at the right, with text beside it", r"\phcol\posxr\pvpara",
            lambda: (t.pdf.word("aligned")[1] > 6, abs(t.pdf.word("aligned")[2] - t.pdf.word("beside")[2]) < 0.1),
            (True, True))
    t.shows("Drop cap", r"\dropcapli3\dropcapt1", lambda: (t.pdf.word("uick")[1] > 1.3,
        abs(t.pdf.word("uick")[2] - t.pdf.word("Q")[2]) < 0.3), (True, True))
    t.shows("Drop cap in the margin", r"\dropcapli3\dropcapt2", lambda: t.pdf.word("M")[1] < 1, True, instead=False,
            partly=True, why="in the text")
    t.shows("Frame without text beside it", r"\nowrap", lambda: t.pdf.word("below")[2] > t.pdf.word("alone")[4] - 0.05,
            True)
    t.shows("Table in a frame", r"\posy10080", lambda: [round(x) for x in t.pdf.word("framed")[1:3]] == [5, 7], True,
            instead=False, why="it stands in the text")


@topic("Special characters and breaks")
def specials(t):
    section = t.document.AddSection()
    for name, code, shown in (
            ("Bullet", r"\bullet", "•"), ("Em dash", r"\emdash", "—"), ("En dash", r"\endash", "–"),
            ("Left quote", r"\lquote", "‘"), ("Right quote", r"\rquote", "’"),
            ("Left double quote", r"\ldblquote", "“"),
            ("Right double quote", r"\rdblquote", "”"), ("Em space", r"\emspace", "\u2003"),
            ("En space", r"\enspace", "\u2002"),
            ("Non-breaking space", r"\~", "\u00a0"), ("Non-breaking hyphen", r"\_", "\u2011"),
            ("Optional hyphen", r"\-", "\u00ad"),
            ("Tab", r"\tab", "\t"), ("Line break", r"\line", "\n")):
        item = say(section, name + ": ").AddTextItem("a")
        item.AddSpecial(code)
        item.AddText("b")
        # Behind a symbol, the blank that ends a word is a blank of the text.
        blank = " " if len(code) == 2 else ""
        t.shows(name, "a" + code, lambda name=name: t.odt.paragraph(name + ": ").text.partition(": ")[2],
                f"a{shown}{blank}b",
                instead="ab", why="nothing" if name in ("Em space", "En space") else "",
                pandoc=f"a{shown}{blank}b" if shown not in "\t\n\u00a0" else None)
    say(section, "first\r\nsecond")
    t.shows("Line break before a letter", r"first\line", lambda: t.odt.paragraph("first").text, "first\nsecond",
            instead="first",
            why="the letters run on in the word and are lost; a blank behind the break prevents it")
    say(section, "third\r\n2024")
    t.shows("Line break before a digit", r"third\line2024", lambda: t.odt.paragraph("third").text, "third\n2024",
            instead="third\n", partly=True, why="the digits are taken for the word's number; a blank prevents it, too")
    say(section, "fourth\t2024")
    t.shows("Tab before a digit", r"fourth\tab 2024", lambda: t.odt.paragraph("fourth").text, "fourth\t2024")
    say(section, "before").AddTextItem("").AddSpecial(r"\page")
    say(section, "behind")
    t.shows("Page break", r"\page", lambda: t.pdf.word("behind")[0] - t.pdf.word("before")[0], 1)
    raw = section.AddParagraph().AddTextItem(r"raw {\b bold}", True)
    t.shows("RTF of your own", r"raw {\b bold}", lambda: t.odt.look("bold").get("font-weight"), "bold")


@topic("Settings of the document")
def settings(t):
    t.document.set(TabWidth=0.3, HyphenAuto=True, HyphenCaps=False, HyphenConsecutiveLines=2, WidowOrphanControl=True,)
    section = t.document.AddSection()
    say(section, "tab\tstop")
    say(section, "x")
    default = lambda: t.odt.defaults.get("paragraph", {})
    t.shows("Distance of tab stops", r"\deftab432", lambda: default().get("tab-stop-distance"), "21.6pt")
    t.shows("Automatic hyphens", r"\hyphauto1", lambda: t.odt.look("x").get("hyphenate"), "true",
            instead="false", why=IGNORED)
    t.shows("Widow and orphan control", r"\widowctrl1",
            lambda: (t.odt.look("x").get("widows"), t.odt.look("x").get("orphans")), ("2", "2"),
            instead=(None, None), why=IGNORED)
