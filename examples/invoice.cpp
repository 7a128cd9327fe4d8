// Writes an invoice: a letterhead on the first page, a table of forty rows whose header row is repeated on each page,
// cells that are merged down and across, amounts that stand below each other, totals.
//
// usage: invoice OUTPUT.rtf
#include <draftwick/draftwick.h>

#include <exception>
#include <iostream>
#include <string>
#include <string_view>

using namespace draftwick;

namespace {

const std::string Number = "2026-0117";

struct Service {
    std::string_view name;
    int hours;
    int rate;  // cents
};

constexpr Service Services[]{
    {"Rigging, main stage", 14, 6200},
    {"Lighting desk, evening performances", 22, 5800},
    {"Sound desk, evening performances", 22, 5800},
    {"Follow spots, two operators", 36, 4100},
    {"Stage carpentry and repairs", 11, 5200},
    {"Electrical safety inspection", 6, 7450},
    {"Wardrobe and quick changes", 18, 3900},
    {"Transport, flight cases", 4, 8800},
    {"Night watch", 40, 3150},
    {"Production office", 16, 4600},
};
constexpr int Weeks = 4;

// The columns of the table, in inches.
constexpr double WeekWidth = 0.8;
constexpr double ServiceWidth = 3.1;
constexpr double NumberWidth = 0.85;
constexpr double AmountWidth = 1.1;

/// 123450 gives "1,234.50".
std::string Money(int cents) {
    std::string text = std::to_string(cents / 100);
    for (std::size_t at = text.size(); at > 3; at -= 3) text.insert(at - 3, ",");
    return text + (cents % 100 < 10 ? ".0" : ".") + std::to_string(cents % 100);
}

/// The styles of the paragraphs. A document is given its fonts and styles before its first section.
void AddStyles(Document& document) {
    document.Fonts()->Add("Arial")->SetFamily(dwSwiss);
    document.SetDefaultFontName("Arial");

    auto body = document.ParagraphStyles()->Add("Normal");
    body->FontFormat()->SetSize(10);
    body->Format()->SetSpaceAfter(8);

    const auto add = [&](std::string_view name, double size) {
        auto style = document.ParagraphStyles()->Add(name);
        style->SetBasedOn("Normal");
        style->FontFormat()->SetSize(size);
        return style;
    };
    auto cell = add("Cell", 9);
    cell->Format()->SetSpaceBefore(3);
    cell->Format()->SetSpaceAfter(3);

    auto title = add("Title", 20);
    title->FontFormat()->SetBold(true);
    title->Format()->SetSpaceBefore(24);
    title->Format()->SetSpaceAfter(12);

    auto small = add("Small print", 8);
    small->FontFormat()->SetColor(Rgb(96, 96, 96));
    small->Format()->SetSpaceAfter(0);
}

/// The first page has the letterhead, the others one line. Headers and footers come before the section's text.
void AddHeaders(Section& section) {
    auto letterhead = section.AddHeader(dwHeaderFirst);
    auto name = letterhead->AddParagraph();
    name->FontFormat()->SetSize(22);
    name->FontFormat()->SetBold(true);
    name->FontFormat()->SetColor(Rgb(16, 59, 122));
    name->AddText("Nordlicht Stage Services");
    auto address = letterhead->AddParagraph("Small print");
    address->Format()->SetSpaceAfter(6);
    address->Borders()->Items(dwPBorderBottom)->SetStyle(dwBSSingle);
    address->AddText("Kaistraße 4 · 24103 Kiel · +49 431 555 0117 · office@nordlicht.example");

    auto running = section.AddHeader(dwHeader)->AddParagraph("Small print");
    running->TabStops()->Add(6.7, dwTabRight, dwTabLeaderNone);
    running->AddText("Nordlicht Stage Services\tInvoice " + Number);

    for (const dwHeaderKind kind : {dwFooterFirst, dwFooter}) {
        auto footer = section.AddHeader(kind)->AddParagraph("Small print");
        footer->TabStops()->Add(6.7, dwTabRight, dwTabLeaderNone);
        footer->AddText("IBAN DE02 1203 0000 0000 2020 51\tPage ");
        // Readers compute these; the numbers here are shown until they do.
        footer->AddField("PAGE", "1");
        footer->AddText(" of ");
        footer->AddField("NUMPAGES", "1");
    }
}

/// A cell that can still be changed; the text is added with AddText.
std::shared_ptr<Cell> AddCell(Table& row, double width, dwCellMerge merge = dwMergeNone) {
    auto cell = row.AddCell();
    cell->SetWidth(width);
    cell->SetMerge(merge);
    for (const dwCellBorder side : {dwCBorderTop, dwCBorderBottom}) {
        cell->Borders()->Items(side)->SetStyle(dwBSSingle);
    }
    return cell;
}

void AddText(Cell& cell, std::string_view text, dwParagraphAlign align = dwAlignLeft, bool bold = false) {
    auto paragraph = cell.AddParagraph("Cell");
    paragraph->Format()->SetAlign(align);
    paragraph->FontFormat()->SetBold(bold);
    paragraph->AddText(text);
}

void Shade(Cell& cell, double percent) {
    cell.Background()->SetTexture(dwTextureShaded);
    cell.Background()->SetShading(percent);
}

/// The head of the table: readers repeat it on each page.
void AddHead(Section& section) {
    auto row = section.AddTable();
    row->SetHeader(true);
    const auto add = [&](double width, std::string_view text, dwParagraphAlign align) {
        auto cell = AddCell(*row, width);
        Shade(*cell, 20);
        AddText(*cell, text, align, true);
    };
    add(WeekWidth, "Week", dwAlignLeft);
    add(ServiceWidth, "Service", dwAlignLeft);
    add(NumberWidth, "Hours", dwAlignRight);
    add(NumberWidth, "Rate", dwAlignRight);
    add(AmountWidth, "Amount, EUR", dwAlignRight);
}

/// One row for each service; the cells of the first column are merged down over the week. Returns the sum in cents.
int AddWeek(Section& section, int week) {
    int sum = 0;
    bool first = true;
    for (const Service& service : Services) {
        const int hours = service.hours + week % 3;
        const int amount = hours * service.rate;
        sum += amount;

        auto row = section.AddTable();
        row->SetKeepTogether(true);
        auto label = AddCell(*row, WeekWidth, first ? dwMergeFirstVertical : dwMergeVertical);
        if (first) AddText(*label, std::to_string(week) + "/2026", dwAlignLeft, true);
        first = false;
        AddText(*AddCell(*row, ServiceWidth), service.name);
        AddText(*AddCell(*row, NumberWidth), std::to_string(hours), dwAlignRight);
        AddText(*AddCell(*row, NumberWidth), Money(service.rate), dwAlignRight);
        AddText(*AddCell(*row, AmountWidth), Money(amount), dwAlignRight);
    }
    return sum;
}

/// A label over all columns but the last, and an amount. Cells that are merged across exist and stay empty.
void AddTotal(Section& section, std::string_view label, int cents, bool last) {
    auto row = section.AddTable();
    row->SetKeepTogether(true);
    const auto finish = [&](Cell& cell) {
        if (!last) return;
        Shade(cell, 10);
        auto line = cell.Borders()->Items(dwCBorderBottom);
        line->SetStyle(dwBSDouble);
    };
    auto text = AddCell(*row, WeekWidth, dwMergeFirstHorizontal);
    finish(*text);
    AddText(*text, label, dwAlignRight, last);
    for (const double width : {ServiceWidth, NumberWidth, NumberWidth}) {
        finish(*AddCell(*row, width, dwMergeHorizontal));
    }
    auto amount = AddCell(*row, AmountWidth);
    finish(*amount);
    AddText(*amount, Money(cents), dwAlignRight, last);
}

void WriteInvoice(const std::string& filename) {
    auto document = Document::Create();
    document->SetFilename(filename);
    document->SetSpelling(dwSpellingStandard);
    document->SetCaption("Invoice " + Number);
    document->SetPaperSize(dwPaperA4);
    document->SetMarginLeft(0.8);
    document->SetMarginRight(0.77);
    document->SetMarginTop(1.2);
    document->SetMarginBottom(1);
    AddStyles(*document);

    auto section = document->AddSection();
    section->SetTitlePage(true);
    section->SetHeaderY(0.5);
    AddHeaders(*section);

    section->AddParagraph("Title", "Invoice " + Number);
    // An invoice keeps its date: readers do not update a locked field.
    auto date = section->AddParagraph("Normal", "Date: ")->AddField("DATE", "20 April 2026");
    date->SetDatePicture("d MMMM yyyy");
    date->SetLocked(true);
    section->AddParagraph(
        "Normal",
        "Theater am Hafen, Hafenstraße 12, 18055 Rostock. Services in the weeks 12 to 15 of 2026, as "
        "agreed in our offer of 2 February.");

    AddHead(*section);
    int net = 0;
    for (int week = 0; week < Weeks; ++week) net += AddWeek(*section, 12 + week);
    const int tax = (net * 19 + 50) / 100;
    AddTotal(*section, "Net", net, false);
    AddTotal(*section, "Value added tax, 19 %", tax, false);
    AddTotal(*section, "Total, EUR", net + tax, true);

    auto closing = section->AddParagraph("Normal");
    closing->Format()->SetSpaceBefore(12);
    closing->Format()->SetKeepIntact(true);
    closing->AddText("Please pay within 14 days to the account below, with the number of this invoice.");

    document->Finish();
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::cerr << "usage: invoice OUTPUT.rtf\n";
        return 2;
    }
    try {
        WriteInvoice(argv[1]);
    } catch (const std::exception& error) {
        std::cerr << "invoice: " << error.what() << '\n';
        return 1;
    }
}
