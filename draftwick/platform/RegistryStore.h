#pragma once

#include <draftwick/platform/Export.h>

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

namespace draftwick::platform {

/// The predefined keys that paths begin at.
enum class RegistryRoot : std::uint32_t { CurrentUser = 0x80000001, LocalMachine = 0x80000002 };

/// What the bytes of a value mean. There are more types; they are stored and given back, no more.
enum class RegistryType : std::uint32_t {
    Text = 1,    ///< UTF-8 with a terminating zero, which is not always there
    Number = 4,  ///< 32 bits, the lowest byte first
};

/// How long a name can be to be listed, in characters, with a terminating zero.
inline constexpr std::size_t RegistryNameRoom = 255;

/// Settings that programs leave for each other: keys in a tree, joined by backslashes to paths, that hold
/// named values. Names are UTF-8 and told apart without regard to case; the empty name is a key's default
/// value. An operation that fails gives the system's result code and changes nothing; a key or value that is
/// not there is std::errc::no_such_file_or_directory.
///
/// The registry on Windows. On POSIX the user's are a text file, draftwick/registry in the folder for
/// settings (XDG_CONFIG_HOME, ~/.config), which each change replaces as a whole; of changes at the same
/// moment the last one is kept. The machine's cannot be changed: they name the desktop's program for
/// documents.
class DRAFTWICK_API RegistryStore {
public:
    virtual ~RegistryStore() = default;

    /// The type and the bytes of a value.
    virtual std::error_code QueryValue(RegistryRoot root, const std::string& path, const std::string& name,
                                       RegistryType& type, std::string& bytes) = 0;
    /// Stores a value. Its key and those above it are made when they are not there.
    virtual std::error_code SetValue(RegistryRoot root, const std::string& path, const std::string& name,
                                     RegistryType type, std::string_view bytes) = 0;
    /// The names of the subkeys of a key, up to the first that is too long; none if there is no such key.
    virtual std::vector<std::string> SubKeys(RegistryRoot root, const std::string& path) = 0;
    /// The names of the values of a key, likewise.
    virtual std::vector<std::string> ValueNames(RegistryRoot root, const std::string& path) = 0;
    /// Makes a key, and those above it, when it is not there.
    virtual std::error_code CreateKey(RegistryRoot root, const std::string& path) = 0;
    /// Deletes a key. std::errc::permission_denied when it has subkeys, and for a root.
    virtual std::error_code DeleteKey(RegistryRoot root, const std::string& path) = 0;
};

}  // namespace draftwick::platform
