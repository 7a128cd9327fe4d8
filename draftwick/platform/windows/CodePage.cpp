#include <draftwick/platform/internal/CodePage.h>
#include <draftwick/platform/windows/Windows.h>

#include <algorithm>
#include <array>

namespace draftwick::platform {

namespace {

/// The upper half of a code page with one byte to a character, so that the system need not be asked each time.
struct UpperHalf {
    bool isWhole = false;
    std::array<wchar_t, 128> characters{};

    UpperHalf() {
        CPINFO info{};
        isWhole = ::GetCPInfo(CP_ACP, &info) && info.MaxCharSize == 1;
        for (std::size_t i = 0; isWhole && i < characters.size(); ++i) {
            const auto byte = static_cast<char>(0x80 + i);
            isWhole = ::MultiByteToWideChar(CP_ACP, 0, &byte, 1, &characters[i], 1) == 1;
        }
    }
};

std::size_t AskSystem(char32_t character, char* bytes) {
    const bool pair = character > 0xFFFF;
    const char32_t rest = character - 0x10000;
    const wchar_t wide[2] = {static_cast<wchar_t>(pair ? 0xD800 + (rest >> 10) : character),
                             static_cast<wchar_t>(0xDC00 + (rest & 0x3FF))};
    const bool isUtf8 = ::GetACP() == CP_UTF8;  // it has every character, and takes no options
    BOOL missing = FALSE;
    const int length =
        ::WideCharToMultiByte(CP_ACP, isUtf8 ? 0 : WC_NO_BEST_FIT_CHARS, wide, pair ? 2 : 1, bytes,
                              LongestAnsiCharacter, nullptr, isUtf8 ? nullptr : &missing);
    if (length > 0 && !missing) return static_cast<std::size_t>(length);
    *bytes = '?';
    return 1;
}

}  // namespace

std::size_t EncodeAnsi(char32_t character, char* bytes) noexcept {
    if (character < 0x80) {
        *bytes = static_cast<char>(character);
        return 1;
    }
    static const UpperHalf upper;
    if (!upper.isWhole) return AskSystem(character, bytes);
    const auto found = std::find(upper.characters.begin(), upper.characters.end(), character);
    *bytes =
        found == upper.characters.end() ? '?' : static_cast<char>(0x80 + (found - upper.characters.begin()));
    return 1;
}

}  // namespace draftwick::platform
