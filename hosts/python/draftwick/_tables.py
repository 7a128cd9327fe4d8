"""Tables from rows of data."""
# mypy: ignore-errors

from __future__ import annotations

import itertools
import numbers
from collections.abc import Mapping

from ._values import enumeration

_PEEKED = 100  # rows that say how wide a column is and where its texts stand
_NARROWEST, _WIDEST = 4, 40  # letters of a column that others make room for


def add_table_from(self, rows: Iterable[Any], columns: Sequence[str] | Mapping[Any, str] | None = None, *,
                   into: Section | Header | Footnote | Shape | None = None, widths: Sequence[_Length] | None = None,
                   header: bool = True, lines: bool = True, stripes: _Color | None = "#f2f2f2", style_name: str = "",
                   text: Callable[[Any], str] | None = None) -> int:
    """Adds a table of rows of data, one after the other: however many there are, none is kept.

    rows is any iterable of lists, tuples, mappings or rows of a database cursor, or a frame of pandas or polars. columns has
    the headings in their order; of mappings it picks the keys, and {key: heading} gives them headings. Without it they are
    those that the rows, the cursor or the frame have. The table goes to the end of `into`, a section, header, note or text
    box, or else to the document's last section, which is added when there is none.

    widths are lengths, by default shares of the page that the first rows call for. The row of headings is repeated on every
    page; every second row has the colour of stripes (None: none); lines draws the lines around the cells. Numbers stand at
    the right. style_name is the style of the paragraphs; text makes the text of a value in place of str, which gives "" for
    None. Returns how many rows there were."""
    text = text or (lambda value: "" if value is None else str(value))
    keys, headings, rows = _shape(rows, columns)
    first = list(itertools.islice(rows, _PEEKED))
    count = len(headings or keys or (first[0] if first else ()))
    into = into or self.current_section or self.add_section()
    if count == 0:
        return 0
    first = [_values(row, keys, count, number) for number, row in enumerate(first, 1)]
    rest = (_values(row, keys, count, number) for number, row in enumerate(rows, len(first) + 1))
    if widths is None:
        widths = _widths(self, headings, [[text(value) for value in row] for row in first], count)
    elif len(widths) != count:
        raise ValueError(f"{len(widths)} widths for {count} columns")
    right = [_are_numbers(row[column] for row in first) for column in range(count)]
    right_align, solid = enumeration("ParagraphAlign").RIGHT, enumeration("Texture").SOLID
    single = enumeration("BorderStyle").SINGLE

    def add_row(texts, color, is_header=False):
        row = into.add_table(keep_together=True, header=is_header)
        for text, width, is_number in zip(texts, widths, right):
            cell = row.add_cell()
            cell.width = width
            if lines:
                for side in cell.borders:
                    side.style = single
            if color is not None:
                background = cell.background
                background.texture, background.back_color = solid, color
            paragraph = cell.add_paragraph()
            if style_name:
                paragraph.style_name = style_name
            if is_number:
                paragraph.format.align = right_align
            if is_header:
                paragraph.font_format.bold = True
            paragraph.add_text_item(text)

    if header and headings:
        add_row(headings, "#d9d9d9", True)
    number = 0
    for number, row in enumerate(itertools.chain(first, rest), 1):
        add_row(map(text, row), stripes if number % 2 == 0 else None)
    return number


def _shape(rows, columns):
    """The keys of a row (None: it is a sequence), the headings (None: none) and an iterator over the rows."""
    names = None
    if hasattr(rows, "itertuples"):  # pandas
        names, rows = list(rows.columns), rows.itertuples(index=False, name=None)
    elif hasattr(rows, "iter_rows"):  # polars
        names, rows = list(rows.columns), rows.iter_rows()
    elif getattr(rows, "description", None):  # a cursor
        names = [column[0] for column in rows.description]
    rows = iter(rows)
    head = list(itertools.islice(rows, 1))
    rows = itertools.chain(head, rows)
    keys = None
    if head and isinstance(head[0], Mapping):
        keys = names = list(columns or head[0])
    elif head and names is None:
        names = getattr(head[0], "_fields", None)
    if isinstance(columns, Mapping) and keys is None:
        if names is None:
            raise ValueError("the rows have no names that columns could pick")
        keys = [names.index(key) for key in columns]
    headings = list(columns.values()) if isinstance(columns, Mapping) else columns or names
    return keys, headings and [str(heading) for heading in headings], rows


def _values(row, keys, count, number):
    values = list(row) if keys is None else [row[key] for key in keys]
    if len(values) != count:
        raise ValueError(f"row {number} has {len(values)} values for {count} columns")
    return values


def _are_numbers(values):
    present = [value for value in values if value is not None]
    return bool(present) and all(isinstance(value, numbers.Number) and not isinstance(value, bool) for value in present)


def _widths(document, headings, texts, count):
    letters = [max((len(row[column]) for row in ([headings] if headings else []) + texts), default=0)
               for column in range(count)]
    letters = [min(max(number, _NARROWEST), _WIDEST) for number in letters]
    page = document.current_section or document
    width = page.page_width - page.margin_left - page.margin_right
    return [width * number / sum(letters) for number in letters]
