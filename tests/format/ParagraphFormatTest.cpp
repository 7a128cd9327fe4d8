#include "tests/support/Documents.h"
#include "tests/support/Errors.h"

#include <draftwick/format/BorderWriter.h>

namespace draftwick::test {
namespace {

/// The words of a paragraph's layout, those that all paragraphs have included.
std::string Layout(const std::function<void(ParagraphFormat&)>& set) {
    TestDocument document;
    document->SetScaleMode(dwTwips);
    const auto paragraph = document.AddParagraph();
    set(*paragraph->Format());
    const std::string body = document.FinishBody();
    const std::string before = "\\pard\\plain\\fs24\\cf0";
    EXPECT_TRUE(body.starts_with(before));
    return body.substr(before.size());
}

std::string BorderWords(dwParagraphBorder side, const ParagraphBorder::Values& border) {
    return WordsOf([&](WritingContext& context) { EmitParagraphBorder(context, side, border); });
}

}  // namespace

TEST(ParagraphFormat, WritesAllWordsInOrder) {
    EXPECT_EQ(Layout([](ParagraphFormat&) {}), "\\sb0\\sa0\\sl240\\slmult1");
    EXPECT_EQ(
        Layout([](ParagraphFormat& f) {
            f.SetOutlineLevel(9);
            f.SetLineSpacingStyle(dwSpacingAtLeast);
            f.SetLineSpacingDistance(14);
            f.SetSpaceAfter(8);
            f.SetSpaceBefore(6);
            f.SetIndentRight(-30);
            f.SetIndentLeft(20);
            f.SetIndentFirst(-20);
            f.SetAlign(dwAlignJustify);
            f.SetPageBreakBefore(true);
            f.SetNoLineNumbering(true);
            f.SetKeepWithNext(true);
            f.SetWidowOrphanControl(false);
            f.SetKeepIntact(true);
            f.SetSuppressHyphen(true);
        }),
        "\\hyphpar0\\keep\\nowidctlpar\\keepn\\noline\\pagebb\\qj\\fi-20\\li20\\ri-30\\sb120\\sa160\\sl280"
        "\\slmult0\\outlinelevel8");
}

TEST(ParagraphFormat, HasAWordForEveryAlignmentButLeft) {
    const std::string words[] = {"", "\\qr", "\\qc", "\\qj"};
    for (std::int32_t i = 1; i <= 4; ++i) {
        EXPECT_EQ(Layout([&](ParagraphFormat& f) { f.SetAlign(static_cast<dwParagraphAlign>(i)); }),
                  words[i - 1] + "\\sb0\\sa0\\sl240\\slmult1");
    }
}

TEST(ParagraphFormat, RoundsSpaceDownAndLineSpacingToTheNearestEven) {
    struct Space {
        double points;
        std::string twips;
    };
    const Space spaces[] = {{6, "120"}, {6.04, "120"}, {0.375, "7"}, {0.04, "0"}, {-0.01, "-1"}};
    for (const auto& [points, twips] : spaces) {
        EXPECT_EQ(Layout([&](ParagraphFormat& f) {
                      f.SetSpaceBefore(points);
                      f.SetSpaceAfter(points);
                  }),
                  "\\sb" + twips + "\\sa" + twips + "\\sl240\\slmult1");
    }
    struct Lines {
        dwLineSpacingStyle style;
        double value;
        std::string words;
    };
    const Lines lines[] = {
        {dwSpacingMultiple, 1.5, "\\sl360\\slmult1"},
        {dwSpacingMultiple, 1.03125, "\\sl248\\slmult1"},     // 247.5
        {dwSpacingMultiple, 1.02708334, "\\sl247\\slmult1"},  // 246.5000016
        {dwSpacingMultiple, 1.01875, "\\sl244\\slmult1"},     // 244.5
        {dwSpacingAtLeast, 0.125, "\\sl2\\slmult0"},          // 2.5
        {dwSpacingAtLeast, 0.175, "\\sl4\\slmult0"},          // 3.5
        {dwSpacingExactly, 12, "\\sl-240\\smult0"},
        {dwSpacingExactly, 0.125, "\\sl-2\\smult0"},
        {dwSpacingExactly, 0.175, "\\sl-4\\smult0"},
        {dwSpacingExactly, -1, "\\sl20\\smult0"},
        {dwSpacingExactly, 0, "\\sl0\\smult0"},
    };
    for (const auto& [style, value, words] : lines) {
        EXPECT_EQ(Layout([&, style = style, value = value](ParagraphFormat& f) {
                      f.SetLineSpacingStyle(style);
                      f.SetLineSpacingMultiple(style == dwSpacingMultiple ? value : 7);
                      f.SetLineSpacingDistance(style == dwSpacingMultiple ? 7 : value);
                  }),
                  "\\sb0\\sa0" + words)
            << value;
    }
}

TEST(ParagraphFormat, TakesOnlyDistancesThatCanBeWrittenNegated) {
    EXPECT_EQ(Layout([](ParagraphFormat& f) {
                  f.SetLineSpacingStyle(dwSpacingExactly);
                  f.SetLineSpacingDistance(-107374182.35);
                  EXPECT_EQ(RefusalNumber([&] { f.SetLineSpacingDistance(-107374182.4); }), dwRunOverflow);
              }),
              "\\sb0\\sa0\\sl2147483647\\smult0");
}

TEST(ParagraphFormat, WritesWidowControlWhereItDiffersFromTheDocument) {
    TestDocument document;
    const auto style = document->ParagraphStyles()->Add("old");  // made while the document's is true
    document->SetWidowOrphanControl(false);
    document->ParagraphStyles()->Add("new");
    document.AddParagraph();
    document.AddParagraph()->SetStyleName("OLD");
    document.AddParagraph()->SetStyleName("new");
    document.AddParagraph()->Format()->SetWidowOrphanControl(true);
    const std::string words = Words(document.Finish());
    const std::string font = "\\plain\\fs24\\cf0", space = "\\sb0\\sa0\\sl240\\slmult1";
    EXPECT_NE(words.find("{\\stylesheet{\\s0\\sbasedon222\\widctlpar" + space
                         + "\\fs24\\cf0 old;}{\\s1\\sbasedon222" + space + "\\fs24\\cf0 new;}}"),
              std::string::npos);
    EXPECT_TRUE(words.ends_with("\\pard" + font + space + "\\par\\pard\\s0" + font + "\\widctlpar" + space
                                + "\\par\\pard\\s1" + font + space + "\\par\\pard" + font + "\\widctlpar"
                                + space + "}"));
}

TEST(ParagraphBorders, HaveAWordForEveryStyleAndSide) {
    const std::string styles[] = {
        "brdrs",      "brdrsh",     "brdrdb",         "brdrdot",    "brdrdash",   "brdrdashsm",
        "brdrdashd",  "brdrdashdd", "brdrtriple",     "brdrtnthsg", "brdrthtnsg", "brdrtnthtnsg",
        "brdrtnthmg", "brdrthtnmg", "brdrtnthtnmg",   "brdrtnthlg", "brdrthtnlg", "brdrtnthtnlg",
        "brdrwavy",   "brdrwavydb", "brdrdashdotstr", "brdremboss", "brdrengrave"};
    ParagraphBorder::Values border;
    EXPECT_EQ(BorderWords(dwPBorderTop, border), "");
    for (std::int32_t i = 2; i <= 24; ++i) {
        border.style.Set(static_cast<dwBorderStyle>(i));
        EXPECT_EQ(BorderWords(dwPBorderTop, border),
                  "\\brdrt\\" + styles[i - 2] + "\\brsp20\\brdrw20\\brdrcf0");
        EXPECT_EQ(BorderStyleWord(i), styles[i - 2]);
    }
    for (const std::int32_t none : {-1, 0, 1, 25}) EXPECT_EQ(BorderStyleWord(none), "");
}

TEST(ParagraphBorders, AreWrittenInTheOrderOfTheSides) {
    TestDocument document;
    const auto borders = document.AddParagraph()->Borders();
    borders->Items(dwPBorderBetween)->SetStyle(dwBSNone);
    for (const dwParagraphBorder side :
         {dwPBorderOutside, dwPBorderBottom, dwPBorderRight, dwPBorderTop, dwPBorderLeft}) {
        borders->Items(side)->SetStyle(dwBSSingle);
    }
    borders->Items(dwPBorderLeft)->SetWidth(0.75);
    borders->Items(dwPBorderRight)->SetWidth(0.04);
    borders->Items(dwPBorderBottom)->SetSpacing(2.99);
    borders->Items(dwPBorderBottom)->SetColor(0x0000FF);
    EXPECT_EQ(document.FinishBody(), "\\pard"
                                     "\\brdrt\\brdrs\\brsp20\\brdrw20\\brdrcf0"
                                     "\\brdrl\\brdrs\\brsp80\\brdrw15\\brdrcf0"
                                     "\\brdrr\\brdrs\\brsp80\\brdrw0\\brdrcf0"
                                     "\\brdrb\\brdrs\\brsp59\\brdrw20\\brdrcf1"
                                     "\\brdrbar\\brdrs\\brsp80\\brdrw20\\brdrcf0"
                                     "\\plain\\fs24\\cf0\\sb0\\sa0\\sl240\\slmult1");
}

TEST(ParagraphBorders, HaveSixSidesWithTheirDefaults) {
    TestDocument document;
    const auto borders = document.AddParagraph()->Borders();
    EXPECT_EQ(borders->Count(), 6);
    std::string spacings;
    for (const auto& border : *borders) spacings += std::to_string(static_cast<int>(border->Spacing()));
    EXPECT_EQ(spacings, "144114");
    borders->Items(dwPBorderBetween)->SetStyle(dwBSEngrave);
    for (const int side : {0, 7, -1}) {
        EXPECT_EQ(RefusalNumber([&] { borders->Items(static_cast<dwParagraphBorder>(side)); }),
                  dwRunSubscriptOutOfRange);
    }
    EXPECT_EQ(document.FinishBody(), "\\pard\\brdrbtw\\brdrengrave\\brsp20\\brdrw20\\brdrcf0"
                                     "\\plain\\fs24\\cf0\\sb0\\sa0\\sl240\\slmult1");
}

TEST(TabStops, HaveAWordForEveryAlignmentAndLeader) {
    TestDocument document;
    document->SetScaleMode(dwTwips);
    const auto stops = document.AddParagraph()->TabStops();
    const std::string aligns[] = {"", "\\tqr", "\\tqc", "\\tqdec"};
    const std::string leaders[] = {"", "\\tldot", "\\tlhyph", "\\tlul"};
    std::string expected;
    int position = 2000;
    for (int align = 1; align <= 4; ++align) {
        for (int leader = 1; leader <= 4; ++leader) {
            stops->Add(--position, static_cast<dwTabAlign>(align), static_cast<dwTabLeader>(leader));
            expected += aligns[align - 1] + leaders[leader - 1] + "\\tx" + std::to_string(position);
        }
    }
    stops->Add(-720, dwTabBar, dwTabLeaderUnderline);
    EXPECT_EQ(document.FinishBody(),
              "\\pard\\plain\\fs24\\cf0\\sb0\\sa0\\sl240\\slmult1" + expected + "\\tb-720");
}

TEST(TabStops, KeepTheOrderOfAdditionAndCanBeCleared) {
    TestDocument document;
    const auto stops = document.AddParagraph()->TabStops();
    EXPECT_EQ(Refusal([&] { stops->Add(1.5); }),
              "X101 Property TabStops.Add.Leader set to out of range value.");
    EXPECT_EQ(Refusal([&] { stops->Add(1.5, static_cast<dwTabAlign>(6), static_cast<dwTabLeader>(5)); }),
              "X101 Property TabStops.Add.Align set to out of range value.");
    for (const double tooFar : {22.76, 1e300}) {
        EXPECT_EQ(RefusalNumber([&] { stops->Add(tooFar, dwTabLeft, dwTabLeaderNone); }), dwRunOverflow);
    }
    EXPECT_EQ(stops->Count(), 0);
    stops->Add(5, dwTabLeft, dwTabLeaderNone);
    stops->Clear();
    stops->Add(3, dwTabRight, dwTabLeaderDots);
    stops->Add(0.1, dwTabLeft, dwTabLeaderNone);
    stops->Add(3, dwTabCenter, dwTabLeaderNone);
    EXPECT_EQ(stops->Count(), 3);
    EXPECT_EQ(stops->Items(2)->Position(), static_cast<double>(0.1F));
    EXPECT_EQ(stops->Items(1)->Leader(), dwTabLeaderDots);
    EXPECT_EQ(RefusalNumber([&] { stops->Items(4); }), dwRunSubscriptOutOfRange);
    EXPECT_EQ(RefusalNumber([&] { stops->Items(256); }), dwRunOverflow);
    document.AddParagraph();
    const std::string refused = "X109 Invalid operation.  Target already emitted Paragraph.";
    EXPECT_EQ(Refusal([&] { stops->Add(1, dwTabLeft, dwTabLeaderNone); }), refused);
    EXPECT_EQ(Refusal([&] { stops->Clear(); }), refused);
    EXPECT_EQ(document.FinishBody(), "\\pard\\plain\\fs24\\cf0\\sb0\\sa0\\sl240\\slmult1"
                                     "\\tqr\\tldot\\tx4320\\tx144\\tqc\\tx4320"
                                     "\\par\\pard\\plain\\fs24\\cf0\\sb0\\sa0\\sl240\\slmult1");
}

}  // namespace draftwick::test
