#include <draftwick/drawing/internal/ShapeDifferences.h>
#include <draftwick/format/Fonts.h>
#include <draftwick/model/internal/Session.h>

namespace draftwick {

void EmitShapeWordArt(RtfWriter& writer, const ShapeWordArt::Values& wordArt) {
    using V = ShapeWordArt::Values;
    if (wordArt.text.empty()) return;
    const ShapeDifferences changed(writer, wordArt);
    WriteShapeProperty(writer, writer.Of({"fGText", "fGtext"}), 1);
    WriteShapeProperty(writer, "gtextUNICODE", wordArt.text);
    if (wordArt.font) WriteShapeProperty(writer, "gtextFont", wordArt.font.In(*writer.names->fonts).Name());
    changed.Real("gtextSize", &V::size);
    changed.Position("gtextAlign", &V::align);
    changed.Real("gtextSpacing", &V::spacing);
    changed.Flag("gtextFReverseRows", &V::reverseRows);
    changed.Flag("gtextFVertical", &V::vertical);
    changed.Flag("gtextFKern", &V::kern);
    changed.Flag("gtextFTight", &V::tight);
    changed.Flag("gtextFStretch", &V::stretch);
    changed.Flag("gtextFShrinkFit", &V::shrinkFit);
    changed.Flag("gtextFBestFit", &V::bestFit);
    changed.Flag("gtextFNormalize", &V::normalize);
    changed.Flag("gtextFBold", &V::bold);
    changed.Flag("gtextFItalic", &V::italic);
    changed.Flag("gtextFUnderline", &V::underline);
    changed.Flag("gtextFShadow", &V::shadow);
    changed.Flag("gtextFSmallcaps", &V::smallCaps);
    changed.Flag("gtextFStrikethrough", &V::strikethrough);
}

}  // namespace draftwick
