"""The first document: a title and a paragraph.

usage: first_document.py OUTPUT.rtf
"""

import sys

# [document]
import draftwick
from draftwick import FontFamily, ParagraphAlign


def write_report(filename: str) -> None:
    with draftwick.Document(filename) as document:
        document.fonts.add("Times New Roman", family=FontFamily.ROMAN)
        document.default_font_name = "Times New Roman"

        section = document.add_section()
        title = section.add_paragraph()
        title.format.align = ParagraphAlign.CENTER
        title.font_format.size = 18
        title.add_text("Quarterly report")
        section.add_paragraph(text="Sales rose by a tenth, complaints fell by half.")
# [document]


if __name__ == "__main__":
    write_report(sys.argv[1])
