"""What is different in the standard spelling.

By the names of topics and constructs. LIMITS: what LibreOffice does not show there either. With "classic" the reason and
what it shows are those that the construct itself names; else (reason, what it shows).
SHOWN: what is right to show, where that is not what the classic spelling makes right. PANDOC_LOSES: what pandoc reads of
the classic spelling alone. It passes over the text of boxes, and over a row right before a paragraph with a box of several
paragraphs: it holds rows back until a paragraph ends, wherever that is.
"""

CLASSIC = "classic"


def same(*names):
    return dict.fromkeys(names, CLASSIC)


LIMITS = {
    "text": same("Emboss", "Font that is not there, with another in its place"),
    "text_background": same("Pattern"),
    "paragraph_borders": same("Line brdrtriple", "Line brdrtnthtnsg", "Line brdrtnthtnmg", "Line brdrtnthtnlg",
                              "Line brdrwavy", "Line brdrwavydb", "Line brdrdashdotstr", "Border, between", "Border, bar"),
    "paragraph_background": same("Pattern"),
    "tabs": same("Tab stop, bar", "Leader of hyphens"),
    "lists": same("Look of the number", "Higher levels in decimal", "Numbers that go on after a higher level",
                  "Counting on in the look of another list"),
    "tables": same("Cell with a pattern", "Row repeated on each page"),
    "sections": same("Section on an even page", "Section on an odd page", "Numbers of pages that start again, in Roman numerals",
                     "Paragraph whose lines are not numbered", "Text in the middle of the page"),
    "page_borders": same("Line around the first page", "Line around all pages but the first", "Picture border"),
    "notes": same("Endnotes at the end of the section", "Numbers that start again in each section"),
    "fields": same("Locked date", "Author"),
    "properties": same(*(f"Property {name}" for name in ("manager", "category", "comment", "hlinkbase", "buptim", "edmins",
                                                         "nofpages", "nofwords", "nofchars")),
                       "Property of your own: date", "Property linked to a bookmark"),
    "frames": same("Drop cap in the margin", "Table in a frame"),
    "shapes": {**same("Shade around a rectangle", "Dashes", "Shadow", "Filled with a picture", "Tiled with a picture",
                      "Shade of three colours", "Outline of two lines", "Depth"),
               "Turned figure": ("turned, but about another point: its place is wrong", ("e08181", "e08181"))},
    "shape_places": same("Text on the left alone", "Behind the text"),
    "quirk_styles": {"Keep with next of a style switched off": ("the format has no word for off", "always")},
    "quirk_marks": {"A header that ends in a row": ("an empty line behind it: each header has a last paragraph", 1),
                    "A turn to the left": ("turned, but about another point: its place is wrong", ("d14444", "d14444"))},
    "quirk_notes": {"Paragraphs around a row in a note": (
        "an empty paragraph before the row", ["without a mark", "", "cell of a note", "behind the row", "second behind it"])},
}

PANDOC_LOSES = {"probe": {"Note in a cell"}}

SHOWN = {
    # The sizes of the reader's own sub- and superscript, not a distance.
    "text": {"Subscript": {"text-position": "sub 58%"}, "Superscript": {"text-position": "super 58%"}},
    # A quarter of the colour on white paper; classic has no colour there.
    "text_background": {"Shading of 25 percent": "#efbfbf"},
    "tables": {"Shaded cell": "#efbfbf", "Widths of cells": ["72pt", "215.9pt"]},
    # The gutter is shown, too.
    "facing": {"Mirrored margins": [2.5, 1.0]},
    # No blank behind the code.
    "specials": {"Non-breaking space": "a\u00a0b", "Non-breaking hyphen": "a\u2011b", "Optional hyphen": "a\u00adb"},
    "text_boxes": {"Margins of the box": 2.52},
}
