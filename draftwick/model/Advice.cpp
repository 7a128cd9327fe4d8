#include <draftwick/base/internal/Enumeration.h>
#include <draftwick/base/internal/Names.h>
#include <draftwick/model/Collection.h>
#include <draftwick/model/Content.h>
#include <draftwick/model/internal/Advice.h>
#include <draftwick/text/Escape.h>

#include <cmath>
#include <limits>
#include <vector>

namespace draftwick {

namespace {

struct Unit {
    double twips;
    dwScaleMode scale;  // 0 for those that no document has
    std::string_view name;
};
constexpr Unit Units[] = {{1440, dwInches, " inches"},
                          {1, dwTwips, " twips"},
                          {20, dwPoints, " points"},
                          {1440 / 2.54, dwScaleMode{}, " cm"},
                          {1440 / 25.4, dwScaleMode{}, " mm"}};

const Unit& UnitOf(Measure value, dwScaleMode scale) {
    for (const Unit& unit : Units) {
        if (value.TwipsPerUnit() == 0 ? unit.scale == scale : unit.twips == value.TwipsPerUnit()) return unit;
    }
    return Units[1];
}

std::string Text(double value) {
    if (std::isnan(value)) return "NaN";
    if (std::isinf(value)) return value < 0 ? "-infinity" : "infinity";
    if (std::abs(value) >= 1e15) return value < 0 ? "below -10^15" : "above 10^15";
    return NumberText(value);
}

/// To two places, towards 0: what is said to fit fits.
std::string Limit(double value) { return Text(std::trunc(value * 100) / 100); }

std::string MemberOf(const Class& description, std::string_view function) {
    constexpr std::string_view Prefix = "Set";
    if (function.starts_with(Prefix) && description.FindProperty(function.substr(Prefix.size())) != nullptr) {
        function.remove_prefix(Prefix.size());
    }
    return std::string{function};
}

std::string MemberName(const Object& object, std::string_view function) {
    const Class& description = object.Description();
    return std::string{description.name} + "." + MemberOf(description, function);
}

/// The name of an enumeration's value behind the number.
std::string Named(const Type& type, std::int32_t number) {
    for (const EnumerationValue& value : type.values) {
        if (value.value == number) return std::to_string(number) + " (" + std::string{value.name} + ")";
    }
    return std::to_string(number);
}

/// "a, b or c".
std::string Join(const std::vector<std::string>& words, std::string_view last) {
    std::string text;
    for (std::size_t i = 0; i < words.size(); ++i) {
        if (i > 0) text += i + 1 == words.size() ? last : ", ";
        text += words[i];
    }
    return text;
}

/// Why nothing of the document can change any more; empty when that is not so.
std::string StateOfDocument(const Object& object) {
    const auto document = std::dynamic_pointer_cast<Content>(object.DocumentObject());
    return document != nullptr && document->Finished() ? "the document is finished" : "";
}

}  // namespace

std::string detail::AdviceOnLength(const std::string& what, Measure length, dwScaleMode scale) {
    constexpr double Low = std::numeric_limits<std::int16_t>::min(),
                     High = std::numeric_limits<std::int16_t>::max();
    const Unit& unit = UnitOf(length, scale);
    std::string text = what + " " + Text(length.Value()) + std::string{unit.name} + ": give "
                       + Limit(Low / unit.twips) + " to " + Limit(High / unit.twips);
    if (length.TwipsPerUnit() == 0 && InRange(scale, dwInches, dwPoints)) {
        constexpr auto& Modes = ValuesOf<dwScaleMode>::All;
        text += " (ScaleMode is " + std::string{Modes[static_cast<std::size_t>(scale - 1)].name} + ")";
    }
    return text;
}

std::string detail::AdviceOnValue(const Object& object, std::string_view setter, Measure value,
                                  dwScaleMode scale) {
    const ClassProperty* property = object.Description().FindProperty(MemberOf(object.Description(), setter));
    std::string text = MemberName(object, setter) + " " + Text(value.Value());
    if (property == nullptr) return text + ": give another value";
    const Rule& rule = property->rule;
    if (property->type->kind == Kind::Length) return AdviceOnLength(MemberName(object, setter), value, scale);
    if (rule.limited) {
        text += ": give " + Named(*property->type, rule.low) + " to " + Named(*property->type, rule.high);
    } else if (rule.bits == 16) {
        text += ": give -32768 to 32767";
    } else {
        text += ": give a number that fits 32 bits in the unit of the file";
    }
    return text;
}

std::string detail::AdviceOnLateChange(const Object& object, std::string_view setter) {
    std::string text = MemberName(object, setter) + ": ";
    const std::string state = StateOfDocument(object);
    if (!state.empty()) return text + state;
    for (std::shared_ptr<Object> at = object.Self(); at != nullptr; at = at->Parent()) {
        const auto* content = dynamic_cast<const Content*>(at.get());
        if (content == nullptr || !content->Emitted()) continue;
        const Class& description = content->Description();
        text += "the " + std::string{description.name} + " is written already; set it before ";
        std::vector<std::string> additions;
        for (const ClassMethod& method : description.methods) {
            const bool adds = method.result != nullptr && method.result->kind == Kind::Object;
            if (adds && method.name.starts_with("Add")) additions.emplace_back(method.name);
        }
        if (!additions.empty()) text += "its first " + Join(additions, " or ");
        if (content->Parent() != nullptr) {
            text += std::string{additions.empty() ? "" : ", and before "} + "anything is added behind it";
        }
        return text;
    }
    return text + "what it belongs to is gone; keep the pointer to that";
}

std::string detail::AdviceOnLateAddition(const Object& object, std::string_view method) {
    const std::string state = StateOfDocument(object);
    return MemberName(object, method) + ": "
           + (state.empty() ? "something follows the " + std::string{object.Description().name}
                                  + " already; content can only be added at the end"
                            : state);
}

std::string detail::AdviceOnMissing(const NamedItems& items, std::string_view name) {
    const std::string collection{items.Description().name};
    std::vector<std::string> names;
    constexpr std::int32_t Most = 5;
    for (std::int32_t position = 1; position <= items.Count() && position <= Most; ++position) {
        const Variant item = Call(const_cast<NamedItems&>(items), "Items", {position});
        const Variant spelled = Get(*std::get<std::shared_ptr<Object>>(item), "Name");
        names.push_back("'" + std::get<std::string>(spelled) + "'");
    }
    std::string text = collection + " has no '" + std::string{name} + "'";
    if (!names.empty()) text += ", but " + Join(names, " and ");
    if (items.Count() > Most) text += " and more";
    return text + "; add it first with " + collection + ".Add";
}

std::string detail::AdviceOnPosition(const Object& collection, std::int32_t position, std::int32_t count) {
    const std::string name{collection.Description().name};
    return name + ".Items " + std::to_string(position)
           + (count == 0 ? ": the collection is empty" : ": give 1 to " + std::to_string(count));
}

std::string detail::WithMember(const Object& object, std::string_view member, const std::string& advice) {
    const std::string name = MemberName(object, member);
    return advice.starts_with(name) ? advice : name + ": " + advice;
}

}  // namespace draftwick
