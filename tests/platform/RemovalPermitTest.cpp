// SPDX-License-Identifier: MIT
#include "platform/posix/RemovalPermit.h"

#include <gtest/gtest.h>
#include <sys/resource.h>

#include <atomic>
#include <latch>
#include <memory>
#include <thread>
#include <vector>

#include "fakes/InChild.h"

namespace zelk {
namespace {

/// Runs `check` in a child process that may open so many descriptors.
template <class Check>
bool withDescriptors(rlim_t descriptors, Check check) {
    return fakes::inChild([&] {
        const rlimit limit{descriptors, descriptors};
        return ::setrlimit(RLIMIT_NOFILE, &limit) == 0 && check();
    });
}

void letOthersRun() {
    for (int times = 0; times < 1000; ++times) std::this_thread::yield();
}

/// Whether exactly so many permits are granted at the same time.
bool grantsExactly(int wanted) {
    std::latch all(wanted);
    std::latch mayGo(1);
    std::atomic<bool> oneMore = false;
    std::atomic<bool> leaving = false;
    std::atomic<bool> tooEarly = false;
    std::vector<std::thread> threads;
    for (int number = 0; number < wanted; ++number) {
        threads.emplace_back([&] {
            const RemovalPermit permit;
            all.arrive_and_wait();
            mayGo.wait();
            leaving = true;
        });
    }
    all.wait();
    threads.emplace_back([&] {
        oneMore = true;
        const RemovalPermit permit;
        tooEarly = !leaving;
    });
    while (!oneMore) std::this_thread::yield();
    letOthersRun();
    mayGo.count_down();
    for (std::thread& thread : threads) thread.join();
    return !tooEarly;
}

TEST(RemovalPermit, grantsOnePer32DescriptorsBetween2And64) {
    EXPECT_TRUE(withDescriptors(16, [] { return grantsExactly(2); }));
    EXPECT_TRUE(withDescriptors(32 * 7, [] { return grantsExactly(7); }));
    EXPECT_TRUE(withDescriptors(4096, [] { return grantsExactly(64); }));
}

TEST(RemovalPermit, isFreeWithoutWaitingWhereThereAreDescriptorsForIt) {
    EXPECT_TRUE(withDescriptors(31, [] { return RemovalPermit::ifFree() == nullptr; }));
    EXPECT_TRUE(withDescriptors(32 * 3, [] {
        std::vector<std::unique_ptr<RemovalPermit>> all;
        for (int permit = 0; permit < 3; ++permit) all.push_back(RemovalPermit::ifFree());
        if (all.back() == nullptr || RemovalPermit::ifFree() != nullptr) return false;
        all.pop_back();
        return RemovalPermit::ifFree() != nullptr;
    }));
}

TEST(RemovalPermit, oneThatWasFreeLetsAWaiterGoOn) {
    EXPECT_TRUE(withDescriptors(64, [] {
        std::unique_ptr<RemovalPermit> first = RemovalPermit::ifFree();
        const std::unique_ptr<RemovalPermit> second = RemovalPermit::ifFree();
        std::latch waits(1);
        std::atomic<bool> released = false;
        bool early = false;
        std::thread waiting([&] {
            waits.count_down();
            const RemovalPermit permit;
            early = !released;
        });
        waits.wait();
        letOthersRun();
        released = true;
        first.reset();
        waiting.join();
        return second != nullptr && !early;
    }));
}

// If each release woke every waiter, the threads would fall asleep again some eighty thousand times.
TEST(RemovalPermit, releaseWakesOneWaiter) {
    constexpr int waiting = 400;
    EXPECT_TRUE(withDescriptors(64, [] {
        std::latch all(waiting + 1);
        std::vector<std::thread> threads;
        {
            const RemovalPermit one;
            std::thread other([&] {
                const RemovalPermit second;
                all.wait();
                letOthersRun();
            });
            for (int number = 0; number < waiting; ++number) {
                threads.emplace_back([&] {
                    all.count_down();
                    const RemovalPermit permit;
                    letOthersRun();
                });
            }
            all.arrive_and_wait();
            other.join();
        }
        for (std::thread& thread : threads) thread.join();
        rusage used{};
        ::getrusage(RUSAGE_SELF, &used);
        return used.ru_nvcsw < 30 * waiting;
    }));
}

}  // namespace
}  // namespace zelk
