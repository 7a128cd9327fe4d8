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
from ._draftwick import __version__, _describe, _enumeration, _enumeration_names  # noqa: E402,F401
from . import _documents  # noqa: E402,F401
from ._tables import add_table_from as _add_table_from  # noqa: E402

Document.add_table_from = _add_table_from  # noqa: F405


def __getattr__(name):
    # Enumerations are made when they are first used.
    value = globals()[name] = _enumeration(name)
    return value


def __dir__():
    return sorted(set(globals()) | set(_enumeration_names()))
