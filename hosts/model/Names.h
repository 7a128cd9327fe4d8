#pragma once

#include <draftwick/draftwick.h>

#include <string>
#include <string_view>

/// What all hosts make of the classes' descriptions.
namespace draftwick::hosts {

/// "add_text_item" of "AddTextItem", "viewer_task_id" of "ViewerTaskID", "ascii_char" of "ASCIIChar".
std::string SnakeCase(std::string_view name);

/// "ScaleMode" of dwScaleMode; "CellBorderSide" of dwCellBorder, since there is a class CellBorder.
std::string PlainName(const Type& enumeration);

/// What the value of an enumeration is called without what all of its values begin with: "Center" of dwTACenter,
/// "DashDotDot" of dwBSDashDotDot.
std::string_view PlainValueName(const Type& enumeration, const EnumerationValue& value);

/// The same in capitals: "CENTER", "DASH_DOT_DOT".
std::string ConstantName(const Type& enumeration, const EnumerationValue& value);

/// Whether the values are numbers of errors. Hosts with exceptions have these in place of the enumeration.
bool AreErrorNumbers(const Type& enumeration);

/// The class of that name; nullptr when there is none.
const Class* FindClass(std::string_view name);

/// A text of the library as a host's users read it: each identifier in it that is one of the object model's is replaced
/// by what the host calls it. `SetAlign` is spelled as the property, `dwAlignLeft` as the constant.
struct Spelling {
    std::string (*member)(std::string_view name);  ///< of a property or method
    std::string (*constant)(const Type& enumeration, const EnumerationValue& value);  ///< of a value
    std::string (*enumeration)(const Type& enumeration);
};
std::string Respelled(std::string_view text, const Spelling& spelling);

}  // namespace draftwick::hosts
