"""What Python calls the members, constants and enumerations of the object model, and texts that mention them. It is used when
the package is built, and for the advice of an error."""

import keyword
import os
import re

# A word that may be a name: after a backslash it is a word of the file; behind a point, or within a sentence, it does not
# only begin one.
_WORD = re.compile(r"(\\?)((?<=[\w)]\.|[\w,] ))?(\w+)", re.ASCII)
_ERROR = re.compile(r"\b(?:run-time )?error (-?\d+)\b", re.IGNORECASE)
_OTHERWISE = {r"\btrue\b": "True", r"\bfalse\b": "False", r"\b(std::system_error|FileError)\b": "OSError", "::": "."}


def snake(name):
    """add_text_item of AddTextItem, viewer_task_id of ViewerTaskID."""
    return re.sub(r"(?<=[^A-Z])(?=[A-Z])|(?<!^)(?=[A-Z][^A-Z\d])", "_", name).lower()


def member_name(name):
    """break_ of Break: a word that Python keeps for itself gets an underscore."""
    name = snake(name)
    return name + "_" if keyword.iskeyword(name) else name


def plain_values(enumeration):
    """The values without what all of their names begin with: Center of dwTACenter; what is left begins with a capital."""
    names = list(enumeration["values"])
    size = len(os.path.commonprefix(names))
    while size > 2 and not all(name[size:size + 1].isupper() for name in names):
        size -= 1
    return {name[size:]: value for name, value in enumeration["values"].items()}


class Names:
    """The names of a model, which is what _describe() gives."""

    def __init__(self, model):
        classes = {one["name"] for one in model["classes"]}
        # A word that is a class's name means the class.
        self.members = {name: member_name(name) for one in model["classes"] for rows in (one["properties"], one["methods"])
                        for name in (row["name"] for row in rows) if name not in classes}
        self.members["FinishTo"] = "finish"  # which no description has
        self.enumerations, self.errors, self.constants = {}, {}, {}
        for one in model["enumerations"]:
            values = plain_values(one)
            if {"dwErrItemNotFound", "dwRunInvalidPicture"} & one["values"].keys():  # they are exceptions
                self.errors.update({value: name for name, value in values.items()})
                self.constants.update(zip(one["values"], values))
                continue
            plain = one["name"][2:]
            name = self.enumerations[one["name"]] = plain + "Side" if plain in classes else plain
            self.constants[one["name"]] = name
            self.constants.update({row: f"{name}.{snake(value).upper()}" for row, value in zip(one["values"], values)})

    def respelled(self, text):
        """A text of the library with Python's names: add_section for AddSection, ParagraphAlign.CENTER for dwAlignCenter."""
        return _WORD.sub(self._spell, text)

    def in_python(self, comment):
        """The comment of a header: with Python's names, Overflow for error 6, True for true."""
        text = self.respelled(comment)
        for pattern, word in _OTHERWISE.items():
            text = re.sub(pattern, word, text)
        return _ERROR.sub(lambda found: self.errors.get(int(found[1]), found[0]), text)

    def _spell(self, found):
        backslash, within, word = found.groups()
        if word in self.constants:
            return backslash + self.constants[word]
        if backslash:
            return found[0]
        if word in self.members and (within is not None or re.search("[A-Z]", word[1:])):
            return self.members[word]
        return self.members.get(word.removeprefix("Set"), word) if word.startswith("Set") else word
