"""What the examples use of the Python package, over the C interface: their documents through C, call for call."""

import enum
import re

import draftwick
from python_host import snake

INCHES = {"in": 1, "cm": 1 / 2.54, "mm": 1 / 25.4, "pt": 1 / 72}
UNITS = {1: 1, 2: 1440, 3: 72}  # of dwScaleMode


class Over:
    """An object of the C interface with Python's names."""

    c = None

    def __init__(self, reference, document=None):
        vars(self).update(reference=reference, owner=document or self)
        one = self.c.classes[self.c.class_of(reference)]
        vars(self).update(_properties={snake(row["name"]): row for row in one["properties"]},
                          _methods={snake(row["name"]): row for row in one["methods"]})

    def give(self, value):
        return Over(value, self.owner) if hasattr(value, "handle") else value

    def plain(self, value, kind):
        if isinstance(value, Over):
            return value.reference
        if kind == "Color" and isinstance(value, tuple):
            value = "#%02x%02x%02x" % value
        if kind == "Color" and isinstance(value, str):
            return int(value[5:7] + value[3:5] + value[1:3], 16)
        if kind == "Length" and isinstance(value, str):
            number, unit = re.fullmatch(r"([-\d.]+) ?(\w+)", value).groups()
            return float(number) * INCHES[unit] * UNITS[self.owner.scale_mode]
        return int(value) if isinstance(value, enum.IntEnum) else value

    def __getattr__(self, name):
        if name in self._methods:
            return lambda *given, **named: self.call(self._methods[name], given, named)
        row = self._properties[name]
        if "arguments" in row:
            return Indexed(self, row)
        return self.give(self.c.get(self.reference, row["name"]))

    def __setattr__(self, name, value):
        row = self._properties[name]
        self.c.set(self.reference, row["name"], self.plain(value, row["type"]))

    def call(self, row, given, named):
        arguments = []
        for place, argument in enumerate(row["arguments"]):
            value = given[place] if place < len(given) else named.pop(snake(argument["name"]), argument.get("default"))
            arguments.append(self.plain(value, argument["type"]))
        result = self.give(self.c.call(self.reference, row["name"], arguments))
        for name, value in named.items():
            setattr(result, name, value)
        return result

    def __getitem__(self, key):
        counts = isinstance(key, int) and not isinstance(key, enum.IntEnum)
        by_enumeration = self._methods["items"]["arguments"][0]["type"].startswith("dw")
        return self.items(key + 1 if counts and not by_enumeration else key)

    def __iter__(self):
        return (self.items(position + 1) for position in range(self.count))

    def __enter__(self):
        return self

    def __exit__(self, kind, *_):
        if kind is None:
            self.finish()


class Indexed:
    def __init__(self, owner, row):
        self.owner, self.row = owner, row

    def __getitem__(self, index):
        return self.owner.give(self.owner.c.call(self.owner.reference, self.row["name"], [index]))


class Package:
    """In the place of the module draftwick."""

    def __init__(self, interface, error):
        Over.c, self.Error = interface, error

    def Document(self, filename, **settings):
        made = Over(Over.c.create("Document"))
        for name, value in {"filename": filename, "spelling": draftwick.Spelling.STANDARD, **settings}.items():
            setattr(made, name, value)
        return made

    def Special(self):
        return Over(Over.c.create("Special"))

    def __getattr__(self, name):
        return getattr(draftwick, name)
