#pragma once

#include <draftwick/model/Object.h>

namespace draftwick {

/// The shading or pattern behind something: RTF \shading and \bgcross to \bgvert behind paragraphs, \chshdng and
/// \chbg* behind text, \clshdng and \clbg* in cells.
enum dwTexture : std::int32_t {
    dwTextureNone = 1,
    dwTextureCross = 2,
    dwTextureDarkCross = 3,
    dwTextureDarkDiagonalCross = 4,
    dwTextureDarkDiagonalDown = 5,  ///< to the lower right
    dwTextureDarkDiagonalUp = 6,    ///< to the upper right
    dwTextureDarkHorizontal = 7,
    dwTextureDarkVertical = 8,
    dwTextureDiagonalCross = 9,
    dwTextureDiagonalDown = 10,
    dwTextureDiagonalUp = 11,
    dwTextureHorizontal = 12,
    dwTextureSolid = 13,  ///< one colour: Color behind a paragraph, BackColor behind text and in a cell
    dwTextureVertical = 14,
    dwTextureShaded = 15,  ///< the percentage in Shading
};

/// What stands behind a paragraph, a run of text, a table cell or the text of a style. Refuses when what it belongs
/// to refuses. Colours have red in the lowest byte, then green, then blue: 0x0000FF is red. Any value is taken.
class DRAFTWICK_API Background final : public detail::Part {
public:
    struct Values {
        rule::Choice<"Background.Texture", dwTextureNone, dwTextureShaded> texture{dwTextureNone};
        rule::Rounded shading{0};
        std::int32_t color = 0;
        std::int32_t backColor = 0xFFFFFF;
    };

    using Part::Part;

    /// The kind of shading or pattern. Default dwTextureNone: nothing.
    dwTexture Texture() const { return values_.texture; }
    void SetTexture(dwTexture texture) { Change(values_.texture, texture); }

    /// Percent of shading for dwTextureShaded (RTF \shading), rounded to a whole number, ties to even. Default 0; 100
    /// is full. Not checked against these; error 6 outside of 16 bits.
    double Shading() const { return values_.shading; }
    void SetShading(double percent) { Change(values_.shading, percent); }

    /// The colour of the shading, or of the lines of a pattern (RTF \cfpat). In the classic spelling shading of text
    /// and cells is written without a colour; in the standard one it is this colour, mixed with white. Default black.
    std::int32_t Color() const { return values_.color; }
    void SetColor(std::int32_t color) { Change(values_.color, color); }

    /// The colour behind the lines of a pattern (RTF \cbpat); in text and cells also that of dwTextureSolid.
    /// Default white.
    std::int32_t BackColor() const { return values_.backColor; }
    void SetBackColor(std::int32_t color) { Change(values_.backColor, color); }

    static const Class& Describe();
    const Class& Description() const override { return Describe(); }

private:
    friend struct detail::Access;

    Values values_;
};

}  // namespace draftwick
