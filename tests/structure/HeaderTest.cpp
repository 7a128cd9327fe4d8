#include "tests/structure/Body.h"
#include "tests/support/Errors.h"

namespace draftwick::test {

TEST(Header, IsOfAKindThatThePageHas) {
    const std::string invalid = "X110 Invalid Header kind.";
    const std::string noKind = "9 Subscript out of range";
    struct {
        std::int32_t kind;
        std::string words[4];  // pages alike, alike with a title page, facing, facing with a title page
    } const cases[]{
        {0, {noKind, noKind, noKind, noKind}},
        {dwHeader, {"header", "header", invalid, invalid}},
        {dwFooter, {"footer", "footer", invalid, invalid}},
        {dwHeaderLeft, {invalid, invalid, "headerl", "headerl"}},
        {dwHeaderRight, {invalid, invalid, "headerr", "headerr"}},
        {dwFooterLeft, {invalid, invalid, "footerl", "footerl"}},
        {dwFooterRight, {invalid, invalid, "footerr", "footerr"}},
        {dwHeaderFirst, {invalid, "headerf", invalid, "headerf"}},
        {dwFooterFirst, {invalid, "footerf", invalid, "footerf"}},
        {9, {noKind, noKind, noKind, noKind}},
    };
    for (const auto& row : cases) {
        for (int page = 0; page < 4; ++page) {
            SCOPED_TRACE("kind " + std::to_string(row.kind) + ", page " + std::to_string(page));
            const std::string& expected = row.words[page];
            Built built;
            built.document->SetFacingPage(page >= 2);
            auto section = built.document->AddSection();
            section->SetTitlePage(page % 2 == 1);
            const auto add = [&] { section->AddHeader(static_cast<dwHeaderKind>(row.kind)); };
            const std::string refusal = Refusal(add);
            EXPECT_TRUE(section->Emitted());
            if (expected == invalid || expected == noKind) {
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
    // Each section has its own.
    Built built;
    built.document->AddSection()->AddHeader(dwHeader);
    built.document->AddSection()->AddHeader(dwHeader);
    EXPECT_EQ(built.Body(), R"({\header\par}\sect\sectd#{\header\par})");
}

TEST(Header, RefusedLeavesTheSectionAsItWas) {
    Built built;
    auto section = built.document->AddSection();
    auto header = section->AddHeader(dwHeader);
    auto paragraph = header->AddParagraph();
    for (const dwHeaderKind kind : {dwHeader, dwHeaderLeft, dwHeaderFirst}) {
        EXPECT_NE(Refusal([&] { section->AddHeader(kind); }), "accepted");
    }
    paragraph->AddTextItem("a");
    EXPECT_EQ(section->CurrentHeader(), header);
    section->AddParagraph();
    EXPECT_EQ(section->CurrentHeader(), header);
    const std::string refused = "X109 Invalid operation.  Target already emitted ";
    EXPECT_EQ(Refusal([&] { header->AddParagraph(); }), refused + "Header.");
    EXPECT_EQ(Refusal([&] { header->AddTable(); }), refused + "Header.");
    EXPECT_EQ(built.Body(), R"({\header\pard~{a}\par}\pard~)");
    EXPECT_EQ(Refusal([&] { section->AddHeader(dwFooter); }), refused + "Section.");
    EXPECT_EQ(Refusal([&] { section->AddTable(); }), refused + "Section.");
}

}  // namespace draftwick::test
