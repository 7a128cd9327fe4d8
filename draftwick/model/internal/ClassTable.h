#pragma once

#include <draftwick/base/internal/Enumeration.h>
#include <draftwick/base/internal/Names.h>
#include <draftwick/model/Class.h>
#include <draftwick/model/Rules.h>

#include <array>
#include <string>
#include <type_traits>
#include <utility>

/// What the tables of the classes are written with: each row is made from pointers to the accessors of a member and to
/// the field that holds its value.
namespace draftwick {

/// The plain value of a variant as the type that an accessor takes. Error 13 when it is of another kind.
template <class Plain>
Plain FromVariant(const Variant& value);
template <>
bool FromVariant(const Variant& value);
template <>
std::int32_t FromVariant(const Variant& value);
template <>
double FromVariant(const Variant& value);
template <>
std::string_view FromVariant(const Variant& value);

/// The value of an accessor as a variant: enumerations as their numbers, an empty pointer as nothing.
template <class Plain>
Variant ToVariant(const Plain& value) {
    if constexpr (std::is_same_v<Plain,
                                 bool> || std::is_same_v<Plain, double> || std::is_same_v<Plain, Variant>) {
        return value;
    } else if constexpr (std::is_integral_v<Plain> || std::is_enum_v<Plain>) {
        return static_cast<std::int32_t>(value);
    } else if constexpr (std::is_convertible_v<Plain, std::string_view>) {
        return std::string{value};
    } else {
        std::shared_ptr<Object> object = value;
        return object == nullptr ? Variant{} : Variant{std::move(object)};
    }
}

namespace detail {

// Types.

/// The types that are neither enumerations nor classes, in the order of Kind.
extern const std::array<Type, ValuesOf<Kind>::All.size()> PlainTypes;

inline const Type* TypeOf(Kind kind) { return &PlainTypes[static_cast<std::size_t>(kind)]; }

template <class Plain>
constexpr Kind KindOf() {
    if constexpr (std::is_same_v<Plain, bool>)
        return Kind::Boolean;
    else if constexpr (std::is_same_v<Plain, double>)
        return Kind::Real;
    else if constexpr (std::is_integral_v<Plain>)
        return Kind::Number;
    else if constexpr (std::is_same_v<Plain, Measure>)
        return Kind::Length;
    else if constexpr (std::is_same_v<Plain, Variant>)
        return Kind::Any;
    else if constexpr (std::is_convertible_v<Plain, std::string_view>)
        return Kind::Text;
    else
        return Kind::Object;
}

template <class Enumeration>
inline constexpr Type EnumerationType{NameOf<Enumeration>, Kind::Number, ValuesOf<Enumeration>::All, nullptr};
template <class Described>
inline constexpr Type ClassType{NameOf<Described>, Kind::Object, {}, &Described::Describe};

/// The type of a value, or of the object that a pointer owns; nullptr for none.
template <class Value>
const Type* TypeOf() {
    using Plain = std::decay_t<Value>;
    if constexpr (std::is_void_v<Plain>) {
        return nullptr;
    } else if constexpr (requires { typename Plain::element_type; }) {
        return TypeOf<typename Plain::element_type>();
    } else if constexpr (std::is_enum_v<Plain>) {
        return &EnumerationType<Plain>;
    } else {
        static_assert(sizeof(Plain) > 0, "the class must be known here to be described");
        if constexpr (requires { Plain::Describe(); }) {
            return &ClassType<Plain>;
        } else {
            return TypeOf(KindOf<Plain>());
        }
    }
}

// Access.

/// The object, which is of that class; empty for nothing. Error 13 for anything else.
std::shared_ptr<Object> ObjectFromVariant(const Variant& value, const Class& wanted);

template <class Wanted>
std::decay_t<Wanted> TakeArgument(const Variant& value) {
    using Plain = std::decay_t<Wanted>;
    if constexpr (std::is_enum_v<Plain>) {
        return static_cast<Plain>(FromVariant<std::int32_t>(value));
    } else if constexpr (std::is_same_v<Plain, Variant>) {
        return value;
    } else if constexpr (std::is_same_v<Plain, Measure>) {
        return FromVariant<double>(value);
    } else if constexpr (requires { typename Plain::element_type; }) {
        return std::dynamic_pointer_cast<typename Plain::element_type>(
            ObjectFromVariant(value, Plain::element_type::Describe()));
    } else {
        return FromVariant<Plain>(value);
    }
}

template <class Returned, class... Arguments>
struct Signature {
    using Result = Returned;
    static constexpr auto Indices = std::index_sequence_for<Arguments...>{};
    static std::array<const Type*, sizeof...(Arguments)> Types() { return {TypeOf<Arguments>()...}; }
};

/// Takes a pointer to a member function apart, to a function that takes the object first, or to one that needs none.
template <class Pointer>
struct Target;

template <class Owner, class Result, class... Arguments>
struct Target<Result (Owner::*)(Arguments...)> : Signature<Result, Arguments...> {
    template <auto Pointer, std::size_t... I>
    static Result Call(Object& object, [[maybe_unused]] std::span<const Variant> values,
                       std::index_sequence<I...>) {
        return (static_cast<Owner&>(object).*Pointer)(TakeArgument<Arguments>(values[I])...);
    }
};
template <class Owner, class Result, class... Arguments>
struct Target<Result (Owner::*)(Arguments...) const> : Target<Result (Owner::*)(Arguments...)> {};
template <class Owner, class Result, class... Arguments>
struct Target<Result (Owner::*)(Arguments...) noexcept> : Target<Result (Owner::*)(Arguments...)> {};
template <class Owner, class Result, class... Arguments>
struct Target<Result (Owner::*)(Arguments...) const noexcept> : Target<Result (Owner::*)(Arguments...)> {};

template <class Owner, class Result, class... Arguments>
requires std::is_base_of_v<Object, Owner>
struct Target<Result (*)(Owner&, Arguments...)> : Signature<Result, Arguments...> {
    template <auto Pointer, std::size_t... I>
    static Result Call(Object& object, [[maybe_unused]] std::span<const Variant> values,
                       std::index_sequence<I...>) {
        return Pointer(static_cast<Owner&>(object), TakeArgument<Arguments>(values[I])...);
    }
};
template <class Result, class... Arguments>
struct Target<Result (*)(Arguments...)> : Signature<Result, Arguments...> {
    template <auto Pointer, std::size_t... I>
    static Result Call(Object&, [[maybe_unused]] std::span<const Variant> values, std::index_sequence<I...>) {
        return Pointer(TakeArgument<Arguments>(values[I])...);
    }
};

template <auto Pointer>
Variant Invoke(Object& object, std::span<const Variant> values) {
    using To = Target<decltype(Pointer)>;
    if constexpr (std::is_void_v<typename To::Result>) {
        To::template Call<Pointer>(object, values, To::Indices);
        return {};
    } else {
        return ToVariant<std::decay_t<typename To::Result>>(
            To::template Call<Pointer>(object, values, To::Indices));
    }
}

/// Empty for a null pointer.
template <auto Pointer>
constexpr Accessor AccessorOf() {
    if constexpr (std::is_null_pointer_v<decltype(Pointer)>) {
        return nullptr;
    } else {
        return &Invoke<Pointer>;
    }
}

// Rules.

template <Name RangeName, auto First, auto Last>
Rule RuleOfField(const Choice<RangeName, First, Last>& field) {
    return {.complete = true,
            .limited = true,
            .low = First,
            .high = Last,
            .rangeName = RangeName.View(),
            .initial = static_cast<std::int32_t>(static_cast<decltype(First)>(field))};
}
template <Name RangeName, std::uint8_t First, std::uint8_t Last>
Rule RuleOfField(const Byte<RangeName, First, Last>& field) {
    return {.complete = true,
            .bits = 8,
            .limited = true,
            .low = First,
            .high = Last,
            .rangeName = RangeName.View(),
            .initial = static_cast<std::int32_t>(field)};
}
inline Rule RuleOfField(const Short& field) {
    return {.complete = true, .bits = 16, .initial = static_cast<std::int32_t>(field)};
}
inline Rule RuleOfField(const Rounded& field) {
    return {.complete = true, .bits = 16, .initial = static_cast<double>(field)};
}
inline Rule RuleOfField(const Length& field) {
    return {.complete = true, .bits = 16, .initial = static_cast<double>(field.Twips())};
}
template <auto ToFile>
Rule RuleOfField(const Real<ToFile>& field) {
    return {.complete = true, .initial = static_cast<double>(field)};
}
inline Rule RuleOfField(const FixedPoint& field) {
    return {.complete = true, .initial = static_cast<double>(field)};
}
template <class Plain>
Rule RuleOfField(const Plain& field) {
    return {.complete = true, .initial = ToVariant(field)};
}

/// What the type and the initialiser of a field say.
template <class Values, class Field>
void Describe(ClassProperty& property, Field Values::*member) {
    static const Values initial{};
    property.rule = RuleOfField(initial.*member);
    if constexpr (std::is_same_v<Field, Length>) property.type = TypeOf(Kind::Length);
}

}  // namespace detail

/// A row of a class's table for a property, with what its accessors and its field do not say.
struct PropertyRow : ClassProperty {
    /// It holds what is told from others of its C++ type: Kind::Path, Kind::Color, ...
    PropertyRow As(Kind kind) const;
    /// There can be no object.
    PropertyRow OrNothing() const;
    /// The default is not the field's: it depends on how the object was made, and the comment in the header says on
    /// what.
    PropertyRow DefaultDepends() const;
};

/// An argument in a row: its name, and where it has one its default or what tells it from others of its C++ type.
struct ArgumentRow {
    ArgumentRow(const char* name) : name(name) {}
    ArgumentRow(const char* name, Variant initial) : name(name), initial(std::move(initial)) {}
    ArgumentRow(const char* name, Kind kind) : name(name), kind(kind) {}

