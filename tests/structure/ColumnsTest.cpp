#include "tests/support/Documents.h"

#include <cmath>

namespace draftwick::test {

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
        TestDocument document(scale);
        auto columns = document->AddSection()->Columns();
        EXPECT_EQ(RefusalNumber([&, length = value] { columns->SetSpacing(length); }), refusal) << value;
        document->SetScaleMode(dwTwips);
        EXPECT_EQ(columns->Spacing(), 360) << value;
    }
}

TEST(Columns, AreGivenOutByPosition) {
    TestDocument document;
    auto section = document->AddSection();
    auto columns = section->Columns();
    columns->Auto(2, 1);
    columns->Clear();
    EXPECT_EQ(columns->Spacing(), 0.25);
    columns->Auto(2, 1);
    EXPECT_EQ(columns->Items(1), nullptr);
    auto first = columns->Add(1, 0.5);
    EXPECT_EQ(columns->Items(1), first);
    EXPECT_EQ(first->Spacing(), 0.5);
    EXPECT_EQ(first->Parent(), section);
    for (const std::int32_t index : {0, 2, 255}) EXPECT_EQ(RefusalNumber([&] { columns->Items(index); }), 9);
    for (const std::int32_t index : {-1, 256}) EXPECT_EQ(RefusalNumber([&] { columns->Items(index); }), 6);
    for (const auto& [width, spacing] : {std::pair(23, 1), {1, 23}}) {
        EXPECT_EQ(RefusalNumber([&, w = width, s = spacing] { columns->Add(w, s); }), dwRunOverflow);
    }
    EXPECT_EQ(RefusalNumber([&] { columns->Auto(2, 23); }), dwRunOverflow);
    EXPECT_EQ(columns->Count(), 1);
    for (int i = 2; i <= 255; ++i) columns->Add(0.01, 0);
    EXPECT_EQ(RefusalNumber([&] { columns->Add(0.01, 0); }), dwRunOverflow);
    EXPECT_EQ(columns->Count(), 255);
    section->AddParagraph();
    columns.reset(), section.reset();
    document->AddSection();
    EXPECT_EQ(first->Parent(), nullptr);
    EXPECT_EQ(Refusal([&] { first->SetWidth(2); }), Emitted("Section"));
    EXPECT_EQ(first->Width(), 1);
    EXPECT_NE(Words(document.Finish()).find("\\colsr0\\colno255\\colw14\\pgwsxn"), std::string::npos);
}

}  // namespace draftwick::test
