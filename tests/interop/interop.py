"""What real readers make of the library's documents.

usage: interop.py write FOLDER PROGRAM   the documents of all constructs, by draftwick_script
       interop.py test FOLDER            the tests, on the documents in the folder and LibreOffice's ODT and PDF of them
       interop.py page FOLDER            writes docs/what-readers-show.md
"""
import inspect
import sys
import unittest
from pathlib import Path

import text, pages, drawings, probe, quirks  # noqa: F401, E401  in the order of the page
import examples
import languages
import standard
import topics
from model import ROOT
from readers import version

PAGE = ROOT / "docs/what-readers-show.md"
HEAD = """# What readers show

Draftwick writes what its headers promise. What a reader makes of it is another question: this page says what LibreOffice
{office} and pandoc {pandoc} do, construct by construct, in both spellings. It is written by `scripts/test interop`, which
builds a document for each section below, has it converted to ODT and PDF and looks at the XML, the words and their
places, and the pixels of the pages. Full word processors know more of the format than these two.

AbiWord {abiword} opens {opened} of the {documents} documents in the standard spelling.

The RTF words are those of the classic spelling; what stands for a colour, a font or a number is that of the test's
document. pandoc reads text and structure; "–" says that it has no notion of the construct. It takes each cell of a row for
a table of its own, and passes over the results of fields. What only a window or a printer has (title, view, zoom, paper
source) is not tested.

| | constructs | shown by LibreOffice, classic | standard |
| --- | --- | --- | --- |
{counts}
"""
TABLE = ("| Construct | RTF | LibreOffice, classic | LibreOffice, standard | pandoc |", "| --- | --- | --- | --- | --- |")
QUIRKS = """
## Only in the standard spelling

What the classic spelling does to readers beyond the above, and whether the standard one ends it.

| Construct | RTF | LibreOffice, standard |
| --- | --- | --- |
"""


def page():
    counts, sections, total = [], [], [0, 0, 0]
    row = lambda *cells: "| " + " | ".join(map(str, cells)) + " |"
    words = lambda c: f"`{c.written.replace('|', chr(92) + '|')}`"

    def count(title, *spellings):
        numbers = [len(spellings[-1].constructs)]
        numbers += [sum(c.verdict() == "shown" for c in topic.constructs) if topic else 0 for topic in spellings]
        for i, number in enumerate(numbers):
            total[i] += number
        counts.append(row(title, *numbers))

    for classic, other in topics.pairs():
        count(f"[{classic.title}](#{classic.title.lower().replace(' ', '-').replace(',', '')})", classic, other)
        rows = [row(c.name, words(c), c.verdict(), s.verdict(), c.pandoc_verdict())
                for c, s in zip(classic.constructs, other.constructs)]
        about = [inspect.getdoc(classic.build) + "\n"] if classic.build.__doc__ else []
        sections.append("\n".join([f"\n## {classic.title}\n", *about, *TABLE, *rows]))
    rows = []
    for topic in topics.ALL:
        if topic.only_standard:
            count(topic.title, None, topic)
            rows += [row(c.name, words(c), c.verdict()) for c in topic.constructs]
    counts.append(row("All", *total))
    documents = [topic for topic in topics.ALL if topic.is_standard]
    return HEAD.format(office=version("soffice"), pandoc=version("pandoc"), abiword=version("abiword"),
                       documents=len(documents), opened=sum(t.opens_in_abiword() for t in documents),
                       counts="\n".join(counts)) + "\n".join(sections) + "\n" + QUIRKS + "\n".join(rows) + "\n"


def same_readers():
    """Whether the page speaks of the readers that are installed here."""
    return f"LibreOffice\n{version('soffice')} and pandoc {version('pandoc')} do" in PAGE.read_text()


class Constructs(unittest.TestCase):
    """One test for each construct."""

    def check(self, construct):
        c, topic = construct, construct.topic
        where = f"{topic.title}, {c.name}, written as {c.written}: "
        if topic.is_standard == topic.only_standard and c.written not in topic.rtf:
            self.fail(f"{where}{topic.file} does not have these words")
        seen = c.probe()
        if seen == c.shown and c.seen != c.shown:
            print(f"NOTE: {where}LibreOffice now shows it: {seen!r}")
        elif seen != c.seen and c.why and not same_readers():
            print(f"NOTE: {where}this LibreOffice has {seen!r} in place of {c.seen!r}")
        elif seen != c.seen:
            file = topic.file.with_suffix(".odt")
            self.fail(f"{where}expected {c.seen!r}, but LibreOffice has {seen!r} in {file} or .pdf")
        if c.pandoc and not (topic.is_standard and (c.pandoc.startswith("!") or c.name in standard.PANDOC_LOSES.get(
                topic.name, ()) or c.name in standard.SHOWN.get(topic.name, ()))):
            present = c.pandoc.lstrip("!") in topic.pandoc
            if present and c.pandoc.startswith("!"):
                print(f"NOTE: {where}pandoc now shows it")
            elif not present and not c.pandoc.startswith("!"):
                self.fail(f"{where}expected {c.pandoc!r}, which pandoc does not make of {topic.file}")


class AbiWord(unittest.TestCase):
    def test_opens_the_standard_spelling(self):
        self.assertEqual([t.file.name for t in topics.ALL if t.is_standard and not t.opens_in_abiword()], [])


class Page(unittest.TestCase):
    def test_is_current(self):
        if not same_readers():
            print(f"NOTE: {PAGE.name} does not speak of LibreOffice {version('soffice')}, pandoc {version('pandoc')}")
        elif PAGE.read_text() != page():
            self.fail(f"{PAGE} is not what the tests say: run tests/interop/interop.py page FOLDER")


def main():
    action, folder = sys.argv[1:3]
    script = topics.record(folder)
    languages.FOLDER = Path(folder)
    languages.record(script)
    if action == "write":
        script.run(sys.argv[3])
    elif action == "page":
        PAGE.write_text(page())
    else:
        for topic in topics.ALL:
            for construct in topic.constructs:
                name = f"test_{topic.name}_{construct.name}{' standard' if topic.is_standard else ''}"
                assert not hasattr(Constructs, name), name
                setattr(Constructs, name, lambda self, construct=construct: self.check(construct))
        examples.FOLDER = Path(folder)
        cases = (Constructs, examples.Examples, languages.Languages, AbiWord, Page)
        suite = unittest.TestSuite(map(unittest.defaultTestLoader.loadTestsFromTestCase, cases))
        return not unittest.TextTestRunner(verbosity=1).run(suite).wasSuccessful()


if __name__ == "__main__":
    sys.exit(main())
