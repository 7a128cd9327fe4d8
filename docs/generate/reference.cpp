// Writes the reference pages: classes.md from the classes' own descriptions, enumerations.md from the headers.
//
// usage: draftwick_reference SOURCES FOLDER            writes the pages
//        draftwick_reference --check SOURCES FOLDER    fails when a page in the folder is not what would be written
//
// SOURCES is the folder draftwick/ with the headers.
#include <draftwick/draftwick.h>

#include <algorithm>
#include <cctype>
#include <exception>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <map>
#include <set>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

using namespace draftwick;

namespace {

namespace fs = std::filesystem;

std::string ReadFile(const fs::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

std::string Link(const std::string& page, const std::string& name) {
    std::string anchor = name;
    std::transform(anchor.begin(), anchor.end(), anchor.begin(),
                   [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; });
    return "[" + name + "](" + page + "#" + anchor + ")";
}

/// What a host gives or gets; nothing of a method that gives nothing.
std::string TypeName(const Type* type) {
    if (type == nullptr) return "";
    const std::string name{type->name};
    if (type->description != nullptr) return Link("", name);
    return type->values.empty() ? name : Link("enumerations.md", name);
}

std::string RealText(double value) {
    std::ostringstream text;
    text << value;
    return text.str();
}

std::string ValueText(const Variant& value) {
    if (const auto* on = std::get_if<bool>(&value)) return *on ? "true" : "false";
    if (const auto* number = std::get_if<std::int32_t>(&value)) return std::to_string(*number);
    if (const auto* real = std::get_if<double>(&value)) return RealText(*real);
    if (const auto* text = std::get_if<std::string>(&value)) return "`\"" + *text + "\"`";
    return "nothing";
}

std::string KindText(const ClassProperty& property) { return TypeName(property.type); }

std::string RangeText(const ClassProperty& property) {
    const Rule& rule = property.rule;
    if (rule.limited) return std::to_string(rule.low) + "…" + std::to_string(rule.high);
    if (property.type->kind == Kind::Length) return "16 bits of twips";
    if (rule.bits == 16) return "16 bits";
    return "";
}

std::string DefaultText(const ClassProperty& property) {
    if (std::holds_alternative<std::monostate>(property.rule.initial)) return "";
    const std::string text = ValueText(property.rule.initial);
    if (text == "`\"\"`") return "empty";
    return property.type->kind == Kind::Length && text != "0" ? text + " twips" : text;
}

std::string AccessText(const ClassProperty& property) {
    if (property.set == nullptr) return ", read only";
    return property.get == nullptr ? ", write only" : "";
}

std::string ArgumentsText(const ClassMethod& method) {
    std::string text;
    for (const Argument& argument : method.arguments) {
        if (!text.empty()) text += ", ";
        text += argument.name;
        const std::string type = TypeName(argument.type);
        text += ": " + type;
        if (argument.initial) text += " = " + ValueText(*argument.initial);
    }
    return text;
}

std::string Trimmed(const std::string& text) {
    const auto first = text.find_first_not_of(" \t");
    return first == std::string::npos ? "" : text.substr(first, text.find_last_not_of(" \t,") - first + 1);
}

/// A comment as Markdown text: RTF words have backslashes and stars.
std::string Escaped(const std::string& comment) {
    std::string text;
    for (const char c : comment) {
        if (c == '\\' || c == '*' || c == '<' || c == '|') text += '\\';
        text += c;
    }
    return text;
}

/// What a header says about a class (where it is declared, its base, the comments of its members) or an enumeration.
struct Declaration {
    std::string header{};
    std::string base{};
    std::string comment{};  // of an enumeration
    std::map<std::string, std::string> comments{};
};
using Declarations = std::map<std::string, Declaration>;

/// "SetWidth" of "    void SetWidth(double points) { ... }"; empty when the line declares no function.
std::string MemberOf(const std::string& line) {
    const auto bracket = line.find('(');
    if (bracket == std::string::npos) return "";
    auto start = bracket;
    while (start > 0 && (std::isalnum(static_cast<unsigned char>(line[start - 1])) != 0)) --start;
    return line.substr(start, bracket - start);
}

/// "RowContainer" of "class Section final : public RowContainer {", without template arguments.
std::string BaseOf(const std::string& line) {
    constexpr std::string_view Public = ": public ";
    const auto at = line.find(Public);
    if (at == std::string::npos) return "";
    const auto start = at + Public.size();
    return line.substr(start, line.find_first_of("< ,{", start) - start);
}

/// Reads the classes of a header. A comment holds for what is declared below it, up to the next comment or empty line.
void ReadDeclarations(const std::string& source, const std::string& header, Declarations& declarations) {
    std::istringstream lines(source);
    Declaration* current = nullptr;
    std::string comment;
    bool inComment = false;
    for (std::string line; std::getline(lines, line);) {
        if (line.starts_with("enum dw")) {
            declarations[line.substr(5, line.find(' ', 5) - 5)].comment = comment;
        } else if (line.starts_with("class ") && line.ends_with('{')) {
            std::string head = line.substr(0, line.find_first_of(":{"));
            if (const auto final = head.find(" final"); final != std::string::npos) head.erase(final);
            head = Trimmed(head);
            current = &declarations[head.substr(head.rfind(' ') + 1)];
            current->header = header;
            current->base = BaseOf(line);
        } else if (line.starts_with("};")) {
            current = nullptr;
        } else if (const auto text = line.find("/// "); text == 0 || text == 4) {
            comment = (inComment ? comment + ' ' : "") + line.substr(text + 4);
            inComment = true;
            continue;
        } else if (line.empty()) {
            comment.clear();
        } else if (current != nullptr && line.starts_with("    ") && line[4] != ' ' && !comment.empty()) {
            if (const std::string member = MemberOf(line); !member.empty())
                current->comments.emplace(member, comment);
        }
        inComment = false;
    }
}

/// What the header of a class, or of one of its bases, says about a member. What it says about a plain default is left
/// out: it has a column of its own.
std::string CommentOf(const Declarations& declarations, std::string name, const std::string& member) {
    while (!name.empty()) {
        const auto found = declarations.find(name);
        if (found == declarations.end()) return "";
        const auto comment = found->second.comments.find(member);
        if (comment == found->second.comments.end()) {
            name = found->second.base;
            continue;
        }
        std::string text;
        std::string_view rest = comment->second;
        while (!rest.empty()) {
            const std::string_view sentence = rest.substr(0, std::min(rest.find(". "), rest.size() - 1) + 1);
            rest.remove_prefix(std::min(sentence.size() + 1, rest.size()));
            if (sentence.starts_with("Default") && sentence.find(": ") == std::string_view::npos) continue;
            text += (text.empty() ? "" : " ") + std::string{sentence};
        }
        return Escaped(text);
    }
    return "";
}

/// What a property is. Where its own comment tells no more than the default, its enumeration tells.
std::string PropertyComment(const Declarations& declarations, const std::string& name,
                            const ClassProperty& property) {
    const std::string member{property.name};
    const std::string comment =
        CommentOf(declarations, name, property.get == nullptr ? "Set" + member : member);
    const auto enumeration = declarations.find(std::string{property.type->name});
    if (!comment.empty() || enumeration == declarations.end()) return comment;
    return Escaped(enumeration->second.comment);
}

void WriteClass(std::ostream& out, const Class& description, const Declarations& declarations) {
    const std::string name{description.name};
    const std::string& header = declarations.at(name).header;
    out << "\n## " << name << "\n\n";
    out << "[draftwick/" << header << "](../../draftwick/" << header << ") · class `" << description.classId
        << "` · interface `" << description.interfaceId << "`\n";
    if (!description.properties.empty()) {
        out << "\n| Property | Holds | Range | Default | |\n| --- | --- | --- | --- | --- |\n";
        for (const ClassProperty& property : description.properties) {
            const std::string member{property.name};
            out << "| " << member << " | " << KindText(property) << AccessText(property) << " | "
                << RangeText(property) << " | " << DefaultText(property) << " | "
                << PropertyComment(declarations, name, property) << " |\n";
        }
    }
    if (!description.methods.empty()) {
        out << "\n| Method | Arguments | Gives | |\n| --- | --- | --- | --- |\n";
        for (const ClassMethod& method : description.methods) {
            out << "| " << method.name << " | " << ArgumentsText(method) << " | " << TypeName(method.result)
                << " | " << CommentOf(declarations, name, std::string{method.name}) << " |\n";
        }
    }
}

std::string ClassesPage(const fs::path& sources, const std::set<fs::path>& headers) {
    std::ostringstream out;
    out << R"(# Classes, properties and methods by name

Written by `scripts/docs reference` from the classes' own descriptions and the comments of their headers. The guide's
[chapter on names](../guide/by-name.md) tells how to use them.

- **Holds**: a *length* is a real number in the document's `ScaleMode` (inches, twips or points), kept as whole twips
  in 16 bits: -32768 to 32767. *any* is a value of any kind. A name with a link is an enumeration or a class.
- **Range**: outside of it a setter refuses, and the property keeps its value: error -2147220890 outside of a range of
  numbers, error 6 outside of 16 bits.
- **Default**: of a new object. None is given where it depends on the document or on how the object was made.
- Every class also has `Parent`, the object that it belongs to, and `Document`. Both are read only.
- In C++ a property `MarginTop` is `MarginTop()` and `SetMarginTop(value)`. Arguments with a default can be left out.
- The identifiers never change.

)";
    std::vector<std::string> names;
    for (const Class* description : Classes()) names.push_back(Link("", std::string{description->name}));
    for (std::size_t i = 0; i < names.size(); ++i) out << (i == 0 ? "" : " ·\n") << names[i];
    out << '\n';
    Declarations declarations;
    for (const fs::path& header : headers)
        ReadDeclarations(ReadFile(header), fs::relative(header, sources).generic_string(), declarations);
    for (const Class* description : Classes()) WriteClass(out, *description, declarations);
    return out.str();
}

/// The values of an enumeration: "dwLeft = 1,  ///< what it is" on a line each, or several on one.
void WriteValues(std::ostream& out, const std::string& body) {
    std::istringstream lines(body);
    for (std::string line; std::getline(lines, line);) {
        const auto remark = line.find("///<");
        const std::string note = remark == std::string::npos ? "" : Escaped(Trimmed(line.substr(remark + 4)));
        std::istringstream values(line.substr(0, remark));
        for (std::string value; std::getline(values, value, ',');) {
            const auto equals = value.find('=');
            if (equals == std::string::npos) continue;
            out << "| " << Trimmed(value.substr(0, equals)) << " | " << Trimmed(value.substr(equals + 1))
                << " | " << note << " |\n";
        }
    }
}

/// The enumerations of a header, by name.
void ReadEnumerations(const fs::path& header, std::map<std::string, std::string>& pages) {
    std::istringstream text(ReadFile(header));
    std::string comment;
    for (std::string line; std::getline(text, line);) {
        if (line.starts_with("/// ")) {
            comment += (comment.empty() ? "" : " ") + line.substr(4);
        } else if (line.starts_with("enum dw")) {
            const std::string name = line.substr(5, line.find(' ', 5) - 5);
            std::string body = line.substr(line.find('{') + 1);
            while (line.find("};") == std::string::npos && std::getline(text, line)) body += '\n' + line;
            std::ostringstream page;
            page << "\n## " << name << "\n\n" << Escaped(comment) << (comment.empty() ? "" : "\n\n");
            page << "| Name | Value | |\n| --- | --- | --- |\n";
            WriteValues(page, body.substr(0, body.rfind("};")));
            pages.emplace(name, page.str());
            comment.clear();
        } else {
            comment.clear();
        }
    }
}

std::string EnumerationsPage(const std::set<fs::path>& headers) {
    std::map<std::string, std::string> pages;
    for (const fs::path& header : headers) ReadEnumerations(header, pages);
    std::string out = "# Enumerations\n\nWritten by `scripts/docs reference` from the headers. A host that "
                      "has no names for the "
                      "values\ngives the numbers.\n";
    for (const auto& [name, page] : pages) out += page;
    return out;
}

bool Deliver(const fs::path& path, const std::string& page, bool checkOnly) {
    if (ReadFile(path) == page) return true;
    if (checkOnly) {
        std::cerr << path.string() << " is not current: run scripts/docs reference\n";
        return false;
    }
    std::ofstream file(path, std::ios::binary);
    file << page;
    file.close();
    if (!file) throw std::runtime_error("cannot write " + path.string());
    return true;
}

bool WritePages(const fs::path& sources, const fs::path& folder, bool checkOnly) {
    std::set<fs::path> headers;
    for (const auto& entry : fs::recursive_directory_iterator(sources)) {
        if (entry.path().extension() == ".h") headers.insert(entry.path());
    }
    const bool classes = Deliver(folder / "classes.md", ClassesPage(sources, headers), checkOnly);
    const bool enumerations = Deliver(folder / "enumerations.md", EnumerationsPage(headers), checkOnly);
    return classes && enumerations;
}

}  // namespace

int main(int argc, char** argv) {
    std::vector<std::string> arguments(argv + 1, argv + argc);
    const bool checkOnly = !arguments.empty() && arguments.front() == "--check";
    if (checkOnly) arguments.erase(arguments.begin());
    if (arguments.size() != 2) {
        std::cerr << "usage: draftwick_reference [--check] SOURCES FOLDER\n";
        return 2;
    }
    try {
        return WritePages(arguments[0], arguments[1], checkOnly) ? 0 : 1;
    } catch (const std::exception& error) {
        std::cerr << "draftwick_reference: " << error.what() << '\n';
        return 1;
    }
}
