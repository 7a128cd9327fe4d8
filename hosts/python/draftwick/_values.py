"""What values are in Python beyond its own plain ones, for the extension."""

import datetime
import enum
import functools
import operator
import os

from ._texts import ENUMERATIONS


@functools.cache
def enumeration(name):
    """An enumeration, made when it is first used: all of them take longer than all else at import."""
    if name not in ENUMERATIONS:
        raise AttributeError(f"module 'draftwick' has no attribute {name!r}")
    doc, values = ENUMERATIONS[name]
    made = enum.IntEnum(name, values, module="draftwick")
    made.__doc__ = doc
    return made


def plain(value, kind):
    """The value as the extension takes it: bytes of a path or a file, the six numbers of a date, a number."""
    if kind == "Path":
        return os.fsencode(value)
    if kind == "Bytes":
        return bytes(memoryview(value))
    if kind == "Color" and isinstance(value, tuple):
        if len(value) != 3:
            raise TypeError("a colour has three parts: red, green and blue")
        red, green, blue = map(operator.index, value)
        if not (0 <= red <= 255 and 0 <= green <= 255 and 0 <= blue <= 255):
            raise ValueError("red, green and blue are numbers from 0 to 255")
        return red | green << 8 | blue << 16
    if isinstance(value, datetime.date):
        return tuple(value.timetuple()[:6])
    if hasattr(value, "__index__"):
        return operator.index(value)
    if hasattr(value, "__float__"):
        return float(value)
    raise TypeError(f"{value!r} is no value that a document can hold")


class IndexedProperty:
    """A property with several values, by their numbers as the library counts them."""

    __module__ = "draftwick"
    __slots__ = "_owner", "_name"

    def __init__(self, owner, name):
        self._owner, self._name = owner, name

    def __getitem__(self, index):
        return self._owner._item(self._name, index)

    def __setitem__(self, index, value):
        self._owner._item(self._name, index, value)
