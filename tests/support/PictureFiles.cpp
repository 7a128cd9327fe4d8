#include "tests/support/PictureFiles.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include <gif_lib.h>
#include <jpeglib.h>

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

std::string MakeGif(const Indices& frame, const GifForm& form) {
    std::string bytes;
    const auto write = [](GifFileType* gif, const GifByteType* data, int size) {
        static_cast<std::string*>(gif->UserData)
            ->append(reinterpret_cast<const char*>(data), static_cast<std::size_t>(size));
        return size;
    };
    std::array<GifColorType, 8> colours{};
    for (std::size_t i = 0; i < colours.size(); ++i) {
        const std::uint32_t rgb = eightColours[i];
        colours[i] = {static_cast<GifByteType>(rgb >> 16), static_cast<GifByteType>(rgb >> 8 & 0xFF),
                      static_cast<GifByteType>(rgb & 0xFF)};
    }
    ColorMapObject* palette = GifMakeMapObject(8, colours.data());
    GifFileType* gif = EGifOpen(&bytes, write, nullptr);
    EGifSetGifVersion(gif, true);
    EGifPutScreenDesc(gif, form.screenWidth, form.screenHeight, 8, 0, form.localPalette ? nullptr : palette);
    if (form.transparent >= 0) {
        const GraphicsControlBlock control{0, false, 0, form.transparent};
        std::array<GifByteType, 4> extension{};
        EGifGCBToExtension(&control, extension.data());
        EGifPutExtension(gif, GRAPHICS_EXT_FUNC_CODE, 4, extension.data());
    }
    EGifPutImageDesc(gif, form.left, form.top, frame.width, frame.height, form.interlaced,
                     form.localPalette ? palette : nullptr);
    std::vector<std::uint8_t> pixels = frame.pixels;
    const auto putRows = [&](int first, int step) {
        for (int y = first; y < frame.height; y += step)
            EGifPutLine(gif, pixels.data() + y * frame.width, frame.width);
    };
    if (form.interlaced) {
        for (const auto& [first, step] : {std::pair(0, 8), {4, 8}, {2, 4}, {1, 2}}) putRows(first, step);
    } else {
        putRows(0, 1);
    }
    EGifCloseFile(gif, nullptr);
    GifFreeMapObject(palette);
    return bytes;
}

std::string MakeJpeg(int width, int height, int unit, int densityX, int densityY) {
    jpeg_compress_struct info{};
    jpeg_error_mgr errors{};
    info.err = jpeg_std_error(&errors);
    jpeg_create_compress(&info);
    unsigned char* data = nullptr;
    unsigned long size = 0;
    jpeg_mem_dest(&info, &data, &size);
    info.image_width = static_cast<JDIMENSION>(width);
    info.image_height = static_cast<JDIMENSION>(height);
    info.input_components = 1;
    info.in_color_space = JCS_GRAYSCALE;
    jpeg_set_defaults(&info);
    info.write_JFIF_header = unit >= 0 ? TRUE : FALSE;
    info.density_unit = static_cast<UINT8>(std::max(unit, 0));
    info.X_density = static_cast<UINT16>(densityX);
    info.Y_density = static_cast<UINT16>(densityY);
    jpeg_start_compress(&info, TRUE);
    std::vector<JSAMPLE> row(static_cast<std::size_t>(width), 128);
    JSAMPROW rows = row.data();
    while (info.next_scanline < info.image_height) jpeg_write_scanlines(&info, &rows, 1);
    jpeg_finish_compress(&info);
    std::string bytes(reinterpret_cast<char*>(data), size);
    jpeg_destroy_compress(&info);
    std::free(data);
    return bytes;
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
    const std::size_t record = Number(emf, 4, 4);  // after the header
    const std::size_t info = record + Number(emf, record + 48, 4);
    const std::size_t bitmap = record + Number(emf, record + 56, 4);
    const auto depth = static_cast<std::size_t>(Number(emf, info + 14, 2));
    Image image{static_cast<int>(Number(emf, info + 4, 4)), static_cast<int>(Number(emf, info + 8, 4)), {}};
    const auto width = static_cast<std::size_t>(image.width);
    const auto height = static_cast<std::size_t>(image.height);
    const std::size_t rowSize = (width * depth + 31) / 32 * 4;
    for (std::size_t y = 0; y < height; ++y) {
        const std::size_t row = bitmap + (height - 1 - y) * rowSize;
        for (std::size_t x = 0; x < width; ++x) {
            if (depth == 24) {
                image.pixels.push_back(Number(emf, row + x * 3, 3));
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
