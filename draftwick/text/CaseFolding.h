#pragma once

#include <draftwick/platform/Export.h>

#include <string>
#include <string_view>

namespace draftwick {

/// The text in the form in which two names are the same when they differ in nothing but case: Unicode's simple
/// case folding (CaseFolding.txt, status C and S), one character for one character, whatever the locale.
/// Malformed UTF-8 becomes U+FFFD.
DRAFTWICK_API std::string FoldCase(std::string_view utf8);

}  // namespace draftwick
