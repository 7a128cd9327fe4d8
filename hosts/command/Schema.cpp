#include "hosts/command/JsonDocument.h"

#include <algorithm>
#include <charconv>
#include <string_view>

namespace draftwick::command {

namespace {

/// Writes JSON, a member on a line.
class Json {
public:
    Json& Open(std::string_view name, char bracket) {
        Begin(name);
        text_ += bracket;
        depth_ += 1;
        first_ = true;
        return *this;
    }
    Json& Close(char bracket) {
        depth_ -= 1;
        if (!first_) NewLine();
        text_ += bracket;
        first_ = false;
        return *this;
    }
    Json& Member(std::string_view name, std::string_view value) {
        Begin(name);
        text_ += value;
        return *this;
    }
    std::string Take() { return std::move(text_) + '\n'; }

    static std::string Quoted(std::string_view text) { return '"' + std::string{text} + '"'; }

private:
    void Begin(std::string_view name) {
        if (!first_) text_ += ',';
        if (depth_ > 0) NewLine();
        first_ = false;
        if (!name.empty()) text_ += Quoted(name) + ": ";
    }
    void NewLine() { text_.append("\n").append(static_cast<std::size_t>(depth_), ' '); }

    std::string text_;
    int depth_ = 0;
    bool first_ = true;
};

std::string Reference(std::string_view name) { return "{\"$ref\": \"#/$defs/" + std::string{name} + "\"}"; }

/// Of an addition: its arguments are members like those of what it adds.
std::string AdditionName(const Class& description, const ClassMethod& method) {
    return std::string{description.name} + '.' + std::string{method.name};
}

class Schema {
public:
    std::string Write() {
        json_.Open({}, '{');
        json_.Member("$schema", "\"https://json-schema.org/draft/2020-12/schema\"");
        json_.Member("title", "\"A document for draftwick\"");
        json_.Member("$ref", "\"#/$defs/Document\"");
        json_.Open("$defs", '{');
        json_.Member("Length",
                     R"({"type": ["number", "string"], "pattern": "^-?[0-9.]+ ?(cm|mm|in|pt|pc|twips)$"})");
        json_.Member("Color", R"({"type": ["integer", "string"], "pattern": "^#[0-9A-Fa-f]{6}$"})");
        for (const Type* type : Enumerations()) Enumeration(*type);
        for (const Class* one : Classes()) {
            Members(one->name, *one, nullptr);
            for (const ClassMethod& method : one->methods) {
                if (method.name.starts_with(AddPrefix) || IsCallable(*one, method))
                    Members(AdditionName(*one, method), Result(method), &method);
            }
        }
        return json_.Close('}').Close('}').Take();
    }

private:
    static const Class& Result(const ClassMethod& method) {
        static const Class nothing;
        return method.result == nullptr || method.result->description == nullptr
                   ? nothing
                   : method.result->description();
    }

    void Enumeration(const Type& type) {
        std::string names;
        for (const EnumerationValue& value : type.values) {
            if (!names.empty()) names += ", ";
            names += Json::Quoted(value.name);
        }
        json_.Member(type.name, "{\"enum\": [" + names + "]}");
    }

    static std::string ValueOf(const Type& type) {
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

    /// Of a collection: an object whose members are keys, and an array where items can be added.
    static std::string Part(const Class& part) {
        const ClassMethod* add = part.FindMethod(AddPrefix);
        if (add == nullptr) return Reference(part.name);
        return "{\"anyOf\": [" + Reference(part.name) + R"(, {"type": "array", "items": )" + Added(part, *add)
               + "}]}";
    }

    /// What adds something: an object, or its first argument alone.
    static std::string Added(const Class& description, const ClassMethod& method) {
        const std::string object = Reference(AdditionName(description, method));
        if (method.arguments.empty() || method.arguments[0].type->kind == Kind::Object) return object;
        return "{\"anyOf\": [" + object + ", " + ValueOf(*method.arguments[0].type) + "]}";
    }

    static std::string Property(const ClassProperty& property) {
        const std::string value = ValueOf(*property.type);
        if (!property.arguments.empty())
            return R"({"type": "object", "additionalProperties": )" + value + '}';
        const Rule& rule = property.rule;
        if (!rule.limited || property.type->kind != Kind::Number || !property.type->values.empty())
            return value;
        return R"({"type": "integer", "minimum": )" + std::to_string(rule.low) + R"(, "maximum": )"
               + std::to_string(rule.high) + '}';
    }

    void Members(std::string_view name, const Class& description, const ClassMethod* addition) {
        json_.Open(name, '{').Member("type", "\"object\"").Open("properties", '{');
        std::string required;
        if (addition != nullptr) {
            for (const Argument& argument : addition->arguments) {
                if (argument.type->kind == Kind::Object) continue;
                json_.Member(argument.name, ValueOf(*argument.type));
                if (argument.initial) continue;
                if (!required.empty()) required += ", ";
                required += Json::Quoted(argument.name);
            }
        }
        const auto isArgument = [addition](std::string_view member) {
            return addition != nullptr
                   && std::any_of(addition->arguments.begin(), addition->arguments.end(),
                                  [member](const Argument& argument) { return argument.name == member; });
        };
        for (const ClassProperty& property : description.properties) {
            const bool part = property.type->kind == Kind::Object && !property.optional;
            if ((property.set == nullptr && !part) || isArgument(property.name)
                || !IsSettable(description, property))
                continue;
            json_.Member(property.name, Property(property));
        }
        for (const ClassMethod& method : description.methods) {
            if (IsCallable(description, method)) json_.Member(method.name, Added(description, method));
        }
        Content(description);
        json_.Close('}');
        // The items of a collection, by their names or positions.
        const bool keys = description.items != nullptr;
        json_.Member("additionalProperties", keys ? ValueOf(*description.items) : "false");
        // Names divided by points lead to members of members.
        if (!keys) json_.Member("patternProperties", R"({"\\.": {}})");
        if (!required.empty()) json_.Member("required", '[' + required + ']');
        json_.Close('}');
    }

    void Content(const Class& description) {
        const auto adds = [](const ClassMethod& method) {
            return method.name.starts_with(AddPrefix) && method.name.size() > AddPrefix.size();
        };
        const auto& methods = description.methods;
        if (std::none_of(methods.begin(), methods.end(), adds)) return;
        json_.Open(ContentMember, '{').Member("type", "\"array\"").Open("items", '{').Open("anyOf", '[');
        if (&description != &Document::Describe() && description.FindMethod("AddCell") == nullptr)
            json_.Member({}, R"({"type": "string"})");
        json_.Open({}, '{')
            .Member("type", "\"object\"")
            .Member("minProperties", "1")
            .Member("maxProperties", "1");
        json_.Member("additionalProperties", "false").Open("properties", '{');
        for (const ClassMethod& method : methods) {
            if (!adds(method)) continue;
            std::string added = Added(description, method);
            const bool empty =
                std::all_of(method.arguments.begin(), method.arguments.end(),
                            [](const Argument& argument) { return argument.initial.has_value(); });
            if (empty) added = "{\"anyOf\": [" + added + R"(, {"type": "null"}]})";
            json_.Member(method.name.substr(AddPrefix.size()), added);
        }
        json_.Close('}').Close('}').Close(']').Close('}').Close('}');
    }

    Json json_;
};

}  // namespace

std::string JsonSchema() { return Schema().Write(); }

}  // namespace draftwick::command
