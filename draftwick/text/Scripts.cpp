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

/// Devanagari to Myanmar, and Khmer.
bool IsComplex(char32_t character) {
    return InBlock(character, 0x0900, 0x109F) || InBlock(character, 0x1780, 0x17FF);
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

void Note(char32_t character, Scripts& scripts) {
    scripts.rightToLeft |= RunsToTheLeft(character);
    scripts.complex |= IsComplex(character);
    scripts.eastAsian |= IsEastAsian(character);
}

/// Behind the control word or symbol at a backslash.
std::size_t SkipControl(std::string_view text, std::size_t at) {
    const std::size_t first = ++at;
    while (at < text.size() && IsAsciiLetter(text[at])) ++at;
    return at == first ? at + 1 : at;
}

/// What the characters from a position on say, up to the first that tells a direction; the position behind it.
std::size_t FindDirection(std::string_view text, Scripts& scripts) {
    std::size_t at = 0;
    while (at < text.size() && scripts.direction == Direction::None) {
        if (text[at] == '\\') {
            at = SkipControl(text, at);
        } else if (static_cast<unsigned char>(text[at]) < 0x80) {
            if (IsAsciiLetter(text[at++])) scripts.direction = Direction::LeftToRight;
        } else {
            const char32_t character = DecodeUtf8(text, at);
            Note(character, scripts);
            if (!HasNoDirection(character))
                scripts.direction =
                    RunsToTheLeft(character) ? Direction::RightToLeft : Direction::LeftToRight;
        }
    }
    return at;
}

}  // namespace

Scripts ScriptsOf(std::string_view text, Letters letters) {
    Scripts scripts;
    std::size_t at = FindDirection(text, scripts);
    if (letters != Letters::Any || at >= text.size()) return scripts;
    while ((at = SkipAscii(text, at)) < text.size()) Note(DecodeUtf8(text, at), scripts);
    return scripts;
}

}  // namespace draftwick
