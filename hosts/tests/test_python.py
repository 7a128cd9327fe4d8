"""What the Python package is by itself: how Python's people expect it to behave."""

import copy
import datetime
import decimal
import errno
import gc
import inspect
import os
import pathlib
import pickle
import subprocess
import sys
import threading
import weakref

import draftwick
import pytest


def resident():
    return int(pathlib.Path("/proc/self/statm").read_text().split()[1])


def test_collections():
    document = draftwick.Document()
    fonts = document.fonts
    first, second = fonts.add("Arial"), fonts.add("Courier New", family=draftwick.FontFamily.MODERN)
    assert len(fonts) == 2 and list(fonts) == [first, second] and fonts[-1] == fonts["courier new"] == second
    assert "ARIAL" in fonts and "Times" not in fonts and second in fonts and document not in fonts
    assert len({document.fonts, document.fonts}) == 1 and first != second and repr(first) == "<draftwick.Font 'Arial'>"
    for wrong, error in ((2, IndexError), (-3, IndexError), ("Times", draftwick.ItemNotFound), (None, TypeError),
                         (slice(1), TypeError), (1.0, TypeError)):
        with pytest.raises(error):
            fonts[wrong]
    borders = document.add_section().add_paragraph().borders
    borders[draftwick.ParagraphBorderSide.BOTTOM].style = draftwick.BorderStyle.DOUBLE
    assert [border.style for border in borders].count(draftwick.BorderStyle.DOUBLE) == 1
    columns = document.add_section().columns
    for wanted in (3, -1, 2**31 - 1):  # which are no items
        columns.auto(wanted, 0)
        assert (columns.count, len(columns), list(columns)) == (wanted, 0, [])
    column = columns.add(1, 0.5)
    assert list(columns) == [column] == [columns[-1]]


def test_values():
    document = draftwick.Document(margin_left="2.54cm", margin_right=decimal.Decimal("0.5"))
    assert document.margin_left == 1 and document.margin_right == 0.5
    for text, inches in {"1in": 1, "72 pt": 1, "-25.4mm": -1, "6pc": 1, "1440tw": 1, '1"': 1}.items():
        document.gutter = text
        assert document.gutter == inches
    document.scale_mode = draftwick.ScaleMode.POINTS
    document.gutter = "1in"
    assert document.gutter == 72
    for wrong in ("wide", "", "cm", "1", "1 mile", "1cmcm"):
        with pytest.raises(draftwick.TypeMismatch):
            document.gutter = wrong
    created = document.properties["CreationTime"]
    created.value = datetime.date(2026, 3, 1)
    assert created.value == datetime.datetime(2026, 3, 1)
    document.filename = pathlib.Path("a") / "b.rtf"
    assert document.filename == "a/b.rtf"
    document.filename = b"\xff.rtf"
    assert document.filename == "\udcff.rtf"
    look = document.add_section().add_paragraph().font_format
    for color in ("#ff8000", "#f80", (255, 136, 0), 0x0088FF):
        look.color = color
        assert look.color in ("#ff8000", "#ff8800")
    for wrong in ("red", "#ff80", "ff8000", "#gg0000", (1, 2), (1, 2, 256), ("a", 1, 2)):
        with pytest.raises((TypeError, ValueError)):
            look.color = wrong


def test_keywords():
    document = draftwick.Document("a.rtf", margin_left=2)
    assert (document.filename, document.margin_left) == ("a.rtf", 2)
    section = document.add_section(break_=draftwick.SectionBreak.PAGE)
    assert section.break_ is draftwick.SectionBreak.PAGE and section.document == section.parent == document
    with pytest.raises(TypeError, match="unexpected keyword argument 'stile'"):
        section.add_paragraph(stile="")
    assert section.current_paragraph is None
    with pytest.raises(TypeError, match="twice"):
        section.add_paragraph().add_text_item("a", text="b")
    with pytest.raises(AttributeError):
        document.no_such_thing = 1
    for made_by_others in (draftwick.Paragraph, draftwick.Object, type("Mine", (draftwick.Object,), {})):
        with pytest.raises(TypeError):
            made_by_others()
    for copied in (copy.copy, copy.deepcopy, pickle.dumps):
        with pytest.raises(TypeError):
            copied(document)
    with pytest.raises(AttributeError):
        draftwick.NoSuchEnumeration
    assert str(inspect.signature(draftwick.Paragraph.add_text_item)) == "(self, /, text, raw=False, **properties)"
    assert pickle.loads(pickle.dumps(draftwick.ScaleMode.POINTS)) is draftwick.ScaleMode.POINTS


def test_refusals():
    document = draftwick.Document()
    with pytest.raises(draftwick.PropertyOutOfRange, match="ScaleMode") as caught:
        document.scale_mode = 9
    assert isinstance(caught.value, ValueError) and caught.value.number == -2147220890
    with pytest.raises(draftwick.Overflow, match="Document.margin_left 200 inches: .*scale_mode is ScaleMode.INCHES"):
        document.margin_left = 200
    with pytest.raises(draftwick.TypeMismatch, match="^Type mismatch: Document.facing_page: a Boolean is wanted$"):
        document.facing_page = "yes"
    document.add_section()
    with pytest.raises(draftwick.TargetEmitted):
        document.margin_left = 1
    with pytest.raises(draftwick.Overflow):
        document.current_section.add_paragraph().format.indent_left = 1e9


