#include <draftwick/content/Paragraph.h>
#include <draftwick/content/internal/Members.h>
#include <draftwick/model/internal/Access.h>
#include <draftwick/model/internal/Advice.h>
#include <draftwick/model/internal/ClassTable.h>
#include <draftwick/model/internal/Session.h>
#include <draftwick/structure/Cell.h>
#include <draftwick/structure/Table.h>
#include <draftwick/structure/internal/Writers.h>

namespace draftwick {

std::shared_ptr<draftwick::Background> Cell::Background() { return Share(background_.Get(AsOwner())); }
std::shared_ptr<CellBorders> Cell::Borders() { return Share(borders_.Get(AsOwner())); }

CellSettings Cell::Settings() const {
    return {.values = values_, .background = background_.Find(), .borders = borders_.Find()};
}

void Cell::WriteStart() {
    const std::int32_t edge = Writer().layout.row.CellRightEdge + values_.width.Twips();
    try {
        EmitCellStart(Writer(), Settings());
    } catch (Error& error) {
        const dwScaleMode scale = Session().settings.scaleMode;
        error.SetAdvice(AdviceOnLength("Table: the row ends at", FromTwips(edge, scale), scale)
                        + "; make Cell.Width of the cell before smaller");
        throw;
    }
}
void Cell::WriteEnd() { EmitCellEnd(Writer(), CurrentParagraph() == nullptr); }
void Cell::WriteParagraphMark() { EmitCellParagraphMark(Writer()); }
void Cell::WriteParagraphPlace(const Frame*) { EmitCellParagraphPlace(Writer(), Holder().frame_.Find()); }

void Cell::BeginLike(const Cell& other) {
    values_ = other.values_;
    values_.merge = dwMergeNone;
    if (const auto* background = other.background_.Find()) {
        CopyValues(background_.Get(AsOwner()), *background);
    }
    if (const auto* borders = other.borders_.Find()) borders_.Get(AsOwner()).CopyFrom(*borders);
}

const Class& Cell::Describe() {
    using C = Cell;
    using V = Values;
    static const Class description{
        "Cell",
        "{3D7BB1C1-1366-4981-8415-45CEB94B09C7}",
        "{4DF562DA-502C-48CD-858D-C6816C479D89}",
        {
            PropertyOf<&C::CurrentParagraph>("CurrentParagraph").OrNothing(),
            PropertyOf<&C::Emitted>("Emitted"),
            PropertyOf<&C::Finished>("Finished"),
            PropertyOf<&C::Background>("Background"),
            PropertyOf<&C::Borders>("Borders"),
            PropertyOf<&C::Merge, &C::SetMerge, &V::merge>("Merge"),
            PropertyOf<&C::Orientation, &C::SetOrientation, &V::orientation>("Orientation"),
            PropertyOf<&C::VerticalAlign, &C::SetVerticalAlign, &V::verticalAlign>("VerticalAlign"),
            PropertyOf<&C::Width, &C::SetWidth, &V::width>("Width"),
        },
        {
            AddParagraphOf<C>(),
        }};
    return description;
}

}  // namespace draftwick
