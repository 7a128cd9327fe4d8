#pragma once

#include <draftwick/format/FontFormat.h>

namespace draftwick {

/// \plain\b\f0\fs24\cf0: the whole of a character format.
void EmitFontFormat(WritingContext& context, const FontFormat::Values& format, bool withPlain);

/// \b1\fs28: what differs from the reference.
void EmitFontFormatChanges(WritingContext& context, const FontFormat::Values& format,
                           const FontFormat::Values& reference);

/// What holds where no format was ever asked for: the defaults and the document's default font.
FontFormat::Values DefaultFontFormat(const WritingContext& context);

}  // namespace draftwick
