#include <draftwick/platform/windows/Windows.h>

#include <algorithm>
#include <iterator>
#include <sddl.h>

namespace draftwick::platform {

namespace {

using namespace windows;

constexpr std::size_t LargestTransfer = std::size_t{1} << 30;

/// The name as the system takes it; empty, with an error, for what cannot be one.
std::wstring ToName(const std::string& name, std::error_code& error) {
    error.clear();
    std::wstring wide = ToWide(name);
    // A name with a zero in it, or with what is no character, would silently mean another file.
    if (wide.find(L'\0') != std::wstring::npos || FromWide(wide) != name) {
        error = std::make_error_code(std::errc::invalid_argument);
        return {};
    }
    if (wide.size() < MAX_PATH - 12) return wide;
    // Long names are only taken in full and with a prefix.
    std::wstring full(32767, L'\0');
    full.resize(::GetFullPathNameW(wide.c_str(), static_cast<DWORD>(full.size()), full.data(), nullptr));
    if (full.starts_with(L"\\\\?\\")) return full;
    return full.starts_with(L"\\\\") ? L"\\\\?\\UNC\\" + full.substr(2) : L"\\\\?\\" + full;
}

/// The user that the process runs for, in the system's notation.
std::wstring UserId() {
    HANDLE token = nullptr;
    if (!::OpenProcessToken(::GetCurrentProcess(), TOKEN_QUERY, &token)) return {};
    const Handle owned(token);
    alignas(TOKEN_USER) BYTE user[sizeof(TOKEN_USER) + SECURITY_MAX_SID_SIZE];
    DWORD size = 0;
    wchar_t* text = nullptr;
    if (!::GetTokenInformation(token, TokenUser, user, sizeof user, &size)
        || !::ConvertSidToStringSidW(reinterpret_cast<TOKEN_USER*>(user)->User.Sid, &text))
        return {};
    std::wstring id = text;
    ::LocalFree(text);
    return id;
}

/// Full access for the user and the system, and for nobody else.
class OwnerOnly {
public:
    OwnerOnly() {
        const std::wstring access = L"D:P(A;;FA;;;" + UserId() + L")(A;;FA;;;SY)";
        if (!::ConvertStringSecurityDescriptorToSecurityDescriptorW(
                access.c_str(), SDDL_REVISION_1, &attributes_.lpSecurityDescriptor, nullptr))
            error_ = LastError();
    }
    ~OwnerOnly() { ::LocalFree(attributes_.lpSecurityDescriptor); }
    OwnerOnly(const OwnerOnly&) = delete;
    OwnerOnly& operator=(const OwnerOnly&) = delete;
    SECURITY_ATTRIBUTES* Get() { return &attributes_; }
    std::error_code Error() const { return error_; }

private:
    SECURITY_ATTRIBUTES attributes_{sizeof(SECURITY_ATTRIBUTES), nullptr, FALSE};
    std::error_code error_;
};

class WindowsFile final : public File {
public:
    WindowsFile(const std::wstring& name, DWORD access, DWORD share, DWORD how, SECURITY_ATTRIBUTES* security)
        : handle_(::CreateFileW(name.c_str(), access, share, security, how, FILE_ATTRIBUTE_NORMAL, nullptr)) {
    }
    bool IsOpen() const { return handle_.IsOpen(); }

    std::size_t Write(const char* bytes, std::size_t size, std::error_code& error) override {
        error.clear();
        std::size_t done = 0;
        while (done < size && !error) {
            DWORD n = 0;
            const auto part = static_cast<DWORD>(std::min(size - done, LargestTransfer));
            if (!::WriteFile(handle_, bytes + done, part, &n, nullptr)) {
                error = LastError();
            } else if (n == 0) {
                error = std::make_error_code(std::errc::io_error);
            }
            done += n;
        }
        return done;
    }

    std::size_t Read(char* bytes, std::size_t size, std::error_code& error) override {
        error.clear();
        DWORD n = 0;
        if (!::ReadFile(handle_, bytes, static_cast<DWORD>(std::min(size, LargestTransfer)), &n, nullptr))
            error = LastError();
        return n;
    }

    void Close(std::error_code& error) override {
        error.clear();
        if (!handle_.Close()) error = LastError();
    }

