#pragma once

#include <draftwick/base/Error.h>
#include <draftwick/base/Units.h>

#include <cstddef>
#include <cstdint>
#include <string_view>

/// The kinds of setting. A settings class keeps its values in a plain struct whose fields have these types: the
/// type of a field is its rule (range, the name that a range error gives, how it is stored), its initialiser is
/// its default. Booleans, 32-bit numbers, colours and texts without a rule are plain bool, std::int32_t and
/// std::string. A value that breaks its rule is refused and the old one stays.
namespace draftwick::rule {

using namespace detail;

/// A text that can be a template argument.
template <std::size_t Size>
struct Name {
    char text[Size]{};
    constexpr Name(const char (&from)[Size]) {
        for (std::size_t i = 0; i < Size; ++i) text[i] = from[i];
    }
    constexpr std::string_view View() const { return {text, Size - 1}; }
};

/// An enumerated setting: the values of an enumeration from First to Last. Outside: dwErrPropertyOutOfRange.
template <Name RangeName, auto First, auto Last>
class Choice {
public:
    using Value = decltype(First);
    constexpr Choice(Value value) noexcept : value_(value) {}
    constexpr operator Value() const noexcept { return value_; }
    static void Check(std::int32_t value) {
        CheckRange(value, static_cast<std::int32_t>(First), static_cast<std::int32_t>(Last),
                   RangeName.View());
    }
    void Set(Value value) {
        Check(value);
        value_ = value;
    }

private:
    Value value_;
};

/// A small number stored in a byte. Outside of a byte: error 6; outside of its range: dwErrPropertyOutOfRange.
template <Name RangeName, std::uint8_t First, std::uint8_t Last>
class Byte {
public:
    constexpr Byte(std::uint8_t value) noexcept : value_(value) {}
    constexpr operator std::int32_t() const noexcept { return value_; }
    void Set(std::int32_t value) {
        CheckByte(value);
        CheckRange(value, First, Last, RangeName.View());
        value_ = static_cast<std::uint8_t>(value);
    }

private:
    std::uint8_t value_;
};

/// A whole number stored in 16 bits. Outside: error 6.
class Short {
public:
    constexpr Short(std::int16_t value) noexcept : value_(value) {}
    constexpr operator std::int32_t() const noexcept { return value_; }
    void Set(std::int32_t value) { value_ = ToShort(value); }

private:
    std::int16_t value_;
};

/// A real number that is rounded to a whole one, ties to even, and stored in 16 bits. Outside: error 6.
class Rounded {
public:
    constexpr Rounded(std::int16_t value) noexcept : value_(value) {}
    constexpr operator double() const noexcept { return value_; }
    void Set(double value) { value_ = RoundToShort(value); }

private:
    std::int16_t value_;
};

/// A length, stored as a signed 16-bit number of twips. Outside: error 6.
class Length {
public:
    constexpr Length(std::int16_t twips) noexcept : twips_(twips) {}
    constexpr std::int32_t Twips() const noexcept { return twips_; }
    void Set(Measure length, dwScaleMode scale) { twips_ = ToShort(ToTwips(length, scale)); }
    bool operator==(const Length&) const = default;

private:
    std::int16_t twips_;
};

/// A real number that is stored as given and written in another unit, by the function that is the argument. That
/// function refuses with error 6 what is not finite or does not fit 32 bits in the file, so nothing is written that was
/// not judged.
template <auto ToFile>
class Real {
public:
    constexpr Real(double value) noexcept : value_(value) {}
    constexpr operator double() const noexcept { return value_; }
    void Set(double value) {
        ToFile(value);
        value_ = value;
    }
    /// The number that the file has.
    auto Written() const { return ToFile(value_); }

private:
    double value_;
};

/// A real number that is stored as a whole number of 65536ths, ties to even. Error 6 when that does not fit 32 bits.
class FixedPoint {
public:
    constexpr FixedPoint(std::int16_t value) noexcept : parts_(value * 65536) {}
    constexpr operator double() const noexcept { return parts_ / 65536.0; }
    void Set(double value) { parts_ = RoundHalfEven(value * 65536); }

private:
    std::int32_t parts_;
};

/// Points that are written in twips or half-points, rounded down.
using Points = Real<PointsToTwips>;
using PointsInHalves = Real<PointsToHalfPoints>;
/// Points that are written in twips with either sign.
using SignedPoints = Real<PointsToSignedTwips>;
/// Points that are written in English Metric Units.
using PointsInEmu = Real<PointsToEmu>;
/// Lines that are written in their 240ths.
using Lines = Real<LinesToParts>;
/// What is written in 65536ths: a number, a percentage, a percentage from the far edge.
using Fixed = Real<ToFixedPoint>;
using Percent = Real<PercentToFixedPoint>;
using FarPercent = Real<PercentFromFarEdge>;

}  // namespace draftwick::rule
