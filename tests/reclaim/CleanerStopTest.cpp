// SPDX-License-Identifier: MIT
// Stopping a clean-up that is running.
#include <gmock/gmock.h>

#include "fakes/FakePlatform.h"
#include "reclaim/Cleaner.h"

namespace zelk {

namespace {

class CleanerStop : public testing::Test {
protected:
    void begin(std::size_t count) {
        std::vector<Reclaimable> items;
        for (std::size_t number = 0; number < count; ++number) {
            Reclaimable& item = items.emplace_back();
            item.id = item.path = "/cache/" + std::to_string(number);
            machine.files.addFile(item.path + "/file");
        }
        removal = std::make_shared<Removal>(count, [this](const Removal&) { events.emplace_back("ended"); });
        Cleaner::cleanAll(
            std::move(items), false, machine.platform(),
            [this](std::vector<Cleaner::Result> all) {
                events.emplace_back("results");
                results = std::move(all);
            },
            removal);
    }
    std::size_t skipped() const {
        return static_cast<std::size_t>(std::count_if(results.begin(), results.end(), [](const auto& result) {
            return std::holds_alternative<Cleaner::Skipped>(result.status);
        }));
    }

    fakes::FakePlatform machine;
    std::shared_ptr<Removal> removal;
    std::vector<Cleaner::Result> results;
    std::vector<std::string> events;
};

}  // namespace

TEST_F(CleanerStop, countsEveryItemAndEndsAfterResults) {
    begin(3);
    EXPECT_EQ(removal->done(), 3U);
    EXPECT_EQ(skipped(), 0U);
    EXPECT_EQ(events, (std::vector<std::string>{"results", "ended"}));
}

TEST_F(CleanerStop, countsFailedItems) {
    machine.files.failing = [](const auto& call) { return call.operation == "trash"; };
    begin(2);
    EXPECT_EQ(removal->done(), 2U);
    EXPECT_EQ(events.size(), 2U);
}

TEST_F(CleanerStop, skipsPendingItemsWithReason) {
    machine.tasks.hold();
    begin(3);
    machine.tasks.runNext();  // starts the others
    machine.tasks.runNext();
    removal->stop();
    machine.tasks.release();
    EXPECT_EQ(machine.trash.trashed(), std::vector<std::string>{"/cache/0"});
    ASSERT_EQ(results.size(), 3U);
    EXPECT_EQ(results[0].status, Cleaner::Status(Cleaner::Trashed{}));
    for (const std::size_t at : {1U, 2U}) {
        EXPECT_EQ(results[at].id, "/cache/" + std::to_string(at));
        EXPECT_EQ(results[at].item.path, results[at].id);
        EXPECT_EQ(results[at].status, Cleaner::Status(Cleaner::Skipped{"The clean-up was stopped before its turn."}));
        EXPECT_TRUE(machine.files.exists(results[at].id + "/file"));
    }
    EXPECT_EQ(removal->done(), 1U);
    EXPECT_EQ(events, (std::vector<std::string>{"results", "ended"}));
}

TEST_F(CleanerStop, skipsThousandsOfPendingItems) {
    constexpr std::size_t many = 4'000;
    machine.tasks.hold();
    begin(many);
    for (int run = 0; run < 11; ++run) machine.tasks.runNext();
    removal->stop();
    machine.tasks.release();
    EXPECT_EQ(machine.trash.trashed().size(), 10U);
    EXPECT_EQ(results.size(), many);
    EXPECT_EQ(skipped(), many - 10);
}

TEST_F(CleanerStop, stopBeforeFirstItemSkipsAll) {
    machine.tasks.hold();
    begin(3);
    removal->stop();
    machine.tasks.release();
    EXPECT_TRUE(machine.trash.trashed().empty());
    EXPECT_EQ(skipped(), 3U);
}

TEST_F(CleanerStop, finishesStartedItem) {
    machine.files.failing = [this](const auto& call) {
        if (call.operation == "trash") removal->stop();
        return false;
    };
    begin(2);
    EXPECT_EQ(machine.trash.trashed(), std::vector<std::string>{"/cache/0"});
    EXPECT_EQ(skipped(), 1U);
}

TEST_F(CleanerStop, doesNotRunPendingTool) {
    Reclaimable item;
    item.id = item.path = "/target";
    item.method = ReclaimMethod::command("/usr/bin/env", {"cargo", "clean"});
    removal = std::make_shared<Removal>(1, [](const Removal&) {});
    removal->stop();
    Cleaner::cleanAll(
        {item}, false, machine.platform(), [this](std::vector<Cleaner::Result> all) { results = std::move(all); },
        removal);
    EXPECT_TRUE(machine.processes.calls().empty());
    EXPECT_EQ(skipped(), 1U);
}

}  // namespace zelk
