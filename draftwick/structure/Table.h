#pragma once

#include <draftwick/content/Container.h>
#include <draftwick/format/Frame.h>
#include <draftwick/structure/TableBorders.h>

#include <vector>

namespace draftwick {

class Cell;

/// How a row stands between the margins (RTF \trql and its siblings).
enum dwTableAlign : std::int32_t { dwTALeft = 1, dwTACenter = 2, dwTARight = 3 };

/// One row of a table (RTF \trowd); rows that are added one after the other make one table. Its settings are
/// written when its first cell is added; from then on setters refuse ("Table"). Lengths are 16 bits in twips. In the
/// standard spelling a row is kept in memory until it is closed: what it says about all of its cells comes before their
/// texts in the file.
class DRAFTWICK_API Table final : public detail::HeldBy<RowContainer> {
public:
    struct Values {
        rule::Choice<"Table.Align", dwTALeft, dwTARight> align{dwTALeft};
        // Together these two put the text of the first cell on the margin.
        rule::Length gap{95};
        rule::Length left{-95};
        bool header = false;
        rule::Length height{0};
        bool heightExactly = false;
        bool keepTogether = false;
    };

    using HeldBy::HeldBy;

    /// Adds a cell to the right of the others and closes the one before. Refuses once the row is finished ("Table").
    /// Error 6 when the cell before would end beyond 32767 twips: it can still be made narrower.
    /// With a cell of this or another row, written or not, the new one begins with its width, vertical alignment,
    /// orientation, borders and background; merging is left out.
    std::shared_ptr<Cell> AddCell(const std::shared_ptr<Cell>& like = {});
    /// The cell that was added last; empty before the first.
    std::shared_ptr<Cell> CurrentCell() const { return currentCell_; }

    /// Default dwTALeft.
    dwTableAlign Align() const { return values_.align; }
    void SetAlign(dwTableAlign align) { Change(values_.align, align); }

    /// Half of the space between the texts of two cells (RTF \trgaph). Default 95 twips.
    double Gap() const { return Read(values_.gap); }
    void SetGap(Measure length) { Change(values_.gap, length); }

    /// Where the row begins, from the left margin. In the classic spelling it does not move the right edges of the
    /// cells, so that the first cell is as much wider. Default -95 twips.
    double Left() const { return Read(values_.left); }
    void SetLeft(Measure length) { Change(values_.left, length); }

    /// The row is repeated at the top of each page that its table goes on to. Default false.
    bool Header() const { return values_.header; }
    void SetHeader(bool on) { Change(values_.header, on); }

    /// Default 0: as high as its text.
    double Height() const { return Read(values_.height); }
    void SetHeight(Measure length) { Change(values_.height, length); }
    /// Whether Height is the height of the row, not the least height. Default false.
    bool HeightExactly() const { return values_.heightExactly; }
    void SetHeightExactly(bool on) { Change(values_.heightExactly, on); }

    /// The row stands on one page. Default false.
    bool KeepTogether() const { return values_.keepTogether; }
    void SetKeepTogether(bool on) { Change(values_.keepTogether, on); }

    /// The lines around and in the row. Readers that draw only those of cells are common: in the standard spelling the
    /// cells have them on sides that have no border of their own.
    std::shared_ptr<TableBorders> Borders();
    /// Where the row stands on the page; all rows of a table should say the same.
    std::shared_ptr<draftwick::Frame> Frame();

    static const Class& Describe();
    const Class& Description() const override { return Describe(); }

protected:
    void WriteStart() override;
    void WriteEnd() override;

private:
    friend struct detail::Access;
    friend class Cell;

    void WriteDefinition();

    Values values_;
    detail::Lazy<TableBorders> borders_;
    detail::Lazy<draftwick::Frame> frame_;
    std::shared_ptr<Cell> currentCell_;
    bool below_ = false;                        // follows another row
    std::vector<std::shared_ptr<Cell>> cells_;  // in the standard spelling, until the row is written
};

}  // namespace draftwick
