#include <draftwick/format/internal/Writers.h>

#include <algorithm>
#include <string>

namespace draftwick {

namespace {

constexpr Words<dwTexture> Patterns{"",          "bgcross",   "bgdkcross", "bgdkdcross", "bgdkfdiag",
                                    "bgdkbdiag", "bgdkhoriz", "bgdkvert",  "bgdcross",   "bgfdiag",
                                    "bgbdiag",   "bghoriz",   "",          "bgvert",     ""};

/// What stands in front of the words of a kind of background, and where they go their own ways.
struct Kind {
    std::string_view prefix;
    bool inParagraph = false;  ///< solid is written in Color, not in BackColor
    bool inText = false;       ///< the back colour has a second word, for readers that know only that one
};

constexpr Kind Paragraph{.prefix = "", .inParagraph = true};
constexpr Kind Text{.prefix = "ch", .inText = true};
constexpr Kind Cell{.prefix = "cl"};

/// The shading in hundredths of a percent; solid is full.
std::int32_t Shading(const Background::Values& background) {
    return background.texture == dwTextureSolid ? 10000 : RoundHalfEven(background.shading * 100);
}

/// The colour on white paper, which is how readers are shown shading: they take a percentage for none, or for one of
/// black.
std::int32_t ShadedColor(const Background::Values& background) {
    const int percent = static_cast<int>(std::clamp<double>(background.shading, 0, 100));
    std::uint32_t shaded = 0;
    for (int shift = 0; shift < 24; shift += 8) {
        const int part = static_cast<int>(static_cast<std::uint32_t>(background.color) >> shift & 0xFF);
        shaded |= static_cast<std::uint32_t>(255 - ((255 - part) * percent + 50) / 100) << shift;
    }
    return static_cast<std::int32_t>(shaded);
}

/// \chbgcross\chcbpat1\chcfpat2\cb1, or \chcbpat1\cb1 for one colour.
void EmitStandard(RtfWriter& writer, const Background::Values& background, const Background::Values* style,
                  const Kind& kind) {
    const std::string prefix{kind.prefix};
    const bool isSolid = background.texture == dwTextureSolid,
               isShaded = background.texture == dwTextureShaded;
    if (background.texture == dwTextureNone) {
        if (style == nullptr || style->texture == dwTextureNone) return;
        writer.Word(prefix + "cbpat", 0);
        if (kind.inText) writer.Word("cb", 0);
        return;
    }
    const bool hasLines = !isSolid && !isShaded;
    const std::int32_t color = isShaded                      ? ShadedColor(background)
                               : isSolid && kind.inParagraph ? background.color
                                                             : background.backColor;
    if (hasLines) {
        // Cells have a word of their own for dark horizontal lines.
        const bool darkLines = background.texture == dwTextureDarkHorizontal && kind.prefix == "cl";
        writer.Word(darkLines ? "clbgdkhor" : prefix + std::string{Patterns[background.texture]});
    }
    writer.Color(prefix + "cbpat", color);
    if (hasLines) writer.Color(prefix + "cfpat", background.color);
    if (kind.inText) writer.Color("cb", color);
}

/// Runs and cells: solid is written in the back colour, shaded without a colour, unlike in paragraphs, and the
/// foreground word is fpat.
void EmitInner(RtfWriter& writer, const Background::Values& background, const std::string& prefix) {
    switch (background.texture) {
    case dwTextureNone: return;
    case dwTextureShaded: writer.Word(prefix + "shdng", Shading(background)); return;
    case dwTextureSolid: writer.Word(prefix + "shdng", Shading(background)); break;
    default: writer.Word(prefix + std::string{Patterns[background.texture]});
    }
    writer.Color(prefix + "cbpat", background.backColor);
    if (background.texture != dwTextureSolid) writer.Color(prefix + "fpat", background.color);
}

}  // namespace

void EmitBackground(RtfWriter& writer, const Background::Values& background,
                    const Background::Values* style) {
    if (writer.Standard()) return EmitStandard(writer, background, style, Paragraph);
    switch (background.texture) {
    case dwTextureNone: return;
    case dwTextureShaded:
    case dwTextureSolid: writer.Word("shading", Shading(background)); break;
    default: writer.Word(Patterns, background.texture); writer.Color("cbpat", background.backColor);
    }
    writer.Color("cfpat", background.color);
}

void EmitCharacterBackground(RtfWriter& writer, const Background::Values& background,
                             const Background::Values* style) {
    if (writer.Standard()) return EmitStandard(writer, background, style, Text);
    EmitInner(writer, background, "ch");
}

void EmitCellBackground(RtfWriter& writer, const Background::Values& background) {
    if (writer.Standard()) return EmitStandard(writer, background, nullptr, Cell);
    EmitInner(writer, background, "cl");
}

}  // namespace draftwick
