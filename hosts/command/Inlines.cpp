#include "hosts/command/Writer.h"

#include <charconv>
#include <filesystem>
#include <stdexcept>

namespace draftwick::command {

namespace {

bool IsUnreserved(unsigned char letter) {
    // What would end the text of a field's instruction, or mean something in it.
    return letter > ' ' && letter < 0x7F && letter != '"' && letter != '\\';
}

/// An address as it stands in an instruction.
std::string Address(std::string_view url) {
    constexpr std::string_view Digits = "0123456789ABCDEF";
    std::string text;
    for (const char one : url) {
        const auto letter = static_cast<unsigned char>(one);
        if (IsUnreserved(letter)) {
            text += one;
        } else {
            text += '%';
            text += Digits[letter >> 4];
            text += Digits[letter & 15];
        }
    }
    return text;
}

}  // namespace

const Datum* Values::Find(std::string_view name) const {
    for (auto row = rows_.rbegin(); row != rows_.rend(); ++row) {
        // "." is the item of a list of texts.
        if (name == "." && (*row)->kind == Datum::Kind::Text) return *row;
        if (const Datum* value = (*row)->Find(name)) return value;
    }
    const auto found = common_.find(name);
    if (found == common_.end()) return nullptr;
    found_ = {Datum::Kind::Text, found->second};
    return &found_;
}

std::string Values::Text(std::string_view name) const {
    const Datum* value = Find(name);
    if (value == nullptr) {
        std::vector<std::string_view> names;
        for (const Datum* row : rows_) {
            for (const auto& member : row->members) names.push_back(member.first);
        }
        for (const auto& member : common_) names.push_back(member.first);
        throw std::invalid_argument("there is no value \"" + std::string{name} + "\"; "
                                    + Alternatives(name, names));
    }
    if (value->kind != Datum::Kind::Text)
        throw std::invalid_argument("\"" + std::string{name} + "\" is no text; {{#" + std::string{name}
                                    + "}} repeats it");
    return value->text;
}

std::string Values::Expand(std::string_view text) const {
    std::string filled;
    for (std::size_t open; (open = text.find("{{")) != text.npos;) {
        const std::size_t close = text.find("}}", open);
        if (close == text.npos) break;
        std::string_view name = text.substr(open + 2, close - open - 2);
        while (name.starts_with(' ')) name.remove_prefix(1);
        while (name.ends_with(' ')) name.remove_suffix(1);
        filled += text.substr(0, open);
        filled += Text(name);
        text.remove_prefix(close + 2);
    }
    return filled.append(text);
}

std::string Writer::Filled(std::string_view text) const {
    if (!manuscript_.Merging()) return std::string{text};
    try {
        return values_.Expand(text);
    } catch (const std::invalid_argument& error) {
        throw Failure({manuscript_.File()}, error.what());
    }
}

void Writer::Say(std::string_view text, Paragraph& paragraph, const Look& look) {
    if (look != pendingLook_) {
        Flush(paragraph);
        pendingLook_ = look;
    }
    pending_ += text;
}

/// What was said becomes one run, or one field in a link.
void Writer::Flush(Paragraph& paragraph) {
    if (pending_.empty()) return;
    if (!pendingLook_.link.empty()) {
        for (char& letter : pending_) {
            if (letter == '\n') letter = ' ';
        }
        Dress(*paragraph.AddField(pendingLook_.link, pending_));
    } else {
        const std::string_view text = pending_;
        std::size_t end = text.find('\n');
        const auto item = paragraph.AddTextItem(text.substr(0, end));
        while (end != text.npos) {
            const std::size_t start = end + 1;
            end = text.find('\n', start);
            item->AddSpecial(Special::LineBreak());
            item->AddText(text.substr(start, end - start));
        }
        Dress(*item);
    }
    pending_.clear();
}

void Writer::Dress(Run& run) const {
    const Look& look = pendingLook_;
    if (look.code) style_.Apply("Verbatim", run.Self());
    if (!look.link.empty()) style_.Apply("Link", run.Self());
    if (!look.bold && !look.italic && !look.struck && !look.raised) return;
    const auto font = run.FontFormat();
    if (look.bold) font->SetBold(true);
    // Emphasis in what is italic already is upright.
    if (look.italic) font->SetItalic(!font->Italic());
    if (look.struck) font->SetStrikethrough(true);
    if (look.raised) font->SetSuperscript(true);
}

void Writer::Inline(cmark_node* node, Paragraph& paragraph, Look look) {
    cmark_node* const child = cmark_node_first_child(node);
    switch (cmark_node_get_type(node)) {
    case CMARK_NODE_TEXT: Say(Literal(node), paragraph, look); return;
    case CMARK_NODE_SOFTBREAK: Say(" ", paragraph, look); return;
    case CMARK_NODE_LINEBREAK: Say("\n", paragraph, look); return;
    case CMARK_NODE_CODE:
        look.code = true;
        Say(Filled(Literal(node)), paragraph, look);
        return;
    case CMARK_NODE_EMPH: look.italic = !look.italic; break;
    case CMARK_NODE_STRONG: look.bold = true; break;
    case CMARK_NODE_LINK: Link(node, paragraph, look); return;
    case CMARK_NODE_IMAGE: Picture(node, paragraph, look); return;
    case CMARK_NODE_FOOTNOTE_REFERENCE: Note(node, paragraph); return;
    case CMARK_NODE_HTML_INLINE:
        if (const Tag* tag = Manuscript::TagOf(node)) {
            try {
                Say(values_.Text(tag->name), paragraph, look);
            } catch (const std::invalid_argument& error) {
                throw Failure(tag->place, error.what());
            }
        } else if (Literal(node).starts_with("<br")) {
            Say("\n", paragraph, look);
        } else if (const auto bookmark = bookmarks_.find(node); bookmark != bookmarks_.end()) {
            Flush(paragraph);
            paragraph.AddBookmark(bookmark->second);
            paragraph.AddBookmark(bookmark->second, false);
        }
        return;
    default:
        if (!IsNode(node, "strikethrough")) return;
        look.struck = true;
    }
    Inlines(child, nullptr, paragraph, look);
}

void Writer::Link(cmark_node* node, Paragraph& paragraph, Look look) {
    const std::string url = Filled(cmark_node_get_url(node));
    const auto anchor =
        url.starts_with('#') ? anchors_.find(std::string_view{url}.substr(1)) : anchors_.end();
    if (anchor != anchors_.end()) {
        look.link = "HYPERLINK \\l \"" + anchor->second + '"';
    } else if (url.starts_with('#')) {
        Warn(manuscript_.PlaceOf(node), "no heading for the link to " + url);
    } else if (!url.empty()) {
        look.link = "HYPERLINK \"" + Address(url) + '"';
    }
    Inlines(cmark_node_first_child(node), nullptr, paragraph, look);
}

/// The file of a picture, beside that of the text; empty when there is none.
std::string Writer::PictureFile(cmark_node* node) const {
    const std::string url = Filled(cmark_node_get_url(node));
    const std::filesystem::path file = std::filesystem::path(manuscript_.File()).parent_path() / url;
    std::error_code none;
    return !url.empty() && std::filesystem::is_regular_file(file, none) ? file.string() : std::string{};
}

void Writer::Picture(cmark_node* node, Paragraph& paragraph, const Look& look) {
    const std::string file = PictureFile(node);
    if (file.empty()) {
        Warn(manuscript_.PlaceOf(node), "no picture file \"" + std::string{cmark_node_get_url(node)}
                                            + "\"; its text stands in its place");
        Inlines(cmark_node_first_child(node), nullptr, paragraph, look);
        return;
    }
    Flush(paragraph);
    try {
        const auto picture = paragraph.AddPicture(file);
        const double width = picture->Width();
        if (width <= room_) return;
        picture->SetHeight(picture->Height() * room_ / width);
        picture->SetWidth(room_);
    } catch (const Error& error) {
        throw Failure(manuscript_.PlaceOf(node), file + ": " + Explain(error));
    }
}

void Writer::Note(cmark_node* reference, Paragraph& paragraph) {
    // The parser has numbered the notes in the order of their first references and put them in it.
    const std::string_view literal = Literal(reference);
    std::size_t number = 0;
    std::from_chars(literal.data(), literal.data() + literal.size(), number);
    if (number == 0 || number > notes_.size()) return;
    const std::string bookmark = "_Note" + std::to_string(notesBefore_ + number);
    Flush(paragraph);
    if (inNote_ || !written_.insert(number).second) {
        // A note is written once; what refers to it again shows its number.
        const auto again = paragraph.AddField("NOTEREF " + bookmark, literal);
        again->FontFormat()->SetSuperscript(true);
        return;
    }
    const auto mark = [](Paragraph& to) {
        const auto item = to.AddTextItem("");
        item->FontFormat()->SetSuperscript(true);
        item->AddSpecial(Special::Footnote());
    };
    paragraph.AddBookmark(bookmark);
    mark(paragraph);
    const auto note = paragraph.AddFootnote();
    inNote_ = true;
    bool first = true;
    Look outer = pendingLook_;
    for (cmark_node* block = cmark_node_first_child(notes_[number - 1]); block != nullptr;
         block = cmark_node_next(block)) {
        if (first && cmark_node_get_type(block) == CMARK_NODE_PARAGRAPH) {
            const auto begin = Begin(*note, "footnote text", {});
            mark(*begin);
            begin->AddTextItem(" ");
            Inlines(cmark_node_first_child(block), nullptr, *begin, {});
            Flush(*begin);
        } else {
            if (first) mark(*Begin(*note, "footnote text", {}));
            Block(block, *note, {});
        }
        first = false;
    }
    inNote_ = false;
    pendingLook_ = outer;
    paragraph.AddBookmark(bookmark, false);
}

}  // namespace draftwick::command
