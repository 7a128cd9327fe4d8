#include <hosts/python/Errors.h>
#include <hosts/python/Types.h>
#include <hosts/python/Values.h>

/// What documents have in Python and the descriptions cannot say; draftwick/_documents.py makes it comfortable.
namespace draftwick::python {

namespace {

/// While it lives, nothing of the document can be used.
class Busy {
public:
    explicit Busy(Keeper& keeper) : keeper_(keeper) { keeper_.busy = true; }
    Busy(const Busy&) = delete;
    Busy& operator=(const Busy&) = delete;
    ~Busy() { keeper_.busy = false; }

private:
    Keeper& keeper_;
};

/// Finishes the document into a function that takes the bytes of its file, one piece after the other.
PyObject* FinishTo(PyObject* self, PyObject* write) {
    return Guarded([&] {
        auto& document = static_cast<Document&>(Use(self));
        const Busy busy(*AsWrapper(self).keeper);
        document.FinishTo([&](std::string_view bytes) {
            const Owned piece =
                Take(PyBytes_FromStringAndSize(bytes.data(), static_cast<Py_ssize_t>(bytes.size())));
            Take(PyObject_CallFunctionObjArgs(write, piece.get(), nullptr));
        });
        return Py_NewRef(Py_None);
    });
}

}  // namespace

void AddDocumentMethods(PythonClass& to) {
    if (to.row == &Document::Describe()) to.functions.push_back({"_finish_to", FinishTo, METH_O, nullptr});
}

/// Python has no programs that want the classic spelling, or the temporary files of documents that they let go.
void PrepareNew(Object& object) {
    auto* document = dynamic_cast<Document*>(&object);
    if (document == nullptr) return;
    document->SetSpelling(dwSpellingStandard);
    document->SetDiscardOnRelease(true);
}

}  // namespace draftwick::python
