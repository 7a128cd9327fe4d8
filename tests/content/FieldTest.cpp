#include "tests/support/Documents.h"

namespace draftwick::test {

namespace {

/// What a paragraph with one field has between the braces of the field's run.
std::string FieldWords(const Settings& settings, std::string_view code, std::string_view text) {
    const std::string body =
        BodyOf([&](Section& s) { Apply(settings, *s.AddParagraph()->AddField(code, text)); });
    return Between(body + "!", "~{{", "}}!");
}

/// What an empty field with one setting has behind its code.
std::string Switch(std::string_view property, std::int32_t value) {
    return Between(FieldWords({{property, value}}, "=", ""), R"(\fldinst =)", "}");
}

}  // namespace

TEST(Field, HasFlagsAnInstructionWithSwitchesAndAResult) {
    struct {
        Settings settings;
        const char *code, *text, *words;
    } const cases[] = {
        {{}, "PAGE", "1", R"(\field{\*\fldinst PAGE}{\fldrslt 1})"},
        {{}, "", "", R"(\field{\*\fldinst}{\fldrslt})"},
        {{},
         R"(TOC \o "1-2")",
         "a\t{2}\r\n b",
         R"(\field{\*\fldinst TOC \\o "1-2"}{\fldrslt a\tab\{2\}\line b})"},
        {{{"Private", true}, {"Locked", true}, {"Edited", true}, {"Dirty", true}},
         "DATE",
         "x",
         R"(\field\flddirty\fldedit\fldlock\fldpriv{\*\fldinst DATE}{\fldrslt x})"},
        {{{"Locked", true}}, "DATE", "x", R"(\field\fldlock{\*\fldinst DATE}{\fldrslt x})"},
        {{{"CharFormat", true},
          {"MergeFormat", true},
          {"TextFormat", dwFTFCaps},
          {"NumberFormat", dwFNFArabic},
          {"DatePicture", "d. MMMM"},
          {"NumberPicture", "0{0}"}},
         "=",
         "",
         R"(\field{\*\fldinst = \\# "0\{0\}" \\@ "d. MMMM" \\* Arabic \\* Caps \\* MERGEFORMAT)"
         R"( \\* CHARFORMAT}{\fldrslt})"},
    };
    for (const auto& [settings, code, text, words] : cases)
        EXPECT_EQ(FieldWords(settings, code, text), words);
    const auto word = [](const std::string& words) {
        return words.starts_with(R"( \\* )") ? "\\" + words.substr(5) : words;
    };
    ExpectWords("- Arabic alphabetic ALPHABETIC roman ROMAN Ordinal CardText OrdText Hex DollarText",
                [&](std::int32_t value) { return word(Switch("NumberFormat", value)); });
    ExpectWords("- Caps FirstCap Lower Upper",
                [&](std::int32_t value) { return word(Switch("TextFormat", value)); });
}

TEST(Field, StartsAsARunOfTextDoes) {
    const TestDocument document;
    const auto paragraph = document.AddParagraph();
    paragraph->FontFormat()->SetItalic(true);
    const auto field = paragraph->AddField("PAGE", "1");
    EXPECT_EQ(paragraph->CurrentField(), field);
    EXPECT_TRUE(field->FontFormat()->Italic());
    field->FontFormat()->SetBold(true);
    Apply({{"Texture", dwTextureShaded}, {"Shading", 25.0}}, *field->Background());
    field->Border()->SetStyle(dwBSSingle);
    paragraph->AddTextItem("x");
    for (const auto& part :
         {field->FontFormat()->Self(), field->Background()->Self(), field->Border()->Self()}) {
        EXPECT_EQ(Refusal([&] { Set(*part, "Color", 1); }), Emitted("Field"));
    }
    EXPECT_EQ(Between(document.Body(), Spacing, "{x}"),
              R"({\b1\chshdng2500\chbrdr\brdrs\brdrw20\brdrref0{\field{\*\fldinst PAGE}{\fldrslt 1}}})");
}

}  // namespace draftwick::test
