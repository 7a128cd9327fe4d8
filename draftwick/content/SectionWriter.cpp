#include <draftwick/content/SectionWriter.h>
#include <draftwick/model/WritingContext.h>

namespace draftwick {

namespace {

constexpr std::string_view BreakWords[] = {"sbknone", "sbkcol", "sbkpage", "sbkeven", "sbkodd"};
constexpr std::string_view LineRestartWords[] = {"linerestart", "lineppage", "linecont"};
constexpr std::string_view PageRestartWords[] = {"pgnrestart", "pgncont"};
constexpr std::string_view PageNumberWords[] = {"pgndec", "pgnlcrm", "pgnucrm", "pgnlcltr", "pgnucltr"};
constexpr std::string_view VerticalWords[] = {"vertalt", "vertalb", "vertalc", "vertalj"};

void WriteLineNumbering(Output& output, const Section::Values& section) {
    if (!section.lineNumberingVisible) return;
    output.WriteControlWord("linemod", section.lineNumberingInterval);
    output.WriteControlWord("linex", section.lineNumberingX.Twips());
    output.WriteControlWord("linestarts", section.lineNumberingStart);
    output.WriteWord(LineRestartWords, section.lineNumberingRestart);
}

void WritePage(Output& output, const Section::Values& section) {
    output.WriteControlWord("pgwsxn", section.page.pageWidth.Twips());
    output.WriteControlWord("pghsxn", section.page.pageHeight.Twips());
    output.WriteControlWord("margtsxn", section.page.marginTop.Twips());
    output.WriteControlWord("marglsxn", section.page.marginLeft.Twips());
    output.WriteControlWord("margrsxn", section.page.marginRight.Twips());
    output.WriteControlWord("margbsxn", section.page.marginBottom.Twips());
    output.WriteControlWord("guttersxn", section.page.gutter.Twips());
    if (section.orientation == dwLandscape) output.WriteControlWord("lndscpsxn");
}

}  // namespace

void EmitSection(WritingContext& context, const Section::Values& section, const Columns& columns,
                 const PageBorders& pageBorders) {
    Output& output = context.output;
    if (!context.firstSection) output.WriteControlWord("sect");
    context.firstSection = false;
    output.WriteControlWord("sectd");
    // Only printer-specific numbers below zero are written here; PaperBin is always written.
    if (section.paperBinFirst < 0) output.WriteControlWord("binfsxn", section.paperBinFirst);
    output.WriteControlWord("binsxn", section.paperBin);
    output.WriteWord(BreakWords, section.sectionBreak);
    EmitColumns(context, columns);
    WriteLineNumbering(output, section);
    WritePage(output, section);
    if (section.titlePage) output.WriteControlWord("titlepg");
    output.WriteControlWord("headery", section.headerY.Twips());
    output.WriteControlWord("footery", section.footerY.Twips());
    output.WriteControlWord("pgnstarts", section.pageNumberingStart);
    output.WriteWord(PageRestartWords, section.pageNumberingRestart);
    output.WriteWord(PageNumberWords, section.pageNumberingFormat);
    output.WriteWord(VerticalWords, section.verticalAlign);
    EmitPageBorders(context, pageBorders);
    if (context.settings.endnoteLocation == dwELSection) output.WriteControlWord("endnhere");
    context.layout.SuppressNextParagraphMark = true;
}

void WriteSectionEnd(WritingContext& context) {
    if (context.layout.TableEndsSection) context.output.WriteControlWord("par");
}

}  // namespace draftwick
