#include <draftwick/content/Paragraph.h>
#include <draftwick/content/internal/Members.h>
#include <draftwick/model/internal/ClassTable.h>
#include <draftwick/model/internal/Session.h>
#include <draftwick/structure/Footnote.h>
#include <draftwick/structure/internal/Writers.h>

namespace draftwick {

void Footnote::WriteStart() { EmitFootnoteStart(Writer(), isEndnote_); }
void Footnote::WriteParagraphMark() {
    if (Writer().Standard()) RowContainer::WriteParagraphMark();
}
void Footnote::WriteRowMark() {
    if (Writer().Standard()) RowContainer::WriteRowMark();
}
void Footnote::WriteEnd() { EmitFootnoteEnd(Writer()); }
bool Footnote::StandsInCell() const { return Holder().StandsInCell(); }

const Class& Footnote::Describe() {
    using F = Footnote;
    static const Class description{"Footnote",
                                   "{0439A39A-D291-4AEA-9F1D-F39723E11A11}",
                                   "{6F8448C4-7424-4E84-A14D-ADABDAC917BA}",
                                   {
                                       PropertyOf<&F::CurrentParagraph>("CurrentParagraph").OrNothing(),
                                       PropertyOf<&F::CurrentTable>("CurrentTable").OrNothing(),
                                       PropertyOf<&F::Emitted>("Emitted"),
                                       PropertyOf<&F::Finished>("Finished"),
                                       PropertyOf<&F::IsEndnote>("IsEndnote"),
                                   },
                                   {
                                       AddParagraphOf<F>(),
                                       MethodOf<&F::AddTable>("AddTable"),
                                   }};
    return description;
}

}  // namespace draftwick
