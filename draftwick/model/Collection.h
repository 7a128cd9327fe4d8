#pragma once

#include <draftwick/model/Class.h>
#include <draftwick/model/Object.h>
#include <draftwick/text/CaseFolding.h>
#include <draftwick/text/Utf8.h>

#include <cstddef>
#include <cstdint>
#include <iterator>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

namespace draftwick::detail {

/// Walks a collection by position, from 1 to Count.
template <class Collection>
class CollectionIterator {
public:
    using iterator_category = std::input_iterator_tag;
    using value_type = decltype(std::declval<Collection&>().ItemAt(1));
    using difference_type = std::ptrdiff_t;
    using pointer = void;
    using reference = value_type;

    CollectionIterator() = default;
    CollectionIterator(Collection* collection, std::int32_t index) : collection_(collection), index_(index) {}
    value_type operator*() const { return collection_->ItemAt(index_); }
    CollectionIterator& operator++() {
        ++index_;
        return *this;
    }
    CollectionIterator operator++(int) {
        CollectionIterator before = *this;
        ++index_;
        return before;
    }
    friend bool operator==(const CollectionIterator& a, const CollectionIterator& b) {
        return a.index_ == b.index_;
    }

private:
    Collection* collection_ = nullptr;
    std::int32_t index_ = 1;
};

/// A collection whose items have names, told apart without regard to case.
template <class Item>
class DRAFTWICK_API NamedCollection : public Node {
public:
    using Node::Node;

    /// How many items there are.
    std::int32_t Count() const noexcept { return static_cast<std::int32_t>(items_.size()); }

    /// The item at a position from 1. dwErrItemNotFound when there is none.
    std::shared_ptr<Item> Items(std::int32_t index) const {
        if (index < 1 || index > Count()) RaiseError(dwErrItemNotFound, {std::to_string(index)});
        return items_[static_cast<std::size_t>(index - 1)];
    }
    /// The item of a name, without regard to case. dwErrItemNotFound when there is none.
    std::shared_ptr<Item> Items(std::string_view name) const { return items_[Find(name)]; }

    CollectionIterator<const NamedCollection> begin() const { return {this, 1}; }
    CollectionIterator<const NamedCollection> end() const { return {this, Count() + 1}; }

    // The rest is for the library.

    std::shared_ptr<Item> ItemAt(std::int32_t index) const { return Items(index); }
    std::shared_ptr<Item> ItemOf(const Variant& index) const {
        const auto* name = std::get_if<std::string>(&index);
        return name != nullptr ? Items(*name) : Items(FromVariant<std::int32_t>(index));
    }
    /// The item that an index from 0 stands for in the file.
    Item& At(std::int32_t index) const { return *items_[static_cast<std::size_t>(index)]; }
    /// The index from 0 of the item of that name. dwErrItemNotFound when there is none.
    std::int32_t IndexOf(std::string_view name) const { return static_cast<std::int32_t>(Find(name)); }

protected:
    bool Contains(std::string_view name) const { return positions_.contains(FoldCase(name)); }

    /// An empty name is dwErrZeroLengthName with the collection's name, one that is taken error 457. The item's
    /// parent is the collection's: a font belongs to the document.
    std::shared_ptr<Item> AddItem(std::string_view name, std::string_view collection) {
        if (name.empty()) RaiseError(dwErrZeroLengthName, {std::string{collection}});
        std::string spelling = ToValidUtf8(name);
        std::string key = FoldCase(spelling);
        if (positions_.contains(key)) RaiseRuntimeError(dwRunDuplicateKey, spelling);
        auto item = std::make_shared<Item>(OriginOfSibling(), std::move(spelling), Count());
        items_.push_back(item);
        try {
            positions_.emplace(std::move(key), items_.size() - 1);
        } catch (...) {
            items_.pop_back();
            throw;
        }
        return item;
    }

    /// Takes the item at a position from 1 out; those behind it move up.
    void RemoveItem(std::int32_t index) {
        const auto removed = static_cast<std::size_t>(index - 1);
        std::erase_if(positions_, [&](const auto& entry) { return entry.second == removed; });
        for (auto& [key, position] : positions_) {
            if (position > removed) --position;
        }
        items_.erase(items_.begin() + (index - 1));
    }

private:
    std::size_t Find(std::string_view name) const {
        const auto found = positions_.find(FoldCase(name));
        if (found == positions_.end()) RaiseError(dwErrItemNotFound, {ToValidUtf8(name)});
        return found->second;
    }

    std::vector<std::shared_ptr<Item>> items_;
    std::unordered_map<std::string, std::size_t> positions_;
};

/// The row of Items, by position or by name, in the class table of a named collection.
template <class Collection>
ClassMethod ItemsMethod() {
    return MethodOf<&Collection::ItemOf>("Items", {{"Index"}});
}

}  // namespace draftwick::detail
