#pragma once

#include <draftwick/base/internal/Names.h>
#include <draftwick/platform/Export.h>

#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>

namespace draftwick {

/// Stands for whatever is not UTF-8.
inline constexpr char32_t ReplacementCharacter = U'\uFFFD';

/// Reads the character at `position`, which must be less than the length of the text, and moves `position`
/// behind it. UTF-8 is read strictly: overlong forms, surrogates, values above U+10FFFF, stray continuation
/// bytes and sequences that are cut short are malformed. Each longest piece of the text that begins like a
/// character and is none counts as one U+FFFD, as The Unicode Standard recommends in section 3.9.
inline char32_t DecodeUtf8(std::string_view text, std::size_t& position) noexcept;

/// Appends the character in UTF-8; U+FFFD for a surrogate or a value above U+10FFFF.
DRAFTWICK_API void AppendUtf8(std::string& text, char32_t character);

/// The position of the first byte at or after `position` that is not ASCII.
DRAFTWICK_API std::size_t SkipAscii(std::string_view text, std::size_t position);

// Texts are looked at eight bytes at a time, as one number with the first byte lowest.

/// The number of which each byte is the given one.
constexpr std::uint64_t InEachByte(std::uint64_t byte) noexcept { return byte * 0x0101010101010101; }
inline std::uint64_t LowestFirst(std::uint64_t bytes) noexcept {
    if constexpr (std::endian::native == std::endian::little) return bytes;
    std::uint64_t turned = 0;
    for (int i = 0; i < 8; ++i) turned = turned << 8 | (bytes >> (8 * i) & 0xFF);
    return turned;
}
inline std::uint64_t EightBytes(const char* text) noexcept {
    std::uint64_t bytes;
    std::memcpy(&bytes, text, sizeof bytes);
    return LowestFirst(bytes);
}
/// The last bytes of a text, less than eight.
DRAFTWICK_API std::uint64_t LastBytes(std::string_view text, std::size_t count) noexcept;
/// The eight bytes at a position, which must be less than the length of the text. Behind its end there are zeros.
inline std::uint64_t NextBytes(std::string_view text, std::size_t position) noexcept {
    const std::size_t left = text.size() - position;
    return left >= 8 ? EightBytes(text.data() + position) : LastBytes(text, left);
}
inline void PutBytes(std::uint64_t bytes, char* to) noexcept {
    bytes = LowestFirst(bytes);
    std::memcpy(to, &bytes, sizeof bytes);
}
/// How many bytes come before the first one whose highest bit is set.
inline std::size_t CountBytes(std::uint64_t bytes) noexcept {
    return static_cast<std::size_t>(std::countr_zero(bytes & InEachByte(0x80))) / 8;
}

/// DecodeUtf8 for every character, the rare and the malformed ones, too.
DRAFTWICK_API char32_t DecodeAnyUtf8(std::string_view text, std::size_t& position) noexcept;

inline char32_t DecodeUtf8(std::string_view text, std::size_t& position) noexcept {
    // Nearly all characters that are not ASCII have two bytes, from C2 on, or three.
    const std::uint64_t bytes = NextBytes(text, position);
    const auto bits = [bytes](int byte, unsigned mask) {
        return static_cast<char32_t>(bytes >> 8 * byte) & mask;
    };
    if ((bytes & 0xC0E0) == 0x80C0 && bits(0, 0x1E) != 0) {
        position += 2;
        return bits(0, 0x1F) << 6 | bits(1, 0x3F);
    }
    if ((bytes & 0xC0C0F0) == 0x8080E0) {
        const char32_t character = bits(0, 0x0F) << 12 | bits(1, 0x3F) << 6 | bits(2, 0x3F);
        if (character >= 0x800 && (character < 0xD800 || character > 0xDFFF)) {
            position += 3;
            return character;
        }
    }
    return DecodeAnyUtf8(text, position);
}

DRAFTWICK_API bool IsValidUtf8(std::string_view text);

/// The text with U+FFFD in place of everything malformed.
DRAFTWICK_API std::string ToValidUtf8(std::string_view text);

}  // namespace draftwick
