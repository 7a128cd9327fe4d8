#include <hosts/model/Json.h>
#include <hosts/python/Errors.h>
#include <hosts/python/Names.h>
#include <hosts/python/Types.h>
#include <hosts/python/Values.h>

namespace draftwick::python {

State& Module() {
    // Never destroyed: Python's types point to it until the process ends.
    static auto& state = *new State;
    return state;
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
    return {PyBytes_AsString(bytes.get()), static_cast<std::size_t>(PyBytes_Size(bytes.get()))};
}

namespace {

PyObject* Describe(PyObject*, PyObject*) {
    return Guarded([] { return PythonText(hosts::DescribeAsJson()); });
}

/// Enumerations are made when they are first asked for: all of them take longer than all else at import.
PyObject* FindEnumeration(PyObject*, PyObject* name) {
    return Guarded([&] {
        const std::string wanted = PyUnicode_Check(name) != 0 ? TextOf(name) : std::string{};
        for (const draftwick::Type* type : Enumerations()) {
            if (hosts::AreErrorNumbers(*type) || hosts::PlainName(*type) != wanted) continue;
            PythonType& found = Module().types[type];
            found.type = type;
            return Py_NewRef(EnumerationOf(found));
        }
        RaisePython(PyExc_AttributeError, "module 'draftwick' has no attribute '" + wanted + "'");
    });
}

PyObject* EnumerationNames(PyObject*, PyObject*) {
    return Guarded([] {
        Owned names = Take(PyList_New(0));
        for (const draftwick::Type* type : Enumerations()) {
            if (hosts::AreErrorNumbers(*type)) continue;
            const Owned name(PythonText(hosts::PlainName(*type)));
            Check(PyList_Append(names.get(), name.get()));
        }
        return names.release();
    });
}

PyMethodDef functions[] = {
    {"_describe", Describe, METH_NOARGS, "The whole object model as JSON: classes, members, enumerations."},
    {"_enumeration", FindEnumeration, METH_O, nullptr},
    {"_enumeration_names", EnumerationNames, METH_NOARGS, nullptr},
    {}};

PyObject* Import(const char* module, const char* name) {
    return Checked(PyObject_GetAttrString(Take(PyImport_ImportModule(module)).get(), name));
}

int Execute(PyObject* module) {
    return Guarded(-1, [&] {
        State& state = Module();
        if (PyInterpreterState_GetID(PyInterpreterState_Get()) != 0 || state.object != nullptr)
            RaisePython(PyExc_ImportError,
                        "draftwick can be imported once in a process, by its main interpreter");
        state.datetime = Import("datetime", "datetime");
        state.date = Import("datetime", "date");
        state.intEnum = Import("enum", "IntEnum");
        AddErrors(module);
        AddTypes(module);
        const std::string version = std::to_string(VersionMajor) + '.' + std::to_string(VersionMinor) + '.'
                                    + std::to_string(VersionRevision);
        Check(PyModule_AddStringConstant(module, "__version__", version.c_str()));
        return 0;
    });
}

PyModuleDef_Slot slots[] = {{Py_mod_exec, Slot(Execute)}, {0, nullptr}};
PyModuleDef definition{
    PyModuleDef_HEAD_INIT, "draftwick._draftwick", nullptr, 0, functions, slots, nullptr, nullptr, nullptr};

}  // namespace

}  // namespace draftwick::python

PyMODINIT_FUNC PyInit__draftwick() { return PyModuleDef_Init(&draftwick::python::definition); }
