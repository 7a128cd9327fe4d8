#include <draftwick/drawing/ShapeWordArt.h>
#include <draftwick/format/Fonts.h>
#include <draftwick/model/internal/ClassTable.h>
#include <draftwick/model/internal/Session.h>

namespace draftwick {

ShapeWordArt::ShapeWordArt(Owner owner) : Part(owner) { values_.font = Session().settings.defaultFont; }

std::string ShapeWordArt::FontName() const { return values_.font.Name(*Session().collections->fonts); }

void ShapeWordArt::SetFontName(std::string_view name) {
    OpenForChange();
    values_.font.Set(*Session().collections->fonts, name);
}

const Class& ShapeWordArt::Describe() {
    using S = ShapeWordArt;
    using V = Values;
    static const Class description{
        "ShapeWordArt",
        "{25790012-8CED-4837-82D2-B87AFB96D410}",
        "{89CFEB5F-3689-4A0D-84B4-ADE4CCCA0D06}",
        {
            PropertyOf<&S::Text, &S::SetText, &V::text>("Text"),
            PropertyOf<&S::FontName, &S::SetFontName>("FontName"),
            PropertyOf<&S::Size, &S::SetSize, &V::size>("Size"),
            PropertyOf<&S::Align, &S::SetAlign, &V::align>("Align"),
            PropertyOf<&S::Spacing, &S::SetSpacing, &V::spacing>("Spacing"),
            PropertyOf<&S::ReverseRows, &S::SetReverseRows, &V::reverseRows>("ReverseRows"),
            PropertyOf<&S::Vertical, &S::SetVertical, &V::vertical>("Vertical"),
            PropertyOf<&S::Kern, &S::SetKern, &V::kern>("Kern"),
            PropertyOf<&S::Tight, &S::SetTight, &V::tight>("Tight"),
            PropertyOf<&S::Stretch, &S::SetStretch, &V::stretch>("Stretch"),
            PropertyOf<&S::ShrinkFit, &S::SetShrinkFit, &V::shrinkFit>("ShrinkFit"),
            PropertyOf<&S::BestFit, &S::SetBestFit, &V::bestFit>("BestFit"),
            PropertyOf<&S::Normalize, &S::SetNormalize, &V::normalize>("Normalize"),
            PropertyOf<&S::Bold, &S::SetBold, &V::bold>("Bold"),
            PropertyOf<&S::Italic, &S::SetItalic, &V::italic>("Italic"),
            PropertyOf<&S::Underline, &S::SetUnderline, &V::underline>("Underline"),
            PropertyOf<&S::Shadow, &S::SetShadow, &V::shadow>("Shadow"),
            PropertyOf<&S::SmallCaps, &S::SetSmallCaps, &V::smallCaps>("SmallCaps"),
            PropertyOf<&S::Strikethrough, &S::SetStrikethrough, &V::strikethrough>("Strikethrough"),
        },
        {}};
    return description;
}

}  // namespace draftwick
