"""The answers of the page "How do I ...?", one after the other in one document.

usage: how_do_i.py OUTPUT.rtf PHOTO.jpg
"""

import sys

import draftwick
from draftwick import (BorderStyle, CellMerge, Document, FontFamily, HeaderKind, Orientation, PageNumberingFormat,
                       PageNumberingRestart, PaperSize, Section, SectionBreak, ShapeKind, ShapeReferenceX, ShapeReferenceY,
                       ShapeWrap, TabAlign, TabLeader, Texture, UnderlineStyle)

SPECIAL = draftwick.Special()


def add_styles(document: Document) -> None:
    document.fonts.add("Liberation Serif", family=FontFamily.ROMAN)
    document.default_font_name = "Liberation Serif"
    # [styles]
    normal = document.paragraph_styles.add("Normal")
    normal.format.space_after = 6
    heading = document.paragraph_styles.add("Heading 1")
    heading.font_format.size = 16
    heading.format.space_before = 12
    heading.format.space_after = 6
    heading.format.outline_level = 1
    heading.format.keep_with_next = True
    # [styles]
    contents = document.paragraph_styles.add("Contents")
    contents.tab_stops.add("16cm", TabAlign.RIGHT, TabLeader.DOTS)
    document.paragraph_styles.add("Cell").font_format.size = 10


def add_lists(document: Document) -> None:
    # [list]
    for name in "Steps", "More steps":
        level = document.lists.add(name).levels[1]
        level.format = r"\L1."
        level.tab_position = "1cm"
    # [list]


# [step]
def add_step(section: Section, list_name: str, text: str) -> None:
    item = section.add_paragraph("Normal")
    item.format.list_name = list_name
    item.format.list_level = 1
    item.format.indent_left = "1cm"
    item.format.indent_first = "-1cm"
    item.add_text(text)
# [step]


# [contents-line]
def add_contents_line(section: Section, text: str, bookmark: str, page: int) -> None:
    """A line of a table of contents that every reader shows and follows: a link, a tab and the number of the page."""
    line = section.add_paragraph("Contents")
    line.add_field(rf'HYPERLINK \l "{bookmark}"', text)
    line.add_text("\t")
    line.add_field(f"PAGEREF {bookmark}", str(page))
# [contents-line]


# [heading]
def add_heading(section: Section, text: str, bookmark: str) -> None:
    heading = section.add_paragraph("Heading 1")
    heading.add_bookmark(bookmark)
    heading.add_text(text)
    heading.add_bookmark(bookmark, is_start=False)
# [heading]


def add_headers(section: Section, logo: str) -> None:
    # [header-picture]
    header = section.add_header(HeaderKind.HEADER).add_paragraph("Normal")
    header.add_picture(logo, height="1cm")  # as wide as that makes it
    # [header-picture]
    # [page-of]
    footer = section.add_header(HeaderKind.FOOTER).add_paragraph("Normal")
    footer.add_text("Page ")
    footer.add_field("PAGE", "1")
    footer.add_text(" of ")
    footer.add_field("NUMPAGES", "6")
    # [page-of]


