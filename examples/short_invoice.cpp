// An invoice in a few lines, with what the standard spelling can do: a PNG logo, Polish letters, coloured borders.
//
// usage: short_invoice OUTPUT.rtf
#include "support/Pictures.h"

#include <draftwick/draftwick.h>

#include <iostream>

using namespace draftwick;

namespace {

constexpr std::int32_t Blue = Rgb(30, 90, 160);
constexpr Measure Widths[] = {9_cm, 2_cm, 2.5_cm, 2.5_cm};

/// A row of cells that look like another.
void AddRow(Section& section, const std::shared_ptr<Cell>& like, std::initializer_list<const char*> texts) {
    auto row = section.AddTable();
    const Measure* width = Widths;
    for (const char* text : texts) {
        auto cell = row->AddCell(like);
        cell->SetWidth(*width);
        cell->AddParagraph(width++ == Widths ? "Body" : "Number", text);
    }
}

void WriteInvoice(const char* filename) {
    auto document = Document::Create();
    document->SetFilename(filename);
    document->SetDiscardOnRelease(true);
    document->SetSpelling(dwSpellingStandard);
    document->SetPaperSize(dwPaperA4);
    document->SetMarginLeft(2.5_cm);
    document->Fonts()->Add("Liberation Sans");
    document->SetDefaultFontName("Liberation Sans");
    for (const auto& [name, size] : {std::pair{"Body", 10.0}, {"Number", 10.0}, {"Title", 18.0}}) {
        auto style = document->ParagraphStyles()->Add(name);
        style->FontFormat()->SetSize(size);
        style->Format()->SetSpaceAfter(size / 4);
    }
    document->ParagraphStyles()->Items("Number")->Format()->SetAlign(dwAlignRight);
    document->ParagraphStyles()->Items("Title")->FontFormat()->SetColor(Blue);

    auto section = document->AddSection();
    section->AddHeader(dwHeader)->AddParagraph("Body")->AddPictureData(examples::RingPng(), 1.5_cm);
    auto footer = section->AddHeader(dwFooter)->AddParagraph("Body", "Page ");
    footer->AddField("PAGE", "1");
    footer->AddText(" of ");
    footer->AddField("NUMPAGES", "1");
    section->AddParagraph("Body", "Żaneta Ślęzak\nul. Piotrkowska 12\n90-001 Łódź");
    section->AddParagraph("Title", "Invoice 2026-117");

    auto look = section->AddTable()->AddCell();  // what all cells begin like
    look->SetWidth(16_cm);
    look->Background()->SetTexture(dwTextureSolid);
    look->Background()->SetBackColor(Rgb(226, 236, 246));
    for (const auto& side : *look->Borders()) {
        side->SetStyle(dwBSSingle);
        side->SetColor(Blue);
    }
    look->AddParagraph("Body", "Delivered on 14 November 2026");
    AddRow(*section, look, {"Item", "Amount", "Price", "Total"});
    AddRow(*section, look, {"Fountain pen, blue", "2", "34.00 €", "68.00 €"});
    AddRow(*section, look, {"Ink, 50 ml", "3", "9.50 €", "28.50 €"});
    AddRow(*section, look, {"To be paid", "", "", "96.50 €"});
    auto pay = section->AddParagraph("Body", "Please pay within 14 days at ");
    auto link = pay->AddField("HYPERLINK \"https://example.org/pay\"", "example.org/pay");
    link->FontFormat()->SetColor(Blue);
    link->FontFormat()->SetUnderline(dwUnderlineSingle);
    document->Finish();
}

}  // namespace

int main(int argc, char** argv) try {
    if (argc == 2) WriteInvoice(argv[1]);
    return argc == 2 ? 0 : 2;
} catch (const std::exception& error) {
    std::cerr << "short_invoice: " << error.what() << '\n';
    return 1;
}
