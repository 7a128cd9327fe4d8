#pragma once

#include <draftwick/model/Object.h>

namespace draftwick {

/// How many shadows a shape throws.
enum dwShapeShadowStyle : std::int32_t {
    dwSSSNone = 1,
    dwSSSSingle = 2,
    dwSSSDouble = 3,  ///< a second shadow on the other side
};

/// The shadow of a shape. Refuses once the shape is written ("Shape"). Colours have red in the lowest byte, then
/// green, then blue; lengths are 16 bits in twips.
class DRAFTWICK_API ShapeShadow final : public detail::Part {
public:
    struct Values {
        dwShapeShadowStyle style = dwSSSNone;
        std::int32_t color = 0;
        std::int32_t color2 = 0;
        rule::Length offsetX{45};
        rule::Length offsetY{45};
        rule::Length offsetX2{-45};
        rule::Length offsetY2{-45};
        rule::Percent opacity{100};
    };

    using Part::Part;

    /// Default dwSSSNone: nothing is written. Not checked: a value outside of the enumeration writes a shadow without
    /// a kind.
    dwShapeShadowStyle Style() const { return values_.style; }
    void SetStyle(dwShapeShadowStyle style) { Change(values_.style, style); }

    /// The colour of the shadow. Default black.
    std::int32_t Color() const { return values_.color; }
    void SetColor(std::int32_t color) { Change(values_.color, color); }
    /// The colour of the second shadow. Default black.
    std::int32_t Color2() const { return values_.color2; }
    void SetColor2(std::int32_t color) { Change(values_.color2, color); }

    /// From the shape to its shadow, to the right and down. Default 45 twips.
    double OffsetX() const { return Read(values_.offsetX); }
    void SetOffsetX(Measure length) { Change(values_.offsetX, length); }
    double OffsetY() const { return Read(values_.offsetY); }
    void SetOffsetY(Measure length) { Change(values_.offsetY, length); }
    /// The same for the second shadow. Default -45 twips.
    double OffsetX2() const { return Read(values_.offsetX2); }
    void SetOffsetX2(Measure length) { Change(values_.offsetX2, length); }
    double OffsetY2() const { return Read(values_.offsetY2); }
    void SetOffsetY2(Measure length) { Change(values_.offsetY2, length); }

    /// Percent from 0 to 100, which is not checked. Default 100. Error 6 when it is not finite or does not fit 32 bits as
    /// a number of 65536ths.
    double Opacity() const { return values_.opacity; }
    void SetOpacity(double percent) { Change(values_.opacity, percent); }

    static const Class& Describe();
    const Class& Description() const override { return Describe(); }

private:
    friend struct detail::Access;

    Values values_;
};

}  // namespace draftwick
