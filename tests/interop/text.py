"""Text: looks, backgrounds and borders of runs and paragraphs, tabs, styles, lists."""
import re

from model import dw, rows
from readers import Node, local
from topics import run, say, topic

RED, GREEN, BLUE, SAND = 0x0000C0, 0x00A000, 0xC00000, 0xA0E0FF  # red in the lowest byte
IGNORED = "the word is ignored"
FRONT = "the colour behind the pattern alone"


@topic("Text")
def text(t):
    for font, family in (("Courier New", dw.Modern), ("Nowhere Serif", dw.Roman)):
        t.document.Fonts.Add(font).Family = family
    t.document.Fonts.Items(2).AltName = "Courier New"
    section = t.document.AddSection()

    def look(name, member, value, written, shown, **others):
        keys = tuple(shown)
        run(section, name, **{"FontFormat_" + member: value})
        t.shows(name, written, lambda: {k: t.odt.look(name).get(k) for k in keys}, shown, **others)

    look("Bold", "Bold", True, r"\b", {"font-weight": "bold"}, pandoc="<strong>Bold</strong>")
    look("Italic", "Italic", True, r"\i", {"font-style": "italic"}, pandoc="<em>Italic</em>")
    look("Small capitals", "SmallCaps", True, r"\scaps", {"font-variant": "small-caps"},
         pandoc='<span class="smallcaps">Small capitals</span>')
    look("All capitals", "AllCaps", True, r"\caps", {"text-transform": "uppercase"})
    look("Outline", "Outline", True, r"\outl", {"text-outline": "true"})
    look("Shadow", "Shadow", True, r"\shad", {"text-shadow": "1pt 1pt"})
    look("Strikethrough", "Strikethrough", True, r"\strike", {"text-line-through-type": "single"},
         pandoc="<del>Strikethrough</del>")
    look("Double strikethrough", "StrikethroughDouble", True, r"\striked11", {"text-line-through-type": "double"})
    look("Hidden", "Hidden", True, r"\v", {"display": "none"})
    look("Emboss", "Emboss", True, r"\embo1", {"font-relief": "embossed"},
         instead={"font-relief": None}, why=IGNORED)
    look("Engrave", "Engrave", True, r"\impr1", {"font-relief": "engraved"})
    look("Subscript", "Subscript", True, r"\sub1\dn6", {"text-position": "-25% 58%"},
         instead={"text-position": "-25% 100%"}, partly=True, why="lower, at full size", pandoc="<sub>Subscript</sub>")
    look("Superscript", "Superscript", True, r"\super1\up6", {"text-position": "25% 58%"},
         instead={"text-position": "25% 100%"}, partly=True, why="higher, at full size",
         pandoc="<sup>Superscript</sup>")
    look("Size", "Size", 20.0, r"\fs40", {"font-size": "20pt"})
    look("Colour", "Color", RED, r"\cf1", {"color": "#c00000"})
    look("Font", "FontName", "Courier New", r"\f0", {"font-name": "Courier New"})
    look("Font that is not there, with another in its place", "FontName", "Nowhere Serif",
         r"{\*\falt Courier New}", {"font-name": "Courier New"},
         instead={"font-name": "Nowhere Serif"}, why="it takes another font by rules of its own")
    lines = dict(UnderlineDotted="dotted", UnderlineDashDot="dot-dash", UnderlineDashDotDot="dot-dot-dash",
                 UnderlineWave="wave")
    for name, written in rows("text.txt", "Underlines").items():
        shown = {"text-underline-style": lines.get(name, "solid"),
                 "text-underline-type": "double" if name == "UnderlineDouble" else None}
        if name == "UnderlineWord":
            shown["text-underline-mode"] = "skip-white-space"
        if name == "UnderlineThick":
            shown["text-underline-width"] = "bold"
        look(f"Underline {written[1:]}", "Underline", getattr(dw, name), written, shown,
             pandoc="<u>Underline ul</u>" if written == r"\ul" else None)
    look("Animation", "Animation", dw.TxAnimBlinking, r"\animtext2", {"text-blinking": "true"})


