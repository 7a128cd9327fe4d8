#include <draftwick/structure/internal/Writers.h>

namespace draftwick {

void EmitFootnoteStart(RtfWriter& writer, bool isEndnote) {
    writer.OpenGroup("footnote");
    if (isEndnote) writer.Word("ftnalt");
}

void EmitFootnoteEnd(RtfWriter& writer) { writer.CloseGroup(); }

}  // namespace draftwick
