#pragma once

#include "Host.h"

#include <draftwick/model/Class.h>

namespace draftwick::test {

/// The server as the DLL that hosts get.
class Server {
public:
    Server() : module_(::LoadLibraryA(DRAFTWICK_AUTOMATION_DLL)) {}
    ~Server() { ::FreeLibrary(module_); }
    Server(const Server&) = delete;
    Server& operator=(const Server&) = delete;

    template <class Function>
    Function Find(const char* name) const {
        return reinterpret_cast<Function>(reinterpret_cast<void*>(::GetProcAddress(module_, name)));
    }
    HRESULT FindFactory(const Class& one, IClassFactory** factory) const {
        CLSID id{};
        VARIANT text = Of(one.classId);
        ::CLSIDFromString(text.bstrVal, &id);
        ::VariantClear(&text);
        return Find<LPFNGETCLASSOBJECT>("DllGetClassObject")(id, IID_IClassFactory,
                                                             reinterpret_cast<void**>(factory));
    }
    Pointer<IDispatch> Make(const Class& one) const {
        IClassFactory* made = nullptr;
        if (FAILED(FindFactory(one, &made))) return nullptr;
        const Pointer<IClassFactory> factory(made);
        void* object = nullptr;
        factory->CreateInstance(nullptr, IID_IDispatch, &object);
        return Pointer<IDispatch>(static_cast<IDispatch*>(object));
    }
    bool CanUnload() const { return Find<LPFNCANUNLOADNOW>("DllCanUnloadNow")() == S_OK; }

private:
    HMODULE module_;
};

}  // namespace draftwick::test