@topic("Behind and around text")
def text_background(t):
    section = t.document.AddSection()

    def texture(name, value, written, shown, **others):
        run(section, name, Background_Texture=value, Background_Color=RED, Background_BackColor=SAND,
            Background_Shading=25.0)
        t.shows(name, written, lambda: t.odt.look(name).get("background-color"), shown, **others)

    texture("Solid", dw.TextureSolid, r"\chshdng10000\chcbpat1", "#ffe0a0")
    texture("Shading of 25 percent", dw.TextureShaded, r"\chshdng2500", "#bfbfbf", why=IGNORED)
    texture("Pattern", dw.TextureDiagonalUp, r"\chbgbdiag\chcbpat1\chfpat2", "pattern", instead="#ffe0a0", partly=True,
            why=FRONT)
    run(section, "Border", Border_Style=dw.BSSingle, Border_Width=2.0, Border_Color=RED)
    t.shows("Border", r"\chbrdr\brdrs\brdrw40\brdrref2", lambda: t.odt.look("Border").get("border"),
            "2pt solid #c00000", instead="2pt solid #000000", partly=True, why="drawn black")


@topic("Paragraphs")
def paragraphs(t):
    section = t.document.AddSection()

    def layout(name, settings, written, shown, **others):
        say(section, name, **{"Format_" + k: v for k, v in settings.items()})
        t.shows(name, written, lambda: {k: t.odt.look(name).get(k) for k in shown}, shown, **others)

    layout("Right", {"Align": dw.AlignRight}, r"\qr", {"text-align": "end"})
    layout("Centred", {"Align": dw.AlignCenter}, r"\qc", {"text-align": "center"})
    layout("Justified", {"Align": dw.AlignJustify}, r"\qj", {"text-align": "justify"})
    layout("Indents", {"IndentLeft": 1.0, "IndentRight": 0.5, "IndentFirst": -0.25}, r"\fi-360\li1440\ri720",
           {"margin-left": "72pt", "margin-right": "36pt", "text-indent": "-18pt"})
    layout("Space above and below", {"SpaceBefore": 9.0, "SpaceAfter": 6.0}, r"\sb180\sa120",
           {"margin-top": "9pt", "margin-bottom": "6pt"})
    layout("Line spacing in lines", {"LineSpacingMultiple": 1.5}, r"\sl360\slmult1", {"line-height": "150%"})
    layout("Line spacing of at least", {"LineSpacingStyle": dw.SpacingAtLeast, "LineSpacingDistance": 20.0},
           r"\sl400\slmult0", {"line-height-at-least": "20pt"})
    layout("Line spacing of exactly", {"LineSpacingStyle": dw.SpacingExactly, "LineSpacingDistance": 20.0},
           r"\sl-400\smult0", {"line-height": "20pt"})
    layout("Lines kept together", {"KeepIntact": True}, r"\keep", {"keep-together": "always"})
    layout("Kept with the next", {"KeepWithNext": True}, r"\keepn", {"keep-with-next": "always"})
    layout("Widows allowed", {"WidowOrphanControl": False}, r"\nowidctlpar", {"widows": "0", "orphans": "0"})
    layout("No hyphens", {"SuppressHyphen": True}, r"\hyphpar0", {"hyphenate": "false"})
    layout("Page break before", {"PageBreakBefore": True}, r"\pagebb", {"break-before": "page"})
    say(section, "Outline level", Format_OutlineLevel=2)
    t.shows("Outline level", r"\outlinelevel1", lambda: t.odt.paragraph("Outline level").get("outline-level"), "2",
            pandoc="<h2")


