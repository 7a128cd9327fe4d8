#include <draftwick/content/Special.h>
#include <draftwick/core/Classes.h>
#include <draftwick/core/Document.h>
#include <draftwick/core/Properties.h>
#include <draftwick/drawing/Shape.h>
#include <draftwick/model/internal/ClassTable.h>

#include <algorithm>

namespace draftwick {

template <>
inline constexpr EnumerationRange RangeOf<dwErrCode>{.first = dwErrPropertyOutOfRange};
template <>
inline constexpr EnumerationRange RangeOf<dwRuntimeError>{.last = dwRunInvalidPicture};

namespace {

/// Calls `use` with the type of every member of a class and of every argument.
template <class Use>
void ForEachType(const Class& of, const Use& use) {
    const auto useAll = [&](const Type* type, const std::vector<Argument>& arguments) {
        if (type != nullptr) use(*type);
        for (const Argument& argument : arguments) use(*argument.type);
    };
    for (const ClassProperty& property : of.properties) useAll(property.type, property.arguments);
    for (const ClassMethod& method : of.methods) useAll(method.result, method.arguments);
}

template <class Named>
void Add(std::vector<const Named*>& found, const Named& one) {
    if (std::find(found.begin(), found.end(), &one) == found.end()) found.push_back(&one);
}

template <class Named>
void SortByName(std::vector<const Named*>& found) {
    std::sort(found.begin(), found.end(), [](auto* a, auto* b) { return a->name < b->name; });
}

}  // namespace

// What hosts make, and whatever the members of these lead to.
std::span<const Class* const> Classes() {
    static const std::vector<const Class*> all = [] {
        std::vector<const Class*> found{&Document::Describe(), &Special::Describe()};
        for (std::size_t i = 0; i < found.size(); ++i) {
            ForEachType(*found[i], [&](const Type& type) {
                if (type.description != nullptr) Add(found, type.description());
            });
        }
        SortByName(found);
        return found;
    }();
    return all;
}

std::span<const Type* const> Enumerations() {
    static const std::vector<const Type*> all = [] {
        std::vector<const Type*> found{detail::TypeOf<dwErrCode>(), detail::TypeOf<dwRuntimeError>(),
                                       detail::TypeOf<dwBuiltInProperty>(),
                                       detail::TypeOf<dwShapeTextWrap>()};
        for (const Class* one : Classes()) {
            ForEachType(*one, [&](const Type& type) {
                if (!type.values.empty()) Add(found, type);
            });
        }
        SortByName(found);
        return found;
    }();
    return all;
}

// Declared with the other descriptions, but what a document is only this floor knows.
std::span<const ClassProperty> CommonProperties() {
    static const ClassProperty common[] = {
        PropertyOf<&Object::Parent>("Parent").OrNothing(),
        PropertyOf<&Object::Document>("Document").OrNothing(),
    };
    return common;
}

}  // namespace draftwick
