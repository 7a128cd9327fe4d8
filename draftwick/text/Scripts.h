#pragma once

#include <string_view>

namespace draftwick {

/// Which way a text runs: what its first letter with a direction says.
enum class Direction : unsigned char { None, LeftToRight, RightToLeft };

/// What the writing systems of a text ask of its writer.
struct Scripts {
    Direction direction = Direction::None;
    bool rightToLeft = false;  ///< has Hebrew, Arabic or another script that runs to the left
    bool complex = false;      ///< has Devanagari, Thai or another script of India and South-East Asia
    bool eastAsian = false;    ///< has Chinese, Japanese or Korean

    bool Any() const noexcept { return rightToLeft || complex || eastAsian; }
};

/// What the characters of a text are, at most.
enum class Letters : unsigned char {
    Ascii,
    Western,  ///< none that needs more than left-to-right text of one script does
    Any,
};

/// Whether a character that begins with this byte in UTF-8 can be of a script that runs to the left, or East Asian: those
/// up to U+057F cannot, nor punctuation and symbols (U+2000 to U+2FFF, of which radicals are the last).
constexpr bool MayNeedScripts(char first) noexcept {
    const auto byte = static_cast<unsigned char>(first);
    return byte >= 0xD6 && byte != 0xE2;
}

/// Of a text in its RTF form, whose control words do not count. By blocks of Unicode, not by the properties of each
/// character: what is no letter may count as one.
Scripts ScriptsOf(std::string_view text, Letters letters = Letters::Any);

}  // namespace draftwick
