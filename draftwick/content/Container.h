#pragma once

#include <draftwick/base/Content.h>

namespace draftwick {

class Paragraph;

/// Everything that holds paragraphs.
class Container : public Content {
public:
    using Content::Content;

    /// Adds a paragraph after everything that the container holds. Refuses once it is finished, with the name of its
    /// class.
    std::shared_ptr<Paragraph> AddParagraph();

    /// The paragraph that was added last; empty before the first.
    std::shared_ptr<Paragraph> CurrentParagraph() const { return currentParagraph_; }

    // The rest is for the library.

    /// Writes what stands between a paragraph and what comes before it.
    virtual void WriteParagraphMark();

private:
    std::shared_ptr<Paragraph> currentParagraph_;
};

}  // namespace draftwick
