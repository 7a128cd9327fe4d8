#pragma once

#include <draftwick/model/Object.h>

#include <cstdint>
#include <initializer_list>
#include <memory>
#include <optional>
#include <span>
#include <string_view>
#include <vector>

/// The run-time descriptions of the classes: for each class one table of its members. A program that has only
/// names reaches everything with Get, Set and Call; one that generates bindings reads the tables.
namespace draftwick {

/// What a value is.
enum class Kind {
    Boolean,  ///< true or false
    Number,   ///< whole, 32 bits; of an enumeration when the type has values
    Real,     ///< where a real number is wanted, a whole one does
    Length,  ///< a real number in the document's ScaleMode, kept in whole twips of 16 bits: error 6 outside of them
    Color,   ///< a number: red in the lowest byte, then green, then blue
    Text,    ///< UTF-8
    Path,    ///< of a file or folder: a text in the system's bytes, on POSIX not necessarily UTF-8
    Key,     ///< of an item in a collection: its position from 1, or its name
    Value,   ///< nothing, a Boolean, a number, a real number, a text or a date
    Object,  ///< of the class that the type has; of any class when it has none
    Any,     ///< whatever a Variant can hold
    Bytes,   ///< of a file's content: a text that need not be UTF-8
};

/// The type of a property, of an argument or of what a method gives. There is one object for each type: types are the
/// same when their addresses are.
struct Type {
    std::string_view name;  ///< "dwScaleMode", "Paragraph"; for all others that of the kind
    Kind kind = Kind::Any;  ///< Number for an enumeration, Object for a class
    std::span<const EnumerationValue> values{};      ///< of an enumeration, in the order of their numbers
    const struct Class& (*description)() = nullptr;  ///< of a class
};

/// What a property accepts and begins with, as far as a constant can say it.
struct Rule {
    bool complete = false;  ///< nothing else is refused; without, the property looks at more than its kind
    int bits = 32;          ///< of the stored number: outside of it error 6
    bool limited = false;   ///< the bounds below hold: outside of them dwErrPropertyOutOfRange
    std::int32_t low = 0;   ///< the least value
    std::int32_t high = 0;  ///< the greatest value
    std::string_view rangeName{};  ///< the name that the range error gives
    Variant
        initial{};  ///< the default; a length in twips; nothing where it depends on how an object was made
};

/// Reads a property, sets one or calls a method. The values are those of all arguments, then for a setter the new one;
/// they are not counted.
using Accessor = Variant (*)(Object& object, std::span<const Variant> values);

/// An argument of a method, or of a property that has several values.
struct Argument {
    std::string_view name;             ///< as the documentation names it
    const Type* type = nullptr;        ///< what it must be
    std::optional<Variant> initial{};  ///< what it is when it is left out; empty: it must be given
};

/// A property of a class.
struct ClassProperty {
    std::string_view name;       ///< as in "MarginTop"
    const Type* type = nullptr;  ///< what it holds
    Accessor get = nullptr;      ///< empty: write only
    Accessor set = nullptr;      ///< empty: read only
    Rule rule{};                 ///< what it accepts, and its default
    bool optional = false;       ///< it can hold nothing where an object is expected
    std::vector<Argument>
        arguments{};  ///< of a property with several values, like Shape.AdjustValues: its index
};

/// A method of a class.
struct ClassMethod {
    std::string_view name;            ///< as in "AddSection"
    std::vector<Argument> arguments;  ///< in their order; those that can be left out come last
    const Type* result = nullptr;     ///< what it gives; empty: nothing
    Accessor call = nullptr;          ///< calls it
    bool optional = false;            ///< it can give nothing where an object is expected
};

/// One class of the object model.
struct DRAFTWICK_API Class {
    std::string_view name;                  ///< as in "Section"
    std::string_view classId;               ///< of the class, in braces and upper case; never changes
    std::string_view interfaceId;           ///< of its interface, likewise
    std::vector<ClassProperty> properties;  ///< without CommonProperties
    std::vector<ClassMethod> methods;       ///< in no particular order
    /// A new object, of a class whose objects a program creates; empty for those that other objects give.
    std::shared_ptr<Object> (*create)() = nullptr;
    /// The member that automation means by an object alone: Items of a collection; empty: none.
    std::string_view defaultMember{};
    /// Of a collection, what Items gives for the positions 1 to Count; empty for other classes.
    const Type* items = nullptr;

    /// nullptr when there is none. All classes have the CommonProperties.
    const ClassProperty* FindProperty(std::string_view property) const;
    const ClassMethod* FindMethod(std::string_view method) const;
};

/// Parent and Document, which all classes have.
DRAFTWICK_API std::span<const ClassProperty> CommonProperties();

/// Puts the member's name before the advice of an error that using it raised. Get, Set and Call do.
DRAFTWICK_API void NameMember(Error& error, const Object& object, std::string_view member);

/// The value of a property. dwErrItemNotFound ("Section.MarginTop") when the class has no such property, error 5
/// when it cannot be read and for too few or too many arguments.
DRAFTWICK_API Variant Get(Object& object, std::string_view property, std::span<const Variant> arguments);
/// The same with the arguments in braces.
DRAFTWICK_API Variant Get(Object& object, std::string_view property,
                          std::initializer_list<Variant> arguments = {});
/// Sets a property. As Get; error 13 when the value is of the wrong kind; and what the property itself refuses.
DRAFTWICK_API void Set(Object& object, std::string_view property, const Variant& value,
                       std::span<const Variant> arguments);
/// The same with the arguments in braces.
DRAFTWICK_API void Set(Object& object, std::string_view property, const Variant& value,
                       std::initializer_list<Variant> arguments = {});
/// Calls a method. Arguments with a default can be left out at the end; error 5 for too few or too many.
/// dwErrItemNotFound ("Section.AddCell") when the class has no such method; error 13 as in Set; and what the method
/// itself refuses. A property with arguments can be called, too: "AdjustValues" and "SetAdjustValues".
DRAFTWICK_API Variant Call(Object& object, std::string_view method, std::span<const Variant> arguments);
/// The same with the arguments in braces.
DRAFTWICK_API Variant Call(Object& object, std::string_view method,
                           std::initializer_list<Variant> arguments = {});

}  // namespace draftwick
