#include <draftwick/platform/pictures/Parts.h>

#include <algorithm>
#include <array>
#include <bit>

// Bitmap files: the Windows headers from BITMAPINFOHEADER to BITMAPV5HEADER and the OS/2 ones before and beside
// them. [MS-WMF] 2.2.2.9 describes what they share.

namespace draftwick::platform::pictures {

namespace {

enum Compression : std::uint32_t { Rgb = 0, Rle8 = 1, Rle4 = 2, BitFields = 3, AlphaBitFields = 6 };

using Colour = std::array<std::uint8_t, 3>;  // blue, green, red
using Palette = std::array<Colour, 256>;     // black beyond the file's table
using Masks = std::array<std::uint32_t, 3>;  // blue, green, red

struct Header {
    std::int64_t width = 0;
    std::int64_t height = 0;
    bool topDown = false;
    int bits = 0;  // per pixel
    std::uint32_t compression = Rgb;
    Masks masks{};
    std::size_t paletteEntrySize = 4;
    std::uint32_t paletteSize = 0;  // entries in the file
    std::uint64_t pixelOffset = 0;

    bool Compressed() const { return compression == Rle8 || compression == Rle4; }
    std::uint64_t RowSize() const { return (static_cast<std::uint64_t>(width * bits) + 31) / 32 * 4; }
};

constexpr std::size_t FileHeaderSize = 14;
constexpr std::size_t CoreHeaderSize = 12;
constexpr std::size_t InfoHeaderSize = 40;

bool KnownHeaderSize(std::uint32_t size) {
    constexpr std::array<std::uint32_t, 7> known{CoreHeaderSize, InfoHeaderSize, 52, 56, 64, 108, 124};
    return std::find(known.begin(), known.end(), size) != known.end();
}

bool KnownFormat(const Header& header) {
    const int bits = header.bits;
    switch (header.compression) {
    case Rgb: return bits == 1 || bits == 4 || bits == 8 || bits == 16 || bits == 24 || bits == 32;
    case Rle8: return bits == 8 && !header.topDown;
    case Rle4: return bits == 4 && !header.topDown;
    case BitFields:
    case AlphaBitFields: return bits == 16 || bits == 32;
    default: return false;
    }
}

/// The bits of one channel must be neighbours and lie within the pixel. No bits at all: the channel is dark.
bool KnownMasks(const Header& header) {
    return std::all_of(header.masks.begin(), header.masks.end(), [&](std::uint32_t mask) {
        if (mask == 0) return true;
        const std::uint32_t run = mask >> std::countr_zero(mask);
        return std::has_single_bit(std::uint64_t{run} + 1) && std::uint64_t{mask} >> header.bits == 0;
    });
}

/// Where the palette ends and the pixels begin. The file says where the pixels are, and a palette that would
/// reach beyond that is cut short. An offset that cannot be true is replaced by the end of the whole palette.
bool PlacePixels(Header& header, std::uint64_t offset, std::uint64_t paletteStart, std::uint64_t length) {
    const std::uint64_t entry = header.paletteEntrySize;
    const std::uint64_t paletteEnd = paletteStart + header.paletteSize * entry;
    const std::uint64_t size =
        header.Compressed() ? 2 : header.RowSize() * static_cast<std::uint64_t>(header.height);
    if (offset > paletteStart && offset + size <= length) {
        header.pixelOffset = offset;
        if (offset < paletteEnd)
            header.paletteSize = static_cast<std::uint32_t>((offset - paletteStart) / entry);
        return true;
    }
    header.pixelOffset = paletteEnd;
    return paletteEnd + size <= length;
}

std::optional<Header> ReadHeader(PictureSource& source) {
    std::array<std::uint8_t, FileHeaderSize + 4> start{};
    if (!source.ReadAll(start.data(), start.size()) || start[0] != 'B' || start[1] != 'M') return {};
    const std::uint32_t size = U32(&start[14]);
    std::array<std::uint8_t, 124> info{};  // as in the file, counted from the header's own size
    if (!KnownHeaderSize(size) || !source.ReadAll(&info[4], size - 4)) return {};

    Header header;
    std::uint16_t planes = 0;
    std::uint32_t colours = 0;
    if (size == CoreHeaderSize) {
        header.width = U16(&info[4]);
        header.height = U16(&info[6]);
        planes = U16(&info[8]);
        header.bits = U16(&info[10]);
        header.paletteEntrySize = 3;
    } else {
        header.width = I32(&info[4]);
        header.height = I32(&info[8]);
        header.topDown = header.height < 0;
        if (header.topDown) header.height = -header.height;
        planes = U16(&info[12]);
        header.bits = U16(&info[14]);
        header.compression = U32(&info[16]);
        colours = U32(&info[32]);
    }
    if (planes != 1 || !KnownFormat(header)) return {};
    if (header.width < 1 || header.width > MaxBitmapSide || header.height > MaxBitmapSide) return {};

    std::uint64_t paletteStart = FileHeaderSize + size;
    if (header.compression == BitFields || header.compression == AlphaBitFields) {
        if (size == 64) return {};  // there, the value means a fax
        const std::size_t masksSize = header.compression == BitFields ? 12 : 16;
        if (size == InfoHeaderSize) {  // the masks follow this header; later ones hold them at the same place
            if (!source.ReadAll(&info[InfoHeaderSize], masksSize)) return {};
            paletteStart += masksSize;
        }
        header.masks = {U32(&info[48]), U32(&info[44]), U32(&info[40])};
    } else if (header.bits == 16) {
        header.masks = {0x001F, 0x03E0, 0x7C00};
    } else if (header.bits == 32) {
        header.masks = {0x0000FF, 0x00FF00, 0xFF0000};
    }
    if (!KnownMasks(header)) return {};
    if (header.bits <= 8) {
        const std::uint32_t all = 1U << header.bits;
        header.paletteSize = colours == 0 ? all : std::min(colours, all);
    }
    if (!PlacePixels(header, U32(&start[10]), paletteStart, source.Length())) return {};
    return header;
}

bool ReadPalette(PictureSource& source, const Header& header, Palette& palette) {
    for (std::uint32_t i = 0; i < header.paletteSize; ++i) {
        std::array<std::uint8_t, 4> entry{};
        if (!source.ReadAll(entry.data(), header.paletteEntrySize)) return false;
        palette[i] = {entry[0], entry[1], entry[2]};
    }
    return true;
}

/// Turns the bits of one channel of a 16 or 32 bit pixel into a byte.
class Channel {
public:
    explicit Channel(std::uint32_t mask) {
        if (mask == 0) return;
        const int bits = std::popcount(mask);
        const int used = std::min(bits, 8);
        shift_ = std::countr_zero(mask) + bits - used;
        top_ = (1U << used) - 1;
        for (std::uint32_t value = 0; value <= top_; ++value)
            scaled_[value] = static_cast<std::uint8_t>((value * 255 + top_ / 2) / top_);
    }
    std::uint8_t operator()(std::uint32_t pixel) const { return scaled_[pixel >> shift_ & top_]; }

private:
    int shift_ = 0;
    std::uint32_t top_ = 0;
    std::array<std::uint8_t, 256> scaled_{};
};

class PlainPixels {
public:
    PlainPixels(const Header& header, const Palette& palette)
        : header_(header), palette_(palette), blue_(header.masks[0]), green_(header.masks[1]),
          red_(header.masks[2]) {}

