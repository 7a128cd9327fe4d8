// Styles: the look of a document in one place, by name.
//
// usage: styles OUTPUT.rtf
#include <draftwick/draftwick.h>

#include <exception>
#include <iostream>

using namespace draftwick;

namespace {

constexpr std::int32_t Teal = Rgb(18, 106, 110);

// [styles]
void AddStyles(Document& document) {
    auto styles = document.ParagraphStyles();

    // What all text has; the others are based on it.
    auto normal = styles->Add("Normal");
    normal->FontFormat()->SetSize(11);
    normal->Format()->SetSpaceAfter(6);

    // SetBasedOn copies what the other style has at that moment; what is set afterwards counts.
    auto body = styles->Add("Recipe");
    body->SetBasedOn("Normal");
    body->Format()->SetAlign(dwAlignJustify);

    auto dish = styles->Add("Dish");
    dish->SetBasedOn("Normal");
    dish->SetNextStyle("Recipe");  // what an editor gives to the next paragraph
    dish->FontFormat()->SetFontName("Arial");
    dish->FontFormat()->SetSize(16);
    dish->FontFormat()->SetColor(Teal);
    dish->Format()->SetKeepWithNext(true);
    dish->Format()->SetOutlineLevel(1);
    dish->Borders()->Items(dwPBorderBottom)->SetStyle(dwBSSingle);

    auto remark = styles->Add("Remark");
    remark->SetBasedOn("Recipe");
    remark->FontFormat()->SetItalic(true);
    remark->Format()->SetIndentLeft(0.4);
    remark->Format()->SetIndentRight(0.4);
    remark->Borders()->Items(dwPBorderLeft)->SetStyle(dwBSSingle);
    remark->Borders()->Items(dwPBorderLeft)->SetWidth(2);
    remark->Borders()->Items(dwPBorderLeft)->SetSpacing(8);

    // A text style is for a part of a paragraph. It has a size of its own.
    auto amount = document.TextStyles()->Add("Amount");
    amount->FontFormat()->SetSize(11);
    amount->FontFormat()->SetBold(true);
}
// [styles]

// [use]
void AddRecipe(Section& section) {
    section.AddParagraph("Dish", "Nettle soup");
    auto recipe = section.AddParagraph("Recipe", "Wash ");
    recipe->AddText("300 g", "Amount");
    recipe->AddText(" of young nettle tips and chop them. Fry an onion in butter, add the nettles and ");
    recipe->AddTextItem("a litre")->FontFormat()->SetBold(true);
    recipe->AddText(" of broth, and let it simmer for a quarter of an hour.");
    section.AddParagraph("Remark", "Gloves on until the water boils: after that the leaves are harmless.");

    // A paragraph can go its own way after it has taken its style.
    auto close = section.AddParagraph("Recipe");
    close->Format()->SetAlign(dwAlignRight);
    close->AddText("Serves four.");
}
// [use]

void WriteStyles(const char* filename) {
    auto document = Document::Create();
    document->SetFilename(filename);
    document->SetSpelling(dwSpellingStandard);
    document->SetMarginLeft(1.5);
    document->SetMarginRight(1.5);
    document->Fonts()->Add("Times New Roman")->SetFamily(dwRoman);
    document->Fonts()->Add("Arial")->SetFamily(dwSwiss);
    document->SetDefaultFontName("Times New Roman");
    AddStyles(*document);
    AddRecipe(*document->AddSection());
    document->Finish();
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::cerr << "usage: styles OUTPUT.rtf\n";
        return 2;
    }
    try {
        WriteStyles(argv[1]);
    } catch (const std::exception& error) {
        std::cerr << "styles: " << error.what() << '\n';
        return 1;
    }
}
