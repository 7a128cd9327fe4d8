"""Random calls over everything that the package has, with values of every kind, some of which call back while they are
read. What must hold: nothing but documented refusals, a document that is finished is whole, and the same calls give the
same bytes.

usage: test_random_calls.py SECONDS [SEED]      by itself, to find more"""

import datetime
import gc
import hashlib
import itertools
import os
import pathlib
import random
import sys
import tempfile
import time

import draftwick
from python_host import Host, snake

HOST = Host()
ENDS = {"Discard", "Finish", "Preview", "PrintOut"}
REFUSALS = (draftwick.Error, TypeError, ValueError, LookupError, AttributeError, OSError, RecursionError)
TEXTS = ["", "a", "Normal", "a.bmp", "none.rtf", "1cm", "#102030", "a\0b", "é€😀", "\udcff", "{\\par}", "\r\n\t", "x" * 5000]
NUMBERS = [-1, 0, 1, 2, 3, 10, 100, 255, 256, 32767, -32769, 2**31 - 1, -(2**31), 2**31, 2**64]
REALS = [0.0, -0.0, 0.5, 1.5, 720.0, 1e300, -1e300, float("inf"), float("nan")]
OTHERS = [None, True, False, b"", b"\xff\xd8", bytearray(b"x"), memoryview(b"xy"), (1, 2, 3), (1, 2), [], [["a", 1]], {}, slice(1),
          datetime.date(2026, 3, 1), datetime.datetime(1, 1, 1), 1j, "text", draftwick.Document, draftwick.Special]


