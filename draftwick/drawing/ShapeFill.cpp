#include <draftwick/drawing/ShapeFill.h>
#include <draftwick/model/Class.h>

#include <charconv>

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
        RaiseRuntimeError(dwRunInvalidCall, "'" + std::string{digits} + "' is no whole number of 32 bits");
    }
    return number;
}

}  // namespace

std::vector<ShapeFill::ShadeColor> ShapeFill::ReadShadeArray(std::string_view colors) {
    std::vector<std::int32_t> numbers;
    for (std::size_t at = 0; at <= colors.size() && !colors.empty();) {
        const std::size_t comma = std::min(colors.find(',', at), colors.size());
        numbers.push_back(ReadNumber(colors.substr(at, comma - at)));
        at = comma + 1;
    }
    if (numbers.size() % 2 != 0) {
        RaiseRuntimeError(dwRunInvalidCall, "the last colour of the shade has no position");
    }
    std::vector<ShadeColor> result;
    for (std::size_t i = 0; i < numbers.size(); i += 2) {
        result.push_back({numbers[i], RoundDown(numbers[i + 1] / 100.0 * 65536)});
    }
    return result;
}

void ShapeFill::SetShadeArray(std::string_view colors) {
    OpenForChange();
    ReadShadeArray(colors);
    values_.shadeArray = colors;
}

// File names are the system's bytes, not necessarily UTF-8.
void ShapeFill::SetPicture(std::string_view fileName) {
    OpenForChange();
    values_.picture = fileName;
}

const Class& ShapeFill::Describe() {
    using F = ShapeFill;
    using V = Values;
    static const Class description{
        "ShapeFill",
        "{974492BD-BE38-4507-AC7E-F75E900C24E0}",
        "{2AE7C94B-F65B-48FD-A597-29D688440039}",
        {
            PropertyOf<&F::Style, &F::SetStyle, &V::style>("Style"),
            PropertyOf<&F::Color, &F::SetColor, &V::color>("Color"),
            PropertyOf<&F::Opacity, &F::SetOpacity, &V::opacity>("Opacity"),
            PropertyOf<&F::BackColor, &F::SetBackColor, &V::backColor>("BackColor"),
            PropertyOf<&F::BackOpacity, &F::SetBackOpacity, &V::backOpacity>("BackOpacity"),
            PropertyOf<&F::ShadeAngle, &F::SetShadeAngle, &V::shadeAngle>("ShadeAngle"),
            PropertyOf<&F::ShadeFocus, &F::SetShadeFocus, &V::shadeFocus>("ShadeFocus"),
            PropertyOf<&F::ShadeToTop, &F::SetShadeToTop, &V::shadeToTop>("ShadeToTop"),
            PropertyOf<&F::ShadeToLeft, &F::SetShadeToLeft, &V::shadeToLeft>("ShadeToLeft"),
            PropertyOf<&F::ShadeToRight, &F::SetShadeToRight, &V::shadeToRight>("ShadeToRight"),
            PropertyOf<&F::ShadeToBottom, &F::SetShadeToBottom, &V::shadeToBottom>("ShadeToBottom"),
            PropertyOf<&F::ShadeArray, &F::SetShadeArray>("ShadeArray"),
            PropertyOf<&F::Picture, &F::SetPicture, &V::picture>("Picture"),
        },
        {}};
    return description;
}

}  // namespace draftwick
