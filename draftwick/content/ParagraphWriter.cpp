#include <draftwick/content/internal/Writers.h>
#include <draftwick/model/internal/Access.h>
#include <draftwick/model/internal/Session.h>

#include <type_traits>

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
    if (paragraph.style) {
        writer.Word("s", ParagraphStyleNumber(writer, paragraph.style.Position()));
    } else {
        writer.Word(Spelled{"", "s"}, 0);
    }
    const bool overStyle = writer.Standard() && paragraph.style;
    const auto* style =
        overStyle ? &StoredParts(paragraph.style.In(*writer.names->paragraphStyles)) : nullptr;
    const auto values = [&](auto part) { return style != nullptr ? &Stored(style->*part) : nullptr; };
    using Parts = std::remove_cvref_t<decltype(*style)>;
    if (paragraph.borders != nullptr)
        EmitParagraphBorders(writer, *paragraph.borders, style != nullptr ? &style->borders : nullptr);
    if (paragraph.background != nullptr)
        EmitBackground(writer, Stored(*paragraph.background), values(&Parts::background));
    EmitFontFormat(
        writer, paragraph.fontFormat != nullptr ? Stored(*paragraph.fontFormat) : DefaultFontFormat(document),
        true, values(&Parts::fontFormat));
    EmitParagraphFormat(writer, paragraph.format, document, values(&Parts::format));
    if (paragraph.tabStops != nullptr) EmitTabStops(writer, *paragraph.tabStops);
    writer.layout.direction = Direction::None;
    writer.layout.AlignsLeft = paragraph.format.align == dwAlignLeft;
}

}  // namespace draftwick
