#include <draftwick/platform/pictures/Parts.h>

#include <algorithm>
#include <array>
#include <cmath>

namespace draftwick::platform::pictures {

namespace {

/// Profiles and previews stand in front of the size; a file with more of them than this is no picture.
constexpr std::uint64_t MaxJpegHeader = 64 << 20;

int BigU16(const std::uint8_t* p) { return p[0] << 8 | p[1]; }

/// Whether a marker is that of a frame header: C0 to CF without tables (C4, CC) and what is reserved (C8).
bool IsFrameHeader(int marker) {
    return marker >= 0xC0 && marker <= 0xCF && marker != 0xC4 && marker != 0xC8 && marker != 0xCC;
}

std::int32_t Himetric(int pixels, double perInch) {
    return std::max(1, static_cast<std::int32_t>(std::lround(pixels * 2540.0 / perInch)));
}

}  // namespace

// ITU-T T.81 B.1 has the markers and B.2.2 the frame header; the JFIF header is the first marker of its file.
std::optional<Size> ReadJpegSize(PictureSource& source, double twipsPerPixel) {
    std::array<std::uint8_t, 14> head{};
    if (!source.ReadAll(head.data(), 2) || BigU16(&head[0]) != 0xFFD8) return {};
    int unit = 0;
    int densityX = 0;
    int densityY = 0;
    while (source.Position() < MaxJpegHeader) {
        int marker = source.Get();
        while (marker >= 0 && marker != 0xFF) marker = source.Get();  // what should not be there
        while (marker == 0xFF) marker = source.Get();
        if (marker < 0 || marker == 0xD9 || marker == 0xDA) return {};  // the picture, and still no size
        if (marker <= 0x01 || (marker >= 0xD0 && marker <= 0xD7)) continue;
        if (!source.ReadAll(head.data(), 2)) return {};
        const auto size = static_cast<std::size_t>(BigU16(&head[0]));
        if (size < 2) return {};
        std::size_t rest = size - 2;
        const std::size_t taken = std::min(rest, head.size());
        if (!source.ReadAll(head.data(), taken)) return {};
        rest -= taken;
        if (IsFrameHeader(marker)) {
            if (taken < 6) return {};
            const int height = BigU16(&head[1]);
            const int width = BigU16(&head[3]);
            if (width == 0 || height == 0 || head[5] == 0) return {};
            const double perUnit = unit == 1 ? 1 : 2.54;
            if ((unit == 1 || unit == 2) && densityX > 0 && densityY > 0)
                return Size{Himetric(width, densityX * perUnit), Himetric(height, densityY * perUnit)};
            return Size{HimetricFromPixels(width, twipsPerPixel), HimetricFromPixels(height, twipsPerPixel)};
        }
        if (marker == 0xE0 && taken >= 12 && std::equal(head.begin(), head.begin() + 5, "JFIF")) {
            unit = head[7];
            densityX = BigU16(&head[8]);
            densityY = BigU16(&head[10]);
        }
        if (!source.Skip(rest)) return {};
    }
    return {};
}

}  // namespace draftwick::platform::pictures
