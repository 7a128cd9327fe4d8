#include <draftwick/text/Utf8.h>

#include <gtest/gtest.h>

namespace draftwick {
namespace {

struct Case {
    std::string_view bytes;
    std::u32string_view characters;
};

constexpr char32_t FFFD = ReplacementCharacter;
#define R U"\uFFFD"

// The tables of malformed sequences in The Unicode Standard, section 3.9, and each bound from both sides.
constexpr Case Cases[] = {
    {"", U""},
    {"a\x7F", U"a\u007F"},
    {"\xC2\x80\xDF\xBF", U"\u0080\u07FF"},
    {"\xE0\xA0\x80\xEF\xBF\xBF", U"\u0800\uFFFF"},
    {"\xED\x9F\xBF\xEE\x80\x80", U"\uD7FF\uE000"},
    {"\xF0\x90\x80\x80\xF4\x8F\xBF\xBF", U"\U00010000\U0010FFFF"},
    {"\x80\xBF", R R},                          // stray continuation bytes
    {"\xC0\xAF\xC1\xBF", R R R R},              // overlong in two bytes
    {"\xE0\x9F\xBFz", R R R U"z"},              // overlong in three
    {"\xF0\x8F\xBF\xBFz", R R R R U"z"},        // overlong in four
    {"\xED\xA0\x80\xED\xBF\xBF", R R R R R R},  // surrogates
    {"\xF4\x90\x80\x80\xF5\xFFz", R R R R R R U"z"},
    {"\xC3", R},
    {"\xC3(", R U"("},
    {"\xE2\x82", R},
    {"\xE2\x82\xE2\x82\xACz", R U"\u20ACz"},
    {"\xF0\x9F\x98", R},
    {"\xF0\x9F\x98z", R U"z"},
    {"\xE1\x80\xE2\xF0\x91\x92\xF1\xBFz", R R R R U"z"},
};

#undef R

TEST(Utf8, DecodesStrictly) {
    for (const Case& c : Cases) {
        std::u32string decoded;
        for (std::size_t position = 0; position < c.bytes.size();) {
            decoded.push_back(DecodeUtf8(c.bytes, position));
        }
        EXPECT_EQ(decoded, c.characters) << testing::PrintToString(c.bytes);

        const bool valid = c.characters.find(FFFD) == std::u32string_view::npos;
        EXPECT_EQ(IsValidUtf8(c.bytes), valid) << testing::PrintToString(c.bytes);

        std::string encoded;
        for (const char32_t character : c.characters) AppendUtf8(encoded, character);
        EXPECT_EQ(ToValidUtf8(c.bytes), encoded) << testing::PrintToString(c.bytes);
        if (valid) {
            EXPECT_EQ(encoded, c.bytes);
        }
    }
}

TEST(Utf8, EncodesOnlyCharacters) {
    std::string text;
    for (const char32_t character : {0xD800u, 0xDFFFu, 0x110000u, 0xFFFFFFFFu}) {
        AppendUtf8(text, character);
    }
    EXPECT_EQ(text, "\xEF\xBF\xBD\xEF\xBF\xBD\xEF\xBF\xBD\xEF\xBF\xBD");
}

// Plain ASCII is skipped eight bytes at a time: a fault must be found at every place of a word and in the tail.
TEST(Utf8, FindsOneBadByteAtEveryPosition) {
    for (std::size_t length = 1; length <= 17; ++length) {
        for (std::size_t bad = 0; bad < length; ++bad) {
            std::string text(length, 'x');
            EXPECT_TRUE(IsValidUtf8(text));
            text[bad] = '\xFF';
            EXPECT_FALSE(IsValidUtf8(text)) << bad << " of " << length;
            const std::string mended = text.substr(0, bad) + "\xEF\xBF\xBD" + text.substr(bad + 1);
            EXPECT_EQ(ToValidUtf8(text), mended);
        }
    }
}

}  // namespace
}  // namespace draftwick
