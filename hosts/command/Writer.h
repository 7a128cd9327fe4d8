#pragma once

#include "hosts/command/Manuscript.h"
#include "hosts/command/Rows.h"
#include "hosts/command/Style.h"

#include <draftwick/draftwick.h>

#include <map>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace draftwick::command {

/// What a document is to have besides its text.
struct Extras {
    bool contents = false;
    bool sectionNumbers = false;
    bool manyRows = false;  ///< each has pages of its own to count
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
        double indent = 0;      // inches
        std::string list{};     // of the item whose first paragraph comes next
        int level = 0;          // in lists, from 1
        bool tight = false;     // the list's items are lines
        bool last = true;       // nothing of the outermost list comes behind
        bool quoted = false;    // in a quotation
        std::string numbers{};  // the list around, when it is a numbered one
    };
    /// What a run of text looks like.
    struct Look {
        bool bold = false, italic = false, struck = false, code = false;
        std::string link{};  // the code of its field
        bool operator==(const Look&) const = default;
    };
    static constexpr const char* SectionNumbers = "Sections";

    // Blocks.
    template <class Render>
    void Siblings(cmark_node* first, cmark_node* end, const Render& render);
    template <class Render>
    void Repeat(const Tag& tag, const Render& render);
    void Blocks(cmark_node* parent, RowContainer& holder, Position position);
    void Block(cmark_node* node, RowContainer& holder, const Position& position);
    std::shared_ptr<Paragraph> Begin(Container& holder, std::string_view style, const Position& position);
    std::string_view StyleOfText(const Position& position) const;
    void Heading(cmark_node* node, RowContainer& holder, const Position& position);
    void List(cmark_node* node, RowContainer& holder, const Position& outer);
    std::string NumbersFor(cmark_node* node, const Position& outer, const Position& inner);
    std::string Bullets(const std::string& name, std::string_view bullet);
    std::shared_ptr<draftwick::List> NewList(std::string_view name, std::string_view element);
    void Table(cmark_node* node, RowContainer& holder, const Position& position);
    bool Caption(cmark_node* node, RowContainer& holder, const Position& position);
    void AddCaption(Paragraph& paragraph, std::string_view kind, int number);

    // Inlines.
    void Inlines(cmark_node* first, Paragraph& paragraph, const Look& look);
    void Inline(cmark_node* node, Paragraph& paragraph, Look look);
    void Fill(cmark_node* first, Paragraph& paragraph);
    void Fill(std::string_view text, Paragraph& paragraph);
    void Say(std::string_view text, Paragraph& paragraph, const Look& look);
    void Flush(Paragraph& paragraph);
    void Dress(Run& run) const;
    std::string Target(cmark_node* link) const;
    std::string PictureFile(cmark_node* node) const;
    void Picture(cmark_node* node, Paragraph& paragraph, const Look& look);
    void Note(cmark_node* reference, Paragraph& paragraph);
    static void NoteMark(Paragraph& paragraph);
    const Datum* Find(std::string_view name) const;
    std::string ValueOf(std::string_view name) const;
    std::string Filled(std::string_view text) const;

    // What stands around the text.
    void FindTargets();
    void Properties();
    void Line(std::string_view name, dwHeaderKind kind);
    void TitleBlock();
    void Contents();
    std::string Setting(std::string_view name) const;

    const Manuscript& manuscript_;
    const Style& style_;
    const Extras& extras_;
    std::shared_ptr<Document> document_;
    std::shared_ptr<Section> section_;
    std::vector<const Datum*> values_;  // that tags can name: those of all rows, then of rows in each other

    std::vector<cmark_node*> notes_, headings_;
    std::set<std::size_t> written_;                                      // notes that were referred to
    std::map<cmark_node*, std::string> bookmarks_;                       // of headings and <a id>
    std::map<std::string, std::string, std::less<>> anchors_;            // bookmarks by what links call them
    std::set<std::string> bullets_;                                      // lists that there are
    std::map<std::pair<std::string, int>, std::pair<int, int>> levels_;  // of a numbered list: start and mark
    std::string pending_;                                                // text that has not become a run yet
    Look pendingLook_;
    int lists_ = 0, figures_ = 0, tables_ = 0;
    std::size_t bookmarkCount_ = 0, notesBefore_ = 0;  // of the rows before
    bool inNote_ = false, beginsNote_ = false;
    double width_ = 0;  // inches between the margins
    double room_ = 0;   // inches between the indents of the paragraph
};

}  // namespace draftwick::command
