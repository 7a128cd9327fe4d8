#include <draftwick/base/Error.h>
#include <draftwick/base/Text.h>
#include <draftwick/base/Utf8.h>

#include <array>
#include <charconv>
#include <cmath>

namespace draftwick {

namespace {

constexpr std::array<bool, 256> MakeSpecial() {
    std::array<bool, 256> special{};
    for (const char c : {'\\', '{', '}', '\t', '\r'}) special[static_cast<unsigned char>(c)] = true;
    for (std::size_t i = 0x80; i < 256; ++i) special[i] = true;
    return special;
}

/// The bytes that cannot simply be copied.
constexpr std::array<bool, 256> Special = MakeSpecial();

}  // namespace

void AppendEscaped(std::string& to, std::string_view text) {
    std::size_t at = 0;
    while (at < text.size()) {
        std::size_t end = at;
        while (end < text.size() && !Special[static_cast<unsigned char>(text[end])]) ++end;
        to.append(text, at, end - at);
        at = end;
        if (at == text.size()) break;
        switch (const char c = text[at]) {
        case '\\':
        case '{':
        case '}':
            to += '\\';
            to += c;
            ++at;
            break;
        case '\t':
            to += "\\tab ";
            ++at;
            break;
        case '\r':
            if (text.compare(at, 3, "\r\n ") == 0) {
                to += "\\line ";
                at += 3;
            } else if (text.compare(at, 2, "\r\n") == 0) {
                // No delimiter here: readers take the letters that follow as part of the word. It is part of
                // the format we promise.
                to += "\\line";
                at += 2;
            } else {
                to += c;
                ++at;
            }
            break;
        default: AppendUtf8(to, DecodeUtf8(text, at));
        }
    }
}

std::string EscapeText(std::string_view text) {
    std::string escaped;
    escaped.reserve(text.size());
    AppendEscaped(escaped, text);
    return escaped;
}

std::string ASCIIChar(std::int32_t byte) {
    if (byte < 0 || byte > 255) RaiseRuntimeError(dwRunOverflow, "the number does not fit a byte");
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
