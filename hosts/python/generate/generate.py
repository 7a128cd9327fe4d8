"""Writes what the package has of the descriptions: names and docstrings (_texts.py) and stubs (__init__.pyi).

usage: generate.py COMMENTS SOURCES PACKAGE

COMMENTS is the program that prints the model, SOURCES the folder draftwick/ with the headers, PACKAGE the folder to write to.
"""

import ast
import json
import subprocess
import sys
import textwrap
from pathlib import Path

HERE = Path(__file__).resolve().parent
sys.path.insert(0, str(HERE.parent / "draftwick"))
from _names import Names, member_name, plain_values, snake  # noqa: E402

# What an error of the library is in Python, too.
RELATIVES = {"PropertyOutOfRange": "ValueError", "InvalidCall": "ValueError", "Overflow": "ValueError",
             "ItemNotFound": "LookupError", "SubscriptOutOfRange": "LookupError", "TypeMismatch": "TypeError",
             "DivisionByZero": "ZeroDivisionError"}
# How Python writes what a property gives, and what it takes where that is more. A class has its own name.
GIVEN = {"Boolean": "bool", "Number": "int", "Real": "float", "Length": "float", "Color": "str", "Text": "str", "Path": "str",
         "Bytes": "bytes", "Key": "int | str", "Value": "_Value", None: "None"}
TAKEN = {"Length": "_Length", "Color": "_Color", "Path": "_Path", "Value": "_Value | date"}

printed = json.loads(subprocess.run(sys.argv[1:3], capture_output=True, check=True, encoding="utf-8").stdout, strict=False)
model, comments = printed["model"], printed["comments"]
names = Names(model)
classes = {one["name"]: one for one in model["classes"]}
GIVEN.update(names.enumerations)
common = set.intersection(*({row["name"] for row in one["properties"]} for one in model["classes"]))
for one in model["classes"]:
    one["properties"] = [row for row in one["properties"] if row["name"] not in common]
    if "items" in one:  # Python has [] for it
        items = next(row for row in one["methods"] if row["name"] == one["defaultMember"])
        one["methods"].remove(items)
        one["key"] = items["arguments"][0]["type"]


def given(row, kind="type"):
    return GIVEN.get(row[kind], row[kind]) + (" | None" if row.get("optional") else "")


def taken(row):
    return TAKEN.get(row["type"]) or given(row)


def default(argument):
    value = argument["default"]
    return repr(float(value) if argument["type"] in ("Real", "Length") else value)


def comment(*key, width=80):
    """Of a class or enumeration, or of its member."""
    text = names.in_python(comments.get(".".join(key), ""))
    return "\n".join(textwrap.fill(line, width, break_long_words=False, break_on_hyphens=False) for line in text.split("\n"))


# Names and docstrings.

def described(owner, row):
    """The name of a member, its docstring, before which inspect.signature looks for the arguments, and their names."""
    name, arguments = member_name(row["name"]), []
    for argument in row.get("arguments", ()):
        # A constant of an enumeration is its number: inspect knows no others here.
        arguments.append(member_name(argument["name"]) + (f"={default(argument)}" if "default" in argument else ""))
    start = ""
    if "result" in row:
        every = ["$self", *arguments] + (["**properties"] if row["result"] in classes else [])
        start = f"{name}({', '.join(every)})\n--\n\n"
    return name, start + comment(owner, row["name"]), tuple(argument.partition("=")[0] for argument in arguments)


def texts():
    members = {"Object": ("draftwick.Object", "What all objects of the model are.")}
    members.update({f"Object.{name}": described("Object", {"name": name}) for name in sorted(common)})
    enumerations, errors = {}, {}
    for name, one in classes.items():
        members[name] = (f"draftwick.{name}", comment(name))
        members.update({f"{name}.{row['name']}": described(name, row) for row in one["properties"] + one["methods"]})
    for one in model["enumerations"]:
        values = plain_values(one)
        if name := names.enumerations.get(one["name"]):
            members[one["name"]] = (name, "")
            enumerations[name] = (comment(one["name"]), {snake(value).upper(): number for value, number in values.items()})
        else:
            errors.update({value: (number, RELATIVES.get(value), comment(one["name"], row))
                           for row, (value, number) in zip(one["values"], values.items())})
    tables = {"TEXTS": members, "ENUMERATIONS": enumerations, "ERRORS": errors}
    return "".join(f"{name} = {{\n" + "".join(f"    {key!r}: {row!r},\n" for key, row in table.items()) + "}\n"
                   for name, table in tables.items())


