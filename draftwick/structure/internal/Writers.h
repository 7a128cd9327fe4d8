#pragma once

#include <draftwick/rtf/RtfWriter.h>
#include <draftwick/structure/Bookmark.h>
#include <draftwick/structure/Cell.h>
#include <draftwick/structure/Columns.h>
#include <draftwick/structure/Footnote.h>
#include <draftwick/structure/Header.h>
#include <draftwick/structure/PageBorders.h>
#include <draftwick/structure/Table.h>

namespace draftwick {

/// "{\*\bkmkstart Total}"
void EmitBookmark(RtfWriter& writer, const Bookmark::Values& bookmark);

/// \linebetcol\cols2\colsx720, or for a list \cols2\colno1\colw4320\colsr720\colno2\colw2880.
void EmitColumns(RtfWriter& writer, const Columns& columns);

/// \pgbrdropt8\pgbrdrt\brdrs\brsp20\brdrw20\brdrcf0...; nothing without a side that is drawn.
void EmitPageBorders(RtfWriter& writer, const PageBorders& borders);

/// "{\headerf", and no \par before what comes first
void EmitHeaderStart(RtfWriter& writer, dwHeaderKind kind);
/// "\par}", also after a row: then the header ends with an empty paragraph
void EmitHeaderEnd(RtfWriter& writer);

/// "{\footnote\ftnalt"
void EmitFootnoteStart(RtfWriter& writer, bool isEndnote);
/// "}"
void EmitFootnoteEnd(RtfWriter& writer);

/// \trowd\trgaph95\trql\trleft-95\trrh0\trbrdrt...: what a row says about itself.
void EmitTableRow(RtfWriter& writer, const Table::Values& row, const TableBorders* borders,
                  const Frame* frame);
/// \intbl\row\pard
void EmitTableRowEnd(RtfWriter& writer);

/// A cell as it is about to be written; null for the parts that it does not have.
struct detail::CellSettings {
    const Cell::Values& values;
    const Background* background;
    const CellBorders* borders;
};
/// Where a cell stands.
struct CellPlace {
    std::int32_t rightEdge;
    bool first = false, last = false;  ///< in its row
    bool below = false;                ///< its row follows another one
};
/// \clvertalt\clbrdrt...\cellx1440: what a row says about a cell.
void EmitCellDefinition(RtfWriter& writer, const CellSettings& cell, const TableBorders* rowBorders,
                        const CellPlace& place);
/// A cell begins. Error 6, before the first word, when its right edge does not fit 16 bits. Its definition stands here,
/// after the texts of the cells before it; in the standard spelling all definitions come before the first text.
void EmitCellStart(RtfWriter& writer, const CellSettings& cell);
/// \intbl before each paragraph of a cell, \par between two of them.
void EmitCellParagraphMark(RtfWriter& writer);
/// \pard\intbl and the row's frame: \pard takes a paragraph out of its row, and a row has no words for its frame.
void EmitCellParagraphPlace(RtfWriter& writer, const Frame* rowFrame);
/// \cell, which ends the last paragraph; of a cell without one \intbl\cell.
void EmitCellEnd(RtfWriter& writer, bool isEmpty);

}  // namespace draftwick
