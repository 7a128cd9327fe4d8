#include <draftwick/format/Lists.h>
#include <draftwick/format/ParagraphFormat.h>
#include <draftwick/model/internal/ClassTable.h>
#include <draftwick/model/internal/Session.h>

namespace draftwick {

ParagraphFormat::ParagraphFormat(Owner owner) : Part(owner) {
    // It can be read for the first time when the document is gone.
    values_.widowOrphanControl = SharedSession()->settings.widowOrphanControl;
}

std::string ParagraphFormat::NameOfList(Ref<Lists> list) const {
    return list.Name(*Session().collections->lists);
}

void ParagraphFormat::SetList(Ref<Lists>& list, std::string_view name) {
    OpenForChange();
    list.Set(*Session().collections->lists, name);
}

const Class& ParagraphFormat::Describe() {
    using P = ParagraphFormat;
    using V = Values;
    static const Class description{
        "ParagraphFormat",
        "{73346E5F-D36D-4259-A1D2-E665F5DE6791}",
        "{961EF7DF-9D36-45CE-B01F-E68DB500B9BD}",
        {
            PropertyOf<&P::Align, &P::SetAlign, &V::align>("Align"),
            PropertyOf<&P::IndentFirst, &P::SetIndentFirst, &V::indentFirst>("IndentFirst"),
            PropertyOf<&P::IndentLeft, &P::SetIndentLeft, &V::indentLeft>("IndentLeft"),
            PropertyOf<&P::IndentRight, &P::SetIndentRight, &V::indentRight>("IndentRight"),
            PropertyOf<&P::SpaceBefore, &P::SetSpaceBefore, &V::spaceBefore>("SpaceBefore"),
            PropertyOf<&P::SpaceAfter, &P::SetSpaceAfter, &V::spaceAfter>("SpaceAfter"),
            PropertyOf<&P::LineSpacingStyle, &P::SetLineSpacingStyle, &V::lineSpacingStyle>(
                "LineSpacingStyle"),
            PropertyOf<&P::LineSpacingMultiple, &P::SetLineSpacingMultiple, &V::lineSpacingMultiple>(
                "LineSpacingMultiple"),
            PropertyOf<&P::LineSpacingDistance, &P::SetLineSpacingDistance, &V::lineSpacingDistance>(
                "LineSpacingDistance"),
            PropertyOf<&P::KeepIntact, &P::SetKeepIntact, &V::keepIntact>("KeepIntact"),
            PropertyOf<&P::KeepWithNext, &P::SetKeepWithNext, &V::keepWithNext>("KeepWithNext"),
            PropertyOf<&P::PageBreakBefore, &P::SetPageBreakBefore, &V::pageBreakBefore>("PageBreakBefore"),
            PropertyOf<&P::NoLineNumbering, &P::SetNoLineNumbering, &V::noLineNumbering>("NoLineNumbering"),
            PropertyOf<&P::SuppressHyphen, &P::SetSuppressHyphen, &V::suppressHyphen>("SuppressHyphen"),
            PropertyOf<&P::WidowOrphanControl, &P::SetWidowOrphanControl, &V::widowOrphanControl>(
                "WidowOrphanControl")
                .DefaultDepends(),
            PropertyOf<&P::OutlineLevel, &P::SetOutlineLevel, &V::outlineLevel>("OutlineLevel"),
            PropertyOf<&P::ListName, &P::SetListName>("ListName"),
            PropertyOf<&P::ListFormatName, &P::SetListFormatName>("ListFormatName"),
            PropertyOf<&P::ListLevel, &P::SetListLevel, &V::listLevel>("ListLevel"),
        },
        {}};
    return description;
}

}  // namespace draftwick
