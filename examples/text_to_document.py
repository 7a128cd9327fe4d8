"""Turns a plain UTF-8 text file into a document.

Blocks between blank lines become paragraphs. Headings are told from the text: lines that begin with "#", lines that are
underlined with "=" or "-", and short single lines without digits that end without punctuation. "- " and "* " begin the items
of a bulleted list; fenced or indented blocks keep their lines and get a typewriter font.

The file is read block by block, so its size does not matter.

usage: text_to_document.py INPUT.txt OUTPUT.rtf
"""

import re
import sys
from collections.abc import Iterable, Iterator
from itertools import takewhile

import draftwick
from draftwick import Document, FontFamily, ListNumberStyle, Section, Texture

Block = list[str]


def add_styles(document: Document) -> None:
    document.fonts.add("Georgia", family=FontFamily.ROMAN)
    document.fonts.add("Courier New", family=FontFamily.MODERN)
    document.default_font_name = "Georgia"

    bullets = document.lists.add("Bullets").levels[1]
    bullets.style = ListNumberStyle.BULLET
    bullets.format = "•"

    styles = document.paragraph_styles
    body = styles.add("Body")
    body.font_format.size = 11
    body.format.space_after = 8
    body.format.line_spacing_multiple = 1.1

    item = styles.add("Item", based_on="Body")
    item.format.list_name = "Bullets"
    item.format.indent_left = 0.25
    item.format.indent_first = -0.25
    item.format.space_after = 4

    code = styles.add("Code")
    code.font_format.font_name = "Courier New"
    code.font_format.size = 9
    code.format.indent_left = 0.25
    code.background.texture = Texture.SHADED
    code.background.shading = 5

    for level in 1, 2, 3:
        heading = styles.add(f"Heading {level}")
        heading.font_format.size = 22 - 4 * level
        heading.font_format.bold = True
        heading.format.space_before = 0 if level == 1 else 12
        heading.format.space_after = 6
        heading.format.keep_with_next = True
        heading.format.outline_level = level


def blocks(lines: Iterable[str]) -> Iterator[tuple[bool, Block]]:
    """The blocks of a text, each with whether it stood between two fences."""
    block: Block = []
    lines = (line.rstrip("\n") for line in lines)
    for line in lines:
        is_fence, is_heading = line.startswith("```"), line.startswith("#")
        if is_fence or is_heading or not line.strip(" \t"):
            if block:
                yield False, block
            block = []
        if is_fence:
            yield True, list(takewhile(lambda code: not code.startswith("```"), lines))
        elif is_heading:
            yield False, [line]
        elif line.strip(" \t"):
            block.append(line)
    if block:
        yield False, block


def heading_level(block: Block, is_first: bool) -> int:
    """1 to 3 for a heading, 0 for other text."""
    line = block[0]
    if len(block) == 2 and re.fullmatch("={3,}", block[1]):
        return 1
    if len(block) == 2 and re.fullmatch("-{3,}", block[1]):
        return 2
    if len(block) > 1:
        return 0
    if marks := re.match("#+(?= )", line):
        return min(marks.end(), 3)
    is_short = len(line) <= 60 and line[0] not in " \t" and not re.search("[0-9]", line)
    looks_like_text = line.startswith(("- ", "* ")) or line[-1] in ".,;:!?)`"
    if not is_short or looks_like_text:
        return 0
    return 1 if is_first else 2  # the first line of a text is its title


def joined(lines: Iterable[str]) -> str:
    return " ".join(line.strip(" \t") for line in lines)


def items(block: Block) -> Iterator[str]:
    """Each item goes on until the next one begins."""
    item: Block = []
    for line in block:
        if line.startswith(("- ", "* ")) and item:
            yield joined(item)
            item = []
        item.append(line)
    yield joined(item)


def write_block(section: Section, block: Block, is_first: bool) -> None:
    if level := heading_level(block, is_first):
        section.add_paragraph(f"Heading {level}", block[0].lstrip("#").strip(" \t"))
    elif block[0].startswith(("    ", "\t")):
        write_code(section, block)
    elif block[0].startswith(("- ", "* ")):
        for item in items(block):
            section.add_paragraph("Item", item[2:])
    else:
        section.add_paragraph("Body", joined(block))


def write_code(section: Section, lines: Block) -> None:
    for line in lines:
        section.add_paragraph("Code").add_text(line)


def convert(text: str, filename: str) -> None:
    with (open(text, encoding="utf-8-sig", errors="replace") as lines,
          draftwick.Document(filename, margin_left=1, margin_right=1) as document):
        add_styles(document)
        section = document.add_section()
        is_first = True
        for is_code, block in blocks(lines):
            if is_code:
                write_code(section, block)
            else:
                write_block(section, block, is_first)
                is_first = False


if __name__ == "__main__":
    convert(*sys.argv[1:3])