    void Seek(std::uint64_t position, std::error_code& error) override {
        error.clear();
        LARGE_INTEGER to;
        to.QuadPart = static_cast<LONGLONG>(position);
        if (!::SetFilePointerEx(handle_, to, nullptr, FILE_BEGIN)) error = LastError();
    }

    void Sync(std::error_code& error) override {
        error.clear();
        if (!::FlushFileBuffers(handle_)) error = LastError();
    }

private:
    Handle handle_;
};

class WindowsFileSystem final : public FileSystem {
public:
    std::unique_ptr<File> Create(const std::string& name, Creation mode, std::error_code& error) override {
        const DWORD how = mode == Creation::Overwrite ? CREATE_ALWAYS : CREATE_NEW;
        if (mode != Creation::ExclusivePrivate)
            return Open(name, GENERIC_WRITE, FILE_SHARE_READ, how, nullptr, error);
        OwnerOnly owner;
        error = owner.Error();
        return error ? nullptr : Open(name, GENERIC_WRITE, 0, how, owner.Get(), error);
    }

    std::unique_ptr<File> OpenForReading(const std::string& name, std::error_code& error) override {
        return Open(name, GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE, OPEN_EXISTING, nullptr, error);
    }

    bool Exists(const std::string& name) override {
        std::error_code error;
        Length(name, error);
        return !error;
    }

    std::uint64_t Length(const std::string& name, std::error_code& error) override {
        const std::wstring wide = ToName(name, error);
        if (error) return 0;
        WIN32_FILE_ATTRIBUTE_DATA data{};
        if (!::GetFileAttributesExW(wide.c_str(), GetFileExInfoStandard, &data)) {
            error = LastError();
            return 0;
        }
        if ((data.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0) {
            error = std::make_error_code(std::errc::is_a_directory);
            return 0;
        }
        return std::uint64_t{data.nFileSizeHigh} << 32 | data.nFileSizeLow;
    }

    /// What cleans up after a lack of memory needs none, for names of ordinary length.
    void Delete(const std::string& name, std::error_code& error) override {
        error.clear();
        wchar_t brief[MAX_PATH - 12];
        const int length = name.size() < std::size(brief)
                               ? ::MultiByteToWideChar(CP_UTF8, MB_ERR_INVALID_CHARS, name.data(),
                                                       static_cast<int>(name.size()), brief, MAX_PATH - 13)
                               : 0;
        if (length > 0 && std::find(brief, brief + length, L'\0') == brief + length) {
            brief[length] = L'\0';
            if (!::DeleteFileW(brief)) error = LastError();
            return;
        }
        const std::wstring wide = ToName(name, error);
        if (!error && !::DeleteFileW(wide.c_str())) error = LastError();
    }

    bool CanReplace(const std::string& name) override {
        std::error_code error;
        const DWORD attributes = ::GetFileAttributesW(ToName(name, error).c_str());
        const bool isFolder =
            attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
        return !isFolder && !FullName(name).starts_with(R"(\\.\)");
    }

    void Rename(const std::string& from, const std::string& to, std::error_code& error) override {
        const std::wstring before = ToName(from, error);
        if (error) return;
        const std::wstring after = ToName(to, error);
        if (!error && !::MoveFileExW(before.c_str(), after.c_str(), MOVEFILE_REPLACE_EXISTING))
            error = LastError();
    }

    /// The system keeps a journal of names and has no call that waits for it.
    void SyncFolder(const std::string&, std::error_code& error) override { error.clear(); }

    std::string FullName(const std::string& name) override {
        std::wstring full(32767, L'\0');
        full.resize(
            ::GetFullPathNameW(ToWide(name).c_str(), static_cast<DWORD>(full.size()), full.data(), nullptr));
        return full.empty() ? name : FromWide(full);
    }

    char Separator() const override { return '\\'; }

private:
    static std::unique_ptr<File> Open(const std::string& name, DWORD access, DWORD share, DWORD how,
                                      SECURITY_ATTRIBUTES* security, std::error_code& error) {
        const std::wstring wide = ToName(name, error);
        if (error) return nullptr;
        auto file = std::make_unique<WindowsFile>(wide, access, share, how, security);
        if (file->IsOpen()) return file;
        error = LastError();
        return nullptr;
    }
};

}  // namespace

std::shared_ptr<FileSystem> MakeFileSystem() { return std::make_shared<WindowsFileSystem>(); }

}  // namespace draftwick::platform
