"""A styled report: fonts, paragraph and text styles based on each other, headings with outline levels, a table of contents,
references to headings, page numbers, document properties, a page border, quotes, shaded boxes, borders and tab leaders.

usage: report.py OUTPUT.rtf
"""

import sys
from typing import NamedTuple

import draftwick
from draftwick import (BorderStyle, Document, FontFamily, HeaderKind, PageBorderOffset, PageBorders, Paragraph,
                       ParagraphAlign, ParagraphBorderSide, Section, TabAlign, TabLeader, Texture, UnderlineStyle)

PINE = (20, 83, 72)
SAND = (243, 237, 222)
REED = (228, 219, 196)
GRAY = (95, 95, 95)


class Heading(NamedTuple):
    """A heading with a bookmark around it that references name, and its page: chapters begin on new pages."""
    style: str
    text: str
    bookmark: str
    page: int


LENT = Heading("Heading 1", "What was lent", "lent", 2)
SHELF = Heading("Heading 2", "The night of the long shelf", "shelf", 2)
HOUSE = Heading("Heading 1", "The house", "house", 3)
HOURS = Heading("Heading 2", "Opening hours", "hours", 3)
REPAIRS = Heading("Heading 2", "Repairs", "repairs", 3)


def add_properties(document: Document) -> None:
    """What readers show as information about the file, in catalogues and in searches."""
    properties = document.properties
    properties["Title"].value = "The library’s year"
    properties["Author"].value = "The town library"
    properties["Keywords"].value = "library, lending, annual report"
    properties.add("Volumes lent", 95805)


def add_fonts(document: Document) -> None:
    """A font must be known to the document before its name can be used. Family and alternate name help readers that do not
    have it."""
    document.fonts.add("Georgia", family=FontFamily.ROMAN, alt_name="Liberation Serif")
    document.fonts.add("Verdana", family=FontFamily.SWISS, alt_name="DejaVu Sans")
    # Everything that is made from here on starts with this font.
    document.default_font_name = "Georgia"


def add_paragraph_styles(document: Document) -> None:
    """Setting based_on copies the other style as it is at that moment; what is set afterwards counts."""
    styles = document.paragraph_styles

    normal = styles.add("Normal")
    normal.font_format.size = 11
    normal.format.space_after = 7  # points
    normal.format.line_spacing_multiple = 1.15  # lines

    body = styles.add("Body", based_on="Normal")
    body.format.align = ParagraphAlign.JUSTIFY

    quote = styles.add("Quote", based_on="Body")
    quote.font_format.italic = True
    quote.font_format.color = GRAY
    quote.format.indent_left = quote.format.indent_right = 0.5  # inches: the document's unit of length
    bar = quote.borders[ParagraphBorderSide.LEFT]
    bar.style = BorderStyle.SINGLE
    bar.width = 2.25
    bar.spacing = 8
    bar.color = PINE

    heading = styles.add("Heading 2", based_on="Normal")
    heading.next_style = "Body"  # what an editor gives to the paragraph after it
    heading.font_format.font_name = "Verdana"
    heading.font_format.size = 11.5
    heading.font_format.bold = True
    heading.font_format.color = PINE
    heading.format.space_before = 10
    heading.format.keep_with_next = True
    heading.format.outline_level = 2

    chapter = styles.add("Heading 1", based_on="Heading 2")
    chapter.font_format.size = 15
    chapter.format.space_before = 16
    chapter.format.outline_level = 1
    line = chapter.borders[ParagraphBorderSide.BOTTOM]
    line.style = BorderStyle.SINGLE
    line.width = 0.75
    line.spacing = 3
    line.color = PINE

    title = styles.add("Title", based_on="Heading 1")
    title.font_format.size = 26
    title.font_format.small_caps = True
    title.format.align = ParagraphAlign.CENTER
    title.format.space_before = 0
    title.borders[ParagraphBorderSide.BOTTOM].style = BorderStyle.THIN_THICK_MEDIUM_GAP
    title.borders[ParagraphBorderSide.BOTTOM].width = 3

    # A box has a border on all four sides; consecutive paragraphs with the same borders share it. Behind a pattern lies a
    # colour; readers that draw no patterns show that alone.
    box = styles.add("Box", based_on="Normal")
    box.format.indent_left = box.format.indent_right = 0.1
    box.format.keep_intact = True
    box.background.texture = Texture.DIAGONAL_UP
    box.background.color = REED
    box.background.back_color = SAND
    for side in ParagraphBorderSide.TOP, ParagraphBorderSide.LEFT, ParagraphBorderSide.RIGHT, ParagraphBorderSide.BOTTOM:
        box.borders[side].style = BorderStyle.SINGLE
        box.borders[side].spacing = 5

    # Dots up to a number at the right margin: the text area is 6.5 inches wide.
    figure = styles.add("Figure", based_on="Normal")
    figure.format.space_after = 1
    figure.tab_stops.add(6.5, TabAlign.RIGHT, TabLeader.DOTS)

    footer = styles.add("Footer", based_on="Figure")
    footer.font_format.size = 9
    footer.tab_stops.clear()
    footer.tab_stops.add(6.5, TabAlign.RIGHT, TabLeader.NONE)

    # Hours stand with their decimal points below each other; a remark follows, and a line to write on.
    hours = styles.add("Hours", based_on="Figure")
    hours.tab_stops.clear()
    hours.tab_stops.add(2, TabAlign.DECIMAL, TabLeader.NONE)
    hours.tab_stops.add(2.75, TabAlign.LEFT, TabLeader.NONE)
    hours.tab_stops.add(6.5, TabAlign.RIGHT, TabLeader.UNDERLINE)


