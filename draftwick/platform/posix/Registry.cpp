#include <draftwick/platform/internal/System.h>
#include <draftwick/text/CaseFolding.h>

#include <algorithm>
#include <cerrno>
#include <charconv>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <map>
#include <optional>
#include <sstream>
#include <string_view>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace draftwick::platform {

namespace {

/// How many names a path can have, as in a registry.
constexpr int MaxDepth = 512;

std::error_code Failure(std::errc error) { return std::make_error_code(error); }

struct Value {
    std::string name;
    RegistryType type{};
    std::string bytes{};
};

/// A key with all that is under it. Names keep their spelling and are found by their folded form.
struct Tree {
    std::string name;
    std::map<std::string, Value> values{};
    std::map<std::string, Tree> subkeys{};
};

/// Takes the first name off a path; empty at its end. Backslashes in a row are one.
std::string_view NextName(std::string_view& path) {
    path.remove_prefix(std::min(path.find_first_not_of('\\'), path.size()));
    const std::string_view name = path.substr(0, path.find('\\'));
    path.remove_prefix(name.size());
    return name;
}

/// The key of that path below `tree`, or nullptr.
Tree* Find(Tree* tree, std::string_view path) {
    for (std::string_view next = NextName(path); !next.empty() && tree != nullptr; next = NextName(path)) {
        const auto found = tree->subkeys.find(FoldCase(next));
        tree = found == tree->subkeys.end() ? nullptr : &found->second;
    }
    return tree;
}

/// As Find; keys that are not there are made. nullptr for a path that is too deep.
Tree* Make(Tree* tree, std::string_view path) {
    int depth = 0;
    for (std::string_view next = NextName(path); !next.empty(); next = NextName(path)) {
        if (++depth > MaxDepth) return nullptr;
        tree = &tree->subkeys.try_emplace(FoldCase(next), Tree{std::string{next}}).first->second;
    }
    return tree;
}

/// Deletes the key of that path, which must not have subkeys; `tree` itself stays.
std::error_code Remove(Tree* tree, std::string_view path) {
    Tree* parent = nullptr;
    for (std::string_view next = NextName(path); !next.empty() && tree != nullptr; next = NextName(path)) {
        parent = std::exchange(tree, Find(tree, next));
    }
    if (tree == nullptr) return Failure(std::errc::no_such_file_or_directory);
    if (parent == nullptr || !tree->subkeys.empty()) return Failure(std::errc::permission_denied);
    parent->subkeys.erase(FoldCase(tree->name));
    return {};
}

// The user's tree as text: the values of the root, then a line for each key, its path, with the values of the
// key. A value is a line of a tab, its name, a tab, its type, a tab and its bytes. What is not printable
// ASCII is %HH, and so is the percent sign.

std::string Escaped(std::string_view plain) {
    std::string text;
    for (const char c : plain) {
        char code[4] = {c, '\0'};
        if (c < ' ' || c > '~' || c == '%')
            std::snprintf(code, sizeof code, "%%%02x", static_cast<unsigned char>(c));
        text += code;
    }
    return text;
}

std::optional<std::string> Unescaped(std::string_view text) {
    std::string plain;
    for (std::size_t at = 0; at < text.size(); ++at) {
        plain += text[at];
        if (text[at] != '%') continue;
        if (text.size() - at < 3) return {};
        const char* const end = text.data() + at + 3;
        unsigned char byte = 0;
        if (std::from_chars(end - 2, end, byte, 16).ptr != end) return {};
        plain.back() = static_cast<char>(byte);
        at += 2;
    }
    return plain;
}

void Write(std::ostream& file, const Tree& tree, const std::string& path) {
    if (!path.empty()) file << path << '\n';
    for (const auto& [folded, value] : tree.values) {
        file << '\t' << Escaped(value.name) << '\t' << std::to_string(static_cast<std::uint32_t>(value.type))
             << '\t' << Escaped(value.bytes) << '\n';
    }
    for (const auto& [folded, subkey] : tree.subkeys) {
        Write(file, subkey, (path.empty() ? path : path + '\\') + Escaped(subkey.name));
    }
}

/// False for what Write does not write.
bool Read(std::istream& file, Tree& tree) {
    Tree* key = &tree;
    for (std::string line; std::getline(file, line);) {
        if (!line.starts_with('\t')) {
            const auto path = Unescaped(line);
            key = path ? Make(&tree, *path) : nullptr;
            if (key == nullptr) return false;
            continue;
        }
        std::istringstream fields(line.substr(1));
        std::string name, type, bytes;
        std::getline(std::getline(std::getline(fields, name, '\t'), type, '\t'), bytes);
        const auto plainName = Unescaped(name), plainBytes = Unescaped(bytes);
        std::uint32_t number = 0;
        const char* const end = type.data() + type.size();
        if (type.empty() || std::from_chars(type.data(), end, number).ptr != end || !plainName || !plainBytes)
            return false;
        key->values[FoldCase(*plainName)] = {*plainName, static_cast<RegistryType>(number), *plainBytes};
    }
    return !file.bad();
}

/// The folder of the user's tree, with a slash at its end; empty when there is none.
std::string SettingsFolder() {
    const char* folder = std::getenv("XDG_CONFIG_HOME");  // NOLINT(concurrency-mt-unsafe)
    if (folder != nullptr && *folder == '/') return std::string{folder} + "/draftwick/";
    const char* home = std::getenv("HOME");  // NOLINT(concurrency-mt-unsafe)
    if (home == nullptr || *home != '/') return {};
    return std::string{home} + "/.config/draftwick/";
}

/// Whether a program of that name can be started.
bool IsProgram(const std::string& name) {
    const char* value = std::getenv("PATH");  // NOLINT(concurrency-mt-unsafe)
    std::string_view folders = value != nullptr ? value : "";
    while (!folders.empty()) {
        const std::string_view folder = folders.substr(0, folders.find(':'));
        folders.remove_prefix(std::min(folder.size() + 1, folders.size()));
        const std::string file = std::string{folder} + '/' + name;
        struct stat status {};
        if (!folder.empty() && ::access(file.c_str(), X_OK) == 0 && ::stat(file.c_str(), &status) == 0
            && S_ISREG(status.st_mode))
            return true;
    }
    return false;
}

/// What a desktop has in place of a machine's registry: the program that shows documents.
Tree MachineTree() {
    Tree tree;
    const std::string program = IsProgram("soffice")    ? "soffice --view"
                                : IsProgram("xdg-open") ? "xdg-open"
                                                        : "";
    if (!program.empty()) {
        Make(&tree, "SOFTWARE\\Classes\\Word.Document.8\\shell\\wordview\\command")->values[""] = {
            "", RegistryType::Text, program + " \"%1\"" + std::string(1, '\0')};
    }
    return tree;
}

/// No file is as good as an empty one.
std::error_code LoadUserTree(Tree& tree) {
    const std::string folder = SettingsFolder();
    if (folder.empty()) return Failure(std::errc::no_such_file_or_directory);
    std::error_code error;
    if (!std::filesystem::exists(folder + "registry", error)) return error;
    std::ifstream file(folder + "registry", std::ios::binary);
    return file.is_open() && Read(file, tree) ? std::error_code{} : Failure(std::errc::bad_message);
}

/// Puts a new file in the place of the old one, at once.
std::error_code SaveUserTree(const Tree& tree) {
    const std::string folder = SettingsFolder();
    for (std::size_t end = folder.find('/', 1); end != folder.npos; end = folder.find('/', end + 1)) {
        if (::mkdir(folder.substr(0, end).c_str(), 0700) != 0 && errno != EEXIST)
            return {errno, std::generic_category()};
    }
    std::string next = folder + "registry.XXXXXX";
    const int created = ::mkstemp(next.data());  // for the user alone
    if (created < 0) return {errno, std::generic_category()};
    ::close(created);
    std::ofstream file(next, std::ios::binary);
    Write(file, tree, {});
    file.close();
    if (file && std::rename(next.c_str(), (folder + "registry").c_str()) == 0) return {};
    ::unlink(next.c_str());
    return Failure(std::errc::io_error);
}

class Store final : public RegistryStore {
public:
    std::error_code QueryValue(RegistryRoot root, const std::string& path, const std::string& name,
                               RegistryType& type, std::string& bytes) override {
        const Tree key = Open(root, path);
        const auto found = key.values.find(FoldCase(name));
        if (found == key.values.end()) return Failure(std::errc::no_such_file_or_directory);
        type = found->second.type;
        bytes = found->second.bytes;
        return {};
    }

