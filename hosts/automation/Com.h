#pragma once

// What all objects of the server share.

#ifndef NOMINMAX
#define NOMINMAX
#endif
#ifndef WIN32_LEAN_AND_MEAN
#define WIN32_LEAN_AND_MEAN
#endif
#include <windows.h>

#include <oleauto.h>

#include <atomic>
#include <memory>

namespace draftwick::automation {

/// What keeps the DLL loaded: objects that hosts hold, and locks.
inline std::atomic<long> alive{0};

/// An object of one interface that counts its references.
template <class Interface>
class Counted : public Interface {
public:
    Counted() { ++alive; }
    Counted(const Counted&) = delete;
    Counted& operator=(const Counted&) = delete;

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** result) override {
        if (result == nullptr) return E_POINTER;
        const bool has = id == IID_IUnknown || id == __uuidof(Interface);
        *result = has ? this : nullptr;
        if (has) this->AddRef();
        return has ? S_OK : E_NOINTERFACE;
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return static_cast<ULONG>(++references_); }
    ULONG STDMETHODCALLTYPE Release() override {
        const long left = --references_;
        if (left == 0) delete this;
        return static_cast<ULONG>(left);
    }

protected:
    virtual ~Counted() { --alive; }

    std::atomic<long> references_{1};
};

struct Release {
    void operator()(IUnknown* object) const { object->Release(); }
};
/// Releases an object when it goes.
template <class Interface>
using Pointer = std::unique_ptr<Interface, Release>;

}  // namespace draftwick::automation
