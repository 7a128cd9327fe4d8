#include "hosts/command/Merge.h"

#include <cctype>
#include <cerrno>
#include <cstdio>
#include <system_error>

namespace draftwick::command {

namespace {

/// "a4", which is dwPaperA4, or "20cmx15cm".
void SetPage(const std::shared_ptr<Document>& document, std::string page) {
    const std::size_t by = page.find('x');
    try {
        if (by != page.npos) {
            Member(document, "PageWidth").Set(page.substr(0, by));
            Member(document, "PageHeight").Set(page.substr(by + 1));
        } else {
            std::string name = page;
            name[0] = static_cast<char>(std::toupper(static_cast<unsigned char>(name[0])));
            Member(document, "PaperSize").Set("dwPaper" + name);
        }
    } catch (const std::exception&) {
        throw UsageError("--page is a3, a4, a5, letter, legal or WIDTHxHEIGHT as in 20cmx15cm, not "
                         + Quoted(page));
    }
}

}  // namespace

std::shared_ptr<Document> NewDocument(const Options& options, const Style* style, const std::string& output) {
    auto document = Document::Create();
    document->SetSpelling(options.classic ? dwSpellingClassic : dwSpellingStandard);
    document->SetDiscardOnRelease(true);
    // A row of many is small.
    document->SetBodyInMemory(options.ManyFiles());
    // A name of less than four characters is refused.
    if (output != "-") document->SetFilename(output.size() < 4 && !output.empty() ? "././" + output : output);
    if (style != nullptr) style->Prepare(document);
    document->SetScaleMode(dwInches);
    if (!options.page.empty()) SetPage(document, options.page);
    return document;
}

void WriteDocument(const Manuscript& manuscript, const Style& style, const Options& options,
                   const std::string& output, const Datum* row) {
    const auto document = NewDocument(options, &style, output);
    Writer(manuscript, style, options.extras, document).Write(row);
    Deliver(*document, output);
}

void Deliver(Document& document, const std::string& output) {
    if (output != "-") {
        document.Finish();
        return;
    }
    const auto check = [](bool written) {
        if (!written) throw std::system_error(errno, std::generic_category(), "cannot write standard output");
    };
    document.FinishTo([&](std::string_view bytes) {
        check(std::fwrite(bytes.data(), 1, bytes.size(), stdout) == bytes.size());
    });
    check(std::fflush(stdout) == 0);
}

}  // namespace draftwick::command
