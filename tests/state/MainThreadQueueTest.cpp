// SPDX-License-Identifier: MIT
#include "state/MainThreadQueue.h"

#include <gtest/gtest.h>

#include <memory>
#include <optional>
#include <thread>
#include <vector>

#include "fakes/EventLoop.h"

namespace zelk {
namespace {

TEST(MainThreadQueue, runsInOrderOnMainThread) {
    MainThreadQueue queue;
    std::vector<int> ran;
    std::thread::id where;
    std::thread([&, sender = queue.sender()] {
        for (int number = 0; number < 100; ++number)
            sender.post([&, number] {
                ran.push_back(number);
                where = std::this_thread::get_id();
            });
    }).join();
    EXPECT_TRUE(ran.empty());
    runUntil([&] { return ran.size() == 100; });
    for (int number = 0; number < 100; ++number) EXPECT_EQ(ran[static_cast<std::size_t>(number)], number);
    EXPECT_EQ(where, std::this_thread::get_id());
}

TEST(MainThreadQueue, closureMayPostAnother) {
    MainThreadQueue queue;
    bool second = false;
    queue.sender().post([&] { queue.sender().post([&] { second = true; }); });
    runUntil([&] { return second; });
}

TEST(MainThreadQueue, destructionDropsPendingAndLaterClosures) {
    const auto alive = std::make_shared<int>(0);
    bool ran = false;
    std::optional<MainThreadQueue::Sender> sender;
    {
        MainThreadQueue queue;
        sender = queue.sender();
        sender->post([&ran, alive] { ran = true; });
        EXPECT_EQ(alive.use_count(), 2);
    }
    EXPECT_EQ(alive.use_count(), 1);
    sender->post([&ran, alive] { ran = true; });
    EXPECT_EQ(alive.use_count(), 1);
    runWhatIsThere();
    EXPECT_FALSE(ran);
}

TEST(MainThreadQueue, threadsMayPostDuringDestruction) {
    for (int round = 0; round < 50; ++round) {
        auto queue = std::make_unique<MainThreadQueue>();
        int ran = 0;
        std::vector<std::thread> threads;
        for (int thread = 0; thread < 4; ++thread)
            threads.emplace_back([&ran, sender = queue->sender()] {
                for (int number = 0; number < 50; ++number) sender.post([&ran] { ++ran; });
            });
        runUntil([&] { return ran > 0; });
        queue.reset();
        const int atTheEnd = ran;
        for (std::thread& thread : threads) thread.join();
        runWhatIsThere();
        EXPECT_EQ(ran, atTheEnd);
    }
}

}  // namespace
}  // namespace zelk
