#include "tests/support/Documents.h"

#include <array>

namespace draftwick::test {

TEST(Header, IsOfAKindThatThePageHas) {
    const std::string wrong = "X110 Invalid Header kind.";
    const std::string none = "9 Subscript out of range";
    // By kind: pages alike, alike with a title page, facing, facing with a title page.
    const std::array<std::string, 4> kinds[]{
        {none, none, none, none},
        {"header", "header", wrong, wrong},
        {"footer", "footer", wrong, wrong},
        {wrong, wrong, "headerl", "headerl"},
        {wrong, wrong, "headerr", "headerr"},
        {wrong, wrong, "footerl", "footerl"},
        {wrong, wrong, "footerr", "footerr"},
        {wrong, "headerf", wrong, "headerf"},
        {wrong, "footerf", wrong, "footerf"},
        {none, none, none, none},
    };
    for (std::size_t kind = 0; kind < std::size(kinds); ++kind) {
        for (std::size_t page = 0; page < 4; ++page) {
            SCOPED_TRACE("kind " + std::to_string(kind) + ", page " + std::to_string(page));
            const std::string& expected = kinds[kind][page];
            TestDocument built;
            built->SetFacingPage(page >= 2);
            auto section = built->AddSection();
            section->SetTitlePage(page % 2 == 1);
            const auto add = [&] { section->AddHeader(static_cast<dwHeaderKind>(kind)); };
            const std::string refusal = Refusal(add);
            EXPECT_TRUE(section->Emitted());
            const auto paragraph = section->AddParagraph();
            if (expected == wrong || expected == none) {
                EXPECT_EQ(refusal.substr(0, expected.size()), expected);
                EXPECT_EQ(Refusal(add), refusal);
                EXPECT_EQ(section->CurrentHeader(), nullptr);
            } else {
                EXPECT_EQ(refusal, "accepted");
                EXPECT_EQ(Refusal(add), "X111 This section already has this kind of Header.");
            }
            paragraph->AddTextItem("a");  // still open
        }
    }
}

}  // namespace draftwick::test
