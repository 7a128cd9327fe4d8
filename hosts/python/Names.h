#pragma once

#include <hosts/model/Names.h>

#include <string>
#include <string_view>

namespace draftwick::python {

/// "break_" of "Break": a word that Python keeps for itself gets an underscore.
std::string MemberName(std::string_view name);

/// A text of the library in Python's words: "add_section" for "AddSection", "Align.CENTER" for "dwAlignCenter", "True" for
/// "true". `collection` says "item" of a position from 1 as it does in the library: only names are replaced.
std::string InPython(std::string_view text);

/// A value as Python writes it: "None", "True", "'text'", "2.5"; a constant of an enumeration with `type`.
std::string Literal(const Variant& value, const draftwick::Type* type);

}  // namespace draftwick::python
