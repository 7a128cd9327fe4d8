#include <hosts/python/Types.h>

#include <hosts/python/Errors.h>
#include <hosts/python/Values.h>

#include <algorithm>

namespace draftwick::python {

namespace {

/// The class that a type was made for, also when the type is derived from it in Python; nullptr for the base of all.
const Class* ClassOf(PyTypeObject* type) {
    for (; type != Module().object; type = static_cast<PyTypeObject*>(PyType_GetSlot(type, Py_tp_base))) {
        for (const auto& [row, one] : Module().classes) {
            if (one.type == type) return row;
        }
    }
    return nullptr;
}

PyObject* New(PyTypeObject* type, PyObject*, PyObject*) {
    return Guarded([&]() -> PyObject* {
        const Class* row = ClassOf(type);
        if (row == nullptr || row->create == nullptr)
            RaisePython(PyExc_TypeError, "such an object is not made by itself: other objects give it");
        ObjectPointer object = row->create();
        PrepareNew(*object);
        auto keeper = std::make_unique<Keeper>(Keeper{object});
        PyObject* made = Wrap(std::move(object), type, keeper.get());
        keeper.release();
        return made;
    });
}

/// Document("letter.rtf", margin_left="2cm"): a path can go unnamed, all else are properties by name.
int Initialise(PyObject* self, PyObject* arguments, PyObject* keywords) {
    return Guarded(-1, [&] {
        const Py_ssize_t given = PyTuple_Size(arguments);
        const auto& properties = Use(self).Description().properties;
        const auto path =
            std::find_if(properties.begin(), properties.end(), [](const ClassProperty& property) {
                return property.set != nullptr && property.type->kind == Kind::Path;
            });
        if (given > (path == properties.end() ? 0 : 1))
            RaisePython(PyExc_TypeError, "too many arguments without a name");
        if (given == 1 && PyTuple_GetItem(arguments, 0) != Py_None) {
            const Variant value = FromPython(PyTuple_GetItem(arguments, 0), path->type, Use(self));
            path->set(Use(self), {&value, 1});
        }
        SetAttributes(self, keywords);
        return 0;
    });
}

void Deallocate(PyObject* self) {
    Wrapper& wrapper = AsWrapper(self);
    PyTypeObject* type = Py_TYPE(self);
    wrapper.object.~ObjectPointer();
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

}  // namespace

const char* Keep(std::string text) { return Module().texts.emplace_back(std::move(text)).c_str(); }

PyTypeObject* MakeType(const std::string& name, std::size_t size, unsigned flags,
                       std::vector<PyType_Slot> slots, PyTypeObject* base) {
    slots.push_back({0, nullptr});
    PyType_Spec spec{Keep("draftwick." + name), static_cast<int>(size), 0,
                     static_cast<unsigned>(Py_TPFLAGS_DEFAULT) | flags, slots.data()};
    return reinterpret_cast<PyTypeObject*>(
        Checked(PyType_FromSpecWithBases(&spec, reinterpret_cast<PyObject*>(base))));
}

void AddTypes(PyObject* module) {
    State& state = Module();
    const auto add = [&](const std::string& name, PyTypeObject* type) {
        Check(PyModule_AddObjectRef(module, name.c_str(), reinterpret_cast<PyObject*>(type)));
    };
    state.indexed = MakeIndexedType();
    add("IndexedProperty", state.indexed);
    AddAttributes(state.common, "Object", CommonProperties());
    state.object = MakeType("Object", sizeof(Wrapper), Py_TPFLAGS_BASETYPE,
                            {{Py_tp_new, Slot(New)},
                             {Py_tp_init, Slot(Initialise)},
                             {Py_tp_dealloc, Slot(Deallocate)},
                             {Py_tp_richcompare, Slot(Compare)},
                             {Py_tp_hash, Slot(Hash)},
                             {Py_tp_repr, Slot(Represent)},
                             {Py_tp_getset, state.common.attributes.data()},
                             {Py_tp_doc, const_cast<char*>("What all objects of the model are.")}});
    add("Object", state.object);
    for (const Class* row : Classes()) {
        PythonClass& one = state.classes.try_emplace(row, PythonClass{row}).first->second;
        AddAttributes(one, row->name, row->properties);
        AddDocumentMethods(one);
        AddMethods(one);
        one.functions.push_back({});
        std::vector<PyType_Slot> slots{{Py_tp_getset, one.attributes.data()},
                                       {Py_tp_methods, one.functions.data()},
                                       {Py_tp_doc, const_cast<char*>(Comment(row->name))}};
        if (one.items != nullptr) AddItems(one, slots);
        one.type = MakeType(std::string{row->name}, sizeof(Wrapper),
                            row->create != nullptr ? static_cast<unsigned>(Py_TPFLAGS_BASETYPE) : 0,
                            std::move(slots), state.object);
        add(std::string{row->name}, one.type);
    }
    for (auto& [type, made] : state.types) {
        if (type->description != nullptr) made.objects = state.classes.at(&type->description()).type;
    }
}

}  // namespace draftwick::python
