#include <draftwick/drawing/ShapeFill.h>
#include <draftwick/drawing/internal/OpenPicture.h>
#include <draftwick/drawing/internal/ShadeArray.h>
#include <draftwick/model/internal/ClassTable.h>
#include <draftwick/model/internal/Session.h>

namespace draftwick {

void ShapeFill::SetShadeArray(std::string_view colors) {
    OpenForChange();
    ReadShadeArray(colors);
    values_.shadeArray = colors;
}

// File names are the system's bytes, not necessarily UTF-8.
void ShapeFill::SetPicture(std::string_view fileName) {
    OpenForChange();
    values_.picture = fileName;
    values_.pictureData.reset();
}

void ShapeFill::SetPictureData(std::string_view bytes) {
    OpenForChange();
    values_.pictureData = bytes.empty() ? nullptr : OpenPicture::FromBytes(Session(), bytes);
    values_.picture.clear();
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
            PropertyOf<&F::Color, &F::SetColor, &V::color>("Color").As(Kind::Color),
            PropertyOf<&F::Opacity, &F::SetOpacity, &V::opacity>("Opacity"),
            PropertyOf<&F::BackColor, &F::SetBackColor, &V::backColor>("BackColor").As(Kind::Color),
            PropertyOf<&F::BackOpacity, &F::SetBackOpacity, &V::backOpacity>("BackOpacity"),
            PropertyOf<&F::ShadeAngle, &F::SetShadeAngle, &V::shadeAngle>("ShadeAngle"),
            PropertyOf<&F::ShadeFocus, &F::SetShadeFocus, &V::shadeFocus>("ShadeFocus"),
            PropertyOf<&F::ShadeToTop, &F::SetShadeToTop, &V::shadeToTop>("ShadeToTop"),
            PropertyOf<&F::ShadeToLeft, &F::SetShadeToLeft, &V::shadeToLeft>("ShadeToLeft"),
            PropertyOf<&F::ShadeToRight, &F::SetShadeToRight, &V::shadeToRight>("ShadeToRight"),
            PropertyOf<&F::ShadeToBottom, &F::SetShadeToBottom, &V::shadeToBottom>("ShadeToBottom"),
            PropertyOf<&F::ShadeArray, &F::SetShadeArray>("ShadeArray"),
            PropertyOf<&F::Picture, &F::SetPicture, &V::picture>("Picture").As(Kind::Path),
            WriteOnlyPropertyOf<&F::SetPictureData>("PictureData").As(Kind::Bytes),
        },
        {}};
    return description;
}

}  // namespace draftwick
