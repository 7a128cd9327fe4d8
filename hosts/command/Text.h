#pragma once

#include <string>
#include <string_view>

namespace draftwick::command {

/// Without blanks at its ends.
inline std::string_view Trimmed(std::string_view text) {
    constexpr std::string_view Blanks = " \t\r\n\v\f";
    const std::size_t first = text.find_first_not_of(Blanks);
    return first == text.npos ? std::string_view{}
                              : text.substr(first, text.find_last_not_of(Blanks) - first + 1);
}

/// The text that a browser shows of HTML, without its tags.
std::string TextOfHtml(std::string_view html);

/// Takes a text apart at names between two marks: tells of each piece of text, and of each name.
template <class TakeText, class TakeName>
void Split(std::string_view text, std::string_view open, std::string_view close, const TakeText& takeText,
           const TakeName& takeName) {
    for (std::size_t begin; (begin = text.find(open)) != text.npos;) {
        const std::size_t inside = begin + open.size(), end = text.find(close, inside);
        if (end == text.npos) break;
        if (begin > 0) takeText(text.substr(0, begin));
        takeName(Trimmed(text.substr(inside, end - inside)));
        text.remove_prefix(end + close.size());
    }
    if (!text.empty()) takeText(text);
}

/// The text with values in place of the names between two marks.
template <class ValueOf>
std::string Replaced(std::string_view text, std::string_view open, std::string_view close,
                     const ValueOf& valueOf) {
    std::string replaced;
    Split(
        text, open, close, [&](std::string_view piece) { replaced += piece; },
        [&](std::string_view name) { replaced += valueOf(name); });
    return replaced;
}

}  // namespace draftwick::command
