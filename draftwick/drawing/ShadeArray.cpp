#include <draftwick/base/Error.h>
#include <draftwick/base/Units.h>
#include <draftwick/drawing/internal/ShadeArray.h>

#include <algorithm>
#include <charconv>
#include <string>
#include <system_error>

namespace draftwick {

namespace {

std::int32_t ReadNumber(std::string_view text) {
    constexpr std::string_view Blanks = " \t";
    const std::size_t begin = std::min(text.find_first_not_of(Blanks), text.size());
    const std::size_t end = text.find_last_not_of(Blanks) + 1;
    const std::string_view digits = text.substr(begin, end - begin);
    std::int32_t number = 0;
    const auto [stop, error] = std::from_chars(digits.data(), digits.data() + digits.size(), number);
    if (digits.empty() || error != std::errc() || stop != digits.data() + digits.size()) {
        RaiseRuntimeError(
            dwRunInvalidCall, "'" + std::string{digits} + "' is no whole number of 32 bits",
            "ShapeFill.ShadeArray: give colours and positions in percent by turns, \"255,0,65535,100\"");
    }
    return number;
}

}  // namespace

std::vector<ShadeColor> ReadShadeArray(std::string_view colors) {
    std::vector<std::int32_t> numbers;
    for (std::size_t at = 0; at <= colors.size() && !colors.empty();) {
        const std::size_t comma = std::min(colors.find(',', at), colors.size());
        numbers.push_back(ReadNumber(colors.substr(at, comma - at)));
        at = comma + 1;
    }
    if (numbers.size() % 2 != 0) {
        RaiseRuntimeError(dwRunInvalidCall, "the last colour of the shade has no position",
                          "ShapeFill.ShadeArray: give a position in percent behind each colour");
    }
    std::vector<ShadeColor> result;
    for (std::size_t i = 0; i < numbers.size(); i += 2) {
        result.push_back({numbers[i], RoundDown(numbers[i + 1] / 100.0 * 65536)});
    }
    return result;
}

}  // namespace draftwick
