#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <variant>

namespace draftwick {

class Object;

/// A calendar date and time of day, without a time zone. Not checked by itself; whoever takes one checks it.
struct Date {
    std::int32_t year = 0;    ///< 1..9999
    std::int32_t month = 0;   ///< 1..12
    std::int32_t day = 0;     ///< 1..31
    std::int32_t hour = 0;    ///< 0..23
    std::int32_t minute = 0;  ///< 0..59
    std::int32_t second = 0;  ///< 0..59

    /// Not trivial, so that a variant takes care to be empty when copying its text fails: without, the standard
    /// library of GCC 12 destroys a value that was never there.
    constexpr ~Date() {}

    friend bool operator==(const Date&, const Date&) = default;
};

/// Any value that crosses the object model: nothing, a Boolean, a whole number or enumeration value, a real
/// number, a UTF-8 text, a date or an object.
using Variant =
    std::variant<std::monostate, bool, std::int32_t, double, std::string, Date, std::shared_ptr<Object>>;

/// A value of an enumeration. In a Variant it is its number.
struct EnumerationValue {
    std::string_view name;   ///< as in "dwInches"
    std::int32_t value = 0;  ///< its number
};

}  // namespace draftwick
