"""A table: a header row, rows, merged cells, amounts that are aligned.

usage: tables.py OUTPUT.rtf
"""

import sys

import draftwick
from draftwick import BorderStyle, CellMerge, CellVerticalAlign, FontFamily, ParagraphAlign, Section, Table, Texture


# [cell]
# A cell has a width and borders of its own. Its settings are written with its first paragraph.
def add_cell(row: Table, width: float, text: str, align: ParagraphAlign = ParagraphAlign.LEFT,
             merge: CellMerge = CellMerge.NONE, shading: float = 0) -> None:
    cell = row.add_cell(width=width, merge=merge, vertical_align=CellVerticalAlign.CENTER)
    if shading > 0:
        cell.background.texture = Texture.SHADED
        cell.background.shading = shading  # percent
    for side in cell.borders:
        side.style = BorderStyle.SINGLE

    paragraph = cell.add_paragraph("In a cell")
    paragraph.format.align = align
    paragraph.add_text(text)
# [cell]


BED, PLANT, AMOUNT = 1.1, 2.4, 1.2
RIGHT = ParagraphAlign.RIGHT


# [rows]
# Rows that follow each other make one table.
def add_table(section: Section) -> None:
    head = section.add_table(header=True)  # is repeated on each page that the table goes on to
    add_cell(head, BED, "Bed", shading=20)
    add_cell(head, PLANT, "Plant", shading=20)
    add_cell(head, AMOUNT, "Rows", RIGHT, shading=20)
    add_cell(head, AMOUNT, "Seed, g", RIGHT, shading=20)

    # A cell that spans several rows is the first of merged cells; those below it have no text.
    lines = [
        ("South wall", "Tomatoes", "2", "0.4", CellMerge.FIRST_VERTICAL),
        ("", "Basil", "1", "0.5", CellMerge.VERTICAL),
        ("", "French beans", "4", "120", CellMerge.VERTICAL),
        ("Hedge", "Spinach", "6", "25", CellMerge.NONE),
    ]
    for bed, plant, rows, seed, merge in lines:
        row = section.add_table(keep_together=True)
        add_cell(row, BED, bed, merge=merge)
        add_cell(row, PLANT, plant)
        add_cell(row, AMOUNT, rows, RIGHT)
        add_cell(row, AMOUNT, seed, RIGHT)

    total = section.add_table()
    add_cell(total, BED, "Altogether", merge=CellMerge.FIRST_HORIZONTAL, shading=8)
    add_cell(total, PLANT, "", merge=CellMerge.HORIZONTAL, shading=8)
    add_cell(total, AMOUNT, "13", RIGHT, shading=8)
    add_cell(total, AMOUNT, "145.9", RIGHT, shading=8)
# [rows]


def write_tables(filename: str) -> None:
    with draftwick.Document(filename, margin_left=1, margin_right=1) as document:
        document.fonts.add("Arial", family=FontFamily.SWISS)
        document.default_font_name = "Arial"
        normal = document.paragraph_styles.add("Normal")
        normal.font_format.size = 11
        normal.format.space_after = 6
        in_cell = document.paragraph_styles.add("In a cell", based_on="Normal")
        in_cell.font_format.size = 10
        in_cell.format.space_before = 3
        in_cell.format.space_after = 3

        section = document.add_section()
        section.add_paragraph("Normal", "What is sown in April")
        add_table(section)


if __name__ == "__main__":
    write_tables(sys.argv[1])
