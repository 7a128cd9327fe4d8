#include <draftwick/format/Background.h>
#include <draftwick/model/internal/ClassTable.h>

namespace draftwick {

const Class& Background::Describe() {
    using B = Background;
    using V = Values;
    static const Class description{
        "Background",
        "{C954996D-94CB-4062-9DBD-C85CD0390873}",
        "{1AD4B938-94A6-48EA-90DD-E1CC4D04B2B0}",
        {
            PropertyOf<&B::Texture, &B::SetTexture, &V::texture>("Texture"),
            PropertyOf<&B::Shading, &B::SetShading, &V::shading>("Shading"),
            PropertyOf<&B::Color, &B::SetColor, &V::color>("Color").As(Kind::Color),
            PropertyOf<&B::BackColor, &B::SetBackColor, &V::backColor>("BackColor").As(Kind::Color),
        },
        {}};
    return description;
}

}  // namespace draftwick
