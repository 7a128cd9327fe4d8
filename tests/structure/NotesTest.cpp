#include "tests/support/Documents.h"

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
    TestDocument built;
    auto paragraph = built.AddParagraph();
    auto note = paragraph->AddFootnote(true);
    auto inner = note->AddParagraph();
    EXPECT_TRUE(note->IsEndnote() && note->Emitted() && !note->Finished());
    paragraph->AddTextItem("a");
    EXPECT_EQ(paragraph->CurrentFootnote(), note);
    EXPECT_EQ(Refusal([&] { note->AddParagraph(); }), Emitted("Footnote"));
    EXPECT_EQ(Refusal([&] { note->AddTable(); }), Emitted("Footnote"));
    EXPECT_EQ(Refusal([&] { inner->AddFootnote(); }), Emitted("Paragraph"));
    EXPECT_EQ(Refusal([&] { inner->AddBookmark("x"); }), Emitted("Paragraph"));
}

TEST(Notes, AreNumberedAndPlacedByTheDocument) {
    const auto words = [](const Settings& settings) {
        const std::string file = Written([&](Document& document) { Apply(settings, document); });
        return Between(file, "\\pgbrdrfoot\\fet2", "}");
    };
    EXPECT_EQ(words(SettingsOf("FootnoteLocation=1 FootnoteRestart=1 FootnoteStartAt=-5 "
                               "FootnoteFormat=2 EndnoteLocation=2 EndnoteRestart=2 "
                               "EndnoteStartAt=32767 EndnoteFormat=5")),
              R"(\ftntj\ftnrstpg\ftnstart-5\ftnnalc\aenddoc\aftnrestart\aftnstart32767\aftnnruc)");
    // A value of one setting, with the words of the others.
    const auto ofEach = [&](const char* list, const char* property, const char* before, const char* after) {
        ExpectWords(list, [&](std::int32_t value) {
            return Between(words({{property, value}}) + "!", before, after);
        });
    };
    ofEach("ftntj fntbj", "FootnoteLocation", "", "\\ftnrstcont\\ftnstart1\\ftnnar\\aendnotes\\aftnrstcont");
    ofEach("ftnrstpg ftnrestart ftnrstcont", "FootnoteRestart", "\\fntbj", "\\ftnstart1\\ftnnar\\aendnotes");
    ofEach("ftnnar ftnnalc ftnnauc ftnnrlc ftnnruc", "FootnoteFormat", "\\ftnstart1",
           "\\aendnotes\\aftnrstc");
    ofEach("aendnotes aenddoc", "EndnoteLocation", "\\ftnstart1\\ftnnar",
           "\\aftnrstcont\\aftnstart1\\aftnnar!");
    ofEach("aftnrstcont aftnrestart aftnrstcont", "EndnoteRestart", "\\aendnotes", "\\aftnstart1\\aftnnar!");
    ofEach("aftnnar aftnnalc aftnnauc aftnnrlc aftnnruc", "EndnoteFormat", "\\aftnrstcont\\aftnstart1", "!");
    // Notes at the end of the document do not stand at the ends of sections.
    TestDocument document;
    document->SetEndnoteLocation(dwELDocument);
    document->AddSection();
    EXPECT_EQ(document.Finish().find("endnhere"), std::string::npos);
}

TEST(Bookmark, IsADestinationInTheText) {
    TestDocument built;
    auto paragraph = built.AddParagraph();
    paragraph->AddBookmark("");
    auto total = paragraph->AddBookmark("x");
    total->SetName("Total");
    auto item = paragraph->AddTextItem("a");
    auto end = paragraph->AddBookmark("Total", false);
    EXPECT_EQ(paragraph->CurrentBookmark(), end);
    EXPECT_EQ(Refusal([&] { item->AddText("b"); }), Emitted("TextItem"));
    // The delimiter stands even before an empty name.
    EXPECT_NE(built.Finish().find("{\\*\\bkmkstart }"), std::string::npos);
    EXPECT_EQ(built.Body(), R"(\pard~{\*\bkmkstart}{\*\bkmkstart Total}{a}{\*\bkmkend Total})");
}

}  // namespace draftwick::test
