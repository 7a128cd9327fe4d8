"""Python in five minutes: a report from rows, bytes in memory, a refusal.

usage: python.py OUTPUT.rtf
"""

import sys

# [report]
import draftwick
from draftwick import FontFamily, ParagraphAlign

SALES = [("North", 1200, 0.12), ("South", 980, -0.03), ("East", 1430, 0.2), ("West", 760, 0.05)]


def write_report(filename: str) -> None:
    with draftwick.Document(filename, margin_left="2.5cm", margin_right="2.5cm") as document:
        document.fonts.add("Arial", family=FontFamily.SWISS)
        document.default_font_name = "Arial"
        normal = document.paragraph_styles.add("Normal")
        normal.format.space_after = 6
        title = document.paragraph_styles.add("Title", based_on="Normal")
        title.font_format.size = 20
        title.font_format.color = "#1f4e79"

        section = document.add_section()
        section.add_paragraph("Title", "Quarterly report")
        text = section.add_paragraph("Normal")
        text.format.align = ParagraphAlign.JUSTIFY
        text.add_text("Sales rose by ")
        text.add_text_item("a tenth").font_format.bold = True
        text.add_text(", complaints fell by half — Žofie’s team in αβγ Street deserves a prize.")

        # Rows are lists, tuples, mappings, named tuples, a database cursor, a frame of pandas or polars.
        document.add_table_from(SALES, ["Region", "Sold", "Growth"], widths=["6cm", "3cm", "3cm"], stripes="#eef3f8")
# [report]


# [bytes]
def letter(name: str) -> bytes:
    document = draftwick.Document(body_in_memory=True)
    document.add_section().add_paragraph(text=f"Dear {name},")
    return document.to_bytes()
# [bytes]


# [refused]
def colour(document: draftwick.Document, color: str) -> None:
    section = document.current_section or document.add_section()
    text = section.add_paragraph().add_text_item("Colourful")
    try:
        text.font_format.color = color
    except draftwick.TypeMismatch as error:
        print(error)  # Type mismatch: FontFormat.color: 'red' is no colour; write '#' and two ...
# [refused]


if __name__ == "__main__":
    write_report(sys.argv[1])
    assert letter("reader").startswith(b"{\\rtf1")
    colour(draftwick.Document(), "red")
