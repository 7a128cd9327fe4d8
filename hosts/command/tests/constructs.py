"""Construct by construct, what LibreOffice shows of a Markdown text that draftwick wrote as RTF, and of the same text that
pandoc wrote. The guide's table is made of these rows."""
from dataclasses import dataclass, field
from pathlib import Path
from typing import Callable


@dataclass
class Construct:
    name: str
    markdown: str
    probe: Callable  # what there is of it in an ODT, in words
    ours: str
    pandoc: str
    options: list = field(default_factory=list)

    @property
    def file(self):
        return "".join(c if c.isalnum() else "-" for c in self.name.lower())


def count(number, name):
    return f"{number} {name}" + ("s" if number != 1 else "")


def lists(odt):
    items = odt.find("list-item")
    if not items:
        return "no list, typed marks" if any(p.text.lstrip()[:1] in "•\u2022-1" for p in odt.find("p")) else "no list"
    depth = max(sum(a.tag.endswith("}list") for a in ancestors(odt, i.element)) for i in items)
    return f"{count(len(items), 'item')}, {count(depth, 'level')}"


def ancestors(odt, element):
    while element in odt.parents:
        element = odt.parents[element]
        yield element


def numbers(odt):
    if not odt.find("list-item"):
        return "typed numbers"
    style = odt.styles[odt.first("list").attributes["style-name"]][2]
    levels = [e.attrib for e in style if e.tag.endswith("}list-level-style-number")]
    return "begins at " + next((v for k, v in levels[0].items() if k.endswith("}start-value")), "1")


def headings(odt):
    def style(heading):
        attributes = odt.styles[heading.attributes["style-name"]][0]
        parent = odt.styles.get(attributes.get("parent-style-name"), ({},))[0]
        return parent.get("display-name", "no style")
    return ", ".join(map(style, odt.find("h")))


def keeps(odt):
    heading = odt.paragraph("Water")
    return "stays with its text" if heading.get("keep-with-next") == "always" else "can be left alone on a page"


def contents(odt):
    entries = [p for p in odt.find("p") + odt.find("h") if "Water" in p.text]
    pages = [p for p in entries if p.find("bookmark-ref")]
    return "entries with the numbers of their pages" if pages else "entries without pages" if len(entries) > 1 else "none"


def table(odt):
    tables = odt.find("table")
    if not tables:
        return "none"
    widths = [float(odt.style(c.attributes["style-name"])["column-width"][:-2]) for c in tables[0].find("table-column")]
    cells = tables[0].find("table-cell")
    bordered = [c for c in cells if any("solid" in str(c.get(side, "")) for side in ("border", "border-bottom"))]
    head = odt.look("Item").get("font-weight") == "bold"
    return (f"{'bold head' if head else 'plain head'}, columns "
            + ("equal" if max(widths) - min(widths) < 10 else "as wide as their text needs")
            + f", lines under {len(bordered)} of {len(cells)} cells")


def notes(odt):
    bodies = [" / ".join(p.text.strip() for p in n.find("note-body")[0].find("p") if p.text.strip()) for n in odt.find("note")]
    return "; ".join(bodies) if bodies else "none"


def link(odt):
    found = [a.attributes.get("href") for a in odt.find("a")]
    return ", ".join(found) if found else "none"


def inner_link(odt):
    marks = {b.attributes["name"] for tag in ("bookmark", "bookmark-start") for b in odt.find(tag)}
    targets = [a.attributes.get("href", "").lstrip("#") for a in odt.find("a")]
    return "none" if not targets else "works" if all(t in marks for t in targets) else "dead"


def code(odt):
    paragraph = odt.paragraph("int x")
    look = odt.look(paragraph.text)
    return (f"{look.get('font-name', '?')}, " + ("background" if paragraph.get("background-color", "transparent")
                                                 != "transparent" else "no background"))


def quotation(odt):
    paragraph = odt.paragraph("Said")
    line = "solid" in paragraph.get("border-left", "") or "solid" in paragraph.get("border", "")
    return ("indented" if float(paragraph.get("margin-left", "0pt")[:-2]) > 0 else "not indented") + (
        ", line at its side" if line else "")


def properties(odt):
    return ", ".join(str(odt.meta(name)) for name in ("title", "initial-creator", "keyword"))


def header(odt):
    texts = [p.text for p in odt.find("header", "styles") + odt.find("footer", "styles")]
    pages = len(odt.find("page-number", "styles"))
    return f"{' '.join(t.strip() for t in texts)}; {count(pages, 'page number')}" if texts else "none"