@topic("Borders of paragraphs")
def paragraph_borders(t):
    section = t.document.AddSection()
    drawn = dict(brdrs="solid", brdrdot="dotted", brdrdash="dashed", brdrdashsm="fine-dashed", brdrdashd="dash-dot",
                 brdrdashdd="dash-dot-dot", brdremboss="ridge", brdrengrave="groove")
    missing = dict(brdrsh="solid", brdrtriple="triple", brdrtnthtnsg="triple", brdrtnthtnmg="triple",
                   brdrtnthtnlg="triple", brdrwavy="wave", brdrwavydb="double-wave", brdrdashdotstr="dash-dot")
    for style, words in rows("borders.txt", "Line above a paragraph").items():
        word = words.rpartition("\\")[2]
        name = "Line " + word
        say(section, name, Format_SpaceAfter=12.0, Borders_1_Style=getattr(dw, style), Borders_1_Width=3.0,
            Borders_1_Color=RED)
        t.shows(name, words + r"\brsp20\brdrw60\brdrcf0",
                lambda name=name: t.odt.look(name).get("border-top", "no line no").split()[1],
                missing.get(word) or drawn.get(word, "double"), instead="line",
                why="no line is drawn" if word in missing else "")
    for value, side, word in ((1, "top", "brdrt"), (2, "left", "brdrl"), (3, "right", "brdrr"), (4, "bottom", "brdrb"),
                              (5, "between", "brdrbtw"), (6, "bar", "brdrbar")):
        name = f"Border, {side}"
        say(section, name, Format_SpaceAfter=12.0, Format_IndentLeft=0.5, Format_IndentRight=0.5,
            **{f"Borders_{value}_{k}": v for k, v in
               {"Style": dw.BSSingle, "Width": 1.5, "Color": RED, "Spacing": 6.0}.items()})
        t.shows(name, rf"\{word}\brdrs\brsp120\brdrw30\brdrcf0", lambda name=name, side=side: (
            t.odt.look(name).get(f"border-{side}"), t.odt.look(name).get(f"padding-{side}")),
            ("1.5pt solid #c00000", "6pt"), instead=(None, None), why="no line is drawn" if value > 4 else "")


@topic("Behind paragraphs")
def paragraph_background(t):
    section = t.document.AddSection()

    def texture(name, value, written, shown, **others):
        say(section, name, Background_Texture=value, Background_Color=RED, Background_BackColor=SAND,
            Background_Shading=25.0)
        t.shows(name, written, lambda: t.odt.look(name).get("background-color"), shown, **others)

    texture("Solid", dw.TextureSolid, r"\shading10000\cfpat0", "#c00000", why="ignored without a back colour")
    texture("Shading of 25 percent", dw.TextureShaded, r"\shading2500\cfpat0", "#efbfbf",
            why="ignored without a back colour")
    texture("Pattern", dw.TextureDiagonalUp, r"\bgbdiag\cbpat2\cfpat0", "pattern", instead="#ffe0a0", partly=True,
            why=FRONT)


@topic("Tab stops")
def tabs(t):
    section = t.document.AddSection()
    for align, name in enumerate(("left", "right", "center", "char", "bar"), 1):
        paragraph = section.AddParagraph()
        paragraph.TabStops.Add(2.5, align, dw.TabLeaderNone)
        paragraph.AddTextItem(f"{name}\tx")
        word = ("\\tx", "\\tqr\\tx", "\\tqc\\tx", "\\tqdec\\tx", "\\tb")[align - 1]
        t.shows(f"Tab stop, {dict(char='decimal').get(name, name)}", f"{word}3600",
                lambda name=name: tuple(map(stop(name).get, ("position", "type"))),
                ("180pt", name), instead=(None, None), why="no line is drawn" if name == "bar" else "")
    for leader, (name, style) in enumerate((("dots", "dotted"), ("hyphens", "dash"), ("underline", "solid")), 2):
        paragraph = section.AddParagraph()
        paragraph.TabStops.Add(2.5, dw.TabLeft, leader)
        paragraph.AddTextItem(f"{name}\tx")
        word = ("tldot", "tlhyph", "tlul")[leader - 2]
        t.shows(f"Leader of {name}", f"\\{word}\\tx3600", lambda name=name: stop(name).get("leader-style"), style,
                instead="solid", partly=True, why="a solid line" if name == "hyphens" else "")

    def stop(name):
        """The tab stop of the paragraph that begins with a text."""
        stops = Node(t.odt, t.odt.styles[t.odt.paragraph(name + "\t").get("style-name")][2]).find("tab-stop")
        return {"type": "left", **stops[0].attributes} if stops else {}


