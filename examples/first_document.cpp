// The first document: a title and a paragraph.
//
// usage: first_document OUTPUT.rtf
#include <exception>
#include <iostream>

// [document]
#include <draftwick/draftwick.h>
using namespace draftwick;

void WriteReport(const char* filename) {
    auto document = Document::Create();
    document->SetFilename(filename);
    document->SetSpelling(dwSpellingStandard);
    document->Fonts()->Add("Times New Roman")->SetFamily(dwRoman);
    document->SetDefaultFontName("Times New Roman");

    auto section = document->AddSection();
    auto title = section->AddParagraph();
    title->Format()->SetAlign(dwAlignCenter);
    title->FontFormat()->SetSize(18);
    title->AddText("Quarterly report");
    section->AddParagraph()->AddText("Sales rose by a tenth, complaints fell by half.");
    document->Finish();
}
// [document]

int main(int argc, char** argv) {
    if (argc != 2) {
        std::cerr << "usage: first_document OUTPUT.rtf\n";
        return 2;
    }
    try {
        WriteReport(argv[1]);
    } catch (const std::exception& error) {
        std::cerr << "first_document: " << error.what() << '\n';
        return 1;
    }
}
