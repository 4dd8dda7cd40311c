// SPDX-License-Identifier: MIT
#include "platform/linux/TaskPool.h"

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/syscall.h>

#include <algorithm>
#include <atomic>
#include <future>
#include <latch>
#include <set>
#include <thread>
#include <vector>

#include "fakes/SystemCallGate.h"
#include "platform/Thread.h"
#include "platform/posix/ThreadCount.h"

namespace zelk {
namespace {

using std::chrono::milliseconds;

constexpr double untilDone = 1e6;
constexpr milliseconds forGood = std::chrono::hours(24 * 365);

class LinuxTaskPoolTest : public testing::Test {
protected:
    ~LinuxTaskPoolTest() override {
        for (const auto& pool : pools) pool->close();
        EXPECT_TRUE(drainThreads(untilDone));
        for (const auto& pool : pools) EXPECT_EQ(pool->threadCount(), 0u);
    }

    TaskPool& pool(std::size_t maxThreads, milliseconds keep = forGood, int niceness = 0) {
        return *pools.emplace_back(
            std::make_shared<TaskPool>(TaskPool::Options{"zelk.test.pool", maxThreads, niceness, keep}));
    }

    std::vector<std::shared_ptr<TaskPool>> pools;
};

/// Runs `body` on a thread that cannot start others.
void withoutNewThreads(const std::function<void()>& body) {
    fakes::behindGate(
        SYS_clone3, [](unsigned) { return EAGAIN; }, body);
}

/// Occupies a thread of the pool until released.
void occupy(TaskPool& pool, std::latch& begun, std::latch& mayGo) {
    pool.run(0, [&] {
        begun.count_down();
        mayGo.wait();
    });
}

TEST_F(LinuxTaskPoolTest, startsNoThreadBeforeTheFirstTask) {
    EXPECT_EQ(pool(3).threadCount(), 0u);
}

TEST_F(LinuxTaskPoolTest, growsUpToItsLimitWhileNoThreadIsIdle) {
    TaskPool& threads = pool(3);
    std::latch begun(3);
    std::latch mayGo(1);
    std::atomic<int> running = 0;
    std::atomic<int> most = 0;
    for (int task = 0; task < 3; ++task) {
        occupy(threads, begun, mayGo);
        EXPECT_EQ(threads.threadCount(), static_cast<std::size_t>(task + 1));
    }
    for (int task = 0; task < 200; ++task) {
        threads.run(0, [&] {
            const int now = ++running;
            for (int before = most; before < now && !most.compare_exchange_weak(before, now);) {
            }
            std::this_thread::yield();
            --running;
        });
    }
    begun.wait();
    EXPECT_EQ(threads.threadCount(), 3u);
    mayGo.count_down();
    ASSERT_TRUE(drainThreads(untilDone));
    EXPECT_LE(most, 3);
    EXPECT_EQ(threads.threadCount(), 3u);
}

TEST_F(LinuxTaskPoolTest, idleThreadTakesTheNextTask) {
    TaskPool& threads = pool(5);
    std::set<std::thread::id> different;
    for (int task = 0; task < 50; ++task) {
        threads.run(0, [&] { different.insert(std::this_thread::get_id()); });
        ASSERT_TRUE(drainThreads(untilDone));
        while (threads.idleCount() == 0) std::this_thread::yield();
    }
    EXPECT_EQ(threads.threadCount(), 1u);
    EXPECT_EQ(different.size(), 1u);
}

// The second task must not rely on the idle thread that was just given to the first.
TEST_F(LinuxTaskPoolTest, oneIdleThreadDoesNotServeTwoTasks) {
    for (int round = 0; round < 100; ++round) {
        TaskPool& threads = pool(2);
        threads.run(0, [] {});
        while (threads.idleCount() == 0) std::this_thread::yield();
        std::latch both(2);
        for (int task = 0; task < 2; ++task) threads.run(0, [&] { both.arrive_and_wait(); });
        both.wait();
        ASSERT_TRUE(drainThreads(untilDone));
    }
}

TEST_F(LinuxTaskPoolTest, idleThreadEndsAndIsReplaced) {
    TaskPool& threads = pool(5, milliseconds(1));
    for (int round = 0; round < 3; ++round) {
        bool ran = false;
        threads.run(0, [&] { ran = true; });
        ASSERT_TRUE(drainThreads(untilDone));
        EXPECT_TRUE(ran);
        while (threads.threadCount() > 0) std::this_thread::yield();
    }
}

TEST_F(LinuxTaskPoolTest, urgentTasksRunFirstInOrder) {
    TaskPool& threads = pool(1);
    std::latch begun(1);
    std::latch mayGo(1);
    occupy(threads, begun, mayGo);
    std::string order;
    for (const char letter : {'a', 'b'}) threads.run(1, [&order, letter] { order += letter; });
    for (const char letter : {'C', 'D'}) threads.run(0, [&order, letter] { order += letter; });
    mayGo.count_down();
    ASSERT_TRUE(drainThreads(untilDone));
    EXPECT_EQ(order, "CDab");
}

TEST_F(LinuxTaskPoolTest, drainWaitsForQueuedTasksAndTheirCaptures) {
    struct Held {
        std::atomic<int>& gone;
        explicit Held(std::atomic<int>& counter) : gone(counter) {}
        Held(const Held&) = delete;
        ~Held() {
            std::this_thread::yield();
            ++gone;
        }
    };
    TaskPool& threads = pool(2);
    std::atomic<int> gone = 0;
    std::latch begun(1);
    std::latch mayGo(1);
    occupy(threads, begun, mayGo);
    for (int task = 0; task < 500; ++task) threads.run(0, [held = std::make_shared<Held>(gone)] {});
    begun.wait();
    EXPECT_FALSE(drainThreads(0));
    mayGo.count_down();
    ASSERT_TRUE(drainThreads(untilDone));
    EXPECT_EQ(gone, 500);
}

TEST_F(LinuxTaskPoolTest, drainIgnoresIdleThreads) {
    TaskPool& threads = pool(4);
    std::latch all(4);
    for (int task = 0; task < 4; ++task) threads.run(0, [&] { all.arrive_and_wait(); });
    ASSERT_TRUE(drainThreads(untilDone));
    EXPECT_EQ(threads.threadCount(), 4u);
    EXPECT_TRUE(drainThreads(0));
}

TEST_F(LinuxTaskPoolTest, closeFinishesQueuedTasksAndEndsThreads) {
    TaskPool& threads = pool(1);
    std::latch begun(1);
    std::latch mayGo(1);
    std::atomic<int> runs = 0;
    occupy(threads, begun, mayGo);
    for (int task = 0; task < 50; ++task) threads.run(task % 2, [&] { ++runs; });
    threads.close();
    mayGo.count_down();
    ASSERT_TRUE(drainThreads(untilDone));
    EXPECT_EQ(runs, 50);
    EXPECT_EQ(threads.threadCount(), 0u);
}

TEST_F(LinuxTaskPoolTest, isDestroyedWithItsLastThread) {
    std::weak_ptr<TaskPool> seen;
    {
        const auto threads = std::make_shared<TaskPool>(TaskPool::Options{"zelk.test.pool", 2, 0, forGood});
        seen = threads;
        threads->run(0, [] {});
        threads->close();
    }
    ASSERT_TRUE(drainThreads(untilDone));
    EXPECT_TRUE(seen.expired());
}

// Each task waits for its subtask, three times as deep as there are threads.
TEST_F(LinuxTaskPoolTest, taskMayAwaitItsSubtaskWhenAllThreadsAreBusy) {
    TaskPool& threads = pool(4);
    std::atomic<int> ended = 0;
    std::function<void(int)> nested = [&](int depth) {
        if (depth > 0) {
            std::promise<void> below;
            threads.run(0, [&] {
                nested(depth - 1);
                below.set_value();
            });
            below.get_future().wait();
        }
        ++ended;
    };
    for (int task = 0; task < 4; ++task) threads.run(0, [&] { nested(12); });
    ASSERT_TRUE(drainThreads(untilDone));
    EXPECT_EQ(ended, 4 * 13);
}

TEST_F(LinuxTaskPoolTest, taskWithSubtaskIsNotDelayedByQueuedTasks) {
    TaskPool& threads = pool(1);
    std::latch mayGo(1);
    std::string order;
    threads.run(0, [&] {
        mayGo.wait();
        threads.run(0, [&] { order += "given "; });
        order += "giver ";
    });
    threads.run(0, [&] { order += "queued"; });
    mayGo.count_down();
    ASSERT_TRUE(drainThreads(untilDone));
    EXPECT_EQ(order, "given giver queued");
}

// A caller on another pool's thread is not this pool's task: nothing here waits for it.
TEST_F(LinuxTaskPoolTest, taskOfAnotherPoolIsQueued) {
    TaskPool& busy = pool(1);
    TaskPool& other = pool(1);
    std::latch begun(1);
    std::latch mayGo(1);
    occupy(busy, begun, mayGo);
    std::thread::id giver;
    std::thread::id runner;
    other.run(0, [&] {
        giver = std::this_thread::get_id();
        busy.run(0, [&] { runner = std::this_thread::get_id(); });
        mayGo.count_down();
    });
    ASSERT_TRUE(drainThreads(untilDone));
    EXPECT_NE(runner, std::thread::id());
    EXPECT_NE(runner, giver);
}

TEST_F(LinuxTaskPoolTest, threadsHaveGivenNameStackAndNiceness) {
    constexpr int niceness = 7;
    TaskPool& threads = pool(1, forGood, niceness);
    std::string name;
    int nice = 0;
    std::size_t stack = 0;
    threads.run(0, [&] {
        name = currentThreadName();
        nice = ::getpriority(PRIO_PROCESS, 0);
        pthread_attr_t attributes;
        if (::pthread_getattr_np(::pthread_self(), &attributes) != 0) return;
        ::pthread_attr_getstacksize(&attributes, &stack);
        ::pthread_attr_destroy(&attributes);
    });
    ASSERT_TRUE(drainThreads(untilDone));
    EXPECT_EQ(name, "zelk.test.pool");
    EXPECT_EQ(nice, std::max(niceness, ::getpriority(PRIO_PROCESS, 0)));
    EXPECT_GE(stack, TaskPool::stackBytes);
    EXPECT_LT(stack, 2 * TaskPool::stackBytes);
}

TEST_F(LinuxTaskPoolTest, runsOnTheCallerWhenNoThreadCanStart) {
    TaskPool& threads = pool(3);
    int onCaller = 0;
    const auto held = std::make_shared<int>(1);
    withoutNewThreads([&] {
        for (int task = 0; task < 3; ++task) {
            threads.run(0, [&onCaller, held, caller = std::this_thread::get_id()] {
                onCaller += std::this_thread::get_id() == caller ? 1 : 0;
            });
        }
    });
    EXPECT_EQ(onCaller, 3);
    EXPECT_EQ(held.use_count(), 1);
    EXPECT_EQ(threads.threadCount(), 0u);
    EXPECT_TRUE(drainThreads(0));
}

TEST_F(LinuxTaskPoolTest, queuesForABusyThreadWhenNoOtherCanStart) {
    TaskPool& threads = pool(3);
    std::latch begun(1);
    std::latch mayGo(1);
    occupy(threads, begun, mayGo);
    begun.wait();
    std::thread::id caller;
    std::thread::id runner;
    withoutNewThreads([&] {
        caller = std::this_thread::get_id();
        threads.run(0, [&] { runner = std::this_thread::get_id(); });
        mayGo.count_down();
        EXPECT_TRUE(drainThreads(untilDone));
    });
    EXPECT_NE(runner, std::thread::id());
    EXPECT_NE(runner, caller);
}

TEST_F(LinuxTaskPoolTest, taskMayAwaitItsSubtaskWhenNoThreadCanStart) {
    TaskPool& threads = pool(3);
    bool waited = false;
    fakes::behindGate(
        SYS_clone3, [](unsigned call) { return call == 0 ? 0 : EAGAIN; },
        [&] {
            threads.run(0, [&] {
                std::promise<void> below;
                threads.run(0, [&] { below.set_value(); });
                below.get_future().wait();
                waited = true;
            });
            EXPECT_TRUE(drainThreads(untilDone));
            threads.close();  // the gate is there for as long as a thread that stands behind it
        });
    EXPECT_TRUE(waited);
}

TEST_F(LinuxTaskPoolTest, taskOfAnotherPoolIsQueuedWhenNoThreadCanStart) {
    TaskPool& busy = pool(3);
    TaskPool& other = pool(1);
    std::latch begun(1);
    std::latch mayGo(1);
    occupy(busy, begun, mayGo);
    begun.wait();
    std::thread::id giver;
    std::thread::id runner;
    fakes::behindGate(
        SYS_clone3, [](unsigned call) { return call == 0 ? 0 : EAGAIN; },
        [&] {
            other.run(0, [&] {
                giver = std::this_thread::get_id();
                busy.run(0, [&] { runner = std::this_thread::get_id(); });
                mayGo.count_down();
            });
            EXPECT_TRUE(drainThreads(untilDone));
            other.close();  // the gate is there for as long as a thread that stands behind it
        });
    EXPECT_NE(runner, std::thread::id());
    EXPECT_NE(runner, giver);
}

// Two callers each rely on the thread that the other is starting, and neither succeeds.
TEST_F(LinuxTaskPoolTest, failedLastThreadLeavesNothingQueued) {
    TaskPool& threads = pool(3);
    std::latch firstAsks(1);
    std::latch secondIsBack(1);
    std::atomic<int> runs = 0;
    std::thread first([&] {
        fakes::behindGate(
            SYS_clone3,
            [&](unsigned) {
                firstAsks.count_down();
                secondIsBack.wait();
                return EAGAIN;
            },
            [&] { threads.run(0, [&] { ++runs; }); });
    });
    firstAsks.wait();
    withoutNewThreads([&] { threads.run(1, [&] { ++runs; }); });
    EXPECT_EQ(runs, 0);
    secondIsBack.count_down();
    first.join();
    EXPECT_EQ(runs, 2);
    EXPECT_TRUE(drainThreads(0));
}

}  // namespace
}  // namespace zelk