def add_text(section: Section) -> None:
    # [bold]
    paragraph = section.add_paragraph("Normal", "One word is ")
    paragraph.add_text_item("bold").font_format.bold = True
    paragraph.add_text(", the others are not.")
    # [bold]
    # [unicode]
    section.add_paragraph("Normal", "Łódź, Ελλάδα, Київ, 日本 and 🙂")
    # [unicode]
    # [lines]
    section.add_paragraph("Normal", "12 Quay Street\nBristol\nBS1 4DB")
    # [lines]
    # [spaces]
    section.add_paragraph("Normal", "12\u00A0km is 7\u00A0miles, in a non\u2011stop flight")
    # [spaces]
    # [right-to-left]
    section.add_paragraph("Normal", "שלום עולם")
    # [right-to-left]
    # [link]
    text = section.add_paragraph("Normal", "Tickets are sold at ")
    link = text.add_field('HYPERLINK "https://example.org/tickets"', "example.org/tickets")
    link.font_format.color = "#0563c1"
    link.font_format.underline = UnderlineStyle.SINGLE
    text.add_text(".")
    # [link]
    # [tab]
    price = section.add_paragraph("Normal")
    price.tab_stops.add("16cm", TabAlign.RIGHT, TabLeader.DOTS)
    price.add_text("Ferry, return\t18.50")
    # [tab]
    # [footnote]
    noted = section.add_paragraph("Normal", "The first boat leaves at six")
    noted.add_text_item("").add_special(SPECIAL.footnote)  # SPECIAL is draftwick.Special()
    note = noted.add_footnote().add_paragraph("Normal")
    note.add_text_item("").add_special(SPECIAL.footnote)
    note.add_text(" On Sundays at seven.")
    # [footnote]
    # [today]
    section.add_paragraph("Normal", "As of ").add_field("DATE", "1 April 2026", date_picture="d MMMM yyyy")
    # [today]


def add_references(section: Section, photo: str) -> None:
    # [picture]
    words = section.add_paragraph("Normal", "The sign ")
    words.add_picture(photo, height="14pt")  # as wide as that makes it
    words.add_text(" means that the harbour is open.")
    # [picture]
    # [caption]
    figure = section.add_paragraph("Normal")
    figure.format.keep_with_next = True
    figure.add_picture(photo, "6cm")
    caption = section.add_paragraph("Normal")
    caption.add_bookmark("harbour")
    caption.add_text("Figure ")
    caption.add_field("SEQ Figure", "1")
    caption.add_bookmark("harbour", is_start=False)
    caption.add_text(": The harbour in the evening")
    # [caption]
    # [reference]
    text = section.add_paragraph("Normal", "See ")
    text.add_field(r"REF harbour \h", "Figure 1")
    text.add_text(" on page ")
    text.add_field("PAGEREF harbour", "1")
    text.add_text(".")
    # [reference]


def add_tables(section: Section, logo: str) -> None:
    # [table]
    # [header-row]
    head = section.add_table(header=True, keep_together=True)
    # [header-row]
    for title in "Boat", "Places", "Built":
        cell = head.add_cell(width="4cm")
        cell.background.texture = Texture.SOLID
        cell.background.back_color = "#e2ecf6"
        for side in cell.borders:
            side.style = BorderStyle.SINGLE
            side.color = "#1e5aa0"
        cell.add_paragraph("Cell", title)
    # [table]
    # [like]
    row = section.add_table()
    for text in "Kittiwake", "48", "1998":
        cell = row.add_cell(head.current_cell)
        cell.background.texture = Texture.NONE
        cell.add_paragraph("Cell", text)
    # [like]
    # [nested]
    is_first = True
    for place, seats in (("On deck", "30"), ("In the cabin", "18")):
        part = section.add_table()
        boat = part.add_cell(row.current_cell, merge=CellMerge.FIRST_VERTICAL if is_first else CellMerge.VERTICAL)
        boat.add_paragraph("Cell", "Kittiwake, in detail" if is_first else "")
        part.add_cell(row.current_cell).add_paragraph("Cell", place)
        part.add_cell(row.current_cell).add_paragraph("Cell", seats)
        is_first = False
    # [nested]
    # [merge]
    total = section.add_table()
    wide = total.add_cell(row.current_cell, merge=CellMerge.FIRST_HORIZONTAL)
    wide.add_paragraph("Cell", "Across two cells")
    total.add_cell(row.current_cell, merge=CellMerge.HORIZONTAL)
    # [merge]
    # [cell-picture]
    cell = total.add_cell(row.current_cell)
    cell.add_paragraph("Cell").add_picture(logo, "1.5cm")
    # [cell-picture]


# [widths]
def widths(rows: list[list[str]], room: float) -> list[float]:
    """Shares the room out in proportion to the longest text of each column."""
    longest = [max(4, *map(len, column)) for column in zip(*rows)]  # no column is narrower than four letters
    return [room * length / sum(longest) for length in longest]


