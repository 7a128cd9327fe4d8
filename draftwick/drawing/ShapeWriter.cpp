#include <draftwick/drawing/internal/Writers.h>
#include <draftwick/model/internal/Session.h>

#include <array>

namespace draftwick {

namespace {

constexpr Words<dwShapeReferenceX> ReferenceXWords{"shpbxpage", "shpbxcolumn", "shpbxmargin"};
constexpr Words<dwShapeReferenceY> ReferenceYWords{"shpbypage", "shpbypara", "shpbymargin"};
constexpr std::array<std::string_view, 10> AdjustNames{
    "adjustValue",  "adjust2Value", "adjust3Value", "adjust4Value", "adjust5Value",
    "adjust6Value", "adjust7Value", "adjust8Value", "adjust9Value", "adjust10Value"};
/// From top to bottom with upright letters is 3 in the format; classic knows one number for both vertical directions.
constexpr Words<dwShapeTextFlow> FlowValues{"0", "3", "2"}, ClassicFlowValues{"0", "2", "2"};

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
    // Sides mean something only where text stands on them: readers put text there when they are told of sides.
    const bool besides = shape.wrap == dwSWAround || shape.wrap == dwSWTightly || shape.wrap == dwSWThrough;
    if (besides || !writer.Standard()) writer.Word("shpwrk", shape.wrapSides - 1);
    if (shape.lockAnchor) writer.Word("shplockanchor");
}

/// In 65536ths of a degree, of either sign; classic has another number, and turns to the right alone.
void WriteRotation(RtfWriter& writer, double degrees) {
    constexpr double ClassicParts = 63356;
    if (writer.Standard()) {
        if (degrees != 0) WriteShapeProperty(writer, "rotation", ToFixedPoint(degrees));
    } else if (degrees > 0) {
        WriteShapeProperty(writer, "Rotation", degrees * ClassicParts);
    }
}

void WriteGeometry(RtfWriter& writer, const Shape::Values& shape) {
    WriteRotation(writer, shape.rotation);
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
    WriteShapeProperty(writer, "txflTextFlow",
                       (writer.Standard() ? FlowValues : ClassicFlowValues)[format.flow]);
    if (settings.shape.nextIndex != 0) WriteShapeProperty(writer, "hspNext", settings.shape.nextIndex);
}

void WriteKind(RtfWriter& writer, const Shape::Values& shape) {
    WriteShapeProperty(writer, writer.Of({"ShapeType", "shapeType"}), shape.kind);
    if (shape.flipH) WriteShapeProperty(writer, writer.Of({"FFlipH", "fFlipH"}), 1);
    if (shape.flipV) WriteShapeProperty(writer, writer.Of({"FFlipV", "fFlipV"}), 1);
}

/// The size that a picture has to a reader that does not scale it: its own, or the shape's when it has none.
PictureSize SizeOf(const ShapeSettings& settings, const OpenPicture& picture) {
    return picture.SizeOr({settings.shape.width.Twips(), settings.shape.height.Twips()});
}

void WriteInstance(RtfWriter& writer, const ShapeSettings& settings, const ShapePictures& pictures) {
    writer.Word("shplid", settings.index);
    // The format has all words before the first property.
    if (!writer.Standard()) WriteKind(writer, settings.shape);
    WritePosition(writer, settings.shape);
    if (writer.Standard()) WriteKind(writer, settings.shape);
    WriteGeometry(writer, settings.shape);
    EmitShapeFill(writer, settings.fill);
    EmitShapeLine(writer, settings.line);
    EmitShapeShadow(writer, settings.shadow);
    EmitShapeThreeD(writer, settings.threeD);
    EmitShapeWordArt(writer, settings.wordArt);
    const auto show = [&](std::string_view name, const OpenPicture& picture) {
        WriteShapeProperty(writer, name, picture, SizeOf(settings, picture));
    };
    if (pictures.fill != nullptr) show(settings.IsPictureFrame() ? "pib" : "fillBlip", *pictures.fill);
    if (pictures.line != nullptr) show("lineFillBlip", *pictures.line);
}

/// A picture in the text, of the size that was asked for; of its own where that is none.
void WriteInlinePicture(RtfWriter& writer, const ShapeSettings& settings, const OpenPicture& picture) {
    const PictureSize asked{settings.shape.width.Twips(), settings.shape.height.Twips()};
    EmitPicture(writer, picture, asked.width > 0 && asked.height > 0 ? asked : SizeOf(settings, picture));
}

/// Classic scales an in-line picture to the numbers that its size has in the document's unit, taken as twips.
std::optional<OpenPicture::Scale> ScaleOf(const ShapeSettings& settings, const OpenPicture& picture) {
    return picture.ScaleTo(RoundHalfEven(settings.width), RoundHalfEven(settings.height));
}

}  // namespace

ShapePictures OpenPictures(const Session& session, const ShapeSettings& settings) {
    const ShapeFill::Values& fill = settings.fill;
    const ShapeLine::Values& line = settings.line;
    const auto open = [&](const std::string& name) {
        return std::make_shared<const OpenPicture>(session, name);
    };
    ShapePictures pictures;
    if (settings.IsPictureFrame()) {
        pictures.fill = fill.pictureData != nullptr ? fill.pictureData : open(fill.picture);
        const bool classic = session.settings.spelling != dwSpellingStandard;
        if (classic && settings.IsInlinePicture()) ScaleOf(settings, *pictures.fill);
        return pictures;
    }
    if (fill.style >= dwSFSPattern && fill.style <= dwSFSPicStretch) {
        pictures.fill = fill.pictureData;
        if (pictures.fill == nullptr && !fill.picture.empty()) pictures.fill = open(fill.picture);
    }
    if (line.texture != dwSLTNone && !line.picture.empty()) pictures.line = open(line.picture);
    return pictures;
}

void EmitShapeStart(RtfWriter& writer, const ShapeSettings& settings, const ShapePictures& pictures) {
    LayoutState& layout = writer.layout;
    layout.InlinePicture = settings.IsInlinePicture();
    if (layout.InlinePicture) {
        writer.OpenGroup("pict");
        writer.Destination("picprop", [&] {
            writer.Word("shplid", settings.index);
            WriteKind(writer, settings.shape);
        });
        if (writer.Standard()) WriteInlinePicture(writer, settings, *pictures.fill);
    } else if (writer.Standard()) {
        writer.OpenGroup("shp");
        writer.OpenDestination("shpinst");  // the text is part of it
        WriteInstance(writer, settings, pictures);
        WriteTextFormat(writer, settings);
    } else {
        writer.OpenGroup("shp");
        writer.Destination("shpinst", [&] {
            // Classic has a brace more than the format.
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
    if (inlinePicture != nullptr && !writer.Standard()) scale = ScaleOf(settings, *inlinePicture);
    if (!writer.layout.ShapeTextPending) {
        const bool endsInRow = writer.layout.TableEndsSection;
        if (endsInRow && writer.Standard()) writer.Word("par");
        writer.CloseGroup();
        if (endsInRow && !writer.Standard()) writer.Word("par");
    }
    if (writer.Standard() && !settings.IsInlinePicture()) writer.CloseGroup();
    writer.CloseGroup();
    // Classic has the data behind its group, where readers take it for text.
    if (inlinePicture != nullptr && !writer.Standard()) EmitClassicPicture(writer, *inlinePicture, scale);
}

}  // namespace draftwick
