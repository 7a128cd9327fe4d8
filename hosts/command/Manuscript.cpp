#include "hosts/command/Manuscript.h"

#include "hosts/command/Text.h"

#include <cmark-gfm-core-extensions.h>

#include <algorithm>
#include <mutex>
#include <new>

namespace draftwick::command {

namespace {

std::string_view TakeLine(std::string_view& text) {
    const std::size_t end = std::min(text.find('\n'), text.size());
    const std::string_view line = text.substr(0, end);
    text.remove_prefix(std::min(end + 1, text.size()));
    return line.ends_with('\r') ? line.substr(0, line.size() - 1) : line;
}

std::string_view Unquoted(std::string_view value) {
    const bool quoted =
        value.size() >= 2 && (value[0] == '"' || value[0] == '\'') && value.back() == value[0];
    return quoted ? value.substr(1, value.size() - 2) : value;
}

/// The name in "name: value"; empty when the line is none.
std::string_view NameOf(std::string_view line) {
    constexpr std::string_view Letters = "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789-_";
    const std::size_t end = std::min(line.find_first_not_of(Letters), line.size());
    const std::string_view rest = line.substr(end);
    return rest == ":" || rest.starts_with(": ") ? line.substr(0, end) : std::string_view{};
}

void Remove(cmark_node* node) {
    cmark_node_unlink(node);
    cmark_node_free(node);
}

}  // namespace

bool IsNode(cmark_node* node, std::string_view type) {
    return node != nullptr && cmark_node_get_type_string(node) == type;
}

std::string_view Literal(cmark_node* node) {
    const char* text = cmark_node_get_literal(node);
    return text == nullptr ? std::string_view{} : text;
}

std::vector<cmark_node*> NodesIn(cmark_node* node) {
    std::vector<cmark_node*> nodes;
    const std::unique_ptr<cmark_iter, void (*)(cmark_iter*)> iterator(cmark_iter_new(node), cmark_iter_free);
    for (cmark_event_type event; (event = cmark_iter_next(iterator.get())) != CMARK_EVENT_DONE;) {
        if (event == CMARK_EVENT_ENTER) nodes.push_back(cmark_iter_get_node(iterator.get()));
    }
    return nodes;
}

std::string PlainText(cmark_node* node) {
    std::string text;
    for (cmark_node* at : NodesIn(node)) {
        const cmark_node_type type = cmark_node_get_type(at);
        if (type == CMARK_NODE_TEXT || type == CMARK_NODE_CODE) text += Literal(at);
        if (type == CMARK_NODE_SOFTBREAK || type == CMARK_NODE_LINEBREAK) text += ' ';
        if (const Tag* tag = Manuscript::TagOf(at); tag != nullptr && tag->kind == Tag::Kind::Value)
            text += "{{" + tag->name + "}}";
    }
    return text;
}

Manuscript::Manuscript(const std::string& text, const std::string& file, bool merging)
    : file_(file), merging_(merging) {
    static std::once_flag registered;
    std::call_once(registered, cmark_gfm_core_extensions_ensure_registered);
    const std::string_view body = TakeFrontMatter(text);

    constexpr int Options = CMARK_OPT_FOOTNOTES | CMARK_OPT_VALIDATE_UTF8;
    const std::unique_ptr<cmark_parser, void (*)(cmark_parser*)> parser(cmark_parser_new(Options),
                                                                        cmark_parser_free);
    for (const char* name : {"table", "strikethrough", "autolink", "tasklist"})
        cmark_parser_attach_syntax_extension(parser.get(), cmark_find_syntax_extension(name));
    cmark_parser_feed(parser.get(), body.data(), body.size());
    root_.reset(cmark_parser_finish(parser.get()));
    if (root_ == nullptr) throw std::bad_alloc();
    if (merging_) FindTags();

    for (cmark_node* node : NodesIn(root_.get())) {
        // The parser copies these out of its text when somebody first asks: not in several threads at once.
        cmark_node_get_literal(node);
        cmark_node_get_url(node);
        cmark_node_get_title(node);
        // A stack has an end where the tree is followed.
        constexpr int Deepest = 400;
        int depth = 0;
        for (cmark_node* at = node; at != nullptr; at = cmark_node_parent(at)) {
            if (++depth > Deepest) throw Failure(PlaceOf(node), "nested more than 400 levels deep");
        }
        const cmark_node_type type = cmark_node_get_type(node);
        if (type == CMARK_NODE_HEADING || type == CMARK_NODE_FOOTNOTE_DEFINITION
            || type == CMARK_NODE_HTML_INLINE) {
            targets_.push_back(node);
        }
    }
}

std::string_view Manuscript::TakeFrontMatter(std::string_view text) {
    std::string_view rest = text;
    std::string_view first = rest;
    if (TakeLine(first) != "---" || NameOf(TakeLine(first)).empty()) return text;
    TakeLine(rest);
    std::string* last = nullptr;
    for (int line = 2; !rest.empty(); ++line) {
        const std::string_view whole = TakeLine(rest);
        if (whole == "---" || whole == "...") {
            linesBefore_ = line;
            return rest;
        }
        std::string_view value = Trimmed(whole);
        if (value.empty() || value.starts_with('#')) continue;
        if (const std::string_view name = NameOf(whole); !name.empty()) {
            last = &settings_.Text(name);
            *last = Unquoted(Trimmed(whole.substr(name.size() + 1)));
            continue;
        }
        // The items of a list, and lines that go on with the value before.
        const bool item = value.starts_with("- ");
        if (!item && whole[0] != ' ')
            throw Failure({file_, line}, "expected \"name: value\", or --- at the end");
        if (item) value = Trimmed(value.substr(2));
        if (!last->empty()) *last += item ? ", " : " ";
        *last += Unquoted(value);
    }
    throw Failure({file_, 1}, "the front matter has no end, which is a line of three dashes");
}

Place Manuscript::PlaceOf(cmark_node* node) const {
    for (; node != nullptr; node = cmark_node_parent(node)) {
        if (cmark_node_get_start_line(node) > 0)
            return {file_, cmark_node_get_start_line(node) + linesBefore_};
    }
    return {file_};
}

Tag* Manuscript::NewTag(std::string_view inside, const Place& place) {
    const Tag::Kind kind = inside.starts_with('#')   ? Tag::Kind::Section
                           : inside.starts_with('^') ? Tag::Kind::Inverted
                           : inside.starts_with('/') ? Tag::Kind::End
                                                     : Tag::Kind::Value;
    const std::string_view name = kind == Tag::Kind::Value ? inside : Trimmed(inside.substr(1));
    if (name.empty()) throw Failure(place, "a tag without a name: {{}}");
    return &tags_.emplace_back(Tag{kind, std::string{name}, place});
}

/// "a {{b}} c" becomes three nodes. A tag is a node of inline HTML, which can stand wherever text can.
void Manuscript::SplitText(cmark_node* node) {
    const std::string text{Literal(node)};
    if (text.find("{{") == text.npos) return;
    const Place place = PlaceOf(cmark_node_parent(node));
    const auto insert = [node](cmark_node_type type, const std::string& literal) {
        cmark_node* made = cmark_node_new(type);
        cmark_node_set_literal(made, literal.c_str());
        cmark_node_insert_before(node, made);
        return made;
    };
    Split(
        text, "{{", "}}",
        [&](std::string_view piece) {
            if (piece.find("{{") != piece.npos) throw Failure(place, "{{ without }}");
            insert(CMARK_NODE_TEXT, std::string{piece});
        },
        [&](std::string_view inside) {
            Tag* tag = NewTag(inside, place);
            cmark_node_set_user_data(insert(CMARK_NODE_HTML_INLINE, "{{" + tag->name + "}}"), tag);
        });
    Remove(node);
}

/// Makes a section that spans a whole block, from its first to its last inline, the block's own: a paragraph, a list
/// item or a row is then repeated or left out as a whole.
void Manuscript::Hoist(cmark_node* block, cmark_node* first, cmark_node* last) {
    Tag* const open = TagOf(first);
    if (open == nullptr || !open->Begins()) return;
    const auto ends = [open](cmark_node* node) {
        const Tag* tag = TagOf(node);
        return tag != nullptr && tag->kind == Tag::Kind::End && tag->name == open->name;
    };
    if (!ends(last)) return;
    // "{{#a}}x{{/a}} and {{#a}}y{{/a}}" are two.
    for (cmark_node* node = first; node != nullptr && node != last; node = cmark_node_next(node)) {
        if (ends(node)) return;
    }
    open->end = block;
    cmark_node_set_user_data(block, open);
    Remove(first);
    Remove(last);
}

/// Gives each section among the children of a node its end.
void Manuscript::PairTags(cmark_node* parent) {
    std::vector<Tag*> open;
    for (cmark_node* node = cmark_node_first_child(parent); node != nullptr; node = cmark_node_next(node)) {
        Tag* tag = TagOf(node);
        if (tag == nullptr || tag->kind == Tag::Kind::Value || tag->end == node) continue;
        if (tag->Begins()) {
            open.push_back(tag);
            continue;
        }
        if (open.empty() || open.back()->name != tag->name)
            throw Failure(tag->place, "{{/" + tag->name + "}} ends nothing that begins in the same place");
        open.back()->end = node;
        open.pop_back();
    }
    if (open.empty()) return;
    const Tag& tag = *open.back();
    throw Failure(tag.place, "{{#" + tag.name + "}} without {{/" + tag.name + "}} in the same place");
}

void Manuscript::FindTags() {
    cmark_consolidate_text_nodes(root_.get());
    std::vector<cmark_node*> nodes;
    for (cmark_node* node : NodesIn(root_.get()))
        cmark_node_get_type(node) == CMARK_NODE_TEXT ? SplitText(node) : nodes.push_back(node);

    for (cmark_node* node : nodes) {
        cmark_node *const first = cmark_node_first_child(node), *const last = cmark_node_last_child(node);
        const cmark_node_type type = cmark_node_get_type(node);
        if (IsNode(node, "table_row") && first != nullptr) {
            Hoist(node, cmark_node_first_child(first), cmark_node_last_child(last));
        } else if (type == CMARK_NODE_PARAGRAPH || type == CMARK_NODE_HEADING) {
            Tag* const tag = TagOf(first);
            if (first == last && tag != nullptr && tag->kind != Tag::Kind::Value) {
                // A paragraph that is nothing but the beginning or the end of a section.
                cmark_node_set_user_data(node, tag);
                Remove(first);
            } else {
                cmark_node* const parent = cmark_node_parent(node);
                const bool isItem = IsNode(parent, "item") || IsNode(parent, "tasklist");
                const bool alone =
                    cmark_node_first_child(parent) == node && cmark_node_last_child(parent) == node;
                Hoist(isItem && alone ? parent : node, first, last);
            }
        }
    }
    for (cmark_node* node : nodes) PairTags(node);
}

}  // namespace draftwick::command
