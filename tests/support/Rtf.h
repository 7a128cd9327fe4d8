#pragma once

#include <string>
#include <string_view>

namespace draftwick::test {

/// Whether text that a host sent may have put line breaks of its own into the file.
enum class LineBreaks { OnlyCrLf, Any };

/// What is wrong with a finished file, in words; empty if it is one whole RTF document. Binary data (\bin) is not
/// known; no document of the library holds any.
std::string CheckFile(std::string_view bytes, LineBreaks lineBreaks = LineBreaks::OnlyCrLf);

/// The RTF in one spelling for all that a reader takes to be the same: no line breaks, and a space between a
/// word and the text that follows it, but nowhere else. "\b\r\nx" and "\b x" give "\b x"; "\b \i" gives "\b\i".
std::string Words(std::string_view rtf);

/// Two files, or words, from the first word in which they differ, and what stands in front of it in both.
std::string FirstDifference(std::string_view expected, std::string_view actual);

}  // namespace draftwick::test