def caption(odt):
    paragraph = next((p for p in odt.find("p") if "Prices" in p.text), None)
    return f"{paragraph.text.strip()}, " + ("counted" if paragraph.find("sequence") else "typed")


def text(odt):
    return " ".join(t for t in (p.text.strip() for p in odt.find("p")) if t)


def marks(odt):
    styles = [odt.styles[e.attributes["style-name"]][2] for e in odt.find("list")]
    bullets = [v for s in styles for level in list(s)[:1] for k, v in level.attrib.items() if k.endswith("}bullet-char")]
    typed = [c for p in odt.find("p") for c in p.text if c in "☒☐"]
    return " ".join(bullets) + " as marks of list items" if bullets else " ".join(typed) + " typed behind bullets"


def picture(odt):
    frames = [f for f in odt.find("frame") if f.find("image")]
    if not frames:
        return "none"
    width = float(frames[0].attributes["width"][:-2])
    return f"{count(len(frames), 'picture')}, " + ("no wider than the column" if width <= 475 else "wider than the page")


def struck(odt):
    return "struck" if odt.look("old").get("text-line-through-style") == "solid" else "plain"


WIDE_PICTURE = Path(__file__).resolve().parents[3] / "docs/pictures/tables.png"

CONSTRUCTS = [
    Construct("List of bullets", "- a\n- b\n  - c\n\n- d\n", lists, "4 items, 2 levels", "no list, typed marks"),
    Construct("Numbered list", "7. a\n8. b\n", numbers, "begins at 7", "typed numbers"),
    Construct("Task list", "- [x] done\n- [ ] open\n", marks, "☒ ☐ as marks of list items", "☒ ☐ typed behind bullets"),
    Construct("Headings", "# Water\n\ntext\n\n## Fire\n\ntext\n", headings, "Heading 1, Heading 2",
              "no style, no style"),
    Construct("A heading and its text", "# Water\n\ntext\n", keeps, "stays with its text",
              "can be left alone on a page"),
    Construct("Contents", "# Water\n\ntext\n\n# Fire\n\ntext\n", contents, "entries with the numbers of their pages",
              "entries without pages", ["--toc"]),
    Construct("Table", "| Item | A longer head of a column |\n| - | - |\n| a | some text of a cell |\n| b | more |\n",
              table, "bold head, columns as wide as their text needs, lines under 6 of 6 cells",
              "plain head, columns equal, lines under 2 of 6 cells"),
    Construct("Footnote", "Text[^1].\n\n[^1]: First.\n\n    Second.\n", notes, "First. / Second.", "First. / Second."),
    Construct("Link", "A [link](https://example.org/a?b=c&d=e).\n", link, "https://example.org/a?b=c&d=e",
              "https://example.org/a?b=c&d=e"),
    Construct("Link to a heading", "# Fire and ice\n\nSee [there](#fire-and-ice).\n", inner_link, "works", "dead"),
    Construct("Code block", "```c\nint x = 1;\n```\n", code, "Courier New, background", "Courier, no background"),
    Construct("Quotation", "> Said\n", quotation, "indented, line at its side", "indented"),
    Construct("Title, author, keywords", "---\ntitle: Rules\nauthor: Ann\nkeywords: water\n---\n\ntext\n", properties,
              "Rules, Ann, water", "None, None, None"),
    Construct("Header, footer, pages", "---\ntitle: Rules\nheader: Draft\nfooter: Page {page} of {pages}\n---\n\ntext\n",
              header, "Draft Page 1 of 1; 1 page number", "none"),
    Construct("Caption", "| a |\n| - |\n| b |\n\nTable: Prices\n", caption, "Table 1: Prices, counted", "Prices, typed"),
    Construct("Picture", f"![what was sown]({WIDE_PICTURE})\n", picture, "1 picture, no wider than the column",
              "1 picture, wider than the page"),
    Construct("Struck text", "~~old~~ new\n", struck, "struck", "struck"),
    Construct("Any letters", "Ωμέγα, слово, 漢字, 😀, א\n", text, "Ωμέγα, слово, 漢字, 😀, א", "Ωμέγα, слово, 漢字, 😀, א"),
]

TABLE_HEAD = "| | draftwick | pandoc |\n| --- | --- | --- |\n"


def guide_table():
    return TABLE_HEAD + "".join(f"| {c.name} | {c.ours} | {c.pandoc} |\n" for c in CONSTRUCTS)
