#pragma once

#include <draftwick/format/Border.h>

#include <string_view>

namespace draftwick {

/// The control word of a border style, the same for every kind of border; empty for dwBSNone and for values
/// outside of the enumeration.
std::string_view BorderStyleWord(std::int32_t style) noexcept;

/// \chbrdr\brdrs\brdrw20\brdrref0
void EmitTextBorder(WritingContext& context, const TextBorder::Values& border);

/// \brdrt\brdrs\brsp20\brdrw20\brdrcf0
void EmitParagraphBorder(WritingContext& context, dwParagraphBorder side,
                         const ParagraphBorder::Values& border);

/// All sides that were created, in the order of the enumeration.
void EmitParagraphBorders(WritingContext& context, const ParagraphBorders& borders);

/// \brdrs\brdrw20\brdrref0: the style, the width in twips and the colour, whose word differs from kind to kind.
void EmitBorderLine(WritingContext& context, std::int32_t style, double width, std::string_view colorWord,
                    std::int32_t color);

}  // namespace draftwick
