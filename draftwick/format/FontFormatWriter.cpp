#include <draftwick/format/internal/Writers.h>

namespace draftwick {

namespace {

constexpr std::string_view UnderlineWords[] = {"ulnone", "ul",      "uld",      "uldb",  "ulw",
                                               "ulth",   "uldashd", "uldashdd", "ulwave"};
// Not in the order of the values: the format numbers the effects differently.
constexpr std::string_view AnimationWords[] = {"animtext0", "animtext2", "animtext1", "animtext4",
                                               "animtext5", "animtext6", "animtext3"};

}  // namespace

void EmitFontFormat(RtfWriter& writer, const FontFormat::Values& format, bool withPlain) {
    if (withPlain) writer.Word("plain");
    if (format.bold) writer.Word("b");
    if (format.allCaps) writer.Word("caps");
    if (format.subscript) {
        writer.Word("sub");
        writer.Word("dn", PointsToHalfPoints(format.subscriptPosition));
    }
    if (format.font) writer.Word("f", format.font.Position());
    writer.Word("fs", format.size.Written());
    if (format.italic) writer.Word("i");
    if (format.outline) writer.Word("outl");
    if (format.smallCaps) writer.Word("scaps");
    if (format.shadow) writer.Word("shad");
    if (format.strikethrough) writer.Word("strike");
    if (format.underline != dwUnderlineNone) writer.Word(UnderlineWords, format.underline);
    if (format.superscript) {
        writer.Word("super");
        writer.Word("up", PointsToHalfPoints(format.superscriptPosition));
    }
    if (format.hidden) writer.Word("v");
    writer.Color("cf", format.color);
    if (format.animation != dwTxAnimNone) writer.Word(AnimationWords, format.animation);
    if (format.emboss) writer.Word("embo");
    if (format.engrave) writer.Word("impr");
    if (format.strikethroughDouble) writer.Word("striked", 1);
}

void EmitFontFormatChanges(RtfWriter& writer, const FontFormat::Values& format,
                           const FontFormat::Values& reference) {
    const auto flag = [&](std::string_view word, bool FontFormat::Values::*field) {
        const bool differs = format.*field != reference.*field;
        if (differs) writer.Flag(word, format.*field);
        return differs && format.*field;
    };
    using V = FontFormat::Values;
    flag("b", &V::bold);
    flag("caps", &V::allCaps);
    if (flag("sub", &V::subscript)) writer.Word("dn", PointsToHalfPoints(format.subscriptPosition));
    if (format.font != reference.font && format.font) writer.Word("f", format.font.Position());
    if (format.size != reference.size) writer.Word("fs", format.size.Written());
    flag("i", &V::italic);
    flag("outl", &V::outline);
    flag("scaps", &V::smallCaps);
    flag("shad", &V::shadow);
    flag("strike", &V::strikethrough);
    if (format.underline != reference.underline) writer.Word(UnderlineWords, format.underline);
    if (flag("super", &V::superscript)) writer.Word("up", PointsToHalfPoints(format.superscriptPosition));
    flag("v", &V::hidden);
    if (format.color != reference.color) writer.Color("cf", format.color);
    if (format.animation != reference.animation) writer.Word(AnimationWords, format.animation);
    // Here engraving comes first; in the whole format embossing does.
    flag("impr", &V::engrave);
    flag("embo", &V::emboss);
    flag("striked1", &V::strikethroughDouble);  // "\striked11" and "\striked10" are the spellings we promise
}

FontFormat::Values DefaultFontFormat(const DocumentSettings& document) {
    FontFormat::Values values;
    values.font = document.defaultFont;
    return values;
}

}  // namespace draftwick
