"""The C interface by ctypes, for the tests: objects, values and errors, by the names of the object model."""

import ctypes
import datetime
import json


class Text(ctypes.Structure):
    _fields_ = [("data", ctypes.c_void_p), ("size", ctypes.c_size_t)]


class Union(ctypes.Union):
    _fields_ = [("boolean", ctypes.c_int32), ("number", ctypes.c_int32), ("real", ctypes.c_double), ("text", Text),
                ("date", ctypes.c_int32 * 6), ("object", ctypes.c_void_p)]


class Value(ctypes.Structure):
    _fields_ = [("kind", ctypes.c_int32), ("plain", Union)]


class LastError(ctypes.Structure):
    _fields_ = [("number", ctypes.c_int32), ("text", ctypes.c_char_p), ("source", ctypes.c_char_p)]


class Error(Exception):
    def __init__(self, status, number, text):
        super().__init__(text)
        self.status, self.number = status, number


class Reference:
    """A reference to an object; let go with it."""

    def __init__(self, interface, handle):
        self.interface, self.handle = interface, ctypes.c_void_p(handle)

    def __del__(self):
        self.interface.library.dw_release(self.handle)

    def __eq__(self, other):
        return isinstance(other, Reference) and bool(self.interface.library.dw_same(self.handle, other.handle))

    def __hash__(self):
        return 0


class Interface:
    def __init__(self, path):
        self.library = library = ctypes.CDLL(str(path))
        library.dw_describe.restype = library.dw_class_of.restype = ctypes.c_char_p
        library.dw_last_error.restype = ctypes.POINTER(LastError)
        for function in ("dw_class_of", "dw_release"):
            getattr(library, function).argtypes = [ctypes.c_void_p]
        library.dw_call.argtypes = [ctypes.c_void_p, ctypes.c_char_p, ctypes.POINTER(Value), ctypes.c_size_t,
                                    ctypes.POINTER(Value)]
        self.model = json.loads(library.dw_describe())
        self.classes = {one["name"]: one for one in self.model["classes"]}
        self.constants = {name: value for one in self.model["enumerations"] for name, value in one["values"].items()}

    def check(self, status):
        if status != 0:
            error = self.library.dw_last_error().contents
            if status == 2:
                raise OSError(error.number, error.text.decode())
            raise Error(status, error.number, error.text.decode())

    def send(self, value):
        sent = Value()
        if isinstance(value, bool):
            sent.kind, sent.plain.boolean = 1, value
        elif isinstance(value, int):
            sent.kind, sent.plain.number = 2, value
        elif isinstance(value, float):
            sent.kind, sent.plain.real = 3, value
        elif isinstance(value, (str, bytes)):
            data = value if isinstance(value, bytes) else value.encode("utf-8", "surrogateescape")
            sent.kept = ctypes.create_string_buffer(data, len(data) + 1)
            sent.kind, sent.plain.text = 4, Text(ctypes.addressof(sent.kept), len(data))
        elif isinstance(value, datetime.datetime):
            sent.kind, sent.plain.date = 5, (ctypes.c_int32 * 6)(*value.timetuple()[:6])
        elif isinstance(value, Reference):
            sent.kind, sent.plain.object = 6, value.handle
        return sent

    def receive(self, value):
        plain = value.plain
        if value.kind == 6:
            return Reference(self, plain.object)
        text = plain.text
        got = [lambda: None, lambda: bool(plain.boolean), lambda: plain.number, lambda: plain.real,
               lambda: ctypes.string_at(text.data, text.size).decode("utf-8", "surrogateescape"),
               lambda: datetime.datetime(*plain.date)][value.kind]()
        self.library.dw_clear(ctypes.byref(value))
        return got

    def create(self, name):
        handle = ctypes.c_void_p()
        self.check(self.library.dw_create(name.encode(), ctypes.byref(handle)))
        return Reference(self, handle.value)

    def class_of(self, at):
        return self.library.dw_class_of(at.handle).decode()

    def is_property(self, at, name):
        return any(one["name"] == name for one in self.classes[self.class_of(at)]["properties"])

    def get(self, at, name, arguments=()):
        if arguments:
            return self.call(at, name, arguments)
        value = Value()
        self.check(self.library.dw_get(at.handle, name.encode(), ctypes.byref(value)))
        return self.receive(value)

    def set(self, at, name, value):
        self.check(self.library.dw_set(at.handle, name.encode(), ctypes.byref(self.send(value))))

    def call(self, at, name, arguments=()):
        sent = [self.send(argument) for argument in arguments]  # their texts live as long as the call
        values, result = (Value * len(sent))(*sent), Value()
        self.check(self.library.dw_call(at.handle, name.encode(), values, len(sent), ctypes.byref(result)))
        return self.receive(result)

    def item(self, at, key):
        return self.call(at, "Items", [key])
