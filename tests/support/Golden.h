#pragma once

#include <string>
#include <string_view>

namespace draftwick::test {

/// Fails the test, at the line of the call, unless the bytes are those of tests/golden/NAME. A difference is
/// shown with its surroundings, and the actual bytes are left in the build's folder golden-actual. Golden files
/// are written by hand: nothing here changes them.
void ExpectGolden(std::string_view actual, const std::string& name, const char* file = __builtin_FILE(),
                  int line = __builtin_LINE());

/// Where and how the bytes differ: the first differing control word or text and what stands around it; empty
/// if they are the same.
std::string Difference(std::string_view expected, std::string_view actual);

}  // namespace draftwick::test
