// What Windows asks of the DLL: to make objects, whether it can be unloaded, and to register itself.
#include "Dispatch.h"
#include "Errors.h"
#include "Registration.h"
#include "TypeLibrary.h"
#include "Values.h"

#include <draftwick/core/Classes.h>

#include <string_view>

using namespace draftwick;
using namespace draftwick::automation;

namespace {

/// Makes the objects of one class.
class Factory final : public Counted<IClassFactory> {
public:
    explicit Factory(const Class& made) : made_(made) {}

    HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown* outer, REFIID id, void** result) override {
        if (result == nullptr) return E_POINTER;
        *result = nullptr;
        if (outer != nullptr) return CLASS_E_NOAGGREGATION;
        return Guarded(nullptr, [&] {
            const Pointer<IDispatch> object(Wrap(made_.create()));
            return object->QueryInterface(id, result);
        });
    }
    HRESULT STDMETHODCALLTYPE LockServer(BOOL lock) override {
        alive += lock != 0 ? 1 : -1;
        return S_OK;
    }

private:
    const Class& made_;
};

}  // namespace

STDAPI DllGetClassObject(REFCLSID id, REFIID interfaceId, void** result) {
    if (result == nullptr) return E_POINTER;
    *result = nullptr;
    return Guarded(nullptr, [&]() -> HRESULT {
        for (const Class* one : Classes()) {
            if (one->create == nullptr || !IsId(one->classId, id)) continue;
            const Pointer<IClassFactory> factory(new Factory(*one));
            return factory->QueryInterface(interfaceId, result);
        }
        return CLASS_E_CLASSNOTAVAILABLE;
    });
}

STDAPI DllCanUnloadNow() {
    if (alive != 0) return S_FALSE;
    CloseTypeLibrary();
    return S_OK;
}

/// For all users, or where that fails, as it does without rights, for the current one.
STDAPI DllRegisterServer() {
    if (SUCCEEDED(Register(Users::All))) return S_OK;
    Unregister(Users::All);
    return Register(Users::Current);
}

STDAPI DllUnregisterServer() {
    const HRESULT own = Unregister(Users::Current), all = Unregister(Users::All);
    return FAILED(all) ? all : own;
}

/// regsvr32 /n /i:user enters the classes for the current user alone, whatever the rights.
STDAPI DllInstall(BOOL install, LPCWSTR what) {
    if (what == nullptr || std::wstring_view{what} != L"user") return E_INVALIDARG;
    return install != 0 ? Register(Users::Current) : Unregister(Users::Current);
}
