#include "tests/structure/Body.h"
#include "tests/support/Errors.h"

#include <cmath>

namespace draftwick::test {

TEST(Columns, AreWrittenAmongTheWordsOfTheSection) {
    struct {
        const char* name;
        std::function<void(Columns&)> set;
        std::string words;
        std::int32_t count;
    } const cases[]{
        {"none", [](Columns& c) { c.SetLineBetween(true); }, "", 0},
        {"automatic", [](Columns& c) { c.Auto(2, 0.5); }, R"(\cols2\colsx720)", 2},
        {"with a line",
         [](Columns& c) {
             c.SetLineBetween(true);
             c.Auto(300, 0);
         },
         R"(\linebetcol\cols300\colsx0)", 300},
        {"less than none", [](Columns& c) { c.Auto(-1, 0.5); }, "", -1},
        {"one", [](Columns& c) { c.Add(3, 0.5); }, R"(\cols1\colno1\colw4320)", 1},
        {"listed",
         [](Columns& c) {
             c.Add(3, 0.5);
             c.Add(1, 1)->SetWidth(2);
         },
         R"(\cols2\colno1\colw4320\colsr720\colno2\colw2880)", 2},
        {"listed after automatic",
         [](Columns& c) {
             c.Auto(3, 0.5);
             c.Add(1, 1);
         },
         R"(\cols1\colno1\colw1440)", 1},
        {"automatic after listed",
         [](Columns& c) {
             c.Add(1, 1);
             c.Auto(3, 0.5);
         },
         R"(\cols3\colsx720)", 3},
        {"cleared: the spacing is back, the line stays, numbers start again",
         [](Columns& c) {
             c.SetLineBetween(true);
             c.Add(1, 1);
             c.Auto(3, 0.5);
             c.Clear();
             EXPECT_EQ(c.Spacing(), 0.25);
             c.Add(2, 1);
         },
         R"(\linebetcol\cols1\colno1\colw2880)", 1},
    };
    for (const auto& [name, set, words, count] : cases) {
        Built built;
        auto section = built.document->AddSection();
        set(*section->Columns());
        EXPECT_EQ(section->Columns()->Count(), count) << name;
        EXPECT_NE(Words(built.File()).find("\\sbkpage" + words + "\\pgwsxn"), std::string::npos) << name;
    }
}

TEST(Columns, SpacingIsNeverSet) {
    struct {
        dwScaleMode scale;
        double value;
        std::int32_t refusal;
    } const cases[]{
        {dwInches, 0.25, dwRunOverflow},  // 360 twips, then 360 inches
        {dwInches, 0, dwRunOutOfStackSpace},     {dwInches, 0.0001, dwRunOutOfStackSpace},  // 0 twips
        {dwInches, std::nan(""), dwRunOverflow}, {dwPoints, 1, dwRunOverflow},  // 20, 400, 8000, 160000
        {dwPoints, -0.02, dwRunOutOfStackSpace}, {dwTwips, 360, dwRunOutOfStackSpace},
        {dwTwips, 2.5, dwRunOutOfStackSpace},    {dwTwips, 40000, dwRunOverflow},
    };
    for (const auto& [scale, value, refusal] : cases) {
        Built built;
        auto columns = built.document->AddSection()->Columns();
        built.document->SetScaleMode(scale);
        EXPECT_EQ(RefusalNumber([&, length = value] { columns->SetSpacing(length); }), refusal) << value;
        built.document->SetScaleMode(dwTwips);
        EXPECT_EQ(columns->Spacing(), 360) << value;
    }
}

TEST(Columns, AreGivenOutByPosition) {
    Built built;
    auto columns = built.document->AddSection()->Columns();
    columns->Auto(2, 1);
    EXPECT_EQ(columns->Items(1), nullptr);
    auto first = columns->Add(1, 0.5);
    EXPECT_EQ(columns->Items(1), first);
    EXPECT_EQ(first->Spacing(), 0.5);
    EXPECT_EQ(first->Parent(), built.document->CurrentSection());
    for (const std::int32_t index : {0, 2, 255}) EXPECT_EQ(RefusalNumber([&] { columns->Items(index); }), 9);
    for (const std::int32_t index : {-1, 256}) EXPECT_EQ(RefusalNumber([&] { columns->Items(index); }), 6);
    for (int i = 2; i <= 255; ++i) columns->Add(0.01, 0);
    EXPECT_EQ(RefusalNumber([&] { columns->Add(0.01, 0); }), dwRunOverflow);
    EXPECT_EQ(columns->Count(), 255);
    EXPECT_NE(Words(built.File()).find("\\colsr0\\colno255\\colw14\\pgwsxn"), std::string::npos);
}

TEST(Columns, RefusedStayAsTheyWere) {
    Built built;
    auto section = built.document->AddSection();
    auto columns = section->Columns();
    auto column = columns->Add(1, 1);
    EXPECT_EQ(RefusalNumber([&] { columns->Add(23, 1); }), dwRunOverflow);
    EXPECT_EQ(RefusalNumber([&] { columns->Add(1, 23); }), dwRunOverflow);
    EXPECT_EQ(RefusalNumber([&] { columns->Auto(2, 23); }), dwRunOverflow);
    section->AddParagraph();
    const std::function<void()> changes[]{
        [&] { columns->Add(1, 1); },
        [&] { columns->Auto(2, 1); },
        [&] { columns->Clear(); },
        [&] { columns->SetSpacing(1); },
    };
    const std::string refused = "X109 Invalid operation.  Target already emitted Section.";
    for (const auto& change : changes) EXPECT_EQ(Refusal(change), refused);
    EXPECT_EQ(columns->Count(), 1);
    columns.reset();
    section.reset();
    built.document->AddSection();
    EXPECT_EQ(column->Parent(), nullptr);
    EXPECT_EQ(Refusal([&] { column->SetWidth(1); }), refused);
    EXPECT_EQ(column->Width(), 1);
}

}  // namespace draftwick::test
