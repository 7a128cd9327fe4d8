#include "hosts/command/Manuscript.h"

#include <cmark-gfm-core-extensions.h>

#include <algorithm>
#include <cctype>
#include <mutex>
#include <new>

namespace draftwick::command {

namespace {

std::string_view Trimmed(std::string_view text) {
    while (!text.empty() && std::isspace(static_cast<unsigned char>(text.front()))) text.remove_prefix(1);
    while (!text.empty() && std::isspace(static_cast<unsigned char>(text.back()))) text.remove_suffix(1);
    return text;
}

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

/// Where the name in "name: value" ends; npos when the line is none.
std::size_t EndOfName(std::string_view line) {
    std::size_t end = 0;
    while (end < line.size()
           && (std::isalnum(static_cast<unsigned char>(line[end])) || line[end] == '-' || line[end] == '_'))
        ++end;
    const bool named =
        end > 0 && end < line.size() && line[end] == ':' && (end + 1 == line.size() || line[end + 1] == ' ');
    return named ? end : line.npos;
}

}  // namespace

bool IsNode(cmark_node* node, std::string_view type) { return cmark_node_get_type_string(node) == type; }

std::string_view Literal(cmark_node* node) {
    const char* text = cmark_node_get_literal(node);
    return text == nullptr ? std::string_view{} : text;
}

std::string PlainText(cmark_node* node) {
    std::string text;
    const std::unique_ptr<cmark_iter, void (*)(cmark_iter*)> iterator(cmark_iter_new(node), cmark_iter_free);
    for (cmark_event_type event; (event = cmark_iter_next(iterator.get())) != CMARK_EVENT_DONE;) {
        cmark_node* at = cmark_iter_get_node(iterator.get());
        const cmark_node_type type = cmark_node_get_type(at);
        if (event != CMARK_EVENT_ENTER) continue;
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
    std::string_view body = text;
    if (body.starts_with("\xEF\xBB\xBF")) body.remove_prefix(3);
    body = TakeFrontMatter(body);

    constexpr int Options = CMARK_OPT_FOOTNOTES | CMARK_OPT_VALIDATE_UTF8;
    const std::unique_ptr<cmark_parser, void (*)(cmark_parser*)> parser(cmark_parser_new(Options),
                                                                        cmark_parser_free);
    for (const char* name : {"table", "strikethrough", "autolink", "tasklist"})
        cmark_parser_attach_syntax_extension(parser.get(), cmark_find_syntax_extension(name));
    cmark_parser_feed(parser.get(), body.data(), body.size());
    root_.reset(cmark_parser_finish(parser.get()));
    if (root_ == nullptr) throw std::bad_alloc();
    if (merging_) FindTags();
}

std::string_view Manuscript::TakeFrontMatter(std::string_view text) {
    std::string_view rest = text;
    if (TakeLine(rest) != "---" || EndOfName(std::string_view{rest}.substr(0, rest.find('\n'))) == rest.npos)
        return text;
    std::string* last = nullptr;
    for (int line = 2; !rest.empty(); ++line) {
        const std::string_view whole = TakeLine(rest);
        if (whole == "---" || whole == "...") {
            linesBefore_ = line;
            return rest;
        }
        std::string_view value = Trimmed(whole);
        if (value.empty() || value.starts_with('#')) continue;
        const std::size_t name = EndOfName(whole);
        if (name != whole.npos) {
            last = &settings_[std::string{whole.substr(0, name)}];
            *last = Unquoted(Trimmed(whole.substr(name + 1)));
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

Tag* Manuscript::NewTag(std::string_view inside, cmark_node* near) {
    auto tag = std::make_unique<Tag>();
    tag->place = PlaceOf(cmark_node_parent(near));
    inside = Trimmed(inside);
    const std::size_t mark = inside.empty() ? inside.npos : std::string_view{"#^/"}.find(inside[0]);
    constexpr Tag::Kind kinds[] = {Tag::Kind::Section, Tag::Kind::Inverted, Tag::Kind::End};
    if (mark != inside.npos) {
        tag->kind = kinds[mark];
        inside = Trimmed(inside.substr(1));
    }
    if (inside.empty()) throw Failure(tag->place, "a tag without a name: {{}}");
    tag->name = inside;
    return tags_.emplace_back(std::move(tag)).get();
}

/// "a {{b}} c" becomes three nodes. A tag is a node of inline HTML, which can stand wherever text can.
void Manuscript::SplitText(cmark_node* node) {
    const std::string text{Literal(node)};
    std::size_t done = 0;
    const auto insert = [node](cmark_node_type type, const std::string& literal) {
        cmark_node* made = cmark_node_new(type);
        cmark_node_set_literal(made, literal.c_str());
        cmark_node_insert_before(node, made);
        return made;
    };
    for (std::size_t open; (open = text.find("{{", done)) != text.npos;) {
        const std::size_t close = text.find("}}", open);
        if (close == text.npos) throw Failure(PlaceOf(cmark_node_parent(node)), "{{ without }}");
        if (open > done) insert(CMARK_NODE_TEXT, text.substr(done, open - done));
        Tag* tag = NewTag(std::string_view{text}.substr(open + 2, close - open - 2), node);
        cmark_node_set_user_data(insert(CMARK_NODE_HTML_INLINE, "{{" + tag->name + "}}"), tag);
        done = close + 2;
    }
    if (done == 0) return;
    if (done < text.size()) {
        cmark_node_set_literal(node, text.substr(done).c_str());
    } else {
        cmark_node_unlink(node);
        cmark_node_free(node);
    }
}

/// Makes a section that spans a whole block, from its first to its last inline, the block's own: a paragraph, a list
/// item or a row is then repeated or left out as a whole.
void Manuscript::Hoist(cmark_node* block, cmark_node* first, cmark_node* last) {
    auto* open = first == nullptr ? nullptr : static_cast<Tag*>(cmark_node_get_user_data(first));
    const Tag* close = last == nullptr ? nullptr : TagOf(last);
    if (open == nullptr || close == nullptr || first == last || open->kind == Tag::Kind::Value
        || open->kind == Tag::Kind::End || close->kind != Tag::Kind::End || close->name != open->name) {
        return;
    }
    for (cmark_node* node = cmark_node_next(first); node != nullptr && node != last;
         node = cmark_node_next(node)) {
        // "{{#a}}x{{/a}} and {{#a}}y{{/a}}" are two.
        if (const Tag* tag = TagOf(node);
            tag != nullptr && tag->kind == Tag::Kind::End && tag->name == open->name)
            return;
    }
    open->end = block;
    cmark_node_set_user_data(block, open);
    for (cmark_node* node : {first, last}) {
        cmark_node_unlink(node);
        cmark_node_free(node);
    }
}

/// Gives each section among the children of a node its end.
void Manuscript::PairTags(cmark_node* parent) {
    std::vector<std::pair<cmark_node*, Tag*>> open;
    for (cmark_node* node = cmark_node_first_child(parent); node != nullptr; node = cmark_node_next(node)) {
        auto* tag = static_cast<Tag*>(cmark_node_get_user_data(node));
        if (tag == nullptr || tag->kind == Tag::Kind::Value || tag->end == node) continue;
        if (tag->kind == Tag::Kind::End) {
            if (open.empty() || open.back().second->name != tag->name)
                throw Failure(tag->place,
                              "{{/" + tag->name + "}} ends nothing that begins in the same place");
            open.back().second->end = node;
            open.pop_back();
        } else {
            open.emplace_back(node, tag);
        }
    }
    if (!open.empty()) {
        const Tag& tag = *open.back().second;
        throw Failure(tag.place, "{{#" + tag.name + "}} without {{/" + tag.name + "}} in the same place");
    }
}

void Manuscript::FindTags() {
    cmark_consolidate_text_nodes(root_.get());
    std::vector<cmark_node*> nodes, texts;
    const std::unique_ptr<cmark_iter, void (*)(cmark_iter*)> iterator(cmark_iter_new(root_.get()),
                                                                      cmark_iter_free);
    for (cmark_event_type event; (event = cmark_iter_next(iterator.get())) != CMARK_EVENT_DONE;) {
        cmark_node* node = cmark_iter_get_node(iterator.get());
        if (event != CMARK_EVENT_ENTER) continue;
        const bool isText = cmark_node_get_type(node) == CMARK_NODE_TEXT;
        (isText ? texts : nodes).push_back(node);
    }
    for (cmark_node* text : texts) SplitText(text);

    for (cmark_node* node : nodes) {
        cmark_node* const first = cmark_node_first_child(node);
        const cmark_node_type type = cmark_node_get_type(node);
        if (type == CMARK_NODE_PARAGRAPH || type == CMARK_NODE_HEADING) {
            const Tag* tag = first == nullptr ? nullptr : TagOf(first);
            cmark_node* const item = cmark_node_parent(node);
            const bool isItem = IsNode(item, "item") || IsNode(item, "tasklist");
            if (tag != nullptr && tag->kind != Tag::Kind::Value && cmark_node_next(first) == nullptr) {
                // A paragraph that is nothing but the beginning or the end of a section.
                cmark_node_set_user_data(node, cmark_node_get_user_data(first));
                cmark_node_unlink(first);
                cmark_node_free(first);
            } else {
                const bool alone =
                    isItem && cmark_node_first_child(item) == node && cmark_node_next(node) == nullptr;
                Hoist(alone ? item : node, first, cmark_node_last_child(node));
            }
        } else if (IsNode(node, "table_row") && first != nullptr) {
            Hoist(node, cmark_node_first_child(first), cmark_node_last_child(cmark_node_last_child(node)));
        }
    }
    for (cmark_node* node : nodes) PairTags(node);
}

}  // namespace draftwick::command
