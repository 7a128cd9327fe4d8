#include <draftwick/content/Container.h>
#include <draftwick/content/Paragraph.h>
#include <draftwick/format/Frame.h>
#include <draftwick/model/WritingContext.h>
#include <draftwick/structure/Table.h>

namespace draftwick {

std::shared_ptr<Paragraph> Container::AddParagraph() { return Add(currentParagraph_); }

/// A paragraph mark is written by the paragraph that follows; the last one is left to the end of the container.
void Container::WriteParagraphMark() {
    WritingContext& context = Writing();
    if (!context.layout.SuppressNextParagraphMark) context.output.WriteControlWord("par");
    context.layout.SuppressNextParagraphMark = false;
    context.layout.TableEndsSection = false;
}

void Container::WriteParagraphPlace(const Frame* frame) {
    if (frame != nullptr) EmitFrame(Writing(), frame->Stored());
}

std::shared_ptr<Table> RowContainer::AddTable() { return Add(currentTable_); }

/// A row ends itself: what follows it needs no paragraph mark.
void RowContainer::WriteRowMark() {
    WritingContext& context = Writing();
    if (!context.layout.SuppressNextParagraphMark) context.output.WriteControlWord("par");
    context.layout.SuppressNextParagraphMark = true;
    context.layout.TableEndsSection = true;
}

}  // namespace draftwick
