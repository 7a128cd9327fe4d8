#include <draftwick/platform/pictures/Parts.h>

#include <algorithm>
#include <array>
#include <limits>
#include <string_view>

// ISO/IEC 15948 (PNG): 5.2 the signature, 5.3 the chunks, 11.2.2 IHDR, 11.3.5.3 pHYs.

namespace draftwick::platform::pictures {

namespace {

std::uint32_t BigU32(const std::uint8_t* p) {
    return std::uint32_t{p[0]} << 24 | std::uint32_t{p[1]} << 16 | std::uint32_t{p[2]} << 8 | p[3];
}

/// A chunk with the first of its data.
struct Chunk {
    std::uint32_t size = 0;
    std::array<std::uint8_t, 4> name{};
    std::array<std::uint8_t, 13> data{};

    bool Is(std::string_view text) const { return std::equal(text.begin(), text.end(), name.begin()); }

    /// Reads it and passes over the rest of its data and its checksum.
    bool Read(PictureSource& source) {
        std::array<std::uint8_t, 4> length{};
        if (!source.ReadAll(length.data(), length.size()) || !source.ReadAll(name.data(), name.size()))
            return false;
        size = BigU32(length.data());
        const std::size_t taken = std::min<std::size_t>(size, data.size());
        return source.ReadAll(data.data(), taken) && source.Skip(std::uint64_t{size} - taken + 4);
    }
};

}  // namespace

std::optional<Size> ReadPngSize(PictureSource& source, double twipsPerPixel) {
    static constexpr std::array<std::uint8_t, 8> Signature{0x89, 'P', 'N', 'G', 0x0D, 0x0A, 0x1A, 0x0A};
    std::array<std::uint8_t, 8> signature{};
    Chunk chunk;
    if (!source.ReadAll(signature.data(), signature.size()) || signature != Signature || !chunk.Read(source)
        || !chunk.Is("IHDR") || chunk.size != 13)
        return {};
    const std::uint32_t width = BigU32(&chunk.data[0]), height = BigU32(&chunk.data[4]);
    constexpr std::uint32_t Most =
        std::numeric_limits<std::int32_t>::max() / 4096;  // any resolution keeps 32 bits
    if (width == 0 || height == 0 || width > Most || height > Most) return {};
    const auto pixels = [&](std::uint32_t count) {
        return HimetricFromPixels(static_cast<std::int32_t>(count), twipsPerPixel);
    };
    Size size{pixels(width), pixels(height)};
    while (!chunk.Is("IDAT") && !chunk.Is("IEND") && chunk.Read(source)) {
        constexpr std::uint8_t PerMetre = 1;
        if (!chunk.Is("pHYs") || chunk.size != 9 || chunk.data[8] != PerMetre) continue;
        const auto atDensity = [](std::uint32_t count, std::uint32_t perMetre) {
            const double himetric = std::max(1.0, count * 100000.0 / perMetre + 0.5);
            return static_cast<std::int32_t>(
                std::min<double>(himetric, std::numeric_limits<std::int32_t>::max()));
        };
        const std::uint32_t x = BigU32(&chunk.data[0]), y = BigU32(&chunk.data[4]);
        if (x != 0 && y != 0) size = {atDensity(width, x), atDensity(height, y)};
    }
    return size;
}

}  // namespace draftwick::platform::pictures
