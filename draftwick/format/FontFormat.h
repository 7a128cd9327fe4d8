#pragma once

#include <draftwick/base/Object.h>

namespace draftwick {

/// Lines under text (RTF \ul and its siblings).
enum dwUnderlineStyle : std::int32_t {
    dwUnderlineNone = 1,
    dwUnderlineSingle = 2,
    dwUnderlineDotted = 3,
    dwUnderlineDouble = 4,
    dwUnderlineWord = 5,  ///< words only, not the spaces between them
    dwUnderlineThick = 6,
    dwUnderlineDashDot = 7,
    dwUnderlineDashDotDot = 8,
    dwUnderlineWave = 9,
};

/// Moving effects on text (RTF \animtext).
enum dwTextAnimation : std::int32_t {
    dwTxAnimNone = 1,
    dwTxAnimBlinking = 2,
    dwTxAnimLasVegas = 3,
    dwTxAnimMarqueeBlack = 4,
    dwTxAnimMarqueeRed = 5,
    dwTxAnimShimmer = 6,
    dwTxAnimSparkle = 7,
};

/// The look of characters: of a run of text, of a paragraph's runs unless they say otherwise, of a style, of a field
/// or of the number of a list level. Sizes and positions are in points whatever the document's ScaleMode. Refuses
/// when what it belongs to refuses.
class FontFormat final : public Part {
public:
    struct Values {
        bool bold = false;
        bool allCaps = false;
        bool subscript = false;
        bool superscript = false;
        bool italic = false;
        bool outline = false;
        bool smallCaps = false;
        bool shadow = false;
        bool strikethrough = false;
        bool strikethroughDouble = false;
        bool hidden = false;
        bool emboss = false;
        bool engrave = false;
        Rounded subscriptPosition{3};
        Rounded superscriptPosition{3};
        Real<2> size{12};
        Choice<"FontFormat.Underline", dwUnderlineNone, dwUnderlineWave> underline{dwUnderlineNone};
        Choice<"FontFormat.Animation", dwTxAnimNone, dwTxAnimSparkle> animation{dwTxAnimNone};
        std::int32_t color = 0;
        std::int32_t font = -1;  // the position in the document's fonts, or WritingContext::NoFont
    };

    /// Starts from the defaults and the document's DefaultFontName.
    explicit FontFormat(Object& parent);
    /// Starts from the values of another one.
    FontFormat(Object& parent, const Values& values) : Part(parent), values_(values) {}

    bool Bold() const { return values_.bold; }
    void SetBold(bool on) { Change(values_.bold, on); }

    bool AllCaps() const { return values_.allCaps; }
    void SetAllCaps(bool on) { Change(values_.allCaps, on); }

    /// Setting it to true ends Superscript; the other way round it does not.
    bool Subscript() const { return values_.subscript; }
    void SetSubscript(bool on);

    bool Superscript() const { return values_.superscript; }
    void SetSuperscript(bool on) { Change(values_.superscript, on); }

    /// How far subscript stands below the line: points, rounded to a whole number, ties to even. Default 3. Error 6
    /// outside of 16 bits.
    double SubscriptPosition() const { return values_.subscriptPosition; }
    void SetSubscriptPosition(double points) { Change(values_.subscriptPosition, points); }

    /// How far superscript stands above the line, likewise. Default 3.
    double SuperscriptPosition() const { return values_.superscriptPosition; }
    void SetSuperscriptPosition(double points) { Change(values_.superscriptPosition, points); }

    /// Points; written in half-points, rounded down. Default 12.
    double Size() const { return values_.size; }
    void SetSize(double points) { Change(values_.size, points); }

    /// The name of a font of the document, or empty for no font. It takes the spelling that the font was added
    /// with; dwErrItemNotFound when there is no such font. Default: the document's DefaultFontName when the object
    /// was created.
    std::string FontName() const;
    void SetFontName(std::string_view name);

    bool Italic() const { return values_.italic; }
    void SetItalic(bool on) { Change(values_.italic, on); }

    bool Outline() const { return values_.outline; }
    void SetOutline(bool on) { Change(values_.outline, on); }

    bool SmallCaps() const { return values_.smallCaps; }
    void SetSmallCaps(bool on) { Change(values_.smallCaps, on); }

    bool Shadow() const { return values_.shadow; }
    void SetShadow(bool on) { Change(values_.shadow, on); }

    bool Strikethrough() const { return values_.strikethrough; }
    void SetStrikethrough(bool on) { Change(values_.strikethrough, on); }

    bool StrikethroughDouble() const { return values_.strikethroughDouble; }
    void SetStrikethroughDouble(bool on) { Change(values_.strikethroughDouble, on); }

    /// Default dwUnderlineNone.
    dwUnderlineStyle Underline() const { return values_.underline; }
    void SetUnderline(dwUnderlineStyle style) { Change(values_.underline, style); }

    bool Hidden() const { return values_.hidden; }
    void SetHidden(bool on) { Change(values_.hidden, on); }

    /// Red in the lowest byte, then green, then blue. Default black.
    std::int32_t Color() const { return values_.color; }
    void SetColor(std::int32_t color) { Change(values_.color, color); }

    /// Default dwTxAnimNone.
    dwTextAnimation Animation() const { return values_.animation; }
    void SetAnimation(dwTextAnimation animation) { Change(values_.animation, animation); }

    /// Setting one of these two to true ends the other.
    bool Emboss() const { return values_.emboss; }
    void SetEmboss(bool on);
    bool Engrave() const { return values_.engrave; }
    void SetEngrave(bool on);

    static const Class& Describe();
    const Class& Description() const override { return Describe(); }

    const Values& Stored() const noexcept { return values_; }
    void CopyFrom(const FontFormat& other) { values_ = other.values_; }

private:
    Values values_;
};

}  // namespace draftwick
