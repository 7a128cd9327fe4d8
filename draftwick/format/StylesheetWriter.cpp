#include <draftwick/format/BackgroundWriter.h>
#include <draftwick/format/BorderWriter.h>
#include <draftwick/format/FontFormatWriter.h>
#include <draftwick/format/Styles.h>
#include <draftwick/model/WritingContext.h>

namespace draftwick {

namespace {

/// 222 stands for a style without a base.
void WriteBase(Output& output, std::int32_t number) {
    output.WriteControlWord("sbasedon", number == Style::NoStyle ? 222 : number);
}

void EmitParagraphStyle(WritingContext& context, const ParagraphStyle& style) {
    Output& output = context.output;
    output.WriteGroupStart();
    output.WriteControlWord("s", style.StyleIndex());
    WriteBase(output, style.BasedOnIndex());
    if (style.NextStyleIndex() != Style::NoStyle) output.WriteControlWord("snext", style.NextStyleIndex());
    EmitParagraphBorders(context, style.StoredBorders());
    EmitBackground(context, style.StoredBackground().Stored());
    EmitParagraphFormat(context, style.StoredFormat().Stored());
    EmitFontFormat(context, style.StoredFontFormat().Stored(), false);
    output.WriteText(style.Name() + ";");
    output.WriteGroupEnd();
}

void EmitTextStyle(WritingContext& context, const TextStyle& style) {
    Output& output = context.output;
    output.WriteDestinationStart();
    output.WriteControlWord("cs", TextStyleNumber(context, style.StyleIndex()));
    WriteBase(output, style.BasedOnIndex() == Style::NoStyle
                          ? Style::NoStyle
                          : TextStyleNumber(context, style.BasedOnIndex()));
    EmitTextBorder(context, style.StoredBorder().Stored());
    EmitFontFormat(context, style.StoredFontFormat().Stored(), false);
    EmitCharacterBackground(context, style.StoredBackground().Stored());
    output.WriteText(style.Name() + ";");
    output.WriteGroupEnd();
}

}  // namespace

std::int32_t TextStyleNumber(const WritingContext& context, std::int32_t index) {
    return context.paragraphStyles->Count() + index;
}

void EmitStylesheet(WritingContext& context, const ParagraphStyles& paragraphStyles,
                    const TextStyles& textStyles) {
    if (paragraphStyles.Count() == 0 && textStyles.Count() == 0) return;
    context.output.WriteGroupStart();
    context.output.WriteControlWord("stylesheet");
    for (const auto& style : paragraphStyles) EmitParagraphStyle(context, *style);
    for (const auto& style : textStyles) EmitTextStyle(context, *style);
    context.output.WriteGroupEnd();
}

}  // namespace draftwick