    std::error_code SetValue(RegistryRoot root, const std::string& path, const std::string& name,
                             RegistryType type, std::string_view bytes) override {
        return Change(root, [&](Tree& tree) {
            Tree* const key = Make(&tree, path);
            if (key == nullptr) return Failure(std::errc::invalid_argument);
            Value& value = key->values.try_emplace(FoldCase(name), Value{name}).first->second;
            value.type = type;
            value.bytes = bytes;
            return std::error_code{};
        });
    }

    std::vector<std::string> SubKeys(RegistryRoot root, const std::string& path) override {
        return Names(Open(root, path).subkeys);
    }
    std::vector<std::string> ValueNames(RegistryRoot root, const std::string& path) override {
        return Names(Open(root, path).values);
    }

    std::error_code CreateKey(RegistryRoot root, const std::string& path) override {
        return Change(root, [&](Tree& tree) {
            return Make(&tree, path) != nullptr ? std::error_code{} : Failure(std::errc::invalid_argument);
        });
    }

    std::error_code DeleteKey(RegistryRoot root, const std::string& path) override {
        return Change(root, [&](Tree& tree) { return Remove(&tree, path); });
    }

private:
    /// The key of that path; an empty one where there is none.
    static Tree Open(RegistryRoot root, const std::string& path) {
        Tree tree;
        if (root == RegistryRoot::LocalMachine) tree = MachineTree();
        if (root == RegistryRoot::CurrentUser && LoadUserTree(tree)) return {};
        Tree* const key = Find(&tree, path);
        return key != nullptr ? std::move(*key) : Tree{};
    }

    /// Lets `change` at the tree. What cannot be read is left alone.
    static std::error_code Change(RegistryRoot root, const std::function<std::error_code(Tree&)>& change) {
        if (root != RegistryRoot::CurrentUser) return Failure(std::errc::permission_denied);
        Tree tree;
        std::error_code error = LoadUserTree(tree);
        if (!error) error = change(tree);
        return error ? error : SaveUserTree(tree);
    }

    template <class Named>
    static std::vector<std::string> Names(const Named& named) {
        std::vector<std::string> names;
        for (const auto& [folded, each] : named) {
            if (each.name.size() >= RegistryNameRoom) break;
            names.push_back(each.name);
        }
        return names;
    }
};

}  // namespace

std::shared_ptr<RegistryStore> MakeRegistryStore() { return std::make_shared<Store>(); }

}  // namespace draftwick::platform
