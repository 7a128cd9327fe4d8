#include <draftwick/model/internal/ClassTable.h>
#include <draftwick/model/internal/Session.h>
#include <draftwick/structure/Cell.h>
#include <draftwick/structure/internal/Writers.h>

namespace draftwick {

std::shared_ptr<TableBorders> Table::Borders() { return Share(borders_.Get(AsOwner())); }
std::shared_ptr<draftwick::Frame> Table::Frame() { return Share(frame_.Get(AsOwner())); }

std::shared_ptr<Cell> Table::AddCell(const std::shared_ptr<Cell>& like) {
    const std::shared_ptr<Cell> kept = like;  // it can be CurrentCell
    const bool standard = Session().settings.spelling == dwSpellingStandard;
    if (standard && cells_.size() == cells_.capacity()) cells_.reserve(cells_.size() * 2 + 4);
    auto cell = Add(currentCell_);
    if (standard) cells_.push_back(cell);
    if (kept != nullptr) cell->BeginLike(*kept);
    return cell;
}

void Table::WriteStart() {
    below_ = Writer().layout.TableEndsSection;
    Holder().WriteRowMark();
    Writer().EnterRow();
    if (!Writer().Standard()) EmitTableRow(Writer(), values_, borders_.Find(), frame_.Find());
}

void Table::WriteDefinition() {
    EmitTableRow(Writer(), values_, borders_.Find(), frame_.Find());
    CellPlace place{.rightEdge = values_.left.Twips(), .below = below_};
    for (const auto& cell : cells_) {
        place.rightEdge += cell->values_.width.Twips();
        place.first = cell == cells_.front();
        place.last = cell == cells_.back();
        EmitCellDefinition(Writer(), cell->Settings(), borders_.Find(), place);
    }
    cells_.clear();
}

void Table::WriteEnd() {
    Writer().LeaveRow([&] { WriteDefinition(); });
    EmitTableRowEnd(Writer());
}

const Class& Table::Describe() {
    using T = Table;
    using V = Values;
    static const Class description{
        "Table",
        "{D18F7EE2-208D-4313-ADCC-44B011B03408}",
        "{0E64CEF8-4F48-400A-A818-FD553BCB25E8}",
        {
            PropertyOf<&T::CurrentCell>("CurrentCell").OrNothing(),
            PropertyOf<&T::Emitted>("Emitted"),
            PropertyOf<&T::Finished>("Finished"),
            PropertyOf<&T::Align, &T::SetAlign, &V::align>("Align"),
            PropertyOf<&T::Borders>("Borders"),
            PropertyOf<&T::Frame>("Frame"),
            PropertyOf<&T::Gap, &T::SetGap, &V::gap>("Gap"),
            PropertyOf<&T::Header, &T::SetHeader, &V::header>("Header"),
            PropertyOf<&T::Height, &T::SetHeight, &V::height>("Height"),
            PropertyOf<&T::HeightExactly, &T::SetHeightExactly, &V::heightExactly>("HeightExactly"),
            PropertyOf<&T::KeepTogether, &T::SetKeepTogether, &V::keepTogether>("KeepTogether"),
            PropertyOf<&T::Left, &T::SetLeft, &V::left>("Left"),
        },
        {
            MethodOf<&T::AddCell>("AddCell", {{"Like", Variant{}}}),
        }};
    return description;
}

}  // namespace draftwick
