#include <draftwick/platform/posix/PicturesParts.h>

#include <algorithm>
#include <array>
#include <cmath>

// An enhanced metafile of three records: header, the bitmap, end. [MS-EMF] 2.3.4.2, 2.3.1.7 and 2.3.4.1 give
// their fields.

namespace draftwick::platform::posix {

namespace {

constexpr std::uint32_t HeaderSize = 108;
constexpr std::uint32_t BitmapFieldsSize = 80;
constexpr std::uint32_t BitmapHeaderSize = 40;
constexpr std::uint32_t EndSize = 20;

/// The colours of a bitmap that has few of them. Scans and drawings shrink to a fraction as indices.
class Colours {
public:
    /// Gives every colour a number, in the order of appearance, until there are more than 256.
    Colours(const Bitmap& bitmap, std::int32_t width, std::int32_t height) {
        std::uint32_t last = None;
        for (std::int32_t y = 0; y < height && !TooMany(); ++y) {
            const std::uint8_t* pixel = bitmap.Row(y);
            for (std::int32_t x = 0; x < width && !TooMany(); ++x, pixel += 3) {
                if (const std::uint32_t colour = Key(pixel); colour != last) Add(last = colour);
            }
        }
    }

    /// What a pixel takes in the file: 1, 4 or 8 bits of index, or 24 of colour.
    std::uint32_t Bits() const { return TooMany() ? 24 : count_ > 16 ? 8 : count_ > 2 ? 4 : 1; }
    /// The length of the table in the file; it is always a full one.
    std::uint32_t TableSize() const { return TooMany() ? 0 : 1U << Bits(); }
    /// A table entry: blue, green and red from the lowest byte up. Black where there is no such colour.
    std::uint32_t operator[](std::size_t number) const { return colours_[number]; }
    std::uint32_t NumberOf(const std::uint8_t* pixel) const { return slots_[SlotOf(Key(pixel))].number; }

private:
    static constexpr std::uint32_t None = 0xFFFFFFFF;
    static constexpr int SlotBits = 10;
    struct Slot {
        std::uint32_t colour = None;
        std::uint32_t number = 0;
    };

    static std::uint32_t Key(const std::uint8_t* pixel) {
        return pixel[0] | static_cast<std::uint32_t>(pixel[1]) << 8
               | static_cast<std::uint32_t>(pixel[2]) << 16;
    }

    bool TooMany() const { return count_ > colours_.size(); }

    /// The slot of a colour, or the free one where it belongs: a quarter of them is used at most.
    std::size_t SlotOf(std::uint32_t colour) const {
        std::size_t slot = colour * 0x9E3779B1U >> (32 - SlotBits);
        while (slots_[slot].colour != None && slots_[slot].colour != colour)
            slot = (slot + 1) % slots_.size();
        return slot;
    }

    void Add(std::uint32_t colour) {
        Slot& slot = slots_[SlotOf(colour)];
        if (slot.colour == colour) return;
        if (count_ < colours_.size()) {
            slot = {colour, count_};
            colours_[count_] = colour;
        }
        ++count_;
    }

    std::array<Slot, 1 << SlotBits> slots_{};
    std::array<std::uint32_t, 256> colours_{};
    std::uint32_t count_ = 0;
};

/// Collects bytes and passes them on in blocks. After an error it writes no more.
class Output {
public:
    Output(File& file, std::error_code& error) : file_(file), error_(error) { error.clear(); }

