// The answers of the page "How do I ...?", one after the other in one document.
//
// usage: how_do_i OUTPUT.rtf     also makes its picture, OUTPUT.rtf.jpg
#include "support/Pictures.h"

#include <draftwick/draftwick.h>

#include <algorithm>
#include <exception>
#include <iostream>
#include <numeric>
#include <string>
#include <utility>
#include <vector>

using namespace draftwick;

namespace {

void AddStyles(Document& document) {
    document.Fonts()->Add("Liberation Serif")->SetFamily(dwRoman);
    document.SetDefaultFontName("Liberation Serif");
    // [styles]
    auto normal = document.ParagraphStyles()->Add("Normal");
    normal->Format()->SetSpaceAfter(6);
    auto heading = document.ParagraphStyles()->Add("Heading 1");
    heading->FontFormat()->SetSize(16);
    heading->Format()->SetSpaceBefore(12);
    heading->Format()->SetSpaceAfter(6);
    heading->Format()->SetOutlineLevel(1);
    heading->Format()->SetKeepWithNext(true);
    // [styles]
    auto contents = document.ParagraphStyles()->Add("Contents");
    contents->TabStops()->Add(16_cm, dwTabRight, dwTabLeaderDots);
    auto cell = document.ParagraphStyles()->Add("Cell");
    cell->FontFormat()->SetSize(10);
}

void AddLists(Document& document) {
    // [list]
    for (const char* name : {"Steps", "More steps"}) {
        auto level = document.Lists()->Add(name)->Levels(1);
        level->SetFormat("\\L1.");
        level->SetTabPosition(1_cm);
    }
    // [list]
}

// [step]
void AddStep(Section& section, const char* list, const char* text) {
    auto item = section.AddParagraph("Normal");
    item->Format()->SetListName(list);
    item->Format()->SetListLevel(1);
    item->Format()->SetIndentLeft(1_cm);
    item->Format()->SetIndentFirst(-1_cm);
    item->AddText(text);
}
// [step]

// [contents-line]
/// A line of a table of contents that every reader shows and follows: a link, a tab and the number of the page.
void AddContentsLine(Section& section, const std::string& text, const std::string& bookmark, int page) {
    auto line = section.AddParagraph("Contents");
    line->AddField("HYPERLINK \\l \"" + bookmark + "\"", text);
    line->AddText("\t");
    line->AddField("PAGEREF " + bookmark, std::to_string(page));
}
// [contents-line]

// [heading]
void AddHeading(Section& section, const std::string& text, const std::string& bookmark) {
    auto heading = section.AddParagraph("Heading 1");
    heading->AddBookmark(bookmark);
    heading->AddText(text);
    heading->AddBookmark(bookmark, false);
}
// [heading]

void AddHeaders(Section& section, const std::string& logo) {
    // [header-picture]
    auto header = section.AddHeader(dwHeader)->AddParagraph("Normal");
    header->AddPicture(logo, 0, 1_cm);  // one centimetre high, as wide as that makes it
    // [header-picture]
    // [page-of]
    auto footer = section.AddHeader(dwFooter)->AddParagraph("Normal");
    footer->AddText("Page ");
    footer->AddField("PAGE", "1");
    footer->AddText(" of ");
    footer->AddField("NUMPAGES", "6");
    // [page-of]
}

void AddText(Section& section) {
    // [bold]
    auto paragraph = section.AddParagraph("Normal", "One word is ");
    paragraph->AddTextItem("bold")->FontFormat()->SetBold(true);
    paragraph->AddText(", the others are not.");
    // [bold]
    // [unicode]
    section.AddParagraph("Normal", "Łódź, Ελλάδα, Київ, 日本 and 🙂");
    // [unicode]
    // [lines]
    section.AddParagraph("Normal", "12 Quay Street\nBristol\nBS1 4DB");
    // [lines]
    // [spaces]
    section.AddParagraph("Normal", "12\u00A0km is 7\u00A0miles, in a non\u2011stop flight");
    // [spaces]
    // [right-to-left]
    section.AddParagraph("Normal", "שלום עולם");
    // [right-to-left]
    // [link]
    auto text = section.AddParagraph("Normal", "Tickets are sold at ");
    auto link = text->AddField("HYPERLINK \"https://example.org/tickets\"", "example.org/tickets");
    link->FontFormat()->SetColor(Rgb(5, 99, 193));
    link->FontFormat()->SetUnderline(dwUnderlineSingle);
    text->AddText(".");
    // [link]
    // [tab]
    auto price = section.AddParagraph("Normal");
    price->TabStops()->Add(16_cm, dwTabRight, dwTabLeaderDots);
    price->AddText("Ferry, return\t18.50");
    // [tab]
    // [footnote]
    auto noted = section.AddParagraph("Normal", "The first boat leaves at six");
    noted->AddTextItem("")->AddSpecial(Special::Footnote());
    auto note = noted->AddFootnote()->AddParagraph("Normal");
    note->AddTextItem("")->AddSpecial(Special::Footnote());
    note->AddText(" On Sundays at seven.");
    // [footnote]
    // [today]
    section.AddParagraph("Normal", "As of ")->AddField("DATE", "1 April 2026")->SetDatePicture("d MMMM yyyy");
    // [today]
}

void AddReferences(Section& section, const std::string& photo) {
    // [picture]
    auto words = section.AddParagraph("Normal", "The sign ");
    words->AddPicture(photo, 0, 14_pt);  // 14 points high, as wide as that makes it
    words->AddText(" means that the harbour is open.");
    // [picture]
    // [caption]
    auto figure = section.AddParagraph("Normal");
    figure->Format()->SetKeepWithNext(true);
    figure->AddPicture(photo, 6_cm);
    auto caption = section.AddParagraph("Normal");
    caption->AddBookmark("harbour");
    caption->AddText("Figure ");
    caption->AddField("SEQ Figure", "1");
    caption->AddBookmark("harbour", false);
    caption->AddText(": The harbour in the evening");
    // [caption]
    // [reference]
    auto text = section.AddParagraph("Normal", "See ");
    text->AddField("REF harbour \\h", "Figure 1");
    text->AddText(" on page ");
    text->AddField("PAGEREF harbour", "1");
    text->AddText(".");
    // [reference]
}

void AddTables(Section& section, const std::string& logo) {
    // [table]
    // [header-row]
    auto head = section.AddTable();
    head->SetHeader(true);
    head->SetKeepTogether(true);
    // [header-row]
    for (const char* title : {"Boat", "Places", "Built"}) {
        auto cell = head->AddCell();
        cell->SetWidth(4_cm);
        cell->Background()->SetTexture(dwTextureSolid);
        cell->Background()->SetBackColor(Rgb(226, 236, 246));
        for (const auto& side : *cell->Borders()) {
            side->SetStyle(dwBSSingle);
            side->SetColor(Rgb(30, 90, 160));
        }
        cell->AddParagraph("Cell", title);
    }
    // [table]
    // [like]
    auto row = section.AddTable();
    for (const char* text : {"Kittiwake", "48", "1998"}) {
        auto cell = row->AddCell(head->CurrentCell());
        cell->Background()->SetTexture(dwTextureNone);
        cell->AddParagraph("Cell", text);
    }
    // [like]
    // [nested]
    bool isFirst = true;
    for (const auto& [place, seats] : {std::pair{"On deck", "30"}, {"In the cabin", "18"}}) {
        auto part = section.AddTable();
        auto boat = part->AddCell(row->CurrentCell());
        boat->SetMerge(isFirst ? dwMergeFirstVertical : dwMergeVertical);
        boat->AddParagraph("Cell", isFirst ? "Kittiwake, in detail" : "");
        part->AddCell(row->CurrentCell())->AddParagraph("Cell", place);
        part->AddCell(row->CurrentCell())->AddParagraph("Cell", seats);
        isFirst = false;
    }
    // [nested]
    // [merge]
    auto total = section.AddTable();
    total->AddCell(row->CurrentCell())->SetMerge(dwMergeFirstHorizontal);
    total->CurrentCell()->AddParagraph("Cell", "Across two cells");
    total->AddCell(row->CurrentCell())->SetMerge(dwMergeHorizontal);
    // [merge]
    // [cell-picture]
    auto cell = total->AddCell(row->CurrentCell());
    cell->AddParagraph("Cell")->AddPicture(logo, 1.5_cm);
    // [cell-picture]
}

using Texts = std::vector<std::vector<std::string>>;

// [widths]
/// Shares the room out in proportion to the longest text of each column, counted in bytes.
std::vector<double> Widths(const Texts& rows, double room) {
    std::vector<std::size_t> longest(rows.front().size(), 4);  // no column is narrower than that
    for (const auto& row : rows) {
        for (std::size_t i = 0; i < row.size(); ++i) longest[i] = std::max(longest[i], row[i].size());
    }
    const auto all = static_cast<double>(std::accumulate(longest.begin(), longest.end(), std::size_t{0}));
    std::vector<double> widths;
    for (const std::size_t length : longest) widths.push_back(room * static_cast<double>(length) / all);
    return widths;
}

void AddTable(Section& section, const Texts& rows) {
    const std::vector<double> widths = Widths(rows, 6.3);  // inches
    for (const auto& texts : rows) {
        auto row = section.AddTable();
        for (std::size_t i = 0; i < texts.size(); ++i) {
            row->AddCell()->SetWidth(widths[i]);
            row->CurrentCell()->AddParagraph("Cell", texts[i]);
        }
    }
}
// [widths]

void AddShapes(Section& section, const std::string& photo) {
    // [wrap]
    auto paragraph = section.AddParagraph("Normal");
    auto frame = paragraph->AddShape(dwSKPictureFrame);
    frame->Fill()->SetPicture(photo);
    frame->SetWidth(4_cm);
    frame->SetHeight(2.75_cm);
    frame->SetLeft(12_cm);
    frame->SetReferenceX(dwSRXColumn);
    frame->SetReferenceY(dwSRYParagraph);
    frame->SetWrap(dwSWAround);
    paragraph->AddText("The picture stands on the right, twelve centimetres from where the column "
                       "begins, and the text flows around it.");
    // [wrap]
    // [box]
    auto anchor = section.AddParagraph("Normal");
    auto box = anchor->AddShape(dwSKTextBox);
    box->SetWidth(6_cm);
    box->SetHeight(1.5_cm);
    box->SetReferenceY(dwSRYParagraph);
    box->SetWrap(dwSWTopBottom);
    box->AddParagraph("Normal", "In a box");
    // [box]
    section.AddParagraph("Normal", "Below the box.");
}

void WriteAnswers(const std::string& filename) {
    const std::string photo = filename + ".jpg";
    examples::WriteJpeg(photo, 8, 6, [](int column, int row) { return Rgb(30 * column, 40 * row, 140); });

    auto document = Document::Create();
    document->SetFilename(filename);
    // [standard]
    document->SetSpelling(dwSpellingStandard);
    // [standard]
    // [paper]
    document->SetPaperSize(dwPaperA4);
    document->SetMarginLeft(2.5_cm);
    document->SetMarginRight(25_mm);
    // [paper]
    // [properties]
    document->Properties()->Items(dwBIPTitle)->SetValue("How do I ...?");
    document->Properties()->Items(dwBIPAuthor)->SetValue("The harbour office");
    // [properties]
    AddStyles(*document);
    AddLists(*document);

    auto section = document->AddSection();
    AddHeaders(*section, photo);
    AddContentsLine(*section, "Text", "chapter1", 1);
    AddContentsLine(*section, "Tables", "chapter2", 2);
    AddHeading(*section, "Text", "chapter1");
    AddText(*section);
    // [restart]
    AddStep(*section, "Steps", "Cast off.");
    AddStep(*section, "Steps", "Row.");
    section->AddParagraph("Normal", "And on the way back");
    AddStep(*section, "More steps", "Row.");  // 1 again
    AddStep(*section, "More steps", "Make fast.");
    // [restart]
    AddReferences(*section, photo);
    // [page-break]
    auto next = section->AddParagraph("Normal");
    next->Format()->SetPageBreakBefore(true);
    next->AddText("This line begins a page.");
    // [page-break]
    AddHeading(*section, "Tables", "chapter2");
    AddTables(*section, photo);
    section->AddParagraph("Normal", "The boats leave at");
    AddTable(*section,
             {{"8:15", "To the island, with a stop at the lighthouse", "12 km"}, {"18:00", "Back", "9 km"}});
    AddShapes(*section, photo);

    // [landscape]
    auto wide = document->AddSection();
    wide->SetOrientation(dwLandscape);
    wide->AddParagraph("Normal", "This page is wider than it is high.");
    // [landscape]
    // [columns]
    auto columns = document->AddSection();  // upright again, like the document
    columns->SetBreak(dwSBKPage);
    columns->Columns()->Auto(2, 1_cm);
    // [columns]
    columns->AddParagraph("Normal", "In the first column.");
    auto second = columns->AddParagraph("Normal");
    second->AddTextItem("")->AddSpecial(Special::ColumnBreak());
    second->AddText("In the second column.");
    // [first-page]
    auto annex = document->AddSection();
    annex->SetTitlePage(true);
    annex->AddHeader(dwHeaderFirst)->AddParagraph("Normal", "Only on the first page");
    // [first-page]
    annex->AddParagraph("Normal", "A page with a header of its own.");
    // [numbering]
    auto appendix = document->AddSection();
    appendix->SetPageNumberingRestart(dwPNRSection);
    appendix->SetPageNumberingStart(1);
    appendix->SetPageNumberingFormat(dwPNRomanLower);
    // [numbering]
    appendix->AddParagraph("Normal", "This page is number i.");
    document->Finish();
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::cerr << "usage: how_do_i OUTPUT.rtf\n";
        return 2;
    }
    try {
        WriteAnswers(argv[1]);
    } catch (const std::exception& error) {
        std::cerr << "how_do_i: " << error.what() << '\n';
        return 1;
    }
}
