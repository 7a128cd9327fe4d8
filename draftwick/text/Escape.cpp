#include <draftwick/base/Units.h>
#include <draftwick/text/Escape.h>
#include <draftwick/text/Scripts.h>
#include <draftwick/text/Utf8.h>

#include <array>
#include <charconv>
#include <cstdint>

namespace draftwick {

namespace {

bool IsPlain(char c, Escaping how) {
    return static_cast<unsigned char>(c) < 0x80 && c != '\\' && c != '{' && c != '}' && c != '\t' && c != '\r'
           && (how == Escaping::Classic || (c != '\n' && c != '\0'));
}

/// The position of the first byte at or after `position` that cannot simply be copied.
std::size_t SkipPlain(std::string_view text, std::size_t position, Escaping how) {
    while (position < text.size()) {
        const std::uint64_t bytes = NextBytes(text, position);
        // The first byte that is below a space, a backslash, or from "{" up: all special ones are among these.
        const std::size_t plain =
            CountBytes((bytes - InEachByte(' ')) | ((bytes ^ InEachByte('\\')) - InEachByte(1))
                       | (bytes + InEachByte(0x80 - '{')) | bytes);
        position += plain;
        if (plain == 8) continue;
        if (position == text.size() || !IsPlain(text[position], how)) break;
        ++position;
    }
    return position;
}

}  // namespace

bool AppendEscaped(std::string& to, std::string_view text, Escaping how) {
    bool hasScripts = false;
    std::size_t copied = 0;
    std::size_t at = 0;
    const auto copy = [&] { to.append(text, copied, at - copied); };
    if (to.empty()) to.reserve(text.size() + text.size() / 16);  // most texts have few special characters
    while ((at = SkipPlain(text, at, how)) < text.size()) {
        const char c = text[at];
        if (static_cast<unsigned char>(c) >= 0x80) {
            std::size_t next = at;
            hasScripts |= MayNeedScripts(c);
            if (DecodeUtf8(text, next) == ReplacementCharacter) {
                copy();
                AppendUtf8(to, ReplacementCharacter);
                copied = next;
            }
            at = next;
            continue;
        }
        copy();
        if (c == '\t') {
            to += "\\tab ";
            ++at;
        } else if (c == '\0') {
            AppendUtf8(to, ReplacementCharacter);
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
        copied = at;
    }
    copy();
    return hasScripts;
}

std::string EscapeText(std::string_view text, Escaping how) {
    std::string escaped;
    AppendEscaped(escaped, text, how);
    return escaped;
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
