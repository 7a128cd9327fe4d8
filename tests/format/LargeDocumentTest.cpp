#include "tests/support/Documents.h"

namespace draftwick::test {

// More of everything than a byte counts: what comes last has its own number, wherever it is referred to.
TEST(LargeDocument, NumbersMoreThanAByteHolds) {
    constexpr int Count = 300;
    const auto name = [](int i) { return "N" + std::to_string(i); };
    const TestDocument document;
    for (int i = 0; i < Count; ++i) {
        document->Fonts()->Add(name(i));
        document->ParagraphStyles()->Add(name(i));
        document->TextStyles()->Add(name(i));
        document->Lists()->Add(name(i));
    }
    const std::string last = name(Count - 1);
    document->ParagraphStyles()->Items(last)->SetBasedOn("N298");
    document->TextStyles()->Items(last)->SetBasedOn("N298");
    const auto paragraph = document.AddParagraph();
    for (int color = 1; color < Count; ++color) paragraph->AddTextItem("x")->FontFormat()->SetColor(color);
    const auto entry = document.AddParagraph();
    entry->SetStyleName(last);
    entry->FontFormat()->SetFontName(last);
    entry->Format()->SetListName(last);
    entry->AddTextItem("x")->SetStyleName(last);
    const std::string words = Words(document.Finish());
    for (const char* part :
         {"{\\f299\\fnil N299;}}", "\\red43\\green1\\blue0 ;}",
          "{\\s299\\sbasedon298\\sb0\\sa0\\sl240\\slmult1\\fs24\\cf0 N299;}",
          "{\\*\\cs599\\sbasedon598\\fs24\\cf0 N299;}",
          "{\\list\\listtemplateid600{\\listname N299;}\\listid300",
          "\\listid300\\listoverridecount\\ls300}}", "{\\cf299 x}",
          "\\s299\\plain\\f299\\fs24\\cf0\\sb0\\sa0\\sl240\\slmult1\\ls300\\ilvl0{\\cs599 x}}"}) {
        EXPECT_NE(words.find(part), words.npos) << part;
    }
}

}  // namespace draftwick::test
