#pragma once

#include "hosts/command/Message.h"
#include "hosts/command/Values.h"

#include <istream>
#include <string>
#include <string_view>

namespace draftwick::command {

/// How much of an input can be read before it is known to be JSON.
inline constexpr std::size_t LargestHead = 1 << 16;

/// What is told about a JSON text while it is read. Texts live as long as the call.
class JsonEvents {
public:
    virtual ~JsonEvents() = default;
    virtual void Value(const Scalar& value) = 0;
    virtual void Key(std::string_view name) = 0;
    virtual void Begin(bool object) = 0;  ///< an object, else an array
    virtual void End() = 0;

    /// Where the reader is: at the beginning of what the current call is about.
    Place Where() const;

private:
    friend class JsonReader;
    const class JsonReader* reader_ = nullptr;
};

/// Reads JSON in UTF-8 as a stream, in flat memory. Failure with its place for what is no JSON, and for what the
/// events refuse with std::invalid_argument or Error. Several values may follow each other when `many` is set.
/// The head is what was read of the input already, LargestHead at most.
void ReadJson(std::istream& input, const std::string& name, JsonEvents& events, bool many = false,
              std::string_view head = {});

}  // namespace draftwick::command
