// Text and what it looks like: fonts, sizes, colours, lines under letters, indents, tab stops, characters.
//
// usage: text OUTPUT.rtf
#include <draftwick/draftwick.h>

#include <exception>
#include <iostream>

using namespace draftwick;

namespace {

// [color]
// Colours are 32-bit numbers with red in the lowest byte.
constexpr std::int32_t Brick = Rgb(165, 60, 40);
// [color]

void WriteText(const char* filename) {
    auto document = Document::Create();
    document->SetFilename(filename);
    document->SetSpelling(dwSpellingStandard);

    // [fonts]
    // A font must be in the document before its name can be used. The family helps readers that do not have it.
    document->Fonts()->Add("Times New Roman")->SetFamily(dwRoman);
    document->Fonts()->Add("Arial")->SetFamily(dwSwiss);
    document->SetDefaultFontName("Times New Roman");
    // [fonts]

    // [units]
    // Lengths are in inches unless ScaleMode says otherwise. Sizes of fonts and the space between paragraphs are in
    // points whatever it says.
    document->SetScaleMode(dwPoints);
    document->SetMarginLeft(72);
    document->SetMarginRight(72);
    // [units]
    auto section = document->AddSection();

    // [paragraph]
    auto title = section->AddParagraph();
    title->FontFormat()->SetFontName("Arial");
    title->FontFormat()->SetSize(20);
    title->FontFormat()->SetBold(true);
    title->Format()->SetSpaceAfter(10);
    title->AddText("The kiln");

    auto text = section->AddParagraph();
    text->Format()->SetAlign(dwAlignJustify);
    text->Format()->SetSpaceAfter(8);
    text->Format()->SetLineSpacingMultiple(1.2);
    // [paragraph]

    // [runs]
    text->AddText("A kiln is heated ");
    text->AddTextItem("slowly")->FontFormat()->SetItalic(true);
    text->AddText(": the first hundred degrees take an hour. ");
    auto warning = text->AddTextItem("Never open it above 200 °C.");
    warning->FontFormat()->SetBold(true);
    warning->FontFormat()->SetColor(Brick);
    text->AddText(" Water leaves the clay as steam, H");
    auto two = text->AddTextItem("2");
    two->FontFormat()->SetSubscript(true);
    text->AddText("O and nothing else; what ");
    text->AddTextItem("else")->FontFormat()->SetUnderline(dwUnderlineWave);
    text->AddText(" there is burns off later.");
    // [runs]

    // [indents]
    auto hint = section->AddParagraph();
    hint->Format()->SetIndentLeft(36);
    hint->Format()->SetIndentFirst(-18);
    hint->Format()->SetSpaceAfter(8);
    hint->FontFormat()->SetSize(11);
    hint->AddText(
        "– Wear gloves, and goggles too. A second line of a paragraph whose first line is indented to "
        "the left begins further in than the first.");

    for (const char* line : {"Biscuit\t1,000 °C\t9 hours", "Glaze\t1,240 °C\t12 hours"}) {
        auto row = section->AddParagraph();
        row->TabStops()->Add(150, dwTabRight, dwTabLeaderDots);
        row->TabStops()->Add(200, dwTabLeft, dwTabLeaderNone);
        row->AddText(line);
    }
    // [indents]

    // [characters]
    // The program's text is UTF-8. "\n" is a line break within a paragraph; braces and backslashes need no care.
    auto last = section->AddParagraph();
    last->Format()->SetSpaceBefore(8);
    last->AddText("Žofie’s price: 12 € {each} — “ask” at C:\\shop.\n");
    last->AddText("All alphabets are at home in the file: αβγ, абв.");
    // [characters]

    document->Finish();
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::cerr << "usage: text OUTPUT.rtf\n";
        return 2;
    }
    try {
        WriteText(argv[1]);
    } catch (const std::exception& error) {
        std::cerr << "text: " << error.what() << '\n';
        return 1;
    }
}
