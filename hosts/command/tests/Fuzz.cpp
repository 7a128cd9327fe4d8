// Four libFuzzer targets for what the command reads: FUZZED is one of the functions below. What must hold, whatever the
// bytes: no undefined behaviour, nothing but failures that say where, and every document that comes out is one whole.

#include "hosts/command/JsonDocument.h"
#include "hosts/command/Rows.h"
#include "hosts/command/Writer.h"
#include "tests/support/FakePlatform.h"
#include "tests/support/Rtf.h"

#include <cstdio>
#include <cstdlib>

using namespace draftwick;
using namespace draftwick::command;

namespace {

struct Output {
    std::shared_ptr<test::MemoryFiles> files = std::make_shared<test::MemoryFiles>();
    std::shared_ptr<Document> document = Document::Create(test::MakeFakePlatform(files));

    Output() {
        document->SetSpelling(dwSpellingStandard);
        document->SetFilename("out.rtf");
    }
    void Finish() {
        document->Finish();
        const std::string complaint = test::CheckFile(files->Bytes("out.rtf"), test::LineBreaks::Any);
        if (complaint.empty()) return;
        std::fprintf(stderr, "%s\n", complaint.c_str());
        std::abort();
    }
};

void Write(const std::string& markdown, const command::Style& style, bool merging, const Datum* row) {
    const Manuscript manuscript(markdown, "in.md", merging);
    Output output;
    style.Prepare(output.document);
    output.document->SetScaleMode(dwInches);
    const Extras extras{.contents = true, .sectionNumbers = true};
    Writer writer(manuscript, style, extras, output.document);
    writer.Write(row);
    writer.Write(row);
    output.Finish();
}

/// The first byte says whether there are tags; then they find values of each kind.
[[maybe_unused]] void FuzzMarkdown(const std::string& text) {
    static const command::Style style;
    static const Datum row{Datum::Kind::Row,
                           {},
                           {{"a", {Datum::Kind::Scalar, "x}{*"}},
                            {"b",
                             {Datum::Kind::List,
                              {},
                              {{"", {Datum::Kind::Row, {}, {{"c", {Datum::Kind::Scalar, "1"}}}}},
                               {"", {Datum::Kind::Scalar, "2"}}}}}}};
    const bool merging = !text.empty() && text[0] % 2 != 0;
    Write(text.empty() ? text : text.substr(1), style, merging, merging ? &row : nullptr);
}

[[maybe_unused]] void FuzzJson(const std::string& text) {
    // What a document says is written as it is can be anything.
    if (text.find("Raw") != text.npos || text.find("Special") != text.npos) return;
    Input input(text, "in.json");
    Output output;
    FillFromJson(input, output.document);
    output.Finish();
}

[[maybe_unused]] void FuzzStyle(const std::string& text) {
    Input input(text, "style.json");
    command::Style style;
    style.Add(input);
    Write("# a\n\n1. *b* `c`\n\n> d\n\n| e |\n| - |\n| f |\n\n[g](h)\n", style, false, nullptr);
}

/// Rows of CSV and of JSON.
[[maybe_unused]] void FuzzCsv(const std::string& text) {
    Input input(text, "rows");
    const auto rows = OpenRows(input);
    Row row;
    for (std::int64_t number = 1; rows->Next(row); ++number) {
        if (row.number != number || row.line < 1 || row.line > input.Line()) std::abort();
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    try {
        FUZZED({reinterpret_cast<const char*>(data), size});
    } catch (const Failure& failure) {
        if (std::string_view{failure.what()}.find("error: ") == std::string_view::npos) std::abort();
    } catch (const Error& error) {
        // What shows only at the end of a document, like a style that is not there, has no place.
        if (error.what()[0] == '\0') std::abort();
    }
    return 0;
}
