#include <draftwick/rtf/RtfWriter.h>
#include <draftwick/text/Escape.h>

namespace draftwick {

void RtfWriter::Text(std::string_view text) { Raw(EscapeText(text)); }

}  // namespace draftwick
