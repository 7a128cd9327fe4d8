// Errors: what the library refuses, what it says, and how to go on.
//
// usage: errors OUTPUT.rtf
#include <draftwick/draftwick.h>

#include <exception>
#include <filesystem>
#include <iostream>
#include <string>
#include <system_error>

using namespace draftwick;

namespace {

// [refusal]
/// What a call is refused with. A refusal changes nothing: the document goes on as it was.
std::string Refusal(void (*call)(Paragraph&), Paragraph& paragraph) {
    try {
        call(paragraph);
    } catch (const Error& error) {
        return std::to_string(error.Number()) + ", " + error.what();
    }
    return "accepted";
}

struct Case {
    const char* what;
    void (*call)(Paragraph&);
};
const Case Cases[] = {
    {"an alignment that does not exist", [](Paragraph& p) { p.Format()->SetAlign(dwParagraphAlign{7}); }},
    {"an indent of 1000 inches", [](Paragraph& p) { p.Format()->SetIndentLeft(1000); }},
    {"a style that does not exist", [](Paragraph& p) { p.SetStyleName("Sonnet"); }},
    {"a font that was not added", [](Paragraph& p) { p.FontFormat()->SetFontName("Courier"); }},
    {"the seventh border of six", [](Paragraph& p) { p.Borders()->Items(dwParagraphBorder{7}); }},
    {"a change after the first text",
     [](Paragraph& p) {
         p.AddText("Written: ");
         p.Format()->SetAlign(dwAlignRight);
     }},
};
// [refusal]

// [retry]
/// A failure of the file system leaves the document unfinished. Once the cause is gone, Finish can be called again and
/// writes the whole file.
void FinishAtLast(Document& document) {
    try {
        document.Finish();
    } catch (const std::system_error& error) {
        std::cout << error.what() << '\n';  // says what could not be done, with which file, and why
        std::filesystem::remove(document.Filename());
        document.Finish();
    }
}
// [retry]

void WriteErrors(const std::string& filename) {
    auto document = Document::Create();
    document->SetFilename(filename);
    document->SetSpelling(dwSpellingStandard);
    document->Fonts()->Add("Arial")->SetFamily(dwSwiss);
    document->SetDefaultFontName("Arial");
    auto normal = document->ParagraphStyles()->Add("Normal");
    normal->FontFormat()->SetSize(11);
    normal->Format()->SetSpaceAfter(6);

    auto section = document->AddSection();
    for (const Case& one : Cases) {
        auto paragraph = section->AddParagraph("Normal");
        const std::string refusal = Refusal(one.call, *paragraph);
        paragraph->AddTextItem(one.what)->FontFormat()->SetBold(true);
        paragraph->AddText(": " + refusal);
    }

    // A folder stands where the file is to go.
    std::filesystem::remove(filename);
    std::filesystem::create_directory(filename);
    FinishAtLast(*document);
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::cerr << "usage: errors OUTPUT.rtf\n";
        return 2;
    }
    try {
        WriteErrors(argv[1]);
    } catch (const std::exception& error) {
        std::cerr << "errors: " << error.what() << '\n';
        return 1;
    }
}
