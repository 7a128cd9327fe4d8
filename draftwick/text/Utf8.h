#pragma once

#include <draftwick/base/internal/Names.h>
#include <draftwick/platform/Export.h>

#include <bit>
#include <cstddef>
#include <cstdint>
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

// Texts are looked at eight bytes at a time, as one number with the first byte lowest.

/// The number of which each byte is the given one.
constexpr std::uint64_t InEachByte(std::uint64_t byte) noexcept { return byte * 0x0101010101010101; }
inline std::uint64_t EightBytes(const char* text) noexcept {
    const auto at = [text](int i) { return std::uint64_t{static_cast<unsigned char>(text[i])} << (8 * i); };
    return at(0) | at(1) | at(2) | at(3) | at(4) | at(5) | at(6) | at(7);
}
/// The eight bytes at a position, which must be less than the length of the text. Behind its end there are zeros.
inline std::uint64_t NextBytes(std::string_view text, std::size_t position) noexcept {
    const std::size_t left = text.size() - position;
    if (left >= 8) return EightBytes(text.data() + position);
    if (text.size() >= 8) return EightBytes(text.data() + text.size() - 8) >> (8 * (8 - left));
    std::uint64_t bytes = 0;
    for (std::size_t i = text.size(); i-- > position;)
        bytes = bytes << 8 | static_cast<unsigned char>(text[i]);
    return bytes;
}
inline void PutBytes(std::uint64_t bytes, char* to) noexcept {
    const auto put = [&](int i) { to[i] = static_cast<char>(bytes >> (8 * i)); };
    put(0), put(1), put(2), put(3), put(4), put(5), put(6), put(7);
}
/// How many bytes come before the first one whose highest bit is set.
inline std::size_t CountBytes(std::uint64_t bytes) noexcept {
    return static_cast<std::size_t>(std::countr_zero(bytes & InEachByte(0x80))) / 8;
}

DRAFTWICK_API bool IsValidUtf8(std::string_view text);

/// The text with U+FFFD in place of everything malformed.
DRAFTWICK_API std::string ToValidUtf8(std::string_view text);

}  // namespace draftwick