    std::string_view name;
    std::optional<Variant> initial{};
    std::optional<Kind> kind{};
};
using ArgumentRows = std::initializer_list<ArgumentRow>;

/// A row of a class's table for a method.
struct MethodRow : ClassMethod {
    /// It can give no object.
    MethodRow OrNothing() const;
};

namespace detail {

std::vector<Argument> MakeArguments(ArgumentRows rows, std::span<const Type* const> types);

}  // namespace detail

/// A property with its getter, its setter (nullptr: read only) and the field that holds its rule and default (nullptr:
/// the property has a mind of its own).
template <auto Getter, auto Setter = nullptr, auto Field = nullptr>
PropertyRow PropertyOf(std::string_view name) {
    PropertyRow row{{.name = name,
                     .type = detail::TypeOf<typename detail::Target<decltype(Getter)>::Result>(),
                     .get = detail::AccessorOf<Getter>(),
                     .set = detail::AccessorOf<Setter>()}};
    if constexpr (!std::is_null_pointer_v<decltype(Field)>) detail::Describe(row, Field);
    return row;
}

/// A property that can be set but not read.
template <auto Setter>
PropertyRow WriteOnlyPropertyOf(std::string_view name) {
    return {{.name = name,
             .type = detail::Target<decltype(Setter)>::Types().front(),
             .set = detail::AccessorOf<Setter>()}};
}

/// A property with a value for each argument. The setter takes the arguments before the value.
template <auto Getter, auto Setter = nullptr>
PropertyRow IndexedPropertyOf(std::string_view name, ArgumentRows arguments) {
    PropertyRow row = PropertyOf<Getter, Setter>(name);
    row.arguments = detail::MakeArguments(arguments, detail::Target<decltype(Getter)>::Types());
    return row;
}

/// A method with the names and defaults of its arguments. What takes other arguments than those of a method can be a
/// function, with the object as its first parameter.
template <auto Pointer>
MethodRow MethodOf(std::string_view name, ArgumentRows arguments = {}) {
    using Target = detail::Target<decltype(Pointer)>;
    return {{.name = name,
             .arguments = detail::MakeArguments(arguments, Target::Types()),
             .result = detail::TypeOf<typename Target::Result>(),
             .call = detail::AccessorOf<Pointer>()}};
}

/// Calls with a number or with a text, whichever the key of an item is.
template <class Use>
decltype(auto) WithKey(const Variant& key, const Use& use) {
    const auto* name = std::get_if<std::string>(&key);
    return name != nullptr ? use(std::string_view{*name}) : use(FromVariant<std::int32_t>(key));
}

/// Items of a collection of named items.
template <class Collection>
auto ItemOfKey(Collection& collection, const Variant& key) {
    return WithKey(key, [&](const auto& index) { return collection.Items(index); });
}
template <class Collection>
MethodRow ItemsByKey() {
    return MethodOf<&ItemOfKey<Collection>>("Items", {{"Index", Kind::Key}});
}

/// A class of collections: what its Items gives are its items, and Items is its default member.
Class CollectionOf(Class description);

}  // namespace draftwick
