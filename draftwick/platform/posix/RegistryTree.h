#pragma once

#include <draftwick/platform/RegistryStore.h>

#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace draftwick::platform::posix {

/// A key with all that is under it.
struct RegistryTree {
    struct Value {
        std::string name;
        RegistryType type{};
        std::string bytes;
    };

    std::string name;
    std::vector<Value> values;                    // in the order in which they were made
    std::map<std::string, RegistryTree> subkeys;  // by their names in lower case

    /// The key of that path below this one; this one for an empty path. nullptr when there is none.
    const RegistryTree* Find(std::string_view path) const;
    RegistryTree* Find(std::string_view path);
    /// As Find; keys that are not there are made.
    RegistryTree& Make(std::string_view path);
    Value* FindValue(std::string_view value);
    const Value* FindValue(std::string_view value) const;
    /// Deletes the key of that path; the outcome says why it cannot be done.
    std::error_code Remove(std::string_view path);
    /// Whether a path has more names than a tree may have levels.
    static bool IsTooDeep(std::string_view path);

    /// The keys and values as text: the tree's own values, then a line "[path\to\key]" for each key below and its
    /// values: "name"="text", "name"=dword:0000002a or "name"=hex(TYPE):bytes. Control characters, %, ", [ and ] in names and texts are
    /// written as %HH.
    std::string Text() const;
    /// Reads such a text into this empty tree. Lines that are empty or begin with # are passed over. False when
    /// there is another line.
    bool Parse(std::string_view text);
};

}  // namespace draftwick::platform::posix
