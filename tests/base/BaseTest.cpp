#include "tests/support/Errors.h"

#include <draftwick/base/Color.h>
#include <draftwick/base/Error.h>
#include <draftwick/base/Units.h>
#include <draftwick/platform/Platform.h>
#include <draftwick/platform/internal/CodePage.h>
#include <draftwick/text/Escape.h>

#include <gtest/gtest.h>

#include <array>
#include <cfenv>
#include <clocale>
#include <cmath>
#include <limits>
#include <string>
#include <utility>

namespace draftwick::test {

TEST(Units, RoundHalvesToEvenWhateverTheRoundingMode) {
    const struct {
        double value;
        dwScaleMode scale;
        std::int32_t twips;
    } cases[] = {
        {1.0, dwInches, 1440},
        {0.0007, dwInches, 1},
        {0.125, dwPoints, 2},
        {0.175, dwPoints, 4},
        {-0.125, dwPoints, -2},
        {2.5, dwTwips, 2},
        {3.5, dwTwips, 4},
        {-2.5, dwTwips, -2},
        {-3.5, dwTwips, -4},
        {0.5, dwTwips, 0},
        {1e6, dwTwips, 1000000},
        {5, static_cast<dwScaleMode>(0), 0},
        {5, static_cast<dwScaleMode>(4), 0},
    };
    for (const int mode : {FE_TONEAREST, FE_UPWARD, FE_TOWARDZERO}) {
        std::fesetround(mode);
        for (const auto& c : cases) {
            // Multiplication itself is rounded by the mode.
            if (mode == FE_TONEAREST || c.scale == dwTwips) {
                EXPECT_EQ(ToTwips(c.value, c.scale), c.twips) << c.value;
            }
        }
    }
    std::fesetround(FE_TONEAREST);
    for (const double wrong :
         {std::nan(""), std::numeric_limits<double>::infinity(), 2147483647.5, -2147483649.0}) {
        EXPECT_EQ(RefusalNumber([&] { ToTwips(wrong, dwTwips); }), dwRunOverflow) << wrong;
    }
}

TEST(Units, GoThereAndBack) {
    for (const dwScaleMode scale : {dwInches, dwTwips, dwPoints}) {
        for (std::int32_t twips = -32768; twips <= 32767; ++twips) {
            ASSERT_EQ(ToTwips(FromTwips(twips, scale), scale), twips);
        }
    }
    EXPECT_EQ(FromTwips(1440, static_cast<dwScaleMode>(9)), 0);
}

TEST(Units, OfALengthCountWhateverTheScaleModeIs) {
    for (const dwScaleMode scale : {dwInches, dwTwips, dwPoints}) {
        EXPECT_EQ(ToTwips(1_in, scale), 1440);
        EXPECT_EQ(ToTwips(2.54_cm, scale), 1440);
        EXPECT_EQ(ToTwips(127_mm, scale), 7200);
        EXPECT_EQ(ToTwips(-12_pt, scale), -240);
        EXPECT_EQ(ToTwips(3 * 0.5_in / 2, scale), 1080);
    }
    EXPECT_EQ(ToTwips(2 * Measure(1.5), dwPoints), 60);
}

TEST(Colors, AreMadeOfThreeBytes) {
    static_assert(Rgb(1, 2, 3) == 0x030201);
    for (const auto& wrong : {std::array{256, 0, 0}, std::array{0, -1, 0}, std::array{0, 0, 1000}})
        EXPECT_EQ(RefusalNumber([&] { Rgb(wrong[0], wrong[1], wrong[2]); }), dwRunOverflow);
}

TEST(Units, ConvertPictureSizes) {
    EXPECT_EQ(TwipsToHimetric(1440), 2540);
    EXPECT_EQ(TwipsToHimetric(72), 127);
    EXPECT_EQ(InchesToHimetric(0.00098425), 2);  // 2.4999...
    EXPECT_EQ(HimetricToPixels(2540), 96);
    EXPECT_EQ(HimetricToPixels(2539), 95);
    EXPECT_EQ(HimetricToPixels(-1), -1);
    EXPECT_EQ(HimetricToPixels(2540, 20), 72);
}

TEST(Ranges, TakeTheirBoundsInAnyOrder) {
    EXPECT_EQ(Refusal([] { CheckRange(2, 3, 1, "X"); }), "accepted");
    EXPECT_EQ(Refusal([] { CheckRange(0, 1, 3, "ScaleMode"); }),
              "X101 Property ScaleMode set to out of range value.");
}

TEST(Errors, SayWhatTheTableSays) {
    const struct {
        std::function<void()> raise;
        std::string expected;
        std::string source;
    } cases[] = {
        {[] { RaiseError(dwErrTargetEmitted, {std::string{"Section"}}); },
         "X109 Invalid operation.  Target already emitted Section.", "Draftwick"},
        {[] { RaiseError(dwErrShapesCantContainShapes); }, "X104 Shapes cannot contain shapes.", "Draftwick"},
        {[] { RaiseError(dwErrItemNotFound, {std::string{"%1"}}); }, "X112 Item not found '%1'.",
         "Draftwick"},
        {[] { RaiseError(dwErrItemNotFound, {7}); }, "X112 Item not found '%1'.", "Draftwick"},
        {[] { RaiseError(429); }, "429 There is no message for this error", "Draftwick"},
        {[] {
             RaiseError(-2147210989, {std::string{"%1 of %2"}, std::string{"one"}, std::string{"two"}});
         },
         "X10002 one of two", "Draftwick"},
        {[] { RaiseError(-2147210989, {3}); }, "X10002 There is no message for this error",
         "Draftwick Except"},
        {[] { RaiseRuntimeError(dwRunOverflow, "why"); }, "6 Overflow: why", ""},
    };
    for (const auto& [raise, expected, source] : cases) {
        try {
            raise();
            ADD_FAILURE() << expected;
        } catch (const Error& error) {
            EXPECT_EQ(ErrorNumberText(error.Number()) + " " + error.what(), expected);
            EXPECT_EQ(Error(error).Advice(), error.Number() == dwRunOverflow ? "why" : error.what());
            EXPECT_EQ(error.Source(), source);
            EXPECT_EQ(error.HelpFile(), source.empty() ? "" : "Draftwick.chm");
        }
    }
    EXPECT_EQ(ErrorNumberText(-2147220991), "-2147220991");
    EXPECT_EQ(ErrorNumberText(-2147220990), "X1");
    EXPECT_EQ(ErrorNumberText(-2147155457), "X65534");
    EXPECT_EQ(ErrorNumberText(-2147155456), "-2147155456");
}

TEST(Errors, AreLoggedWhenLoggingIsOn) {
    struct Recorder final : platform::EventLog {
        std::string text;
        void Report(std::string_view entry) noexcept override { text = entry; }
    } log;
    platform::SetEventLog(&log);
    RefusalNumber([] { RaiseError(dwErrNoViewer, {}, "advice"); });
    EXPECT_EQ(log.text, "");
    SetErrorLogging(true);
    RefusalNumber([] { RaiseError(dwErrNoViewer, {}, "advice"); });
    SetErrorLogging(false);
    platform::SetEventLog(nullptr);
    ASSERT_GT(log.text.size(), 19U);
    EXPECT_EQ(log.text.substr(19),
              "\r\nProduct: Draftwick\r\nVersion: 1.0.29\r\nNumber: X106\r\nSource: Draftwick\r\n"
              "No viewer program could be found.");
}

TEST(Text, IsEscapedInTheOrderOfTheRules) {
    const struct {
        std::string text;
        std::string escaped;
    } cases[] = {
        {"a\\b", "a\\\\b"},
        {"{x}", "\\{x\\}"},
        {"\tx\r\n y", "\\tab x\\line y"},
        {"x\r\ny", "x\\liney"},
        {"x\r\n", "x\\line"},
        {"\r\n\r\n  ", "\\line\\line  "},
        {"\r\n\t", "\\line\\tab "},
        {"\r \n\r", "\r \n\r"},
        {"\r\r\n\n", "\r\\line\n"},
        {std::string("a\0\x01z", 4), std::string("a\0\x01z", 4)},
        {"\xC3\xA9\xE2\x82\xAC", "\xC3\xA9\xE2\x82\xAC"},
        {"\xC3{\xFF", "\xEF\xBF\xBD\\{\xEF\xBF\xBD"},
    };
    for (const auto& [text, escaped] : cases) EXPECT_EQ(EscapeText(text), escaped);
}

// Texts are looked at eight bytes at a time: what is special must be found at every place in these and in the rest.
TEST(Text, IsEscapedWhereverItStands) {
    const std::pair<std::string, std::string> cases[] = {
        {"\\", "\\\\"}, {"{", "\\{"}, {"}", "\\}"}, {"\t", "\\tab "},         {"\r\n", "\\line"},
        {"\r", "\r"},   {"\n", "\n"}, {"|~", "|~"}, {"\xC3\xA9", "\xC3\xA9"}, {"\x80", "\xEF\xBF\xBD"},
    };
    for (const auto& [special, escaped] : cases) {
        for (std::size_t before = 0; before < 18; ++before) {
            for (std::size_t after = 0; after < 10; ++after) {
                const std::string start(before, 'z'), end(after, 'z');
                EXPECT_EQ(EscapeText(start + special + end), start + escaped + end);
            }
        }
    }
}

TEST(Text, HasByteEscapesWithoutLeadingZeros) {
    EXPECT_EQ(ASCIIChar(233), "\\'E9");
    EXPECT_EQ(ASCIIChar(9), "\\'9");
    EXPECT_EQ(ASCIIChar(0), "\\'0");
    EXPECT_EQ(RefusalNumber([] { ASCIIChar(256); }), dwRunOverflow);
    EXPECT_EQ(RefusalNumber([] { ASCIIChar(-1); }), dwRunOverflow);
}

TEST(Text, HasNumbersWithoutExponentOrLocale) {
    const char* before = std::setlocale(LC_ALL, nullptr);
    std::setlocale(LC_ALL, "de_DE.UTF-8");
    const struct {
        double value;
        std::string text;
    } cases[] = {{2851020, "2851020"},
                 {-0.0, "0"},
                 {0.1, "0.1"},
                 {-1.5, "-1.5"},
                 {1e21, "1" + std::string(21, '0')},
                 {1e-7, "0.0000001"},
                 {32767.99609375, "32767.99609375"}};
    for (const auto& [value, text] : cases) EXPECT_EQ(NumberText(value), text);
    EXPECT_EQ(NumberText(std::numeric_limits<double>::denorm_min()).substr(0, 4), "0.00");
    std::setlocale(LC_ALL, before);
}

TEST(CodePage, IsWindows1252WithItsHolesAndNoBestFit) {
    const struct {
        char32_t character;
        unsigned char byte;
    } cases[] = {{U'A', 'A'},    {0x7F, 0x7F},  {0x80, '?'},  {0x81, 0x81},  {0x8D, 0x8D},  {0x8F, 0x8F},
                 {0x90, 0x90},   {0x9D, 0x9D},  {0x92, '?'},  {0xA0, 0xA0},  {0xFF, 0xFF},  {0x20AC, 0x80},
                 {0x2019, 0x92}, {0x178, 0x9F}, {0x100, '?'}, {0xFF21, '?'}, {0xFFFD, '?'}, {0x1F600, '?'}};
    for (const auto& [character, byte] : cases) {
        char bytes[platform::LongestAnsiCharacter];
        ASSERT_EQ(platform::EncodeAnsi(character, bytes), 1U);
        EXPECT_EQ(bytes[0], static_cast<char>(byte)) << static_cast<std::uint32_t>(character);
    }
}

}  // namespace draftwick::test
