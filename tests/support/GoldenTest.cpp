#include "tests/support/Golden.h"

#include <gtest/gtest.h>

namespace draftwick::test {
namespace {

TEST(Golden, ShowsTheFirstDifferentWord) {
    EXPECT_EQ(Difference("{\\b\r\n\\li720 a}", "{\\b\r\n\\li720 a}"), "");
    EXPECT_EQ(Difference("{\\b\r\n\\li720 a}", "{\\b\r\n\\li740 \xE9}"),
              "byte 9, line 2\n"
              "  expected: \\li720 \n"
              "    ...{\\b<CR><LF>\\li7[here]20 a}...\n"
              "  actual:   \\li740 \n"
              "    ...{\\b<CR><LF>\\li7[here]40 <E9>}...\n");
    EXPECT_EQ(Difference("ab", "a"), "byte 1, line 1\n"
                                     "  expected: ab\n"
                                     "    ...a[here]b...\n"
                                     "  actual:   end of the file\n"
                                     "    ...a[here]...\n");
}

}  // namespace
}  // namespace draftwick::test
