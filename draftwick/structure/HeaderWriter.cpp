#include <draftwick/structure/internal/Writers.h>

namespace draftwick {

void EmitHeaderStart(RtfWriter& writer, dwHeaderKind kind) {
    static constexpr Words<dwHeaderKind> KindWords{"header",  "footer",  "headerl", "headerr",
                                                   "footerl", "footerr", "headerf", "footerf"};
    writer.OpenGroup(KindWords[kind]);
    writer.EnterStory();
    writer.layout.SuppressNextParagraphMark = true;
}

void EmitHeaderEnd(RtfWriter& writer) {
    writer.Word("par");
    writer.CloseGroup();
    writer.LeaveStory();
    if (!writer.Standard()) writer.layout.SuppressNextParagraphMark = true;
}

}  // namespace draftwick
