// Writes what the Python package tells people and type checkers, from the classes' descriptions and the comments of the
// library's headers.
//
// usage: draftwick_python_texts SOURCES DOCUMENT COMMENTS STUBS
//
// SOURCES is the folder draftwick/ with the headers, DOCUMENT the members of Document that only Python has, COMMENTS the C++
// source and STUBS the stub file to write.
#include <hosts/python/generate/Stubs.h>

#include <exception>
#include <fstream>
#include <iostream>
#include <iterator>
#include <map>

using namespace draftwick;
using namespace draftwick::python;

namespace {

std::string Escaped(const std::string& text) {
    std::string result;
    for (const char c : text) {
        if (c == '"' || c == '\\') result += '\\';
        if (c == '\n')
            result += "\\n";
        else
            result += c;
    }
    return result;
}

void WriteComments(const Comments& comments, std::ostream& out) {
    std::map<std::string, std::string> all;
    const auto add = [&](std::string_view owner, std::string_view member) {
        std::string name{owner};
        if (!member.empty()) name.append(".").append(member);
        if (std::string text = comments.Of(owner, member, 80); !text.empty())
            all.emplace(name, std::move(text));
    };
    for (const ClassProperty& property : CommonProperties()) add("Object", property.name);
    for (const Class* one : Classes()) {
        add(one->name, {});
        for (const ClassProperty& property : one->properties) add(one->name, property.name);
        for (const ClassMethod& method : one->methods) add(one->name, method.name);
    }
    for (const draftwick::Type* type : Enumerations()) {
        add(type->name, {});
        for (const EnumerationValue& value : type->values) add(type->name, value.name);
    }
    out << "#include <hosts/python/Comments.h>\n\n#include <algorithm>\n#include <string>\n\n"
           "namespace draftwick::python {\n\nnamespace {\n\nconstexpr Remark Remarks[] = {\n";
    for (const auto& [name, text] : all) out << "    {\"" << name << "\", \"" << Escaped(text) << "\"},\n";
    out << "};\n\n}  // namespace\n\nconst char* Comment(std::string_view owner, std::string_view member) {\n"
           "    std::string name{owner};\n    if (!member.empty()) name.append(\".\").append(member);\n"
           "    const auto found = std::lower_bound(std::begin(Remarks), std::end(Remarks), name,\n"
           "        [](const Remark& one, const std::string& wanted) { return one.name < wanted; });\n"
           "    return found == std::end(Remarks) || found->name != name ? \"\" : found->text;\n}\n\n"
           "}  // namespace draftwick::python\n";
}

}  // namespace

int main(int count, char** arguments) {
    if (count != 5) {
        std::cerr << "usage: draftwick_python_texts SOURCES DOCUMENT COMMENTS STUBS\n";
        return 2;
    }
    try {
        const Comments comments(arguments[1]);
        std::ifstream document(arguments[2]);
        const std::string members{std::istreambuf_iterator<char>(document), std::istreambuf_iterator<char>()};
        std::ofstream source(arguments[3]), stubs(arguments[4]);
        WriteComments(comments, source);
        WriteStubs(comments, members, stubs);
        return members.empty() || !source.flush() || !stubs.flush() ? 1 : 0;
    } catch (const std::exception& error) {
        std::cerr << error.what() << '\n';
        return 1;
    }
}
