"""A flyer: a title in WordArt, shapes of many kinds, one of them with depth, shaded and patterned fills, shadows, arrows, a
text box with a table, and two pictures.

usage: flyer.py OUTPUT.rtf SUNSET.jpg CLOTH.gif
"""

import sys

import draftwick
from draftwick import (Document, FontFamily, Paragraph, ParagraphAlign, Shape, ShapeFillStyle, ShapeKind, ShapeLineArrow,
                       ShapeLineArrowLength, ShapeLineDash, ShapeLineStyle, ShapeReferenceY, ShapeShadowStyle)

WHITE = "#ffffff"
NAVY = (20, 40, 90)
RED = (210, 40, 40)
YELLOW = (255, 210, 60)
Color = str | tuple[int, int, int]


def add_styles(document: Document) -> None:
    document.fonts.add("Georgia", family=FontFamily.ROMAN)
    document.default_font_name = "Georgia"
    styles = document.paragraph_styles
    styles.add("Copy").font_format.color = NAVY
    for name, size, color in (("Headline", 38, RED), ("Occasion", 15, NAVY), ("Box title", 14, RED)):
        style = styles.add(name, based_on="Copy")
        style.font_format.size = size
        style.font_format.color = color
        style.font_format.bold = True
        style.format.align = ParagraphAlign.CENTER
    # Room for the title, which is drawn, and for all the other shapes.
    styles["Headline"].format.space_before = 62
    styles.add("Below", based_on="Copy").format.space_before = 540


def add_shape(anchor: Paragraph, kind: ShapeKind, left: float, top: float, width: float, height: float) -> Shape:
    """Inches from the left margin and, as not all readers know the upper one, from the edge of the page, less the titles."""
    return anchor.add_shape(kind, left=left, reference_y=ShapeReferenceY.PAGE, top=2.8 + top, width=width, height=height)


def add_filled(anchor: Paragraph, kind: ShapeKind, left: float, top: float, width: float, height: float,
               color: Color) -> Shape:
    shape = add_shape(anchor, kind, left, top, width, height)
    shape.fill.style = ShapeFillStyle.SOLID
    shape.fill.color = color
    return shape


def draw_title(anchor: Paragraph) -> None:
    """Text that takes the form of its shape, a wave, and is painted like one."""
    title = add_filled(anchor, ShapeKind.TEXT_WAVE1, 1, -2.1, 4.9, 0.8, YELLOW)
    title.line.color = NAVY
    title.word_art.text = "Kite Day"
    title.word_art.bold = True


def draw_sky(anchor: Paragraph) -> None:
    sky = add_shape(anchor, ShapeKind.RECTANGLE, 0, 0, 6.9, 4.4)
    sky.fill.style = ShapeFillStyle.SHADE
    sky.fill.color = (90, 160, 230)
    sky.fill.back_color = WHITE
    sky.line.color = NAVY
    sky.line.width = 2.25

    sun = add_filled(anchor, ShapeKind.SUN, 5.5, 0.3, 1.1, 1.1, YELLOW)
    sun.line.color = (240, 150, 30)

    cloud = add_filled(anchor, ShapeKind.CLOUD_CALLOUT, 0.4, 0.4, 1.9, 0.8, WHITE)
    cloud.fill.opacity = 70
    cloud.line.color = (150, 180, 210)

    sea = add_filled(anchor, ShapeKind.DOUBLE_WAVE, 0, 3.6, 6.9, 0.8, (30, 90, 170))
    sea.fill.opacity = 80
    sea.line.color = NAVY


def draw_buoy(anchor: Paragraph) -> None:
    """A figure and its depth, which goes to the upper right."""
    buoy = add_filled(anchor, ShapeKind.OCTAGON, 2.6, 3.6, 0.5, 0.5, RED)
    depth = buoy.three_d
    depth.visible = True
    depth.depth = 0.3
    depth.use_color = True
    depth.color = (140, 25, 25)
    depth.metallic = True


def draw_boat(anchor: Paragraph) -> None:
    add_filled(anchor, ShapeKind.TRAPEZOID, 4.7, 3.5, 1.5, 0.35, (120, 70, 40))
    add_filled(anchor, ShapeKind.RIGHT_TRIANGLE, 5.45, 2.4, 0.6, 1.0, WHITE)
    aft = add_filled(anchor, ShapeKind.RIGHT_TRIANGLE, 4.85, 2.7, 0.5, 0.7, (230, 230, 240))
    aft.flip_h = True


