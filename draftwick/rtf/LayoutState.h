#pragma once

#include <draftwick/text/Scripts.h>

#include <cstdint>

namespace draftwick {

/// Where the writers of cells stand in the current row.
struct RowState {
    std::int16_t CellRightEdge = 0;  ///< twips: where the last cell ends
    bool AtCellStart = false;        ///< a cell is defined and has no paragraph yet
};

/// Where the writers of paragraphs, rows and shapes stand in the document.
struct LayoutState {
    bool FirstSection = true;                ///< no section is written yet
    bool SuppressNextParagraphMark = false;  ///< the next paragraph is not preceded by \par
    bool TableEndsSection = false;           ///< a row came last: the end of the section needs a \par
    RowState row{};
    Direction direction = Direction::None;  ///< of the paragraph, as far as its text is known
    bool AlignsLeft = false;                ///< the paragraph, as all do that say nothing else
    bool ShapeTextPending = false;          ///< the first paragraph or row of a shape opens its text group
    bool InlinePicture = false;             ///< the shape being written is a picture in the text
};

}  // namespace draftwick
