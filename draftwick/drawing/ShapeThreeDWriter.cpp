#include <draftwick/drawing/internal/ShapeDifferences.h>

namespace draftwick {

void EmitShapeThreeD(RtfWriter& writer, const ShapeThreeD::Values& effect) {
    using V = ShapeThreeD::Values;
    if (!effect.visible) return;
    const ShapeDifferences changed(writer, effect);
    WriteShapeProperty(writer, writer.Of({"fc3D", "f3D"}), 1);
    changed.Length("c3DExtrudeBackward", &V::depth);
    changed.Length("c3DExtrudeForward", &V::depthForward);
    // The surface.
    if (effect.useColor) {
        WriteShapeProperty(writer, "fc3DUseExtrusionColor", 1);
        WriteShapeProperty(writer, "c3DExtrusionColor", effect.color);
    }
    changed.Flag("fc3DMetallic", &V::metallic);
    changed.Flag("fc3DLightFace", &V::lightFace);
    changed.Real("c3DSpecularAmt", &V::specularity);
    changed.Real("c3DDiffuseAmt", &V::diffusion);
    changed.Number("c3DShininess", &V::shininess);
    changed.Real("c3DEdgeThickness", &V::edgeThickness);
    // The view.
    changed.Real("c3DXRotationAngle", &V::rotationX);
    changed.Real("c3DYRotationAngle", &V::rotationY);
    changed.Position("c3DRenderMode", &V::renderMode);
    if (effect.projection == dwS3PPerspective) WriteShapeProperty(writer, "fc3DParallel", 0);
    changed.Real("c3DSkewAngle", &V::skewAngle);
    changed.Number("c3DSkewAmount", &V::skewAmount);
    changed.Number("c3DXViewpoint", &V::viewpointX);
    changed.Number("c3DYViewpoint", &V::viewpointY);
    changed.Number("c3DZViewpoint", &V::viewpointZ);
    changed.Real("c3DOriginX", &V::originX);
    changed.Real("c3DOriginY", &V::originY);
    // The light.
    changed.Number("c3DAmbientIntensity", &V::ambientIntensity);
    changed.Number("c3DKeyX", &V::keyX);
    changed.Number("c3DKeyY", &V::keyY);
    changed.Number("c3DKeyZ", &V::keyZ);
    changed.Number("c3DKeyIntensity", &V::keyIntensity);
    changed.Flag("fc3DKeyHarsh", &V::keyHarsh);
    changed.Number("c3DFillX", &V::fillX);
    changed.Number("c3DFillY", &V::fillY);
    changed.Number("c3DFillZ", &V::fillZ);
    changed.Number("c3DFillIntensity", &V::fillIntensity);
    changed.Flag("fc3DFillHarsh", &V::fillHarsh);
}

}  // namespace draftwick
