// Shapes: figures with fills, outlines and shadows, lines with arrows, and text in a box.
//
// usage: shapes OUTPUT.rtf
#include <draftwick/draftwick.h>

#include <exception>
#include <iostream>

using namespace draftwick;

namespace {

constexpr std::int32_t Rgb(int red, int green, int blue) { return red + green * 0x100 + blue * 0x10000; }

// [shape]
// A shape is anchored in a paragraph. Where it stands is counted from the margins, unless it says otherwise.
std::shared_ptr<Shape> AddShape(Paragraph& anchor, dwShapeKind kind, double left, double top, double width,
                                double height, std::int32_t color) {
    auto shape = anchor.AddShape(kind);
    shape->SetLeft(left);
    shape->SetTop(top);
    shape->SetWidth(width);
    shape->SetHeight(height);
    shape->Fill()->SetStyle(dwSFSSolid);
    shape->Fill()->SetColor(color);
    return shape;
}
// [shape]

// [house]
void DrawHouse(Paragraph& anchor) {
    auto sky = AddShape(anchor, dwSKRectangle, 0, 0.6, 6, 2.6, Rgb(120, 180, 230));
    sky->Fill()->SetStyle(dwSFSShade);  // from one colour to the other
    sky->Fill()->SetBackColor(Rgb(235, 245, 255));

    auto roof = AddShape(anchor, dwSKIsoscelesTriangle, 1.2, 1.0, 2.2, 0.7, Rgb(150, 60, 45));
    roof->Line()->SetWidth(1.5);  // points
    auto wall = AddShape(anchor, dwSKRectangle, 1.4, 1.7, 1.8, 1.5, Rgb(240, 220, 180));
    wall->Shadow()->SetStyle(dwSSSSingle);
    wall->Shadow()->SetColor(Rgb(90, 90, 100));
    AddShape(anchor, dwSKRoundRectangle, 2.1, 2.3, 0.45, 0.9, Rgb(60, 90, 60));
    AddShape(anchor, dwSKSun, 4.8, 0.8, 0.8, 0.8, Rgb(255, 205, 60))->Line()->SetStyle(dwSLSNone);

    auto arrow = anchor.AddShape(dwSKLine);
    arrow->SetLeft(3.4);
    arrow->SetTop(2.0);
    arrow->SetWidth(0.8);
    arrow->SetHeight(0.3);
    arrow->Line()->SetStartArrow(dwSLAArrow);
    arrow->Line()->SetDash(dwSLDDash);
}
// [house]

// [box]
// A shape holds paragraphs and rows, like a section. It needs no kind of its own for that.
void AddLabel(Paragraph& anchor) {
    auto box = AddShape(anchor, dwSKTextBox, 4.2, 2.1, 1.6, 0.75, Rgb(255, 255, 240));
    box->TextFormat()->SetSpacingLeft(0.1);
    auto text = box->AddParagraph();
    text->FontFormat()->SetSize(10);
    text->AddTextItem("South side: the chimney is not drawn yet.");
}
// [box]

void WriteShapes(const char* filename) {
    auto document = Document::Create();
    document->SetFilename(filename);
    document->SetMarginLeft(1);
    document->SetMarginRight(1);
    document->Fonts()->Add("Arial")->SetFamily(dwSwiss);
    document->SetDefaultFontName("Arial");

    auto section = document->AddSection();
    auto title = section->AddParagraph();
    title->FontFormat()->SetSize(14);
    title->AddTextItem("A house by the sea");
    // All shapes hang on the last paragraph: see the chapter on why.
    auto anchor = section->AddParagraph();
    DrawHouse(*anchor);
    AddLabel(*anchor);
    document->Finish();
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::cerr << "usage: shapes OUTPUT.rtf\n";
        return 2;
    }
    try {
        WriteShapes(argv[1]);
    } catch (const std::exception& error) {
        std::cerr << "shapes: " << error.what() << '\n';
        return 1;
    }
}
