"""What the topics are made of: a topic builds one document and says what readers should show of it."""
import functools
import re
import subprocess
from pathlib import Path

import standard
from model import Script, dw
from readers import Odt, Pdf, pandoc

ALL = []


class Construct:
    """One row of docs/what-readers-show.md.

    written: words that the file must have. probe: gives what LibreOffice shows, which is `shown` if it shows the
    construct. If it does not, it is `instead`, and `why` says why; `partly` says that this is better than nothing.
    pandoc: a piece of pandoc's HTML, or with a "!" in front one that it does not have; none: pandoc has no notion of it.

    All of this is about the classic spelling. In the standard one everything is shown but what standard.py names.
    """

    def __init__(self, topic, name, written, probe, shown, instead, why, partly, pandoc):
        self.topic, self.name, self.written, self.probe, self.shown = topic, name, written, probe, shown
        self.instead, self.why, self.partly, self.pandoc = instead, why, partly, pandoc
        if topic.is_standard:
            self.shown = standard.SHOWN.get(topic.name, {}).get(name, shown)
            limit = standard.LIMITS.get(topic.name, {}).get(name)
            if limit is None:
                self.why = ""
            elif not isinstance(limit, str):
                self.why, self.instead = limit
        self.seen = self.shown if not self.why else self.instead

    def verdict(self):
        if not self.why:
            return "shown"
        return f"{'partly' if self.partly else 'not shown'}: {self.why}"

    def pandoc_verdict(self):
        return "–" if self.pandoc is None else "not shown" if self.pandoc.startswith("!") else "shown"


class Topic:
    """One document in one spelling. `only_standard`: what the other spelling does to readers needs no second proof."""

    def __init__(self, title, build, is_standard, only_standard):
        self.title, self.build, self.name = title, build, build.__name__
        self.is_standard, self.only_standard = is_standard, only_standard
        self.constructs = []

    def record(self, script, folder):
        """Records the steps that build the document, and its constructs."""
        self.file = Path(folder) / f"{self.name}{'.standard' if self.is_standard else ''}.rtf"
        self.folder, self.constructs = Path(folder), []
        self.document = script.document(self.file)
        if self.is_standard:
            self.document.Spelling = dw.SpellingStandard
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

    def opens_in_abiword(self):
        """AbiWord refuses a file in silence: what it makes of one must be there."""
        made = self.file.with_suffix(".abw")
        if not made.exists():
            subprocess.run(["abiword", "--to=abw", "-o", made, self.file], stdout=subprocess.DEVNULL,
                           stderr=subprocess.DEVNULL, check=False)
        return made.exists()

    @property
    def pandoc(self):
        """pandoc's HTML, and its text."""
        html = pandoc(self.file)
        return html + re.sub("<[^>]*>", "", html)


def topic(title, only_standard=False):
    def add(build):
        if not only_standard:
            ALL.append(Topic(title, build, False, only_standard))
        ALL.append(Topic(title, build, True, only_standard))
        return build
    return add


def record(folder):
    script = Script()
    for each in ALL:
        each.record(script, folder)
    return script


def pairs():
    """The topics that are in both spellings, with their constructs: ((classic, standard), ...)."""
    classic = [t for t in ALL if not t.is_standard]
    return [(c, next(s for s in ALL if s.is_standard and s.name == c.name)) for c in classic]


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
