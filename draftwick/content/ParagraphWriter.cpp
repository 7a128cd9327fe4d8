#include <draftwick/content/internal/Writers.h>
#include <draftwick/model/internal/Access.h>
#include <draftwick/model/internal/Session.h>

#include <type_traits>

namespace draftwick {

namespace {

/// \plain\fs24\cf0\sb0\sa0\sl240\slmult1: most paragraphs have no format of their own, and all of these have the same
/// words. What these depend on can no longer change when the first one is written.
void EmitPlainFormat(RtfWriter& writer, const DocumentSettings& document) {
    writer.RepeatWords(writer.plainParagraphs, 0, [&] {
        EmitFontFormat(writer, DefaultFontFormat(document), true);
        EmitParagraphFormat(writer, DefaultParagraphFormat(document), document);
    });
}

}  // namespace

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
    if (paragraph.fontFormat == nullptr && paragraph.format == nullptr) {
        EmitPlainFormat(writer, document);
        writer.layout.AlignsLeft = true;
    } else {
        const auto format =
            paragraph.format != nullptr ? Stored(*paragraph.format) : DefaultParagraphFormat(document);
        EmitFontFormat(writer,
                       paragraph.fontFormat != nullptr ? Stored(*paragraph.fontFormat)
                                                       : DefaultFontFormat(document),
                       true, values(&Parts::fontFormat));
        EmitParagraphFormat(writer, format, document, values(&Parts::format));
        writer.layout.AlignsLeft = format.align == dwAlignLeft;
    }
    if (paragraph.tabStops != nullptr) EmitTabStops(writer, *paragraph.tabStops);
    writer.layout.direction = Direction::None;
}

}  // namespace draftwick