def add_table(section: Section, rows: list[list[str]]) -> None:
    for texts in rows:
        row = section.add_table()
        for text, width in zip(texts, widths(rows, 6.3)):  # inches
            row.add_cell(width=width).add_paragraph("Cell", text)
# [widths]


def add_shapes(section: Section, photo: str) -> None:
    # [wrap]
    paragraph = section.add_paragraph("Normal")
    frame = paragraph.add_shape(ShapeKind.PICTURE_FRAME, width="4cm", height="2.75cm", left="12cm")
    frame.fill.picture = photo
    frame.reference_x = ShapeReferenceX.COLUMN
    frame.reference_y = ShapeReferenceY.PARAGRAPH
    frame.wrap = ShapeWrap.AROUND
    paragraph.add_text_item("The picture stands on the right, twelve centimetres from where the column begins, and the text flows "
                            "around it.")
    # [wrap]
    # [box]
    anchor = section.add_paragraph("Normal")
    box = anchor.add_shape(ShapeKind.TEXT_BOX, width="6cm", height="1.5cm")
    box.reference_y = ShapeReferenceY.PARAGRAPH
    box.wrap = ShapeWrap.TOP_BOTTOM
    box.add_paragraph("Normal", "In a box")
    # [box]
    section.add_paragraph("Normal", "Below the box.")


def write_answers(filename: str, photo: str) -> None:
    with draftwick.Document(filename) as document:
        # [paper]
        document.paper_size = PaperSize.A4
        document.margin_left = "2.5cm"
        document.margin_right = "25mm"
        # [paper]
        # [properties]
        document.properties["Title"].value = "How do I ...?"
        document.properties["Author"].value = "The harbour office"
        # [properties]
        add_styles(document)
        add_lists(document)

        section = document.add_section()
        add_headers(section, photo)
        add_contents_line(section, "Text", "chapter1", 1)
        add_contents_line(section, "Tables", "chapter2", 2)
        add_heading(section, "Text", "chapter1")
        add_text(section)
        # [restart]
        add_step(section, "Steps", "Cast off.")
        add_step(section, "Steps", "Row.")
        section.add_paragraph("Normal", "And on the way back")
        add_step(section, "More steps", "Row.")  # 1 again
        add_step(section, "More steps", "Make fast.")
        # [restart]
        add_references(section, photo)
        # [page-break]
        following = section.add_paragraph("Normal")
        following.format.page_break_before = True
        following.add_text("This line begins a page.")
        # [page-break]
        add_heading(section, "Tables", "chapter2")
        add_tables(section, photo)
        section.add_paragraph("Normal", "The boats leave at")
        add_table(section, [["8:15", "To the island, with a stop at the lighthouse", "12 km"], ["18:00", "Back", "9 km"]])
        add_shapes(section, photo)

        # [landscape]
        wide = document.add_section(orientation=Orientation.LANDSCAPE)
        wide.add_paragraph("Normal", "This page is wider than it is high.")
        # [landscape]
        # [columns]
        columns = document.add_section(break_=SectionBreak.PAGE)  # upright again, like the document
        columns.columns.auto(2, "1cm")
        # [columns]
        columns.add_paragraph("Normal", "In the first column.")
        second = columns.add_paragraph("Normal")
        second.add_text_item("").add_special(SPECIAL.column_break)
        second.add_text("In the second column.")
        # [first-page]
        annex = document.add_section(title_page=True)
        annex.add_header(HeaderKind.HEADER_FIRST).add_paragraph("Normal", "Only on the first page")
        # [first-page]
        annex.add_paragraph("Normal", "A page with a header of its own.")
        # [numbering]
        appendix = document.add_section()
        appendix.page_numbering_restart = PageNumberingRestart.SECTION
        appendix.page_numbering_start = 1
        appendix.page_numbering_format = PageNumberingFormat.ROMAN_LOWER
        # [numbering]
        appendix.add_paragraph("Normal", "This page is number i.")


if __name__ == "__main__":
    write_answers(*sys.argv[1:3])
