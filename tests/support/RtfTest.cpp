#include "tests/support/Rtf.h"

#include <gtest/gtest.h>

namespace draftwick::test {

// A check that lets everything pass would be found by no other test.
TEST(Rtf, ChecksWholeFiles) {
    using namespace std::string_literals;
    const std::pair<std::string, std::string> cases[] = {
        {"{\\rtf1 a\\{\r\n{b}\\a-2147483648\\'9F}\r\n", ""},
        {"{\\rtf1 a}", "Not just CR LF after the document"},
        {"{\\rtf1 a}{}\r\n", "Not just CR LF after the document"},
        {"{\\rtf1 a}}\r\n", "Not just CR LF after the document"},
        {"{\\rtf1 {a}\r\n", "Group never ends"},
        {"{\\rtf1 a\nb}\r\n", "Lone line break"},
        {"{\\rtf1\r\n\rb}\r\n", "Lone line break"},
        {"{\\rtf1 \0}\r\n"s, "Zero byte"},
        {"{\\rtf a}\r\n", "No {\\rtf1"},
        {"{\\rtf1\\'}}\r\n", "No two hexadecimal digits"},
        {"{\\rtf1\\a2147483648}\r\n", "Number of more than 32 bits"},
        {"{\\rtf1\\" + std::string(33, 'w') + "}\r\n", "Word of more than 32 letters"},
    };
    for (const auto& [bytes, complaint] : cases) EXPECT_EQ(CheckFile(bytes), complaint) << bytes;
    EXPECT_EQ(CheckFile("{\\rtf1 a\nb}\r\n", LineBreaks::Any), "");
}

TEST(Rtf, SpellsWhatIsTheSameInOneWay) {
    for (const char* rtf :
         {"{\\b\\i1 ab\\par}", "{\\b \\i1 a\r\nb\\par }", "{\r\n\\b\r\n\\i1\r\nab\\par\r\n}"}) {
        EXPECT_EQ(Words(rtf), "{\\b\\i1 ab\\par}");
    }
    EXPECT_EQ(Words("\\i1  a"), "\\i1  a");
    EXPECT_EQ(Words("\\* a\\'e9 b\\{c"), "\\* a\\'e9 b\\{c");
}

TEST(Rtf, ShowsTheFirstWordThatDiffers) {
    EXPECT_EQ(FirstDifference("\\a\\b12 x", "\\a\\b13 x"),
              "alike:    \\a\nexpected: \\b12 x\nactual:   \\b13 x");
    EXPECT_EQ(FirstDifference("\\a", "\\a\r\n\\b"), "alike:    \nexpected: \\a\nactual:   \\a<CRLF>\\b");
    EXPECT_EQ(FirstDifference("", "x"), "alike:    \nexpected: \nactual:   x");
}

}  // namespace draftwick::test
