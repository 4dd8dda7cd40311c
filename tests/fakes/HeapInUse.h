// SPDX-License-Identifier: MIT
#pragma once

#ifdef __APPLE__
#include <malloc/malloc.h>
#else
#include <malloc.h>
#endif

#include <cstddef>

// g++ says so by macros, clang by features.
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
#define ZELK_SANITIZERS_HEAP
#elif defined(__has_feature)
#if __has_feature(address_sanitizer) || __has_feature(thread_sanitizer)
#define ZELK_SANITIZERS_HEAP
#endif
#endif

#ifdef ZELK_SANITIZERS_HEAP
// From the sanitizers' common interface, whose header g++ does not install.
extern "C" std::size_t __sanitizer_get_current_allocated_bytes();
#endif

namespace zelk::fakes {

/// The bytes allocated on the heap. Sanitizers have a heap of their own.
inline std::size_t heapInUse() {
#ifdef ZELK_SANITIZERS_HEAP
    return __sanitizer_get_current_allocated_bytes();
#elif defined(__APPLE__)
    return ::mstats().bytes_used;
#else
    const struct mallinfo2 heap = ::mallinfo2();
    return heap.uordblks + heap.hblkhd;
#endif
}

}  // namespace zelk::fakes
