#pragma once

namespace draftwick {

/// The byte that stands for a character in the file: Windows-1252, "?" for a character that it does not have.
/// The five positions that Windows-1252 leaves open (81, 8D, 8F, 90, 9D) stand for the control characters of the
/// same number, as they do on Windows. No best-fit mapping.
char ToAnsi(char32_t character) noexcept;

}  // namespace draftwick
