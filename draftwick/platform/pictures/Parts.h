#pragma once

#include <draftwick/platform/Pictures.h>
#include <draftwick/platform/pictures/Source.h>

#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

namespace draftwick::platform::pictures {

/// A size in HIMETRIC.
struct Size {
    std::int32_t width = 0;
    std::int32_t height = 0;
};

/// The least HIMETRIC length that gives so many screen pixels back, as Pictures.h says.
std::int32_t HimetricFromPixels(std::int32_t pixels, double twipsPerPixel);

/// A decoded picture: rows from top to bottom without padding, three bytes (blue, green, red) per pixel.
struct Bitmap {
    std::int32_t width = 0;
    std::int32_t height = 0;
    std::vector<std::uint8_t> pixels;

    std::size_t RowSize() const { return static_cast<std::size_t>(width) * 3; }
    std::uint8_t* Row(std::int32_t y) { return pixels.data() + static_cast<std::size_t>(y) * RowSize(); }
    const std::uint8_t* Row(std::int32_t y) const {
        return pixels.data() + static_cast<std::size_t>(y) * RowSize();
    }
};

/// A white bitmap; nothing when it would be empty or larger than the limits of Pictures.h.
/// Readers ask for it only once the file has proved long enough to fill it.
std::optional<Bitmap> MakeBitmap(std::int64_t width, std::int64_t height);

/// No code of the compressed data of a GIF stands for more pixels than the code table has entries. A file that
/// claims more per byte, for its frame or its screen, is lying about its size.
inline constexpr std::int64_t MaxGifPixelsPerByte = 4096;

// The readers that all systems share. Each starts at the beginning of the file and returns nothing when it is
// unreadable.
std::optional<Bitmap> ReadBmp(PictureSource& source);
/// At the density that the headers give, or else at the screen's.
std::optional<Size> ReadJpegSize(PictureSource& source, double twipsPerPixel);
std::optional<Size> ReadPngSize(PictureSource& source, double twipsPerPixel);
std::optional<Size> ReadEmfSize(PictureSource& source);
std::optional<Size> ReadWmfSize(PictureSource& source);

}  // namespace draftwick::platform::pictures
