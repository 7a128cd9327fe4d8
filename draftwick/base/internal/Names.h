#pragma once

/// The library's own code calls its helpers by their plain names. Hosts do not have this header: to them the namespace
/// has the object model and nothing else.
namespace draftwick {

namespace detail {}
namespace rule {}

using namespace detail;
using namespace rule;

}  // namespace draftwick
