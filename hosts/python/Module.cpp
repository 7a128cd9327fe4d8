#include <hosts/model/Json.h>
#include <hosts/python/Extension.h>

#include <new>
#include <system_error>

namespace draftwick::python {

State& Module() {
    // Never destroyed: Python's types point to it until the process ends.
    static auto& state = *new State;
    return state;
}

Wording WordingOf(std::string_view owner, std::string_view member) {
    std::string key{owner};
    if (!member.empty()) key.append(".").append(member);
    Wording wording;
    PyObject* const found = PyDict_GetItemString(Module().texts, key.c_str());
    if (found == nullptr) RaisePython(PyExc_ImportError, "no text of %s", key.c_str());
    if (PyArg_ParseTuple(found, "ss|O", &wording.name, &wording.doc, &wording.arguments) == 0)
        throw PythonError{};
    return wording;
}

// Errors.

namespace {

PyObject* Import(const char* module, const char* name) {
    return Checked(PyObject_GetAttrString(Take(PyImport_ImportModule(module)).get(), name));
}

void SetError(const Error& error) {
    const Owned refusal(Import("draftwick._errors", "refusal"));
    const std::string advice = error.Advice() == error.what() ? std::string{} : std::string{error.Advice()};
    const Owned made = Take(PyObject_CallFunction(refusal.get(), "iNN", error.Number(),
                                                  PythonText(error.what()), PythonText(advice)));
    PyErr_SetObject(reinterpret_cast<PyObject*>(Py_TYPE(made.get())), made.get());
}

/// OSError makes itself one of its own kinds by the number: FileNotFoundError, PermissionError.
void SetSystemError(int number, const std::string& text, const std::string& filename) {
    const auto size = static_cast<Py_ssize_t>(filename.size());
    PyObject* const name =
        filename.empty() ? Py_NewRef(Py_None) : PyUnicode_DecodeFSDefaultAndSize(filename.data(), size);
    const Owned arguments = Take(Py_BuildValue("(iNN)", number, PythonText(text), name));
    PyErr_SetObject(PyExc_OSError, arguments.get());
}

}  // namespace

void SetErrorFromException() noexcept {
    try {
        try {
            throw;
        } catch (const PythonError&) {
        } catch (const Error& error) {
            SetError(error);
        } catch (const FileError& error) {
            SetSystemError(error.code().value(), error.code().message(), error.Filename());
        } catch (const std::system_error& error) {
            SetSystemError(error.code().value(), error.what(), {});
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

// Objects.

namespace {

/// Of a class, also when the type is derived from it in Python, whose objects are made by themselves.
PyObject* New(PyTypeObject* type, PyObject*, PyObject*) {
    return Guarded([&]() -> PyObject* {
        for (auto* base = type; base != nullptr;
             base = static_cast<PyTypeObject*>(PyType_GetSlot(base, Py_tp_base))) {
            for (const auto& [row, one] : Module().classes) {
                if (one.type != base || row->create == nullptr) continue;
                auto keeper = std::make_unique<Keeper>(Keeper{row->create()});
                // Python has no programs that want the classic spelling, or the temporary files of documents that they
                // let go.
                if (auto* document = dynamic_cast<Document*>(keeper->document.get())) {
                    document->SetSpelling(dwSpellingStandard);
                    document->SetDiscardOnRelease(true);
                }
                PyObject* const made = Wrap(keeper->document, type, keeper.get());
                keeper.release();
                return made;
            }
        }
        RaisePython(PyExc_TypeError, "such an object is not made by itself: other objects give it");
    });
}

void Deallocate(PyObject* self) {
    Wrapper& wrapper = AsWrapper(self);
    PyTypeObject* type = Py_TYPE(self);
    std::destroy_at(&wrapper.object);
    if (--wrapper.keeper->users == 0) delete wrapper.keeper;
    reinterpret_cast<freefunc>(PyType_GetSlot(type, Py_tp_free))(self);
    Py_DECREF(reinterpret_cast<PyObject*>(type));
}

PyObject* Compare(PyObject* self, PyObject* other, int how) {
    if ((how != Py_EQ && how != Py_NE) || !IsWrapper(other)) return Py_NewRef(Py_NotImplemented);
    const bool same = AsWrapper(self).object == AsWrapper(other).object;
    return PyBool_FromLong((how == Py_EQ) == same ? 1 : 0);
}

Py_hash_t Hash(PyObject* self) {
    return static_cast<Py_hash_t>(reinterpret_cast<std::uintptr_t>(AsWrapper(self).object.get()) >> 4);
}

/// With the first text that nobody can change, which is its name.
PyObject* Represent(PyObject* self) {
    return Guarded([&] {
        Object& object = *AsWrapper(self).object;
        const Class& row = object.Description();
        std::string text = "<draftwick." + std::string{row.name};
        for (const ClassProperty& property : row.properties) {
            const bool isName =
                property.set == nullptr && property.type->kind == Kind::Text && row.create == nullptr;
            if (!isName || AsWrapper(self).keeper->busy) continue;
            text += " '" + std::get<std::string>(property.get(object, {})) + "'";
            break;
        }
        return PythonText(text + ">");
    });
}

/// Finishes the document into a function that takes the bytes of its file, one piece after the other. Meanwhile nothing of
/// the document can be used.
PyObject* FinishTo(PyObject* self, PyObject* write) {
    return Guarded([&] {
        auto& document = static_cast<Document&>(Use(self));
        AsWrapper(self).keeper->busy = true;
        const std::unique_ptr<Keeper, void (*)(Keeper*)> busy(AsWrapper(self).keeper,
                                                              [](Keeper* keeper) { keeper->busy = false; });
        document.FinishTo([&](std::string_view bytes) {
            Take(PyObject_CallFunction(write, "y#", bytes.data(), static_cast<Py_ssize_t>(bytes.size())));
        });
        return Py_NewRef(Py_None);
    });
}

// The module.

void AddType(PyObject* module, PythonClass& to, const Wording& wording, unsigned flags,
             std::vector<PyType_Slot> slots) {
    to.functions.push_back({});
    slots.push_back({Py_tp_getset, to.attributes.data()});
    slots.push_back({Py_tp_methods, to.functions.data()});
    slots.push_back({Py_tp_doc, const_cast<char*>(wording.doc)});
    slots.push_back({0, nullptr});
    PyType_Spec layout{wording.name, sizeof(Wrapper), 0, Py_TPFLAGS_DEFAULT | flags, slots.data()};
    auto* const base = reinterpret_cast<PyObject*>(Module().common.type);
    to.type = reinterpret_cast<PyTypeObject*>(Checked(PyType_FromSpecWithBases(&layout, base)));
    Check(PyModule_AddType(module, to.type));
}

void AddTypes(PyObject* module) {
    State& state = Module();
    AddAttributes(state.common, "Object", CommonProperties());
    state.common.functions.push_back({"_item", IndexedItem, METH_VARARGS, nullptr});
    AddType(module, state.common, WordingOf("Object"), Py_TPFLAGS_BASETYPE,
            {{Py_tp_new, Slot(New)},
             {Py_tp_dealloc, Slot(Deallocate)},
             {Py_tp_richcompare, Slot(Compare)},
             {Py_tp_hash, Slot(Hash)},
             {Py_tp_repr, Slot(Represent)}});
    for (const Class* row : Classes()) {
        PythonClass& one = state.classes[row];
        AddAttributes(one, row->name, row->properties);
        AddMethods(one, *row);
        if (row == &Document::Describe()) one.functions.push_back({"_finish_to", FinishTo, METH_O, nullptr});
        AddType(module, one, WordingOf(row->name), row->create == nullptr ? 0 : Py_TPFLAGS_BASETYPE,
                one.items == nullptr ? std::vector<PyType_Slot>{} : ItemSlots());
    }
    for (auto& [type, made] : state.types) {
        if (type->description != nullptr) made.objects = state.classes.at(&type->description()).type;
    }
}

PyObject* Describe(PyObject*, PyObject*) {
    return Guarded([] { return PythonText(hosts::DescribeAsJson()); });
}

PyMethodDef functions[] = {
    {"_describe", Describe, METH_NOARGS, "The whole object model as JSON: classes, members, enumerations."},
    {}};

int Execute(PyObject* module) {
    return Guarded(-1, [&] {
        State& state = Module();
        if (PyInterpreterState_GetID(PyInterpreterState_Get()) != 0 || state.common.type != nullptr)
            RaisePython(PyExc_ImportError,
                        "draftwick can be imported once in a process, by its main interpreter");
        state.texts = Import("draftwick._texts", "TEXTS");
        state.enumeration = Import("draftwick._values", "enumeration");
        state.plain = Import("draftwick._values", "plain");
        state.indexed = Import("draftwick._values", "IndexedProperty");
        state.datetime = Import("datetime", "datetime");
        state.intEnum = Import("enum", "IntEnum");
        AddTypes(module);
        const Owned version =
            Take(PyUnicode_FromFormat("%d.%d.%d", VersionMajor, VersionMinor, VersionRevision));
        Check(PyModule_AddObjectRef(module, "__version__", version.get()));
        return 0;
    });
}

PyModuleDef_Slot slots[] = {{Py_mod_exec, Slot(Execute)}, {0, nullptr}};
PyModuleDef definition{
    PyModuleDef_HEAD_INIT, "draftwick._draftwick", nullptr, 0, functions, slots, nullptr, nullptr, nullptr};

}  // namespace

}  // namespace draftwick::python

PyMODINIT_FUNC PyInit__draftwick() { return PyModuleDef_Init(&draftwick::python::definition); }