    bool Read(PictureSource& source, Bitmap& bitmap) const {
        std::vector<std::uint8_t> row(static_cast<std::size_t>(header_.RowSize()));
        for (std::int32_t i = 0; i < bitmap.height; ++i) {
            if (!source.ReadAll(row.data(), row.size())) return false;
            Unpack(row.data(), bitmap.Row(header_.topDown ? i : bitmap.height - 1 - i), bitmap.width);
        }
        return true;
    }

private:
    void Unpack(const std::uint8_t* row, std::uint8_t* out, std::int32_t width) const {
        if (header_.bits == 24) {
            std::copy_n(row, static_cast<std::size_t>(width) * 3, out);
            return;
        }
        for (std::int32_t x = 0; x < width; ++x) {
            const Colour colour = header_.bits <= 8 ? palette_[Index(row, x)] : Masked(row, x);
            out = std::copy(colour.begin(), colour.end(), out);
        }
    }

    std::size_t Index(const std::uint8_t* row, std::int32_t x) const {
        const int perByte = 8 / header_.bits;
        const int shift = (perByte - 1 - x % perByte) * header_.bits;
        return static_cast<std::size_t>(row[x / perByte] >> shift & ((1 << header_.bits) - 1));
    }

    Colour Masked(const std::uint8_t* row, std::int32_t x) const {
        const std::uint32_t pixel =
            header_.bits == 16 ? U16(row + std::ptrdiff_t{x} * 2) : U32(row + std::ptrdiff_t{x} * 4);
        return {blue_(pixel), green_(pixel), red_(pixel)};
    }

