#pragma once

#include <draftwick/base/internal/Names.h>
#include <draftwick/platform/FileSystem.h>

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

namespace draftwick {

/// Raises FileError: "cannot write 'name': no space left on device"; std::bad_alloc when memory is what lacks.
[[noreturn]] void RaiseFileError(std::error_code error, std::string_view action, const std::string& name);

/// Collects bytes and hands them to a file in large blocks.
///
/// Append never reports a failure of the file, so that an object is never half written: what could not be
/// written stays in memory, and Checkpoint, called between two objects, reports it. Nothing is lost: once the
/// cause is gone, later calls write what was kept.
class BlockWriter {
public:
    BlockWriter(std::unique_ptr<platform::File> file, std::string name);

    const std::string& Name() const noexcept { return name_; }
    /// How many bytes the file has taken.
    std::uint64_t Written() const noexcept { return written_; }
    /// What the file has not taken yet.
    std::string_view Kept() const noexcept { return {block_.get(), used_}; }

    void Append(const char* bytes, std::size_t size) {
        if (size > capacity_ - used_) {
            AppendLarge(bytes, size);
            return;
        }
        std::char_traits<char>::copy(block_.get() + used_, bytes, size);
        used_ += size;
    }

    /// Appends all that can be read from another file behind so many bytes, through this one's block. Failures are
    /// reported at once, and so is a file of another size.
    void AppendFile(platform::File& source, const std::string& sourceName, std::uint64_t skipped,
                    std::uint64_t expectedSize);

    /// Reports the failure of a write since the last Checkpoint, or one that still goes on: FileError, or std::bad_alloc
    /// for a file that memory is too small for.
    void Checkpoint() {
        if (failure_ || used_ > BlockSize) RetryAndReport();
    }
    /// Writes what is left and closes the file, on the disk if `durable`. After a failure to write the file is still
    /// open and nothing is lost.
    void Close(bool durable = false);
    /// Closes the file without what is left, which stays.
    void CloseUnwritten() noexcept { file_.reset(); }

private:
    static constexpr std::size_t BlockSize = std::size_t{64} * 1024;

    void RetryAndReport();
    void AppendLarge(const char* bytes, std::size_t size);
    void Flush() noexcept;
    void Report();

    std::unique_ptr<platform::File> file_;
    std::string name_;
    std::unique_ptr<char[]> block_;
    std::size_t capacity_;
    std::size_t used_ = 0;
    std::uint64_t written_ = 0;
    std::error_code failure_;
};

}  // namespace draftwick
