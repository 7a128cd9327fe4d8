"""Pictures: one beside the text, one as the fill of a figure.

usage: pictures.py OUTPUT.rtf HILLS.jpg BOARD.gif
"""

import sys

import draftwick
from draftwick import FontFamily, ParagraphAlign, ShapeKind, ShapeReferenceX, ShapeWrap


def write_pictures(filename: str, hills: str, board: str) -> None:
    with draftwick.Document(filename, margin_left=1, margin_right=1) as document:
        document.fonts.add("Times New Roman", family=FontFamily.ROMAN)
        document.default_font_name = "Times New Roman"
        section = document.add_section()

        # [frame]
        # A picture frame shows a file: JPEG, PNG, GIF, BMP, EMF or WMF.
        text = section.add_paragraph()
        text.format.align = ParagraphAlign.JUSTIFY
        frame = text.add_shape(ShapeKind.PICTURE_FRAME, width=3, height=2)
        frame.wrap = ShapeWrap.AROUND  # the text flows around it
        frame.wrap_right = 0.2
        frame.wrap_bottom = 0.1
        frame.fill.picture = hills
        # [frame]

        # [second]
        second = text.add_shape(ShapeKind.PICTURE_FRAME, reference_x=ShapeReferenceX.MARGIN, left=5.5, top=1, width=1,
                                height=1, wrap=ShapeWrap.AROUND, wrap_left=0.2)
        second.fill.picture = board  # a bitmap is written as a drawing, a pixel for a pixel
        # [second]
        text.add_text_item("From the tower one sees four ranges of hills, and on the clearest days of the year a fifth, "
                           "which may be a cloud. The keeper has a board and pieces up there and plays against whoever "
                           "climbs the two hundred and eleven steps; he has lost once, in the winter of the long snow, "
                           "against a girl of nine who had counted the steps aloud and was not out of breath. Since then he "
                           "opens with the other knight. The board is the one in the picture, or one that looks like it.")


if __name__ == "__main__":
    write_pictures(*sys.argv[1:4])
