#include <draftwick/format/internal/Writers.h>
#include <draftwick/model/internal/Access.h>
#include <draftwick/structure/internal/Writers.h>

namespace draftwick {

namespace {

constexpr Words<dwTableAlign> AlignWords{"trql", "trqc", "trqr"};
constexpr Words<dwTableBorder> RowSideWords{"trbrdrt", "trbrdrl", "trbrdrr", "trbrdrb", "trbrdrh", "trbrdrv"};
constexpr Words<dwCellBorder> CellSideWords{"clbrdrt", "clbrdrl", "clbrdrr", "clbrdrb"};
constexpr Words<dwCellVerticalAlign> VerticalWords{"clvertalt", "clvertalb", "clvertalc"};

/// \trbrdrt\brdrs\brdrw20\brdrcf0, for rows and cells alike.
template <class Border>
void WriteBorder(RtfWriter& writer, std::string_view sideWord, const Border& border) {
    const auto& values = Stored(border);
    if (values.style == dwBSNone) return;
    writer.Word(sideWord);
    EmitBorderLine(writer, {.style = values.style,
                            .width = PointsToTwips(values.width),
                            .color = values.color,
                            .colorWord = {"brdref", "brdrcf"}});
}

/// Of two borders that could stand on a side, the one that is drawn.
const TableBorder* Drawn(const TableBorder* first, const TableBorder* second = nullptr) {
    if (first != nullptr && Stored(*first).style != dwBSNone) return first;
    return second != nullptr && Stored(*second).style != dwBSNone ? second : nullptr;
}

/// The border of the row that a side of one of its cells has: readers draw the lines of cells alone.
const TableBorder* RowBorderAt(dwCellBorder side, const TableBorder* const* row, const CellPlace& place) {
    switch (side) {
    case dwCBorderTop:
        return place.below ? Drawn(row[dwTBorderHorizontal], row[dwTBorderTop]) : Drawn(row[dwTBorderTop]);
    case dwCBorderLeft: return Drawn(row[place.first ? dwTBorderLeft : dwTBorderVertical]);
    case dwCBorderRight: return Drawn(row[place.last ? dwTBorderRight : dwTBorderVertical]);
    case dwCBorderBottom: return Drawn(row[dwTBorderBottom]);
    }
    return nullptr;
}

void WriteCellBorders(RtfWriter& writer, const CellBorders* borders, const TableBorders* rowBorders,
                      const CellPlace& place) {
    const CellBorder* own[5] = {};  // by their numbers, as the row's
    if (borders != nullptr)
        borders->ForEach([&](dwCellBorder side, const CellBorder& border) { own[side] = &border; });
    const TableBorder* row[7] = {};
    if (rowBorders != nullptr)
        rowBorders->ForEach([&](dwTableBorder side, const TableBorder& border) { row[side] = &border; });
    for (const dwCellBorder side : {dwCBorderTop, dwCBorderLeft, dwCBorderRight, dwCBorderBottom}) {
        if (own[side] != nullptr) {
            WriteBorder(writer, CellSideWords[side], *own[side]);
        } else if (const TableBorder* border = RowBorderAt(side, row, place)) {
            WriteBorder(writer, CellSideWords[side], *border);
        }
    }
}

void WriteMerge(RtfWriter& writer, dwCellMerge merge) {
    if (merge == dwMergeFirstHorizontal || merge == dwMergeFirstBoth) writer.Word("clmgf");
    if (merge == dwMergeFirstVertical || merge == dwMergeFirstBoth) writer.Word("clvmgf");
    if (merge == dwMergeHorizontal) writer.Word("clmrg");
    if (merge == dwMergeVertical) writer.Word("clvmrg");
}

void WriteDirection(RtfWriter& writer, dwCellOrientation orientation) {
    const Words<dwCellOrientation> words{"", "cltxbtlr", writer.Standard() ? "cltxtbrl" : "cltxbtrl"};
    writer.Word(words, orientation);
}

}  // namespace

void EmitTableRow(RtfWriter& writer, const Table::Values& row, const TableBorders* borders,
                  const Frame* frame) {
    writer.Word("trowd");
    writer.Word("trgaph", row.gap.Twips());
    writer.Word(AlignWords, row.align);
    writer.Word("trleft", row.left.Twips());
    writer.Word("trrh", row.heightExactly ? -row.height.Twips() : row.height.Twips());
    if (row.header) writer.Word("trhdr");
    if (row.keepTogether) writer.Word("trkeep");
    if (borders != nullptr)
        borders->ForEach([&](dwTableBorder side, const TableBorder& border) {
            WriteBorder(writer, RowSideWords[side], border);
        });
    if (writer.Standard() && frame != nullptr) EmitRowFrame(writer, Stored(*frame));
}

void EmitTableRowEnd(RtfWriter& writer) {
    writer.Word("intbl");
    writer.Word("row");
    writer.Word("pard");
}

void EmitCellDefinition(RtfWriter& writer, const CellSettings& cell, const TableBorders* rowBorders,
                        const CellPlace& place) {
    WriteMerge(writer, cell.values.merge);
    writer.Word(VerticalWords, cell.values.verticalAlign);
    if (cell.background != nullptr) EmitCellBackground(writer, Stored(*cell.background));
    WriteCellBorders(writer, cell.borders, writer.Standard() ? rowBorders : nullptr, place);
    if (writer.Standard()) WriteDirection(writer, cell.values.orientation);
    writer.Word("cellx", place.rightEdge);
    // Classic: behind the edge, where readers take it for the next cell.
    if (!writer.Standard()) WriteDirection(writer, cell.values.orientation);
}

void EmitCellStart(RtfWriter& writer, const CellSettings& cell) {
    RowState& row = writer.layout.row;
    const std::int16_t rightEdge = ToShort(row.CellRightEdge + cell.values.width.Twips());
    if (!writer.Standard()) EmitCellDefinition(writer, cell, nullptr, {.rightEdge = rightEdge});
    row = {.CellRightEdge = rightEdge, .AtCellStart = true};
}

void EmitCellParagraphMark(RtfWriter& writer) {
    writer.Word("intbl");
    if (!writer.layout.row.AtCellStart) writer.Word("par");
    writer.layout.row.AtCellStart = false;
}

void EmitCellParagraphPlace(RtfWriter& writer, const Frame* rowFrame) {
    writer.Word("pard");
    writer.Word("intbl");
    if (rowFrame != nullptr) EmitFrame(writer, Stored(*rowFrame));
}

void EmitCellEnd(RtfWriter& writer, bool isEmpty) {
    if (isEmpty) writer.Word("intbl");
    writer.Word("cell");
}

}  // namespace draftwick
