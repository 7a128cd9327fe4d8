#include "hosts/command/JsonDocument.h"

#include "hosts/command/Json.h"
#include "hosts/command/Member.h"

#include <algorithm>
#include <optional>
#include <utility>
#include <vector>

namespace draftwick::command {

namespace {

/// Builds what JSON says while it is read: an object's arguments come first, then it is made, then its own members.
class Builder {
public:
    Builder(JsonReader& json, const Document& document) : json_(json), document_(document) {}

    /// {"Align": ..., "Content": [...]}, each member's name behind the prefix of a property that takes a key.
    void Members(const ObjectPointer& object, const std::string& prefix = {}) {
        json_.Object([&](const std::string& name) { ReadMember(object, prefix, name); });
    }

private:
    void ReadMember(const ObjectPointer& object, const std::string& prefix, const std::string& name) {
        const Class& description = object->Description();
        if (prefix.empty() && name == ContentMember) return Content(*object);
        const ClassMethod* method = prefix.empty() ? description.FindMethod(name) : nullptr;
        if (method != nullptr && IsCallable(description, *method)) return Add(*object, *method);
        const Member member(object, prefix + name, MembersBesideProperties);
        switch (json_.Peek()) {
        case '{': member.WantsKey() ? Members(object, prefix + name + '.') : Members(member.Part()); break;
        case '[': Items(name, *member.Part()); break;
        default: member.Set(json_.Scalar());
        }
    }

    static std::vector<std::string_view> MembersBesideProperties(const Class& description) {
        std::vector<std::string_view> names;
        const auto& methods = description.methods;
        if (std::any_of(methods.begin(), methods.end(),
                        [](auto& method) { return !ContentName(method).empty(); }))
            names.push_back(ContentMember);
        for (const ClassMethod& method : methods) {
            if (IsCallable(description, method)) names.push_back(method.name);
        }
        return names;
    }

    /// ["Arial", {"Name": "Georgia"}]: what is added to a collection.
    void Items(const std::string& name, Object& collection) {
        const ClassMethod* add = collection.Description().FindMethod(AddPrefix);
        if (add == nullptr) Refuse(Quoted(name) + " is an object, in braces");
        json_.Array([&] { Add(collection, *add); });
    }

    /// ["text", {"Paragraph": ...}]
    void Content(Object& object) {
        json_.Array([&] {
            if (json_.Peek() != '{' && json_.Peek() != '[') return AddText(object);
            bool first = true;
            json_.Object([&](const std::string& name) {
                if (!std::exchange(first, false))
                    Refuse("only one thing in each object of a list; put braces around " + Quoted(name));
                Add(object, MethodFor(object.Description(), name));
            });
        });
    }

    /// The method that adds what has this name.
    static const ClassMethod& MethodFor(const Class& description, std::string_view name) {
        std::vector<std::string_view> names;
        for (const ClassMethod& method : description.methods) {
            const std::string_view content = ContentName(method);
            if (content == name && !name.empty()) return method;
            if (!content.empty()) names.push_back(content);
        }
        Refuse(std::string{description.name} + " cannot hold " + Quoted(name) + "; "
               + Alternatives(name, names));
    }

    /// A text in a list is a run of text where there can be one, else a paragraph with it.
    void AddText(Object& object) {
        Variant text = json_.Scalar();
        if (!std::holds_alternative<std::string>(text)) Refuse("what an object holds is a text or an object");
        const Class& description = object.Description();
        for (const std::string_view run : {"AddTextItem", "AddText"}) {
            if (description.FindMethod(run) == nullptr) continue;
            Call(object, run, {std::move(text)});
            return;
        }
        Call(object, MethodFor(description, "Paragraph").name, {std::string{}, std::move(text)});
    }

    /// What a method adds: null, its first argument, or an object with arguments and then with members of what it adds.
    void Add(Object& object, const ClassMethod& method) {
        if (json_.Peek() == '{' || json_.Peek() == '[') return AddObject(object, method);
        const Variant value = json_.Scalar();
        const bool alone = std::holds_alternative<std::monostate>(value);
        if (!alone && (method.arguments.empty() || !CanBeGiven(method.arguments[0])))
            Refuse(Quoted(method.name) + " takes no value but an object, in braces");
        if (alone)
            Call(object, method.name);
        else
            Call(object, method.name, {Fit(value, *method.arguments[0].type, document_)});
    }

    void AddObject(Object& object, const ClassMethod& method) {
        const std::vector<Argument>& arguments = method.arguments;
        std::vector<std::optional<Variant>> given(arguments.size());
        bool made = false;
        ObjectPointer result;
        const auto make = [&] {
            if (std::exchange(made, true)) return;
            std::vector<Variant> values;
            for (std::size_t i = 0; i < arguments.size(); ++i) {
                if (!given[i] && !arguments[i].initial)
                    Refuse(Quoted(arguments[i].name) + " must be given, before all else");
                values.push_back(given[i] ? std::move(*given[i]) : *arguments[i].initial);
            }
            Variant value = Call(object, method.name, values);
            if (auto* pointer = std::get_if<ObjectPointer>(&value)) result = std::move(*pointer);
        };
        json_.Object([&](const std::string& name) {
            const auto argument = std::find_if(arguments.begin(), arguments.end(), [&](const Argument& one) {
                return !made && one.name == name && CanBeGiven(one);
            });
            if (argument != arguments.end()) {
                given[static_cast<std::size_t>(argument - arguments.begin())] =
                    Fit(json_.Scalar(), *argument->type, document_);
                return;
            }
            if (method.result != nullptr) make();
            if (result == nullptr) Refuse(Quoted(method.name) + " has no " + Quoted(name));
            ReadMember(result, {}, name);
        });
        make();
    }

    /// An object cannot be named here.
    static bool CanBeGiven(const Argument& argument) { return argument.type->kind != Kind::Object; }

    JsonReader& json_;
    const Document& document_;
};

}  // namespace

std::string_view ContentName(const ClassMethod& method) {
    return method.name.starts_with(AddPrefix) ? method.name.substr(AddPrefix.size()) : std::string_view{};
}

bool IsCallable(const Class& description, const ClassMethod& method) {
    return &description != &Document::Describe() && !method.name.starts_with(AddPrefix)
           && method.result == nullptr;
}

void FillFromJson(Input& input, const std::shared_ptr<Document>& document) {
    ReadJson(input, [&](JsonReader& json) { Builder(json, *document).Members(document); });
}

}  // namespace draftwick::command
