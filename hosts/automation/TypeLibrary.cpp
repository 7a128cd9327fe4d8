#include "TypeLibrary.h"

#include "Errors.h"
#include "Values.h"

#include <mutex>

namespace draftwick::automation {

namespace {

struct {
    std::mutex mutex{};
    Pointer<ITypeLib> library{};
} opened;

}  // namespace

std::wstring ModuleFile() {
    HMODULE module = nullptr;
    ::GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS
                             | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                         reinterpret_cast<LPCWSTR>(&ModuleFile), &module);
    std::wstring name(32768, L'\0');  // the longest that there is
    name.resize(::GetModuleFileNameW(module, name.data(), static_cast<DWORD>(name.size())));
    return name;
}

HRESULT FindTypeInfo(std::string_view interfaceId, ITypeInfo** info) {
    return Guarded(nullptr, [&]() -> HRESULT {
        const std::lock_guard lock(opened.mutex);
        if (opened.library == nullptr) {
            ITypeLib* library = nullptr;
            const HRESULT outcome = ::LoadTypeLibEx(ModuleFile().c_str(), REGKIND_NONE, &library);
            if (FAILED(outcome)) return outcome;
            opened.library.reset(library);
        }
        IID id{};
        const Text text(interfaceId);
        const HRESULT outcome = ::IIDFromString(text.Get(), &id);
        return FAILED(outcome) ? outcome : opened.library->GetTypeInfoOfGuid(id, info);
    });
}

void CloseTypeLibrary() {
    const std::lock_guard lock(opened.mutex);
    opened.library.reset();
}

}  // namespace draftwick::automation
