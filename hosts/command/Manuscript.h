#pragma once

#include "hosts/command/Message.h"
#include "hosts/command/Rows.h"

#include <cmark-gfm.h>

#include <deque>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace draftwick::command {

/// What stands between the braces of {{name}}, {{#name}}, {{^name}} and {{/name}}.
struct Tag {
    enum class Kind { Value, Section, Inverted, End };
    Kind kind = Kind::Value;
    std::string name;
    Place place{};
    cmark_node* end = nullptr;  ///< of a section, the node of its end; its own node: that alone

    bool Begins() const { return kind == Kind::Section || kind == Kind::Inverted; }
};

/// A Markdown text: its front matter and its tree. The tree is only read once it is made, so that threads can share it.
class Manuscript {
public:
    /// Parses CommonMark with tables, footnotes, task lists, struck-through text and autolinks. The front matter is
    /// lines "name: value" between two of three dashes at the beginning. With `merging`, {{...}} in the text are tags;
    /// Failure for those that do not fit together.
    Manuscript(const std::string& text, const std::string& file, bool merging);

    cmark_node* Root() const { return root_.get(); }
    Datum& Settings() { return settings_; }
    const Datum& Settings() const { return settings_; }
    const std::string& File() const { return file_; }
    Place PlaceOf(cmark_node* node) const;
    /// Whether there are tags in the text, so that places of values are to be filled.
    bool Merging() const { return merging_; }
    static Tag* TagOf(cmark_node* node) {
        return node == nullptr ? nullptr : static_cast<Tag*>(cmark_node_get_user_data(node));
    }
    /// What other parts of the text can refer to: headings, notes and inline HTML, in their order.
    const std::vector<cmark_node*>& Targets() const { return targets_; }

private:
    std::string_view TakeFrontMatter(std::string_view text);
    void FindTags();
    void SplitText(cmark_node* text);
    void PairTags(cmark_node* parent);
    static void Hoist(cmark_node* block, cmark_node* first, cmark_node* last);
    Tag* NewTag(std::string_view inside, const Place& place);

    std::string file_;
    bool merging_;
    int linesBefore_ = 0;  // of the front matter
    Datum settings_{Datum::Kind::Row};
    std::unique_ptr<cmark_node, void (*)(cmark_node*)> root_{nullptr, cmark_node_free};
    std::vector<cmark_node*> targets_;
    std::deque<Tag> tags_;  // which nodes point to
};

/// The extensions' kinds of node have no public names, only spellings. nullptr is of no kind.
bool IsNode(cmark_node* node, std::string_view type);
/// What a node holds by itself.
std::string_view Literal(cmark_node* node);
/// A node and all in it, in the order of the text.
std::vector<cmark_node*> NodesIn(cmark_node* node);
/// The plain text of a node and of all in it.
std::string PlainText(cmark_node* node);

}  // namespace draftwick::command
