#pragma once

#include <draftwick/base/Units.h>
#include <draftwick/model/Class.h>

#include <string>
#include <string_view>

/// What refusals say beside their messages: the member, the value, the limits, the remedy. All of it comes from the
/// descriptions of the classes, and only when something is refused.
namespace draftwick::detail {

class Content;
class NamedItems;

/// "Cell.Width 200 inches: give -22.75 to 22.75 (ScaleMode is dwInches)".
std::string AdviceOnLength(const std::string& what, Measure length, dwScaleMode scale);

/// "Cell.Width 200 inches: give -22.75 to 22.75 (ScaleMode is dwInches)", of the function SetWidth.
std::string AdviceOnValue(const Object& object, std::string_view setter, Measure value, dwScaleMode scale);

/// "ParagraphFormat.Align: the Paragraph is written already; set it before its first AddTextItem or AddField, ...".
std::string AdviceOnLateChange(const Object& object, std::string_view setter);

/// "Paragraph.AddTextItem: the Paragraph is closed; content can only be added at the end".
std::string AdviceOnLateAddition(const Object& object, std::string_view method);

/// "Fonts has no 'Arail', but 'Arial' and 'Times'; add it with Fonts.Add before".
std::string AdviceOnMissing(const NamedItems& items, std::string_view name);

/// "TabStops.Items 4: give 1 to 3".
std::string AdviceOnPosition(const Object& collection, std::int32_t position, std::int32_t count);

/// The advice with the member in front, unless it is there.
std::string WithMember(const Object& object, std::string_view member, const std::string& advice);

}  // namespace draftwick::detail
