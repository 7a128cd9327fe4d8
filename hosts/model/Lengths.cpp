#include <hosts/model/Lengths.h>

#include <algorithm>
#include <charconv>
#include <string>

namespace draftwick::hosts {

namespace {

struct Unit {
    std::string_view name;
    double inches;
};
constexpr Unit Units[] = {{"in", 1},        {"\"", 1},       {"cm", 1 / 2.54},   {"mm", 1 / 25.4},
                          {"pt", 1.0 / 72}, {"pc", 1.0 / 6}, {"tw", 1.0 / 1440}, {"twips", 1.0 / 1440}};
constexpr std::int32_t TwipsOfInch = 1440;

[[noreturn]] void Refuse(std::string_view text, const char* wanted) {
    detail::RaiseRuntimeError(dwRunTypeMismatch, "'" + std::string{text} + "' is no " + wanted);
}

}  // namespace

double LengthFrom(std::string_view text, const Object& object) {
    double number = 0;
    const auto read = std::from_chars(text.data(), text.data() + text.size(), number);
    std::string_view name = text.substr(static_cast<std::size_t>(read.ptr - text.data()));
    name.remove_prefix(std::min(name.find_first_not_of(' '), name.size()));
    for (const Unit& unit : Units) {
        if (read.ec != std::errc{} || unit.name != name) continue;
        const auto document = object.Document();
        if (document == nullptr) detail::RaiseRuntimeError(dwRunObjectGone);
        return number * unit.inches * detail::FromTwips(TwipsOfInch, document->ScaleMode());
    }
    Refuse(text, "length; write a number and one of in, cm, mm, pt, pc, tw, as in '2.5cm'");
}

std::int32_t ColorFrom(std::string_view text) {
    std::uint32_t rgb = 0;
    const auto digits = text.substr(std::min<std::size_t>(text.size(), 1));
    const auto read = std::from_chars(digits.data(), digits.data() + digits.size(), rgb, 16);
    const bool isWhole =
        text.starts_with('#') && read.ec == std::errc{} && read.ptr == digits.data() + digits.size();
    if (!isWhole || (digits.size() != 6 && digits.size() != 3))
        Refuse(text,
               "colour; write '#' and two hexadecimal digits each for red, green and blue, as in '#ff8000'");
    // "#f80" is "#ff8800".
    if (digits.size() == 3) rgb = (rgb >> 8 & 15) * 0x110000 | (rgb >> 4 & 15) * 0x1100 | (rgb & 15) * 0x11;
    return static_cast<std::int32_t>((rgb & 0xff) << 16 | (rgb & 0xff00) | rgb >> 16);
}

}  // namespace draftwick::hosts
