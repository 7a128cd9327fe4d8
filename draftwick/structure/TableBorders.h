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

/// One of the borders of a row (RTF \trbrdrt and its siblings). Refuses once the row is written ("Table").
class TableBorder final : public Part {
public:
    struct Values {
        BorderStyle style{dwBSNone};
        Points width{1};
        std::int32_t color = 0;
    };

    TableBorder(Object& table, dwTableBorder) : Part(table) {}

    /// Default dwBSNone: no border. dwErrPropertyOutOfRange ("Border.Style") outside of the enumeration.
    dwBorderStyle Style() const { return values_.style; }
    void SetStyle(dwBorderStyle style) { Change(values_.style, style); }

    /// Points, whatever the document's unit; kept as given and written as whole twips, rounded down. Default 1.
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

/// The borders of a row.
class TableBorders final : public BorderCollection<TableBorder, dwTableBorder, 6> {
public:
    using BorderCollection::BorderCollection;
    static const Class& Describe();
    const Class& Description() const override { return Describe(); }
};

}  // namespace draftwick
