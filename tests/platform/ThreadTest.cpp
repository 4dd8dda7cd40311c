// SPDX-License-Identifier: MIT
#include "platform/Thread.h"

#include <gtest/gtest.h>
#include <pthread.h>

#include <atomic>
#include <future>
#include <latch>
#include <limits>
#include <memory>
#include <system_error>
#include <thread>
#include <utility>

#include "fakes/TestFiles.h"
#include "platform/posix/ThreadCount.h"

namespace zelk {
namespace {

constexpr std::size_t stackBytes = 8 << 20;
constexpr double drainSeconds = 1e6;

/// Runs `body` on a new thread and waits for its result.
template <class Body>
auto onThread(const std::string& name, std::size_t stack, Body body) {
    using Answer = decltype(body());
    std::promise<Answer> promise;
    std::future<Answer> answer = promise.get_future();
    startThread(name, stack, [&] { promise.set_value(body()); });
    const Answer given = answer.get();
    EXPECT_TRUE(drainThreads(drainSeconds));
    return given;
}

/// Waits in its destructor until released, then sets a flag.
struct SlowToGo {
    std::latch& mayGo;
    std::atomic<bool>& gone;
    SlowToGo(std::latch& permission, std::atomic<bool>& flag) : mayGo(permission), gone(flag) {}
    SlowToGo(const SlowToGo&) = delete;
    ~SlowToGo() {
        mayGo.wait();
        gone = true;
    }
};

TEST(Thread, keepsItsFullName) {
    const auto name = [] { return currentThreadName(); };
    const std::string longer = "zelk.scan.worker.1234567890 and more\xC3\xA9";
    EXPECT_EQ(onThread("zelk.scan.worker.0", stackBytes, name), "zelk.scan.worker.0");
    EXPECT_EQ(onThread(longer, stackBytes, name), longer);
    EXPECT_EQ(onThread("", stackBytes, name), "");
}

TEST(Thread, nameBelongsToOneThread) {
    EXPECT_EQ(currentThreadName(), "");
    std::latch both(2);
    std::string other;
    std::string unnamed = "unset";
    startThread("one", stackBytes, [&] {
        both.arrive_and_wait();
        std::thread([&] { unnamed = currentThreadName(); }).join();
    });
    startThread("other", stackBytes, [&] {
        both.arrive_and_wait();
        other = currentThreadName();
    });
    ASSERT_TRUE(drainThreads(drainSeconds));
    EXPECT_EQ(other, "other");
    EXPECT_EQ(unnamed, "");
    EXPECT_EQ(currentThreadName(), "");
}

#ifdef __linux__

TEST(Thread, kernelNameIsTruncatedToFifteenCharacters) {
    const auto shown = [] { return fakes::fileContent("/proc/thread-self/comm"); };
    EXPECT_EQ(onThread("zelk.scan.worker.0", stackBytes, shown), "zelk.scan.worke\n");
    EXPECT_EQ(onThread("exactly fifteen", stackBytes, shown), "exactly fifteen\n");
    EXPECT_EQ(onThread("exactly sixteen!", stackBytes, shown), "exactly sixteen\n");
    EXPECT_EQ(onThread("short", stackBytes, shown), "short\n");
}

TEST(Thread, isDetachedWithTheGivenStackSize) {
    struct Attributes {
        std::size_t stack = 0;
        int detached = -1;
    };
    const auto attributes = [] {
        Attributes found;
        pthread_attr_t got;
        if (::pthread_getattr_np(::pthread_self(), &got) != 0) return found;
        ::pthread_attr_getstacksize(&got, &found.stack);
        ::pthread_attr_getdetachstate(&got, &found.detached);
        ::pthread_attr_destroy(&got);
        return found;
    };
    const Attributes found = onThread("stack", stackBytes, attributes);
    EXPECT_GE(found.stack, stackBytes);
    EXPECT_LT(found.stack, 2 * stackBytes);
    EXPECT_EQ(found.detached, PTHREAD_CREATE_DETACHED);
    EXPECT_GE(onThread("large", 64 << 20, attributes).stack, 64u << 20);
}

#endif

/// Writes to the end of a large stack frame, which crashes if the stack is too small.
__attribute__((noinline)) std::size_t useStack() {
    volatile char frame[7 << 20];
    for (std::size_t at = 0; at < sizeof frame; at += 1024) frame[at] = 1;
    return static_cast<std::size_t>(frame[0]) + static_cast<std::size_t>(frame[6 << 20]);
}

TEST(Thread, canUseItsWholeStack) {
    EXPECT_EQ(onThread("stack", stackBytes, useStack), 2u);
}

TEST(Thread, acceptsAnyStackSize) {
    for (const std::size_t size : {std::size_t{0}, std::size_t{1}, stackBytes - 1, stackBytes + 1}) {
        EXPECT_TRUE(onThread("odd", size, [] { return true; })) << size;
    }
}

TEST(Thread, failureToStartThrowsAndIsNotDrained) {
    const auto owned = std::make_shared<int>(1);
    bool ran = false;
    EXPECT_THROW(startThread("vast", std::size_t{1} << 56, [&ran, owned] { ran = true; }), std::system_error);
    EXPECT_FALSE(ran);
    EXPECT_EQ(owned.use_count(), 1);
    EXPECT_TRUE(drainThreads(0));
    EXPECT_EQ(currentThreadName(), "");
}

TEST(DrainThreads, returnsAtOnceWithoutThreads) {
    EXPECT_TRUE(drainThreads(0));
    EXPECT_TRUE(drainThreads(-1));
}

TEST(DrainThreads, returnsFalseWhileAThreadRuns) {
    std::latch go(1);
    startThread("waiting", stackBytes, [&] { go.wait(); });
    EXPECT_FALSE(drainThreads(0));
    EXPECT_FALSE(drainThreads(-1));
    EXPECT_FALSE(drainThreads(0.001));
    go.count_down();
    EXPECT_TRUE(drainThreads(drainSeconds));
    EXPECT_TRUE(drainThreads(0));
}

TEST(DrainThreads, waitsForReleaseOfTheBody) {
    std::latch ran(1);
    std::latch mayGo(1);
    std::atomic<bool> gone = false;
    {
        auto held = std::make_shared<SlowToGo>(mayGo, gone);
        startThread("holding", stackBytes, [&ran, own = std::move(held)] { ran.count_down(); });
    }
    ran.wait();
    EXPECT_FALSE(drainThreads(0.001));
    mayGo.count_down();
    EXPECT_TRUE(drainThreads(drainSeconds));
    EXPECT_TRUE(gone);
}

TEST(DrainThreads, waitsForNestedThreads) {
    std::atomic<int> ended = 0;
    std::function<void(int)> chain = [&](int left) {
        if (left > 0) startThread("link", 1 << 20, [&chain, left] { chain(left - 1); });
        ++ended;
    };
    chain(50);
    EXPECT_TRUE(drainThreads(drainSeconds));
    EXPECT_EQ(ended, 51);
}

TEST(DrainThreads, acceptsVeryLongTimeouts) {
    for (const double seconds : {1e10, 1e19, 1e300, std::numeric_limits<double>::infinity()}) {
        std::atomic<bool> ended = false;
        startThread("yielding", stackBytes, [&] {
            for (int turn = 0; turn < 2000; ++turn) std::this_thread::yield();
            ended = true;
        });
        EXPECT_TRUE(drainThreads(seconds)) << seconds;
        EXPECT_TRUE(ended) << seconds;
        EXPECT_TRUE(drainThreads(drainSeconds));
    }
}

TEST(DrainThreads, waitsForManyThreads) {
    std::atomic<int> ended = 0;
    for (int number = 0; number < 200; ++number) startThread("one of many", 1 << 18, [&] { ++ended; });
    EXPECT_TRUE(drainThreads(drainSeconds));
    EXPECT_EQ(ended, 200);
}

}  // namespace
}  // namespace zelk
