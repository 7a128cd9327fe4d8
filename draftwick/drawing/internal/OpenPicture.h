#pragma once

#include <draftwick/base/internal/Names.h>
#include <draftwick/platform/Platform.h>

#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace draftwick::detail {

class Session;

/// A size in twips.
struct PictureSize {
    std::int32_t width, height;
};

/// Whether the bytes of a Windows metafile begin with the header that gives it a size.
bool IsPlaceable(std::span<const unsigned char> bytes);

/// A picture that was found, understood, converted if it must be, and read: everything that can fail before a byte of
/// it is written.
class OpenPicture {
public:
    /// dwErrPictureFileNotFound when there is no such file, dwErrUnsupportedFileType for a name without one of the
    /// known extensions, error 481 when the content is not what the name says; FileError. In the standard spelling PNG is
    /// taken, too, capitals in the extension do not matter, and the first bytes say what the content is. A picture that
    /// must be converted is converted in a temporary file or, for a document that is kept in memory, there.
    OpenPicture(const Session& session, const std::string& fileName);
    /// The picture that the bytes are. dwErrUnsupportedFileType when they begin as none does, else as above.
    static std::shared_ptr<const OpenPicture> FromBytes(const Session& session, std::string_view bytes);

    struct Scale {
        std::int32_t x = 100;  ///< percent
        std::int32_t y = 100;
    };
    /// What makes the picture as large as that, in twips; nothing unless both are above 0. Error 11 when the picture
    /// itself has no size, error 6 when the percentage does not fit 32 bits.
    std::optional<Scale> ScaleTo(std::int32_t width, std::int32_t height) const;

    /// The picture's own size, or the other one if it has none.
    PictureSize SizeOr(const PictureSize& other) const noexcept;

    platform::PictureKind Kind() const noexcept { return kind_; }
    /// The bytes of the picture's file, or of what it was converted to.
    const std::vector<unsigned char>& Bytes() const noexcept { return bytes_; }

private:
    OpenPicture() = default;

    void Load(const platform::Platform& platform, platform::FileSystem& files, const std::string& name,
              bool inMemory);
    void Convert(const platform::Platform& platform, const platform::Picture& picture, bool inMemory);
    void Record(platform::Pictures& service, const platform::Picture& picture, platform::FileSystem& files,
                const std::string& name);
    void Read(platform::FileSystem& files, const std::string& name);

    platform::PictureKind kind_{};
    std::int32_t width_ = 0;  // HIMETRIC
    std::int32_t height_ = 0;
    std::vector<unsigned char> bytes_;
};

}  // namespace draftwick::detail
