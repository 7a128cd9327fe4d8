#include <draftwick/format/internal/Writers.h>

namespace draftwick {

namespace {

constexpr Words<dwFrameReferenceX> ReferenceXWords{"phpg", "phcol", "phmrg"};
constexpr Words<dwFrameReferenceY> ReferenceYWords{"pvpg", "pvpara", "pvmrg"};
constexpr Words<dwFrameAlignX> AlignXWords{"", "posxl", "posxc", "posxr", "posxi", "posxo"};
constexpr Words<dwFrameAlignY> AlignYWords{"", "posyil", "posyt", "posyc", "posyb", "posyin", "posyout"};

void WriteUnlessZero(RtfWriter& writer, std::string_view word, std::int32_t twips) {
    if (twips != 0) writer.Word(word, twips);
}

/// A place left of or above the reference has a word of its own and keeps its sign.
void WritePlace(RtfWriter& writer, std::string_view word, std::string_view negativeWord, std::int32_t twips) {
    WriteUnlessZero(writer, twips > 0 ? word : negativeWord, twips);
}

void WriteSpacing(RtfWriter& writer, const Frame::Values& frame) {
    const std::int32_t x = frame.spacingX.Twips();
    const std::int32_t y = frame.spacingY.Twips();
    if (x == 0 && y == 0) return;
    writer.Word("dxfrtext", x);  // for readers that know only one distance
    writer.Word("dfrmtxtx", x);
    writer.Word("dfrmtxty", y);
}

}  // namespace

void EmitFrame(RtfWriter& writer, const Frame::Values& frame) {
    if (frame == Frame::Values{}) return;
    writer.hasFrame = true;
    WriteUnlessZero(writer, "absw", frame.width.Twips());
    WriteUnlessZero(writer, "absh", frame.heightExactly ? -frame.height.Twips() : frame.height.Twips());
    writer.Word(ReferenceXWords, frame.referenceX);
    if (frame.alignX == dwFAXNone) WritePlace(writer, "posx", "posnegx", frame.left.Twips());
    writer.Word(AlignXWords, frame.alignX);
    writer.Word(ReferenceYWords, frame.referenceY);
    if (frame.alignY == dwFAYNone) WritePlace(writer, "posy", "posnegy", frame.top.Twips());
    writer.Word(AlignYWords, frame.alignY);
    if (frame.lockAnchor) writer.Word("abslock", 1);
    if (!frame.wrap) writer.Word("nowrap");
    WriteSpacing(writer, frame);
    if (frame.dropCapLines != 0) {
        writer.Word("dropcapli", frame.dropCapLines);
        writer.Word("dropcapt", frame.dropCapInMargin ? 2 : 1);
    }
}

void EmitRowFrame(RtfWriter& writer, const Frame::Values& frame) {
    static constexpr Words<dwFrameReferenceX> XWords{"tphpg", "tphcol", "tphmrg"};
    static constexpr Words<dwFrameReferenceY> YWords{"tpvpg", "tpvpara", "tpvmrg"};
    static constexpr Words<dwFrameAlignX> LeftWords{"", "tposxl", "tposxc", "tposxr", "tposxi", "tposxo"};
    static constexpr Words<dwFrameAlignY> TopWords{"",       "tposyil", "tposyt",   "tposyc",
                                                   "tposyb", "tposyin", "tposyoutv"};
    if (frame == Frame::Values{}) return;
    writer.Word(XWords, frame.referenceX);
    if (frame.alignX == dwFAXNone) WritePlace(writer, "tposx", "tposnegx", frame.left.Twips());
    writer.Word(LeftWords, frame.alignX);
    writer.Word(YWords, frame.referenceY);
    if (frame.alignY == dwFAYNone) WritePlace(writer, "tposy", "tposnegy", frame.top.Twips());
    writer.Word(TopWords, frame.alignY);
    WriteUnlessZero(writer, "tdfrmtxtLeft", frame.spacingX.Twips());
    WriteUnlessZero(writer, "tdfrmtxtRight", frame.spacingX.Twips());
    WriteUnlessZero(writer, "tdfrmtxtTop", frame.spacingY.Twips());
    WriteUnlessZero(writer, "tdfrmtxtBottom", frame.spacingY.Twips());
}

}  // namespace draftwick
