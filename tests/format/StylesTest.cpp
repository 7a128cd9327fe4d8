#include "tests/support/Documents.h"

namespace draftwick::test {

TEST(Stylesheet, WritesEachPartOfAStyleInOrder) {
    TestDocument document;
    document->Fonts()->Add("Serif");
    const auto heading = document->ParagraphStyles()->Add("Heading");
    const auto body = document->ParagraphStyles()->Add("Body");
    heading->SetNextStyle("BODY");
    heading->TabStops()->Add(1, dwTabLeft, dwTabLeaderNone);  // not in the stylesheet
    heading->FontFormat()->SetFontName("Serif");
    heading->Format()->SetKeepWithNext(true);
    heading->Background()->SetTexture(dwTextureSolid);
    heading->Borders()->Items(dwPBorderBottom)->SetStyle(dwBSDouble);
    body->SetNextStyle("Body");
    body->SetNextStyle("");
    const auto strong = document->TextStyles()->Add("Strong");
    strong->FontFormat()->SetBold(true);
    const auto marked = document->TextStyles()->Add("Ärger;");
    marked->SetBasedOn("strong");
    marked->Background()->SetTexture(dwTextureShaded);
    marked->Background()->SetShading(20);
    marked->Border()->SetStyle(dwBSSingle);
    EXPECT_EQ(heading->NextStyle(), "Body");
    EXPECT_EQ(marked->BasedOn(), "Strong");
    EXPECT_EQ(
        document.Header(),
        "{\\rtf1{\\fonttbl{\\f0\\fnil Serif;}}{\\colortbl\\red0\\green0\\blue0 ;}{\\stylesheet"
        "{\\s0\\sbasedon222\\snext1\\brdrb\\brdrdb\\brsp20\\brdrw20\\brdrcf0\\shading10000\\cfpat0\\keepn"
            + Spacing + "\\f0\\fs24\\cf0 Heading;}{\\s1\\sbasedon222" + Spacing
            + "\\fs24\\cf0 Body;}"
              "{\\*\\cs2\\sbasedon222\\b\\fs24\\cf0 Strong;}"
              "{\\*\\cs3\\sbasedon2\\chbrdr\\brdrs\\brdrw20\\brdrref0\\b\\fs24\\cf0\\chshdng2000 "
              "\xC4rger;;}}");
}

TEST(ParagraphStyle, CopiesItsBaseAsItIsAtThatMoment) {
    TestDocument document;
    const auto base = document->ParagraphStyles()->Add("Base");
    base->FontFormat()->SetSize(10);
    base->Format()->SetAlign(dwAlignRight);
    base->Background()->SetTexture(dwTextureSolid);
    base->Borders()->Items(dwPBorderLeft)->SetStyle(dwBSDot);
    base->TabStops()->Add(1, dwTabLeft, dwTabLeaderNone);
    const auto derived = document->ParagraphStyles()->Add("Derived");
    derived->FontFormat()->SetItalic(true);                         // replaced
    derived->Borders()->Items(dwPBorderTop)->SetStyle(dwBSDash);    // the base has no top: it stays
    derived->TabStops()->Add(2, dwTabRight, dwTabLeaderUnderline);  // replaced
    derived->SetBasedOn("BASE");
    derived->Format()->SetOutlineLevel(1);
    base->FontFormat()->SetSize(20);  // too late for Derived
    EXPECT_EQ(Refusal([&] { derived->SetBasedOn("Basis"); }), "X112 Item not found 'Basis'.");
    EXPECT_EQ(derived->BasedOn(), "Base");
    const std::string borders =
        "\\brdrt\\brdrdash\\brsp20\\brdrw20\\brdrcf0\\brdrl\\brdrdot\\brsp80\\brdrw20\\brdrcf0";
    document.AddParagraph()->SetStyleName("derived");
    const std::string words = Words(document.Finish());
    EXPECT_NE(words.find("{\\s1\\sbasedon0" + borders + "\\shading10000\\cfpat0\\qr" + Spacing
                         + "\\outlinelevel0\\fs20\\cf0 Derived;}"),
              std::string::npos);
    EXPECT_TRUE(words.ends_with("\\pard\\s1" + borders + "\\shading10000\\cfpat0\\plain\\fs20\\cf0\\qr"
                                + Spacing + "\\outlinelevel0\\tx1440}"));
}

TEST(TextStyle, CopiesItsBaseAndCanLetItGo) {
    TestDocument document;
    const auto base = document->TextStyles()->Add("Base");
    base->FontFormat()->SetHidden(true);
    base->Border()->SetWidth(2);
    base->Border()->SetStyle(dwBSTriple);
    base->Background()->SetTexture(dwTextureVertical);
    const auto derived = document->TextStyles()->Add("Derived");
    derived->SetBasedOn("Base");
    derived->SetBasedOn("");  // only the name
    base->FontFormat()->SetHidden(false);
    EXPECT_TRUE(document.Header().ends_with("{\\*\\cs1\\sbasedon222\\chbrdr\\brdrtriple\\brdrw40\\brdrref0"
                                            "\\fs24\\v\\cf0\\chbgvert\\chcbpat1\\chfpat0 Derived;}}"));
}

TEST(Paragraph, CopiesItsStyleAndOverridesIt) {
    TestDocument document;
    const auto style = document->ParagraphStyles()->Add("Quote");
    style->FontFormat()->SetItalic(true);
    style->FontFormat()->SetSize(11);
    style->Format()->SetAlign(dwAlignJustify);
    style->Format()->SetIndentLeft(0.5);
    style->TabStops()->Add(1, dwTabBar, dwTabLeaderNone);
    style->Borders()->Items(dwPBorderLeft)->SetStyle(dwBSSingle);

    const auto overridden = document.AddParagraph();
    overridden->Format()->SetSpaceAfter(6);  // before the style: replaced by it
    overridden->FontFormat()->SetBold(true);
    overridden->TabStops()->Add(3, dwTabLeft, dwTabLeaderNone);
    overridden->Borders()->Items(dwPBorderRight)->SetStyle(dwBSDouble);  // the style does not have it
    overridden->SetStyleName("QUOTE");
    EXPECT_EQ(overridden->StyleName(), "Quote");
    EXPECT_EQ(Refusal([&] { overridden->SetStyleName("Quotation"); }), "X112 Item not found 'Quotation'.");
    overridden->Format()->SetAlign(dwAlignCenter);
    overridden->FontFormat()->SetItalic(false);
    overridden->Borders()->Items(dwPBorderLeft)->SetStyle(dwBSNone);
    overridden->AddTextItem("x")->FontFormat()->SetItalic(true);

    const auto unnamed = document.AddParagraph();
    unnamed->SetStyleName("Quote");
    unnamed->SetStyleName("");  // what was copied stays
    EXPECT_EQ(document.Body(),
              "\\pard\\s0\\brdrr\\brdrdb\\brsp80\\brdrw20\\brdrcf0\\plain\\fs22\\cf0\\qc\\li720" + Spacing
                  + "\\tb1440{\\i1 "
                    "x}\\par\\pard\\brdrl\\brdrs\\brsp80\\brdrw20\\brdrcf0\\plain\\fs22\\i\\cf0\\qj\\li720"
                  + Spacing + "\\tb1440");
}

TEST(NamedCollections, FindNamesInAnyCaseOfAnyScript) {
    const auto check = [](Document& document, auto collection, const std::string& own) {
        const auto sisyphus = collection->Add("ΣΊΣΥΦΟΣ");
        const auto street = collection->Add("Straße");
        EXPECT_EQ(sisyphus->Name(), "ΣΊΣΥΦΟΣ");
        EXPECT_EQ(sisyphus->Parent(), document.Self());
        EXPECT_EQ(collection->Items("σίσυφος"), sisyphus);  // with the sigma of the end of a word
        EXPECT_EQ(collection->Items("STRAßE"), street);
        EXPECT_EQ(Refusal([&] { collection->Items("STRASSE"); }), "X112 Item not found 'STRASSE'.");
        EXPECT_EQ(RefusalNumber([&] { collection->Add("Σίσυφος"); }), dwRunDuplicateKey);
        EXPECT_EQ(Refusal([&] { collection->Add(""); }), "X102 Names for " + own + " can't be zero length.");

        const auto two = collection->Add("2");
        EXPECT_EQ(collection->Items(2), street);
        EXPECT_EQ(std::get<std::shared_ptr<Object>>(Call(*collection, "Items", {3})), two);
        EXPECT_EQ(std::get<std::shared_ptr<Object>>(Call(*collection, "Items", {std::string{"2"}})), two);
        for (const int position : {0, 4, -1}) {
            EXPECT_EQ(Refusal([&] { collection->Items(position); }),
                      "X112 Item not found '" + std::to_string(position) + "'.");
        }
        std::string names;
        for (const auto& item : *collection) names += item->Name();
        EXPECT_EQ(names, "ΣΊΣΥΦΟΣStraße2");
        document.AddSection();
        EXPECT_EQ(Refusal([&] { collection->Add("3"); }), own == "Lists" ? "accepted" : Emitted("Document"));
    };
    const TestDocument a, b, c, d;
    check(*a.document, a->Fonts(), "Fonts");
    check(*b.document, b->Lists(), "Lists");
    check(*c.document, c->ParagraphStyles(), "Paragraph Styles");
    check(*d.document, d->TextStyles(), "Text Styles");
}

}  // namespace draftwick::test
