#include <draftwick/base/Class.h>
#include <draftwick/format/Background.h>

namespace draftwick {

const Class& Background::Description() const {
    using B = Background;
    using V = Values;
    static const Class description{
        "Background",
        "{@C}",
        "{@I}",
        {
            PropertyOf<&B::Texture, &B::SetTexture, &V::texture>("Texture"),
            PropertyOf<&B::Shading, &B::SetShading, &V::shading>("Shading"),
            PropertyOf<&B::Color, &B::SetColor, &V::color>("Color"),
            PropertyOf<&B::BackColor, &B::SetBackColor, &V::backColor>("BackColor"),
        },
        {}};
    return description;
}

}  // namespace draftwick
