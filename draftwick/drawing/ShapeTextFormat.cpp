#include <draftwick/drawing/ShapeTextFormat.h>
#include <draftwick/model/internal/ClassTable.h>

namespace draftwick {

const Class& ShapeTextFormat::Describe() {
    using F = ShapeTextFormat;
    using V = Values;
    static const Class description{
        "ShapeTextFormat",
        "{B6E57FDF-FD67-4FA7-876A-142E0D7700A1}",
        "{02D6367D-E8B6-44CF-AFA1-9F2A77AA0070}",
        {
            PropertyOf<&F::SpacingTop, &F::SetSpacingTop, &V::spacingTop>("SpacingTop"),
            PropertyOf<&F::SpacingBottom, &F::SetSpacingBottom, &V::spacingBottom>("SpacingBottom"),
            PropertyOf<&F::SpacingLeft, &F::SetSpacingLeft, &V::spacingLeft>("SpacingLeft"),
            PropertyOf<&F::SpacingRight, &F::SetSpacingRight, &V::spacingRight>("SpacingRight"),
            PropertyOf<&F::Flow, &F::SetFlow, &V::flow>("Flow"),
        },
        {}};
    return description;
}

}  // namespace draftwick