# Stubs.

def docstring(indent, *key):
    text = comment(*key, width=104 - len(indent)).replace("\\", "\\\\")
    if text.endswith('"'):
        text += " "
    return textwrap.indent(f'"""{text}"""\n', indent) if text else ""


def settings(one, arguments=()):
    """", *, width: _Length = ...": the properties that a call can set, but for those that are arguments."""
    own = {argument["name"] for argument in arguments}
    rows = [row for row in one["properties"] if row["set"] and "arguments" not in row and row["name"] not in own]
    return (", *" if rows else "") + "".join(f", {member_name(row['name'])}: {taken(row)} = ..." for row in rows)


def property_stub(owner, row):
    name, gives, takes = member_name(row["name"]), given(row), taken(row)
    if "arguments" in row:
        gives = f"IndexedProperty[{gives}, {takes if row['set'] else 'NoReturn'}]"
    if not row["set"] or "arguments" in row:
        doc = docstring(" " * 8, owner, row["name"])
        return f"    @property\n    def {name}(self) -> {gives}:\n{doc}        ...\n"
    if not row["get"] or gives != takes:
        gives = f"_Setting[{gives if row['get'] else 'NoReturn'}, {takes}]"
    return f"    {name}: {gives}\n" + docstring(" " * 4, owner, row["name"])


def method_stub(owner, row):
    text = f"    def {member_name(row['name'])}(self"
    for argument in row["arguments"]:
        text += f", {member_name(argument['name'])}: {taken(argument)}"
        if "default" in argument:
            text += " | None" if argument["default"] is None else ""
            text += f" = {'...' if argument['type'] in names.enumerations else default(argument)}"
    if row["result"] in classes:
        text += settings(classes[row["result"]], row["arguments"])
    return f"{text}) -> {given(row, 'result')}:\n{docstring(' ' * 8, owner, row['name'])}        ...\n"


def own_members():
    """What only Python's Document has, {name: stub}: the functions of the package that have annotations."""
    own = {}
    for file in "_documents", "_tables":
        for one in ast.walk(ast.parse((HERE.parent / f"draftwick/{file}.py").read_text(encoding="utf-8"))):
            if isinstance(one, ast.FunctionDef) and one.returns:
                one.body = [*one.body[:1 if ast.get_docstring(one) else 0], ast.Expr(ast.Constant(...))]
                own[one.name] = textwrap.indent(ast.unparse(one), "    ") + "\n"
    return own


def class_stub(name, one):
    own = own_members() if name == "Document" else {}
    text = ("" if "create" in one else "\n@final") + f"\nclass {name}(Object):\n" + docstring("    ", name)
    if "create" in one:
        path = [row for row in one["properties"] if row["set"] and row["type"] == "Path"][:1]  # it can go unnamed
        start = "".join(f", {member_name(row['name'])}: _Path | None = None" for row in path)
        text += f"    def __init__(self{start}{settings(one, path)}) -> None: ...\n"
    text += "".join(property_stub(name, row) for row in one["properties"])
    text += "".join(method_stub(name, row) for row in one["methods"] if member_name(row["name"]) not in own)
    if "items" in one:
        key, item = taken({"type": one["key"]}), given(one, "items")
        text += (f"    def __len__(self) -> int: ...\n    def __getitem__(self, key: {key}, /) -> {item}: ...\n"
                 f"    def __iter__(self) -> Iterator[{item}]: ...\n"
                 "    def __contains__(self, item: object, /) -> bool: ...\n")
    return text + "".join(own.values()) + ("" if one["properties"] or one["methods"] else "    ...\n")


def stubs():
    text = (HERE / "head.pyi").read_text(encoding="utf-8")
    for one in model["enumerations"]:
        plain = zip(one["values"], plain_values(one).items())
        if one["name"] in names.enumerations:
            text += f"\nclass {names.enumerations[one['name']]}(IntEnum):\n" + docstring("    ", one["name"])
            text += "".join(f"    {snake(value).upper()} = {number}\n" + docstring("    ", one["name"], row)
                            for row, (value, number) in plain)
        else:
            text += "".join(f"\nclass {value}({', '.join(filter(None, ('Error', RELATIVES.get(value))))}):\n"
                            f"{docstring('    ', one['name'], row)}    ...\n" for row, (value, _) in plain)
    return text + "".join(class_stub(name, one) for name, one in classes.items())


for file, write in {"_texts.py": texts, "__init__.pyi": stubs}.items():
    (Path(sys.argv[3]) / file).write_text(write(), encoding="utf-8")
