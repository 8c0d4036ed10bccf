#pragma once

#include <cstddef>
#include <cstdlib>

/// Counts the allocations of a thread. It replaces malloc, so one source of a test program includes
/// it. The sanitizers have an allocator of their own, which is not counted.
#if defined(__GLIBC__) && !defined(__SANITIZE_ADDRESS__) && !defined(__SANITIZE_THREAD__)
#define FERNA_COUNTS_ALLOCATIONS 1

namespace {
thread_local long allocations = 0;
}

extern "C" {
void* __libc_malloc(std::size_t size);
// Every allocation of the program comes through here, operator new and the library's too.
void* malloc(std::size_t size) {
    ++allocations;
    return __libc_malloc(size);
}
}
#endif
