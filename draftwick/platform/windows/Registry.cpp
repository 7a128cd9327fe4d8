#include <draftwick/platform/windows/Windows.h>

#include <cstring>
#include <utility>

namespace draftwick::platform {

namespace {

using namespace windows;

std::error_code Outcome(LSTATUS status) {
    return status == ERROR_SUCCESS ? std::error_code{} : SystemError(static_cast<unsigned long>(status));
}

HKEY RootKey(RegistryRoot root) {
    return reinterpret_cast<HKEY>(static_cast<std::intptr_t>(static_cast<std::int32_t>(root)));
}

/// An open key; `status` says why it is none.
struct Key {
    Key(RegistryRoot root, const std::string& path, bool create)
        : status(create ? ::RegCreateKeyExW(RootKey(root), ToWide(path).c_str(), 0, nullptr, 0, KEY_WRITE,
                                            nullptr, &key, nullptr)
                        : ::RegOpenKeyExW(RootKey(root), ToWide(path).c_str(), 0, KEY_READ, &key)) {}
    ~Key() {
        if (key != nullptr) ::RegCloseKey(key);
    }
    Key(const Key&) = delete;
    Key& operator=(const Key&) = delete;

    HKEY key = nullptr;
    LSTATUS status;
};

class Store final : public RegistryStore {
public:
    std::error_code QueryValue(RegistryRoot root, const std::string& path, const std::string& name,
                               RegistryType& type, std::string& bytes) override {
        const Key open(root, path, false);
        if (open.status != ERROR_SUCCESS) return Outcome(open.status);
        const std::wstring wide = ToWide(name);
        DWORD kind = 0;
        DWORD size = 0;
        LSTATUS status = ::RegQueryValueExW(open.key, wide.c_str(), nullptr, &kind, nullptr, &size);
        std::string data;
        // Somebody else can make the value longer between the two questions.
        do {
            data.resize(size);
            if (status == ERROR_SUCCESS || status == ERROR_MORE_DATA)
                status = ::RegQueryValueExW(open.key, wide.c_str(), nullptr, &kind,
                                            reinterpret_cast<BYTE*>(data.data()), &size);
        } while (status == ERROR_MORE_DATA);
        if (status != ERROR_SUCCESS) return Outcome(status);
        data.resize(size);
        type = static_cast<RegistryType>(kind);
        if (type == RegistryType::Text) {
            std::wstring text(data.size() / sizeof(wchar_t), L'\0');
            std::memcpy(text.data(), data.data(), text.size() * sizeof(wchar_t));
            data = FromWide(text);
        }
        bytes = std::move(data);
        return {};
    }

    std::error_code SetValue(RegistryRoot root, const std::string& path, const std::string& name,
                             RegistryType type, std::string_view bytes) override {
        const Key open(root, path, true);
        if (open.status != ERROR_SUCCESS) return Outcome(open.status);
        std::wstring text;
        if (type == RegistryType::Text) {
            text = ToWide(bytes) + L'.';  // a zero behind the end would be stored, too
            bytes = {reinterpret_cast<const char*>(text.data()), (text.size() - 1) * sizeof(wchar_t)};
        }
        return Outcome(::RegSetValueExW(open.key, ToWide(name).c_str(), 0, static_cast<DWORD>(type),
                                        reinterpret_cast<const BYTE*>(bytes.data()),
                                        static_cast<DWORD>(bytes.size())));
    }

    std::vector<std::string> SubKeys(RegistryRoot root, const std::string& path) override {
        return Names(root, path, [](HKEY key, DWORD index, wchar_t* name, DWORD* length) {
            return ::RegEnumKeyExW(key, index, name, length, nullptr, nullptr, nullptr, nullptr);
        });
    }
    std::vector<std::string> ValueNames(RegistryRoot root, const std::string& path) override {
        return Names(root, path, [](HKEY key, DWORD index, wchar_t* name, DWORD* length) {
            return ::RegEnumValueW(key, index, name, length, nullptr, nullptr, nullptr, nullptr);
        });
    }

    std::error_code CreateKey(RegistryRoot root, const std::string& path) override {
        return Outcome(Key(root, path, true).status);
    }

    std::error_code DeleteKey(RegistryRoot root, const std::string& path) override {
        return Outcome(::RegDeleteKeyW(RootKey(root), ToWide(path).c_str()));
    }

private:
    template <class Enumerate>
    static std::vector<std::string> Names(RegistryRoot root, const std::string& path, Enumerate enumerate) {
        const Key open(root, path, false);
        std::vector<std::string> names;
        wchar_t name[RegistryNameRoom];
        for (DWORD length = RegistryNameRoom;
             open.status == ERROR_SUCCESS
             && enumerate(open.key, static_cast<DWORD>(names.size()), name, &length) == ERROR_SUCCESS;
             length = RegistryNameRoom) {
            names.push_back(FromWide({name, length}));
        }
        return names;
    }
};

}  // namespace

std::shared_ptr<RegistryStore> MakeRegistryStore() { return std::make_shared<Store>(); }

}  // namespace draftwick::platform
