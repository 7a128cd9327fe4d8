"""What real readers make of the library's documents.

usage: interop.py write FOLDER PROGRAM   the documents of all constructs, by draftwick_script
       interop.py test FOLDER            the tests, on the documents in the folder and LibreOffice's ODT and PDF of them
       interop.py page FOLDER            writes docs/what-readers-show.md
"""
import inspect
import sys
import unittest
from pathlib import Path

import text, pages, drawings, probe  # noqa: F401, E401  in the order of the page
import examples
import topics
from model import ROOT
from readers import version

PAGE = ROOT / "docs/what-readers-show.md"
HEAD = """# What readers show

Draftwick writes what its headers promise. What a reader makes of it is another question: this page says what LibreOffice
{office} and pandoc {pandoc} do, construct by construct. It is written by `scripts/test interop`, which builds a document
for each section below, has it converted to ODT and PDF and looks at the XML, the words and their places, and the pixels
of the pages. Full word processors know more of the format than these two.

In RTF words, what stands for a colour, a font or a number is that of the test's document. pandoc reads text and
structure; "–" says that it has no notion of the construct. It takes each cell of a row for a table of its own, and passes
over the results of fields. What only a window or a printer has (title, view, zoom, paper source) is not tested.

| | constructs | shown by LibreOffice | partly | not |
| --- | --- | --- | --- | --- |
{counts}
"""
TABLE = ("| Construct | RTF | LibreOffice | pandoc |", "| --- | --- | --- | --- |")


def page():
    counts, sections = [], []
    for topic in topics.ALL:
        verdicts = [c.verdict() for c in topic.constructs]
        count = {kind: sum(v.startswith(kind) for v in verdicts) for kind in ("shown", "partly", "not shown")}
        anchor = topic.title.lower().replace(" ", "-").replace(",", "")
        counts.append(f"| [{topic.title}](#{anchor}) | {len(verdicts)} | "
                      + " | ".join(map(str, count.values())) + " |")
        rows = [f"| {c.name} | `{c.written.replace('|', chr(92) + '|')}` | {c.verdict()} | {c.pandoc_verdict()} |"
                for c in topic.constructs]
        about = [inspect.getdoc(topic.build) + "\n"] if topic.build.__doc__ else []
        sections.append("\n".join([f"\n## {topic.title}\n", *about, *TABLE, *rows]))
    return HEAD.format(office=version("soffice"), pandoc=version("pandoc"),
                       counts="\n".join(counts)) + "\n".join(sections) + "\n"


def same_readers():
    """Whether the page speaks of the readers that are installed here."""
    return f"LibreOffice\n{version('soffice')} and pandoc {version('pandoc')} do" in PAGE.read_text()


class Constructs(unittest.TestCase):
    """One test for each construct."""

    def check(self, construct):
        c, topic = construct, construct.topic
        where = f"{topic.title}, {c.name}, written as {c.written}: "
        if c.written not in topic.rtf:
            self.fail(f"{where}{topic.file} does not have these words")
        seen = c.probe()
        if seen == c.shown and c.seen != c.shown:
            print(f"NOTE: {where}LibreOffice now shows it: {seen!r}")
        elif seen != c.seen and c.why and not same_readers():
            print(f"NOTE: {where}this LibreOffice has {seen!r} in place of {c.seen!r}")
        elif seen != c.seen:
            file = topic.file.with_suffix(".odt")
            self.fail(f"{where}expected {c.seen!r}, but LibreOffice has {seen!r} in {file} or .pdf")
        if c.pandoc:
            present = c.pandoc.lstrip("!") in topic.pandoc
            if present and c.pandoc.startswith("!"):
                print(f"NOTE: {where}pandoc now shows it")
            elif not present and not c.pandoc.startswith("!"):
                self.fail(f"{where}expected {c.pandoc!r}, which pandoc does not make of {topic.file}")




class Page(unittest.TestCase):
    def test_is_current(self):
        if not same_readers():
            print(f"NOTE: {PAGE.name} does not speak of LibreOffice {version('soffice')}, pandoc {version('pandoc')}")
        elif PAGE.read_text() != page():
            self.fail(f"{PAGE} is not what the tests say: run tests/interop/interop.py page FOLDER")


def main():
    action, folder = sys.argv[1:3]
    script = topics.record(folder)
    if action == "write":
        script.run(sys.argv[3])
    elif action == "page":
        PAGE.write_text(page())
    else:
        for topic in topics.ALL:
            for construct in topic.constructs:
                name = f"test_{topic.name}_{construct.name}"
                assert not hasattr(Constructs, name), name
                setattr(Constructs, name, lambda self, construct=construct: self.check(construct))
        examples.FOLDER = Path(folder)
        cases = (Constructs, examples.Examples, Page)
        suite = unittest.TestSuite(map(unittest.defaultTestLoader.loadTestsFromTestCase, cases))
        return not unittest.TextTestRunner(verbosity=1).run(suite).wasSuccessful()


if __name__ == "__main__":
    sys.exit(main())
