#pragma once

#include "hosts/command/Manuscript.h"
#include "hosts/command/Rows.h"
#include "hosts/command/Style.h"

#include <draftwick/draftwick.h>

#include <map>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace draftwick::command {

/// What a document is to have besides its text.
struct Extras {
    bool contents = false;
    bool sectionNumbers = false;
    bool manyRows = false;  ///< each has pages of its own to count
};

/// The values that tags can name, those of the innermost row first.
class Values {
public:
    explicit Values(const std::map<std::string, std::string, std::less<>>& common) : common_(common) {}

    /// nullptr when there is no value of the name.
    const Datum* Find(std::string_view name) const;
    void Push(const Datum* row) { rows_.push_back(row); }
    void Pop() { rows_.pop_back(); }
    void Clear() { rows_.clear(); }
    /// The text of a value. std::invalid_argument when there is none.
    std::string Text(std::string_view name) const;
    /// A text with its tags filled in.
    std::string Expand(std::string_view text) const;

private:
    const std::map<std::string, std::string, std::less<>>& common_;
    std::vector<const Datum*> rows_;
    mutable Datum found_;
};

/// Writes the tree of a Markdown text to a document that Style::Prepare has seen.
class Writer {
public:
    Writer(const Manuscript& manuscript, const Style& style, const Extras& extras,
           const std::shared_ptr<Document>& document);

    /// Adds a section with headers and footers, the title and everything else, once for each row of the data; nullptr
    /// without any. Failure for what the data lack.
    void Write(const Datum* row);

private:
    /// Where a block stands.
    struct Position {
        double indent = 0;     // inches
        std::string list{};    // of the item whose first paragraph comes next
        int level = 0;         // in lists, from 1
        bool tight = false;    // the list's items are lines
        bool last = true;      // nothing of the outermost list comes behind
        int quotes = 0;        // around it
        bool ordered = false;  // the list around is a numbered one, of the name below
        std::string numbers{};
    };
    /// What a run of text looks like.
    struct Look {
        bool bold = false, italic = false, struck = false, code = false, raised = false;
        std::string link{};  // the code of its field
        bool operator==(const Look&) const = default;
    };
    struct Deeper;
    static constexpr const char* SectionNumbers = "Sections";

    // Blocks.
    template <class Render>
    void Siblings(cmark_node* first, cmark_node* end, const Render& render);
    template <class Render>
    void Repeat(const Tag& tag, const Render& render);
    void Blocks(cmark_node* parent, RowContainer& holder, Position position);
    void Block(cmark_node* node, RowContainer& holder, const Position& position);
    std::shared_ptr<Paragraph> Begin(Container& holder, std::string_view style, const Position& position);
    void Plain(cmark_node* node, RowContainer& holder, const Position& position);
    void Heading(cmark_node* node, RowContainer& holder, const Position& position);
    void CodeBlock(std::string_view text, RowContainer& holder, const Position& position);
    void HtmlBlock(std::string_view html, RowContainer& holder, const Position& position);
    void List(cmark_node* node, RowContainer& holder, const Position& outer);
    std::string ListFor(cmark_node* node, const Position& position, Position& inner);
    std::shared_ptr<draftwick::List> NewList(std::string_view name, std::string_view element);
    std::string Shared(std::string_view name, std::string_view bullet);
    void Table(cmark_node* node, RowContainer& holder, const Position& position);
    std::vector<double> ColumnWidths(cmark_node* table, std::size_t columns, double room) const;
    bool Caption(cmark_node* node, RowContainer& holder, const Position& position);
    void AddCaption(Paragraph& paragraph, std::string_view kind, int number);

    // Inlines.
    void Inlines(cmark_node* first, cmark_node* end, Paragraph& paragraph, const Look& look);
    void Inline(cmark_node* node, Paragraph& paragraph, Look look);
    void Say(std::string_view text, Paragraph& paragraph, const Look& look);
    void Flush(Paragraph& paragraph);
    void Dress(Run& run) const;
    void Link(cmark_node* node, Paragraph& paragraph, Look look);
    void Picture(cmark_node* node, Paragraph& paragraph, const Look& look);
    std::string PictureFile(cmark_node* node) const;
    void Note(cmark_node* reference, Paragraph& paragraph);
    std::string Filled(std::string_view text) const;

    // What stands around the text.
    void FindHeadings();
    void Headers();
    void Line(std::string_view name, dwHeaderKind kind, std::string_view style);
    void TitleBlock();
    void Contents();
    void Properties();
    std::string Setting(std::string_view name) const;
    double TextWidth() const {
        return section_->PageWidth() - section_->MarginLeft() - section_->MarginRight();
    }

    const Manuscript& manuscript_;
    const Style& style_;
    const Extras& extras_;
    std::shared_ptr<Document> document_;
    std::shared_ptr<Section> section_;
    Values values_;

    std::vector<cmark_node*> notes_;
    std::set<std::size_t> written_;                            // notes that were referred to
    std::map<cmark_node*, std::string> bookmarks_;             // of headings
    std::map<std::string, std::string, std::less<>> anchors_;  // their bookmarks by what links call them
    std::vector<cmark_node*> headings_;
    std::map<std::string, std::map<int, std::pair<int, int>>>
        usedLevels_;       // of numbered lists: start and mark
    std::string pending_;  // text that has not become a run yet
    Look pendingLook_;
    int lists_ = 0, figures_ = 0, tables_ = 0, depth_ = 0;
    std::size_t bookmarkCount_ = 0, notesBefore_ = 0;  // of the rows before
    bool inNote_ = false;
    double room_ = 0;  // inches between the indents of the paragraph
};

}  // namespace draftwick::command
