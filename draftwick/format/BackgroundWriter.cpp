#include <draftwick/format/BackgroundWriter.h>
#include <draftwick/model/WritingContext.h>

#include <string>

namespace draftwick {

namespace {

constexpr std::string_view Patterns[] = {"",          "bgcross",   "bgdkcross", "bgdkdcross", "bgdkfdiag",
                                         "bgdkbdiag", "bgdkhoriz", "bgdkvert",  "bgdcross",   "bgfdiag",
                                         "bgbdiag",   "bghoriz",   "",          "bgvert"};

/// Runs ("ch") and cells ("cl"): solid is written in the back colour, shaded without a colour, unlike in
/// paragraphs, and the foreground word is fpat.
void EmitInner(WritingContext& context, const Background::Values& background, const std::string& prefix) {
    Output& output = context.output;
    switch (background.texture) {
    case dwTextureNone: return;
    case dwTextureShaded:
        output.WriteControlWord(prefix + "shdng", RoundHalfEven(background.shading * 100));
        return;
    case dwTextureSolid: output.WriteControlWord(prefix + "shdng", 10000); break;
    default: output.WriteControlWord(prefix + std::string{WordList{Patterns}[background.texture]});
    }
    output.WriteControlWord(prefix + "cbpat", context.colors.GetColorIndex(background.backColor));
    if (background.texture != dwTextureSolid) {
        output.WriteControlWord(prefix + "fpat", context.colors.GetColorIndex(background.color));
    }
}

}  // namespace

void EmitBackground(WritingContext& context, const Background::Values& background) {
    Output& output = context.output;
    switch (background.texture) {
    case dwTextureNone: return;
    case dwTextureShaded: output.WriteControlWord("shading", RoundHalfEven(background.shading * 100)); break;
    case dwTextureSolid: output.WriteControlWord("shading", 10000); break;
    default:
        output.WriteWord(Patterns, background.texture);
        output.WriteControlWord("cbpat", context.colors.GetColorIndex(background.backColor));
    }
    output.WriteControlWord("cfpat", context.colors.GetColorIndex(background.color));
}

void EmitCharacterBackground(WritingContext& context, const Background::Values& background) {
    EmitInner(context, background, "ch");
}

void EmitCellBackground(WritingContext& context, const Background::Values& background) {
    EmitInner(context, background, "cl");
}

}  // namespace draftwick
