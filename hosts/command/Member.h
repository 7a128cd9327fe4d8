#pragma once

#include <draftwick/draftwick.h>

#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace draftwick::command {

using ObjectPointer = std::shared_ptr<Object>;

/// What a text or a number means for a property or an argument of the type: enumerations by name, colours as "#rrggbb",
/// lengths with a unit ("2.5 cm"). Everything else is what it was. std::invalid_argument, and error 13 for texts that
/// are none of these.
Variant Fit(const Variant& value, const Type& type, const Object& object);

/// A date, with or without a time of day: "2026-04-01", "2026-04-01T09:30:00". False when it is none.
bool ReadDate(std::string text, Date& date);

/// What names divided by points lead to from an object: a property, an item of a collection, either with a key
/// ("Borders.dwPBorderLeft.Color"). std::invalid_argument for names that there are not.
class Member {
public:
    /// Gives names of a class, beside those of its properties.
    using Names = std::vector<std::string_view> (*)(const Class& description);

    /// The other names are for the message when there is no such property.
    Member(ObjectPointer object, std::string_view path, Names others = nullptr);

    /// Whether it is a property that is nothing without a key, which the path does not have.
    bool WantsKey() const { return property_ != nullptr && keys_.size() < property_->arguments.size(); }
    /// The object that it is.
    ObjectPointer Part() const;
    /// Sets the property. As Fit; and what the property refuses.
    void Set(const Variant& value) const;

private:
    std::string Name() const;

    ObjectPointer object_;
    std::string name_;
    const ClassProperty* property_ = nullptr;  // nullptr: an item of the collection
    std::vector<Variant> keys_;
};

/// The files of a document are the command line's own business.
bool IsSettable(const Class& description, const ClassProperty& property);

}  // namespace draftwick::command
