#include "Registration.h"

#include "Errors.h"
#include "TypeLibrary.h"
#include "Values.h"

#include <draftwick/base/Version.h>
#include <draftwick/core/Classes.h>

#include <array>
#include <string>
#include <vector>

// MinGW's headers lack them.
extern "C" HRESULT WINAPI RegisterTypeLibForUser(ITypeLib*, OLECHAR*, OLECHAR*);
extern "C" HRESULT WINAPI UnRegisterTypeLibForUser(REFGUID, WORD, WORD, LCID, SYSKIND);

namespace draftwick::automation {

namespace {

const std::wstring Folder = L"Software\\Classes\\";

std::wstring Wide(std::string_view text) {
    const Text made(text);
    return {made.Get(), ::SysStringLen(made.Get())};
}

/// A value below the folder.
struct Entry {
    std::wstring key, value;
    const wchar_t* name = nullptr;
};

/// What is entered of a class, and the keys that hold all of it.
struct Entries {
    std::vector<Entry> all;
    std::array<std::wstring, 3> keys;
};

Entries EntriesOf(const Class& one) {
    const std::wstring id = Wide(one.classId), name = Wide(ProgIdPrefix) + L"." + Wide(one.name),
                       versioned = name + L"." + std::to_wstring(VersionMajor), key = L"CLSID\\" + id,
                       title = Wide(ProgIdPrefix) + L" " + Wide(one.name);
    return {{{key, title},
             {key + L"\\InprocServer32", ModuleFile()},
             {key + L"\\InprocServer32", L"Apartment", L"ThreadingModel"},
             {key + L"\\ProgID", versioned},
             {key + L"\\VersionIndependentProgID", name},
             {key + L"\\TypeLib", Wide(TypeLibraryId)},
             {key + L"\\Programmable", L""},
             {name, title},
             {name + L"\\CLSID", id},
             {name + L"\\CurVer", versioned},
             {versioned, title},
             {versioned + L"\\CLSID", id}},
            {key, name, versioned}};
}

template <class Use>
void ForEachClass(Use use) {
    for (const Class* one : Classes()) {
        if (one->create != nullptr) use(EntriesOf(*one));
    }
}

HKEY RootOf(Users users) { return users == Users::All ? HKEY_LOCAL_MACHINE : HKEY_CURRENT_USER; }

HRESULT ResultOf(LSTATUS status) { return HRESULT_FROM_WIN32(static_cast<DWORD>(status)); }

void RegisterLibrary(Users users) {
    const auto enter = users == Users::All ? &::RegisterTypeLib : &::RegisterTypeLibForUser;
    std::wstring file = ModuleFile();
    Check(enter(OpenTypeLibrary().get(), file.data(), nullptr));
}

/// That it is not there is no failure, and where there are no rights the classes tell.
void UnregisterLibrary(Users users) {
    const auto take = users == Users::All ? &::UnRegisterTypeLib : &::UnRegisterTypeLibForUser;
    take(IdOf(TypeLibraryId), VersionMajor, 0, LOCALE_NEUTRAL, SYS_WIN64);
}

}  // namespace

HRESULT Register(Users users) {
    return Guarded(nullptr, [&] {
        ForEachClass([&](const Entries& entries) {
            for (const Entry& one : entries.all) {
                Check(ResultOf(::RegSetKeyValueW(
                    RootOf(users), (Folder + one.key).c_str(), one.name, REG_SZ, one.value.c_str(),
                    static_cast<DWORD>((one.value.size() + 1) * sizeof(wchar_t)))));
            }
        });
        RegisterLibrary(users);
        return S_OK;
    });
}

HRESULT Unregister(Users users) {
    return Guarded(nullptr, [&] {
        UnregisterLibrary(users);
        HRESULT outcome = S_OK;
        ForEachClass([&](const Entries& entries) {
            for (const std::wstring& key : entries.keys) {
                const LSTATUS status = ::RegDeleteTreeW(RootOf(users), (Folder + key).c_str());
                if (status != ERROR_SUCCESS && status != ERROR_FILE_NOT_FOUND) outcome = ResultOf(status);
            }
        });
        return outcome;
    });
}

}  // namespace draftwick::automation
