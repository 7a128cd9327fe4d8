// A business letter, built through the object model.
//
// usage: letter OUTPUT.rtf
#include <draftwick/draftwick.h>

#include <exception>
#include <iostream>

using namespace draftwick;

namespace {

// The look of the letter, in one place: paragraphs refer to these styles by name.
void AddStyles(Document& document) {
    document.Fonts()->Add("Georgia")->SetFamily(dwRoman);
    document.SetDefaultFontName("Georgia");

    auto body = document.ParagraphStyles()->Add("Letter");
    body->FontFormat()->SetSize(11);
    body->Format()->SetSpaceAfter(8);
    body->Format()->SetLineSpacingMultiple(1.15);

    auto address = document.ParagraphStyles()->Add("Address");
    address->SetBasedOn("Letter");
    address->Format()->SetSpaceAfter(0);

    auto subject = document.ParagraphStyles()->Add("Subject");
    subject->SetBasedOn("Letter");
    subject->FontFormat()->SetBold(true);
    subject->Format()->SetSpaceBefore(18);

    // A text style has a size of its own.
    auto title = document.TextStyles()->Add("Title");
    title->FontFormat()->SetSize(11);
    title->FontFormat()->SetItalic(true);
}

void WriteLetter(const char* filename) {
    auto document = Document::Create();
    document->SetFilename(filename);
    document->SetSpelling(dwSpellingStandard);
    document->SetMarginLeft(1.1);
    document->SetMarginRight(1.1);
    document->SetMarginTop(1);
    AddStyles(*document);

    auto section = document->AddSection();
    section->AddParagraph("Address", "Fenwick & Daughters, bookbinders")->AddText("\n12 Mill Lane\nAshford");

    // What differs from the style is set on the paragraph, before it gets its text.
    auto date = section->AddParagraph("Letter");
    date->Format()->SetAlign(dwAlignRight);
    date->AddText("3 March");

    section->AddParagraph("Address", "Mrs. Zoë Müller");
    section->AddParagraph("Address", "Municipal Library, Castle Street 4");
    section->AddParagraph("Subject", "Repair of nine volumes — our offer");
    section->AddParagraph("Letter", "Dear Mrs. Müller,");

    auto offer = section->AddParagraph("Letter", "thank you for letting us see the nine volumes of the ");
    offer->AddText("Ashford Chronicle", "Title");
    offer->AddText(". Three of them need new spines, the others only their corners mended. We offer the "
                   "whole work for €1,240 and need “about six weeks”, as you asked.");

    auto closing =
        section->AddParagraph("Letter", "We would fetch the books ourselves: they should not travel "
                                        "in the post in ");
    auto stress = closing->AddTextItem("their");
    stress->FontFormat()->SetUnderline(dwUnderlineSingle);
    closing->AddText(" condition.");

    section->AddParagraph("Letter", "Yours sincerely,");
    auto name = section->AddParagraph("Letter");
    name->Format()->SetSpaceBefore(24);
    name->AddText("Ada Fenwick");

    document->Finish();
    std::cout << "written: " << document->ActualFileName() << '\n';
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::cerr << "usage: letter OUTPUT.rtf\n";
        return 2;
    }
    try {
        WriteLetter(argv[1]);
    } catch (const std::exception& error) {
        std::cerr << "letter: " << error.what() << '\n';
        return 1;
    }
}
