#include "tests/support/Documents.h"
#include "tests/support/Errors.h"

namespace draftwick::test {

namespace {

/// A side, one of its properties and the value that it gets.
struct Setting {
    dwPageBorder side;
    const char* property;
    Variant value;
};
using Options = std::vector<std::pair<const char*, Variant>>;

/// What a section has for its page borders.
std::string BorderWords(const std::vector<Setting>& settings, const Options& options = {}) {
    const std::string file = Written([&](Document& document) {
        const auto borders = document.AddSection()->PageBorders();
        for (const auto& [side, property, value] : settings) Set(*borders->Items(side), property, value);
        for (const auto& [property, value] : options) Set(*borders, property, value);
    });
    return Between(file, R"(\vertalt)", R"(\endnhere)");
}

constexpr auto Top = dwPgBorderTop;
constexpr auto Left = dwPgBorderLeft;
constexpr auto Right = dwPgBorderRight;
constexpr auto Bottom = dwPgBorderBottom;

}  // namespace

TEST(PageBorders, AreWrittenSideBySide) {
    const std::string top = R"(\pgbrdrt\brdrs\brsp20\brdrw20\brdrcf0)";
    EXPECT_EQ(BorderWords({}), "");
    EXPECT_EQ(BorderWords({{Top, "Width", 3.0}, {Left, "Color", 1}, {Right, "Spacing", 2.0}},
                          {{"Display", dwPBDExceptFirst}, {"Snap", true}}),
              "");
    EXPECT_EQ(BorderWords({{Top, "Style", dwBSSingle}}), top);
    EXPECT_EQ(BorderWords({{Bottom, "Style", dwBSEngrave},
                           {Right, "Style", dwBSTriple},
                           {Left, "Style", dwBSDouble},
                           {Top, "Style", dwBSSingle}}),
              top + R"(\pgbrdrl\brdrdb\brsp80\brdrw20\brdrcf0\pgbrdrr\brdrtriple\brsp80\brdrw20\brdrcf0)"
                  + R"(\pgbrdrb\brdrengrave\brsp20\brdrw20\brdrcf0)");
    // Numbers are rounded down; the colours of the right come first.
    EXPECT_EQ(BorderWords({{Bottom, "Style", dwBSDot},
                           {Bottom, "Spacing", 2.99},
                           {Bottom, "Width", 0.79},
                           {Bottom, "Color", 0xFF},
                           {Right, "Style", dwBSDash}}),
              R"(\pgbrdrr\brdrdash\brsp80\brdrw20\brdrcf0\pgbrdrb\brdrdot\brsp59\brdrw15\brdrcf1)");
    // A picture needs no line and stands in place of one.
    EXPECT_EQ(BorderWords({{Left, "Art", 165}}), R"(\pgbrdrl\brdrart165\brsp80\brdrw20\brdrcf0)");
    EXPECT_EQ(BorderWords({{Top, "Art", 1}, {Top, "Style", dwBSSingle}}),
              R"(\pgbrdrt\brdrart1\brsp20\brdrw20\brdrcf0)");
}

TEST(PageBorders, HaveTheirOptionsInOneNumber) {
    const std::pair<Options, std::string> cases[] = {
        {{{"Display", dwPBDFirstPage}}, R"(\pgbrdropt1)"},
        {{{"Display", dwPBDExceptFirst}}, R"(\pgbrdropt2)"},
        {{{"InFront", false}}, R"(\pgbrdropt8)"},
        {{{"Offset", dwPBOPage}}, R"(\pgbrdropt32)"},
        {{{"Snap", true}}, R"(\pgbrdrsnap)"},
        {{{"Display", dwPBDExceptFirst}, {"InFront", false}, {"Offset", dwPBOPage}, {"Snap", true}},
         R"(\pgbrdropt42\pgbrdrsnap)"},
    };
    const std::vector<Setting> sides{{Left, "Style", dwBSSingle}, {Right, "Style", dwBSSingle}};
    for (const auto& [options, words] : cases) {
        EXPECT_EQ(BorderWords(sides, options), words + BorderWords(sides));
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
