#pragma once

#include <draftwick/model/Object.h>

#include <cstddef>
#include <cstdint>
#include <iterator>
#include <memory>
#include <string>
#include <string_view>
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

/// What collections of named items have in common, whatever the items are.
class DRAFTWICK_API NamedItems : public Node {
public:
    explicit NamedItems(const Origin& origin);
    ~NamedItems() override;

    /// How many items there are.
    std::int32_t Count() const noexcept { return static_cast<std::int32_t>(items_.size()); }

    // The rest is for the library.

    /// The index from 0 of the item of that name. dwErrItemNotFound when there is none.
    std::int32_t IndexOf(std::string_view name) const;
    /// Whether there is an item of that name.
    bool Contains(std::string_view name) const;

protected:
    using Maker = std::shared_ptr<Object> (*)(const Origin& origin, std::string name, std::int32_t index);

    /// The item at a position from 1. dwErrItemNotFound when there is none.
    const std::shared_ptr<Object>& ItemAtPosition(std::int32_t position) const;
    /// The item at an index from 0, which there must be.
    const std::shared_ptr<Object>& ItemAtIndex(std::int32_t index) const noexcept {
        return items_[static_cast<std::size_t>(index)];
    }
    /// An empty name is dwErrZeroLengthName with the collection's name, one that is taken error 457. The item's
    /// parent is the collection's: a font belongs to the document.
    const std::shared_ptr<Object>& AddItem(std::string_view name, std::string_view collection, Maker make);
    /// Takes the item at a position from 1 out; those behind it move up.
    void RemoveItem(std::int32_t position);

private:
    struct Positions;

    std::vector<std::shared_ptr<Object>> items_;
    std::unique_ptr<Positions> positions_;  // by name
};

/// A collection whose items have names, told apart without regard to case.
template <class Item>
class DRAFTWICK_API NamedCollection : public NamedItems {
public:
    using NamedItems::NamedItems;

    /// The item at a position from 1. dwErrItemNotFound when there is none.
    std::shared_ptr<Item> Items(std::int32_t index) const { return As(ItemAtPosition(index)); }
    /// The item of a name, without regard to case. dwErrItemNotFound when there is none.
    std::shared_ptr<Item> Items(std::string_view name) const { return As(ItemAtIndex(IndexOf(name))); }

    CollectionIterator<const NamedCollection> begin() const { return {this, 1}; }
    CollectionIterator<const NamedCollection> end() const { return {this, Count() + 1}; }

    // The rest is for the library.

    std::shared_ptr<Item> ItemAt(std::int32_t position) const { return Items(position); }
    /// The item that an index from 0 stands for in the file.
    Item& At(std::int32_t index) const { return static_cast<Item&>(*ItemAtIndex(index)); }

protected:
    std::shared_ptr<Item> AddItem(std::string_view name, std::string_view collection) {
        return As(NamedItems::AddItem(
            name, collection, [](const Origin& origin, std::string text, std::int32_t index) {
                return std::shared_ptr<Object>{std::make_shared<Item>(origin, std::move(text), index)};
            }));
    }

private:
    static std::shared_ptr<Item> As(const std::shared_ptr<Object>& item) {
        return std::static_pointer_cast<Item>(item);
    }
};

}  // namespace draftwick::detail
