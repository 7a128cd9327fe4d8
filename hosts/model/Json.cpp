#include <hosts/model/Json.h>

#include <draftwick/draftwick.h>

#include <charconv>
#include <string_view>

namespace draftwick::hosts {

namespace {

/// Writes values, with commas between those of one array or object.
class Writer {
public:
    void Open(char bracket) {
        Separate();
        out_ += bracket;
        first_ = true;
    }
    void Close(char bracket) {
        out_ += bracket;
        first_ = false;
    }
    void Key(std::string_view name) {
        Text(name);
        out_ += ':';
        first_ = true;
    }
    void Plain(std::string_view value) {
        Separate();
        out_ += value;
    }
    void Text(std::string_view value) {
        Separate();
        out_ += '"';
        for (const char c : value) {
            if (static_cast<unsigned char>(c) < ' ') {
                constexpr char Digits[] = "0123456789abcdef";
                out_.append("\\u00") += Digits[c >> 4];
                out_ += Digits[c & 15];
            } else {
                if (c == '"' || c == '\\') out_ += '\\';
                out_ += c;
            }
        }
        out_ += '"';
    }
    void Line() {
        if (!first_) out_ += ',';
        out_ += '\n';
        first_ = true;
    }

    void Member(std::string_view key, bool value) { Key(key), Plain(value ? "true" : "false"); }
    void Member(std::string_view key, std::string_view value) { Key(key), Text(value); }
    void Member(std::string_view key, std::int32_t value) { Key(key), Plain(std::to_string(value)); }
    void Member(std::string_view key, const Type* type) {
        Key(key);
        if (type == nullptr)
            Plain("null");
        else
            Text(type->name);
    }
    void Member(std::string_view key, const Variant& value) {
        Key(key);
        if (const auto* on = std::get_if<bool>(&value)) return Plain(*on ? "true" : "false");
        if (const auto* text = std::get_if<std::string>(&value)) return Text(*text);
        if (const auto* number = std::get_if<std::int32_t>(&value)) return Plain(std::to_string(*number));
        const auto* real = std::get_if<double>(&value);
        if (real == nullptr) return Plain("null");
        char digits[32];
        Plain({digits, std::to_chars(digits, digits + sizeof digits, *real).ptr});
    }

    std::string Take() { return std::move(out_); }

private:
    void Separate() {
        if (!first_) out_ += ',';
        first_ = false;
    }

    std::string out_;
    bool first_ = true;
};

void Put(Writer& out, const std::vector<Argument>& arguments) {
    out.Key("arguments");
    out.Open('[');
    for (const Argument& argument : arguments) {
        out.Open('{');
        out.Member("name", argument.name);
        out.Member("type", argument.type);
        if (argument.initial) out.Member("default", *argument.initial);
        out.Close('}');
    }
    out.Close(']');
}

void Put(Writer& out, const ClassProperty& property) {
    const Rule& rule = property.rule;
    out.Open('{');
    out.Member("name", property.name);
    out.Member("type", property.type);
    out.Member("get", property.get != nullptr);
    out.Member("set", property.set != nullptr);
    if (property.optional) out.Member("optional", true);
    if (rule.initial.index() != 0) out.Member("default", rule.initial);
    if (property.set != nullptr && rule.bits != 32) out.Member("bits", rule.bits);
    if (rule.limited) {
        out.Member("low", rule.low);
        out.Member("high", rule.high);
    }
    if (!property.arguments.empty()) Put(out, property.arguments);
    out.Close('}');
}

void Put(Writer& out, const ClassMethod& method) {
    out.Open('{');
    out.Member("name", method.name);
    out.Member("result", method.result);
    if (method.optional) out.Member("optional", true);
    Put(out, method.arguments);
    out.Close('}');
}

void Put(Writer& out, const Class& one) {
    out.Open('{');
    out.Member("name", one.name);
    out.Member("class", one.classId);
    out.Member("interface", one.interfaceId);
    if (one.create != nullptr) out.Member("create", true);
    if (!one.defaultMember.empty()) out.Member("defaultMember", one.defaultMember);
    if (one.items != nullptr) out.Member("items", one.items);
    out.Key("properties");
    out.Open('[');
    for (const ClassProperty& property : CommonProperties()) out.Line(), Put(out, property);
    for (const ClassProperty& property : one.properties) out.Line(), Put(out, property);
    out.Close(']');
    out.Key("methods");
    out.Open('[');
    for (const ClassMethod& method : one.methods) out.Line(), Put(out, method);
    out.Close(']');
    out.Close('}');
}

void Put(Writer& out, const Type& enumeration) {
    out.Open('{');
    out.Member("name", enumeration.name);
    out.Key("values");
    out.Open('{');
    for (const EnumerationValue& value : enumeration.values) out.Member(value.name, value.value);
    out.Close('}');
    out.Close('}');
}

}  // namespace

std::string DescribeAsJson() {
    Writer out;
    out.Open('{');
    out.Key("enumerations");
    out.Open('[');
    for (const Type* type : Enumerations()) out.Line(), Put(out, *type);
    out.Close(']');
    out.Key("classes");
    out.Open('[');
    for (const Class* one : Classes()) out.Line(), Put(out, *one);
    out.Close(']');
    out.Close('}');
    return out.Take() + "\n";
}

}  // namespace draftwick::hosts
