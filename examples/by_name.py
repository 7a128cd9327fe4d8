"""By name: a document from a script that knows the members of objects only by their names.

usage: by_name.py OUTPUT.rtf
"""

import shlex
import sys
from typing import Any

import draftwick

# [script]
# A line is: a new name, or "-" for none; an object; a member of it, with "=" in front to set a property; values.
SCRIPT = """
-         document  =margin_left     1.5
fonts     document  fonts
-         fonts     add             'Arial'
-         document  =default_font_name 'Arial'
section   document  add_section
title     section   add_paragraph
look      title     font_format
-         look      =size           20
-         look      =bold           1
layout    title     format
-         layout    =align          3
-         title     add_text_item   'Made by a script'
text      section   add_paragraph
-         text      add_text_item   'Every class, property and method has a name.'
-         document  finish
"""
# [script]


def value_of(word: str, now: Any) -> Any:
    """A number where the member holds a number, True or False where it holds one of these."""
    if isinstance(now, bool):
        return word == "1"
    try:
        return float(word) if "." in word else int(word)
    except ValueError:
        return word


# [run]
def run(script: str, objects: dict[str, Any]) -> None:
    for line in script.splitlines():
        if not line.strip():
            continue
        name, at, member, *values = shlex.split(line)
        target = objects[at]
        if member.startswith("="):
            member = member[1:]
            setattr(target, member, value_of(values[0], getattr(target, member)))
            continue
        result = getattr(target, member)
        if callable(result):  # a method
            result = result(*values)
        if name != "-":
            objects[name] = result
# [run]


if __name__ == "__main__":
    run(SCRIPT, {"document": draftwick.Document(sys.argv[1])})
