#include <hosts/python/Errors.h>
#include <hosts/python/Names.h>
#include <hosts/python/Types.h>
#include <hosts/python/Values.h>

#include <algorithm>
#include <array>
#include <stdexcept>

/// Attributes and methods: CPython's own descriptors, with the rows of the class table behind them.
namespace draftwick::python {

namespace {

/// What a property with an argument gives: shape.adjust_values[1] = 5400.
struct Indexed {
    PyObject_HEAD PyObject* owner;
    const PythonProperty* property;
};
Indexed& AsIndexed(PyObject* object) { return *reinterpret_cast<Indexed*>(object); }

PyObject* GetAttribute(PyObject* self, void* closure) {
    return Guarded([&] {
        const auto& property = *static_cast<const PythonProperty*>(closure);
        return ToPython(property.row->get(Use(self), {}), property.type, AsWrapper(self).keeper);
    });
}

int SetAttribute(PyObject* self, PyObject* value, void* closure) {
    return Guarded(-1, [&] {
        const auto& property = *static_cast<const PythonProperty*>(closure);
        if (value == nullptr) RaisePython(PyExc_AttributeError, property.name + " cannot be deleted");
        const Variant plain = FromPython(value, property.row->type, Use(self));
        property.row->set(Use(self), {&plain, 1});
        return 0;
    });
}

PyObject* GetIndexed(PyObject* self, void* closure) {
    return Guarded([&] {
        PyObject* made = Checked(PyType_GenericAlloc(Module().indexed, 0));
        AsIndexed(made).owner = Py_NewRef(self);
        AsIndexed(made).property = static_cast<const PythonProperty*>(closure);
        return made;
    });
}

PyObject* GetAt(PyObject* self, PyObject* key) {
    return Guarded([&] {
        const PythonProperty& property = *AsIndexed(self).property;
        PyObject* owner = AsIndexed(self).owner;
        const Variant index = FromPython(key, property.row->arguments[0].type, Use(owner));
        return ToPython(property.row->get(Use(owner), {&index, 1}), property.type, AsWrapper(owner).keeper);
    });
}

int SetAt(PyObject* self, PyObject* key, PyObject* value) {
    return Guarded(-1, [&] {
        const PythonProperty& property = *AsIndexed(self).property;
        PyObject* owner = AsIndexed(self).owner;
        if (value == nullptr || property.row->set == nullptr)
            RaisePython(PyExc_TypeError, property.name + " has no items that can be set or deleted so");
        const std::array<Variant, 2> values{FromPython(key, property.row->arguments[0].type, Use(owner)),
                                            FromPython(value, property.row->type, Use(owner))};
        property.row->set(Use(owner), values);
        return 0;
    });
}

void DeallocateIndexed(PyObject* self) {
    PyTypeObject* type = Py_TYPE(self);
    Py_DECREF(AsIndexed(self).owner);
    reinterpret_cast<freefunc>(PyType_GetSlot(type, Py_tp_free))(self);
    Py_DECREF(reinterpret_cast<PyObject*>(type));
}

}  // namespace

PyTypeObject* MakeIndexedType() {
    return MakeType("IndexedProperty", sizeof(Indexed), Py_TPFLAGS_DISALLOW_INSTANTIATION,
                    {{Py_tp_dealloc, Slot(DeallocateIndexed)},
                     {Py_mp_subscript, Slot(GetAt)},
                     {Py_mp_ass_subscript, Slot(SetAt)},
                     {Py_tp_doc, const_cast<char*>("A property with several values, by their numbers.")}});
}

namespace {

bool IsName(PyObject* name, const Owned& interned) {
    return name == interned.get() || PyUnicode_Compare(name, interned.get()) == 0;
}

/// What a call gives that is no argument of the method is set on what it gives: add_cell(width=2).
PyObject* Settings(const PythonMethod& method, PyObject* settings, PyObject* name, PyObject* value) {
    // Refused before anything is added.
    PyTypeObject* type = method.result == nullptr ? nullptr : method.result->objects;
    if (type == nullptr || PyObject_HasAttr(reinterpret_cast<PyObject*>(type), name) == 0)
        RaisePython(PyExc_TypeError,
                    method.name + "() got an unexpected keyword argument '" + TextOf(name) + "'");
    if (settings == nullptr) settings = Checked(PyDict_New());
    Check(PyDict_SetItem(settings, name, value));
    return settings;
}

template <std::size_t Most>
PyObject* CallWith(const PythonMethod& method, PyObject* self, PyObject* const* given, Py_ssize_t positional,
                   PyObject* keywords) {
    Object& object = Use(self);
    const std::size_t count = method.arguments.size();
    std::array<Variant, Most> values;
    std::array<bool, Most> has{};
    if (static_cast<std::size_t>(positional) > count) {
        RaisePython(PyExc_TypeError, method.name + "() takes at most " + std::to_string(count)
                                         + " arguments, not " + std::to_string(positional));
    }
    for (std::size_t i = 0; i < static_cast<std::size_t>(positional); ++i) {
        values[i] = FromPython(given[i], method.arguments[i].row->type, object);
        has[i] = true;
    }
    Owned settings;
    const Py_ssize_t named = keywords == nullptr ? 0 : PyTuple_Size(keywords);
    for (Py_ssize_t i = 0; i < named; ++i) {
        PyObject* name = PyTuple_GetItem(keywords, i);
        PyObject* value = given[positional + i];
        std::size_t at = 0;
        while (at < count && !IsName(name, method.arguments[at].name)) ++at;
        if (at == count) {
            settings = Owned(Settings(method, settings.release(), name, value));
        } else {
            if (has[at]) RaisePython(PyExc_TypeError, method.name + "() got '" + TextOf(name) + "' twice");
            values[at] = FromPython(value, method.arguments[at].row->type, object);
            has[at] = true;
        }
    }
    for (std::size_t at = 0; at < count; ++at) {
        const PythonArgument& argument = method.arguments[at];
        if (has[at]) continue;
        if (!argument.row->initial)
            RaisePython(PyExc_TypeError,
                        method.name + "() misses the argument '" + TextOf(argument.name.get()) + "'");
        values[at] = *argument.row->initial;
    }
    Owned result(
        ToPython(method.row->call(Use(self), {values.data(), count}), method.result, AsWrapper(self).keeper));
    if (settings.get() != nullptr) SetAttributes(result.get(), settings.get());
    return result.release();
}

constexpr std::size_t FewArguments = 2;
constexpr std::size_t MostArguments = 6;

/// CPython's method descriptors tell a function nothing about itself, so there is one function for each place in a class
/// table; the class is that of the object.
constexpr std::size_t MostMethods = 16;
template <std::size_t Place>
PyObject* MethodAt(PyObject* self, PyObject* const* given, Py_ssize_t positional, PyObject* keywords) {
    return Guarded([&] {
        const auto& description = AsWrapper(self).object->Description();
        const PythonMethod& method = Module().classes.find(&description)->second.methods[Place];
        return method.arguments.size() <= FewArguments
                   ? CallWith<FewArguments>(method, self, given, positional, keywords)
                   : CallWith<MostArguments>(method, self, given, positional, keywords);
    });
}
using FastMethod = PyObject* (*)(PyObject*, PyObject* const*, Py_ssize_t, PyObject*);
template <std::size_t... Place>
constexpr std::array<FastMethod, sizeof...(Place)> AllMethods(std::index_sequence<Place...>) {
    return {MethodAt<Place>...};
}
constexpr auto Methods = AllMethods(std::make_index_sequence<MostMethods>{});

PythonType* TypeOf(const draftwick::Type* type) {
    if (type == nullptr) return nullptr;
    PythonType& made = Module().types[type];
    made.type = type;
    return &made;
}

std::vector<PythonArgument> ArgumentsOf(const std::vector<Argument>& rows) {
    if (rows.size() > MostArguments) throw std::length_error("a method has too many arguments");
    std::vector<PythonArgument> arguments;
    for (const Argument& row : rows) {
        arguments.push_back(
            {&row, TypeOf(row.type), Take(PyUnicode_InternFromString(MemberName(row.name).c_str()))});
    }
    return arguments;
}

/// What inspect.signature reads, before the comment.
std::string Documentation(const PythonClass& owner, const PythonMethod& method) {
    std::string text = method.name + "($self";
    for (const PythonArgument& argument : method.arguments) {
        text += ", " + TextOf(argument.name.get());
        // inspect knows no constants of enumerations here.
        if (argument.row->initial) {
            const auto* number = std::get_if<std::int32_t>(&*argument.row->initial);
            text +=
                "="
                + (number != nullptr ? std::to_string(*number) : Literal(*argument.row->initial, nullptr));
        }
    }
    if (method.result != nullptr && method.result->type->description != nullptr) text += ", **properties";
    return text + ")\n--\n\n" + Comment(owner.row->name, method.row->name);
}

}  // namespace

void SetAttributes(PyObject* object, PyObject* keywords) {
    Py_ssize_t at = 0;
    PyObject *name = nullptr, *value = nullptr;
    while (keywords != nullptr && PyDict_Next(keywords, &at, &name, &value) != 0)
        Check(PyObject_SetAttr(object, name, value));
}

void AddAttributes(PythonClass& to, std::string_view owner, std::span<const ClassProperty> rows) {
    for (const ClassProperty& row : rows) {
        PythonProperty& property =
            to.properties.emplace_back(PythonProperty{&row, TypeOf(row.type), MemberName(row.name)});
        const bool isIndexed = !row.arguments.empty();
        const auto get = row.get == nullptr ? nullptr : isIndexed ? GetIndexed : GetAttribute;
        const auto set = row.set == nullptr || isIndexed ? nullptr : SetAttribute;
        to.attributes.push_back({property.name.c_str(), get, set, Comment(owner, row.name), &property});
    }
    to.attributes.push_back({});
}

void AddMethods(PythonClass& to) {
    if (to.row->methods.size() > MostMethods) throw std::length_error("a class has too many methods");
    for (const ClassMethod& row : to.row->methods) {
        const std::size_t place = to.methods.size();
        PythonMethod& method = to.methods.emplace_back(
            PythonMethod{&row, TypeOf(row.result), MemberName(row.name), ArgumentsOf(row.arguments)});
        if (row.name == to.row->defaultMember && to.row->items != nullptr) {
            to.items = &method;  // Python has [] for it
            continue;
        }
        // What Python has of its own takes the place of what is described.
        const auto isSame = [&](const PyMethodDef& own) { return own.ml_name == method.name; };
        if (std::any_of(to.functions.begin(), to.functions.end(), isSame)) continue;
        const auto function = reinterpret_cast<PyCFunction>(reinterpret_cast<void (*)()>(Methods[place]));
        to.functions.push_back(
            {method.name.c_str(), function, METH_FASTCALL | METH_KEYWORDS, Keep(Documentation(to, method))});
    }
}

}  // namespace draftwick::python
