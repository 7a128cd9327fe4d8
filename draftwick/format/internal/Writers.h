#pragma once

#include <draftwick/format/Background.h>
#include <draftwick/format/Border.h>
#include <draftwick/format/FontFormat.h>
#include <draftwick/format/Fonts.h>
#include <draftwick/format/Frame.h>
#include <draftwick/format/Lists.h>
#include <draftwick/format/ParagraphFormat.h>
#include <draftwick/format/Styles.h>
#include <draftwick/format/TabStops.h>
#include <draftwick/model/DocumentSettings.h>
#include <draftwick/rtf/RtfWriter.h>

namespace draftwick {

/// \plain\b\f0\fs24\cf0: the whole of a character format.
void EmitFontFormat(RtfWriter& writer, const FontFormat::Values& format, bool withPlain);

/// What holds where no format was ever asked for: the defaults and the document's default font.
FontFormat::Values DefaultFontFormat(const DocumentSettings& document);

/// \b1\fs28: what differs from the reference.
void EmitFontFormatChanges(RtfWriter& writer, const FontFormat::Values& format,
                           const FontFormat::Values& reference);

/// \keep\qc\li720\sb0\sa0\sl240\slmult1\ls1\ilvl0
void EmitParagraphFormat(RtfWriter& writer, const ParagraphFormat::Values& format,
                         const DocumentSettings& settings);

/// What a paragraph or style uses of the document's lists. Noted when it is settled, before it is written.
void NoteLists(ListNumbers& lists, const ParagraphFormat::Values& format);

/// \tqr\tldot\tx4320 for each tab stop.
void EmitTabStops(RtfWriter& writer, const TabStops& tabStops);

/// \absw1440\phpg\posx720\dxfrtext180...; nothing for a frame in which nothing was set.
void EmitFrame(RtfWriter& writer, const Frame::Values& frame);

/// \bgcross\cbpat1\cfpat2 or \shading2500\cfpat2: behind a paragraph.
void EmitBackground(RtfWriter& writer, const Background::Values& background);
/// \chbgcross\chcbpat1\chfpat2: behind text.
void EmitCharacterBackground(RtfWriter& writer, const Background::Values& background);
/// \clbgcross\clcbpat1\clfpat2: in a cell.
void EmitCellBackground(RtfWriter& writer, const Background::Values& background);

/// The control word of a border style, the same for every kind of border; empty for dwBSNone and for values
/// outside of the enumeration.
std::string_view BorderStyleWord(std::int32_t style) noexcept;
/// \brdrs\brdrw20\brdrref0: the style, the width in twips and the colour, whose word differs from kind to kind.
void EmitBorderLine(RtfWriter& writer, std::int32_t style, std::int32_t twips, std::string_view colorWord,
                    std::int32_t color);
/// \chbrdr\brdrs\brdrw20\brdrref0
void EmitTextBorder(RtfWriter& writer, const TextBorder::Values& border);
/// \brdrt\brdrs\brsp20\brdrw20\brdrcf0 for all sides that were created, in the order of the enumeration.
void EmitParagraphBorders(RtfWriter& writer, const ParagraphBorders& borders);

/// "{\fonttbl{\f0\froman Times New Roman;}}"; nothing without fonts.
void EmitFontTable(RtfWriter& writer, const Fonts& fonts);

/// "{\stylesheet{\s0\sbasedon222...Heading;}}"; nothing without styles.
void EmitStylesheet(RtfWriter& writer, const ParagraphStyles& paragraphStyles, const TextStyles& textStyles,
                    const DocumentSettings& settings);

/// "{\*\listtable...}" and "{\*\listoverridetable...}"; nothing without lists.
void EmitListTable(RtfWriter& writer, const Lists& lists);

/// The number of a text style in the file: text styles are numbered after the paragraph styles.
std::int32_t TextStyleNumber(const RtfWriter& writer, std::int32_t index);

}  // namespace draftwick
