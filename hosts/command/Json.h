#pragma once

#include "hosts/command/Input.h"

#include <draftwick/base/Variant.h>

#include <memory>
#include <string>

namespace draftwick::command {

/// Reads JSON in UTF-8 as a stream, value by value, in flat memory. std::invalid_argument for what is no JSON, and when
/// something else comes than is asked for; Where tells the place.
class JsonReader {
public:
    explicit JsonReader(Input& input);
    ~JsonReader();
    JsonReader(const JsonReader&) = delete;
    JsonReader& operator=(const JsonReader&) = delete;

    /// What comes next: a brace, a bracket, or the first byte of anything else; a zero byte at the end.
    char Peek();

    /// Reads an object. What is called with the name of each member, a const std::string&, reads its value.
    template <class Member>
    void Object(const Member& member) {
        std::string name;
        Enter('{', "an object is expected, in braces");
        for (bool first = true; More('}', first); first = false) {
            ReadName(name);
            member(name);
        }
        --depth_;
    }
    /// Reads an array. What is called reads an item.
    template <class Item>
    void Array(const Item& item) {
        Enter('[', "a list is expected, in brackets");
        for (bool first = true; More(']', first); first = false) item();
        --depth_;
    }
    /// Nothing, a Boolean, a number (whole if it can be) or a text.
    Variant Scalar();
    /// The same as a text: numbers as they are written, "true", and nothing for false and null.
    std::string Text();

    /// Takes a mark if it comes next.
    bool Accept(char mark);
    /// Whether something follows in what was begun, before the mark that ends it; both are taken.
    bool More(char close, bool first);
    /// Refuses what follows.
    void End();

    /// Where that begins which was read last.
    Place Where() const { return {input_.Name(), line_, column_}; }

private:
    struct Parser;

    void Enter(char open, const char* expected);
    void ReadName(std::string& name);
    void ReadScalar();

    Input& input_;
    std::unique_ptr<Parser> parser_;
    std::int64_t line_ = 1, column_ = 1;
    int depth_ = 0;
};

/// Runs what reads a JSON text to its end. Failure with its place for all that is wrong.
template <class Action>
void ReadJson(Input& input, const Action& action) {
    JsonReader reader(input);
    Locate([&] { return reader.Where(); },
           [&] {
               action(reader);
               reader.End();
           });
}

}  // namespace draftwick::command
