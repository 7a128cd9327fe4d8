#pragma once

#include "Com.h"

#include <draftwick/model/Object.h>

namespace draftwick::automation {

/// Finishes a document into the IStream that the value holds. Error 13 when it holds none.
void FinishTo(Object& document, const VARIANT& value);

}  // namespace draftwick::automation
