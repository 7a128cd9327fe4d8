#include <hosts/python/Extension.h>

#include <algorithm>
#include <array>
#include <stdexcept>

/// Attributes and methods: CPython's own descriptors, with the rows of the class table behind them.
namespace draftwick::python {

namespace {

/// Uses a member: what is refused says by which.
template <class Row, class Action>
auto Using(PyObject* self, const Row& row, const Action& action) {
    try {
        return action(Use(self));
    } catch (Error& error) {
        NameMember(error, *AsWrapper(self).object, row.name);
        throw;
    }
}

PyObject* GetAttribute(PyObject* self, void* closure) {
    return Guarded([&] {
        const auto& property = *static_cast<const Member<ClassProperty>*>(closure);
        const auto read = [&](Object& object) { return property.row->get(object, {}); };
        return ToPython(Using(self, *property.row, read), property.type, AsWrapper(self).keeper);
    });
}

int SetAttribute(PyObject* self, PyObject* value, void* closure) {
    return Guarded(-1, [&] {
        const auto& property = *static_cast<const Member<ClassProperty>*>(closure);
        if (value == nullptr) RaisePython(PyExc_AttributeError, "%s cannot be deleted", property.name);
        Using(self, *property.row, [&](Object& object) {
            const Variant plain = FromPython(value, *property.row->type, object);
            property.row->set(Use(self), {&plain, 1});
        });
        return 0;
    });
}

/// What a property with an argument gives: shape.adjust_values[1] = 5400.
PyObject* GetIndexed(PyObject* self, void* closure) {
    return Guarded([&] {
        const std::string name{static_cast<const Member<ClassProperty>*>(closure)->row->name};
        return Checked(PyObject_CallFunction(Module().indexed, "Os", self, name.c_str()));
    });
}

/// What a call gives that is no argument of the method is set on what it gives: add_cell(width=2). Refused before anything
/// is added.
void KeepSetting(const Member<ClassMethod>& method, Owned& settings, PyObject* name, PyObject* value) {
    auto* const type = reinterpret_cast<PyObject*>(method.type == nullptr ? nullptr : method.type->objects);
    if (type == nullptr || PyObject_HasAttr(type, name) == 0)
        RaisePython(PyExc_TypeError, "%s() got an unexpected keyword argument '%U'", method.name, name);
    if (settings.get() == nullptr) settings = Take(PyDict_New());
    Check(PyDict_SetItem(settings.get(), name, value));
}

void SetAttributes(PyObject* object, PyObject* settings) {
    Py_ssize_t at = 0;
    PyObject *name = nullptr, *value = nullptr;
    while (PyDict_Next(settings, &at, &name, &value) != 0) Check(PyObject_SetAttr(object, name, value));
}

bool IsSame(PyObject* one, PyObject* other) { return one == other || PyUnicode_Compare(one, other) == 0; }

/// Most methods have few arguments, and room for more would take a tenth of a call.
constexpr std::size_t FewArguments = 2, MostArguments = 6;

template <std::size_t Most>
PyObject* CallMethod(const Member<ClassMethod>& method, PyObject* self, PyObject* const* given,
                     std::size_t positional, PyObject* keywords) {
    const auto& arguments = method.row->arguments;
    if (positional > arguments.size())
        RaisePython(PyExc_TypeError, "%s() takes at most %zu arguments, not %zu", method.name,
                    arguments.size(), positional);
    std::array<PyObject*, Most> found{};
    std::copy_n(given, positional, found.begin());
    Owned settings;
    const Py_ssize_t named = keywords == nullptr ? 0 : PyTuple_Size(keywords);
    for (Py_ssize_t i = 0; i < named; ++i) {
        PyObject* const name = PyTuple_GetItem(keywords, i);
        PyObject* const value = given[positional + static_cast<std::size_t>(i)];
        std::size_t at = 0;
        while (at < arguments.size()
               && !IsSame(PyTuple_GetItem(method.arguments, static_cast<Py_ssize_t>(at)), name))
            ++at;
        if (at == arguments.size()) {
            KeepSetting(method, settings, name, value);
        } else {
            if (found[at] != nullptr) RaisePython(PyExc_TypeError, "%s() got '%U' twice", method.name, name);
            found[at] = value;
        }
    }
    const auto call = [&](Object& object) {
        std::array<Variant, Most> values;
        for (std::size_t at = 0; at < arguments.size(); ++at) {
            if (found[at] != nullptr)
                values[at] = FromPython(found[at], *arguments[at].type, object);
            else if (arguments[at].initial)
                values[at] = *arguments[at].initial;
            else
                RaisePython(PyExc_TypeError, "%s() misses the argument '%U'", method.name,
                            PyTuple_GetItem(method.arguments, static_cast<Py_ssize_t>(at)));
        }
        return method.row->call(Use(self), {values.data(), arguments.size()});
    };
    Owned result(ToPython(Using(self, *method.row, call), method.type, AsWrapper(self).keeper));
    if (settings.get() != nullptr) SetAttributes(result.get(), settings.get());
    return result.release();
}

/// CPython's method descriptors tell a function nothing about itself, so there is one function for each place in a class
/// table; the class is that of the object.
constexpr std::size_t MostMethods = 16;
template <std::size_t Place>
PyObject* MethodAt(PyObject* self, PyObject* const* given, Py_ssize_t positional, PyObject* keywords) {
    return Guarded([&] {
        const auto& one = Module().classes.find(&AsWrapper(self).object->Description())->second;
        const auto& method = one.methods[Place];
        const auto call = method.row->arguments.size() <= FewArguments ? CallMethod<FewArguments>
                                                                       : CallMethod<MostArguments>;
        return call(method, self, given, static_cast<std::size_t>(positional), keywords);
    });
}
using FastMethod = PyObject* (*)(PyObject*, PyObject* const*, Py_ssize_t, PyObject*);
template <std::size_t... Place>
constexpr std::array<FastMethod, sizeof...(Place)> AllMethods(std::index_sequence<Place...>) {
    return {MethodAt<Place>...};
}
constexpr auto Methods = AllMethods(std::make_index_sequence<MostMethods>{});

}  // namespace

PythonType* TypeOf(const draftwick::Type* type) {
    if (type == nullptr) return nullptr;
    PythonType& made = Module().types[type];
    made.row = type;
    return &made;
}

PyObject* IndexedItem(PyObject* self, PyObject* arguments) {
    return Guarded([&] {
        const char* name = nullptr;
        PyObject *index = nullptr, *value = nullptr;
        if (PyArg_ParseTuple(arguments, "sO|O", &name, &index, &value) == 0) throw PythonError{};
        Object& object = Use(self);
        const ClassProperty* row = object.Description().FindProperty(name);
        if (row == nullptr || row->arguments.empty()) RaisePython(PyExc_AttributeError, "%s", name);
        if (value != nullptr && row->set == nullptr)
            RaisePython(PyExc_TypeError, "%s has no items that can be set",
                        WordingOf(object.Description().name, name).name);
        const auto use = [&](Object& at) -> Variant {
            std::array<Variant, 2> values{FromPython(index, *row->arguments[0].type, at)};
            if (value == nullptr) return row->get(Use(self), {values.data(), 1});
            values[1] = FromPython(value, *row->type, at);
            return row->set(Use(self), values);
        };
        return ToPython(Using(self, *row, use), TypeOf(row->type), AsWrapper(self).keeper);
    });
}

void AddAttributes(PythonClass& to, std::string_view owner, std::span<const ClassProperty> rows) {
    for (const ClassProperty& row : rows) {
        const auto [name, doc, arguments] = WordingOf(owner, row.name);
        auto& property =
            to.properties.emplace_back(Member<ClassProperty>{&row, name, TypeOf(row.type), arguments});
        const bool isIndexed = !row.arguments.empty();
        const auto get = row.get == nullptr ? nullptr : isIndexed ? GetIndexed : GetAttribute;
        const auto set = row.set == nullptr || isIndexed ? nullptr : SetAttribute;
        to.attributes.push_back({name, get, set, doc, &property});
    }
    to.attributes.push_back({});
}

void AddMethods(PythonClass& to, const Class& one) {
    for (const ClassMethod& row : one.methods) {
        const std::size_t place = to.methods.size();
        auto& method = to.methods.emplace_back(Member<ClassMethod>{&row, nullptr, TypeOf(row.result)});
        if (place >= MostMethods || row.arguments.size() > MostArguments)
            throw std::length_error("a class has too many methods, or a method too many arguments");
        if (one.items != nullptr && row.name == one.defaultMember) {
            to.items = &method;  // Python has [] for it
            continue;
        }
        const auto [name, doc, arguments] = WordingOf(one.name, row.name);
        method.name = name;
        method.arguments = arguments;
        const auto function = reinterpret_cast<PyCFunction>(reinterpret_cast<void (*)()>(Methods[place]));
        to.functions.push_back({name, function, METH_FASTCALL | METH_KEYWORDS, doc});
    }
}

}  // namespace draftwick::python
