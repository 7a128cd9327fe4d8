#include "tests/support/Documents.h"

#include <cmath>
#include <limits>

namespace draftwick::test {

namespace {

/// What the properties of a document are written as.
std::string PropertyWords(const std::function<void(Properties&)>& set) {
    return Between(Written([&](Document& document) { set(*document.Properties()); }), R"({\rtf1)",
                   R"(\deftab)");
}

}  // namespace

TEST(Properties, AreWrittenWhenTheyHaveAValue) {
    EXPECT_EQ(PropertyWords([](Properties& all) {
                  all.Add("None", {}), all.Items("Title")->SetValue("x"), all.Items("Title")->SetValue({});
              }),
              "");
    EXPECT_EQ(PropertyWords([](Properties& all) {
                  all.Items(dwBIPCharacters)->SetValue(-5), all.Items(dwBIPTitle)->SetValue("");
              }),
              R"({\info{\title}{\nofchars-5}})");
}

TEST(Properties, HaveTheirWordsInOrder) {
    const std::string words = PropertyWords([](Properties& all) {
        for (std::int32_t i = dwBIPCharacters; i >= dwBIPVersion; --i) all.Items(i)->SetValue(i);
        for (std::int32_t i = dwBIPBackupTime; i >= dwBIPCreationTime; --i) {
            all.Items(i)->SetValue(Date{2000 + i, 2, 3, 4, 5, 6});
        }
        for (std::int32_t i = dwBIPHyperlinkBase; i >= dwBIPTitle; --i) {
            all.Items(i)->SetValue(std::to_string(i) + "{");
        }
    });
    const std::string time = R"(\mo2\dy3\hr4\min5\sec6})";
    EXPECT_EQ(words, R"({\info{\title 1\{}{\subject 2\{}{\author 3\{}{\manager 4\{}{\company 5\{})"
                     R"({\operator 6\{}{\category 7\{}{\keywords 8\{}{\comment 9\{}{\doccomm 10\{})"
                     R"({\hlinkbase 11\{}{\creatim\yr2012)"
                         + time + R"({\revtim\yr2013)" + time + R"({\printim\yr2014)" + time
                         + R"({\buptim\yr2015)" + time
                         + R"({\version16}{\edmins17}{\nofpages18}{\nofwords19}{\nofchars20}})");
}

TEST(Properties, OfTheHostHaveTypesAndLinks) {
    const std::string words = PropertyWords([](Properties& all) {
        all.Add("A {1}", "b\\", "mark_1");
        all.Add("Nothing", {}, "mark_2");
        all.Add("Count", 12);
    });
    EXPECT_EQ(words, R"({\*\userprops{\propname A \{1\}}\proptype30{\staticval b\\}{\linkval mark_1})"
                     R"({\propname Count}\proptype3{\staticval 12}})");
    struct {
        Variant value;
        std::string expected;
    } const cases[] = {
        {std::string{}, R"(\proptype30{\staticval)"},
        {std::numeric_limits<std::int32_t>::min(), R"(\proptype3{\staticval -2147483648)"},
        {0.1, R"(\proptype5{\staticval 0.1)"},
        {-2.0, R"(\proptype5{\staticval -2)"},
        {true, R"(\proptype11{\staticval 1)"},
        {false, R"(\proptype11{\staticval 0)"},
        {Date{987, 6, 5, 4, 3, 2}, R"(\proptype64{\staticval 0987-06-05T04:03:02)"},
    };
    for (const auto& test : cases) {
        const std::string all = PropertyWords([&](Properties& p) { p.Add("P", test.value); });
        EXPECT_EQ(all, R"({\*\userprops{\propname P})" + test.expected + "}}");
    }
}

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
    const std::string words = PropertyWords([&](Properties& all) {
        EXPECT_EQ(all.Items("hyperlinkBASE")->Name(), "HyperlinkBase");
        EXPECT_EQ(all.Items(dwBIPEditingMinutes)->Name(), "EditingMinutes");
        EXPECT_EQ(Refusal([&] { all.Items(21); }), "X112 Item not found '21'.");
        EXPECT_EQ(Refusal([&] { all.Add("", 1); }), "X102 Names for Properties can't be zero length.");
        EXPECT_EQ(Refusal([&] { all.Add("tITLE", 1); }),
                  "X108 An object already exists in this collection with the name tITLE.");
        const auto removed = all.Add("A", 1);
        all.Add("B", 2);
        all.Add("C", 3);
        all.Remove("a");
        removed->SetValue("still here");
        EXPECT_EQ(removed->Value(), Variant{std::string{"still here"}});
        EXPECT_EQ(all.Items(21)->Name(), "B");
        EXPECT_EQ(all.Items("c"), all.Items(22));
        EXPECT_EQ(Refusal([&] { all.Remove("A"); }), "X112 Item not found 'A'.");
        EXPECT_EQ(Refusal([&] { all.Remove(23); }), "X112 Item not found '23'.");
        EXPECT_EQ(Refusal([&] { all.Remove("title"); }), "X103 You cannot remove built-in property Title.");
        all.Remove(21);
        all.Add("A", 4);
    });
    EXPECT_EQ(words,
              R"({\*\userprops{\propname C}\proptype3{\staticval 3}{\propname A}\proptype3{\staticval 4}})");
}

TEST(Properties, AreReachedByNamesAndWrittenForGoodWithTheDocument) {
    const TestDocument document;
    const auto all = document->Properties();
    Call(*all, "Add", {std::string{"A"}, Date{2024, 2, 29}, std::string{"mark"}});
    const auto property = std::get<std::shared_ptr<Object>>(Call(*all, "Items", {std::string{"a"}}));
    EXPECT_EQ(Get(*property, "Value"), (Variant{Date{2024, 2, 29}}));
    EXPECT_EQ(Get(*property, "LinkTo"), Variant{std::string{"mark"}});
    Set(*property, "Value", true);
    EXPECT_EQ(Get(*property, "Type"), Variant{dwPTBoolean});
    document->AddSection();
    EXPECT_EQ(Refusal([&] { all->Add("", {}); }), Emitted("Document"));
    EXPECT_EQ(Refusal([&] { all->Remove("missing"); }), Emitted("Document"));
    EXPECT_EQ(Refusal([&] { all->Items("Title")->SetLinkTo("x"); }), Emitted("Document"));
    EXPECT_EQ(all->Items("A")->Value(), Variant{true});
}

}  // namespace draftwick::test
