#pragma once

// What the parts of the picture service know of each other.

#include <draftwick/platform/Pictures.h>
#include <draftwick/platform/pictures/Parts.h>

#include <optional>

namespace draftwick::platform::posix {

using pictures::Bitmap;
using pictures::PictureSource;
using pictures::Size;

/// Starts at the beginning of the file and returns nothing when it is unreadable.
std::optional<Bitmap> ReadGif(PictureSource& source);

/// Writes the top left part of a bitmap as an enhanced metafile; `frame` is that part's size.
void WriteMetafile(const Bitmap& bitmap, std::int32_t width, std::int32_t height, Size frame,
                   double twipsPerPixel, File& file, std::error_code& error);

}  // namespace draftwick::platform::posix
