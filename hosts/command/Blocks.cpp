#include "hosts/command/Writer.h"

#include <cmark-gfm-core-extensions.h>

#include <algorithm>
#include <cctype>
#include <iterator>
#include <stdexcept>

namespace draftwick::command {

namespace {

constexpr double ListStep = 0.25, QuoteStep = 0.3;  // inches

/// Whether a tag divides words; others are within lines of text.
bool IsBlock(std::string_view tag) {
    constexpr std::string_view names[] = {
        "address", "article", "aside",  "blockquote", "br",         "caption", "dd",      "details", "dialog",
        "div",     "dl",      "dt",     "fieldset",   "figcaption", "figure",  "footer",  "form",    "h1",
        "h2",      "h3",      "h4",     "h5",         "h6",         "header",  "hr",      "li",      "main",
        "nav",     "ol",      "option", "p",          "pre",        "section", "summary", "table",   "tbody",
        "td",      "tfoot",   "th",     "thead",      "title",      "tr",      "ul"};
    tag.remove_prefix(tag.starts_with("</") ? 2 : 1);
    std::string name{tag.substr(0, tag.find_first_of(" \t\r\n/>"))};
    for (char& letter : name) letter = static_cast<char>(std::tolower(static_cast<unsigned char>(letter)));
    return std::find(std::begin(names), std::end(names), name) != std::end(names);
}

/// The text that a browser shows of HTML, without its tags; what is not meant to be seen is left out.
std::string TextOfHtml(std::string_view html) {
    std::string text;
    const auto skipTo = [&html](std::string_view end) {
        const std::size_t at = html.find(end);
        html.remove_prefix(at == html.npos ? html.size() : at + end.size());
    };
    static constexpr std::string_view entities[][2] = {
        {"&amp;", "&"}, {"&lt;", "<"}, {"&gt;", ">"}, {"&quot;", "\""}, {"&nbsp;", "\u00A0"}};
    const auto say = [&text](std::string_view piece) {
        const bool blank = piece == " " || piece == "\n" || piece == "\r" || piece == "\t";
        if (!blank)
            text += piece;
        else if (!text.empty() && text.back() != ' ')
            text += ' ';
    };
    while (!html.empty()) {
        if (html.starts_with("<!--"))
            skipTo("-->");
        else if (html.starts_with("<![CDATA["))
            skipTo("]]>");
        else if (html.starts_with("<?"))
            skipTo("?>");
        else if (html.starts_with("<script"))
            skipTo("</script>");
        else if (html.starts_with("<style"))
            skipTo("</style>");
        else if (html[0] == '<') {
            if (IsBlock(html)) say(" ");
            skipTo(">");
        } else {
            const auto entity = std::find_if(std::begin(entities), std::end(entities),
                                             [html](const auto& one) { return html.starts_with(one[0]); });
            const bool found = entity != std::end(entities);
            say(found ? (*entity)[1] : html.substr(0, 1));
            html.remove_prefix(found ? (*entity)[0].size() : 1);
        }
    }
    if (text.ends_with(' ')) text.pop_back();
    return text;
}

}  // namespace

/// Counts how deep the tree goes where the writer follows it: a stack has an end.
struct Writer::Deeper {
    Deeper(Writer& writer, cmark_node* node) : writer_(writer) {
        constexpr int Deepest = 400;
        if (++writer_.depth_ > Deepest)
            throw Failure(writer_.manuscript_.PlaceOf(node), "nested more than 400 levels deep");
    }
    ~Deeper() { --writer_.depth_; }
    Deeper(const Deeper&) = delete;
    Deeper& operator=(const Deeper&) = delete;

