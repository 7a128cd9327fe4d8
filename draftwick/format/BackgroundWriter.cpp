#include <draftwick/format/internal/Writers.h>

#include <string>

namespace draftwick {

namespace {

constexpr std::string_view Patterns[] = {"",          "bgcross",   "bgdkcross", "bgdkdcross", "bgdkfdiag",
                                         "bgdkbdiag", "bgdkhoriz", "bgdkvert",  "bgdcross",   "bgfdiag",
                                         "bgbdiag",   "bghoriz",   "",          "bgvert"};

/// The shading in hundredths of a percent; solid is full.
std::int32_t Shading(const Background::Values& background) {
    return background.texture == dwTextureSolid ? 10000 : RoundHalfEven(background.shading * 100);
}

/// Runs ("ch") and cells ("cl"): solid is written in the back colour, shaded without a colour, unlike in
/// paragraphs, and the foreground word is fpat.
void EmitInner(RtfWriter& writer, const Background::Values& background, const std::string& prefix) {
    switch (background.texture) {
    case dwTextureNone: return;
    case dwTextureShaded: writer.Word(prefix + "shdng", Shading(background)); return;
    case dwTextureSolid: writer.Word(prefix + "shdng", Shading(background)); break;
    default: writer.Word(prefix + std::string{WordList{Patterns}[background.texture]});
    }
    writer.Color(prefix + "cbpat", background.backColor);
    if (background.texture != dwTextureSolid) writer.Color(prefix + "fpat", background.color);
}

}  // namespace

void EmitBackground(RtfWriter& writer, const Background::Values& background) {
    switch (background.texture) {
    case dwTextureNone: return;
    case dwTextureShaded:
    case dwTextureSolid: writer.Word("shading", Shading(background)); break;
    default: writer.Word(Patterns, background.texture); writer.Color("cbpat", background.backColor);
    }
    writer.Color("cfpat", background.color);
}

void EmitCharacterBackground(RtfWriter& writer, const Background::Values& background) {
    EmitInner(writer, background, "ch");
}

void EmitCellBackground(RtfWriter& writer, const Background::Values& background) {
    EmitInner(writer, background, "cl");
}

}  // namespace draftwick
