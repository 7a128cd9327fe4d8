#include <draftwick/model/internal/Access.h>
#include <draftwick/structure/internal/Writers.h>

namespace draftwick {

void EmitColumns(RtfWriter& writer, const Columns& columns) {
    const std::int32_t count = columns.Count();
    if (count < 1) return;
    if (columns.LineBetween()) writer.Word("linebetcol");
    writer.Word("cols", count);
    if (columns.begin() == columns.end()) {
        writer.Word("colsx", Stored(columns).spacing.Twips());
        return;
    }
    for (const auto& column : columns) {
        const Column::Values& values = Stored(*column);
        writer.Word("colno", values.number);
        writer.Word("colw", values.width.Twips());
        if (values.number != count) writer.Word("colsr", values.spacing.Twips());
    }
}

}  // namespace draftwick
