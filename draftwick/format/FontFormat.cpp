#include <draftwick/format/FontFormat.h>
#include <draftwick/format/Fonts.h>
#include <draftwick/model/internal/ClassTable.h>
#include <draftwick/model/internal/Session.h>

namespace draftwick {

FontFormat::FontFormat(Owner owner) : Part(owner) { values_.font = Session().settings.defaultFont; }

void FontFormat::SetSubscript(bool on) {
    Change(values_.subscript, on);
    if (on) values_.superscript = false;
}

std::string FontFormat::FontName() const { return values_.font.Name(*Session().collections->fonts); }

void FontFormat::SetFontName(std::string_view name) {
    OpenForChange();
    values_.font.Set(*Session().collections->fonts, name);
}

void FontFormat::SetEmboss(bool on) {
    Change(values_.emboss, on);
    if (on) values_.engrave = false;
}

void FontFormat::SetEngrave(bool on) {
    Change(values_.engrave, on);
    if (on) values_.emboss = false;
}

const Class& FontFormat::Describe() {
    using F = FontFormat;
    using V = Values;
    static const Class description{
        "FontFormat",
        "{90FFA48C-37B0-4C95-859E-8FFA02BDF758}",
        "{BE7A5FE2-13CC-477F-86B6-A739E13D7BDD}",
        {
            PropertyOf<&F::Bold, &F::SetBold, &V::bold>("Bold"),
            PropertyOf<&F::AllCaps, &F::SetAllCaps, &V::allCaps>("AllCaps"),
            PropertyOf<&F::Subscript, &F::SetSubscript, &V::subscript>("Subscript"),
            PropertyOf<&F::Superscript, &F::SetSuperscript, &V::superscript>("Superscript"),
            PropertyOf<&F::SubscriptPosition, &F::SetSubscriptPosition, &V::subscriptPosition>(
                "SubscriptPosition"),
            PropertyOf<&F::SuperscriptPosition, &F::SetSuperscriptPosition, &V::superscriptPosition>(
                "SuperscriptPosition"),
            PropertyOf<&F::Size, &F::SetSize, &V::size>("Size"),
            PropertyOf<&F::FontName, &F::SetFontName>("FontName"),
            PropertyOf<&F::Italic, &F::SetItalic, &V::italic>("Italic"),
            PropertyOf<&F::Outline, &F::SetOutline, &V::outline>("Outline"),
            PropertyOf<&F::SmallCaps, &F::SetSmallCaps, &V::smallCaps>("SmallCaps"),
            PropertyOf<&F::Shadow, &F::SetShadow, &V::shadow>("Shadow"),
            PropertyOf<&F::Strikethrough, &F::SetStrikethrough, &V::strikethrough>("Strikethrough"),
            PropertyOf<&F::StrikethroughDouble, &F::SetStrikethroughDouble, &V::strikethroughDouble>(
                "StrikethroughDouble"),
            PropertyOf<&F::Underline, &F::SetUnderline, &V::underline>("Underline"),
            PropertyOf<&F::Hidden, &F::SetHidden, &V::hidden>("Hidden"),
            PropertyOf<&F::Color, &F::SetColor, &V::color>("Color").As(Kind::Color),
            PropertyOf<&F::Animation, &F::SetAnimation, &V::animation>("Animation"),
            PropertyOf<&F::Emboss, &F::SetEmboss, &V::emboss>("Emboss"),
            PropertyOf<&F::Engrave, &F::SetEngrave, &V::engrave>("Engrave"),
        },
        {}};
    return description;
}

}  // namespace draftwick
