#pragma once

#include <draftwick/content/Container.h>
#include <draftwick/model/DocumentSettings.h>
#include <draftwick/structure/Columns.h>
#include <draftwick/structure/Header.h>
#include <draftwick/structure/PageBorders.h>

#include <array>

namespace draftwick {

/// Where a section begins (RTF \sbk*).
enum dwSectionBreak : std::int32_t {
    dwSBKNone = 1,  ///< where the one before ended
    dwSBKColumn = 2,
    dwSBKPage = 3,
    dwSBKEven = 4,
    dwSBKOdd = 5,
};
/// Where the numbers of lines start again.
enum dwLineNumberingRestart : std::int32_t { dwLNRSection = 1, dwLNRPage = 2, dwLNRContinuous = 3 };
/// Whether the numbers of pages start again with the section.
enum dwPageNumberingRestart : std::int32_t { dwPNRSection = 1, dwPNRContinuous = 2 };
/// How page numbers are written.
enum dwPageNumberingFormat : std::int32_t {
    dwPNDecimal = 1,
    dwPNRomanLower = 2,
    dwPNRomanUpper = 3,
    dwPNLetterLower = 4,
    dwPNLetterUpper = 5,
};
/// Where text stands on a page that it does not fill.
enum dwVerticalAlign : std::int32_t { dwVertTop = 1, dwVertBottom = 2, dwVertCenter = 3, dwVertJustify = 4 };

/// A part of the document with its own page, line and page numbers (RTF \sect). Its settings are written when its
/// first header, paragraph or row is added; from then on setters refuse ("Section"). Lengths are 16 bits in twips.
class DRAFTWICK_API Section final : public RowContainer {
public:
    struct Values {
        detail::PageSetup page;
        rule::Choice<"Section.Orientation", dwPortrait, dwLandscape> orientation{dwPortrait};
        rule::Choice<"Section.Break", dwSBKNone, dwSBKOdd> sectionBreak{dwSBKPage};
        rule::Length headerY{720};
        rule::Length footerY{720};
        rule::Short lineNumberingInterval{1};
        rule::Choice<"Section.LineNumberingRestart", dwLNRSection, dwLNRContinuous> lineNumberingRestart{
            dwLNRSection};
        rule::Short lineNumberingStart{1};
        bool lineNumberingVisible = false;
        rule::Length lineNumberingX{720};
        rule::Choice<"Section.PageNumberingFormat", dwPNDecimal, dwPNLetterUpper> pageNumberingFormat{
            dwPNDecimal};
        rule::Choice<"Section.PageNumberingRestart", dwPNRSection, dwPNRContinuous> pageNumberingRestart{
            dwPNRContinuous};
        std::int32_t pageNumberingStart = 1;
        rule::Short paperBin{0};
        rule::Short paperBinFirst{0};
        bool titlePage = false;
        rule::Choice<"Section.VerticalAlign", dwVertTop, dwVertJustify> verticalAlign{dwVertTop};
    };

    /// The page is the document's at this moment.
    explicit Section(const detail::Origin& origin);

    /// From the edge of the page to the text, and the size of the paper. Default: the document's when the section was
    /// added.
    double MarginTop() const { return Read(values_.page.marginTop); }
    void SetMarginTop(Measure length) { Change(values_.page.marginTop, length); }
    double MarginLeft() const { return Read(values_.page.marginLeft); }
    void SetMarginLeft(Measure length) { Change(values_.page.marginLeft, length); }
    double MarginRight() const { return Read(values_.page.marginRight); }
    void SetMarginRight(Measure length) { Change(values_.page.marginRight, length); }
    double MarginBottom() const { return Read(values_.page.marginBottom); }
    void SetMarginBottom(Measure length) { Change(values_.page.marginBottom, length); }
    double PageWidth() const { return Read(values_.page.pageWidth); }
    void SetPageWidth(Measure length) { Change(values_.page.pageWidth, length); }
    double PageHeight() const { return Read(values_.page.pageHeight); }
    void SetPageHeight(Measure length) { Change(values_.page.pageHeight, length); }
    /// Room for binding, on the inner side of the page. Default: the document's when the section was added.
    double Gutter() const { return Read(values_.page.gutter); }
    void SetGutter(Measure length) { Change(values_.page.gutter, length); }

    /// The paper that PageWidth and PageHeight are those of, in either orientation; dwPaperOther when there is none.
    /// Setting it sets both, the way up that Orientation says. dwErrPropertyOutOfRange ("Section.PaperSize") for
    /// dwPaperOther.
    dwPaperSize PaperSize() const { return values_.page.Paper(); }
    void SetPaperSize(dwPaperSize paper);
    /// A change swaps PageWidth and PageHeight. Default: the document's when the section was added.
    dwOrientation Orientation() const { return values_.orientation; }
    void SetOrientation(dwOrientation orientation);

