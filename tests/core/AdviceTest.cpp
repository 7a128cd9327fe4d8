#include "tests/support/Documents.h"
#include "tests/support/PictureFiles.h"

namespace draftwick::test {

namespace {

/// What somebody may do wrong in a document with a section, a paragraph with text, and a row with a cell.
struct Mistakes {
    TestDocument built{};
    std::shared_ptr<Section> section = built->AddSection();
    std::shared_ptr<Paragraph> paragraph = section->AddParagraph("", "x");
    std::shared_ptr<Table> row = section->AddTable();
    std::shared_ptr<Cell> cell = row->AddCell();
    std::shared_ptr<Paragraph> fresh = cell->AddParagraph();

    void ShowPicture(const std::string& file, const std::string& bytes = {}) const {
        if (!bytes.empty()) built.files->Put(file, bytes);
        const auto shape = fresh->AddShape(dwSKPictureFrame);
        shape->Fill()->SetPicture(file);
        fresh->AddTextItem("y");
    }
};

}  // namespace

// By the accessors of C++: the member, the value, the limits in the document's unit, and what to do.
TEST(Advice, SaysWhatToDo) {
    using M = Mistakes;
    const struct {
        std::function<void(M&)> mistake;
        std::string advice;
    } cases[] = {
        {[](M& m) { m.built->ParagraphStyles()->Add("Late"); },
         "ParagraphStyles.Add: the Document is written already; set it before its first AddSection"},
        {[](M& m) { m.built->SetPageWidth(5); },
         "Document.PageWidth: the Document is written already; set it before its first AddSection"},
        {[](M& m) { m.paragraph->Format()->SetAlign(dwAlignRight); },
         "ParagraphFormat.Align: the Paragraph is written already; set it before its first AddBookmark, "
         "AddField, "
         "AddFootnote, AddPicture, AddPictureData, AddShape or AddTextItem, and before anything is added "
         "behind it"},
        {[](M& m) { m.paragraph->AddTextItem("z"); },
         "Paragraph.AddTextItem: something follows the Paragraph already; content can only be added at the "
         "end"},
        {[](M& m) {
             m.section->AddTable();
             m.row->AddCell();
         },
         "Table.AddCell: something follows the Table already; content can only be added at the end"},
        {[](M& m) {
             m.built->Finish();
             m.section->AddParagraph();
         },
         "Section.AddParagraph: the document is finished"},
        {[](M& m) {
             m.built->Finish();
             m.built->SetTabWidth(1);
         },
         "Document.TabWidth: the document is finished"},
        {[](M& m) { m.row->AddCell()->SetWidth(200); },
         "Cell.Width 200 inches: give -22.75 to 22.75 (ScaleMode is dwInches)"},
        {[](M& m) { m.row->AddCell()->SetWidth(210_cm); }, "Cell.Width 210 cm: give -57.79 to 57.79"},
        {[](M& m) {
             m.built->SetScaleMode(dwPoints);
             m.row->AddCell()->SetWidth(3000);
         },
         "Cell.Width 3000 points: give -1638.4 to 1638.35 (ScaleMode is dwPoints)"},
        {[](M& m) {
             m.row->AddCell()->SetWidth(22.5);
             m.row->AddCell();
         },
         "Table: the row ends at 23.5 inches: give -22.75 to 22.75 (ScaleMode is dwInches); make Cell.Width "
         "of the "
         "cell before smaller"},
        {[](M& m) { m.fresh->TabStops()->Add(2.5, dwTabRight); },
         "TabStops.Add: the leader has no default; give dwTabLeaderNone for a tab stop without one"},
        {[](M& m) { m.fresh->Format()->SetListLevel(0); }, "ParagraphFormat.ListLevel 0: give 1 to 9"},
        {[](M& m) { m.fresh->Format()->SetAlign(dwParagraphAlign{9}); },
         "ParagraphFormat.Align 9: give 1 (dwAlignLeft) to 4 (dwAlignJustify)"},
        {[](M& m) { m.built->AddSection()->AddHeader(dwHeaderFirst); },
         "Section.AddHeader: set Section.TitlePage first, for the first page's own header"},
        {[](M& m) { m.built->AddSection()->AddHeader(dwHeaderLeft); },
         "Section.AddHeader: set Document.FacingPage before the first section, for headers of left and right "
         "pages"},
        {[](M& m) { m.ShowPicture("p.png", "\x89PNG"); },
         "'p.png' is of no kind that can be shown: .jpg, .jpeg, .gif, .bmp, .emf, .wmf, in lower case; PNG "
         "and capitals "
         "need Document.Spelling = dwSpellingStandard"},
        {[](M& m) { m.ShowPicture("p.JPG", "x"); }, "'p.JPG' is of no kind that can be shown: .jpg, .jpeg, "
                                                    ".gif, .bmp, .emf, .wmf, in lower case; PNG and capitals "
                                                    "need Document.Spelling = dwSpellingStandard"},
        {[](M& m) { m.ShowPicture("q.jpg", "\x89PNG\r\n\x1A\n"); },
         "'q.jpg' is no Jpeg but Png: give it the extension of what it is"},
        {[](M& m) { m.ShowPicture("q.jpg", "x"); },
         "'q.jpg' is damaged or no Jpeg: use another file, or call Shape.Remove"},
        {[](M& m) { m.ShowPicture(""); },
         "the picture frame has no picture: set Shape.Fill.Picture, or call Shape.Remove"},
        {[](M& m) { m.ShowPicture("none.jpg"); },
         "there is no file 'none.jpg': set another name, or call Shape.Remove"},
        {[](M& m) { m.fresh->SetStyleName("Ttle"); },
         "ParagraphStyles has no 'Ttle'; add it first with ParagraphStyles.Add"},
        {[](M& m) { m.built->SetDefaultFontName("Arail"); },
         "Document.DefaultFontName: the Document is written "
         "already; set it before its first AddSection"},
        {[](M& m) { m.built->Fonts()->Items("Arail"); }, "Fonts has no 'Arail'; add it first with Fonts.Add"},
        {[](M& m) { m.built->Fonts()->Items(1); }, "Fonts.Items 1: the collection is empty"},
        {[](M& m) {
             m.built->Lists()->Add("A");
             m.built->Lists()->Add("B");
             m.fresh->Format()->SetListName("C");
         },
         "Lists has no 'C', but 'A' and 'B'; add it first with Lists.Add"},
        {[](M& m) { m.built->SetFilename("x"); },
         "Document.Filename: the Document is written already; set it before its first AddSection"},
        {[](M& m) {
             m.built.document->Discard();
             m.section->AddTable();
         },
         "the document was given up by Discard; make a new one"},
        {[](M& m) {
             m.built.document.reset();
             m.section->AddTable();
         },
         "keep the pointer to the document as long as its objects are used"},
        {[](M& m) { Set(*m.section, "TitlePage", 1); }, "Section.TitlePage: a Boolean is wanted"},
        {[](M& m) { Call(*m.section, "AddCell"); }, "Section.AddCell: the class has no such member"},
        {[](M& m) { Call(*m.fresh, "AddTextItem"); }, "Paragraph.AddTextItem: the argument Text is missing"},
    };
    for (const auto& [mistake, advice] : cases) {
        M m;
        EXPECT_EQ(Advice([&, &act = mistake] { act(m); }), advice);
    }
}

}  // namespace draftwick::test
