// SPDX-License-Identifier: MIT
#include "scan/UpdateQueue.h"

#include <gtest/gtest.h>

#include <thread>

namespace zelk {
namespace {

std::int64_t scanned(const ScanUpdate& update) {
    return std::get<update::Progress>(update).scanned;
}

TEST(UpdateQueue, keepsOrderOfYields) {
    UpdateQueue queue;
    for (int i = 0; i < 5; ++i) queue.yield(update::Progress{i, 0, {}});
    const auto batch = queue.takeAll();
    ASSERT_EQ(batch.updates.size(), 5U);
    for (int i = 0; i < 5; ++i) EXPECT_EQ(scanned(batch.updates[static_cast<std::size_t>(i)]), i);
    EXPECT_FALSE(batch.ended);
    EXPECT_TRUE(queue.takeAll().updates.empty());
}

TEST(UpdateQueue, deliversUpdatesYieldedBeforeFinish) {
    UpdateQueue queue;
    queue.yield(update::Blocked{3});
    queue.finish();
    queue.yield(update::Blocked{4});
    const auto batch = queue.takeAll();
    ASSERT_EQ(batch.updates.size(), 1U);
    EXPECT_TRUE(batch.ended);
}

TEST(UpdateQueue, terminateDropsEverything) {
    UpdateQueue queue;
    queue.yield(update::Blocked{1});
    queue.terminate();
    queue.yield(update::Blocked{2});
    const auto batch = queue.takeAll();
    EXPECT_TRUE(batch.updates.empty());
    EXPECT_TRUE(batch.ended);
}

TEST(UpdateQueue, runsTerminationHandlerOnce) {
    for (const bool readerFirst : {true, false}) {
        UpdateQueue queue;
        int runs = 0;
        queue.setTerminationHandler([&runs] { ++runs; });
        if (readerFirst) queue.terminate();
        queue.finish();
        queue.terminate();
        queue.finish();
        EXPECT_EQ(runs, 1);
    }
}

TEST(UpdateQueue, handlerSetAfterTheEndRunsAtOnce) {
    UpdateQueue queue;
    queue.terminate();
    int runs = 0;
    queue.setTerminationHandler([&runs] { ++runs; });
    EXPECT_EQ(runs, 1);
}

TEST(UpdateQueue, wakesTheReaderOncePerBatch) {
    UpdateQueue queue;
    int wakes = 0;
    queue.setWakeReader([&wakes] { ++wakes; });
    queue.yield(update::Blocked{1});
    queue.yield(update::Blocked{2});
    EXPECT_EQ(wakes, 1);
    queue.takeAll();
    queue.yield(update::Blocked{3});
    EXPECT_EQ(wakes, 2);
    queue.finish();
    EXPECT_EQ(wakes, 2) << "the reader has been woken and not yet come";
    EXPECT_TRUE(queue.takeAll().ended);
}

TEST(UpdateQueue, finishWakesTheReader) {
    UpdateQueue queue;
    int wakes = 0;
    queue.setWakeReader([&wakes] { ++wakes; });
    queue.finish();
    EXPECT_EQ(wakes, 1);
}

TEST(UpdateQueue, terminatedReaderIsNotWoken) {
    UpdateQueue queue;
    int wakes = 0;
    queue.setWakeReader([&wakes] { ++wakes; });
    queue.terminate();
    queue.yield(update::Blocked{1});
    queue.finish();
    EXPECT_EQ(wakes, 0);
}

TEST(UpdateQueue, concurrentWritersLoseNothing) {
    UpdateQueue queue;
    constexpr std::int64_t each = 5000;
    std::vector<std::thread> writers;
    for (int w = 0; w < 4; ++w) {
        writers.emplace_back([&] {
            for (std::int64_t i = 0; i < each; ++i) queue.yield(update::Progress{i, 0, "path"});
        });
    }
    std::int64_t taken = 0;
    while (taken < 4 * each) taken += static_cast<std::int64_t>(queue.takeAll().updates.size());
    for (std::thread& writer : writers) writer.join();
    EXPECT_TRUE(queue.takeAll().updates.empty());
}

TEST(UpdateQueue, releasesDroppedTreeAtOnce) {
    UpdateQueue queue;
    NodeRef top = FSNode::make("", 0);
    const NodeRef child(&top->append("/r", 0));
    queue.yield(update::Finished{std::exchange(top, nullptr), {}});
    queue.terminate();
    EXPECT_EQ(child->arena().references(), 1U);
}

}  // namespace
}  // namespace zelk
