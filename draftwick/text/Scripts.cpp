#include <draftwick/text/Scripts.h>
#include <draftwick/text/Utf8.h>

#include <algorithm>

namespace draftwick {

namespace {

bool InBlock(char32_t character, char32_t first, char32_t last) {
    return character >= first && character <= last;
}

bool IsAsciiLetter(char c) { return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z'); }

/// Hebrew to Arabic Extended-A, the presentation forms, and the blocks of ancient and African scripts.
bool RunsToTheLeft(char32_t character) {
    return InBlock(character, 0x0590, 0x08FF) || InBlock(character, 0xFB1D, 0xFDFF)
           || InBlock(character, 0xFE70, 0xFEFC) || InBlock(character, 0x10800, 0x10FFF)
           || InBlock(character, 0x1E800, 0x1EFFF);
}

/// Hangul Jamo, radicals to the last Hangul syllable, compatibility and wide forms, ideographs beyond 16 bits.
bool IsEastAsian(char32_t character) {
    return InBlock(character, 0x1100, 0x11FF) || InBlock(character, 0x2E80, 0xD7FF)
           || InBlock(character, 0xF900, 0xFAFF) || InBlock(character, 0xFE30, 0xFE4F)
           || InBlock(character, 0xFF00, 0xFFEF) || InBlock(character, 0x20000, 0x3FFFF);
}

/// Signs of Latin-1, punctuation and symbols, emoji.
bool HasNoDirection(char32_t character) {
    return character < 0xC0 || character == 0xD7 || character == 0xF7 || InBlock(character, 0x2000, 0x2BFF)
           || InBlock(character, 0x3000, 0x3004) || InBlock(character, 0xFE00, 0xFE2F) || character == 0xFEFF
           || character == ReplacementCharacter || InBlock(character, 0x0660, 0x0669)
           || InBlock(character, 0x06F0, 0x06F9) || InBlock(character, 0x1F000, 0x1FAFF);
}

/// Whether there is a letter that is not part of a control word.
bool HasLetter(std::string_view ascii) {
    for (std::size_t at = 0; at < ascii.size(); ++at) {
        if (IsAsciiLetter(ascii[at])) return true;
        if (ascii[at] != '\\') continue;
        std::size_t end = at + 1;
        while (end < ascii.size() && IsAsciiLetter(ascii[end])) ++end;
        at = std::max(end - 1, at + 1);  // what is escaped, a backslash perhaps, begins no word
    }
    return false;
}

}  // namespace

Scripts ScriptsOf(std::string_view text) {
    Scripts scripts;
    for (std::size_t at = 0;;) {
        const std::size_t end = SkipAscii(text, at);
        if (scripts.direction == Direction::None && HasLetter(text.substr(at, end - at)))
            scripts.direction = Direction::LeftToRight;
        if (end == text.size()) return scripts;
        at = end;
        const char32_t character = DecodeUtf8(text, at);
        const bool toTheLeft = RunsToTheLeft(character);
        scripts.rightToLeft |= toTheLeft;
        scripts.eastAsian |= IsEastAsian(character);
        if (scripts.direction != Direction::None || HasNoDirection(character)) continue;
        scripts.direction = toTheLeft ? Direction::RightToLeft : Direction::LeftToRight;
    }
}

}  // namespace draftwick
