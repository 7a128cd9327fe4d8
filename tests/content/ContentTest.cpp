#include "tests/support/Errors.h"
#include "tests/support/FakePlatform.h"
#include "tests/support/Rtf.h"

#include <draftwick/draftwick.h>

#include <gtest/gtest.h>

#include <functional>

namespace draftwick::test {

namespace {

constexpr std::string_view Start = "\\pard\\plain\\fs24\\cf0\\sb0\\sa0\\sl240\\slmult1";

/// What stands in the file after the document's own words, without line breaks.
std::string Body(const std::function<void(Document&)>& build) {
    auto files = std::make_shared<MemoryFiles>();
    auto document = Document::Create(MakeFakePlatform(files));
    document->SetFilename("out.rtf");
    build(*document);
    document->Finish();
    const std::string bytes = files->Bytes("out.rtf");
    EXPECT_EQ(CheckFile(bytes), std::vector<std::string>{});
    const std::string words = Words(bytes);
    return words.substr(words.find("\\aftnnar") + 8);
}

/// The words of a section with the given settings.
std::string SectionWords(const std::function<void(Section&)>& set) {
    const std::string body = Body([&](Document& d) {
        d.SetScaleMode(dwTwips);
        set(*d.AddSection());
    });
    return body.substr(0, body.size() - 1);
}

std::string Replaced(std::string text, std::string_view what, std::string_view with) {
    return text.replace(text.find(what), what.size(), with);
}

}  // namespace

TEST(Section, WritesItsWordsInOrder) {
    const std::string all =
        "\\sectd\\binsxn0\\sbkpage\\pgwsxn12240\\pghsxn15840\\margtsxn720\\marglsxn720\\margrsxn720\\margbsxn"
        "720"
        "\\guttersxn0\\headery720\\footery720\\pgnstarts1\\pgncont\\pgndec\\vertalt\\endnhere";
    EXPECT_EQ(SectionWords([](Section&) {}), all);
    const struct {
        std::function<void(Section&)> set;
        std::string_view what;
        std::string_view with;
    } cases[] = {
        {[](Section& s) { s.SetPaperBinFirst(2); }, "", ""},
        {[](Section& s) { s.SetPaperBinFirst(-1); }, "\\binsxn0", "\\binfsxn-1\\binsxn0"},
        {[](Section& s) { s.SetPaperBin(-4); }, "\\binsxn0", "\\binsxn-4"},
        {[](Section& s) { s.SetBreak(dwSBKNone); }, "\\sbkpage", "\\sbknone"},
        {[](Section& s) { s.SetBreak(dwSBKColumn); }, "\\sbkpage", "\\sbkcol"},
        {[](Section& s) { s.SetBreak(dwSBKEven); }, "\\sbkpage", "\\sbkeven"},
        {[](Section& s) { s.SetBreak(dwSBKOdd); }, "\\sbkpage", "\\sbkodd"},
        {[](Section& s) { s.SetLineNumberingX(5), s.SetLineNumberingInterval(9); }, "", ""},
        {[](Section& s) { s.SetLineNumberingVisible(true); }, "\\pgwsxn",
         "\\linemod1\\linex720\\linestarts1\\linerestart\\pgwsxn"},
        {[](Section& s) {
             s.SetLineNumberingVisible(true), s.SetLineNumberingRestart(dwLNRPage), s.SetLineNumberingX(5);
             s.SetLineNumberingInterval(2), s.SetLineNumberingStart(3);
         },
         "\\pgwsxn", "\\linemod2\\linex5\\linestarts3\\lineppage\\pgwsxn"},
        {[](Section& s) { s.SetLineNumberingVisible(true), s.SetLineNumberingRestart(dwLNRContinuous); },
         "\\pgwsxn", "\\linemod1\\linex720\\linestarts1\\linecont\\pgwsxn"},
        {[](Section& s) {
             s.SetPageWidth(1), s.SetPageHeight(2), s.SetMarginTop(3), s.SetMarginLeft(4),
                 s.SetMarginRight(5);
             s.SetMarginBottom(6), s.SetGutter(7), s.SetHeaderY(8), s.SetFooterY(9);
         },
         "\\pgwsxn12240\\pghsxn15840\\margtsxn720\\marglsxn720\\margrsxn720\\margbsxn720\\guttersxn0\\headery"
         "720"
         "\\footery720",
         "\\pgwsxn1\\pghsxn2\\margtsxn3\\marglsxn4\\margrsxn5\\margbsxn6\\guttersxn7\\headery8\\footery9"},
        {[](Section& s) { s.SetOrientation(dwLandscape), s.SetTitlePage(true); },
         "\\pgwsxn12240\\pghsxn15840\\margtsxn720\\marglsxn720\\margrsxn720\\margbsxn720\\guttersxn0",
         "\\pgwsxn15840\\pghsxn12240\\margtsxn720\\marglsxn720\\margrsxn720\\margbsxn720\\guttersxn0\\lndscps"
         "xn"
         "\\titlepg"},
        {[](Section& s) { s.SetPageNumberingStart(70000), s.SetPageNumberingRestart(dwPNRSection); },
         "\\pgnstarts1\\pgncont", "\\pgnstarts70000\\pgnrestart"},
        {[](Section& s) { s.SetPageNumberingFormat(dwPNRomanLower); }, "\\pgndec", "\\pgnlcrm"},
        {[](Section& s) { s.SetPageNumberingFormat(dwPNRomanUpper); }, "\\pgndec", "\\pgnucrm"},
        {[](Section& s) { s.SetPageNumberingFormat(dwPNLetterLower); }, "\\pgndec", "\\pgnlcltr"},
        {[](Section& s) { s.SetPageNumberingFormat(dwPNLetterUpper); }, "\\pgndec", "\\pgnucltr"},
        {[](Section& s) { s.SetVerticalAlign(dwVertBottom); }, "\\vertalt", "\\vertalb"},
        {[](Section& s) { s.SetVerticalAlign(dwVertCenter); }, "\\vertalt", "\\vertalc"},
        {[](Section& s) { s.SetVerticalAlign(dwVertJustify); }, "\\vertalt", "\\vertalj"},
    };
    for (const auto& c : cases) EXPECT_EQ(SectionWords(c.set), Replaced(all, c.what, c.with));
}

TEST(Section, TakesItsPageFromTheDocument) {
    const std::string body = Body([](Document& d) {
        d.SetMarginLeft(1);
        d.SetOrientation(dwLandscape);
        d.SetEndnoteLocation(dwELDocument);
        auto first = d.AddSection();
        first->SetMarginLeft(2);
        first->SetOrientation(dwPortrait);
        EXPECT_EQ(d.AddSection()->MarginLeft(), 1);
    });
    EXPECT_EQ(
        body,
        "\\sectd\\binsxn0\\sbkpage\\pgwsxn12240\\pghsxn15840\\margtsxn720\\marglsxn2880\\margrsxn720"
        "\\margbsxn720\\guttersxn0\\headery720\\footery720\\pgnstarts1\\pgncont\\pgndec\\vertalt"
        "\\sect\\sectd\\binsxn0\\sbkpage\\pgwsxn15840\\pghsxn12240\\margtsxn720\\marglsxn1440\\margrsxn720"
        "\\margbsxn720\\guttersxn0\\lndscpsxn\\headery720\\footery720\\pgnstarts1\\pgncont\\pgndec\\vertalt"
        "}");
}

TEST(Content, IsWrittenWhenItsNextSiblingArrives) {
    const std::string body = Body([](Document& d) {
        auto section = d.AddSection();
        EXPECT_TRUE(d.Emitted() && !section->Emitted());
        auto first = section->AddParagraph();
        EXPECT_TRUE(section->Emitted() && !section->Finished() && !first->Emitted());
        auto item = first->AddTextItem("a");
        EXPECT_TRUE(first->Emitted() && !item->Emitted());
        item->AddText("b");
        auto second = first->AddTextItem("c");
        EXPECT_TRUE(item->Emitted() && !second->Emitted());
        EXPECT_EQ(first->CurrentTextItem(), second);
        EXPECT_EQ(Refusal([&] { item->AddText("x"); }),
                  "X109 Invalid operation.  Target already emitted TextItem.");
        EXPECT_EQ(item->Text(), "ab");
        auto empty = section->AddParagraph();
        EXPECT_TRUE(first->Finished() && second->Emitted());
        EXPECT_EQ(section->CurrentParagraph(), empty);
    });
    EXPECT_EQ(body.substr(body.find("\\pard")),
              std::string(Start) + "{ab}{c}" + "\\par" + std::string(Start) + "}");
}

TEST(TextItem, KeepsTextInItsRtfForm) {
    const std::string body = Body([](Document& d) {
        auto item = d.AddSection()->AddParagraph()->AddTextItem("x\\y");
        EXPECT_EQ(item->Text(), "x\\\\y");
        item->AddRawText("\\b bold\\b0");
        for (const auto* code : {"Bullet", "\\BULLET", "\\bullet"}) item->AddSpecial(code);
        item->AddSpecial(Special::Footnote());
        item->AddSpecial("\xC3\x84");
        item->AddText("");
        item->AddRawText(Special::ASCII(150));
        EXPECT_EQ(item->Text(), "x\\\\y\\b bold\\b0\\bullet \\bullet \\bullet \\chftn \\\xC3\x84 \\'96");
    });
    EXPECT_NE(body.find("{x\\\\y\\b bold\\b0\\bullet\\bullet\\bullet\\chftn"), std::string::npos) << body;
}

TEST(TextItem, CanBeMendedWhenItsStyleDoesNotExist) {
    const std::string body = Body([](Document& d) {
        d.TextStyles()->Add("Strong");
        auto paragraph = d.AddSection()->AddParagraph();
        auto item = paragraph->AddTextItem("a");
        item->SetStyleName("Missing");
        for (int i = 0; i < 2; ++i) {
            EXPECT_EQ(Refusal([&] { paragraph->AddTextItem("b"); }), "X112 Item not found 'Missing'.");
        }
        EXPECT_FALSE(item->Emitted());
        item->SetStyleName("STRONG");
        paragraph->AddTextItem("b");
    });
    EXPECT_EQ(body.substr(body.find("\\pard")), std::string(Start) + "{\\cs0 a}{b}}");
}

}  // namespace draftwick::test
