#pragma once

#include <draftwick/text/Scripts.h>

#include <cstdint>
#include <string>
#include <string_view>

namespace draftwick {

/// What becomes of line breaks and NUL.
enum class Escaping {
    Classic,  ///< CR LF becomes "\line" and takes a space that follows it along; a lone CR or LF and NUL pass through
    Lines,    ///< each CR LF, CR or LF becomes "\line ", NUL becomes U+FFFD
    OneLine,  ///< each CR LF, CR or LF becomes a blank, NUL becomes U+FFFD
};

/// Appends the host's text in its RTF form to `to`: "\", "{" and "}" get a backslash, a tab becomes "\tab ", malformed
/// UTF-8 becomes U+FFFD. Nothing else but line breaks changes: other control characters and characters above 127 pass
/// through. Tells what characters there are.
Letters AppendEscaped(std::string& to, std::string_view text, Escaping how = Escaping::Classic);
/// The same as a text of its own.
std::string EscapeText(std::string_view text, Escaping how = Escaping::Classic);
std::string EscapeText(std::string_view text, Escaping how, Letters& letters);

/// The RTF escape of one byte: \' and upper-case hexadecimal without a leading zero. Error 6 outside of a byte.
std::string ASCIIChar(std::int32_t byte);

/// A number in the shortest decimal form that reads back the same: never an exponent, never "-0", integral values
/// without a point.
std::string NumberText(double value);

}  // namespace draftwick
