#include <draftwick/drawing/internal/Writers.h>

#include <array>

namespace draftwick {

namespace {

constexpr std::string_view ReferenceXWords[] = {"shpbxpage", "shpbxcolumn", "shpbxmargin"};
constexpr std::string_view ReferenceYWords[] = {"shpbypage", "shpbypara", "shpbymargin"};
constexpr std::array<std::string_view, 10> AdjustNames{
    "adjustValue",  "adjust2Value", "adjust3Value", "adjust4Value", "adjust5Value",
    "adjust6Value", "adjust7Value", "adjust8Value", "adjust9Value", "adjust10Value"};
// Both vertical directions are one number.
constexpr std::string_view FlowValues[] = {"0", "2", "2"};

/// A turn of one degree. The format has 65536 parts; this number is part of the format we promise.
constexpr double PartsOfDegree = 63356;

void WriteEmu(RtfWriter& writer, std::string_view name, Length length) {
    WriteShapeProperty(writer, name, TwipsToEmu(length.Twips()));
}

void WritePosition(RtfWriter& writer, const Shape::Values& shape) {
    writer.Word("shpleft", shape.left.Twips());
    writer.Word("shptop", shape.top.Twips());
    writer.Word("shpbottom", shape.top.Twips() + shape.height.Twips());
    writer.Word("shpright", shape.left.Twips() + shape.width.Twips());
    if (shape.behindText) writer.Word("shpfblwtxt", 1);
    writer.Word(ReferenceXWords, shape.referenceX);
    writer.Word(ReferenceYWords, shape.referenceY);
    writer.Word("shpwr", shape.wrap);
    writer.Word("shpwrk", shape.wrapSides - 1);
    if (shape.lockAnchor) writer.Word("shplockanchor");
}

void WriteGeometry(RtfWriter& writer, const Shape::Values& shape) {
    if (shape.rotation > 0) WriteShapeProperty(writer, "Rotation", shape.rotation * PartsOfDegree);
    WriteEmu(writer, "dxWrapDistLeft", shape.wrapLeft);
    WriteEmu(writer, "dxWrapDistRight", shape.wrapRight);
    WriteEmu(writer, "dxWrapDistTop", shape.wrapTop);
    WriteEmu(writer, "dxWrapDistBottom", shape.wrapBottom);
    if (shape.behindText) WriteShapeProperty(writer, "fBehindDocument", 1);
    for (std::size_t i = 0; i < AdjustNames.size(); ++i) {
        if (shape.adjustValues[i] != 0) WriteShapeProperty(writer, AdjustNames[i], shape.adjustValues[i]);
    }
}

void WriteTextFormat(RtfWriter& writer, const ShapeSettings& settings) {
    const ShapeTextFormat::Values& format = settings.textFormat;
    WriteShapeProperty(writer, "lTxid", settings.index);
    WriteEmu(writer, "dxTextLeft", format.spacingLeft);
    WriteEmu(writer, "dxTextRight", format.spacingRight);
    WriteEmu(writer, "dxTextTop", format.spacingTop);
    WriteEmu(writer, "dxTextBottom", format.spacingBottom);
    WriteShapeProperty(writer, "txflTextFlow", WordList{FlowValues}[format.flow]);
    if (settings.shape.nextIndex != 0) WriteShapeProperty(writer, "hspNext", settings.shape.nextIndex);
}

/// What every shape says about itself.
void WriteIdentity(RtfWriter& writer, const ShapeSettings& settings) {
    writer.Word("shplid", settings.index);
    WriteShapeProperty(writer, "ShapeType", settings.shape.kind);
    if (settings.shape.flipH) WriteShapeProperty(writer, "FFlipH", 1);
    if (settings.shape.flipV) WriteShapeProperty(writer, "FFlipV", 1);
}

void WriteInstance(RtfWriter& writer, const ShapeSettings& settings, const ShapePictures& pictures) {
    WriteIdentity(writer, settings);
    WritePosition(writer, settings.shape);
    WriteGeometry(writer, settings.shape);
    EmitShapeFill(writer, settings.fill);
    EmitShapeLine(writer, settings.line);
    EmitShapeShadow(writer, settings.shadow);
    EmitShapeThreeD(writer, settings.threeD);
    EmitShapeWordArt(writer, settings.wordArt);
    if (pictures.fill != nullptr)
        WriteShapeProperty(writer, settings.IsPictureFrame() ? "pib" : "fillBlip", *pictures.fill);
    if (pictures.line != nullptr) WriteShapeProperty(writer, "lineFillBlip", *pictures.line);
}

/// An in-line picture is scaled to the numbers that its size has in the document's unit, taken as twips.
std::optional<OpenPicture::Scale> ScaleOf(const ShapeSettings& settings, const OpenPicture& picture) {
    return picture.ScaleTo(RoundHalfEven(settings.width), RoundHalfEven(settings.height));
}

}  // namespace

ShapePictures OpenPictures(const platform::Platform& platform, const ShapeSettings& settings) {
    const ShapeFill::Values& fill = settings.fill;
    const ShapeLine::Values& line = settings.line;
    const auto open = [&](const std::string& name) { return std::make_unique<OpenPicture>(platform, name); };
    ShapePictures pictures;
    if (settings.IsPictureFrame()) {
        pictures.fill = open(fill.picture);
        if (settings.IsInlinePicture()) ScaleOf(settings, *pictures.fill);
        return pictures;
    }
    const bool fillsWithPicture = fill.style >= dwSFSPattern && fill.style <= dwSFSPicStretch;
    if (fillsWithPicture && !fill.picture.empty()) pictures.fill = open(fill.picture);
    if (line.texture != dwSLTNone && !line.picture.empty()) pictures.line = open(line.picture);
    return pictures;
}

void EmitShapeStart(RtfWriter& writer, const ShapeSettings& settings, const ShapePictures& pictures) {
    LayoutState& layout = writer.layout;
    layout.InlinePicture = settings.IsInlinePicture();
    if (layout.InlinePicture) {
        writer.OpenGroup("pict");
        writer.Destination("picprop", [&] { WriteIdentity(writer, settings); });
    } else {
        writer.OpenGroup("shp");
        writer.Destination("shpinst", [&] {
            // This brace is one more than the format has; it is part of what we promise.
            writer.Group([&] { WriteInstance(writer, settings, pictures); });
            WriteTextFormat(writer, settings);
        });
    }
    layout.ShapeTextPending = true;
    layout.SuppressNextParagraphMark = true;
    layout.TableEndsSection = false;
}

void EmitShapeTextStart(RtfWriter& writer) {
    if (!writer.layout.ShapeTextPending) return;
    writer.OpenGroup("shptxt");
    writer.layout.ShapeTextPending = false;
}

void EmitShapeEnd(RtfWriter& writer, const ShapeSettings& settings, const OpenPicture* inlinePicture) {
    std::optional<OpenPicture::Scale> scale;
    if (inlinePicture != nullptr) scale = ScaleOf(settings, *inlinePicture);
    if (!writer.layout.ShapeTextPending) {
        writer.CloseGroup();
        if (writer.layout.TableEndsSection) writer.Word("par");
    }
    writer.CloseGroup();
    // Readers look for the data within the group; that it stands behind it is part of the format we promise.
    if (inlinePicture != nullptr) EmitPicture(writer, *inlinePicture, scale);
}

}  // namespace draftwick
