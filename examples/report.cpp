// A styled report: fonts, paragraph and text styles based on each other, headings with outline levels, a table of
// contents, references to headings, page numbers, document properties, a page border, quotes, shaded boxes, borders
// and tab leaders.
//
// usage: report OUTPUT.rtf
#include <draftwick/draftwick.h>

#include <exception>
#include <iostream>
#include <string>

using namespace draftwick;

namespace {

constexpr std::int32_t Pine = Rgb(20, 83, 72);
constexpr std::int32_t Sand = Rgb(243, 237, 222);
constexpr std::int32_t Reed = Rgb(228, 219, 196);
constexpr std::int32_t Gray = Rgb(95, 95, 95);

// The headings, each with a bookmark around it that references name, and its page: chapters begin on new pages.
struct Heading {
    const char* style;
    const char* text;
    const char* bookmark;
    int page;
};
constexpr Heading Lent{"Heading 1", "What was lent", "lent", 2};
constexpr Heading Shelf{"Heading 2", "The night of the long shelf", "shelf", 2};
constexpr Heading House{"Heading 1", "The house", "house", 3};
constexpr Heading Hours{"Heading 2", "Opening hours", "hours", 3};
constexpr Heading Repairs{"Heading 2", "Repairs", "repairs", 3};

// What readers show as information about the file, in catalogues and in searches.
void AddProperties(Document& document) {
    auto properties = document.Properties();
    properties->Items(dwBIPTitle)->SetValue("The library’s year");
    properties->Items(dwBIPAuthor)->SetValue("The town library");
    properties->Items(dwBIPKeywords)->SetValue("library, lending, annual report");
    properties->Add("Volumes lent", 95805);
}

// A font must be known to the document before its name can be used. Family and alternate name help readers that do
// not have it.
void AddFonts(Document& document) {
    auto serif = document.Fonts()->Add("Georgia");
    serif->SetFamily(dwRoman);
    serif->SetAltName("Liberation Serif");
    auto sans = document.Fonts()->Add("Verdana");
    sans->SetFamily(dwSwiss);
    sans->SetAltName("DejaVu Sans");
    // Everything that is made from here on starts with this font.
    document.SetDefaultFontName("Georgia");
}

// SetBasedOn copies the other style as it is at that moment; what is set afterwards counts.
void AddParagraphStyles(Document& document) {
    auto styles = document.ParagraphStyles();

    auto normal = styles->Add("Normal");
    normal->FontFormat()->SetSize(11);
    normal->Format()->SetSpaceAfter(7);              // points
    normal->Format()->SetLineSpacingMultiple(1.15);  // lines

    auto body = styles->Add("Body");
    body->SetBasedOn("Normal");
    body->Format()->SetAlign(dwAlignJustify);

    auto quote = styles->Add("Quote");
    quote->SetBasedOn("Body");
    quote->FontFormat()->SetItalic(true);
    quote->FontFormat()->SetColor(Gray);
    quote->Format()->SetIndentLeft(0.5);  // inches: the document's unit of length
    quote->Format()->SetIndentRight(0.5);
    auto bar = quote->Borders()->Items(dwPBorderLeft);
    bar->SetStyle(dwBSSingle);
    bar->SetWidth(2.25);
    bar->SetSpacing(8);
    bar->SetColor(Pine);

    auto heading = styles->Add("Heading 2");
    heading->SetBasedOn("Normal");
    heading->SetNextStyle("Body");  // what an editor gives to the paragraph after it
    heading->FontFormat()->SetFontName("Verdana");
    heading->FontFormat()->SetSize(11.5);
    heading->FontFormat()->SetBold(true);
    heading->FontFormat()->SetColor(Pine);
    heading->Format()->SetSpaceBefore(10);
    heading->Format()->SetKeepWithNext(true);
    heading->Format()->SetOutlineLevel(2);

    auto chapter = styles->Add("Heading 1");
    chapter->SetBasedOn("Heading 2");
    chapter->FontFormat()->SetSize(15);
    chapter->Format()->SetSpaceBefore(16);
    chapter->Format()->SetOutlineLevel(1);
    auto line = chapter->Borders()->Items(dwPBorderBottom);
    line->SetStyle(dwBSSingle);
    line->SetWidth(0.75);
    line->SetSpacing(3);
    line->SetColor(Pine);

    auto title = styles->Add("Title");
    title->SetBasedOn("Heading 1");
    title->FontFormat()->SetSize(26);
    title->FontFormat()->SetSmallCaps(true);
    title->Format()->SetAlign(dwAlignCenter);
    title->Format()->SetSpaceBefore(0);
    title->Borders()->Items(dwPBorderBottom)->SetStyle(dwBSThinThickMediumGap);
    title->Borders()->Items(dwPBorderBottom)->SetWidth(3);

    // A box has a border on all four sides; consecutive paragraphs with the same borders share it. Behind a pattern
    // lies a colour; readers that draw no patterns show that alone.
    auto box = styles->Add("Box");
    box->SetBasedOn("Normal");
    box->Format()->SetIndentLeft(0.1);
    box->Format()->SetIndentRight(0.1);
    box->Format()->SetKeepIntact(true);
    box->Background()->SetTexture(dwTextureDiagonalUp);
    box->Background()->SetColor(Reed);
    box->Background()->SetBackColor(Sand);
    for (auto side : {dwPBorderTop, dwPBorderLeft, dwPBorderRight, dwPBorderBottom}) {
        box->Borders()->Items(side)->SetStyle(dwBSSingle);
        box->Borders()->Items(side)->SetSpacing(5);
    }

    // Dots up to a number at the right margin: the text area is 6.5 inches wide.
    auto figure = styles->Add("Figure");
    figure->SetBasedOn("Normal");
    figure->Format()->SetSpaceAfter(1);
    figure->TabStops()->Add(6.5, dwTabRight, dwTabLeaderDots);

    auto footer = styles->Add("Footer");
    footer->SetBasedOn("Figure");
    footer->FontFormat()->SetSize(9);
    footer->TabStops()->Clear();
    footer->TabStops()->Add(6.5, dwTabRight, dwTabLeaderNone);

    // Hours stand with their decimal points below each other; a remark follows, and a line to write on.
    auto hours = styles->Add("Hours");
    hours->SetBasedOn("Figure");
    hours->TabStops()->Clear();
    hours->TabStops()->Add(2, dwTabDecimal, dwTabLeaderNone);
    hours->TabStops()->Add(2.75, dwTabLeft, dwTabLeaderNone);
    hours->TabStops()->Add(6.5, dwTabRight, dwTabLeaderUnderline);
}

// Text styles are for runs within a paragraph. They start from the default font, not from the paragraph's: give
// them the size of the text they are meant for.
void AddTextStyles(Document& document) {
    auto marked = document.TextStyles()->Add("Marked");
    marked->FontFormat()->SetSize(11);
    marked->Background()->SetTexture(dwTextureSolid);
    marked->Background()->SetBackColor(Rgb(255, 236, 150));  // behind text, solid is the back colour

    auto number = document.TextStyles()->Add("Call number");
    number->SetBasedOn("Marked");
    number->Background()->SetBackColor(Sand);
    number->Border()->SetStyle(dwBSSingle);
    number->Border()->SetWidth(0.5);
}

void AddHeading(Section& section, const Heading& heading) {
    auto paragraph = section.AddParagraph(heading.style);
    paragraph->Format()->SetPageBreakBefore(paragraph->Format()->OutlineLevel() == 1);
    paragraph->AddBookmark(heading.bookmark);
    paragraph->AddText(heading.text);
    paragraph->AddBookmark(heading.bookmark, false);
}

// A field is an instruction and the text that is shown until a reader carries it out; a reader that knows how builds
// the table of contents anew from the headings' outline levels.
void AddContents(Section& section) {
    std::string text;
    for (const Heading& heading : {Lent, Shelf, House, Hours, Repairs}) {
        if (!text.empty()) text += '\n';
        text += heading.text + ("\t" + std::to_string(heading.page));
    }
    auto contents = section.AddParagraph("Figure");
    contents->Format()->SetSpaceBefore(16);
    contents->AddField("TOC \\o \"1-2\" \\h", text);
}

// "The house" on page 3
void AddReference(Paragraph& paragraph, const Heading& heading) {
    const std::string bookmark = heading.bookmark;
    paragraph.AddText("“");
    paragraph.AddField("REF " + bookmark + " \\h", heading.text);
    paragraph.AddText("” on page ");
    paragraph.AddField("PAGEREF " + bookmark + " \\h", std::to_string(heading.page));
}

void AddFooter(Section& section) {
    auto footer = section.AddHeader(dwFooter)->AddParagraph("Footer");
    footer->AddField("TITLE", "The library’s year");
    footer->AddText(", printed on ");
    footer->AddField("DATE", "12 January 2027")->SetDatePicture("d MMMM yyyy");
    footer->AddText("\tPage ");
    footer->AddField("PAGE", "1");
    footer->AddText(" of ");
    footer->AddField("NUMPAGES", "3");
}

// A line around the pages of a section, a third of an inch from the edge of the paper.
void SetPageBorder(PageBorders& borders) {
    borders.SetOffset(dwPBOPage);
    for (const auto& side : borders) {
        side->SetStyle(dwBSThinThickSmallGap);
        side->SetWidth(3);     // points
        side->SetSpacing(24);  // points
        side->SetColor(Pine);
    }
}

void WriteCover(Section& section) {
    section.AddParagraph("Title", "The library’s year");
    auto summary = section.AddParagraph(
        "Body", "The town library was open on 287 days. It lent more than in any year since the "
                "move to the old granary, and for the first time the children’s room lent more "
                "than the reading room. The most borrowed book was ");
    summary->AddTextItem("A Field Guide to Hedges")->FontFormat()->SetItalic(true);
    summary->AddText(", shelved under ");
    summary->AddText(" 582.17 HED ", "Call number");
    summary->AddText("; it was never in for ");
    summary->AddText("longer than a day", "Marked");
    summary->AddText(". What became of the boilers stands in ");
    AddReference(*summary, Repairs);
    summary->AddText(".");
    AddContents(section);
}

void WriteYear(Section& section) {
    AddHeading(section, Lent);
    section.AddParagraph("Figure", "Books for adults\t41,860");
    section.AddParagraph("Figure", "Books for children\t44,215");
    section.AddParagraph("Figure", "Maps, music and games\t9,730");
    auto total = section.AddParagraph("Figure");
    total->AddTextItem("Altogether\t95,805")->FontFormat()->SetBold(true);

    AddHeading(section, Shelf);
    section.AddParagraph(
        "Body", "In March, sixty readers formed a line from the granary to the mill and passed four thousand "
                "volumes from hand to hand, because the lift had failed on the day before the inspection.");
    section.AddParagraph(
        "Quote", "I had Dickens on my left and the fire brigade on my right, and not one book touched the "
                 "floor.");
}

void WriteHouse(Section& section) {
    AddHeading(section, House);
    AddHeading(section, Hours);
    section.AddParagraph("Hours", "Monday\t7.5\tquiet in the morning\t");
    section.AddParagraph("Hours", "Wednesday\t10.25\tstories at four\t");
    section.AddParagraph("Hours", "Saturday\t5\tchess in the cellar\t");

    AddHeading(section, Repairs);
    // A paragraph can go its own way after it has taken its style, until it gets its first text.
    auto repairs = section.AddParagraph("Body");
    repairs->Format()->SetIndentFirst(0.25);
    repairs->FontFormat()->SetSize(10);
    repairs->AddText("The roof was tight, the heating was not. Of the two boilers ");
    auto one = repairs->AddTextItem("one");
    one->FontFormat()->SetUnderline(dwUnderlineWave);
    repairs->AddText(" was replaced in May; water use fell from 410 to 268 m³ a year. The ");
    auto old = repairs->AddTextItem("sliding");
    old->FontFormat()->SetStrikethrough(true);
    repairs->AddText(" revolving door still sticks.");

    auto box = section.AddParagraph("Box");
    box->AddTextItem("For the year to come")->FontFormat()->SetBold(true);
    section.AddParagraph(
        "Box", "A second evening each week, a lift that lifts, and a bench under the lime tree: we ask the "
               "council for 18,400 altogether.");

    auto imprint = section.AddParagraph("Body");
    imprint->Format()->SetAlign(dwAlignCenter);
    imprint->Format()->SetSpaceBefore(10);
    imprint->FontFormat()->SetColor(Pine);
    imprint->AddText("Printed for the readers’ meeting on 12 January");
}

void WriteReport(const char* filename) {
    auto document = Document::Create();
    document->SetFilename(filename);
    document->SetSpelling(dwSpellingStandard);
    document->SetMarginTop(0.9);  // inches, unless ScaleMode says otherwise
    document->SetMarginLeft(1);
    document->SetMarginRight(1);
    AddProperties(*document);
    AddFonts(*document);
    AddParagraphStyles(*document);
    AddTextStyles(*document);

    // The first section writes the document's settings: fonts, styles and properties must be there before.
    auto cover = document->AddSection();
    SetPageBorder(*cover->PageBorders());
    AddFooter(*cover);
    WriteCover(*cover);

    auto section = document->AddSection();
    AddFooter(*section);
    WriteYear(*section);
    WriteHouse(*section);
    document->Finish();
    std::cout << "written: " << document->ActualFileName() << '\n';
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::cerr << "usage: report OUTPUT.rtf\n";
        return 2;
    }
    try {
        WriteReport(argv[1]);
    } catch (const std::exception& error) {
        std::cerr << "report: " << error.what() << '\n';
        return 1;
    }
}
