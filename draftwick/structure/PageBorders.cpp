#include <draftwick/format/internal/BorderTable.h>
#include <draftwick/structure/PageBorders.h>

namespace draftwick {

PageBorder::PageBorder(Owner owner, dwPageBorder side) : Border(owner) {
    values_.spacing = side == dwPgBorderLeft || side == dwPgBorderRight ? 4 : 1;
}

const Class& PageBorder::Describe() {
    static const Class description{
        "PageBorder",
        "{4C2D5D5B-365E-493C-8537-955A8B44887B}",
        "{A0C80585-351A-4862-B692-83771B41E311}",
        BorderRows<PageBorder>(
            {PropertyOf<&PageBorder::Spacing, &PageBorder::SetSpacing, &PageBorderValues::spacing>("Spacing")
                 .DefaultDepends(),
             PropertyOf<&PageBorder::Art, &PageBorder::SetArt, &PageBorderValues::art>("Art")}),
        {}};
    return description;
}

const Class& PageBorders::Describe() {
    using B = PageBorders;
    using V = Values;
    static const Class description =
        CollectionOf({"PageBorders",
                      "{C51424A8-69F2-4A47-93C3-3B4479E47D8C}",
                      "{5D8604D8-F1EE-47F5-800E-FD6009CE3FBD}",
                      {
                          PropertyOf<&B::Count>("Count"),
                          PropertyOf<&B::Display, &B::SetDisplay, &V::display>("Display"),
                          PropertyOf<&B::Offset, &B::SetOffset, &V::offset>("Offset"),
                          PropertyOf<&B::InFront, &B::SetInFront, &V::inFront>("InFront"),
                          PropertyOf<&B::Snap, &B::SetSnap, &V::snap>("Snap"),
                      },
                      {MethodOf<&B::Items>("Items", {{"Index"}})}});
    return description;
}

}  // namespace draftwick
