#include "hosts/command/JsonDocument.h"

#include "hosts/command/Json.h"
#include "hosts/command/Message.h"
#include "hosts/command/Values.h"

#include <algorithm>
#include <optional>
#include <stdexcept>
#include <utility>
#include <vector>

namespace draftwick::command {

namespace {

using ObjectPointer = std::shared_ptr<Object>;

[[noreturn]] void Refuse(const std::string& what) { throw std::invalid_argument(what); }

std::string Quoted(std::string_view text) { return '"' + std::string{text} + '"'; }

/// A method that adds something, and what it was told so far.
struct Addition {
    const ClassMethod* method = nullptr;
    std::vector<std::optional<Variant>> arguments{};

    explicit Addition(const ClassMethod& adding) : method(&adding), arguments(adding.arguments.size()) {}

    const Argument* Find(std::string_view name) const {
        for (const Argument& argument : method->arguments) {
            // An object cannot be named here.
            if (argument.name == name && argument.type->kind != Kind::Object) return &argument;
        }
        return nullptr;
    }
    void Set(const Argument& argument, Variant value) {
        arguments[static_cast<std::size_t>(&argument - method->arguments.data())] = std::move(value);
    }
};

/// An object, array or list that was begun and not ended.
struct Level {
    enum class Kind {
        Members,  // {"Align": ..., "Content": [...]}
        Content,  // ["text", {"Paragraph": ...}]
        One,      // {"Paragraph": ...} in a list of content
        Items,    // [{"Name": ...}] of a collection
    };
    Kind kind;
    ObjectPointer object;
    const ClassProperty* keyed = nullptr;
    std::optional<Addition> addition{};  // of what the members are; until it is made, they are its arguments
    std::string key{};                   // what the next value is for
};

class Builder final : public JsonEvents {
public:
    explicit Builder(const std::shared_ptr<Document>& document) : document_(document) {}

    void Key(std::string_view name) override {
        Level& level = levels_.back();
        level.key = name;
        if (level.kind != Level::Kind::One) {
            CheckMember(level);
            return;
        }
        if (level.addition)
            Refuse("only one thing in each object of a list; put braces around " + Quoted(name));
        level.addition.emplace(MethodFor(level.object->Description(), name));
    }

    void Value(const Scalar& value) override {
        if (levels_.empty()) Refuse("a document is an object, in braces");
        Level& level = levels_.back();
        switch (level.kind) {
        case Level::Kind::Content: AddText(*level.object, value); break;
        case Level::Kind::Items: Add(*level.object, AddMethod(level.object->Description()), value); break;
        case Level::Kind::One: Add(*level.object, *level.addition->method, value); break;
        case Level::Kind::Members: Set(level, value); break;
        }
    }

    void Begin(bool object) override {
        constexpr std::size_t Deepest = 200;
        if (levels_.size() >= Deepest) Refuse("nested too deeply");
        if (levels_.empty()) {
            if (!object) Refuse("a document is an object, in braces");
            levels_.push_back({Level::Kind::Members, document_});
            return;
        }
        Level& level = levels_.back();
        switch (level.kind) {
        case Level::Kind::Content:
            if (!object) Refuse("a list in a list; what an object holds is a text or an object");
            levels_.push_back({Level::Kind::One, level.object});
            break;
        case Level::Kind::Items:
            BeginAddition(level.object, AddMethod(level.object->Description()), object);
            break;
        case Level::Kind::One: BeginAddition(level.object, *level.addition->method, object); break;
        case Level::Kind::Members: BeginMember(level, object); break;
        }
    }

    void End() override {
        if (levels_.back().kind == Level::Kind::Members) Make(levels_.back());
        levels_.pop_back();
    }

private:
    /// Refuses a name that is none here, while the reader is at its place.
    static void CheckMember(const Level& level) {
        const ClassMethod* adding = level.addition ? level.addition->method : nullptr;
        if (level.keyed != nullptr || level.key == ContentMember) return;
        if (adding != nullptr && level.addition->Find(level.key) != nullptr) return;
        if (adding != nullptr && adding->result == nullptr)
            Refuse(Quoted(adding->name) + " has no " + Quoted(level.key));
        const Class& description =
            adding != nullptr ? adding->result->description() : level.object->Description();
        const std::string_view name = std::string_view{level.key}.substr(0, level.key.find('.'));
        const ClassProperty* property = description.FindProperty(name);
        const ClassMethod* method = description.FindMethod(name);
        if (property != nullptr && !IsSettable(description, *property))
            Refuse(Quoted(name) + " is for the command line to say");
        if (property == nullptr && description.items == nullptr
            && (method == nullptr || !IsCallable(description, *method))) {
            Refuse(MembersOf(description, name));
        }
    }

    static const ClassMethod& AddMethod(const Class& collection) { return *collection.FindMethod(AddPrefix); }

