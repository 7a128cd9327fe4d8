#pragma once

#include <draftwick/model/Collection.h>
#include <draftwick/model/Object.h>

#include <array>

namespace draftwick {

/// The lines that borders of every kind are drawn with (RTF \brdrs to \brdrengrave). Of two or three lines of
/// different weight the outermost is named first; the gap is what stands between them.
enum dwBorderStyle : std::int32_t {
    dwBSNone = 1,
    dwBSSingle = 2,
    dwBSShadow = 3,  ///< a single line that throws a shadow
    dwBSDouble = 4,
    dwBSDot = 5,
    dwBSDash = 6,
    dwBSDashSmall = 7,
    dwBSDashDot = 8,
    dwBSDashDotDot = 9,
    dwBSTriple = 10,
    dwBSThinThickSmallGap = 11,
    dwBSThickThinSmallGap = 12,
    dwBSThinThickThinSmallGap = 13,
    dwBSThinThickMediumGap = 14,
    dwBSThickThinMediumGap = 15,
    dwBSThinThickThinMediumGap = 16,
    dwBSThinThickLargeGap = 17,
    dwBSThickThinLargeGap = 18,
    dwBSThinThickThinLargeGap = 19,
    dwBSWavy = 20,
    dwBSWavyDouble = 21,
    dwBSDashDotStripe = 22,
    dwBSEmboss = 23,
    dwBSEngrave = 24,
};

namespace detail {

/// Error 9 for a side that there is not.
[[noreturn]] DRAFTWICK_API void RaiseNoSide(const Object& borders, std::int32_t side, std::int32_t count);

/// The style of one side of a border.
using BorderStyle = rule::Choice<"Border.Style", dwBSNone, dwBSEngrave>;

/// What borders of all kinds have: a line, its width and its colour. Kinds differ in how they keep the width, and
/// some have more. Refuses when what it belongs to refuses.
template <class BorderValues>
class DRAFTWICK_API Border : public Part {
public:
    using Values = BorderValues;
    using Part::Part;

    /// Default dwBSNone: no border.
    dwBorderStyle Style() const { return values_.style; }
    void SetStyle(dwBorderStyle style) { Change(values_.style, style); }

    /// Points whatever the ScaleMode; written in twips, rounded down (RTF \brdrw). Default 1. Error 6 when the twips
    /// do not fit 32 bits or, of a cell's border, the points 16.
    double Width() const { return values_.width; }
    void SetWidth(double points) { Change(values_.width, points); }

    /// Red in the lowest byte, then green, then blue. Default black.
    std::int32_t Color() const { return values_.color; }
    void SetColor(std::int32_t color) { Change(values_.color, color); }

protected:
    friend struct Access;
    template <class SideBorder, class Side, std::int32_t SideCount>
    friend class BorderCollection;

    Values values_;
};

/// The borders of an object, one for each side. A side is created when it is first read; sides that were never
/// read are never written. Walking over a collection reads all of its sides.
template <class SideBorder, class Side, std::int32_t SideCount>
class DRAFTWICK_API BorderCollection : public Part {
public:
    using Part::Part;

    /// How many sides there are, whether they were read or not.
    std::int32_t Count() const noexcept { return SideCount; }

    /// The border of a side. Error 9 for a side that there is not.
    std::shared_ptr<SideBorder> Items(Side side) {
        if (!InRange(side, 1, SideCount)) RaiseNoSide(*this, side, SideCount);
        return this->Share(Create(side));
    }

    CollectionIterator<BorderCollection> begin() { return {this, 1}; }
    CollectionIterator<BorderCollection> end() { return {this, SideCount + 1}; }

    // The rest is for the library.

    std::shared_ptr<SideBorder> ItemAt(std::int32_t index) { return Items(static_cast<Side>(index)); }

    /// Calls `use` with each side that was created, in the order of the enumeration.
    template <class Use>
    void ForEach(Use&& use) const {
        for (std::int32_t i = 0; i < SideCount; ++i) {
            if (const SideBorder* border = sides_[static_cast<std::size_t>(i)].Find()) {
                use(static_cast<Side>(i + 1), *border);
            }
        }
    }

    /// Takes over the sides that the other one has and leaves the others.
    void CopyFrom(const BorderCollection& other) {
        other.ForEach([&](Side side, const SideBorder& border) { Create(side).values_ = border.values_; });
    }

private:
    SideBorder& Create(Side side) {
        return sides_[static_cast<std::size_t>(side - 1)].Get(WholeAsOwner(), side);
    }

    std::array<Lazy<SideBorder>, static_cast<std::size_t>(SideCount)> sides_;
};

}  // namespace detail

struct DRAFTWICK_API TextBorderValues {
    dwBorderStyle style =
        dwBSNone;  // not checked: a value outside of the enumeration writes a border without a line
    rule::Points width{1};
    std::int32_t color = 0;
};

/// The line around a run of text, the same on all four sides (RTF \chbrdr). Unlike other borders it takes any Style.
/// Refuses when the run or style that it belongs to refuses.
class DRAFTWICK_API TextBorder final : public detail::Border<TextBorderValues> {
public:
    using Border::Border;

    static const Class& Describe();
    const Class& Description() const override { return Describe(); }
};

/// Which side of a paragraph a border stands on, in the order in which they are written.
enum dwParagraphBorder : std::int32_t {
    dwPBorderTop = 1,      ///< RTF \brdrt
    dwPBorderLeft = 2,     ///< RTF \brdrl
    dwPBorderRight = 3,    ///< RTF \brdrr
    dwPBorderBottom = 4,   ///< RTF \brdrb
    dwPBorderBetween = 5,  ///< between this paragraph and the next one with the same borders (RTF \brdrbtw)
    dwPBorderOutside = 6,  ///< the bar beside the paragraph, on the outer side of the page (RTF \brdrbar)
};

struct DRAFTWICK_API ParagraphBorderValues {
    detail::BorderStyle style{dwBSNone};
    rule::Points width{1};
    rule::Points spacing{1};
    std::int32_t color = 0;
};

/// One side of the borders of a paragraph or paragraph style. Refuses when the owner refuses.
class DRAFTWICK_API ParagraphBorder final : public detail::Border<ParagraphBorderValues> {
public:
    ParagraphBorder(detail::Owner owner, dwParagraphBorder side);

    /// From the text to the border, in points as Width (RTF \brsp). Default 1; 4 on the left, on the right and for
    /// the bar.
    double Spacing() const { return values_.spacing; }
    void SetSpacing(double points) { Change(values_.spacing, points); }

    static const Class& Describe();
    const Class& Description() const override { return Describe(); }
};

/// The borders of a paragraph or paragraph style: six sides.
class DRAFTWICK_API ParagraphBorders final
    : public detail::BorderCollection<ParagraphBorder, dwParagraphBorder, 6> {
public:
    using BorderCollection::BorderCollection;
    static const Class& Describe();
    const Class& Description() const override { return Describe(); }
};

}  // namespace draftwick
