#pragma once

#include <cstddef>

namespace draftwick::platform {

/// How many bytes a character can have in a code page.
inline constexpr std::size_t LongestAnsiCharacter = 4;

/// Writes the bytes that stand for a character in the file and returns how many: those of the system's ANSI code page
/// on Windows, of Windows-1252 elsewhere; "?" for a character that it does not have. The five positions that
/// Windows-1252 leaves open (81, 8D, 8F, 90, 9D) stand for the control characters of the same number, as they do on
/// Windows. No best-fit mapping.
std::size_t EncodeAnsi(char32_t character, char* bytes) noexcept;

}  // namespace draftwick::platform
