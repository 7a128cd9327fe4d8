"""An invoice in a few lines, with what the standard spelling can do: a PNG logo, Polish letters, coloured borders.

usage: short_invoice.py OUTPUT.rtf
"""

import sys

import draftwick
from draftwick import BorderStyle, Cell, HeaderKind, PaperSize, ParagraphAlign, Section, Texture, UnderlineStyle

BLUE = "#1e5aa0"
WIDTHS = ["9cm", "2cm", "2.5cm", "2.5cm"]
# A blue ring of 24 by 24 pixels; real programs read a file.
LOGO = bytes.fromhex("""
    89504e470d0a1a0a0000000d4948445200000018000000180803000000d7a9cdca00000006504c5445ffffff1e5aa0d5f84b3200000042
    4944415478da6360200818c10087308614230ac0258e906164c42183ccc1c546e161b3108b3842604025703a17b707710703ce40c419ec
    b8230a77d4e2490c1800002e67010108cdef4d0000000049454e44ae426082""")


def add_row(section: Section, like: Cell, texts: list[str]) -> None:
    """A row of cells that look like another."""
    row = section.add_table()
    for number, (width, text) in enumerate(zip(WIDTHS, texts)):
        row.add_cell(like, width=width).add_paragraph("Number" if number else "Body", text)


def write_invoice(filename: str) -> None:
    with draftwick.Document(filename, paper_size=PaperSize.A4, margin_left="2.5cm") as document:
        document.fonts.add("Liberation Sans")
        document.default_font_name = "Liberation Sans"
        for name, size in (("Body", 10), ("Number", 10), ("Title", 18)):
            style = document.paragraph_styles.add(name)
            style.font_format.size = size
            style.format.space_after = size / 4
        document.paragraph_styles["Number"].format.align = ParagraphAlign.RIGHT
        document.paragraph_styles["Title"].font_format.color = BLUE

        section = document.add_section()
        section.add_header(HeaderKind.HEADER).add_paragraph("Body").add_picture_data(LOGO, "1.5cm")
        footer = section.add_header(HeaderKind.FOOTER).add_paragraph("Body", "Page ")
        footer.add_field("PAGE", "1")
        footer.add_text(" of ")
        footer.add_field("NUMPAGES", "1")
        section.add_paragraph("Body", "Żaneta Ślęzak\nul. Piotrkowska 12\n90-001 Łódź")
        section.add_paragraph("Title", "Invoice 2026-117")

        look = section.add_table().add_cell(width="16cm")  # what all cells begin like
        look.background.texture = Texture.SOLID
        look.background.back_color = "#e2ecf6"
        for side in look.borders:
            side.style = BorderStyle.SINGLE
            side.color = BLUE
        look.add_paragraph("Body", "Delivered on 14 November 2026")
        add_row(section, look, ["Item", "Amount", "Price", "Total"])
        add_row(section, look, ["Fountain pen, blue", "2", "34.00 €", "68.00 €"])
        add_row(section, look, ["Ink, 50 ml", "3", "9.50 €", "28.50 €"])
        add_row(section, look, ["To be paid", "", "", "96.50 €"])
        pay = section.add_paragraph("Body", "Please pay within 14 days at ")
        link = pay.add_field('HYPERLINK "https://example.org/pay"', "example.org/pay")
        link.font_format.color = BLUE
        link.font_format.underline = UnderlineStyle.SINGLE


if __name__ == "__main__":
    write_invoice(sys.argv[1])
