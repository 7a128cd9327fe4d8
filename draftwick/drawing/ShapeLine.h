#pragma once

#include <draftwick/model/Object.h>

#include <string>
#include <string_view>

namespace draftwick {

/// The outline of a shape. All but the first two consist of several lines.
enum dwShapeLineStyle : std::int32_t {
    dwSLSNone = 1,
    dwSLSSingle = 2,
    dwSLSDouble = 3,
    dwSLSThinThick = 4,
    dwSLSThickThin = 5,
    dwSLSThinThickThin = 6,
};
/// What an outline is painted with.
enum dwShapeLineTexture : std::int32_t {
    dwSLTNone = 1,  ///< Color
    dwSLTPattern = 2,
    dwSLTPicture = 3,
};
/// What an outline is broken into.
enum dwShapeLineDash : std::int32_t {
    dwSLDSolid = 1,
    dwSLDDashWin = 2,  ///< the dashes and dots of system pens
    dwSLDDotWin = 3,
    dwSLDDashDotWin = 4,
    dwSLDDashDotDotWin = 5,
    dwSLDDot = 6,
    dwSLDDash = 7,
    dwSLDLongDash = 8,
    dwSLDDashDot = 9,
    dwSLDLongDashDot = 10,
    dwSLDLongDashDotDot = 11,
};
/// What stands at the end of a line.
enum dwShapeLineArrow : std::int32_t {
    dwSLANone = 1,
    dwSLAArrow = 2,
    dwSLAStealth = 3,
    dwSLADiamond = 4,
    dwSLAOval = 5,
    dwSLAOpen = 6,
};
/// How wide and how long an arrow is against the width of its line.
enum dwShapeLineArrowWidth : std::int32_t { dwSLAWNarrow = 1, dwSLAWMedium = 2, dwSLAWWide = 3 };
/// As dwShapeLineArrowWidth.
enum dwShapeLineArrowLength : std::int32_t { dwSLALShort = 1, dwSLALMedium = 2, dwSLALLong = 3 };

/// The outline of a shape. Refuses once the shape is written ("Shape"). Colours have red in the lowest byte, then
/// green, then blue.
class DRAFTWICK_API ShapeLine final : public detail::Part {
public:
    /// Two numbers more than there are names for: readers may know them.
    static constexpr dwShapeLineArrow LastArrow{8};

    struct Values {
        rule::Choice<"ShapeLine.Style", dwSLSNone, dwSLSThinThickThin> style{dwSLSSingle};
        rule::Choice<"ShapeLine.Texture", dwSLTNone, dwSLTPicture> texture{dwSLTNone};
        rule::Choice<"ShapeLine.Dash", dwSLDSolid, dwSLDLongDashDotDot> dash{dwSLDSolid};
        std::int32_t color = 0;
        std::int32_t backColor = 0;
        rule::PointsInEmu width{1};
        rule::Choice<"ShapeLine.StartArrow", dwSLANone, LastArrow> startArrow{dwSLANone};
        rule::Choice<"ShapeLine.EndArrow", dwSLANone, LastArrow> endArrow{dwSLANone};
        rule::Choice<"ShapeLine.StartArrowWidth", dwSLAWNarrow, dwSLAWWide> startArrowWidth{dwSLAWMedium};
        rule::Choice<"ShapeLine.EndArrowWidth", dwSLAWNarrow, dwSLAWWide> endArrowWidth{dwSLAWMedium};
        rule::Choice<"ShapeLine.StartArrowLength", dwSLALShort, dwSLALLong> startArrowLength{dwSLALMedium};
        rule::Choice<"ShapeLine.EndArrowLength", dwSLALShort, dwSLALLong> endArrowLength{dwSLALMedium};
        std::string picture;
    };

    using Part::Part;

    /// Default dwSLSSingle. dwSLSNone: none of the other settings is written, in the classic spelling nothing at all:
    /// what a reader then draws is the reader's choice.
    dwShapeLineStyle Style() const { return values_.style; }
    void SetStyle(dwShapeLineStyle style) { Change(values_.style, style); }
    /// Default dwSLTNone.
    dwShapeLineTexture Texture() const { return values_.texture; }
    void SetTexture(dwShapeLineTexture texture) { Change(values_.texture, texture); }
    /// Default dwSLDSolid.
    dwShapeLineDash Dash() const { return values_.dash; }
    void SetDash(dwShapeLineDash dash) { Change(values_.dash, dash); }

    /// The colour of the line, and the first one of a pattern. Default black.
    std::int32_t Color() const { return values_.color; }
    void SetColor(std::int32_t color) { Change(values_.color, color); }
    /// The second colour of a pattern. Default black.
    std::int32_t BackColor() const { return values_.backColor; }
    void SetBackColor(std::int32_t color) { Change(values_.backColor, color); }

    /// Points. Default 1. Rounded to a twentieth, ties to even, when it is written. Error 6 when it is not finite or
    /// does not fit 32 bits in English Metric Units (12700 to the point).
    double Width() const { return values_.width; }
    void SetWidth(double points) { Change(values_.width, points); }

    /// Default dwSLANone: the arrow's width and length are not written.
    dwShapeLineArrow StartArrow() const { return values_.startArrow; }
    void SetStartArrow(dwShapeLineArrow arrow) { Change(values_.startArrow, arrow); }
    dwShapeLineArrow EndArrow() const { return values_.endArrow; }
    void SetEndArrow(dwShapeLineArrow arrow) { Change(values_.endArrow, arrow); }
    /// Default dwSLAWMedium.
    dwShapeLineArrowWidth StartArrowWidth() const { return values_.startArrowWidth; }
    void SetStartArrowWidth(dwShapeLineArrowWidth width) { Change(values_.startArrowWidth, width); }
    dwShapeLineArrowWidth EndArrowWidth() const { return values_.endArrowWidth; }
    void SetEndArrowWidth(dwShapeLineArrowWidth width) { Change(values_.endArrowWidth, width); }
    /// Default dwSLALMedium.
    dwShapeLineArrowLength StartArrowLength() const { return values_.startArrowLength; }
    void SetStartArrowLength(dwShapeLineArrowLength length) { Change(values_.startArrowLength, length); }
    dwShapeLineArrowLength EndArrowLength() const { return values_.endArrowLength; }
    void SetEndArrowLength(dwShapeLineArrowLength length) { Change(values_.endArrowLength, length); }

    /// The file of the picture or pattern; as ShapeFill::Picture.
    const std::string& Picture() const { return values_.picture; }
    void SetPicture(std::string_view fileName);

    static const Class& Describe();
    const Class& Description() const override { return Describe(); }

private:
    friend struct detail::Access;

    Values values_;
};

}  // namespace draftwick
