"""Text and what it looks like: fonts, sizes, colours, lines under letters, indents, tab stops, characters.

usage: text.py OUTPUT.rtf
"""

import sys

import draftwick
from draftwick import FontFamily, ParagraphAlign, ScaleMode, TabAlign, TabLeader, UnderlineStyle

# [color]
# Colours are "#rrggbb", or three numbers: red, green, blue.
BRICK = (165, 60, 40)
# [color]


def write_text(filename: str) -> None:
    with draftwick.Document(filename) as document:
        # [fonts]
        # A font must be in the document before its name can be used. The family helps readers that do not have it.
        document.fonts.add("Times New Roman", family=FontFamily.ROMAN)
        document.fonts.add("Arial", family=FontFamily.SWISS)
        document.default_font_name = "Times New Roman"
        # [fonts]

        # [units]
        # Lengths are in inches unless scale_mode says otherwise, or texts with a unit of their own. Sizes of fonts and the
        # space between paragraphs are in points whatever it says.
        document.scale_mode = ScaleMode.POINTS
        document.margin_left = 72
        document.margin_right = "1in"
        # [units]
        section = document.add_section()

        # [paragraph]
        title = section.add_paragraph()
        title.font_format.font_name = "Arial"
        title.font_format.size = 20
        title.font_format.bold = True
        title.format.space_after = 10
        title.add_text("The kiln")

        text = section.add_paragraph()
        text.format.align = ParagraphAlign.JUSTIFY
        text.format.space_after = 8
        text.format.line_spacing_multiple = 1.2
        # [paragraph]

        # [runs]
        text.add_text("A kiln is heated ")
        text.add_text_item("slowly").font_format.italic = True
        text.add_text(": the first hundred degrees take an hour. ")
        warning = text.add_text_item("Never open it above 200 °C.")
        warning.font_format.bold = True
        warning.font_format.color = BRICK
        text.add_text(" Water leaves the clay as steam, H")
        two = text.add_text_item("2")
        two.font_format.subscript = True
        text.add_text("O and nothing else; what ")
        text.add_text_item("else").font_format.underline = UnderlineStyle.WAVE
        text.add_text(" there is burns off later.")
        # [runs]

        # [indents]
        hint = section.add_paragraph()
        hint.format.indent_left = 36
        hint.format.indent_first = -18
        hint.format.space_after = 8
        hint.font_format.size = 11
        hint.add_text_item("– Wear gloves, and goggles too. A second line of a paragraph whose first line is indented to "
                           "the left begins further in than the first.")

        for line in "Biscuit\t1,000 °C\t9 hours", "Glaze\t1,240 °C\t12 hours":
            row = section.add_paragraph()
            row.tab_stops.add(150, TabAlign.RIGHT, TabLeader.DOTS)
            row.tab_stops.add(200, TabAlign.LEFT, TabLeader.NONE)
            row.add_text(line)
        # [indents]

        # [characters]
        # "\n" is a line break within a paragraph; braces and backslashes need no care.
        last = section.add_paragraph()
        last.format.space_before = 8
        last.add_text("Žofie’s price: 12 € {each} — “ask” at C:\\shop.\n")
        last.add_text("All alphabets are at home in the file: αβγ, абв.")
        # [characters]


if __name__ == "__main__":
    write_text(sys.argv[1])
