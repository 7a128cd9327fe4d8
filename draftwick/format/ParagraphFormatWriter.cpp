#include <draftwick/format/internal/Writers.h>

namespace draftwick {

namespace {

void WriteIfNotZero(RtfWriter& writer, std::string_view word, Length length) {
    if (length.Twips() != 0) writer.Word(word, length.Twips());
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
        writer.Word("smult", 0);  // spelled without an l after exact spacing: it is promised so
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

void EmitParagraphFormat(RtfWriter& writer, const ParagraphFormat::Values& format,
                         const DocumentSettings& settings) {
    static constexpr std::string_view AlignWords[] = {"", "qr", "qc", "qj"};
    if (format.suppressHyphen) writer.Word("hyphpar", 0);
    if (format.keepIntact) writer.Word("keep");
    if (format.widowOrphanControl != settings.widowOrphanControl) {
        writer.Word(format.widowOrphanControl ? "widctlpar" : "nowidctlpar");
    }
    if (format.keepWithNext) writer.Word("keepn");
    if (format.noLineNumbering) writer.Word("noline");
    if (format.pageBreakBefore) writer.Word("pagebb");
    writer.Word(AlignWords, format.align);
    WriteIfNotZero(writer, "fi", format.indentFirst);
    WriteIfNotZero(writer, "li", format.indentLeft);
    WriteIfNotZero(writer, "ri", format.indentRight);
    writer.Word("sb", format.spaceBefore.Written());
    writer.Word("sa", format.spaceAfter.Written());
    WriteLineSpacing(writer, format);
    if (format.outlineLevel != 0) writer.Word("outlinelevel", format.outlineLevel - 1);
    if (format.list) WriteList(writer, format);
}

}  // namespace draftwick
