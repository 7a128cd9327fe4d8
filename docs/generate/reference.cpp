// Writes the reference pages, classes.md and enumerations.md: names, numbers and types from the classes' descriptions,
// sentences from the comments of the headers.
//
// usage: draftwick_reference SOURCES FOLDER            writes the pages
//        draftwick_reference --check SOURCES FOLDER    fails when a page in the folder is not what would be written
//
// SOURCES is the folder draftwick/ with the headers.
#include "Headers.h"

#include <draftwick/base/internal/Enumeration.h>
#include <draftwick/draftwick.h>

#include <algorithm>
#include <exception>
#include <filesystem>
#include <fstream>
#include <iomanip>
#include <iostream>
#include <iterator>
#include <regex>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

using namespace draftwick;
using docs::Headers;

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
std::string TypeText(const Type* type, bool optional = false) {
    if (type == nullptr) return "";
    std::string text{type->name};
    if (type->description != nullptr) text = Link("", text);
    if (!type->values.empty()) text = Link("enumerations.md", text);
    return optional ? text + " or nothing" : text;
}

std::string ValueText(const Variant& value, const Type& type) {
    for (const EnumerationValue& constant : type.values)
        if (value == Variant{constant.value}) return std::string{constant.name};
    std::ostringstream text;
    if (const auto* on = std::get_if<bool>(&value)) {
        text << (*on ? "true" : "false");
    } else if (const auto* number = std::get_if<std::int32_t>(&value)) {
        if (type.kind == Kind::Color)
            text << "0x" << std::hex << std::uppercase << std::setw(6) << std::setfill('0');
        text << *number;
    } else if (const auto* real = std::get_if<double>(&value)) {
        text << *real << (type.kind == Kind::Length && *real != 0 ? " twips" : "");
    } else if (const auto* string = std::get_if<std::string>(&value)) {
        text << (string->empty() ? "empty" : "`\"" + *string + "\"`");
    } else {
        text << "nothing";
    }
    return text.str();
}

std::string ArgumentsText(const std::vector<Argument>& arguments) {
    std::string text;
    for (const Argument& argument : arguments) {
        text += (text.empty() ? "" : ", ") + std::string{argument.name} + ": " + TypeText(argument.type);
        if (argument.initial) text += " = " + ValueText(*argument.initial, *argument.type);
    }
    return text;
}

std::string NameText(const ClassProperty& property) {
    const std::string name{property.name};
    return property.arguments.empty() ? name : name + "(" + ArgumentsText(property.arguments) + ")";
}

std::string HoldsText(const ClassProperty& property) {
    const std::string type = TypeText(property.type, property.optional);
    if (property.set == nullptr) return type + ", read only";
    return property.get == nullptr ? type + ", write only" : type;
}

std::string RangeText(const ClassProperty& property) {
    const Rule& rule = property.rule;
    if (rule.limited) return std::to_string(rule.low) + "…" + std::to_string(rule.high);
    if (property.type->kind == Kind::Length) return "16 bits of twips";
    return rule.bits == 16 ? "16 bits" : "";
}

