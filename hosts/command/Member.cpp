#include "hosts/command/Member.h"

#include "hosts/command/Message.h"
#include "hosts/model/Lengths.h"

#include <algorithm>
#include <charconv>
#include <ctime>
#include <iomanip>
#include <sstream>

namespace draftwick::command {

namespace {

/// A key is an enumeration's value by its name, a position, or a name.
Variant Key(std::string_view name, const Argument& argument, const Object& object) {
    std::int32_t number = 0;
    const char* const end = name.data() + name.size();
    const bool isNumber = std::from_chars(name.data(), end, number).ptr == end && !name.empty();
    return Fit(isNumber ? Variant{number} : Variant{std::string{name}}, *argument.type, object);
}

std::string_view TakeName(std::string_view& path) {
    const std::string_view name = path.substr(0, path.find('.'));
    path.remove_prefix(std::min(name.size() + 1, path.size()));
    return name;
}

[[noreturn]] void RefuseName(const Class& description, std::string_view name,
                             std::vector<std::string_view> names) {
    for (const ClassProperty& property : description.properties) {
        if (property.set != nullptr || (property.type->kind == Kind::Object && !property.optional))
            names.push_back(property.name);
    }
    Refuse(std::string{description.name} + " has no " + Quoted(name) + "; " + Alternatives(name, names));
}

}  // namespace

Variant Fit(const Variant& value, const Type& type, const Object& object) {
    const auto* text = std::get_if<std::string>(&value);
    if (text == nullptr || type.kind == Kind::Text) return value;
    if (type.kind == Kind::Length) return hosts::LengthFrom(*text, object);
    if (type.kind == Kind::Color) return hosts::ColorFrom(*text);
    if (type.values.empty()) return value;
    for (const EnumerationValue& one : type.values) {
        if (one.name == *text) return one.value;
    }
    Refuse(Quoted(*text) + " is no " + std::string{type.name} + "; "
           + Alternatives(*text, type.values, &EnumerationValue::name));
}

bool ReadDate(std::string text, Date& date) {
    constexpr std::size_t Shortest = 10;
    std::replace(text.begin(), text.end(), ' ', 'T');
    for (const char* format : {"%Y-%m-%d", "%Y-%m-%dT%H:%M", "%Y-%m-%dT%H:%M:%S"}) {
        std::tm time{};
        std::istringstream input(text);
        input >> std::get_time(&time, format);
        if (text.size() < Shortest || !input || input.peek() != std::char_traits<char>::eof()) continue;
        date = {time.tm_year + 1900, time.tm_mon + 1, time.tm_mday, time.tm_hour, time.tm_min, time.tm_sec};
        return true;
    }
    return false;
}

bool IsSettable(const Class& description, const ClassProperty& property) {
    return &description != &Document::Describe() || property.type->kind != Kind::Path;
}

Member::Member(ObjectPointer object, std::string_view path, Names others) : object_(std::move(object)) {
    for (;;) {
        const Class& description = object_->Description();
        name_ = TakeName(path);
        property_ = description.FindProperty(name_);
        if (property_ == nullptr) {
            if (description.items == nullptr)
                RefuseName(description, name_,
                           others != nullptr ? others(description) : std::vector<std::string_view>{});
            const Argument& key = description.FindMethod("Items")->arguments[0];
            keys_.push_back(Key(name_, key, *object_));
        } else if (!property_->arguments.empty() && !path.empty()) {
            keys_.push_back(Key(TakeName(path), property_->arguments[0], *object_));
        } else if (!IsSettable(description, *property_)) {
            Refuse(Quoted(name_) + " is for the command line to say");
        }
        if (path.empty()) return;
        object_ = Part();
        keys_.clear();
    }
}

ObjectPointer Member::Part() const {
    Variant value;
    if (property_ == nullptr)
        value = Call(*object_, "Items", keys_);
    else if (property_->type->kind == Kind::Object && !WantsKey())
        value = property_->get(*object_, keys_);
    if (auto* part = std::get_if<ObjectPointer>(&value); part != nullptr && *part != nullptr) return *part;
    Refuse(Name() + " has no members of its own");
}

std::string Member::Name() const { return Quoted(name_) + " of " + std::string{object_->Description().name}; }

void Member::Set(const Variant& value) const {
    if (property_ == nullptr || property_->type->kind == Kind::Object)
        Refuse(Name() + " has members of its own, in braces");
    if (property_->set == nullptr) Refuse(Name() + " is read only");
    const Variant fitting = Fit(value, *property_->type, *object_);
    try {
        draftwick::Set(*object_, name_, fitting, keys_);
    } catch (const Error& error) {
        // Among the values of any kind, dates are texts in JSON.
        const auto* text = std::get_if<std::string>(&value);
        Date date;
        if (error.Number() != dwRunTypeMismatch || property_->type->kind != Kind::Value || text == nullptr
            || !ReadDate(*text, date)) {
            throw;
        }
        draftwick::Set(*object_, name_, date, keys_);
    }
}

}  // namespace draftwick::command
