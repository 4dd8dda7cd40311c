// SPDX-License-Identifier: MIT
#include "state/DevCleanupModel.h"

#include <gmock/gmock.h>

#include "fakes/EventLoop.h"
#include "fakes/FakePlatform.h"

namespace zelk {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class DevCleanupModelTest : public testing::Test {
protected:
    Reclaimable item(const std::string& path, std::uint64_t size, double daysOld = 100,
                     const std::string& category = "electron_cache") {
        machine.files.addFile(path, {}, size);
        return {path,
                path,
                size,
                category,
                ReclaimSafety::safe,
                ReclaimMethod::trash(),
                machine.clock.now() - daysOld * secondsPerDay};
    }
    Reclaimable command(const std::string& path, std::uint64_t size) {
        Reclaimable one = item(path, size);
        one.method = ReclaimMethod::command("/usr/bin/env", {"npm", "cache", "clean"});
        return one;
    }
    void cleanAndWait(DevCleanupModel::Items items, bool hardDelete = false) {
        model.clean(std::move(items), hardDelete);
        runUntil([&] { return !model.isCleaning(); });
    }

    fakes::FakePlatform machine;
    RemovalsModel removals;
    DevCleanupModel model{machine.platform(), removals};
};

}  // namespace

TEST_F(DevCleanupModelTest, startsWithFourteenDaysAndNothingSelected) {
    EXPECT_EQ(model.ageDays(), 14);
    EXPECT_THAT(model.selection().selected(), IsEmpty());
    EXPECT_FALSE(model.isCleaning());
    EXPECT_FALSE(model.showDryRun());
    EXPECT_EQ(model.reclaimedBytes(), 0);
}

TEST_F(DevCleanupModelTest, youngItemsAreNeitherShownNorCleaned) {
    const DevCleanupModel::Items items{item("/home/me/old", 10), item("/home/me/new", 20, 1)};
    model.seed(items);
    EXPECT_EQ(model.shown(items).size(), 1U);
    EXPECT_EQ(model.selectedBytes(items), 10);
    model.setAgeDays(0);
    EXPECT_EQ(model.selectedBytes(items), 30);
    EXPECT_EQ(model.groups(items).front().items.size(), 2U);
}

TEST_F(DevCleanupModelTest, readsRunningApplicationsOncePerSeed) {
    machine.workspace.running = {"", "Cursor"};
    const DevCleanupModel::Items items{item("/home/me/Cursor/Cache", 10), item("/home/me/Other/Cache", 20)};
    model.seed(items);
    EXPECT_EQ(machine.workspace.runningReads, 1);
    EXPECT_EQ(model.selection().conflictOf(items[0]), "Cursor");
    EXPECT_EQ(model.selectedBytes(items), 20);
    model.seed(items);
    EXPECT_EQ(machine.workspace.runningReads, 1);
}

TEST_F(DevCleanupModelTest, everythingMayBeInUseIfWhatRunsIsForgottenWhileItIsRead) {
    const DevCleanupModel::Items items{item("/home/me/Cursor/Cache", 10)};
    for (const bool known : {true, false}) {
        machine.workspace.runningKnown = known;
        machine.workspace.beforeRunningRead = [this, known] { machine.workspace.runningKnown = !known; };
        DevCleanupModel another{machine.platform(), removals};
        another.seed(items);
        EXPECT_EQ(another.selection().conflictOf(items[0]), Cleaner::unknownApplication) << known;
    }
}

TEST_F(DevCleanupModelTest, cleansGivenItemsAndSumsThem) {
    const DevCleanupModel::Items items{item("/home/me/a", 10), command("/home/me/b", 20)};
    cleanAndWait(items);
    EXPECT_THAT(machine.trash.trashed(), ElementsAre("/home/me/a"));
    EXPECT_EQ(machine.processes.calls().size(), 1U);
    EXPECT_EQ(model.lastResults().size(), 2U);
    EXPECT_EQ(model.reclaimedBytes(), 30);
}

