#include <draftwick/format/Frame.h>
#include <draftwick/model/WritingContext.h>

namespace draftwick {

namespace {

constexpr std::string_view ReferenceXWords[] = {"phpg", "phcol", "phmrg"};
constexpr std::string_view ReferenceYWords[] = {"pvpg", "pvpara", "pvmrg"};
constexpr std::string_view AlignXWords[] = {"", "posxl", "posxc", "posxr", "posxi", "posxo"};
constexpr std::string_view AlignYWords[] = {"", "posyil", "posyt", "posyc", "posyb", "posyin", "posyout"};

void WriteUnlessZero(Output& output, std::string_view word, std::int32_t twips) {
    if (twips != 0) output.WriteControlWord(word, twips);
}

/// A place left of or above the reference has a word of its own and keeps its sign.
void WritePlace(Output& output, std::string_view word, std::string_view negativeWord, std::int32_t twips) {
    WriteUnlessZero(output, twips > 0 ? word : negativeWord, twips);
}

void WriteSpacing(Output& output, const Frame::Values& frame) {
    const std::int32_t x = frame.spacingX.Twips();
    const std::int32_t y = frame.spacingY.Twips();
    if (x == 0 && y == 0) return;
    output.WriteControlWord("dxfrtext", x);  // for readers that know only one distance
    output.WriteControlWord("dfrmtxtx", x);
    output.WriteControlWord("dfrmtxty", y);
}

}  // namespace

void EmitFrame(WritingContext& context, const Frame::Values& frame) {
    if (frame == Frame::Values{}) return;
    Output& output = context.output;
    WriteUnlessZero(output, "absw", frame.width.Twips());
    WriteUnlessZero(output, "absh", frame.heightExactly ? -frame.height.Twips() : frame.height.Twips());
    output.WriteWord(ReferenceXWords, frame.referenceX);
    if (frame.alignX == dwFAXNone) WritePlace(output, "posx", "posnegx", frame.left.Twips());
    output.WriteWord(AlignXWords, frame.alignX);
    output.WriteWord(ReferenceYWords, frame.referenceY);
    if (frame.alignY == dwFAYNone) WritePlace(output, "posy", "posnegy", frame.top.Twips());
    output.WriteWord(AlignYWords, frame.alignY);
    if (frame.lockAnchor) output.WriteControlWord("abslock", 1);
    if (!frame.wrap) output.WriteControlWord("nowrap");
    WriteSpacing(output, frame);
    if (frame.dropCapLines != 0) {
        output.WriteControlWord("dropcapli", frame.dropCapLines);
        output.WriteControlWord("dropcapt", frame.dropCapInMargin ? 2 : 1);
    }
}

}  // namespace draftwick
