#pragma once

#include <cstddef>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace draftwick::test {

/// One piece of RTF as a reader splits it. Line breaks only end pieces, and are none.
struct Token {
    enum Kind {
        GroupStart,
        GroupEnd,
        Word,    ///< \par, \li720: text is the letters, parameter the number
        Symbol,  ///< \*, \~: text is the one character; "\n" for a backslash before a line break
        Hex,     ///< \'e9: text is the two digits, parameter their value
        Text,    ///< characters up to the next brace, backslash or line break
    };
    Kind kind;
    std::string text;
    std::optional<long> parameter;
    std::size_t offset = 0;
    bool delimiter = false;  ///< a space that ends a Word and belongs to it

    bool operator==(const Token&) const = default;
};

class MalformedRtf : public std::runtime_error {
public:
    MalformedRtf(const std::string& what, std::size_t offset)
        : std::runtime_error(what + " at byte " + std::to_string(offset)), offset(offset) {}
    std::size_t offset;
};

/// Throws MalformedRtf. Binary data (\bin) is not known; no document of the library holds any.
std::vector<Token> Lex(std::string_view rtf);

/// Throws MalformedRtf where a group ends that never began, or at the beginning of one that never ends.
void CheckBalanced(const std::vector<Token>& tokens);

/// Whether text that a host sent may have put line breaks of its own into the file.
enum class LineBreaks { OnlyCrLf, Any };

/// What is wrong with a finished file, in words; empty if it is one whole RTF document.
std::vector<std::string> CheckFile(std::string_view bytes, LineBreaks lineBreaks = LineBreaks::OnlyCrLf);

/// The RTF in one spelling for all that a reader takes to be the same: no line breaks, and a space between a
/// word and the text that follows it, but nowhere else. "\b\r\nx" and "\b x" give "\b x"; "\b \i" gives "\b\i".
std::string Words(std::string_view rtf);

}  // namespace draftwick::test
