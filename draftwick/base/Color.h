#pragma once

#include <draftwick/base/Error.h>

#include <cstdint>

namespace draftwick {

/// A colour as properties take it, of three numbers from 0 to 255: Rgb(255, 0, 0) is red. Error 6 outside of them.
constexpr std::int32_t Rgb(std::int32_t red, std::int32_t green, std::int32_t blue) {
    if (((red | green | blue) & ~0xFF) != 0) {
        detail::RaiseRuntimeError(dwRunOverflow, "a part of a colour does not fit a byte",
                                  "Rgb: red, green and blue are 0 to 255");
    }
    return red | green << 8 | blue << 16;
}

}  // namespace draftwick
