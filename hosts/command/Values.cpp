#include "hosts/command/Values.h"

#include "hosts/command/Message.h"

#include <charconv>
#include <cmath>
#include <stdexcept>
#include <vector>

namespace draftwick::command {

namespace {

using ObjectPointer = std::shared_ptr<Object>;

[[noreturn]] void Refuse(const std::string& what) { throw std::invalid_argument(what); }

std::string Quoted(const Scalar& value) {
    switch (value.kind) {
    case Scalar::Kind::Nothing: return "null";
    case Scalar::Kind::Boolean: return value.truth ? "true" : "false";
    case Scalar::Kind::Number: return std::string{value.text};
    case Scalar::Kind::Text: return '"' + std::string{value.text} + '"';
    }
    return {};
}

[[noreturn]] void Expect(const Scalar& value, const std::string& expected) {
    Refuse(Quoted(value) + " is not " + expected);
}

template <class Number>
bool ReadNumber(std::string_view digits, Number& number) {
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), number);
    return error == std::errc{} && end == digits.data() + digits.size();
}

std::int32_t Whole(const Scalar& value, const char* expected) {
    std::int32_t number = 0;
    if (value.kind != Scalar::Kind::Number || !ReadNumber(value.text, number)) Expect(value, expected);
    return number;
}

double Real(const Scalar& value, const char* expected) {
    double number = 0;
    if (value.kind != Scalar::Kind::Number || !ReadNumber(value.text, number)) Expect(value, expected);
    return number;
}

std::int32_t Constant(const Scalar& value, const Type& type) {
    if (value.kind == Scalar::Kind::Number) return Whole(value, "a whole number of 32 bits");
    std::vector<std::string_view> names;
    for (const EnumerationValue& one : type.values) {
        if (value.kind == Scalar::Kind::Text && one.name == value.text) return one.value;
        names.push_back(one.name);
    }
    Refuse(Quoted(value) + " is no " + std::string{type.name} + "; " + Alternatives(value.text, names));
}

double Length(const Scalar& value, const Document& document) {
    if (value.kind != Scalar::Kind::Text) return Real(value, "a length: a number, or a text like \"2.5 cm\"");
    const double inches = Inches(value.text);
    switch (document.ScaleMode()) {
    case dwTwips: return inches * 1440;
    case dwPoints: return inches * 72;
    default: return inches;
    }
}

std::int32_t Colour(const Scalar& value) {
    constexpr const char* expected = "a colour: \"#rrggbb\", or a number";
    if (value.kind == Scalar::Kind::Number) return Whole(value, expected);
    std::uint32_t number = 0;
    const char* const digits = value.text.data() + 1;
    if (value.kind != Scalar::Kind::Text || value.text.size() != 7 || value.text[0] != '#'
        || std::from_chars(digits, digits + 6, number, 16).ptr != digits + 6) {
        Expect(value, expected);
    }
    return static_cast<std::int32_t>((number & 0xFF) << 16 | (number & 0xFF00) | number >> 16);
}

Variant Any(const Scalar& value) {
    std::int32_t whole = 0;
    switch (value.kind) {
    case Scalar::Kind::Boolean: return value.truth;
    case Scalar::Kind::Text: return std::string{value.text};
    case Scalar::Kind::Number:
        if (ReadNumber(value.text, whole)) return whole;
        return Real(value, "a number");
    case Scalar::Kind::Nothing: break;
    }
    return {};
}

}  // namespace

double Inches(std::string_view text) {
    struct Unit {
        std::string_view name;
        double inches;
    };
    static constexpr Unit units[] = {{"cm", 1 / 2.54}, {"mm", 1 / 25.4},      {"in", 1},
                                     {"pt", 1 / 72.0}, {"twips", 1 / 1440.0}, {"pc", 1 / 6.0}};
    double number = 0;
    const char* const end = text.data() + text.size();
    const auto [rest, error] = std::from_chars(text.data(), end, number);
    std::string_view unit{rest, static_cast<std::size_t>(end - rest)};
    while (!unit.empty() && unit.front() == ' ') unit.remove_prefix(1);
    for (const Unit& one : units) {
        if (error == std::errc{} && one.name == unit) return number * one.inches;
    }
    Refuse('"' + std::string{text} + "\" is not a length: a number with cm, mm, in, pt, pc or twips");
}

