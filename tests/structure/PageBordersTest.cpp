#include "tests/support/Documents.h"

namespace draftwick::test {

namespace {

/// What a section has for its page borders, whose settings are given side by side.
std::string BorderWords(const std::vector<std::pair<dwPageBorder, Settings>>& sides,
                        const Settings& options = {}) {
    const std::string file = Written([&](Document& document) {
        const auto borders = document.AddSection()->PageBorders();
        for (const auto& [side, settings] : sides) Apply(settings, *borders->Items(side));
        Apply(options, *borders);
    });
    return Between(file, R"(\vertalt)", R"(\endnhere)");
}

constexpr auto Top = dwPgBorderTop, Left = dwPgBorderLeft;
constexpr auto Right = dwPgBorderRight, Bottom = dwPgBorderBottom;

}  // namespace

TEST(PageBorders, AreWrittenSideBySide) {
    EXPECT_EQ(BorderWords({{Top, {{"Width", 3.0}}}, {Left, {{"Color", 1}}}, {Right, {{"Spacing", 2.0}}}},
                          {{"Display", dwPBDExceptFirst}, {"Snap", true}}),
              "");
    EXPECT_EQ(BorderWords({{Bottom, {{"Style", dwBSEngrave}}},
                           {Right, {{"Style", dwBSTriple}}},
                           {Left, {{"Style", dwBSDouble}}},
                           {Top, {{"Style", dwBSSingle}}}}),
              R"(\pgbrdrt\brdrs\brsp20\brdrw20\brdrcf0\pgbrdrl\brdrdb\brsp80\brdrw20\brdrcf0)"
              R"(\pgbrdrr\brdrtriple\brsp80\brdrw20\brdrcf0\pgbrdrb\brdrengrave\brsp20\brdrw20\brdrcf0)");
    // Numbers are rounded down; the colours of the right come first.
    EXPECT_EQ(
        BorderWords({{Bottom, {{"Style", dwBSDot}, {"Spacing", 2.99}, {"Width", 0.79}, {"Color", 0xFF}}},
                     {Right, {{"Style", dwBSDash}}}}),
        R"(\pgbrdrr\brdrdash\brsp80\brdrw20\brdrcf0\pgbrdrb\brdrdot\brsp59\brdrw15\brdrcf1)");
    // A picture needs no line and stands in place of one.
    EXPECT_EQ(BorderWords({{Left, {{"Art", 165}}}, {Top, {{"Art", 1}, {"Style", dwBSSingle}}}}),
              R"(\pgbrdrt\brdrart1\brsp20\brdrw20\brdrcf0\pgbrdrl\brdrart165\brsp80\brdrw20\brdrcf0)");
}

TEST(PageBorders, HaveTheirOptionsInOneNumber) {
    const std::pair<Settings, std::string> cases[] = {
        {{{"Display", dwPBDFirstPage}}, R"(\pgbrdropt1)"},
        {{{"Display", dwPBDExceptFirst}}, R"(\pgbrdropt2)"},
        {{{"InFront", false}}, R"(\pgbrdropt8)"},
        {{{"Offset", dwPBOPage}}, R"(\pgbrdropt32)"},
        {{{"Snap", true}}, R"(\pgbrdrsnap)"},
        {{{"Display", dwPBDExceptFirst}, {"InFront", false}, {"Offset", dwPBOPage}, {"Snap", true}},
         R"(\pgbrdropt42\pgbrdrsnap)"},
    };
    for (const auto& [options, words] : cases) {
        EXPECT_EQ(BorderWords({{Left, {{"Style", dwBSSingle}}}, {Right, {{"Style", dwBSSingle}}}}, options),
                  words + R"(\pgbrdrl\brdrs\brsp80\brdrw20\brdrcf0\pgbrdrr\brdrs\brsp80\brdrw20\brdrcf0)");
    }
}

}  // namespace draftwick::test
