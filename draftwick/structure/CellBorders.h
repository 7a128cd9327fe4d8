#pragma once

#include <draftwick/format/Border.h>

namespace draftwick {

/// Which side of a cell a border stands on.
enum dwCellBorder : std::int32_t {
    dwCBorderTop = 1,
    dwCBorderLeft = 2,
    dwCBorderRight = 3,
    dwCBorderBottom = 4,
};

/// One side of the borders of a cell (RTF \clbrdrt and its siblings). Refuses once the cell is written ("Cell").
class CellBorder final : public Part {
public:
    struct Values {
        BorderStyle style{dwBSNone};
        Rounded width{1};
        std::int32_t color = 0;
    };

    CellBorder(Object& cell, dwCellBorder) : Part(cell) {}

    /// Default dwBSNone: no border. dwErrPropertyOutOfRange ("Border.Style") outside of the enumeration.
    dwBorderStyle Style() const { return values_.style; }
    void SetStyle(dwBorderStyle style) { Change(values_.style, style); }

    /// Whole points, whatever the document's unit, in 16 bits: unlike the width of a row's border it is rounded, ties
    /// to even, so that 0.5 is 0 and 0.75 is 1. Default 1.
    double Width() const { return values_.width; }
    void SetWidth(double points) { Change(values_.width, points); }

    /// Default black.
    std::int32_t Color() const { return values_.color; }
    void SetColor(std::int32_t color) { Change(values_.color, color); }

    static const Class& Describe();
    const Class& Description() const override { return Describe(); }

    const Values& Stored() const noexcept { return values_; }

private:
    Values values_;
};

/// The borders of a cell.
class CellBorders final : public BorderCollection<CellBorder, dwCellBorder, 4> {
public:
    using BorderCollection::BorderCollection;
    static const Class& Describe();
    const Class& Description() const override { return Describe(); }
};

}  // namespace draftwick
