#pragma once

#include <hosts/python/Comments.h>
#include <hosts/python/State.h>

#include <span>
#include <string>
#include <string_view>

namespace draftwick::python {

/// Makes Python's types of all classes and adds them to the module.
void AddTypes(PyObject* module);

/// A type with these slots and no others of its own.
PyTypeObject* MakeType(const std::string& name, std::size_t size, unsigned flags,
                       std::vector<PyType_Slot> slots, PyTypeObject* base = nullptr);

/// A text that lives as long as the module.
const char* Keep(std::string text);

// What the types are made of.

void AddAttributes(PythonClass& to, std::string_view owner, std::span<const ClassProperty> rows);
PyTypeObject* MakeIndexedType();
void AddMethods(PythonClass& to);
/// [], len, for, in.
void AddItems(const PythonClass& to, std::vector<PyType_Slot>& slots);
/// What Python has and the descriptions have not: `with`, finish to a file or to bytes.
void AddDocumentMethods(PythonClass& to);
/// The properties that a new document begins with in Python.
void PrepareNew(Object& object);

/// Sets attributes; `keywords` can be null.
void SetAttributes(PyObject* object, PyObject* keywords);

template <class Function>
void* Slot(Function* function) {
    return reinterpret_cast<void*>(function);
}

}  // namespace draftwick::python