@topic("Styles")
def styles(t):
    t.document.ParagraphStyles.Add("Plain")
    body = t.document.ParagraphStyles.Add("Note body")
    body.set(BasedOn="Plain", FontFormat_Size=15.0, FontFormat_Italic=True, Format_Align=dw.AlignCenter)
    body.NextStyle = "Plain"
    derived = t.document.ParagraphStyles.Add("Derived")
    derived.set(BasedOn="Note body", FontFormat_Color=RED, FontFormat_Italic=False)
    strong = t.document.TextStyles.Add("Loud")
    strong.set(FontFormat_Bold=True, FontFormat_Color=GREEN)
    louder = t.document.TextStyles.Add("Louder")
    louder.set(BasedOn="Loud", FontFormat_Size=20.0)
    section = t.document.AddSection()
    say(section, "Style", StyleName="Note body")
    say(section, "Derived style", StyleName="Derived")
    run(section, "Text style", StyleName="Loud")
    run(section, "Derived text style", StyleName="Louder")
    say(section, "No style")
    overridden = section.AddParagraph(StyleName="Note body")
    overridden.set(Format_Align=dw.AlignRight)
    overridden.AddTextItem("Style, aligned otherwise")
    back = section.AddParagraph(StyleName="Note body")
    back.set(Format_Align=dw.AlignLeft)
    back.AddTextItem("Style, left again")

    def style_of(text):
        name = t.odt.paragraph(text).attributes.get("style-name")
        attributes = t.odt.styles[name][0]
        name = attributes.get("parent-style-name", name)
        return t.odt.styles[name][0].get("display-name", name)

    t.shows("Paragraph style", "Note body;", lambda: (style_of("Style"), t.odt.look("Style").get("font-size"),
            t.odt.look("Style").get("text-align")), ("Note body", "15pt", "center"))
    t.shows("Style based on another", "Derived;", lambda: (style_of("Derived style"),
        t.odt.look("Derived style").get("color"),
            t.odt.styles["Derived"][0].get("parent-style-name")), ("Derived", "#c00000", "Note_20_body"))
    t.shows("Derived style turns off what its base has", "Derived;",
            lambda: t.odt.look("Derived style").get("font-style"), "normal",
            instead="italic", why="there is no word for off")
    t.shows("Style of the next paragraph", r"\snext0", lambda: t.odt.styles["Note_20_body"][0].get("next-style-name"),
            "Plain")
    t.shows("Text style", r"{\cs3", lambda: (t.odt.look("Text style").get("font-weight"),
        t.odt.look("Text style").get("color")),
            ("bold", "#00a000"), instead=("normal", "#000000"),
            why="a run that only names its style gets nothing of it")
    t.shows("Text style based on another", r"{\cs4", lambda: t.odt.look("Derived text style").get("font-size"), "20pt",
            instead="12pt", why="as above")
    t.shows("Paragraph without a style", "No style", lambda: style_of("No style"), "Standard", instead="Plain",
            partly=True, why="it gets the first style of the document; let that be a plain one")
    t.shows("Another alignment than the style's", r"\qr",
            lambda: t.odt.look("Style, aligned otherwise").get("text-align"), "end")
    t.shows("Left over a style that is centred", "left again",
            lambda: t.odt.look("Style, left again").get("text-align"), "start",
            instead="center", why="there is no word for left")


