// Lists: numbers on two levels, and bullets.
//
// usage: lists OUTPUT.rtf
#include <draftwick/draftwick.h>

#include <exception>
#include <iostream>

using namespace draftwick;

namespace {

// [lists]
// A list has nine levels. In a format, \L1 to \L9 stand for the current numbers of the levels.
void AddLists(Document& document) {
    auto steps = document.Lists()->Add("Steps");
    steps->Levels(1)->SetFormat("\\L1.");
    steps->Levels(1)->SetTabPosition(0.35);
    steps->Levels(1)->FontFormat()->SetBold(true);
    steps->Levels(2)->SetStyle(dwLNSLetterLower);
    steps->Levels(2)->SetFormat("\\L2)");
    steps->Levels(2)->SetTabPosition(0.7);

    auto tools = document.Lists()->Add("Tools");
    tools->Levels(1)->SetStyle(dwLNSBullet);
    tools->Levels(1)->SetFormat("•");
    tools->Levels(1)->SetTabPosition(0.35);
}
// [lists]

// [items]
// The number stands at the indent of the first line, the text at the level's tab position; the other lines of the
// item begin at the left indent.
void AddStyle(Document& document, const char* name, const char* list, int level, double indent) {
    auto style = document.ParagraphStyles()->Add(name);
    style->SetBasedOn("Normal");
    style->Format()->SetListName(list);
    style->Format()->SetListLevel(level);
    style->Format()->SetIndentLeft(indent);
    style->Format()->SetIndentFirst(-0.35);
}
// [items]

void WriteLists(const char* filename) {
    auto document = Document::Create();
    document->SetFilename(filename);
    document->SetSpelling(dwSpellingStandard);
    document->SetMarginLeft(1.5);
    document->SetMarginRight(1.5);
    document->Fonts()->Add("Arial")->SetFamily(dwSwiss);
    document->SetDefaultFontName("Arial");
    AddLists(*document);
    document->ParagraphStyles()->Add("Normal")->Format()->SetSpaceAfter(4);
    AddStyle(*document, "Step", "Steps", 1, 0.35);
    AddStyle(*document, "Substep", "Steps", 2, 0.7);
    AddStyle(*document, "Tool", "Tools", 1, 0.35);

    // [use]
    auto section = document->AddSection();
    section->AddParagraph("Normal", "To change a tyre you need");
    section->AddParagraph("Tool", "two tyre levers and a pump");
    section->AddParagraph("Tool", "a bowl of water, unless you can hear the hole");
    section->AddParagraph("Normal", "Then");
    section->AddParagraph("Step", "take the wheel out:");
    section->AddParagraph("Substep", "open the brake");
    section->AddParagraph("Substep",
                          "loosen the nuts by half a turn each, one after the other, until the wheel drops");
    section->AddParagraph("Step", "lift the tyre over the rim");
    section->AddParagraph("Step", "put the new tube in:");
    section->AddParagraph("Substep", "a breath of air in it keeps it from twisting");
    // [use]

    document->Finish();
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::cerr << "usage: lists OUTPUT.rtf\n";
        return 2;
    }
    try {
        WriteLists(argv[1]);
    } catch (const std::exception& error) {
        std::cerr << "lists: " << error.what() << '\n';
        return 1;
    }
}
