#include <hosts/python/Errors.h>

#include <hosts/python/Comments.h>
#include <hosts/python/Names.h>
#include <hosts/python/Values.h>

#include <new>
#include <system_error>

namespace draftwick::python {

namespace {

void SetError(const Error& error) {
    const auto found = Module().errors.find(error.Number());
    PyObject* type = found == Module().errors.end() ? Module().error : found->second;
    const bool isAdvised = error.Advice() != error.what();
    const Owned text(PythonText(error.what()));
    const Owned advice(PythonText(isAdvised ? NamesInPython(error.Advice()) : std::string{}));
    const Owned value = Take(PyObject_CallFunctionObjArgs(type, text.get(), nullptr));
    const Owned number = Take(PyLong_FromLong(error.Number()));
    Check(PyObject_SetAttrString(value.get(), "number", number.get()));
    Check(PyObject_SetAttrString(value.get(), "advice", advice.get()));
    PyErr_SetObject(type, value.get());
}

/// OSError makes itself one of its own kinds by the number: FileNotFoundError, PermissionError.
void SetSystemError(const std::system_error& error, const std::string& filename) {
    const Owned text(PythonText(filename.empty() ? error.what() : error.code().message()));
    const Owned name =
        Take(PyUnicode_DecodeFSDefaultAndSize(filename.data(), static_cast<Py_ssize_t>(filename.size())));
    const Owned arguments = filename.empty()
                                ? Take(Py_BuildValue("(iO)", error.code().value(), text.get()))
                                : Take(Py_BuildValue("(iOO)", error.code().value(), text.get(), name.get()));
    PyErr_SetObject(PyExc_OSError, arguments.get());
}

PyObject* BuiltIn(const char* name) {
    return Checked(PyObject_GetAttrString(Take(PyImport_ImportModule("builtins")).get(), name));
}

}  // namespace

void RaisePython(PyObject* type, const std::string& text) {
    PyErr_SetString(type, text.c_str());
    throw PythonError{};
}

void AddErrors(PyObject* module) {
    State& state = Module();
    state.error = Checked(PyErr_NewExceptionWithDoc(
        "draftwick.Error", "What Draftwick refuses. Nothing has changed.", PyExc_Exception, nullptr));
    Check(PyModule_AddObjectRef(module, "Error", state.error));
    for (const draftwick::Type* type : Enumerations()) {
        if (!hosts::AreErrorNumbers(*type)) continue;
        for (const EnumerationValue& value : type->values) {
            const std::string name{hosts::PlainValueName(*type, value)};
            const std::string relative{RelativeOf(value.value)};
            const Owned bases = relative.empty()
                                    ? Take(Py_BuildValue("(O)", state.error))
                                    : Take(Py_BuildValue("(ON)", state.error, BuiltIn(relative.c_str())));
            PyObject* error = Checked(PyErr_NewExceptionWithDoc(
                ("draftwick." + name).c_str(), Comment(type->name, value.name), bases.get(), nullptr));
            state.errors[value.value] = error;
            Check(PyModule_AddObjectRef(module, name.c_str(), error));
        }
    }
}

void SetErrorFromException() noexcept {
    try {
        try {
            throw;
        } catch (const PythonError&) {
        } catch (const Error& error) {
            SetError(error);
        } catch (const FileError& error) {
            SetSystemError(error, error.Filename());
        } catch (const std::system_error& error) {
            SetSystemError(error, {});
        } catch (const std::bad_alloc&) {
            PyErr_NoMemory();
        } catch (const std::exception& error) {
            PyErr_SetString(PyExc_RuntimeError, error.what());
        }
    } catch (const PythonError&) {
    } catch (const std::exception&) {
        PyErr_NoMemory();
    }
}

}  // namespace draftwick::python
