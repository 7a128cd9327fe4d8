#include <draftwick/format/internal/Writers.h>
#include <draftwick/model/internal/Access.h>
#include <draftwick/model/internal/Session.h>

namespace draftwick {

namespace {

/// With 222, which is also the number of a style in a document that has so many, a style without a base. It is the
/// default.
constexpr Spelled NoBase{"sbasedon", ""};

/// {\s0 Normal;}, or another name if the host has a style of that one. LibreOffice lets no text stand beside frames whose
/// paragraphs have a style: where there are frames, readers are left their own Normal.
void EmitNormalStyle(RtfWriter& writer, const ParagraphStyles& paragraphStyles,
                     const TextStyles& textStyles) {
    std::string name = "Normal";
    while (paragraphStyles.Contains(name) || textStyles.Contains(name)) name += " 0";
    writer.Group([&] {
        writer.Word("s", 0);
        writer.Entry(name);
    });
}

void EmitParagraphStyle(RtfWriter& writer, const ParagraphStyle& style, const DocumentSettings& settings) {
    const auto& values = Stored(style);
    const auto& parts = StoredParts(style);
    const bool overBase = writer.Standard() && values.basedOn;
    const auto* base = overBase ? &StoredParts(values.basedOn.In(*writer.names->paragraphStyles)) : nullptr;
    writer.Group([&] {
        writer.Word("s", ParagraphStyleNumber(writer, style.StyleIndex()));
        if (values.basedOn) {
            writer.Word("sbasedon", ParagraphStyleNumber(writer, values.basedOn.Position()));
        } else {
            writer.Word(NoBase, 222);
        }
        if (values.nextStyle) writer.Word("snext", ParagraphStyleNumber(writer, values.nextStyle.Position()));
        EmitParagraphBorders(writer, parts.borders, base ? &base->borders : nullptr);
        EmitBackground(writer, Stored(parts.background), base ? &Stored(base->background) : nullptr);
        EmitParagraphFormat(writer, Stored(parts.format), settings, base ? &Stored(base->format) : nullptr);
        if (writer.Standard()) EmitTabStops(writer, parts.tabStops);
        EmitFontFormat(writer, Stored(parts.fontFormat), false, base ? &Stored(base->fontFormat) : nullptr);
        writer.Entry(style.Name());
    });
}

void EmitTextStyle(RtfWriter& writer, const TextStyle& style) {
    const auto& values = Stored(style);
    const auto& parts = StoredParts(style);
    const bool overBase = writer.Standard() && values.basedOn;
    const auto* base = overBase ? &StoredParts(values.basedOn.In(*writer.names->textStyles)) : nullptr;
    writer.Destination([&] {
        writer.Word("cs", TextStyleNumber(writer, style.StyleIndex()));
        if (values.basedOn) {
            writer.Word("sbasedon", TextStyleNumber(writer, values.basedOn.Position()));
        } else {
            writer.Word(NoBase, 222);
        }
        EmitTextBorder(writer, Stored(parts.border), base ? &Stored(base->border) : nullptr);
        EmitFontFormat(writer, Stored(parts.fontFormat), false, base ? &Stored(base->fontFormat) : nullptr);
        EmitCharacterBackground(writer, Stored(parts.background), base ? &Stored(base->background) : nullptr);
        writer.Entry(style.Name());
    });
}

}  // namespace

std::int32_t ParagraphStyleNumber(const RtfWriter& writer, std::int32_t position) {
    return position + (writer.Standard() ? 1 : 0);
}

std::int32_t TextStyleNumber(const RtfWriter& writer, std::int32_t index) {
    return ParagraphStyleNumber(writer, writer.names->paragraphStyles->Count() + index);
}

void EmitStylesheet(RtfWriter& writer, const ParagraphStyles& paragraphStyles, const TextStyles& textStyles,
                    const DocumentSettings& settings) {
    const bool hasNormal = writer.Standard() && !writer.hasFrame;
    if (!hasNormal && paragraphStyles.Count() == 0 && textStyles.Count() == 0) return;
    writer.Group("stylesheet", [&] {
        if (hasNormal) EmitNormalStyle(writer, paragraphStyles, textStyles);
        for (const auto& style : paragraphStyles) EmitParagraphStyle(writer, *style, settings);
        for (const auto& style : textStyles) EmitTextStyle(writer, *style);
    });
}

}  // namespace draftwick
