#pragma once

#include <draftwick/core/Properties.h>
#include <draftwick/model/DocumentSettings.h>
#include <draftwick/rtf/RtfWriter.h>

namespace draftwick {

/// \deftab720\hyphhotz360...\aftnnar: the words of the document as a whole, first thing in the body.
void WriteDocumentFormatting(RtfWriter& writer, const DocumentSettings& settings);

/// Notes what the styles use and lets the header's tables register their colours: the colour table stands before
/// them and must hold all. Their words go nowhere, so the output must have no file.
void RegisterHeaderColors(RtfWriter& writer, const DocumentSettings& settings);

/// "{\rtf1\deff0{\fonttbl...}...": everything that stands before the body.
void EmitHeader(RtfWriter& writer, const DocumentSettings& settings);

/// "{\info{\title Report}}{\*\userprops{\propname Client}\proptype30{\staticval Smith}}": the built-in properties and
/// the custom ones that have a value; nothing without any.
void EmitProperties(RtfWriter& writer, const Properties& properties);

}  // namespace draftwick
