#include "tests/support/Documents.h"

#include <draftwick/format/Writers.h>

namespace draftwick::test {

TEST(Run, WritesWhatDiffersFromItsStyleItsParagraphOrTheDefault) {
    struct Case {
        bool ofParagraph, own, style;
        std::string words;
    };
    // The paragraph's format is bold of 14 points, the style's bold and red, the run's own is made italic.
    const Case cases[] = {
        {false, false, false, "{x}"},
        {true, false, false, "{x}"},
        {false, true, false, "{\\i1 x}"},
        {true, true, false, "{\\i1 x}"},
        {false, false, true, "{\\cs1 x}"},
        {true, false, true, "{\\cs1 x}"},
        {false, true, true, "{\\cs1\\b0\\i1\\cf0 x}"},
        {true, true, true, "{\\cs1\\fs28\\i1\\cf0 x}"},
    };
    for (const Case& c : cases) {
        TestDocument document;
        document->ParagraphStyles()->Add("P");  // text styles are numbered after it
        const auto style = document->TextStyles()->Add("T")->FontFormat();
        style->SetBold(true);
        style->SetColor(0x0000FF);
        const auto paragraph = document.AddParagraph();
        if (c.ofParagraph) {
            paragraph->FontFormat()->SetBold(true);
            paragraph->FontFormat()->SetSize(14);
        }
        const auto item = paragraph->AddTextItem("x");
        if (c.own) item->FontFormat()->SetItalic(true);
        if (c.style) item->SetStyleName("t");
        const std::string start = c.ofParagraph ? "\\pard\\plain\\b\\fs28\\cf0" + Spacing : "\\pard~";
        EXPECT_EQ(document.Body(), start + c.words);
    }
}

TEST(Run, IsChangedByTheFirstReadOfAFormatUnderATextStyle) {
    TestDocument document;
    document->TextStyles()->Add("T")->FontFormat()->SetUnderline(dwUnderlineDotted);
    const auto paragraph = document.AddParagraph();
    const auto unread = paragraph->AddTextItem("unread");
    unread->SetStyleName("T");
    const auto read = paragraph->AddTextItem("read");
    read->SetStyleName("T");
    EXPECT_FALSE(read->FontFormat()->Bold());
    EXPECT_EQ(document.Body(), "\\pard~{\\cs0 unread}{\\cs0\\ulnone read}");
}

TEST(Run, StartsFromTheFormatOfTheParagraphAtThatMoment) {
    TestDocument document;
    const auto paragraph = document.AddParagraph();
    paragraph->FontFormat()->SetSize(30);
    const auto item = paragraph->AddTextItem("x")->FontFormat();
    EXPECT_EQ(item->Size(), 30);
    item->SetSize(12);
    EXPECT_EQ(Between(document.Body(), Spacing, "}"), "{\\fs24 x");
}

TEST(Run, WritesStyleFormatBackgroundAndBorderInThisOrder) {
    TestDocument document;
    document->TextStyles()->Add("T");
    const auto item = document.AddParagraph()->AddTextItem("a{b}");
    item->Border()->SetStyle(dwBSWavy);
    item->Border()->SetColor(0x0000FF);
    item->Background()->SetTexture(dwTextureCross);
    item->FontFormat()->SetBold(true);
    item->SetStyleName("T");
    EXPECT_EQ(document.Body(),
              "\\pard~{\\cs0\\b1\\chbgcross\\chcbpat1\\chfpat0\\chbrdr\\brdrwavy\\brdrw20\\brdrref2 "
              "a\\{b\\}}");
}

TEST(TextBorder, IsWrittenUnlessItsStyleIsNone) {
    struct Case {
        std::int32_t style;
        double width;
        std::string words;
    };
    const Case cases[] = {
        {1, 3, ""},
        {2, 1, "\\chbrdr\\brdrs\\brdrw20\\brdrref0"},
        {24, 1.29, "\\chbrdr\\brdrengrave\\brdrw25\\brdrref0"},
        {2, -0.01, "\\chbrdr\\brdrs\\brdrw-1\\brdrref0"},
        // Styles are not checked here; they need not have a word.
        {25, 1, "\\chbrdr\\brdrw20\\brdrref0"},
        {-5, 1, "\\chbrdr\\brdrw20\\brdrref0"},
    };
    for (const auto& [style, width, words] : cases) {
        TextBorder::Values border{.style = static_cast<dwBorderStyle>(style)};
        border.width.Set(width);
        EXPECT_EQ(WordsOf([&](RtfWriter& writer) { EmitTextBorder(writer, border); }), words);
    }
}

}  // namespace draftwick::test
