#include <draftwick/drawing/ShapeProperty.h>
#include <draftwick/drawing/ShapeWriter.h>
#include <draftwick/model/WritingContext.h>

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

void WriteEmu(Output& output, std::string_view name, Length length) {
    WriteShapeProperty(output, name, TwipsToEmu(length.Twips()));
}

void EmitPosition(Output& output, const Shape::Values& shape) {
    output.WriteControlWord("shpleft", shape.left.Twips());
    output.WriteControlWord("shptop", shape.top.Twips());
    output.WriteControlWord("shpbottom", shape.top.Twips() + shape.height.Twips());
    output.WriteControlWord("shpright", shape.left.Twips() + shape.width.Twips());
    if (shape.behindText) output.WriteControlWord("shpfblwtxt", 1);
    output.WriteWord(ReferenceXWords, shape.referenceX);
    output.WriteWord(ReferenceYWords, shape.referenceY);
    output.WriteControlWord("shpwr", shape.wrap);
    output.WriteControlWord("shpwrk", shape.wrapSides - 1);
    if (shape.lockAnchor) output.WriteControlWord("shplockanchor");
}

void EmitGeometry(Output& output, const Shape::Values& shape) {
    if (shape.rotation > 0) WriteShapeProperty(output, "Rotation", shape.rotation * PartsOfDegree);
    WriteEmu(output, "dxWrapDistLeft", shape.wrapLeft);
    WriteEmu(output, "dxWrapDistRight", shape.wrapRight);
    WriteEmu(output, "dxWrapDistTop", shape.wrapTop);
    WriteEmu(output, "dxWrapDistBottom", shape.wrapBottom);
    if (shape.behindText) WriteShapeProperty(output, "fBehindDocument", 1);
    for (std::size_t i = 0; i < AdjustNames.size(); ++i) {
        if (shape.adjustValues[i] != 0) WriteShapeProperty(output, AdjustNames[i], shape.adjustValues[i]);
    }
}

/// {\sp{\sn pib}{\sv {\pict\jpegblip FFD8...}}}
void EmitPictureProperty(WritingContext& context, std::string_view name, OpenPicture* picture) {
    if (picture == nullptr) return;
    Output& output = context.output;
    WriteShapePropertyStart(output, name);
    output.WriteText("");
    output.WriteGroupStart();
    output.WriteControlWord("pict");
    EmitPicture(context, *picture);
    output.WriteGroupEnd();
    WriteShapePropertyEnd(output);
}

void EmitTextFormat(Output& output, const Shape& shape) {
    const ShapeTextFormat::Values& format = shape.StoredTextFormat();
    WriteShapeProperty(output, "lTxid", shape.Index());
    WriteEmu(output, "dxTextLeft", format.spacingLeft);
    WriteEmu(output, "dxTextRight", format.spacingRight);
    WriteEmu(output, "dxTextTop", format.spacingTop);
    WriteEmu(output, "dxTextBottom", format.spacingBottom);
    WriteShapeProperty(output, "txflTextFlow", WordList{FlowValues}[format.flow]);
    if (shape.NextIndex() != 0) WriteShapeProperty(output, "hspNext", shape.NextIndex());
}

/// An in-line picture is scaled to the numbers that its size has in the document's unit, taken as twips.
std::optional<OpenPicture::Scale> ScaleOf(const Shape& shape, const OpenPicture& picture) {
    return picture.ScaleTo(RoundHalfEven(shape.Width()), RoundHalfEven(shape.Height()));
}

}  // namespace

ShapePictures OpenPictures(WritingContext& context, const Shape& shape) {
    const ShapeFill::Values& fill = shape.StoredFill();
    const ShapeLine::Values& line = shape.StoredLine();
    const auto open = [&](const std::string& name) {
        return std::make_unique<OpenPicture>(context.platform, name);
    };
    ShapePictures pictures;
    if (shape.IsPictureFrame()) {
        pictures.fill = open(fill.picture);
        if (shape.IsInlinePicture()) ScaleOf(shape, *pictures.fill);
        return pictures;
    }
    const bool fillsWithPicture = fill.style >= dwSFSPattern && fill.style <= dwSFSPicStretch;
    if (fillsWithPicture && !fill.picture.empty()) pictures.fill = open(fill.picture);
    if (line.texture != dwSLTNone && !line.picture.empty()) pictures.line = open(line.picture);
    return pictures;
}

void EmitShapeStart(WritingContext& context, const Shape& shape, ShapePictures& pictures) {
    Output& output = context.output;
    LayoutState& layout = context.layout;
    const Shape::Values& values = shape.Stored();
    layout.InlinePicture = shape.IsInlinePicture();
    output.WriteGroupStart();
    output.WriteControlWord(layout.InlinePicture ? "pict" : "shp");
    output.WriteDestinationStart();
    output.WriteControlWord(layout.InlinePicture ? "picprop" : "shpinst");
    // The second brace is one more than the format has; it is part of what we promise.
    if (!layout.InlinePicture) output.WriteGroupStart();
    output.WriteControlWord("shplid", shape.Index());
    WriteShapeProperty(output, "ShapeType", values.kind);
    if (values.flipH) WriteShapeProperty(output, "FFlipH", 1);
    if (values.flipV) WriteShapeProperty(output, "FFlipV", 1);
    if (!layout.InlinePicture) {
        EmitPosition(output, values);
        EmitGeometry(output, values);
        EmitShapeFill(context, shape.StoredFill());
        EmitShapeLine(context, shape.StoredLine());
        EmitShapeShadow(context, shape.StoredShadow());
        EmitShapeThreeD(context, shape.StoredThreeD());
        EmitShapeWordArt(context, shape.StoredWordArt());
        EmitPictureProperty(context, shape.IsPictureFrame() ? "pib" : "fillBlip", pictures.fill.get());
        EmitPictureProperty(context, "lineFillBlip", pictures.line.get());
        output.WriteGroupEnd();
        EmitTextFormat(output, shape);
    }
    layout.ShapeTextPending = true;
    layout.SuppressNextParagraphMark = true;
    layout.TableEndsSection = false;
    output.WriteGroupEnd();
}

void EmitShapeEnd(WritingContext& context, const Shape& shape, OpenPicture* inlinePicture) {
    Output& output = context.output;
    std::optional<OpenPicture::Scale> scale;
    if (inlinePicture != nullptr) scale = ScaleOf(shape, *inlinePicture);
    if (!context.layout.ShapeTextPending) {
        output.WriteGroupEnd();
        if (context.layout.TableEndsSection) output.WriteControlWord("par");
    }
    output.WriteGroupEnd();
    // Readers look for the data within the group; that it stands behind it is part of the format we promise.
    if (inlinePicture != nullptr) EmitPicture(context, *inlinePicture, scale);
}

}  // namespace draftwick
