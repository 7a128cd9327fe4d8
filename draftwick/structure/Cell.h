#pragma once

#include <draftwick/content/Container.h>
#include <draftwick/format/Background.h>
#include <draftwick/structure/CellBorders.h>

namespace draftwick {

namespace detail {
struct CellSettings;
}  // namespace detail

/// Which cells are one to the reader (RTF \clmgf and its siblings).
enum dwCellMerge : std::int32_t {
    dwMergeNone = 1,
    dwMergeFirstHorizontal = 2,  ///< the first of cells merged across
    dwMergeFirstVertical = 3,    ///< the first of cells merged down
    dwMergeFirstBoth = 4,        ///< the first of cells merged across and down
    dwMergeHorizontal = 5,       ///< belongs to the cell on its left
    dwMergeVertical = 6,         ///< belongs to the cell above
};
/// Where text stands in a cell that it does not fill (RTF \clvertalt and its siblings).
enum dwCellVerticalAlign : std::int32_t { dwCVATop = 1, dwCVABottom = 2, dwCVACenter = 3 };
/// The direction of the text: across, upwards or downwards.
enum dwCellOrientation : std::int32_t { dwReadNormal = 1, dwReadRight = 2, dwReadLeft = 3 };

/// A cell of a row (RTF \cellx). Its settings are written when its first paragraph is added; from then on setters
/// refuse ("Cell"). A cell without a paragraph is an empty cell.
class DRAFTWICK_API Cell final : public detail::HeldBy<Table, Container> {
public:
    struct Values {
        rule::Choice<"Cell.Merge", dwMergeNone, dwMergeVertical> merge{dwMergeNone};
        rule::Choice<"Cell.VerticalAlign", dwCVATop, dwCVACenter> verticalAlign{dwCVATop};
        // No value of the enumeration, to which a program cannot return.
        rule::Choice<"Cell.Orientation", dwReadNormal, dwReadLeft> orientation{dwCellOrientation{}};
        rule::Length width{1440};
    };

    using HeldBy::HeldBy;

    /// Default dwMergeNone.
    dwCellMerge Merge() const { return values_.merge; }
    void SetMerge(dwCellMerge merge) { Change(values_.merge, merge); }

    /// Default dwCVATop.
    dwCellVerticalAlign VerticalAlign() const { return values_.verticalAlign; }
    void SetVerticalAlign(dwCellVerticalAlign align) { Change(values_.verticalAlign, align); }

    /// Default 0: nothing is written, as for dwReadNormal. In the classic spelling the word stands after the cell's
    /// right edge, where readers take it for the next cell.
    dwCellOrientation Orientation() const { return values_.orientation; }
    void SetOrientation(dwCellOrientation orientation) { Change(values_.orientation, orientation); }

    /// 16 bits in twips, as is the sum over the row: where that goes beyond 32767 twips, the call that would write the
    /// cell is refused with error 6. Default 1440 twips.
    double Width() const { return Read(values_.width); }
    void SetWidth(Measure length) { Change(values_.width, length); }

    /// What stands behind the cell, and the lines around it. Each is there from its first use on.
    std::shared_ptr<draftwick::Background> Background();
    std::shared_ptr<CellBorders> Borders();

    static const Class& Describe();
    const Class& Description() const override { return Describe(); }

protected:
    void WriteParagraphMark() override;
    void WriteParagraphPlace(const Frame* frame) override;
    bool StandsInCell() const override { return true; }
    void WriteStart() override;
    void WriteEnd() override;

private:
    friend struct detail::Access;
    friend class Table;

    void BeginLike(const Cell& other);
    detail::CellSettings Settings() const;

    Values values_;
    detail::Lazy<draftwick::Background> background_;
    detail::Lazy<CellBorders> borders_;
};

}  // namespace draftwick
