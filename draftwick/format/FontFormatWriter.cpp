#include <draftwick/format/FontFormatWriter.h>
#include <draftwick/model/WritingContext.h>

namespace draftwick {

namespace {

constexpr std::string_view UnderlineWords[] = {"ulnone", "ul",      "uld",      "uldb",  "ulw",
                                               "ulth",   "uldashd", "uldashdd", "ulwave"};
// Not in the order of the values: the format numbers the effects differently.
constexpr std::string_view AnimationWords[] = {"animtext0", "animtext2", "animtext1", "animtext4",
                                               "animtext5", "animtext6", "animtext3"};

std::int32_t HalfPoints(double points) { return RoundDown(points * 2); }

}  // namespace

void EmitFontFormat(WritingContext& context, const FontFormat::Values& format, bool withPlain) {
    Output& output = context.output;
    if (withPlain) output.WriteControlWord("plain");
    if (format.bold) output.WriteControlWord("b");
    if (format.allCaps) output.WriteControlWord("caps");
    if (format.subscript) {
        output.WriteControlWord("sub");
        output.WriteControlWord("dn", HalfPoints(format.subscriptPosition));
    }
    if (format.font != WritingContext::NoFont) output.WriteControlWord("f", format.font);
    output.WriteControlWord("fs", HalfPoints(format.size));
    if (format.italic) output.WriteControlWord("i");
    if (format.outline) output.WriteControlWord("outl");
    if (format.smallCaps) output.WriteControlWord("scaps");
    if (format.shadow) output.WriteControlWord("shad");
    if (format.strikethrough) output.WriteControlWord("strike");
    if (format.underline != dwUnderlineNone) output.WriteWord(UnderlineWords, format.underline);
    if (format.superscript) {
        output.WriteControlWord("super");
        output.WriteControlWord("up", HalfPoints(format.superscriptPosition));
    }
    if (format.hidden) output.WriteControlWord("v");
    output.WriteControlWord("cf", context.colors.GetColorIndex(format.color));
    if (format.animation != dwTxAnimNone) output.WriteWord(AnimationWords, format.animation);
    if (format.emboss) output.WriteControlWord("embo");
    if (format.engrave) output.WriteControlWord("impr");
    if (format.strikethroughDouble) output.WriteControlWord("striked", 1);
}

void EmitFontFormatChanges(WritingContext& context, const FontFormat::Values& format,
                           const FontFormat::Values& reference) {
    Output& output = context.output;
    const auto flag = [&](std::string_view word, bool FontFormat::Values::*field) {
        const bool differs = format.*field != reference.*field;
        if (differs) output.WriteFlag(word, format.*field);
        return differs && format.*field;
    };
    using V = FontFormat::Values;
    flag("b", &V::bold);
    flag("caps", &V::allCaps);
    if (flag("sub", &V::subscript)) output.WriteControlWord("dn", HalfPoints(format.subscriptPosition));
    if (format.font != reference.font && format.font != WritingContext::NoFont) {
        output.WriteControlWord("f", format.font);
    }
    if (format.size != reference.size) output.WriteControlWord("fs", HalfPoints(format.size));
    flag("i", &V::italic);
    flag("outl", &V::outline);
    flag("scaps", &V::smallCaps);
    flag("shad", &V::shadow);
    flag("strike", &V::strikethrough);
    if (format.underline != reference.underline) output.WriteWord(UnderlineWords, format.underline);
    if (flag("super", &V::superscript)) output.WriteControlWord("up", HalfPoints(format.superscriptPosition));
    flag("v", &V::hidden);
    if (format.color != reference.color) {
        output.WriteControlWord("cf", context.colors.GetColorIndex(format.color));
    }
    if (format.animation != reference.animation) output.WriteWord(AnimationWords, format.animation);
    // Here engraving comes first; in the whole format embossing does.
    flag("impr", &V::engrave);
    flag("embo", &V::emboss);
    flag("striked1", &V::strikethroughDouble);  // "\striked11" and "\striked10" are the spellings we promise
}

FontFormat::Values DefaultFontFormat(const WritingContext& context) {
    FontFormat::Values values;
    values.font = context.defaultFont;
    return values;
}

}  // namespace draftwick
