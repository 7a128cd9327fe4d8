"""A business letter.

usage: letter.py OUTPUT.rtf
"""

import sys

import draftwick
from draftwick import Document, FontFamily, ParagraphAlign, UnderlineStyle


def add_styles(document: Document) -> None:
    """The look of the letter, in one place: paragraphs refer to these styles by name."""
    document.fonts.add("Georgia", family=FontFamily.ROMAN)
    document.default_font_name = "Georgia"

    body = document.paragraph_styles.add("Letter")
    body.font_format.size = 11
    body.format.space_after = 8
    body.format.line_spacing_multiple = 1.15

    address = document.paragraph_styles.add("Address", based_on="Letter")
    address.format.space_after = 0

    subject = document.paragraph_styles.add("Subject", based_on="Letter")
    subject.font_format.bold = True
    subject.format.space_before = 18

    # A text style has a size of its own.
    title = document.text_styles.add("Title")
    title.font_format.size = 11
    title.font_format.italic = True


def write_letter(filename: str) -> None:
    with draftwick.Document(filename, margin_left=1.1, margin_right=1.1, margin_top=1) as document:
        add_styles(document)
        section = document.add_section()
        section.add_paragraph("Address", "Fenwick & Daughters, bookbinders").add_text_item(
            "\n12 Mill Lane\nAshford")

        # What differs from the style is set on the paragraph, before it gets its text.
        date = section.add_paragraph("Letter")
        date.format.align = ParagraphAlign.RIGHT
        date.add_text("3 March")

        section.add_paragraph("Address", "Mrs. Zoë Müller")
        section.add_paragraph("Address", "Municipal Library, Castle Street 4")
        section.add_paragraph("Subject", "Repair of nine volumes — our offer")
        section.add_paragraph("Letter", "Dear Mrs. Müller,")

        offer = section.add_paragraph("Letter", "thank you for letting us see the nine volumes of the ")
        offer.add_text("Ashford Chronicle", style_name="Title")
        offer.add_text_item(". Three of them need new spines, the others only their corners mended. We offer the whole work "
                            "for €1,240 and need “about six weeks”, as you asked.")

        closing = section.add_paragraph("Letter", "We would fetch the books ourselves: they should not travel in the post in ")
        closing.add_text_item("their").font_format.underline = UnderlineStyle.SINGLE
        closing.add_text(" condition.")

        section.add_paragraph("Letter", "Yours sincerely,")
        name = section.add_paragraph("Letter")
        name.format.space_before = 24
        name.add_text("Ada Fenwick")


if __name__ == "__main__":
    write_letter(sys.argv[1])
