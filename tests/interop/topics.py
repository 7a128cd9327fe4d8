"""What the topics are made of: a topic builds one document and says what readers should show of it."""
import functools
import re
from pathlib import Path

from model import Script
from readers import Odt, Pdf, pandoc

ALL = []


class Construct:
    """One row of docs/what-readers-show.md.

    written: words that the file must have. probe: gives what LibreOffice shows, which is `shown` if it shows the
    construct. If it does not, it is `instead`, and `why` says why; `partly` says that this is better than nothing.
    pandoc: a piece of pandoc's HTML, or with a "!" in front one that it does not have; none: pandoc has no notion of it.
    """

    def __init__(self, topic, name, written, probe, shown, instead, why, partly, pandoc):
        self.topic, self.name, self.written, self.probe, self.shown = topic, name, written, probe, shown
        self.instead, self.why, self.partly, self.pandoc = instead, why, partly, pandoc
        self.seen = shown if not why else instead

    def verdict(self):
        if not self.why:
            return "shown"
        return f"{'partly' if self.partly else 'not shown'}: {self.why}"

    def pandoc_verdict(self):
        return "–" if self.pandoc is None else "not shown" if self.pandoc.startswith("!") else "shown"


class Topic:
    def __init__(self, title, build):
        self.title, self.build, self.name = title, build, build.__name__
        self.constructs = []

    def record(self, script, folder):
        """Records the steps that build the document, and its constructs."""
        self.file = Path(folder) / f"{self.name}.rtf"
        self.folder, self.constructs = Path(folder), []
        self.document = script.document(self.file)
        self.build(self)
        self.document.Finish()

    def shows(self, name, written, probe, shown, instead=None, why="", partly=False, pandoc=None):
        self.constructs.append(Construct(self, name, written, probe, shown, instead, why, partly, pandoc))

    @functools.cached_property
    def rtf(self):
        """The file without its line cuts."""
        return self.file.read_bytes().decode("cp1252").replace("\r\n", "")

    @functools.cached_property
    def odt(self):
        return Odt(self.file.with_suffix(".odt"))

    @functools.cached_property
    def pdf(self):
        return Pdf(self.file.with_suffix(".pdf"))

    @property
    def pandoc(self):
        """pandoc's HTML, and its text."""
        html = pandoc(self.file)
        return html + re.sub("<[^>]*>", "", html)


def topic(title):
    def add(build):
        ALL.append(Topic(title, build))
        return build
    return add


def record(folder):
    script = Script()
    for each in ALL:
        each.record(script, folder)
    return script


def say(container, text, **settings):
    """A paragraph with these settings and a text."""
    paragraph = container.AddParagraph(**settings)
    paragraph.AddTextItem(text)
    return paragraph


def run(container, text, **settings):
    """A paragraph of plain text in which a run with these settings stands."""
    paragraph = container.AddParagraph()
    paragraph.AddTextItem("a ")
    item = paragraph.AddTextItem(text, **settings)
    paragraph.AddTextItem(" b")
    return item
