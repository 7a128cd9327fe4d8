#include "tests/support/PictureFiles.h"
#include "tests/support/TempFolder.h"

#include <cstdlib>

namespace draftwick::test {

using namespace std::string_literals;

namespace {

std::uint32_t Number(const std::string& bytes, std::size_t at, int size) {
    std::uint32_t value = 0;
    for (int i = size; i-- > 0;)
        value = value << 8 | static_cast<std::uint8_t>(bytes.at(at + static_cast<std::size_t>(i)));
    return value;
}

std::string Be16(int value) {
    return {static_cast<char>(value >> 8 & 0xFF), static_cast<char>(value & 0xFF)};
}

}  // namespace

std::string PictureFile(const std::string& name) { return ReadFile(DRAFTWICK_PICTURES_FOLDER "/" + name); }

Image Coloured(std::string_view digits) {
    Image image;
    for (const char c : digits) {
        const unsigned colour = static_cast<unsigned>(c - '0');
        constexpr std::uint32_t Colours[] = {0x000000, 0xFF0000, 0x00FF00, 0x0000FF,
                                             0xFFFF00, 0xFF00FF, 0x00FFFF, 0xFFFFFF};
        if (c != ' ') image.pixels.push_back(Colours[colour]);
    }
    image.width = static_cast<int>(digits.substr(0, digits.find(' ')).size());
    image.height = static_cast<int>(image.pixels.size()) / image.width;
    return image;
}

std::string Le16(std::uint32_t value) { return Le32(value).substr(0, 2); }
std::string Le32(std::uint32_t value) {
    std::string bytes;
    for (int shift = 0; shift < 32; shift += 8) bytes += static_cast<char>(value >> shift & 0xFF);
    return bytes;
}

std::string MakeJpeg(int width, int height, int unit, int densityX, int densityY) {
    std::string bytes = "\xFF\xD8";
    if (unit >= 0) {
        bytes +=
            "\xFF\xE0\0\x10JFIF\0\1\1"s + static_cast<char>(unit) + Be16(densityX) + Be16(densityY) + "\0\0"s;
    }
    return bytes + "\xFF\xC0\0\x0B\x08"s + Be16(height) + Be16(width) + "\1\1\x11\0\xFF\xD9"s;
}

std::string MakeEmf(std::int32_t left, std::int32_t top, std::int32_t right, std::int32_t bottom) {
    std::string header = Le32(1) + Le32(88) + std::string(16, '\0');
    for (const std::int32_t side : {left, top, right, bottom})
        header += Le32(static_cast<std::uint32_t>(side));
    header += " EMF" + Le32(0x10000) + Le32(88) + Le32(1);
    header.resize(88);
    return header;
}

std::string MakeWmf(int left, int top, int right, int bottom, std::uint32_t unitsPerInch) {
    std::string header = Le32(0x9AC6CDD7) + Le16(0);
    for (const int side : {left, top, right, bottom}) header += Le16(static_cast<std::uint32_t>(side));
    header += Le16(unitsPerInch) + Le32(0) + Le16(0);
    return header + Le16(1) + Le16(9) + Le16(0x300) + Le32(12) + Le16(0) + Le32(3) + Le16(0) + Le32(3)
           + Le16(0);
}

Image ReadRecorded(const std::string& emf, int* bits) {
    // The one record that draws: EMR_BITBLT or EMR_STRETCHDIBITS. They have the same at different places.
    std::size_t record = 0;
    while (Number(emf, record, 4) != 76 && Number(emf, record, 4) != 81) record += Number(emf, record + 4, 4);
    const std::size_t offsets = Number(emf, record, 4) == 76 ? 84 : 48;
    const std::size_t info = record + Number(emf, record + offsets, 4);
    const std::size_t bitmap = record + Number(emf, record + offsets + 8, 4);
    const auto depth = static_cast<std::size_t>(Number(emf, info + 14, 2));
    const auto signedHeight = static_cast<std::int32_t>(Number(emf, info + 8, 4));
    // The part of the bitmap that is shown.
    Image image{static_cast<int>(Number(emf, record + 16, 4) - Number(emf, record + 8, 4)) + 1,
                static_cast<int>(Number(emf, record + 20, 4) - Number(emf, record + 12, 4)) + 1,
                {}};
    const auto width = static_cast<std::size_t>(Number(emf, info + 4, 4));
    const auto height = static_cast<std::size_t>(std::abs(signedHeight));
    const std::size_t rowSize = (width * depth + 31) / 32 * 4;
    for (std::size_t y = 0; y < static_cast<std::size_t>(image.height); ++y) {
        const std::size_t row = bitmap + (signedHeight < 0 ? y : height - 1 - y) * rowSize;
        for (std::size_t x = 0; x < static_cast<std::size_t>(image.width); ++x) {
            if (depth >= 24) {
                image.pixels.push_back(Number(emf, row + x * depth / 8, 3));
            } else {
                const std::size_t bit = x * depth;
                const std::uint32_t byte = Number(emf, row + bit / 8, 1);
                const std::uint32_t index = byte >> (8 - depth - bit % 8) & ((1U << depth) - 1);
                image.pixels.push_back(Number(emf, info + 40 + index * 4, 4));
            }
        }
    }
    if (bits != nullptr) *bits = static_cast<int>(depth);
    return image;
}

}  // namespace draftwick::test
