"""The object model of the library, by name: what is said here is carried out by draftwick_script."""
import datetime
import re
import subprocess
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]


class Constants:
    """The values of the library's enumerations, as its headers have them: dw.AlignCenter."""

    def __init__(self):
        for header in ROOT.glob("draftwick/*/*.h"):
            for name, value in re.findall(r"\bdw([A-Z]\w*) = (\d+)", header.read_text()):
                setattr(self, name, int(value))


dw = Constants()


def _field(value):
    if value is None:
        return "n"
    if isinstance(value, bool):
        return f"b{value:d}"
    if isinstance(value, datetime.datetime):
        return f"d{value}"
    return {int: "i", float: "r", str: "s"}[type(value)] + str(value)


class Script:
    """The steps that build documents."""

    def __init__(self):
        self.steps = []

    def step(self, *fields):
        self.steps.append("\x1f".join([str(len(self.steps)), *map(str, fields)]) + "\x1e")
        return len(self.steps) - 1

    def document(self, file):
        document = Thing(self, number=self.step("new"))
        document.Filename = str(file)
        return document

    def run(self, program):
        subprocess.run([program], input="".join(self.steps).encode(), check=True)


class Thing:
    """An object of the library, or a member of one: a property's object is fetched once it is used."""

    def __init__(self, script, number=None, owner=None, name=None):
        self.__dict__.update(_script=script, _number=number, _owner=owner, _name=name)

    def _reference(self):
        if self._number is None:
            self.__dict__["_number"] = self._script.step("get", self._owner._reference(), self._name)
        return self._number

    def __getattr__(self, name):
        return Thing(self._script, owner=self, name=name)

    def __setattr__(self, name, value):
        self._script.step("set", self._reference(), name, _field(value))

    def __call__(self, *arguments, **settings):
        """Calls the method, then sets properties of what it gives."""
        fields = map(_field, arguments)
        number = self._script.step("call", self._owner._reference(), self._name, *fields)
        return Thing(self._script, number).set(**settings)

    def set(self, **settings):
        """Sets properties, also those of parts: Format_Align=2, Borders_1_Style=2 for an item of a collection."""
        for path, value in settings.items():
            *parts, name = path.split("_")
            thing = self
            for part in parts:
                thing = thing.Items(int(part)) if part.isdigit() else getattr(thing, part)
            setattr(thing, name, value)
        return self
