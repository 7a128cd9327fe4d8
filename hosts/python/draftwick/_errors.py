"""What the library refuses with: an exception for each of its numbers."""
# mypy: ignore-errors

import builtins
import functools

from . import _draftwick
from ._texts import ERRORS


@functools.cache
def _names():
    import json

    from ._names import Names
    return Names(json.loads(_draftwick._describe()))


class Error(Exception):
    """What Draftwick refuses. Nothing has changed."""

    __module__ = "draftwick"
    number, _advice = 0, ""

    @property
    def advice(self):
        """What was refused and what to do about it; empty when there is nothing to add."""
        return self._advice and _names().respelled(self._advice)

    def __str__(self):
        text, advice = str(self.args[0]) if self.args else "", self.advice
        kind, colon, detail = text.partition(": ")
        if colon and advice.endswith(detail):
            return f"{kind}: {advice}"
        return text + (" " if text.endswith(".") else ". ") + advice if advice else text


KINDS = {name: type(name, (Error, getattr(builtins, relative)) if relative else (Error,),
                    {"__doc__": doc, "__module__": "draftwick", "number": number})
         for name, (number, relative, doc) in ERRORS.items()}
_BY_NUMBER = {kind.number: kind for kind in KINDS.values()}


def refusal(number, text, advice):
    """The exception of an error of the library."""
    error = _BY_NUMBER.get(number, Error)(text)
    error.number, error._advice = number, advice
    return error
