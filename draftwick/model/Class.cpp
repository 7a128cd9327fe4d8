#include <draftwick/model/internal/Advice.h>
#include <draftwick/model/internal/ClassTable.h>

#include <algorithm>

namespace draftwick {

namespace detail {

constexpr std::array<Type, ValuesOf<Kind>::All.size()> PlainTypes = [] {
    std::array<Type, ValuesOf<Kind>::All.size()> types{};
    for (std::size_t i = 0; i < types.size(); ++i) {
        types[i] = {.name = ValuesOf<Kind>::All[i].name, .kind = static_cast<Kind>(i)};
    }
    return types;
}();

std::vector<Argument> MakeArguments(ArgumentRows rows, std::span<const Type* const> types) {
    std::vector<Argument> arguments;
    for (const ArgumentRow& row : rows) {
        const Type* type = row.kind ? TypeOf(*row.kind) : types[arguments.size()];
        arguments.push_back({row.name, type, row.initial});
    }
    return arguments;
}

}  // namespace detail

PropertyRow PropertyRow::As(Kind kind) const {
    PropertyRow row = *this;
    row.type = detail::TypeOf(kind);
    return row;
}

PropertyRow PropertyRow::OrNothing() const {
    PropertyRow row = *this;
    row.optional = true;
    return row;
}

PropertyRow PropertyRow::DefaultDepends() const {
    PropertyRow row = *this;
    row.rule.initial = {};
    return row;
}

MethodRow MethodRow::OrNothing() const {
    MethodRow row = *this;
    row.optional = true;
    return row;
}

Class CollectionOf(Class description) {
    description.defaultMember = "Items";
    description.items = description.FindMethod(description.defaultMember)->result;
    return description;
}

namespace {

template <class Rows>
auto* FindRow(const Rows& rows, std::string_view name) {
    const auto found =
        std::find_if(rows.begin(), rows.end(), [&](const auto& row) { return row.name == name; });
    return found == rows.end() ? nullptr : &*found;
}

[[noreturn]] void RaiseNoMember(const Object& object, std::string_view member) {
    const std::string name = std::string{object.Description().name} + "." + std::string{member};
    RaiseError(dwErrItemNotFound, {name}, name + ": the class has no such member");
}

/// Whatever is refused says by which member.
template <class Action>
Variant Advising(const Object& object, std::string_view member, const Action& action) {
    try {
        return action();
    } catch (Error& error) {
        NameMember(error, object, member);
        throw;
    }
}

[[noreturn]] void RaiseWrongKind(std::string_view wanted) {
    RaiseRuntimeError(dwRunTypeMismatch, std::string{wanted} + " is wanted");
}

const ClassProperty& PropertyNamed(const Object& object, std::string_view name) {
    const ClassProperty* found = object.Description().FindProperty(name);
    if (found == nullptr) RaiseNoMember(object, name);
    return *found;
}

/// The arguments with the defaults of those that are left out.
std::vector<Variant> Complete(std::span<const Argument> arguments, std::span<const Variant> given) {
    if (given.size() > arguments.size()) RaiseRuntimeError(dwRunInvalidCall, "too many arguments");
    std::vector<Variant> all{given.begin(), given.end()};
    for (const Argument& argument : arguments.subspan(given.size())) {
        if (!argument.initial) {
            RaiseRuntimeError(dwRunInvalidCall, "the argument " + std::string{argument.name} + " is missing");
        }
        all.push_back(*argument.initial);
    }
    return all;
}

Variant Invoke(Accessor access, Object& object, std::span<const Argument> arguments,
               std::span<const Variant> given) {
    if (given.size() == arguments.size()) return access(object, given);
    return access(object, Complete(arguments, given));
}

/// Hosts also know a property with arguments as two methods, AdjustValues(1) and SetAdjustValues(1, 10).
Variant CallProperty(Object& object, std::string_view method, std::span<const Variant> arguments) {
    const Class& description = object.Description();
    const ClassProperty* read = description.FindProperty(method);
    if (read != nullptr && !read->arguments.empty()) return Get(object, method, arguments);
    constexpr std::string_view Prefix = "Set";
    const ClassProperty* set =
        method.starts_with(Prefix) ? description.FindProperty(method.substr(Prefix.size())) : nullptr;
    if (set == nullptr || set->arguments.empty() || set->set == nullptr) RaiseNoMember(object, method);
    std::vector<Argument> all = set->arguments;
    all.push_back({.name = "Value", .type = set->type});
    return Invoke(set->set, object, all, arguments);
}

}  // namespace

const ClassProperty* Class::FindProperty(std::string_view property) const {
    const ClassProperty* own = FindRow(properties, property);
    return own != nullptr ? own : FindRow(CommonProperties(), property);
}

const ClassMethod* Class::FindMethod(std::string_view method) const { return FindRow(methods, method); }

void NameMember(Error& error, const Object& object, std::string_view member) {
    error.SetAdvice(WithMember(object, member, error.Advice()));
}

Variant Get(Object& object, std::string_view property, std::span<const Variant> arguments) {
    const ClassProperty& found = PropertyNamed(object, property);
    return Advising(object, property, [&] {
        if (found.get == nullptr) RaiseRuntimeError(dwRunInvalidCall, "the property can only be written");
        return Invoke(found.get, object, found.arguments, arguments);
    });
}

void Set(Object& object, std::string_view property, const Variant& value,
         std::span<const Variant> arguments) {
    const ClassProperty& found = PropertyNamed(object, property);
    Advising(object, property, [&] {
        if (found.set == nullptr) RaiseRuntimeError(dwRunInvalidCall, "the property can only be read");
        if (found.arguments.empty() && arguments.empty()) return found.set(object, {&value, 1});
        std::vector<Variant> values = Complete(found.arguments, arguments);
        values.push_back(value);
        return found.set(object, values);
    });
}

Variant Call(Object& object, std::string_view method, std::span<const Variant> arguments) {
    const ClassMethod* found = object.Description().FindMethod(method);
    if (found == nullptr) return CallProperty(object, method, arguments);
    return Advising(object, method, [&] { return Invoke(found->call, object, found->arguments, arguments); });
}

// The same with the arguments in braces.

Variant Get(Object& object, std::string_view property, std::initializer_list<Variant> arguments) {
    return Get(object, property, std::span{arguments.begin(), arguments.size()});
}

void Set(Object& object, std::string_view property, const Variant& value,
         std::initializer_list<Variant> arguments) {
    Set(object, property, value, std::span{arguments.begin(), arguments.size()});
}

Variant Call(Object& object, std::string_view method, std::initializer_list<Variant> arguments) {
    return Call(object, method, std::span{arguments.begin(), arguments.size()});
}

template <>
bool FromVariant(const Variant& value) {
    if (const auto* flag = std::get_if<bool>(&value)) return *flag;
    RaiseWrongKind("a Boolean");
}

template <>
std::int32_t FromVariant(const Variant& value) {
    if (const auto* whole = std::get_if<std::int32_t>(&value)) return *whole;
    if (const auto* real = std::get_if<double>(&value)) return RoundHalfEven(*real);
    RaiseWrongKind("a number");
}

template <>
double FromVariant(const Variant& value) {
    if (const auto* real = std::get_if<double>(&value)) return *real;
    if (const auto* whole = std::get_if<std::int32_t>(&value)) return *whole;
    RaiseWrongKind("a number");
}

template <>
std::string_view FromVariant(const Variant& value) {
    if (const auto* text = std::get_if<std::string>(&value)) return *text;
    RaiseWrongKind("a text");
}

std::shared_ptr<Object> detail::ObjectFromVariant(const Variant& value, const Class& wanted) {
    if (std::holds_alternative<std::monostate>(value)) return nullptr;
    const auto* object = std::get_if<std::shared_ptr<Object>>(&value);
    if (object == nullptr || *object == nullptr || &(*object)->Description() != &wanted) {
        RaiseWrongKind("an object of the class " + std::string{wanted.name});
    }
    return *object;
}

}  // namespace draftwick