    /// The method that adds what has this name.
    static const ClassMethod& MethodFor(const Class& description, std::string_view name) {
        const std::string full = std::string{AddPrefix} + std::string{name};
        const ClassMethod* method = name.empty() ? nullptr : description.FindMethod(full);
        if (method != nullptr) return *method;
        std::vector<std::string_view> names;
        for (const ClassMethod& one : description.methods) {
            if (one.name.starts_with(AddPrefix) && one.name.size() > AddPrefix.size())
                names.push_back(one.name.substr(AddPrefix.size()));
        }
        Refuse(std::string{description.name} + " cannot hold " + Quoted(name) + "; "
               + Alternatives(name, names));
    }

    /// A text in a list is a run of text where there can be one, else a paragraph with it.
    void AddText(Object& object, const Scalar& value) {
        if (value.kind != Scalar::Kind::Text) Refuse("what an object holds is a text or an object");
        const Class& description = object.Description();
        if (description.FindMethod("AddTextItem") != nullptr) {
            Call(object, "AddTextItem", {std::string{value.text}});
        } else if (description.FindMethod("AddText") != nullptr) {
            Call(object, "AddText", {std::string{value.text}});
        } else {
            MethodFor(description, "Paragraph");
            AddText(*std::get<ObjectPointer>(Call(object, "AddParagraph")), value);
        }
    }

    /// With its first argument, or with none.
    void Add(Object& object, const ClassMethod& method, const Scalar& value) {
        if (value.kind == Scalar::Kind::Nothing) {
            Call(object, method.name);
            return;
        }
        if (method.arguments.empty() || method.arguments[0].type->kind == Kind::Object)
            Refuse(Quoted(method.name) + " takes no value but an object, in braces");
        Call(object, method.name, {ToVariant(value, *method.arguments[0].type, *document_)});
    }

    void BeginAddition(const ObjectPointer& object, const ClassMethod& method, bool braces) {
        if (!braces) Refuse("a list where an object is expected, in braces");
        levels_.push_back({Level::Kind::Members, object, nullptr, Addition(method)});
    }

    void BeginMember(Level& level, bool object) {
        if (level.addition && level.addition->Find(level.key) != nullptr)
            Refuse(Quoted(level.key) + " is a single value");
        Make(level);
        if (level.keyed == nullptr && level.key == ContentMember && !object) {
            levels_.push_back({Level::Kind::Content, level.object});
            return;
        }
        if (const ClassMethod* method = Callable(level)) {
            BeginAddition(level.object, *method, object);
            return;
        }
        const Target part = Target(level.object, level.keyed).Part(level.key);
        if (object) {
            levels_.push_back({Level::Kind::Members, part.Of(), part.Keyed()});
        } else if (part.Keyed() != nullptr || part.Of()->Description().FindMethod(AddPrefix) == nullptr) {
            Refuse(Quoted(level.key) + " is an object, in braces");
        } else {
            levels_.push_back({Level::Kind::Items, part.Of()});
        }
    }

    void Set(Level& level, const Scalar& value) {
        if (level.addition) {
            if (const Argument* argument = level.addition->Find(level.key)) {
                level.addition->Set(*argument, ToVariant(value, *argument->type, *document_));
                return;
            }
            Make(level);
        }
        if (level.key == ContentMember) Refuse("what an object holds is a list, in brackets");
        if (const ClassMethod* method = Callable(level)) {
            Add(*level.object, *method, value);
            return;
        }
        Target(level.object, level.keyed).Set(level.key, value);
    }

    static const ClassMethod* Callable(const Level& level) {
        if (level.keyed != nullptr) return nullptr;
        const ClassMethod* method = level.object->Description().FindMethod(level.key);
        return method != nullptr && IsCallable(level.object->Description(), *method) ? method : nullptr;
    }

    /// Adds what the members so far were the arguments of; the others are its own.
    static void Make(Level& level) {
        if (!level.addition) return;
        const ClassMethod& method = *level.addition->method;
        std::vector<Variant> arguments;
        std::vector<std::optional<Variant>>& given = level.addition->arguments;
        while (!given.empty() && !given.back()) given.pop_back();
        for (std::size_t i = 0; i < given.size(); ++i) {
            if (!given[i] && !method.arguments[i].initial)
                Refuse(Quoted(method.arguments[i].name) + " must come first");
            arguments.push_back(given[i] ? std::move(*given[i]) : *method.arguments[i].initial);
        }
        if (given.size() < method.arguments.size() && !method.arguments[given.size()].initial)
            Refuse(Quoted(method.arguments[given.size()].name) + " must be given, before all else");
        level.addition.reset();
        const Variant made = Call(*level.object, method.name, arguments);
        if (const auto* object = std::get_if<ObjectPointer>(&made)) level.object = *object;
    }

    std::shared_ptr<Document> document_;
    std::vector<Level> levels_;
};

}  // namespace

bool IsCallable(const Class& description, const ClassMethod& method) {
    return &description != &Document::Describe() && !method.name.starts_with(AddPrefix)
           && method.result == nullptr;
}

bool IsSettable(const Class& description, const ClassProperty& property) {
    return &description != &Document::Describe() || property.type->kind != Kind::Path;
}

void FillFromJson(std::istream& input, const std::string& name, const std::shared_ptr<Document>& document,
                  std::string_view head) {
    Builder builder(document);
    ReadJson(input, name, builder, false, head);
}

}  // namespace draftwick::command
