#pragma once

/// Marks what a program can use of the library: everything else stays inside of a shared library. On Windows the linker
/// exports what there is.
#if defined(_WIN32)
#define DRAFTWICK_API
#else
#define DRAFTWICK_API __attribute__((visibility("default")))
#endif
