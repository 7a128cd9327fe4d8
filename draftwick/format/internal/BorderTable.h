#pragma once

#include <draftwick/model/internal/ClassTable.h>

namespace draftwick {

/// What borders of all kinds have, and then `more`, for the table of a class.
template <class Border>
std::vector<ClassProperty> BorderRows(std::initializer_list<ClassProperty> more = {}) {
    using V = typename Border::Values;
    std::vector<ClassProperty> rows{
        PropertyOf<&Border::Style, &Border::SetStyle, &V::style>("Style"),
        PropertyOf<&Border::Width, &Border::SetWidth, &V::width>("Width"),
        PropertyOf<&Border::Color, &Border::SetColor, &V::color>("Color").As(Kind::Color),
    };
    rows.insert(rows.end(), more);
    return rows;
}

}  // namespace draftwick
