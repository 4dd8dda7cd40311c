// SPDX-License-Identifier: MIT
#include "platform/linux/SharedHeap.h"

#ifdef __GLIBC__
#include <malloc.h>
#endif

namespace zelk {

void shareHeapAmongThreads() {
#ifdef __GLIBC__
    ::mallopt(M_ARENA_MAX, 1);
#endif
}

}  // namespace zelk