class Program:
    """What a program does that has only its seed: two of the same seed do the same."""

    def __init__(self, seed):
        self.random = random.Random(seed)
        self.objects = [draftwick.Document("out.rtf")]
        self.log = hashlib.sha1()
        self.calls = 0
        self.depth = 0

    def note(self, what):
        self.log.update(repr(what).encode(errors="surrogatepass"))

    def run(self, steps):
        for _ in range(steps):
            self.step()
        for one in self.objects:
            if isinstance(one, draftwick.Document):
                self.attempt(lambda one=one: self.check(one.to_bytes()))
        self.objects.clear()
        return self.log.hexdigest()

    def check(self, file):
        assert file.startswith(b"{\\rtf1") and file.endswith(b"}\r\n")
        return file

    def attempt(self, act):
        """Of a refusal the kind counts: what Python says of a value can hold its address."""
        self.calls += 1
        try:
            result = act()
        except REFUSALS as refusal:
            self.note(str(refusal) if isinstance(refusal, draftwick.Error) else type(refusal).__name__)
            return
        if isinstance(result, draftwick.Object):
            self.objects.append(result)
            del self.objects[:-60]
        elif isinstance(result, (str, bytes, int, float)):
            self.note(result)

    def step(self):
        pick, among = self.random.random(), min(len(self.objects), self.random.choice((3, 60)))
        if pick < 0.02 or not self.objects:
            self.attempt(lambda: draftwick.Document(self.random.choice(("out.rtf", None)), body_in_memory=True))
        elif pick < 0.05:
            del self.objects[self.random.randrange(len(self.objects))]
        else:
            self.use(self.objects[-1 - self.random.randrange(among)])

    def use(self, one):
        members = HOST.classes[type(one).__name__]
        form = self.random.randrange(12)
        if form < 4 and members["methods"]:
            self.call(one, self.random.choice(members["methods"]))
        elif form < 8 and members["properties"]:
            member = self.random.choice(members["properties"])
            name = snake(member["name"])
            if "arguments" in member:
                self.attempt(lambda: getattr(one, name)[self.value("Number")])
                self.attempt(lambda: getattr(one, name).__setitem__(self.value("Number"), self.value(member["type"])))
            elif self.random.random() < 0.5:
                self.attempt(lambda: setattr(one, name, self.value(member["type"])))
            else:
                self.attempt(lambda: getattr(one, name))
        elif form < 10 and "items" in members:
            self.attempt(lambda: self.random.choice((one.__getitem__, one.__contains__))(self.value("Key")))
            self.attempt(lambda: self.random.choice(list(one)))
        elif form == 10:
            self.attempt(lambda: self.random.choice((one.document, one.parent)))
        else:
            self.python(one)

    def python(self, one):
        """What objects of Python can do."""
        self.attempt(self.random.choice((
            lambda: repr(one), lambda: hash(one) == hash(one), lambda: one == self.random.choice(self.objects),
            lambda: one < 1, lambda: bool(one), lambda: len(one), lambda: one.__init__(**{"no": 1}), lambda: type(one)(),
            lambda: delattr(one, "document"), lambda: one.add_table_from(self.rows()),
            lambda: one._item(self.value("Text"), self.value("Number")), lambda: [gc.collect()])))
        if self.random.random() < 0.1:
            self.attempt(self.random.choice((lambda: one.finish(self), lambda: one.__exit__(None, None, None),
                                             lambda: one.__exit__(ValueError, None, None))))

    def rows(self):
        for _ in range(self.random.randrange(4)):
            self.call_back()
            yield [self.value("Text") for _ in range(self.random.randrange(3))]

    def call(self, one, member):
        name = snake(member["name"])
        if not hasattr(type(one), name) or (member["name"] in ENDS and self.random.random() < 0.9):
            return
        arguments = [self.value(each["type"]) for each in member["arguments"] if self.random.random() < 0.95]
        named = {}
        if self.random.random() < 0.2:
            result = HOST.classes.get(member["result"], {"properties": []})
            for each in self.random.sample(result["properties"], min(2, len(result["properties"]))):
                named[snake(each["name"])] = self.value(each["type"])
        self.attempt(lambda: getattr(one, name)(*arguments, **named))

    def value(self, kind):
        if self.random.random() < 0.15:
            kind = self.random.choice(("Text", "Number", "Real", "Other", "Object", "Back"))
        if kind in ("Text", "Key", "Path"):
            return self.random.choice(TEXTS if kind != "Key" else TEXTS + NUMBERS)
        if kind in ("Number", "Boolean"):
            return self.random.choice(NUMBERS[:7]) if self.random.random() < 0.8 else self.random.choice(NUMBERS)
        if kind in ("Real", "Length"):
            return self.random.choice(REALS)
        if kind == "Back":
            return self
        if kind.startswith("dw"):
            values = next(each["values"] for each in HOST.model["enumerations"] if each["name"] == kind)
            return self.random.choice(list(values.values()))
        if kind == "Object" or kind in HOST.classes:
            return self.random.choice(self.objects) if self.objects else None
        return self.random.choice(OTHERS)

    # A program is a value, too, and a file: it goes on while it is read or written to.

    def call_back(self):
        self.depth += 1
        if self.depth < 5:
            self.step()
        self.depth -= 1
        return self.random.randrange(3)

    __index__ = call_back

    def __float__(self):
        return float(self.call_back())

    def __fspath__(self):
        self.call_back()
        return self.random.choice(("a.bmp", b"\xff"))

    def __repr__(self):
        return f"<program {self.call_back()}>"

    def write(self, data):
        assert bytes(data)
        if self.call_back() == 0:
            raise OSError(5, "a failing file")


def run_twice(seed, steps=300):
    """In the current folder, which it empties."""
    first, second = Program(seed), Program(seed)
    outcomes = []
    for program in first, second:
        for path in pathlib.Path(".").iterdir():
            path.unlink()
        outcomes.append(program.run(steps))
    assert outcomes[0] == outcomes[1], seed
    return first.calls + second.calls


def test_random_calls(tmp_path, monkeypatch):
    monkeypatch.chdir(tmp_path)
    monkeypatch.setenv("PATH", "")  # no viewer is to be found
    monkeypatch.setenv("HOME", str(tmp_path))
    for seed in range(40):
        run_twice(seed)


if __name__ == "__main__":
    end, calls = time.monotonic() + float(sys.argv[1]), 0
    with tempfile.TemporaryDirectory() as folder:
        os.environ.update(PATH="", HOME=folder, TMPDIR=folder)
        os.chdir(folder)
        for seed in itertools.count(int(sys.argv[2]) if len(sys.argv) > 2 else 0):
            print(f"seed {seed}", flush=True)
            calls += run_twice(seed)
            if time.monotonic() > end:
                break
    print(f"Done {calls} calls")
