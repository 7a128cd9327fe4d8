#pragma once

#include <draftwick/platform/Export.h>

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <system_error>

namespace draftwick::platform {

/// An open file. Bytes go through as they are: nothing is translated or buffered here.
/// Destroying an open file closes it and drops the outcome; Close() reports it.
class DRAFTWICK_API File {
public:
    virtual ~File() = default;

    /// Writes all bytes, or as many as possible: short writes and interruptions are dealt with here.
    /// Returns how many were taken; fewer than `size` only together with an error.
    virtual std::size_t Write(const char* bytes, std::size_t size, std::error_code& error) = 0;

    /// Reads up to `size` bytes. 0 without an error is the end of the file.
    virtual std::size_t Read(char* bytes, std::size_t size, std::error_code& error) = 0;

    /// Ends the use of the file and reports what only shows then. A second call does nothing.
    virtual void Close(std::error_code& error) = 0;

    /// Goes on writing so many bytes behind the beginning, over what is there. A file that cannot
    /// (std::errc::not_supported, the default) is written in two passes.
    virtual void Seek(std::uint64_t position, std::error_code& error);
    /// Forces what was written to the disk. std::errc::not_supported by default.
    virtual void Sync(std::error_code& error);
};

/// How Create treats a file that is already there, and who may read a new one.
enum class Creation {
    Overwrite,         ///< an existing file is emptied
    Exclusive,         ///< an existing file is std::errc::file_exists
    ExclusivePrivate,  ///< as Exclusive; only the owner can read it
};

/// The file operations that documents need. Names are UTF-8 on Windows, the system's own bytes elsewhere.
class DRAFTWICK_API FileSystem {
public:
    virtual ~FileSystem() = default;

    /// Opens a new file for writing, or sets `error` and gives nothing.
    virtual std::unique_ptr<File> Create(const std::string& name, Creation mode, std::error_code& error) = 0;
    /// Opens a file that is there for reading, or sets `error` and gives nothing.
    virtual std::unique_ptr<File> OpenForReading(const std::string& name, std::error_code& error) = 0;

    /// Whether a regular file of that name exists.
    virtual bool Exists(const std::string& name) = 0;
    /// The length of a regular file in bytes.
    virtual std::uint64_t Length(const std::string& name, std::error_code& error) = 0;
    virtual void Delete(const std::string& name, std::error_code& error) = 0;

    /// Whether Rename can put a file under the name: a regular file has it, or nothing. Devices, pipes and folders
    /// can only be opened for writing, or not at all.
    virtual bool CanReplace(const std::string& name) = 0;
    /// Gives a file another name in its folder. A regular file of that name is replaced in one step: whoever opens
    /// it, at whatever time, gets the old file or the new one.
    virtual void Rename(const std::string& from, const std::string& to, std::error_code& error) = 0;

    /// Forces the names of the files in a folder to the disk. std::errc::not_supported by default.
    virtual void SyncFolder(const std::string& folder, std::error_code& error);

    /// The name by which any program finds the file: a name that is relative to the current folder gets that folder
    /// in front of it. Whether the file exists does not matter.
    virtual std::string FullName(const std::string& name) = 0;

    /// What stands between a folder and a file name.
    virtual char Separator() const = 0;
};

}  // namespace draftwick::platform
