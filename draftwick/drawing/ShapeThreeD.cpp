#include <draftwick/drawing/ShapeThreeD.h>
#include <draftwick/model/internal/ClassTable.h>

namespace draftwick {

const Class& ShapeThreeD::Describe() {
    using S = ShapeThreeD;
    using V = Values;
    static const Class description{
        "ShapeThreeD",
        "{6FB57010-73A0-444D-8EC1-D61F7FA779AF}",
        "{2EF6393E-61E7-4ACF-AA85-F602BD3E2F65}",
        {
            PropertyOf<&S::Visible, &S::SetVisible, &V::visible>("Visible"),
            PropertyOf<&S::Depth, &S::SetDepth, &V::depth>("Depth"),
            PropertyOf<&S::DepthForward, &S::SetDepthForward, &V::depthForward>("DepthForward"),
            PropertyOf<&S::UseColor, &S::SetUseColor, &V::useColor>("UseColor"),
            PropertyOf<&S::Color, &S::SetColor, &V::color>("Color").As(Kind::Color),
            PropertyOf<&S::Metallic, &S::SetMetallic, &V::metallic>("Metallic"),
            PropertyOf<&S::LightFace, &S::SetLightFace, &V::lightFace>("LightFace"),
            PropertyOf<&S::Specularity, &S::SetSpecularity, &V::specularity>("Specularity"),
            PropertyOf<&S::Diffusion, &S::SetDiffusion, &V::diffusion>("Diffusion"),
            PropertyOf<&S::Shininess, &S::SetShininess, &V::shininess>("Shininess"),
            PropertyOf<&S::EdgeThickness, &S::SetEdgeThickness, &V::edgeThickness>("EdgeThickness"),
            PropertyOf<&S::RotationX, &S::SetRotationX, &V::rotationX>("RotationX"),
            PropertyOf<&S::RotationY, &S::SetRotationY, &V::rotationY>("RotationY"),
            PropertyOf<&S::RenderMode, &S::SetRenderMode, &V::renderMode>("RenderMode"),
            PropertyOf<&S::Projection, &S::SetProjection, &V::projection>("Projection"),
            PropertyOf<&S::SkewAngle, &S::SetSkewAngle, &V::skewAngle>("SkewAngle"),
            PropertyOf<&S::SkewAmount, &S::SetSkewAmount, &V::skewAmount>("SkewAmount"),
            PropertyOf<&S::ViewpointX, &S::SetViewpointX, &V::viewpointX>("ViewpointX"),
            PropertyOf<&S::ViewpointY, &S::SetViewpointY, &V::viewpointY>("ViewpointY"),
            PropertyOf<&S::ViewpointZ, &S::SetViewpointZ, &V::viewpointZ>("ViewpointZ"),
            PropertyOf<&S::OriginX, &S::SetOriginX, &V::originX>("OriginX"),
            PropertyOf<&S::OriginY, &S::SetOriginY, &V::originY>("OriginY"),
            PropertyOf<&S::AmbientIntensity, &S::SetAmbientIntensity, &V::ambientIntensity>(
                "AmbientIntensity"),
            PropertyOf<&S::KeyX, &S::SetKeyX, &V::keyX>("KeyX"),
            PropertyOf<&S::KeyY, &S::SetKeyY, &V::keyY>("KeyY"),
            PropertyOf<&S::KeyZ, &S::SetKeyZ, &V::keyZ>("KeyZ"),
            PropertyOf<&S::KeyIntensity, &S::SetKeyIntensity, &V::keyIntensity>("KeyIntensity"),
            PropertyOf<&S::KeyHarsh, &S::SetKeyHarsh, &V::keyHarsh>("KeyHarsh"),
            PropertyOf<&S::FillX, &S::SetFillX, &V::fillX>("FillX"),
            PropertyOf<&S::FillY, &S::SetFillY, &V::fillY>("FillY"),
            PropertyOf<&S::FillZ, &S::SetFillZ, &V::fillZ>("FillZ"),
            PropertyOf<&S::FillIntensity, &S::SetFillIntensity, &V::fillIntensity>("FillIntensity"),
            PropertyOf<&S::FillHarsh, &S::SetFillHarsh, &V::fillHarsh>("FillHarsh"),
        },
        {}};
    return description;
}

}  // namespace draftwick
