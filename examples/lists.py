"""Lists: numbers on two levels, and bullets.

usage: lists.py OUTPUT.rtf
"""

import sys

import draftwick
from draftwick import Document, FontFamily, ListNumberStyle


# [lists]
# A list has nine levels, which have numbers as the file has them. In a format, \L1 to \L9 stand for their current numbers.
def add_lists(document: Document) -> None:
    steps = document.lists.add("Steps")
    steps.levels[1].format = r"\L1."
    steps.levels[1].tab_position = 0.35
    steps.levels[1].font_format.bold = True
    steps.levels[2].style = ListNumberStyle.LETTER_LOWER
    steps.levels[2].format = r"\L2)"
    steps.levels[2].tab_position = 0.7

    tools = document.lists.add("Tools").levels[1]
    tools.style = ListNumberStyle.BULLET
    tools.format = "•"
    tools.tab_position = 0.35
# [lists]


# [items]
# The number stands at the indent of the first line, the text at the level's tab position; the other lines of the
# item begin at the left indent.
def add_style(document: Document, name: str, list_name: str, level: int, indent: float) -> None:
    style = document.paragraph_styles.add(name, based_on="Normal")
    style.format.list_name = list_name
    style.format.list_level = level
    style.format.indent_left = indent
    style.format.indent_first = -0.35
# [items]


def write_lists(filename: str) -> None:
    with draftwick.Document(filename, margin_left=1.5, margin_right=1.5) as document:
        document.fonts.add("Arial", family=FontFamily.SWISS)
        document.default_font_name = "Arial"
        add_lists(document)
        document.paragraph_styles.add("Normal").format.space_after = 4
        add_style(document, "Step", "Steps", 1, 0.35)
        add_style(document, "Substep", "Steps", 2, 0.7)
        add_style(document, "Tool", "Tools", 1, 0.35)

        # [use]
        section = document.add_section()
        section.add_paragraph("Normal", "To change a tyre you need")
        section.add_paragraph("Tool", "two tyre levers and a pump")
        section.add_paragraph("Tool", "a bowl of water, unless you can hear the hole")
        section.add_paragraph("Normal", "Then")
        section.add_paragraph("Step", "take the wheel out:")
        section.add_paragraph("Substep", "open the brake")
        section.add_paragraph("Substep", "loosen the nuts by half a turn each, one after the other, until the wheel drops")
        section.add_paragraph("Step", "lift the tyre over the rim")
        section.add_paragraph("Step", "put the new tube in:")
        section.add_paragraph("Substep", "a breath of air in it keeps it from twisting")
        # [use]


if __name__ == "__main__":
    write_lists(sys.argv[1])
