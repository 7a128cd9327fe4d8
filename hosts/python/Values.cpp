#include <hosts/python/Values.h>

#include <hosts/model/Lengths.h>
#include <hosts/model/Names.h>
#include <hosts/python/Comments.h>

#include <algorithm>

namespace draftwick::python {

namespace {

/// The constant of a number; the plain number where an enumeration does not have it.
PyObject* Constant(std::int32_t number, PythonType& type) {
    EnumerationOf(type);
    const auto& values = type.type->values;
    const auto found =
        std::lower_bound(values.begin(), values.end(), number,
                         [](const EnumerationValue& one, std::int32_t of) { return one.value < of; });
    if (found == values.end() || found->value != number) return PyLong_FromLong(number);
    return Py_NewRef(type.values[static_cast<std::size_t>(found - values.begin())]);
}

std::int32_t Whole(PyObject* number) {
    int overflow = 0;
    const long value = PyLong_AsLongAndOverflow(number, &overflow);
    if (value == -1 && overflow == 0 && PyErr_Occurred() != nullptr) throw PythonError{};
    if (overflow != 0 || value != static_cast<std::int32_t>(value))
        detail::RaiseRuntimeError(dwRunOverflow, "the number does not fit 32 bits");
    return static_cast<std::int32_t>(value);
}

std::int32_t Attribute(PyObject* object, const char* name) {
    return Whole(Take(PyObject_GetAttrString(object, name)).get());
}

bool IsInstance(PyObject* value, PyObject* type) {
    const int is = PyObject_IsInstance(value, type);
    if (is < 0) throw PythonError{};
    return is != 0;
}

/// (255, 128, 0)
std::int32_t ColorFromTuple(PyObject* tuple) {
    if (PyTuple_Size(tuple) != 3)
        RaisePython(PyExc_TypeError, "a colour has three parts: red, green and blue");
    std::int32_t color = 0;
    for (Py_ssize_t i = 0; i < 3; ++i) {
        const std::int32_t part = Whole(PyTuple_GetItem(tuple, i));
        if (part < 0 || part > 255)
            RaisePython(PyExc_ValueError, "red, green and blue are numbers from 0 to 255");
        color |= part << (8 * i);
    }
    return color;
}

/// Of anything that has bytes: bytes, bytearray, memoryview, an array.
std::string BytesFrom(PyObject* value) {
    const Owned bytes = Take(PyBytes_FromObject(value));
    return {PyBytes_AsString(bytes.get()), static_cast<std::size_t>(PyBytes_Size(bytes.get()))};
}

/// In the system's bytes, whatever they are: a str, bytes or anything that has __fspath__.
std::string PathFrom(PyObject* value) {
    const Owned path = Take(PyOS_FSPath(value));
    Owned bytes;
    if (PyBytes_Check(path.get()) != 0)
        bytes = Owned(Py_NewRef(path.get()));
    else
        bytes = Take(PyUnicode_EncodeFSDefault(path.get()));
    return BytesFrom(bytes.get());
}

/// What is a number by its own word: of NumPy, decimal.Decimal, fractions.Fraction.
Variant ForeignNumber(PyObject* value) {
    if (PyIndex_Check(value) != 0) return Whole(Take(PyNumber_Index(value)).get());
    if (PyObject_HasAttrString(value, "__float__") != 0)
        return PyFloat_AsDouble(Take(PyNumber_Float(value)).get());
    return {};
}

}  // namespace

PyObject* EnumerationOf(PythonType& type) {
    if (type.enumeration.get() != nullptr) return type.enumeration.get();
    const Owned members = Take(PyDict_New());
    for (const EnumerationValue& value : type.type->values) {
        const Owned number = Take(PyLong_FromLong(value.value));
        Check(PyDict_SetItemString(members.get(), hosts::ConstantName(*type.type, value).c_str(),
                                   number.get()));
    }
    const Owned arguments = Take(Py_BuildValue("(sO)", hosts::PlainName(*type.type).c_str(), members.get()));
    const Owned keywords = Take(Py_BuildValue("{ss}", "module", "draftwick"));
    Owned made = Take(PyObject_Call(Module().intEnum, arguments.get(), keywords.get()));
    const Owned comment(PythonText(Comment(type.type->name)));
    Check(PyObject_SetAttrString(made.get(), "__doc__", comment.get()));
    std::vector<PyObject*> values;
    for (const EnumerationValue& value : type.type->values) {
        values.push_back(
            Checked(PyObject_GetAttrString(made.get(), hosts::ConstantName(*type.type, value).c_str())));
    }
    type.values = std::move(values);
    type.enumeration = std::move(made);
    return type.enumeration.get();
}

bool IsWrapper(PyObject* value) { return PyObject_TypeCheck(value, Module().object) != 0; }

PyObject* Wrap(ObjectPointer object, PyTypeObject* type, Keeper* keeper) {
    PyObject* made = Checked(PyType_GenericAlloc(type, 0));
    new (&AsWrapper(made).object) ObjectPointer(std::move(object));
    AsWrapper(made).keeper = keeper;
    ++keeper->users;
    return made;
}

PyObject* PythonText(const std::string& text) {
    return Checked(PyUnicode_DecodeUTF8(text.data(), static_cast<Py_ssize_t>(text.size()), "replace"));
}

PyObject* ToPython(Variant&& value, PythonType* type, Keeper* keeper) {
    const Kind kind = type == nullptr ? Kind::Any : type->type->kind;
    if (const auto* on = std::get_if<bool>(&value)) return PyBool_FromLong(*on ? 1 : 0);
    if (const auto* number = std::get_if<std::int32_t>(&value)) {
        if (type != nullptr && !type->type->values.empty()) return Checked(Constant(*number, *type));
        if (kind != Kind::Color) return Checked(PyLong_FromLong(*number));
        const auto rgb = static_cast<unsigned>(*number);
        return Checked(PyUnicode_FromFormat("#%02x%02x%02x", rgb & 255, rgb >> 8 & 255, rgb >> 16 & 255));
    }
    if (const auto* real = std::get_if<double>(&value)) return Checked(PyFloat_FromDouble(*real));
    if (const auto* text = std::get_if<std::string>(&value)) {
        if (kind != Kind::Path) return PythonText(*text);
        return Checked(PyUnicode_DecodeFSDefaultAndSize(text->data(), static_cast<Py_ssize_t>(text->size())));
    }
    if (const auto* date = std::get_if<Date>(&value)) {
        return Checked(PyObject_CallFunction(Module().datetime, "iiiiii", date->year, date->month, date->day,
                                             date->hour, date->minute, date->second));
    }
    auto* object = std::get_if<ObjectPointer>(&value);
    if (object == nullptr || *object == nullptr) return Py_NewRef(Py_None);
    PyTypeObject* wrapper = type == nullptr ? nullptr : type->objects;
    if (wrapper == nullptr) wrapper = Module().classes.at(&(*object)->Description()).type;
    return Wrap(std::move(*object), wrapper, keeper);
}

Variant FromPython(PyObject* value, const draftwick::Type* type, const Object& object) {
    const Kind kind = type == nullptr ? Kind::Any : type->kind;
    if (kind == Kind::Path && value != Py_None) return PathFrom(value);
    if (kind == Kind::Bytes) return BytesFrom(value);
    if (PyUnicode_Check(value) != 0) {
        std::string text = TextOf(value);
        if (kind == Kind::Length) return hosts::LengthFrom(text, object);
        if (kind == Kind::Color) return hosts::ColorFrom(text);
        return text;
    }
    if (PyBool_Check(value) != 0) return value == Py_True;
    if (PyLong_Check(value) != 0) return Whole(value);
    if (PyFloat_Check(value) != 0) return PyFloat_AsDouble(value);
    if (value == Py_None) return {};
    if (IsWrapper(value)) return AsWrapper(value).object;
    if (kind == Kind::Color && PyTuple_Check(value) != 0) return ColorFromTuple(value);
    if (IsInstance(value, Module().datetime)) {
        return Date{Attribute(value, "year"), Attribute(value, "month"),  Attribute(value, "day"),
                    Attribute(value, "hour"), Attribute(value, "minute"), Attribute(value, "second")};
    }
    if (IsInstance(value, Module().date))
        return Date{Attribute(value, "year"), Attribute(value, "month"), Attribute(value, "day")};
    Variant number = ForeignNumber(value);
    if (number.index() != 0) return number;
    PyErr_Format(PyExc_TypeError, "%R is no value that a document can hold", value);
    throw PythonError{};
}

}  // namespace draftwick::python
