"""An invoice: a letterhead on the first page, a table of forty rows whose header row is repeated on each page, cells that are
merged down and across, amounts that stand below each other, totals.

usage: invoice.py OUTPUT.rtf
"""

import sys

import draftwick
from draftwick import (BorderStyle, Cell, CellBorderSide, CellMerge, Document, FontFamily, HeaderKind, PaperSize,
                       ParagraphAlign, ParagraphBorderSide, Section, TabAlign, TabLeader, Table, Texture)

NUMBER = "2026-0117"

# Name, hours, rate in cents.
SERVICES = [
    ("Rigging, main stage", 14, 6200),
    ("Lighting desk, evening performances", 22, 5800),
    ("Sound desk, evening performances", 22, 5800),
    ("Follow spots, two operators", 36, 4100),
    ("Stage carpentry and repairs", 11, 5200),
    ("Electrical safety inspection", 6, 7450),
    ("Wardrobe and quick changes", 18, 3900),
    ("Transport, flight cases", 4, 8800),
    ("Night watch", 40, 3150),
    ("Production office", 16, 4600),
]
WEEKS = range(12, 16)

# The columns of the table, in inches.
WEEK, SERVICE, HOURS, AMOUNT = 0.8, 3.1, 0.85, 1.1
RIGHT = ParagraphAlign.RIGHT


def money(cents: int) -> str:
    """123450 gives "1,234.50"."""
    return f"{cents // 100:,}.{cents % 100:02}"


def add_styles(document: Document) -> None:
    """The styles of the paragraphs. A document is given its fonts and styles before its first section."""
    document.fonts.add("Arial", family=FontFamily.SWISS)
    document.default_font_name = "Arial"
    styles = document.paragraph_styles

    body = styles.add("Normal")
    body.font_format.size = 10
    body.format.space_after = 8

    cell = styles.add("Cell", based_on="Normal")
    cell.font_format.size = 9
    cell.format.space_before = 3
    cell.format.space_after = 3

    title = styles.add("Title", based_on="Normal")
    title.font_format.size = 20
    title.font_format.bold = True
    title.format.space_before = 24
    title.format.space_after = 12

    small = styles.add("Small print", based_on="Normal")
    small.font_format.size = 8
    small.font_format.color = "#606060"
    small.format.space_after = 0


def add_headers(section: Section) -> None:
    """The first page has the letterhead, the others one line. Headers and footers come before the section's text."""
    letterhead = section.add_header(HeaderKind.HEADER_FIRST)
    name = letterhead.add_paragraph()
    name.font_format.size = 22
    name.font_format.bold = True
    name.font_format.color = "#103b7a"
    name.add_text("Nordlicht Stage Services")
    address = letterhead.add_paragraph("Small print")
    address.format.space_after = 6
    address.borders[ParagraphBorderSide.BOTTOM].style = BorderStyle.SINGLE
    address.add_text("Kaistraße 4 · 24103 Kiel · +49 431 555 0117 · office@nordlicht.example")

    running = section.add_header(HeaderKind.HEADER).add_paragraph("Small print")
    running.tab_stops.add(6.7, TabAlign.RIGHT, TabLeader.NONE)
    running.add_text(f"Nordlicht Stage Services\tInvoice {NUMBER}")

    for kind in HeaderKind.FOOTER_FIRST, HeaderKind.FOOTER:
        footer = section.add_header(kind).add_paragraph("Small print")
        footer.tab_stops.add(6.7, TabAlign.RIGHT, TabLeader.NONE)
        footer.add_text("IBAN DE02 1203 0000 0000 2020 51\tPage ")
        # Readers compute these; the numbers here are shown until they do.
        footer.add_field("PAGE", "1")
        footer.add_text(" of ")
        footer.add_field("NUMPAGES", "1")


def add_cell(row: Table, width: float, merge: CellMerge = CellMerge.NONE, shading: float = 0) -> Cell:
    cell = row.add_cell(width=width, merge=merge)
    for side in CellBorderSide.TOP, CellBorderSide.BOTTOM:
        cell.borders[side].style = BorderStyle.SINGLE
    if shading:
        cell.background.texture = Texture.SHADED
        cell.background.shading = shading  # percent
    return cell


