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

struct DRAFTWICK_API CellBorderValues {
    detail::BorderStyle style{dwBSNone};
    rule::Rounded width{1};
    std::int32_t color = 0;
};

/// One side of the borders of a cell (RTF \clbrdrt and its siblings). Its Width is kept in whole points of 16 bits, ties
/// to even, unlike that of a row's border: 0.5 is 0 and 0.75 is 1. Refuses once the cell is written ("Cell").
class DRAFTWICK_API CellBorder final : public detail::Border<CellBorderValues> {
public:
    CellBorder(detail::Owner owner, dwCellBorder) : Border(owner) {}

    static const Class& Describe();
    const Class& Description() const override { return Describe(); }
};

/// The borders of a cell.
class DRAFTWICK_API CellBorders final : public detail::BorderCollection<CellBorder, dwCellBorder, 4> {
public:
    using BorderCollection::BorderCollection;
    static const Class& Describe();
    const Class& Description() const override { return Describe(); }
};

}  // namespace draftwick
