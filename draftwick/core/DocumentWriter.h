#pragma once

namespace draftwick {

class WritingContext;

/// \deftab720\hyphhotz360...\aftnnar: the words of the document as a whole, first thing in the body.
void WriteDocumentFormatting(WritingContext& context);

/// Lets the header's tables register their colours: the colour table stands before them and must hold all.
void RegisterHeaderColors(WritingContext& context);

/// "{\rtf1\deff0{\fonttbl...}...": everything that stands before the body.
void WriteHeader(WritingContext& context);

}  // namespace draftwick
