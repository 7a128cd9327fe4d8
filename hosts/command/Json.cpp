#include "hosts/command/Json.h"

#include <rapidjson/error/en.h>
#include <rapidjson/reader.h>

#include <charconv>

namespace draftwick::command {

namespace {

/// An input as the parser wants it.
struct Stream {
    using Ch = char;
    Input& input;

    char Peek() const { return input.Peek(); }
    char Take() { return input.Take(); }
    std::size_t Tell() const { return input.Tell(); }
    // Only for parsing in place.
    char* PutBegin() { return nullptr; }
    void Put(char) {}
    std::size_t PutEnd(char*) { return 0; }
};

[[noreturn]] void Refuse(rapidjson::ParseErrorCode code) {
    command::Refuse(rapidjson::GetParseError_En(code));
}

}  // namespace

/// Parses a scalar and is told of it.
struct JsonReader::Parser : rapidjson::BaseReaderHandler<rapidjson::UTF8<>, Parser> {
    rapidjson::Reader reader;
    Variant value;
    std::string written;  // unless the value is a text

    bool Null() { return Take({}, {}); }
    bool Bool(bool truth) { return Take(truth, truth ? "true" : ""); }
    bool String(const char* text, rapidjson::SizeType length, bool) {
        return Take(std::string{text, length}, {});
    }
    bool RawNumber(const char* digits, rapidjson::SizeType length, bool) {
        const char* const end = digits + length;
        std::int32_t whole = 0;
        if (std::from_chars(digits, end, whole).ptr == end) return Take(whole, {digits, length});
        double real = 0;
        if (std::from_chars(digits, end, real).ec != std::errc{}) Refuse(rapidjson::kParseErrorNumberTooBig);
        return Take(real, {digits, length});
    }

private:
    bool Take(Variant&& taken, std::string_view text) {
        value = std::move(taken);
        written = text;
        return true;
    }
};

JsonReader::JsonReader(Input& input) : input_(input), parser_(std::make_unique<Parser>()) {}
JsonReader::~JsonReader() = default;

void JsonReader::ReadScalar() {
    constexpr unsigned Flags = rapidjson::kParseStopWhenDoneFlag | rapidjson::kParseNumbersAsStringsFlag
                               | rapidjson::kParseValidateEncodingFlag;
    if (Peek() == '{' || Peek() == '[')
        command::Refuse("a single value is expected, not an object or a list");
    const std::size_t start = input_.Tell();
    Stream stream{input_};
    const auto result = parser_->reader.Parse<Flags>(stream, *parser_);
    if (!result.IsError()) return;
    column_ += static_cast<std::int64_t>(result.Offset() - start);
    Refuse(result.Code());
}

/// What is read next begins here.
char JsonReader::Peek() {
    input_.SkipBlanks();
    line_ = input_.Line();
    column_ = input_.Column();
    return input_.Peek();
}

Variant JsonReader::Scalar() {
    ReadScalar();
    return std::move(parser_->value);
}

std::string JsonReader::Text() {
    ReadScalar();
    auto* text = std::get_if<std::string>(&parser_->value);
    return std::move(text != nullptr ? *text : parser_->written);
}

bool JsonReader::Accept(char mark) { return Peek() == mark && input_.Take() == mark; }

bool JsonReader::More(char close, bool first) {
    if (Accept(close)) return false;
    if (!first && !Accept(',')) {
        Refuse(close == ']' ? rapidjson::kParseErrorArrayMissCommaOrSquareBracket
                            : rapidjson::kParseErrorObjectMissCommaOrCurlyBracket);
    }
    return true;
}

void JsonReader::Enter(char open, const char* expected) {
    constexpr int Deepest = 200;  // the stack has an end
    if (!Accept(open)) command::Refuse(expected);
    if (++depth_ > Deepest) command::Refuse("nested too deeply");
}

/// What is wrong with a member is said at its name.
void JsonReader::ReadName(std::string& name) {
    if (Peek() != '"') Refuse(rapidjson::kParseErrorObjectMissName);
    name = Text();
    input_.SkipBlanks();
    if (input_.Peek() == ':') {
        input_.Take();
    } else {
        Peek();
        Refuse(rapidjson::kParseErrorObjectMissColon);
    }
}

void JsonReader::End() {
    if (Peek() != '\0' || !input_.AtEnd()) Refuse(rapidjson::kParseErrorDocumentRootNotSingular);
}

}  // namespace draftwick::command
