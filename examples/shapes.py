"""Shapes: a chart of rectangles with fills, outlines and shadows, and a star.

usage: shapes.py OUTPUT.rtf
"""

import sys

import draftwick
from draftwick import FontFamily, Paragraph, Shape, ShapeFillStyle, ShapeKind, ShapeShadowStyle


# [shape]
# A shape is anchored in a paragraph. Where it stands is counted from the margins, unless it says otherwise.
def add_shape(anchor: Paragraph, kind: ShapeKind, left: float, top: float, width: float, height: float,
              color: str) -> Shape:
    shape = anchor.add_shape(kind, left=left, top=top, width=width, height=height)
    shape.fill.style = ShapeFillStyle.SOLID
    shape.fill.color = color
    return shape
# [shape]


# [chart]
def draw_chart(anchor: Paragraph) -> None:
    """A bar for each quarter, on a wall that is shaded from one colour to another."""
    base = 3.4  # where the bars stand
    wall = add_shape(anchor, ShapeKind.RECTANGLE, 0, 0.5, 6, 2.9, "#c4def0")
    wall.fill.style = ShapeFillStyle.SHADE
    wall.fill.back_color = "#ffffff"
    wall.line.color = "#788ca0"

    left = 0.6
    for height in 1.1, 1.6, 1.3, 2.3:
        bar = add_shape(anchor, ShapeKind.RECTANGLE, left, base - height, 0.7, height, "#286ea0")
        bar.line.width = 1.5  # points
        bar.shadow.style = ShapeShadowStyle.SINGLE
        bar.shadow.color = "#9696a0"
        left += 1.3
    # The last one is striking.
    mark = add_shape(anchor, ShapeKind.STAR, left - 1.25, base - 2.2, 0.6, 0.6, "#eba028")
    mark.line.color = "#ffffff"
# [chart]


def write_shapes(filename: str) -> None:
    with draftwick.Document(filename, margin_left=1, margin_right=1) as document:
        document.fonts.add("Arial", family=FontFamily.SWISS)
        document.default_font_name = "Arial"

        section = document.add_section()
        title = section.add_paragraph()
        title.font_format.size = 14
        title.add_text("Sales by quarter")
        draw_chart(title)


if __name__ == "__main__":
    write_shapes(sys.argv[1])
