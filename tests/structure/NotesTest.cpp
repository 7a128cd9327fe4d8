#include "tests/structure/Body.h"
#include "tests/support/Errors.h"

namespace draftwick::test {

TEST(Footnote, IsAGroupInTheText) {
    EXPECT_EQ(BodyOf([](Section& section) {
                  auto paragraph = section.AddParagraph();
                  paragraph->AddTextItem("a")->AddSpecial(Special::Footnote());
                  auto note = paragraph->AddFootnote();
                  note->AddParagraph()->AddTextItem("b")->AddSpecial(Special::Footnote());
                  AddText(*note, "c");
                  paragraph->AddTextItem("d");
                  AddText(*paragraph->AddFootnote(true), "e");
                  paragraph->AddFootnote();
                  AddText(section, "f");
              }),
              R"(\pard~{a\chftn}{\footnote\pard~{b\chftn}\pard~{c}}{d}{\footnote\ftnalt\pard~{e}}{\footnote})"
              R"(\par\pard~{f})");
}

// The flags for what precedes a paragraph belong to the text around the note.
TEST(Footnote, LeavesTheMarksOfTheTextAroundIt) {
    EXPECT_EQ(
        BodyOf([](Section& section) {
            auto cell = section.AddTable()->AddCell();
            AddText(*cell->AddParagraph()->AddFootnote(), "a");
            AddText(*cell, "b");
            AddText(section, "c");
        }),
        R"(\trowd\trgaph95\trql\trleft-95\trrh0\clvertalt\cellx1440\intbl\pard\intbl~{\footnote\pard~{a}})"
        R"(\intbl\par\pard\intbl~{b}\cell\intbl\row\pard\pard~{c})");
}

TEST(Footnote, RefusesMoreOnceClosed) {
    Built built;
    auto paragraph = built.document->AddSection()->AddParagraph();
    auto note = paragraph->AddFootnote(true);
    auto inner = note->AddParagraph();
    EXPECT_TRUE(note->IsEndnote() && note->Emitted() && !note->Finished());
    paragraph->AddTextItem("a");
    EXPECT_EQ(paragraph->CurrentFootnote(), note);
    const std::string refused = "X109 Invalid operation.  Target already emitted ";
    EXPECT_EQ(Refusal([&] { note->AddParagraph(); }), refused + "Footnote.");
    EXPECT_EQ(Refusal([&] { note->AddTable(); }), refused + "Footnote.");
    EXPECT_EQ(Refusal([&] { inner->AddFootnote(); }), refused + "Paragraph.");
    EXPECT_EQ(Refusal([&] { inner->AddBookmark("x"); }), refused + "Paragraph.");
}

TEST(Notes, AreNumberedAndPlacedByTheDocument) {
    struct {
        Settings settings;
        std::string words;
    } const cases[]{
        {{}, R"(\fntbj\ftnrstcont\ftnstart1\ftnnar\aendnotes\aftnrstcont\aftnstart1\aftnnar)"},
        {{{"FootnoteLocation", dwFLBeneathText},
          {"FootnoteRestart", dwFRPage},
          {"FootnoteStartAt", -5},
          {"FootnoteFormat", dwFFLetterLower},
          {"EndnoteLocation", dwELDocument},
          {"EndnoteRestart", dwFRPage},
          {"EndnoteStartAt", 32767},
          {"EndnoteFormat", dwFFLetterLower}},
         R"(\ftntj\ftnrstpg\ftnstart-5\ftnnalc\aenddoc\aftnrstcont\aftnstart32767\aftnnalc)"},
        {{{"FootnoteRestart", dwFRSection}, {"FootnoteFormat", dwFFLetterUpper}},
         R"(\fntbj\ftnrestart\ftnstart1\ftnnauc\aendnotes\aftnrstcont\aftnstart1\aftnnar)"},
        {{{"EndnoteRestart", dwFRSection}, {"EndnoteFormat", dwFFLetterUpper}},
         R"(\fntbj\ftnrstcont\ftnstart1\ftnnar\aendnotes\aftnrestart\aftnstart1\aftnnauc)"},
        {{{"FootnoteFormat", dwFFRomanLower}, {"EndnoteFormat", dwFFRomanUpper}},
         R"(\fntbj\ftnrstcont\ftnstart1\ftnnrlc\aendnotes\aftnrstcont\aftnstart1\aftnnruc)"},
        {{{"FootnoteFormat", dwFFRomanUpper}, {"EndnoteFormat", dwFFRomanLower}},
         R"(\fntbj\ftnrstcont\ftnstart1\ftnnruc\aendnotes\aftnrstcont\aftnstart1\aftnnrlc)"},
    };
    for (const auto& [settings, words] : cases) {
        Built built;
        Apply(settings, *built.document);
        built.document->AddSection();
        // Text of two line breaks stands between the two kinds: only its delimiter is left for a reader.
        const std::string actual = Words(built.File());
        EXPECT_NE(actual.find("\\pgbrdrfoot\\fet2" + words + "\\sectd"), actual.npos) << words << "\n"
                                                                                      << actual;
        EXPECT_NE(actual.find("\\endnhere") == actual.npos, words.find("aendnotes") != words.npos);
    }
}

TEST(Bookmark, IsADestinationInTheText) {
    Built built;
    auto paragraph = built.document->AddSection()->AddParagraph();
    paragraph->AddBookmark("");
    auto total = paragraph->AddBookmark("x");
    total->SetName("Total");
    auto item = paragraph->AddTextItem("a");
    auto end = paragraph->AddBookmark("Total", false);
    EXPECT_EQ(paragraph->CurrentBookmark(), end);
    EXPECT_EQ(Refusal([&] { item->AddText("b"); }),
              "X109 Invalid operation.  Target already emitted TextItem.");
    EXPECT_EQ(Refusal([&] { total->SetName("y"); }),
              "X109 Invalid operation.  Target already emitted Bookmark.");
    EXPECT_EQ(total->Name(), "Total");
    const std::string bytes = built.File();
    EXPECT_NE(bytes.find("{\\*\\bkmkstart }"), bytes.npos);  // the delimiter stands even before an empty name
    EXPECT_EQ(built.Body(), R"(\pard~{\*\bkmkstart}{\*\bkmkstart Total}{a}{\*\bkmkend Total})");
}

}  // namespace draftwick::test
