#include <draftwick/format/Lists.h>
#include <draftwick/format/ParagraphFormat.h>
#include <draftwick/model/WritingContext.h>

namespace draftwick {

namespace {

void WriteIfNotZero(Output& output, std::string_view word, Length length) {
    if (length.Twips() != 0) output.WriteControlWord(word, length.Twips());
}

void WriteLineSpacing(Output& output, const ParagraphFormat::Values& format) {
    switch (format.lineSpacingStyle) {
    case dwSpacingMultiple:
        output.WriteControlWord("sl", RoundHalfEven(format.lineSpacingMultiple * 240));
        output.WriteControlWord("slmult", 1);
        break;
    case dwSpacingAtLeast:
        output.WriteControlWord("sl", RoundHalfEven(format.lineSpacingDistance * 20));
        output.WriteControlWord("slmult", 0);
        break;
    case dwSpacingExactly:
        output.WriteControlWord("sl", RoundHalfEven(format.lineSpacingDistance * -20));
        output.WriteControlWord("smult", 0);  // spelled without an l after exact spacing: it is promised so
        break;
    }
}

}  // namespace

void EmitParagraphFormat(WritingContext& context, const ParagraphFormat::Values& format) {
    static constexpr std::string_view AlignWords[] = {"", "qr", "qc", "qj"};
    Output& output = context.output;
    if (format.suppressHyphen) output.WriteControlWord("hyphpar", 0);
    if (format.keepIntact) output.WriteControlWord("keep");
    if (format.widowOrphanControl != context.settings.widowOrphanControl) {
        output.WriteControlWord(format.widowOrphanControl ? "widctlpar" : "nowidctlpar");
    }
    if (format.keepWithNext) output.WriteControlWord("keepn");
    if (format.noLineNumbering) output.WriteControlWord("noline");
    if (format.pageBreakBefore) output.WriteControlWord("pagebb");
    output.WriteWord(AlignWords, format.align);
    WriteIfNotZero(output, "fi", format.indentFirst);
    WriteIfNotZero(output, "li", format.indentLeft);
    WriteIfNotZero(output, "ri", format.indentRight);
    output.WriteControlWord("sb", RoundDown(format.spaceBefore * 20));
    output.WriteControlWord("sa", RoundDown(format.spaceAfter * 20));
    WriteLineSpacing(output, format);
    if (format.outlineLevel != 0) output.WriteControlWord("outlinelevel", format.outlineLevel - 1);
    if (format.list != ParagraphFormat::NoList) {
        List& list = context.lists->At(format.list);
        output.WriteControlWord("ls", format.listFormat == ParagraphFormat::NoList
                                          ? list.OwnOverrideNumber()
                                          : list.PairOverrideNumber(format.listFormat));
        output.WriteControlWord("ilvl", format.listLevel - 1);
        list.MarkLevelUsed(format.listLevel);
    }
}

}  // namespace draftwick
