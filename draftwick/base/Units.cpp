#include <draftwick/base/Error.h>
#include <draftwick/base/Units.h>

#include <cmath>
#include <limits>
#include <string>

namespace draftwick::detail {

namespace {

template <class Whole>
Whole Fit(std::int64_t value) {
    if (value < std::numeric_limits<Whole>::min() || value > std::numeric_limits<Whole>::max()) {
        RaiseRuntimeError(dwRunOverflow,
                          "the number does not fit " + std::to_string(8 * sizeof(Whole)) + " bits",
                          "give a number from " + std::to_string(std::numeric_limits<Whole>::min()) + " to "
                              + std::to_string(std::numeric_limits<Whole>::max()));
    }
    return static_cast<Whole>(value);
}

/// In whole numbers: the library's functions are calls, and depend on the rounding mode that the host may have set.
/// What no number of 32 bits is near to, and NaN, gives a number that does not fit.
std::int64_t Floor(double value) {
    if (!(std::abs(value) < 1e15)) return std::int64_t{1} << 62;
    const auto whole = static_cast<std::int64_t>(value);
    return static_cast<double>(whole) > value ? whole - 1 : whole;
}

std::int64_t NearestEven(double value) {
    const std::int64_t below = Floor(value);
    const double rest = value - static_cast<double>(below);
    return rest > 0.5 || (rest == 0.5 && below % 2 != 0) ? below + 1 : below;
}

}  // namespace

std::int32_t RoundHalfEven(double value) { return Fit<std::int32_t>(NearestEven(value)); }
std::int16_t RoundToShort(double value) { return Fit<std::int16_t>(NearestEven(value)); }
std::int32_t RoundDown(double value) { return Fit<std::int32_t>(Floor(value)); }
std::int16_t ToShort(std::int32_t value) { return Fit<std::int16_t>(value); }

std::int32_t ToTwips(Measure length, dwScaleMode scale) {
    const double value = length.Value();
    if (length.TwipsPerUnit() != 0) return RoundHalfEven(value * length.TwipsPerUnit());
    switch (scale) {
    case dwInches: return RoundHalfEven(value * 1440.0);
    case dwTwips: return RoundHalfEven(value);
    case dwPoints: return RoundHalfEven(value * 20.0);
    }
    return 0;
}

double FromTwips(std::int32_t twips, dwScaleMode scale) noexcept {
    switch (scale) {
    case dwInches: return twips / 1440.0;
    case dwTwips: return twips;
    case dwPoints: return twips / 20.0;
    }
    return 0;
}

void CheckRange(std::int32_t value, std::int32_t bound1, std::int32_t bound2, std::string_view name) {
    if (InRange(value, bound1, bound2)) return;
    RaiseError(dwErrPropertyOutOfRange, {std::string{name}},
               std::string{name} + " " + std::to_string(value) + ": give " + std::to_string(bound1) + " to "
                   + std::to_string(bound2));
}

void CheckByte(std::int32_t value) {
    if (InRange(value, 0, 255)) return;
    RaiseRuntimeError(dwRunOverflow, "the number does not fit a byte",
                      std::to_string(value) + ": give a number from 0 to 255");
}

std::int32_t PointsToTwips(double points) { return RoundDown(points * 20); }

std::int32_t PointsToSignedTwips(double points) {
    RoundHalfEven(points * -20);
    return RoundHalfEven(points * 20);
}

std::int32_t PointsToHalfPoints(double points) { return RoundDown(points * 2); }
std::int32_t LinesToParts(double lines) { return RoundHalfEven(lines * 240); }

double ToFixedPoint(double value) {
    RoundHalfEven(value * 65536);
    return value * 65536;
}

double PercentToFixedPoint(double percent) { return ToFixedPoint(percent / 100); }
double PercentFromFarEdge(double percent) { return PercentToFixedPoint(std::abs(percent - 100)); }
std::int32_t TwipsToEmu(std::int32_t twips) { return RoundHalfEven(twips * 635.0); }
std::int32_t PointsToEmu(double points) { return TwipsToEmu(RoundHalfEven(points * 20)); }

double TwipsToInches(std::int32_t twips) noexcept { return twips / 1440.0; }
std::int32_t InchesToHimetric(double inches) { return RoundHalfEven(inches * 2540.0); }
std::int32_t TwipsToHimetric(std::int32_t twips) { return InchesToHimetric(TwipsToInches(twips)); }
std::int32_t HimetricToPixels(std::int32_t himetric, double twipsPerPixel) {
    return RoundDown(himetric / 2540.0 * 1440.0 / twipsPerPixel);
}

}  // namespace draftwick::detail
