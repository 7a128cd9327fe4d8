#include "tests/support/Documents.h"

#include <draftwick/format/Writers.h>

namespace draftwick::test {
namespace {

using Writer = void (*)(RtfWriter&, const Background::Values&);

/// Colour 0 is that of the lines, colour 1 the one behind them.
std::string Written(Writer write, dwTexture texture, double shading = 0) {
    return WordsOf([&](RtfWriter& writer) {
        Background::Values values;
        values.texture.Set(texture);
        values.shading.Set(shading);
        writer.colors.GetColorIndex(values.color);
        writer.colors.GetColorIndex(values.backColor);
        write(writer, values);
    });
}

}  // namespace

TEST(Background, WritesEveryPatternInItsThreeForms) {
    ExpectWords<dwTexture>(
        "- bgcross bgdkcross bgdkdcross bgdkfdiag bgdkbdiag bgdkhoriz bgdkvert bgdcross bgfdiag "
        "bgbdiag bghoriz shading10000 bgvert",
        [](dwTexture texture) {
            const std::string words = Written(EmitBackground, texture);
            const std::string word = words.substr(0, words.find("\\c"));
            if (word.starts_with("\\bg")) {
                const std::string stem = word.substr(1);
                EXPECT_EQ(words, word + "\\cbpat1\\cfpat0");
                EXPECT_EQ(Written(EmitCharacterBackground, texture), "\\ch" + stem + "\\chcbpat1\\chfpat0");
                EXPECT_EQ(Written(EmitCellBackground, texture), "\\cl" + stem + "\\clcbpat1\\clfpat0");
            }
            return word;
        });
}

TEST(Background, WritesShadingDifferentlyInParagraphsTextAndCells) {
    struct Case {
        dwTexture texture;
        double shading;
        std::string paragraph, inner;
    };
    const Case cases[] = {
        {dwTextureNone, 25, "", ""},
        {dwTextureSolid, 25, "\\shading10000\\cfpat0", "shdng10000\\@cbpat1"},
        {dwTextureShaded, 25, "\\shading2500\\cfpat0", "shdng2500"},
        {dwTextureShaded, 12.5, "\\shading1200\\cfpat0", "shdng1200"},
        {dwTextureShaded, 13.5, "\\shading1400\\cfpat0", "shdng1400"},
        {dwTextureShaded, -5, "\\shading-500\\cfpat0", "shdng-500"},
        {dwTextureShaded, 32767, "\\shading3276700\\cfpat0", "shdng3276700"},
    };
    const auto of = [](const std::string& form, std::string words) {
        if (const std::size_t at = words.find('@'); at != std::string::npos) words.replace(at, 1, form);
        return words.empty() ? words : "\\" + form + words;
    };
    for (const auto& [texture, shading, paragraph, inner] : cases) {
        EXPECT_EQ(Written(EmitBackground, texture, shading), paragraph);
        EXPECT_EQ(Written(EmitCharacterBackground, texture, shading), of("ch", inner));
        EXPECT_EQ(Written(EmitCellBackground, texture, shading), of("cl", inner));
    }
}

TEST(ColorTable, HoldsEachColorOnceInTheOrderOfFirstUse) {
    ColorTable colors;
    // Red, white, red again, red with something in the highest byte, white again, red once more.
    const std::int32_t used[] = {0x0000FF, 0xFFFFFF, 0x0000FF, -0xFFFF01, 0xFFFFFF, 0x0000FF};
    std::vector<std::int32_t> indices;
    for (const std::int32_t color : used) indices.push_back(colors.GetColorIndex(color));
    EXPECT_EQ(indices, (std::vector<std::int32_t>{0, 1, 0, 2, 1, 0}));
}

TEST(ColorTable, IsWrittenWithoutAFirstEmptyEntryAndWithoutSpaces) {
    TestDocument document;
    document.AddParagraph()->FontFormat()->SetColor(0x030201);
    document.AddParagraph()->FontFormat()->SetColor(-0x100
                                                    + 0x0A);  // FFFFFF0A: the highest byte is not written
    EXPECT_TRUE(document.Finish().starts_with(
        "{\\rtf1{\\colortbl\\red1\\green2\\blue3;\\red10\\green255\\blue255;}\r\n\\deftab720"));

    TestDocument empty;  // no paragraph, no colour
    EXPECT_TRUE(empty.Finish().starts_with("{\\rtf1\r\n\\deftab720"));
}

TEST(ColorTable, NumbersTheBodyThenTheStylesThenTheLists) {
    TestDocument document;
    document->Lists()->Add("L")->Levels(1)->FontFormat()->SetColor(0x00FF00);
    document->TextStyles()->Add("T")->Border()->SetColor(0x00FFFF);  // without a line: not used
    document->TextStyles()->Items("T")->Background()->SetTexture(dwTextureSolid);
    document->ParagraphStyles()->Add("S")->FontFormat()->SetColor(0xFF0000);
    document.AddParagraph()->AddTextItem("x")->FontFormat()->SetColor(0x0000FF);
    const std::string header = document.Header();
    EXPECT_TRUE(header.starts_with("{\\rtf1{\\colortbl"
                                   "\\red0\\green0\\blue0 ;"        // the paragraph
                                   "\\red255\\green0\\blue0 ;"      // its run
                                   "\\red0\\green0\\blue255 ;"      // the paragraph style
                                   "\\red255\\green255\\blue255 ;"  // behind the text style
                                   "\\red0\\green255\\blue0 ;}"     // the list level
                                   "{\\stylesheet"
                                   "{\\s0\\sbasedon222\\sb0\\sa0\\sl240\\slmult1\\fs24\\cf2 S;}"
                                   "{\\*\\cs1\\sbasedon222\\fs24\\cf0\\chshdng10000\\chcbpat3 T;}}"));
    EXPECT_NE(header.find("\\jclisttab\\tx360\\fs24\\cf4}"), std::string::npos);
}

}  // namespace draftwick::test
