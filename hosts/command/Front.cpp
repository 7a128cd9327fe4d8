#include "hosts/command/Text.h"
#include "hosts/command/Writer.h"

#include <cctype>

namespace draftwick::command {

namespace {

bool IsWordLetter(char letter) { return std::isalnum(static_cast<unsigned char>(letter)) != 0; }

/// What links call a heading: its text in small letters, with dashes for blanks and without punctuation.
std::string AnchorOf(std::string_view text) {
    std::string anchor;
    for (const char letter : text) {
        if (letter == ' ')
            anchor += '-';
        else if (static_cast<unsigned char>(letter) >= 0x80 || letter == '-' || letter == '_')
            anchor += letter;
        else if (IsWordLetter(letter))
            anchor += static_cast<char>(std::tolower(static_cast<unsigned char>(letter)));
    }
    return anchor;
}

/// What <a id="..."> is called by links; empty for any other HTML.
std::string_view IdOf(std::string_view html) {
    if (!html.starts_with("<a ")) return {};
    for (const std::string_view mark : {" id=\"", " name=\""}) {
        if (const std::size_t at = html.find(mark); at != html.npos) {
            html.remove_prefix(at + mark.size());
            return html.substr(0, html.find('"'));
        }
    }
    return {};
}

/// A bookmark has letters, digits and underscores, 40 at most.
std::string BookmarkOf(std::string_view anchor, std::size_t number) {
    constexpr std::size_t Longest = 30;
    std::string name = "s" + std::to_string(number) + "_";
    for (const char letter : anchor) name += IsWordLetter(letter) ? letter : '_';
    return name.substr(0, Longest);
}

}  // namespace

Writer::Writer(const Manuscript& manuscript, const Style& style, const Extras& extras,
               const std::shared_ptr<Document>& document)
    : manuscript_(manuscript), style_(style), extras_(extras), document_(document) {}

void Writer::Write(const Datum* row) {
    values_ = {&manuscript_.Settings()};
    if (row != nullptr) values_.push_back(row);
    const bool first = section_ == nullptr;
    FindTargets();
    if (first) Properties();
    section_ = document_->AddSection();
    width_ = section_->PageWidth() - section_->MarginLeft() - section_->MarginRight();
    if (row != nullptr) section_->SetPageNumberingRestart(dwPNRSection);
    if (first && extras_.sectionNumbers)
        style_.Apply("section numbers", document_->Lists()->Add(SectionNumbers));
    Line("header", dwHeader);
    Line("footer", dwFooter);
    TitleBlock();
    if (extras_.contents) Contents();
    Blocks(manuscript_.Root(), *section_, {});
    notesBefore_ += notes_.size();
}

std::string Writer::Setting(std::string_view name) const {
    const Datum* setting = manuscript_.Settings().Find(name);
    return setting == nullptr ? std::string{} : Filled(setting->text);
}

void Writer::FindTargets() {
    std::map<std::string, int> counts;
    notes_.clear();
    written_.clear();
    headings_.clear();
    anchors_.clear();
    for (cmark_node* node : manuscript_.Targets()) {
        std::string anchor;
        switch (cmark_node_get_type(node)) {
        case CMARK_NODE_FOOTNOTE_DEFINITION: notes_.push_back(node); continue;
        case CMARK_NODE_HEADING:
            headings_.push_back(node);
            anchor = AnchorOf(Filled(PlainText(node)));
            if (const int count = counts[anchor]++; count > 0) anchor += '-' + std::to_string(count);
            break;
        default:
            anchor = IdOf(Literal(node));
            if (anchor.empty()) continue;
        }
        const std::string& bookmark = bookmarks_[node] = BookmarkOf(anchor, ++bookmarkCount_);
        anchors_.emplace(std::move(anchor), bookmark);
    }
}

void Writer::Properties() {
    const auto properties = document_->Properties();
    for (const char* name : {"title", "subject", "author", "keywords", "company"}) {
        if (const std::string value = Setting(name); !value.empty()) properties->Items(name)->SetValue(value);
    }
    if (const std::string language = Setting("language"); !language.empty())
        properties->Add("Language", language);
    Date date;
    if (ReadDate(Setting("date"), date)) properties->Items(dwBIPCreationTime)->SetValue(date);
}

/// "left | middle | right", with {page}, {pages} and what the front matter says by its name. The name is that of the
/// setting and of the style.
void Writer::Line(std::string_view name, dwHeaderKind kind) {
    const bool said = manuscript_.Settings().Find(name) != nullptr;
    const std::string line =
        Replaced(said ? Setting(name) : style_.Default(name), "{", "}", [this](std::string_view word) {
            const bool known = word == "title" || word == "author" || word == "date";
            return known || manuscript_.Settings().Find(word) != nullptr ? Setting(word)
                                                                         : '{' + std::string{word} + '}';
        });
    if (line.empty()) return;
    std::string tabbed;
    for (std::string_view rest = line;;) {
        const std::size_t end = rest.find('|');
        tabbed += Trimmed(rest.substr(0, end));
        if (end == rest.npos) break;
        tabbed += '\t';
        rest.remove_prefix(end + 1);
    }
    const auto paragraph = Begin(*section_->AddHeader(kind), name, {});
    paragraph->TabStops()->Add(width_ / 2, dwTabCenter, dwTabLeaderNone);
    paragraph->TabStops()->Add(width_, dwTabRight, dwTabLeaderNone);
    Split(
        tabbed, "{", "}", [&](std::string_view text) { Say(text, *paragraph, {}); },
        [&](std::string_view word) {
            if (word != "page" && word != "pages") return Say('{' + std::string{word} + '}', *paragraph, {});
            Flush(*paragraph);
            const char* const count = extras_.manyRows ? "SECTIONPAGES" : "NUMPAGES";
            paragraph->AddField(word == "page" ? "PAGE" : count, "1");
        });
    Flush(*paragraph);
}

void Writer::TitleBlock() {
    if (Setting("title").empty()) return;
    for (const auto& [setting, style] :
         {std::pair{"title", "Title"}, {"author", "Author"}, {"date", "Date"}}) {
        const std::string text = Setting(setting);
        if (!text.empty()) Begin(*section_, style, {})->AddTextItem(text);
    }
}

void Writer::Contents() {
    const std::string word = Setting("toc-title");
    Begin(*section_, "TOC Heading", {})->AddTextItem(word.empty() ? style_.Default("contents") : word);
    constexpr int Deepest = 3;
    for (cmark_node* heading : headings_) {
        const int level = cmark_node_get_heading_level(heading);
        if (level > Deepest) continue;
        const std::string& bookmark = bookmarks_[heading];
        const auto paragraph = Begin(*section_, "toc " + std::to_string(level), {});
        paragraph->TabStops()->Add(width_, dwTabRight, dwTabLeaderDots);
        paragraph->AddField("HYPERLINK \\l \"" + bookmark + '"', Filled(PlainText(heading)));
        paragraph->AddTextItem("\t");
        paragraph->AddField("PAGEREF " + bookmark + " \\h", "1")->SetDirty(true);
    }
}

}  // namespace draftwick::command
