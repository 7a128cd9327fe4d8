#include "tests/support/Documents.h"

#include <draftwick/format/Writers.h>

namespace draftwick::test {
namespace {

using Values = FontFormat::Values;

std::string Full(const Values& format, bool withPlain = false) {
    return WordsOf([&](RtfWriter& writer) { EmitFontFormat(writer, format, withPlain); });
}

std::string Changes(const Values& format, const Values& reference) {
    return WordsOf([&](RtfWriter& writer) {
        writer.colors.GetColorIndex(0);  // black, as after any paragraph
        EmitFontFormatChanges(writer, format, reference);
    });
}

/// A format that differs from the default in everything.
Values Everything() {
    Values v;
    v.bold = v.allCaps = v.subscript = v.superscript = v.italic = v.outline = v.smallCaps = v.shadow = true;
    v.strikethrough = v.strikethroughDouble = v.hidden = v.emboss = v.engrave = true;
    v.subscriptPosition.Set(2.5);
    v.superscriptPosition.Set(3.5);
    v.size.Set(10.5);
    v.underline.Set(dwUnderlineWave);
    v.animation.Set(dwTxAnimSparkle);
    v.color = 0x0000FF;
    return v;
}

}  // namespace

TEST(FontFormat, WritesAllWordsInTheOrderOfEachWriter) {
    EXPECT_EQ(Full(Values{}), "\\fs24\\cf0");
    EXPECT_EQ(Full(Everything(), true),
              "\\plain\\b\\caps\\sub\\dn4\\fs21\\i\\outl\\scaps\\shad\\strike\\ulwave\\super\\up8\\v\\cf0"
              "\\animtext3\\embo\\impr\\striked1");
    EXPECT_EQ(Changes(Values{}, Values{}), "");
    EXPECT_EQ(Changes(Everything(), Values{}),
              "\\b1\\caps1\\sub1\\dn4\\fs21\\i1\\outl1\\scaps1\\shad1\\strike1\\ulwave\\super1\\up8\\v1\\cf1"
              "\\animtext3\\impr1\\embo1\\striked11");
    // Back to the default; there is no word for no font.
    EXPECT_EQ(Changes(Values{}, Everything()),
              "\\b0\\caps0\\sub0\\fs24\\i0\\outl0\\scaps0\\shad0\\strike0\\ulnone\\super0\\v0\\cf0"
              "\\animtext0\\impr0\\embo0\\striked10");
}

TEST(FontFormat, WritesAPositionOnlyWithAChangeOfItsSwitch) {
    Values lower, reference;
    lower.subscript = lower.superscript = reference.subscript = reference.superscript = true;
    lower.subscriptPosition.Set(-32768);
    lower.superscriptPosition.Set(9);
    EXPECT_EQ(Changes(lower, reference), "");
    EXPECT_EQ(Full(lower), "\\sub\\dn-65536\\fs24\\super\\up18\\cf0");
}

TEST(FontFormat, RoundsHalfPointsDown) {
    const std::pair<double, std::string> sizes[] = {{10.75, "21"}, {10.49, "20"}, {0, "0"}, {-0.1, "-1"}};
    for (const auto& [size, halves] : sizes) {
        Values format;
        format.size.Set(size);
        EXPECT_EQ(Full(format) + Changes(format, Values{}), "\\fs" + halves + "\\cf0\\fs" + halves);
    }
}

TEST(FontFormat, HasAWordForEveryUnderlineAndAnimation) {
    ExpectWords<dwUnderlineStyle>("ulnone ul uld uldb ulw ulth uldashd uldashdd ulwave", [](auto style) {
        const Values format{.underline = {style}}, other{.underline = {static_cast<dwUnderlineStyle>(0)}};
        const std::string word = Changes(format, other);
        EXPECT_EQ(Full(format), "\\fs24" + (style == 1 ? "" : word) + "\\cf0");
        return word;
    });
    ExpectWords<dwTextAnimation>(
        "animtext0 animtext2 animtext1 animtext4 animtext5 animtext6 animtext3", [](auto effect) {
            const Values format{.animation = {effect}}, other{.animation = {static_cast<dwTextAnimation>(0)}};
            const std::string word = Changes(format, other);
            EXPECT_EQ(Full(format), "\\fs24\\cf0" + (effect == 1 ? "" : word));
            return word;
        });
}

TEST(FontFormat, LetsSomeSwitchesEndOthers) {
    TestDocument document;
    const auto format = document.AddParagraph()->FontFormat();
    format->SetSuperscript(true);
    format->SetSubscript(false);
    EXPECT_TRUE(format->Superscript());
    format->SetSubscript(true);
    EXPECT_FALSE(format->Superscript());
    format->SetSuperscript(true);  // one-sided: both stay
    format->SetEmboss(true);
    format->SetEngrave(false);
    EXPECT_TRUE(format->Emboss());
    format->SetEngrave(true);
    EXPECT_FALSE(format->Emboss());
    format->SetEmboss(true);
    EXPECT_EQ(document.Body(), "\\pard\\plain\\sub\\dn6\\fs24\\super\\up6\\cf0\\embo" + Spacing);
}

TEST(FontFormat, KnowsOnlyFontsOfTheDocument) {
    TestDocument document;
    document->Fonts()->Add("Serif");
    document->Fonts()->Add("Éclair");
    const auto before = document->TextStyles()->Add("before")->FontFormat();
    document->SetDefaultFontName("SERIF");
    EXPECT_EQ(before->FontName(), "");  // formats that exist do not follow
    const auto after = document->TextStyles()->Add("after")->FontFormat();
    EXPECT_EQ(after->FontName(), "Serif");
    after->SetFontName("éCLAIR");
    EXPECT_EQ(Refusal([&] { after->SetFontName("Arial"); }), "X112 Item not found 'Arial'.");
    EXPECT_EQ(after->FontName(), "Éclair");
    const auto paragraph = document.AddParagraph();
    const auto none = paragraph->AddTextItem("none")->FontFormat();
    none->SetFontName("");
    none->SetBold(true);
    paragraph->AddTextItem("other")->FontFormat()->SetFontName("Éclair");
    EXPECT_EQ(Refusal([&] { none->SetFontName("Arial"); }), Emitted("TextItem"));
    EXPECT_EQ(document.Body(), "\\pard\\plain\\f0\\fs24\\cf0" + Spacing + "{\\b1 none}{\\f1 other}");
}

TEST(FontTable, IsWrittenInTheOrderOfAdditionWithNamesAsTheyAre) {
    ExpectWords<dwFontFamily>("fnil froman fswiss fmodern fscript fdecor ftech", [](dwFontFamily family) {
        TestDocument document;
        document->Fonts()->Add("F")->SetFamily(family);
        const std::string header = document.Header();
        return header.substr(19, header.find(' ') - 19);  // after {\rtf1{\fonttbl{\f0
    });
    TestDocument document;
    document->Fonts()->Add("Times New Roman")->SetFamily(dwRoman);
    const auto sans = document->Fonts()->Add("Arial");
    sans->SetFamily(dwSwiss);
    sans->SetAltName("Helvetica");
    document->Fonts()->Add("Ä\\{\\}")->SetAltName("x");
    document->Fonts()->Items(3)->SetAltName("");
    EXPECT_EQ(Refusal([&] { document->SetDefaultFontName("Times"); }), "X112 Item not found 'Times'.");
    document->SetDefaultFontName("ARIAL");
    EXPECT_EQ(document->DefaultFontName(), "Arial");
    EXPECT_TRUE(document.Finish().starts_with(
        "{\\rtf1\\deff1{\\fonttbl{\\f0\\froman Times New Roman;}"
        "{\\f1\\fswiss{\\*\\falt Helvetica}Arial;}{\\f2\\fnil \xC4\\{\\};}}\r\n"));
}

}  // namespace draftwick::test
