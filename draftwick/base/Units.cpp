#include <draftwick/base/Error.h>
#include <draftwick/base/Units.h>

#include <cmath>
#include <limits>
#include <string>

namespace draftwick {

namespace {

template <class Whole>
Whole Fit(double value) {
    // The comparison is false for NaN, too.
    if (!(value >= std::numeric_limits<Whole>::min() && value <= std::numeric_limits<Whole>::max())) {
        RaiseRuntimeError(dwRunOverflow,
                          "the number does not fit " + std::to_string(8 * sizeof(Whole)) + " bits");
    }
    return static_cast<Whole>(value);
}

/// Independent of the floating-point rounding mode that the host may have set.
double NearestEven(double value) {
    const double below = std::floor(value);
    const double rest = value - below;
    if (rest > 0.5 || (rest == 0.5 && std::fmod(below, 2.0) != 0.0)) return below + 1.0;
    return below;
}

}  // namespace

std::int32_t RoundHalfEven(double value) { return Fit<std::int32_t>(NearestEven(value)); }
std::int16_t RoundToShort(double value) { return Fit<std::int16_t>(NearestEven(value)); }
std::int32_t RoundDown(double value) { return Fit<std::int32_t>(std::floor(value)); }
std::int16_t ToShort(std::int32_t value) { return Fit<std::int16_t>(value); }

std::int32_t ToTwips(double value, dwScaleMode scale) {
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
    if (!InRange(value, bound1, bound2)) RaiseError(dwErrPropertyOutOfRange, {std::string{name}});
}

double TwipsToInches(std::int32_t twips) noexcept { return twips / 1440.0; }
std::int32_t InchesToHimetric(double inches) { return RoundHalfEven(inches * 2540.0); }
std::int32_t TwipsToHimetric(std::int32_t twips) { return InchesToHimetric(TwipsToInches(twips)); }
std::int32_t HimetricToPixels(std::int32_t himetric, double twipsPerPixel) {
    return RoundDown(himetric / 2540.0 * 1440.0 / twipsPerPixel);
}

}  // namespace draftwick
