#pragma once

#include <cstdint>

/// How many times the program has allocated memory by operator new so far, in any form. For one thread.
std::int64_t CountAllocations() noexcept;
