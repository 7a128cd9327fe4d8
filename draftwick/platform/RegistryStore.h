#pragma once

#include <draftwick/platform/Export.h>

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <system_error>

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

/// An open key. Destroying it closes it. Names are UTF-8 and told apart without regard to case. An operation that
/// fails gives the system's result code and nothing else; a key or value that is not there is
/// std::errc::no_such_file_or_directory.
class DRAFTWICK_API RegistryKey {
public:
    virtual ~RegistryKey() = default;

    /// The type and the bytes of a value; the empty name is the key's default value.
    virtual std::error_code QueryValue(const std::string& name, RegistryType& type, std::string& bytes) = 0;
    /// Stores a value. A text whose terminating zero is not counted, but stands behind it, is stored with it:
    /// data[size] must be readable.
    virtual std::error_code SetValue(const std::string& name, RegistryType type, const char* data,
                                     std::size_t size) = 0;
    /// The name of a subkey, by its number from 0. Any error ends a list, also a name that is too long.
    virtual std::error_code EnumerateKey(std::uint32_t index, std::string& name) = 0;
    /// The name of a value, by its number from 0.
    virtual std::error_code EnumerateValue(std::uint32_t index, std::string& name) = 0;
    /// Deletes a subkey. std::errc::permission_denied when that has subkeys.
    virtual std::error_code DeleteKey(const std::string& path) = 0;
};

/// Settings that programs leave for each other: keys in a tree, joined by backslashes, that hold named values. The
/// registry on Windows. On POSIX the user's are a text file, draftwick/registry in the folder for settings
/// (XDG_CONFIG_HOME, ~/.config), and the machine's cannot be changed: they name the desktop's program for documents.
class DRAFTWICK_API RegistryStore {
public:
    virtual ~RegistryStore() = default;

    /// Opens a key that exists, for reading; nullptr and the result code otherwise.
    virtual std::unique_ptr<RegistryKey> Open(RegistryRoot root, const std::string& path,
                                              std::error_code& error) = 0;
    /// Opens a key for writing; it and the keys above it are made when they are not there.
    virtual std::unique_ptr<RegistryKey> Create(RegistryRoot root, const std::string& path,
                                                std::error_code& error) = 0;
};

}  // namespace draftwick::platform
