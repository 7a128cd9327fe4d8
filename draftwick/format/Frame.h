#pragma once

#include <draftwick/model/Object.h>

namespace draftwick {

/// What the horizontal place of a frame is measured from (RTF \phpg, \phcol, \phmrg).
enum dwFrameReferenceX : std::int32_t { dwFRXPage = 1, dwFRXColumn = 2, dwFRXMargin = 3 };
/// What the vertical place of a frame is measured from (RTF \pvpg, \pvpara, \pvmrg).
enum dwFrameReferenceY : std::int32_t { dwFRYPage = 1, dwFRYParagraph = 2, dwFRYMargin = 3 };
/// Where a frame stands between the left and the right of its reference.
enum dwFrameAlignX : std::int32_t {
    dwFAXNone = 1,  ///< at Left
    dwFAXLeft = 2,
    dwFAXCenter = 3,
    dwFAXRight = 4,
    dwFAXInside = 5,   ///< next to the binding
    dwFAXOutside = 6,  ///< away from the binding
};
/// Where a frame stands between the top and the bottom of its reference.
enum dwFrameAlignY : std::int32_t {
    dwFAYNone = 1,    ///< at Top
    dwFAYInline = 2,  ///< where its paragraph is
    dwFAYTop = 3,
    dwFAYCenter = 4,
    dwFAYBottom = 5,
    dwFAYInside = 6,
    dwFAYOutside = 7,
};

/// Places a paragraph or a table out of the flow of the text, which runs around it; or makes a paragraph a drop cap.
/// Neighbouring paragraphs with the same frame stand in it together. A frame whose properties all have their
/// defaults is none. Lengths are 16 bits in twips. Refuses when its owner refuses.
class DRAFTWICK_API Frame final : public detail::Part {
public:
    struct Values {
        rule::Choice<"Frame.ReferenceX", dwFRXPage, dwFRXMargin> referenceX{dwFRXColumn};
        rule::Choice<"Frame.ReferenceY", dwFRYPage, dwFRYMargin> referenceY{dwFRYMargin};
        rule::Choice<"Frame.AlignX", dwFAXNone, dwFAXOutside> alignX{dwFAXNone};
        rule::Choice<"Frame.AlignY", dwFAYNone, dwFAYOutside> alignY{dwFAYNone};
        rule::Length left{0};
        rule::Length top{0};
        rule::Length width{0};
        rule::Length height{0};
        rule::Length spacingX{0};
        rule::Length spacingY{0};
        bool heightExactly = false;
        bool lockAnchor = false;
        bool dropCapInMargin = false;
        bool wrap = true;
        rule::Byte<"Frame.DropCapLines", 0, 10> dropCapLines{0};

        bool operator==(const Values&) const = default;
    };

    using Part::Part;

    /// Default dwFRXColumn.
    dwFrameReferenceX ReferenceX() const { return values_.referenceX; }
    void SetReferenceX(dwFrameReferenceX reference) { Change(values_.referenceX, reference); }

    /// Default dwFRYMargin.
    dwFrameReferenceY ReferenceY() const { return values_.referenceY; }
    void SetReferenceY(dwFrameReferenceY reference) { Change(values_.referenceY, reference); }

    /// Default dwFAXNone: Left says where.
    dwFrameAlignX AlignX() const { return values_.alignX; }
    void SetAlignX(dwFrameAlignX align) { Change(values_.alignX, align); }

    /// Default dwFAYNone: Top says where.
    dwFrameAlignY AlignY() const { return values_.alignY; }
    void SetAlignY(dwFrameAlignY align) { Change(values_.alignY, align); }

    /// From the left of the reference, for dwFAXNone. Default 0.
    double Left() const { return Read(values_.left); }
    void SetLeft(Measure length) { Change(values_.left, length); }

    /// From the top of the reference, for dwFAYNone. Default 0.
    double Top() const { return Read(values_.top); }
    void SetTop(Measure length) { Change(values_.top, length); }

    /// Default 0: as wide as its content needs.
    double Width() const { return Read(values_.width); }
    void SetWidth(Measure length) { Change(values_.width, length); }

    /// The least height, or with HeightExactly the height. Default 0: as high as its content.
    double Height() const { return Read(values_.height); }
    void SetHeight(Measure length) { Change(values_.height, length); }

    /// Whether Height is the height of the frame, not the least height. Default false.
    bool HeightExactly() const { return values_.heightExactly; }
    void SetHeightExactly(bool on) { Change(values_.heightExactly, on); }

    /// From the frame to the text around it, left and right. Default 0.
    double SpacingX() const { return Read(values_.spacingX); }
    void SetSpacingX(Measure length) { Change(values_.spacingX, length); }

    /// From the frame to the text around it, above and below. Default 0.
    double SpacingY() const { return Read(values_.spacingY); }
    void SetSpacingY(Measure length) { Change(values_.spacingY, length); }

    /// An editor does not let the frame move to another paragraph. Default false.
    bool LockAnchor() const { return values_.lockAnchor; }
    void SetLockAnchor(bool on) { Change(values_.lockAnchor, on); }

    /// Text stands beside the frame, not only above and below. Default true.
    bool Wrap() const { return values_.wrap; }
    void SetWrap(bool on) { Change(values_.wrap, on); }

    /// The lines of the next paragraph that this one reaches down as a drop cap, 1..10; 0 (default) for no drop cap. A drop
    /// cap has dwFRYParagraph as its ReferenceY and a larger font, which is set as for any paragraph.
    std::int32_t DropCapLines() const { return values_.dropCapLines; }
    void SetDropCapLines(std::int32_t lines) { Change(values_.dropCapLines, lines); }

    /// The drop cap stands in the margin, not in the text. Default false.
    bool DropCapInMargin() const { return values_.dropCapInMargin; }
    void SetDropCapInMargin(bool on) { Change(values_.dropCapInMargin, on); }

    static const Class& Describe();
    const Class& Description() const override { return Describe(); }

private:
    friend struct detail::Access;

    Values values_;
};

}  // namespace draftwick
