// The answers of the page "How do I ...?" that have to do with memory, servers, threads and failures.
//
// usage: how_do_i_deliver OUTPUT.rtf
#include <draftwick/draftwick.h>

#include <exception>
#include <fstream>
#include <future>
#include <iostream>
#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>

using namespace draftwick;

namespace {

// [memory]
/// A document as a string. Nothing is written to any folder.
std::string MakeLetter(const std::string& name) {
    auto document = Document::Create();
    document->SetBodyInMemory(true);
    document->SetSpelling(dwSpellingStandard);
    document->AddSection()->AddParagraph("", "Dear " + name + ",");
    std::ostringstream bytes;
    document->FinishTo(bytes);
    return bytes.str();
}
// [memory]

// [sink]
/// Passes a document on piece by piece, to a socket, a compressor or a checksum. An exception of the function is what
/// FinishTo throws; the document can then be finished into another.
std::size_t SizeOf(Document& document) {
    std::size_t size = 0;
    document.FinishTo([&](std::string_view bytes) { size += bytes.size(); });
    return size;
}
// [sink]

// [threads]
/// One thread uses one document at a time; different documents need no locks.
std::vector<std::string> MakeLetters(const std::vector<std::string>& names) {
    std::vector<std::future<std::string>> letters;
    for (const std::string& name : names) letters.push_back(std::async(std::launch::async, MakeLetter, name));
    std::vector<std::string> made;
    for (auto& letter : letters) made.push_back(letter.get());  // throws what its document threw
    return made;
}
// [threads]

// [exception]
/// Whatever is thrown here, no file is left behind: neither under the name nor a temporary one.
void WriteReport(const std::string& filename, bool fails) {
    auto document = Document::Create();
    document->SetDiscardOnRelease(true);
    document->SetFilename(filename);
    document->SetSpelling(dwSpellingStandard);
    document->AddSection()->AddParagraph("", "Half of the report");
    if (fails) throw std::runtime_error("the database is gone");
    document->Finish();
}
// [exception]

// [advice]
/// Tells what was wrong and what to do: "Cell.Width 200 inches: give -22.75 to 22.75 (ScaleMode is dwInches)".
void Explain(const std::exception& failure) {
    if (const auto* error = dynamic_cast<const Error*>(&failure)) {
        std::cout << error->what() << "\n  " << error->Advice() << '\n';
    } else if (const auto* file = dynamic_cast<const FileError*>(&failure)) {
        std::cout << "look at " << file->Filename() << ": " << file->what() << '\n';
    }
}
// [advice]

void WriteAnswers(const std::string& filename) {
    auto document = Document::Create();
    document->SetFilename(filename);
    document->SetSpelling(dwSpellingStandard);
    auto paragraph = document->AddSection()->AddParagraph("", "Delivered");
    // [remove]
    auto frame = paragraph->AddShape(dwSKPictureFrame);
    frame->Fill()->SetPicture("of-a-customer.jpg");
    try {
        paragraph->AddText(" with its picture.");  // the call that writes the picture
    } catch (const Error& error) {
        Explain(error);
        frame->Remove();
        paragraph->AddText(" without its picture.");
    }
    // [remove]
    // [discard]
    auto draft = Document::Create();
    draft->AddSection()->AddParagraph("", "Nobody wants this.");
    draft->Discard();  // deletes the temporary file; the document can no longer be used
    // [discard]
    for (const std::string& letter : MakeLetters({"Ms Łukasik", "Mr Ιωάννου"})) {
        document->CurrentSection()->AddParagraph("", std::to_string(letter.size()) + " bytes");
    }
    auto measured = Document::Create();
    measured->SetBodyInMemory(true);
    if (SizeOf(*measured) == 0) throw std::logic_error("a document has bytes");
    const std::string report = filename + ".report.rtf";
    try {
        WriteReport(report, true);
    } catch (const std::runtime_error& error) {
        if (std::ifstream(report)) throw std::logic_error("the report is there");
    }
    document->Finish();

    auto classic = Document::Create();  // in the classic spelling, which is the default
    classic->SetFilename(filename + ".classic.rtf");
    classic->AddSection()->AddParagraph("", "Łódź");
    // [lost]
    classic->Finish();
    if (classic->LostCharacters() > 0) std::cout << classic->LostCharacters() << " characters became '?'\n";
    // [lost]
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::cerr << "usage: how_do_i_deliver OUTPUT.rtf\n";
        return 2;
    }
    try {
        WriteAnswers(argv[1]);
    } catch (const std::exception& error) {
        Explain(error);
        return 1;
    }
}
