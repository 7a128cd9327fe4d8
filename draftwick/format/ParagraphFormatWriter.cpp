#include <draftwick/format/internal/Writers.h>

namespace draftwick {

namespace {

using V = ParagraphFormat::Values;

void WriteIndent(RtfWriter& writer, std::string_view word, Length V::*field, const V& format,
                 const V* style) {
    const std::int32_t twips = (format.*field).Twips();
    if (twips != 0 || (style != nullptr && (style->*field).Twips() != 0)) writer.Word(word, twips);
}

/// Readers hyphenate only paragraphs that say so.
void WriteHyphenation(RtfWriter& writer, const V& format, const DocumentSettings& settings) {
    if (format.suppressHyphen) {
        writer.Word("hyphpar", 0);
    } else if (settings.hyphenAuto) {
        writer.Word(Spelled{"", "hyphpar"});
    }
}

/// Readers keep lines together only in paragraphs that say so.
void WriteWidowControl(RtfWriter& writer, const V& format, const DocumentSettings& settings, const V* style) {
    const bool styles = style != nullptr && style->widowOrphanControl;
    if (format.widowOrphanControl ? writer.Standard() || !settings.widowOrphanControl
                                  : settings.widowOrphanControl || styles)
        writer.Word(format.widowOrphanControl ? "widctlpar" : "nowidctlpar");
}

void WriteLineSpacing(RtfWriter& writer, const ParagraphFormat::Values& format) {
    switch (format.lineSpacingStyle) {
    case dwSpacingMultiple:
        writer.Word("sl", format.lineSpacingMultiple.Written());
        writer.Word("slmult", 1);
        break;
    case dwSpacingAtLeast:
        writer.Word("sl", format.lineSpacingDistance.Written());
        writer.Word("slmult", 0);
        break;
    case dwSpacingExactly:
        writer.Word("sl", -format.lineSpacingDistance.Written());
        writer.Word(Spelled{"smult", "slmult"}, 0);
        break;
    }
}

void WriteList(RtfWriter& writer, const ParagraphFormat::Values& format) {
    const std::int32_t list = format.list.Position();
    writer.Word("ls", format.listFormat ? writer.lists.OverrideNumber(list, format.listFormat.Position())
                                        : ListNumbers::OverrideNumber(list));
    writer.Word("ilvl", format.listLevel - 1);
}

}  // namespace

void NoteLists(ListNumbers& lists, const ParagraphFormat::Values& format) {
    if (!format.list) return;
    lists.NoteLevel(format.list.Position(), format.listLevel);
    if (format.listFormat) lists.NotePairing(format.list.Position(), format.listFormat.Position());
}

void EmitParagraphFormat(RtfWriter& writer, const V& format, const DocumentSettings& settings,
                         const V* style) {
    static constexpr Words<dwParagraphAlign> AlignWords{"ql", "qr", "qc", "qj"};
    WriteHyphenation(writer, format, settings);
    if (format.keepIntact) writer.Word("keep");
    WriteWidowControl(writer, format, settings, style);
    if (format.keepWithNext) writer.Word("keepn");
    if (format.noLineNumbering) writer.Word("noline");
    if (format.pageBreakBefore) writer.Word("pagebb");
    if (format.align != dwAlignLeft || (style != nullptr && style->align != dwAlignLeft))
        writer.Word(AlignWords, format.align);
    WriteIndent(writer, "fi", &V::indentFirst, format, style);
    WriteIndent(writer, "li", &V::indentLeft, format, style);
    WriteIndent(writer, "ri", &V::indentRight, format, style);
    writer.Word("sb", format.spaceBefore.Written());
    writer.Word("sa", format.spaceAfter.Written());
    WriteLineSpacing(writer, format);
    constexpr std::int32_t BodyText = 9;  // the level of what is in no outline
    if (format.outlineLevel != 0) {
        writer.Word("outlinelevel", format.outlineLevel - 1);
    } else if (style != nullptr && style->outlineLevel != 0) {
        writer.Word("outlinelevel", BodyText);
    }
    if (format.list) {
        WriteList(writer, format);
    } else if (style != nullptr && style->list) {
        writer.Word("ls", 0);
    }
}

V DefaultParagraphFormat(const DocumentSettings& document) {
    V values;
    values.widowOrphanControl = document.widowOrphanControl;
    return values;
}

}  // namespace draftwick
