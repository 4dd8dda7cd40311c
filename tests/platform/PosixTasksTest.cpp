// SPDX-License-Identifier: MIT
#include "platform/posix/PosixTasks.h"

#include <gtest/gtest.h>

#include <atomic>
#include <latch>
#include <memory>
#include <mutex>
#include <set>
#include <string>
#include <thread>
#include <vector>

#ifdef __linux__
#include <sys/resource.h>

#include <algorithm>
#include <chrono>
#include <filesystem>
#include <iterator>
#endif

#include "fakes/SystemCallGate.h"
#include "platform/posix/ThreadCount.h"

namespace zelk {
namespace {

constexpr double longEnough = 1e6;
constexpr TaskPriority priorities[] = {TaskPriority::userInitiated, TaskPriority::standard, TaskPriority::utility};

TEST(ThreadTasks, runsEveryTaskOnce) {
    ThreadTasks tasks;
    std::vector<std::atomic<int>> runs(300);
    for (std::size_t number = 0; number < runs.size(); ++number)
        tasks.run(priorities[number % 3], [&runs, number] { ++runs[number]; });
    ASSERT_TRUE(drainThreads(longEnough));
    for (const std::atomic<int>& count : runs) EXPECT_EQ(count, 1);
}

// Each task waits for all others: on fewer threads this would never end.
TEST(ThreadTasks, runsTasksConcurrently) {
    ThreadTasks tasks;
    std::latch all(12);
    std::vector<std::thread::id> threads(12);
    for (std::size_t number = 0; number < threads.size(); ++number) {
        tasks.run(priorities[number % 3], [&, number] {
            threads[number] = std::this_thread::get_id();
            all.arrive_and_wait();
        });
    }
    ASSERT_TRUE(drainThreads(longEnough));
    const std::set<std::thread::id> different(threads.begin(), threads.end());
    EXPECT_EQ(different.size(), threads.size());
    EXPECT_FALSE(different.contains(std::this_thread::get_id()));
}

// The tools block until an item that was submitted after all of them is done.
TEST(ThreadTasks, stalledApartTasksBlockNothing) {
    ThreadTasks tasks;
    constexpr int stalling = 150;
    std::latch allStall(stalling);
    std::latch done(3);
    for (int number = 0; number < stalling; ++number) {
        tasks.runApart(priorities[number % 3], [&] {
            allStall.count_down();
            done.wait();
        });
    }
    allStall.wait();
    for (const TaskPriority priority : priorities) tasks.run(priority, [&] { done.count_down(); });
    EXPECT_TRUE(drainThreads(longEnough));
}

TEST(ThreadTasks, releasesApartTaskOnceOnItsOwnThread) {
    ThreadTasks tasks;
    std::atomic<int> runs = 0;
    const auto held = std::make_shared<int>(1);
    for (int number = 0; number < 50; ++number) tasks.runApart(TaskPriority::standard, [&runs, held] { ++runs; });
    EXPECT_TRUE(drainThreads(longEnough));
    EXPECT_EQ(runs, 50);
    EXPECT_EQ(held.use_count(), 1);
}

TEST(ThreadTasks, taskOutlivesThreadTasks) {
    std::latch go(1);
    std::atomic<bool> ended = false;
    {
        ThreadTasks tasks;
        tasks.run(TaskPriority::utility, [&] {
            go.wait();
            ended = true;
        });
    }
    go.count_down();
    EXPECT_TRUE(drainThreads(longEnough));
    EXPECT_TRUE(ended);
}

TEST(ThreadTasks, drainWaitsForReleasedCaptures) {
    ThreadTasks tasks;
    std::vector<std::weak_ptr<int>> held;
    for (int number = 0; number < 50; ++number) {
        auto one = std::make_shared<int>(number);
        held.push_back(one);
        tasks.run(TaskPriority::standard, [own = std::move(one)] { std::this_thread::yield(); });
    }
    ASSERT_TRUE(drainThreads(longEnough));
    for (const std::weak_ptr<int>& one : held) EXPECT_TRUE(one.expired());
}

/// Counts its copies; moves are free.
struct CountsCopies {
    std::atomic<int>& copies;
    explicit CountsCopies(std::atomic<int>& counter) : copies(counter) {}
    CountsCopies(const CountsCopies& other) : copies(other.copies) { ++copies; }
    CountsCopies(CountsCopies&& other) noexcept = default;
    void operator()() const {}
};

// A second copy might be destroyed last, on the submitting thread, although it may be large.
TEST(ThreadTasks, movesTasksWithoutCopying) {
    ThreadTasks tasks;
    std::atomic<int> copies = 0;
    std::function<void()> task = CountsCopies(copies);
    tasks.run(TaskPriority::utility, std::move(task));
    EXPECT_TRUE(drainThreads(longEnough));
    EXPECT_EQ(copies, 0);
}

TEST(ThreadTasks, releasesTaskOnItsOwnThread) {
    struct Witness {
        std::atomic<int>& onCaller;
        std::thread::id caller = std::this_thread::get_id();
        explicit Witness(std::atomic<int>& counter) : onCaller(counter) {}
        Witness(const Witness&) = delete;
        ~Witness() { onCaller += std::this_thread::get_id() == caller ? 1 : 0; }
    };
    ThreadTasks tasks;
    std::atomic<int> onCaller = 0;
    for (int number = 0; number < 200; ++number) {
        std::function<void()> task = [held = std::make_shared<Witness>(onCaller)] {};
        tasks.run(TaskPriority::utility, std::move(task));
    }
    EXPECT_TRUE(drainThreads(longEnough));
    EXPECT_EQ(onCaller, 0);
}

TEST(ThreadTasks, taskMayStartOthers) {
    ThreadTasks tasks;
    std::atomic<int> runs = 0;
    std::function<void(int)> spread = [&](int depth) {
        ++runs;
        for (int branch = 0; depth > 0 && branch < 2; ++branch)
            tasks.run(TaskPriority::standard, [&spread, depth] { spread(depth - 1); });
    };
    tasks.run(TaskPriority::standard, [&] { spread(5); });
    EXPECT_TRUE(drainThreads(longEnough));
    EXPECT_EQ(runs, 63);
}

#ifdef __linux__

/// The threads of the process except the calling one.
std::ptrdiff_t otherThreads() {
    return std::distance(std::filesystem::directory_iterator("/proc/self/task"), {}) - 1;
}

/// Like otherThreads(), after starting one thread: with the first one, a sanitizer starts a permanent one of its own.
std::ptrdiff_t otherPermanentThreads() {
    std::thread([] {}).join();
    return otherThreads();
}

// Only as many tasks as threads run concurrently, and waiting tasks do not delay urgent ones.
TEST(ThreadTasks, tenThousandTasksUseAtMostSixtyFourThreads) {
    ThreadTasks tasks;
    static_assert(ThreadTasks::maxUrgentThreads + ThreadTasks::maxPatientThreads == 64);
    const std::ptrdiff_t before = otherPermanentThreads();
    std::latch mayGo(1);
    std::latch allTaken(ThreadTasks::maxPatientThreads);
    std::atomic<std::size_t> begun = 0;
    for (int number = 0; number < 10'000; ++number) {
        tasks.run(TaskPriority::utility, [&] {
            if (++begun <= ThreadTasks::maxPatientThreads) allTaken.count_down();
            mayGo.wait();
        });
    }
    allTaken.wait();
    EXPECT_EQ(begun, ThreadTasks::maxPatientThreads);
    std::latch urgent(20);
    for (int number = 0; number < 20; ++number) tasks.run(priorities[number % 2], [&] { urgent.arrive_and_wait(); });
    urgent.wait();
    EXPECT_LE(otherThreads() - before, 64);
    mayGo.count_down();
    ASSERT_TRUE(drainThreads(longEnough));
    EXPECT_EQ(begun, 10'000U);
}

TEST(ThreadTasks, userInitiatedTasksRunFirst) {
    ThreadTasks tasks;
    std::latch allTaken(ThreadTasks::maxUrgentThreads);
    std::latch mayGo(1);
    std::latch tasksEnd(1);
    std::mutex mutex;
    std::string order;
    for (std::size_t number = 0; number < ThreadTasks::maxUrgentThreads; ++number) {
        // One thread continues, and the others stay blocked.
        tasks.run(TaskPriority::standard, [&, number] {
            allTaken.count_down();
            number == 0 ? mayGo.wait() : tasksEnd.wait();
        });
    }
    allTaken.wait();
    for (const TaskPriority priority : {TaskPriority::standard, TaskPriority::userInitiated}) {
        tasks.run(priority, [&, priority] {
            const std::lock_guard lock(mutex);
            order += priority == TaskPriority::userInitiated ? 'u' : 's';
            if (order.size() == 2) tasksEnd.count_down();
        });
    }
    mayGo.count_down();
    EXPECT_TRUE(drainThreads(longEnough));
    EXPECT_EQ(order, "us");
}

TEST(ThreadTasks, nicesExactlyUtilityTasks) {
    ThreadTasks tasks;
    const int own = ::getpriority(PRIO_PROCESS, 0);
    const int niced = std::max(own, 10);
    std::atomic<int> wrong = 0;
    for (int number = 0; number < 300; ++number) {
        const TaskPriority priority = priorities[number % 3];
        const auto check = [&wrong, expected = priority == TaskPriority::utility ? niced : own] {
            wrong += ::getpriority(PRIO_PROCESS, 0) == expected ? 0 : 1;
        };
        tasks.run(priority, check);
        if (number % 10 == 0) tasks.runApart(priority, check);
    }
    EXPECT_TRUE(drainThreads(longEnough));
    EXPECT_EQ(wrong, 0);
}

TEST(ThreadTasks, endsItsThreadsOnDestruction) {
    const std::ptrdiff_t before = otherPermanentThreads();
    {
        ThreadTasks tasks(std::chrono::hours(24 * 365));  // idle threads would otherwise stay
        std::latch all(12);
        for (int number = 0; number < 12; ++number) tasks.run(priorities[number % 3], [&] { all.arrive_and_wait(); });
        EXPECT_TRUE(drainThreads(longEnough));
    }
    EXPECT_TRUE(drainThreads(longEnough));
    // Threads count as ended a moment before the kernel removes them.
    while (otherThreads() > before) std::this_thread::yield();
}

TEST(ThreadTasks, runsOnTheCallerWhenNoThreadCanStart) {
    ASSERT_TRUE(drainThreads(longEnough));  // from earlier tests
    ThreadTasks tasks;
    int runs = 0;
    unsigned refused = 0;
    const auto held = std::make_shared<int>(1);
    fakes::behindGate(
        SYS_clone3, [&](unsigned) { return ++refused, EAGAIN; },
        [&] {
            for (const TaskPriority priority : priorities) {
                const auto task = [&runs, held, caller = std::this_thread::get_id()] {
                    runs += std::this_thread::get_id() == caller ? 1 : 0;
                };
                tasks.run(priority, task);
                tasks.runApart(priority, task);
            }
        });
    EXPECT_EQ(refused, 9u);  // runApart() tries a thread of its own, then one of the pool
    EXPECT_EQ(runs, 6);
    EXPECT_EQ(held.use_count(), 1);
    EXPECT_TRUE(drainThreads(0));
}

#endif

}  // namespace
}  // namespace zelk
