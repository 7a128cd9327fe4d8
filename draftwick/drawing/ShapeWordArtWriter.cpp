#include <draftwick/drawing/ShapeProperty.h>
#include <draftwick/drawing/ShapeWordArt.h>
#include <draftwick/format/Fonts.h>
#include <draftwick/model/WritingContext.h>

namespace draftwick {

void EmitShapeWordArt(WritingContext& context, const ShapeWordArt::Values& wordArt) {
    if (wordArt.text.empty()) return;
    Output& output = context.output;
    const auto flag = [&](std::string_view name, bool on) {
        if (on) WriteShapeProperty(output, name, 1);
    };
    flag("fGText", true);
    WriteShapeProperty(output, "gtextUNICODE", wordArt.text);
    if (wordArt.font != WritingContext::NoFont) {
        WriteShapeProperty(output, "gtextFont", context.fonts->At(wordArt.font).Name());
    }
    if (wordArt.size != 36) WriteShapeProperty(output, "gtextSize", wordArt.size * 65536);
    if (wordArt.align != dwWAACenter) WriteShapeProperty(output, "gtextAlign", wordArt.align - 1);
    if (wordArt.spacing != 100) WriteShapeProperty(output, "gtextSpacing", wordArt.spacing / 100 * 65536);
    flag("gtextFReverseRows", wordArt.reverseRows);
    flag("gtextFVertical", wordArt.vertical);
    flag("gtextFKern", wordArt.kern);
    flag("gtextFTight", wordArt.tight);
    flag("gtextFStretch", wordArt.stretch);
    flag("gtextFShrinkFit", wordArt.shrinkFit);
    flag("gtextFBestFit", wordArt.bestFit);
    flag("gtextFNormalize", wordArt.normalize);
    flag("gtextFBold", wordArt.bold);
    flag("gtextFItalic", wordArt.italic);
    flag("gtextFUnderline", wordArt.underline);
    flag("gtextFShadow", wordArt.shadow);
    flag("gtextFSmallcaps", wordArt.smallCaps);
    flag("gtextFStrikethrough", wordArt.strikethrough);
}

}  // namespace draftwick
