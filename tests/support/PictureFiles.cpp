#include "tests/support/PictureFiles.h"

#include <algorithm>
#include <cstdlib>

namespace draftwick::test {

namespace {

std::uint32_t Number(const std::string& bytes, std::size_t at, int size) {
    std::uint32_t value = 0;
    for (int i = size; i-- > 0;)
        value = value << 8 | static_cast<std::uint8_t>(bytes.at(at + static_cast<std::size_t>(i)));
    return value;
}

}  // namespace

const std::vector<std::uint32_t> eightColours{0x000000, 0xFF0000, 0x00FF00, 0x0000FF,
                                              0xFFFF00, 0xFF00FF, 0x00FFFF, 0xFFFFFF};

Image Coloured(const Indices& indices, const std::vector<std::uint32_t>& palette) {
    Image image{indices.width, indices.height, {}};
    for (const std::uint8_t index : indices.pixels) image.pixels.push_back(palette.at(index));
    return image;
}

std::string Le16(std::uint32_t value) { return Le32(value).substr(0, 2); }
std::string Le32(std::uint32_t value) {
    std::string bytes;
    for (int shift = 0; shift < 32; shift += 8) bytes += static_cast<char>(value >> shift & 0xFF);
    return bytes;
}

std::string MakeBmp(const Indices& indices, const BmpForm& form) {
    const auto width = static_cast<std::uint32_t>(indices.width);
    const auto bits = static_cast<std::uint32_t>(form.bits);
    const auto entries = bits > 8 ? 0 : form.entries != 0 ? form.entries : 1U << bits;
    std::string palette;
    for (std::uint32_t i = 0; i < entries; ++i) {
        const std::string entry = Le32(i < eightColours.size() ? eightColours[i] : 0x123456);
        palette += entry.substr(0, form.headerSize == 12 ? 3 : 4);
    }
    std::string pixels = form.encoded;
    for (int i = 0; i < indices.height && form.encoded.empty(); ++i) {
        const int y = form.topDown ? i : indices.height - 1 - i;
        std::string row((width * bits + 31) / 32 * 4, '\0');
        for (std::uint32_t x = 0; x < width; ++x) {
            const std::uint8_t index = indices.pixels[static_cast<std::size_t>(y) * width + x];
            const std::uint32_t rgb = eightColours[index];
            const std::uint32_t bit = x * bits;
            const std::uint32_t masked = (rgb & 0xFF0000 ? form.masks[0] : 0)
                                         | (rgb & 0xFF00 ? form.masks[1] : 0)
                                         | (rgb & 0xFF ? form.masks[2] : 0);
            if (bits <= 8)
                row[bit / 8] = static_cast<char>(row[bit / 8] | index << (8 - bits - bit % 8));
            else
                Le32(bits == 24 ? rgb : masked).copy(&row[bit / 8], bits / 8);
        }
        pixels += row;
    }
    const auto height = static_cast<std::uint32_t>(form.topDown ? -indices.height : indices.height);
    std::string info;
    if (form.headerSize == 12) {
        info = Le32(12) + Le16(width) + Le16(height) + Le16(1) + Le16(bits);
    } else {
        info = Le32(form.headerSize) + Le32(width) + Le32(height) + Le16(1) + Le16(bits)
               + Le32(form.compression) + Le32(0) + Le32(0) + Le32(0) + Le32(form.entries) + Le32(0);
        if (form.compression == 3) info += Le32(form.masks[0]) + Le32(form.masks[1]) + Le32(form.masks[2]);
        info.resize(std::max<std::size_t>(info.size(), form.headerSize));
    }
    const std::string front = info + palette + std::string(form.gap, '\x55');
    const std::uint64_t offset = 14 + front.size();
    const std::uint64_t claimed =
        form.claimedOffset < 0 ? offset : static_cast<std::uint64_t>(form.claimedOffset);
    return "BM" + Le32(0) + Le32(0) + Le32(static_cast<std::uint32_t>(claimed)) + front + pixels;
}

namespace {

/// Codes of a few bits each, the lowest bit first, as GIF has them.
class CodeWriter {
public:
    void Put(std::uint32_t code, int bits) {
        pending_ |= code << count_;
        for (count_ += bits; count_ >= 8; count_ -= 8, pending_ >>= 8)
            bytes_ += static_cast<char>(pending_ & 0xFF);
    }
    /// All codes in blocks of up to 255 bytes, and the empty block that ends them.
    std::string Blocks() {
        if (count_ > 0) Put(0, 8 - count_);
        std::string blocks;
        for (std::size_t at = 0; at < bytes_.size(); at += 255) {
            const std::string block = bytes_.substr(at, 255);
            blocks += static_cast<char>(block.size()) + block;
        }
        return blocks + '\0';
    }

private:
    std::string bytes_;
    std::uint32_t pending_ = 0;
    int count_ = 0;
};

std::string Be16(int value) {
    return {static_cast<char>(value >> 8 & 0xFF), static_cast<char>(value & 0xFF)};
}

/// A segment of a JPEG: marker, length and content.
std::string Segment(int marker, const std::string& content) {
    return std::string{'\xFF', static_cast<char>(marker)} + Be16(static_cast<int>(content.size()) + 2)
           + content;
}

}  // namespace

std::string MakeGif(const Indices& frame, const GifForm& form) {
    std::string palette;
    for (const std::uint32_t rgb : eightColours) {
        for (const int shift : {16, 8, 0}) palette += static_cast<char>(rgb >> shift & 0xFF);
    }
    const auto size = [](int width, int height) {
        return Le16(static_cast<std::uint32_t>(width)) + Le16(static_cast<std::uint32_t>(height));
    };
    constexpr std::uint32_t ThreeBits = 2;  // a palette of 2 to the 3rd colours
    constexpr std::uint32_t HasPalette = 0x80 | ThreeBits;
    std::string bytes = "GIF89a" + size(form.screenWidth, form.screenHeight)
                        + static_cast<char>(form.localPalette ? ThreeBits : HasPalette) + std::string(2, '\0')
                        + (form.localPalette ? "" : palette);
    if (form.transparent >= 0) {
        bytes += "!\xF9\x04\x01" + std::string(2, '\0') + static_cast<char>(form.transparent) + '\0';
    }
    bytes += "," + size(form.left, form.top) + size(frame.width, frame.height)
             + static_cast<char>((form.localPalette ? HasPalette : 0) | (form.interlaced ? 0x40 : 0))
             + (form.localPalette ? palette : "") + '\x03';
    // The table of codes is cleared before it grows out of four bits, so that it never matters.
    CodeWriter codes;
    constexpr std::uint32_t Clear = 8;
    int written = 0;
    const auto putRows = [&](int first, int step) {
        for (int y = first; y < frame.height; y += step) {
            for (int x = 0; x < frame.width; ++x) {
                if (written++ % 4 == 0) codes.Put(Clear, 4);
                codes.Put(frame.pixels.at(static_cast<std::size_t>(y * frame.width + x)), 4);
            }
        }
    };
    if (form.interlaced) {
        for (const auto& [first, step] : {std::pair(0, 8), {4, 8}, {2, 4}, {1, 2}}) putRows(first, step);
    } else {
        putRows(0, 1);
    }
    codes.Put(Clear + 1, 4);
    return bytes + codes.Blocks() + ";";
}

std::string MakeJpeg(int width, int height, int unit, int densityX, int densityY) {
    std::string bytes = "\xFF\xD8";
    if (unit >= 0) {
        bytes += Segment(0xE0, "JFIF" + std::string{'\0', 1, 1, static_cast<char>(unit)} + Be16(densityX)
                                   + Be16(densityY) + std::string(2, '\0'));
    }
    bytes += Segment(0xC0, "\x08" + Be16(height) + Be16(width) + std::string{1, 1, 0x11, 0});
    bytes += Segment(0xDB, std::string(1, '\0') + std::string(64, 1));
    // Two tables of one code, "0", each: no change of the average grey, and the end of the block.
    for (const int table : {0x00, 0x10}) {
        bytes += Segment(0xC4, static_cast<char>(table) + std::string{1} + std::string(16, '\0'));
    }
    bytes += Segment(0xDA, std::string{1, 1, 0, 0, 63, 0});
    const int bits = (width + 7) / 8 * ((height + 7) / 8) * 2;
    bytes += std::string(static_cast<std::size_t>(bits / 8), '\0');
    if (bits % 8 != 0) bytes += static_cast<char>(0xFF >> bits % 8);
    return bytes + "\xFF\xD9";
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
    for (const int side : {left, top, right, bottom})
        header += Le16(static_cast<std::uint32_t>(side) & 0xFFFF);
    header += Le16(unitsPerInch) + Le32(0);
    std::uint32_t sum = 0;
    for (std::size_t i = 0; i < header.size(); i += 2) sum ^= Number(header, i, 2);
    return header + Le16(sum) + Le16(1) + Le16(9) + Le16(0x300) + Le32(12) + Le16(0) + Le32(3) + Le16(0)
           + Le32(3) + Le16(0);
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
