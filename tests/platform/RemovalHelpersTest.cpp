// SPDX-License-Identifier: MIT
#include "platform/posix/RemovalHelpers.h"

#include <gtest/gtest.h>

#include <atomic>
#include <latch>
#include <mutex>
#include <set>
#include <thread>
#include <utility>
#include <vector>

#include "platform/Thread.h"

namespace zelk {
namespace {

using Range = std::pair<std::size_t, std::size_t>;

TEST(RemovalHelpers, areFewerThanProcessorsAndAtMostThree) {
    EXPECT_LE(RemovalHelpers::usualMost(), 3u);
    EXPECT_LT(RemovalHelpers::usualMost(), std::max(1U, std::thread::hardware_concurrency()));
}

TEST(RemovalHelpers, startsUpToItsLimit) {
    std::latch mayGo(1);
    std::atomic<int> ran{0};
    RemovalHelpers helpers(2);
    const auto body = [&] {
        mayGo.wait();
        ++ran;
    };
    EXPECT_TRUE(helpers.mayStart());
    EXPECT_TRUE(helpers.start(body));
    EXPECT_TRUE(helpers.start(body));
    EXPECT_FALSE(helpers.mayStart());
    EXPECT_FALSE(helpers.start(body));
    mayGo.count_down();
    helpers.wait();
    EXPECT_EQ(ran, 2);
}

TEST(RemovalHelpers, countsTheHelpersOfAllRemovals) {
    std::latch mayGo(1);
    RemovalHelpers first(1);
    ASSERT_TRUE(first.start([&] { mayGo.wait(); }));
    RemovalHelpers second(1);
    EXPECT_FALSE(second.mayStart());
    EXPECT_FALSE(second.start([] {}));
    mayGo.count_down();
    first.wait();
    EXPECT_TRUE(second.start([] {}));
}

TEST(RemovalHelpers, waitsForThemAndDropsWhatTheyHold) {
    const auto held = std::make_shared<int>(0);
    std::atomic<bool> ended{false};
    {
        RemovalHelpers helpers(1);
        ASSERT_TRUE(helpers.start([held, &ended] {
            for (int times = 0; times < 1000; ++times) std::this_thread::yield();
            ended = true;
        }));
    }
    EXPECT_TRUE(ended);
    EXPECT_EQ(held.use_count(), 1);
}

TEST(RemoveInRanges, takesEachNumberOnce) {
    for (const std::size_t count : {0U, 1U, 31U, 32U, 33U, 64U, 1000U}) {
        std::mutex mutex;
        std::multiset<std::size_t> numbers;
        removeInRanges(count, [&](std::size_t first, std::size_t end) {
            EXPECT_LT(first, end);
            EXPECT_LE(end - first, 32u);
            const std::lock_guard lock(mutex);
            for (std::size_t number = first; number < end; ++number) numbers.insert(number);
        });
        EXPECT_EQ(numbers.size(), count);
        for (std::size_t number = 0; number < count; ++number) EXPECT_EQ(numbers.count(number), 1u);
    }
}

TEST(RemoveInRanges, givesAwayAsManyAtOnceAsAreWorthIt) {
    for (const std::size_t count : {31U, 32U, 33U, 100U}) {
        std::atomic<std::size_t> ranges{0};
        removeInRanges(count, [&](std::size_t first, std::size_t end) {
            ++ranges;
            EXPECT_EQ(first % 32, 0u);
            EXPECT_TRUE(end - first == 32 || end == count);
        });
        EXPECT_EQ(ranges, (count + 31) / 32);
    }
}

TEST(RemoveInRanges, staysOnThisThreadForFew) {
    const std::thread::id here = std::this_thread::get_id();
    removeInRanges(32, [&](std::size_t, std::size_t) { EXPECT_EQ(std::this_thread::get_id(), here); });
}

TEST(RemoveInRanges, hasHelpForMany) {
    if (RemovalHelpers::usualMost() == 0) return;  // with one processor there is none
    std::latch both(2);
    // Would wait forever if one thread took both.
    removeInRanges(64, [&](std::size_t, std::size_t) { both.arrive_and_wait(); });
}

}  // namespace
}  // namespace zelk
