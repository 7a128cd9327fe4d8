#include <draftwick/core/DocumentWriter.h>
#include <draftwick/core/Properties.h>
#include <draftwick/format/Fonts.h>
#include <draftwick/format/Lists.h>
#include <draftwick/format/Styles.h>
#include <draftwick/model/WritingContext.h>

namespace draftwick {

namespace {

void WriteHyphenation(Output& output, const DocumentSettings& settings) {
    output.WriteControlWord("hyphhotz", settings.hyphenHotZone.Twips());
    output.WriteControlWord("hyphconsec", settings.hyphenConsecutiveLines);
    output.WriteFlag("hyphcaps", settings.hyphenCaps);
    output.WriteFlag("hyphauto", settings.hyphenAuto);
}

void WritePage(Output& output, const DocumentSettings& settings) {
    output.WriteControlWord("paperw", settings.page.pageWidth.Twips());
    output.WriteControlWord("paperh", settings.page.pageHeight.Twips());
    output.WriteControlWord("margt", settings.page.marginTop.Twips());
    output.WriteControlWord("margl", settings.page.marginLeft.Twips());
    output.WriteControlWord("margr", settings.page.marginRight.Twips());
    output.WriteControlWord("margb", settings.page.marginBottom.Twips());
    output.WriteFlag("facingp", settings.facingPage);  // readers want the bare word; the number is promised
    output.WriteControlWord("gutter", settings.page.gutter.Twips());
    output.WriteFlag("margmirror", settings.marginMirror);
    if (settings.orientation == dwLandscape) output.WriteControlWord("landscape");
    output.WriteControlWord("pgnstart", settings.pageNumberStart);
    output.WriteFlag("widowctrl", settings.widowOrphanControl);
}

void WriteView(Output& output, const DocumentSettings& settings) {
    if (!settings.caption.empty()) {
        output.WriteGroupStart();
        output.WriteControlWord("windowcaption");
        output.WriteText(settings.caption);
        output.WriteGroupEnd();
    }
    if (settings.viewKind != dwViewNone) {
        output.WriteControlWord("viewkind", settings.viewKind - 1);
        output.WriteControlWord("viewscale", settings.zoomScale);
        output.WriteControlWord("viewzk", settings.zoomKind - 1);
    }
    if (settings.pageBorderAroundHeader) output.WriteControlWord("pgbrdrhead");
    if (settings.pageBorderAroundFooter) output.WriteControlWord("pgbrdrfoot");
}

/// \fet2\fntbj\ftnrstcont\ftnstart1\ftnnar, two line breaks, \aendnotes\aftnrstcont\aftnstart1\aftnnar
void EmitNoteSettings(Output& output, const DocumentSettings& settings) {
    // "fntbj" is not what readers expect and "aftnrstcont" stands for a restart on each page: both are promised.
    static constexpr std::string_view LocationWords[] = {"ftntj", "fntbj"};
    static constexpr std::string_view RestartWords[] = {"ftnrstpg", "ftnrestart", "ftnrstcont"};
    static constexpr std::string_view FormatWords[] = {"ftnnar", "ftnnalc", "ftnnauc", "ftnnrlc", "ftnnruc"};
    static constexpr std::string_view EndLocationWords[] = {"aendnotes", "aenddoc"};
    static constexpr std::string_view EndRestartWords[] = {"aftnrstcont", "aftnrestart", "aftnrstcont"};
    static constexpr std::string_view EndFormatWords[] = {"aftnnar", "aftnnalc", "aftnnauc", "aftnnrlc",
                                                          "aftnnruc"};
    output.WriteControlWord("fet", 2);
    output.WriteWord(LocationWords, settings.footnoteLocation);
    output.WriteWord(RestartWords, settings.footnoteRestart);
    output.WriteControlWord("ftnstart", settings.footnoteStartAt);
    output.WriteWord(FormatWords, settings.footnoteFormat);
    output.WriteText("\r\n\r\n");
    output.WriteWord(EndLocationWords, settings.endnoteLocation);
    output.WriteWord(EndRestartWords, settings.endnoteRestart);
    output.WriteControlWord("aftnstart", settings.endnoteStartAt);
    output.WriteWord(EndFormatWords, settings.endnoteFormat);
}

}  // namespace

void WriteDocumentFormatting(WritingContext& context) {
    Output& output = context.output;
    const DocumentSettings& settings = context.settings;
    output.WriteControlWord("deftab", settings.tabWidth.Twips());
    WriteHyphenation(output, settings);
    WritePage(output, settings);
    WriteView(output, settings);
    EmitNoteSettings(output, settings);
}

void RegisterHeaderColors(WritingContext& context) {
    EmitStylesheet(context, *context.paragraphStyles, *context.textStyles);
    EmitListTable(context, *context.lists);
    context.output.FlushLine();
}

void WriteHeader(WritingContext& context) {
    Output& output = context.output;
    output.WriteGroupStart();
    output.WriteControlWord("rtf", 1);
    if (context.defaultFont != WritingContext::NoFont) output.WriteControlWord("deff", context.defaultFont);
    EmitFontTable(context, *context.fonts);
    context.colors.EmitColorTable(output);
    EmitStylesheet(context, *context.paragraphStyles, *context.textStyles);
    EmitListTable(context, *context.lists);
    EmitProperties(context, *context.properties);
    output.FlushLine();
}

}  // namespace draftwick
