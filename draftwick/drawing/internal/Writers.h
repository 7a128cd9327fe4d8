#pragma once

#include <draftwick/drawing/Shape.h>
#include <draftwick/drawing/internal/OpenPicture.h>
#include <draftwick/rtf/RtfWriter.h>

#include <memory>
#include <optional>

namespace draftwick {

/// {\sp{\sn name}{\sv value}}: one drawing property of a shape. The value is escaped; an empty one leaves the
/// delimiter of \sv.
void WriteShapeProperty(RtfWriter& writer, std::string_view name, std::string_view value);
void WriteShapeProperty(RtfWriter& writer, std::string_view name, std::int32_t value);
void WriteShapeProperty(RtfWriter& writer, std::string_view name, double value);
/// {\sp{\sn pib}{\sv {\pict\jpegblip\picw...FFD8...}}}
void WriteShapeProperty(RtfWriter& writer, std::string_view name, const OpenPicture& picture,
                        const PictureSize& size);

/// {\sp{\sn fFilled}{\sv 1}}{\sp{\sn fillType}{\sv 0}}...
void EmitShapeFill(RtfWriter& writer, const ShapeFill::Values& fill);
/// {\sp{\sn lineColor}{\sv 0}}...{\sp{\sn fLine}{\sv 1}}
void EmitShapeLine(RtfWriter& writer, const ShapeLine::Values& line);
/// {\sp{\sn fShadow}{\sv 1}}{\sp{\sn shadowType}{\sv 0}}...
void EmitShapeShadow(RtfWriter& writer, const ShapeShadow::Values& shadow);
/// {\sp{\sn fc3D}{\sv 1}}{\sp{\sn c3DExtrudeBackward}{\sv 914400}}...; nothing for a shape without depth.
void EmitShapeThreeD(RtfWriter& writer, const ShapeThreeD::Values& effect);
/// {\sp{\sn fGText}{\sv 1}}{\sp{\sn gtextUNICODE}{\sv Sale}}...; nothing without a text.
void EmitShapeWordArt(RtfWriter& writer, const ShapeWordArt::Values& wordArt);

/// \emfblip\picw2540\pich2540\picwgoal1440\pichgoal1440 0100...: what stands in a \pict group. Never fails. Classic
/// without a size.
void EmitPicture(RtfWriter& writer, const OpenPicture& picture, const PictureSize& size);
/// \emfblip\picscalex100\picscaley50 0100...
void EmitClassicPicture(RtfWriter& writer, const OpenPicture& picture,
                        const std::optional<OpenPicture::Scale>& scale = {});

/// A shape as it is about to be written.
struct detail::ShapeSettings {
    std::int32_t index;
    const Shape::Values& shape;
    const ShapeFill::Values& fill;
    const ShapeLine::Values& line;
    const ShapeShadow::Values& shadow;
    const ShapeTextFormat::Values& textFormat;
    const ShapeThreeD::Values& threeD;
    const ShapeWordArt::Values& wordArt;
    double width;  ///< in the document's unit
    double height;

    bool IsPictureFrame() const noexcept { return shape.kind == dwSKPictureFrame; }
    bool IsInlinePicture() const noexcept { return IsPictureFrame() && shape.inLine; }
};

/// The pictures of a shape, each empty unless it is written.
struct ShapePictures {
    std::shared_ptr<const OpenPicture> fill;  ///< the fill's, or what a picture frame shows
    std::shared_ptr<const OpenPicture> line;
};

/// All that can fail in the first half of a shape.
ShapePictures OpenPictures(const Session& session, const ShapeSettings& shape);

/// {\shp{\*\shpinst{\shplid1{\sp{\sn ShapeType}{\sv 1}}...}{\sp{\sn lTxid}{\sv 1}}...}: all settings. Of an in-line
/// picture {\pict{\*\picprop\shplid1{\sp{\sn ShapeType}{\sv 75}}}.
void EmitShapeStart(RtfWriter& writer, const ShapeSettings& shape, const ShapePictures& pictures);

/// {\shptxt, once: before the shape's first paragraph or row.
void EmitShapeTextStart(RtfWriter& writer);

/// The closing braces; in the classic spelling after them an in-line picture's data. Error 11 before the first byte, as in the first half.
void EmitShapeEnd(RtfWriter& writer, const ShapeSettings& shape, const OpenPicture* inlinePicture);

}  // namespace draftwick
