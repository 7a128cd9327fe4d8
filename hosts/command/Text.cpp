#include "hosts/command/Text.h"

#include <algorithm>
#include <cctype>
#include <iterator>

namespace draftwick::command {

namespace {

/// Whether a tag stands within a line of text; others divide words.
bool IsInline(std::string_view tag) {
    constexpr std::string_view names[] = {
        "a",     "abbr", "b",      "bdi",    "bdo", "big", "cite",  "code", "data", "del", "dfn",
        "em",    "font", "i",      "img",    "ins", "kbd", "label", "mark", "q",    "s",   "samp",
        "small", "span", "strike", "strong", "sub", "sup", "time",  "tt",   "u",    "var", "wbr"};
    tag.remove_prefix(tag.starts_with("</") ? 2 : 1);
    std::string name{tag.substr(0, tag.find_first_of(" \t\r\n/>"))};
    for (char& letter : name) letter = static_cast<char>(std::tolower(static_cast<unsigned char>(letter)));
    return std::find(std::begin(names), std::end(names), name) != std::end(names);
}

/// What is not shown from its beginning to its end, and what is shown as something else. The first that fits counts.
struct Markup {
    std::string_view begin, end, shown{};
};
constexpr Markup markups[] = {{"<!--", "-->"},          {"<![CDATA[", "]]>"},    {"<?", "?>"},
                              {"<script", "</script>"}, {"<style", "</style>"},  {"<", ">"},
                              {"&amp;", "", "&"},       {"&lt;", "", "<"},       {"&gt;", "", ">"},
                              {"&quot;", "", "\""},     {"&nbsp;", "", "\u00A0"}};

}  // namespace

std::string TextOfHtml(std::string_view html) {
    std::string text;
    const auto say = [&text](std::string_view piece) {
        if (Trimmed(piece).empty()) piece = text.empty() || text.back() == ' ' ? "" : " ";
        text += piece;
    };
    while (!html.empty()) {
        const auto markup = std::find_if(std::begin(markups), std::end(markups),
                                         [html](const Markup& one) { return html.starts_with(one.begin); });
        if (markup == std::end(markups)) {
            say(html.substr(0, 1));
            html.remove_prefix(1);
            continue;
        }
        if (!markup->shown.empty() || (markup->begin == "<" && !IsInline(html))) say(markup->shown);
        const std::size_t end = html.find(markup->end, markup->begin.size());
        html.remove_prefix(end == html.npos ? html.size() : end + markup->end.size());
    }
    return std::string{Trimmed(text)};
}

}  // namespace draftwick::command
