#include "tests/support/Documents.h"

namespace draftwick::test {

namespace {

/// What a paragraph has between \pard and \plain when its frame has these settings.
std::string FrameWords(const Settings& settings) {
    const std::string file = Written(
        [&](Document& document) { Apply(settings, *document.AddSection()->AddParagraph()->Frame()); });
    return Between(file, R"(\pard)", R"(\plain)");
}

}  // namespace

TEST(Frame, IsWrittenAsSoonAsAnythingIsSet) {
    const std::pair<Settings, std::string> cases[] = {
        {{}, ""},
        {{{"Wrap", true}}, ""},  // the default
        {{{"Height", 720.0}}, R"(\absh720\phcol\pvmrg)"},
        {{{"Height", 720.0}, {"HeightExactly", true}}, R"(\absh-720\phcol\pvmrg)"},
        {{{"HeightExactly", true}}, R"(\phcol\pvmrg)"},
        {{{"Left", -10.0}, {"Top", -20.0}}, R"(\phcol\posnegx-10\pvmrg\posnegy-20)"},
        // An alignment goes before a place.
        {SettingsOf("Left=10.0 Top=20.0 AlignX=4 AlignY=5"), R"(\phcol\posxr\pvmrg\posyb)"},
        {{{"SpacingX", 5.0}}, R"(\phcol\pvmrg\dxfrtext5\dfrmtxtx5\dfrmtxty0)"},
        {{{"SpacingY", 6.0}}, R"(\phcol\pvmrg\dxfrtext0\dfrmtxtx0\dfrmtxty6)"},
        {{{"DropCapLines", 3}}, R"(\phcol\pvmrg\dropcapli3\dropcapt1)"},
        {{{"DropCapInMargin", true}}, R"(\phcol\pvmrg)"},
        {SettingsOf("DropCapLines=10 DropCapInMargin=true SpacingY=6.0 SpacingX=5.0 "
                    "Wrap=false LockAnchor=true Top=4.0 Left=3.0 ReferenceY=1 "
                    "ReferenceX=3 Height=2.0 Width=1.0"),
         R"(\absw1\absh2\phmrg\posx3\pvpg\posy4\abslock1\nowrap\dxfrtext5\dfrmtxtx5\dfrmtxty6)"
         R"(\dropcapli10\dropcapt2)"},
    };
    for (const auto& [settings, words] : cases) EXPECT_EQ(FrameWords(settings), words);
    const auto ofEach = [](const char* property) {
        return [=](std::int32_t value) { return FrameWords({{property, value}, {"LockAnchor", true}}); };
    };
    ExpectWords(R"(phpg\pvmrg\abslock1 phcol\pvmrg\abslock1 phmrg\pvmrg\abslock1)", ofEach("ReferenceX"));
    ExpectWords(R"(phcol\pvpg\abslock1 phcol\pvpara\abslock1 phcol\pvmrg\abslock1)", ofEach("ReferenceY"));
    ExpectWords(R"(phcol\pvmrg\abslock1 phcol\posxl\pvmrg\abslock1 phcol\posxc\pvmrg\abslock1 )"
                R"(phcol\posxr\pvmrg\abslock1 phcol\posxi\pvmrg\abslock1 phcol\posxo\pvmrg\abslock1)",
                ofEach("AlignX"));
    ExpectWords(R"(phcol\pvmrg\abslock1 phcol\pvmrg\posyil\abslock1 phcol\pvmrg\posyt\abslock1 )"
                R"(phcol\pvmrg\posyc\abslock1 phcol\pvmrg\posyb\abslock1 phcol\pvmrg\posyin\abslock1 )"
                R"(phcol\pvmrg\posyout\abslock1)",
                ofEach("AlignY"));
}

TEST(Frame, DoesNotComeWithAStyle) {
    const TestDocument document(dwTwips);
    document->ParagraphStyles()->Add("Aside");
    const auto paragraph = document.AddParagraph();
    paragraph->Frame()->SetWidth(1440);
    paragraph->SetStyleName("Aside");
    EXPECT_EQ(document.Body(), R"(\pard\absw1440\phcol\pvmrg\s0~)");
}

TEST(Frame, OfARowStandsInItsParagraphs) {
    const TestDocument document(dwTwips);
    const auto section = document->AddSection();
    const auto row = section->AddTable();
    row->Frame()->SetAlignX(dwFAXRight);
    const auto paragraph = row->AddCell()->AddParagraph();
    paragraph->Frame()->SetWidth(1);
    EXPECT_EQ(Refusal([&] { row->Frame()->SetWidth(1); }), Emitted("Table"));
    paragraph->AddFootnote()->AddParagraph()->Frame()->SetWidth(2);
    section->AddTable()->AddCell()->AddParagraph();
    const std::string start = R"(\trowd\trgaph95\trql\trleft-95\trrh0\clvertalt\cellx1440\intbl\pard\intbl)";
    const std::string end = R"(\cell\intbl\row\pard)";
    EXPECT_EQ(document.Body(), start + R"(\phcol\posxr\pvmrg~{\footnote\pard\absw2\phcol\pvmrg~})" + end
                                   + start + "~" + end + "\\par");
}

}  // namespace draftwick::test