    Writer& writer_;
};

template <class Render>
void Writer::Repeat(const Tag& tag, const Render& render) {
    const Datum* value = values_.Find(tag.name);
    const bool present = value != nullptr && !(value->text.empty() && value->members.empty());
    if (tag.kind == Tag::Kind::Inverted) {
        if (!present) render();
        return;
    }
    if (!present) return;
    if (value->kind == Datum::Kind::Text) {
        render();
    } else if (value->kind == Datum::Kind::Row) {
        values_.Push(value);
        render();
        values_.Pop();
    } else {
        for (const auto& item : value->members) {
            values_.Push(&item.second);
            render();
            values_.Pop();
        }
    }
}

/// Renders nodes up to an end, those of sections as often as the data says.
template <class Render>
void Writer::Siblings(cmark_node* first, cmark_node* end, const Render& render) {
    for (cmark_node* node = first; node != nullptr && node != end; node = cmark_node_next(node)) {
        const Tag* tag = Manuscript::TagOf(node);
        if (tag == nullptr || tag->kind == Tag::Kind::Value) {
            render(node);
        } else if (tag->end == node) {
            Repeat(*tag, [&] { render(node); });
        } else {
            Repeat(*tag, [&] { Siblings(cmark_node_next(node), tag->end, render); });
            node = tag->end;
        }
    }
}

void Writer::Inlines(cmark_node* first, cmark_node* end, Paragraph& paragraph, const Look& look) {
    if (first == nullptr) return;
    const Deeper deeper(*this, first);
    Siblings(first, end, [&](cmark_node* node) { Inline(node, paragraph, look); });
}

void Writer::Blocks(cmark_node* parent, RowContainer& holder, Position position) {
    const Deeper deeper(*this, parent);
    const bool last = position.last;
    Siblings(cmark_node_first_child(parent), nullptr, [&](cmark_node* node) {
        position.last = last && cmark_node_next(node) == nullptr;
        Block(node, holder, position);
        position.list.clear();  // an item's further blocks have no number
    });
}

void Writer::Block(cmark_node* node, RowContainer& holder, const Position& position) {
    switch (const cmark_node_type type = cmark_node_get_type(node)) {
    case CMARK_NODE_PARAGRAPH:
        if (!Caption(node, holder, position)) Plain(node, holder, position);
        break;
    case CMARK_NODE_HEADING: Heading(node, holder, position); break;
    case CMARK_NODE_CODE_BLOCK: CodeBlock(Literal(node), holder, position); break;
    case CMARK_NODE_HTML_BLOCK: HtmlBlock(Literal(node), holder, position); break;
    case CMARK_NODE_BLOCK_QUOTE: {
        Position inner = position;
        inner.indent += QuoteStep;
        ++inner.quotes;
        Blocks(node, holder, inner);
        break;
    }
    case CMARK_NODE_LIST: List(node, holder, position); break;
    case CMARK_NODE_THEMATIC_BREAK: Begin(holder, "Rule", position); break;
    default:
        // Notes stand where they are referred to.
        if (type != CMARK_NODE_FOOTNOTE_DEFINITION && IsNode(node, "table")) Table(node, holder, position);
    }
}

std::shared_ptr<Paragraph> Writer::Begin(Container& holder, std::string_view style,
                                         const Position& position) {
    auto paragraph = holder.AddParagraph();
    paragraph->SetStyleName(style);
    const auto format = paragraph->Format();
    // The style of quotations has the first one's indent itself.
    const double indent = position.indent - (style == "Quote" ? QuoteStep : 0);
    if (indent > 0) format->SetIndentLeft(format->IndentLeft() + indent);
    room_ = TextWidth() - format->IndentLeft() - format->IndentRight();
    if (!position.list.empty()) {
        format->SetListName(position.list);
        format->SetListLevel(position.level);
        format->SetIndentFirst(-ListStep);
    }
    return paragraph;
}

void Writer::Plain(cmark_node* node, RowContainer& holder, const Position& position) {
    std::string_view style = position.quotes > 0 ? "Quote" : "Normal";
    if (position.level > 0) style = position.tight && !position.last ? "List" : "List Paragraph";
    if (inNote_) style = "footnote text";
    const auto paragraph = Begin(holder, style, position);
    Inlines(cmark_node_first_child(node), nullptr, *paragraph, {});
    Flush(*paragraph);
}

void Writer::Heading(cmark_node* node, RowContainer& holder, const Position& position) {
    const int level = cmark_node_get_heading_level(node);
    const auto paragraph = Begin(holder, "heading " + std::to_string(level), position);
    if (extras_.sectionNumbers && position.list.empty() && !inNote_) {
        paragraph->Format()->SetListName(SectionNumbers);
        paragraph->Format()->SetListLevel(level);
    }
    const auto bookmark = bookmarks_.find(node);
    if (bookmark != bookmarks_.end()) paragraph->AddBookmark(bookmark->second);
    Inlines(cmark_node_first_child(node), nullptr, *paragraph, {});
    Flush(*paragraph);
    if (bookmark != bookmarks_.end()) paragraph->AddBookmark(bookmark->second, false);
}

void Writer::CodeBlock(std::string_view text, RowContainer& holder, const Position& position) {
    const auto paragraph = Begin(holder, "Code", position);
    if (text.ends_with('\n')) text.remove_suffix(1);
    Say(Filled(text), *paragraph, {});
    Flush(*paragraph);
}

void Writer::HtmlBlock(std::string_view html, RowContainer& holder, const Position& position) {
    const std::string text = TextOfHtml(html);
    if (text.empty() && position.list.empty()) return;
    const auto paragraph = Begin(holder, "Normal", position);
    Say(text, *paragraph, {});
    Flush(*paragraph);
}

/// A list whose numbers look like the text beside them unless the style says otherwise.
std::shared_ptr<draftwick::List> Writer::NewList(std::string_view name, std::string_view element) {
    const auto list = document_->Lists()->Add(name);
    const auto text = document_->ParagraphStyles()->Items("Normal")->FontFormat();
    for (int level = 1; level <= 9; ++level) {
        list->Levels(level)->FontFormat()->SetSize(text->Size());
        list->Levels(level)->FontFormat()->SetFontName(text->FontName());
    }
    style_.Apply(element, list);
    return list;
}

/// A list of bullets counts nothing, so that all of a kind are one.
std::string Writer::Shared(std::string_view name, std::string_view bullet) {
    if (usedLevels_.try_emplace(std::string{name}).second) {
        const auto list = NewList(name, "bullets");
        for (int level = 1; level <= 9; ++level) {
            list->Levels(level)->SetStyle(dwLNSBullet);
            list->Levels(level)->SetTabPosition(ListStep * level);
            if (!bullet.empty()) list->Levels(level)->SetFormat(bullet);
        }
    }
    return std::string{name};
}

/// The list that the items of a node belong to. Numbered lists in each other are levels of one, so that the inner ones
/// begin again; one that begins elsewhere or has another mark is a list of its own.
std::string Writer::ListFor(cmark_node* node, const Position& outer, Position& inner) {
    const bool ordered = cmark_node_get_list_type(node) == CMARK_ORDERED_LIST;
    inner.ordered = ordered;
    if (!ordered) return Shared("Bullets", {});
    const int start = std::clamp(cmark_node_get_list_start(node), 0, 32767);
    const int mark = cmark_node_get_list_delim(node);
    std::string name = outer.numbers;
    if (name.empty() || !outer.ordered
        || usedLevels_[name].try_emplace(inner.level, start, mark).first->second != std::pair{start, mark}) {
        name = "Numbers " + std::to_string(++lists_);
        NewList(name, "numbers");
        usedLevels_[name][inner.level] = {start, mark};
    }
    inner.numbers = name;
    const auto level = document_->Lists()->Items(name)->Levels(inner.level);
    level->SetFormat("\\L" + std::to_string(inner.level) + (mark == CMARK_PAREN_DELIM ? ")" : "."));
    level->SetStartAt(start);
    level->SetTabPosition(inner.indent);
    return name;
}

void Writer::List(cmark_node* node, RowContainer& holder, const Position& outer) {
    Position position = outer;
    position.level = std::min(outer.level + 1, 9);
    position.indent += ListStep;
    position.tight = cmark_node_get_list_tight(node) != 0;
    const std::string name = ListFor(node, outer, position);
    Siblings(cmark_node_first_child(node), nullptr, [&](cmark_node* item) {
        position.last = outer.last && cmark_node_next(item) == nullptr;
        if (outer.level == 0) position.last = cmark_node_next(item) == nullptr;
        position.list = name;
        if (IsNode(item, "tasklist")) {
            position.list = cmark_gfm_extensions_get_tasklist_item_checked(item) ? Shared("Done", "\u2612")
                                                                                 : Shared("To Do", "\u2610");
        }
        cmark_node* first = cmark_node_first_child(item);
        if (first == nullptr || cmark_node_get_type(first) == CMARK_NODE_LIST) {
            Begin(holder, "List", position);
            position.list.clear();
        }
        Blocks(item, holder, position);
    });
}

void Writer::Table(cmark_node* node, RowContainer& holder, const Position& position) {
    const std::size_t columns = cmark_gfm_extensions_get_table_columns(node);
    const std::uint8_t* alignments = cmark_gfm_extensions_get_table_alignments(node);
    const double room = TextWidth() - position.indent;
    std::vector<double> widths;
    Siblings(cmark_node_first_child(node), nullptr, [&](cmark_node* from) {
        const bool head = cmark_gfm_extensions_get_table_row_is_header(from) != 0;
        const auto row = holder.AddTable();
        style_.Apply("table", row);
        row->SetHeader(head);
        // A row that begins left of the margin, so that its text begins there, ends as far on the other side.
        if (widths.empty()) widths = ColumnWidths(node, columns, std::max(room - 2 * row->Left(), 1.0));
        if (position.indent > 0) row->SetLeft(row->Left() + position.indent);
        std::size_t column = 0;
        for (cmark_node* in = cmark_node_first_child(from); in != nullptr && column < columns;
             in = cmark_node_next(in), ++column) {
            const auto cell = row->AddCell();
            cell->SetWidth(widths[column]);
            style_.Apply(head ? "head cell" : "cell", cell);
            const auto paragraph = Begin(*cell, head ? "Table Head" : "Table Text", {});
            room_ = std::max(widths[column] - 2 * row->Gap(), 0.1);
            if (alignments[column] == 'r') paragraph->Format()->SetAlign(dwAlignRight);
            if (alignments[column] == 'c') paragraph->Format()->SetAlign(dwAlignCenter);
            Inlines(cmark_node_first_child(in), nullptr, *paragraph, {});
            Flush(*paragraph);
        }
    });
    // Without it the next table would be rows of this one.
    if (!inNote_) Begin(holder, "Table End", {});
}

/// The room, divided by the longest texts: long ones take more lines, short ones none of the others' room.
std::vector<double> Writer::ColumnWidths(cmark_node* table, std::size_t columns, double room) const {
    constexpr std::size_t Shortest = 4, Longest = 60;
    std::vector<double> widths(columns, Shortest);
    for (cmark_node* row = cmark_node_first_child(table); row != nullptr; row = cmark_node_next(row)) {
        std::size_t column = 0;
        for (cmark_node* cell = cmark_node_first_child(row); cell != nullptr && column < columns;
             cell = cmark_node_next(cell), ++column) {
            const double length = static_cast<double>(std::min(PlainText(cell).size() + 2, Longest));
            widths[column] = std::max(widths[column], length);
        }
    }
    double sum = 0;
    for (const double width : widths) sum += width;
    for (double& width : widths) width *= room / sum;
    return widths;
}

/// "Table: Prices" beside a table, and a picture with a title that stands alone, are numbered captions.
bool Writer::Caption(cmark_node* node, RowContainer& holder, const Position& position) {
    if (inNote_) return false;
    cmark_node* first = cmark_node_first_child(node);
    if (first == nullptr) return false;
    constexpr std::string_view Mark = "Table: ";
    const bool isText = cmark_node_get_type(first) == CMARK_NODE_TEXT;
    if (isText && Literal(first).starts_with(Mark)) {
        cmark_node *before = cmark_node_previous(node), *after = cmark_node_next(node);
        if (!(after != nullptr && IsNode(after, "table")) && !(before != nullptr && IsNode(before, "table")))
            return false;
        const auto paragraph = Begin(holder, "caption", position);
        if (after != nullptr && IsNode(after, "table")) paragraph->Format()->SetKeepWithNext(true);
        AddCaption(*paragraph, "table", ++tables_);
        Say(Literal(first).substr(Mark.size()), *paragraph, {});
        Inlines(cmark_node_next(first), nullptr, *paragraph, {});
        Flush(*paragraph);
        return true;
    }
    if (cmark_node_get_type(first) != CMARK_NODE_IMAGE || cmark_node_next(first) != nullptr) return false;
    const std::string title = Filled(cmark_node_get_title(first));
    if (title.empty() || PictureFile(first).empty()) return false;
    const auto picture = Begin(holder, "Figure", position);
    Inlines(first, nullptr, *picture, {});
    Flush(*picture);
    const auto paragraph = Begin(holder, "caption", position);
    AddCaption(*paragraph, "figure", ++figures_);
    Say(title, *paragraph, {});
    Flush(*paragraph);
    return true;
}

void Writer::AddCaption(Paragraph& paragraph, std::string_view kind, int number) {
    const std::string word = style_.Default(kind);
    paragraph.AddTextItem(word + " ");
    paragraph.AddField("SEQ " + word + " \\* ARABIC", std::to_string(number));
    paragraph.AddTextItem(": ");
}

}  // namespace draftwick::command
