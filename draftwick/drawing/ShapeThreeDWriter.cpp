#include <draftwick/drawing/ShapeProperty.h>
#include <draftwick/drawing/ShapeThreeD.h>
#include <draftwick/model/WritingContext.h>

namespace draftwick {

namespace {

using Values = ShapeThreeD::Values;

/// Writes what differs from the defaults.
class DifferenceWriter {
public:
    DifferenceWriter(Output& output, const Values& values) : output_(output), values_(values) {}

    void Flag(std::string_view name, bool Values::*field) { Write(name, field, values_.*field ? 1 : 0); }
    void Number(std::string_view name, std::int32_t Values::*field) { Write(name, field, values_.*field); }
    void Emu(std::string_view name, Length Values::*field) {
        Write(name, field, TwipsToEmu((values_.*field).Twips()));
    }
    void Emu(std::string_view name, Real<12700> Values::*field) {
        Write(name, field, TwipsToEmu(RoundHalfEven(values_.*field * 20)));
    }
    void Percent(std::string_view name, Real<65536, 100> Values::*field) {
        Write(name, field, values_.*field / 100 * 65536);
    }
    void Scaled(std::string_view name, Real<65536> Values::*field) {
        Write(name, field, values_.*field * 65536);
    }
    template <class Choice>
    void Position(std::string_view name, Choice Values::*field) {
        Write(name, field, values_.*field - 1);
    }

private:
    template <class Field, class Number>
    void Write(std::string_view name, Field Values::*field, Number number) {
        static const Values defaults;
        if (values_.*field != defaults.*field) WriteShapeProperty(output_, name, number);
    }

    Output& output_;
    const Values& values_;
};

void WriteSurface(Output& output, const Values& effect, DifferenceWriter& writer) {
    if (effect.useColor) {
        WriteShapeProperty(output, "fc3DUseExtrusionColor", 1);
        WriteShapeProperty(output, "c3DExtrusionColor", effect.color);
    }
    writer.Flag("fc3DMetallic", &Values::metallic);
    writer.Flag("fc3DLightFace", &Values::lightFace);
    writer.Percent("c3DSpecularAmt", &Values::specularity);
    writer.Percent("c3DDiffuseAmt", &Values::diffusion);
    writer.Number("c3DShininess", &Values::shininess);
    writer.Emu("c3DEdgeThickness", &Values::edgeThickness);
}

void WriteView(Output& output, const Values& effect, DifferenceWriter& writer) {
    writer.Scaled("c3DXRotationAngle", &Values::rotationX);
    writer.Scaled("c3DYRotationAngle", &Values::rotationY);
    writer.Position("c3DRenderMode", &Values::renderMode);
    if (effect.projection == dwS3PPerspective) WriteShapeProperty(output, "fc3DParallel", 0);
    writer.Scaled("c3DSkewAngle", &Values::skewAngle);
    writer.Number("c3DSkewAmount", &Values::skewAmount);
    writer.Number("c3DXViewpoint", &Values::viewpointX);
    writer.Number("c3DYViewpoint", &Values::viewpointY);
    writer.Number("c3DZViewpoint", &Values::viewpointZ);
    writer.Scaled("c3DOriginX", &Values::originX);
    writer.Scaled("c3DOriginY", &Values::originY);
}

void WriteLight(DifferenceWriter& writer) {
    writer.Number("c3DAmbientIntensity", &Values::ambientIntensity);
    writer.Number("c3DKeyX", &Values::keyX);
    writer.Number("c3DKeyY", &Values::keyY);
    writer.Number("c3DKeyZ", &Values::keyZ);
    writer.Number("c3DKeyIntensity", &Values::keyIntensity);
    writer.Flag("fc3DKeyHarsh", &Values::keyHarsh);
    writer.Number("c3DFillX", &Values::fillX);
    writer.Number("c3DFillY", &Values::fillY);
    writer.Number("c3DFillZ", &Values::fillZ);
    writer.Number("c3DFillIntensity", &Values::fillIntensity);
    writer.Flag("fc3DFillHarsh", &Values::fillHarsh);
}

}  // namespace

void EmitShapeThreeD(WritingContext& context, const Values& effect) {
    if (!effect.visible) return;
    Output& output = context.output;
    DifferenceWriter writer{output, effect};
    WriteShapeProperty(output, "fc3D", 1);
    writer.Emu("c3DExtrudeBackward", &Values::depth);
    writer.Emu("c3DExtrudeForward", &Values::depthForward);
    WriteSurface(output, effect, writer);
    WriteView(output, effect, writer);
    WriteLight(writer);
}

}  // namespace draftwick
