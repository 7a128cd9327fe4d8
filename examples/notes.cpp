// Notes and bookmarks: a footnote, endnotes at the end, and a reference to a marked place.
//
// usage: notes OUTPUT.rtf
#include <draftwick/draftwick.h>

#include <exception>
#include <iostream>

using namespace draftwick;

namespace {

// [note]
// Readers count the notes. The number stands where the text refers to the note, and once more where the note begins.
void AddNumber(Paragraph& paragraph) {
    auto number = paragraph.AddTextItem("");
    number->FontFormat()->SetSuperscript(true);
    number->AddSpecial(Special::Footnote());
}

void AddNote(Paragraph& paragraph, const char* text, bool isEndnote = false) {
    AddNumber(paragraph);
    auto note = paragraph.AddFootnote(isEndnote)->AddParagraph("Normal");
    note->FontFormat()->SetSize(9);
    AddNumber(*note);
    note->AddText(" ");
    note->AddText(text);
}
// [note]

void WriteNotes(const char* filename) {
    auto document = Document::Create();
    document->SetFilename(filename);
    document->SetSpelling(dwSpellingStandard);
    // [settings]
    document->SetEndnoteFormat(dwFFRomanLower);
    document->SetEndnoteLocation(dwELDocument);
    // [settings]
    document->SetPageWidth(5.83);
    document->SetPageHeight(4.5);
    document->Fonts()->Add("Times New Roman")->SetFamily(dwRoman);
    document->SetDefaultFontName("Times New Roman");
    auto normal = document->ParagraphStyles()->Add("Normal");
    normal->FontFormat()->SetSize(11);
    normal->Format()->SetSpaceAfter(6);

    auto section = document->AddSection();
    // [text]
    auto first = section->AddParagraph("Normal", "The town bought its first fire engine in ");
    // A bookmark has a start and an end with the same name.
    first->AddBookmark("engine");
    first->AddText("1862");
    first->AddBookmark("engine", false);
    AddNote(*first, "It was drawn by the mayor’s horses, and by the mayor when they were out.");
    first->AddText(", second-hand, with forty buckets");
    AddNote(*first, "Council minutes, volume 7, page 112.", true);
    first->AddText(" and one hose.");

    auto second = section->AddParagraph(
        "Normal", "The hose was the one that had been lent out before. It came back three years after ");
    second->AddField("REF engine", "1862");  // what is between the two marks
    second->AddText(", patched in eleven places");
    AddNote(*second, "Nine, according to the brewery.");
    second->AddText(".");
    // [text]
    document->Finish();
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::cerr << "usage: notes OUTPUT.rtf\n";
        return 2;
    }
    try {
        WriteNotes(argv[1]);
    } catch (const std::exception& error) {
        std::cerr << "notes: " << error.what() << '\n';
        return 1;
    }
}
