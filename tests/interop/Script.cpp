// Builds documents from a script on standard input, by the names of classes' members: what the interoperability tests
// say in Python, the library does.
//
// Each step ends in the character 30, its fields are divided by the character 31:
//   NUMBER new                          a document, which has this number from now on
//   NUMBER get OBJECT NAME              the object that a property holds
//   NUMBER call OBJECT NAME VALUE...    the object that a method gives, if it gives one
//   NUMBER set OBJECT NAME VALUE
// OBJECT is the number of an earlier step. A VALUE begins with its kind: b0, i5, r0.5, sText, d2026-03-01 12:00:00, or
// n for nothing.
#include <draftwick/draftwick.h>

#include <cstdio>
#include <exception>
#include <iostream>
#include <map>
#include <stdexcept>
#include <string>
#include <vector>

using namespace draftwick;

namespace {

std::vector<std::string> Fields(const std::string& step) {
    std::vector<std::string> fields{""};
    for (const char c : step) {
        if (c == '\x1F') {
            fields.emplace_back();
        } else {
            fields.back() += c;
        }
    }
    return fields;
}

Variant Value(const std::string& field) {
    const std::string text = field.substr(1);
    switch (field.at(0)) {
    case 'b': return text == "1";
    case 'i': return std::stoi(text);
    case 'r': return std::stod(text);
    case 's': return text;
    case 'n': return {};
    default: break;
    }
    Date date;
    if (std::sscanf(text.c_str(), "%d-%d-%d %d:%d:%d", &date.year, &date.month, &date.day, &date.hour,
                    &date.minute, &date.second)
        != 6) {
        throw std::invalid_argument("no value: " + field);
    }
    return date;
}

class Script {
public:
    void Run(const std::vector<std::string>& step) {
        const std::string& verb = step.at(1);
        Variant result;
        if (verb == "new") {
            objects_.clear();
            result = std::shared_ptr<Object>{Document::Create()};
        } else {
            Object& object = *objects_.at(step.at(2));
            const std::string& name = step.at(3);
            std::vector<Variant> values;
            for (std::size_t i = 4; i < step.size(); ++i) values.push_back(Value(step[i]));
            if (verb == "get") {
                result = Get(object, name);
            } else if (verb == "call") {
                result = Call(object, name, values);
            } else {
                Set(object, name, values.at(0));
            }
        }
        if (auto* object = std::get_if<std::shared_ptr<Object>>(&result)) objects_[step[0]] = *object;
    }

private:
    std::map<std::string, std::shared_ptr<Object>> objects_;
};

}  // namespace

int main() {
    Script script;
    for (std::string step; std::getline(std::cin, step, '\x1E');) {
        try {
            script.Run(Fields(step));
        } catch (const std::exception& error) {
            for (char& c : step) c = c == '\x1F' ? ' ' : c;
            std::cerr << step << ": " << error.what() << '\n';
            return 1;
        }
    }
}