@topic("Lists")
def lists(t):
    numbers = ("One", "1", "A", "a", "I", "i", "1st", "First", "01", "•")
    for style, label in enumerate(numbers, 1):
        level = t.document.Lists.Add(f"Style {style}").Levels(1)
        level.set(Style=style, Format="•" if label == "•" else "\\L1.")
    for name, member, value in (("Right", "Align", dw.LNARight), ("Space", "Follow", dw.LNFSpace),
                                ("Nothing", "Follow", dw.LNFNothing), ("From 5", "StartAt", 5),
                                ("Long", "Format", "Paragraph \\L1.")):
        setattr(t.document.Lists.Add(name).Levels(1), member, value)
    look = t.document.Lists.Add("Look").Levels(1)
    look.set(FontFormat_Bold=True, FontFormat_Color=RED)
    deep = t.document.Lists.Add("Deep")
    deep.Levels(1).Style = dw.LNSRomanUpper
    deep.Levels(2).set(Format="\\L1.\\L2")
    deep.Levels(3).set(Format="\\L1.\\L2.\\L3", Legal=True)
    kept = t.document.Lists.Add("Kept")
    kept.Levels(2).NoLevelRestart = True
    section = t.document.AddSection()

    def item(text, list_name, level=1, **more):
        say(section, text, Format_ListName=list_name, Format_ListLevel=level, Format_IndentLeft=0.5 * level,
            Format_IndentFirst=-0.25, **more)

    def label(text):
        """The number in front of a text, as it is printed."""
        found = re.search(rf"^(.*?)\s*{text}$", t.pdf.text, re.M)
        return found and found[1]

    kinds = [words.partition(r"\leveljc")[0] for name, words in
             rows("list.txt", "Kind, alignment and what follows a number").items() if name.startswith("LNS")]
    for style, (number, written) in enumerate(zip(numbers, kinds), 1):
        item(f"style {style}", f"Style {style}")
        item(f"second {style}", f"Style {style}")
        expected = number if number == "•" else number + "."
        kind = "<ul>" if number == "•" else f'type="{number}"' if number in "1AaIi" else None
        t.shows(f"Numbers “{number}”", written, lambda style=style: label(f"style {style}"), expected,
                pandoc=kind)
    item("right", "Right")
    t.shows("Number right of its place", r"\leveljc2", lambda: level_of("right").get("text-align"), "end")
    item("space", "Space")
    t.shows("Number and a space", r"\levelfollow1", lambda: level_of("space").get("label-followed-by"), "space")
    item("nothing", "Nothing")
    t.shows("Number and nothing", r"\levelfollow2", lambda: level_of("nothing").get("label-followed-by"), "nothing")
    item("from five", "From 5")
    t.shows("First number", r"\levelstartat5", lambda: label("from five"), "5.", pandoc='start="5"')
    item("long text", "Long")
    t.shows("Number with a text of ten characters or more", r"{\leveltext \'12Paragraph \'00.;}",
            lambda: label("long text"), "Paragraph 1.",
            instead="Paragraph", partly=True, why="cut, as its length is not written the usual way")
    item("red number", "Look")
    t.shows("Look of the number", r"\b\fs24\cf1",
            lambda: t.odt.style(level_of("red number").get("style-name")).get("color"), "#c00000",
            partly=True, why="weight and size, but not the colour")
    item("one", "Deep")
    item("one one", "Deep", 2)
    item("one one one", "Deep", 3)
    item("two", "Deep")
    item("two one", "Deep", 2)
    t.shows("Levels", r"\ilvl1", lambda: (label("one one"), label("two one")), ("I.1", "II.1"))
    t.shows("Higher levels in decimal", r"\levellegal1", lambda: label("one one one"), "1.1.1", instead="I.1.1",
            why=IGNORED)
    item("k1", "Kept")
    item("k2", "Kept", 2)
    item("k3", "Kept")
    item("k4", "Kept", 2)
    t.shows("Numbers that go on after a higher level", r"\levelnorestart1", lambda: label("k4"), "2.", instead="1.",
            why="they start again")
    item("deep three", "Deep")
    item("paired", "Deep", Format_ListFormatName="Style 4")
    t.shows("Counting on in the look of another list", r"\listoverridecount9", lambda: label("paired"), "d.",
            instead="a.", partly=True,
            why="the look is right, the count starts again")

    def level_of(text):
        """The level of a list that a paragraph stands in."""
        element = t.odt.paragraph(text).element
        while local(element.tag) != "list":
            element = t.odt.parents[element]
        level = Node(t.odt, t.odt.styles[Node(t.odt,
            element).get("style-name")][2]).children("list-level-style-number")[0]
        for part in level.find("list-level-properties") + level.find("list-level-label-alignment"):
            level.attributes.update({k: v for k, v in part.attributes.items() if k != "style-name"})
        return level
