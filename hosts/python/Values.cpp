#include <hosts/model/Lengths.h>
#include <hosts/python/Extension.h>

#include <algorithm>

namespace draftwick::python {

namespace {

/// The constant of a number; the plain number where an enumeration does not have it.
PyObject* Constant(std::int32_t number, PythonType& type) {
    if (type.constants.get() == nullptr) {
        const Owned made =
            Take(PyObject_CallFunction(Module().enumeration, "s", WordingOf(type.row->name).name));
        type.constants = Take(PySequence_List(made.get()));
    }
    const auto& values = type.row->values;
    const auto found =
        std::lower_bound(values.begin(), values.end(), number,
                         [](const EnumerationValue& one, std::int32_t of) { return one.value < of; });
    if (found == values.end() || found->value != number) return Checked(PyLong_FromLong(number));
    return Py_NewRef(PyList_GetItem(type.constants.get(), found - values.begin()));
}

std::int32_t Whole(PyObject* number) {
    int overflow = 0;
    const long value = PyLong_AsLongAndOverflow(number, &overflow);
    if (overflow != 0 || value != static_cast<std::int32_t>(value))
        detail::RaiseRuntimeError(dwRunOverflow, "the number does not fit 32 bits");
    return static_cast<std::int32_t>(value);
}

std::string BytesOf(PyObject* bytes) {
    return {PyBytes_AsString(bytes), static_cast<std::size_t>(PyBytes_Size(bytes))};
}

}  // namespace

bool IsWrapper(PyObject* value) { return PyObject_TypeCheck(value, Module().common.type) != 0; }

PyObject* Wrap(std::shared_ptr<Object> object, PyTypeObject* type, Keeper* keeper) {
    PyObject* made = Checked(PyType_GenericAlloc(type, 0));
    new (&AsWrapper(made).object) std::shared_ptr<Object>(std::move(object));
    AsWrapper(made).keeper = keeper;
    ++keeper->users;
    return made;
}

PyObject* PythonText(const std::string& text) {
    return Checked(PyUnicode_DecodeUTF8(text.data(), static_cast<Py_ssize_t>(text.size()), "replace"));
}

std::string TextOf(PyObject* text) {
    Py_ssize_t size = 0;
    if (const char* plain = PyUnicode_AsUTF8AndSize(text, &size))
        return {plain, static_cast<std::size_t>(size)};
    PyErr_Clear();
    Owned bytes(PyUnicode_AsEncodedString(text, "utf-8", "surrogateescape"));
    if (bytes.get() == nullptr) {
        PyErr_Clear();
        bytes = Take(PyUnicode_AsEncodedString(text, "utf-8", "replace"));
    }
    return BytesOf(bytes.get());
}

PyObject* ToPython(Variant&& value, PythonType* type, Keeper* keeper) {
    if (type == nullptr) return Py_NewRef(Py_None);
    const Kind kind = type->row->kind;
    if (const auto* on = std::get_if<bool>(&value)) return PyBool_FromLong(*on ? 1 : 0);
    if (const auto* number = std::get_if<std::int32_t>(&value)) {
        if (!type->row->values.empty()) return Constant(*number, *type);
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
    auto* object = std::get_if<std::shared_ptr<Object>>(&value);
    if (object == nullptr || *object == nullptr) return Py_NewRef(Py_None);
    PyTypeObject* const wrapper =
        type->objects != nullptr ? type->objects : Module().classes.at(&(*object)->Description()).type;
    return Wrap(std::move(*object), wrapper, keeper);
}

Variant FromPython(PyObject* value, const draftwick::Type& type, const Object& object) {
    if (value == Py_None && type.kind != Kind::Bytes) return {};
    if (type.kind != Kind::Path && type.kind != Kind::Bytes) {
        if (PyUnicode_Check(value) != 0) {
            std::string text = TextOf(value);
            if (type.kind == Kind::Length) return hosts::LengthFrom(text, object);
            if (type.kind == Kind::Color) return hosts::ColorFrom(text);
            return text;
        }
        if (PyBool_Check(value) != 0) return value == Py_True;
        if (PyLong_Check(value) != 0) return Whole(value);
        if (PyFloat_Check(value) != 0) return PyFloat_AsDouble(value);
        if (IsWrapper(value)) return AsWrapper(value).object;
    }
    const std::string kind{type.name};
    const Owned plain = Take(PyObject_CallFunction(Module().plain, "Os", value, kind.c_str()));
    if (PyBytes_Check(plain.get()) != 0) return BytesOf(plain.get());
    if (PyTuple_Check(plain.get()) == 0) return FromPython(plain.get(), type, object);
    Date date;
    if (PyArg_ParseTuple(plain.get(), "iiiiii", &date.year, &date.month, &date.day, &date.hour, &date.minute,
                         &date.second)
        == 0)
        throw PythonError{};
    return date;
}

}  // namespace draftwick::python
