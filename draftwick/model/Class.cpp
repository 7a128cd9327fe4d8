#include <draftwick/model/Class.h>

#include <algorithm>
#include <array>

namespace draftwick {

namespace {

/// What all classes have; a document is its own.
const std::array<ClassProperty, 2> Common{{
    {.name = "Parent",
     .rule = {.kind = Kind::Object},
     .get = [](Object& object) { return ToVariant(object.Parent()); }},
    {.name = "Document",
     .rule = {.kind = Kind::Object},
     .get = [](Object& object) { return ToVariant(object.DocumentObject()); }},
}};

template <class Rows>
auto* FindRow(const Rows& rows, std::string_view name) {
    const auto found =
        std::find_if(rows.begin(), rows.end(), [&](const auto& row) { return row.name == name; });
    return found == rows.end() ? nullptr : &*found;
}

[[noreturn]] void RaiseNoMember(const Object& object, std::string_view member) {
    RaiseError(dwErrItemNotFound, {std::string{object.Description().name} + "." + std::string{member}});
}

[[noreturn]] void RaiseWrongKind(std::string_view wanted) {
    RaiseRuntimeError(dwRunTypeMismatch, std::string{wanted} + " is wanted");
}

}  // namespace

const ClassProperty* Class::FindProperty(std::string_view property) const {
    const ClassProperty* own = FindRow(properties, property);
    return own != nullptr ? own : FindRow(Common, property);
}

const ClassMethod* Class::FindMethod(std::string_view method) const { return FindRow(methods, method); }

Variant Get(Object& object, std::string_view property) {
    const ClassProperty* found = object.Description().FindProperty(property);
    if (found == nullptr) RaiseNoMember(object, property);
    if (found->get == nullptr) RaiseRuntimeError(dwRunInvalidCall, "the property can only be written");
    return found->get(object);
}

void Set(Object& object, std::string_view property, const Variant& value) {
    const ClassProperty* found = object.Description().FindProperty(property);
    if (found == nullptr) RaiseNoMember(object, property);
    if (found->set == nullptr) RaiseRuntimeError(dwRunInvalidCall, "the property can only be read");
    found->set(object, value);
}

Variant Call(Object& object, std::string_view method, std::span<const Variant> arguments) {
    const ClassMethod* found = object.Description().FindMethod(method);
    if (found == nullptr) RaiseNoMember(object, method);
    std::vector<Variant> all{arguments.begin(), arguments.end()};
    if (all.size() > found->arguments.size()) RaiseRuntimeError(dwRunInvalidCall, "too many arguments");
    for (std::size_t i = all.size(); i < found->arguments.size(); ++i) {
        const Argument& argument = found->arguments[i];
        if (!argument.initial) {
            RaiseRuntimeError(dwRunInvalidCall, "the argument " + std::string{argument.name} + " is missing");
        }
        all.push_back(*argument.initial);
    }
    return found->call(object, all);
}

Variant Call(Object& object, std::string_view method, std::initializer_list<Variant> arguments) {
    return Call(object, method, std::span<const Variant>{arguments.begin(), arguments.size()});
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

}  // namespace draftwick
