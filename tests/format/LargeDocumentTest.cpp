#include "tests/support/Documents.h"

namespace draftwick::test {

/// Far more of everything than documents have. The expected words are put together beside the document.
TEST(LargeDocument, HasTablesOfThousandsOfEntries) {
    constexpr int Colors = 10000, FontCount = 1000, StyleCount = 500, ListCount = 200;
    const auto number = [](int i) { return std::to_string(i); };
    TestDocument document;
    std::string fonts, styles, textStyles, lists, overrides, body;

    for (int i = 0; i < FontCount; ++i) {
        document->Fonts()->Add("Font " + number(i));
        fonts += "{\\f" + number(i) + "\\fnil Font " + number(i) + ";}";
    }
    for (int i = 0; i < StyleCount; ++i) {
        const std::string font = number(FontCount - 1 - i), base = i == 0 ? "" : "Style " + number(i - 1);
        const auto style = document->ParagraphStyles()->Add("Style " + number(i));
        style->SetBasedOn(base);
        style->FontFormat()->SetFontName("FONT " + font);
        styles += "{\\s" + number(i) + "\\sbasedon" + (i == 0 ? "222" : number(i - 1))
                  + "\\sb0\\sa0\\sl240\\slmult1\\f" + font + "\\fs24\\cf0 Style " + number(i) + ";}";
        const auto textStyle = document->TextStyles()->Add("Style " + number(i));
        textStyle->SetBasedOn(base);
        textStyle->FontFormat()->SetSize(i + 1);
        textStyles += "{\\*\\cs" + number(StyleCount + i) + "\\sbasedon"
                      + (i == 0 ? "222" : number(StyleCount + i - 1)) + "\\fs" + number(2 * i + 2)
                      + "\\cf0 Style " + number(i) + ";}";
    }
    for (int i = 1; i <= ListCount; ++i) {
        document->Lists()->Add("List " + number(i))->Levels(1)->SetStartAt(i);
        lists +=
            "{\\list\\listtemplateid" + number(i + ListCount) + "{\\listname List " + number(i) + ";}\\listid"
            + number(i) + "\\listsimple{\\listlevel\\levelnfc0\\leveljc0\\levelfollow0\\levelstartat"
            + number(i)
            + "\\levelspace0\\levelindent0{\\leveltext\\'02\\'00.;}{\\levelnumbers\\'01;}\\jclisttab\\tx360"
              "\\fs24\\cf0}}";
        overrides += "{\\listoverride\\listid" + number(i) + "\\listoverridecount\\ls" + number(i) + "}";
    }

    const auto paragraph = document.AddParagraph();
    std::string colors = "\\red0\\green0\\blue0 ;";  // the paragraph's
    for (int i = 1; i < Colors; ++i) {
        const int red = i % 256, green = i / 256, blue = i % 7;
        const auto item = paragraph->AddTextItem("x");
        item->FontFormat()->SetColor(red + 256 * green + 65536 * blue);
        item->SetStyleName("style " + number(i % StyleCount));
        colors += "\\red" + number(red) + "\\green" + number(green) + "\\blue" + number(blue) + " ;";
        body += "{\\cs" + number(StyleCount + i % StyleCount) + (i % StyleCount == 11 ? "" : "\\fs24")
                + "\\cf" + number(i) + " x}";
    }
    for (int i = 1; i <= ListCount; ++i) {
        const auto entry = document.AddParagraph();
        entry->SetStyleName("STYLE " + number(i));
        entry->Format()->SetListName("LIST " + number(i));
        body += "\\par\\pard\\s" + number(i) + "\\plain\\f" + number(FontCount - 1 - i)
                + "\\fs24\\cf0\\sb0\\sa0\\sl240\\slmult1\\ls" + number(i) + "\\ilvl0";
    }

    const std::string words = Words(document.Finish());
    const std::string header = "{\\rtf1{\\fonttbl" + fonts + "}{\\colortbl" + colors + "}{\\stylesheet"
                               + styles + textStyles + "}{\\*\\listtable" + lists + "}{\\*\\listoverridetable"
                               + overrides + "}\\deftab720";
    EXPECT_TRUE(words.starts_with(header));  // not EXPECT_EQ: nobody reads a difference of a megabyte
    EXPECT_TRUE(words.ends_with("\\pard\\plain\\fs24\\cf0\\sb0\\sa0\\sl240\\slmult1" + body + "}"));
}

}  // namespace draftwick::test
