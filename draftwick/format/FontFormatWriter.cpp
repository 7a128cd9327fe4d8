#include <draftwick/format/internal/Writers.h>

namespace draftwick {

namespace {

using V = FontFormat::Values;

constexpr Words<dwUnderlineStyle> UnderlineWords{"ulnone", "ul",      "uld",      "uldb",  "ulw",
                                                 "ulth",   "uldashd", "uldashdd", "ulwave"};
// Not in the order of the values: the format numbers the effects differently.
constexpr Words<dwTextAnimation> AnimationWords{"animtext0", "animtext2", "animtext1", "animtext4",
                                                "animtext5", "animtext6", "animtext3"};
/// Classic spells the toggle with a number of its own in front: "\striked11" and "\striked10".
constexpr Spelled DoubleStrike{"striked1", "striked"};

/// How text is set off the line, in one word: superscript holds where a host set both.
std::string_view ScriptWord(const V& format) {
    return format.superscript ? "super" : format.subscript ? "sub" : "nosupersub";
}

void WriteSubscript(RtfWriter& writer, const V& format) {
    writer.Word("dn", PointsToHalfPoints(format.subscriptPosition));
}

void WriteSuperscript(RtfWriter& writer, const V& format) {
    writer.Word("up", PointsToHalfPoints(format.superscriptPosition));
}

}  // namespace

void EmitFontFormat(RtfWriter& writer, const V& format, bool withPlain, const V* style) {
    const auto flag = [&](std::string_view word, bool V::*field) {
        if (format.*field) {
            writer.Word(word);
        } else if (style != nullptr && style->*field) {
            writer.Toggle(word, false);
        }
    };
    const auto effect = [&](const WordList& words, std::int32_t value, std::int32_t none,
                            std::int32_t styles) {
        if (value != none || value != styles) writer.Word(words, value);
    };
    const bool standard = writer.Standard();
    if (withPlain) writer.Word("plain");
    flag("b", &V::bold);
    flag("caps", &V::allCaps);
    if (standard) {
        const bool set = format.subscript || format.superscript;
        if (set || (style != nullptr && (style->subscript || style->superscript)))
            writer.Word(ScriptWord(format));
    } else if (format.subscript) {
        writer.Word("sub");
        WriteSubscript(writer, format);
    }
    if (format.font) writer.Word("f", format.font.Position());
    writer.Word("fs", format.size.Written());
    flag("i", &V::italic);
    flag("outl", &V::outline);
    flag("scaps", &V::smallCaps);
    flag("shad", &V::shadow);
    flag("strike", &V::strikethrough);
    effect(UnderlineWords, format.underline, dwUnderlineNone,
           style != nullptr ? std::int32_t{style->underline} : dwUnderlineNone);
    if (!standard && format.superscript) {
        writer.Word("super");
        WriteSuperscript(writer, format);
    }
    flag("v", &V::hidden);
    writer.Color("cf", format.color);
    effect(AnimationWords, format.animation, dwTxAnimNone,
           style != nullptr ? std::int32_t{style->animation} : dwTxAnimNone);
    flag("embo", &V::emboss);
    flag("impr", &V::engrave);
    if (standard) {
        flag("striked", &V::strikethroughDouble);
    } else if (format.strikethroughDouble) {
        writer.Word("striked", 1);
    }
}

void EmitFontFormatChanges(RtfWriter& writer, const V& format, const V* reference,
                           const DocumentSettings& document, const V* style) {
    static const V Default;
    const V& from = reference != nullptr ? *reference : Default;
    const auto differs = [&](auto field) {
        return format.*field != from.*field || (style != nullptr && format.*field != style->*field);
    };
    const auto flag = [&](const Spelled& word, bool V::*field) {
        const bool written = differs(field);
        if (written) writer.Toggle(word, format.*field);
        return written && format.*field;
    };
    const auto plain = [&](std::string_view word, bool V::*field) { return flag({word, word}, field); };
    const bool standard = writer.Standard();
    plain("b", &V::bold);
    plain("caps", &V::allCaps);
    if (standard) {
        if (differs(&V::subscript) || differs(&V::superscript)) writer.Word(ScriptWord(format));
    } else if (plain("sub", &V::subscript)) {
        WriteSubscript(writer, format);
    }
    const auto font = reference != nullptr ? reference->font : document.defaultFont;
    if (format.font && (format.font != font || (style != nullptr && format.font != style->font)))
        writer.Word("f", format.font.Position());
    if (differs(&V::size)) writer.Word("fs", format.size.Written());
    plain("i", &V::italic);
    plain("outl", &V::outline);
    plain("scaps", &V::smallCaps);
    plain("shad", &V::shadow);
    plain("strike", &V::strikethrough);
    if (differs(&V::underline)) writer.Word(UnderlineWords, format.underline);
    if (!standard && plain("super", &V::superscript)) WriteSuperscript(writer, format);
    plain("v", &V::hidden);
    if (differs(&V::color)) writer.Color("cf", format.color);
    if (differs(&V::animation)) writer.Word(AnimationWords, format.animation);
    // Here engraving comes first; in the whole format embossing does.
    plain("impr", &V::engrave);
    plain("embo", &V::emboss);
    flag(DoubleStrike, &V::strikethroughDouble);
}

void EmitScripts(RtfWriter& writer, const Scripts& scripts, const V& format) {
    if (scripts.eastAsian && format.font) {
        writer.Word("dbch");
        writer.Word("af", format.font.Position());
    }
    if (!scripts.rightToLeft && !scripts.complex) return;
    writer.Word("rtlch");
    if (format.font) writer.Word("af", format.font.Position());
    writer.Word("afs", format.size.Written());
    if (format.bold) writer.Word("ab");
    if (format.italic) writer.Word("ai");
    if (!scripts.rightToLeft) writer.Word("ltrch");
}

V DefaultFontFormat(const DocumentSettings& document) {
    V values;
    values.font = document.defaultFont;
    return values;
}

}  // namespace draftwick
