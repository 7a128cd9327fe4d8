#include "hosts/command/Text.h"
#include "hosts/command/Writer.h"

#include <algorithm>
#include <charconv>
#include <cstdio>
#include <filesystem>

namespace draftwick::command {

namespace {

/// An address as it stands in an instruction of a field: without what would end its text or mean something in it.
std::string Address(const std::string& url) {
    std::string text;
    for (const char letter : url) {
        if (letter > ' ' && letter < 0x7F && letter != '"' && letter != '\\') {
            text += letter;
        } else {
            char code[4];
            std::snprintf(code, sizeof code, "%%%02X",
                          static_cast<unsigned>(static_cast<unsigned char>(letter)));
            text += code;
        }
    }
    return text;
}

}  // namespace

/// The value of a name in the innermost row that has it; nullptr when there is none.
const Datum* Writer::Find(std::string_view name) const {
    for (auto row = values_.rbegin(); row != values_.rend(); ++row) {
        // "." is the item of a list of texts.
        if (name == "." && (*row)->kind == Datum::Kind::Scalar) return *row;
        if (const Datum* value = (*row)->Find(name)) return value;
    }
    return nullptr;
}

std::string Writer::ValueOf(std::string_view name) const {
    const Datum* value = Find(name);
    if (value != nullptr && value->kind == Datum::Kind::Scalar) return value->text;
    if (value != nullptr) Refuse(Quoted(name) + " is no text; {{#" + std::string{name} + "}} repeats it");
    std::vector<std::string_view> names;
    for (const Datum* row : values_) {
        for (const std::string_view one : row->Names()) names.push_back(one);
    }
    Refuse("there is no value " + Quoted(name) + "; " + Alternatives(name, names));
}

std::string Writer::Filled(std::string_view text) const {
    if (!manuscript_.Merging()) return std::string{text};
    return Locate(
        [this] { return Place{manuscript_.File()}; },
        [&] { return Replaced(text, "{{", "}}", [this](std::string_view name) { return ValueOf(name); }); });
}

void Writer::Fill(cmark_node* first, Paragraph& paragraph) {
    Inlines(first, paragraph, {});
    Flush(paragraph);
}

void Writer::Fill(std::string_view text, Paragraph& paragraph) {
    Say(text, paragraph, {});
    Flush(paragraph);
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
        std::replace(pending_.begin(), pending_.end(), '\n', ' ');
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
    if (!look.bold && !look.italic && !look.struck) return;
    const auto font = run.FontFormat();
    if (look.bold) font->SetBold(true);
    // Emphasis in what is italic already is upright.
    if (look.italic) font->SetItalic(!font->Italic());
    if (look.struck) font->SetStrikethrough(true);
}

void Writer::Inline(cmark_node* node, Paragraph& paragraph, Look look) {
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
    case CMARK_NODE_LINK: look.link = Target(node); break;
    case CMARK_NODE_IMAGE: Picture(node, paragraph, look); return;
    case CMARK_NODE_FOOTNOTE_REFERENCE: Note(node, paragraph); return;
    case CMARK_NODE_HTML_INLINE:
        if (const Tag* tag = Manuscript::TagOf(node)) {
            Say(Locate([tag] { return tag->place; }, [&] { return ValueOf(tag->name); }), paragraph, look);
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
    Inlines(cmark_node_first_child(node), paragraph, look);
}

/// The code of a link's field; empty when the link leads nowhere.
std::string Writer::Target(cmark_node* link) const {
    const std::string url = Filled(cmark_node_get_url(link));
    if (!url.starts_with('#')) return url.empty() ? url : "HYPERLINK \"" + Address(url) + '"';
    const auto anchor = anchors_.find(std::string_view{url}.substr(1));
    if (anchor != anchors_.end()) return "HYPERLINK \\l \"" + anchor->second + '"';
    Warn(manuscript_.PlaceOf(link), "no heading for the link to " + url);
    return {};
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
        Warn(manuscript_.PlaceOf(node),
             "no picture file " + Quoted(cmark_node_get_url(node)) + "; its text stands in its place");
        Inlines(cmark_node_first_child(node), paragraph, look);
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

void Writer::NoteMark(Paragraph& paragraph) {
    const auto item = paragraph.AddTextItem("");
    item->FontFormat()->SetSuperscript(true);
    item->AddSpecial(Special::Footnote());
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
        paragraph.AddField("NOTEREF " + bookmark, literal)->FontFormat()->SetSuperscript(true);
        return;
    }
    cmark_node* const definition = notes_[number - 1];
    paragraph.AddBookmark(bookmark);
    NoteMark(paragraph);
    const auto note = paragraph.AddFootnote();
    inNote_ = beginsNote_ = true;
    if (cmark_node_get_type(cmark_node_first_child(definition)) != CMARK_NODE_PARAGRAPH)
        Begin(*note, "footnote text", {});
    Blocks(definition, *note, {});
    inNote_ = beginsNote_ = false;
    paragraph.AddBookmark(bookmark, false);
}

}  // namespace draftwick::command