def test_finishing(tmp_path):
    def document(**settings):
        made = draftwick.Document(tmp_path / "a.rtf", **settings)
        made.add_section().add_paragraph().add_text_item("αβγ")
        return made

    with document():
        pass
    expected = (tmp_path / "a.rtf").read_bytes()
    assert document(body_in_memory=True).to_bytes() == expected and b"\\u945" in expected
    document().finish(tmp_path / "b.rtf")
    with open(tmp_path / "c.rtf", "wb", buffering=0) as file:
        document().finish(file)
    assert (tmp_path / "b.rtf").read_bytes() == (tmp_path / "c.rtf").read_bytes() == expected

    class Slow:
        def __init__(self):
            self.taken = b""

        def write(self, data):
            self.taken += data[:7]
            return len(data[:7])

    slow = Slow()
    document().finish(slow)
    assert slow.taken == expected
    with pytest.warns(UnicodeWarning, match="3 characters"):
        assert b"???" in document(spelling=draftwick.Spelling.CLASSIC).to_bytes()
    with pytest.raises(ZeroDivisionError), document(filename=tmp_path / "d.rtf"):
        1 / 0
    with document(filename=tmp_path / "d.rtf") as given_up:
        given_up.discard()
    document()  # is let go
    gc.collect()
    assert sorted(path.name for path in tmp_path.iterdir()) == ["a.rtf", "b.rtf", "c.rtf"]


def test_failing_files(tmp_path):
    with pytest.raises(FileNotFoundError) as caught:
        with draftwick.Document(tmp_path / "none" / "a.rtf") as document:
            document.add_section()
    assert caught.value.filename == str(tmp_path / "none" / "a.rtf")
    with pytest.raises(OSError) as caught:
        with draftwick.Document("/dev/full") as document:
            document.add_section().add_paragraph().add_text_item("x" * 10_000_000)
    assert caught.value.errno == errno.ENOSPC

    class Sink:
        def __init__(self, act):
            self.write = act

    document = draftwick.Document()
    document.add_section()
    for act, error in ((lambda data: 1 / 0, ZeroDivisionError), (lambda data: document.add_section(), draftwick.Error),
                       (lambda data: document.finish(), draftwick.Error), (lambda: None, TypeError)):
        with pytest.raises(error):
            document.finish(Sink(act))
        assert not document.finished
    with pytest.raises(FileNotFoundError):
        document.finish(tmp_path / "none" / "a.rtf")
    assert document.to_bytes().startswith(b"{\\rtf1") and document.finished
    with pytest.raises(draftwick.TargetEmitted, match="Document.finish: the document is finished"):
        document.to_bytes()


def test_life():
    section = draftwick.Document().add_section()  # keeps its document
    gc.collect()
    assert section.add_paragraph().document.current_section == section

    class Letter(draftwick.Document):
        def __init__(self, name):
            super().__init__(name, margin_left=2)
            self.me = self

    letter = Letter("x.rtf")
    assert letter.margin_left == 2
    gone = weakref.ref(letter)
    del letter
    gc.collect()
    assert gone() is None


@pytest.mark.skipif("LD_PRELOAD" in os.environ, reason="a sanitizer keeps what is let go")
def test_errors_leak_nothing():
    document = draftwick.Document()
    section = document.add_section()

    def round_of_errors():
        for refused in (lambda: setattr(document, "scale_mode", 9), lambda: document.fonts["none"],
                        lambda: document.fonts[5], lambda: setattr(document, "margin_left", "1 mile"),
                        lambda: section.add_paragraph(stile=1), lambda: section.add_header("x" * 1000),
                        lambda: draftwick.Document(no_such_property=1), lambda: draftwick.Paragraph()):
            with pytest.raises((draftwick.Error, TypeError, LookupError, AttributeError)):
                refused()

    for _ in range(500):
        round_of_errors()
    before = resident()
    for _ in range(2500):  # 20,000 errors
        round_of_errors()
    assert resident() - before < 64  # pages


def test_threads(tmp_path):
    kept = []

    def write(name):
        with draftwick.Document(tmp_path / name) as document:
            section = document.add_section()
            for i in range(2000):
                item = section.add_paragraph().add_text_item(f"line {i}")
                item.font_format.bold = i % 2 == 0
                kept.append(item)
                if len(kept) > 20:
                    kept.pop(0)  # mostly another thread's

    threads = [threading.Thread(target=write, args=(f"{i}.rtf",)) for i in range(4)]
    for thread in threads:
        thread.start()
    for thread in threads:
        thread.join()
    assert len({(tmp_path / f"{i}.rtf").read_bytes() for i in range(4)}) == 1


SUB_INTERPRETER = """
import draftwick
try:
    import _interpreters as interpreters
except ImportError:
    import _xxsubinterpreters as interpreters
failed = interpreters.run_string(interpreters.create(), "import draftwick")
raise ImportError(failed.formatted)
"""
FREE_THREADED = """
import sysconfig
sysconfig.get_config_var = lambda name: name == "Py_GIL_DISABLED"
import draftwick
"""


@pytest.mark.parametrize("program, why", [(SUB_INTERPRETER, "interpreter"), (FREE_THREADED, "free-threaded")])
def test_refuses_to_be_imported(program, why):
    package = str(pathlib.Path(draftwick.__file__).parents[1])
    environment = {**os.environ, "PYTHONPATH": package}
    run = subprocess.run([sys.executable, "-c", program], env=environment, capture_output=True, text=True)
    assert run.returncode == 1 and "ImportError" in run.stderr and why in run.stderr
