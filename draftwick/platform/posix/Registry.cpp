#include <draftwick/platform/posix/Posix.h>
#include <draftwick/platform/posix/RegistryTree.h>

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <functional>
#include <pwd.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace draftwick::platform::posix {

namespace {

std::error_code LastError() { return {errno, std::generic_category()}; }
std::error_code Failure(std::errc error) { return std::make_error_code(error); }

/// A file descriptor that closes itself.
class Descriptor {
public:
    Descriptor(const std::string& name, int flags) : number_(::open(name.c_str(), flags | O_CLOEXEC, 0600)) {}
    ~Descriptor() {
        if (number_ >= 0) ::close(number_);
    }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    operator int() const { return number_; }

private:
    int number_;
};

/// The folder for the user's settings, with a slash at its end; empty when there is none.
std::string SettingsFolder() {
    const char* folder = std::getenv("XDG_CONFIG_HOME");  // NOLINT(concurrency-mt-unsafe)
    if (folder != nullptr && *folder == '/') return std::string{folder} + "/draftwick/";
    const char* home = std::getenv("HOME");  // NOLINT(concurrency-mt-unsafe)
    if (home == nullptr || *home != '/') return {};
    return std::string{home} + "/.config/draftwick/";
}

std::error_code MakeFolders(const std::string& path) {
    for (std::size_t end = path.find('/', 1); end != std::string::npos; end = path.find('/', end + 1)) {
        if (::mkdir(path.substr(0, end).c_str(), 0700) != 0 && errno != EEXIST) return LastError();
    }
    return {};
}

/// The whole file; no file reads as an empty one.
std::error_code ReadAll(const std::string& name, std::string& bytes) {
    const Descriptor file(name, O_RDONLY);
    if (file < 0) return errno == ENOENT ? std::error_code{} : LastError();
    char block[4096];
    for (;;) {
        const ssize_t n = ::read(file, block, sizeof block);
        if (n == 0) return {};
        if (n > 0) {
            bytes.append(block, static_cast<std::size_t>(n));
        } else if (errno != EINTR) {
            return LastError();
        }
    }
}

/// Puts a file in the place of another, so that readers see the old one or the new one.
std::error_code ReplaceFile(const std::string& name, std::string_view bytes) {
    const std::string next = name + ".new";
    const Descriptor file(next, O_WRONLY | O_CREAT | O_TRUNC);
    if (file < 0) return LastError();
    while (!bytes.empty()) {
        const ssize_t n = ::write(file, bytes.data(), bytes.size());
        if (n > 0) {
            bytes.remove_prefix(static_cast<std::size_t>(n));
        } else if (n == 0 || errno != EINTR) {
            return n == 0 ? Failure(std::errc::io_error) : LastError();
        }
    }
    if (::fsync(file) != 0 || std::rename(next.c_str(), name.c_str()) != 0) return LastError();
    return {};
}

std::error_code ReadUserTree(const std::string& folder, RegistryTree& tree) {
    if (folder.empty()) return Failure(std::errc::no_such_file_or_directory);
    std::string text;
    if (const std::error_code error = ReadAll(folder + "registry", text)) return error;
    return tree.Parse(text) ? std::error_code{} : Failure(std::errc::bad_message);
}

/// Changes the user's settings: reads them, lets `change` at them and writes them, with all others locked out.
/// Nothing is written when the change fails.
std::error_code ChangeUserTree(const std::function<std::error_code(RegistryTree&)>& change) {
    const std::string folder = SettingsFolder();
    if (const std::error_code error = MakeFolders(folder)) return error;
    const Descriptor lock(folder.empty() ? folder : folder + "registry.lock", O_RDWR | O_CREAT);
    if (lock < 0) return LastError();
    while (::flock(lock, LOCK_EX) != 0) {
        if (errno != EINTR) return LastError();
    }
    RegistryTree tree;
    if (const std::error_code error = ReadUserTree(folder, tree)) return error;
    const std::string before = tree.Text();
    if (const std::error_code error = change(tree)) return error;
    const std::string after = tree.Text();
    if (after == before) return {};
    return ReplaceFile(folder + "registry", "# Settings that programs leave for each other.\n" + after);
}

/// What a desktop has in place of a machine's registry: the program that shows documents.
RegistryTree MachineTree() {
    RegistryTree tree;
    std::string command;
    if (IsProgram("soffice")) {
        command = "soffice --view \"%1\"";
    } else if (IsProgram("xdg-open")) {
        command = "xdg-open \"%1\"";
    } else {
        return tree;
    }
    command += '\0';
    tree.Make("SOFTWARE\\Classes\\Word.Document.8\\shell\\wordview\\command").values = {
        {"", RegistryType::Text, command}};
    return tree;
}

/// A key holds what was there when it was opened, so that no list changes while it is read. Changes are made to what
/// is there when they are made.
class Key final : public RegistryKey {
public:
    Key(RegistryRoot root, std::string path, RegistryTree content)
        : root_(root), path_(std::move(path)), content_(std::move(content)) {}

