// Shapes: a chart of rectangles with fills, outlines and shadows, and a star.
//
// usage: shapes OUTPUT.rtf
#include <draftwick/draftwick.h>

#include <exception>
#include <iostream>

using namespace draftwick;

namespace {

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

// [chart]
/// A bar for each quarter, on a wall that is shaded from one colour to another.
void DrawChart(Paragraph& anchor) {
    constexpr double Base = 3.4;  // where the bars stand
    auto wall = AddShape(anchor, dwSKRectangle, 0, 0.5, 6, 2.9, Rgb(196, 222, 240));
    wall->Fill()->SetStyle(dwSFSShade);
    wall->Fill()->SetBackColor(Rgb(255, 255, 255));
    wall->Line()->SetColor(Rgb(120, 140, 160));

    constexpr double Sales[] = {1.1, 1.6, 1.3, 2.3};
    double left = 0.6;
    for (const double height : Sales) {
        auto bar = AddShape(anchor, dwSKRectangle, left, Base - height, 0.7, height, Rgb(40, 110, 160));
        bar->Line()->SetWidth(1.5);  // points
        bar->Shadow()->SetStyle(dwSSSSingle);
        bar->Shadow()->SetColor(Rgb(150, 150, 160));
        left += 1.3;
    }
    // The last one is striking.
    auto mark = AddShape(anchor, dwSKStar, left - 1.25, Base - 2.2, 0.6, 0.6, Rgb(235, 160, 40));
    mark->Line()->SetColor(Rgb(255, 255, 255));
}
// [chart]

void WriteShapes(const char* filename) {
    auto document = Document::Create();
    document->SetFilename(filename);
    document->SetSpelling(dwSpellingStandard);
    document->SetMarginLeft(1);
    document->SetMarginRight(1);
    document->Fonts()->Add("Arial")->SetFamily(dwSwiss);
    document->SetDefaultFontName("Arial");

    auto section = document->AddSection();
    auto title = section->AddParagraph();
    title->FontFormat()->SetSize(14);
    title->AddText("Sales by quarter");
    DrawChart(*title);
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
