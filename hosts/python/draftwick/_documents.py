"""What documents and errors have in Python beyond what all hosts have."""

import os
import warnings

from . import _draftwick as _d

_finish = _d.Document.finish


def finish(self, to=None):
    """Writes the document to its filename, or to a path or file object instead. A file gets its name when it is complete.

    When that fails the document is not finished, and another finish() writes the whole once the cause is gone. On a document
    that is finished, finish() does nothing, and finish(to) is refused. UnicodeWarning when the file does not hold all
    characters, which only the classic spelling does not."""
    _finish_to(self, to, 3)


def to_bytes(self):
    """Finishes the document and gives the bytes of its file."""
    pieces = []
    _finish_to(self, _Pieces(pieces), 3)
    return b"".join(pieces)


def _finish_to(document, to, stack_level):
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
                      "standard spelling has all of Unicode", UnicodeWarning, stack_level)


class _Pieces:
    def __init__(self, pieces):
        self.write = pieces.append


def _whole(write):
    """Raw files may take less than they are given."""
    def write_all(data):
        while (taken := write(data)) is not None and taken < len(data):
            data = data[taken:]
    return write_all


def _finish_to_path(document, path):
    mark = b"~dwout" if isinstance(path, bytes) else "~dwout"
    unfinished = path + mark
    with open(unfinished, "xb") as file:
        try:
            document._finish_to(file.write)
            file.flush()
            os.replace(unfinished, path)
        except BaseException:
            os.unlink(unfinished)
            raise


def _enter(self):
    return self


def _exit(self, kind, error, trace):
    """Finishes the document; gives it up when an exception leaves the block."""
    if kind is not None:
        self.discard()
        return
    try:
        _finish_to(self, None, 3)
    except _d.TargetEmitted:
        pass  # it was given up in the block


def _text_of_error(self):
    return " ".join(str(text) for text in (*self.args[:1], self.advice) if text)


def _refuse_to_copy(self, protocol=None):
    raise TypeError(f"a {type(self).__name__} belongs to its document: it can be neither copied nor pickled")


_d.Object.__reduce_ex__ = _refuse_to_copy
for _name, _method in {"finish": finish, "to_bytes": to_bytes, "__enter__": _enter, "__exit__": _exit}.items():
    setattr(_d.Document, _name, _method)
_d.Error.__str__ = _text_of_error
_d.Error.number, _d.Error.advice = 0, ""
