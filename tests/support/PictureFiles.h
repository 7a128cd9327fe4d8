#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace draftwick::test {

/// Pixels as 0xRRGGBB, rows from the top.
struct Image {
    int width = 0;
    int height = 0;
    std::vector<std::uint32_t> pixels;

    bool operator==(const Image&) const = default;
};

/// The bytes of a file of tests/pictures. It has the colours of Coloured.
std::string PictureFile(const std::string& name);

/// Black, red, green, blue, yellow, magenta, cyan and white by their digits from 0 on; rows end at blanks.
Image Coloured(std::string_view digits);
/// What the files in tests/pictures/sample show.
inline const Image sample = Coloured("01234 55567 76500");

std::string Le16(std::uint32_t value);
std::string Le32(std::uint32_t value);
/// The headers of a JPEG. `unit` is that of the JFIF density; -1: no JFIF header at all.
std::string MakeJpeg(int width, int height, int unit, int densityX, int densityY);
/// A metafile of a header alone, with the given frame.
std::string MakeEmf(std::int32_t left, std::int32_t top, std::int32_t right, std::int32_t bottom);
/// A placeable header and an empty metafile.
std::string MakeWmf(int left, int top, int right, int bottom, std::uint32_t unitsPerInch);

/// The bitmap in a recorded metafile, read by nothing but its own fields.
Image ReadRecorded(const std::string& emf, int* bits = nullptr);

}  // namespace draftwick::test
