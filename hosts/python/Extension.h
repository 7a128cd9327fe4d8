#pragma once

// CPython's stable interface: one file serves all versions from 3.10 on. Python.h comes before all else.
#include <Python.h>

#include <draftwick/draftwick.h>

#include <deque>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

namespace draftwick::python {

/// Python has an error set: unwinds to the border, which is Guarded.
struct PythonError {};

/// An owned reference, also an empty one.
class Owned {
public:
    Owned() = default;
    explicit Owned(PyObject* object) noexcept : object_(object) {}
    Owned(Owned&& other) noexcept : object_(std::exchange(other.object_, nullptr)) {}
    Owned& operator=(Owned&& other) noexcept {
        std::swap(object_, other.object_);
        return *this;
    }
    ~Owned() { Py_XDECREF(object_); }

    PyObject* get() const noexcept { return object_; }
    PyObject* release() noexcept { return std::exchange(object_, nullptr); }

private:
    PyObject* object_ = nullptr;
};

/// What a call of Python gave; PythonError when it failed.
inline PyObject* Checked(PyObject* object) {
    if (object == nullptr) throw PythonError{};
    return object;
}
inline Owned Take(PyObject* object) { return Owned(Checked(object)); }
inline void Check(int status) {
    if (status != 0) throw PythonError{};
}

/// With a format as PyErr_Format has it.
template <class... Arguments>
[[noreturn]] void RaisePython(PyObject* type, const char* format, Arguments... arguments) {
    PyErr_Format(type, format, arguments...);
    throw PythonError{};
}

/// Sets Python's error from the exception that is being handled.
void SetErrorFromException() noexcept;

/// The border: no exception of C++ crosses it.
template <class Failed, class Work>
Failed Guarded(Failed failed, const Work& work) noexcept {
    try {
        return work();
    } catch (...) {
        SetErrorFromException();
    }
    return failed;
}
template <class Work>
PyObject* Guarded(const Work& work) noexcept {
    return Guarded<PyObject*>(nullptr, work);
}

/// What Python's objects of one document share. Each of them keeps the document: Document().add_section() works.
/// Counted by hand, since the interpreter's lock is held wherever it is used.
struct Keeper {
    std::shared_ptr<Object> document;
    std::size_t users = 0;
    bool busy = false;  ///< the document is being written to a Python object, whose code must not use it
};

/// An object of the library as Python has it.
struct Wrapper {
    PyObject_HEAD std::shared_ptr<Object> object;
    Keeper* keeper;
};
inline Wrapper& AsWrapper(PyObject* object) { return *reinterpret_cast<Wrapper*>(object); }

/// A type of the descriptions as Python has it.
struct PythonType {
    const draftwick::Type* row = nullptr;
    PyTypeObject* objects = nullptr;  ///< of a class
    Owned constants{};  ///< of an enumeration, in the order of the description; made when first used
};

/// A property behind its attribute, or a method.
template <class Row>
struct Member {
    const Row* row;
    const char* name;
    PythonType* type;               ///< of what it gives; nullptr: nothing
    PyObject* arguments = nullptr;  ///< the names of a method's arguments, a tuple
};

struct PythonClass {
    PyTypeObject* type = nullptr;
    std::deque<Member<ClassProperty>> properties{};
    std::deque<Member<ClassMethod>> methods{};
    const Member<ClassMethod>* items = nullptr;  ///< of a collection
    std::vector<PyGetSetDef> attributes{};
    std::vector<PyMethodDef> functions{};
};

/// All that the module has; it lives as long as the process.
struct State {
    std::unordered_map<const Class*, PythonClass> classes{};
    std::map<const draftwick::Type*, PythonType> types{};
    PythonClass common{};  ///< what all classes have
    // What the package has in Python.
    PyObject *texts, *enumeration, *plain, *indexed, *datetime, *intEnum;
};
State& Module();
PythonType* TypeOf(const draftwick::Type* type);

/// The library's object behind one of Python's. Refuses while its document is being written.
inline Object& Use(PyObject* self) {
    Wrapper& wrapper = AsWrapper(self);
    if (wrapper.keeper->busy) detail::RaiseRuntimeError(dwRunInvalidCall, "the document is being written");
    return *wrapper.object;
}

/// A value of a declared type: constants of enumerations, "#rrggbb", paths by the rules of the system. No type: None.
PyObject* ToPython(Variant&& value, PythonType* type, Keeper* keeper);

/// What Python gives where a declared type is wanted, by the object it is given to. TypeError, or error 13, for what is no
/// such value.
Variant FromPython(PyObject* value, const draftwick::Type& type, const Object& object);

/// Python's object of an object of the library.
PyObject* Wrap(std::shared_ptr<Object> object, PyTypeObject* type, Keeper* keeper);
bool IsWrapper(PyObject* value);

PyObject* PythonText(const std::string& text);

/// UTF-8. Half a surrogate pair has no place in it: one that Python has for a byte of a file name gives that byte, which the
/// library reads as U+FFFD; any other gives "?".
std::string TextOf(PyObject* text);

/// What Python calls a class, a member ("Section.AddParagraph") or an enumeration, its docstring and its arguments.
struct Wording {
    const char* name = nullptr;
    const char* doc = nullptr;
    PyObject* arguments = nullptr;
};
Wording WordingOf(std::string_view owner, std::string_view member = {});

void AddAttributes(PythonClass& to, std::string_view owner, std::span<const ClassProperty> rows);
void AddMethods(PythonClass& to, const Class& row);
/// A property with an argument: _item(name, index) gives it, _item(name, index, value) sets it.
PyObject* IndexedItem(PyObject* self, PyObject* arguments);

template <class Function>
void* Slot(Function* function) {
    return reinterpret_cast<void*>(function);
}

/// [], len, for, in.
std::vector<PyType_Slot> ItemSlots();

}  // namespace draftwick::python
