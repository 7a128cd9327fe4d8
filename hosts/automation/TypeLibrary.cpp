#include "TypeLibrary.h"

#include "Errors.h"
#include "Values.h"

#include <mutex>
#include <system_error>

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

void Check(HRESULT result) {
    if (FAILED(result)) throw std::system_error(static_cast<int>(result), std::system_category());
}

Pointer<ITypeLib> OpenTypeLibrary() {
    ITypeLib* library = nullptr;
    Check(::LoadTypeLibEx(ModuleFile().c_str(), REGKIND_NONE, &library));
    return Pointer<ITypeLib>(library);
}

HRESULT FindTypeInfo(std::string_view interfaceId, ITypeInfo** info) {
    return Guarded(nullptr, [&] {
        const std::lock_guard lock(opened.mutex);
        if (opened.library == nullptr) opened.library = OpenTypeLibrary();
        return opened.library->GetTypeInfoOfGuid(IdOf(interfaceId), info);
    });
}

void CloseTypeLibrary() {
    const std::lock_guard lock(opened.mutex);
    opened.library.reset();
}

}  // namespace draftwick::automation
