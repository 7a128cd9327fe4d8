"""Writes documents as RTF, in constant memory."""

from collections.abc import Callable, Iterable, Iterator, Mapping, Sequence
from datetime import date, datetime
from enum import IntEnum
from os import PathLike
from types import TracebackType
from typing import Any, Generic, NoReturn, Protocol, TypeAlias, TypeVar, final

__version__: str

def __dir__() -> list[str]: ...

_Self = TypeVar("_Self")
_Given = TypeVar("_Given", covariant=True)
_Taken = TypeVar("_Taken", contravariant=True)

# A number in the document's unit, or a text with a unit: "2.5cm", "12pt", "1in", "3mm", "6pc", "240tw".
_Length: TypeAlias = float | str
# "#rrggbb", "#rgb", red, green and blue from 0 to 255, or a number with red in its lowest byte.
_Color: TypeAlias = str | tuple[int, int, int] | int
_Path: TypeAlias = str | bytes | PathLike[str] | PathLike[bytes]
_Value: TypeAlias = bool | int | float | str | datetime | None

class _Writes(Protocol):
    def write(self, data: bytes, /) -> object: ...

class _Setting(Generic[_Given, _Taken]):
    """A property that takes more kinds of value than it gives."""
    def __get__(self, object: object, owner: object = ...) -> _Given: ...
    def __set__(self, object: object, value: _Taken) -> None: ...

@final
class IndexedProperty(Generic[_Given, _Taken]):
    """A property with several values, by their numbers as the library counts them."""
    def __getitem__(self, index: int, /) -> _Given: ...
    def __setitem__(self, index: int, value: _Taken, /) -> None: ...

class Error(Exception):
    """What Draftwick refuses. Nothing has changed."""
    number: int
    """Of the refusal, the same in all languages."""
    @property
    def advice(self) -> str:
        """What was refused and what to do about it; empty when there is nothing to add."""
        ...

class Object:
    """What all objects of the model are. Two of them are equal when they are the same object of the document."""
    @property
    def parent(self) -> "Object | None":
        """The object that this one belongs to; None for a document."""
        ...
    @property
    def document(self) -> "Document":
        """The document. What belongs to it keeps it."""
        ...
