#pragma once

// What the parts of the picture service know of each other: one reader per kind of file, and the recorder.

#include <draftwick/platform/Pictures.h>
#include <draftwick/platform/posix/PicturesSource.h>

#include <cstddef>
#include <optional>
#include <vector>

namespace draftwick::platform::posix {

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

/// A size in HIMETRIC.
struct Size {
    std::int32_t width = 0;
    std::int32_t height = 0;
};

/// The HIMETRIC length of so many screen pixels, rounded up.
std::int32_t HimetricFromPixels(std::int32_t pixels, int twipsPerPixel);

// The readers. Each starts at the beginning of the file and returns nothing when it is unreadable.
std::optional<Bitmap> ReadBmp(PictureSource& source);
std::optional<Bitmap> ReadGif(PictureSource& source);
std::optional<Size> ReadJpegSize(PictureSource& source, int twipsPerPixel);
std::optional<Size> ReadEmfSize(PictureSource& source);
std::optional<Size> ReadWmfSize(PictureSource& source);

/// Writes the top left part of a bitmap as an enhanced metafile; `frame` is that part's size.
void WriteMetafile(const Bitmap& bitmap, std::int32_t width, std::int32_t height, Size frame,
                   int twipsPerPixel, File& file, std::error_code& error);

}  // namespace draftwick::platform::posix
