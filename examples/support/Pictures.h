#pragma once

// Picture files for the examples, made without any library. Real programs have theirs from elsewhere.

#include <cmath>
#include <cstdint>
#include <fstream>
#include <functional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace examples {

inline void WriteFile(const std::string& name, const std::string& bytes) {
    std::ofstream file(name, std::ios::binary);
    file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    file.close();
    if (!file) throw std::runtime_error("cannot write " + name);
}

inline std::string Bytes(std::initializer_list<int> values) {
    std::string bytes;
    for (const int value : values) bytes += static_cast<char>(value);
    return bytes;
}

/// A GIF of up to 128 colours. Its codes are all of eight bits, so that nothing is packed: the dictionary is emptied
/// before it would need a ninth.
inline void WriteGif(const std::string& name, int width, int height, std::vector<std::int32_t> palette,
                     const std::function<int(int x, int y)>& colorAt) {
    constexpr int Clear = 128;
    constexpr int End = 129;
    palette.resize(128);
    const auto size = [](int value) { return Bytes({value & 255, value >> 8}); };
    std::string file = "GIF89a" + size(width) + size(height) + Bytes({0xF6, 0, 0});
    for (const std::int32_t color : palette) file += Bytes({color & 255, color >> 8 & 255, color >> 16});
    file += "," + size(0) + size(0) + size(width) + size(height) + Bytes({0, 7});
    std::string codes;
    for (int i = 0; i < width * height; ++i) {
        if (i % 100 == 0) codes += static_cast<char>(Clear);
        codes += static_cast<char>(colorAt(i % width, i / width));
    }
    codes += static_cast<char>(End);
    for (std::size_t at = 0; at < codes.size(); at += 255) {
        const std::string block = codes.substr(at, 255);
        file += static_cast<char>(block.size()) + block;
    }
    WriteFile(name, file + Bytes({0}) + ";");
}

/// A JPEG mosaic of squares of eight pixels: of each square only the mean is coded, which is all there is to it.
inline void WriteJpeg(const std::string& name, int columns, int rows,
                      const std::function<std::int32_t(int column, int row)>& colorAt) {
    const int width = columns * 8;
    const int height = rows * 8;
    std::string file =
        Bytes({0xFF, 0xD8, 0xFF, 0xE0, 0, 16}) + "JFIF" + Bytes({0, 1, 1, 1, 0, 96, 0, 96, 0, 0});
    file += Bytes({0xFF, 0xDB, 0, 67, 0}) + std::string(64, '\x8');
    file += Bytes({0xFF, 0xC0, 0, 17, 8, height >> 8, height & 255, width >> 8, width & 255, 3});
    for (int component = 1; component <= 3; ++component) file += Bytes({component, 0x11, 0});
    // The length of a difference is coded in four bits, that nothing else follows it in one.
    file += Bytes({0xFF, 0xC4, 0, 28, 0x00, 0, 0, 0, 9, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0});
    file += Bytes({0, 1, 2, 3, 4, 5, 6, 7, 8});
    file += Bytes({0xFF, 0xC4, 0, 20, 0x10, 1, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0});
    file += Bytes({0xFF, 0xDA, 0, 12, 3, 1, 0, 2, 0, 3, 0, 0, 63, 0});

    unsigned pending = 0;
    int pendingBits = 0;
    const auto put = [&](int value, int bits) {
        for (int bit = bits - 1; bit >= 0; --bit) {
            pending = pending << 1 | static_cast<unsigned>(value >> bit & 1);
            if (++pendingBits < 8) continue;
            file += static_cast<char>(pending);
            if ((pending & 255) == 255) file += '\0';
            pendingBits = 0;
        }
    };
    int last[3] = {0, 0, 0};
    for (int i = 0; i < columns * rows; ++i) {
        const std::int32_t color = colorAt(i % columns, i / columns);
        const double red = color & 255;
        const double green = color >> 8 & 255;
        const double blue = color >> 16 & 255;
        const double means[3] = {0.299 * red + 0.587 * green + 0.114 * blue - 128,
                                 -0.1687 * red - 0.3313 * green + 0.5 * blue,
                                 0.5 * red - 0.4187 * green - 0.0813 * blue};
        for (int component = 0; component < 3; ++component) {
            const int mean = static_cast<int>(std::lround(means[component]));
            const int difference = mean - last[component];
            last[component] = mean;
            int bits = 0;
            while (std::abs(difference) >> bits != 0) ++bits;
            put(bits, 4);
            put(difference < 0 ? difference - 1 : difference, bits);
            put(0, 1);
        }
    }
    put(127, 7);
    WriteFile(name, file + Bytes({0xFF, 0xD9}));
}

/// The bytes of a PNG file: a blue ring of 24 by 24 pixels.
inline std::string RingPng() {
    constexpr std::string_view Digits =
        "89504e470d0a1a0a0000000d4948445200000018000000180803000000d7a9cdca00000006504c5445ffffff1e5aa0d5"
        "f84b32000000424944415478da6360200818c10087308614230ac0258e906164c42183ccc1c546e161b3108b38426040"
        "25703a17b707710703ce40c419ecb8230a77d4e2490c1800002e67010108cdef4d0000000049454e44ae426082";
    std::string bytes;
    for (std::size_t i = 0; i < Digits.size(); i += 2)
        bytes += static_cast<char>(std::stoi(std::string{Digits.substr(i, 2)}, nullptr, 16));
    return bytes;
}

}  // namespace examples
