#include "tests/support/Documents.h"

namespace draftwick::test {

TEST(NamedCollections, FindNamesInAnyCaseOfAnyScript) {
    const auto check = [](Document& document, auto collection, const std::string& own) {
        const auto sisyphus = collection->Add("ΣΊΣΥΦΟΣ");
        const auto street = collection->Add("Straße");
        EXPECT_EQ(sisyphus->Name(), "ΣΊΣΥΦΟΣ");
        EXPECT_EQ(sisyphus->Parent(), document.Self());
        EXPECT_EQ(collection->Items("σίσυφος"), sisyphus);  // with the sigma of the end of a word
        EXPECT_EQ(collection->Items("STRAßE"), street);
        EXPECT_EQ(Refusal([&] { collection->Items("STRASSE"); }), "X112 Item not found 'STRASSE'.");
        EXPECT_EQ(RefusalNumber([&] { collection->Add("Σίσυφος"); }), dwRunDuplicateKey);
        EXPECT_EQ(Refusal([&] { collection->Add(""); }), "X102 Names for " + own + " can't be zero length.");

        const auto two = collection->Add("2");
        EXPECT_EQ(collection->Items(2), street);
        EXPECT_EQ(std::get<std::shared_ptr<Object>>(Call(*collection, "Items", {3})), two);
        EXPECT_EQ(std::get<std::shared_ptr<Object>>(Call(*collection, "Items", {std::string{"2"}})), two);
        for (const int position : {0, 4, -1}) {
            EXPECT_EQ(Refusal([&] { collection->Items(position); }),
                      "X112 Item not found '" + std::to_string(position) + "'.");
        }
        std::string names;
        for (const auto& item : *collection) names += item->Name();
        EXPECT_EQ(names, "ΣΊΣΥΦΟΣStraße2");
    };
    const TestDocument built;
    check(*built.document, built->Fonts(), "Fonts");
    check(*built.document, built->Lists(), "Lists");
    check(*built.document, built->ParagraphStyles(), "Paragraph Styles");
    check(*built.document, built->TextStyles(), "Text Styles");
    for (const int level : {0, 10}) {
        EXPECT_EQ(RefusalNumber([&] { built->Lists()->Items(1)->Levels(level); }), dwRunSubscriptOutOfRange);
    }
    built->AddSection();
    EXPECT_EQ(Refusal([&] { built->Lists()->Add("3"); }), "accepted");
}

}  // namespace draftwick::test
