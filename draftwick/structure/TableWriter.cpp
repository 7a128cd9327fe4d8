#include <draftwick/format/internal/Writers.h>
#include <draftwick/model/internal/Access.h>
#include <draftwick/structure/internal/Writers.h>

namespace draftwick {

namespace {

constexpr std::string_view AlignWords[] = {"trql", "trqc", "trqr"};
constexpr std::string_view RowSideWords[] = {"trbrdrt", "trbrdrl", "trbrdrr",
                                             "trbrdrb", "trbrdrh", "trbrdrv"};
constexpr std::string_view CellSideWords[] = {"clbrdrt", "clbrdrl", "clbrdrr", "clbrdrb"};
constexpr std::string_view VerticalWords[] = {"clvertalt", "clvertalb", "clvertalc"};
// Readers expect cltxtbrl for the last; this spelling is part of the format we promise.
constexpr std::string_view DirectionWords[] = {"", "cltxbtlr", "cltxbtrl"};

/// \trbrdrt\brdrs\brdrw20\brdref0, for rows and cells alike. "brdref" is promised; readers expect brdrcf.
template <class Borders>
void WriteBorders(RtfWriter& writer, const Borders& borders, const WordList& sideWords) {
    borders.ForEach([&](std::int32_t side, const auto& border) {
        const auto& values = Stored(border);
        if (values.style == dwBSNone) return;
        writer.Word(sideWords, side);
        EmitBorderLine(writer, values.style, PointsToTwips(values.width), "brdref", values.color);
    });
}

void WriteMerge(RtfWriter& writer, dwCellMerge merge) {
    if (merge == dwMergeFirstHorizontal || merge == dwMergeFirstBoth) writer.Word("clmgf");
    if (merge == dwMergeFirstVertical || merge == dwMergeFirstBoth) writer.Word("clvmgf");
    if (merge == dwMergeHorizontal) writer.Word("clmrg");
    if (merge == dwMergeVertical) writer.Word("clvmrg");
}

}  // namespace

void EmitTableRow(RtfWriter& writer, const Table::Values& row, const TableBorders* borders) {
    writer.Word("trowd");
    writer.Word("trgaph", row.gap.Twips());
    writer.Word(AlignWords, row.align);
    writer.Word("trleft", row.left.Twips());
    writer.Word("trrh", row.heightExactly ? -row.height.Twips() : row.height.Twips());
    if (row.header) writer.Word("trhdr");
    if (row.keepTogether) writer.Word("trkeep");
    if (borders != nullptr) WriteBorders(writer, *borders, RowSideWords);
}

void EmitTableRowEnd(RtfWriter& writer) {
    writer.Word("intbl");
    writer.Word("row");
    writer.Word("pard");
}

void EmitCellDefinition(RtfWriter& writer, const Cell::Values& cell, const Background* background,
                        const CellBorders* borders) {
    RowState& row = writer.layout.row;
    const std::int16_t rightEdge = ToShort(row.CellRightEdge + cell.width.Twips());
    WriteMerge(writer, cell.merge);
    writer.Word(VerticalWords, cell.verticalAlign);
    if (background != nullptr) EmitCellBackground(writer, Stored(*background));
    if (borders != nullptr) WriteBorders(writer, *borders, CellSideWords);
    writer.Word("cellx", rightEdge);
    writer.Word(DirectionWords, cell.orientation);  // where readers take it for the next cell: promised
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
