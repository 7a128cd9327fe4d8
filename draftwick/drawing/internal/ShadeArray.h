#pragma once

#include <cstdint>
#include <draftwick/base/internal/Names.h>
#include <string_view>
#include <vector>

namespace draftwick {

/// One colour of a shade of more than two.
struct ShadeColor {
    std::int32_t color = 0;
    std::int32_t position = 0;  ///< as it is written: of 65536
};

/// The colours in a text of numbers separated by commas. Errors as ShapeFill::SetShadeArray.
std::vector<ShadeColor> ReadShadeArray(std::string_view colors);

}  // namespace draftwick
