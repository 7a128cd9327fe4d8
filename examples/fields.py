"""Fields, which readers compute, and document properties, which they show as information about the file.

usage: fields.py OUTPUT.rtf
"""

import sys
from datetime import datetime

import draftwick
from draftwick import Document, FontFamily, HeaderKind, ParagraphAlign, TabAlign, TabLeader


# [properties]
def add_properties(document: Document) -> None:
    properties = document.properties
    properties["Title"].value = "Rules of the allotment"
    properties["Author"].value = "The committee"
    properties["CreationTime"].value = datetime(2026, 4, 1, 9, 30)
    properties.add("Plots", 64)  # one of our own
# [properties]


def add_styles(document: Document) -> None:
    document.fonts.add("Times New Roman", family=FontFamily.ROMAN)
    document.default_font_name = "Times New Roman"
    normal = document.paragraph_styles.add("Normal")
    normal.font_format.size = 11
    normal.format.space_after = 6
    heading = document.paragraph_styles.add("Heading 1", based_on="Normal")
    heading.font_format.size = 15
    heading.format.outline_level = 1
    contents = document.paragraph_styles.add("Contents", based_on="Normal")
    contents.tab_stops.add(4.2, TabAlign.RIGHT, TabLeader.DOTS)


def write_fields(filename: str) -> None:
    with draftwick.Document(filename, page_width=5.83, page_height=4.1, margin_bottom=0.9) as document:
        add_styles(document)
        add_properties(document)
        section = document.add_section()

        # [footer]
        # A field is an instruction and the text that is shown until a reader carries it out. Some readers never do.
        footer = section.add_header(HeaderKind.FOOTER).add_paragraph("Normal")
        footer.format.align = ParagraphAlign.CENTER
        footer.add_field("TITLE", "Rules of the allotment")
        footer.add_text(" · page ")
        footer.add_field("PAGE", "1")
        footer.add_text(" of ")
        footer.add_field("NUMPAGES", "2")
        # [footer]

        # [contents]
        section.add_paragraph("Heading 1", "Rules of the allotment")
        section.add_paragraph("Contents").add_field(r'TOC \o "1-1"', "Water\t2")

        reference = section.add_paragraph("Normal", "What the pump may be used for stands on page ")
        reference.add_field("PAGEREF water", "2")
        reference.add_text(". As of ")
        reference.add_field("DATE", "1 April 2026", date_picture="d MMMM yyyy")
        reference.add_text(" it is locked at night.")

        heading = section.add_paragraph("Heading 1")
        heading.format.page_break_before = True
        heading.add_bookmark("water")
        heading.add_text("Water")
        heading.add_bookmark("water", is_start=False)
        # [contents]
        section.add_paragraph("Normal", "For plants, hands and the coffee of the committee.")


if __name__ == "__main__":
    write_fields(sys.argv[1])
