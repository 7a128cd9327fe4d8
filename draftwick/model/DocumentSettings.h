#pragma once

#include <draftwick/model/Ref.h>
#include <draftwick/model/Rules.h>

#include <string>
#include <string_view>

namespace draftwick {

class Fonts;

/// How the file is spelled.
enum dwSpelling : std::int32_t {
    /// As the first version of the library spelled it, to the byte: for programs and archives that compare bytes. Readers
    /// do not know some of the words, and a character that the code page does not have is "?".
    dwSpellingClassic = 1,
    /// As RTF 1.9.1 has it: what was set is what readers show, and every character of Unicode is kept.
    dwSpellingStandard = 2,
};

/// Which side of the paper is up.
enum dwOrientation : std::int32_t { dwPortrait = 1, dwLandscape = 2 };

/// Sizes of paper, as PaperSize sets and finds them.
enum dwPaperSize : std::int32_t {
    dwPaperOther = 0,        ///< none of those below
    dwPaperLetter = 1,       ///< 8.5 x 11 inches
    dwPaperLegal = 2,        ///< 8.5 x 14 inches
    dwPaperTabloid = 3,      ///< 11 x 17 inches
    dwPaperExecutive = 4,    ///< 7.25 x 10.5 inches
    dwPaperA3 = 5,           ///< 297 x 420 mm
    dwPaperA4 = 6,           ///< 210 x 297 mm
    dwPaperA5 = 7,           ///< 148 x 210 mm
    dwPaperA6 = 8,           ///< 105 x 148 mm
    dwPaperB4 = 9,           ///< 250 x 353 mm
    dwPaperB5 = 10,          ///< 176 x 250 mm
    dwPaperEnvelopeDL = 11,  ///< 110 x 220 mm
    dwPaperEnvelopeC5 = 12,  ///< 162 x 229 mm
    dwPaperEnvelope10 = 13,  ///< 4.125 x 9.5 inches
};

/// The view in which a reader is asked to open the document (RTF \viewkind).
enum dwViewKind : std::int32_t {
    dwViewNone = 1,  ///< the reader decides
    dwViewPageLayout = 2,
    dwViewOutline = 3,
    dwViewMaster = 4,
    dwViewNormal = 5,
    dwViewOnlineLayout = 6,
};

/// How large a reader is asked to show the document (RTF \viewzk).
enum dwZoomKind : std::int32_t {
    dwZoomPercent = 1,  ///< by the number in ZoomScale
    dwZoomFullPage = 2,
    dwZoomBestFit = 3,
};

/// How notes are numbered.
enum dwFootnoteFormat : std::int32_t {
    dwFFDecimal = 1,
    dwFFLetterLower = 2,
    dwFFLetterUpper = 3,
    dwFFRomanLower = 4,
    dwFFRomanUpper = 5,
};
/// Where footnotes stand.
enum dwFootnoteLocation : std::int32_t { dwFLBeneathText = 1, dwFLBottomOfPage = 2 };
/// Where endnotes are collected: at the end of their section or of the document.
enum dwEndnoteLocation : std::int32_t { dwELSection = 1, dwELDocument = 2 };
/// Where the numbers of notes start again.
enum dwFootnoteRestart : std::int32_t { dwFRPage = 1, dwFRSection = 2, dwFRContinuous = 3 };

namespace detail {

/// The page of a document or section.
struct PageSetup {
    rule::Length marginTop{720};
    rule::Length marginLeft{720};
    rule::Length marginRight{720};
    rule::Length marginBottom{720};
    rule::Length pageWidth{12240};
    rule::Length pageHeight{15840};
    rule::Length gutter{0};

    /// The paper that has this width and height, whichever way up it lies.
    dwPaperSize Paper() const noexcept;
    /// Takes the size of a paper. dwErrPropertyOutOfRange with the name for what is none.
    void SetPaper(dwPaperSize paper, dwOrientation orientation, std::string_view name);
};

/// The settings of a document, as they are stored.
struct DocumentSettings {
    rule::Choice<"ScaleMode", dwInches, dwPoints> scaleMode{dwInches};
    rule::Choice<"Document.Spelling", dwSpellingClassic, dwSpellingStandard> spelling{dwSpellingClassic};
    PageSetup page;
    rule::Choice<"Document.Format.Orientation", dwPortrait, dwLandscape> orientation{dwPortrait};
    std::string caption;
    rule::Ref<Fonts> defaultFont;
    bool pageBorderAroundHeader = true;
    bool pageBorderAroundFooter = true;
    bool facingPage = false;
    bool hyphenAuto = false;
    bool hyphenCaps = true;
    std::int32_t hyphenConsecutiveLines = 0;
    rule::Length hyphenHotZone{360};
    bool marginMirror = false;
    rule::Short pageNumberStart{1};
    rule::Length tabWidth{720};
    // Hosts know these two names with their odd letter: error texts are part of the interface.
    rule::Choice<"DocumenmViewKind", dwViewNone, dwViewOnlineLayout> viewKind{dwViewNone};
    rule::Choice<"DocumenmZoomKind", dwZoomPercent, dwZoomBestFit> zoomKind{dwZoomPercent};
    rule::Short zoomScale{100};
    bool widowOrphanControl = true;
    std::string filename;
    std::string tempPath;
    bool bodyInMemory = false;
    bool discardOnRelease = false;
    bool durable = false;
    rule::Choice<"FootnoteFormat", dwFFDecimal, dwFFRomanUpper> footnoteFormat{dwFFDecimal};
    rule::Choice<"EndnoteFormat", dwFFDecimal, dwFFRomanUpper> endnoteFormat{dwFFDecimal};
    rule::Choice<"FootnoteLocation", dwFLBeneathText, dwFLBottomOfPage> footnoteLocation{dwFLBottomOfPage};
    rule::Choice<"EndnoteLocation", dwELSection, dwELDocument> endnoteLocation{dwELSection};
    rule::Choice<"FootnoteRestart", dwFRPage, dwFRContinuous> footnoteRestart{dwFRContinuous};
    rule::Choice<"EndnoteRestart", dwFRPage, dwFRContinuous> endnoteRestart{dwFRContinuous};
    rule::Short footnoteStartAt{1};
    rule::Short endnoteStartAt{1};
};

}  // namespace detail

}  // namespace draftwick
