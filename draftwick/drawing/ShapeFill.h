#pragma once

#include <draftwick/model/Object.h>

#include <memory>
#include <string>
#include <string_view>

namespace draftwick {

namespace detail {
class OpenPicture;
}

/// How the inside of a shape is painted.
enum dwShapeFillStyle : std::int32_t {
    dwSFSNone = 1,
    dwSFSSolid = 2,
    dwSFSPattern = 3,     ///< Picture in the two colours, side by side
    dwSFSPicTile = 4,     ///< Picture, side by side
    dwSFSPicStretch = 5,  ///< Picture, as large as the shape
    dwSFSShade = 6,       ///< from one colour to the other along a line
    dwSFSShadeRect = 7,   ///< from one colour to the other around a rectangle
};

/// The inside of a shape. Refuses once the shape is written ("Shape"). Colours have red in the lowest byte, then
/// green, then blue. Percentages go from 0 to 100, which is not checked.
class DRAFTWICK_API ShapeFill final : public detail::Part {
public:
    struct Values {
        rule::Choice<"ShapeFill.Style", dwSFSNone, dwSFSShadeRect> style{dwSFSNone};
        std::int32_t color = 0;
        rule::Percent opacity{100};
        std::int32_t backColor = 0;
        rule::Percent backOpacity{100};
        rule::Fixed shadeAngle{0};
        bool shadeFocus = false;
        rule::FarPercent shadeToTop{0};
        rule::FarPercent shadeToLeft{0};
        rule::Percent shadeToRight{0};
        rule::Percent shadeToBottom{0};
        std::string shadeArray;
        std::string picture;
        std::shared_ptr<const detail::OpenPicture> pictureData{};
    };

    using Part::Part;

    /// Default dwSFSNone: nothing is painted and none of the other settings is written.
    dwShapeFillStyle Style() const { return values_.style; }
    void SetStyle(dwShapeFillStyle style) { Change(values_.style, style); }

    /// The colour of a solid fill, and the first one of a pattern or shade. Default black.
    std::int32_t Color() const { return values_.color; }
    void SetColor(std::int32_t color) { Change(values_.color, color); }
    /// Percent; 100 (default) lets nothing shine through. Error 6, for every percentage and angle, when it is not
    /// finite or does not fit 32 bits as a number of 65536ths.
    double Opacity() const { return values_.opacity; }
    void SetOpacity(double percent) { Change(values_.opacity, percent); }

    /// The second colour of a pattern or shade. Default black.
    std::int32_t BackColor() const { return values_.backColor; }
    void SetBackColor(std::int32_t color) { Change(values_.backColor, color); }
    /// Percent. Default 100.
    double BackOpacity() const { return values_.backOpacity; }
    void SetBackOpacity(double percent) { Change(values_.backOpacity, percent); }

    /// The direction of dwSFSShade in degrees. Default 0.
    double ShadeAngle() const { return values_.shadeAngle; }
    void SetShadeAngle(double degrees) { Change(values_.shadeAngle, degrees); }
    /// dwSFSShade reaches the second colour in the middle and goes back to the first. Default false.
    bool ShadeFocus() const { return values_.shadeFocus; }
    void SetShadeFocus(bool on) { Change(values_.shadeFocus, on); }

    /// The rectangle in the middle of dwSFSShadeRect: percent of the shape's height and width. Default 0. Top and left
    /// are written as their distance from 100, right and bottom as given.
    double ShadeToTop() const { return values_.shadeToTop; }
    void SetShadeToTop(double percent) { Change(values_.shadeToTop, percent); }
    double ShadeToLeft() const { return values_.shadeToLeft; }
    void SetShadeToLeft(double percent) { Change(values_.shadeToLeft, percent); }
    double ShadeToRight() const { return values_.shadeToRight; }
    void SetShadeToRight(double percent) { Change(values_.shadeToRight, percent); }
    double ShadeToBottom() const { return values_.shadeToBottom; }
    void SetShadeToBottom(double percent) { Change(values_.shadeToBottom, percent); }

    /// The colours of a shade of more than two: whole numbers separated by commas, colour and position in percent
    /// by turns, "255,0,65535,40,16711680,100". Blanks around a number do not count. Empty (default) for none.
    /// Error 5 for anything else; error 6 for a position that does not fit 32 bits as a fraction of 65536.
    const std::string& ShadeArray() const { return values_.shadeArray; }
    void SetShadeArray(std::string_view colors);

    /// The file of the picture or pattern, or of the picture that a picture frame shows: JPEG, PNG, GIF, BMP, EMF or
    /// WMF, told by its first bytes, else by its extension. In the classic spelling the extension alone tells, in small
    /// letters: ".jpg", ".jpeg", ".gif", ".bmp", ".emf" or ".wmf". Empty (default) for none. It is looked up when the
    /// shape is written, see Shape.
    const std::string& Picture() const { return values_.picture; }
    void SetPicture(std::string_view fileName);
    /// The bytes of such a file, in place of Picture: what they are is told by the first of them. Empty for none. Read at
    /// once: dwErrUnsupportedFileType when they begin as no picture does, error 481 when they are damaged.
    void SetPictureData(std::string_view bytes);

    static const Class& Describe();
    const Class& Description() const override { return Describe(); }

private:
    friend struct detail::Access;
    friend class Shape;

    Values values_;
};

}  // namespace draftwick
