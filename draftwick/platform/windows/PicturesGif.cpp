#include <draftwick/platform/Pictures.h>
#include <draftwick/platform/windows/PicturesParts.h>

#include <algorithm>

namespace draftwick::platform::windows {

using pictures::U16;

namespace {

/// The sub-blocks of a GIF from `at` on: the position behind the empty one that ends them; 0 when it is missing.
std::size_t SkipBlocks(std::string_view bytes, std::size_t at) {
    while (at < bytes.size()) {
        const auto size = static_cast<std::uint8_t>(bytes[at]);
        at += std::size_t{1} + size;
        if (size == 0) return at;
    }
    return 0;
}

std::size_t PaletteSize(std::uint8_t flags) {
    return (flags & 0x80) != 0 ? std::size_t{6} << (flags & 7) : 0;
}

const std::uint8_t* At(std::string_view bytes, std::size_t position) {
    return reinterpret_cast<const std::uint8_t*>(bytes.data()) + position;
}

}  // namespace

// As the definition of GIF89a has it in its sections 17 to 23.
std::optional<GifLayout> ReadGifLayout(std::string_view bytes) {
    if (bytes.size() < 13 || !bytes.starts_with("GIF8")) return {};
    GifLayout layout{U16(At(bytes, 6)), U16(At(bytes, 8)), 0, 0, 0, 0};
    std::size_t at = 13 + PaletteSize(*At(bytes, 10));
    while (at + 1 < bytes.size() && bytes[at] == '!') {
        at = SkipBlocks(bytes, at + 2);
        if (at == 0) return {};
    }
    if (at + 10 > bytes.size() || bytes[at] != ',') return {};
    layout.left = U16(At(bytes, at + 1));
    layout.top = U16(At(bytes, at + 3));
    layout.frameWidth = U16(At(bytes, at + 5));
    layout.frameHeight = U16(At(bytes, at + 7));
    // A screen without a size is as large as the frame wants it.
    if (layout.width == 0) layout.width = layout.left + layout.frameWidth;
    if (layout.height == 0) layout.height = layout.top + layout.frameHeight;
    if (SkipBlocks(bytes, at + 11 + PaletteSize(*At(bytes, at + 9))) == 0) return {};
    const std::int64_t pixels = std::max(std::int64_t{layout.width} * layout.height,
                                         std::int64_t{layout.frameWidth} * layout.frameHeight);
    if (layout.frameWidth < 1 || layout.frameHeight < 1 || pixels > MaxBitmapPixels
        || pixels / pictures::MaxGifPixelsPerByte > static_cast<std::int64_t>(bytes.size()))
        return {};
    return layout;
}

}  // namespace draftwick::platform::windows
