#include <draftwick/format/Border.h>
#include <draftwick/format/internal/BorderTable.h>
#include <draftwick/model/internal/Advice.h>

namespace draftwick {

void detail::RaiseNoSide(const Object& borders, std::int32_t side, std::int32_t count) {
    RaiseRuntimeError(dwRunSubscriptOutOfRange, std::to_string(side), AdviceOnPosition(borders, side, count));
}

ParagraphBorder::ParagraphBorder(Owner owner, dwParagraphBorder side) : Border(owner) {
    const bool beside = side == dwPBorderLeft || side == dwPBorderRight || side == dwPBorderOutside;
    values_.spacing = beside ? 4 : 1;
}

const Class& TextBorder::Describe() {
    static const Class description{"TextBorder",
                                   "{0C109FE5-908D-4CD0-9E41-5F35D9B7E8DF}",
                                   "{345DF448-B240-4C11-8CE9-12EC7F64081B}",
                                   BorderRows<TextBorder>(),
                                   {}};
    return description;
}

const Class& ParagraphBorder::Describe() {
    static const Class description{
        "ParagraphBorder",
        "{573EA448-A0C7-4A00-9481-3923E08DFB08}",
        "{FE9B674C-FAA1-45C4-9023-7A59189169DD}",
        BorderRows<ParagraphBorder>({PropertyOf<&ParagraphBorder::Spacing, &ParagraphBorder::SetSpacing,
                                                &ParagraphBorderValues::spacing>("Spacing")
                                         .DefaultDepends()}),
        {}};
    return description;
}

const Class& ParagraphBorders::Describe() {
    using B = ParagraphBorders;
    static const Class description = CollectionOf({"ParagraphBorders",
                                                   "{A2EA0D44-19D2-4983-98CF-7738E358A7BB}",
                                                   "{11810427-7D44-49C9-B2B6-19FE780E1510}",
                                                   {PropertyOf<&B::Count>("Count")},
                                                   {MethodOf<&B::Items>("Items", {{"Index"}})}});
    return description;
}

}  // namespace draftwick
