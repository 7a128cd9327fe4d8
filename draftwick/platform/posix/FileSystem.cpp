#include <draftwick/platform/internal/System.h>

#include <cerrno>
#include <fcntl.h>
#include <filesystem>
#include <sys/stat.h>
#include <unistd.h>

namespace draftwick::platform {

namespace {

std::error_code LastError() { return {errno, std::generic_category()}; }

/// Whether it can be a name. One with a zero byte would silently mean another file.
bool IsName(const std::string& name, std::error_code& error) {
    error.clear();
    if (name.find('\0') != std::string::npos) error = std::make_error_code(std::errc::invalid_argument);
    return !error;
}

class PosixFile final : public File {
public:
    PosixFile() = default;
    ~PosixFile() override {
        if (descriptor_ >= 0) ::close(descriptor_);
    }
    PosixFile(const PosixFile&) = delete;
    PosixFile& operator=(const PosixFile&) = delete;

    std::size_t Write(const char* bytes, std::size_t size, std::error_code& error) override {
        error.clear();
        std::size_t done = 0;
        while (done < size) {
            const ssize_t n = ::write(descriptor_, bytes + done, size - done);
            if (n > 0) {
                done += static_cast<std::size_t>(n);
            } else if (n == 0) {
                error = std::make_error_code(std::errc::io_error);
                break;
            } else if (errno != EINTR) {
                error = LastError();
                break;
            }
        }
        return done;
    }

    std::size_t Read(char* bytes, std::size_t size, std::error_code& error) override {
        error.clear();
        for (;;) {
            const ssize_t n = ::read(descriptor_, bytes, size);
            if (n >= 0) return static_cast<std::size_t>(n);
            if (errno == EINTR) continue;
            error = LastError();
            return 0;
        }
    }

    void Close(std::error_code& error) override {
        error.clear();
        if (descriptor_ < 0) return;
        // After EINTR the descriptor is released all the same on the systems we run on: never close twice.
        if (::close(descriptor_) != 0 && errno != EINTR) error = LastError();
        descriptor_ = -1;
    }

    void Seek(std::uint64_t position, std::error_code& error) override {
        error.clear();
        if (::lseek(descriptor_, static_cast<off_t>(position), SEEK_SET) < 0) error = LastError();
    }

    void Sync(std::error_code& error) override {
        error.clear();
        if (::fsync(descriptor_) != 0) error = LastError();
    }

private:
    friend class PosixFileSystem;

    int descriptor_ = -1;
};

class PosixFileSystem final : public FileSystem {
public:
    std::unique_ptr<File> Create(const std::string& name, Creation mode, std::error_code& error) override {
        const int how = mode == Creation::Overwrite ? O_TRUNC : O_EXCL;
        return Open(name, O_WRONLY | O_CREAT | how, mode == Creation::ExclusivePrivate ? 0600 : 0666, error);
    }

    std::unique_ptr<File> OpenForReading(const std::string& name, std::error_code& error) override {
        return Open(name, O_RDONLY, 0, error);
    }

    bool Exists(const std::string& name) override {
        std::error_code error;
        Length(name, error);
        return !error;
    }

    std::uint64_t Length(const std::string& name, std::error_code& error) override {
        struct stat status {};
        if (!IsName(name, error)) return 0;
        if (::stat(name.c_str(), &status) != 0) {
            error = LastError();
            return 0;
        }
        if (!S_ISREG(status.st_mode)) {
            error = std::make_error_code(std::errc::is_a_directory);
            return 0;
        }
        return static_cast<std::uint64_t>(status.st_size);
    }

    void Delete(const std::string& name, std::error_code& error) override {
        if (IsName(name, error) && ::unlink(name.c_str()) != 0) error = LastError();
    }

    bool CanReplace(const std::string& name) override {
        struct stat status {};
        if (::lstat(name.c_str(), &status) != 0) return true;
        // A link is replaced itself, unless it leads to what cannot be replaced, or nowhere.
        return S_ISLNK(status.st_mode) ? Exists(name) : S_ISREG(status.st_mode);
    }

    void Rename(const std::string& from, const std::string& to, std::error_code& error) override {
        if (IsName(from, error) && IsName(to, error) && ::rename(from.c_str(), to.c_str()) != 0)
            error = LastError();
    }

    void SyncFolder(const std::string& folder, std::error_code& error) override {
        if (const auto opened = Open(folder, O_RDONLY | O_DIRECTORY, 0, error)) opened->Sync(error);
    }

    std::string FullName(const std::string& name) override {
        if (name.starts_with('/')) return name;
        std::error_code error;
        const std::string folder = std::filesystem::current_path(error).string();
        return (error ? "." : folder) + '/' + name;
    }

    char Separator() const override { return '/'; }

private:
    static std::unique_ptr<File> Open(const std::string& name, int flags, mode_t mode,
                                      std::error_code& error) {
        if (!IsName(name, error)) return nullptr;
        auto file = std::make_unique<PosixFile>();
        do {
            file->descriptor_ = ::open(name.c_str(), flags | O_CLOEXEC, mode);
        } while (file->descriptor_ < 0 && errno == EINTR);
        if (file->descriptor_ >= 0) return file;
        error = LastError();
        return nullptr;
    }
};

}  // namespace

std::shared_ptr<FileSystem> MakeFileSystem() { return std::make_shared<PosixFileSystem>(); }

}  // namespace draftwick::platform
