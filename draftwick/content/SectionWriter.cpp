#include <draftwick/content/internal/Writers.h>
#include <draftwick/structure/internal/Writers.h>

namespace draftwick {

namespace {

constexpr std::string_view BreakWords[] = {"sbknone", "sbkcol", "sbkpage", "sbkeven", "sbkodd"};
constexpr std::string_view LineRestartWords[] = {"linerestart", "lineppage", "linecont"};
constexpr std::string_view PageRestartWords[] = {"pgnrestart", "pgncont"};
constexpr std::string_view PageNumberWords[] = {"pgndec", "pgnlcrm", "pgnucrm", "pgnlcltr", "pgnucltr"};
constexpr std::string_view VerticalWords[] = {"vertalt", "vertalb", "vertalc", "vertalj"};

void WriteLineNumbering(RtfWriter& writer, const Section::Values& section) {
    if (!section.lineNumberingVisible) return;
    writer.Word("linemod", section.lineNumberingInterval);
    writer.Word("linex", section.lineNumberingX.Twips());
    writer.Word("linestarts", section.lineNumberingStart);
    writer.Word(LineRestartWords, section.lineNumberingRestart);
}

void WritePage(RtfWriter& writer, const Section::Values& section) {
    writer.Word("pgwsxn", section.page.pageWidth.Twips());
    writer.Word("pghsxn", section.page.pageHeight.Twips());
    writer.Word("margtsxn", section.page.marginTop.Twips());
    writer.Word("marglsxn", section.page.marginLeft.Twips());
    writer.Word("margrsxn", section.page.marginRight.Twips());
    writer.Word("margbsxn", section.page.marginBottom.Twips());
    if (section.page.gutter.Twips() != 0) writer.Word(Spelled{"", "gutter"}, section.page.gutter.Twips());
    writer.Word("guttersxn", section.page.gutter.Twips());
    if (section.orientation == dwLandscape) writer.Word("lndscpsxn");
}

}  // namespace

void EmitSection(RtfWriter& writer, const Section::Values& section, const Columns& columns,
                 const PageBorders& pageBorders, const DocumentSettings& document) {
    if (!writer.layout.FirstSection) writer.Word("sect");
    writer.layout.FirstSection = false;
    writer.Word("sectd");
    // Classic: only printer-specific numbers, those below zero. PaperBin is always written.
    if (section.paperBinFirst < 0 || (writer.Standard() && section.paperBinFirst != 0))
        writer.Word("binfsxn", section.paperBinFirst);
    writer.Word("binsxn", section.paperBin);
    writer.Word(BreakWords, section.sectionBreak);
    EmitColumns(writer, columns);
    WriteLineNumbering(writer, section);
    WritePage(writer, section);
    if (section.titlePage) writer.Word("titlepg");
    writer.Word("headery", section.headerY.Twips());
    writer.Word("footery", section.footerY.Twips());
    writer.Word("pgnstarts", section.pageNumberingStart);
    writer.Word(PageRestartWords, section.pageNumberingRestart);
    writer.Word(PageNumberWords, section.pageNumberingFormat);
    writer.Word(VerticalWords, section.verticalAlign);
    EmitPageBorders(writer, pageBorders);
    if (document.endnoteLocation == dwELSection) writer.Word("endnhere");
    writer.layout.SuppressNextParagraphMark = true;
}

void WriteSectionEnd(RtfWriter& writer) {
    if (writer.layout.TableEndsSection) writer.Word("par");
}

}  // namespace draftwick
