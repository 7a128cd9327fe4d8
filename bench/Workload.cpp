// One workload as a whole process, for scripts/bench.
//
// usage: draftwick_workload long PARAGRAPHS FILE               one long document
//        draftwick_workload small DOCUMENTS THREADS FOLDER     many small documents
//        draftwick_workload text MEGABYTES FILE                items of 1 MB of mixed text
//        draftwick_workload formatted PARAGRAPHS FILE          every run and paragraph with a look of its own
//        draftwick_workload floor BYTES FILE                   the same number of bytes without a library
//        draftwick_workload floors BYTES DOCUMENTS THREADS FOLDER   the same for many documents
//
// "--standard" before it: in the standard spelling. "--addtext": runs by Paragraph::AddText, which hands out no object.
#include <draftwick/draftwick.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdio>
#include <exception>
#include <functional>
#include <iostream>
#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>
#include <system_error>
#include <thread>
#include <vector>

using namespace draftwick;

namespace {

/// "Line 000042 plain run, ": the text with the number in it, without any cost to speak of.
class Numbered {
public:
    Numbered(std::string_view before, std::string_view after) : digits_(before.size()) {
        text_ = before;
        text_ += "000000";
        text_ += after;
    }
    std::string_view operator()(long number) {
        for (std::size_t i = 6; i-- > 0; number /= 10)
            text_[digits_ + i] = static_cast<char>('0' + number % 10);
        return text_;
    }

private:
    std::size_t digits_;
    std::string text_;
};

bool standard = false;
bool addText = false;

std::shared_ptr<Document> NewDocument(const std::string& file) {
    auto document = Document::Create();
    document->SetFilename(file);
    if (standard) document->SetSpelling(dwSpellingStandard);
    return document;
}

void WriteRun(Paragraph& paragraph, std::string_view text) {
    if (addText) {
        paragraph.AddText(text);
    } else {
        paragraph.AddTextItem(text);
    }
}

void WriteRow(Section& section, long number) {
    static thread_local std::array<Numbered, 4> texts{Numbered{"Cell ", " A"}, Numbered{"Cell ", " B"},
                                                      Numbered{"Cell ", " C"}, Numbered{"Cell ", " D"}};
    auto row = section.AddTable();
    for (Numbered& text : texts) {
        auto cell = row->AddCell();
        cell->SetWidth(2268);
        WriteRun(*cell->AddParagraph(), text(number));
    }
}

/// Three runs, and after every tenth paragraph a row of four cells.
void WriteParagraphs(Document& document, long count) {
    document.SetScaleMode(dwTwips);
    if (addText) {
        document.TextStyles()->Add("Bold")->FontFormat()->SetBold(true);
        document.TextStyles()->Add("Red")->FontFormat()->SetColor(200);
    }
    auto section = document.AddSection();
    Numbered plain{"Line ", " plain run, "};
    for (long i = 1; i <= count; ++i) {
        auto paragraph = section->AddParagraph();
        WriteRun(*paragraph, plain(i));
        if (addText) {
            paragraph->AddText("bold run of this one, ", "Bold");
            paragraph->AddText("red end of para.", "Red");
        } else {
            paragraph->AddTextItem("bold run of this one, ")->FontFormat()->SetBold(true);
            paragraph->AddTextItem("red end of para.")->FontFormat()->SetColor(200);
        }
        if (i % 10 == 0) WriteRow(*section, i);
    }
    document.Finish();
}

void WriteLong(long paragraphs, const std::string& file) {
    WriteParagraphs(*NewDocument(file), paragraphs);
}

/// Writes many files, each thread its share of them.
void WriteMany(long count, long threads, const std::string& folder,
               const std::function<void(const std::string& file)>& write) {
    const auto share = [&](long thread) {
        for (long i = thread; i < count; i += threads) write(folder + "/" + std::to_string(i) + ".rtf");
    };
    std::vector<std::thread> others;
    for (long thread = 1; thread < threads; ++thread) others.emplace_back(share, thread);
    share(0);
    for (std::thread& other : others) other.join();
}

void WriteSmall(long documents, long threads, const std::string& folder) {
    WriteMany(documents, threads, folder, [](const std::string& file) { WriteLong(20, file); });
}

void WriteText(long megabytes, const std::string& file) {
    std::string text;
    while (text.size() < 1 << 20) {
        text += "Plain words make most of a page, some caf\u00e9s do not, \u201cquotations\u201d \u2014 and "
                "dashes \u2014 "
                "stand between them; braces like {these} are rare. ";
    }
    auto document = NewDocument(file);
    auto section = document->AddSection();
    for (long i = 0; i < megabytes; ++i) section->AddParagraph()->AddTextItem(text);
    document->Finish();
}

void WriteFormatted(long paragraphs, const std::string& file) {
    auto document = NewDocument(file);
    constexpr long Variants = 50;
    std::vector<std::string> fonts, lists, styles;
    for (long i = 0; i < Variants; ++i) {
        const std::string number = std::to_string(i);
        document->Fonts()->Add(fonts.emplace_back("Font " + number));
        document->Lists()->Add(lists.emplace_back("List " + number));
        auto style = document->ParagraphStyles()->Add(styles.emplace_back("Style " + number));
        style->FontFormat()->SetFontName(fonts.back());
        style->Borders()->Items(dwPBorderTop)->SetStyle(dwBSSingle);
        style->TabStops()->Add(1, dwTabRight, dwTabLeaderDots);
    }
    const auto of = [](const std::vector<std::string>& names, long i) -> const std::string& {
        return names[static_cast<std::size_t>(i % Variants)];
    };
    auto section = document->AddSection();
    for (long i = 0; i < paragraphs; ++i) {
        auto paragraph = section->AddParagraph();
        paragraph->SetStyleName(of(styles, i));
        auto format = paragraph->Format();
        format->SetListName(of(lists, i));
        format->SetListLevel(static_cast<std::int32_t>(i % 9 + 1));
        auto border = paragraph->Borders()->Items(dwPBorderBottom);
        border->SetStyle(dwBSDouble);
        border->SetColor(static_cast<std::int32_t>(i % 100));
        paragraph->TabStops()->Add(static_cast<double>(i % 6 + 1), dwTabCenter, dwTabLeaderNone);
        for (long run = 0; run < 4; ++run) {
            auto item = paragraph->AddTextItem("a run with a look of its own ");
            auto font = item->FontFormat();
            font->SetFontName(of(fonts, i + run));
            font->SetSize(static_cast<double>(8 + run));
            font->SetColor(static_cast<std::int32_t>((i * 4 + run) % 1000));
            item->Background()->SetTexture(dwTextureSolid);
            item->Background()->SetBackColor(static_cast<std::int32_t>(0xFFFFFF - i % 1000));
        }
    }
    document->Finish();
}

using File = std::unique_ptr<std::FILE, int (*)(std::FILE*)>;

File Open(const std::string& name, const char* mode) {
    File file(std::fopen(name.c_str(), mode), std::fclose);
    if (file == nullptr) throw std::runtime_error("cannot open " + name);
    std::setvbuf(file.get(), nullptr, _IONBF, 0);
    return file;
}

/// What every document has to cost: its bytes through a block of 64 KiB to a temporary file, once more to the final
/// one, and the temporary file deleted.
void WriteFloor(long bytes, const std::string& name) {
    std::vector<char> block(64 * 1024, 'x');
    const std::string temporary = name + ".tmp";
    {
        const File file = Open(temporary, "wb");
        for (long left = bytes; left > 0; left -= static_cast<long>(block.size())) {
            std::fill(block.begin(), block.end(), static_cast<char>('a' + left % 26));
            std::fwrite(block.data(), 1,
                        static_cast<std::size_t>(std::min<long>(left, static_cast<long>(block.size()))),
                        file.get());
        }
    }
    {
        const File from = Open(temporary, "rb");
        const File to = Open(name, "wb");
        while (const std::size_t size = std::fread(block.data(), 1, block.size(), from.get())) {
            std::fwrite(block.data(), 1, size, to.get());
        }
    }
    std::remove(temporary.c_str());
}

long Number(std::string_view text) {
    long number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error != std::errc{} || end != text.data() + text.size())
        throw std::runtime_error("no number: " + std::string{text});
    return number;
}

}  // namespace

