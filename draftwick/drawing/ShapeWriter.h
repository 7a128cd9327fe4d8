#pragma once

#include <draftwick/drawing/PictureWriter.h>
#include <draftwick/drawing/Shape.h>

#include <memory>

namespace draftwick {

/// The pictures of a shape, each empty unless it is written.
struct ShapePictures {
    std::unique_ptr<OpenPicture> fill;  ///< the fill's, or what a picture frame shows
    std::unique_ptr<OpenPicture> line;
};

/// All that can fail in the first half of a shape.
ShapePictures OpenPictures(WritingContext& context, const Shape& shape);

/// {\shp{\*\shpinst{\shplid1{\sp{\sn ShapeType}{\sv 1}}...}{\sp{\sn lTxid}{\sv 1}}...}: all settings. Of an in-line
/// picture {\pict{\*\picprop\shplid1{\sp{\sn ShapeType}{\sv 75}}}.
void EmitShapeStart(WritingContext& context, const Shape& shape, ShapePictures& pictures);

/// The closing braces; after them an in-line picture's data. Error 11 before the first byte, as in the first half.
void EmitShapeEnd(WritingContext& context, const Shape& shape, OpenPicture* inlinePicture);

}  // namespace draftwick
