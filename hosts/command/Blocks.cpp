#include "hosts/command/Text.h"
#include "hosts/command/Writer.h"

#include <cmark-gfm-core-extensions.h>

#include <algorithm>
#include <numeric>
#include <utility>

namespace draftwick::command {

namespace {

constexpr double ListStep = 0.25, QuoteStep = 0.3;  // inches
constexpr int Levels = 9;                           // of a list

/// The room, divided by the longest texts: long ones take more lines, short ones none of the others' room.
std::vector<double> ColumnWidths(cmark_node* table, double room) {
    constexpr std::size_t Shortest = 4, Longest = 60;
    std::vector<double> widths(cmark_gfm_extensions_get_table_columns(table), Shortest);
    for (cmark_node* row = cmark_node_first_child(table); row != nullptr; row = cmark_node_next(row)) {
        cmark_node* cell = cmark_node_first_child(row);
        for (double& width : widths) {
            if (cell == nullptr) break;
            width = std::max(width, static_cast<double>(std::min(PlainText(cell).size() + 2, Longest)));
            cell = cmark_node_next(cell);
        }
    }
    const double sum = std::accumulate(widths.begin(), widths.end(), 0.0);
    for (double& width : widths) width *= room / sum;
    return widths;
}

}  // namespace

template <class Render>
void Writer::Repeat(const Tag& tag, const Render& render) {
    const Datum* value = Find(tag.name);
    const bool present = value != nullptr && !(value->text.empty() && value->members.empty());
    const auto renderWith = [&](const Datum& row) {
        values_.push_back(&row);
        render();
        values_.pop_back();
    };
    if (present == (tag.kind == Tag::Kind::Inverted)) return;
    if (!present || value->kind == Datum::Kind::Scalar) {
        render();
    } else if (value->kind == Datum::Kind::Row) {
        renderWith(*value);
    } else {
        for (const auto& item : value->members) renderWith(item.second);
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

void Writer::Inlines(cmark_node* first, Paragraph& paragraph, const Look& look) {
    Siblings(first, nullptr, [&](cmark_node* node) { Inline(node, paragraph, look); });
}

void Writer::Blocks(cmark_node* parent, RowContainer& holder, Position position) {
    const bool last = position.last;
    Siblings(cmark_node_first_child(parent), nullptr, [&](cmark_node* node) {
        position.last = last && cmark_node_next(node) == nullptr;
        Block(node, holder, position);
        position.list.clear();  // an item's further blocks have no number
    });
}

void Writer::Block(cmark_node* node, RowContainer& holder, const Position& position) {
    switch (cmark_node_get_type(node)) {
    case CMARK_NODE_PARAGRAPH:
        if (!Caption(node, holder, position))
            Fill(cmark_node_first_child(node), *Begin(holder, StyleOfText(position), position));
        break;
    case CMARK_NODE_HEADING: Heading(node, holder, position); break;
    case CMARK_NODE_CODE_BLOCK: {
        std::string_view text = Literal(node);
        if (text.ends_with('\n')) text.remove_suffix(1);
        Fill(Filled(text), *Begin(holder, "Code", position));
        break;
    }
    case CMARK_NODE_HTML_BLOCK: {
        const std::string text = TextOfHtml(Literal(node));
        if (!text.empty() || !position.list.empty()) Fill(text, *Begin(holder, "Normal", position));
        break;
    }
    case CMARK_NODE_BLOCK_QUOTE: {
        Position inner = position;
        inner.indent += QuoteStep;
        inner.quoted = true;
        Blocks(node, holder, inner);
        break;
    }
    case CMARK_NODE_LIST: List(node, holder, position); break;
    case CMARK_NODE_THEMATIC_BREAK: Begin(holder, "Rule", position); break;
    default:
        // Notes stand where they are referred to.
        if (IsNode(node, "table")) Table(node, holder, position);
    }
}

std::string_view Writer::StyleOfText(const Position& position) const {
    if (inNote_) return "footnote text";
    if (position.level > 0) return position.tight && !position.last ? "List" : "List Paragraph";
    return position.quoted ? "Quote" : "Normal";
}

std::shared_ptr<Paragraph> Writer::Begin(Container& holder, std::string_view style,
                                         const Position& position) {
    auto paragraph = holder.AddParagraph(style);
    const auto format = paragraph->Format();
    // The style of quotations has the first one's indent itself.
    const double indent = position.indent - (style == "Quote" ? QuoteStep : 0);
    if (indent > 0) format->SetIndentLeft(format->IndentLeft() + indent);
    room_ = width_ - format->IndentLeft() - format->IndentRight();
    if (!position.list.empty()) {
        format->SetListName(position.list);
        format->SetListLevel(position.level);
        format->SetIndentFirst(-ListStep);
    }
    if (std::exchange(beginsNote_, false)) {
        NoteMark(*paragraph);
        paragraph->AddTextItem(" ");
    }
    return paragraph;
}

void Writer::Heading(cmark_node* node, RowContainer& holder, const Position& position) {
    const int level = cmark_node_get_heading_level(node);
    const auto paragraph = Begin(holder, "heading " + std::to_string(level), position);
    if (extras_.sectionNumbers && position.list.empty() && !inNote_) {
        paragraph->Format()->SetListName(SectionNumbers);
        paragraph->Format()->SetListLevel(level);
    }
    const std::string& bookmark = bookmarks_[node];
    paragraph->AddBookmark(bookmark);
    Fill(cmark_node_first_child(node), *paragraph);
    paragraph->AddBookmark(bookmark, false);
}

/// A list whose numbers look like the text beside them unless the style says otherwise.
std::shared_ptr<draftwick::List> Writer::NewList(std::string_view name, std::string_view element) {
    const auto list = document_->Lists()->Add(name);
    const auto text = document_->ParagraphStyles()->Items("Normal")->FontFormat();
    for (int level = 1; level <= Levels; ++level) {
        const auto font = list->Levels(level)->FontFormat();
        font->SetSize(text->Size());
        font->SetFontName(text->FontName());
    }
    style_.Apply(element, list);
    return list;
}

/// A list of bullets counts nothing, so that all of a kind are one.
std::string Writer::Bullets(const std::string& name, std::string_view bullet) {
    if (!bullets_.insert(name).second) return name;
    const auto list = NewList(name, "bullets");
    for (int level = 1; level <= Levels; ++level) {
        list->Levels(level)->SetStyle(dwLNSBullet);
        list->Levels(level)->SetTabPosition(ListStep * level);
        if (!bullet.empty()) list->Levels(level)->SetFormat(bullet);
    }
    return name;
}

/// The list that the items of a numbered one belong to. Those in each other are levels of one, so that the inner ones
/// begin again; one that begins elsewhere or has another mark is a list of its own.
std::string Writer::NumbersFor(cmark_node* node, const Position& outer, const Position& inner) {
    const int start = std::clamp(cmark_node_get_list_start(node), 0, 32767);
    const int mark = cmark_node_get_list_delim(node);
    const std::pair looks{start, mark};
    std::string name = outer.numbers;
    if (name.empty() || levels_.try_emplace({name, inner.level}, looks).first->second != looks) {
        name = "Numbers " + std::to_string(++lists_);
        NewList(name, "numbers");
        levels_[{name, inner.level}] = looks;
    }
    const auto level = document_->Lists()->Items(name)->Levels(inner.level);
    level->SetFormat("\\L" + std::to_string(inner.level) + (mark == CMARK_PAREN_DELIM ? ")" : "."));
    level->SetStartAt(start);
    level->SetTabPosition(inner.indent);
    return name;
}

void Writer::List(cmark_node* node, RowContainer& holder, const Position& outer) {
    Position position = outer;
    position.level = std::min(outer.level + 1, Levels);
    position.indent += ListStep;
    position.tight = cmark_node_get_list_tight(node) != 0;
    const bool numbered = cmark_node_get_list_type(node) == CMARK_ORDERED_LIST;
    position.numbers = numbered ? NumbersFor(node, outer, position) : "";
    Siblings(cmark_node_first_child(node), nullptr, [&](cmark_node* item) {
        position.last = (outer.last || outer.level == 0) && cmark_node_next(item) == nullptr;
        if (IsNode(item, "tasklist"))
            position.list = cmark_gfm_extensions_get_tasklist_item_checked(item) ? Bullets("Done", "\u2612")
                                                                                 : Bullets("To Do", "\u2610");
        else
            position.list = numbered ? position.numbers : Bullets("Bullets", {});
        cmark_node* first = cmark_node_first_child(item);
        if (first == nullptr || cmark_node_get_type(first) == CMARK_NODE_LIST) {
            Begin(holder, "List", position);
            position.list.clear();
        }
        Blocks(item, holder, position);
    });
}

void Writer::Table(cmark_node* node, RowContainer& holder, const Position& position) {
    const std::uint8_t* alignments = cmark_gfm_extensions_get_table_alignments(node);
    std::vector<double> widths;
    Siblings(cmark_node_first_child(node), nullptr, [&](cmark_node* from) {
        const bool head = cmark_gfm_extensions_get_table_row_is_header(from) != 0;
        const auto row = holder.AddTable();
        style_.Apply("table", row);
        row->SetHeader(head);
        // A row that begins left of the margin, so that its text begins there, ends as far on the other side.
        if (widths.empty())
            widths = ColumnWidths(node, std::max(width_ - position.indent - 2 * row->Left(), 1.0));
        if (position.indent > 0) row->SetLeft(row->Left() + position.indent);
        cmark_node* in = cmark_node_first_child(from);
        for (std::size_t column = 0; in != nullptr && column < widths.size(); ++column) {
            const auto cell = row->AddCell();
            cell->SetWidth(widths[column]);
            style_.Apply(head ? "head cell" : "cell", cell);
            const auto paragraph = Begin(*cell, head ? "Table Head" : "Table Text", {});
            room_ = std::max(widths[column] - 2 * row->Gap(), 0.1);
            if (alignments[column] == 'r') paragraph->Format()->SetAlign(dwAlignRight);
            if (alignments[column] == 'c') paragraph->Format()->SetAlign(dwAlignCenter);
            Fill(cmark_node_first_child(in), *paragraph);
            in = cmark_node_next(in);
        }
    });
    // Without it the next table would be rows of this one.
    if (!inNote_) Begin(holder, "Table End", {});
}

/// "Table: Prices" beside a table, and a picture with a title that stands alone, are numbered captions.
bool Writer::Caption(cmark_node* node, RowContainer& holder, const Position& position) {
    constexpr std::string_view Mark = "Table: ";
    cmark_node* first = cmark_node_first_child(node);
    if (inNote_ || first == nullptr) return false;
    if (cmark_node_get_type(first) == CMARK_NODE_TEXT && Literal(first).starts_with(Mark)) {
        const bool above = IsNode(cmark_node_next(node), "table");
        if (!above && !IsNode(cmark_node_previous(node), "table")) return false;
        const auto paragraph = Begin(holder, "caption", position);
        if (above) paragraph->Format()->SetKeepWithNext(true);
        AddCaption(*paragraph, "table", ++tables_);
        Say(Literal(first).substr(Mark.size()), *paragraph, {});
        Fill(cmark_node_next(first), *paragraph);
        return true;
    }
    if (cmark_node_get_type(first) != CMARK_NODE_IMAGE || cmark_node_next(first) != nullptr) return false;
    const std::string title = Filled(cmark_node_get_title(first));
    if (title.empty() || PictureFile(first).empty()) return false;
    Fill(first, *Begin(holder, "Figure", position));
    const auto paragraph = Begin(holder, "caption", position);
    AddCaption(*paragraph, "figure", ++figures_);
    Fill(title, *paragraph);
    return true;
}

void Writer::AddCaption(Paragraph& paragraph, std::string_view kind, int number) {
    const std::string word = style_.Default(kind);
    paragraph.AddTextItem(word + " ");
    paragraph.AddField("SEQ " + word + " \\* ARABIC", std::to_string(number));
    paragraph.AddTextItem(": ");
}

}  // namespace draftwick::command