bool ReadDate(std::string_view text, Date& date) {
    const auto part = [&](std::size_t at, std::size_t length, char before, std::int32_t& number) {
        return text.size() >= at + length && (at == 0 || text[at - 1] == before)
               && ReadNumber(text.substr(at, length), number);
    };
    if (!part(0, 4, ' ', date.year) || !part(5, 2, '-', date.month) || !part(8, 2, '-', date.day))
        return false;
    if (text.size() == 10) return true;
    if (!part(11, 2, text[10] == ' ' ? ' ' : 'T', date.hour) || !part(14, 2, ':', date.minute)) return false;
    return text.size() == 16 || (part(17, 2, ':', date.second) && text.size() == 19);
}

Variant ToVariant(const Scalar& value, const Type& type, const Document& document) {
    switch (type.kind) {
    case Kind::Boolean:
        if (value.kind != Scalar::Kind::Boolean) Expect(value, "true or false");
        return value.truth;
    case Kind::Number:
        return type.values.empty() ? Whole(value, "a whole number of 32 bits") : Constant(value, type);
    case Kind::Real: return Real(value, "a number");
    case Kind::Length: return Length(value, document);
    case Kind::Color: return Colour(value);
    case Kind::Text:
    case Kind::Path:
        if (value.kind != Scalar::Kind::Text) Expect(value, "a text");
        return std::string{value.text};
    case Kind::Key:
        if (value.kind == Scalar::Kind::Text) return std::string{value.text};
        return Whole(value, "a name or a position");
    case Kind::Object:
        Expect(value, "an object: " + std::string{type.name} + " has members of its own, in braces");
    default: return Any(value);
    }
}

std::string MembersOf(const Class& description, std::string_view asked) {
    std::vector<std::string_view> names;
    for (const ClassProperty& property : description.properties) {
        if (property.set != nullptr || (property.type->kind == Kind::Object && !property.optional))
            names.push_back(property.name);
    }
    return std::string{description.name} + " has no \"" + std::string{asked} + "\"; "
           + Alternatives(asked, names);
}

const ClassProperty& Target::Property(std::string_view name) const {
    const ClassProperty* property = object_->Description().FindProperty(name);
    if (property == nullptr) Refuse(MembersOf(object_->Description(), name));
    return *property;
}

Variant Target::Key(std::string_view name, const Type& type) const {
    std::int32_t number = 0;
    const bool isNumber = type.values.empty() && ReadNumber(name, number);
    return ToVariant({isNumber ? Scalar::Kind::Number : Scalar::Kind::Text, name}, type,
                     *object_->Document());
}

Target Target::Part(std::string_view path) const {
    const std::size_t dot = path.find('.');
    if (dot != path.npos) return Part(path.substr(0, dot)).Part(path.substr(dot + 1));
    Variant value;
    if (keyed_ != nullptr) {
        value = Get(*object_, keyed_->name, {Key(path, *keyed_->arguments[0].type)});
    } else if (object_->Description().items != nullptr
               && object_->Description().FindProperty(path) == nullptr) {
        const ClassMethod& items = *object_->Description().FindMethod("Items");
        value = Call(*object_, items.name, {Key(path, *items.arguments[0].type)});
    } else {
        const ClassProperty& property = Property(path);
        if (!property.arguments.empty()) return Target(object_, &property);
        if (property.type->kind == Kind::Object) value = Get(*object_, path);
    }
    if (const auto* part = std::get_if<ObjectPointer>(&value); part != nullptr && *part != nullptr)
        return Target(*part);
    Refuse('"' + std::string{path} + "\" of " + std::string{object_->Description().name}
           + " has no members of its own");
}

void Target::Set(std::string_view path, const Scalar& value) const {
    const std::size_t dot = path.find('.');
    if (dot != path.npos) return Part(path.substr(0, dot)).Set(path.substr(dot + 1), value);
    const ClassProperty& property = keyed_ != nullptr ? *keyed_ : Property(path);
    if (property.set == nullptr && property.type->kind != Kind::Object)
        Refuse('"' + std::string{path} + "\" of " + std::string{object_->Description().name}
               + " is read only");
    const Variant converted = ToVariant(value, *property.type, *object_->Document());
    if (keyed_ != nullptr) {
        draftwick::Set(*object_, keyed_->name, converted, {Key(path, *keyed_->arguments[0].type)});
        return;
    }
    try {
        draftwick::Set(*object_, path, converted);
    } catch (const Error& error) {
        // Among the values of any kind, dates are texts in JSON.
        Date date;
        if (error.Number() != dwRunTypeMismatch || property.type->kind != Kind::Value
            || value.kind != Scalar::Kind::Text || !ReadDate(value.text, date)) {
            throw;
        }
        draftwick::Set(*object_, path, date);
    }
}

}  // namespace draftwick::command
