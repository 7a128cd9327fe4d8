#include <draftwick/format/internal/Writers.h>
#include <draftwick/model/internal/Access.h>
#include <draftwick/model/internal/Session.h>

namespace draftwick {

namespace {

/// 222 stands for a style without a base.
constexpr std::int32_t NoBase = 222;

void EmitParagraphStyle(RtfWriter& writer, const ParagraphStyle& style, const DocumentSettings& settings) {
    const auto& values = Stored(style);
    writer.Group([&] {
        writer.Word("s", style.StyleIndex());
        writer.Word("sbasedon", values.basedOn ? values.basedOn.Position() : NoBase);
        if (values.nextStyle) writer.Word("snext", values.nextStyle.Position());
        EmitParagraphBorders(writer, StoredParts(style).borders);
        EmitBackground(writer, Stored(StoredParts(style).background));
        EmitParagraphFormat(writer, Stored(StoredParts(style).format), settings);
        EmitFontFormat(writer, Stored(StoredParts(style).fontFormat), false);
        writer.Raw(style.Name() + ";");
    });
}

void EmitTextStyle(RtfWriter& writer, const TextStyle& style) {
    const auto& values = Stored(style);
    writer.Destination([&] {
        writer.Word("cs", TextStyleNumber(writer, style.StyleIndex()));
        writer.Word("sbasedon", values.basedOn ? TextStyleNumber(writer, values.basedOn.Position()) : NoBase);
        EmitTextBorder(writer, Stored(StoredParts(style).border));
        EmitFontFormat(writer, Stored(StoredParts(style).fontFormat), false);
        EmitCharacterBackground(writer, Stored(StoredParts(style).background));
        writer.Raw(style.Name() + ";");
    });
}

}  // namespace

std::int32_t TextStyleNumber(const RtfWriter& writer, std::int32_t index) {
    return writer.names->paragraphStyles->Count() + index;
}

void EmitStylesheet(RtfWriter& writer, const ParagraphStyles& paragraphStyles, const TextStyles& textStyles,
                    const DocumentSettings& settings) {
    if (paragraphStyles.Count() == 0 && textStyles.Count() == 0) return;
    writer.Group("stylesheet", [&] {
        for (const auto& style : paragraphStyles) EmitParagraphStyle(writer, *style, settings);
        for (const auto& style : textStyles) EmitTextStyle(writer, *style);
    });
}

}  // namespace draftwick