def add_text_styles(document: Document) -> None:
    """Text styles are for runs within a paragraph. They start from the default font, not from the paragraph's: give them the
    size of the text they are meant for."""
    marked = document.text_styles.add("Marked")
    marked.font_format.size = 11
    marked.background.texture = Texture.SOLID
    marked.background.back_color = (255, 236, 150)  # behind text, solid is the back colour

    number = document.text_styles.add("Call number", based_on="Marked")
    number.background.back_color = SAND
    number.border.style = BorderStyle.SINGLE
    number.border.width = 0.5


def add_heading(section: Section, heading: Heading) -> None:
    paragraph = section.add_paragraph(heading.style)
    paragraph.format.page_break_before = paragraph.format.outline_level == 1
    paragraph.add_bookmark(heading.bookmark)
    paragraph.add_text(heading.text)
    paragraph.add_bookmark(heading.bookmark, is_start=False)


def add_contents(section: Section) -> None:
    """A field is an instruction and the text that is shown until a reader carries it out; a reader that knows how builds the
    table of contents anew from the headings' outline levels."""
    contents = section.add_paragraph("Figure")
    contents.format.space_before = 16
    contents.add_field(r'TOC \o "1-2" \h',
                       "\n".join(f"{heading.text}\t{heading.page}" for heading in (LENT, SHELF, HOUSE, HOURS, REPAIRS)))


def add_reference(paragraph: Paragraph, heading: Heading) -> None:
    """“The house” on page 3"""
    paragraph.add_text("“")
    paragraph.add_field(rf"REF {heading.bookmark} \h", heading.text)
    paragraph.add_text("” on page ")
    paragraph.add_field(rf"PAGEREF {heading.bookmark} \h", str(heading.page))


def add_footer(section: Section) -> None:
    footer = section.add_header(HeaderKind.FOOTER).add_paragraph("Footer")
    footer.add_field("TITLE", "The library’s year")
    footer.add_text(", printed on ")
    footer.add_field("DATE", "12 January 2027", date_picture="d MMMM yyyy")
    footer.add_text("\tPage ")
    footer.add_field("PAGE", "1")
    footer.add_text(" of ")
    footer.add_field("NUMPAGES", "3")


