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
DRAFTWICK_API std::int32_t ToTwips(double value, dwScaleMode scale);
/// Whole twips as a length in the given unit; 0 for an unknown unit.
DRAFTWICK_API double FromTwips(std::int32_t twips, dwScaleMode scale) noexcept;

/// Whether the value lies between the two bounds, whichever of them is the smaller.
constexpr bool InRange(std::int32_t value, std::int32_t bound1, std::int32_t bound2) noexcept {
    return bound1 <= bound2 ? value >= bound1 && value <= bound2 : value >= bound2 && value <= bound1;
}
/// Raises dwErrPropertyOutOfRange with the property's name unless InRange.
DRAFTWICK_API void CheckRange(std::int32_t value, std::int32_t bound1, std::int32_t bound2,
                              std::string_view name);

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
