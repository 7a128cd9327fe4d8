#include "tests/support/FakePlatform.h"

#include <draftwick/rtf/Output.h>

#include <gtest/gtest.h>

#include <functional>
#include <string>

namespace draftwick::test {

namespace {

/// The bytes of a file after what `write` wrote to it.
std::string Written(const std::function<void(Output&)>& write) {
    auto files = std::make_shared<MemoryFiles>();
    std::error_code error;
    BlockWriter stream(files->Create("out", platform::Creation::Overwrite, error), "out");
    Output output;
    output.SetStream(&stream);
    write(output);
    output.FlushLine();
    stream.Close();
    return files->Bytes("out");
}

std::string X(std::size_t count) { return std::string(count, 'x'); }

}  // namespace

TEST(Output, DelimitsWordsFromText) {
    const struct {
        std::function<void(Output&)> write;
        std::string expected;
    } cases[] = {
        {[](Output& o) { o.WriteControlWord("b"), o.WriteText("x"), o.WriteText("y"); }, "\\b xy"},
        {[](Output& o) { o.WriteControlWord("li", -360), o.WriteControlWord("b"); }, "\\li-360\\b"},
        {[](Output& o) { o.WriteControlWord("b"), o.WriteText(""), o.WriteText("y"); }, "\\b y"},
        {[](Output& o) { o.WriteControlWord("b"), o.WriteGroupStart(), o.WriteText("x"); }, "\\b{x"},
        {[](Output& o) { o.WriteControlWord("b"), o.WriteGroupEnd(), o.WriteText("x"); }, "\\b}x"},
        {[](Output& o) { o.WriteControlWord("b"), o.WriteDestinationStart(), o.WriteText("x"); },
         "\\b{\\* x"},
        {[](Output& o) { o.WriteText("a"), o.WriteDestinationStart(), o.WriteText("x"); }, "a{\\*x"},
        {[](Output& o) { o.WriteControlWord("b"), o.FlushLine(), o.WriteText("x"); }, "\\b\r\n x"},
        {[](Output& o) { o.FlushLine(), o.WriteText("x"), o.FlushLine(), o.FlushLine(); }, "x"},
        {[](Output& o) { o.WriteControlWord("n", -2147483648); }, "\\n-2147483648"},
    };
    for (const auto& [write, expected] : cases) EXPECT_EQ(Written(write), expected + "\r\n");
}

TEST(Output, EndsLinesAfterTheAppendThatReaches128Characters) {
    const struct {
        std::function<void(Output&)> write;
        std::string expected;
    } cases[] = {
        {[](Output& o) { o.WriteText(X(127)), o.WriteText("ab"), o.WriteText("c"); }, X(127) + "ab\r\nc\r\n"},
        {[](Output& o) { o.WriteText(X(128)), o.WriteText("c"); }, X(128) + "\r\nc\r\n"},
        {[](Output& o) { o.WriteText(X(126)), o.WriteText("a"), o.WriteText("b"), o.WriteText("c"); },
         X(126) + "ab\r\nc\r\n"},
        // A break delimits a word as well as a space: no space follows.
        {[](Output& o) { o.WriteText(X(126)), o.WriteControlWord("b"), o.WriteText("c"); },
         X(126) + "\\b\r\nc\r\n"},
        {[](Output& o) { o.WriteText(X(125)), o.WriteControlWord("b"), o.WriteText("c"); },
         X(125) + "\\b c\r\n"},
        // The space and its text are one append.
        {[](Output& o) { o.WriteText(X(124)), o.WriteControlWord("b"), o.WriteText("cd"), o.WriteText("e"); },
         X(124) + "\\b cd\r\ne\r\n"},
        // "{\*" keeps a word's need of a space, unless it ends the line.
        {[](Output& o) {
             o.WriteText(X(123)), o.WriteControlWord("b"), o.WriteDestinationStart(), o.WriteText("c");
         },
         X(123) + "\\b{\\*\r\nc\r\n"},
        // Characters of the file are counted, not bytes of UTF-8.
        {[](Output& o) { o.WriteText(X(125) + "\xC3\xA9\xE2\x82\xAC"), o.WriteText("c"); },
         X(125) + "\xE9\x80" + "c\r\n"},
        {[](Output& o) { o.WriteText(X(2000)), o.WriteText("c"); }, X(2000) + "\r\nc\r\n"},
    };
    for (const auto& [write, expected] : cases) EXPECT_EQ(Written(write), expected);
}

TEST(Output, TakesLineBreaksOutOfLongLinesOnly) {
    const struct {
        std::string text;
        std::string expected;
    } cases[] = {
        {"a\r\nb", "a\r\nb\r\n"},
        {X(126) + "\r\nb", X(126) + "b\r\n"},
        {X(126) + "\r\r\n\nb", X(126) + "\r\nb\r\n"},  // one pass
        {X(126) + "\rb\nc", X(126) + "\rb\nc\r\n"},
        // Wherever a pair falls in a text that is longer than any buffer.
        {X(1023) + "\r\n" + X(5), X(1028) + "\r\n"},
        {X(1022) + "\r\n" + X(5), X(1027) + "\r\n"},
        {X(1024) + "\r\n" + X(2046) + "\r\n", X(3070) + "\r\n"},
        {X(1023) + "\r" + X(3), X(1023) + "\r" + X(3) + "\r\n"},
        {X(1023) + "\r\r\n\n" + X(3), X(1023) + "\r\n" + X(3) + "\r\n"},
    };
    for (const auto& [text, expected] : cases) {
        EXPECT_EQ(Written([&text = text](Output& o) { o.WriteText(text); }), expected);
    }
    EXPECT_EQ(Written([](Output& o) { o.WriteText("a\r"), o.WriteText("\n" + X(130)); }),
              "a" + X(130) + "\r\n");
}

TEST(Output, EncodesCharactersWhereverTheyStand) {
    // Around eight bytes, a piece of 64, and the room of a line.
    for (const std::size_t begin : std::initializer_list<std::size_t>{0, 55, 500, 1010}) {
        for (std::size_t before = begin; before < begin + 20; ++before) {
            for (std::size_t after = 0; after < 10; ++after) {
                const std::string text = X(before) + "\xE2\x80\xA6\xC3\xA9" + X(after);
                EXPECT_EQ(Written([&](Output& o) { o.WriteText(text); }),
                          X(before) + "\x85\xE9" + X(after) + "\r\n");
            }
            EXPECT_EQ(Written([&](Output& o) { o.WriteText(X(before) + "y", Letters::Ascii); }),
                      X(before) + "y\r\n");
        }
    }
}

TEST(Output, WritesAMegabyteAsOneLine) {
    std::string text;
    std::string expected;
    while (expected.size() < 1 << 20) {
        text += "plain words, caf\xC3\xA9, \xE2\x80\x9Cquoted\xE2\x80\x9D, \xE4\xB8\xAD\r\n";
        expected += "plain words, caf\xE9, \x93quoted\x94, ?";
    }
    EXPECT_EQ(Written([&](Output& o) { o.WriteText(text); }), expected + "\r\n");
}

}  // namespace draftwick::test