    /// Default dwSBKPage.
    dwSectionBreak Break() const { return values_.sectionBreak; }
    void SetBreak(dwSectionBreak sectionBreak) { Change(values_.sectionBreak, sectionBreak); }

    /// From the edge of the page to the header. Default 720 twips.
    double HeaderY() const { return Read(values_.headerY); }
    void SetHeaderY(Measure length) { Change(values_.headerY, length); }
    /// From the edge of the page to the footer. Default 720 twips.
    double FooterY() const { return Read(values_.footerY); }
    void SetFooterY(Measure length) { Change(values_.footerY, length); }

    /// Every how many lines a number stands, 16 bits. Default 1.
    std::int32_t LineNumberingInterval() const { return values_.lineNumberingInterval; }
    void SetLineNumberingInterval(std::int32_t lines) { Change(values_.lineNumberingInterval, lines); }
    /// Default dwLNRSection.
    dwLineNumberingRestart LineNumberingRestart() const { return values_.lineNumberingRestart; }
    void SetLineNumberingRestart(dwLineNumberingRestart restart) {
        Change(values_.lineNumberingRestart, restart);
    }
    /// The first number of lines, 16 bits. Default 1.
    std::int32_t LineNumberingStart() const { return values_.lineNumberingStart; }
    void SetLineNumberingStart(std::int32_t number) { Change(values_.lineNumberingStart, number); }
    /// Whether lines are numbered at all. Default false: the other line settings are not written.
    bool LineNumberingVisible() const { return values_.lineNumberingVisible; }
    void SetLineNumberingVisible(bool visible) { Change(values_.lineNumberingVisible, visible); }
    /// From the number to the text. Default 720 twips.
    double LineNumberingX() const { return Read(values_.lineNumberingX); }
    void SetLineNumberingX(Measure length) { Change(values_.lineNumberingX, length); }

    /// Default dwPNDecimal.
    dwPageNumberingFormat PageNumberingFormat() const { return values_.pageNumberingFormat; }
    void SetPageNumberingFormat(dwPageNumberingFormat format) { Change(values_.pageNumberingFormat, format); }
    /// Default dwPNRContinuous.
    dwPageNumberingRestart PageNumberingRestart() const { return values_.pageNumberingRestart; }
    void SetPageNumberingRestart(dwPageNumberingRestart restart) {
        Change(values_.pageNumberingRestart, restart);
    }
    /// The first number of pages, for dwPNRSection. Default 1.
    std::int32_t PageNumberingStart() const { return values_.pageNumberingStart; }
    void SetPageNumberingStart(std::int32_t number) { Change(values_.pageNumberingStart, number); }

    /// The printer's number of the paper source, 16 bits. Default 0.
    std::int32_t PaperBin() const { return values_.paperBin; }
    void SetPaperBin(std::int32_t bin) { Change(values_.paperBin, bin); }
    /// The same for the first page. Default 0. In the classic spelling it is written only when it is negative.
    std::int32_t PaperBinFirst() const { return values_.paperBinFirst; }
    void SetPaperBinFirst(std::int32_t bin) { Change(values_.paperBinFirst, bin); }

    /// The first page has its own header and footer. Default false.
    bool TitlePage() const { return values_.titlePage; }
    void SetTitlePage(bool on) { Change(values_.titlePage, on); }

    /// Default dwVertTop.
    dwVerticalAlign VerticalAlign() const { return values_.verticalAlign; }
    void SetVerticalAlign(dwVerticalAlign align) { Change(values_.verticalAlign, align); }

    /// The lines around the pages of the section.
    std::shared_ptr<draftwick::PageBorders> PageBorders();

    /// The columns that the text runs in.
    std::shared_ptr<draftwick::Columns> Columns();

    /// Adds a header or footer after everything that the section holds; they belong at its beginning. Refuses once
    /// the section is finished ("Section"). dwErrInvalidHeaderKind for the kinds for left and right pages in a
    /// document without facing pages, for dwHeader and dwFooter in one with them, and for the first page without a
    /// title page; error 9 for what is no kind; dwErrHeaderExists for a kind that the section has. A refusal leaves
    /// the section without a new header, but its own settings are written.
    std::shared_ptr<Header> AddHeader(dwHeaderKind kind);
    /// The header or footer that was added last; empty before the first.
    std::shared_ptr<Header> CurrentHeader() const { return currentHeader_; }

    static const Class& Describe();
    const Class& Description() const override { return Describe(); }

protected:
    void WriteStart() override;
    void WriteEnd() override;

private:
    friend struct detail::Access;

    Values values_;
    draftwick::Columns columns_;
    draftwick::PageBorders pageBorders_;
    std::array<bool, dwFooterFirst + 1> hasHeader_{};  // by kind
    std::shared_ptr<Header> currentHeader_;
};

}  // namespace draftwick
