#include "tests/support/Rtf.h"

#include <gtest/gtest.h>

namespace draftwick::test {
namespace {

TEST(Rtf, SplitsAsReadersDo) {
    const std::vector<Token> expected = {
        {Token::GroupStart, "{", {}, 0},    {Token::Symbol, "*", {}, 1},
        {Token::Word, "li", -720, 3, true},  // one space belongs to the word, the next is text
        {Token::Text, " a-1", {}, 11},      {Token::Text, "b", {}, 17},
        {Token::Hex, "e9", 0xE9, 18},       {Token::Word, "par", {}, 22},
        {Token::Text, "-x", {}, 26},        {Token::Symbol, "\n", {}, 28},
        {Token::Symbol, "}", {}, 31},       {Token::GroupEnd, "}", {}, 33},
    };
    EXPECT_EQ(Lex("{\\*\\li-720  a-1\r\nb\\'e9\\par-x\\\r\n\\}}"), expected);
}

TEST(Rtf, RefusesWhatReadersCannotRead) {
    struct Case {
        std::string rtf;
        std::optional<std::size_t> offset;
    };
    const Case cases[] = {
        {"a\\", 1},
        {"a\\" + std::string(32, 'w'), {}},
        {"a\\" + std::string(33, 'w'), 1},
        {"\\a2147483647\\a-2147483648", {}},
        {"\\a2147483648", 0},
        {"x\\'e", 1},
        {"\\'-1", 0},
        {"\\'g0", 0},
    };
    for (const Case& c : cases) {
        std::optional<std::size_t> offset;
        try {
            Lex(c.rtf);
        } catch (const MalformedRtf& malformed) {
            offset = malformed.offset;
        }
        EXPECT_EQ(offset, c.offset) << c.rtf;
    }
}

TEST(Rtf, ChecksWholeFiles) {
    using namespace std::string_literals;
    struct Case {
        std::string bytes;
        std::string complaint;
    };
    const Case cases[] = {
        {"{\\rtf1 a\\{\r\n{b}}\r\n", ""},
        {"{\\rtf1 a}", "Not just CR LF after the document at byte 9"},
        {"{\\rtf1 a}\r\n\r\n", "Not just CR LF after the document at byte 9"},
        {"{\\rtf1 a}{}\r\n", "Not just CR LF after the document at byte 9"},
        {"{\\rtf1 a}}\r\n", "Group ends that never began at byte 9"},
        {"{\\rtf1 {a}\r\n", "Group never ends that began at byte 0"},
        {"{\\rtf1 a\nb}\r\n", "Line break other than CR LF at byte 8"},
        {"{\\rtf1\r\n\rb}\r\n", "Line break other than CR LF at byte 8"},
        {"{\\rtf1 \0}\r\n"s, "Zero byte at byte 7"},
        {"{\\rtf a}\r\n", "No {\\rtf1 at byte 0"},
        {"{\\rtf1 \\'}}\r\n", "No two hexadecimal digits at byte 7"},
    };
    for (const Case& c : cases) {
        std::string complaints;
        for (const std::string& complaint : CheckFile(c.bytes)) complaints += complaint;
        EXPECT_EQ(complaints, c.complaint) << c.bytes;
    }
    EXPECT_TRUE(CheckFile("{\\rtf1 a\nb}\r\n", LineBreaks::Any).empty());
}

TEST(Rtf, SpellsWhatIsTheSameInOneWay) {
    constexpr std::string_view same[] = {
        "{\\b\\i1 ab\\par}",
        "{\\b \\i1 a\r\nb\\par }",
        "{\r\n\\b\r\n\\i1\r\nab\\par\r\n}",
    };
    for (const std::string_view rtf : same) EXPECT_EQ(Words(rtf), same[0]);
    EXPECT_EQ(Words("\\i1  a"), "\\i1  a");
    EXPECT_EQ(Words("\\i1\r\n a"), "\\i1  a");
    EXPECT_EQ(Words("\\* a\\'e9 b"), "\\* a\\'e9 b");
}

}  // namespace
}  // namespace draftwick::test
