/// Writes a newsletter: a title across the page, text in two columns with a line between them, footnotes, endnotes
/// at the end, and bookmarks that links from elsewhere can point at.
///
/// usage: newsletter FILE.rtf
#include <draftwick/draftwick.h>

#include <exception>
#include <iostream>
#include <string>
#include <string_view>

using namespace draftwick;

namespace {

/// The first style is what readers take for the default, and the one that the others are based on.
void AddStyles(Document& document) {
    document.Fonts()->Add("Georgia")->SetFamily(dwRoman);
    document.SetDefaultFontName("Georgia");

    auto body = document.ParagraphStyles()->Add("Normal");
    body->FontFormat()->SetSize(10.5);
    body->Format()->SetSpaceAfter(6);
    body->Format()->SetLineSpacingMultiple(1.1);

    const auto add = [&](std::string_view name, double size, dwParagraphAlign align) {
        auto style = document.ParagraphStyles()->Add(name);
        style->SetBasedOn("Normal");
        style->FontFormat()->SetSize(size);
        style->Format()->SetAlign(align);
        return style;
    };
    add("Title", 30, dwAlignCenter);
    add("Text", 10.5, dwAlignJustify);
    add("Footer", 9, dwAlignCenter);

    auto issue = add("Issue", 10, dwAlignCenter);
    issue->FontFormat()->SetItalic(true);
    issue->Format()->SetSpaceAfter(10);
    issue->Borders()->Items(dwPBorderBottom)->SetStyle(dwBSThinThickSmallGap);
    issue->Borders()->Items(dwPBorderBottom)->SetWidth(3);

    auto heading = add("Headline", 14, dwAlignLeft);
    heading->FontFormat()->SetBold(true);
    heading->Format()->SetSpaceBefore(10);
    heading->Format()->SetSpaceAfter(4);
    heading->Format()->SetKeepWithNext(true);
}

std::shared_ptr<Paragraph> AddParagraph(Container& container, std::string_view style) {
    auto paragraph = container.AddParagraph();
    paragraph->SetStyleName(style);
    return paragraph;
}

/// A heading with a bookmark around it.
void AddHeading(Section& section, std::string_view bookmark, std::string_view text) {
    auto heading = AddParagraph(section, "Headline");
    heading->AddBookmark(bookmark);
    heading->AddTextItem(text);
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
    note->AddTextItem(" ");
    note->AddTextItem(text);
}

void AddArticles(Section& section) {
    AddHeading(section, "Harvest", "A late harvest");
    auto first = AddParagraph(section, "Text");
    first->AddTextItem(
        "The orchard behind the station gave more apples this year than in the three years before "
        "together. The first baskets went to the school kitchen");
    AddNote(*first, "412 kg, weighed by the pupils themselves.");
    first->AddTextItem(
        ", the rest to the cider press in the old fire station, which ran for nine days without a "
        "break. Whoever brought apples took bottles home; whoever brought none could buy them.");
    auto second = AddParagraph(section, "Text");
    second->AddTextItem(
        "Two trees at the northern fence will be felled in winter. They were planted in 1921");
    AddNote(*second, "Parish register of 1921, page 88.", true);
    second->AddTextItem(
        " and have carried nothing but mistletoe for some years. Six young trees of old varieties "
        "will take their place, each with a godparent in the neighbourhood. Names for the list "
        "are still welcome.");

    AddHeading(section, "Bridge", "The bridge is open");
    auto third = AddParagraph(section, "Text");
    third->AddTextItem(
        "After fourteen months of detours the footbridge over the mill stream is open again. The "
        "new deck is oak, the railings are the old ones, straightened and galvanised. It carries "
        "bicycles, prams and one horse at a time");
    AddNote(*third, "The limit is 2.5 tonnes; the sign has been corrected.");
    third->AddTextItem(
        ". On the first Sunday more than three hundred people crossed it, most of them several "
        "times and in both directions.");
    auto fourth = AddParagraph(section, "Text");
    fourth->AddTextItem(
        "The council thanks the volunteers who ferried shopping across the stream in a rowing boat. "
        "The boat has been given to the museum, which will show it from May, next to the beams of "
        "the first bridge of 1788");
    AddNote(*fourth, "See the museum's catalogue of 1994, number 31.", true);
    fourth->AddTextItem(".");

    AddHeading(section, "Dates", "Dates");
    for (const std::string_view date :
         {"3 March\tWorking party in the orchard", "21 March\tConcert in the mill", "2 April\tRepair café",
          "18 April\tMeeting of the residents"}) {
        auto line = AddParagraph(section, "Normal");
        line->TabStops()->Add(0.9, dwTabLeft, dwTabLeaderNone);
        line->AddTextItem(date);
    }
}

void WriteNewsletter(const std::string& file) {
    auto document = Document::Create();
    document->SetFilename(file);
    document->SetCaption("The Mill Stream");
    document->SetEndnoteFormat(dwFFRomanLower);
    document->SetEndnoteLocation(dwELDocument);
    document->SetMarginLeft(1);
    document->SetMarginRight(1);
    document->SetMarginTop(1);
    document->SetMarginBottom(1);
    AddStyles(*document);

    auto front = document->AddSection();
    auto footer = AddParagraph(*front->AddHeader(dwFooter), "Footer");
    footer->AddTextItem("The Mill Stream, page ")->AddSpecial(Special::PageNumber());
    AddParagraph(*front, "Title")->AddTextItem("The Mill Stream");
    AddParagraph(*front, "Issue")->AddTextItem("News from both banks · Spring 2026");

    // A section that begins where the one before ended: the columns start below the title.
    auto columns = document->AddSection();
    columns->SetBreak(dwSBKNone);
    columns->Columns()->Auto(2, 0.4);
    columns->Columns()->SetLineBetween(true);
    AddArticles(*columns);

    document->Finish();
}

}  // namespace

int main(int count, char** arguments) {
    if (count != 2) {
        std::cerr << "usage: newsletter FILE.rtf\n";
        return 2;
    }
    try {
        WriteNewsletter(arguments[1]);
    } catch (const std::exception& error) {
        std::cerr << "newsletter: " << error.what() << '\n';
        return 1;
    }
}
