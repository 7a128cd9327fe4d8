#pragma once

#include <draftwick/base/internal/Names.h>
#include <draftwick/model/Object.h>

#include <array>
#include <functional>
#include <initializer_list>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <type_traits>
#include <typeinfo>
#include <vector>

/// The run-time descriptions of the classes: for each class one table of its members, built from pointers to its
/// accessors and to the fields that hold its values. A host that knows only names reaches everything with Get, Set
/// and Call.
namespace draftwick {

/// What a property or an argument holds.
enum class Kind { Boolean, Number, Real, Length, Text, Date, Object, Any };

/// What a property accepts, as far as a constant can say it.
struct Rule {
    Kind kind = Kind::Any;         ///< what it holds
    int bits = 32;                 ///< of the stored number: outside of it error 6
    bool limited = false;          ///< the bounds below hold: outside of them dwErrPropertyOutOfRange
    std::int32_t low = 0;          ///< the least value
    std::int32_t high = 0;         ///< the greatest value
    std::string_view rangeName{};  ///< the name that the range error gives
    Variant initial{};  ///< the default; a length in twips; nothing where it depends on the document
};

/// A property of a class.
struct ClassProperty {
    std::string_view name;                           ///< as in "MarginTop"
    Rule rule;                                       ///< what it accepts, and its default
    Variant (*get)(Object&) = nullptr;               ///< empty: write only
    void (*set)(Object&, const Variant&) = nullptr;  ///< empty: read only
    const std::type_info* type = nullptr;  ///< of the value in C++; of the object itself where it is one
};

/// One argument of a method.
struct Argument {
    std::string_view name;                 ///< as the method's documentation names it
    std::optional<Variant> initial{};      ///< empty: must be given
    const std::type_info* type = nullptr;  ///< as ClassProperty::type
};

/// A method of a class.
struct ClassMethod {
    std::string_view name;            ///< as in "AddSection"
    std::vector<Argument> arguments;  ///< in their order; those with a default come last
    Variant (*call)(Object&, std::span<const Variant>) = nullptr;  ///< takes a value for every argument
    const std::type_info* result = nullptr;  ///< as ClassProperty::type; of void where there is none
};

/// One class of the object model.
struct DRAFTWICK_API Class {
    std::string_view name;                  ///< as in "Section"
    std::string_view classId;               ///< of the class, in braces and upper case; never changes
    std::string_view interfaceId;           ///< of its interface, likewise
    std::vector<ClassProperty> properties;  ///< without Parent and Document, which all classes have
    std::vector<ClassMethod> methods;       ///< in no particular order

