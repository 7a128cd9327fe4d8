#include <hosts/python/Errors.h>
#include <hosts/python/Types.h>
#include <hosts/python/Values.h>

/// What Python has of documents that no description can say.
namespace draftwick::python {

namespace {

PyObject* Enter(PyObject* self, PyObject*) { return Py_NewRef(self); }

/// Finishes the document, unless an exception is on its way.
PyObject* Exit(PyObject* self, PyObject* arguments) {
    return Guarded([&] {
        if (PyTuple_Size(arguments) == 0 || PyTuple_GetItem(arguments, 0) == Py_None)
            Take(PyObject_CallMethod(self, "finish", nullptr));
        return Py_NewRef(Py_None);
    });
}

}  // namespace

void AddDocumentMethods(PythonClass& to) {
    if (to.row != &Document::Describe()) return;
    to.functions.push_back({"__enter__", Enter, METH_NOARGS, nullptr});
    to.functions.push_back({"__exit__", Exit, METH_VARARGS, nullptr});
}

/// Python has no programs that want the classic spelling.
void PrepareNew(Object& object) {
    if (auto* document = dynamic_cast<Document*>(&object)) document->SetSpelling(dwSpellingStandard);
}

}  // namespace draftwick::python
