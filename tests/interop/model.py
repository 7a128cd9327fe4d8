"""The object model of the library, by name: what is said here is carried out by draftwick_script."""
import datetime
import re
import subprocess
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]


class Constant(str):
    """The name of a value of an enumeration, whose number the library knows."""


class Constants:
    """dw.AlignCenter is the constant dwAlignCenter."""

    def __getattr__(self, name):
        return Constant("dw" + name)


dw = Constants()


def rows(file, title):
    """The classic words of a block of tests/words, by the constant that a row sets: {"BSDouble": r"\brdrt\brdrdb"}."""
    block = (ROOT / "tests/words" / file).read_text().partition(f"] {title}\n")[2].partition("\n[")[0]
    return dict(re.findall(r"^\w+=dw(\w+) => (.+?)(?: => .+)?$", block, re.M))


def _value(value):
    """A value as the steps spell it (tests/words/README.md)."""
    if isinstance(value, Constant):
        return value
    if value is None:
        return "nothing"
    if isinstance(value, bool):
        return str(value).lower()
    if isinstance(value, datetime.datetime):
        return value.isoformat()
    if isinstance(value, str):
        return "'" + re.sub(r"[%'\0-\x1f]", lambda c: f"%{ord(c[0]):02X}", value) + "'"
    return repr(value)


class Script:
    """The steps that build documents. Objects that methods give are named by number."""

    def __init__(self):
        self.steps = []

    def step(self, *words):
        self.steps.append(" ".join(words))

    def document(self, file):
        self.step()
        document = Thing(self, "document")
        document.Filename = str(file)
        return document

    def run(self, program):
        subprocess.run([program], input="\n".join(self.steps).encode(), check=True)


class Thing:
    """An object of the library, or a member of one, by its path."""

    def __init__(self, script, path):
        self.__dict__.update(_script=script, _path=path)

    def __getattr__(self, name):
        return Thing(self._script, f"{self._path}.{name}")

    def __setattr__(self, name, value):
        self.set(**{name: value})

    def __call__(self, *arguments, **settings):
        """Calls the method, then sets properties of what it gives."""
        name = f"o{len(self._script.steps)}"
        self._script.step(name + ":", self._path, *map(_value, arguments))
        return Thing(self._script, name).set(**settings)

    def set(self, **settings):
        """Sets properties, also those of parts: Format_Align=2, Borders_1_Style=2 for an item of a collection."""
        if settings:
            self._script.step(self._path, *(f"{path.replace('_', '.')}={_value(value)}"
                                            for path, value in settings.items()))
        return self
