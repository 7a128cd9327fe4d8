#pragma once

#include <string_view>

namespace draftwick {

/// Which way a text runs: what its first letter with a direction says.
enum class Direction : unsigned char { None, LeftToRight, RightToLeft };

/// What the writing systems of a text ask of its writer.
struct Scripts {
    Direction direction = Direction::None;
    bool rightToLeft = false;  ///< has Hebrew, Arabic or another script that runs to the left
    bool eastAsian = false;    ///< has Chinese, Japanese or Korean
};

/// Of a text in its RTF form, whose control words do not count. By blocks of Unicode, not by the properties of each
/// character: what is no letter may count as one.
Scripts ScriptsOf(std::string_view text);

}  // namespace draftwick
