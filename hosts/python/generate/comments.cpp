// Prints the object model as JSON, and with it what the comments of the library's headers say.
//
// usage: draftwick_python_comments SOURCES     the folder draftwick/ with the headers
#include <docs/generate/Headers.h>
#include <hosts/model/Json.h>

#include <draftwick/draftwick.h>

#include <exception>
#include <iomanip>
#include <iostream>

using namespace draftwick;

namespace {

void Print(const docs::Headers& headers) {
    std::cout << "{\"model\": " << hosts::DescribeAsJson() << ",\n\"comments\": {";
    const auto put = [](std::string_view name, const std::string& comment) {
        std::cout << std::quoted(name) << ": " << std::quoted(comment) << ",\n";
    };
    const auto putMembers = [&](std::string_view owner, const auto& members) {
        for (const auto& member : members)
            put(std::string{owner}.append(".").append(member.name), headers.CommentOf(owner, member.name));
    };
    putMembers("Object", CommonProperties());
    for (const Class* one : Classes()) {
        putMembers(one->name, one->properties);
        putMembers(one->name, one->methods);
        put(one->name, headers.CommentOf(one->name));
    }
    for (const Type* type : Enumerations()) {
        putMembers(type->name, type->values);
        put(type->name, headers.CommentOf(type->name));
    }
    std::cout << "\"\": \"\"}}\n";
}

}  // namespace

int main(int count, char** arguments) {
    try {
        if (count != 2) throw std::invalid_argument("usage: draftwick_python_comments SOURCES");
        Print(docs::Headers(arguments[1]));
        return std::cout.flush() ? 0 : 1;
    } catch (const std::exception& error) {
        std::cerr << error.what() << '\n';
        return 1;
    }
}
