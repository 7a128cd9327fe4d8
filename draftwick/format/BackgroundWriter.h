#pragma once

#include <draftwick/format/Background.h>

namespace draftwick {

/// \bgcross\cbpat1\cfpat0: a paragraph's background.
void EmitBackground(WritingContext& context, const Background::Values& background);
/// \chbgcross\chcbpat1\chfpat0: the background of a run.
void EmitCharacterBackground(WritingContext& context, const Background::Values& background);
/// \clbgcross\clcbpat1\clfpat0: the background of a cell.
void EmitCellBackground(WritingContext& context, const Background::Values& background);

}  // namespace draftwick
