#include "tests/support/Documents.h"

#include <algorithm>

namespace draftwick::test {

namespace {

// What stands around the words of a row and of a cell in the tests below. The \par ends a section behind a row.
const std::string Row = R"(\trowd\trgaph95\trql\trleft-95\trrh0)";
const std::string Cell1 = R"(\clvertalt\cellx1440)";
const std::string EndRow = R"(\intbl\row\pard)";
const std::string EndEmptyCell = R"(\intbl\cell)";

template <class Owner, class Side>
void SetBorder(Owner& owner, Side side, dwBorderStyle style, double width, std::int32_t color) {
    Apply({{"Style", style}, {"Width", width}, {"Color", color}}, *owner.Borders()->Items(side));
}

void AddCell(Table& row, double width, std::string_view text) {
    auto cell = row.AddCell();
    cell->SetWidth(width);
    AddText(*cell, text);
}

}  // namespace

TEST(Row, WritesItsWords) {
    const auto words = [](const Settings& settings) {
        return Between(BodyOf([&](Section& s) { Apply(settings, *s.AddTable()); }), R"(\trowd)",
                       EndRow + "\\par");
    };
    EXPECT_EQ(words({}), R"(\trgaph95\trql\trleft-95\trrh0)");
    EXPECT_EQ(words({{"Gap", 0.1}, {"Left", -0.5}, {"Height", 0.25}, {"KeepTogether", true}}),
              R"(\trgaph144\trql\trleft-720\trrh360\trkeep)");
    EXPECT_EQ(words({{"Height", 0.25}, {"HeightExactly", true}, {"KeepTogether", true}, {"Header", true}}),
              R"(\trgaph95\trql\trleft-95\trrh-360\trhdr\trkeep)");
    ExpectWords("trql trqc trqr", [&](std::int32_t align) {
        return Between(words({{"Align", align}}), R"(\trgaph95)", R"(\trleft)");
    });
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
    const auto ofEach = [](const char* property, double width) {
        return [=](std::int32_t value) {
            const std::string body = BodyOf([&](Section& section) {
                Apply({{property, value}, {"Width", width}}, *section.AddTable()->AddCell());
            });
            return Between(body, Row, EndEmptyCell + EndRow + "\\par");
        };
    };
    ExpectWords(R"(clvertalt\cellx1440 clmgf\clvertalt\cellx1440 clvmgf\clvertalt\cellx1440 )"
                R"(clmgf\clvmgf\clvertalt\cellx1440 clmrg\clvertalt\cellx1440 clvmrg\clvertalt\cellx1440)",
                ofEach("Merge", 1));
    ExpectWords(R"(clvertalt\cellx-144 clvertalb\cellx-144 clvertalc\cellx-144)",
                ofEach("VerticalAlign", -0.1));
    ExpectWords(R"(clvertalt\cellx0 clvertalt\cellx0\cltxbtlr clvertalt\cellx0\cltxbtrl)",
                ofEach("Orientation", 0));
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

    TestDocument sections;
    sections->AddSection()->AddTable();
    AddText(*sections->AddSection(), "b");
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
    const std::pair<const char*, std::function<void(TestDocument&, Table&, Cell&)>> calls[]{
        {"Cell.AddParagraph", [](TestDocument&, Table&, Cell& cell) { cell.AddParagraph(); }},
        {"Table.AddCell", [](TestDocument&, Table& row, Cell&) { row.AddCell()->SetWidth(0); }},
        {"Section.AddTable", [](TestDocument& built, Table&, Cell&) { built->CurrentSection()->AddTable(); }},
        {"Document.Finish", [](TestDocument& built, Table&, Cell&) { built->Finish(); }},
    };
    for (const auto& [name, call] : calls) {
        TestDocument built(dwTwips);
        auto row = built->AddSection()->AddTable();
        row->AddCell()->SetWidth(32000);
        auto cell = row->AddCell();
        Apply({{"Width", 768.0}, {"Merge", dwMergeHorizontal}}, *cell);
        const auto act = [&, &make = call] { make(built, *row, *cell); };
        EXPECT_EQ(RefusalNumber(act), dwRunOverflow) << name;
        EXPECT_FALSE(cell->Emitted() || row->Finished() || built->Finished()) << name;
        cell->SetWidth(767);
        EXPECT_EQ(RefusalNumber(act), 0) << name;
        const std::string start =
            Row + R"(\clvertalt\cellx32000\intbl\cell\clmrg\clvertalt\cellx32767\intbl)";
        EXPECT_EQ(built.Body().substr(0, start.size()), start) << name;
    }
}

TEST(Row, RefusesWhatIsClosed) {
    TestDocument built;
    auto section = built->AddSection();
    auto row = section->AddTable();
    auto cell = row->AddCell();
    row->AddCell();
    EXPECT_EQ(Refusal([&] { cell->AddParagraph(); }), Emitted("Cell"));
    section->AddParagraph();
    EXPECT_EQ(Refusal([&] { row->AddCell(); }), Emitted("Table"));
    EXPECT_EQ(built.Body(),
              Row + Cell1 + EndEmptyCell + R"(\clvertalt\cellx2880)" + EndEmptyCell + EndRow + R"(\pard~)");
}

// A section holds its last row, that one its last cell, and nothing holds those before.
TEST(Row, IsGoneOnceTheNextIsThere) {
    TestDocument built;
    auto section = built->AddSection();
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