    void Put(std::uint32_t value) {
        for (int shift = 0; shift < 32; shift += 8)
            bytes_.push_back(static_cast<char>(value >> shift & 0xFF));
    }
    void Put(std::int32_t value) { Put(static_cast<std::uint32_t>(value)); }
    /// Two numbers of 16 bits.
    void PutPair(std::uint32_t low, std::uint32_t high) { Put(low | high << 16); }
    template <class... Values>
    void PutAll(Values... values) {
        (Put(values), ...);
    }
    /// Adds a zeroed row and gives it to be filled.
    std::uint8_t* PutRow(std::size_t size) {
        if (bytes_.size() >= 65536) Flush();
        bytes_.resize(bytes_.size() + size);
        return reinterpret_cast<std::uint8_t*>(bytes_.data()) + bytes_.size() - size;
    }
    void Flush() {
        if (!error_) file_.Write(bytes_.data(), bytes_.size(), error_);
        bytes_.clear();
    }
    bool Failed() const { return static_cast<bool>(error_); }

private:
    File& file_;
    std::error_code& error_;
    std::vector<char> bytes_;
};

void PackRow(const std::uint8_t* pixels, std::int32_t width, const Colours& colours, std::uint8_t* out) {
    const std::uint32_t bits = colours.Bits();
    if (bits == 24) {
        std::copy_n(pixels, static_cast<std::size_t>(width) * 3, out);
        return;
    }
    std::uint32_t bit = 0;
    for (std::int32_t x = 0; x < width; ++x, pixels += 3, bit += bits) {
        const std::uint32_t shifted = colours.NumberOf(pixels) << (8 - bits - bit % 8);
        out[bit / 8] = static_cast<std::uint8_t>(out[bit / 8] | shifted);
    }
}

}  // namespace

void WriteMetafile(const Bitmap& bitmap, std::int32_t width, std::int32_t height, Size frame,
                   double twipsPerPixel, File& file, std::error_code& error) {
    const Colours colours(bitmap, width, height);
    const std::uint32_t rowSize = (static_cast<std::uint32_t>(width) * colours.Bits() + 31) / 32 * 4;
    const std::uint32_t pixelsSize = rowSize * static_cast<std::uint32_t>(height);
    const std::uint32_t infoSize = BitmapHeaderSize + colours.TableSize() * 4;
    const std::uint32_t bitmapSize = BitmapFieldsSize + infoSize + pixelsSize;
    // The reference device: a screen of 20 by 15 inches, 508 by 381 mm.
    const auto deviceWidth = static_cast<std::int32_t>(std::lround(20 * 1440 / twipsPerPixel));
    const auto deviceHeight = static_cast<std::int32_t>(std::lround(15 * 1440 / twipsPerPixel));

    Output out(file, error);
    out.PutAll(1, HeaderSize);                         // EMR_HEADER
    out.PutAll(0, 0, width - 1, height - 1);           // bounds in pixels, inclusive
    out.PutAll(0, 0, frame.width, frame.height);       // frame in .01 mm
    out.PutAll(0x464D4520, 0x10000);                   // " EMF", version
    out.PutAll(HeaderSize + bitmapSize + EndSize, 3);  // bytes and records in the file
    out.PutPair(1, 0);                                 // handles: the metafile itself
    out.PutAll(0, 0, 0);                               // no description, no palette
    out.PutAll(deviceWidth, deviceHeight, 508, 381);   // device in pixels and in mm
    out.PutAll(0, 0, 0);                               // no pixel format, no OpenGL
    out.PutAll(508000, 381000);                        // device in micrometres

    out.PutAll(81, bitmapSize);                           // EMR_STRETCHDIBITS
    out.PutAll(0, 0, width - 1, height - 1);              // bounds, inclusive
    out.PutAll(0, 0, 0, 0, width, height);                // destination; source and its size
    out.PutAll(BitmapFieldsSize, infoSize);               // where the bitmap's header is
    out.PutAll(BitmapFieldsSize + infoSize, pixelsSize);  // where its pixels are
    out.PutAll(0, 0xCC0020, width, height);  // table of colours, SRCCOPY, size of the destination

    out.PutAll(BitmapHeaderSize, width, height);  // rows from the bottom up
    out.PutPair(1, colours.Bits());               // planes, bits per pixel
    out.PutAll(0, pixelsSize, 0, 0);              // not compressed
    out.PutAll(colours.TableSize(), 0);
    for (std::uint32_t i = 0; i < colours.TableSize(); ++i) out.Put(colours[i]);
    for (std::int32_t y = height; y-- > 0 && !out.Failed();)
        PackRow(bitmap.Row(y), width, colours, out.PutRow(rowSize));

    out.PutAll(14, EndSize, 0, 16, EndSize);  // EMR_EOF
    out.Flush();
}

}  // namespace draftwick::platform::posix
