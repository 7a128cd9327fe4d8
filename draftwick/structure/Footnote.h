#pragma once

#include <draftwick/content/Container.h>

namespace draftwick {

/// A footnote or endnote (RTF \footnote), with paragraphs and rows. It takes no more of them once its paragraph gets
/// its next child or is closed ("Footnote").
///
/// Your program adds the number of the note: add Special::Footnote to the paragraph before the note and to the
/// note's first paragraph. In the classic spelling nothing is written between the paragraphs of a note, so that they
/// run together in a reader: one paragraph is what a note should have there.
class DRAFTWICK_API Footnote final : public detail::HeldBy<Paragraph, RowContainer> {
public:
    Footnote(const detail::Origin& origin, bool isEndnote) : HeldBy(origin), isEndnote_(isEndnote) {}

    /// Whether it is an endnote: what AddFootnote was told.
    bool IsEndnote() const noexcept { return isEndnote_; }

    static const Class& Describe();
    const Class& Description() const override { return Describe(); }

protected:
    void WriteParagraphMark() override;
    void WriteRowMark() override;
    bool StandsInCell() const override;
    void WriteStart() override;
    void WriteEnd() override;

private:
    bool isEndnote_;
};

}  // namespace draftwick
