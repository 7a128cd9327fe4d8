"""Writes what the package has of the descriptions: its names and docstrings, _texts.py, and its stubs, __init__.pyi.

usage: generate.py COMMENTS SOURCES PACKAGE     the program that prints the model, the folder draftwick/ with the headers, and
                                                the folder to write to
"""

import ast
import json
import subprocess
import sys
import textwrap
from pathlib import Path

HERE = Path(__file__).resolve().parent
sys.path.insert(0, str(HERE.parent / "draftwick"))
import _names  # noqa: E402

printed = json.loads(subprocess.run(sys.argv[1:3], capture_output=True, check=True, encoding="utf-8").stdout, strict=False)
MODEL, COMMENTS = printed["model"], printed["comments"]
NAMES = _names.Names(MODEL)
CLASSES = {one["name"]: one for one in MODEL["classes"]}
COMMON = set.intersection(*({row["name"] for row in one["properties"]} for one in MODEL["classes"]))
# What an error of the library is in Python, too.
RELATIVES = {"PropertyOutOfRange": "ValueError", "InvalidCall": "ValueError", "Overflow": "ValueError",
             "ItemNotFound": "LookupError", "SubscriptOutOfRange": "LookupError", "TypeMismatch": "TypeError",
             "DivisionByZero": "ZeroDivisionError"}
# How Python writes what a property gives; and what it takes, where that is more.
GIVEN = {"Boolean": "bool", "Number": "int", "Real": "float", "Length": "float", "Color": "str", "Text": "str", "Path": "str",
         "Bytes": "bytes", "Key": "int | str", "Value": "_Value", None: "None"}
TAKEN = {"Length": "_Length", "Color": "_Color", "Path": "_Path", "Value": "_Value | date"}


def given(kind):
    return GIVEN.get(kind) or NAMES.enumerations.get(kind, kind)


def taken(kind):
    return TAKEN.get(kind) or given(kind)


def comment(key, width):
    text = NAMES.in_python(COMMENTS.get(key, ""))
    return "\n".join(textwrap.fill(line, width, break_long_words=False, break_on_hyphens=False) for line in text.split("\n"))


def members(one):
    """The properties and methods that a class has itself."""
    methods = [row for row in one["methods"] if not ("items" in one and row["name"] == one.get("defaultMember"))]
    return [row for row in one["properties"] if row["name"] not in COMMON], methods


def default(argument):
    value = argument["default"]
    return repr(float(value) if argument["type"] in ("Real", "Length") else value)


# Names and docstrings.

def signature(row):
    """What inspect.signature reads, which knows no constants of enumerations."""
    arguments = "".join(f", {_names.member_name(argument['name'])}" + (f"={default(argument)}" if "default" in argument else "")
                        for argument in row["arguments"])
    return f"{_names.member_name(row['name'])}($self{arguments}{', **properties' * (row['result'] in CLASSES)})\n--\n\n"


def texts():
    found = {"Object": ("draftwick.Object", "What all objects of the model are.")}
    found.update({f"Object.{name}": (_names.member_name(name), comment(f"Object.{name}", 80)) for name in COMMON})
    for name, one in CLASSES.items():
        found[name] = (f"draftwick.{name}", comment(name, 80))
        for row in sum(members(one), []):
            key = f"{name}.{row['name']}"
            start = signature(row) if "result" in row else ""
            arguments = tuple(_names.member_name(argument["name"]) for argument in row.get("arguments", ()))
            found[key] = (_names.member_name(row["name"]), start + comment(key, 80), arguments)
    enumerations, errors = {}, {}
    for one in MODEL["enumerations"]:
        values = _names.plain_values(one)
        if one["name"] in NAMES.enumerations:
            found[one["name"]] = (NAMES.enumerations[one["name"]], "")
            enumerations[found[one["name"]][0]] = (
                comment(one["name"], 80), {_names.snake(name).upper(): value for name, value in values.items()})
        else:
            errors.update({name: (number, RELATIVES.get(name), comment(f"{one['name']}.{row}", 80))
                           for row, (name, number) in zip(one["values"], values.items())})
    tables = {"TEXTS": found, "ENUMERATIONS": enumerations, "ERRORS": errors}
    return "".join(f"{name} = {{\n" + "".join(f"    {key!r}: {row!r},\n" for key, row in table.items()) + "}\n"
                   for name, table in tables.items())


# Stubs.

def docstring(key, indent):
    text = comment(key, 104 - len(indent)).replace("\\", "\\\\")
    return indent + f'"""{text}{" " * text.endswith(chr(34))}"""\n'.replace("\n", "\n" + indent).rstrip(" ") if text else ""


