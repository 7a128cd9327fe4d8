#pragma once

#include <hosts/model/Names.h>

#include <string>
#include <string_view>

namespace draftwick::python {

/// "break_" of "Break": a word that Python keeps for itself gets an underscore.
std::string MemberName(std::string_view name);

/// A text of the library with Python's names of members, constants and errors: "add_section" for "AddSection",
/// "ParagraphAlign.CENTER" for "dwAlignCenter".
std::string NamesInPython(std::string_view text);

/// A comment of a header in Python's words: with its names, "Overflow" for "error 6", "True" for "true".
std::string InPython(std::string_view comment);

/// A value as Python writes it: "None", "True", "'text'", "2.5"; a constant of an enumeration with `type`.
std::string Literal(const Variant& value, const draftwick::Type* type);

/// The built-in exception that a refusal of that number is, too, like "ValueError"; empty for none.
std::string_view RelativeOf(std::int32_t number);

}  // namespace draftwick::python