int main(int argc, char** argv) {
    std::vector<std::string> words(argv + 1, argv + argc);
    standard = std::erase(words, "--standard") != 0;
    addText = std::erase(words, "--addtext") != 0;
    try {
        if (words.size() == 4 && words[0] == "small") {
            WriteSmall(Number(words[1]), Number(words[2]), words[3]);
            return 0;
        }
        if (words.size() == 5 && words[0] == "floors") {
            WriteMany(Number(words[2]), Number(words[3]), words[4],
                      [bytes = Number(words[1])](const std::string& file) { WriteFloor(bytes, file); });
            return 0;
        }
        if (words.size() == 3) {
            const std::string& workload = words[0];
            const auto run = workload == "long"        ? WriteLong
                             : workload == "text"      ? WriteText
                             : workload == "formatted" ? WriteFormatted
                             : workload == "floor"     ? WriteFloor
                                                       : nullptr;
            if (run != nullptr) {
                run(Number(words[1]), words[2]);
                return 0;
            }
        }
    } catch (const std::exception& error) {
        std::cerr << "draftwick_workload: " << error.what() << '\n';
        return 1;
    }
    std::cerr
        << "usage: draftwick_workload long|text|formatted|floor COUNT FILE, small COUNT THREADS FOLDER, or "
           "floors BYTES COUNT THREADS FOLDER\n";
    return 2;
}
