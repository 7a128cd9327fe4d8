#pragma once

#include <draftwick/content/Container.h>

namespace draftwick {

/// Which header or footer of a section (RTF \header and its siblings).
enum dwHeaderKind : std::int32_t {
    dwHeader = 1,  ///< on all pages of a document without facing pages
    dwFooter = 2,
    dwHeaderLeft = 3,  ///< with facing pages: on pages with an even number
    dwHeaderRight = 4,
    dwFooterLeft = 5,
    dwFooterRight = 6,
    dwHeaderFirst = 7,  ///< on the first page of a section with a title page
    dwFooterFirst = 8,
};

/// A header or footer of a section, with paragraphs and rows like the section itself. Refuses more of them once it
/// is closed, which is when the section gets its next child ("Header").
class DRAFTWICK_API Header final : public RowContainer {
public:
    Header(const detail::Origin& origin, dwHeaderKind kind) : RowContainer(origin), kind_(kind) {}

    static const Class& Describe();
    const Class& Description() const override { return Describe(); }

protected:
    void WriteStart() override;
    void WriteEnd() override;

private:
    dwHeaderKind kind_;
};

}  // namespace draftwick
