"""Every member of every class, found by its description: read, set, called, with the right and with all wrong kinds."""

import datetime
import enum
import inspect

import draftwick
import pytest
from python_host import Host, snake

HOST = Host()
PLAIN = {"Boolean": bool, "Number": int, "Real": float, "Length": float, "Color": str, "Text": str, "Path": str}
SAMPLES = {"Boolean": True, "Number": 1, "Real": 1.5, "Length": "1cm", "Color": "#102030", "Text": "text", "Path": "a.rtf",
           "Key": "text", "Value": "text", "Any": "text", "Bytes": b"\xff\xd8"}
WRONG = [None, object(), [], {}, "\udc80", "no such thing", b"bytes", 2**31, -(2**63), 1e300, float("nan"), True,
         datetime.datetime(1, 1, 1), draftwick.Special(), slice(1)]
# What the library and Python refuse with; anything else is a fault of the module.
REFUSALS = (draftwick.Error, TypeError, ValueError, OSError, AttributeError)


def sample(kind):
    if kind in SAMPLES:
        return SAMPLES[kind]
    return list(getattr(draftwick, python_type(kind)))[0]


def sample_of(argument):
    return None if argument["type"] in HOST.classes else sample(argument["type"])


def python_type(kind):
    plain = kind[2:] if kind.startswith("dw") else kind
    return plain + "Side" if plain in HOST.classes and plain != kind else plain


def fits(value, kind, optional):
    if kind in PLAIN:
        return isinstance(value, PLAIN[kind])
    if kind.startswith("dw"):
        made = getattr(draftwick, python_type(kind))
        return isinstance(value, made) or (value not in list(made) and isinstance(value, int))
    if kind in HOST.classes:
        return type(value) is getattr(draftwick, kind) or (optional and value is None)
    return True


def follow(way):
    """An object in a document of its own, of which nothing is written yet."""
    at = draftwick.Special() if way == ["Special"] else draftwick.Document("a.rtf")
    for kind, name, *arguments in way if way != ["Special"] else []:
        if kind == "items":
            at = list(at)[0]
        else:
            value = getattr(at, snake(name))
            at = value(*arguments) if kind == "call" else value[1] if kind == "indexed" else value
    return at


def ways():
    """The shortest way to an object of each class, found by the members that lead there."""
    found, queue = {}, [("Special", ["Special"]), ("Document", [])]
    while queue:
        name, way = queue.pop(0)
        try:
            if name in found or type(follow(way)).__name__ != name:
                continue
        except (draftwick.Error, IndexError, TypeError, AttributeError):
            continue  # there is another way to one
        found[name] = way
        members = HOST.classes[name]
        for one in members["properties"]:
            queue.append((one["type"], way + [("indexed" if "arguments" in one else "get", one["name"])]))
        for one in members["methods"]:
            if one["name"].startswith("Add"):
                needed = [argument for argument in one["arguments"] if "default" not in argument]
                for arguments in needed, one["arguments"]:
                    step = ("call", one["name"], *map(sample_of, arguments))
                    queue.append((one["result"], way + [step]))
        if "items" in members:
            queue.append((members["items"], way + [("items", "")]))
    return found


@pytest.fixture
def objects(monkeypatch, tmp_path):
    monkeypatch.chdir(tmp_path)
    monkeypatch.setenv("PATH", "")  # no viewer is to be found
    monkeypatch.setenv("HOME", str(tmp_path))
    found = ways()
    assert set(HOST.classes) - set(found) == {"AutomationObject"}  # which only Windows has
    return {name: follow(way) for name, way in found.items()}


def test_every_property(objects):
    for name, one in objects.items():
        for member in HOST.classes[name]["properties"]:
            attribute, where = snake(member["name"]), f"{name}.{member['name']}"
            if "arguments" in member:
                continue
            if member["get"]:
                before = getattr(one, attribute)
                assert fits(before, member["type"], member.get("optional")), where
            if not member["set"]:
                with pytest.raises(AttributeError):
                    setattr(one, attribute, None)
                continue
            for value in [sample(member["type"]), *WRONG]:
                try:
                    setattr(one, attribute, value)
                except REFUSALS:
                    assert not member["get"] or getattr(one, attribute) == before, (where, value)
                if member["get"]:
                    before = getattr(one, attribute)
            with pytest.raises(AttributeError):
                delattr(one, attribute)


def test_every_method_with_wrong_kinds(objects):
    for name, one in objects.items():
        for member in HOST.classes[name]["methods"]:
            if member["name"] == "Items":
                for key in [*WRONG, 99, -99]:
                    with pytest.raises((draftwick.Error, LookupError, TypeError)):
                        one[key] if not isinstance(key, str) or len(one) == 0 else one["no such thing"]
                continue
            method, count = getattr(one, snake(member["name"])), len(member["arguments"])
            if inspect.ismethod(method):
                continue  # Python has its own in the place of it
            for value in WRONG:
                for place in range(count):
                    arguments = [sample_of(argument) for argument in member["arguments"]]
                    arguments[place] = value
                    try:
                        result = method(*arguments)
                    except REFUSALS:
                        continue
                    assert member["result"] is None or fits(result, member["result"], member.get("optional"))
            with pytest.raises(TypeError):
                method(*[None] * (count + 1))
            with pytest.raises(TypeError):
                method(no_such_argument=1)
            if any("default" not in argument for argument in member["arguments"]):
                with pytest.raises(TypeError):
                    method()


def test_enumerations():
    for one in HOST.model["enumerations"]:
        if one["name"] in ("dwErrCode", "dwRuntimeError"):
            continue
        made = getattr(draftwick, python_type(one["name"]))
        assert issubclass(made, enum.IntEnum) and [int(value) for value in made] == list(one["values"].values())
        assert python_type(one["name"]) in dir(draftwick)
