#pragma once

#include "Com.h"

namespace draftwick::automation {

/// For whom the classes are registered.
enum class Users { All, Current };

/// Enters the classes that hosts make, and the type library. Where there are no rights for that, an error and no entry.
HRESULT Register(Users users);
/// Takes out what Register entered; what is not there does not matter.
HRESULT Unregister(Users users);

}  // namespace draftwick::automation
