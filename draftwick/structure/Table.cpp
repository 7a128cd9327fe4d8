#include <draftwick/model/internal/ClassTable.h>
#include <draftwick/structure/Cell.h>
#include <draftwick/structure/internal/Writers.h>

namespace draftwick {

std::shared_ptr<TableBorders> Table::Borders() { return Share(borders_.Get(AsOwner())); }
std::shared_ptr<draftwick::Frame> Table::Frame() { return Share(frame_.Get(AsOwner())); }

std::shared_ptr<Cell> Table::AddCell() { return Add(currentCell_); }

void Table::WriteStart() {
    Holder().WriteRowMark();
    Writer().EnterRow();
    EmitTableRow(Writer(), values_, borders_.Find());
}

void Table::WriteEnd() {
    EmitTableRowEnd(Writer());
    Writer().LeaveRow();
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
            MethodOf<&T::AddCell>("AddCell"),
        }};
    return description;
}

}  // namespace draftwick
