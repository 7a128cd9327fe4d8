"""What documents and objects have in Python beyond what all hosts have. What has annotations goes into the stubs, in their terms."""
# mypy: ignore-errors

from __future__ import annotations

import io
import os
import warnings

from . import _draftwick as _d
from ._errors import KINDS
from ._tables import add_table_from

_finish = _d.Document.finish


class Object:
    def __init__(self, /, **properties):
        for name, value in properties.items():
            setattr(self, name, value)

    def __reduce_ex__(self, protocol=None):
        raise TypeError(f"a {type(self).__name__} belongs to its document: it can be neither copied nor pickled")


class Document:
    def __init__(self, filename=None, /, **properties):
        if filename is not None:
            self.filename = filename
        for name, value in properties.items():
            setattr(self, name, value)

    def __enter__(self: _Self) -> _Self:
        return self

    def __exit__(self, kind: type[BaseException] | None, error: BaseException | None, trace: TracebackType | None) -> None:
        """Finishes the document; gives it up when an exception leaves the block."""
        if kind is not None:
            self.discard()
            return
        try:
            _finish_to(self, None)
        except KINDS["TargetEmitted"]:
            pass  # it was given up in the block

    def finish(self, to: _Path | _Writes | None = None) -> None:
        """Writes the document to its filename, or to a path or file object instead. A file gets its name when it is
        complete.

        When that fails the document is not finished, and another finish() writes the whole once the cause is gone. On a
        document that is finished, finish() does nothing, and finish(to) is refused. UnicodeWarning when the file does not
        hold all characters, which only the classic spelling does not."""
        _finish_to(self, to)

    def to_bytes(self) -> bytes:
        """Finishes the document and gives the bytes of its file."""
        file = io.BytesIO()
        _finish_to(self, file)
        return file.getvalue()


Document.add_table_from = add_table_from


def _finish_to(document, to):
    if to is None:
        if document.finished:
            return
        _finish(document)
    elif hasattr(to, "write"):
        document._finish_to(_whole(to.write))
    else:
        _finish_to_path(document, os.fspath(to))
    if document.lost_characters:
        warnings.warn(f"{document.lost_characters} characters are not in the file, which has '?' in their place: only the "
                      "standard spelling has all of Unicode", UnicodeWarning, 3)


def _whole(write):
    """Raw files may take less than they are given."""
    def write_all(data):
        while (taken := write(data)) is not None and taken < len(data):
            data = data[taken:]
    return write_all


def _finish_to_path(document, path):
    unfinished = path + (b"~dwout" if isinstance(path, bytes) else "~dwout")
    with open(unfinished, "xb") as file:
        try:
            document._finish_to(file.write)
            file.flush()
            os.replace(unfinished, path)
        except BaseException:
            os.unlink(unfinished)
            raise


for _members, _class in (Object, _d.Object), (Document, _d.Document):
    for _name, _member in vars(_members).items():
        if callable(_member):
            setattr(_class, _name, _member)
