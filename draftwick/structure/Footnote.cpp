#include <draftwick/content/Paragraph.h>
#include <draftwick/model/Class.h>
#include <draftwick/model/WritingContext.h>
#include <draftwick/structure/Footnote.h>
#include <draftwick/structure/Table.h>

namespace draftwick {

/// "{\footnote\ftnalt"
void Footnote::WriteStart() {
    Output& output = Writing().output;
    output.WriteGroupStart();
    output.WriteControlWord("footnote");
    if (isEndnote_) output.WriteControlWord("ftnalt");
}

void Footnote::WriteEnd() { Writing().output.WriteGroupEnd(); }

bool Footnote::StandsInCell() const {
    const std::shared_ptr<Object> paragraph = Parent();
    return paragraph != nullptr && static_cast<const Paragraph&>(*paragraph).StandsInCell();
}

const Class& Footnote::Describe() {
    using F = Footnote;
    static const Class description{"Footnote",
                                   "{0439A39A-D291-4AEA-9F1D-F39723E11A11}",
                                   "{6F8448C4-7424-4E84-A14D-ADABDAC917BA}",
                                   {
                                       PropertyOf<&F::CurrentParagraph>("CurrentParagraph"),
                                       PropertyOf<&F::CurrentTable>("CurrentTable"),
                                       PropertyOf<&F::Emitted>("Emitted"),
                                       PropertyOf<&F::Finished>("Finished"),
                                       PropertyOf<&F::IsEndnote>("IsEndnote"),
                                   },
                                   {
                                       MethodOf<&F::AddParagraph>("AddParagraph"),
                                       MethodOf<&F::AddTable>("AddTable"),
                                   }};
    return description;
}

}  // namespace draftwick
