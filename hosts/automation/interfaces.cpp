// Writes the interface definition from which widl makes the type library: enumerations for hosts that know types
// before a program runs, an interface for each class, and the classes themselves. Names, numbers and types come from the
// classes' descriptions, help texts from the comments of the headers.
//
// usage: draftwick_interfaces SOURCES FILE.idl          SOURCES is the folder draftwick/ with the headers
//        draftwick_interfaces names LIST [--check]      adds new names and their numbers to the frozen list; with
//                                                       --check fails when it lacks one. Fails when the list has a
//                                                       name that is gone, or that has another number now.
#include "Members.h"
#include "Numbers.h"

#include "docs/generate/Headers.h"

#include <draftwick/base/Version.h>

#include <cmath>
#include <exception>
#include <fstream>
#include <iostream>
#include <map>
#include <ostream>
#include <regex>
#include <string>
#include <string_view>

using namespace draftwick;
using namespace draftwick::automation;

namespace {

// What the language of definitions has no words for; automation knows these types by their names.
constexpr const char* Prelude = R"(
typedef wchar_t *BSTR;
typedef short VARIANT_BOOL;
typedef double DATE;
typedef struct tagVARIANT { long unused; } VARIANT;
[object, uuid(00000000-0000-0000-C000-000000000046)] interface IUnknown {
    long QueryInterface(); long AddRef(); long Release();
}
[object, uuid(00020400-0000-0000-C000-000000000046)] interface IDispatch : IUnknown {
    long GetTypeInfoCount(); long GetTypeInfo(); long GetIDsOfNames(); long Invoke();
}
)";

std::string IdOf(std::string_view inBraces) {
    return "uuid(" + std::string{inBraces.substr(1, inBraces.size() - 2)} + ")";
}

/// A text in quotes, with a backslash before what would end it.
std::string Quoted(std::string_view text) {
    std::string quoted = "\"";
    for (const char c : text) {
        if (c == '"' || c == '\\') quoted += '\\';
        quoted += c == '\n' ? ' ' : c;
    }
    return quoted + '"';
}

/// The first sentence of a comment, which says what a thing is. Comments name members as C++ does.
std::string Help(const std::string& comment) {
    static const std::regex setter{"::Set(?=[A-Z])"}, scope{"::"};
    if (comment.empty()) return "";
    const std::string sentence = docs::SentencesOf(comment).front();
    return ", helpstring(" + Quoted(std::regex_replace(std::regex_replace(sentence, setter, "."), scope, "."))
           + ")";
}

std::string TypeText(const Type* type) {
    if (type == nullptr) return "void";
    if (!type->values.empty()) return std::string{type->name};
    switch (type->kind) {
    case Kind::Boolean: return "VARIANT_BOOL";
    case Kind::Number:
    case Kind::Color: return "long";
    case Kind::Real:
    case Kind::Length: return "double";
    case Kind::Text:
    case Kind::Path: return "BSTR";
    case Kind::Object:
        return type->description == nullptr ? "IDispatch*" : "I" + std::string{type->name} + "*";
    default: return "VARIANT";
    }
}

std::string DefaultText(const Variant& value) {
    if (const auto* on = std::get_if<bool>(&value)) return *on ? "-1" : "0";
    if (const auto* number = std::get_if<std::int32_t>(&value)) return std::to_string(*number);
    // widl reads no fractions; no default has one.
    if (const auto* real = std::get_if<double>(&value)) return std::to_string(std::lround(*real));
    if (const auto* text = std::get_if<std::string>(&value)) return Quoted(*text);
    return "";
}

std::string ArgumentsText(std::span<const Argument> arguments) {
    std::string text;
    for (const Argument& argument : arguments) {
        const std::string initial = argument.initial ? DefaultText(*argument.initial) : "";
        const std::string type = TypeText(argument.type);
        text += (text.empty() ? "[in" : ", [in");
        if (argument.initial)
            text += initial.empty() || type == "VARIANT" ? ", optional" : ", defaultvalue(" + initial + ")";
        text += "] " + type + " " + std::string{argument.name};
    }
    return text;
}

void WriteEnumeration(std::ostream& out, const Type& type, const docs::Headers& headers) {
    out << "typedef [public" << Help(headers.CommentOf(type.name)) << "] enum " << type.name << " {\n";
    for (const EnumerationValue& value : type.values)
        out << "    " << value.name << " = " << value.value << ",\n";
    out << "} " << type.name << ";\n";
}

