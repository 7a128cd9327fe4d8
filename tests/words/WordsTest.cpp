#include "tests/support/Documents.h"
#include "tests/support/Script.h"
#include "tests/support/TempFolder.h"

#include <draftwick/platform/internal/CodePage.h>
#include <draftwick/text/Utf8.h>

#include <algorithm>
#include <array>
#include <filesystem>
#include <sstream>
#include <stdexcept>
#include <utility>
#include <vector>

/// Replays the rows of tests/words, which its README.md tells how to read.
namespace draftwick::test {

namespace {

/// Words in the classic and in the standard spelling.
using Spellings = std::array<std::string, 2>;

std::string Trim(std::string_view text) {
    const std::size_t start = std::min(text.find_first_not_of(' '), text.size());
    return std::string{text.substr(start, text.find_last_not_of(' ') + 1 - start)};
}

std::vector<std::string> Split(const std::string& text, std::string_view mark) {
    std::vector<std::string> parts;
    std::size_t start = 0;
    for (std::size_t end = 0; end != text.npos; start = end + mark.size()) {
        end = text.find(mark, start);
        parts.push_back(Trim(text.substr(start, end - start)));
    }
    return parts;
}

/// As the file has it: in the code page of the system.
std::string Encode(const std::string& text) {
    std::string bytes;
    for (std::size_t at = 0; at < text.size();) {
        char encoded[platform::LongestAnsiCharacter];
        bytes.append(encoded, platform::EncodeAnsi(DecodeUtf8(text, at), encoded));
    }
    return bytes;
}

/// The lines that mean something, with their numbers and with those that go on with them.
std::vector<std::pair<int, std::string>> LinesOf(const std::string& file) {
    std::vector<std::pair<int, std::string>> lines;
    std::istringstream text(ReadFile(file));
    int number = 0;
    for (std::string line; std::getline(text, line);) {
        ++number;
        if (line.starts_with(' ')) {
            line = Trim(line);
            lines.back().second += (line.find_first_of("\\{}<") == 0 ? "" : " ") + line;
        } else if (!line.empty() && line[0] != '#') {
            lines.emplace_back(number, line);
        }
    }
    return lines;
}

/// One file of rows.
class Rows {
public:
    explicit Rows(std::string file) : file_(std::move(file)) {}

    void Replay() {
        for (const auto& [number, line] : LinesOf(file_)) Take(line, number);
        EXPECT_GT(rows_, 0) << file_;
    }

private:
    void Take(const std::string& line, int number) {
        const auto parts = Split(line, "=>");
        const Spellings words = SpellingsOf(parts);
        if (line[0] == '[') {
            Begin(line.substr(1, line.find(']') - 1));
        } else if (line[0] == '<') {
            names_.emplace_back(parts[0], words);
        } else if (parts.size() == 1) {
            setup_.push_back(line);
        } else {
            ++rows_;
            for (std::size_t spelling = 0; spelling < words.size(); ++spelling)
                Check(parts[0], words[spelling], spelling, number, line);
        }
    }

    void Begin(const std::string& place) {
        setup_.clear();
        const auto ends = Split(place, "...");
        for (std::size_t spelling = 0; spelling < from_.size(); ++spelling) {
            from_[spelling] = Words(Expand(ends.at(0), spelling));
            to_[spelling] = Words(Expand(ends.at(1), spelling));
        }
    }

    void Check(const std::string& steps, const std::string& expected, std::size_t spelling, int number,
               const std::string& row) {
        std::string wrong;
        try {
            const std::string actual = Between(Written(steps, spelling), from_[spelling], to_[spelling]);
            if (actual != expected) wrong = FirstDifference(expected, actual);
        } catch (const std::exception& error) {
            wrong = error.what();
        }
        if (wrong.empty()) return;
        ADD_FAILURE_AT(file_.c_str(), number) << (spelling == 0 ? "classic: " : "standard: ") << row << '\n'
                                              << wrong;
    }

    std::string Written(const std::string& steps, std::size_t spelling) const {
        const TestDocument built;
        Script script(built.document);
        if (spelling == 1) script.Run("Spelling=dwSpellingStandard");
        for (const std::string& step : setup_) script.Run(step);
        for (const std::string& step : Split(steps, " ; ")) script.Run(step);
        built->Finish();
        const std::string file = built.files->Bytes(built->ActualFileName());
        if (const std::string complaint = CheckFile(file); !complaint.empty())
            throw std::runtime_error(complaint);
        return Words(file);
    }

    /// From the first `start` to the last `end`. Blanks at both ends do not count.
    static std::string Between(const std::string& words, const std::string& start, const std::string& end) {
        const std::size_t from = words.find(start), to = words.rfind(end);
        if (from == words.npos) throw std::invalid_argument("without " + start + ": " + words);
        if (to == words.npos || to < from + start.size()) {
            throw std::invalid_argument("without " + end + ": " + words.substr(from));
        }
        return Trim(words.substr(from + start.size(), to - from - start.size()));
    }

    /// The second spelling is the first where it is not given.
    Spellings SpellingsOf(const std::vector<std::string>& parts) const {
        if (parts.size() == 1) return {};
        return {Words(Encode(Expand(parts[1], 0))), Words(Expand(parts.back(), 1))};
    }

    std::string Expand(std::string words, std::size_t spelling) const {
        for (const auto& [name, meaning] : names_) ReplaceAll(words, name, meaning[spelling]);
        return words;
    }

    std::string file_;
    Spellings from_, to_;             // what stands around the words of the rows
    std::vector<std::string> setup_;  // the steps before those of a row
    std::vector<std::pair<std::string, Spellings>> names_;
    int rows_ = 0;
};

std::vector<std::string> TextsIn(const char* folder) {
    std::vector<std::string> files;
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
        if (entry.path().extension() == ".txt") files.push_back(entry.path().stem().string());
    }
    return files;
}

class WordsFile : public testing::TestWithParam<std::string> {};
class Golden : public testing::TestWithParam<std::string> {};

}  // namespace

TEST_P(WordsFile, IsWritten) { Rows(DRAFTWICK_WORDS_FOLDER "/" + GetParam() + ".txt").Replay(); }

// The steps in NAME.txt give NAME.rtf, byte for byte; if they do not, what they give is left in the build's folder
// golden-actual.
TEST_P(Golden, IsWrittenToTheByte) {
    const TestDocument built;
    Script script(built.document);
    for (const auto& line : LinesOf(DRAFTWICK_GOLDEN_FOLDER "/" + GetParam() + ".txt"))
        script.Run(line.second);
    const std::string actual = built.Finish(LineBreaks::Any);
    const std::string expected = ReadFile(DRAFTWICK_GOLDEN_FOLDER "/" + GetParam() + ".rtf");
    const std::filesystem::path left = DRAFTWICK_GOLDEN_ACTUAL_FOLDER "/" + GetParam() + ".rtf";
    std::filesystem::remove(left);
    if (actual == expected) return;
    std::filesystem::create_directories(left.parent_path());
    WriteFile(left.string(), actual);
    ADD_FAILURE() << left.string() << '\n' << FirstDifference(expected, actual);
}

INSTANTIATE_TEST_SUITE_P(Of, WordsFile, testing::ValuesIn(TextsIn(DRAFTWICK_WORDS_FOLDER)),
                         [](const auto& info) { return info.param; });
INSTANTIATE_TEST_SUITE_P(Of, Golden, testing::ValuesIn(TextsIn(DRAFTWICK_GOLDEN_FOLDER)),
                         [](const auto& info) { return info.param; });

}  // namespace draftwick::test
