#pragma once

#include <hosts/python/State.h>

namespace draftwick::python {

/// A value of a declared type: constants of enumerations, "#rrggbb", paths by the rules of the system. nullptr stands for
/// no declared type.
PyObject* ToPython(Variant&& value, PythonType* type, Keeper* keeper);

/// What Python gives where a declared type is wanted, by the object it is given to. TypeError, or error 13, for what is no
/// such value.
Variant FromPython(PyObject* value, const draftwick::Type* type, const Object& object);

/// Python's object of an object of the library; None for none.
PyObject* Wrap(ObjectPointer object, PyTypeObject* type, Keeper* keeper);
bool IsWrapper(PyObject* value);

/// Python's type of an enumeration, made when it is first used.
PyObject* EnumerationOf(PythonType& type);

PyObject* PythonText(const std::string& text);

}  // namespace draftwick::python
