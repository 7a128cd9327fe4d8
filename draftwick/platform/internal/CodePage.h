#pragma once

#include <cstddef>

namespace draftwick::platform {

/// How many bytes a character can have in a code page.
inline constexpr std::size_t LongestAnsiCharacter = 4;

/// The byte that stands for a character beyond ASCII in Windows-1252; 0 for one that it does not have. The five positions
/// that it leaves open (81, 8D, 8F, 90, 9D) stand for the control characters of the same number, as on Windows.
char Windows1252(char32_t character) noexcept;

/// Writes the bytes that stand for a character in the file and returns how many: those of the system's ANSI code page
/// on Windows, of Windows-1252 elsewhere; "?" for a character that it does not have. No best-fit
/// mapping.
std::size_t EncodeAnsi(char32_t character, char* bytes) noexcept;

}  // namespace draftwick::platform
