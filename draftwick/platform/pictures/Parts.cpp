#include <draftwick/platform/Pictures.h>
#include <draftwick/platform/pictures/Parts.h>

#include <cmath>

namespace draftwick::platform::pictures {

std::int32_t HimetricFromPixels(std::int32_t pixels, double twipsPerPixel) {
    auto himetric = static_cast<std::int32_t>(pixels * twipsPerPixel * 2540 / 1440);
    // Whoever converts back does so in floating point, where a whole number can come out a hair too small.
    while (std::floor(himetric / 2540.0 * 1440 / twipsPerPixel) < pixels) ++himetric;
    return himetric;
}

std::optional<Bitmap> MakeBitmap(std::int64_t width, std::int64_t height) {
    if (width < 1 || height < 1 || width > MaxBitmapSide || height > MaxBitmapSide) return {};
    if (width * height > MaxBitmapPixels) return {};
    Bitmap bitmap{static_cast<std::int32_t>(width), static_cast<std::int32_t>(height), {}};
    bitmap.pixels.assign(bitmap.RowSize() * static_cast<std::size_t>(height), 0xFF);
    return bitmap;
}

}  // namespace draftwick::platform::pictures
