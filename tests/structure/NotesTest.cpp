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
        std::function<void(Document&)> set;
        std::string words, end;
    } const cases[]{
        {[](Document&) {}, R"(\fntbj\ftnrstcont\ftnstart1\ftnnar)",
         R"(\aendnotes\aftnrstcont\aftnstart1\aftnnar)"},
        {[](Document& d) {
             d.SetFootnoteLocation(dwFLBeneathText);
             d.SetFootnoteRestart(dwFRPage);
             d.SetFootnoteStartAt(-5);
             d.SetFootnoteFormat(dwFFLetterLower);
             d.SetEndnoteLocation(dwELDocument);
             d.SetEndnoteRestart(dwFRPage);
             d.SetEndnoteStartAt(32767);
             d.SetEndnoteFormat(dwFFLetterLower);
         },
         R"(\ftntj\ftnrstpg\ftnstart-5\ftnnalc)", R"(\aenddoc\aftnrstcont\aftnstart32767\aftnnalc)"},
        {[](Document& d) {
             d.SetFootnoteRestart(dwFRSection);
             d.SetFootnoteFormat(dwFFLetterUpper);
             d.SetEndnoteRestart(dwFRSection);
             d.SetEndnoteFormat(dwFFLetterUpper);
         },
         R"(\fntbj\ftnrestart\ftnstart1\ftnnauc)", R"(\aendnotes\aftnrestart\aftnstart1\aftnnauc)"},
        {[](Document& d) {
             d.SetFootnoteFormat(dwFFRomanLower);
             d.SetEndnoteFormat(dwFFRomanLower);
         },
         R"(\fntbj\ftnrstcont\ftnstart1\ftnnrlc)", R"(\aendnotes\aftnrstcont\aftnstart1\aftnnrlc)"},
        {[](Document& d) {
             d.SetFootnoteFormat(dwFFRomanUpper);
             d.SetEndnoteFormat(dwFFRomanUpper);
         },
         R"(\fntbj\ftnrstcont\ftnstart1\ftnnruc)", R"(\aendnotes\aftnrstcont\aftnstart1\aftnnruc)"},
    };
    for (const auto& [set, words, end] : cases) {
        Built built;
        set(*built.document);
        built.document->AddSection();
        // Text of two line breaks stands between the two kinds: only its delimiter is left for a reader.
        const std::string all = "\\pgbrdrfoot\\fet2" + words + end + "\\sectd";
        const std::string actual = Words(built.File());
        EXPECT_NE(actual.find(all), std::string::npos) << all << "\n" << actual;
        EXPECT_EQ(actual.find("\\endnhere") != std::string::npos, end.find("aendnotes") != std::string::npos);
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
