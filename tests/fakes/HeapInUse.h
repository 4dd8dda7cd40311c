// SPDX-License-Identifier: MIT
#pragma once

#include <malloc.h>

#include <cstddef>

#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
// Of the sanitizers' common interface; g++ installs no header that has it.
extern "C" std::size_t __sanitizer_get_current_allocated_bytes();
#endif

namespace zelk::fakes {

/// The bytes that the process has taken from the heap and not given back. Sanitizers keep a heap of their own.
inline std::size_t heapInUse() {
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
    return __sanitizer_get_current_allocated_bytes();
#else
    const struct mallinfo2 heap = ::mallinfo2();
    return heap.uordblks + heap.hblkhd;
#endif
}

}  // namespace zelk::fakes