TEST_F(DevCleanupModelTest, failedItemsAreNotSummed) {
    machine.files.failing = [](const auto& call) { return call.path == "/home/me/a"; };
    cleanAndWait({item("/home/me/a", 10), item("/home/me/b", 20)});
    EXPECT_EQ(model.reclaimedBytes(), 20);
    EXPECT_EQ(model.lastResults().size(), 2U);
}

TEST_F(DevCleanupModelTest, emptyCleaningEnds) {
    cleanAndWait({});
    EXPECT_THAT(model.lastResults(), IsEmpty());
}

TEST_F(DevCleanupModelTest, secondCleaningMeanwhileDoesNothing) {
    machine.tasks.hold();
    model.clean({item("/home/me/a", 10)}, false);
    model.clean({item("/home/me/b", 20)}, false);
    machine.tasks.release();
    runUntil([&] { return !model.isCleaning(); });
    EXPECT_THAT(machine.trash.trashed(), ElementsAre("/home/me/a"));
}

TEST_F(DevCleanupModelTest, modelMayBeDestroyedWhileCleaning) {
    auto other = std::make_unique<DevCleanupModel>(machine.platform(), removals);
    machine.tasks.hold();
    other->clean({item("/home/me/a", 10)}, false);
    other.reset();
    machine.tasks.release();
    runWhatIsThere();
    EXPECT_THAT(machine.trash.trashed(), ElementsAre("/home/me/a"));
}

TEST_F(DevCleanupModelTest, countsAsRemovalWhileCleaning) {
    machine.tasks.hold();
    model.clean({item("/home/me/a", 10), item("/home/me/b", 20)}, false);
    EXPECT_TRUE(removals.underWay());
    EXPECT_EQ(model.progress(), (RemovalsModel::Progress{0, 2}));
    machine.tasks.runNext();
    machine.tasks.runNext();
    EXPECT_EQ(model.progress(), (RemovalsModel::Progress{1, 2}));
    machine.tasks.release();
    runUntil([&] { return !removals.underWay(); });
    EXPECT_FALSE(model.isCleaning()) << "the results come first";
    EXPECT_EQ(model.progress(), (RemovalsModel::Progress{2, 2}));
}

TEST_F(DevCleanupModelTest, reportsItsOwnProgressOnly) {
    int told = 0;
    QObject::connect(&model, &DevCleanupModel::progressChanged, &model, [&] { ++told; });
    int all = 0;
    QObject::connect(&removals, &RemovalsModel::progressChanged, &removals, [&] { ++all; });
    const auto other = removals.begin(2);
    other->noteDone();
    runUntil([&] { return all == 1; });
    EXPECT_EQ(told, 0);
    EXPECT_EQ(model.progress(), RemovalsModel::Progress());
    machine.tasks.hold();
    model.clean({item("/home/me/a", 10), item("/home/me/b", 20)}, false);
    machine.tasks.runNext();
    machine.tasks.runNext();
    runUntil([&] { return all == 2; });
    EXPECT_EQ(told, 1);
    EXPECT_EQ(model.progress(), (RemovalsModel::Progress{1, 2}));
    machine.tasks.release();
}

TEST_F(DevCleanupModelTest, stoppedCleaningReportsSkippedItems) {
    machine.tasks.hold();
    model.clean({item("/home/me/a", 10), item("/home/me/b", 20)}, false);
    machine.tasks.runNext();
    machine.tasks.runNext();
    removals.stop();
    machine.tasks.release();
    runUntil([&] { return !model.isCleaning(); });
    EXPECT_EQ(model.reclaimedBytes(), 10);
    ASSERT_EQ(model.lastResults().size(), 2U);
    EXPECT_TRUE(std::holds_alternative<Cleaner::Skipped>(model.lastResults()[1].status));
}

}  // namespace zelk
