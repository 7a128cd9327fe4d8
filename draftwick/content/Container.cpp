#include <draftwick/base/WritingContext.h>
#include <draftwick/content/Container.h>
#include <draftwick/content/Paragraph.h>

namespace draftwick {

std::shared_ptr<Paragraph> Container::AddParagraph() { return Add(currentParagraph_); }

/// A paragraph mark is written by the paragraph that follows; the last one is left to the end of the container.
void Container::WriteParagraphMark() {
    WritingContext& context = Writing();
    if (!context.layout.SuppressNextParagraphMark) context.output.WriteControlWord("par");
    context.layout.SuppressNextParagraphMark = false;
    context.layout.TableEndsSection = false;
}

}  // namespace draftwick
