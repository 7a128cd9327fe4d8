#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace draftwick::rule {

/// A setting that names an item of one of the document's named collections, or none. It keeps the item's position:
/// comparing and copying are as cheap as for numbers, and the name is spelled as the collection has it.
template <class Collection>
class Ref {
public:
    /// Whether there is an item.
    explicit operator bool() const noexcept { return position_ != None; }
    /// The item's position from 0, which is also its number in the file. Only if there is one.
    std::int32_t Position() const noexcept { return position_; }

    /// The item of that name; an empty name for none. dwErrItemNotFound when the collection has no such item.
    void Set(const Collection& collection, std::string_view name) {
        position_ = name.empty() ? None : collection.IndexOf(name);
    }
    /// The item. Only if there is one.
    auto& In(const Collection& collection) const { return collection.At(position_); }
    /// The item's name; empty for none.
    std::string Name(const Collection& collection) const {
        return *this ? std::string{In(collection).Name()} : std::string{};
    }

    bool operator==(const Ref&) const = default;

private:
    static constexpr std::int32_t None = -1;

    std::int32_t position_ = None;
};

}  // namespace draftwick::rule
