#include <draftwick/platform/Pictures.h>
#include <draftwick/platform/pictures/Parts.h>

#include <cmath>

namespace draftwick::platform::pictures {

std::int32_t HimetricFromPixels(std::int32_t pixels, int twipsPerPixel) {
    // pixels * twips * 2540 / 1440, rounded up.
    auto himetric = (std::int64_t{pixels} * twipsPerPixel * 127 + 71) / 72;
    // Whoever converts back does so in floating point, where a whole number can come out a hair too small.
    if (std::floor(static_cast<double>(himetric) / 2540 * 1440 / twipsPerPixel) < pixels) ++himetric;
    return static_cast<std::int32_t>(himetric);
}

std::optional<Bitmap> MakeBitmap(std::int64_t width, std::int64_t height) {
    if (width < 1 || height < 1 || width > MaxBitmapSide || height > MaxBitmapSide) return {};
    if (width * height > MaxBitmapPixels) return {};
    Bitmap bitmap{static_cast<std::int32_t>(width), static_cast<std::int32_t>(height), {}};
    bitmap.pixels.assign(bitmap.RowSize() * static_cast<std::size_t>(height), 0xFF);
    return bitmap;
}

}  // namespace draftwick::platform::pictures
