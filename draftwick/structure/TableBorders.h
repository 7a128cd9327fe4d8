#pragma once

#include <draftwick/format/Border.h>

namespace draftwick {

/// Which line of a row a border is.
enum dwTableBorder : std::int32_t {
    dwTBorderTop = 1,
    dwTBorderLeft = 2,
    dwTBorderRight = 3,
    dwTBorderBottom = 4,
    dwTBorderHorizontal = 5,  ///< between this row and its neighbours
    dwTBorderVertical = 6,    ///< between the cells
};

struct DRAFTWICK_API TableBorderValues {
    detail::BorderStyle style{dwBSNone};
    rule::Points width{1};
    std::int32_t color = 0;
};

/// One of the borders of a row (RTF \trbrdrt and its siblings). Refuses once the row is written ("Table").
class DRAFTWICK_API TableBorder final : public detail::Border<TableBorderValues> {
public:
    TableBorder(detail::Owner owner, dwTableBorder) : Border(owner) {}

    static const Class& Describe();
    const Class& Description() const override { return Describe(); }
};

/// The borders of a row.
class DRAFTWICK_API TableBorders final : public detail::BorderCollection<TableBorder, dwTableBorder, 6> {
public:
    using BorderCollection::BorderCollection;
    static const Class& Describe();
    const Class& Description() const override { return Describe(); }
};

}  // namespace draftwick
