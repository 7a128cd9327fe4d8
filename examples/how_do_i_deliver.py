"""The answers of the page "How do I ...?" that have to do with memory, servers, threads and failures.

usage: how_do_i_deliver.py OUTPUT.rtf
"""

import os
import sys
import warnings
from collections.abc import Iterable
from concurrent.futures import ThreadPoolExecutor

import draftwick
from draftwick import Document, ShapeKind, Spelling


# [memory]
def make_letter(name: str) -> bytes:
    """A document as bytes. Nothing is written to any folder."""
    document = draftwick.Document(body_in_memory=True)
    document.add_section().add_paragraph(text=f"Dear {name},")
    return document.to_bytes()
# [memory]


# [sink]
class Counter:
    """Passes a document on piece by piece, to a socket, a compressor or a checksum: whatever has write(). Its exception is
    what finish() raises; the document can then be finished into another."""
    size = 0

    def write(self, data: bytes) -> None:
        self.size += len(data)


def size_of(document: Document) -> int:
    counter = Counter()
    document.finish(counter)
    return counter.size
# [sink]


# [threads]
def make_letters(names: Iterable[str]) -> list[bytes]:
    """One thread uses one document at a time. Threads take turns; a ProcessPoolExecutor uses all processors."""
    with ThreadPoolExecutor() as pool:
        return list(pool.map(make_letter, names))  # raises what a document raised
# [threads]


# [exception]
def write_report(filename: str, fails: bool) -> None:
    """Whatever is raised here, no file is left behind: neither under the name nor a temporary one."""
    with draftwick.Document(filename) as document:
        document.add_section().add_paragraph(text="Half of the report")
        if fails:
            raise RuntimeError("the database is gone")
# [exception]


# [advice]
def explain(failure: Exception) -> None:
    """Tells what was wrong and what to do: "Cell.width 200 inches: give -22.75 to 22.75 (scale_mode is ScaleMode.INCHES)"."""
    if isinstance(failure, draftwick.Error):
        print(failure.args[0], failure.advice, sep="\n  ")  # print(failure) has both on one line
    elif isinstance(failure, OSError):
        print(f"look at {failure.filename}: {failure.strerror}")
# [advice]


def write_answers(filename: str) -> None:
    with draftwick.Document(filename) as document:
        section = document.add_section()
        paragraph = section.add_paragraph(text="Delivered")
        # [remove]
        frame = paragraph.add_shape(ShapeKind.PICTURE_FRAME)
        frame.fill.picture = "of-a-customer.jpg"
        try:
            paragraph.add_text_item(" with its picture.")  # the call that writes the picture
        except draftwick.Error as error:
            explain(error)
            frame.remove()
            paragraph.add_text(" without its picture.")
        # [remove]
        # [discard]
        draft = draftwick.Document()
        draft.add_section().add_paragraph(text="Nobody wants this.")
        draft.discard()  # deletes the temporary file; the document can no longer be used
        # [discard]
        for letter in make_letters(["Ms Łukasik", "Mr Ιωάννου"]):
            section.add_paragraph(text=f"{len(letter)} bytes")
    assert size_of(draftwick.Document(body_in_memory=True)) > 0
    report = f"{filename}.report.rtf"
    try:
        write_report(report, fails=True)
    except RuntimeError:
        assert not os.path.exists(report)

    classic = draftwick.Document(f"{filename}.classic.rtf", spelling=Spelling.CLASSIC)
    classic.add_section().add_paragraph(text="Łódź")
    # [lost]
    with warnings.catch_warnings():
        warnings.simplefilter("ignore", UnicodeWarning)  # which tells it, too
        classic.finish()
    if classic.lost_characters > 0:
        print(classic.lost_characters, "characters became '?'")
    # [lost]


if __name__ == "__main__":
    write_answers(sys.argv[1])
