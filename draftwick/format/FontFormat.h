#pragma once

#include <draftwick/model/Object.h>
#include <draftwick/model/Ref.h>

namespace draftwick {

class Fonts;

/// Lines under text (RTF \ulnone, \ul, \uld to \ulwave).
enum dwUnderlineStyle : std::int32_t {
    dwUnderlineNone = 1,
    dwUnderlineSingle = 2,
    dwUnderlineDotted = 3,
    dwUnderlineDouble = 4,
    dwUnderlineWord = 5,  ///< under words, not under the spaces between them
    dwUnderlineThick = 6,
    dwUnderlineDashDot = 7,
    dwUnderlineDashDotDot = 8,
    dwUnderlineWave = 9,
};

/// Moving effects on text (RTF \animtext, which numbers them differently).
enum dwTextAnimation : std::int32_t {
    dwTxAnimNone = 1,
    dwTxAnimBlinking = 2,      ///< the background blinks
    dwTxAnimLasVegas = 3,      ///< lights run around the text
    dwTxAnimMarqueeBlack = 4,  ///< a black dashed line runs around the text
    dwTxAnimMarqueeRed = 5,    ///< a red one
    dwTxAnimShimmer = 6,
    dwTxAnimSparkle = 7,
};

/// The look of characters: of a run of text, of a paragraph's runs unless they say otherwise, of a style, of a field
/// or of the number of a list level. Sizes and positions are in points whatever the document's ScaleMode. What is
/// on or off is off by default. A run's begins as its paragraph's is, all others with the defaults. Refuses when what it
/// belongs to refuses.
class DRAFTWICK_API FontFormat final : public detail::Part {
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
        rule::Rounded subscriptPosition{3};
        rule::Rounded superscriptPosition{3};
        rule::PointsInHalves size{12};
        rule::Choice<"FontFormat.Underline", dwUnderlineNone, dwUnderlineWave> underline{dwUnderlineNone};
        rule::Choice<"FontFormat.Animation", dwTxAnimNone, dwTxAnimSparkle> animation{dwTxAnimNone};
        std::int32_t color = 0;
        rule::Ref<Fonts> font{};
    };

    /// Starts from the defaults and the document's DefaultFontName.
    explicit FontFormat(detail::Owner owner);
    /// Starts from the values of another one.
    FontFormat(detail::Owner owner, const Values& values) : Part(owner), values_(values) {}

    /// RTF \b.
    bool Bold() const { return values_.bold; }
    void SetBold(bool on) { Change(values_.bold, on); }

    /// Small letters look like capitals (RTF \caps).
    bool AllCaps() const { return values_.allCaps; }
    void SetAllCaps(bool on) { Change(values_.allCaps, on); }

    /// Small and below the line (RTF \sub). Setting it to true ends Superscript; the other way round it does
    /// not: Superscript is written, in the classic spelling both are.
    bool Subscript() const { return values_.subscript; }
    void SetSubscript(bool on);

    /// Small and above the line (RTF \super).
    bool Superscript() const { return values_.superscript; }
    void SetSuperscript(bool on) { Change(values_.superscript, on); }

    /// How far Subscript stands below the line (RTF \dn): points, rounded to a whole number, ties to even. Written
    /// only together with Subscript, and only in the classic spelling: readers show the two words together too low and at
    /// full size. Default 3. Error 6 outside of 16 bits.
    double SubscriptPosition() const { return values_.subscriptPosition; }
    void SetSubscriptPosition(double points) { Change(values_.subscriptPosition, points); }

    /// How far Superscript stands above the line (RTF \up), likewise. Default 3.
    double SuperscriptPosition() const { return values_.superscriptPosition; }
    void SetSuperscriptPosition(double points) { Change(values_.superscriptPosition, points); }

    /// Points; written in half-points, rounded down (RTF \fs). Default 12. Error 6 when these do not fit 32 bits.
    double Size() const { return values_.size; }
    void SetSize(double points) { Change(values_.size, points); }

    /// The name of a font of the document, in any case of letters, or empty for no font (RTF \f). It takes the
    /// spelling that the font was added with; dwErrItemNotFound when there is no such font. Default: the document's
    /// DefaultFontName when the object was created.
    std::string FontName() const;
    void SetFontName(std::string_view name);

    /// RTF \i.
    bool Italic() const { return values_.italic; }
    void SetItalic(bool on) { Change(values_.italic, on); }

    /// Only the outlines of the letters (RTF \outl).
    bool Outline() const { return values_.outline; }
    void SetOutline(bool on) { Change(values_.outline, on); }

    /// Small letters look like small capitals (RTF \scaps).
    bool SmallCaps() const { return values_.smallCaps; }
    void SetSmallCaps(bool on) { Change(values_.smallCaps, on); }

    /// RTF \shad.
    bool Shadow() const { return values_.shadow; }
    void SetShadow(bool on) { Change(values_.shadow, on); }

    /// One line through the text (RTF \strike).
    bool Strikethrough() const { return values_.strikethrough; }
    void SetStrikethrough(bool on) { Change(values_.strikethrough, on); }

    /// Two lines through the text (RTF \striked1).
    bool StrikethroughDouble() const { return values_.strikethroughDouble; }
    void SetStrikethroughDouble(bool on) { Change(values_.strikethroughDouble, on); }

    /// Default dwUnderlineNone.
    dwUnderlineStyle Underline() const { return values_.underline; }
    void SetUnderline(dwUnderlineStyle style) { Change(values_.underline, style); }

    /// Neither shown nor printed (RTF \v).
    bool Hidden() const { return values_.hidden; }
    void SetHidden(bool on) { Change(values_.hidden, on); }

    /// Red in the lowest byte, then green, then blue; any value is taken (RTF \cf). Default black.
    std::int32_t Color() const { return values_.color; }
    void SetColor(std::int32_t color) { Change(values_.color, color); }

    /// Default dwTxAnimNone.
    dwTextAnimation Animation() const { return values_.animation; }
    void SetAnimation(dwTextAnimation animation) { Change(values_.animation, animation); }

    /// The letters stand out of the paper (RTF \embo). Setting it to true ends Engrave.
    bool Emboss() const { return values_.emboss; }
    void SetEmboss(bool on);

    /// The letters are pressed into the paper (RTF \impr). Setting it to true ends Emboss.
    bool Engrave() const { return values_.engrave; }
    void SetEngrave(bool on);

    static const Class& Describe();
    const Class& Description() const override { return Describe(); }

private:
    friend struct detail::Access;

    Values values_;
};

}  // namespace draftwick
