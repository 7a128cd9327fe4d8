#include <draftwick/base/Class.h>
#include <draftwick/format/Border.h>

namespace draftwick {

ParagraphBorder::ParagraphBorder(Object& parent, dwParagraphBorder side) : Part(parent) {
    const bool beside = side == dwPBorderLeft || side == dwPBorderRight || side == dwPBorderOutside;
    values_.spacing = beside ? 4 : 1;
}

const Class& TextBorder::Description() const {
    using B = TextBorder;
    using V = Values;
    static const Class description{"TextBorder",
                                   "{@C}",
                                   "{@I}",
                                   {
                                       PropertyOf<&B::Style, &B::SetStyle, &V::style>("Style"),
                                       PropertyOf<&B::Width, &B::SetWidth, &V::width>("Width"),
                                       PropertyOf<&B::Color, &B::SetColor, &V::color>("Color"),
                                   },
                                   {}};
    return description;
}

const Class& ParagraphBorder::Description() const {
    using B = ParagraphBorder;
    using V = Values;
    static const Class description{"ParagraphBorder",
                                   "{@C}",
                                   "{@I}",
                                   {
                                       PropertyOf<&B::Style, &B::SetStyle, &V::style>("Style"),
                                       PropertyOf<&B::Width, &B::SetWidth, &V::width>("Width"),
                                       PropertyOf<&B::Spacing, &B::SetSpacing, &V::spacing>("Spacing"),
                                       PropertyOf<&B::Color, &B::SetColor, &V::color>("Color"),
                                   },
                                   {}};
    return description;
}

const Class& ParagraphBorders::Description() const {
    using B = ParagraphBorders;
    static const Class description{"ParagraphBorders",
                                   "{@C}",
                                   "{@I}",
                                   {PropertyOf<&B::Count>("Count")},
                                   {MethodOf<&B::Items>("Items", {{"Index"}})}};
    return description;
}

}  // namespace draftwick
