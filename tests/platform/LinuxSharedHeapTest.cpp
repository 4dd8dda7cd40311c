// SPDX-License-Identifier: MIT
// From which heap threads take their memory. Each case runs in a process of its own, since a process keeps the heaps
// that it once had.
#include <gtest/gtest.h>
#include <unistd.h>

#include <cstdint>
#include <cstdlib>
#include <memory>
#include <thread>

#include "fakes/HeapInUse.h"
#include "platform/NativeStorage.h"
#include "platform/linux/SharedHeap.h"

// The sanitizers have a heap of their own, and so have other C libraries.
#if defined(__GLIBC__) && !defined(ZELK_SANITIZERS_HEAP)

namespace zelk {
namespace {

/// Ends the process: with 0 if a new thread takes from the heap that grows from the program's own memory.
[[noreturn]] void endByHeapOfNewThread() {
    bool isShared = false;
    std::thread([&] {
        const auto taken = std::make_unique<char[]>(2'000);
        isShared = reinterpret_cast<std::uintptr_t>(taken.get()) < reinterpret_cast<std::uintptr_t>(::sbrk(0));
    }).join();
    std::_Exit(isShared ? 0 : 1);
}

class SharedHeap : public testing::Test {
protected:
    SharedHeap() { GTEST_FLAG_SET(death_test_style, "threadsafe"); }
};

}  // namespace

TEST_F(SharedHeap, isNotWhatThreadsHaveUnasked) {
    EXPECT_EXIT(endByHeapOfNewThread(), testing::ExitedWithCode(1), "");
}

TEST_F(SharedHeap, isThatOfThreadsOnceAskedFor) {
    EXPECT_EXIT(
        {
            shareHeapAmongThreads();
            endByHeapOfNewThread();
        },
        testing::ExitedWithCode(0), "");
}

TEST_F(SharedHeap, isAskedForBeforeASurvey) {
    EXPECT_EXIT(
        {
            const NativeStorage native("/");
            endByHeapOfNewThread();
        },
        testing::ExitedWithCode(0), "");
}

}  // namespace zelk

#endif
