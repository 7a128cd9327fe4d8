#include "hosts/command/Json.h"

#include <rapidjson/error/en.h>
#include <rapidjson/reader.h>

#include <algorithm>
#include <array>
#include <stdexcept>

namespace draftwick::command {

/// A stream for the parser that knows in which line it is, and what the parser calls.
class JsonReader {
public:
    using Ch = char;

    JsonReader(std::istream& input, const std::string& name, JsonEvents& events, std::string_view head)
        : input_(input), name_(name), events_(events) {
        events_.reader_ = this;
        end_ = std::copy_n(head.begin(), std::min(head.size(), buffer_.size()), buffer_.begin());
        if (head.empty()) Fill();
        if (std::string_view{buffer_.data(), Left()}.starts_with("\xEF\xBB\xBF")) next_ += 3;
    }

    // The stream.
    char Peek() const { return next_ == end_ ? '\0' : *next_; }
    char Take() {
        const char taken = Peek();
        if (next_ != end_ && ++next_ == end_) Fill();
        return taken;
    }
    std::size_t Tell() const { return before_ + static_cast<std::size_t>(next_ - buffer_.data()); }
    // Only for parsing in place.
    char* PutBegin() { return nullptr; }
    void Put(char) {}
    void Flush() {}
    std::size_t PutEnd(char*) { return 0; }

    // The events.
    bool Null() { return Tell({}, 4); }
    bool Bool(bool truth) { return Tell({Scalar::Kind::Boolean, {}, truth}, truth ? 4 : 5); }
    bool RawNumber(const char* digits, rapidjson::SizeType length, bool) {
        return Tell({Scalar::Kind::Number, {digits, length}}, length);
    }
    bool String(const char* text, rapidjson::SizeType length, bool) {
        return Tell({Scalar::Kind::Text, {text, length}}, length + 2);
    }
    bool Key(const char* name, rapidjson::SizeType length, bool) {
        token_ = length + 2;
        events_.Key({name, length});
        return true;
    }
    bool StartObject() { return Begin(true); }
    bool StartArray() { return Begin(false); }
    bool EndObject(rapidjson::SizeType) { return End(); }
    bool EndArray(rapidjson::SizeType) { return End(); }
    // Numbers come as texts.
    bool Int(int) { return false; }
    bool Uint(unsigned) { return false; }
    bool Int64(std::int64_t) { return false; }
    bool Uint64(std::uint64_t) { return false; }
    bool Double(double) { return false; }

    void Read(bool many) {
        constexpr unsigned Flags = rapidjson::kParseIterativeFlag | rapidjson::kParseNumbersAsStringsFlag
                                   | rapidjson::kParseValidateEncodingFlag;
        rapidjson::Reader reader;
        do {
            const auto result = many ? reader.Parse<Flags | rapidjson::kParseStopWhenDoneFlag>(*this, *this)
                                     : reader.Parse<Flags>(*this, *this);
            if (result.IsError())
                throw Failure(PlaceOf(result.Offset()), rapidjson::GetParseError_En(result.Code()));
            rapidjson::SkipWhitespace(*this);
        } while (many && Peek() != '\0');
        if (next_ != end_) throw Failure(Here(), "a zero byte");
        if (input_.bad()) throw Failure({name_}, "cannot be read");
    }

    Place Here() const { return PlaceOf(Tell() - token_); }

private:
    bool Tell(const Scalar& value, std::size_t length) {
        token_ = length;
        events_.Value(value);
        return true;
    }
    // The parser takes a bracket or brace after it told of it.
    bool Begin(bool object) {
        token_ = 0;
        events_.Begin(object);
        return true;
    }
    bool End() {
        token_ = 0;
        events_.End();
        return true;
    }

    std::size_t Left() const { return static_cast<std::size_t>(end_ - next_); }

    /// The line is the one where the reader is: no token goes over the end of a line.
    Place PlaceOf(std::size_t offset) const {
        const auto line = lines_ + std::count(Start(), next_, '\n') + 1;
        const std::size_t start = std::min(LineStart(next_), offset);
        return {name_, static_cast<std::int64_t>(line), static_cast<std::int64_t>(offset - start + 1)};
    }

    const char* Start() const { return buffer_.data(); }

    /// Where the line began that a place in the buffer is in.
    std::size_t LineStart(const char* place) const {
        while (place != Start() && place[-1] != '\n') --place;
        return place == Start() ? lineStart_ : before_ + static_cast<std::size_t>(place - Start());
    }

    void Fill() {
        lines_ += std::count(Start(), end_, '\n');
        lineStart_ = LineStart(end_);
        before_ += static_cast<std::size_t>(end_ - buffer_.data());
        input_.read(buffer_.data(), static_cast<std::streamsize>(buffer_.size()));
        next_ = buffer_.data();
        end_ = next_ + input_.gcount();
    }

    std::istream& input_;
    const std::string& name_;
    JsonEvents& events_;
    std::array<char, LargestHead> buffer_{};
    const char* next_ = buffer_.data();
    const char* end_ = buffer_.data();
    std::size_t before_ = 0;     // bytes in front of the buffer
    std::ptrdiff_t lines_ = 0;   // ends of lines in front of the buffer
    std::size_t lineStart_ = 0;  // where the line began that goes over the beginning of the buffer
    std::size_t token_ = 0;      // the length of what the current event is about
};

Place JsonEvents::Where() const { return reader_->Here(); }

void ReadJson(std::istream& input, const std::string& name, JsonEvents& events, bool many,
              std::string_view head) {
    JsonReader reader(input, name, events, head);
    try {
        reader.Read(many);
    } catch (const std::invalid_argument& error) {
        throw Failure(reader.Here(), error.what());
    } catch (const Error& error) {
        throw Failure(reader.Here(), Explain(error));
    }
}

}  // namespace draftwick::command
