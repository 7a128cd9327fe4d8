#include <draftwick/format/internal/Writers.h>
#include <draftwick/model/internal/Access.h>
#include <draftwick/structure/internal/Writers.h>

namespace draftwick {

namespace {

bool IsDrawn(const PageBorder::Values& border) { return border.style != dwBSNone || border.art != 0; }

/// The display, 8 for behind the text and 32 for a distance from the edge of the page, in one number.
void WriteOptions(RtfWriter& writer, const PageBorders::Values& borders) {
    const std::int32_t options =
        borders.display - 1 + (borders.inFront ? 0 : 8) + (borders.offset == dwPBOPage ? 32 : 0);
    if (options != 0) writer.Word("pgbrdropt", options);
    if (borders.snap) writer.Word("pgbrdrsnap");
}

void WritePageBorder(RtfWriter& writer, dwPageBorder side, const PageBorder::Values& border) {
    static constexpr Words<dwPageBorder> SideWords{"pgbrdrt", "pgbrdrl", "pgbrdrr", "pgbrdrb"};
    writer.Word(SideWords, side);
    EmitBorderLine(writer, {.style = border.style,
                            .width = border.width.Written(),
                            .color = border.color,
                            .spacing = border.spacing.Written(),
                            .art = border.art});
}

}  // namespace

void EmitPageBorders(RtfWriter& writer, const PageBorders& borders) {
    bool first = true;
    borders.ForEach([&](dwPageBorder side, const PageBorder& border) {
        if (!IsDrawn(Stored(border))) return;
        if (first) WriteOptions(writer, Stored(borders));
        first = false;
        WritePageBorder(writer, side, Stored(border));
    });
}

}  // namespace draftwick
