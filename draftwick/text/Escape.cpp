#include <draftwick/base/Units.h>
#include <draftwick/text/Escape.h>
#include <draftwick/text/Scripts.h>
#include <draftwick/text/Utf8.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdint>

namespace draftwick {

namespace {

bool IsPlain(char c, Escaping how) {
    return c != '\\' && c != '{' && c != '}' && c != '\t' && c != '\r'
           && (how == Escaping::Classic || (c != '\n' && c != '\0'));
}

void Note(char first, Letters& letters) {
    letters = std::max(letters, MayNeedScripts(first) ? Letters::Any : Letters::Western);
}

/// The bytes with the highest bit set in those that are below a space, a backslash, from "{" up, or no ASCII: all that
/// cannot simply be copied are among these.
std::uint64_t MarkSpecial(std::uint64_t bytes) {
    return (bytes - InEachByte(' ')) | ((bytes ^ InEachByte('\\')) - InEachByte(1))
           | (bytes + InEachByte(0x80 - '{')) | bytes;
}

/// Whether nothing in a text of eight bytes or more needs a second look. The last eight are looked at together, some of
/// them for the second time.
bool IsPlainAscii(std::string_view text) {
    std::uint64_t special = 0;
    const std::size_t last = text.size() - 8;
    for (std::size_t at = 0; at < last && (special & InEachByte(0x80)) == 0; at += 8)
        special |= MarkSpecial(EightBytes(text.data() + at));
    return ((special | MarkSpecial(EightBytes(text.data() + last))) & InEachByte(0x80)) == 0;
}

/// The position of the first byte at or after `position` that cannot simply be copied. Notes what characters
/// come before it.
std::size_t SkipPlain(std::string_view text, std::size_t position, Escaping how, Letters& letters) {
    while (position < text.size()) {
        const std::size_t plain = CountBytes(MarkSpecial(NextBytes(text, position)));
        position += plain;
        if (plain == 8) continue;
        if (position == text.size()) break;
        const char c = text[position];
        if (static_cast<unsigned char>(c) >= 0x80) {
            std::size_t next = position;
            if (DecodeUtf8(text, next) == ReplacementCharacter) break;
            Note(c, letters);
            position = next;
        } else if (IsPlain(c, how)) {
            ++position;
        } else {
            break;
        }
    }
    return position;
}

/// Appends what becomes of a character that cannot simply be copied, and moves behind it.
void AppendSpecial(std::string& to, std::string_view text, std::size_t& at, Escaping how, Letters& letters) {
    const char c = text[at];
    if (static_cast<unsigned char>(c) >= 0x80) {
        Note(c, letters);
        DecodeUtf8(text, at);
        AppendUtf8(to, ReplacementCharacter);
    } else if (c == '\t') {
        to += "\\tab ";
        ++at;
    } else if (c == '\0') {
        AppendUtf8(to, ReplacementCharacter);
        letters = std::max(letters, Letters::Western);
        ++at;
    } else if (c != '\r' && c != '\n') {
        to += '\\';
        to += c;
        ++at;
    } else if (how != Escaping::Classic) {
        to += how == Escaping::Lines ? "\\line " : " ";
        at += text.compare(at, 2, "\r\n") == 0 ? 2U : 1U;
    } else if (text.compare(at, 3, "\r\n ") == 0) {
        to += "\\line ";
        at += 3;
    } else if (text.compare(at, 2, "\r\n") == 0) {
        // No delimiter here: readers take the letters that follow as part of the word. It is part of the format
        // we promise.
        to += "\\line";
        at += 2;
    } else {
        to += c;
        ++at;
    }
}

/// Out of line: it would slow down the texts that do not need it.
[[gnu::noinline]] Letters AppendMixed(std::string& to, std::string_view text, Escaping how) {
    Letters letters = Letters::Ascii;
    if (to.empty()) to.reserve(text.size() + text.size() / 16);  // most texts have few special characters
    for (std::size_t at = 0;;) {
        const std::size_t from = at;
        at = SkipPlain(text, at, how, letters);
        to.append(text.data() + from, at - from);
        if (at == text.size()) return letters;
        AppendSpecial(to, text, at, how, letters);
    }
}

}  // namespace

Letters AppendEscaped(std::string& to, std::string_view text, Escaping how) {
    if (text.size() < 8 || !IsPlainAscii(text)) return AppendMixed(to, text, how);
    to.append(text);
    return Letters::Ascii;
}

std::string EscapeText(std::string_view text, Escaping how, Letters& letters) {
    if (text.size() >= 8 && IsPlainAscii(text)) {
        letters = Letters::Ascii;
        return std::string{text};
    }
    std::string escaped;
    letters = AppendMixed(escaped, text, how);
    return escaped;
}

std::string EscapeText(std::string_view text, Escaping how) {
    Letters letters;
    return EscapeText(text, how, letters);
}

std::string ASCIIChar(std::int32_t byte) {
    CheckByte(byte);
    constexpr std::string_view Digits = "0123456789ABCDEF";
    std::string text = "\\'";
    if (byte >= 16) text += Digits[static_cast<std::size_t>(byte / 16)];
    text += Digits[static_cast<std::size_t>(byte % 16)];
    return text;
}

std::string NumberText(double value) {
    if (value == 0) return "0";
    std::array<char, 400> digits;  // the longest fixed form of a double has some 330 characters
    const auto end =
        std::to_chars(digits.data(), digits.data() + digits.size(), value, std::chars_format::fixed);
    return {digits.data(), end.ptr};
}

}  // namespace draftwick
