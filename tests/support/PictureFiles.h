#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <utility>
#include <vector>

namespace draftwick::test {

/// Pixels as 0xRRGGBB, rows from the top.
struct Image {
    int width = 0;
    int height = 0;
    std::vector<std::uint32_t> pixels;

    bool operator==(const Image&) const = default;
};

/// Palette indices, rows from the top.
struct Indices {
    int width = 0;
    int height = 0;
    std::vector<std::uint8_t> pixels;
};

/// Black, red, green, blue, yellow, magenta, cyan, white: colours that survive any depth.
extern const std::vector<std::uint32_t> eightColours;
Image Coloured(const Indices& indices, const std::vector<std::uint32_t>& palette = eightColours);

struct BmpForm {
    std::uint32_t headerSize = 40;
    int bits = 24;
    std::uint32_t compression = 0;
    bool topDown = false;
    std::array<std::uint32_t, 3> masks{};  ///< red, green, blue; written with compression 3
    std::uint32_t entries = 0;             ///< of the palette in the file; 0: as many as the bits allow
    std::uint32_t gap = 0;                 ///< bytes between palette and pixels
    std::int64_t claimedOffset = -1;       ///< where the header says that the pixels are; -1: the truth
    std::string encoded{};                 ///< run lengths, in place of the pixels
};
std::string MakeBmp(const Indices& indices, const BmpForm& form);

struct GifForm {
    int screenWidth = 0;
    int screenHeight = 0;
    int left = 0;
    int top = 0;
    bool interlaced = false;
    int transparent = -1;
    bool localPalette = false;
};
std::string MakeGif(const Indices& frame, const GifForm& form);

/// A grey JPEG. `unit` is that of the JFIF density; -1: no JFIF header at all.
std::string MakeJpeg(int width, int height, int unit, int densityX, int densityY);

std::string Le16(std::uint32_t value);
std::string Le32(std::uint32_t value);
/// A metafile of a header alone, with the given frame.
std::string MakeEmf(std::int32_t left, std::int32_t top, std::int32_t right, std::int32_t bottom);
/// A placeable header and an empty metafile.
std::string MakeWmf(int left, int top, int right, int bottom, std::uint32_t unitsPerInch);

/// The bitmap in a recorded metafile, read by nothing but its own fields.
Image ReadRecorded(const std::string& emf, int* bits = nullptr);

}  // namespace draftwick::test
