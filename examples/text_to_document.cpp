// Turns a plain UTF-8 text file into a document.
//
// Blocks between blank lines become paragraphs. Headings are told from the text: lines that begin with "#", lines
// that are underlined with "=" or "-", and short single lines without digits that
// end without punctuation. "- " and "* " begin the
// items of a bulleted list; fenced or indented blocks keep their lines and get a typewriter font.
//
// The file is read block by block, so its size does not matter.
//
// usage: text_to_document INPUT.txt OUTPUT.rtf
#include <draftwick/draftwick.h>

#include <algorithm>
#include <exception>
#include <fstream>
#include <iostream>
#include <string>
#include <string_view>
#include <vector>

using namespace draftwick;

namespace {

using Lines = std::vector<std::string>;

std::string_view Trimmed(std::string_view text) {
    const auto first = text.find_first_not_of(" \t");
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(" \t") - first + 1);
}

bool IsBlank(std::string_view line) { return Trimmed(line).empty(); }

/// A line of nothing but at least three of the character.
bool IsRule(std::string_view line, char character) {
    return line.size() >= 3 && line.find_first_not_of(character) == std::string_view::npos;
}

bool BeginsItem(std::string_view line) { return line.starts_with("- ") || line.starts_with("* "); }

bool IsFence(std::string_view line) { return line.starts_with("```"); }

/// The next line without its end; false after the last one.
bool ReadLine(std::istream& input, std::string& line) {
    if (!std::getline(input, line)) return false;
    if (line.ends_with('\r')) line.pop_back();
    return true;
}

/// Writes the blocks of a text as paragraphs.
class Writer {
public:
    explicit Writer(const std::string& filename) : document_(Document::Create()) {
        document_->SetFilename(filename);
        document_->SetSpelling(dwSpellingStandard);
        document_->SetMarginLeft(1);
        document_->SetMarginRight(1);
        AddStyles();
        section_ = document_->AddSection();
    }

    void WriteBlock(const Lines& lines) {
        if (const int level = HeadingLevel(lines); level > 0) {
            WriteHeading(lines, level);
        } else if (lines.front().starts_with("    ") || lines.front().starts_with('\t')) {
            WriteCode(lines);
        } else if (BeginsItem(lines.front())) {
            WriteItems(lines);
        } else {
            section_->AddParagraph("Body", Joined(lines.begin(), lines.end()));
        }
        first_ = false;
    }

    void WriteCode(const Lines& lines) {
        for (const std::string& line : lines) section_->AddParagraph("Code")->AddText(line);
    }

    void Finish() { document_->Finish(); }

private:
    void AddStyles() {
        document_->Fonts()->Add("Georgia")->SetFamily(dwRoman);
        document_->Fonts()->Add("Courier New")->SetFamily(dwModern);
        document_->SetDefaultFontName("Georgia");

        auto bullets = document_->Lists()->Add("Bullets")->Levels(1);
        bullets->SetStyle(dwLNSBullet);
        bullets->SetFormat("•");

        auto body = document_->ParagraphStyles()->Add("Body");
        body->FontFormat()->SetSize(11);
        body->Format()->SetSpaceAfter(8);
        body->Format()->SetLineSpacingMultiple(1.1);

        auto item = document_->ParagraphStyles()->Add("Item");
        item->SetBasedOn("Body");
        item->Format()->SetListName("Bullets");
        item->Format()->SetIndentLeft(0.25);
        item->Format()->SetIndentFirst(-0.25);
        item->Format()->SetSpaceAfter(4);

        auto code = document_->ParagraphStyles()->Add("Code");
        code->FontFormat()->SetFontName("Courier New");
        code->FontFormat()->SetSize(9);
        code->Format()->SetIndentLeft(0.25);
        code->Background()->SetTexture(dwTextureShaded);
        code->Background()->SetShading(5);

        for (int level = 1; level <= 3; ++level) {
            auto heading = document_->ParagraphStyles()->Add(HeadingStyle(level));
            heading->FontFormat()->SetSize(22 - 4 * level);
            heading->FontFormat()->SetBold(true);
            heading->Format()->SetSpaceBefore(level == 1 ? 0 : 12);
            heading->Format()->SetSpaceAfter(6);
            heading->Format()->SetKeepWithNext(true);
            heading->Format()->SetOutlineLevel(level);
        }
    }

    static std::string HeadingStyle(int level) { return "Heading " + std::to_string(level); }

    /// 1 to 3 for a heading, 0 for other text.
    int HeadingLevel(const Lines& lines) const {
        const std::string_view line = lines.front();
        if (lines.size() == 2 && IsRule(lines[1], '=')) return 1;
        if (lines.size() == 2 && IsRule(lines[1], '-')) return 2;
        if (lines.size() > 1) return 0;
        const std::size_t marks = line.find_first_not_of('#');
        if (marks != 0 && marks < line.size() && line[marks] == ' ')
            return static_cast<int>(std::min<std::size_t>(marks, 3));
        const bool isShort = line.size() <= 60 && line.front() != ' ' && line.front() != '\t'
                             && line.find_first_of("0123456789") == std::string_view::npos;
        const bool looksLikeText =
            BeginsItem(line) || std::string_view{".,;:!?)`"}.find(line.back()) != std::string_view::npos;
        if (!isShort || looksLikeText) return 0;
        return first_ ? 1 : 2;
    }

    void WriteHeading(const Lines& lines, int level) {
        const std::string_view line = lines.front();
        section_->AddParagraph(HeadingStyle(level),
                               Trimmed(line.substr(std::min(line.find_first_not_of('#'), line.size()))));
    }

    /// Each item goes on until the next one begins.
    void WriteItems(const Lines& lines) {
        auto item = lines.begin();
        while (item != lines.end()) {
            const auto next = std::find_if(item + 1, lines.end(), BeginsItem);
            section_->AddParagraph("Item", std::string_view{Joined(item, next)}.substr(2));
            item = next;
        }
    }

    static std::string Joined(Lines::const_iterator from, Lines::const_iterator to) {
        std::string text;
        for (; from != to; ++from) {
            if (!text.empty()) text += ' ';
            text += Trimmed(*from);
        }
        return text;
    }

    std::shared_ptr<Document> document_;
    std::shared_ptr<Section> section_;
    bool first_ = true;  // the first line of a text is its title
};

void Convert(const char* inputName, const char* outputName) {
    std::ifstream input(inputName, std::ios::binary);
    if (!input) throw std::runtime_error(std::string("cannot read ") + inputName);
    Writer writer(outputName);
    Lines block;
    std::string line;
    const auto endBlock = [&] {
        if (!block.empty()) writer.WriteBlock(block);
        block.clear();
    };
    for (bool isFirst = true; ReadLine(input, line); isFirst = false) {
        if (isFirst && line.starts_with("\xEF\xBB\xBF")) line.erase(0, 3);
        if (IsFence(line)) {
            endBlock();
            while (ReadLine(input, line) && !IsFence(line)) block.push_back(line);
            writer.WriteCode(block);
            block.clear();
        } else if (IsBlank(line)) {
            endBlock();
        } else {
            if (line.starts_with('#')) endBlock();
            block.push_back(line);
            if (line.starts_with('#')) endBlock();
        }
    }
    endBlock();
    writer.Finish();
    std::cout << "written: " << outputName << '\n';
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 3) {
        std::cerr << "usage: text_to_document INPUT.txt OUTPUT.rtf\n";
        return 2;
    }
    try {
        Convert(argv[1], argv[2]);
    } catch (const std::exception& error) {
        std::cerr << "text_to_document: " << error.what() << '\n';
        return 1;
    }
}
