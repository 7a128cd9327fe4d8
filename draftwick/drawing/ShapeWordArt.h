#pragma once

#include <draftwick/model/Object.h>
#include <draftwick/model/Ref.h>

#include <string>
#include <string_view>

namespace draftwick {

class Fonts;

/// Where the lines of WordArt stand.
enum dwShapeWordArtAlign : std::int32_t {
    dwWAAStretch = 1,  ///< as wide as the shape
    dwWAACenter = 2,
    dwWAALeft = 3,
    dwWAARight = 4,
    dwWAALetterJustify = 5,  ///< spread between the letters
    dwWAAWordJustify = 6,    ///< spread between the words
};

/// Text that takes the form of its shape, which should be one of the kinds from dwSKTextSimple to dwSKTextOnRing or
/// from dwSKTextPlainText to dwSKTextCanDown (RTF shape properties gtext*). Only what differs from its default is written. Refuses
/// once the shape is written ("Shape").
class DRAFTWICK_API ShapeWordArt final : public detail::Part {
public:
    struct Values {
        std::string text;
        rule::Ref<Fonts> font{};
        rule::Fixed size{36};
        rule::Choice<"ShapeWordArt.Align", dwWAAStretch, dwWAAWordJustify> align{dwWAACenter};
        rule::Percent spacing{100};
        bool reverseRows = false;
        bool vertical = false;
        bool kern = false;
        bool tight = false;
        bool stretch = false;
        bool shrinkFit = false;
        bool bestFit = false;
        bool normalize = false;
        bool bold = false;
        bool italic = false;
        bool underline = false;
        bool shadow = false;
        bool smallCaps = false;
        bool strikethrough = false;
    };

    /// Starts from the defaults and the document's DefaultFontName.
    explicit ShapeWordArt(detail::Owner owner);

    /// Default empty: nothing is written at all.
    const std::string& Text() const { return values_.text; }
    void SetText(std::string_view text) { Change(values_.text, text); }

    /// A font of the document; takes its spelling. dwErrItemNotFound when there is none. Empty: none is written.
    std::string FontName() const;
    void SetFontName(std::string_view name);

    /// Points. Default 36. Error 6 when it is not finite or 65536 times it does not fit 32 bits.
    double Size() const { return values_.size; }
    void SetSize(double points) { Change(values_.size, points); }

    /// Default dwWAACenter.
    dwShapeWordArtAlign Align() const { return values_.align; }
    void SetAlign(dwShapeWordArtAlign align) { Change(values_.align, align); }

    /// Of the letters: percent. Default 100. Error 6 as for Size.
    double Spacing() const { return values_.spacing; }
    void SetSpacing(double percent) { Change(values_.spacing, percent); }

    /// The last line stands first. Default false.
    bool ReverseRows() const { return values_.reverseRows; }
    void SetReverseRows(bool on) { Change(values_.reverseRows, on); }
    /// Letters stand one below the other. Default false.
    bool Vertical() const { return values_.vertical; }
    void SetVertical(bool on) { Change(values_.vertical, on); }
    /// Pairs of letters move together. Default false.
    bool Kern() const { return values_.kern; }
    void SetKern(bool on) { Change(values_.kern, on); }
    /// Spacing holds between letters, not for their width. Default false.
    bool Tight() const { return values_.tight; }
    void SetTight(bool on) { Change(values_.tight, on); }
    /// Letters are as wide as the shape needs. Default false.
    bool Stretch() const { return values_.stretch; }
    void SetStretch(bool on) { Change(values_.stretch, on); }
    /// Text that is too wide becomes narrower. Default false.
    bool ShrinkFit() const { return values_.shrinkFit; }
    void SetShrinkFit(bool on) { Change(values_.shrinkFit, on); }
    /// Text becomes as large as the shape allows. Default false.
    bool BestFit() const { return values_.bestFit; }
    void SetBestFit(bool on) { Change(values_.bestFit, on); }
    /// All letters are as high as capitals. Default false.
    bool Normalize() const { return values_.normalize; }
    void SetNormalize(bool on) { Change(values_.normalize, on); }

    /// The look of the letters. Default false each.
    bool Bold() const { return values_.bold; }
    void SetBold(bool on) { Change(values_.bold, on); }
    bool Italic() const { return values_.italic; }
    void SetItalic(bool on) { Change(values_.italic, on); }
    bool Underline() const { return values_.underline; }
    void SetUnderline(bool on) { Change(values_.underline, on); }
    bool Shadow() const { return values_.shadow; }
    void SetShadow(bool on) { Change(values_.shadow, on); }
    bool SmallCaps() const { return values_.smallCaps; }
    void SetSmallCaps(bool on) { Change(values_.smallCaps, on); }
    bool Strikethrough() const { return values_.strikethrough; }
    void SetStrikethrough(bool on) { Change(values_.strikethrough, on); }

    static const Class& Describe();
    const Class& Description() const override { return Describe(); }

private:
    friend struct detail::Access;

    Values values_;
};

}  // namespace draftwick
