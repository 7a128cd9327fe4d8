"""Writes documents as RTF, in constant memory.

    import draftwick

    with draftwick.Document("report.rtf") as document:
        section = document.add_section()
        section.add_paragraph().add_text_item("Quarterly report")

Everything that is added is written at once and can no longer change when the next sibling is added; `with` finishes the
document, or gives it up when an exception leaves the block. Positions count from 0, lengths are numbers in the document's
unit (inches at first) or texts with a unit ("2.5cm"), colours are "#rrggbb".
"""

import sysconfig as _sysconfig

if _sysconfig.get_config_var("Py_GIL_DISABLED"):
    raise ImportError("draftwick needs a Python with the global interpreter lock; this is a free-threaded build")

from ._draftwick import *  # noqa: E402,F403
from ._draftwick import __version__, _describe  # noqa: E402,F401
from . import _documents, _errors, _values  # noqa: E402
from ._errors import Error  # noqa: E402,F401
from ._values import IndexedProperty  # noqa: E402,F401

globals().update(_errors.KINDS)


def __getattr__(name):
    # Enumerations are made when they are first used.
    value = globals()[name] = _values.enumeration(name)
    return value


def __dir__():
    return sorted(globals().keys() | _values.ENUMERATIONS.keys())
