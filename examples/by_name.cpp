// By name: a document from a script that knows the members of objects only by their names.
//
// usage: by_name OUTPUT.rtf
#include <draftwick/draftwick.h>

#include <exception>
#include <iostream>
#include <map>
#include <sstream>
#include <string>
#include <vector>

using namespace draftwick;

namespace {

// [script]
// A line is: a new name, or "-" for none; an object; a member of it, with "=" in front to set a property; values.
constexpr const char* Script = R"(
-         document  =Spelling       2
-         document  =MarginLeft     1.5
fonts     document  Fonts
-         fonts     Add             'Arial'
-         document  =DefaultFontName 'Arial'
section   document  AddSection
title     section   AddParagraph
look      title     FontFormat
-         look      =Size           20
-         look      =Bold           true
layout    title     Format
-         layout    =Align          3
-         title     AddTextItem     'Made by a script'
text      section   AddParagraph
-         text      AddTextItem     'Every class, property and method has a name.'
-         document  Finish
)";
// [script]

Variant ValueOf(const std::string& word) {
    if (word.front() == '\'') return word.substr(1, word.size() - 2);
    if (word == "true" || word == "false") return word == "true";
    if (word.find('.') != std::string::npos) return std::stod(word);
    return std::stoi(word);
}

/// The rest of a line: numbers, true, false, and texts in single quotes.
std::vector<Variant> ReadValues(std::istream& line) {
    std::vector<Variant> values;
    for (std::string word; line >> word;) {
        std::string more;
        if (word.front() == '\'' && (word.size() == 1 || word.back() != '\'')
            && std::getline(line, more, '\''))
            word += more + '\'';
        values.push_back(ValueOf(word));
    }
    return values;
}

// [run]
using Objects = std::map<std::string, std::shared_ptr<Object>>;

/// A member is a property or a method: the object's class knows.
Variant Use(Object& object, const std::string& member, const std::vector<Variant>& values) {
    if (member.front() == '=') {
        Set(object, member.substr(1), values.at(0));
        return {};
    }
    const bool isProperty = object.Description().FindProperty(member) != nullptr;
    return isProperty ? Get(object, member, values) : Call(object, member, values);
}

void Run(const std::string& script, Objects& objects) {
    std::istringstream lines(script);
    for (std::string text; std::getline(lines, text);) {
        std::istringstream line(text);
        std::string name, object, member;
        if (!(line >> name >> object >> member)) continue;
        const Variant result = Use(*objects.at(object), member, ReadValues(line));
        if (name != "-") objects[name] = std::get<std::shared_ptr<Object>>(result);
    }
}
// [run]

void WriteByName(const char* filename) {
    auto document = Document::Create();
    Set(*document, "Filename", std::string{filename});
    Objects objects{{"document", document}};
    Run(Script, objects);
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::cerr << "usage: by_name OUTPUT.rtf\n";
        return 2;
    }
    try {
        WriteByName(argv[1]);
    } catch (const std::exception& error) {
        std::cerr << "by_name: " << error.what() << '\n';
        return 1;
    }
}
