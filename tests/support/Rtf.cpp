#include "tests/support/Rtf.h"

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <system_error>

namespace draftwick::test {

namespace {

constexpr std::string_view Letters = "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ";
constexpr std::string_view Digits = "0123456789";

bool IsWord(std::string_view piece) {
    return piece.size() > 1 && piece[0] == '\\' && Letters.find(piece[1]) != Letters.npos;
}

/// The piece that a reader takes at the beginning: a brace, a line break, a word with its number and with the space
/// that ends it, a byte, a symbol, or text.
std::string_view FirstPiece(std::string_view rtf) {
    if (rtf[0] != '\\') {
        const bool single = std::string_view{"{}\r\n"}.find(rtf[0]) != rtf.npos;
        return rtf.substr(0, rtf.starts_with("\r\n") ? 2 : single ? 1 : rtf.find_first_of("{}\\\r\n"));
    }
    if (!IsWord(rtf)) return rtf.substr(0, rtf.starts_with("\\'") ? 4 : 2);
    std::size_t end = std::min(rtf.find_first_not_of(Letters, 1), rtf.size());
    const std::size_t sign = rtf.substr(end).starts_with('-') ? 1 : 0;
    if (end + sign < rtf.size() && Digits.find(rtf[end + sign]) != Digits.npos) {
        end = std::min(rtf.find_first_not_of(Digits, end + sign), rtf.size());
    }
    return rtf.substr(0, rtf.substr(end).starts_with(' ') ? end + 1 : end);
}

std::string_view CheckControl(std::string_view piece) {
    std::int32_t number = 0;
    if (IsWord(piece)) {
        const std::size_t end = std::min(piece.find_first_not_of(Letters, 1), piece.size());
        if (end > 33) return "Word of more than 32 letters";
        const auto read = std::from_chars(piece.data() + end, piece.data() + piece.size(), number);
        return read.ec == std::errc::result_out_of_range ? "Number of more than 32 bits" : "";
    }
    if (!piece.starts_with("\\'")) return "";
    const bool hex = piece.size() == 4 && piece.find_first_not_of("0123456789ABCDEFabcdef", 2) == piece.npos;
    return hex ? "" : "No two hexadecimal digits";
}

}  // namespace

std::string CheckFile(std::string_view bytes, LineBreaks lineBreaks) {
    if (!bytes.starts_with("{\\rtf1")) return "No {\\rtf1";
    if (bytes.find('\0') != bytes.npos) return "Zero byte";
    int depth = 0;
    for (std::string_view rest = bytes; !rest.empty();) {
        const std::string_view piece = FirstPiece(rest);
        rest.remove_prefix(piece.size());
        if (const auto wrong = CheckControl(piece); !wrong.empty()) return std::string{wrong};
        if (lineBreaks == LineBreaks::OnlyCrLf && (piece == "\r" || piece == "\n")) return "Lone line break";
        depth += piece == "{" ? 1 : piece == "}" ? -1 : 0;
        if (depth == 0) return rest == "\r\n" ? "" : "Not just CR LF after the document";
    }
    return "Group never ends";
}

std::string Words(std::string_view rtf) {
    std::string words;
    bool afterWord = false;
    while (!rtf.empty()) {
        std::string_view piece = FirstPiece(rtf);
        rtf.remove_prefix(piece.size());
        if (piece[0] == '\r' || piece[0] == '\n') continue;
        const bool isWord = IsWord(piece);
        if (isWord && piece.ends_with(' ')) piece.remove_suffix(1);
        if (afterWord && piece.find_first_of("{}\\") != 0) words += ' ';
        words += piece;
        afterWord = isWord;
    }
    return words;
}

std::string FirstDifference(std::string_view expected, std::string_view actual) {
    constexpr std::size_t Around = 100;
    const std::size_t length = std::min(expected.size(), actual.size());
    std::size_t at = 0;
    while (at < length && expected[at] == actual[at]) ++at;
    // Back to where the word begins.
    while (at > 0 && (at == length || std::string_view{"\\{}"}.find(expected[at]) == expected.npos)) --at;
    const auto part = [](std::string_view text, std::size_t from, std::size_t size) {
        std::string shown{text.substr(from, size)};
        for (std::size_t end = 0; (end = shown.find("\r\n", end)) != shown.npos;)
            shown.replace(end, 2, "<CRLF>");
        return shown;
    };
    const std::size_t before = at - std::min(at, Around);
    return "alike:    " + part(expected, before, at - before) + "\nexpected: " + part(expected, at, Around)
           + "\nactual:   " + part(actual, at, Around);
}

}  // namespace draftwick::test
