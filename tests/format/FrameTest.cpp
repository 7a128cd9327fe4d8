#include "tests/support/Documents.h"
#include "tests/support/Errors.h"

namespace draftwick::test {

namespace {

struct Case {
    const char* name;
    std::function<void(Frame&)> set;
    std::string expected;
};

/// What a paragraph has between \pard and \plain.
std::string FrameWords(const std::function<void(Frame&)>& set) {
    const std::string file =
        Written([&](Document& document) { set(*document.AddSection()->AddParagraph()->Frame()); });
    return Between(file, R"(\pard)", R"(\plain)");
}

}  // namespace

TEST(Frame, IsWrittenAsSoonAsAnythingIsSet) {
    const Case cases[] = {
        {"nothing", [](Frame&) {}, ""},
        {"set to the default", [](Frame& f) { f.SetWrap(true); }, ""},
        {"width", [](Frame& f) { f.SetWidth(2880); }, R"(\absw2880\phcol\pvmrg)"},
        {"height", [](Frame& f) { f.SetHeight(720); }, R"(\absh720\phcol\pvmrg)"},
        {"exact height",
         [](Frame& f) {
             f.SetHeight(720);
             f.SetHeightExactly(true);
         },
         R"(\absh-720\phcol\pvmrg)"},
        {"exact height of nothing", [](Frame& f) { f.SetHeightExactly(true); }, R"(\phcol\pvmrg)"},
        {"place",
         [](Frame& f) {
             f.SetLeft(10);
             f.SetTop(20);
         },
         R"(\phcol\posx10\pvmrg\posy20)"},
        {"place before the reference",
         [](Frame& f) {
             f.SetLeft(-10);
             f.SetTop(-20);
         },
         R"(\phcol\posnegx-10\pvmrg\posnegy-20)"},
        {"an alignment goes before a place",
         [](Frame& f) {
             f.SetLeft(10);
             f.SetTop(20);
             f.SetAlignX(dwFAXRight);
             f.SetAlignY(dwFAYBottom);
         },
         R"(\phcol\posxr\pvmrg\posyb)"},
        {"anchor", [](Frame& f) { f.SetLockAnchor(true); }, R"(\phcol\pvmrg\abslock1)"},
        {"no wrap", [](Frame& f) { f.SetWrap(false); }, R"(\phcol\pvmrg\nowrap)"},
        {"spacing beside", [](Frame& f) { f.SetSpacingX(5); },
         R"(\phcol\pvmrg\dxfrtext5\dfrmtxtx5\dfrmtxty0)"},
        {"spacing above", [](Frame& f) { f.SetSpacingY(6); },
         R"(\phcol\pvmrg\dxfrtext0\dfrmtxtx0\dfrmtxty6)"},
        {"drop cap", [](Frame& f) { f.SetDropCapLines(3); }, R"(\phcol\pvmrg\dropcapli3\dropcapt1)"},
        {"margin alone", [](Frame& f) { f.SetDropCapInMargin(true); }, R"(\phcol\pvmrg)"},
        {"all in order",
         [](Frame& f) {
             f.SetDropCapLines(10);
             f.SetDropCapInMargin(true);
             f.SetSpacingY(6);
             f.SetSpacingX(5);
             f.SetWrap(false);
             f.SetLockAnchor(true);
             f.SetTop(4);
             f.SetReferenceY(dwFRYPage);
             f.SetLeft(3);
             f.SetReferenceX(dwFRXMargin);
             f.SetHeight(2);
             f.SetWidth(1);
         },
         R"(\absw1\absh2\phmrg\posx3\pvpg\posy4\abslock1\nowrap\dxfrtext5\dfrmtxtx5\dfrmtxty6)"
         R"(\dropcapli10\dropcapt2)"},
    };
    for (const Case& test : cases) EXPECT_EQ(FrameWords(test.set), test.expected) << test.name;
}

TEST(Frame, HasAWordForEachReferenceAndAlignment) {
    const std::string references[][2] = {{"phpg", "pvpg"}, {"phcol", "pvpara"}, {"phmrg", "pvmrg"}};
    for (std::int32_t i = 1; i <= 3; ++i) {
        const auto set = [&](Frame& f) {
            f.SetReferenceX(static_cast<dwFrameReferenceX>(i));
            f.SetReferenceY(static_cast<dwFrameReferenceY>(i));
            f.SetWidth(1);
        };
        EXPECT_EQ(FrameWords(set), R"(\absw1\)" + references[i - 1][0] + "\\" + references[i - 1][1]);
    }
    const std::string horizontal[] = {"posxl", "posxc", "posxr", "posxi", "posxo"};
    for (std::int32_t i = 2; i <= 6; ++i) {
        EXPECT_EQ(FrameWords([&](Frame& f) { f.SetAlignX(static_cast<dwFrameAlignX>(i)); }),
                  R"(\phcol\)" + horizontal[i - 2] + R"(\pvmrg)");
    }
    const std::string vertical[] = {"posyil", "posyt", "posyc", "posyb", "posyin", "posyout"};
    for (std::int32_t i = 2; i <= 7; ++i) {
        EXPECT_EQ(FrameWords([&](Frame& f) { f.SetAlignY(static_cast<dwFrameAlignY>(i)); }),
                  R"(\phcol\pvmrg\)" + vertical[i - 2]);
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
