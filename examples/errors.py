"""Errors: what the library refuses, what it says, and how to go on.

usage: errors.py OUTPUT.rtf
"""

import os
import sys
from collections.abc import Callable
from typing import Any

import draftwick
from draftwick import Document, FontFamily, Paragraph, ParagraphAlign


# [refusal]
def refusal(call: Callable[[Paragraph], Any], paragraph: Paragraph) -> str:
    """What a call is refused with. A refusal changes nothing: the document goes on as it was."""
    try:
        call(paragraph)
    except draftwick.Error as error:
        return f"{error.number}, {error.args[0]}"
    return "accepted"


def write_and_align(paragraph: Paragraph) -> None:
    paragraph.add_text("Written: ")
    paragraph.format.align = ParagraphAlign.RIGHT


# A type checker finds the first and the fifth before they run.
CASES: list[tuple[str, Callable[[Any], Any]]] = [
    ("an alignment that does not exist", lambda paragraph: setattr(paragraph.format, "align", 7)),
    ("an indent of 1000 inches", lambda paragraph: setattr(paragraph.format, "indent_left", 1000)),
    ("a style that does not exist", lambda paragraph: setattr(paragraph, "style_name", "Sonnet")),
    ("a font that was not added", lambda paragraph: setattr(paragraph.font_format, "font_name", "Courier")),
    ("the seventh border of six", lambda paragraph: paragraph.borders[7]),
    ("a change after the first text", write_and_align),
]
# [refusal]


# [retry]
def finish_at_last(document: Document) -> None:
    """A failure of the file system leaves the document unfinished. Once the cause is gone, finish can be called again and
    writes the whole file."""
    try:
        document.finish()
    except OSError as error:
        print(error)  # says what could not be done, with which file, and why
        os.rmdir(document.filename)
        document.finish()
# [retry]


def write_errors(filename: str) -> None:
    document = draftwick.Document(filename)
    document.fonts.add("Arial", family=FontFamily.SWISS)
    document.default_font_name = "Arial"
    normal = document.paragraph_styles.add("Normal")
    normal.font_format.size = 11
    normal.format.space_after = 6

    section = document.add_section()
    for what, call in CASES:
        paragraph = section.add_paragraph("Normal")
        refused = refusal(call, paragraph)
        paragraph.add_text_item(what).font_format.bold = True
        paragraph.add_text(f": {refused}")

    # A folder stands where the file is to go.
    if os.path.exists(filename):
        os.remove(filename)
    os.mkdir(filename)
    finish_at_last(document)


if __name__ == "__main__":
    write_errors(sys.argv[1])
