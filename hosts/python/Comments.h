#pragma once

#include <string_view>

namespace draftwick::python {

/// A comment of the library's headers, in Python's words: the source is written by the build.
struct Remark {
    std::string_view name;  ///< "Section", "Section.AddParagraph", "dwScaleMode"
    const char* text;
};

/// The comment of a class, of a member ("Section.AddParagraph") or of an enumeration; empty where there is none. It lives as
/// long as the process.
const char* Comment(std::string_view owner, std::string_view member = {});

}  // namespace draftwick::python
