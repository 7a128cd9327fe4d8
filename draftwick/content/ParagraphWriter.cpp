#include <draftwick/content/internal/Writers.h>
#include <draftwick/model/internal/Access.h>

namespace draftwick {

void EmitParagraphMark(RtfWriter& writer) {
    if (!writer.layout.SuppressNextParagraphMark) writer.Word("par");
    writer.layout.SuppressNextParagraphMark = false;
    writer.layout.TableEndsSection = false;
}

void EmitRowMark(RtfWriter& writer) {
    if (!writer.layout.SuppressNextParagraphMark) writer.Word("par");
    writer.layout.SuppressNextParagraphMark = true;
    writer.layout.TableEndsSection = true;
}

void EmitParagraphPlace(RtfWriter& writer, const Frame* frame) {
    writer.Word("pard");
    if (frame != nullptr) EmitFrame(writer, Stored(*frame));
}

void EmitParagraph(RtfWriter& writer, const ParagraphSettings& paragraph, const DocumentSettings& document) {
    if (paragraph.style) writer.Word("s", paragraph.style.Position());
    if (paragraph.borders != nullptr) EmitParagraphBorders(writer, *paragraph.borders);
    if (paragraph.background != nullptr) EmitBackground(writer, Stored(*paragraph.background));
    EmitFontFormat(
        writer, paragraph.fontFormat != nullptr ? Stored(*paragraph.fontFormat) : DefaultFontFormat(document),
        true);
    EmitParagraphFormat(writer, paragraph.format, document);
    if (paragraph.tabStops != nullptr) EmitTabStops(writer, *paragraph.tabStops);
}

}  // namespace draftwick
