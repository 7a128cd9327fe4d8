#pragma once

#include <draftwick/draftwick.h>

#include <string_view>

namespace draftwick::hosts {

/// A length with its unit ("2.5cm", "12 pt", "-1in", "3mm", "240tw", "240 twips", "1pc") in the unit of the object's
/// document, as properties take it. Error 13 for a text that is none; error 91 when the document is gone.
double LengthFrom(std::string_view text, const Object& object);

/// The number of a colour that is written "#rrggbb" or "#rgb". Error 13 for a text that is none.
std::int32_t ColorFrom(std::string_view text);

}  // namespace draftwick::hosts
