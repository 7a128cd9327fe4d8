#include <draftwick/base/Units.h>
#include <draftwick/rtf/Words.h>

#include <gtest/gtest.h>

#include <type_traits>

namespace draftwick::test {

TEST(Words, AreAsManyAsTheirEnumerationHasValues) {
    using Three = Words<dwScaleMode>;
    static_assert(std::is_constructible_v<Three, const char*, const char*, const char*>);
    static_assert(!std::is_constructible_v<Three, const char*, const char*>, "too few");
    static_assert(!std::is_constructible_v<Three, const char*, const char*, const char*, const char*>,
                  "too many");
    static constexpr Three Units{"in", "", "pt"};
    EXPECT_EQ(Units[dwInches], "in");
    EXPECT_EQ(WordList{Units}[dwPoints], "pt");
    EXPECT_EQ(Units[static_cast<dwScaleMode>(0)], "");
    EXPECT_EQ(Units[static_cast<dwScaleMode>(4)], "");
    EXPECT_EQ(WordList{Units}[4], "");
}

}  // namespace draftwick::test
