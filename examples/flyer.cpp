// A flyer: a title in WordArt, shapes of many kinds, one of them with depth, shaded and patterned fills, shadows,
// arrows, a text box with a table, and two pictures, which the program makes itself and leaves beside its output.
//
// usage: flyer OUTPUT.rtf [classic]     in the classic spelling, to compare
#include "support/Pictures.h"

#include <draftwick/draftwick.h>

#include <cmath>
#include <exception>
#include <iostream>
#include <string>

using namespace draftwick;

namespace {

constexpr std::int32_t White = Rgb(255, 255, 255);
constexpr std::int32_t Navy = Rgb(20, 40, 90);
constexpr std::int32_t Red = Rgb(210, 40, 40);
constexpr std::int32_t Yellow = Rgb(255, 210, 60);

/// The sun going down over the sea, in squares.
void MakeSunset(const std::string& name) {
    examples::WriteJpeg(name, 64, 44, [](int column, int row) {
        const double fromSun = std::hypot(column - 32, row - 26);
        if (row < 30 && fromSun < 9) return Rgb(255, 236, 160);
        if (row < 30) return Rgb(250 - row, 90 + 4 * row, 110 + static_cast<int>(fromSun));
        const bool glitter = std::abs(column - 32) < 3 + (row - 30) / 2 && (column + row) % 3 == 0;
        return glitter ? Rgb(255, 220, 150) : Rgb(40, 50 + 2 * (44 - row), 110);
    });
}

/// A chequered cloth, four squares by four of eight pixels each.
void MakeCloth(const std::string& name) {
    examples::WriteGif(name, 32, 32, {White, Red, Yellow, Navy},
                       [](int x, int y) { return (x / 8 + y / 8 * 3) % 4; });
}

void AddStyles(Document& document) {
    document.Fonts()->Add("Georgia")->SetFamily(dwRoman);
    document.SetDefaultFontName("Georgia");
    document.ParagraphStyles()->Add("Copy")->FontFormat()->SetColor(Navy);
    const auto add = [&](const char* name, double size, std::int32_t color) {
        auto style = document.ParagraphStyles()->Add(name);
        style->SetBasedOn("Copy");
        style->FontFormat()->SetSize(size);
        style->FontFormat()->SetColor(color);
        style->FontFormat()->SetBold(true);
        style->Format()->SetAlign(dwAlignCenter);
    };
    add("Headline", 38, Red);
    add("Occasion", 15, Navy);
    add("Box title", 14, Red);
    // Room for the title, which is drawn, and for all the other shapes.
    document.ParagraphStyles()->Items("Headline")->Format()->SetSpaceBefore(62);
    auto below = document.ParagraphStyles()->Add("Below");
    below->SetBasedOn("Copy");
    below->Format()->SetSpaceBefore(540);
}

/// Inches from the left margin and, as not all readers know the upper one, from the edge of the page, less the titles.
std::shared_ptr<Shape> AddShape(Paragraph& anchor, dwShapeKind kind, double left, double top, double width,
                                double height) {
    auto shape = anchor.AddShape(kind);
    shape->SetLeft(left);
    shape->SetReferenceY(dwSRYPage);
    shape->SetTop(2.8 + top);
    shape->SetWidth(width);
    shape->SetHeight(height);
    return shape;
}

std::shared_ptr<Shape> AddFilled(Paragraph& anchor, dwShapeKind kind, double left, double top, double width,
                                 double height, std::int32_t color) {
    auto shape = AddShape(anchor, kind, left, top, width, height);
    shape->Fill()->SetStyle(dwSFSSolid);
    shape->Fill()->SetColor(color);
    return shape;
}

/// Text that takes the form of its shape, a wave, and is painted like one.
void DrawTitle(Paragraph& anchor) {
    auto title = AddFilled(anchor, dwSKTextWave1, 1, -2.1, 4.9, 0.8, Yellow);
    title->Line()->SetColor(Navy);
    title->WordArt()->SetText("Kite Day");
    title->WordArt()->SetBold(true);
}

void DrawSky(Paragraph& anchor) {
    auto sky = AddShape(anchor, dwSKRectangle, 0, 0, 6.9, 4.4);
    sky->Fill()->SetStyle(dwSFSShade);
    sky->Fill()->SetColor(Rgb(90, 160, 230));
    sky->Fill()->SetBackColor(White);
    sky->Line()->SetColor(Navy);
    sky->Line()->SetWidth(2.25);

    auto sun = AddFilled(anchor, dwSKSun, 5.5, 0.3, 1.1, 1.1, Yellow);
    sun->Line()->SetColor(Rgb(240, 150, 30));

    auto cloud = AddFilled(anchor, dwSKCloudCallout, 0.4, 0.4, 1.9, 0.8, White);
    cloud->Fill()->SetOpacity(70);
    cloud->Line()->SetColor(Rgb(150, 180, 210));

    auto sea = AddFilled(anchor, dwSKDoubleWave, 0, 3.6, 6.9, 0.8, Rgb(30, 90, 170));
    sea->Fill()->SetOpacity(80);
    sea->Line()->SetColor(Navy);
}

/// A figure and its depth, which goes to the upper right.
void DrawBuoy(Paragraph& anchor) {
    auto buoy = AddFilled(anchor, dwSKOctagon, 2.6, 3.6, 0.5, 0.5, Red);
    auto depth = buoy->ThreeD();
    depth->SetVisible(true);
    depth->SetDepth(0.3);
    depth->SetUseColor(true);
    depth->SetColor(Rgb(140, 25, 25));
    depth->SetMetallic(true);
}

void DrawBoat(Paragraph& anchor) {
    AddFilled(anchor, dwSKTrapezoid, 4.7, 3.5, 1.5, 0.35, Rgb(120, 70, 40));
    AddFilled(anchor, dwSKRightTriangle, 5.45, 2.4, 0.6, 1.0, White);
    auto aft = AddFilled(anchor, dwSKRightTriangle, 4.85, 2.7, 0.5, 0.7, Rgb(230, 230, 240));
    aft->SetFlipH(true);
}

/// Kites and their strings: lines with a knot at one end and an arrow at the other.
void DrawKites(Paragraph& anchor, const std::string& cloth) {
    auto string = AddShape(anchor, dwSKLine, 2.2, 1.9, 1.2, 1.6);
    string->SetFlipH(true);
    string->Line()->SetWidth(1.5);
    string->Line()->SetDash(dwSLDLongDash);
    string->Line()->SetStartArrow(dwSLAOval);
    string->Line()->SetEndArrow(dwSLAArrow);
    string->Line()->SetEndArrowLength(dwSLALLong);

    auto kite = AddShape(anchor, dwSKDiamond, 3.0, 0.6, 0.9, 1.3);
    kite->SetRotation(20);
    kite->Fill()->SetStyle(dwSFSShade);
    kite->Fill()->SetColor(Red);
    kite->Fill()->SetBackColor(Yellow);
    kite->Fill()->SetShadeAngle(-45);
    kite->Fill()->SetShadeFocus(true);
    kite->Shadow()->SetStyle(dwSSSSingle);
    kite->Shadow()->SetColor(Rgb(110, 120, 140));
    kite->Shadow()->SetOpacity(50);
    kite->Shadow()->SetOffsetX(0.08);
    kite->Shadow()->SetOffsetY(0.08);

    auto patched = AddShape(anchor, dwSKDiamond, 4.2, 1.2, 0.8, 1.1);
    patched->SetRotation(340);
    patched->Fill()->SetStyle(dwSFSPicTile);
    patched->Fill()->SetColor(Yellow);
    patched->Fill()->SetPicture(cloth);
}

/// Text in a figure that is no text box. Not all readers know styles there, nor at the end of a text box: the text has
/// its look itself.
void DrawBurst(Paragraph& anchor) {
    auto burst = AddFilled(anchor, dwSKSeal16, 0.4, 1.7, 1.5, 1.5, Rgb(250, 120, 40));
    burst->Line()->SetStyle(dwSLSDouble);
    burst->Line()->SetWidth(3);
    burst->Shadow()->SetStyle(dwSSSDouble);
    burst->Shadow()->SetColor(Navy);
    burst->Shadow()->SetColor2(White);
    burst->TextFormat()->SetSpacingTop(0.4);
    auto stamp = burst->AddParagraph();
    stamp->Format()->SetAlign(dwAlignCenter);
    stamp->FontFormat()->SetSize(16);
    stamp->FontFormat()->SetBold(true);
    stamp->FontFormat()->SetColor(White);
    stamp->AddText("Free!");
}

// [box]
void AddProgramme(Paragraph& anchor) {
    auto box = AddShape(anchor, dwSKTextBox, 3.4, 4.7, 3.5, 1.75);
    box->Line()->SetColor(Navy);
    box->Line()->SetStyle(dwSLSThinThick);
    box->Line()->SetWidth(3);
    box->AddParagraph("Box title", "What is on");
    static constexpr const char* Programme[][2] = {
        {"11:00", "Building kites with the harbour school"},
        {"14:00", "The big fight of the stunt kites"},
        {"18:00", "Night kites and soup"},
    };
    for (const auto& [time, event] : Programme) {
        auto row = box->AddTable();
        auto when = row->AddCell();
        when->SetWidth(0.7);
        when->AddParagraph("Copy", time);
        auto what = row->AddCell();
        what->SetWidth(2.5);
        what->AddParagraph("Copy", event);
    }
    auto below = box->AddParagraph();
    below->FontFormat()->SetColor(Navy);
    below->AddText("Soup while there is any.");
}
// [box]

void WriteFlyer(const std::string& filename, dwSpelling spelling) {
    const std::string sunset = filename + ".sunset.jpg";
    const std::string cloth = filename + ".cloth.gif";
    MakeSunset(sunset);
    MakeCloth(cloth);

    auto document = Document::Create();
    document->SetFilename(filename);
    document->SetSpelling(spelling);
    document->SetMarginLeft(0.8);
    document->SetMarginRight(0.8);
    document->SetMarginTop(0.7);
    AddStyles(*document);

    auto section = document->AddSection();
    // Everything that is drawn hangs on the first paragraph.
    auto anchor = section->AddParagraph("Headline", "Kites over the Harbour");
    DrawTitle(*anchor);
    DrawSky(*anchor);
    DrawBuoy(*anchor);
    DrawBoat(*anchor);
    DrawKites(*anchor, cloth);
    DrawBurst(*anchor);

    auto picture = AddShape(*anchor, dwSKPictureFrame, 0, 4.7, 3.1, 2.13);
    picture->Fill()->SetPicture(sunset);
    auto swatch = AddShape(*anchor, dwSKPictureFrame, 3.4, 6.55, 0.35, 0.35);
    swatch->Fill()->SetPicture(cloth);
    AddProgramme(*anchor);

    section->AddParagraph("Occasion", "Saturday, 14 June, from eleven until the wind drops");
    section->AddParagraph("Below", "Bring a kite or borrow one of ours. Dogs stay on the leash, kites too.");
    document->Finish();
    std::cout << "written: " << document->ActualFileName() << '\n';
}

}  // namespace

int main(int argc, char** argv) {
    const bool isClassic = argc == 3 && std::string{argv[2]} == "classic";
    if (argc != 2 && !isClassic) {
        std::cerr << "usage: flyer OUTPUT.rtf [classic]\n";
        return 2;
    }
    try {
        WriteFlyer(argv[1], isClassic ? dwSpellingClassic : dwSpellingStandard);
    } catch (const std::exception& error) {
        std::cerr << "flyer: " << error.what() << '\n';
        return 1;
    }
}
