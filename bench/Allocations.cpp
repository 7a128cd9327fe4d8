#include "Allocations.h"

#include <cstdlib>
#include <new>

namespace {
std::int64_t allocations = 0;
}

std::int64_t CountAllocations() noexcept { return allocations; }

// All other forms of new and delete come here.
void* operator new(std::size_t size) {
    ++allocations;
    if (void* memory = std::malloc(size)) return memory;
    throw std::bad_alloc();
}
void operator delete(void* memory) noexcept { std::free(memory); }
void operator delete(void* memory, std::size_t) noexcept { std::free(memory); }
