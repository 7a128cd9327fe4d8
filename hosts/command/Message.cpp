#include "hosts/command/Message.h"

#include <algorithm>
#include <cctype>
#include <cstdio>
#include <numeric>

namespace draftwick::command {

namespace {

/// How many letters must be changed, added or taken away to come from one name to the other.
std::size_t Distance(std::string_view from, std::string_view to) {
    const auto lower = [](char letter) { return std::tolower(static_cast<unsigned char>(letter)); };
    std::vector<std::size_t> row(to.size() + 1);
    std::iota(row.begin(), row.end(), std::size_t{0});
    for (const char letter : from) {
        std::size_t diagonal = row[0]++;
        for (std::size_t i = 0; i < to.size(); ++i) {
            const std::size_t changed = diagonal + (lower(letter) != lower(to[i]));
            diagonal = row[i + 1];
            row[i + 1] = std::min({changed, row[i] + 1, diagonal + 1});
        }
    }
    return row.back();
}

}  // namespace

std::string Place::Text() const {
    std::string text = file;
    if (line > 0) text += ':' + std::to_string(line);
    if (line > 0 && column > 0) text += ':' + std::to_string(column);
    return text;
}

void Refuse(const std::string& what) { throw std::invalid_argument(what); }

void Warn(const Place& place, const std::string& what) {
    // In one call, so that lines of several threads do not mix.
    const std::string line = place.Text() + ": warning: " + what + '\n';
    std::fwrite(line.data(), 1, line.size(), stderr);
}

std::string Explain(const std::exception& error) {
    const std::string text = error.what();
    const auto* refusal = dynamic_cast<const Error*>(&error);
    if (refusal == nullptr || refusal->Advice().empty()) return text;
    // "Type mismatch: a text is wanted" says no more than "Fonts.Add: a text is wanted".
    const std::size_t detail = text.find(": ");
    const bool repeated = detail != text.npos && refusal->Advice().ends_with(text.substr(detail + 2));
    return repeated ? refusal->Advice() : text + ' ' + refusal->Advice();
}

std::string Quoted(std::string_view text) { return '"' + std::string{text} + '"'; }

std::string Alternatives(std::string_view name, const std::vector<std::string_view>& names) {
    constexpr std::size_t LongestName = 100, MostNames = 30;
    if (names.empty()) return "there are none";
    if (name.size() <= LongestName) {
        const auto nearest = std::min_element(names.begin(), names.end(), [name](auto one, auto other) {
            return Distance(name, one) < Distance(name, other);
        });
        if (Distance(name, *nearest) <= std::min<std::size_t>(2, name.size() / 3))
            return "did you mean " + Quoted(*nearest) + "?";
    }
    std::string text = "there are ";
    for (std::size_t i = 0; i < std::min(names.size(), MostNames); ++i) {
        if (i > 0) text += ", ";
        text += names[i];
    }
    return names.size() > MostNames ? text + ", ..." : text;
}

}  // namespace draftwick::command
