#include "tests/support/Documents.h"
#include "tests/support/Errors.h"

namespace draftwick::test {

namespace {

/// What a paragraph with one field has after its own words.
std::string FieldWords(const std::function<void(Field&)>& set, std::string_view code, std::string_view text) {
    const std::string file = Written(
        [&](Document& document) { set(*document.AddSection()->AddParagraph()->AddField(code, text)); });
    const std::size_t start = file.find(R"(\slmult1)") + 8;
    return file.substr(start, file.size() - start - 1);  // the last brace ends the document
}

/// The instruction of an empty field.
std::string Instruction(const std::function<void(Field&)>& set) {
    return Between(FieldWords(set, "=", ""), R"(\fldinst )", "}");
}

}  // namespace

TEST(Field, HasAnInstructionAndAResult) {
    EXPECT_EQ(FieldWords([](Field&) {}, "PAGE", "1"), R"({{\field{\*\fldinst PAGE}{\fldrslt 1}}})");
    EXPECT_EQ(FieldWords([](Field&) {}, "", ""), R"({{\field{\*\fldinst}{\fldrslt}}})");
    EXPECT_EQ(FieldWords([](Field&) {}, R"(TOC \o "1-2")", "a\t{2}\r\n b"),
              R"({{\field{\*\fldinst TOC \\o "1-2"}{\fldrslt a\tab\{2\}\line b}}})");
}

TEST(Field, HasItsFlagsBeforeTheInstruction) {
    const auto all = [](Field& field) {
        field.SetPrivate(true);
        field.SetLocked(true);
        field.SetEdited(true);
        field.SetDirty(true);
    };
    EXPECT_EQ(FieldWords(all, "DATE", "x"),
              R"({{\field\flddirty\fldedit\fldlock\fldpriv{\*\fldinst DATE}{\fldrslt x}}})");
    EXPECT_EQ(FieldWords([](Field& field) { field.SetLocked(true); }, "DATE", "x"),
              R"({{\field\fldlock{\*\fldinst DATE}{\fldrslt x}}})");
}

TEST(Field, HasItsSwitchesAfterTheCode) {
    const auto all = [](Field& field) {
        field.SetCharFormat(true);
        field.SetMergeFormat(true);
        field.SetTextFormat(dwFTFCaps);
        field.SetNumberFormat(dwFNFArabic);
        field.SetDatePicture("d. MMMM");
        field.SetNumberPicture("0{0}");
    };
    EXPECT_EQ(FieldWords(all, "=", ""),
              R"({{\field{\*\fldinst = \\# "0\{0\}" \\@ "d. MMMM" \\* Arabic \\* Caps)"
              R"( \\* MERGEFORMAT \\* CHARFORMAT}{\fldrslt}}})");
    const std::string_view numbers[] = {"",        "Arabic", "alphabetic", "ALPHABETIC",
                                        "roman",   "ROMAN",  "Ordinal",    "CardText",
                                        "OrdText", "Hex",    "DollarText"};
    const std::string_view texts[] = {"", "Caps", "FirstCap", "Lower", "Upper"};
    const auto expected = [](std::string_view word) {
        return word.empty() ? "=" : R"(= \\* )" + std::string{word};
    };
    for (std::int32_t i = 1; i <= 11; ++i) {
        EXPECT_EQ(Instruction([&](Field& f) { f.SetNumberFormat(static_cast<dwFieldNumberFormat>(i)); }),
                  expected(numbers[i - 1]));
    }
    for (std::int32_t i = 1; i <= 5; ++i) {
        EXPECT_EQ(Instruction([&](Field& f) { f.SetTextFormat(static_cast<dwFieldTextFormat>(i)); }),
                  expected(texts[i - 1]));
    }
}

TEST(Field, StartsAsARunOfTextDoes) {
    const std::string file = Written([](Document& document) {
        document.TextStyles()->Add("Number");
        const auto paragraph = document.AddSection()->AddParagraph();
        paragraph->FontFormat()->SetItalic(true);
        const auto field = paragraph->AddField("PAGE", "1");
        EXPECT_TRUE(field->FontFormat()->Italic());
        field->FontFormat()->SetBold(true);
        field->Background()->SetTexture(dwTextureShaded);
        field->Background()->SetShading(25);
        field->Border()->SetStyle(dwBSSingle);
        paragraph->AddField("PAGE", "2")->SetStyleName("number");
    });
    EXPECT_NE(
        file.find(R"({\b1\chshdng2500\chbrdr\brdrs\brdrw20\brdrref0{\field{\*\fldinst PAGE}{\fldrslt 1}}})"
                  R"({\cs0{\field{\*\fldinst PAGE}{\fldrslt 2}}}})"),
        std::string::npos)
        << file;
}

TEST(Field, IsWrittenWithTheNextChild) {
    auto document = Document::Create(MakeFakePlatform(std::make_shared<MemoryFiles>()));
    const auto paragraph = document->AddSection()->AddParagraph();
    const auto field = paragraph->AddField();
    EXPECT_EQ(paragraph->CurrentField(), field);
    field->SetStyleName("missing");
    EXPECT_EQ(Refusal([&] { paragraph->AddTextItem("x"); }), "X112 Item not found 'missing'.");
    EXPECT_FALSE(field->Emitted());
    EXPECT_FALSE(field->Finished());
    field->SetStyleName("");
    paragraph->AddTextItem("x");
    EXPECT_TRUE(field->Emitted());
    EXPECT_TRUE(field->Finished());
    const std::string refusal = "X109 Invalid operation.  Target already emitted Field.";
    EXPECT_EQ(Refusal([&] { field->FontFormat()->SetBold(true); }), refusal);
    EXPECT_EQ(Refusal([&] { field->Background()->SetColor(1); }), refusal);
    EXPECT_EQ(Refusal([&] { field->Border()->SetColor(1); }), refusal);
}

}  // namespace draftwick::test
