#include "hosts/command/JsonDocument.h"
#include "hosts/command/Member.h"
#include "hosts/command/Message.h"

#include <algorithm>

namespace draftwick::command {

namespace {

/// Members of an object, or items of an array, with commas between them.
class Items {
public:
    explicit Items(std::string_view separator = ", ") : separator_(separator) {}

    void Add(std::string_view item) {
        if (!text_.empty()) text_ += separator_;
        text_ += item;
    }
    void Add(std::string_view name, std::string_view value) { Add(Quoted(name) + ": " + std::string{value}); }
    std::string Object() const { return '{' + text_ + '}'; }
    std::string Array() const { return '[' + text_ + ']'; }

private:
    std::string_view separator_;
    std::string text_;
};

std::string Reference(std::string_view name) { return "{\"$ref\": \"#/$defs/" + std::string{name} + "\"}"; }

std::string AnyOf(const std::string& one, const std::string& other) {
    return "{\"anyOf\": [" + one + ", " + other + "]}";
}

std::string Names(const Type& enumeration) {
    Items names;
    for (const EnumerationValue& value : enumeration.values) names.Add(Quoted(value.name));
    return "{\"enum\": " + names.Array() + '}';
}

/// Of what a method adds: its arguments are members like those of what it adds.
std::string AdditionName(const Class& description, const ClassMethod& method) {
    return std::string{description.name} + '.' + std::string{method.name};
}

std::string Part(const Class& part);

std::string ValueOf(const Type& type) {
    if (!type.values.empty()) return Reference(type.name);
    switch (type.kind) {
    case Kind::Boolean: return R"({"type": "boolean"})";
    case Kind::Number: return R"({"type": "integer"})";
    case Kind::Real: return R"({"type": "number"})";
    case Kind::Length: return Reference("Length");
    case Kind::Color: return Reference("Color");
    case Kind::Text:
    case Kind::Path: return R"({"type": "string"})";
    case Kind::Key: return R"({"type": ["integer", "string"]})";
    case Kind::Object: return Part(type.description());
    default: return R"({"type": ["string", "number", "boolean", "null"]})";
    }
}

/// What adds something: an object, or its first argument alone.
std::string Added(const Class& description, const ClassMethod& method) {
    const std::string object = Reference(AdditionName(description, method));
    if (method.arguments.empty() || method.arguments[0].type->kind == Kind::Object) return object;
    return AnyOf(object, ValueOf(*method.arguments[0].type));
}

/// Of a collection: an object whose members are keys, and an array where items can be added.
std::string Part(const Class& part) {
    const ClassMethod* add = part.FindMethod(AddPrefix);
    if (add == nullptr) return Reference(part.name);
    return AnyOf(Reference(part.name), R"({"type": "array", "items": )" + Added(part, *add) + '}');
}

std::string Property(const ClassProperty& property) {
    const std::string value = ValueOf(*property.type);
    if (!property.arguments.empty()) return R"({"type": "object", "additionalProperties": )" + value + '}';
    const Rule& rule = property.rule;
    if (!rule.limited || property.type->kind != Kind::Number || !property.type->values.empty()) return value;
    return R"({"type": "integer", "minimum": )" + std::to_string(rule.low) + R"(, "maximum": )"
           + std::to_string(rule.high) + '}';
}

/// Of the list of what an object holds; empty when it holds nothing.
std::string Content(const Class& description) {
    Items contents(",\n   ");
    bool empty = true;
    for (const ClassMethod& method : description.methods) {
        if (ContentName(method).empty()) continue;
        const bool alone = std::all_of(method.arguments.begin(), method.arguments.end(),
                                       [](const Argument& argument) { return argument.initial.has_value(); });
        const std::string added = Added(description, method);
        contents.Add(ContentName(method), alone ? AnyOf(added, R"({"type": "null"})") : added);
        empty = false;
    }
    if (empty) return {};
    const std::string object = R"({"type": "object", "minProperties": 1, "maxProperties": 1, )"
                               R"("additionalProperties": false, "properties": )"
                               + contents.Object() + '}';
    const bool text = description.FindMethod("AddText") != nullptr
                      || description.FindMethod("AddTextItem") != nullptr
                      || description.FindMethod("AddParagraph") != nullptr;
    return R"({"type": "array", "items": )" + (text ? AnyOf(R"({"type": "string"})", object) : object) + '}';
}

/// The members of a class, and before them the arguments of the method that adds it.
std::string Members(const Class& description, const ClassMethod* addition = nullptr) {
    Items properties(",\n  "), required;
    std::vector<std::string_view> arguments;
    if (addition != nullptr) {
        for (const Argument& argument : addition->arguments) {
            arguments.push_back(argument.name);
            if (argument.type->kind == Kind::Object) continue;
            properties.Add(argument.name, ValueOf(*argument.type));
            if (!argument.initial) required.Add(Quoted(argument.name));
        }
    }
    for (const ClassProperty& property : description.properties) {
        const bool part = property.type->kind == Kind::Object && !property.optional;
        const bool isArgument =
            std::find(arguments.begin(), arguments.end(), property.name) != arguments.end();
        if ((property.set != nullptr || part) && !isArgument && IsSettable(description, property))
            properties.Add(property.name, Property(property));
    }
    for (const ClassMethod& method : description.methods) {
        if (IsCallable(description, method)) properties.Add(method.name, Added(description, method));
    }
    if (const std::string content = Content(description); !content.empty())
        properties.Add(ContentMember, content);
    Items members(",\n ");
    members.Add("type", "\"object\"");
    members.Add("properties", properties.Object());
    // The items of a collection, by their names or positions.
    const bool keys = description.items != nullptr;
    members.Add("additionalProperties", keys ? ValueOf(*description.items) : "false");
    // Names divided by points lead to members of members.
    if (!keys) members.Add("patternProperties", R"({"\\.": {}})");
    members.Add("required", required.Array());
    return members.Object();
}

}  // namespace

std::string JsonSchema() {
    static const Class nothing;
    Items definitions(",\n");
    definitions.Add(
        "Length",
        R"({"type": ["number", "string"], "pattern": "^-?[0-9.]+ ?(cm|mm|in|\"|pt|pc|tw|twips)$"})");
    definitions.Add("Color", R"({"type": ["integer", "string"], "pattern": "^#([0-9A-Fa-f]{3}){1,2}$"})");
    for (const Type* type : Enumerations()) definitions.Add(type->name, Names(*type));
    for (const Class* one : Classes()) {
        definitions.Add(one->name, Members(*one));
        for (const ClassMethod& method : one->methods) {
            if (!method.name.starts_with(AddPrefix) && !IsCallable(*one, method)) continue;
            const bool isClass = method.result != nullptr && method.result->description != nullptr;
            definitions.Add(AdditionName(*one, method),
                            Members(isClass ? method.result->description() : nothing, &method));
        }
    }
    Items schema(",\n");
    schema.Add("$schema", "\"https://json-schema.org/draft/2020-12/schema\"");
    schema.Add("title", "\"A document for draftwick\"");
    schema.Add("$ref", "\"#/$defs/Document\"");
    schema.Add("$defs", definitions.Object());
    return schema.Object() + '\n';
}

}  // namespace draftwick::command
