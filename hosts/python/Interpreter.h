#pragma once

// CPython's stable interface: one file serves all versions from 3.10 on. Python.h comes before all else.
#include <Python.h>

#include <draftwick/draftwick.h>

#include <memory>
#include <string>
#include <string_view>
#include <utility>

namespace draftwick::python {

using ObjectPointer = std::shared_ptr<Object>;

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

[[noreturn]] void RaisePython(PyObject* type, const std::string& text);

/// UTF-8. Half a surrogate pair has no place in it: one that Python has for a byte of a file name gives that byte, which the
/// library reads as U+FFFD; any other gives "?".
std::string TextOf(PyObject* text);

}  // namespace draftwick::python
