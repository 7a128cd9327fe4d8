#include <draftwick/content/Paragraph.h>
#include <draftwick/model/Class.h>
#include <draftwick/model/WritingContext.h>
#include <draftwick/structure/Header.h>
#include <draftwick/structure/Table.h>

namespace draftwick {

/// "{\headerf", and no \par before what comes first
void Header::WriteStart() {
    static constexpr std::string_view KindWords[] = {"header",  "footer",  "headerl", "headerr",
                                                     "footerl", "footerr", "headerf", "footerf"};
    WritingContext& context = Writing();
    context.output.WriteGroupStart();
    context.output.WriteWord(KindWords, kind_);
    context.layout.SuppressNextParagraphMark = true;
}

/// "\par}", also after a row: then the header ends with an empty paragraph
void Header::WriteEnd() {
    WritingContext& context = Writing();
    context.output.WriteControlWord("par");
    context.output.WriteGroupEnd();
    context.layout.SuppressNextParagraphMark = true;
}

const Class& Header::Describe() {
    using H = Header;
    static const Class description{"Header",
                                   "{57488F81-6159-47F1-97F2-C1D10977CF73}",
                                   "{2113A6D9-1044-46A4-8449-838156737672}",
                                   {
                                       PropertyOf<&H::CurrentParagraph>("CurrentParagraph"),
                                       PropertyOf<&H::CurrentTable>("CurrentTable"),
                                       PropertyOf<&H::Emitted>("Emitted"),
                                       PropertyOf<&H::Finished>("Finished"),
                                   },
                                   {
                                       MethodOf<&H::AddParagraph>("AddParagraph"),
                                       MethodOf<&H::AddTable>("AddTable"),
                                   }};
    return description;
}

}  // namespace draftwick
