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

#include <optional>

namespace draftwick {

// What an object says holds over its style: in the standard spelling the writers below are told the style's values, if
// there is a style, and write the words for what the style has and the object has not.

/// \plain\b\f0\fs24\cf0: the whole of a character format.
void EmitFontFormat(RtfWriter& writer, const FontFormat::Values& format, bool withPlain,
                    const FontFormat::Values* style = nullptr);

/// What holds where no format was ever asked for: the defaults and the document's default font.
FontFormat::Values DefaultFontFormat(const DocumentSettings& document);

/// \b1\fs28: what differs from the reference (null: from the default format), or from the style.
void EmitFontFormatChanges(RtfWriter& writer, const FontFormat::Values& format,
                           const FontFormat::Values* reference, const DocumentSettings& document,
                           const FontFormat::Values* style = nullptr);
/// \dbch\af0 for East Asian text, \rtlch\af0\afs24\ab for text that runs to the left, \rtlch\af0\afs24\ab\ltrch for
/// that of India: the words that readers take the look of such text from, beside those for all text.
void EmitScripts(RtfWriter& writer, const Scripts& scripts, const FontFormat::Values& format);

/// \keep\qc\li720\sb0\sa0\sl240\slmult1\ls1\ilvl0
void EmitParagraphFormat(RtfWriter& writer, const ParagraphFormat::Values& format,
                         const DocumentSettings& settings, const ParagraphFormat::Values* style = nullptr);

/// What holds where no format was ever asked for: the defaults and the document's WidowOrphanControl.
ParagraphFormat::Values DefaultParagraphFormat(const DocumentSettings& document);

/// What a paragraph or style uses of the document's lists. Noted when it is settled, before it is written.
void NoteLists(ListNumbers& lists, const ParagraphFormat::Values& format);

/// \tqr\tldot\tx4320 for each tab stop.
void EmitTabStops(RtfWriter& writer, const TabStops& tabStops);

/// \absw1440\phpg\posx720\dxfrtext180...; nothing for a frame in which nothing was set.
void EmitFrame(RtfWriter& writer, const Frame::Values& frame);

/// \tphpg\tposx720\tdfrmtxtLeft180...: likewise of a row, in the standard spelling.
void EmitRowFrame(RtfWriter& writer, const Frame::Values& frame);

/// \bgcross\cbpat1\cfpat2 or \cbpat2: behind a paragraph.
void EmitBackground(RtfWriter& writer, const Background::Values& background,
                    const Background::Values* style = nullptr);
/// \chbgcross\chcbpat1\chcfpat2\cb1: behind text.
void EmitCharacterBackground(RtfWriter& writer, const Background::Values& background,
                             const Background::Values* style = nullptr);
/// \clbgcross\clcbpat1\clcfpat2: in a cell.
void EmitCellBackground(RtfWriter& writer, const Background::Values& background);

/// A line as borders of all kinds are drawn with.
struct BorderLine {
    std::int32_t style;
    std::int32_t width;  ///< twips, like the spacing
    std::int32_t color;
    std::optional<std::int32_t> spacing{};
    std::int32_t art = 0;  ///< a picture border in place of the style
    Spelled colorWord{"brdrcf", "brdrcf"};
};
/// \brdrs\brsp20\brdrw20\brdrcf0
void EmitBorderLine(RtfWriter& writer, const BorderLine& line);
/// \chbrdr\brdrs\brdrw20\brdrcf0
void EmitTextBorder(RtfWriter& writer, const TextBorder::Values& border,
                    const TextBorder::Values* style = nullptr);
/// \brdrt\brdrs\brsp20\brdrw20\brdrcf0 for all sides that were created, in the order of the enumeration.
void EmitParagraphBorders(RtfWriter& writer, const ParagraphBorders& borders,
                          const ParagraphBorders* style = nullptr);

/// "{\fonttbl{\f0\froman Times New Roman;}}"; nothing without fonts.
void EmitFontTable(RtfWriter& writer, const Fonts& fonts);

/// "{\stylesheet{\s0\sbasedon222...Heading;}}"; nothing without styles.
void EmitStylesheet(RtfWriter& writer, const ParagraphStyles& paragraphStyles, const TextStyles& textStyles,
                    const DocumentSettings& settings);

/// "{\*\listtable...}" and "{\*\listoverridetable...}"; nothing without lists.
void EmitListTable(RtfWriter& writer, const Lists& lists);

/// The number of a paragraph style in the file, from its position: in the standard spelling 0 is "Normal", the style of
/// paragraphs without a style of their own.
std::int32_t ParagraphStyleNumber(const RtfWriter& writer, std::int32_t position);
/// The number of a text style in the file: text styles are numbered after the paragraph styles.
std::int32_t TextStyleNumber(const RtfWriter& writer, std::int32_t index);

}  // namespace draftwick
