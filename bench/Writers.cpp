// What the parts of the library cost that every document goes through.
#include "Allocations.h"

#include <draftwick/draftwick.h>
#include <draftwick/platform/Platform.h>
#include <draftwick/rtf/Output.h>
#include <draftwick/text/Escape.h>

#include <benchmark/benchmark.h>

#include <string>

using namespace draftwick;

namespace {

/// Files that take everything and keep nothing.
class NoFile final : public platform::File {
public:
    std::size_t Write(const char*, std::size_t size, std::error_code& error) override {
        error.clear();
        return size;
    }
    std::size_t Read(char*, std::size_t, std::error_code& error) override {
        error.clear();
        return 0;
    }
    void Close(std::error_code& error) override { error.clear(); }
};

std::string Mixed(std::size_t size) {
    std::string text;
    while (text.size() < size) text += "plain words and a caf\u00e9, \u201cquoted\u201d \u2014 then {more}. ";
    return text;
}

void ControlWords(benchmark::State& state) {
    BlockWriter stream(std::make_unique<NoFile>(), "nowhere");
    Output output;
    output.SetStream(&stream);
    for (auto _ : state) {
        output.WriteControlWord("pard");
        output.WriteControlWord("fs", 24);
        output.WriteControlWord("li", -360);
    }
    state.SetItemsProcessed(state.iterations() * 3);
}
BENCHMARK(ControlWords);

void Text(benchmark::State& state, const std::string& text) {
    BlockWriter stream(std::make_unique<NoFile>(), "nowhere");
    Output output;
    output.SetStream(&stream);
    for (auto _ : state) output.WriteText(text);
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(text.size()));
}
BENCHMARK_CAPTURE(Text, ascii, std::string(1 << 20, 'a'));
BENCHMARK_CAPTURE(Text, mixed, Mixed(1 << 20));

void Escape(benchmark::State& state, const std::string& text) {
    std::string escaped;
    for (auto _ : state) {
        escaped.clear();
        AppendEscaped(escaped, text);
        benchmark::DoNotOptimize(escaped.data());
    }
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(text.size()));
}
BENCHMARK_CAPTURE(Escape, ascii, std::string(1 << 20, 'a'));
BENCHMARK_CAPTURE(Escape, mixed, Mixed(1 << 20));

void Paragraphs(benchmark::State& state) {
    auto document = Document::Create();
    auto section = document->AddSection();
    for (auto _ : state) section->AddParagraph()->AddTextItem("a paragraph with one run");
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK(Paragraphs);

/// How many allocations a paragraph with one run takes, from its creation to its end.
void Allocations(benchmark::State& state) {
    auto document = Document::Create();
    auto section = document->AddSection();
    section->AddParagraph()->AddTextItem("the first one writes the section, too");
    const std::int64_t before = CountAllocations();
    for (auto _ : state) section->AddParagraph()->AddTextItem("a paragraph with one run");
    const std::int64_t counted = CountAllocations() - before;
    state.counters["allocations"] = static_cast<double>(counted) / static_cast<double>(state.iterations());
}
BENCHMARK(Allocations)->Iterations(10000);

}  // namespace
