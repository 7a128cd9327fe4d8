"""The language of tests/words/README.md, replayed through any host: a host says how a member is read, set and called."""

import datetime
import pathlib
import re

WORD = re.compile(r"(?:[^ ']|'[^']*')+")


def rows(path):
    """The documents that a file of words describes: (line, steps)."""
    lines = []
    for number, line in enumerate(pathlib.Path(path).read_text(encoding="utf-8").split("\n"), 1):
        if line.startswith(" "):
            line = line.strip()
            lines[-1][1] += line if line[0] in "\\{}<" else " " + line
        elif line and not line.startswith("#"):
            lines.append([number, line])
    setup = []
    for number, line in lines:
        if line.startswith("["):
            setup = []
        elif line.startswith("<"):
            continue
        elif "=>" in line:
            own = line.split("=>")[0].split(" ; ")
            yield number, setup + [step.strip() for step in own if step.strip()]
        else:
            setup = setup + [line]


class Script:
    """Carries steps out. `host` has get, set, call and item, by the names of the object model; `constants` the values of
    enumerations by name."""

    def __init__(self, host, constants, document, special):
        self.host, self.constants = host, constants
        self.objects = {"document": document, "special": special}
        self.last = document

    def value(self, word):
        if word.startswith("'"):
            text = re.sub(rb"%(..)", lambda found: bytes([int(found[1], 16)]), word[1:-1].encode())
            return text.decode("utf-8", "surrogateescape")
        if word in ("true", "false"):
            return word == "true"
        if word == "nothing":
            return None
        if word.startswith("dw"):
            return self.constants[word]
        if not re.match("[-0-9]", word):
            return self.find(word, [])
        if "T" in word:
            return datetime.datetime.fromisoformat(word)
        return float(word) if "." in word else int(word)

    def follow(self, at, path, arguments):
        members = [member for member in path.split(".") if member]
        for place, member in enumerate(members):
            given = arguments if place == len(members) - 1 else []
            if re.match("[-0-9]|dw", member):
                at = self.host.item(at, self.value(member))
            elif self.host.is_property(at, member):
                at = self.host.get(at, member, given)
            else:
                result = self.host.call(at, member, given)
                at = at if result is None else result
        return at

    def find(self, path, arguments):
        name, _, rest = path.partition(".")
        if name in self.objects:
            return self.follow(self.objects[name], rest, arguments)
        return self.follow(self.objects["document"], path, arguments)

    def set(self, setting):
        path, _, value = setting.partition("=")
        *part, member = path.split(".")
        self.host.set(self.follow(self.last, ".".join(part), []), member, self.value(value))

    def run(self, step):
        words = WORD.findall(step)
        name = words.pop(0)[:-1] if words[0].endswith(":") else None
        if words and not is_setting(words[0]):
            path, arguments = words.pop(0), []
            while words and not is_setting(words[0]):
                arguments.append(self.value(words.pop(0)))
            self.last = self.find(path, arguments)
        for word in words:
            self.set(word)
        if name:
            self.objects[name] = self.last


def is_setting(word):
    return "=" in word.split("'")[0]
