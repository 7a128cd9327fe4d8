#pragma once

#include <hosts/python/Interpreter.h>

#include <cstdint>
#include <deque>
#include <map>
#include <unordered_map>
#include <vector>

namespace draftwick::python {

/// What Python's objects of one document share. Each of them keeps the document: Document().add_section() works.
/// Counted by hand, since the interpreter's lock is held wherever it is used.
struct Keeper {
    ObjectPointer document;
    std::size_t users = 0;
    bool busy = false;  ///< the document is being written to a Python object, whose code must not use it
};

/// An object of the library as Python has it.
struct Wrapper {
    PyObject_HEAD ObjectPointer object;
    Keeper* keeper;
};

/// A type of the descriptions as Python has it.
struct PythonType {
    const draftwick::Type* type = nullptr;
    PyTypeObject* objects = nullptr;  ///< of a class
    std::vector<PyObject*>
        values{};  ///< of an enumeration, in the order of the description; made when first used
    Owned enumeration{};
};

struct PythonArgument {
    const Argument* row;
    const PythonType* type;
    Owned name;
};

/// A property, behind its attribute.
struct PythonProperty {
    const ClassProperty* row;
    PythonType* type;
    std::string name;
    std::vector<PythonArgument> arguments{};
};

struct PythonMethod {
    const ClassMethod* row;
    PythonType* result;  ///< nullptr: nothing
    std::string name;
    std::vector<PythonArgument> arguments{};
};

struct PythonClass {
    const Class* row = nullptr;
    PyTypeObject* type = nullptr;
    std::deque<PythonProperty> properties{};
    std::deque<PythonMethod> methods{};
    const PythonMethod* items = nullptr;  ///< of a collection
    std::vector<PyGetSetDef> attributes{};
    std::vector<PyMethodDef> functions{};
};

/// All that the module has; it lives as long as the process.
struct State {
    std::unordered_map<const Class*, PythonClass> classes{};
    std::map<const draftwick::Type*, PythonType> types{};
    std::map<std::int32_t, PyObject*> errors{};  ///< the types of exceptions by number
    std::deque<std::string> texts{};             ///< what Python's tables point to
    PythonClass common{};                        ///< what all classes have
    PyObject* error = nullptr;
    PyTypeObject* object = nullptr;   ///< the base of all types
    PyTypeObject* indexed = nullptr;  ///< what a property with an argument gives
    PyObject* datetime = nullptr;
    PyObject* date = nullptr;
    PyObject* intEnum = nullptr;
};
State& Module();

inline Wrapper& AsWrapper(PyObject* object) { return *reinterpret_cast<Wrapper*>(object); }

/// The library's object behind one of Python's. Refuses while its document is being written.
inline Object& Use(PyObject* self) {
    Wrapper& wrapper = AsWrapper(self);
    if (wrapper.keeper->busy) detail::RaiseRuntimeError(dwRunInvalidCall, "the document is being written");
    return *wrapper.object;
}

}  // namespace draftwick::python
