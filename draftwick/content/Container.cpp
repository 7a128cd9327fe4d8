#include <draftwick/content/Container.h>
#include <draftwick/content/Paragraph.h>
#include <draftwick/content/internal/Writers.h>
#include <draftwick/format/Styles.h>
#include <draftwick/model/internal/Session.h>
#include <draftwick/structure/Table.h>

namespace draftwick {

std::shared_ptr<Paragraph> Container::AddParagraph(std::string_view style, std::string_view text) {
    const auto& session = Session();
    CheckNotFinished();
    // All that can be refused comes before the paragraph.
    if (!style.empty()) session.collections->paragraphStyles->IndexOf(style);
    if (!text.empty()) CheckDepth(2);
    auto paragraph = Add(currentParagraph_);
    if (!style.empty()) paragraph->SetStyleName(style);
    if (!text.empty()) paragraph->AddFirstText(text);
    return paragraph;
}

void Container::WriteParagraphMark() { EmitParagraphMark(Writer()); }
void Container::WriteParagraphPlace(const Frame* frame) { EmitParagraphPlace(Writer(), frame); }

std::shared_ptr<Table> RowContainer::AddTable() { return Add(currentTable_); }

void RowContainer::WriteRowMark() { EmitRowMark(Writer()); }

}  // namespace draftwick
