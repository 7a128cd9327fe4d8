#pragma once

#include <draftwick/platform/Export.h>

#include <cstddef>
#include <string>
#include <string_view>

namespace draftwick {

/// Stands for whatever is not UTF-8.
inline constexpr char32_t ReplacementCharacter = U'\uFFFD';

/// Reads the character at `position`, which must be less than the length of the text, and moves `position`
/// behind it. UTF-8 is read strictly: overlong forms, surrogates, values above U+10FFFF, stray continuation
/// bytes and sequences that are cut short are malformed. Each longest piece of the text that begins like a
/// character and is none counts as one U+FFFD, as The Unicode Standard recommends in section 3.9.
DRAFTWICK_API char32_t DecodeUtf8(std::string_view text, std::size_t& position);

/// Appends the character in UTF-8; U+FFFD for a surrogate or a value above U+10FFFF.
DRAFTWICK_API void AppendUtf8(std::string& text, char32_t character);

/// The position of the first byte at or after `position` that is not ASCII.
DRAFTWICK_API std::size_t SkipAscii(std::string_view text, std::size_t position);

DRAFTWICK_API bool IsValidUtf8(std::string_view text);

/// The text with U+FFFD in place of everything malformed.
DRAFTWICK_API std::string ToValidUtf8(std::string_view text);

}  // namespace draftwick
