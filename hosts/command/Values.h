#pragma once

#include <draftwick/draftwick.h>

#include <memory>
#include <string>
#include <string_view>

namespace draftwick::command {

/// A value as JSON has it, before the member that it is for says what it means.
struct Scalar {
    enum class Kind { Nothing, Boolean, Number, Text };
    Kind kind = Kind::Nothing;
    std::string_view text{};  ///< of a number its digits
    bool truth = false;
};

/// The value for a property or an argument of the type: enumerations by name, colours as "#rrggbb", lengths as numbers
/// in the document's unit or as texts with a unit ("2.5 cm"). std::invalid_argument says what would be right.
Variant ToVariant(const Scalar& value, const Type& type, const Document& document);

/// The length in inches that a text with a unit means ("2.5 cm"). std::invalid_argument when it means none.
double Inches(std::string_view text);

/// A date, with or without a time of day: "2026-04-01", "2026-04-01T09:30:00". False when it is none.
bool ReadDate(std::string_view text, Date& date);

/// Where members are set by name: an object, or a property of it that takes a key.
class Target {
public:
    explicit Target(std::shared_ptr<Object> object, const ClassProperty* keyed = nullptr)
        : object_(std::move(object)), keyed_(keyed) {}

    /// What a name leads to: a part of the object, an item of the collection that it is. Names are divided by points
    /// ("Borders.dwPBorderLeft"). std::invalid_argument when there is no such member or it is no object.
    Target Part(std::string_view path) const;
    /// Sets the property that a name, or names divided by points, leads to. As Part; and what the property refuses.
    void Set(std::string_view path, const Scalar& value) const;

    const std::shared_ptr<Object>& Of() const { return object_; }
    const ClassProperty* Keyed() const { return keyed_; }

private:
    const ClassProperty& Property(std::string_view name) const;
    Variant Key(std::string_view name, const Type& type) const;

    std::shared_ptr<Object> object_;
    const ClassProperty* keyed_;
};

/// What an object model by names lists of a class, for messages: its properties that can be set or are objects.
std::string MembersOf(const Class& description, std::string_view asked);

}  // namespace draftwick::command