def set_page_border(borders: PageBorders) -> None:
    """A line around the pages of a section, a third of an inch from the edge of the paper."""
    borders.offset = PageBorderOffset.PAGE
    for side in borders:
        side.style = BorderStyle.THIN_THICK_SMALL_GAP
        side.width = 3  # points
        side.spacing = 24  # points
        side.color = PINE


def write_cover(section: Section) -> None:
    section.add_paragraph("Title", "The library’s year")
    summary = section.add_paragraph(
        "Body", "The town library was open on 287 days. It lent more than in any year since the move to the old granary, and for "
                "the first time the children’s room lent more than the reading room. The most borrowed book was ")
    summary.add_text_item("A Field Guide to Hedges").font_format.italic = True
    summary.add_text(", shelved under ")
    summary.add_text(" 582.17 HED ", style_name="Call number")
    summary.add_text("; it was never in for ")
    summary.add_text("longer than a day", style_name="Marked")
    summary.add_text(". What became of the boilers stands in ")
    add_reference(summary, REPAIRS)
    summary.add_text(".")
    add_contents(section)


def write_year(section: Section) -> None:
    add_heading(section, LENT)
    for figure in "Books for adults\t41,860", "Books for children\t44,215", "Maps, music and games\t9,730":
        section.add_paragraph("Figure", figure)
    section.add_paragraph("Figure").add_text_item("Altogether\t95,805").font_format.bold = True

    add_heading(section, SHELF)
    section.add_paragraph(
        "Body", "In March, sixty readers formed a line from the granary to the mill and passed four thousand volumes from hand to "
                "hand, because the lift had failed on the day before the inspection.")
    section.add_paragraph("Quote", "I had Dickens on my left and the fire brigade on my right, and not one book touched the floor.")


def write_house(section: Section) -> None:
    add_heading(section, HOUSE)
    add_heading(section, HOURS)
    section.add_paragraph("Hours", "Monday\t7.5\tquiet in the morning\t")
    section.add_paragraph("Hours", "Wednesday\t10.25\tstories at four\t")
    section.add_paragraph("Hours", "Saturday\t5\tchess in the cellar\t")

    add_heading(section, REPAIRS)
    # A paragraph can go its own way after it has taken its style, until it gets its first text.
    repairs = section.add_paragraph("Body")
    repairs.format.indent_first = 0.25
    repairs.font_format.size = 10
    repairs.add_text("The roof was tight, the heating was not. Of the two boilers ")
    repairs.add_text_item("one").font_format.underline = UnderlineStyle.WAVE
    repairs.add_text(" was replaced in May; water use fell from 410 to 268 m³ a year. The ")
    repairs.add_text_item("sliding").font_format.strikethrough = True
    repairs.add_text(" revolving door still sticks.")

    section.add_paragraph("Box").add_text_item("For the year to come").font_format.bold = True
    section.add_paragraph(
        "Box", "A second evening each week, a lift that lifts, and a bench under the lime tree: we ask the council for 18,400 "
               "altogether.")

    imprint = section.add_paragraph("Body")
    imprint.format.align = ParagraphAlign.CENTER
    imprint.format.space_before = 10
    imprint.font_format.color = PINE
    imprint.add_text("Printed for the readers’ meeting on 12 January")


def write_report(filename: str) -> None:
    # Inches, unless a text says otherwise.
    with draftwick.Document(filename, margin_top=0.9, margin_left=1, margin_right=1) as document:
        add_properties(document)
        add_fonts(document)
        add_paragraph_styles(document)
        add_text_styles(document)

        # The first section writes the document's settings: fonts, styles and properties must be there before.
        cover = document.add_section()
        set_page_border(cover.page_borders)
        add_footer(cover)
        write_cover(cover)

        section = document.add_section()
        add_footer(section)
        write_year(section)
        write_house(section)


if __name__ == "__main__":
    write_report(sys.argv[1])
