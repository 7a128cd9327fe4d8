#pragma once

#include <draftwick/model/Object.h>

namespace draftwick {

/// Which way the lines of a text box run. In the classic spelling both vertical directions are written with
/// the same number.
enum dwShapeTextFlow : std::int32_t { dwSTFHorizontal = 1, dwSTFTopToBottom = 2, dwSTFBottomToTop = 3 };

/// The text box of a shape: its margins and direction. Refuses once the shape is written ("Shape"). Lengths are 16
/// bits in twips.
class DRAFTWICK_API ShapeTextFormat final : public detail::Part {
public:
    struct Values {
        rule::Length spacingTop{72};
        rule::Length spacingBottom{72};
        rule::Length spacingLeft{144};
        rule::Length spacingRight{144};
        dwShapeTextFlow flow = dwSTFHorizontal;
    };

    using Part::Part;

    /// From the edge of the shape to its text. Default 72 twips above and below, 144 on the left and on the right.
    double SpacingTop() const { return Read(values_.spacingTop); }
    void SetSpacingTop(Measure length) { Change(values_.spacingTop, length); }
    double SpacingBottom() const { return Read(values_.spacingBottom); }
    void SetSpacingBottom(Measure length) { Change(values_.spacingBottom, length); }
    double SpacingLeft() const { return Read(values_.spacingLeft); }
    void SetSpacingLeft(Measure length) { Change(values_.spacingLeft, length); }
    double SpacingRight() const { return Read(values_.spacingRight); }
    void SetSpacingRight(Measure length) { Change(values_.spacingRight, length); }

    /// Default dwSTFHorizontal. Not checked: a value outside of the enumeration is written as none.
    dwShapeTextFlow Flow() const { return values_.flow; }
    void SetFlow(dwShapeTextFlow flow) { Change(values_.flow, flow); }

    static const Class& Describe();
    const Class& Description() const override { return Describe(); }

private:
    friend struct detail::Access;

    Values values_;
};

}  // namespace draftwick
