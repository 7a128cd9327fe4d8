#include "tests/support/Documents.h"
#include "tests/support/Errors.h"

namespace draftwick::test {

namespace {

using Settings = std::vector<std::pair<const char*, Variant>>;

/// What a paragraph has between \pard and \plain when its frame has these settings.
std::string FrameWords(const Settings& settings) {
    const std::string file = Written([&](Document& document) {
        const auto frame = document.AddSection()->AddParagraph()->Frame();
        for (const auto& [property, value] : settings) Set(*frame, property, value);
    });
    return Between(file, R"(\pard)", R"(\plain)");
}

}  // namespace

TEST(Frame, IsWrittenAsSoonAsAnythingIsSet) {
    const std::pair<Settings, std::string> cases[] = {
        {{}, ""},
        {{{"Wrap", true}}, ""},  // the default
        {{{"Width", 2880.0}}, R"(\absw2880\phcol\pvmrg)"},
        {{{"Height", 720.0}}, R"(\absh720\phcol\pvmrg)"},
        {{{"Height", 720.0}, {"HeightExactly", true}}, R"(\absh-720\phcol\pvmrg)"},
        {{{"HeightExactly", true}}, R"(\phcol\pvmrg)"},
        {{{"Left", 10.0}, {"Top", 20.0}}, R"(\phcol\posx10\pvmrg\posy20)"},
        {{{"Left", -10.0}, {"Top", -20.0}}, R"(\phcol\posnegx-10\pvmrg\posnegy-20)"},
        // An alignment goes before a place.
        {{{"Left", 10.0}, {"Top", 20.0}, {"AlignX", dwFAXRight}, {"AlignY", dwFAYBottom}},
         R"(\phcol\posxr\pvmrg\posyb)"},
        {{{"LockAnchor", true}}, R"(\phcol\pvmrg\abslock1)"},
        {{{"Wrap", false}}, R"(\phcol\pvmrg\nowrap)"},
        {{{"SpacingX", 5.0}}, R"(\phcol\pvmrg\dxfrtext5\dfrmtxtx5\dfrmtxty0)"},
        {{{"SpacingY", 6.0}}, R"(\phcol\pvmrg\dxfrtext0\dfrmtxtx0\dfrmtxty6)"},
        {{{"DropCapLines", 3}}, R"(\phcol\pvmrg\dropcapli3\dropcapt1)"},
        {{{"DropCapInMargin", true}}, R"(\phcol\pvmrg)"},
        {{{"DropCapLines", 10},
          {"DropCapInMargin", true},
          {"SpacingY", 6.0},
          {"SpacingX", 5.0},
          {"Wrap", false},
          {"LockAnchor", true},
          {"Top", 4.0},
          {"ReferenceY", dwFRYPage},
          {"Left", 3.0},
          {"ReferenceX", dwFRXMargin},
          {"Height", 2.0},
          {"Width", 1.0}},
         R"(\absw1\absh2\phmrg\posx3\pvpg\posy4\abslock1\nowrap\dxfrtext5\dfrmtxtx5\dfrmtxty6)"
         R"(\dropcapli10\dropcapt2)"},
    };
    for (const auto& [settings, words] : cases) EXPECT_EQ(FrameWords(settings), words);
}

TEST(Frame, HasAWordForEachReferenceAndAlignment) {
    const std::string references[][2] = {{"phpg", "pvpg"}, {"phcol", "pvpara"}, {"phmrg", "pvmrg"}};
    for (std::int32_t i = 1; i <= 3; ++i) {
        EXPECT_EQ(FrameWords({{"ReferenceX", i}, {"ReferenceY", i}, {"Width", 1.0}}),
                  R"(\absw1\)" + references[i - 1][0] + "\\" + references[i - 1][1]);
    }
    const std::string horizontal[] = {"posxl", "posxc", "posxr", "posxi", "posxo"};
    for (std::int32_t i = 2; i <= 6; ++i) {
        EXPECT_EQ(FrameWords({{"AlignX", i}}), R"(\phcol\)" + horizontal[i - 2] + R"(\pvmrg)");
    }
    const std::string vertical[] = {"posyil", "posyt", "posyc", "posyb", "posyin", "posyout"};
    for (std::int32_t i = 2; i <= 7; ++i) {
        EXPECT_EQ(FrameWords({{"AlignY", i}}), R"(\phcol\pvmrg\)" + vertical[i - 2]);
    }
}

TEST(Frame, DoesNotComeWithAStyle) {
    const std::string file = Written([](Document& document) {
        document.ParagraphStyles()->Add("Aside");
        const auto paragraph = document.AddSection()->AddParagraph();
        paragraph->Frame()->SetWidth(1440);
        paragraph->SetStyleName("Aside");
    });
    EXPECT_NE(file.find(R"(\pard\absw1440\phcol\pvmrg\s0\plain)"), std::string::npos) << file;
}

TEST(Frame, OfARowStandsInItsParagraphs) {
    const std::string file = Written([](Document& document) {
        const auto section = document.AddSection();
        const auto row = section->AddTable();
        row->Frame()->SetAlignX(dwFAXRight);
        const auto cell = row->AddCell();
        const auto paragraph = cell->AddParagraph();
        paragraph->Frame()->SetWidth(1);
        EXPECT_EQ(Refusal([&] { row->Frame()->SetWidth(1); }),
                  "X109 Invalid operation.  Target already emitted Table.");
        paragraph->AddFootnote()->AddParagraph()->Frame()->SetWidth(2);
        section->AddTable()->AddCell()->AddParagraph();
    });
    EXPECT_EQ(Between(file, R"(\trowd)", R"(\pard)").find("posxr"), std::string::npos);
    EXPECT_NE(file.find(R"(\cellx1440\intbl\pard\intbl\phcol\posxr\pvmrg\plain)"), std::string::npos) << file;
    EXPECT_NE(file.find(R"(\pard\absw2\phcol\pvmrg\plain)"), std::string::npos) << file;
    EXPECT_NE(file.find(R"(\row\pard\trowd)"), std::string::npos) << file;
    EXPECT_NE(file.find(R"(\cellx1440\intbl\pard\intbl\plain)"), std::string::npos) << file;
    EXPECT_EQ(file.find("absw1\\"), std::string::npos) << file;
}

}  // namespace draftwick::test
