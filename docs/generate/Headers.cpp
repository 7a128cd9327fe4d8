#include "Headers.h"

#include <algorithm>
#include <fstream>
#include <regex>
#include <stdexcept>

namespace draftwick::docs {

namespace {

std::vector<std::string> AllOf(const std::string& text, const std::regex& pattern, std::size_t group = 0) {
    std::vector<std::string> found;
    for (std::sregex_iterator at{text.begin(), text.end(), pattern}, end; at != end; ++at)
        found.push_back((*at)[group]);
    return found;
}

/// "HeldBy" and "RowContainer" of "public detail::HeldBy<Paragraph, RowContainer>": a template, and all arguments but
/// the first, which says for whom it is.
std::vector<std::string> BasesOf(std::string head) {
    static const std::regex first{"<[^,<>]*(, )?"}, name{"(\\w+)(?= *[,<>{]| *$)"};
    const auto colon = head.find(" : ");
    return colon == std::string::npos ? std::vector<std::string>{}
                                      : AllOf(std::regex_replace(head.substr(colon), first, "<"), name, 1);
}

}  // namespace

Headers::Headers(const std::filesystem::path& sources) {
    for (const auto& entry : std::filesystem::recursive_directory_iterator(sources)) {
        if (entry.path().extension() != ".h") continue;
        std::ifstream source(entry.path());
        Read(source, std::filesystem::relative(entry.path(), sources).generic_string());
    }
}

void Headers::Read(std::istream& source, const std::string& file) {
    static const std::regex declares{
        "(enum class|enum|class|struct) (DRAFTWICK_API )?(\\w+)( final)?( [:{].*)?"},
        remark{"^([^/]*)///< (.*)"}, value{"(\\w+)( = -?\\d+)?(?=,| *\\}|$)"},
        member{"^    \\w[^(]*?(\\w+)\\(.*"}, defaultBase{"class Base = (\\w+)"};
    Declaration* current = nullptr;
    bool isEnumeration = false;
    std::string comment, base;
    bool inComment = false;
    for (std::string line; std::getline(source, line);) {
        const std::size_t start = line.find_first_not_of(' ');
        if (start != std::string::npos && line.compare(start, 3, "///") == 0) {
            const std::string text = line.substr(std::min(start + 4, line.size()));
            const char* const divider = text.empty() ? "\n\n" : comment.ends_with('\n') ? "" : " ";
            comment = inComment ? comment + divider + text : text;
            inComment = true;
            continue;
        }
        inComment = false;
        std::smatch match;
        if (line.empty()) {
            comment.clear();
        } else if (line.starts_with("template ")) {
            base = std::regex_search(line, match, defaultBase) ? match[1].str() : "";
        } else if (line.starts_with("};")) {
            current = nullptr;
        } else if (std::regex_match(line, match, declares)) {
            const std::string name = match[3];
            isEnumeration = line.starts_with("enum");
            for (std::string more; line.find('{') == std::string::npos && std::getline(source, more);)
                line += more;
            current = &declarations_[name];
            *current = {file, comment, isEnumeration ? std::vector<std::string>{} : BasesOf(line), {}};
            if (!base.empty()) current->bases.push_back(base);
            line.erase(0, line.find('{') + 1);
            comment.clear();
        }
        if (current == nullptr) continue;
        if (isEnumeration) {
            const bool remarked = std::regex_match(line, match, remark);
            const std::string values = remarked ? match[1].str() : line;
            for (const std::string& name : AllOf(values, value, 1))
                current->members.emplace(name, remarked ? match[2].str() : "");
            if (values.find("};") != std::string::npos) current = nullptr;
        } else if (!comment.empty() && std::regex_match(line, match, member)) {
            std::string& all = current->members[match[1]];
            if (!all.ends_with(comment)) all += (all.empty() ? "" : " ") + comment;
        }
    }
}

const std::string& Headers::FileOf(std::string_view type) const {
    const auto found = declarations_.find(type);
    if (found == declarations_.end()) throw std::out_of_range("no header declares " + std::string{type});
    return found->second.file;
}

std::string Headers::CommentOf(std::string_view type) const {
    const auto found = declarations_.find(type);
    return found == declarations_.end() ? "" : found->second.comment;
}

std::string Headers::CommentOf(std::string_view type, std::string_view member) const {
    std::string comment = Find(type, std::string{member});
    return comment.empty() ? Find(type, "Set" + std::string{member}) : comment;
}

std::string Headers::Find(std::string_view type, const std::string& member) const {
    const auto found = declarations_.find(type);
    if (found == declarations_.end()) return "";
    const Declaration& declaration = found->second;
    if (const auto own = declaration.members.find(member); own != declaration.members.end())
        return own->second;
    for (const std::string& base : declaration.bases) {
        if (std::string comment = Find(base, member); !comment.empty()) return comment;
    }
    return "";
}

std::vector<std::string> SentencesOf(std::string_view comment) {
    std::vector<std::string> sentences;
    while (!comment.empty()) {
        const std::size_t size = std::min(comment.find(". "), comment.size() - 1) + 1;
        sentences.emplace_back(comment.substr(0, size));
        comment.remove_prefix(std::min(size + 1, comment.size()));
    }
    return sentences;
}

}  // namespace draftwick::docs
