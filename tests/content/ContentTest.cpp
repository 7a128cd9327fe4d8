#include "tests/support/Documents.h"

#include <thread>
#include <vector>

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

// The same bytes, whatever the text, the style and the paragraph's look; and what was added as an object stays current.
TEST(Paragraph, AddsATextAsItAddsARun) {
    for (const dwSpelling spelling : {dwSpellingClassic, dwSpellingStandard}) {
        std::string written[2];
        for (const bool asObject : {false, true}) {
            const TestDocument document;
            document->SetSpelling(spelling);
            document->TextStyles()->Add("Strong")->FontFormat()->SetBold(true);
            for (const bool withLook : {false, true}) {
                for (std::string text : {std::string{}, std::string{"a"}, std::string{"{a}\t\r\nb"},
                                         std::string{"\u0416 \u05D0 \xFF"}, std::string(20000, 'x')}) {
                    for (const char* style : {"", "strong"}) {
                        const auto paragraph = document.AddParagraph();
                        if (withLook) paragraph->FontFormat()->SetItalic(true);
                        const auto first = paragraph->AddTextItem("first");
                        if (asObject) {
                            paragraph->AddTextItem(text)->SetStyleName(style);
                        } else {
                            paragraph->AddText(text, style);
                            EXPECT_EQ(paragraph->CurrentTextItem(), first);
                        }
                    }
                }
            }
            written[asObject] = document.Finish();
        }
        EXPECT_EQ(written[0], written[1]);
    }
}

TEST(Paragraph, RefusesATextWithoutATrace) {
    const TestDocument document;
    const auto paragraph = document.AddParagraph();
    EXPECT_EQ(Refusal([&] { paragraph->AddText("a", "None"); }), "X112 Item not found 'None'.");
    paragraph->Format()->SetAlign(dwAlignRight);
    paragraph->AddText("b");
    document.AddParagraph();
    EXPECT_EQ(Refusal([&] { paragraph->AddText("c"); }), Emitted("Paragraph"));
    EXPECT_EQ(document.Body(), R"(\pard\plain\fs24\cf0\qr\sb0\sa0\sl240\slmult1{b}\par\pard~)");
}

// What is written again and again is copied: the lines end where they do without that.
TEST(Paragraph, WithoutALookHasTheSameLinesAtEveryColumn) {
    for (const dwSpelling spelling : {dwSpellingClassic, dwSpellingStandard}) {
        std::string written[2];
        for (const bool touched : {false, true}) {
            const TestDocument document;
            document->SetSpelling(spelling);
            document->TextStyles()->Add("Long name")->FontFormat()->SetUnderline(dwUnderlineDashDotDot);
            for (std::size_t column = 0; column < 140; ++column) {
                const auto paragraph = document.AddParagraph();
                if (touched) paragraph->Format();
                paragraph->AddTextItem(std::string(column, 'x'));
                const auto item = paragraph->AddTextItem("y");
                item->SetStyleName("Long name");
                if (touched) item->Border();
            }
            written[touched] = document.Finish();
        }
        EXPECT_EQ(written[0], written[1]);
    }
}

// Their memory serves the next ones in the thread that lets them go, which need not be the one that made them.
TEST(Content, CanBeLetGoInAnyThread) {
    std::vector<std::shared_ptr<Object>> kept;
    static std::vector<std::shared_ptr<Object>> untilTheEnd;
    const auto fill = [&](std::size_t keep) {
        const TestDocument document;
        for (std::size_t i = 0; i < 300; ++i) {
            const auto paragraph = document.AddParagraph();
            for (int runs = 0; runs < 3; ++runs) {
                auto item = paragraph->AddTextItem("longer than texts that need no memory");
                if (i % 7 < keep) kept.push_back(item->FontFormat());
            }
            if (keep != 0 && i % 50 == 0) untilTheEnd.push_back(paragraph);
        }
        std::string expected = R"(\pard~)";
        for (int runs = 0; runs < 3; ++runs) expected += "{longer than texts that need no memory}";
        EXPECT_TRUE(document.Body().ends_with("\\par" + expected + "\\par" + expected));
    };
    std::thread{[&] { fill(3); }}.join();
    std::vector<std::thread> others;
    for (std::size_t thread = 0; thread < 4; ++thread) {
        others.emplace_back([&, thread] {
            for (std::size_t i = thread; i < kept.size(); i += 4) kept[i].reset();
        });
    }
    fill(0);
    for (std::thread& thread : others) thread.join();
    for (const auto& paragraph : untilTheEnd) EXPECT_EQ(paragraph->Document(), nullptr);
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