def settings(one, arguments=()):
    """", *, width: _Length = ...": the properties that a call can set, but for those that are arguments."""
    own = {argument["name"] for argument in arguments}
    return "".join(f"{', *' * (place == 0)}, {_names.member_name(row['name'])}: {taken(row['type'])} = ..."
                   for place, row in enumerate(row for row in members(one)[0]
                                               if row["set"] and "arguments" not in row and row["name"] not in own))


def property_stub(owner, row):
    name, doc = _names.member_name(row["name"]), f"{owner}.{row['name']}"
    gives, takes = given(row["type"]) + " | None" * row.get("optional", False), taken(row["type"])
    if "arguments" in row:
        gives = f"IndexedProperty[{gives}, {takes if row['set'] else 'NoReturn'}]"
    if not row["set"] or "arguments" in row:
        return f"    @property\n    def {name}(self) -> {gives}:\n{docstring(doc, ' ' * 8)}        ...\n"
    if not row["get"] or gives != takes:
        gives = f"_Setting[{gives if row['get'] else 'NoReturn'}, {takes}]"
    return f"    {name}: {gives}\n{docstring(doc, '    ')}"


def method_stub(owner, row):
    text = f"    def {_names.member_name(row['name'])}(self"
    for argument in row["arguments"]:
        text += f", {_names.member_name(argument['name'])}: {taken(argument['type'])}"
        if "default" in argument:
            text += " | None" * (argument["default"] is None)
            text += f" = {'...' if argument['type'] in NAMES.enumerations else default(argument)}"
    if row["result"] in CLASSES:
        text += settings(CLASSES[row["result"]], row["arguments"])
    doc = docstring(f"{owner}.{row['name']}", " " * 8)
    return f"{text}) -> {given(row['result'])}{' | None' * row.get('optional', False)}:\n{doc}        ...\n"


def own_members():
    """Of Document, what only Python has: {name: stub}."""
    files = [HERE.parent / f"draftwick/{name}.py" for name in ("_documents", "_tables")]
    functions = [part for file in files for part in ast.walk(ast.parse(file.read_text(encoding="utf-8")))
                 if isinstance(part, ast.FunctionDef) and part.returns]
    for one in functions:
        one.body = [*one.body[:ast.get_docstring(one) is not None], ast.Expr(ast.Constant(...))]
    return {one.name: textwrap.indent(ast.unparse(one), "    ") + "\n" for one in functions}


def class_stub(name, one, own):
    properties, methods = members(one)
    text = ("" if "create" in one else "\n@final") + f"\nclass {name}(Object):\n" + docstring(name, "    ")
    if "create" in one:
        path = [row for row in properties if row["set"] and row["type"] == "Path"][:1]  # it can go unnamed
        start = "".join(f", {_names.member_name(row['name'])}: _Path | None = None" for row in path)
        text += f"    def __init__(self{start}{settings(one, path)}) -> None: ...\n"
    text += "".join(property_stub(name, row) for row in properties)
    text += "".join(method_stub(name, row) for row in methods if _names.member_name(row["name"]) not in own)
    if "items" in one:
        key = next(row["arguments"][0]["type"] for row in one["methods"] if row["name"] == one["defaultMember"])
        item = given(one["items"])
        text += (f"    def __len__(self) -> int: ...\n    def __getitem__(self, key: {taken(key)}, /) -> {item}: ...\n"
                 f"    def __iter__(self) -> Iterator[{item}]: ...\n"
                 "    def __contains__(self, item: object, /) -> bool: ...\n")
    return text + "".join(own.values()) + "    ...\n" * (not properties and not methods)


def stubs():
    text = (HERE / "head.pyi").read_text(encoding="utf-8")
    for one in MODEL["enumerations"]:
        values = _names.plain_values(one).items()
        docs = [f"{one['name']}.{row}" for row in one["values"]]
        if one["name"] in NAMES.enumerations:
            text += f"\nclass {NAMES.enumerations[one['name']]}(IntEnum):\n{docstring(one['name'], '    ')}"
            text += "".join(f"    {_names.snake(name).upper()} = {value}\n{docstring(doc, '    ')}"
                            for (name, value), doc in zip(values, docs))
        else:
            text += "".join(f"\nclass {name}(Error{', ' * (name in RELATIVES)}{RELATIVES.get(name, '')}):\n"
                            f"{docstring(doc, '    ')}    ...\n" for (name, _), doc in zip(values, docs))
    for name, one in CLASSES.items():
        text += class_stub(name, one, own_members() if name == "Document" else {})
    return text


for file, write in {"_texts.py": texts, "__init__.pyi": stubs}.items():
    (Path(sys.argv[3]) / file).write_text(write(), encoding="utf-8")
