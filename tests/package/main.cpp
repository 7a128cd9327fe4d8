// A host as others write it: it knows the installed headers alone. Writes a document to the file in argument 1 and
// holds the library to what must work across the border of a shared one: errors keep their type, objects theirs, and
// the host's own classes can stand in for the system's.
#include <draftwick/draftwick.h>
#include <draftwick/platform/Platform.h>

#include <iostream>
#include <string>

using namespace draftwick;

namespace {

class CountingLog final : public platform::EventLog {
public:
    void Report(std::string_view) noexcept override { ++reports; }
    int reports = 0;
};

bool RefusalsKeepTheirType(Section& section) {
    CountingLog log;
    platform::SetEventLog(&log);
    SetErrorLogging(true);
    bool caught = false;
    try {
        section.SetBreak(static_cast<dwSectionBreak>(99));
    } catch (const Error& error) {
        caught = error.Number() == dwErrPropertyOutOfRange;
    }
    SetErrorLogging(false);
    platform::SetEventLog(nullptr);
    return caught && log.reports == 1;
}

bool ObjectsKeepTheirType(const std::shared_ptr<Object>& section, const std::shared_ptr<Document>& document) {
    try {
        dynamic_cast<Paragraph&>(*section);
        return false;
    } catch (const std::bad_cast&) {
        return dynamic_cast<Section*>(section.get()) != nullptr
               && std::dynamic_pointer_cast<Document>(section->Parent()) == document;
    }
}

}  // namespace

int main(int argc, char** argv) try {
    if (argc != 2) return 2;
    const auto document = Document::Create();
    document->SetFilename(argv[1]);
    document->Fonts()->Add("Georgia")->SetFamily(dwRoman);
    document->ParagraphStyles()->Add("Plain")->FontFormat()->SetSize(11);
    const auto section = document->AddSection();
    if (!RefusalsKeepTheirType(*section) || !ObjectsKeepTheirType(section, document)) return 1;

    for (const Class* one : Classes()) section->AddParagraph()->AddTextItem(one->name);
    const auto paragraph = section->AddParagraph();
    paragraph->SetStyleName("Plain");
    paragraph->Borders()->Items(dwPBorderTop)->SetStyle(dwBSSingle);
    Set(*paragraph->Format(), "Align", dwAlignCenter);
    paragraph->AddField("PAGE", "1");
    paragraph->AddFootnote()->AddParagraph()->AddTextItem("a note");
    paragraph->AddShape(dwSKEllipse)->AddParagraph()->AddTextItem("a shape");
    section->AddTable()->AddCell()->AddParagraph()->AddTextItem("a cell");
    document->Finish();
} catch (const std::exception& error) {
    std::cerr << error.what() << '\n';
    return 1;
}