def draw_kites(anchor: Paragraph, cloth: str) -> None:
    """Kites and their strings: lines with a knot at one end and an arrow at the other."""
    string = add_shape(anchor, ShapeKind.LINE, 2.2, 1.9, 1.2, 1.6)
    string.flip_h = True
    string.line.width = 1.5
    string.line.dash = ShapeLineDash.LONG_DASH
    string.line.start_arrow = ShapeLineArrow.OVAL
    string.line.end_arrow = ShapeLineArrow.ARROW
    string.line.end_arrow_length = ShapeLineArrowLength.LONG

    kite = add_shape(anchor, ShapeKind.DIAMOND, 3.0, 0.6, 0.9, 1.3)
    kite.rotation = 20
    kite.fill.style = ShapeFillStyle.SHADE
    kite.fill.color = RED
    kite.fill.back_color = YELLOW
    kite.fill.shade_angle = -45
    kite.fill.shade_focus = True
    kite.shadow.style = ShapeShadowStyle.SINGLE
    kite.shadow.color = (110, 120, 140)
    kite.shadow.opacity = 50
    kite.shadow.offset_x = 0.08
    kite.shadow.offset_y = 0.08

    patched = add_shape(anchor, ShapeKind.DIAMOND, 4.2, 1.2, 0.8, 1.1)
    patched.rotation = 340
    patched.fill.style = ShapeFillStyle.PIC_TILE
    patched.fill.color = YELLOW
    patched.fill.picture = cloth


def draw_burst(anchor: Paragraph) -> None:
    """Text in a figure that is no text box. Not all readers know styles there, nor at the end of a text box: the text has its
    look itself."""
    burst = add_filled(anchor, ShapeKind.SEAL16, 0.4, 1.7, 1.5, 1.5, (250, 120, 40))
    burst.line.style = ShapeLineStyle.DOUBLE
    burst.line.width = 3
    burst.shadow.style = ShapeShadowStyle.DOUBLE
    burst.shadow.color = NAVY
    burst.shadow.color2 = WHITE
    burst.text_format.spacing_top = 0.4
    stamp = burst.add_paragraph()
    stamp.format.align = ParagraphAlign.CENTER
    stamp.font_format.size = 16
    stamp.font_format.bold = True
    stamp.font_format.color = WHITE
    stamp.add_text("Free!")


# [box]
def add_programme(anchor: Paragraph) -> None:
    box = add_shape(anchor, ShapeKind.TEXT_BOX, 3.4, 4.7, 3.5, 1.75)
    box.line.color = NAVY
    box.line.style = ShapeLineStyle.THIN_THICK
    box.line.width = 3
    box.add_paragraph("Box title", "What is on")
    for time, event in (("11:00", "Building kites with the harbour school"),
                        ("14:00", "The big fight of the stunt kites"),
                        ("18:00", "Night kites and soup")):
        row = box.add_table()
        row.add_cell(width=0.7).add_paragraph("Copy", time)
        row.add_cell(width=2.5).add_paragraph("Copy", event)
    below = box.add_paragraph()
    below.font_format.color = NAVY
    below.add_text("Soup while there is any.")
# [box]


def write_flyer(filename: str, sunset: str, cloth: str) -> None:
    with draftwick.Document(filename, margin_left=0.8, margin_right=0.8, margin_top=0.7) as document:
        add_styles(document)
        section = document.add_section()
        # Everything that is drawn hangs on the first paragraph.
        anchor = section.add_paragraph("Headline", "Kites over the Harbour")
        draw_title(anchor)
        draw_sky(anchor)
        draw_buoy(anchor)
        draw_boat(anchor)
        draw_kites(anchor, cloth)
        draw_burst(anchor)

        picture = add_shape(anchor, ShapeKind.PICTURE_FRAME, 0, 4.7, 3.1, 2.13)
        picture.fill.picture = sunset
        swatch = add_shape(anchor, ShapeKind.PICTURE_FRAME, 3.4, 6.55, 0.35, 0.35)
        swatch.fill.picture = cloth
        add_programme(anchor)

        section.add_paragraph("Occasion", "Saturday, 14 June, from eleven until the wind drops")
        section.add_paragraph("Below", "Bring a kite or borrow one of ours. Dogs stay on the leash, kites too.")


if __name__ == "__main__":
    write_flyer(*sys.argv[1:4])
