"""Lists: a numbered one of three levels, a bulleted one, and one that counts on in the look of another.

usage: outline.py OUTPUT.rtf
"""

import sys

import draftwick
from draftwick import Document, FontFamily, ListNumberFollow, ListNumberStyle, Section


def add_lists(document: Document) -> None:
    r"""A list says how the numbers of its nine levels look. In a format, \L1 to \L9 stand for their current numbers."""
    agenda = document.lists.add("Agenda").levels
    agenda[1].font_format.bold = True  # 1. by default
    agenda[2].format = r"\L1.\L2"
    agenda[2].tab_position = 0.8
    agenda[3].format = r"(\L3)"
    agenda[3].style = ListNumberStyle.LETTER_LOWER
    agenda[3].tab_position = 1.2

    things = document.lists.add("Things").levels[1]
    things.style = ListNumberStyle.BULLET
    things.format = "•"
    things.tab_position = 0.5

    roman = document.lists.add("Roman").levels[1]
    roman.style = ListNumberStyle.ROMAN_UPPER
    roman.format = r"\L1 –"
    roman.follow = ListNumberFollow.SPACE


def add_style(document: Document, name: str, indent: float, hanging: float) -> None:
    """The number stands at the indent of the first line and its text at the level's tab position, which is also the indent of
    the other lines."""
    style = document.paragraph_styles.add(name)
    style.format.indent_left = indent
    style.format.indent_first = -hanging
    style.format.space_after = 3


def add_item(section: Section, style: str, list_name: str, level: int, text: str) -> None:
    """A paragraph joins a list by name and says its level. The number needs no text: it comes with the list."""
    paragraph = section.add_paragraph(style)
    paragraph.format.list_name = list_name
    paragraph.format.list_level = level
    paragraph.add_text(text)


def write_outline(filename: str) -> None:
    with draftwick.Document(filename, margin_left=1, margin_right=1) as document:
        document.fonts.add("Georgia", family=FontFamily.ROMAN, alt_name="Liberation Serif")
        document.default_font_name = "Georgia"
        add_lists(document)

        heading = document.paragraph_styles.add("Heading")
        heading.font_format.size = 18
        heading.font_format.bold = True
        heading.format.space_after = 10
        heading.format.outline_level = 1
        add_style(document, "Item 1", 0.25, 0.25)
        add_style(document, "Item 2", 0.8, 0.5)
        add_style(document, "Item 3", 1.2, 0.4)
        add_style(document, "Bullet", 0.5, 0.25)

        section = document.add_section()
        section.add_paragraph("Heading", "Readers’ meeting")
        add_item(section, "Item 1", "Agenda", 1, "Welcome and minutes of the last meeting")
        add_item(section, "Item 1", "Agenda", 1, "The year in the house")
        add_item(section, "Item 2", "Agenda", 2, "Loans, visits, losses")
        add_item(section, "Item 3", "Agenda", 3, "the missing atlas")
        add_item(section, "Item 3", "Agenda", 3,
                 "the atlas that nobody missed, which came back by post after eleven years with a note that asked for its "
                 "fine in instalments")
        add_item(section, "Item 2", "Agenda", 2, "The lift")
        add_item(section, "Item 3", "Agenda", 3, "offers")  # letters start again below each number
        add_item(section, "Item 1", "Agenda", 1, "Thanks to those who carried books")

        # The agenda counts on, in the look of another list: IV instead of 4.
        last = section.add_paragraph("Item 1")
        last.format.list_name = "Agenda"
        last.format.list_format_name = "Roman"
        last.add_text("Any other business")

        bring = section.add_paragraph()
        bring.format.space_before = 8
        bring.format.space_after = 3
        bring.add_text("Please bring")
        add_item(section, "Bullet", "Things", 1, "your reader’s card")
        add_item(section, "Bullet", "Things", 1, "a chair, if you are more than forty")


if __name__ == "__main__":
    write_outline(sys.argv[1])
