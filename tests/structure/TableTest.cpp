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
    const std::pair<Settings, std::string> cases[]{
        {{}, R"(\trowd\trgaph95\trql\trleft-95\trrh0)"},
        {{{"Align", dwTACenter}}, R"(\trowd\trgaph95\trqc\trleft-95\trrh0)"},
        {{{"Align", dwTARight}}, R"(\trowd\trgaph95\trqr\trleft-95\trrh0)"},
        {{{"Gap", 0.1}, {"Left", -0.5}}, R"(\trowd\trgaph144\trql\trleft-720\trrh0)"},
        {{{"Height", 0.25}}, R"(\trowd\trgaph95\trql\trleft-95\trrh360)"},
        {{{"Height", 0.25}, {"HeightExactly", true}}, R"(\trowd\trgaph95\trql\trleft-95\trrh-360)"},
        {{{"KeepTogether", true}, {"Header", true}}, R"(\trowd\trgaph95\trql\trleft-95\trrh0\trhdr\trkeep)"},
    };
    for (const auto& [settings, words] : cases) {
        const std::string body = BodyOf([&, &set = settings](Section& s) { Apply(set, *s.AddTable()); });
        EXPECT_EQ(body, words + EndRow + "\\par");
    }
}

// Widths in points are written in twips, rounded down; colours are numbered by first use.
TEST(Row, WritesBordersInTheOrderOfTheirKinds) {
    const std::string body = BodyOf([](Section& section) {
        auto row = section.AddTable();
        SetBorder(*row, dwTBorderVertical, dwBSEngrave, 1, 0);
        SetBorder(*row, dwTBorderHorizontal, dwBSSingle, 1, 0xFF);
        SetBorder(*row, dwTBorderBottom, dwBSWavy, -1.01, 0);
        SetBorder(*row, dwTBorderRight, dwBSNone, 3, 0xFF00);
        SetBorder(*row, dwTBorderLeft, dwBSDouble, 0.75, 0xFF);
        row->Borders()->Items(dwTBorderTop)->SetStyle(dwBSDot);
    });
    EXPECT_EQ(body, Row + R"(\trbrdrt\brdrdot\brdrw20\brdref0\trbrdrl\brdrdb\brdrw15\brdref1)"
                        + R"(\trbrdrb\brdrwavy\brdrw-21\brdref0\trbrdrh\brdrs\brdrw20\brdref1)"
                        + R"(\trbrdrv\brdrengrave\brdrw20\brdref0)" + EndRow + "\\par");
}

TEST(Cell, WritesItsWords) {
    const std::pair<Settings, std::string> cases[]{
        {{}, R"(\clvertalt\cellx1440)"},
        {{{"Merge", dwMergeFirstHorizontal}}, R"(\clmgf\clvertalt\cellx1440)"},
        {{{"Merge", dwMergeFirstVertical}}, R"(\clvmgf\clvertalt\cellx1440)"},
        {{{"Merge", dwMergeFirstBoth}}, R"(\clmgf\clvmgf\clvertalt\cellx1440)"},
        {{{"Merge", dwMergeHorizontal}}, R"(\clmrg\clvertalt\cellx1440)"},
        {{{"Merge", dwMergeVertical}}, R"(\clvmrg\clvertalt\cellx1440)"},
        {{{"VerticalAlign", dwCVABottom}}, R"(\clvertalb\cellx1440)"},
        {{{"VerticalAlign", dwCVACenter}}, R"(\clvertalc\cellx1440)"},
        {{{"Orientation", dwReadNormal}}, R"(\clvertalt\cellx1440)"},
        {{{"Orientation", dwReadRight}}, R"(\clvertalt\cellx1440\cltxbtlr)"},
        {{{"Orientation", dwReadLeft}}, R"(\clvertalt\cellx1440\cltxbtrl)"},
        {{{"Width", -0.1}}, R"(\clvertalt\cellx-144)"},
    };
    for (const auto& [settings, words] : cases) {
        const std::string body =
            BodyOf([&, &set = settings](Section& s) { Apply(set, *s.AddTable()->AddCell()); });
        EXPECT_EQ(body, Row + words + EndEmptyCell + EndRow + "\\par");
    }
}

// Widths are whole points, ties to even, unlike those of rows.
TEST(Cell, WritesItsBackgroundThenItsBorders) {
    const std::string body = BodyOf([](Section& section) {
        auto cell = section.AddTable()->AddCell();
        SetBorder(*cell, dwCBorderBottom, dwBSThickThinLargeGap, 0.75, 0);
        SetBorder(*cell, dwCBorderRight, dwBSSingle, 0.5, 0);
        SetBorder(*cell, dwCBorderLeft, dwBSNone, 3, 0xFF00);
        SetBorder(*cell, dwCBorderTop, dwBSSingle, 2.5, 0xFF0000);
        cell->Background()->SetTexture(dwTextureShaded);
        cell->Background()->SetShading(25);
    });
    EXPECT_EQ(body,
              Row + R"(\clvertalt\clshdng2500\clbrdrt\brdrs\brdrw40\brdref0\clbrdrr\brdrs\brdrw0\brdref1)"
                  + R"(\clbrdrb\brdrthtnlg\brdrw20\brdref1\cellx1440)" + EndEmptyCell + EndRow + "\\par");
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
