#pragma once

#include <draftwick/structure/Cell.h>
#include <draftwick/structure/Table.h>

namespace draftwick {

/// \trowd\trgaph95\trql\trleft-95\trrh0\trbrdrt...: what a row says before its first cell.
void EmitTableRow(WritingContext& context, const Table::Values& row, const TableBorders* borders);

/// \intbl\row\pard
void EndTableRow(WritingContext& context);

/// \clvertalt\clbrdrt...\cellx1440: a cell, after the words of the cells before it and their texts. Error 6,
/// before the first word, when its right edge does not fit 16 bits.
void EmitCellDefinition(WritingContext& context, const Cell::Values& cell, const Background* background,
                        const CellBorders* borders);

}  // namespace draftwick
