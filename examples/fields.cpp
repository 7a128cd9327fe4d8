// Fields, which readers compute, and document properties, which they show as information about the file.
//
// usage: fields OUTPUT.rtf
#include <draftwick/draftwick.h>

#include <exception>
#include <iostream>

using namespace draftwick;

namespace {

// [properties]
void AddProperties(Document& document) {
    auto properties = document.Properties();
    properties->Items(dwBIPTitle)->SetValue("Rules of the allotment");
    properties->Items(dwBIPAuthor)->SetValue("The committee");
    properties->Items(dwBIPCreationTime)->SetValue(Date{2026, 4, 1, 9, 30, 0});
    properties->Add("Plots", 64);  // one of our own
}
// [properties]

void AddStyles(Document& document) {
    document.Fonts()->Add("Times New Roman")->SetFamily(dwRoman);
    document.SetDefaultFontName("Times New Roman");
    auto normal = document.ParagraphStyles()->Add("Normal");
    normal->FontFormat()->SetSize(11);
    normal->Format()->SetSpaceAfter(6);
    auto heading = document.ParagraphStyles()->Add("Heading 1");
    heading->SetBasedOn("Normal");
    heading->FontFormat()->SetSize(15);
    heading->Format()->SetOutlineLevel(1);
    auto contents = document.ParagraphStyles()->Add("Contents");
    contents->SetBasedOn("Normal");
    contents->TabStops()->Add(4.2, dwTabRight, dwTabLeaderDots);
}

void WriteFields(const char* filename) {
    auto document = Document::Create();
    document->SetFilename(filename);
    document->SetSpelling(dwSpellingStandard);
    document->SetPageWidth(5.83);
    document->SetPageHeight(4.1);
    document->SetMarginBottom(0.9);
    AddStyles(*document);
    AddProperties(*document);
    auto section = document->AddSection();

    // [footer]
    // A field is an instruction and the text that is shown until a reader carries it out. Some readers never do.
    auto footer = section->AddHeader(dwFooter)->AddParagraph("Normal");
    footer->Format()->SetAlign(dwAlignCenter);
    footer->AddField("TITLE", "Rules of the allotment");
    footer->AddText(" · page ");
    footer->AddField("PAGE", "1");
    footer->AddText(" of ");
    footer->AddField("NUMPAGES", "2");
    // [footer]

    // [contents]
    section->AddParagraph("Heading 1", "Rules of the allotment");
    auto contents = section->AddParagraph("Contents");
    contents->AddField("TOC \\o \"1-1\"", "Water\t2");

    auto reference = section->AddParagraph("Normal", "What the pump may be used for stands on page ");
    reference->AddField("PAGEREF water", "2");
    reference->AddText(". As of ");
    reference->AddField("DATE", "1 April 2026")->SetDatePicture("d MMMM yyyy");
    reference->AddText(" it is locked at night.");

    auto heading = section->AddParagraph("Heading 1");
    heading->Format()->SetPageBreakBefore(true);
    heading->AddBookmark("water");
    heading->AddText("Water");
    heading->AddBookmark("water", false);
    // [contents]
    section->AddParagraph("Normal", "For plants, hands and the coffee of the committee.");
    document->Finish();
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::cerr << "usage: fields OUTPUT.rtf\n";
        return 2;
    }
    try {
        WriteFields(argv[1]);
    } catch (const std::exception& error) {
        std::cerr << "fields: " << error.what() << '\n';
        return 1;
    }
}
