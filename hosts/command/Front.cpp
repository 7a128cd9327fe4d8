#include "hosts/command/Writer.h"

#include <algorithm>
#include <cctype>

namespace draftwick::command {

namespace {

/// What links call a heading: its text in small letters, with dashes for blanks and without punctuation.
std::string AnchorOf(std::string_view text) {
    std::string anchor;
    for (const char one : text) {
        const auto letter = static_cast<unsigned char>(one);
        if (letter == ' ')
            anchor += '-';
        else if (letter >= 0x80 || letter == '-' || letter == '_' || std::isalnum(letter))
            anchor += static_cast<char>(letter < 0x80 ? std::tolower(letter) : letter);
    }
    return anchor;
}

/// What <a id="..."> is called by links; empty for any other node.
std::string IdOf(cmark_node* node) {
    std::string_view html = cmark_node_get_type(node) == CMARK_NODE_HTML_INLINE ? Literal(node) : "";
    if (!html.starts_with("<a ")) return {};
    for (const std::string_view mark : {" id=\"", " name=\""}) {
        const std::size_t at = html.find(mark);
        if (at == html.npos) continue;
        html.remove_prefix(at + mark.size());
        return std::string{html.substr(0, html.find('"'))};
    }
    return {};
}

/// A bookmark has letters, digits and underscores, 40 at most.
std::string BookmarkOf(std::string_view anchor, std::size_t number) {
    constexpr std::size_t Longest = 30;
    std::string name = "s" + std::to_string(number) + "_";
    for (const char one : anchor) {
        if (name.size() == Longest) break;
        if (std::isalnum(static_cast<unsigned char>(one)) != 0)
            name += one;
        else if (one == '-' || one == '_')
            name += '_';
    }
    return name;
}

}  // namespace

Writer::Writer(const Manuscript& manuscript, const Style& style, const Extras& extras,
               const std::shared_ptr<Document>& document)
    : manuscript_(manuscript), style_(style), extras_(extras), document_(document),
      values_(manuscript.Settings()) {}

void Writer::Write(const Datum* row) {
    values_.Clear();
    if (row != nullptr) values_.Push(row);
    const bool first = section_ == nullptr;
    FindHeadings();
    if (first) Properties();
    section_ = document_->AddSection();
    if (row != nullptr) section_->SetPageNumberingRestart(dwPNRSection);
    if (first && extras_.sectionNumbers)
        style_.Apply("section numbers", document_->Lists()->Add(SectionNumbers));
    Headers();
    TitleBlock();
    if (extras_.contents) Contents();
    Blocks(manuscript_.Root(), *section_, {});
    notesBefore_ += notes_.size();
}

std::string Writer::Setting(std::string_view name) const {
    const auto& settings = manuscript_.Settings();
    const auto found = settings.find(name);
    return found == settings.end() ? std::string{} : Filled(found->second);
}

void Writer::FindHeadings() {
    std::map<std::string, int> counts;
    notes_.clear();
    written_.clear();
    headings_.clear();
    anchors_.clear();
    const std::unique_ptr<cmark_iter, void (*)(cmark_iter*)> iterator(cmark_iter_new(manuscript_.Root()),
                                                                      cmark_iter_free);
    for (cmark_event_type event; (event = cmark_iter_next(iterator.get())) != CMARK_EVENT_DONE;) {
        cmark_node* node = cmark_iter_get_node(iterator.get());
        if (event != CMARK_EVENT_ENTER) continue;
        const cmark_node_type type = cmark_node_get_type(node);
        if (type == CMARK_NODE_FOOTNOTE_DEFINITION) notes_.push_back(node);
        if (const std::string id = IdOf(node); !id.empty()) {
            const std::string& bookmark = bookmarks_[node] = BookmarkOf(id, ++bookmarkCount_);
            anchors_.emplace(id, bookmark);
        }
        if (type != CMARK_NODE_HEADING) continue;
        std::string anchor = AnchorOf(Filled(PlainText(node)));
        const int count = counts[anchor]++;
        if (count > 0) anchor += '-' + std::to_string(count);
        headings_.push_back(node);
        const std::string& bookmark = bookmarks_[node] = BookmarkOf(anchor, ++bookmarkCount_);
        anchors_.emplace(std::move(anchor), bookmark);
    }
}

void Writer::Properties() {
    struct Known {
        std::string_view setting;
        dwBuiltInProperty property;
    };
    constexpr Known known[] = {{"title", dwBIPTitle},
                               {"subject", dwBIPSubject},
                               {"author", dwBIPAuthor},
                               {"keywords", dwBIPKeywords},
                               {"company", dwBIPCompany}};
    const auto properties = document_->Properties();
    for (const Known& one : known) {
        if (const std::string value = Setting(one.setting); !value.empty())
            properties->Items(one.property)->SetValue(value);
    }
    if (const std::string language = Setting("language"); !language.empty())
        properties->Add("Language", language);
    Date date;
    if (ReadDate(Setting("date"), date)) properties->Items(dwBIPCreationTime)->SetValue(date);
}

void Writer::Headers() {
    Line("header", dwHeader, "header");
    Line("footer", dwFooter, "footer");
}

/// "left | middle | right", with {page}, {pages} and what the front matter says by its name.
void Writer::Line(std::string_view name, dwHeaderKind kind, std::string_view style) {
    const auto& settings = manuscript_.Settings();
    const std::string line = settings.contains(name) ? Setting(name) : style_.Default(name);
    if (line.empty()) return;
    const auto paragraph = Begin(*section_->AddHeader(kind), style, {});
    const double width = TextWidth();
    paragraph->TabStops()->Add(width / 2, dwTabCenter, dwTabLeaderNone);
    paragraph->TabStops()->Add(width, dwTabRight, dwTabLeaderNone);
    std::string text;
    const auto flush = [&] {
        if (!text.empty()) paragraph->AddTextItem(text);
        text.clear();
    };
    for (std::string_view rest = line; !rest.empty();) {
        const std::size_t close = rest[0] == '{' ? rest.find('}') : rest.npos;
        if (close == rest.npos) {
            const bool tab = rest[0] == '|';
            if (tab) {
                while (text.ends_with(' ')) text.pop_back();
                text += '\t';
            } else if (rest[0] != ' ' || !text.ends_with('\t'))
                text += rest[0];
            rest.remove_prefix(1);
            continue;
        }
        const std::string_view word = rest.substr(1, close - 1);
        if (word == "page" || word == "pages") {
            flush();
            paragraph->AddField(word == "page"     ? "PAGE"
                                : extras_.manyRows ? "SECTIONPAGES"
                                                   : "NUMPAGES",
                                "1");
        } else if (settings.contains(word) || word == "title" || word == "author" || word == "date") {
            text += Setting(word);
        } else {
            text += rest.substr(0, close + 1);
        }
        rest.remove_prefix(close + 1);
    }
    flush();
}

void Writer::TitleBlock() {
    const std::string title = Setting("title");
    if (title.empty()) return;
    for (const auto& [setting, style] :
         {std::pair{"title", "Title"}, {"author", "Author"}, {"date", "Date"}}) {
        const std::string text = Setting(setting);
        if (!text.empty()) Begin(*section_, style, {})->AddTextItem(text);
    }
}

void Writer::Contents() {
    const std::string word = Setting("toc-title");
    Begin(*section_, "TOC Heading", {})->AddTextItem(word.empty() ? style_.Default("contents") : word);
    const double width = TextWidth();
    constexpr int Deepest = 3;
    for (cmark_node* heading : headings_) {
        const int level = cmark_node_get_heading_level(heading);
        if (level > Deepest) continue;
        const std::string& bookmark = bookmarks_[heading];
        const auto paragraph = Begin(*section_, "toc " + std::to_string(level), {});
        paragraph->TabStops()->Add(width, dwTabRight, dwTabLeaderDots);
        paragraph->AddField("HYPERLINK \\l \"" + bookmark + '"', Filled(PlainText(heading)));
        paragraph->AddTextItem("\t");
        const auto page = paragraph->AddField("PAGEREF " + bookmark + " \\h", "1");
        page->SetDirty(true);
    }
}

}  // namespace draftwick::command
