// Writes a newsletter: a title across the page, text in two columns with a line between them, a drop cap,
// footnotes, endnotes at the end, and bookmarks that links from elsewhere can point at.
//
// usage: newsletter OUTPUT.rtf
#include <draftwick/draftwick.h>

#include <exception>
#include <iostream>
#include <string>
#include <string_view>

using namespace draftwick;

namespace {

/// The looks of the paragraphs, in points. They are not styles, because LibreOffice lets text run around a drop cap
/// only in documents without paragraph styles.
struct Look {
    double size;
    dwParagraphAlign align = dwAlignLeft;
    double spaceBefore = 0;
    double spaceAfter = 6;
    bool bold = false;
    bool italic = false;
};
constexpr Look Title{.size = 30, .align = dwAlignCenter};
constexpr Look Issue{.size = 10, .align = dwAlignCenter, .spaceAfter = 10, .italic = true};
constexpr Look Headline{.size = 14, .spaceBefore = 10, .spaceAfter = 4, .bold = true};
constexpr Look Text{.size = 10.5, .align = dwAlignJustify};
constexpr Look DropCap{.size = 40, .spaceAfter = 0};
constexpr Look Line{.size = 10.5};
constexpr Look Footer{.size = 9, .align = dwAlignCenter};

std::shared_ptr<Paragraph> AddParagraph(Container& container, const Look& look) {
    auto paragraph = container.AddParagraph();
    paragraph->FontFormat()->SetSize(look.size);
    paragraph->FontFormat()->SetBold(look.bold);
    paragraph->FontFormat()->SetItalic(look.italic);
    paragraph->Format()->SetAlign(look.align);
    paragraph->Format()->SetSpaceBefore(look.spaceBefore);
    paragraph->Format()->SetSpaceAfter(look.spaceAfter);
    paragraph->Format()->SetLineSpacingMultiple(1.1);
    return paragraph;
}

/// A heading with a bookmark around it.
void AddHeading(Section& section, std::string_view bookmark, std::string_view text) {
    auto heading = AddParagraph(section, Headline);
    heading->Format()->SetKeepWithNext(true);
    heading->AddBookmark(bookmark);
    heading->AddText(text);
    heading->AddBookmark(bookmark, false);
}

/// The number of a note, which the reader counts: it stands in the text and before the note.
void AddNoteNumber(Paragraph& paragraph) {
    auto number = paragraph.AddTextItem("");
    number->FontFormat()->SetSuperscript(true);
    number->AddSpecial(Special::Footnote());
}

void AddNote(Paragraph& paragraph, std::string_view text, bool isEndnote = false) {
    AddNoteNumber(paragraph);
    auto note = paragraph.AddFootnote(isEndnote)->AddParagraph();
    note->FontFormat()->SetSize(8.5);
    AddNoteNumber(*note);
    note->AddText(" ");
    note->AddText(text);
}

/// The first letter of an article, three lines high: a paragraph of its own in a frame at the head of the text, which
/// runs around it.
void AddDropCap(Section& section, std::string_view letter) {
    auto paragraph = AddParagraph(section, DropCap);
    paragraph->Frame()->SetDropCapLines(3);
    paragraph->Frame()->SetReferenceY(dwFRYParagraph);
    paragraph->Frame()->SetSpacingX(0.04);
    paragraph->Format()->SetLineSpacingStyle(dwSpacingExactly);
    paragraph->Format()->SetLineSpacingDistance(40);  // three lines of the text
    paragraph->AddText(letter);
}

void AddArticles(Section& section) {
    AddHeading(section, "Harvest", "A late harvest");
    AddDropCap(section, "T");
    auto first = AddParagraph(section, Text);
    first->AddText("he orchard behind the station gave more apples this year than in the three years before "
                   "together. The first baskets went to the school kitchen");
    AddNote(*first, "412 kg, weighed by the pupils themselves.");
    first->AddText(", the rest to the cider press in the old fire station, which ran for nine days without a "
                   "break. Whoever brought apples took bottles home; whoever brought none could buy them.");
    auto second = AddParagraph(section, Text);
    second->AddText("Two trees at the northern fence will be felled in winter. They were planted in 1921");
    AddNote(*second, "Parish register of 1921, page 88.", true);
    second->AddText(
        " and have carried nothing but mistletoe for some years. Six young trees of old varieties "
        "will take their place, each with a godparent in the neighbourhood. Names for the list "
        "are still welcome.");

    AddHeading(section, "Bridge", "The bridge is open");
    auto third = AddParagraph(section, Text);
    third->AddText("After fourteen months of detours the footbridge over the mill stream is open again. The "
                   "new deck is oak, the railings are the old ones, straightened and galvanised. It carries "
                   "bicycles, prams and one horse at a time");
    AddNote(*third, "The limit is 2.5 tonnes; the sign has been corrected.");
    third->AddText(". On the first Sunday more than three hundred people crossed it, most of them several "
                   "times and in both directions.");
    auto fourth = AddParagraph(section, Text);
    fourth->AddText(
        "The council thanks the volunteers who ferried shopping across the stream in a rowing boat. "
        "The boat has been given to the museum, which will show it from May, next to the beams of "
        "the first bridge of 1788");
    AddNote(*fourth, "See the museum's catalogue of 1994, number 31.", true);
    fourth->AddText(".");

    AddHeading(section, "Dates", "Dates");
    for (const std::string_view date :
         {"3 March\tWorking party in the orchard", "21 March\tConcert in the mill", "2 April\tRepair café",
          "18 April\tMeeting of the residents"}) {
        auto line = AddParagraph(section, Line);
        line->TabStops()->Add(0.9, dwTabLeft, dwTabLeaderNone);
        line->AddText(date);
    }
}

void WriteNewsletter(const std::string& filename) {
    auto document = Document::Create();
    document->SetFilename(filename);
    document->SetSpelling(dwSpellingStandard);
    document->SetCaption("The Mill Stream");
    document->SetEndnoteFormat(dwFFRomanLower);
    document->SetEndnoteLocation(dwELDocument);
    document->SetMarginLeft(1);
    document->SetMarginRight(1);
    document->SetMarginTop(1);
    document->SetMarginBottom(1);
    document->Fonts()->Add("Georgia")->SetFamily(dwRoman);
    document->SetDefaultFontName("Georgia");

    auto front = document->AddSection();
    auto footer = AddParagraph(*front->AddHeader(dwFooter), Footer);
    footer->AddTextItem("The Mill Stream, page ")->AddSpecial(Special::PageNumber());
    AddParagraph(*front, Title)->AddText("The Mill Stream");
    auto issue = AddParagraph(*front, Issue);
    issue->Borders()->Items(dwPBorderBottom)->SetStyle(dwBSThinThickSmallGap);
    issue->Borders()->Items(dwPBorderBottom)->SetWidth(3);
    issue->AddText("News from both banks · Spring 2026");

    // A section that begins where the one before ended: the columns start below the title.
    auto columns = document->AddSection();
    columns->SetBreak(dwSBKNone);
    columns->Columns()->Auto(2, 0.4);
    columns->Columns()->SetLineBetween(true);
    AddArticles(*columns);

    document->Finish();
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::cerr << "usage: newsletter OUTPUT.rtf\n";
        return 2;
    }
    try {
        WriteNewsletter(argv[1]);
    } catch (const std::exception& error) {
        std::cerr << "newsletter: " << error.what() << '\n';
        return 1;
    }
}
