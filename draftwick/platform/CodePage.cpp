#include <draftwick/platform/internal/CodePage.h>

#include <algorithm>
#include <array>
#include <iterator>

namespace draftwick::platform {

namespace {

// What the bytes 80 to 9F stand for in Windows-1252.
constexpr char16_t High[] = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178,
};

constexpr char Find(char32_t character) {
    const auto* found = std::find(std::begin(High), std::end(High), character);
    return found == std::end(High) ? '\0' : static_cast<char>(0x80 + (found - std::begin(High)));
}

// Dashes, quotation marks, the bullet, the ellipsis: they are in every text.
constexpr char32_t FirstPunctuation = 0x2010;
constexpr auto Punctuation = [] {
    std::array<char, 0x30> bytes{};
    for (char32_t i = 0; i < bytes.size(); ++i) bytes[i] = Find(FirstPunctuation + i);
    return bytes;
}();

}  // namespace

char Windows1252(char32_t character) noexcept {
    if (character >= 0xA0 && character <= 0xFF) return static_cast<char>(character);
    const char32_t punctuation = character - FirstPunctuation;
    return punctuation < Punctuation.size() ? Punctuation[punctuation] : Find(character);
}

}  // namespace draftwick::platform
