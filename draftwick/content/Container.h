#pragma once

#include <draftwick/base/Content.h>

namespace draftwick {

class Paragraph;
class Table;

/// Everything that holds paragraphs. What a paragraph writes about the place where it stands is the container's
/// business: the kinds of container differ in the Write functions below and in nothing else.
class Container : public Content {
public:
    using Content::Content;

    /// Adds a paragraph after everything that the container holds. Refuses once it is finished, with the name of its
    /// class.
    std::shared_ptr<Paragraph> AddParagraph();

    /// The paragraph that was added last; empty before the first.
    std::shared_ptr<Paragraph> CurrentParagraph() const { return currentParagraph_; }

    // The rest is for the library.

    /// Writes what stands before a paragraph's \pard: \par when another paragraph comes before it.
    virtual void WriteParagraphMark();
    /// Writes what stands right after a paragraph's \pard: in a cell, that the paragraph belongs to a row.
    virtual void WriteParagraphPlace() {}

private:
    std::shared_ptr<Paragraph> currentParagraph_;
};

/// Everything that holds rows of tables beside paragraphs.
class RowContainer : public Container {
public:
    using Container::Container;

    /// Adds a row after everything that the container holds; rows that follow each other make one table. Refuses
    /// once the container is finished, with the name of its class.
    std::shared_ptr<Table> AddTable();

    /// The row that was added last; empty before the first.
    std::shared_ptr<Table> CurrentTable() const { return currentTable_; }

    // The rest is for the library.

    /// Writes what stands before a row's \trowd: \par when a paragraph comes before it.
    virtual void WriteRowMark();

private:
    std::shared_ptr<Table> currentTable_;
};

}  // namespace draftwick
