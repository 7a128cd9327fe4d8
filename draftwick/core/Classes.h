#pragma once

#include <draftwick/model/Class.h>

#include <span>

namespace draftwick {

/// The descriptions of all classes of the object model, in the order of their names.
DRAFTWICK_API std::span<const Class* const> Classes();

}  // namespace draftwick
