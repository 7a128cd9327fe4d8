#include <draftwick/drawing/ShapeLine.h>
#include <draftwick/model/internal/ClassTable.h>

namespace draftwick {

// File names are the system's bytes, not necessarily UTF-8.
void ShapeLine::SetPicture(std::string_view fileName) {
    OpenForChange();
    values_.picture = fileName;
}

const Class& ShapeLine::Describe() {
    using L = ShapeLine;
    using V = Values;
    static const Class description{
        "ShapeLine",
        "{14BA5D3F-4DB8-4A15-825B-5A553A7FB1C8}",
        "{D96C5D5C-E95B-4E40-A26E-E2E1555D4EDA}",
        {
            PropertyOf<&L::Style, &L::SetStyle, &V::style>("Style"),
            PropertyOf<&L::Texture, &L::SetTexture, &V::texture>("Texture"),
            PropertyOf<&L::Dash, &L::SetDash, &V::dash>("Dash"),
            PropertyOf<&L::Color, &L::SetColor, &V::color>("Color").As(Kind::Color),
            PropertyOf<&L::BackColor, &L::SetBackColor, &V::backColor>("BackColor").As(Kind::Color),
            PropertyOf<&L::Width, &L::SetWidth, &V::width>("Width"),
            PropertyOf<&L::StartArrow, &L::SetStartArrow, &V::startArrow>("StartArrow"),
            PropertyOf<&L::EndArrow, &L::SetEndArrow, &V::endArrow>("EndArrow"),
            PropertyOf<&L::StartArrowWidth, &L::SetStartArrowWidth, &V::startArrowWidth>("StartArrowWidth"),
            PropertyOf<&L::EndArrowWidth, &L::SetEndArrowWidth, &V::endArrowWidth>("EndArrowWidth"),
            PropertyOf<&L::StartArrowLength, &L::SetStartArrowLength, &V::startArrowLength>(
                "StartArrowLength"),
            PropertyOf<&L::EndArrowLength, &L::SetEndArrowLength, &V::endArrowLength>("EndArrowLength"),
            PropertyOf<&L::Picture, &L::SetPicture, &V::picture>("Picture").As(Kind::Path),
        },
        {}};
    return description;
}

}  // namespace draftwick