bool HasDefault(const ClassProperty& property) {
    return !std::holds_alternative<std::monostate>(property.rule.initial);
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

/// A comment as it fits a cell of a table.
std::string InCell(const std::string& comment) {
    return std::regex_replace(Escaped(comment), std::regex{"\n+"}, " ");
}

/// What a property is. A plain default has a column of its own; where no more is said, the enumeration tells.
std::string CommentText(const Headers& headers, const Class& of, const ClassProperty& property) {
    std::string text;
    for (const std::string& sentence : docs::SentencesOf(headers.CommentOf(of.name, property.name))) {
        const bool plain = sentence.starts_with("Default") && sentence.find(": ") == std::string::npos;
        if (!plain || !HasDefault(property)) text += (text.empty() ? "" : " ") + sentence;
    }
    return InCell(text.empty() ? headers.CommentOf(property.type->name) : text);
}

void WriteClass(std::ostream& out, const Class& one, const Headers& headers) {
    const std::string& header = headers.FileOf(one.name);
    out << "\n## " << one.name << "\n\n" << Escaped(headers.CommentOf(one.name)) << "\n\n";
    out << "[draftwick/" << header << "](../../draftwick/" << header << ") · class `" << one.classId
        << "` · interface `" << one.interfaceId << "`";
    if (one.create != nullptr) out << " · created as `" << ProgIdPrefix << "." << one.name << "`";
    if (one.items != nullptr) out << " · collection of " << TypeText(one.items);
    if (!one.defaultMember.empty()) out << " · default member `" << one.defaultMember << "`";
    out << '\n';
    if (!one.properties.empty()) {
        out << "\n| Property | Holds | Range | Default | |\n| --- | --- | --- | --- | --- |\n";
        for (const ClassProperty& property : one.properties) {
            out << "| " << NameText(property) << " | " << HoldsText(property) << " | " << RangeText(property)
                << " | " << (HasDefault(property) ? ValueText(property.rule.initial, *property.type) : "")
                << " | " << CommentText(headers, one, property) << " |\n";
        }
    }
    if (!one.methods.empty()) {
        out << "\n| Method | Arguments | Gives | |\n| --- | --- | --- | --- |\n";
        for (const ClassMethod& method : one.methods) {
            out << "| " << method.name << " | " << ArgumentsText(method.arguments) << " | "
                << TypeText(method.result, method.optional) << " | "
                << InCell(headers.CommentOf(one.name, method.name)) << " |\n";
        }
    }
}

std::string ClassesPage(const Headers& headers) {
    std::ostringstream out;
    out << R"(# Classes, properties and methods by name

Written by `scripts/docs reference` from the classes' own descriptions and the comments of their headers. The guide's
[chapter on names](../guide/by-name.md) tells how to use them.

- **Holds**: a kind of value, see below. A name with a link is an enumeration or a class.
- **Range**: outside of it a setter refuses, and the property keeps its value: error -2147220890 outside of a range of
  numbers, error 6 outside of 16 bits.
- **Default**: of a new object. None is given where it depends on the document or on how the object was made.
- In C++ a property `MarginTop` is `MarginTop()` and `SetMarginTop(value)`. Arguments with a default can be left out.
- The identifiers never change. That of the library of types is `)"
        << TypeLibraryId << "`.\n\n| Kind | |\n| --- | --- |\n";
    for (const EnumerationValue& kind : ValuesOf<Kind>::All) {
        out << "| " << kind.name << " | " << Escaped(headers.CommentOf("Kind", kind.name)) << " |\n";
    }
    out << "\nEvery class has these properties, too:\n\n| Property | Holds | |\n| --- | --- | --- |\n";
    for (const ClassProperty& property : CommonProperties()) {
        out << "| " << property.name << " | " << HoldsText(property) << " | "
            << Escaped(headers.CommentOf("Object", property.name)) << " |\n";
    }
    out << '\n';
    const char* divider = "";
    for (const Class* one : Classes()) {
        out << divider << Link("", std::string{one->name});
        divider = " ·\n";
    }
    out << '\n';
    for (const Class* one : Classes()) WriteClass(out, *one, headers);
    return out.str();
}

std::string EnumerationsPage(const Headers& headers) {
    std::ostringstream out;
    out << R"(# Enumerations

Written by `scripts/docs reference` from the descriptions and the comments of the headers. Where the
names are not known, as in scripts, use the numbers.
)";
    for (const Type* type : Enumerations()) {
        const std::string comment = headers.CommentOf(type->name);
        out << "\n## " << type->name << "\n\n" << Escaped(comment) << (comment.empty() ? "" : "\n\n");
        out << "| Name | Value | |\n| --- | --- | --- |\n";
        for (const EnumerationValue& value : type->values) {
            out << "| " << value.name << " | " << value.value << " | "
                << Escaped(headers.CommentOf(type->name, value.name)) << " |\n";
        }
    }
    return out.str();
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
    const Headers headers(sources);
    const bool classes = Deliver(folder / "classes.md", ClassesPage(headers), checkOnly);
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
