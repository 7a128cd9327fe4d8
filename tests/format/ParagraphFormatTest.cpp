#include "tests/support/Documents.h"

#include <draftwick/format/Writers.h>

namespace draftwick::test {
namespace {

/// The words of a paragraph after those of its characters.
std::string Layout(const Settings& settings) {
    const std::string file = Written(
        [&](Document& document) { Apply(settings, *document.AddSection()->AddParagraph()->Format()); });
    return Between(file, "\\pard\\plain\\fs24\\cf0", "}");
}

}  // namespace

TEST(ParagraphFormat, WritesAllWordsInOrder) {
    EXPECT_EQ(Layout({}), Spacing);
    EXPECT_EQ(
        Layout(SettingsOf("OutlineLevel=9 LineSpacingStyle=2 LineSpacingDistance=14.0 "
                          "SpaceAfter=8.0 SpaceBefore=6.0 IndentRight=-30.0 "
                          "IndentLeft=20.0 IndentFirst=-20.0 Align=4 PageBreakBefore=true "
                          "NoLineNumbering=true KeepWithNext=true "
                          "WidowOrphanControl=false KeepIntact=true SuppressHyphen=true")),
        "\\hyphpar0\\keep\\nowidctlpar\\keepn\\noline\\pagebb\\qj\\fi-20\\li20\\ri-30\\sb120\\sa160\\sl280"
        "\\slmult0\\outlinelevel8");
    ExpectWords("- qr qc qj", [](std::int32_t align) {
        return Between("#" + Layout({{"Align", align}}), "#", Spacing);
    });
}

TEST(ParagraphFormat, RoundsSpaceDownAndLineSpacingToTheNearestEven) {
    for (const auto& [points, twips] : {std::pair{6.04, "120"}, {0.375, "7"}, {0.04, "0"}, {-0.01, "-1"}}) {
        const std::string number = twips;
        EXPECT_EQ(Layout({{"SpaceBefore", points}}), "\\sb" + number + "\\sa0\\sl240\\slmult1");
        EXPECT_EQ(Layout({{"SpaceAfter", points}}), "\\sb0\\sa" + number + "\\sl240\\slmult1");
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
        const bool multiple = style == dwSpacingMultiple;
        EXPECT_EQ(Layout({{"LineSpacingStyle", style},
                          {"LineSpacingMultiple", multiple ? value : 7},
                          {"LineSpacingDistance", multiple ? 7 : value}}),
                  "\\sb0\\sa0" + words)
            << value;
    }
    // It would not fit 32 bits with the other sign, with which it may be written.
    EXPECT_EQ(RefusalNumber([] { Layout({{"LineSpacingDistance", -107374182.4}}); }), dwRunOverflow);
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
    EXPECT_EQ(Between(document.Header(), "{\\stylesheet", "}}"), "{\\s0\\sbasedon222\\widctlpar" + Spacing
                                                                     + "\\fs24\\cf0 old;}{\\s1\\sbasedon222"
                                                                     + Spacing + "\\fs24\\cf0 new;");
    const std::string kept = "\\plain\\fs24\\cf0\\widctlpar" + Spacing;
    EXPECT_EQ(document.Body(), "\\pard~\\par\\pard\\s0" + kept + "\\par\\pard\\s1~\\par\\pard" + kept);
}

TEST(ParagraphBorders, HaveAWordForEveryStyle) {
    const std::string words =
        "- brdrs brdrsh brdrdb brdrdot brdrdash brdrdashsm brdrdashd brdrdashdd brdrtriple "
        "brdrtnthsg brdrthtnsg brdrtnthtnsg brdrtnthmg brdrthtnmg brdrtnthtnmg brdrtnthlg "
        "brdrthtnlg brdrtnthtnlg brdrwavy brdrwavydb brdrdashdotstr brdremboss brdrengrave";
    ExpectWords<dwBorderStyle>(words, [](dwBorderStyle style) -> std::string {
        const std::string word = "\\" + std::string{BorderStyleWord(style)};
        return style == dwBSNone ? "" : word;
    });
    for (const std::int32_t none : {-1, 0, 25}) EXPECT_EQ(BorderStyleWord(none), "");
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
    Apply({{"Spacing", 2.99}, {"Color", 0x0000FF}}, *borders->Items(dwPBorderBottom));
    EXPECT_EQ(document.Body(),
              "\\pard~\\par\\pard"
              "\\brdrt\\brdrs\\brsp20\\brdrw20\\brdrcf0\\brdrl\\brdrs\\brsp80\\brdrw15\\brdrcf0"
              "\\brdrr\\brdrs\\brsp80\\brdrw0\\brdrcf0\\brdrb\\brdrs\\brsp59\\brdrw20\\brdrcf1"
              "\\brdrbtw\\brdrs\\brsp20\\brdrw20\\brdrcf0\\brdrbar\\brdrs\\brsp80\\brdrw20\\brdrcf0~");
}

TEST(Borders, AreGivenOutBySide) {
    TestDocument document;
    const auto section = document->AddSection();
    const auto row = section->AddTable();
    const auto cell = row->AddCell();
    const auto check = [](const auto& owner, const auto& borders, std::int32_t count) {
        EXPECT_EQ(Get(*borders, "Count"), Variant{count});
        const auto side = [&](std::int32_t index) { return Call(*borders, "Items", {index}); };
        EXPECT_EQ(side(count), side(count));
        EXPECT_EQ(std::get<std::shared_ptr<Object>>(side(1))->Parent(), owner);
        for (const int index : {-1, 0, count + 1}) EXPECT_EQ(RefusalNumber([&] { side(index); }), 9);
    };
    check(section, section->PageBorders(), 4);
    check(row, row->Borders(), 6);
    check(cell, cell->Borders(), 4);
    const auto paragraph = cell->AddParagraph();
    check(paragraph, paragraph->Borders(), 6);
}

TEST(TabStops, HaveAWordForEveryAlignmentAndLeader) {
    const auto words = [](std::int32_t align, std::int32_t leader) {
        TestDocument document;
        Call(*document.AddParagraph()->TabStops(), "Add", {-0.5, align, leader});
        return document.Body().substr(6);  // behind \pard~
    };
    ExpectWords("tx-720 tqr\\tx-720 tqc\\tx-720 tqdec\\tx-720 tb-720",
                [&](std::int32_t align) { return words(align, dwTabLeaderNone); });
    ExpectWords("tqc\\tx-720 tqc\\tldot\\tx-720 tqc\\tlhyph\\tx-720 tqc\\tlul\\tx-720",
                [&](std::int32_t leader) { return words(dwTabCenter, leader); });
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
    EXPECT_EQ(Refusal([&] { stops->Add(1, dwTabLeft, dwTabLeaderNone); }), Emitted("Paragraph"));
    EXPECT_EQ(Refusal([&] { stops->Clear(); }), Emitted("Paragraph"));
    EXPECT_EQ(document.Body(), "\\pard~\\tqr\\tldot\\tx4320\\tx144\\tqc\\tx4320\\tx2");
}

}  // namespace draftwick::test
