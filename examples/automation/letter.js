// A business letter. Characters beyond ASCII are written with their numbers, whatever the code page of the script is.
//
// usage: cscript //nologo letter.js OUTPUT.rtf

var dwSpellingStandard = 2, dwRoman = 2, dwAlignRight = 2, dwUnderlineSingle = 2;

// The look of the letter, in one place: paragraphs refer to these styles by name.
function addStyles(document) {
    document.Fonts.Add("Georgia").Family = dwRoman;
    document.DefaultFontName = "Georgia";

    var body = document.ParagraphStyles.Add("Letter");
    body.FontFormat.Size = 11;
    body.Format.SpaceAfter = 8;
    body.Format.LineSpacingMultiple = 1.15;

    var address = document.ParagraphStyles.Add("Address");
    address.BasedOn = "Letter";
    address.Format.SpaceAfter = 0;

    var subject = document.ParagraphStyles.Add("Subject");
    subject.BasedOn = "Letter";
    subject.FontFormat.Bold = true;
    subject.Format.SpaceBefore = 18;

    // A text style has a size of its own.
    var title = document.TextStyles.Add("Title");
    title.FontFormat.Size = 11;
    title.FontFormat.Italic = true;
}

// [text]
function addOffer(section) {
    section.AddParagraph("Subject", "Repair of nine volumes \u2014 our offer");
    section.AddParagraph("Letter", "Dear Mrs. M\u00fcller,");

    var offer = section.AddParagraph("Letter", "thank you for letting us see the nine volumes of the ");
    offer.AddTextItem("Ashford Chronicle").StyleName = "Title";
    offer.AddTextItem(". Three of them need new spines, the others only their corners mended. We offer the " +
                      "whole work for \u20ac1,240 and need \u201cabout six weeks\u201d, as you asked.");
}
// [text]

function writeLetter(filename) {
    var document = new ActiveXObject("Draftwick.Document");
    document.Filename = filename;
    document.Spelling = dwSpellingStandard;
    document.MarginLeft = 1.1;
    document.MarginRight = 1.1;
    document.MarginTop = 1;
    addStyles(document);

    var section = document.AddSection();
    section.AddParagraph("Address", "Fenwick & Daughters, bookbinders").AddTextItem("\n12 Mill Lane\nAshford");

    // What differs from the style is set on the paragraph, before it gets its text.
    var date = section.AddParagraph("Letter");
    date.Format.Align = dwAlignRight;
    date.AddTextItem("3 March");

    section.AddParagraph("Address", "Mrs. Zo\u00eb M\u00fcller");
    section.AddParagraph("Address", "Municipal Library, Castle Street 4");
    addOffer(section);

    var closing = section.AddParagraph("Letter",
        "We would fetch the books ourselves: they should not travel in the post in ");
    closing.AddTextItem("their").FontFormat.Underline = dwUnderlineSingle;
    closing.AddTextItem(" condition.");

    section.AddParagraph("Letter", "Yours sincerely,");
    var name = section.AddParagraph("Letter");
    name.Format.SpaceBefore = 24;
    name.AddTextItem("Ada Fenwick");

    document.Finish();
    WScript.Echo("written: " + document.ActualFileName);
}

if (WScript.Arguments.length != 1) {
    WScript.Echo("usage: cscript //nologo letter.js OUTPUT.rtf");
    WScript.Quit(2);
}
writeLetter(WScript.Arguments(0));
