#pragma once

#include <draftwick/format/Border.h>

namespace draftwick {

/// Which side of the page a border stands on.
enum dwPageBorder : std::int32_t {
    dwPgBorderTop = 1,
    dwPgBorderLeft = 2,
    dwPgBorderRight = 3,
    dwPgBorderBottom = 4,
};
/// Which pages of the section have the borders.
enum dwPageBorderDisplay : std::int32_t {
    dwPBDAllPages = 1,
    dwPBDFirstPage = 2,
    dwPBDExceptFirst = 3,
};
/// What the distance of the borders is measured from.
enum dwPageBorderOffset : std::int32_t { dwPBOText = 1, dwPBOPage = 2 };

struct DRAFTWICK_API PageBorderValues {
    detail::BorderStyle style{dwBSNone};
    rule::Points width{1};
    rule::Points spacing{1};
    std::int32_t color = 0;
    rule::Choice<"PageBorder.Art", std::int32_t{0}, std::int32_t{165}> art{0};
};

/// One side of the borders of a section's pages. Refuses when the section refuses.
class DRAFTWICK_API PageBorder final : public detail::Border<PageBorderValues> {
public:
    PageBorder(detail::Owner owner, dwPageBorder side);

    /// From the border to what PageBorders.Offset says: points. Default 1; 4 on the left and on the right. Readers
    /// take up to 31.
    double Spacing() const { return values_.spacing; }
    void SetSpacing(double points) { Change(values_.spacing, points); }

    /// The number of a picture border (RTF \brdrart), 1..165, which is drawn in place of the line; 0 (default) for
    /// none.
    std::int32_t Art() const { return values_.art; }
    void SetArt(std::int32_t art) { Change(values_.art, art); }

    static const Class& Describe();
    const Class& Description() const override { return Describe(); }
};

/// The borders of a section's pages. A side without a line or picture is not written; without any side nothing is.
/// Refuses when the section refuses.
class DRAFTWICK_API PageBorders final : public detail::BorderCollection<PageBorder, dwPageBorder, 4> {
public:
    struct Values {
        rule::Choice<"PageBorders.Display", dwPBDAllPages, dwPBDExceptFirst> display{dwPBDAllPages};
        rule::Choice<"PageBorders.Offset", dwPBOText, dwPBOPage> offset{dwPBOText};
        bool inFront = true;
        bool snap = false;
    };

    using BorderCollection::BorderCollection;

    /// Default dwPBDAllPages.
    dwPageBorderDisplay Display() const { return values_.display; }
    void SetDisplay(dwPageBorderDisplay display) { Change(values_.display, display); }

    /// Default dwPBOText.
    dwPageBorderOffset Offset() const { return values_.offset; }
    void SetOffset(dwPageBorderOffset offset) { Change(values_.offset, offset); }

    /// Drawn over the text, not under it. Default true.
    bool InFront() const { return values_.inFront; }
    void SetInFront(bool on) { Change(values_.inFront, on); }

    /// Borders of paragraphs and tables are moved to meet the page's. Default false.
    bool Snap() const { return values_.snap; }
    void SetSnap(bool on) { Change(values_.snap, on); }

    static const Class& Describe();
    const Class& Description() const override { return Describe(); }

private:
    friend struct detail::Access;

    Values values_;
};

}  // namespace draftwick