def add_text(cell: Cell, text: str, align: ParagraphAlign = ParagraphAlign.LEFT, bold: bool = False) -> None:
    paragraph = cell.add_paragraph("Cell")
    paragraph.format.align = align
    paragraph.font_format.bold = bold
    paragraph.add_text(text)


def add_head(section: Section) -> None:
    """The head of the table: readers repeat it on each page."""
    row = section.add_table(header=True)
    for width, text, align in ((WEEK, "Week", ParagraphAlign.LEFT), (SERVICE, "Service", ParagraphAlign.LEFT),
                               (HOURS, "Hours", RIGHT), (HOURS, "Rate", RIGHT), (AMOUNT, "Amount, EUR", RIGHT)):
        add_text(add_cell(row, width, shading=20), text, align, bold=True)


def add_week(section: Section, week: int) -> int:
    """One row for each service; the cells of the first column are merged down over the week. Returns the sum in cents."""
    total = 0
    for name, usual, rate in SERVICES:
        hours = usual + week % 3
        amount = hours * rate

        row = section.add_table(keep_together=True)
        label = add_cell(row, WEEK, CellMerge.VERTICAL if total else CellMerge.FIRST_VERTICAL)
        if not total:
            add_text(label, f"{week}/2026", bold=True)
        add_text(add_cell(row, SERVICE), name)
        add_text(add_cell(row, HOURS), str(hours), RIGHT)
        add_text(add_cell(row, HOURS), money(rate), RIGHT)
        add_text(add_cell(row, AMOUNT), money(amount), RIGHT)
        total += amount
    return total


def add_total(section: Section, label: str, cents: int, last: bool = False) -> None:
    """A label over all columns but the last, and an amount. Cells that are merged across exist and stay empty."""
    row = section.add_table(keep_together=True)
    for width, merge, text in ((WEEK, CellMerge.FIRST_HORIZONTAL, label), (SERVICE, CellMerge.HORIZONTAL, None),
                               (HOURS, CellMerge.HORIZONTAL, None), (HOURS, CellMerge.HORIZONTAL, None),
                               (AMOUNT, CellMerge.NONE, money(cents))):
        cell = add_cell(row, width, merge, shading=10 if last else 0)
        if last:
            cell.borders[CellBorderSide.BOTTOM].style = BorderStyle.DOUBLE
        if text is not None:
            add_text(cell, text, RIGHT, bold=last)


def write_invoice(filename: str) -> None:
    with draftwick.Document(filename, caption=f"Invoice {NUMBER}", paper_size=PaperSize.A4, margin_left=0.8,
                            margin_right=0.77, margin_top=1.2, margin_bottom=1) as document:
        add_styles(document)
        section = document.add_section(title_page=True, header_y=0.5)
        add_headers(section)

        section.add_paragraph("Title", f"Invoice {NUMBER}")
        # An invoice keeps its date: readers do not update a locked field.
        section.add_paragraph("Normal", "Date: ").add_field("DATE", "20 April 2026", date_picture="d MMMM yyyy", locked=True)
        section.add_paragraph("Normal", "Theater am Hafen, Hafenstraße 12, 18055 Rostock. Services in the weeks 12 to 15 of 2026, "
                                        "as agreed in our offer of 2 February.")

        add_head(section)
        net = sum(add_week(section, week) for week in WEEKS)
        tax = (net * 19 + 50) // 100
        add_total(section, "Net", net)
        add_total(section, "Value added tax, 19 %", tax)
        add_total(section, "Total, EUR", net + tax, last=True)

        closing = section.add_paragraph("Normal")
        closing.format.space_before = 12
        closing.format.keep_intact = True
        closing.add_text("Please pay within 14 days to the account below, with the number of this invoice.")


if __name__ == "__main__":
    write_invoice(sys.argv[1])
