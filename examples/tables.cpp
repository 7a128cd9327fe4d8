// A table: a header row, rows, merged cells, amounts that are aligned.
//
// usage: tables OUTPUT.rtf
#include <draftwick/draftwick.h>

#include <exception>
#include <iostream>

using namespace draftwick;

namespace {

// [cell]
// A cell has a width and borders of its own. Its settings are written with its first paragraph.
void AddCell(Table& row, double width, const char* text, dwParagraphAlign align = dwAlignLeft,
             dwCellMerge merge = dwMergeNone, double shading = 0) {
    auto cell = row.AddCell();
    cell->SetWidth(width);
    cell->SetMerge(merge);
    cell->SetVerticalAlign(dwCVACenter);
    if (shading > 0) {
        cell->Background()->SetTexture(dwTextureShaded);
        cell->Background()->SetShading(shading);  // percent
    }
    for (const auto& side : *cell->Borders()) side->SetStyle(dwBSSingle);

    auto paragraph = cell->AddParagraph("In a cell");
    paragraph->Format()->SetAlign(align);
    paragraph->AddText(text);
}
// [cell]

constexpr double Bed = 1.1;
constexpr double Plant = 2.4;
constexpr double Amount = 1.2;

// [rows]
// Rows that follow each other make one table.
void AddTable(Section& section) {
    auto head = section.AddTable();
    head->SetHeader(true);  // is repeated on each page that the table goes on to
    AddCell(*head, Bed, "Bed", dwAlignLeft, dwMergeNone, 20);
    AddCell(*head, Plant, "Plant", dwAlignLeft, dwMergeNone, 20);
    AddCell(*head, Amount, "Rows", dwAlignRight, dwMergeNone, 20);
    AddCell(*head, Amount, "Seed, g", dwAlignRight, dwMergeNone, 20);

    struct Line {
        const char *bed, *plant, *rows, *seed;
        dwCellMerge merge;
    };
    // A cell that spans several rows is the first of merged cells; those below it have no text.
    static constexpr Line Lines[] = {
        {"South wall", "Tomatoes", "2", "0.4", dwMergeFirstVertical},
        {"", "Basil", "1", "0.5", dwMergeVertical},
        {"", "French beans", "4", "120", dwMergeVertical},
        {"Hedge", "Spinach", "6", "25", dwMergeNone},
    };
    for (const Line& line : Lines) {
        auto row = section.AddTable();
        row->SetKeepTogether(true);
        AddCell(*row, Bed, line.bed, dwAlignLeft, line.merge);
        AddCell(*row, Plant, line.plant);
        AddCell(*row, Amount, line.rows, dwAlignRight);
        AddCell(*row, Amount, line.seed, dwAlignRight);
    }

    auto total = section.AddTable();
    AddCell(*total, Bed, "Altogether", dwAlignLeft, dwMergeFirstHorizontal, 8);
    AddCell(*total, Plant, "", dwAlignLeft, dwMergeHorizontal, 8);
    AddCell(*total, Amount, "13", dwAlignRight, dwMergeNone, 8);
    AddCell(*total, Amount, "145.9", dwAlignRight, dwMergeNone, 8);
}
// [rows]

void WriteTables(const char* filename) {
    auto document = Document::Create();
    document->SetFilename(filename);
    document->SetSpelling(dwSpellingStandard);
    document->SetMarginLeft(1);
    document->SetMarginRight(1);
    document->Fonts()->Add("Arial")->SetFamily(dwSwiss);
    document->SetDefaultFontName("Arial");
    auto normal = document->ParagraphStyles()->Add("Normal");
    normal->FontFormat()->SetSize(11);
    normal->Format()->SetSpaceAfter(6);
    auto inCell = document->ParagraphStyles()->Add("In a cell");
    inCell->SetBasedOn("Normal");
    inCell->FontFormat()->SetSize(10);
    inCell->Format()->SetSpaceBefore(3);
    inCell->Format()->SetSpaceAfter(3);

    auto section = document->AddSection();
    section->AddParagraph("Normal", "What is sown in April");
    AddTable(*section);
    document->Finish();
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::cerr << "usage: tables OUTPUT.rtf\n";
        return 2;
    }
    try {
        WriteTables(argv[1]);
    } catch (const std::exception& error) {
        std::cerr << "tables: " << error.what() << '\n';
        return 1;
    }
}
