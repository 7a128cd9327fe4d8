// Pictures: one beside the text, one as the fill of a figure. The program makes the files itself and leaves them beside
// its output.
//
// usage: pictures OUTPUT.rtf
#include "support/Pictures.h"

#include <draftwick/draftwick.h>

#include <cmath>
#include <exception>
#include <iostream>
#include <string>

using namespace draftwick;

namespace {

/// Hills behind each other, paler with the distance.
void MakeHills(const std::string& name) {
    examples::WriteJpeg(name, 60, 40, [](int x, int y) {
        for (int hill = 0; hill < 4; ++hill) {
            const double ridge = 34 - 7 * hill + 3.5 * std::sin(x * 0.13 + 2.1 * hill);
            if (y > ridge) return Rgb(40 + 35 * hill, 85 + 28 * hill, 60 + 38 * hill);
        }
        return Rgb(250, 225 - y, 180);
    });
}

/// A board of two colours.
void MakeBoard(const std::string& name) {
    examples::WriteGif(name, 64, 64, {Rgb(240, 230, 210), Rgb(140, 90, 60)},
                       [](int x, int y) { return (x / 8 + y / 8) % 2; });
}

void WritePictures(const std::string& filename) {
    const std::string hills = filename + ".hills.jpg";
    const std::string board = filename + ".board.gif";
    MakeHills(hills);
    MakeBoard(board);

    auto document = Document::Create();
    document->SetFilename(filename);
    document->SetSpelling(dwSpellingStandard);
    document->SetMarginLeft(1);
    document->SetMarginRight(1);
    document->Fonts()->Add("Times New Roman")->SetFamily(dwRoman);
    document->SetDefaultFontName("Times New Roman");
    auto section = document->AddSection();

    // [frame]
    // A picture frame shows a file: JPEG, PNG, GIF, BMP, EMF or WMF.
    auto text = section->AddParagraph();
    text->Format()->SetAlign(dwAlignJustify);
    auto frame = text->AddShape(dwSKPictureFrame);
    frame->SetWidth(3);
    frame->SetHeight(2);
    frame->SetWrap(dwSWAround);  // the text flows around it
    frame->SetWrapRight(0.2);
    frame->SetWrapBottom(0.1);
    frame->Fill()->SetPicture(hills);
    // [frame]

    // [second]
    auto second = text->AddShape(dwSKPictureFrame);
    second->SetReferenceX(dwSRXMargin);
    second->SetLeft(5.5);
    second->SetTop(1);
    second->SetWidth(1);
    second->SetHeight(1);
    second->SetWrap(dwSWAround);
    second->SetWrapLeft(0.2);
    second->Fill()->SetPicture(board);  // a bitmap is written as a drawing, a pixel for a pixel
    // [second]
    text->AddText(
        "From the tower one sees four ranges of hills, and on the clearest days of the year a fifth, which "
        "may be a cloud. The keeper has a board and pieces up there and plays against whoever climbs the two "
        "hundred and eleven steps; he has lost once, in the winter of the long snow, against a girl of nine "
        "who had counted the steps aloud and was not out of breath. Since then he opens with the other "
        "knight. The board is the one in the picture, or one that looks like it.");
    document->Finish();
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::cerr << "usage: pictures OUTPUT.rtf\n";
        return 2;
    }
    try {
        WritePictures(argv[1]);
    } catch (const std::exception& error) {
        std::cerr << "pictures: " << error.what() << '\n';
        return 1;
    }
}
