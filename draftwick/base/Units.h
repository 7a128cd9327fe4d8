#pragma once

#include <draftwick/platform/Export.h>

#include <cstdint>
#include <string_view>

namespace draftwick {

/// The unit in which a document takes and gives lengths.
enum dwScaleMode : std::int32_t {
    dwInches = 1,  ///< 1440 twips
    dwTwips = 2,   ///< 1/1440 inch, the unit of the RTF format
    dwPoints = 3,  ///< 20 twips
};

/// A length that is given to a setter: a plain number is in the document's ScaleMode, one with a unit of its own
/// (2.5_cm, 12_pt, 1_in) is that long whatever the ScaleMode says.
class Measure {
public:
    /// In the document's ScaleMode.
    constexpr Measure(double value) noexcept : value_(value) {}
    /// In a unit of that many twips.
    constexpr Measure(double value, double twipsPerUnit) noexcept
        : value_(value), twipsPerUnit_(twipsPerUnit) {}

    /// The number that was given.
    constexpr double Value() const noexcept { return value_; }
    /// How many twips the unit has; 0 for a plain number.
    constexpr double TwipsPerUnit() const noexcept { return twipsPerUnit_; }

    /// As long to the other side.
    constexpr Measure operator-() const noexcept { return {-value_, twipsPerUnit_}; }
    friend constexpr Measure operator*(Measure length, double factor) noexcept {
        return {length.value_ * factor, length.twipsPerUnit_};
    }
    friend constexpr Measure operator*(double factor, Measure length) noexcept { return length * factor; }
    friend constexpr Measure operator/(Measure length, double divisor) noexcept {
        return {length.value_ / divisor, length.twipsPerUnit_};
    }

private:
    double value_;
    double twipsPerUnit_ = 0;
};

/// Lengths with their units.
inline namespace literals {

/// Inches.
constexpr Measure operator""_in(long double length) { return {static_cast<double>(length), 1440}; }
/// The same for a whole number.
constexpr Measure operator""_in(unsigned long long length) { return {static_cast<double>(length), 1440}; }
/// Centimetres.
constexpr Measure operator""_cm(long double length) { return {static_cast<double>(length), 1440 / 2.54}; }
/// The same for a whole number.
constexpr Measure operator""_cm(unsigned long long length) {
    return {static_cast<double>(length), 1440 / 2.54};
}
/// Millimetres.
constexpr Measure operator""_mm(long double length) { return {static_cast<double>(length), 1440 / 25.4}; }
/// The same for a whole number.
constexpr Measure operator""_mm(unsigned long long length) {
    return {static_cast<double>(length), 1440 / 25.4};
}
/// Points of 1/72 inch.
constexpr Measure operator""_pt(long double length) { return {static_cast<double>(length), 20}; }
/// The same for a whole number.
constexpr Measure operator""_pt(unsigned long long length) { return {static_cast<double>(length), 20}; }

}  // namespace literals

/// @cond LIBRARY
namespace detail {

/// The nearest whole number, ties to the even one (2.5 gives 2, 3.5 gives 4). Error 6 when the value is not a
/// number or does not fit 32 bits.
DRAFTWICK_API std::int32_t RoundHalfEven(double value);
/// The nearest whole number, ties to even. Error 6 when it does not fit 16 bits.
DRAFTWICK_API std::int16_t RoundToShort(double value);
/// The integer part, rounded down. Error 6 when the value is not a number or does not fit 32 bits.
DRAFTWICK_API std::int32_t RoundDown(double value);
/// Error 6 when the value does not fit 16 bits.
DRAFTWICK_API std::int16_t ToShort(std::int32_t value);

/// A length in the given unit as whole twips, ties to even; 0 for an unknown unit.
DRAFTWICK_API std::int32_t ToTwips(Measure length, dwScaleMode scale);
/// Whole twips as a length in the given unit; 0 for an unknown unit.
DRAFTWICK_API double FromTwips(std::int32_t twips, dwScaleMode scale) noexcept;

/// Whether the value lies between the two bounds, whichever of them is the smaller.
constexpr bool InRange(std::int32_t value, std::int32_t bound1, std::int32_t bound2) noexcept {
    return bound1 <= bound2 ? value >= bound1 && value <= bound2 : value >= bound2 && value <= bound1;
}
/// Raises dwErrPropertyOutOfRange with the property's name unless InRange.
DRAFTWICK_API void CheckRange(std::int32_t value, std::int32_t bound1, std::int32_t bound2,
                              std::string_view name);

/// Error 6 outside of 0 to 255.
DRAFTWICK_API void CheckByte(std::int32_t value);

// Numbers as the file has them. Error 6 when they are not finite or do not fit 32 bits.

/// Points as twips, rounded down.
DRAFTWICK_API std::int32_t PointsToTwips(double points);
/// Points as twips, ties to even; the negative number fits, too.
DRAFTWICK_API std::int32_t PointsToSignedTwips(double points);
/// Points as half-points, rounded down.
DRAFTWICK_API std::int32_t PointsToHalfPoints(double points);
/// Lines as their 240ths, ties to even.
DRAFTWICK_API std::int32_t LinesToParts(double lines);
/// A number as 65536ths, not rounded.
DRAFTWICK_API double ToFixedPoint(double value);
/// Percent as 65536ths of the whole, not rounded.
DRAFTWICK_API double PercentToFixedPoint(double percent);
/// Likewise how far percent are from the whole.
DRAFTWICK_API double PercentFromFarEdge(double percent);
/// English Metric Units, 635 to the twip; of points in whole twips, ties to even.
DRAFTWICK_API std::int32_t TwipsToEmu(std::int32_t twips);
DRAFTWICK_API std::int32_t PointsToEmu(double points);

/// Picture sizes. HIMETRIC is a hundredth of a millimetre, 2540 to the inch.
DRAFTWICK_API double TwipsToInches(std::int32_t twips) noexcept;
/// To the nearest hundredth of a millimetre. Error 6 when it does not fit 32 bits.
DRAFTWICK_API std::int32_t InchesToHimetric(double inches);
/// As InchesToHimetric.
DRAFTWICK_API std::int32_t TwipsToHimetric(std::int32_t twips);
/// Rounded down, on a screen with so many twips to a pixel (15 on the usual 96 dots per inch).
DRAFTWICK_API std::int32_t HimetricToPixels(std::int32_t himetric, double twipsPerPixel = 15);

}  // namespace detail
/// @endcond

}  // namespace draftwick
