#pragma once

#include <docs/generate/Headers.h>

#include <draftwick/draftwick.h>

#include <filesystem>
#include <iosfwd>
#include <string>
#include <string_view>

namespace draftwick::python {

/// The comments of the library's headers, in Python's words.
class Comments {
public:
    explicit Comments(const std::filesystem::path& sources) : headers_(sources) {}

    /// Of a class, a member, an enumeration or one of its values, in lines of so many letters; empty: nothing is said.
    std::string Of(std::string_view owner, std::string_view member, std::size_t width) const;

private:
    docs::Headers headers_;
};

/// The stub file of the package. `document` has the members of Document that only Python has.
void WriteStubs(const Comments& comments, const std::string& document, std::ostream& out);

}  // namespace draftwick::python
