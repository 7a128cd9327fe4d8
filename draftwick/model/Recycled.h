#pragma once

#include <draftwick/platform/Export.h>

#include <cstddef>
#include <memory>
#include <utility>

namespace draftwick::detail {

/// Memory for an object of that size. It comes from those that this thread gave back last, else from operator new.
DRAFTWICK_API void* TakeBlock(std::size_t size);
/// Gives memory back, in any thread: a few blocks of each size wait there for the next object, until the thread ends.
DRAFTWICK_API void GiveBlock(void* block, std::size_t size) noexcept;

/// An allocator for objects that come and go one after the other: a paragraph takes the place of the one before.
template <class Type>
class Recycled {
public:
    using value_type = Type;

    Recycled() = default;
    template <class Other>
    Recycled(const Recycled<Other>&) noexcept {}

    Type* allocate(std::size_t count) { return static_cast<Type*>(TakeBlock(count * sizeof(Type))); }
    void deallocate(Type* block, std::size_t count) noexcept { GiveBlock(block, count * sizeof(Type)); }

    friend bool operator==(Recycled, Recycled) noexcept { return true; }
};

template <class Type, class... Arguments>
std::shared_ptr<Type> MakeRecycled(Arguments&&... arguments) {
    static_assert(alignof(Type) <= __STDCPP_DEFAULT_NEW_ALIGNMENT__);
    return std::allocate_shared<Type>(Recycled<Type>(), std::forward<Arguments>(arguments)...);
}

}  // namespace draftwick::detail
