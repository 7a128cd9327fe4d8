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
            if (expected == wrong || expected == none) {
                EXPECT_EQ(refusal.substr(0, expected.size()), expected);
                EXPECT_EQ(section->CurrentHeader(), nullptr);
                EXPECT_EQ(built.Body(), "");
            } else {
                EXPECT_EQ(refusal, "accepted");
                EXPECT_EQ(Refusal(add), "X111 This section already has this kind of Header.");
                EXPECT_EQ(built.Body(), "{\\" + expected + "\\par}");
            }
        }
    }
}

TEST(Header, StandsWhereItWasAdded) {
    EXPECT_EQ(BodyOf([](Section& section) {
                  auto header = section.AddHeader(dwHeader);
                  AddText(*header, "a");
                  AddText(*header, "b");
                  AddText(*section.AddHeader(dwFooter), "c");
                  AddText(section, "d");
                  AddText(section, "e");
              }),
              R"({\header\pard~{a}\par\pard~{b}\par}{\footer\pard~{c}\par}\pard~{d}\par\pard~{e})");
    // Among paragraphs it takes the mark between them away.
    EXPECT_EQ(BodyOf([](Section& section) {
                  AddText(section, "a");
                  section.AddHeader(dwHeader);
                  AddText(section, "b");
              }),
              R"(\pard~{a}{\header\par}\pard~{b})");
    // A row that ends a header counts as the end of a section that has nothing else.
    EXPECT_EQ(BodyOf([](Section& section) { section.AddHeader(dwHeader)->AddTable(); }),
              R"({\header\trowd\trgaph95\trql\trleft-95\trrh0\intbl\row\pard\par}\par)");
}

TEST(Header, RefusedLeavesTheSectionAsItWas) {
    TestDocument built;
    auto section = built->AddSection();
    auto header = section->AddHeader(dwHeader);
    auto paragraph = header->AddParagraph();
    for (const dwHeaderKind kind : {dwHeader, dwHeaderLeft, dwHeaderFirst}) {
        EXPECT_NE(Refusal([&] { section->AddHeader(kind); }), "accepted");
    }
    paragraph->AddTextItem("a");
    section->AddParagraph();
    EXPECT_EQ(section->CurrentHeader(), header);
    EXPECT_EQ(Refusal([&] { header->AddParagraph(); }), Emitted("Header"));
    EXPECT_EQ(Refusal([&] { header->AddTable(); }), Emitted("Header"));
    built->AddSection()->AddHeader(dwHeader);  // each section has its own
    EXPECT_EQ(Refusal([&] { section->AddHeader(dwFooter); }), Emitted("Section"));
    EXPECT_EQ(Refusal([&] { section->AddTable(); }), Emitted("Section"));
    EXPECT_EQ(built.Body(), R"({\header\pard~{a}\par}\pard~\sect\sectd#{\header\par})");
}

}  // namespace draftwick::test