void WriteMember(std::ostream& out, const Class& one, const Member& member, const docs::Headers& headers) {
    const std::string name{member.name}, type = TypeText(member.type),
                                         arguments = ArgumentsText(member.arguments);
    const auto begin = [&](std::string_view how, std::string_view result, std::string_view accessor) {
        out << "    [id(" << member.number << ")" << how << Help(headers.CommentOf(one.name, accessor))
            << "] " << result << " " << name;
    };
    if (member.property == nullptr) {
        // A default member is read like a property.
        begin(member.number == DefaultNumber ? ", propget" : "", type, name);
        out << "(" << arguments << ");\n";
        return;
    }
    if (member.property->get != nullptr) {
        begin(", propget", type, name);
        out << "(" << arguments << ");\n";
    }
    if (member.property->set != nullptr) {
        begin(", propput", "void", member.property->get == nullptr ? "Set" + name : name);
        out << "(" << arguments << (arguments.empty() ? "" : ", ") << "[in] " << type << " Value);\n";
    }
}

void WriteLibrary(std::ostream& out, const docs::Headers& headers) {
    out << Prelude << "[" << IdOf(TypeLibraryId) << ", version(" << VersionMajor << ".0), helpstring("
        << Quoted(std::string{ProgIdPrefix} + " " + std::to_string(VersionMajor)) << ")]\nlibrary "
        << ProgIdPrefix << " {\nimportlib(\"stdole2.tlb\");\n";
    for (const Type* type : Enumerations()) WriteEnumeration(out, *type, headers);
    for (const Class* one : Classes()) out << "dispinterface I" << one->name << ";\n";
    for (const Class* one : Classes()) {
        out << "[" << IdOf(one->interfaceId) << Help(headers.CommentOf(one->name)) << "]\ndispinterface I"
            << one->name << " {\nproperties:\nmethods:\n";
        for (const Member& member : Members::Of(*one).All()) WriteMember(out, *one, member, headers);
        if (one->items != nullptr)
            out << "    [id(" << EnumeratorNumber << "), propget, restricted] IUnknown* _NewEnum();\n";
        out << "};\n";
    }
    for (const Class* one : Classes()) {
        out << "[" << IdOf(one->classId) << (one->create == nullptr ? ", noncreatable" : "") << "]\ncoclass "
            << one->name << " { [default] dispinterface I" << one->name << "; };\n";
    }
    out << "};\n";
}

/// "Cell.Width 12345", "dwAlignLeft 0": what programs have inside that were compiled with the type library.
std::map<std::string, std::int32_t> NamesAndNumbers() {
    std::map<std::string, std::int32_t> all;
    for (const Class* one : Classes()) {
        for (const Member& member : Members::Of(*one).All())
            all.emplace(std::string{one->name} + "." + std::string{member.name}, member.number);
    }
    for (const Type* type : Enumerations()) {
        for (const EnumerationValue& value : type->values)
            all.emplace(std::string{type->name} + "." + std::string{value.name}, value.value);
    }
    return all;
}

int CompareNames(const char* list, bool onlyCheck) {
    const auto now = NamesAndNumbers();
    std::map<std::string, std::int32_t> frozen;
    std::ifstream file(list);
    std::string name;
    for (std::int32_t number = 0; file >> name >> number;) frozen.emplace(name, number);
    int complaints = 0;
    for (const auto& [known, number] : frozen) {
        const auto found = now.find(known);
        if (found != now.end() && found->second == number) continue;
        std::cerr << list << ": " << known << (found == now.end() ? " is gone" : " has another number")
                  << '\n';
        ++complaints;
    }
    if (complaints != 0 || frozen.size() == now.size()) return complaints;
    if (onlyCheck) {
        std::cerr << list << " lacks " << now.size() - frozen.size()
                  << " names; scripts/docs reference adds them\n";
        return 1;
    }
    std::ofstream out(list, std::ios::binary);
    for (const auto& [known, number] : now) out << known << ' ' << number << '\n';
    return out.flush() ? 0 : 1;
}

}  // namespace

int main(int argc, char** argv) {
    try {
        const std::string_view first = argc > 2 ? argv[1] : "";
        if (first == "names") return CompareNames(argv[2], argc > 3);
        if (argc != 3) {
            std::cerr << "usage: draftwick_interfaces SOURCES FILE.idl | names LIST [--check]\n";
            return 2;
        }
        std::ofstream out(argv[2], std::ios::binary);
        WriteLibrary(out, docs::Headers(argv[1]));
        return out.flush() ? 0 : 1;
    } catch (const std::exception& error) {
        std::cerr << "draftwick_interfaces: " << error.what() << '\n';
        return 1;
    }
}
