"""Tables from rows of data, of every kind that people have."""

import collections
import re
import sqlite3

import draftwick
import pytest

Line = collections.namedtuple("Line", "item price")
LINES = [("Tea", 2), ("Scones & jam", 3.5), (None, -1)]


class Pandas:
    columns = ["item", "price"]

    def itertuples(self, index, name):
        assert not index and name is None
        return iter(LINES)


class Polars:
    columns = ["item", "price"]

    def iter_rows(self):
        return iter(LINES)


def cursor():
    connection = sqlite3.connect(":memory:")
    connection.execute("create table lines (item, price)")
    connection.executemany("insert into lines values (?, ?)", LINES)
    return connection.execute("select item, price from lines")


def write(path, *arguments, **options):
    with draftwick.Document(path) as document:
        return document.add_table_from(*arguments, **options)


@pytest.mark.parametrize("rows, columns", [
    (LINES, ["item", "price"]), (iter(map(list, LINES)), ["item", "price"]), ([Line(*line) for line in LINES], None),
    ([{"price": price, "item": item} for item, price in LINES], ["item", "price"]),
    ([{"i": item, "p": price, "more": 0} for item, price in LINES], {"i": "item", "p": "price"}),
    (Polars(), {"item": "item", "price": "price"}),
    (cursor(), None), (Pandas(), None), (Polars(), None)])
def test_kinds_of_rows(rows, columns, tmp_path):
    assert write(tmp_path / "a.rtf", rows, columns) == 3
    assert write(tmp_path / "b.rtf", LINES, ["item", "price"]) == 3
    assert (tmp_path / "a.rtf").read_bytes() == (tmp_path / "b.rtf").read_bytes()


def test_what_it_looks_like(tmp_path):
    write(tmp_path / "a.rtf", LINES, ["item", "price"], widths=["2in", "1in"], stripes="#ff0000")
    text = (tmp_path / "a.rtf").read_text("latin-1")
    rows = re.findall(r"\\trowd.*?\\row\b", text, re.S)
    assert len(rows) == 4 and ["\\trhdr" in row for row in rows] == [True, False, False, False]
    edges = [[int(edge) for edge in re.findall(r"\\cellx(\d+)", row)] for row in rows]
    assert [right - left for left, right in edges] == [1440] * 4
    assert [row.count("\\qr") for row in rows] == [1] * 4  # prices and their heading
    assert ["\\clcbpat" in row for row in rows] == [True, False, True, False]
    assert "Scones & jam" in rows[2] and "3.5" in rows[2]


def test_limits(tmp_path):
    write(tmp_path / "a.rtf", [], ["a"])
    write(tmp_path / "b.rtf", [])
    assert "\\trhdr" in (tmp_path / "a.rtf").read_text() and "\\trowd" not in (tmp_path / "b.rtf").read_text()
    write(tmp_path / "c.rtf", [[1], [2]], header=False, lines=False, stripes=None, text=lambda value: f"<{value}>")
    assert "<2>" in (tmp_path / "c.rtf").read_text()
    document = draftwick.Document(tmp_path / "d.rtf")
    for rows, options in (([[1, 2], [1]], {}), ([[1, 2]], {"widths": [1]}), ([[1]], {"columns": {"a": "A"}})):
        with pytest.raises(ValueError):
            document.add_table_from(rows, **options)
    box = document.current_section.add_header(draftwick.HeaderKind.HEADER)
    assert document.add_table_from(([number] for number in range(300)), into=box) == 300
