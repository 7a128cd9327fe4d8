#pragma once

#include <draftwick/platform/FileSystem.h>

#include <array>
#include <cstdint>
#include <exception>
#include <system_error>

namespace draftwick::platform::pictures {

/// Reads a picture file from front to back through a small buffer.
/// A failure of the file ends the data, so that readers need to know only one kind of end; Outcome tells
/// the two apart afterwards. Nothing else throws here: C libraries call it.
class PictureSource {
public:
    PictureSource(File& file, std::uint64_t length) : file_(file), length_(length) {}

    /// The file's length as the file system tells it. What can be read may still be less.
    std::uint64_t Length() const { return length_; }
    std::uint64_t Position() const { return position_; }

    /// Reads up to `size` bytes; fewer only at the end.
    std::size_t Read(std::uint8_t* bytes, std::size_t size) noexcept;
    /// Reads `size` bytes; false when there are fewer.
    bool ReadAll(std::uint8_t* bytes, std::size_t size) noexcept { return Read(bytes, size) == size; }
    /// The next byte, or -1 at the end.
    int Get() noexcept { return next_ < end_ || Fill() ? (++position_, buffer_[next_++]) : -1; }
    /// Passes over `size` bytes; false when there are fewer.
    bool Skip(std::uint64_t size) noexcept;

    /// What the file reported, if anything; rethrows what it threw.
    std::error_code Outcome() const {
        if (thrown_) std::rethrow_exception(thrown_);
        return error_;
    }

private:
    bool Fill() noexcept;

    File& file_;
    std::uint64_t length_;
    std::uint64_t position_ = 0;
    std::size_t next_ = 0;
    std::size_t end_ = 0;
    bool ended_ = false;
    std::error_code error_;
    std::exception_ptr thrown_;
    std::array<std::uint8_t, 16384> buffer_;
};

/// Little-endian numbers in a header.
inline std::uint16_t U16(const std::uint8_t* p) { return static_cast<std::uint16_t>(p[0] | p[1] << 8); }
inline std::uint32_t U32(const std::uint8_t* p) {
    return static_cast<std::uint32_t>(U16(p)) | static_cast<std::uint32_t>(U16(p + 2)) << 16;
}
inline std::int16_t I16(const std::uint8_t* p) { return static_cast<std::int16_t>(U16(p)); }
inline std::int32_t I32(const std::uint8_t* p) { return static_cast<std::int32_t>(U32(p)); }

}  // namespace draftwick::platform::pictures
