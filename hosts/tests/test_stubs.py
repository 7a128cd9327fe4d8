"""What type checkers are told is what there is."""

import os
import pathlib
import re
import subprocess
import sys

import draftwick
import pytest
from conftest import ROOT

pytest.importorskip("mypy")
PACKAGE = str(pathlib.Path(draftwick.__file__).parents[1])

WRONG = """\
document.margin_left = document
document.margin_left = (1, 2)
document.no_such_property = 1
document.add_section(no_such_keyword=1)
document.add_section(break_=3)
document.finished = True
document.scale_mode = "inches"
section.add_paragraph().format.align = draftwick.TabAlign.LEFT
section.add_paragraph().add_text_item(1)
section.add_paragraph().add_text_item()
document.fonts[1.5]
document.fonts["Arial"].borders
section.current_paragraph.add_text_item("there may be none")
draftwick.Paragraph.no_such_method
document.finish(3)
document.add_table_from(3)
fill.picture_data = "text"
color: int = fill.color
draftwick.NoSuchEnumeration
""".splitlines()
RIGHT = """\
document.margin_left = "2.5cm"
left: float = document.margin_left
document.add_section(break_=draftwick.SectionBreak.PAGE, margin_top="1in").add_paragraph(style_name="a")
names: list[str] = [font.name for font in document.fonts]
section.add_paragraph().borders[draftwick.ParagraphBorderSide.TOP].width = 2
fill.picture_data = b"bytes"
fill.color = (1, 2, 3)
document.finish(pathlib.Path("a.rtf"))
document.finish(io.BytesIO())
rows: int = document.add_table_from([{"a": 1}], {"a": "A"}, stripes=None)
""".splitlines()
HEAD = """\
import io
import pathlib
import draftwick
def use(document: draftwick.Document, section: draftwick.Section, fill: draftwick.ShapeFill) -> None:
"""


def check(*arguments):
    run = subprocess.run([sys.executable, "-m", *arguments], capture_output=True, text=True, cwd=ROOT / "examples",
                         env={**os.environ, "MYPYPATH": PACKAGE, "PYTHONPATH": PACKAGE, "LD_PRELOAD": ""})
    return run.stdout + run.stderr


def wrong_lines(tmp_path, lines):
    (tmp_path / "a.py").write_text(HEAD + "".join(f"    {line}\n" for line in lines))
    found = check("mypy", "--strict", "--cache-dir", str(tmp_path / "cache"), str(tmp_path / "a.py"))
    return {int(number) - HEAD.count("\n") - 1 for number in re.findall(r"a\.py:(\d+): error", found)}, found


def test_faults_are_found(tmp_path):
    found, output = wrong_lines(tmp_path, WRONG)
    assert [line for number, line in enumerate(WRONG) if number not in found] == [], output


def test_programs_are_right(tmp_path):
    assert wrong_lines(tmp_path, RIGHT)[0] == set()
    found = check("mypy", "--strict", "--cache-dir", str(tmp_path / "cache"),
                  *[path.name for path in (ROOT / "examples").glob("*.py")])
    assert found.startswith("Success"), found


@pytest.mark.skipif("LD_PRELOAD" in os.environ, reason="the module must be imported without the sanitizer")
def test_stubs_say_what_the_module_has(tmp_path):
    # inspect knows no constants of enumerations, and nothing of what a constructor takes.
    known = re.compile(r"draftwick\._|.*has a default value of type Literal\[|.*__init__ is inconsistent")
    found = check("mypy.stubtest", "--concise", "draftwick")
    assert [line for line in found.splitlines() if not known.match(line)] == []
