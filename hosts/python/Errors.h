#pragma once

#include <hosts/python/State.h>

namespace draftwick::python {

/// Error and one type for each number, like PropertyOutOfRange, added to the module.
void AddErrors(PyObject* module);

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

}  // namespace draftwick::python
