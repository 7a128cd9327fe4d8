#pragma once

#include <draftwick/content/Field.h>
#include <draftwick/content/Section.h>
#include <draftwick/format/internal/Writers.h>
#include <draftwick/structure/Columns.h>
#include <draftwick/structure/PageBorders.h>

namespace draftwick {

/// \sect\sectd\binsxn0\sbkpage\pgwsxn12240...: the section's own words; the first section has no \sect.
void EmitSection(RtfWriter& writer, const Section::Values& section, const Columns& columns,
                 const PageBorders& pageBorders, const DocumentSettings& document);
/// \par after a row; a last paragraph is ended by the next \sect or by the end of the document.
void WriteSectionEnd(RtfWriter& writer);

/// \par before a paragraph when another one comes before it. A mark is written by what follows the paragraph; the last
/// one is left to the end of its container.
void EmitParagraphMark(RtfWriter& writer);
/// Likewise before a row, which ends itself: what follows it needs no mark.
void EmitRowMark(RtfWriter& writer);
/// \pard\absw1440...: the end of what the paragraph before had, and the paragraph's own frame, if it has one.
void EmitParagraphPlace(RtfWriter& writer, const Frame* frame);

/// A paragraph as it is about to be written; null for the parts that it does not have.
struct ParagraphSettings {
    Ref<ParagraphStyles> style;
    const ParagraphBorders* borders;
    const Background* background;
    const FontFormat* fontFormat;
    const ParagraphFormat* format;
    const TabStops* tabStops;
};
/// \s0\brdrt...\shading...\plain\fs24\cf0\sb0\sa0\sl240\slmult1\tx720
void EmitParagraph(RtfWriter& writer, const ParagraphSettings& paragraph, const DocumentSettings& document);

/// A run as it is about to be written; null for what it does not have.
struct detail::RunSettings {
    const TextStyle* style;
    const FontFormat* fontFormat;
    const FontFormat* paragraphFontFormat;
    const Background* background;
    const TextBorder* border;
};
/// \rtlpar\qr, in the standard spelling, when this is the first text of its paragraph that has a direction, and runs to
/// the left. It stands before the run's group, in which it would end.
void EmitDirection(RtfWriter& writer, const Scripts& scripts);
/// \cs2\b\chbgcross...\chbrdr...: what stands in a run's group before its text.
void EmitRunFormat(RtfWriter& writer, const RunSettings& run, const Scripts& scripts,
                   const DocumentSettings& document);

/// "{\b text}"; the text is RTF already, of these letters.
void EmitTextItem(RtfWriter& writer, const RunSettings& run, std::string_view text, Letters letters,
                  const DocumentSettings& document);
/// The same of a text as a host sends it.
void EmitText(RtfWriter& writer, const RunSettings& run, std::string_view text,
              const DocumentSettings& document);
/// "{\b1{\field{\*\fldinst PAGE}{\fldrslt 1}}}"
void EmitField(RtfWriter& writer, const RunSettings& run, const Field::Values& field,
               const DocumentSettings& document);

}  // namespace draftwick
