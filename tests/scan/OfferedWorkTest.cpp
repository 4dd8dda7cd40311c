// SPDX-License-Identifier: MIT
#include "scan/OfferedWork.h"

#include <gtest/gtest.h>

#include <atomic>
#include <functional>
#include <thread>
#include <vector>

namespace zelk {
namespace {

/// Counts how often each part is run.
class CountedWork : public SharedWork {
public:
    explicit CountedWork(std::size_t parts) : times(parts) {}

    std::size_t parts() const override { return times.size(); }
    void run(std::size_t index) override {
        ++times.at(index);
        afterEach(index);
    }

    std::vector<std::atomic<int>> times;
    std::function<void(std::size_t index)> afterEach = [](std::size_t) {};
};

TEST(OfferedWork, isDoneInOrderByOneAlone) {
    std::vector<std::size_t> order;
    CountedWork work(5);
    work.afterEach = [&](std::size_t index) { order.push_back(index); };
    OfferedWork offer(work);
    EXPECT_EQ(offer.parts(), 5U);
    EXPECT_FALSE(offer.isBegun());
    offer.join(CancelFlag());
    EXPECT_TRUE(offer.isBegun());
    EXPECT_EQ(order, (std::vector<std::size_t>{0, 1, 2, 3, 4}));
    offer.join(CancelFlag());
    EXPECT_EQ(order.size(), 5U) << "there is none left";
}

TEST(OfferedWork, isDoneOnceByAnyNumberOfThreads) {
    CountedWork work(20'000);
    OfferedWork offer(work);
    const CancelFlag cancel;
    std::vector<std::thread> threads;
    for (int i = 0; i < 4; ++i) threads.emplace_back([&] { offer.join(cancel); });
    for (std::thread& thread : threads) thread.join();
    EXPECT_TRUE(offer.isBegun());
    for (const auto& times : work.times) ASSERT_EQ(times, 1);
}

TEST(OfferedWork, isNotBegunOnceCancelled) {
    CountedWork work(3);
    OfferedWork offer(work);
    CancelFlag cancel;
    cancel.set();
    offer.join(cancel);
    EXPECT_FALSE(offer.isBegun());
    for (const auto& times : work.times) EXPECT_EQ(times, 0);
}

TEST(OfferedWork, isLeftAfterThePartInWhichItIsCancelled) {
    for (const int cancelledIn : {1, 2, 3}) {
        CountedWork work(3);
        OfferedWork offer(work);
        CancelFlag cancel;
        work.afterEach = [&, left = cancelledIn](std::size_t) mutable {
            if (--left == 0) cancel.set();
        };
        offer.join(cancel);
        for (int part = 0; part < 3; ++part)
            EXPECT_EQ(work.times[static_cast<std::size_t>(part)], part < cancelledIn ? 1 : 0);
        EXPECT_EQ(offer.isBegun(), cancelledIn == 3) << "whoever began the last part ends it";
    }
}

TEST(OfferedWork, ofNoPartsIsBegunFromTheStart) {
    CountedWork work(0);
    OfferedWork offer(work);
    EXPECT_TRUE(offer.isBegun());
    offer.join(CancelFlag());
    EXPECT_TRUE(offer.isBegun());
}

}  // namespace
}  // namespace zelk
