#include "tests/support/Documents.h"

namespace draftwick::test {

namespace {

std::string SectionWords(const Settings& settings) {
    const std::string file = Written([&](Document& document) { Apply(settings, *document.AddSection()); });
    return "\\sectd" + Between(file, "\\sectd", "\\endnhere") + "\\endnhere";
}

}  // namespace

TEST(Section, WritesItsWordsInOrder) {
    const std::string all = "\\sectd\\binsxn0\\sbkpage\\pgwsxn12240\\pghsxn15840\\margtsxn720\\marglsxn720"
                            "\\margrsxn720\\margbsxn720\\guttersxn0\\headery720\\footery720\\pgnstarts1"
                            "\\pgncont\\pgndec\\vertalt\\endnhere";
    EXPECT_EQ(SectionWords({}), all);
    const struct {
        Settings settings;
        std::string before, words, after;
    } cases[] = {
        {{{"PaperBinFirst", -1}}, "\\sectd", "\\binfsxn-1\\binsxn0", "\\sbkpage"},
        {{{"PaperBinFirst", 2}, {"PaperBin", -4}}, "\\sectd", "\\binsxn-4", "\\sbkpage"},
        {{{"LineNumberingX", 5.0}, {"LineNumberingInterval", 9}}, "\\sbkpage", "", "\\pgwsxn"},
        {SettingsOf("LineNumberingVisible=true LineNumberingRestart=2 "
                    "LineNumberingX=5.0 LineNumberingInterval=2 "
                    "LineNumberingStart=3"),
         "\\sbkpage", "\\linemod2\\linex5\\linestarts3\\lineppage", "\\pgwsxn"},
        {SettingsOf("MarginTop=3.0 MarginLeft=4.0 MarginRight=5.0 MarginBottom=6.0"), "\\pghsxn15840",
         "\\margtsxn3\\marglsxn4\\margrsxn5\\margbsxn6", "\\guttersxn"},
        {{{"PageWidth", 1.0}, {"PageHeight", 2.0}}, "\\sbkpage", "\\pgwsxn1\\pghsxn2", "\\margtsxn720"},
        {{{"Gutter", 7.0}, {"HeaderY", 8.0}, {"FooterY", 9.0}},
         "\\margbsxn720",
         "\\guttersxn7\\headery8\\footery9",
         "\\pgnstarts1"},
        {{{"Orientation", dwLandscape}}, "\\sbkpage", "\\pgwsxn15840\\pghsxn12240", "\\margtsxn720"},
        {{{"Orientation", dwLandscape}, {"TitlePage", true}},
         "\\guttersxn0",
         "\\lndscpsxn\\titlepg",
         "\\headery"},
        {{{"PageNumberingStart", 70000}, {"PageNumberingRestart", dwPNRSection}},
         "\\footery720",
         "\\pgnstarts70000\\pgnrestart",
         "\\pgndec"},
    };
    for (const auto& [settings, before, words, after] : cases) {
        EXPECT_EQ(Between(SectionWords(settings), before, after), words);
    }
    const auto ofEach = [](const char* words, const char* property, const char* before, const char* after) {
        ExpectWords(words, [&](std::int32_t value) {
            return Between(SectionWords({{"LineNumberingVisible", true}, {property, value}}), before, after);
        });
    };
    ofEach("sbknone sbkcol sbkpage sbkeven sbkodd", "Break", "\\binsxn0", "\\linemod1");
    ofEach("linerestart lineppage linecont", "LineNumberingRestart", "\\linestarts1", "\\pgwsxn");
    ofEach("pgndec pgnlcrm pgnucrm pgnlcltr pgnucltr", "PageNumberingFormat", "\\pgncont", "\\vertal");
    ofEach("vertalt vertalb vertalc vertalj", "VerticalAlign", "\\pgndec", "\\endnhere");
}

TEST(Section, TakesItsPageFromTheDocument) {
    const std::string file = Written([](Document& document) {
        Apply({{"MarginLeft", 1.0}, {"Orientation", dwLandscape}, {"EndnoteLocation", dwELDocument}},
              document);
        Apply({{"MarginLeft", 2.0}, {"Orientation", dwPortrait}}, *document.AddSection());
        EXPECT_EQ(document.AddSection()->MarginLeft(), 1);
    });
    const std::string rest = "\\margrsxn720\\margbsxn720\\guttersxn0";
    const std::string end = "\\headery720\\footery720\\pgnstarts1\\pgncont\\pgndec\\vertalt";
    EXPECT_EQ(file.substr(file.find("\\sectd")),
              "\\sectd\\binsxn0\\sbkpage\\pgwsxn12240\\pghsxn15840\\margtsxn720\\marglsxn2" + rest + end
                  + "\\sect\\sectd\\binsxn0\\sbkpage\\pgwsxn15840\\pghsxn12240\\margtsxn720\\marglsxn1" + rest
                  + "\\lndscpsxn" + end + "}");
}

TEST(Content, IsWrittenWhenItsNextSiblingArrives) {
    const TestDocument document;
    auto section = document->AddSection();
    EXPECT_TRUE(document->Emitted() && !section->Emitted());
    auto first = section->AddParagraph();
    EXPECT_TRUE(section->Emitted() && !section->Finished() && !first->Emitted());
    auto item = first->AddTextItem("a");
    EXPECT_TRUE(first->Emitted() && !item->Emitted());
    item->AddText("b");
    auto second = first->AddTextItem("c");
    EXPECT_TRUE(item->Emitted() && !second->Emitted());
    EXPECT_EQ(first->CurrentTextItem(), second);
    EXPECT_EQ(Refusal([&] { item->AddText("x"); }), Emitted("TextItem"));
    EXPECT_EQ(item->Text(), "ab");
    auto empty = section->AddParagraph();
    EXPECT_TRUE(first->Finished() && second->Emitted());
    EXPECT_EQ(section->CurrentParagraph(), empty);
    EXPECT_EQ(document.Body(), "\\pard~{ab}{c}\\par\\pard~");
}

TEST(Content, LiesAtMost200Deep) {
    const TestDocument document;
    auto paragraph = document.AddParagraph();  // in a section: the second level
    int notes = 0;
    const auto nest = [&] {
        for (;; ++notes) paragraph = paragraph->AddFootnote()->AddParagraph();
    };
    EXPECT_EQ(RefusalNumber(nest), dwRunOutOfStackSpace);
    EXPECT_EQ(notes, 99);
    EXPECT_FALSE(paragraph->Emitted());
    EXPECT_TRUE(document.Body().ends_with("\\pard~" + std::string(99, '}')));
}

TEST(TextItem, KeepsTextInItsRtfForm) {
    const TestDocument document;
    auto item = document.AddParagraph()->AddTextItem("x\\y");
    item->AddRawText("\\b bold\\b0");
    for (const auto* code : {"Bullet", "\\BULLET", "\\bullet"}) item->AddSpecial(code);
    item->AddSpecial(Special::Footnote());
    item->AddSpecial("\xC3\x84");
    item->AddText("");
    item->AddRawText(Special::ASCII(150));
    EXPECT_EQ(item->Text(), "x\\\\y\\b bold\\b0\\bullet \\bullet \\bullet \\chftn \\\xC3\x84 \\'96");
    EXPECT_EQ(document.Body(), "\\pard~{x\\\\y\\b bold\\b0\\bullet\\bullet\\bullet\\chftn\\\xC4 \\'96}");
}

// A run that cannot be written is refused before its first byte: the host mends it and goes on.
TEST(Run, CanBeMendedWhenItsStyleDoesNotExist) {
    const TestDocument document;
    document->TextStyles()->Add("Strong");
    auto paragraph = document.AddParagraph();
    const auto mend = [&](auto run) {
        run->SetStyleName("Missing");
        for (int i = 0; i < 2; ++i) {
            EXPECT_EQ(Refusal([&] { paragraph->AddTextItem("b"); }), "X112 Item not found 'Missing'.");
        }
        EXPECT_FALSE(run->Emitted() || run->Finished());
        run->SetStyleName("STRONG");
        paragraph->AddTextItem("b");
        EXPECT_TRUE(run->Emitted() && run->Finished());
    };
    mend(paragraph->AddTextItem("a"));
    mend(paragraph->AddField("PAGE", "1"));
    EXPECT_EQ(document.Body(), R"(\pard~{\cs0 a}{b}{\cs0{\field{\*\fldinst PAGE}{\fldrslt 1}}}{b})");
}

}  // namespace draftwick::test
