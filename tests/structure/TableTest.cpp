#include "tests/support/Documents.h"
#include "tests/support/Script.h"

#include <algorithm>

namespace draftwick::test {

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
        Apply("Width=768.0 Merge=dwMergeHorizontal", *cell);
        const auto act = [&, &make = call] { make(built, *row, *cell); };
        EXPECT_EQ(RefusalNumber(act), dwRunOverflow) << name;
        EXPECT_FALSE(cell->Emitted() || row->Finished() || built->Finished()) << name;
        cell->SetWidth(767);
        EXPECT_EQ(RefusalNumber(act), 0) << name;
        EXPECT_TRUE(built.Body().starts_with(R"(\trowd\trgaph95\trql\trleft-95\trrh0\clvertalt\cellx32000)"
                                             R"(\intbl\cell\clmrg\clvertalt\cellx32767\intbl)"))
            << name;
    }
}

// Of any row, written or not, and of the cell that is current, too. What is changed afterwards is the new cell's.
TEST(Cell, BeginsLikeAnother) {
    TestDocument built(dwTwips);
    const auto section = built->AddSection();
    const auto first = section->AddTable()->AddCell();
    Apply("Width=700.0 VerticalAlign=dwCVACenter Orientation=dwReadRight Merge=dwMergeFirstHorizontal",
          *first);
    Apply("Texture=dwTextureShaded Shading=50.0", *first->Background());
    Apply("dwCBorderLeft.Style=dwBSSingle", *first->Borders());
    const auto row = section->AddTable();
    row->AddCell(first);
    row->AddCell(row->CurrentCell())->SetWidth(800);
    const std::string look = R"(\clvertalc\clshdng5000\clbrdrl\brdrs\brdrw20\brdref0\cellx)";
    EXPECT_EQ(
        Between(built.Body(), R"(\intbl\row\pard\trowd\trgaph95\trql\trleft-95\trrh0)", R"(\intbl\row)"),
        look + R"(700\cltxbtlr\intbl\cell)" + look + R"(1500\cltxbtlr\intbl\cell)");
    EXPECT_EQ(RefusalNumber([&] { Call(*row, "AddCell", {section->Self()}); }), dwRunTypeMismatch);
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