    /// nullptr when there is none. All classes have Parent and Document.
    const ClassProperty* FindProperty(std::string_view property) const;
    const ClassMethod* FindMethod(std::string_view method) const;
};

/// The value of a property. dwErrItemNotFound ("Section.MarginTop") when the class has no such property, error 5
/// when it cannot be read.
DRAFTWICK_API Variant Get(Object& object, std::string_view property);
/// Sets a property. As Get; error 13 when the value is of the wrong kind; and what the property itself refuses.
DRAFTWICK_API void Set(Object& object, std::string_view property, const Variant& value);
/// Calls a method. Arguments with a default can be left out at the end; error 5 for too few or too many.
/// dwErrItemNotFound ("Section.AddCell") when the class has no such method; error 13 as in Set; and what the method
/// itself refuses.
DRAFTWICK_API Variant Call(Object& object, std::string_view method, std::span<const Variant> arguments);
/// The same with the arguments in braces.
DRAFTWICK_API Variant Call(Object& object, std::string_view method,
                           std::initializer_list<Variant> arguments = {});

// What the class tables are written with.

/// The plain value of a variant as the type that an accessor takes. Error 13 when it is of another kind.
template <class Type>
Type FromVariant(const Variant& value);
/// @cond LIBRARY
template <>
DRAFTWICK_API bool FromVariant(const Variant& value);
template <>
DRAFTWICK_API std::int32_t FromVariant(const Variant& value);
template <>
DRAFTWICK_API double FromVariant(const Variant& value);
template <>
DRAFTWICK_API std::string_view FromVariant(const Variant& value);
/// @endcond

/// The value of an accessor as a variant: enumerations as their numbers, an empty pointer as nothing.
template <class Type>
Variant ToVariant(const Type& value) {
    if constexpr (std::is_same_v<Type,
                                 bool> || std::is_same_v<Type, double> || std::is_same_v<Type, Variant>) {
        return value;
    } else if constexpr (std::is_integral_v<Type> || std::is_enum_v<Type>) {
        return static_cast<std::int32_t>(value);
    } else if constexpr (std::is_convertible_v<Type, std::string_view>) {
        return std::string{value};
    } else {
        std::shared_ptr<Object> object = value;
        return object == nullptr ? Variant{} : Variant{std::move(object)};
    }
}

namespace detail {

template <class Type>
std::decay_t<Type> TakeArgument(const Variant& value) {
    using Plain = std::decay_t<Type>;
    if constexpr (std::is_enum_v<Plain>) {
        return static_cast<Plain>(FromVariant<std::int32_t>(value));
    } else if constexpr (std::is_same_v<Plain, Variant>) {
        return value;
    } else {
        return FromVariant<Plain>(value);
    }
}

template <class Result, class Callable>
Variant AsVariant(Callable&& callable) {
    if constexpr (std::is_void_v<Result>) {
        callable();
        return {};
    } else {
        return ToVariant<std::decay_t<Result>>(callable());
    }
}

/// The type of a value, or of the object that a pointer owns.
template <class Type>
constexpr const std::type_info* TypeOf() {
    if constexpr (requires { typename std::decay_t<Type>::element_type; }) {
        return &typeid(typename std::decay_t<Type>::element_type);
    } else {
        return &typeid(std::decay_t<Type>);
    }
}

/// Takes a pointer to a member function, or to a function whose first parameter is the object, apart.
template <class Pointer>
struct Callable;

template <class Owner, class Result, class... Arguments>
struct Callable<Result (Owner::*)(Arguments...)> {
    using Value = std::decay_t<Result>;
    static constexpr std::array<const std::type_info*, sizeof...(Arguments)> Types() {
        return {TypeOf<Arguments>()...};
    }
    template <auto Pointer, std::size_t... I>
    static Variant Call(Object& object, std::span<const Variant> values, std::index_sequence<I...>) {
        auto& self = static_cast<Owner&>(object);
        return AsVariant<Result>(
            [&]() -> Result { return (self.*Pointer)(TakeArgument<Arguments>(values[I])...); });
    }
    static constexpr auto Indices = std::index_sequence_for<Arguments...>{};
};
template <class Owner, class Result, class... Arguments>
struct Callable<Result (Owner::*)(Arguments...) const> : Callable<Result (Owner::*)(Arguments...)> {};
template <class Owner, class Result, class... Arguments>
struct Callable<Result (Owner::*)(Arguments...) noexcept> : Callable<Result (Owner::*)(Arguments...)> {};
template <class Owner, class Result, class... Arguments>
struct Callable<Result (Owner::*)(Arguments...) const noexcept> : Callable<Result (Owner::*)(Arguments...)> {
};

template <class Result, class... Arguments>
struct Callable<Result (*)(Arguments...)> {
    using Value = std::decay_t<Result>;
    static constexpr std::array<const std::type_info*, sizeof...(Arguments)> Types() {
        return {TypeOf<Arguments>()...};
    }
    template <auto Pointer, std::size_t... I>
    static Variant Call(Object&, std::span<const Variant> values, std::index_sequence<I...>) {
        return AsVariant<Result>([&]() -> Result { return Pointer(TakeArgument<Arguments>(values[I])...); });
    }
    static constexpr auto Indices = std::index_sequence_for<Arguments...>{};
};

template <auto Pointer>
Variant Invoke(Object& object, std::span<const Variant> values) {
    using Target = Callable<decltype(Pointer)>;
    return Target::template Call<Pointer>(object, values, Target::Indices);
}

template <auto Getter>
Variant Read(Object& object) {
    return Invoke<Getter>(object, {});
}

template <auto Setter>
void Write(Object& object, const Variant& value) {
    Invoke<Setter>(object, {&value, 1});
}

template <class Type>
Rule RuleOfValue() {
    if constexpr (std::is_same_v<Type, bool>)
        return {.kind = Kind::Boolean};
    else if constexpr (std::is_same_v<Type, double>)
        return {.kind = Kind::Real};
    else if constexpr (std::is_integral_v<Type> || std::is_enum_v<Type>)
        return {.kind = Kind::Number};
    else if constexpr (std::is_same_v<Type, Variant>)
        return {.kind = Kind::Any};
    else if constexpr (std::is_convertible_v<Type, std::string_view>)
        return {.kind = Kind::Text};
    else
        return {.kind = Kind::Object};
}

template <Name RangeName, auto First, auto Last>
Rule RuleOfField(const Choice<RangeName, First, Last>& field) {
    return {.kind = Kind::Number,
            .limited = true,
            .low = First,
            .high = Last,
            .rangeName = RangeName.View(),
            .initial = static_cast<std::int32_t>(static_cast<decltype(First)>(field))};
}
template <Name RangeName, std::uint8_t First, std::uint8_t Last>
Rule RuleOfField(const Byte<RangeName, First, Last>& field) {
    return {.kind = Kind::Number,
            .bits = 8,
            .limited = true,
            .low = First,
            .high = Last,
            .rangeName = RangeName.View(),
            .initial = static_cast<std::int32_t>(field)};
}
inline Rule RuleOfField(const Short& field) {
    return {.kind = Kind::Number, .bits = 16, .initial = static_cast<std::int32_t>(field)};
}
inline Rule RuleOfField(const Rounded& field) {
    return {.kind = Kind::Real, .bits = 16, .initial = static_cast<double>(field)};
}
inline Rule RuleOfField(const Length& field) {
    return {.kind = Kind::Length, .bits = 16, .initial = static_cast<double>(field.Twips())};
}
template <auto ToFile>
Rule RuleOfField(const Real<ToFile>& field) {
    return {.kind = Kind::Real, .initial = static_cast<double>(field)};
}
inline Rule RuleOfField(const FixedPoint& field) {
    return {.kind = Kind::Real, .initial = static_cast<double>(field)};
}
template <class Plain>
Rule RuleOfField(const Plain& field) {
    Rule rule = RuleOfValue<Plain>();
    rule.initial = ToVariant(field);
    return rule;
}

template <class Owner, class Value>
Rule RuleOfSetter(void (Owner::*)(Value)) {
    return RuleOfValue<std::decay_t<Value>>();
}

template <class Values, class Field>
Rule RuleOf(Field Values::*member) {
    static const Values initial{};
    return RuleOfField(initial.*member);
}

}  // namespace detail

/// A row of a class's table: a property with its getter, its setter (nullptr: read only) and the field that holds
/// its rule and default (nullptr: the property has a mind of its own).
template <auto Getter, auto Setter = nullptr, auto Field = nullptr>
ClassProperty PropertyOf(std::string_view name) {
    ClassProperty property{.name = name, .rule = {}, .get = detail::Read<Getter>, .set = nullptr};
    if constexpr (!std::is_null_pointer_v<decltype(Field)>) {
        property.rule = detail::RuleOf(Field);
    } else {
        property.rule = detail::RuleOfValue<typename detail::Callable<decltype(Getter)>::Value>();
    }
    if constexpr (!std::is_null_pointer_v<decltype(Setter)>) property.set = detail::Write<Setter>;
    property.type = detail::TypeOf<typename detail::Callable<decltype(Getter)>::Value>();
    return property;
}

/// A row of a class's table: a property that can be set but not read.
template <auto Setter>
ClassProperty WriteOnlyPropertyOf(std::string_view name) {
    return {.name = name,
            .rule = detail::RuleOfSetter(Setter),
            .get = nullptr,
            .set = detail::Write<Setter>,
            .type = detail::Callable<decltype(Setter)>::Types().front()};
}

/// A row of a class's table: a method with the names and defaults of its arguments.
template <auto Pointer>
ClassMethod MethodOf(std::string_view name, std::vector<Argument> arguments = {}) {
    using Target = detail::Callable<decltype(Pointer)>;
    static constexpr auto Types = Target::Types();
    for (std::size_t i = 0; i < Types.size(); ++i) arguments.at(i).type = Types[i];
    return {name, std::move(arguments), detail::Invoke<Pointer>, detail::TypeOf<typename Target::Value>()};
}

}  // namespace draftwick
