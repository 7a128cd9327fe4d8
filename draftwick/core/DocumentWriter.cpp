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
    writer.Toggle("hyphcaps", settings.hyphenCaps);
    writer.Toggle("hyphauto", settings.hyphenAuto);
}

void WritePage(RtfWriter& writer, const DocumentSettings& settings) {
    writer.Word("paperw", settings.page.pageWidth.Twips());
    writer.Word("paperh", settings.page.pageHeight.Twips());
    writer.Word("margt", settings.page.marginTop.Twips());
    writer.Word("margl", settings.page.marginLeft.Twips());
    writer.Word("margr", settings.page.marginRight.Twips());
    writer.Word("margb", settings.page.marginBottom.Twips());
    writer.Flag("facingp", settings.facingPage);
    writer.Word("gutter", settings.page.gutter.Twips());
    writer.Flag("margmirror", settings.marginMirror);
    if (settings.orientation == dwLandscape) writer.Word("landscape");
    writer.Word("pgnstart", settings.pageNumberStart);
    writer.Flag("widowctrl", settings.widowOrphanControl);
}

/// {\*\windowcaption Report}; classic without the star.
void WriteCaption(RtfWriter& writer, std::string_view caption) {
    const auto write = [&] { writer.Name(caption); };
    if (writer.Standard()) {
        writer.Destination("windowcaption", write);
    } else {
        writer.Group("windowcaption", write);
    }
}

void WriteView(RtfWriter& writer, const DocumentSettings& settings) {
    if (!settings.caption.empty()) WriteCaption(writer, settings.caption);
    if (settings.viewKind != dwViewNone) {
        writer.Word("viewkind", settings.viewKind - 1);
        writer.Word("viewscale", settings.zoomScale);
        writer.Word("viewzk", settings.zoomKind - 1);
    }
    if (settings.pageBorderAroundHeader) writer.Word("pgbrdrhead");
    if (settings.pageBorderAroundFooter) writer.Word("pgbrdrfoot");
}

/// \fet2\ftnbj\ftnrstcont\ftnstart1\ftnnar\aendnotes\aftnrstcont\aftnstart1\aftnnar; classic with line breaks between.
void WriteNoteSettings(RtfWriter& writer, const DocumentSettings& settings) {
    // Endnotes cannot start again on each page: there is no word for it.
    const Words<dwFootnoteLocation> LocationWords{"ftntj", writer.Standard() ? "ftnbj" : "fntbj"};
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
    if (!writer.Standard()) writer.Raw("\r\n\r\n");
    writer.Word(EndLocationWords, settings.endnoteLocation);
    writer.Word(EndRestartWords, settings.endnoteRestart);
    writer.Word("aftnstart", settings.endnoteStartAt);
    writer.Word(EndFormatWords, settings.endnoteFormat);
}

/// {\colortbl;\red0\green0\blue0;}; classic without the reader's own colour in front. Nothing while no colour was used.
void WriteColorTable(RtfWriter& writer) {
    if (writer.colors.InOrder().empty()) return;
    // Here a semicolon belongs to the word: a text would get a space before it.
    writer.Group(writer.Standard() ? "colortbl;" : "colortbl", [&] {
        for (const std::int32_t color : writer.colors.InOrder()) {
            const auto bits = static_cast<std::uint32_t>(color);
            writer.Word("red", static_cast<std::int32_t>(bits & 0xFF));
            writer.Word("green", static_cast<std::int32_t>(bits >> 8 & 0xFF));
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
    writer.Word(Spelled{"", "ansi"});
    writer.Word(Spelled{"", "ansicpg"}, 1252);
    if (settings.defaultFont) writer.Word("deff", settings.defaultFont.Position());
    EmitFontTable(writer, *writer.names->fonts);
    WriteColorTable(writer);
    EmitStylesheet(writer, *writer.names->paragraphStyles, *writer.names->textStyles, settings);
    EmitListTable(writer, *writer.names->lists);
    if (writer.names->properties != nullptr) EmitProperties(writer, *writer.names->properties);
    writer.output.FlushLine();
}

}  // namespace draftwick
