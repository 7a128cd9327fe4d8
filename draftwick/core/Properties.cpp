#include <draftwick/base/internal/Enumeration.h>
#include <draftwick/core/Properties.h>
#include <draftwick/model/internal/ClassTable.h>
#include <draftwick/text/Utf8.h>

#include <cmath>
#include <optional>
#include <utility>

namespace draftwick {

namespace {

dwPropertyType TypeOfBuiltIn(std::int32_t position) {
    if (position <= dwBIPHyperlinkBase) return dwPTText;
    return position <= dwBIPBackupTime ? dwPTDate : dwPTInteger;
}

std::int32_t DaysOf(std::int32_t year, std::int32_t month) {
    constexpr std::int32_t Days[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    const bool leap = year % 4 == 0 && (year % 100 != 0 || year % 400 == 0);
    return month == 2 && leap ? 29 : Days[month - 1];
}

bool Exists(const Date& date) {
    return InRange(date.year, 1, 9999) && InRange(date.month, 1, 12)
           && InRange(date.day, 1, DaysOf(date.year, date.month)) && InRange(date.hour, 0, 23)
           && InRange(date.minute, 0, 59) && InRange(date.second, 0, 59);
}

/// The type of a value that a property can have; nothing for no value.
std::optional<dwPropertyType> TypeOfValue(const Variant& value) {
    if (std::holds_alternative<std::monostate>(value)) return std::nullopt;
    if (std::holds_alternative<std::string>(value)) return dwPTText;
    if (std::holds_alternative<std::int32_t>(value)) return dwPTInteger;
    if (std::holds_alternative<bool>(value)) return dwPTBoolean;
    if (const auto* real = std::get_if<double>(&value)) {
        if (!std::isfinite(*real))
            RaiseRuntimeError(dwRunOverflow, "the number is not finite",
                              "Property.Value: give a finite number");
        return dwPTReal;
    }
    if (const auto* date = std::get_if<Date>(&value)) {
        if (!Exists(*date))
            RaiseRuntimeError(dwRunInvalidCall, "there is no such date",
                              "Property.Value: give a date of the years 1 to 9999 that the calendar has");
        return dwPTDate;
    }
    RaiseRuntimeError(dwRunTypeMismatch, "a property cannot hold an object",
                      "Property.Value: give a text, a number, a Boolean or a date");
}

Variant ValidText(const Variant& value) {
    const auto* text = std::get_if<std::string>(&value);
    return text == nullptr ? value : Variant{ToValidUtf8(*text)};
}

void RemoveOfKey(Properties& properties, const Variant& key) {
    WithKey(key, [&](const auto& index) { properties.Remove(index); });
}

}  // namespace

Property::Property(const Origin& origin, std::string name, std::int32_t index)
    : Node(origin), name_(std::move(name)), builtIn_(index < dwBIPCharacters),
      type_(builtIn_ ? TypeOfBuiltIn(index + 1) : dwPTText) {}

void Property::SetValue(const Variant& value) {
    OpenForChange();
    const auto type = TypeOfValue(value);
    if (builtIn_ && type && *type != type_) {
        RaiseRuntimeError(dwRunTypeMismatch, name_ + " holds values of another kind",
                          "Property.Value: " + name_
                              + " of every document holds one kind; give the kind that it has");
    }
    value_ = ValidText(value);
    if (type) type_ = *type;
}

void Property::SetLinkTo(std::string_view bookmark) {
    OpenForChange();
    if (builtIn_) {
        RaiseRuntimeError(dwRunInvalidCall, name_ + " cannot be linked to a bookmark",
                          "Property.LinkTo: link a property that you have added with Properties.Add");
    }
    linkTo_ = ToValidUtf8(bookmark);
}

Properties::Properties(const Origin& origin) : NamedCollection(origin) {
    constexpr std::string_view Prefix = "dwBIP";
    for (const EnumerationValue& builtIn : ValuesOf<dwBuiltInProperty>::All) {
        AddItem(builtIn.name.substr(Prefix.size()), "Properties");
    }
}

std::shared_ptr<Property> Properties::Add(std::string_view name, const Variant& value,
                                          std::string_view linkTo) {
    OpenForChange();
    TypeOfValue(value);
    if (Contains(name)) {
        RaiseError(dwErrDuplicateName, {ToValidUtf8(name)},
                   "Properties has '" + ToValidUtf8(name) + "' already; set its Value, or give another name");
    }
    auto property = AddItem(name, "Properties");
    property->SetValue(value);
    property->SetLinkTo(linkTo);
    return property;
}

void Properties::Remove(std::int32_t index) {
    OpenForChange();
    const auto property = Items(index);
    if (property->BuiltIn()) {
        RaiseError(dwErrCantDeleteBuiltInProperty, {property->Name()},
                   "Properties.Remove: " + property->Name()
                       + " is in every document; set its Value to nothing");
    }
    RemoveItem(index);
}

void Properties::Remove(std::string_view name) {
    OpenForChange();
    Remove(IndexOf(name) + 1);
}

const Class& Property::Describe() {
    using P = Property;
    static const Class description{"Property",
                                   "{1A931B9E-2921-450A-A50D-BEAD0DD6F033}",
                                   "{52CF88F5-BCB6-43A7-AEF9-DDAEE1CC8E6D}",
                                   {
                                       PropertyOf<&P::Name>("Name"),
                                       PropertyOf<&P::BuiltIn>("BuiltIn"),
                                       PropertyOf<&P::Type>("Type"),
                                       PropertyOf<&P::Value, &P::SetValue>("Value").As(Kind::Value),
                                       PropertyOf<&P::LinkTo, &P::SetLinkTo>("LinkTo"),
                                   },
                                   {},
                                   nullptr,
                                   "Value"};
    return description;
}

const Class& Properties::Describe() {
    using P = Properties;
    static const Class description = CollectionOf(
        {"Properties",
         "{B3E428B5-A06D-4483-AAC0-9D69A42ACFD2}",
         "{1EC2A83C-A0CD-4C48-A5AC-390D536E5FD0}",
         {PropertyOf<&P::Count>("Count")},
         {
             ItemsByKey<P>(),
             MethodOf<&P::Add>("Add", {{"Name"}, {"Value", Kind::Value}, {"LinkTo", Variant{std::string{}}}}),
             MethodOf<&RemoveOfKey>("Remove", {{"Index", Kind::Key}}),
         }});
    return description;
}

}  // namespace draftwick
