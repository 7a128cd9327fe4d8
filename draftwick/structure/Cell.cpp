#include <draftwick/content/Paragraph.h>
#include <draftwick/model/Class.h>
#include <draftwick/model/WritingContext.h>
#include <draftwick/structure/Cell.h>
#include <draftwick/structure/Table.h>
#include <draftwick/structure/TableWriter.h>

namespace draftwick {

void Cell::WriteStart() { EmitCellDefinition(Writing(), values_, background_.Find(), borders_.Find()); }

void Cell::WriteEnd() {
    Output& output = Writing().output;
    if (CurrentParagraph() == nullptr) output.WriteControlWord("intbl");
    output.WriteControlWord("cell");
}

/// \intbl before each paragraph, \par between two of them; \cell ends the last.
void Cell::WriteParagraphMark() {
    WritingContext& context = Writing();
    context.output.WriteControlWord("intbl");
    if (!context.layout.row.AtCellStart) context.output.WriteControlWord("par");
    context.layout.row.AtCellStart = false;
}

/// \pard takes a paragraph out of its row. A row has no words for its frame: its paragraphs have them.
void Cell::WriteParagraphPlace(const Frame*) {
    Writing().output.WriteControlWord("intbl");
    if (const Frame* frame = Holder<Table>().OwnFrame()) EmitFrame(Writing(), frame->Stored());
}

const Class& Cell::Describe() {
    using C = Cell;
    using V = Values;
    static const Class description{
        "Cell",
        "{3D7BB1C1-1366-4981-8415-45CEB94B09C7}",
        "{4DF562DA-502C-48CD-858D-C6816C479D89}",
        {
            PropertyOf<&C::CurrentParagraph>("CurrentParagraph"),
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
            MethodOf<&C::AddParagraph>("AddParagraph"),
        }};
    return description;
}

}  // namespace draftwick
