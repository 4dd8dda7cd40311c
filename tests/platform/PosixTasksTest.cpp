// SPDX-License-Identifier: MIT
#include "platform/posix/PosixTasks.h"

#include <gtest/gtest.h>

#include <atomic>
#include <latch>
#include <memory>
#include <set>
#include <thread>
#include <vector>

#include "fakes/SystemCallGate.h"
#include "platform/posix/ThreadCount.h"

namespace zelk {
namespace {

constexpr double longEnough = 1e6;
constexpr TaskPriority priorities[] = {TaskPriority::userInitiated, TaskPriority::standard, TaskPriority::utility};

TEST(ThreadTasks, everyTaskRunsOnce) {
    ThreadTasks tasks;
    std::vector<std::atomic<int>> runs(300);
    for (std::size_t number = 0; number < runs.size(); ++number)
        tasks.run(priorities[number % 3], [&runs, number] { ++runs[number]; });
    ASSERT_TRUE(drainThreads(longEnough));
    for (const std::atomic<int>& count : runs) EXPECT_EQ(count, 1);
}

// Each waits for all the others: on fewer threads it would never end.
TEST(ThreadTasks, everyTaskHasAThreadOfItsOwn) {
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

TEST(ThreadTasks, taskOutlivesWhatStartedIt) {
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

TEST(ThreadTasks, whatATaskHoldsIsGoneOnceDrained) {
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

// A second copy might be the last to go, on the thread that asked: what a task is to release there is large.
TEST(ThreadTasks, taskIsHandedOverAndNotCopied) {
    ThreadTasks tasks;
    std::atomic<int> copies = 0;
    std::function<void()> task = CountsCopies(copies);
    tasks.run(TaskPriority::utility, std::move(task));
    EXPECT_TRUE(drainThreads(longEnough));
    EXPECT_EQ(copies, 0);
}

TEST(ThreadTasks, whatATaskHoldsGoesOnItsOwnThread) {
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

TEST(ThreadTasks, machineWithoutMoreThreadsRunsTheTaskOnTheCallers) {
    ThreadTasks tasks;
    int runs = 0;
    unsigned refused = 0;
    const auto held = std::make_shared<int>(1);
    fakes::behindGate(
        SYS_clone3, [&](unsigned) { return ++refused, EAGAIN; },
        [&] {
            for (const TaskPriority priority : priorities) {
                tasks.run(priority, [&runs, held, caller = std::this_thread::get_id()] {
                    runs += std::this_thread::get_id() == caller ? 1 : 0;
                });
            }
        });
    EXPECT_EQ(refused, 3u);
    EXPECT_EQ(runs, 3);
    EXPECT_EQ(held.use_count(), 1);
    EXPECT_TRUE(drainThreads(0));
}

#endif

}  // namespace
}  // namespace zelk
