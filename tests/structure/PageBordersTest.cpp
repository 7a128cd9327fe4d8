#include "tests/support/Documents.h"
#include "tests/support/Errors.h"

namespace draftwick::test {

namespace {

struct Case {
    const char* name;
    std::function<void(PageBorders&)> set;
    std::string expected;
};

void SetStyle(PageBorders& borders, dwPageBorder side, dwBorderStyle style) {
    borders.Items(side)->SetStyle(style);
}

}  // namespace

TEST(PageBorders, AreWrittenSideBySide) {
    const std::string top = R"(\pgbrdrt\brdrs\brsp20\brdrw20\brdrcf0)";
    const Case cases[] = {
        {"untouched", [](PageBorders&) {}, ""},
        {"sides without a line",
         [](PageBorders& b) {
             for (const auto& side : b) side->SetWidth(3);
             b.SetDisplay(dwPBDExceptFirst);
             b.SetSnap(true);
         },
         ""},
        {"one side", [](PageBorders& b) { SetStyle(b, dwPgBorderTop, dwBSSingle); }, top},
        {"all sides, their distances and their order",
         [](PageBorders& b) {
             SetStyle(b, dwPgBorderBottom, dwBSEngrave);
             SetStyle(b, dwPgBorderRight, dwBSTriple);
             SetStyle(b, dwPgBorderLeft, dwBSDouble);
             SetStyle(b, dwPgBorderTop, dwBSSingle);
         },
         top + R"(\pgbrdrl\brdrdb\brsp80\brdrw20\brdrcf0\pgbrdrr\brdrtriple\brsp80\brdrw20\brdrcf0)"
             + R"(\pgbrdrb\brdrengrave\brsp20\brdrw20\brdrcf0)"},
        {"numbers are rounded down, colours counted from the first",
         [](PageBorders& b) {
             const auto side = b.Items(dwPgBorderBottom);
             side->SetStyle(dwBSDot);
             side->SetSpacing(2.99);
             side->SetWidth(0.79);
             side->SetColor(0xFF);
             SetStyle(b, dwPgBorderRight, dwBSDash);
         },
         R"(\pgbrdrr\brdrdash\brsp80\brdrw20\brdrcf0\pgbrdrb\brdrdot\brsp59\brdrw15\brdrcf1)"},
        {"a picture without a line", [](PageBorders& b) { b.Items(dwPgBorderLeft)->SetArt(165); },
         R"(\pgbrdrl\brdrart165\brsp80\brdrw20\brdrcf0)"},
        {"a picture in place of a line",
         [](PageBorders& b) {
             SetStyle(b, dwPgBorderTop, dwBSSingle);
             b.Items(dwPgBorderTop)->SetArt(1);
         },
         R"(\pgbrdrt\brdrart1\brsp20\brdrw20\brdrcf0)"},
    };
    for (const Case& test : cases) {
        const std::string file =
            Written([&](Document& document) { test.set(*document.AddSection()->PageBorders()); });
        EXPECT_EQ(Between(file, R"(\vertalt)", R"(\endnhere)"), test.expected) << test.name;
    }
}

TEST(PageBorders, HaveTheirOptionsInOneNumber) {
    const Case cases[] = {
        {"first page", [](PageBorders& b) { b.SetDisplay(dwPBDFirstPage); }, R"(\pgbrdropt1)"},
        {"others", [](PageBorders& b) { b.SetDisplay(dwPBDExceptFirst); }, R"(\pgbrdropt2)"},
        {"behind", [](PageBorders& b) { b.SetInFront(false); }, R"(\pgbrdropt8)"},
        {"from the page", [](PageBorders& b) { b.SetOffset(dwPBOPage); }, R"(\pgbrdropt32)"},
        {"snap", [](PageBorders& b) { b.SetSnap(true); }, R"(\pgbrdrsnap)"},
        {"all",
         [](PageBorders& b) {
             b.SetDisplay(dwPBDExceptFirst);
             b.SetInFront(false);
             b.SetOffset(dwPBOPage);
             b.SetSnap(true);
         },
         R"(\pgbrdropt42\pgbrdrsnap)"},
    };
    for (const Case& test : cases) {
        const std::string file = Written([&](Document& document) {
            const auto borders = document.AddSection()->PageBorders();
            SetStyle(*borders, dwPgBorderLeft, dwBSSingle);
            SetStyle(*borders, dwPgBorderRight, dwBSSingle);
            test.set(*borders);
        });
        EXPECT_EQ(Between(file, R"(\vertalt)", R"(\pgbrdrl)"), test.expected) << test.name;
    }
}

TEST(PageBorders, HaveFourSidesOfTheSection) {
    auto document = Document::Create(MakeFakePlatform(std::make_shared<MemoryFiles>()));
    const auto section = document->AddSection();
    const auto borders = section->PageBorders();
    EXPECT_EQ(borders->Count(), 4);
    EXPECT_EQ(borders->Items(dwPgBorderTop)->Parent(), section);
    for (const std::int32_t side : {0, 5}) {
        EXPECT_EQ(RefusalNumber([&] { borders->Items(static_cast<dwPageBorder>(side)); }),
                  dwRunSubscriptOutOfRange);
    }
}

}  // namespace draftwick::test
