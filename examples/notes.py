"""Notes and bookmarks: a footnote, endnotes at the end, and a reference to a marked place.

usage: notes.py OUTPUT.rtf
"""

import sys

import draftwick
from draftwick import EndnoteLocation, FontFamily, FootnoteFormat, Paragraph

SPECIAL = draftwick.Special()


# [note]
# Readers count the notes. The number stands where the text refers to the note, and once more where the note begins.
def add_number(paragraph: Paragraph) -> None:
    number = paragraph.add_text_item("")
    number.font_format.superscript = True
    number.add_special(SPECIAL.footnote)


def add_note(paragraph: Paragraph, text: str, is_endnote: bool = False) -> None:
    add_number(paragraph)
    note = paragraph.add_footnote(is_endnote).add_paragraph("Normal")
    note.font_format.size = 9
    add_number(note)
    note.add_text(" ")
    note.add_text(text)
# [note]


def write_notes(filename: str) -> None:
    with draftwick.Document(filename) as document:
        # [settings]
        document.endnote_format = FootnoteFormat.ROMAN_LOWER
        document.endnote_location = EndnoteLocation.DOCUMENT
        # [settings]
        document.page_width = 5.83
        document.page_height = 4.5
        document.fonts.add("Times New Roman", family=FontFamily.ROMAN)
        document.default_font_name = "Times New Roman"
        normal = document.paragraph_styles.add("Normal")
        normal.font_format.size = 11
        normal.format.space_after = 6

        section = document.add_section()
        # [text]
        first = section.add_paragraph("Normal", "The town bought its first fire engine in ")
        # A bookmark has a start and an end with the same name.
        first.add_bookmark("engine")
        first.add_text("1862")
        first.add_bookmark("engine", is_start=False)
        add_note(first, "It was drawn by the mayor’s horses, and by the mayor when they were out.")
        first.add_text(", second-hand, with forty buckets")
        add_note(first, "Council minutes, volume 7, page 112.", is_endnote=True)
        first.add_text(" and one hose.")

        second = section.add_paragraph("Normal", "The hose was the one that had been lent out before. It came back three "
                                                 "years after ")
        second.add_field("REF engine", "1862")  # what is between the two marks
        second.add_text(", patched in eleven places")
        add_note(second, "Nine, according to the brewery.")
        second.add_text(".")
        # [text]


if __name__ == "__main__":
    write_notes(sys.argv[1])
