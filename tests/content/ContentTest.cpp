#include "tests/support/Documents.h"

namespace draftwick::test {

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

// Refused as a whole: nothing is added.
TEST(Special, GivesAByteWithoutALeadingZero) {
    EXPECT_EQ(Special::ASCII(10), "\\'A");
    EXPECT_EQ(Special::ASCII(255), "\\'FF");
    EXPECT_EQ(RefusalNumber([] { Special::ASCII(256); }), 6);
    // What is no byte is a text in the standard spelling.
    const TestDocument document;
    document->SetSpelling(dwSpellingStandard);
    document.AddParagraph()->AddTextItem("x")->AddSpecial("\\'g");
    EXPECT_NE(document.Body().find("x\\\\'g"), std::string::npos);
}

TEST(Paragraph, IsAddedWithItsStyleAndTextOrNotAtAll) {
    const TestDocument document;
    document->ParagraphStyles()->Add("Title")->Format()->SetAlign(dwAlignCenter);
    const auto section = document->AddSection();
    EXPECT_EQ(Refusal([&] { section->AddParagraph("None", "a"); }), "X112 Item not found 'None'.");
    EXPECT_EQ(section->CurrentParagraph(), nullptr);
    const auto title = section->AddParagraph("title", "a");
    EXPECT_EQ(title->CurrentTextItem()->Text(), "a");
    EXPECT_EQ(Refusal([&] { title->Format()->SetAlign(dwAlignLeft); }), Emitted("Paragraph"));
    section->AddParagraph("Title")->Format()->SetAlign(dwAlignRight);
    section->AddParagraph("", "{b}");
    EXPECT_EQ(document.Body(), R"(\pard\s0\plain\fs24\cf0\qc\sb0\sa0\sl240\slmult1{a}\par)"
                               R"(\pard\s0\plain\fs24\cf0\qr\sb0\sa0\sl240\slmult1\par\pard~{\{b\}})");
}

// A failing file is reported by the call after, as for a paragraph alone.
TEST(Paragraph, WithATextIsWholeWhenTheFileFails) {
    const TestDocument document;
    const auto section = document->AddSection();
    section->AddParagraph("", std::string(70000, 'a'));
    document.files->FailAt(document.files->Operations() + 1, std::errc::no_space_on_device);
    int added = 0;
    for (int attempts = 0; added < 2; ++attempts) {
        ASSERT_LT(attempts, 4);
        try {
            section->AddParagraph("", "b");
            ++added;
        } catch (const FileError&) {
        }
    }
    EXPECT_TRUE(document.Body().ends_with("a}\\par\\pard~{b}\\par\\pard~{b}"));
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
