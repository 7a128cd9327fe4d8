#include <hosts/python/Extension.h>

/// Collections as Python has them: by position from 0, by name or by the value of an enumeration.
namespace draftwick::python {

namespace {

const Member<ClassMethod>& ItemsOf(PyObject* self) {
    return *Module().classes.at(&AsWrapper(self).object->Description()).items;
}

Variant ItemAt(PyObject* self, Variant index) { return ItemsOf(self).row->call(Use(self), {&index, 1}); }

PyObject* Item(PyObject* self, Variant index) {
    return ToPython(ItemAt(self, std::move(index)), ItemsOf(self).type, AsWrapper(self).keeper);
}

/// How many items there are. Columns counts also what Auto asked for, which can be any number and is no items.
std::int32_t CountOf(PyObject* self) {
    const auto count = std::get<std::int32_t>(Get(Use(self), "Count"));
    const bool areItems = !ItemsOf(self).row->optional
                          || (count > 0 && !std::holds_alternative<std::monostate>(ItemAt(self, 1)));
    return areItems ? count : 0;
}

/// The position from 1 of one from 0, or from the end.
std::int32_t PositionFrom(PyObject* self, std::int32_t index) {
    const std::int32_t count = CountOf(self);
    const std::int32_t position = index < 0 ? index + count : index;
    if (position >= 0 && position < count) return position + 1;
    RaisePython(PyExc_IndexError, "there is no item %d among %d", index, count);
}

Py_ssize_t Length(PyObject* self) {
    return Guarded(static_cast<Py_ssize_t>(-1), [&] { return static_cast<Py_ssize_t>(CountOf(self)); });
}

PyObject* Subscript(PyObject* self, PyObject* key) {
    return Guarded([&] {
        if (Py_IS_TYPE(key, &PySlice_Type))
            RaisePython(PyExc_TypeError, "a collection has no slices: take list(collection)[...]");
        const draftwick::Type& wanted = *ItemsOf(self).row->arguments[0].type;
        Variant index = FromPython(key, wanted, Use(self));
        auto* position = std::get_if<std::int32_t>(&index);
        if (position == nullptr && !(std::holds_alternative<std::string>(index) && wanted.kind == Kind::Key))
            RaisePython(PyExc_TypeError,
                        "an item is found by its position from 0 or, where it has one, by its name");
        // A constant of an enumeration is what the library calls an item by.
        const bool isPosition = PyObject_IsInstance(key, Module().intEnum) == 0 && wanted.values.empty();
        if (position != nullptr && isPosition) *position = PositionFrom(self, *position);
        return Item(self, std::move(index));
    });
}

/// A list of the items there are: iteration sees none that are added meanwhile.
PyObject* Iterate(PyObject* self) {
    return Guarded([&] {
        const std::int32_t count = CountOf(self);
        const Owned list = Take(PyList_New(count));
        for (std::int32_t i = 0; i < count; ++i) Check(PyList_SetItem(list.get(), i, Item(self, i + 1)));
        return Checked(PyObject_GetIter(list.get()));
    });
}

/// A name is in it, or an object.
int Contains(PyObject* self, PyObject* wanted) {
    return Guarded(-1, [&] {
        const bool byName =
            PyUnicode_Check(wanted) != 0 && ItemsOf(self).row->arguments[0].type->kind == Kind::Key;
        if (!byName) {
            const Owned items = Take(PySequence_List(self));
            return PySequence_Contains(items.get(), wanted);
        }
        try {
            const Owned found(Item(self, TextOf(wanted)));
            return 1;
        } catch (const Error& error) {
            if (error.Number() == dwErrItemNotFound) return 0;
            throw;
        }
    });
}

}  // namespace

std::vector<PyType_Slot> ItemSlots() {
    return {{Py_mp_length, Slot(Length)},
            {Py_mp_subscript, Slot(Subscript)},
            {Py_tp_iter, Slot(Iterate)},
            {Py_sq_contains, Slot(Contains)}};
}

}  // namespace draftwick::python
