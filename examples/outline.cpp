// Lists: a numbered one of three levels, a bulleted one, and one that counts on in the look of another.
//
// usage: outline OUTPUT.rtf
#include <draftwick/draftwick.h>

#include <exception>
#include <iostream>

using namespace draftwick;

namespace {

// A list says how the numbers of its nine levels look. In a format, \L1 to \L9 stand for the current numbers of the
// levels 1 to 9.
void AddLists(Document& document) {
    auto agenda = document.Lists()->Add("Agenda");
    agenda->Levels(1)->FontFormat()->SetBold(true);  // 1. by default
    agenda->Levels(2)->SetFormat("\\L1.\\L2");
    agenda->Levels(2)->SetTabPosition(0.8);
    agenda->Levels(3)->SetFormat("(\\L3)");
    agenda->Levels(3)->SetStyle(dwLNSLetterLower);
    agenda->Levels(3)->SetTabPosition(1.2);

    auto things = document.Lists()->Add("Things");
    things->Levels(1)->SetStyle(dwLNSBullet);
    things->Levels(1)->SetFormat("•");
    things->Levels(1)->SetTabPosition(0.5);

    auto roman = document.Lists()->Add("Roman");
    roman->Levels(1)->SetStyle(dwLNSRomanUpper);
    roman->Levels(1)->SetFormat("\\L1 –");
    roman->Levels(1)->SetFollow(dwLNFSpace);
}

// The number stands at the indent of the first line and its text at the level's tab position, which is also the indent
// of the other lines.
void AddStyle(Document& document, const char* name, double indent, double hanging) {
    auto style = document.ParagraphStyles()->Add(name);
    style->Format()->SetIndentLeft(indent);
    style->Format()->SetIndentFirst(-hanging);
    style->Format()->SetSpaceAfter(3);
}

// A paragraph joins a list by name and says its level. The number needs no text: it comes with the list.
void AddItem(Section& section, const char* style, const char* list, int level, const char* text) {
    auto paragraph = section.AddParagraph(style);
    paragraph->Format()->SetListName(list);
    paragraph->Format()->SetListLevel(level);
    paragraph->AddText(text);
}

void WriteOutline(const char* filename) {
    auto document = Document::Create();
    document->SetFilename(filename);
    document->SetSpelling(dwSpellingStandard);
    document->SetMarginLeft(1);
    document->SetMarginRight(1);
    document->Fonts()->Add("Georgia")->SetFamily(dwRoman);
    document->Fonts()->Items("Georgia")->SetAltName("Liberation Serif");
    document->SetDefaultFontName("Georgia");
    AddLists(*document);

    auto heading = document->ParagraphStyles()->Add("Heading");
    heading->FontFormat()->SetSize(18);
    heading->FontFormat()->SetBold(true);
    heading->Format()->SetSpaceAfter(10);
    heading->Format()->SetOutlineLevel(1);
    AddStyle(*document, "Item 1", 0.25, 0.25);
    AddStyle(*document, "Item 2", 0.8, 0.5);
    AddStyle(*document, "Item 3", 1.2, 0.4);
    AddStyle(*document, "Bullet", 0.5, 0.25);

    auto section = document->AddSection();
    section->AddParagraph("Heading", "Readers’ meeting");
    AddItem(*section, "Item 1", "Agenda", 1, "Welcome and minutes of the last meeting");
    AddItem(*section, "Item 1", "Agenda", 1, "The year in the house");
    AddItem(*section, "Item 2", "Agenda", 2, "Loans, visits, losses");
    AddItem(*section, "Item 3", "Agenda", 3, "the missing atlas");
    AddItem(
        *section, "Item 3", "Agenda", 3,
        "the atlas that nobody missed, which came back by post after eleven years with a note that asked for "
        "its fine in instalments");
    AddItem(*section, "Item 2", "Agenda", 2, "The lift");
    AddItem(*section, "Item 3", "Agenda", 3, "offers");  // letters start again below each number
    AddItem(*section, "Item 1", "Agenda", 1, "Thanks to those who carried books");

    // The agenda counts on, in the look of another list: IV instead of 4.
    auto last = section->AddParagraph("Item 1");
    last->Format()->SetListName("Agenda");
    last->Format()->SetListFormatName("Roman");
    last->AddText("Any other business");

    auto bring = section->AddParagraph();
    bring->Format()->SetSpaceBefore(8);
    bring->Format()->SetSpaceAfter(3);
    bring->AddText("Please bring");
    AddItem(*section, "Bullet", "Things", 1, "your reader’s card");
    AddItem(*section, "Bullet", "Things", 1, "a chair, if you are more than forty");

    document->Finish();
    std::cout << "written: " << document->ActualFileName() << '\n';
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::cerr << "usage: outline OUTPUT.rtf\n";
        return 2;
    }
    try {
        WriteOutline(argv[1]);
    } catch (const std::exception& error) {
        std::cerr << "outline: " << error.what() << '\n';
        return 1;
    }
}
