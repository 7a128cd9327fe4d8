#include <draftwick/content/Paragraph.h>
#include <draftwick/content/Section.h>
#include <draftwick/content/internal/Members.h>
#include <draftwick/content/internal/Writers.h>
#include <draftwick/model/internal/ClassTable.h>
#include <draftwick/model/internal/Session.h>
#include <draftwick/structure/Table.h>

#include <utility>

namespace draftwick {

Section::Section(const Origin& origin) : RowContainer(origin), columns_(AsOwner()), pageBorders_(AsOwner()) {
    const DocumentSettings& document = Session().settings;
    values_.page = document.page;
    values_.orientation = dwOrientation{document.orientation};
}

void Section::SetPaperSize(dwPaperSize paper) {
    OpenForChange();
    values_.page.SetPaper(paper, values_.orientation, "Section.PaperSize");
}

void Section::SetOrientation(dwOrientation orientation) {
    const dwOrientation before = values_.orientation;
    Change(values_.orientation, orientation);
    if (orientation != before) std::swap(values_.page.pageWidth, values_.page.pageHeight);
}

std::shared_ptr<draftwick::PageBorders> Section::PageBorders() { return Share(pageBorders_); }
std::shared_ptr<draftwick::Columns> Section::Columns() { return Share(columns_); }

std::shared_ptr<Header> Section::AddHeader(dwHeaderKind kind) {
    const auto& session = Session();
    CheckNotFinished();
    Emit();
    const bool facing = session.settings.facingPage;
    const bool everyPage = kind == dwHeader || kind == dwFooter;
    const bool oneSide = kind >= dwHeaderLeft && kind <= dwFooterRight;
    const bool firstPage = kind == dwHeaderFirst || kind == dwFooterFirst;
    if ((facing && everyPage) || (!facing && oneSide) || (!values_.titlePage && firstPage)) {
        RaiseError(
            dwErrInvalidHeaderKind, {},
            firstPage ? "Section.AddHeader: set Section.TitlePage first, for the first page's own header"
            : oneSide ? "Section.AddHeader: set Document.FacingPage before the first section, for "
                        "headers of left and right pages"
                      : "Section.AddHeader: Document.FacingPage is set; add the headers of left and of "
                        "right pages");
    }
    if (!InRange(kind, dwHeader, dwFooterFirst)) {
        RaiseRuntimeError(dwRunSubscriptOutOfRange, std::to_string(kind),
                          "Section.AddHeader " + std::to_string(kind) + ": give a dwHeaderKind, 1 to 8");
    }
    bool& exists = hasHeader_[static_cast<std::size_t>(kind)];
    if (exists) {
        RaiseError(
            dwErrHeaderExists, {},
            "Section.AddHeader: the section has this header already; add to it what is missing, or add "
            "another section");
    }
    auto header = Add(currentHeader_, kind);
    exists = true;
    return header;
}

void Section::WriteStart() { EmitSection(Writer(), values_, columns_, pageBorders_, Session().settings); }

void Section::WriteEnd() { WriteSectionEnd(Writer()); }

const Class& Section::Describe() {
    using S = Section;
    using V = Values;
    using P = PageSetup;
    static const Class description{
        "Section",
        "{3CAFB903-D208-49F3-B0C5-36D94F5DA017}",
        "{BF26F119-5E51-4C4B-B429-8E789A325047}",
        {
            PropertyOf<&S::Columns>("Columns"),
            PropertyOf<&S::CurrentHeader>("CurrentHeader").OrNothing(),
            PropertyOf<&S::CurrentParagraph>("CurrentParagraph").OrNothing(),
            PropertyOf<&S::CurrentTable>("CurrentTable").OrNothing(),
            PropertyOf<&S::Emitted>("Emitted"),
            PropertyOf<&S::Finished>("Finished"),
            PropertyOf<&S::MarginTop, &S::SetMarginTop, &P::marginTop>("MarginTop").DefaultDepends(),
            PropertyOf<&S::MarginLeft, &S::SetMarginLeft, &P::marginLeft>("MarginLeft").DefaultDepends(),
            PropertyOf<&S::MarginRight, &S::SetMarginRight, &P::marginRight>("MarginRight").DefaultDepends(),
            PropertyOf<&S::MarginBottom, &S::SetMarginBottom, &P::marginBottom>("MarginBottom")
                .DefaultDepends(),
            PropertyOf<&S::PageWidth, &S::SetPageWidth, &P::pageWidth>("PageWidth").DefaultDepends(),
            PropertyOf<&S::PageHeight, &S::SetPageHeight, &P::pageHeight>("PageHeight").DefaultDepends(),
            PropertyOf<&S::Gutter, &S::SetGutter, &P::gutter>("Gutter").DefaultDepends(),
            PropertyOf<&S::PaperSize, &S::SetPaperSize>("PaperSize"),
            PropertyOf<&S::Orientation, &S::SetOrientation, &V::orientation>("Orientation").DefaultDepends(),
            PropertyOf<&S::Break, &S::SetBreak, &V::sectionBreak>("Break"),
            PropertyOf<&S::HeaderY, &S::SetHeaderY, &V::headerY>("HeaderY"),
            PropertyOf<&S::FooterY, &S::SetFooterY, &V::footerY>("FooterY"),
            PropertyOf<&S::LineNumberingInterval, &S::SetLineNumberingInterval, &V::lineNumberingInterval>(
                "LineNumberingInterval"),
            PropertyOf<&S::LineNumberingRestart, &S::SetLineNumberingRestart, &V::lineNumberingRestart>(
                "LineNumberingRestart"),
            PropertyOf<&S::LineNumberingStart, &S::SetLineNumberingStart, &V::lineNumberingStart>(
                "LineNumberingStart"),
            PropertyOf<&S::LineNumberingVisible, &S::SetLineNumberingVisible, &V::lineNumberingVisible>(
                "LineNumberingVisible"),
            PropertyOf<&S::LineNumberingX, &S::SetLineNumberingX, &V::lineNumberingX>("LineNumberingX"),
            PropertyOf<&S::PageNumberingFormat, &S::SetPageNumberingFormat, &V::pageNumberingFormat>(
                "PageNumberingFormat"),
            PropertyOf<&S::PageNumberingRestart, &S::SetPageNumberingRestart, &V::pageNumberingRestart>(
                "PageNumberingRestart"),
            PropertyOf<&S::PageNumberingStart, &S::SetPageNumberingStart, &V::pageNumberingStart>(
                "PageNumberingStart"),
            PropertyOf<&S::PaperBin, &S::SetPaperBin, &V::paperBin>("PaperBin"),
            PropertyOf<&S::PaperBinFirst, &S::SetPaperBinFirst, &V::paperBinFirst>("PaperBinFirst"),
            PropertyOf<&S::TitlePage, &S::SetTitlePage, &V::titlePage>("TitlePage"),
            PropertyOf<&S::VerticalAlign, &S::SetVerticalAlign, &V::verticalAlign>("VerticalAlign"),
            PropertyOf<&S::PageBorders>("PageBorders"),
        },
        {
            MethodOf<&S::AddHeader>("AddHeader", {{"Kind"}}),
            AddParagraphOf<S>(),
            MethodOf<&S::AddTable>("AddTable"),
        }};
    return description;
}

}  // namespace draftwick
