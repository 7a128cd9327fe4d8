#pragma once

#include <string>

namespace draftwick::hosts {

/// The whole object model as JSON, as hosts/c/draftwick_c.h describes it.
std::string DescribeAsJson();

}  // namespace draftwick::hosts
