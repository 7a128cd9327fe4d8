#include <draftwick/content/Paragraph.h>
#include <draftwick/content/internal/Members.h>
#include <draftwick/model/internal/ClassTable.h>
#include <draftwick/model/internal/Session.h>
#include <draftwick/structure/Header.h>
#include <draftwick/structure/internal/Writers.h>

namespace draftwick {

void Header::WriteStart() { EmitHeaderStart(Writer(), kind_); }
void Header::WriteEnd() { EmitHeaderEnd(Writer()); }

const Class& Header::Describe() {
    using H = Header;
    static const Class description{"Header",
                                   "{57488F81-6159-47F1-97F2-C1D10977CF73}",
                                   "{2113A6D9-1044-46A4-8449-838156737672}",
                                   {
                                       PropertyOf<&H::CurrentParagraph>("CurrentParagraph").OrNothing(),
                                       PropertyOf<&H::CurrentTable>("CurrentTable").OrNothing(),
                                       PropertyOf<&H::Emitted>("Emitted"),
                                       PropertyOf<&H::Finished>("Finished"),
                                   },
                                   {
                                       AddParagraphOf<H>(),
                                       MethodOf<&H::AddTable>("AddTable"),
                                   }};
    return description;
}

}  // namespace draftwick
