// Pages: paper and margins, headers and footers, a first page that differs, text in two columns.
//
// usage: pages OUTPUT.rtf
#include <draftwick/draftwick.h>

#include <exception>
#include <iostream>

using namespace draftwick;

namespace {

constexpr const char* Entries[] = {
    "3 January. Wind from the north-west, cloud at noon. Two colliers and a brig passed inside the bank; the "
    "brig showed no light. Trimmed the wicks at four and wound the clock. The hens do not lay.",
    "9 January. Fog since Tuesday. Rang the bell every two minutes by turns with my wife, who says that I "
    "ring it too fast. Heard oars about midnight and called; a voice asked the way to the Hook and did not "
    "wait for the answer.",
    "17 January. Clear, hard frost. Counted forty sail from the gallery. The supply boat brought oil, flour, "
    "a letter for the keeper before me and no tobacco.",
    "2 February. Gale. The spray froze on the panes and had to be scraped off from outside, on a rope. Light "
    "burning all night. One pane cracked.",
    "11 February. The hens lay. Sold six eggs to the pilot, who paid in tobacco.",
    "24 February. Inspector on the rock for two hours. He found the brass bright and the log too long.",
    "6 March. Fair.",
    "19 March. First swallow, or a bat. Painted the boat and, while there was paint, the door, the bench and "
    "one of the hens, which had sat on it.",
};

// [header]
// Headers and footers belong to a section and come before its text. The first page has its own once TitlePage is on.
void AddHeaders(Section& section) {
    section.AddHeader(dwHeader)->AddParagraph("Running title", "The lighthouse keeper’s log");
    auto footer = section.AddHeader(dwFooter)->AddParagraph("Running title", "Page ");
    footer->AddField("PAGE", "1");  // readers compute it; 1 is shown until they do
}
// [header]

void AddStyles(Document& document) {
    document.Fonts()->Add("Times New Roman")->SetFamily(dwRoman);
    document.SetDefaultFontName("Times New Roman");
    auto normal = document.ParagraphStyles()->Add("Normal");
    normal->FontFormat()->SetSize(10);
    normal->Format()->SetSpaceAfter(5);
    const auto add = [&](const char* name, dwParagraphAlign align, double size) {
        auto style = document.ParagraphStyles()->Add(name);
        style->SetBasedOn("Normal");
        style->Format()->SetAlign(align);
        style->FontFormat()->SetSize(size);
    };
    add("Cover", dwAlignCenter, 22);
    document.ParagraphStyles()->Items("Cover")->Format()->SetSpaceBefore(170);
    add("Entry", dwAlignLeft, 12.5);
    add("Running title", dwAlignCenter, 8.5);
}

void WritePages(const char* filename) {
    auto document = Document::Create();
    document->SetFilename(filename);
    document->SetSpelling(dwSpellingStandard);
    // [paper]
    document->SetPaperSize(dwPaperA5);
    document->SetMarginTop(0.9);  // inches, unless it has a unit of its own: 2.3_cm
    document->SetMarginBottom(0.9);
    document->SetMarginLeft(0.7);
    document->SetMarginRight(0.7);
    // [paper]
    AddStyles(*document);

    // [sections]
    // A section starts with the document's page and can have another. Its settings are written when it gets its first
    // header, paragraph or row.
    auto cover = document->AddSection();
    cover->SetTitlePage(true);
    cover->AddHeader(dwFooterFirst)->AddParagraph("Running title", "Not to be taken ashore");
    cover->AddParagraph("Cover", "The lighthouse keeper’s log");
    cover->AddParagraph("Running title", "January to March");

    auto log = document->AddSection();
    log->SetHeaderY(0.4);
    log->SetFooterY(0.4);
    log->Columns()->Auto(2, 0.3);
    log->Columns()->SetLineBetween(true);
    AddHeaders(*log);
    for (const char* entry : Entries) log->AddParagraph("Entry", entry);
    // [sections]
    document->Finish();
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::cerr << "usage: pages OUTPUT.rtf\n";
        return 2;
    }
    try {
        WritePages(argv[1]);
    } catch (const std::exception& error) {
        std::cerr << "pages: " << error.what() << '\n';
        return 1;
    }
}
