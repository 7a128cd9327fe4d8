#include <draftwick/drawing/ShapeShadow.h>
#include <draftwick/model/internal/ClassTable.h>

namespace draftwick {

const Class& ShapeShadow::Describe() {
    using S = ShapeShadow;
    using V = Values;
    static const Class description{
        "ShapeShadow",
        "{4F9FF45F-5E95-470B-9273-28650F38E557}",
        "{3CF85C1D-B548-459D-A439-85E260D47BA9}",
        {
            PropertyOf<&S::Style, &S::SetStyle, &V::style>("Style"),
            PropertyOf<&S::Color, &S::SetColor, &V::color>("Color").As(Kind::Color),
            PropertyOf<&S::Color2, &S::SetColor2, &V::color2>("Color2").As(Kind::Color),
            PropertyOf<&S::OffsetX, &S::SetOffsetX, &V::offsetX>("OffsetX"),
            PropertyOf<&S::OffsetY, &S::SetOffsetY, &V::offsetY>("OffsetY"),
            PropertyOf<&S::OffsetX2, &S::SetOffsetX2, &V::offsetX2>("OffsetX2"),
            PropertyOf<&S::OffsetY2, &S::SetOffsetY2, &V::offsetY2>("OffsetY2"),
            PropertyOf<&S::Opacity, &S::SetOpacity, &V::opacity>("Opacity"),
        },
        {}};
    return description;
}

}  // namespace draftwick