    std::error_code QueryValue(const std::string& name, RegistryType& type, std::string& bytes) override {
        const RegistryTree::Value* value = content_.FindValue(name);
        if (value == nullptr) return Failure(std::errc::no_such_file_or_directory);
        type = value->type;
        bytes = value->bytes;
        return {};
    }

    std::error_code SetValue(const std::string& name, RegistryType type, const char* data,
                             std::size_t size) override {
        std::string bytes{data, size};
        if (type == RegistryType::Text && size > 0 && data[size - 1] != '\0' && data[size] == '\0')
            bytes += '\0';
        return Change([&](RegistryTree& tree) {
            RegistryTree* key = tree.Find(path_);
            if (key == nullptr) return Failure(std::errc::no_such_file_or_directory);
            RegistryTree::Value* value = key->FindValue(name);
            if (value == nullptr) value = &key->values.emplace_back(RegistryTree::Value{name, type, {}});
            value->type = type;
            value->bytes = bytes;
            return std::error_code{};
        });
    }

    std::error_code EnumerateKey(std::uint32_t index, std::string& name) override {
        if (index >= content_.subkeys.size()) return Failure(std::errc::no_such_file_or_directory);
        return GiveName(std::next(content_.subkeys.begin(), index)->second.name, name);
    }

    std::error_code EnumerateValue(std::uint32_t index, std::string& name) override {
        if (index >= content_.values.size()) return Failure(std::errc::no_such_file_or_directory);
        return GiveName(content_.values[index].name, name);
    }

    std::error_code DeleteKey(const std::string& path) override {
        return Change([&](RegistryTree& tree) { return tree.Remove(path_ + '\\' + path); });
    }

private:
    static std::error_code GiveName(const std::string& from, std::string& to) {
        if (from.size() >= RegistryNameRoom) return Failure(std::errc::value_too_large);
        to = from;
        return {};
    }

    std::error_code Change(const std::function<std::error_code(RegistryTree&)>& change) const {
        if (root_ != RegistryRoot::CurrentUser) return Failure(std::errc::permission_denied);
        return ChangeUserTree(change);
    }

    RegistryRoot root_;
    std::string path_;
    RegistryTree content_;
};

class Store final : public RegistryStore {
public:
    std::unique_ptr<RegistryKey> Open(RegistryRoot root, const std::string& path,
                                      std::error_code& error) override {
        error.clear();
        RegistryTree tree;
        if (root == RegistryRoot::CurrentUser) {
            error = ReadUserTree(SettingsFolder(), tree);
        } else {
            tree = MachineTree();
        }
        if (error) return nullptr;
        RegistryTree* key = tree.Find(path);
        if (key == nullptr) {
            error = Failure(std::errc::no_such_file_or_directory);
            return nullptr;
        }
        return std::make_unique<Key>(root, path, std::move(*key));
    }

    std::unique_ptr<RegistryKey> Create(RegistryRoot root, const std::string& path,
                                        std::error_code& error) override {
        if (root != RegistryRoot::CurrentUser) {
            error = Failure(std::errc::permission_denied);
            return nullptr;
        }
        if (RegistryTree::IsTooDeep(path)) {
            error = Failure(std::errc::invalid_argument);
            return nullptr;
        }
        error = ChangeUserTree([&](RegistryTree& tree) {
            tree.Make(path);
            return std::error_code{};
        });
        return error ? nullptr : Open(root, path, error);
    }
};

}  // namespace

std::shared_ptr<RegistryStore> MakeRegistryStore() { return std::make_shared<Store>(); }

}  // namespace draftwick::platform::posix
