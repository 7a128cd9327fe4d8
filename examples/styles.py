"""Styles: the look of a document in one place, by name.

usage: styles.py OUTPUT.rtf
"""

import sys

import draftwick
from draftwick import BorderStyle, Document, FontFamily, ParagraphAlign, ParagraphBorderSide, Section

TEAL = "#126a6e"


# [styles]
def add_styles(document: Document) -> None:
    styles = document.paragraph_styles

    # What all text has; the others are based on it.
    normal = styles.add("Normal")
    normal.font_format.size = 11
    normal.format.space_after = 6

    # Setting based_on copies what the other style has at that moment; what is set afterwards counts.
    body = styles.add("Recipe", based_on="Normal")
    body.format.align = ParagraphAlign.JUSTIFY

    dish = styles.add("Dish", based_on="Normal")
    dish.next_style = "Recipe"  # what an editor gives to the next paragraph
    dish.font_format.font_name = "Arial"
    dish.font_format.size = 16
    dish.font_format.color = TEAL
    dish.format.keep_with_next = True
    dish.format.outline_level = 1
    dish.borders[ParagraphBorderSide.BOTTOM].style = BorderStyle.SINGLE

    remark = styles.add("Remark", based_on="Recipe")
    remark.font_format.italic = True
    remark.format.indent_left = 0.4
    remark.format.indent_right = 0.4
    bar = remark.borders[ParagraphBorderSide.LEFT]
    bar.style = BorderStyle.SINGLE
    bar.width = 2
    bar.spacing = 8

    # A text style is for a part of a paragraph. It has a size of its own.
    amount = document.text_styles.add("Amount")
    amount.font_format.size = 11
    amount.font_format.bold = True
# [styles]


# [use]
def add_recipe(section: Section) -> None:
    section.add_paragraph("Dish", "Nettle soup")
    recipe = section.add_paragraph("Recipe", "Wash ")
    recipe.add_text("300 g", style_name="Amount")
    recipe.add_text(" of young nettle tips and chop them. Fry an onion in butter, add the nettles and ")
    recipe.add_text_item("a litre").font_format.bold = True
    recipe.add_text(" of broth, and let it simmer for a quarter of an hour.")
    section.add_paragraph("Remark", "Gloves on until the water boils: after that the leaves are harmless.")

    # A paragraph can go its own way after it has taken its style.
    close = section.add_paragraph("Recipe")
    close.format.align = ParagraphAlign.RIGHT
    close.add_text("Serves four.")
# [use]


def write_styles(filename: str) -> None:
    with draftwick.Document(filename, margin_left=1.5, margin_right=1.5) as document:
        document.fonts.add("Times New Roman", family=FontFamily.ROMAN)
        document.fonts.add("Arial", family=FontFamily.SWISS)
        document.default_font_name = "Times New Roman"
        add_styles(document)
        add_recipe(document.add_section())


if __name__ == "__main__":
    write_styles(sys.argv[1])
