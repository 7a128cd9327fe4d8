#include "Registration.h"

#include "Errors.h"
#include "TypeLibrary.h"
#include "Values.h"

#include <draftwick/base/Version.h>
#include <draftwick/core/Classes.h>

#include <string>

// MinGW's headers lack them.
extern "C" HRESULT WINAPI RegisterTypeLibForUser(ITypeLib*, OLECHAR*, OLECHAR*);
extern "C" HRESULT WINAPI UnRegisterTypeLibForUser(REFGUID, WORD, WORD, LCID, SYSKIND);

namespace draftwick::automation {

namespace {

std::wstring Wide(std::string_view text) {
    const Text made(text);
    return {made.Get(), ::SysStringLen(made.Get())};
}

/// The keys of a class that hosts make.
struct Keys {
    std::wstring id, name, versioned;

    explicit Keys(const Class& one)
        : id(Wide(one.classId)), name(Wide(ProgIdPrefix) + L"." + Wide(one.name)),
          versioned(name + L"." + std::to_wstring(VersionMajor)) {}
    std::wstring OfClass() const { return L"CLSID\\" + id; }
};

/// Where classes are registered.
class Root {
public:
    explicit Root(Users users) : root_(users == Users::All ? HKEY_LOCAL_MACHINE : HKEY_CURRENT_USER) {}

    void Write(const std::wstring& key, const std::wstring& value, const wchar_t* name = nullptr) const {
        const LSTATUS status = ::RegSetKeyValueW(root_, (Folder + key).c_str(), name, REG_SZ, value.c_str(),
                                                 static_cast<DWORD>((value.size() + 1) * sizeof(wchar_t)));
        Check(HRESULT_FROM_WIN32(static_cast<DWORD>(status)));
    }
    HRESULT Delete(const std::wstring& key) const {
        const LSTATUS status = ::RegDeleteTreeW(root_, (Folder + key).c_str());
        return status == ERROR_FILE_NOT_FOUND ? S_OK : HRESULT_FROM_WIN32(static_cast<DWORD>(status));
    }

private:
    static inline const std::wstring Folder = L"Software\\Classes\\";
    HKEY root_;
};

void WriteClass(const Root& root, const Class& one) {
    const Keys keys(one);
    const std::wstring key = keys.OfClass(), title = Wide(ProgIdPrefix) + L" " + Wide(one.name);
    root.Write(key, title);
    root.Write(key + L"\\InprocServer32", ModuleFile());
    root.Write(key + L"\\InprocServer32", L"Apartment", L"ThreadingModel");
    root.Write(key + L"\\ProgID", keys.versioned);
    root.Write(key + L"\\VersionIndependentProgID", keys.name);
    root.Write(key + L"\\TypeLib", Wide(TypeLibraryId));
    root.Write(key + L"\\Programmable", L"");
    for (const std::wstring& name : {keys.name, keys.versioned}) {
        root.Write(name, title);
        root.Write(name + L"\\CLSID", keys.id);
    }
    root.Write(keys.name + L"\\CurVer", keys.versioned);
}

template <class Use>
void ForEachClass(Use use) {
    for (const Class* one : Classes()) {
        if (one->create != nullptr) use(*one);
    }
}

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
        const Root root(users);
        ForEachClass([&](const Class& one) { WriteClass(root, one); });
        RegisterLibrary(users);
        return S_OK;
    });
}

HRESULT Unregister(Users users) {
    return Guarded(nullptr, [&] {
        const Root root(users);
        UnregisterLibrary(users);
        HRESULT outcome = S_OK;
        const auto remove = [&](const std::wstring& key) {
            if (const HRESULT result = root.Delete(key); FAILED(result)) outcome = result;
        };
        ForEachClass([&](const Class& one) {
            const Keys keys(one);
            for (const std::wstring& key : {keys.OfClass(), keys.name, keys.versioned}) remove(key);
        });
        return outcome;
    });
}

}  // namespace draftwick::automation
