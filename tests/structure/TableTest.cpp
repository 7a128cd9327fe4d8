#include "tests/structure/Body.h"
#include "tests/support/Errors.h"

#include <algorithm>

namespace draftwick::test {

namespace {

// What stands around the words of a row and of a cell in the tests below. The \par ends a section behind a row.
const std::string Row = R"(\trowd\trgaph95\trql\trleft-95\trrh0)";
const std::string Cell1 = R"(\clvertalt\cellx1440)";
const std::string EndRow = R"(\intbl\row\pard)";
const std::string EndEmptyCell = R"(\intbl\cell)";

template <class Target>
struct Case {
    const char* name;
    std::function<void(Target&)> set;
    const char* words;
};

template <class Borders, class Side>
void SetBorder(Borders& owner, Side side, dwBorderStyle style, double width, std::int32_t color) {
    auto border = owner.Borders()->Items(side);
    border->SetStyle(style);
    border->SetWidth(width);
    border->SetColor(color);
}

void AddCell(Table& row, double width, std::string_view text) {
    auto cell = row.AddCell();
    cell->SetWidth(width);
    AddText(*cell, text);
}

}  // namespace

TEST(Row, WritesItsWords) {
    const Case<Table> cases[]{
        {"default", [](Table&) {}, R"(\trowd\trgaph95\trql\trleft-95\trrh0)"},
        {"centered", [](Table& t) { t.SetAlign(dwTACenter); }, R"(\trowd\trgaph95\trqc\trleft-95\trrh0)"},
        {"right", [](Table& t) { t.SetAlign(dwTARight); }, R"(\trowd\trgaph95\trqr\trleft-95\trrh0)"},
        {"place",
         [](Table& t) {
             t.SetGap(0.1);
             t.SetLeft(-0.5);
         },
         R"(\trowd\trgaph144\trql\trleft-720\trrh0)"},
        {"least height", [](Table& t) { t.SetHeight(0.25); }, R"(\trowd\trgaph95\trql\trleft-95\trrh360)"},
        {"exact height",
         [](Table& t) {
             t.SetHeight(0.25);
             t.SetHeightExactly(true);
         },
         R"(\trowd\trgaph95\trql\trleft-95\trrh-360)"},
        {"header that is kept together",
         [](Table& t) {
             t.SetKeepTogether(true);
             t.SetHeader(true);
         },
         R"(\trowd\trgaph95\trql\trleft-95\trrh0\trhdr\trkeep)"},
        {"all borders, in the order of their kinds",
         [](Table& t) {
             for (std::int32_t side = 6; side >= 1; --side) {
                 SetBorder(t, static_cast<dwTableBorder>(side), dwBSSingle, 1, 0);
             }
         },
         R"(\trowd\trgaph95\trql\trleft-95\trrh0\trbrdrt\brdrs\brdrw20\brdref0\trbrdrl\brdrs\brdrw20\brdref0)"
         R"(\trbrdrr\brdrs\brdrw20\brdref0\trbrdrb\brdrs\brdrw20\brdref0\trbrdrh\brdrs\brdrw20\brdref0)"
         R"(\trbrdrv\brdrs\brdrw20\brdref0)"},
        {"borders: none, a fraction of a point, rounded down below zero, colours by first use",
         [](Table& t) {
             SetBorder(t, dwTBorderTop, dwBSNone, 3, 0xFF00);
             SetBorder(t, dwTBorderLeft, dwBSDouble, 0.75, 0xFF);
             SetBorder(t, dwTBorderBottom, dwBSWavy, -1.01, 0);
         },
         R"(\trowd\trgaph95\trql\trleft-95\trrh0\trbrdrl\brdrdb\brdrw15\brdref0)"
         R"(\trbrdrb\brdrwavy\brdrw-21\brdref1)"},
    };
    for (const auto& [name, set, words] : cases) {
        const std::string body = BodyOf([&](Section& section) { set(*section.AddTable()); });
        EXPECT_EQ(body, words + EndRow + "\\par") << name;
    }
}

TEST(Cell, WritesItsWords) {
    const Case<Cell> cases[]{
        {"default", [](Cell&) {}, R"(\clvertalt\cellx1440)"},
        {"first across", [](Cell& c) { c.SetMerge(dwMergeFirstHorizontal); },
         R"(\clmgf\clvertalt\cellx1440)"},
        {"first down", [](Cell& c) { c.SetMerge(dwMergeFirstVertical); }, R"(\clvmgf\clvertalt\cellx1440)"},
        {"first of both", [](Cell& c) { c.SetMerge(dwMergeFirstBoth); },
         R"(\clmgf\clvmgf\clvertalt\cellx1440)"},
        {"across", [](Cell& c) { c.SetMerge(dwMergeHorizontal); }, R"(\clmrg\clvertalt\cellx1440)"},
        {"down", [](Cell& c) { c.SetMerge(dwMergeVertical); }, R"(\clvmrg\clvertalt\cellx1440)"},
        {"bottom", [](Cell& c) { c.SetVerticalAlign(dwCVABottom); }, R"(\clvertalb\cellx1440)"},
        {"middle", [](Cell& c) { c.SetVerticalAlign(dwCVACenter); }, R"(\clvertalc\cellx1440)"},
        {"across the page", [](Cell& c) { c.SetOrientation(dwReadNormal); }, R"(\clvertalt\cellx1440)"},
        {"upwards", [](Cell& c) { c.SetOrientation(dwReadRight); }, R"(\clvertalt\cellx1440\cltxbtlr)"},
        {"downwards", [](Cell& c) { c.SetOrientation(dwReadLeft); }, R"(\clvertalt\cellx1440\cltxbtrl)"},
        {"narrow", [](Cell& c) { c.SetWidth(-0.1); }, R"(\clvertalt\cellx-144)"},
        {"a background that was only read", [](Cell& c) { c.Background(); }, R"(\clvertalt\cellx1440)"},
        {"shaded, with borders after it",
         [](Cell& c) {
             c.Background()->SetTexture(dwTextureShaded);
             c.Background()->SetShading(25);
             SetBorder(c, dwCBorderTop, dwBSSingle, 1, 0);
         },
         R"(\clvertalt\clshdng2500\clbrdrt\brdrs\brdrw20\brdref0\cellx1440)"},
        {"all borders, in the order of the sides, whole points, ties to even",
         [](Cell& c) {
             SetBorder(c, dwCBorderBottom, dwBSThickThinLargeGap, 0.75, 0);
             SetBorder(c, dwCBorderRight, dwBSSingle, 0.5, 0);
             SetBorder(c, dwCBorderLeft, dwBSSingle, 1.5, 0);
             SetBorder(c, dwCBorderTop, dwBSSingle, 2.5, 0xFF0000);
         },
         R"(\clvertalt\clbrdrt\brdrs\brdrw40\brdref0\clbrdrl\brdrs\brdrw40\brdref1)"
         R"(\clbrdrr\brdrs\brdrw0\brdref1\clbrdrb\brdrthtnlg\brdrw20\brdref1\cellx1440)"},
        {"a border without a style", [](Cell& c) { SetBorder(c, dwCBorderTop, dwBSNone, 3, 0xFF); },
         R"(\clvertalt\cellx1440)"},
    };
    for (const auto& [name, set, words] : cases) {
        const std::string body = BodyOf([&](Section& section) { set(*section.AddTable()->AddCell()); });
        EXPECT_EQ(body, Row + words + EndEmptyCell + EndRow + "\\par") << name;
    }
}

TEST(Row, PutsCellsSideBySideWhereverItBegins) {
    EXPECT_EQ(BodyOf([](Section& section) {
                  auto row = section.AddTable();
                  row->SetLeft(1);
                  AddCell(*row, 1, "a");
                  AddCell(*row, 2, "b");
                  auto last = row->AddCell();
                  last->SetWidth(0.5);
                  AddText(*last, "c");
                  AddText(*last, "d");
                  AddCell(*section.AddTable(), 1, "e");
              }),
              R"(\trowd\trgaph95\trql\trleft1440\trrh0\clvertalt\cellx1440\intbl\pard\intbl~{a}\cell)"
              R"(\clvertalt\cellx4320\intbl\pard\intbl~{b}\cell\clvertalt\cellx5040\intbl\pard\intbl~{c})"
              R"(\intbl\par\pard\intbl~{d}\cell\intbl\row\pard)"
                  + Row + Cell1 + R"(\intbl\pard\intbl~{e}\cell)" + EndRow + "\\par");
}

TEST(Row, EndsAParagraphAndItself) {
    const std::string row = Row + EndRow;
    EXPECT_EQ(BodyOf([](Section& section) {
                  AddText(section, "a");
                  section.AddTable();
                  section.AddTable();
                  AddText(section, "b");
              }),
              R"(\pard~{a}\par)" + row + row + R"(\pard~{b})");

    Built sections;
    sections.document->AddSection()->AddTable();
    AddText(*sections.document->AddSection(), "b");
    EXPECT_EQ(sections.Body(), row + R"(\par\sect\sectd#\pard~{b})");

    EXPECT_EQ(BodyOf([](Section& section) {
                  auto header = section.AddHeader(dwHeader);
                  AddText(*header, "a");
                  header->AddTable();
                  AddText(section, "b");
              }),
              R"({\header\pard~{a}\par)" + row + R"(\par}\pard~{b})");

    EXPECT_EQ(BodyOf([](Section& section) {
                  auto note = section.AddParagraph()->AddFootnote();
                  note->AddTable();
                  AddText(*note, "a");
                  note->AddTable();
              }),
              R"(\pard~{\footnote)" + row + R"(\pard~{a})" + row + "}");
}

// A note in a cell has rows of its own: behind it the outer row goes on where it stood.
TEST(Row, GoesOnBehindARowInANoteOfACell) {
    EXPECT_EQ(BodyOf([](Section& section) {
                  auto outer = section.AddTable();
                  auto cell = outer->AddCell();
                  auto note = cell->AddParagraph()->AddFootnote();
                  auto inner = note->AddTable();
                  AddCell(*inner, 3, "a");
                  inner->AddCell();
                  AddText(*cell, "b");
                  AddCell(*outer, 2, "c");
              }),
              Row + R"(\clvertalt\cellx1440\intbl\pard\intbl~{\footnote)" + Row
                  + R"(\clvertalt\cellx4320\intbl\pard\intbl~{a}\cell\clvertalt\cellx5760\intbl\cell)"
                  + EndRow + R"(}\intbl\par\pard\intbl~{b}\cell)"
                  + R"(\clvertalt\cellx4320\intbl\pard\intbl~{c}\cell)" + EndRow + "\\par");
}

// Whichever call would write a cell that ends too far to the right is refused, and goes through once that is mended.
TEST(Cell, BeyondTheEdgeIsRefusedBeforeItsFirstWord) {
    const std::pair<const char*, std::function<void(Built&, Table&, Cell&)>> calls[]{
        {"Cell.AddParagraph", [](Built&, Table&, Cell& cell) { cell.AddParagraph(); }},
        {"Table.AddCell", [](Built&, Table& row, Cell&) { row.AddCell()->SetWidth(0); }},
        {"Section.AddTable",
         [](Built& built, Table&, Cell&) { built.document->CurrentSection()->AddTable(); }},
        {"Document.Finish", [](Built& built, Table&, Cell&) { built.document->Finish(); }},
    };
    for (const auto& [name, call] : calls) {
        Built built;
        built.document->SetScaleMode(dwTwips);
        auto row = built.document->AddSection()->AddTable();
        row->AddCell()->SetWidth(32000);
        auto cell = row->AddCell();
        cell->SetWidth(768);
        cell->SetMerge(dwMergeHorizontal);
        const auto act = [&, &make = call] { make(built, *row, *cell); };
        EXPECT_EQ(RefusalNumber(act), dwRunOverflow) << name;
        EXPECT_FALSE(cell->Emitted() || row->Finished() || built.document->Finished()) << name;
        cell->SetWidth(767);
        EXPECT_EQ(RefusalNumber(act), 0) << name;
        const std::string start =
            Row + R"(\clvertalt\cellx32000\intbl\cell\clmrg\clvertalt\cellx32767\intbl)";
        EXPECT_EQ(built.Body().substr(0, start.size()), start) << name;
    }
}

TEST(Row, RefusesWhatIsClosed) {
    Built built;
    auto section = built.document->AddSection();
    auto row = section->AddTable();
    auto cell = row->AddCell();
    row->AddCell();
    EXPECT_EQ(Refusal([&] { cell->AddParagraph(); }),
              "X109 Invalid operation.  Target already emitted Cell.");
    EXPECT_EQ(Refusal([&] { cell->SetWidth(1); }), "X109 Invalid operation.  Target already emitted Cell.");
    section->AddParagraph();
    EXPECT_EQ(Refusal([&] { row->AddCell(); }), "X109 Invalid operation.  Target already emitted Table.");
    EXPECT_EQ(built.Body(),
              Row + Cell1 + EndEmptyCell + R"(\clvertalt\cellx2880)" + EndEmptyCell + EndRow + R"(\pard~)");
}

TEST(Borders, AreGivenOutBySide) {
    Built built;
    auto row = built.document->AddSection()->AddTable();
    auto cell = row->AddCell();
    EXPECT_EQ(row->Borders()->Items(dwTBorderVertical), row->Borders()->Items(dwTBorderVertical));
    EXPECT_EQ(row->Borders()->Count(), 6);
    EXPECT_EQ(cell->Borders()->Count(), 4);
    EXPECT_EQ(cell->Borders()->Items(dwCBorderTop)->Parent(), cell);
    for (const std::int32_t index : {-1, 0, 7}) {
        EXPECT_EQ(RefusalNumber([&] { row->Borders()->Items(static_cast<dwTableBorder>(index)); }), 9);
        EXPECT_EQ(RefusalNumber([&] { cell->Borders()->Items(static_cast<dwCellBorder>(index)); }), 9);
    }
    EXPECT_EQ(RefusalNumber([&] { cell->Borders()->Items(static_cast<dwCellBorder>(5)); }), 9);
}

// A section holds its last row, that one its last cell, and nothing holds those before.
TEST(Row, IsGoneOnceTheNextIsThere) {
    Built built;
    auto section = built.document->AddSection();
    std::vector<std::weak_ptr<Object>> made;
    for (int i = 0; i < 1000; ++i) {
        auto row = section->AddTable();
        auto cell = row->AddCell();
        auto paragraph = cell->AddParagraph();
        made.insert(made.end(), {row, cell, paragraph, paragraph->AddTextItem("x")});
    }
    EXPECT_EQ(std::count_if(made.begin(), made.end(), [](const auto& object) { return !object.expired(); }),
              4);
}

}  // namespace draftwick::test
