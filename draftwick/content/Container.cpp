#include <draftwick/content/Container.h>
#include <draftwick/content/Paragraph.h>
#include <draftwick/content/internal/Writers.h>
#include <draftwick/structure/Table.h>

namespace draftwick {

std::shared_ptr<Paragraph> Container::AddParagraph() { return Add(currentParagraph_); }

void Container::WriteParagraphMark() { EmitParagraphMark(Writer()); }
void Container::WriteParagraphPlace(const Frame* frame) { EmitParagraphPlace(Writer(), frame); }

std::shared_ptr<Table> RowContainer::AddTable() { return Add(currentTable_); }

void RowContainer::WriteRowMark() { EmitRowMark(Writer()); }

}  // namespace draftwick
