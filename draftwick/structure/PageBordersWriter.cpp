#include <draftwick/format/BorderWriter.h>
#include <draftwick/model/WritingContext.h>
#include <draftwick/structure/PageBorders.h>

namespace draftwick {

namespace {

bool IsDrawn(const PageBorder::Values& border) { return border.style != dwBSNone || border.art != 0; }

/// The display, 8 for behind the text and 32 for a distance from the edge of the page, in one number.
void WriteOptions(Output& output, const PageBorders::Values& borders) {
    const std::int32_t options =
        borders.display - 1 + (borders.inFront ? 0 : 8) + (borders.offset == dwPBOPage ? 32 : 0);
    if (options != 0) output.WriteControlWord("pgbrdropt", options);
    if (borders.snap) output.WriteControlWord("pgbrdrsnap");
}

void EmitPageBorder(WritingContext& context, dwPageBorder side, const PageBorder::Values& border) {
    static constexpr std::string_view SideWords[] = {"pgbrdrt", "pgbrdrl", "pgbrdrr", "pgbrdrb"};
    Output& output = context.output;
    output.WriteWord(SideWords, side);
    if (border.art != 0) {
        output.WriteControlWord("brdrart", border.art);
    } else {
        output.WriteControlWord(BorderStyleWord(border.style));
    }
    output.WriteControlWord("brsp", RoundDown(border.spacing * 20));
    output.WriteControlWord("brdrw", RoundDown(border.width * 20));
    output.WriteControlWord("brdrcf", context.colors.GetColorIndex(border.color));
}

}  // namespace

void EmitPageBorders(WritingContext& context, const PageBorders& borders) {
    bool first = true;
    borders.ForEach([&](dwPageBorder side, const PageBorder& border) {
        if (!IsDrawn(border.Stored())) return;
        if (first) WriteOptions(context.output, borders.Stored());
        first = false;
        EmitPageBorder(context, side, border.Stored());
    });
}

}  // namespace draftwick
