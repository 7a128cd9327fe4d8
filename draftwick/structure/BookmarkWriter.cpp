#include <draftwick/structure/internal/Writers.h>

namespace draftwick {

void EmitBookmark(RtfWriter& writer, const Bookmark::Values& bookmark) {
    writer.Destination(bookmark.isStart ? "bkmkstart" : "bkmkend", [&] { writer.Name(bookmark.name); });
}

}  // namespace draftwick
