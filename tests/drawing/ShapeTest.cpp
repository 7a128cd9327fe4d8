#include "tests/support/Documents.h"

namespace draftwick::test {

TEST(Shape, KeepsItsAngleInWholeParts) {
    TestDocument built;
    auto shape = built->AddSection()->AddParagraph()->AddShape(dwSKRectangle);
    shape->SetRotation(0.1);  // 6553.6 parts of 65536
    EXPECT_EQ(shape->Rotation(), 6554 / 65536.0);
    EXPECT_EQ(RefusalNumber([&] { shape->SetRotation(32768); }), dwRunOverflow);
    shape->SetAdjustValues(10, 7);
    EXPECT_EQ(shape->AdjustValues(10), 7);
    for (const int index : {0, 11}) {
        EXPECT_EQ(RefusalNumber([&] { shape->AdjustValues(index); }), dwErrPropertyOutOfRange);
        EXPECT_EQ(Refusal([&] { shape->SetAdjustValues(index, 1); }),
                  "X101 Property Shape.AdjustValues.Index set to out of range value.");
    }
}

TEST(ShapeFill, JudgesAShadeArrayWhenItIsSet) {
    const TestDocument document;
    const auto fill = document.AddParagraph()->AddShape(dwSKRectangle)->Fill();
    const auto judge = [&](const char* text) { return RefusalNumber([&] { fill->SetShadeArray(text); }); };
    fill->SetShadeArray("1,2");
    for (const char* wrong :
         {"1,2,3", "1", " ", "1,", ",", "1,2,", "1.5,2", "+1,2", "1 2,3", "2147483648,0"}) {
        EXPECT_EQ(judge(wrong), dwRunInvalidCall) << wrong;
    }
    EXPECT_EQ(judge("1,3276800"), dwRunOverflow);  // 2^31 as a fraction of 65536
    EXPECT_EQ(fill->ShadeArray(), "1,2");
    EXPECT_EQ(judge(""), 0);
}

TEST(Shape, CanBeRemovedUntilItIsWritten) {
    const TestDocument built;
    const auto paragraph = built.AddParagraph();
    const auto removed = paragraph->AddShape(dwSKPictureFrame);
    removed->Remove();
    EXPECT_EQ(paragraph->CurrentShape(), nullptr);
    EXPECT_EQ(Refusal([&] { removed->SetWidth(1); }), Emitted("Shape"));
    EXPECT_EQ(Refusal([&] { removed->AddParagraph(); }), Emitted("Shape"));
    EXPECT_EQ(Refusal([&] { removed->Remove(); }), Emitted("Shape"));
    const auto box = paragraph->AddShape(dwSKTextBox);
    box->AddParagraph();
    EXPECT_EQ(Refusal([&] { box->Remove(); }), Emitted("Shape"));
    paragraph->AddTextItem("x");
    EXPECT_EQ(Between(built.Body(), "\\pard~", "{\\*"), "{\\shp");  // the box alone
}

TEST(Shape, IsNumberedThroughTheDocument) {
    TestDocument built;
    auto paragraph = built->AddSection()->AddParagraph();
    EXPECT_EQ(paragraph->AddShape(dwSKLine)->Index(), 1);
    auto box = paragraph->AddShape(dwSKTextBox);
    auto inside = box->AddParagraph();
    EXPECT_EQ(Refusal([&] { inside->AddShape(dwSKSun); }), "X104 Shapes cannot contain shapes.");
    EXPECT_EQ(box->AddTable()->AddCell()->AddParagraph()->AddShape(dwSKSun)->Index(), 3);
    EXPECT_EQ(built->AddSection()->AddParagraph()->AddShape(dwSKLine)->Index(), 4);
}

}  // namespace draftwick::test
