#include <draftwick/text/Escape.h>

#include <gtest/gtest.h>

#include <string>

namespace draftwick::test {

// Eight bytes are looked at together: what is special is found wherever it stands, and nothing else changes.
TEST(Escape, FindsWhatIsSpecialAtEveryPosition) {
    const struct {
        std::string text, classic, lines;
        Letters letters = Letters::Ascii;
    } cases[] = {
        {"\\", "\\\\", "\\\\"},
        {"{", "\\{", "\\{"},
        {"}", "\\}", "\\}"},
        {"\t", "\\tab ", "\\tab "},
        {"\r\n ", "\\line ", "\\line  "},
        {"\n", "\n", "\\line "},
        {"\x1F~|[]", "\x1F~|[]", "\x1F~|[]"},
        {"\u00E9", "\u00E9", "\u00E9", Letters::Western},
        {"\u20AC", "\u20AC", "\u20AC", Letters::Western},
        {"\u05D0", "\u05D0", "\u05D0", Letters::Any},
        {"\U0001F600", "\U0001F600", "\U0001F600", Letters::Any},
        {"\x80", "\uFFFD", "\uFFFD", Letters::Western},
        {"\xE2\x82", "\uFFFD", "\uFFFD", Letters::Western},
    };
    for (const auto& c : cases) {
        for (std::size_t before = 0; before < 20; ++before) {
            for (std::size_t after = 0; after < 20; ++after) {
                const std::string left(before, 'a'), right(after, 'z');
                std::string escaped = "x";
                EXPECT_EQ(AppendEscaped(escaped, left + c.text + right, Escaping::Classic), c.letters)
                    << c.text;
                EXPECT_EQ(escaped, "x" + left + c.classic + right);
                EXPECT_EQ(EscapeText(left + c.text + right, Escaping::Lines), left + c.lines + right);
            }
        }
    }
}

}  // namespace draftwick::test
