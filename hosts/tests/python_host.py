"""The Python package by the names of the object model, for the tests."""

import json
import keyword
import re

import draftwick


def snake(name):
    name = re.sub(r"(?<=[a-z0-9])(?=[A-Z])|(?<=[A-Z])(?=[A-Z][a-z])", "_", name).lower()
    return name + "_" if keyword.iskeyword(name) else name


class Host:
    def __init__(self):
        self.model = json.loads(draftwick._describe())
        self.classes = {one["name"]: one for one in self.model["classes"]}
        self.constants = {name: value for one in self.model["enumerations"] for name, value in one["values"].items()}

    def create(self, name):
        return getattr(draftwick, name)()

    def class_of(self, at):
        return type(at).__name__

    def is_property(self, at, name):
        return any(one["name"] == name for one in self.classes[self.class_of(at)]["properties"])

    def get(self, at, name, arguments=()):
        value = getattr(at, snake(name))
        return value[arguments[0]] if arguments else value

    def set(self, at, name, value):
        setattr(at, snake(name), value)

    def call(self, at, name, arguments=()):
        if name == "Items":
            return self.item(at, arguments[0])
        if name.startswith("Set") and not hasattr(at, snake(name)):  # of a property with an argument
            getattr(at, snake(name[3:]))[arguments[0]] = arguments[1]
            return None
        return getattr(at, snake(name))(*arguments)

    def item(self, at, key):
        by_number = self.classes[self.class_of(at)]["items"] and not hasattr(key, "name")
        wanted = next(one for one in self.classes[self.class_of(at)]["methods"] if one["name"] == "Items")
        counts = by_number and isinstance(key, int) and wanted["arguments"][0]["type"] in ("Key", "Number")
        return at[key - 1 if counts else key]
