#pragma once

#include <draftwick/model/Content.h>

#include <string_view>

namespace draftwick {

class Frame;
class Paragraph;
class Table;

/// Everything that holds paragraphs. What a paragraph writes about the place where it stands is the container's
/// business: the kinds of container differ in the Write functions below and in nothing else.
class DRAFTWICK_API Container : public detail::Content {
public:
    using Content::Content;

    /// Adds a paragraph after everything that the container holds. Refuses once it is finished, with the name of its
    /// class. A style is set as by SetStyleName, and dwErrItemNotFound adds nothing; a text is added as by AddTextItem,
    /// so that the paragraph's settings are written.
    std::shared_ptr<Paragraph> AddParagraph(std::string_view style = {}, std::string_view text = {});

    /// The paragraph that was added last; empty before the first.
    std::shared_ptr<Paragraph> CurrentParagraph() const { return currentParagraph_; }

protected:
    /// Writes what stands before a paragraph's \pard: \par when another paragraph comes before it.
    virtual void WriteParagraphMark();
    /// Writes \pard and where the paragraph's own frame, if it has one, places it. A paragraph in a cell goes where its
    /// row does.
    virtual void WriteParagraphPlace(const Frame* frame);
    /// Whether the container is a cell, or a note in a cell: then what stands in its paragraphs must leave the writers
    /// of paragraphs and rows as it found them.
    virtual bool StandsInCell() const { return false; }

private:
    friend class Paragraph;

    std::shared_ptr<Paragraph> currentParagraph_;
};

/// Everything that holds rows of tables beside paragraphs.
class DRAFTWICK_API RowContainer : public Container {
public:
    using Container::Container;

    /// Adds a row after everything that the container holds; rows that follow each other make one table. Refuses
    /// once the container is finished, with the name of its class.
    std::shared_ptr<Table> AddTable();

    /// The row that was added last; empty before the first.
    std::shared_ptr<Table> CurrentTable() const { return currentTable_; }

protected:
    /// Writes what stands before a row's \trowd: \par when a paragraph comes before it.
    virtual void WriteRowMark();

private:
    friend class Table;

    std::shared_ptr<Table> currentTable_;
};

}  // namespace draftwick
