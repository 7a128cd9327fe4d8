#include <draftwick/structure/internal/Writers.h>

namespace draftwick {

void EmitHeaderStart(RtfWriter& writer, dwHeaderKind kind) {
    static constexpr std::string_view KindWords[] = {"header",  "footer",  "headerl", "headerr",
                                                     "footerl", "footerr", "headerf", "footerf"};
    writer.OpenGroup(WordList{KindWords}[kind]);
    writer.layout.SuppressNextParagraphMark = true;
}

void EmitHeaderEnd(RtfWriter& writer) {
    writer.Word("par");
    writer.CloseGroup();
    writer.layout.SuppressNextParagraphMark = true;
}

}  // namespace draftwick
