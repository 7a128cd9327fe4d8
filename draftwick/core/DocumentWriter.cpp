#include <draftwick/core/internal/Writers.h>
#include <draftwick/format/internal/Writers.h>
#include <draftwick/model/internal/Access.h>
#include <draftwick/model/internal/Session.h>

#include <string>

namespace draftwick {

namespace {

void WriteHyphenation(RtfWriter& writer, const DocumentSettings& settings) {
    writer.Word("hyphhotz", settings.hyphenHotZone.Twips());
    writer.Word("hyphconsec", settings.hyphenConsecutiveLines);
    writer.Flag("hyphcaps", settings.hyphenCaps);
    writer.Flag("hyphauto", settings.hyphenAuto);
}

void WritePage(RtfWriter& writer, const DocumentSettings& settings) {
    writer.Word("paperw", settings.page.pageWidth.Twips());
    writer.Word("paperh", settings.page.pageHeight.Twips());
    writer.Word("margt", settings.page.marginTop.Twips());
    writer.Word("margl", settings.page.marginLeft.Twips());
    writer.Word("margr", settings.page.marginRight.Twips());
    writer.Word("margb", settings.page.marginBottom.Twips());
    writer.Flag("facingp", settings.facingPage);  // readers want the bare word; the number is promised
    writer.Word("gutter", settings.page.gutter.Twips());
    writer.Flag("margmirror", settings.marginMirror);
    if (settings.orientation == dwLandscape) writer.Word("landscape");
    writer.Word("pgnstart", settings.pageNumberStart);
    writer.Flag("widowctrl", settings.widowOrphanControl);
}

void WriteView(RtfWriter& writer, const DocumentSettings& settings) {
    if (!settings.caption.empty()) writer.Group("windowcaption", [&] { writer.Raw(settings.caption); });
    if (settings.viewKind != dwViewNone) {
        writer.Word("viewkind", settings.viewKind - 1);
        writer.Word("viewscale", settings.zoomScale);
        writer.Word("viewzk", settings.zoomKind - 1);
    }
    if (settings.pageBorderAroundHeader) writer.Word("pgbrdrhead");
    if (settings.pageBorderAroundFooter) writer.Word("pgbrdrfoot");
}

/// \fet2\fntbj\ftnrstcont\ftnstart1\ftnnar, two line breaks, \aendnotes\aftnrstcont\aftnstart1\aftnnar
void WriteNoteSettings(RtfWriter& writer, const DocumentSettings& settings) {
    // "fntbj" is not what readers expect and "aftnrstcont" stands for a restart on each page: both are promised.
    static constexpr std::string_view LocationWords[] = {"ftntj", "fntbj"};
    static constexpr std::string_view RestartWords[] = {"ftnrstpg", "ftnrestart", "ftnrstcont"};
    static constexpr std::string_view FormatWords[] = {"ftnnar", "ftnnalc", "ftnnauc", "ftnnrlc", "ftnnruc"};
    static constexpr std::string_view EndLocationWords[] = {"aendnotes", "aenddoc"};
    static constexpr std::string_view EndRestartWords[] = {"aftnrstcont", "aftnrestart", "aftnrstcont"};
    static constexpr std::string_view EndFormatWords[] = {"aftnnar", "aftnnalc", "aftnnauc", "aftnnrlc",
                                                          "aftnnruc"};
    writer.Word("fet", 2);
    writer.Word(LocationWords, settings.footnoteLocation);
    writer.Word(RestartWords, settings.footnoteRestart);
    writer.Word("ftnstart", settings.footnoteStartAt);
    writer.Word(FormatWords, settings.footnoteFormat);
    writer.Raw("\r\n\r\n");
    writer.Word(EndLocationWords, settings.endnoteLocation);
    writer.Word(EndRestartWords, settings.endnoteRestart);
    writer.Word("aftnstart", settings.endnoteStartAt);
    writer.Word(EndFormatWords, settings.endnoteFormat);
}

/// {\colortbl\red0\green0\blue0;}; nothing while no colour was used.
void WriteColorTable(RtfWriter& writer) {
    if (writer.colors.InOrder().empty()) return;
    writer.Group("colortbl", [&] {
        for (const std::int32_t color : writer.colors.InOrder()) {
            const auto bits = static_cast<std::uint32_t>(color);
            writer.Word("red", static_cast<std::int32_t>(bits & 0xFF));
            writer.Word("green", static_cast<std::int32_t>(bits >> 8 & 0xFF));
            // The semicolon belongs to the word: a text would get a space before it.
            writer.Word("blue" + std::to_string(bits >> 16 & 0xFF) + ";");
        }
    });
}

}  // namespace

void WriteDocumentFormatting(RtfWriter& writer, const DocumentSettings& settings) {
    writer.Word("deftab", settings.tabWidth.Twips());
    WriteHyphenation(writer, settings);
    WritePage(writer, settings);
    WriteView(writer, settings);
    WriteNoteSettings(writer, settings);
}

void RegisterHeaderColors(RtfWriter& writer, const DocumentSettings& settings) {
    for (const auto& style : *writer.names->paragraphStyles)
        NoteLists(writer.lists, Stored(StoredParts(*style).format));
    EmitStylesheet(writer, *writer.names->paragraphStyles, *writer.names->textStyles, settings);
    EmitListTable(writer, *writer.names->lists);
    writer.output.FlushLine();
}

void EmitHeader(RtfWriter& writer, const DocumentSettings& settings) {
    writer.output.WriteGroupStart();  // closed at the end of the body
    writer.Word("rtf", 1);
    if (settings.defaultFont) writer.Word("deff", settings.defaultFont.Position());
    EmitFontTable(writer, *writer.names->fonts);
    WriteColorTable(writer);
    EmitStylesheet(writer, *writer.names->paragraphStyles, *writer.names->textStyles, settings);
    EmitListTable(writer, *writer.names->lists);
    EmitProperties(writer, *writer.names->properties);
    writer.output.FlushLine();
}

}  // namespace draftwick
