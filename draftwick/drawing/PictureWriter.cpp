#include <draftwick/drawing/internal/Writers.h>

#include <algorithm>
#include <array>
#include <span>

namespace draftwick {

namespace {

using platform::PictureKind;

/// Upper-case hexadecimal, 64 bytes to one text.
void WritePictureData(RtfWriter& writer, std::span<const unsigned char> bytes) {
    constexpr std::string_view Digits = "0123456789ABCDEF";
    constexpr std::size_t PerText = 64;
    std::array<char, 2 * PerText> text;
    while (!bytes.empty()) {
        const std::size_t count = std::min(PerText, bytes.size());
        for (std::size_t i = 0; i < count; ++i) {
            text[2 * i] = Digits[bytes[i] >> 4];
            text[2 * i + 1] = Digits[bytes[i] & 15];
        }
        writer.Raw({text.data(), 2 * count});
        bytes = bytes.subspan(count);
    }
}

}  // namespace

void EmitPicture(RtfWriter& writer, const OpenPicture& picture,
                 const std::optional<OpenPicture::Scale>& scale) {
    switch (picture.Kind()) {
    case PictureKind::Wmf: writer.Word("wmetafile8"); break;
    case PictureKind::Emf: writer.Word("emfblip"); break;
    default: writer.Word("jpegblip");
    }
    if (scale) {
        writer.Word("picscalex", scale->x);
        writer.Word("picscaley", scale->y);
    }
    constexpr std::size_t PlaceableHeader = 22;  // RTF wants a metafile without it
    const std::span<const unsigned char> bytes = picture.Bytes();
    const bool isWmf = picture.Kind() == PictureKind::Wmf;
    WritePictureData(writer, bytes.subspan(isWmf ? std::min(PlaceableHeader, bytes.size()) : 0));
}

}  // namespace draftwick
