#pragma once

#include <draftwick/model/Class.h>

#include <span>
#include <string_view>

namespace draftwick {

/// The descriptions of all classes of the object model, in the order of their names.
DRAFTWICK_API std::span<const Class* const> Classes();

/// All enumerations of the object model, in the order of their names: those of the classes' members, and those that
/// programs have a use for although no member takes them, like the error numbers.
DRAFTWICK_API std::span<const Type* const> Enumerations();

/// By what automation knows a class: "Draftwick." and its name.
inline constexpr std::string_view ProgIdPrefix = "Draftwick";
/// The identifier of the library of types, like those of classes; it never changes.
inline constexpr std::string_view TypeLibraryId = "{087941AA-04B5-4C4F-BDCA-1C0B1FC6B5BE}";

}  // namespace draftwick
