#include <draftwick/structure/internal/Writers.h>

namespace draftwick {

void EmitFootnoteStart(RtfWriter& writer, bool isEndnote) {
    writer.OpenGroup("footnote");
    if (isEndnote) writer.Word("ftnalt");
    writer.EnterStory();
}

void EmitFootnoteEnd(RtfWriter& writer) {
    if (writer.Standard() && writer.layout.TableEndsSection) writer.Word("par");
    writer.CloseGroup();
    writer.LeaveStory();
}

}  // namespace draftwick
