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

void WriteKind(RtfWriter& writer, PictureKind kind) {
    switch (kind) {
    case PictureKind::Wmf: writer.Word("wmetafile8"); break;
    case PictureKind::Emf: writer.Word("emfblip"); break;
    case PictureKind::Png: writer.Word("pngblip"); break;
    default: writer.Word("jpegblip");
    }
}

/// RTF wants a metafile without its placeable header. Classic cuts as much from every one.
std::span<const unsigned char> DataOf(const OpenPicture& picture, bool standard) {
    constexpr std::size_t PlaceableHeader = 22;
    const std::span<const unsigned char> bytes = picture.Bytes();
    if (picture.Kind() != PictureKind::Wmf || (standard && !IsPlaceable(bytes))) return bytes;
    return bytes.subspan(std::min(PlaceableHeader, bytes.size()));
}

}  // namespace

void EmitPicture(RtfWriter& writer, const OpenPicture& picture, const PictureSize& size) {
    if (!writer.Standard()) return EmitClassicPicture(writer, picture);
    WriteKind(writer, picture.Kind());
    writer.Word("picw", TwipsToHimetric(size.width));
    writer.Word("pich", TwipsToHimetric(size.height));
    writer.Word("picwgoal", size.width);
    writer.Word("pichgoal", size.height);
    WritePictureData(writer, DataOf(picture, true));
}

void EmitClassicPicture(RtfWriter& writer, const OpenPicture& picture,
                        const std::optional<OpenPicture::Scale>& scale) {
    WriteKind(writer, picture.Kind());
    if (scale) {
        writer.Word("picscalex", scale->x);
        writer.Word("picscaley", scale->y);
    }
    WritePictureData(writer, DataOf(picture, false));
}

}  // namespace draftwick