    const Header& header_;
    const Palette& palette_;
    Channel blue_;
    Channel green_;
    Channel red_;
};

/// Run-length encoded pixels, from the bottom row up. What no code paints stays white; what is painted beyond
/// the end of a row is dropped, as some writers round their runs up.
class RunLengths {
public:
    RunLengths(const Header& header, const Palette& palette, Bitmap& bitmap)
        : fourBits_(header.compression == Rle4), palette_(palette), bitmap_(bitmap) {}

    bool Read(PictureSource& source) {
        for (;;) {
            const int count = source.Get();
            const int value = source.Get();
            if (value < 0) return Complete();  // the end mark is missing
            if (count > 0) {
                if (!Run(count, value)) return false;
            } else if (value == 0) {
                x_ = 0;
                ++y_;
            } else if (value == 1) {
                return true;
            } else if (value == 2) {
                const int right = source.Get();
                const int up = source.Get();
                if (up < 0) return false;
                x_ = std::min(x_ + right, bitmap_.width);
                y_ += up;
            } else if (!Literal(source, value)) {
                return false;
            }
            if (y_ > bitmap_.height) return false;
        }
    }

private:
    bool Complete() const {
        return y_ == bitmap_.height || (y_ == bitmap_.height - 1 && x_ >= bitmap_.width);
    }

    bool Run(int count, int value) {
        for (int i = 0; i < count; ++i) {
            if (!Paint(!fourBits_ ? value : i % 2 == 0 ? value >> 4 : value & 15)) return false;
        }
        return true;
    }

    /// Pixels as they are, padded to a whole number of 16-bit words.
    bool Literal(PictureSource& source, int count) {
        const int bytes = fourBits_ ? (count + 1) / 2 : count;
        for (int i = 0; i < bytes; ++i) {
            const int value = source.Get();
            if (value < 0 || !Run(fourBits_ ? std::min(2, count - i * 2) : 1, value)) return false;
        }
        return bytes % 2 == 0 || source.Get() >= 0;
    }

    bool Paint(int index) {
        if (y_ >= bitmap_.height) return false;
        if (x_ < bitmap_.width) {
            const Colour& colour = palette_[static_cast<std::size_t>(index)];
            std::copy(colour.begin(), colour.end(),
                      bitmap_.Row(bitmap_.height - 1 - y_) + static_cast<std::size_t>(x_) * 3);
            ++x_;
        }
        return true;
    }

    bool fourBits_;
    const Palette& palette_;
    Bitmap& bitmap_;
    int x_ = 0;
    int y_ = 0;  // from the bottom
};

}  // namespace

std::optional<Bitmap> ReadBmp(PictureSource& source) {
    const auto header = ReadHeader(source);
    if (!header) return {};
    Palette palette{};
    if (!ReadPalette(source, *header, palette)) return {};
    // Two bytes paint 255 pixels at most. Where less than that is there, the picture is not all there.
    const auto pixels = static_cast<std::uint64_t>(header->width * header->height);
    if (header->Compressed() && pixels / 255 > source.Length()) return {};
    auto bitmap = MakeBitmap(header->width, header->height);
    if (!bitmap || !source.Skip(header->pixelOffset - source.Position())) return {};
    const bool sound = header->Compressed() ? RunLengths(*header, palette, *bitmap).Read(source)
                                            : PlainPixels(*header, palette).Read(source, *bitmap);
    if (!sound) return {};
    return bitmap;
}

}  // namespace draftwick::platform::pictures
