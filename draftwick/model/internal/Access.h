#pragma once

#include <draftwick/base/internal/Names.h>
namespace draftwick::detail {

/// The library's own way to what an object keeps: its classes let this one in, and hosts do not have its header.
struct Access {
    template <class Type>
    static auto& Values(Type& object) {
        return object.values_;
    }
    template <class Type>
    static auto& Parts(Type& object) {
        return object.parts_;
    }
};

/// The settings of an object, as they are stored.
template <class Type>
const auto& Stored(const Type& object) {
    return Access::Values(object);
}
/// The parts of an object that are there from the beginning.
template <class Type>
const auto& StoredParts(const Type& object) {
    return Access::Parts(object);
}
/// Takes over the settings of another object of the class, also of one that can no longer change.
template <class Type>
void CopyValues(Type& to, const Type& from) {
    Access::Values(to) = Access::Values(from);
}

}  // namespace draftwick::detail
