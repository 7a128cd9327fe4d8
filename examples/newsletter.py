"""A newsletter: a title across the page, text in two columns with a line between them, a drop cap, footnotes, endnotes at
the end, and bookmarks that links from elsewhere can point at.

usage: newsletter.py OUTPUT.rtf
"""

import sys
from dataclasses import dataclass

import draftwick
from draftwick import (BorderStyle, EndnoteLocation, FontFamily, FootnoteFormat, FrameReferenceY, Header, HeaderKind,
                       LineSpacingStyle, Paragraph, ParagraphAlign, ParagraphBorderSide, Section, SectionBreak, TabAlign,
                       TabLeader)

SPECIAL = draftwick.Special()


@dataclass(frozen=True)
class Look:
    """The look of a paragraph, in points. They are not styles, because LibreOffice lets text run around a drop cap only in
    documents without paragraph styles."""
    size: float
    align: ParagraphAlign = ParagraphAlign.LEFT
    space_before: float = 0
    space_after: float = 6
    bold: bool = False
    italic: bool = False


TITLE = Look(30, ParagraphAlign.CENTER)
ISSUE = Look(10, ParagraphAlign.CENTER, space_after=10, italic=True)
HEADLINE = Look(14, space_before=10, space_after=4, bold=True)
TEXT = Look(10.5, ParagraphAlign.JUSTIFY)
DROP_CAP = Look(40, space_after=0)
LINE = Look(10.5)
FOOTER = Look(9, ParagraphAlign.CENTER)


def add_paragraph(container: Section | Header, look: Look) -> Paragraph:
    paragraph = container.add_paragraph()
    paragraph.font_format.size = look.size
    paragraph.font_format.bold = look.bold
    paragraph.font_format.italic = look.italic
    paragraph.format.align = look.align
    paragraph.format.space_before = look.space_before
    paragraph.format.space_after = look.space_after
    paragraph.format.line_spacing_multiple = 1.1
    return paragraph


def add_heading(section: Section, bookmark: str, text: str) -> None:
    """A heading with a bookmark around it."""
    heading = add_paragraph(section, HEADLINE)
    heading.format.keep_with_next = True
    heading.add_bookmark(bookmark)
    heading.add_text(text)
    heading.add_bookmark(bookmark, is_start=False)


def add_note_number(paragraph: Paragraph) -> None:
    """The number of a note, which the reader counts: it stands in the text and before the note."""
    number = paragraph.add_text_item("")
    number.font_format.superscript = True
    number.add_special(SPECIAL.footnote)


def add_note(paragraph: Paragraph, text: str, is_endnote: bool = False) -> None:
    add_note_number(paragraph)
    note = paragraph.add_footnote(is_endnote).add_paragraph()
    note.font_format.size = 8.5
    add_note_number(note)
    note.add_text(" ")
    note.add_text(text)


def add_drop_cap(section: Section, letter: str) -> None:
    """The first letter of an article, three lines high: a paragraph of its own in a frame at the head of the text, which runs
    around it."""
    paragraph = add_paragraph(section, DROP_CAP)
    paragraph.frame.drop_cap_lines = 3
    paragraph.frame.reference_y = FrameReferenceY.PARAGRAPH
    paragraph.frame.spacing_x = 0.04
    paragraph.format.line_spacing_style = LineSpacingStyle.EXACTLY
    paragraph.format.line_spacing_distance = 40  # three lines of the text
    paragraph.add_text(letter)


def add_articles(section: Section) -> None:
    add_heading(section, "Harvest", "A late harvest")
    add_drop_cap(section, "T")
    first = add_paragraph(section, TEXT)
    first.add_text_item("he orchard behind the station gave more apples this year than in the three years before together. The "
                        "first baskets went to the school kitchen")
    add_note(first, "412 kg, weighed by the pupils themselves.")
    first.add_text_item(", the rest to the cider press in the old fire station, which ran for nine days without a break. Whoever "
                        "brought apples took bottles home; whoever brought none could buy them.")
    second = add_paragraph(section, TEXT)
    second.add_text("Two trees at the northern fence will be felled in winter. They were planted in 1921")
    add_note(second, "Parish register of 1921, page 88.", is_endnote=True)
    second.add_text_item(" and have carried nothing but mistletoe for some years. Six young trees of old varieties will take "
                         "their place, each with a godparent in the neighbourhood. Names for the list are still welcome.")

    add_heading(section, "Bridge", "The bridge is open")
    third = add_paragraph(section, TEXT)
    third.add_text_item("After fourteen months of detours the footbridge over the mill stream is open again. The new deck is "
                        "oak, the railings are the old ones, straightened and galvanised. It carries bicycles, prams and one "
                        "horse at a time")
    add_note(third, "The limit is 2.5 tonnes; the sign has been corrected.")
    third.add_text_item(". On the first Sunday more than three hundred people crossed it, most of them several times and in both "
                        "directions.")
    fourth = add_paragraph(section, TEXT)
    fourth.add_text_item("The council thanks the volunteers who ferried shopping across the stream in a rowing boat. The boat has "
                         "been given to the museum, which will show it from May, next to the beams of the first bridge of 1788")
    add_note(fourth, "See the museum's catalogue of 1994, number 31.", is_endnote=True)
    fourth.add_text(".")

    add_heading(section, "Dates", "Dates")
    for date in ("3 March\tWorking party in the orchard", "21 March\tConcert in the mill", "2 April\tRepair café",
                 "18 April\tMeeting of the residents"):
        line = add_paragraph(section, LINE)
        line.tab_stops.add(0.9, TabAlign.LEFT, TabLeader.NONE)
        line.add_text(date)


def write_newsletter(filename: str) -> None:
    with draftwick.Document(filename, caption="The Mill Stream", margin_left=1, margin_right=1, margin_top=1,
                            margin_bottom=1) as document:
        document.endnote_format = FootnoteFormat.ROMAN_LOWER
        document.endnote_location = EndnoteLocation.DOCUMENT
        document.fonts.add("Georgia", family=FontFamily.ROMAN)
        document.default_font_name = "Georgia"

        front = document.add_section()
        footer = add_paragraph(front.add_header(HeaderKind.FOOTER), FOOTER)
        footer.add_text_item("The Mill Stream, page ").add_special(SPECIAL.page_number)
        add_paragraph(front, TITLE).add_text("The Mill Stream")
        issue = add_paragraph(front, ISSUE)
        issue.borders[ParagraphBorderSide.BOTTOM].style = BorderStyle.THIN_THICK_SMALL_GAP
        issue.borders[ParagraphBorderSide.BOTTOM].width = 3
        issue.add_text("News from both banks · Spring 2026")

        # A section that begins where the one before ended: the columns start below the title.
        columns = document.add_section()
        columns.break_ = SectionBreak.NONE
        columns.columns.auto(2, 0.4)
        columns.columns.line_between = True
        add_articles(columns)


if __name__ == "__main__":
    write_newsletter(sys.argv[1])
