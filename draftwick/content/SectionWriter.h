#pragma once

#include <draftwick/content/Section.h>

namespace draftwick {

/// \sect\sectd\binsxn0\sbkpage\pgwsxn12240...: the section's own words; the first section has no \sect.
void EmitSection(WritingContext& context, const Section::Values& section, const Columns& columns,
                 const PageBorders& pageBorders);

/// \par after a row; a last paragraph is ended by the next \sect or by the end of the document.
void WriteSectionEnd(WritingContext& context);

}  // namespace draftwick
