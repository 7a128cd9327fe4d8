#include <draftwick/format/BackgroundWriter.h>
#include <draftwick/format/BorderWriter.h>
#include <draftwick/model/WritingContext.h>
#include <draftwick/structure/TableWriter.h>

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
void EmitBorders(WritingContext& context, const Borders& borders, const WordList& sideWords) {
    borders.ForEach([&](std::int32_t side, const auto& border) {
        const auto& values = border.Stored();
        if (values.style == dwBSNone) return;
        context.output.WriteWord(sideWords, side);
        EmitBorderLine(context, values.style, values.width, "brdref", values.color);
    });
}

void EmitMerge(Output& output, dwCellMerge merge) {
    if (merge == dwMergeFirstHorizontal || merge == dwMergeFirstBoth) output.WriteControlWord("clmgf");
    if (merge == dwMergeFirstVertical || merge == dwMergeFirstBoth) output.WriteControlWord("clvmgf");
    if (merge == dwMergeHorizontal) output.WriteControlWord("clmrg");
    if (merge == dwMergeVertical) output.WriteControlWord("clvmrg");
}

}  // namespace

void EmitTableRow(WritingContext& context, const Table::Values& row, const TableBorders* borders) {
    Output& output = context.output;
    output.WriteControlWord("trowd");
    output.WriteControlWord("trgaph", row.gap.Twips());
    output.WriteWord(AlignWords, row.align);
    output.WriteControlWord("trleft", row.left.Twips());
    output.WriteControlWord("trrh", row.heightExactly ? -row.height.Twips() : row.height.Twips());
    if (row.header) output.WriteControlWord("trhdr");
    if (row.keepTogether) output.WriteControlWord("trkeep");
    if (borders != nullptr) EmitBorders(context, *borders, RowSideWords);
}

void EndTableRow(WritingContext& context) {
    context.output.WriteControlWord("intbl");
    context.output.WriteControlWord("row");
    context.output.WriteControlWord("pard");
}

void EmitCellDefinition(WritingContext& context, const Cell::Values& cell, const Background* background,
                        const CellBorders* borders) {
    Output& output = context.output;
    RowState& row = context.layout.row;
    const std::int16_t rightEdge = ToShort(row.CellRightEdge + cell.width.Twips());
    EmitMerge(output, cell.merge);
    output.WriteWord(VerticalWords, cell.verticalAlign);
    if (background != nullptr) EmitCellBackground(context, background->Stored());
    if (borders != nullptr) EmitBorders(context, *borders, CellSideWords);
    output.WriteControlWord("cellx", rightEdge);
    output.WriteWord(DirectionWords, cell.orientation);  // where readers take it for the next cell: promised
    row = {.CellRightEdge = rightEdge, .AtCellStart = true};
}

}  // namespace draftwick
