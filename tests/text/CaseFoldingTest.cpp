#include <draftwick/text/CaseFolding.h>

#include <gtest/gtest.h>

namespace draftwick {
namespace {

TEST(CaseFolding, FoldsCharacterByCharacter) {
    struct Case {
        std::string_view text;
        std::string_view folded;
    };
    constexpr Case cases[] = {
        {"@AZ[`az{", "@az[`az{"},
        {"ÀÖ×ØÞ", "àö×øþ"},  // the multiplication sign stands between two ranges
        {"ĀāŽž", "āāžž"},    // pairs: every second character folds
        {"Ÿ", "ÿ"},          // by a negative distance
        {"µſ", "μs"},        // into another block, and into ASCII
        {"ΣσςΩ", "σσσω"},    // the Greek letter with two small forms
        {"ЀЯяѐ", "ѐяяѐ"},
        {"K\u212A\u2126", "kkω"},              // the kelvin and the ohm sign
        {"ß\u1E9E", "ßß"},                     // simple folding: never "ss"
        {"Iıİ", "iıİ"},                        // the Turkish letters stay apart, whatever the locale
        {"\u13A0\u13F8\uAB70", "ᎠᏰᎠ"},         // Cherokee folds to its capital letters
        {"\U00010400\U0001E921", "𐐨𞥃"},  // beyond the basic plane; the last range
        {"日本 😀", "日本 😀"},
        {"A\xC3Z\xFF", "a\uFFFDz\uFFFD"},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(FoldCase(c.text), c.folded) << c.text;
        EXPECT_EQ(FoldCase(c.folded), c.folded) << c.text;
    }
}

}  // namespace
}  // namespace draftwick
