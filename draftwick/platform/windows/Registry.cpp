#include <draftwick/platform/windows/Windows.h>

#include <cstring>
#include <utility>

namespace draftwick::platform::windows {

namespace {

std::error_code Outcome(LSTATUS status) {
    return status == ERROR_SUCCESS ? std::error_code{} : SystemError(static_cast<unsigned long>(status));
}

HKEY RootKey(RegistryRoot root) {
    return reinterpret_cast<HKEY>(static_cast<std::intptr_t>(static_cast<std::int32_t>(root)));
}

class Key final : public RegistryKey {
public:
    Key(HKEY key, RegistryRoot root, std::wstring path) : key_(key), root_(root), path_(std::move(path)) {}
    ~Key() override { ::RegCloseKey(key_); }
    Key(const Key&) = delete;
    Key& operator=(const Key&) = delete;

    std::error_code QueryValue(const std::string& name, RegistryType& type, std::string& bytes) override {
        const std::wstring wide = ToWide(name);
        DWORD kind = 0;
        DWORD size = 0;
        LSTATUS status = ::RegQueryValueExW(key_, wide.c_str(), nullptr, &kind, nullptr, &size);
        std::string data;
        // Somebody else can make the value longer between the two questions.
        do {
            data.resize(size);
            if (status == ERROR_SUCCESS || status == ERROR_MORE_DATA)
                status = ::RegQueryValueExW(key_, wide.c_str(), nullptr, &kind,
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

    std::error_code SetValue(const std::string& name, RegistryType type, const char* data,
                             std::size_t size) override {
        std::string bytes{data, size};
        if (type == RegistryType::Text) {
            if (size > 0 && data[size - 1] != '\0' && data[size] == '\0') bytes += '\0';
            std::wstring text = ToWide(bytes);
            size = text.size() * sizeof(wchar_t);
            text += L'.';  // a zero here would be stored, too
            bytes.assign(reinterpret_cast<const char*>(text.data()), text.size() * sizeof(wchar_t));
        }
        return Outcome(::RegSetValueExW(key_, ToWide(name).c_str(), 0, static_cast<DWORD>(type),
                                        reinterpret_cast<const BYTE*>(bytes.data()),
                                        static_cast<DWORD>(size)));
    }

    std::error_code EnumerateKey(std::uint32_t index, std::string& name) override {
        wchar_t buffer[RegistryNameRoom];
        DWORD length = RegistryNameRoom;
        const LSTATUS status =
            ::RegEnumKeyExW(key_, index, buffer, &length, nullptr, nullptr, nullptr, nullptr);
        return GiveName(status, {buffer, length}, name);
    }

    std::error_code EnumerateValue(std::uint32_t index, std::string& name) override {
        wchar_t buffer[RegistryNameRoom];
        DWORD length = RegistryNameRoom;
        const LSTATUS status =
            ::RegEnumValueW(key_, index, buffer, &length, nullptr, nullptr, nullptr, nullptr);
        return GiveName(status, {buffer, length}, name);
    }

    std::error_code DeleteKey(const std::string& path) override {
        // A key that is open for writing need not be open for its own deletion.
        if (path.empty()) return Outcome(::RegDeleteKeyW(RootKey(root_), path_.c_str()));
        return Outcome(::RegDeleteKeyW(key_, ToWide(path).c_str()));
    }

private:
    static std::error_code GiveName(LSTATUS status, std::wstring_view from, std::string& to) {
        if (status == ERROR_SUCCESS) to = FromWide(from);
        return Outcome(status);
    }

    HKEY key_;
    RegistryRoot root_;
    std::wstring path_;
};

class Store final : public RegistryStore {
public:
    std::unique_ptr<RegistryKey> Open(RegistryRoot root, const std::string& path,
                                      std::error_code& error) override {
        HKEY key = nullptr;
        error = Outcome(::RegOpenKeyExW(RootKey(root), ToWide(path).c_str(), 0, KEY_READ, &key));
        return error ? nullptr : std::make_unique<Key>(key, root, ToWide(path));
    }

    std::unique_ptr<RegistryKey> Create(RegistryRoot root, const std::string& path,
                                        std::error_code& error) override {
        HKEY key = nullptr;
        error = Outcome(::RegCreateKeyExW(RootKey(root), ToWide(path).c_str(), 0, nullptr, 0, KEY_WRITE,
                                          nullptr, &key, nullptr));
        return error ? nullptr : std::make_unique<Key>(key, root, ToWide(path));
    }
};

}  // namespace

std::shared_ptr<RegistryStore> MakeRegistryStore() { return std::make_shared<Store>(); }

}  // namespace draftwick::platform::windows
