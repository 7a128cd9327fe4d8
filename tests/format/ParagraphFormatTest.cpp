#include "tests/support/Documents.h"
#include "tests/support/Errors.h"

#include <draftwick/format/BorderWriter.h>

namespace draftwick::test {
namespace {

/// The words of a paragraph after those of its characters.
std::string Layout(const std::function<void(ParagraphFormat&)>& set) {
    TestDocument document;
    document->SetScaleMode(dwTwips);
    set(*document.AddParagraph()->Format());
    return document.FinishBody().substr(("\\pard" + Plain).size());
}

}  // namespace

TEST(ParagraphFormat, WritesAllWordsInOrder) {
    EXPECT_EQ(Layout([](ParagraphFormat&) {}), "\\sb0\\sa0\\sl240\\slmult1");
    const auto setAll = [](ParagraphFormat& f) {
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
    };
    EXPECT_EQ(
        Layout(setAll),
        "\\hyphpar0\\keep\\nowidctlpar\\keepn\\noline\\pagebb\\qj\\fi-20\\li20\\ri-30\\sb120\\sa160\\sl280"
        "\\slmult0\\outlinelevel8");
    ExpectWords<dwParagraphAlign>("- qr qc qj", [](dwParagraphAlign align) {
        const std::string words = Layout([&](ParagraphFormat& f) { f.SetAlign(align); });
        return words.substr(0, words.size() - Spacing.size());
    });
}

TEST(ParagraphFormat, RoundsSpaceDownAndLineSpacingToTheNearestEven) {
    const std::pair<double, std::string> spaces[] = {
        {6, "120"}, {6.04, "120"}, {0.375, "7"}, {0.04, "0"}, {-0.01, "-1"}};
    for (const auto& [points, twips] : spaces) {
        const auto set = [&, points = points](ParagraphFormat& f) {
            f.SetSpaceBefore(points);
            f.SetSpaceAfter(points);
        };
        EXPECT_EQ(Layout(set), "\\sb" + twips + "\\sa" + twips + "\\sl240\\slmult1");
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
        {dwSpacingExactly, -107374182.35, "\\sl2147483647\\smult0"},
    };
    for (const auto& [style, value, words] : lines) {
        const auto set = [&, style = style, value = value](ParagraphFormat& f) {
            f.SetLineSpacingStyle(style);
            f.SetLineSpacingMultiple(style == dwSpacingMultiple ? value : 7);
            f.SetLineSpacingDistance(style == dwSpacingMultiple ? 7 : value);
            // It would not fit 32 bits with the other sign, with which it may be written.
            EXPECT_EQ(RefusalNumber([&] { f.SetLineSpacingDistance(-107374182.4); }), dwRunOverflow);
        };
        EXPECT_EQ(Layout(set), "\\sb0\\sa0" + words) << value;
    }
}

TEST(ParagraphFormat, WritesWidowControlWhereItDiffersFromTheDocument) {
    TestDocument document;
    document->ParagraphStyles()->Add("old");  // made while the document's is true
    document->SetWidowOrphanControl(false);
    document->ParagraphStyles()->Add("new");
    document.AddParagraph();
    document.AddParagraph()->SetStyleName("OLD");
    document.AddParagraph()->SetStyleName("new");
    document.AddParagraph()->Format()->SetWidowOrphanControl(true);
    const std::string words = Words(document.Finish());
    EXPECT_NE(words.find("{\\s0\\sbasedon222\\widctlpar" + Spacing + "\\fs24\\cf0 old;}{\\s1\\sbasedon222"
                         + Spacing + "\\fs24\\cf0 new;}"),
              std::string::npos);
    EXPECT_TRUE(words.ends_with("\\pard" + Plain + Spacing + "\\par\\pard\\s0" + Plain + "\\widctlpar"
                                + Spacing + "\\par\\pard\\s1" + Plain + Spacing + "\\par\\pard" + Plain
                                + "\\widctlpar" + Spacing + "}"));
}

TEST(ParagraphBorders, HaveAWordForEveryStyle) {
    const std::string words =
        "- brdrs brdrsh brdrdb brdrdot brdrdash brdrdashsm brdrdashd brdrdashdd brdrtriple "
        "brdrtnthsg brdrthtnsg brdrtnthtnsg brdrtnthmg brdrthtnmg brdrtnthtnmg brdrtnthlg "
        "brdrthtnlg brdrtnthtnlg brdrwavy brdrwavydb brdrdashdotstr brdremboss brdrengrave";
    ExpectWords<dwBorderStyle>(words, [](dwBorderStyle style) -> std::string {
        ParagraphBorder::Values border;
        border.style.Set(style);
        const std::string word = "\\" + std::string{BorderStyleWord(style)};
        EXPECT_EQ(
            WordsOf([&](WritingContext& context) { EmitParagraphBorder(context, dwPBorderTop, border); }),
            style == dwBSNone ? "" : "\\brdrt" + word + "\\brsp20\\brdrw20\\brdrcf0");
        return style == dwBSNone ? "" : word;
    });
    for (const std::int32_t none : {-1, 0, 1, 25}) EXPECT_EQ(BorderStyleWord(none), "");
}

TEST(ParagraphBorders, AreWrittenInTheOrderOfTheSides) {
    TestDocument document;
    document.AddParagraph()->Borders()->Items(dwPBorderLeft);  // read, no more
    const auto borders = document.AddParagraph()->Borders();
    for (const std::int32_t side : {6, 4, 3, 1, 2, 5}) {
        borders->Items(static_cast<dwParagraphBorder>(side))->SetStyle(dwBSSingle);
    }
    borders->Items(dwPBorderLeft)->SetWidth(0.75);
    borders->Items(dwPBorderRight)->SetWidth(0.04);
    borders->Items(dwPBorderBottom)->SetSpacing(2.99);
    borders->Items(dwPBorderBottom)->SetColor(0x0000FF);
    EXPECT_EQ(borders->Count(), 6);
    for (const std::int32_t side : {0, 7, -1}) {
        EXPECT_EQ(RefusalNumber([&] { borders->Items(static_cast<dwParagraphBorder>(side)); }),
                  dwRunSubscriptOutOfRange);
    }
    EXPECT_EQ(document.FinishBody(), "\\pard" + Plain + Spacing
                                         + "\\par\\pard"
                                           "\\brdrt\\brdrs\\brsp20\\brdrw20\\brdrcf0"
                                           "\\brdrl\\brdrs\\brsp80\\brdrw15\\brdrcf0"
                                           "\\brdrr\\brdrs\\brsp80\\brdrw0\\brdrcf0"
                                           "\\brdrb\\brdrs\\brsp59\\brdrw20\\brdrcf1"
                                           "\\brdrbtw\\brdrs\\brsp20\\brdrw20\\brdrcf0"
                                           "\\brdrbar\\brdrs\\brsp80\\brdrw20\\brdrcf0"
                                         + Plain + Spacing);
}

TEST(TabStops, HaveAWordForEveryAlignmentAndLeader) {
    const auto words = [](std::int32_t align, std::int32_t leader) {
        TestDocument document;
        document.AddParagraph()->TabStops()->Add(-0.5, static_cast<dwTabAlign>(align),
                                                 static_cast<dwTabLeader>(leader));
        return document.FinishBody().substr(("\\pard" + Plain + Spacing).size());
    };
    ExpectWords<dwTabAlign>("tx-720 tqr\\tx-720 tqc\\tx-720 tqdec\\tx-720 tb-720",
                            [&](auto align) { return words(align, dwTabLeaderNone); });
    ExpectWords<dwTabLeader>("tqc\\tx-720 tqc\\tldot\\tx-720 tqc\\tlhyph\\tx-720 tqc\\tlul\\tx-720",
                             [&](auto leader) { return words(dwTabCenter, leader); });
    EXPECT_EQ(words(dwTabBar, dwTabLeaderDots), "\\tb-720");
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
    EXPECT_EQ(stops->Items(2)->Position(), static_cast<double>(0.1F));
    document->SetScaleMode(dwTwips);
    stops->Add(2.50000001, dwTabLeft, dwTabLeaderNone);  // 2.5 in single precision
    EXPECT_EQ(RefusalNumber([&] { stops->Items(5); }), dwRunSubscriptOutOfRange);
    EXPECT_EQ(RefusalNumber([&] { stops->Items(256); }), dwRunOverflow);
    document->Finish();
    const std::string refused = "X109 Invalid operation.  Target already emitted Paragraph.";
    EXPECT_EQ(Refusal([&] { stops->Add(1, dwTabLeft, dwTabLeaderNone); }), refused);
    EXPECT_EQ(Refusal([&] { stops->Clear(); }), refused);
    EXPECT_EQ(document.FinishBody(),
              "\\pard" + Plain + Spacing + "\\tqr\\tldot\\tx4320\\tx144\\tqc\\tx4320\\tx2");
}

}  // namespace draftwick::test
