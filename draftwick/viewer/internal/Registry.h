#pragma once

#include <draftwick/platform/RegistryStore.h>

#include <cstdint>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace draftwick {

/// Reads and writes the values under one key of the system's settings, or in a section (a subkey) of it. No
/// key stays open between two operations. Nothing here fails: what cannot be read is the caller's default,
/// what cannot be written is not written.
class Registry {
public:
    explicit Registry(platform::RegistryStore& store) : store_(store) {}

    /// Default RegistryRoot::CurrentUser, which 0 means, too.
    platform::RegistryRoot Root() const noexcept { return root_; }
    void SetRoot(platform::RegistryRoot root) noexcept {
        root_ = root == platform::RegistryRoot{} ? platform::RegistryRoot::CurrentUser : root;
    }
    /// The path of the key below the root. Default empty.
    const std::string& Path() const noexcept { return path_; }
    void SetPath(std::string_view path) { path_ = path; }

    // Reading. An empty section is the key itself, an empty value name its default value. Texts are read as numbers
    // when they are decimal numbers with nothing but blanks around them.

    /// A number is read as its decimal text.
    std::string ReadString(std::string_view section, std::string_view key, std::string_view fallback) const;
    /// Fractions are rounded to whole numbers, ties to even.
    std::int32_t ReadLong(std::string_view section, std::string_view key, std::int32_t fallback) const;
    double ReadDouble(std::string_view section, std::string_view key, double fallback) const;
    /// Every number but 0 is true; so is the text "True". "False" is false. Without regard to case.
    bool ReadBoolean(std::string_view section, std::string_view key, bool fallback) const;

    // Writing. Keys that are not there are made.

    void WriteString(std::string_view section, std::string_view key, const std::string& value) const;
    void WriteLong(std::string_view section, std::string_view key, std::int32_t value) const;
    /// The number's decimal text of at most 15 digits, cut to its first 8 characters: that is what other readers of
    /// these values expect. Read back, a text that was cut loses its last character, too.
    void WriteDouble(std::string_view section, std::string_view key, double value) const;
    /// Stores -1 for true.
    void WriteBoolean(std::string_view section, std::string_view key, bool value) const;

    /// The names of the subkeys, in the system's order.
    std::vector<std::string> ReadAllSubKeys(std::string_view section) const;
    /// The names of the values, in the system's order.
    std::vector<std::string> ReadAllValueNames(std::string_view section) const;

    /// Deletes a section with everything under it; with an empty section the key itself, but never a root.
    void DeleteSection(std::string_view section) const;

private:
    using Value = std::variant<std::monostate, std::string, std::int32_t>;

    std::string KeyPath(std::string_view section) const;
    Value QueryValue(std::string_view section, std::string_view key) const;
    void SetValue(std::string_view section, std::string_view key, platform::RegistryType type,
                  const char* data, std::size_t size) const;

    platform::RegistryStore& store_;
    platform::RegistryRoot root_ = platform::RegistryRoot::CurrentUser;
    std::string path_;
};

}  // namespace draftwick
