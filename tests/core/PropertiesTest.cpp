#include "tests/support/Documents.h"

#include <cmath>

namespace draftwick::test {

TEST(Properties, TellDatesThatExist) {
    const TestDocument document;
    const auto property = document->Properties()->Items(dwBIPPrintTime);
    for (const Date& date : {Date{2024, 2, 29}, Date{2000, 2, 29}, Date{1, 1, 1},
                             Date{9999, 12, 31, 23, 59, 59}, Date{2023, 4, 30}}) {
        property->SetValue(date);
        EXPECT_EQ(property->Value(), Variant{date});
    }
    const Variant before = property->Value();
    for (const Date& date :
         {Date{2024, 2, 30}, Date{2023, 2, 29}, Date{1900, 2, 29}, Date{2023, 4, 31}, Date{0, 1, 1},
          Date{10000, 1, 1}, Date{2024, 0, 1}, Date{2024, 13, 1}, Date{2024, 1, 0}, Date{2024, 1, 32},
          Date{2024, 1, 1, 24}, Date{2024, 1, 1, 0, 60}, Date{2024, 1, 1, 0, 0, 60}, Date{2024, 1, 1, -1},
          Date{}}) {
        EXPECT_EQ(RefusalNumber([&] { property->SetValue(date); }), dwRunInvalidCall);
        EXPECT_EQ(property->Value(), before);
    }
}

TEST(Properties, HoldValuesOfTheirType) {
    const TestDocument document;
    const auto all = document->Properties();
    const Variant values[] = {std::string{"x"}, Date{2024, 1, 1}, 1, 1.0, true};
    const dwPropertyType types[] = {dwPTText, dwPTDate, dwPTInteger, dwPTReal, dwPTBoolean};
    const Variant object{document->Self()};
    for (std::int32_t i = 1; i <= 20; ++i) {
        const auto builtIn = all->Items(i);
        const std::size_t own = i <= 11 ? 0 : i <= 15 ? 1 : 2;
        EXPECT_TRUE(builtIn->BuiltIn());
        for (std::size_t kind = 0; kind < 5; ++kind) {
            const auto refusal = RefusalNumber([&] { builtIn->SetValue(values[kind]); });
            EXPECT_EQ(refusal, kind == own ? 0 : dwRunTypeMismatch) << builtIn->Name();
        }
        EXPECT_EQ(RefusalNumber([&] { builtIn->SetLinkTo(""); }), dwRunInvalidCall);
        builtIn->SetValue({});
        EXPECT_EQ(builtIn->Type(), types[own]);
    }
    const auto custom = all->Add("Custom", {});
    EXPECT_FALSE(custom->BuiltIn());
    EXPECT_EQ(custom->Type(), dwPTText);
    for (std::size_t kind = 0; kind < 5; ++kind) {
        custom->SetValue(values[kind]);
        custom->SetValue({});
        EXPECT_EQ(custom->Type(), types[kind]);
    }
    custom->SetValue("kept");
    EXPECT_EQ(RefusalNumber([&] { custom->SetValue(object); }), dwRunTypeMismatch);
    EXPECT_EQ(RefusalNumber([&] { custom->SetValue(std::nan("")); }), dwRunOverflow);
    EXPECT_EQ(RefusalNumber([&] { custom->SetValue(HUGE_VAL); }), dwRunOverflow);
    EXPECT_EQ(RefusalNumber([&] { all->Add("Wrong", object); }), dwRunTypeMismatch);
    EXPECT_EQ(custom->Value(), Variant{std::string{"kept"}});
    EXPECT_EQ(all->Count(), 21);
    EXPECT_EQ(custom->Parent(), document.document);
}

TEST(Properties, AreFoundAndRemovedByNameAndPosition) {
    const TestDocument document;
    const auto all = document->Properties();
    EXPECT_EQ(all->Items("hyperlinkBASE")->Name(), "HyperlinkBase");
    EXPECT_EQ(all->Items(dwBIPEditingMinutes)->Name(), "EditingMinutes");
    EXPECT_EQ(Refusal([&] { all->Add("", 1); }), "X102 Names for Properties can't be zero length.");
    EXPECT_EQ(Refusal([&] { all->Add("tITLE", 1); }),
              "X108 An object already exists in this collection with the name tITLE.");
    const auto removed = all->Add("A", 1);
    for (const char* name : {"B", "C"}) all->Add(name, 2);
    all->Remove("a");
    removed->SetValue("still here");
    EXPECT_EQ(removed->Value(), Variant{std::string{"still here"}});
    EXPECT_EQ(all->Items(21)->Name(), "B");
    EXPECT_EQ(all->Items("c"), all->Items(22));
    EXPECT_EQ(Refusal([&] { all->Remove("A"); }), "X112 Item not found 'A'.");
    EXPECT_EQ(Refusal([&] { all->Remove(23); }), "X112 Item not found '23'.");
    EXPECT_EQ(Refusal([&] { all->Remove("title"); }), "X103 You cannot remove built-in property Title.");
    document->AddSection();
    EXPECT_EQ(Refusal([&] { all->Remove("missing"); }), Emitted("Document"));
}

}  // namespace draftwick::test
