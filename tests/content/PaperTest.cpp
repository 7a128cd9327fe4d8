#include "tests/support/Documents.h"

namespace draftwick::test {

TEST(Paper, HasTheSizeOfItsName) {
    const struct {
        dwPaperSize paper;
        Measure width, height;
    } papers[] = {
        {dwPaperLetter, 8.5_in, 11_in},        {dwPaperLegal, 8.5_in, 14_in},
        {dwPaperTabloid, 11_in, 17_in},        {dwPaperExecutive, 7.25_in, 10.5_in},
        {dwPaperA3, 29.7_cm, 42_cm},           {dwPaperA4, 210_mm, 297_mm},
        {dwPaperA5, 148_mm, 210_mm},           {dwPaperA6, 105_mm, 148_mm},
        {dwPaperB4, 250_mm, 353_mm},           {dwPaperB5, 176_mm, 250_mm},
        {dwPaperEnvelopeDL, 11_cm, 22_cm},     {dwPaperEnvelopeC5, 162_mm, 229_mm},
        {dwPaperEnvelope10, 4.125_in, 9.5_in},
    };
    const auto check = [&](auto& object) {
        EXPECT_EQ(object.PaperSize(), dwPaperLetter);
        for (const auto& [paper, width, height] : papers) {
            object.SetPaperSize(paper);
            const double wide = object.PageWidth(), high = object.PageHeight();
            object.SetPageWidth(1);
            EXPECT_EQ(object.PaperSize(), dwPaperOther);
            object.SetPageWidth(width);
            object.SetPageHeight(height);
            EXPECT_EQ(object.PageWidth(), wide);
            EXPECT_EQ(object.PageHeight(), high);
            EXPECT_EQ(object.PaperSize(), paper);
        }
        object.SetOrientation(dwLandscape);
        EXPECT_EQ(object.PaperSize(), dwPaperEnvelope10);
        object.SetPaperSize(dwPaperA4);
        EXPECT_GT(object.PageWidth(), object.PageHeight());
        for (const std::int32_t none : {-1, 0, 14})
            EXPECT_EQ(RefusalNumber([&] { object.SetPaperSize(dwPaperSize{none}); }),
                      dwErrPropertyOutOfRange);
    };
    const TestDocument document;
    check(*document.document);
    document->SetOrientation(dwPortrait);
    document->SetPaperSize(dwPaperLetter);
    check(*document->AddSection());
}

}  // namespace draftwick::test
