// SPDX-License-Identifier: MIT
// The figure of the Trash: from the tree if a survey passed it, measured otherwise.
#include "AppModelFixture.h"

namespace zelk {
namespace {

class AppModelTrashTest : public AppModelFixture {
protected:
    /// Whether the Trash was measured.
    bool wasMeasured() const { return !machine.files.pathsOf("list").empty(); }
};

using Strings = std::vector<std::string>;

TEST_F(AppModelTrashTest, takesFigureFromTreeIfHomeIsRoot) {
    fillHome();
    machine.trash.put("not what the tree says", 1);
    survey();
    EXPECT_EQ(model().trashBytes(), 7'000'000);
    EXPECT_TRUE(model().trashAccessible());
    EXPECT_FALSE(model().trashLoading());
    EXPECT_FALSE(wasMeasured());
}

TEST_F(AppModelTrashTest, takesFigureFromTreeIfTrashIsRoot) {
    fillHome();
    model().setScanRoots({home + "/projects", home + "/.Trash"});
    survey();
    EXPECT_EQ(model().trashBytes(), 7'000'000);
    EXPECT_FALSE(wasMeasured());
}

TEST_F(AppModelTrashTest, measuresIfRootIsAboveHome) {
    fillHome();
    machine.trash.put("a", 11);
    model().setScanRoots({"/home"});
    survey();
    EXPECT_EQ(model().trashBytes(), 11);
    EXPECT_TRUE(wasMeasured());
}

TEST_F(AppModelTrashTest, measuresIfSurveyDoesNotContainTrash) {
    machine.directories.file("/data/.Trash/file", 5'000);
    machine.trash.put("a", 11);
    machine.trash.put(".hidden", 30);
    model().setScanRoots({"/data"});
    survey();
    EXPECT_EQ(model().trashBytes(), 41);
}

TEST_F(AppModelTrashTest, figureFromTreeMakesTrashAccessible) {
    machine.trash.setAccessible(false);
    model().refreshTrash();
    runUntil([&] { return !model().trashLoading(); });
    ASSERT_FALSE(model().trashAccessible());
    fillHome();
    survey();
    EXPECT_TRUE(model().trashAccessible());
    EXPECT_EQ(model().trashBytes(), 7'000'000);
}

TEST_F(AppModelTrashTest, surveyDoesNotWaitForMeasurement) {
    machine.directories.directory("/data");
    model().setScanRoots({"/data"});
    machine.tasks.hold();
    model().startScan();
    runUntil([&] { return static_cast<bool>(model().root()); });
    classifyUpToTheRecord();
    machine.tasks.runNext();
    runUntil([&] { return model().scanPhase() == Phase::finished; });
    EXPECT_TRUE(model().trashLoading());
    machine.tasks.release();
    runUntil([&] { return !model().trashLoading(); });
}

TEST_F(AppModelTrashTest, showsLoadingWithoutFigure) {
    machine.trash.put("a", 11);
    machine.tasks.hold();
    model().refreshTrash();
    EXPECT_TRUE(model().trashLoading());
    EXPECT_EQ(machine.tasks.waiting(), std::vector{TaskPriority::utility});
    machine.tasks.release();
    runUntil([&] { return !model().trashLoading(); });
    EXPECT_EQ(model().trashBytes(), 11);
    EXPECT_EQ(takeSignals(), (Strings{"trash", "trash"}));
}

TEST_F(AppModelTrashTest, refreshWithFigureShowsNoLoading) {
    machine.trash.put("a", 11);
    model().refreshTrash();
    runUntil([&] { return model().trashBytes() == 11; });
    takeSignals();
    machine.trash.put("b", 9);
    model().refreshTrash();
    EXPECT_FALSE(model().trashLoading());
    runUntil([&] { return model().trashBytes() != 11; });
    EXPECT_EQ(model().trashBytes(), 20);
    EXPECT_EQ(takeSignals(), Strings{"trash"});
}

TEST_F(AppModelTrashTest, inaccessibleTrashKeepsLastFigure) {
    machine.trash.put("a", 11);
    model().refreshTrash();
    runUntil([&] { return model().trashBytes() == 11; });
    machine.trash.setAccessible(false);
    model().refreshTrash();
    runUntil([&] { return !model().trashAccessible(); });
    EXPECT_EQ(model().trashBytes(), 11);
    EXPECT_FALSE(model().trashLoading());

    machine.trash.setAccessible(true);
    model().refreshTrash();
    runUntil([&] { return model().trashAccessible(); });
    EXPECT_EQ(model().trashBytes(), 11);
}

TEST_F(AppModelTrashTest, inaccessibleTrashEndsLoading) {
    machine.trash.setAccessible(false);
    model().refreshTrash();
    EXPECT_TRUE(model().trashLoading());
    runUntil([&] { return !model().trashLoading(); });
    EXPECT_FALSE(model().trashAccessible());
    EXPECT_EQ(model().trashBytes(), 0);
}

TEST_F(AppModelTrashTest, emptyTrashIsZeroAndAccessible) {
    machine.trash.put("a", 11);
    model().refreshTrash();
    runUntil([&] { return model().trashBytes() == 11; });
    machine.files.erase(machine.trash.path + "/a");
    model().refreshTrash();
    runUntil([&] { return model().trashBytes() == 0; });
    EXPECT_TRUE(model().trashAccessible());
}

TEST_F(AppModelTrashTest, lastMeasurementToEndWins) {
    machine.trash.put("a", 11);
    machine.tasks.hold();
    model().refreshTrash();
    model().refreshTrash();
    machine.tasks.runAt(1);
    runUntil([&] { return model().trashBytes() == 11; });
    EXPECT_FALSE(model().trashLoading());
    machine.trash.put("b", 9);
    machine.tasks.runAt(0);
    runWhatIsThere();
    EXPECT_EQ(model().trashBytes(), 20);
}

TEST_F(AppModelTrashTest, measurementThatEndsAfterSurveyWins) {
    fillHome();
    machine.trash.put("a", 11);
    machine.tasks.hold();
    model().refreshTrash();
    model().startScan();
    runUntil([&] { return machine.tasks.waiting().size() == 2; });
    machine.tasks.runAt(1);  // the classifier
    runUntil([&] { return machine.tasks.waiting().size() == 2; });
    machine.tasks.runAt(1);  // the record
    runUntil([&] { return model().scanPhase() == Phase::finished; });
    ASSERT_EQ(model().trashBytes(), 7'000'000);
    machine.tasks.release();
    runWhatIsThere();
    EXPECT_EQ(model().trashBytes(), 11);
}

TEST_F(AppModelTrashTest, modelMayBeDestroyedWhileMeasuring) {
    machine.tasks.hold();
    model().refreshTrash();
    destroyModel();
    machine.tasks.release();
    runWhatIsThere();
    EXPECT_TRUE(wasMeasured());
}

// Emptying.

TEST_F(AppModelTrashTest, emptyingRemovesEverything) {
    machine.trash.put("a", 11);
    machine.trash.put("folder/.hidden", 30);
    machine.tasks.hold();
    model().emptyTrash();
    EXPECT_TRUE(model().emptyingTrash());
    EXPECT_EQ(machine.tasks.waiting(), std::vector{TaskPriority::userInitiated});
    EXPECT_TRUE(machine.files.pathsOf("remove").empty());
    machine.tasks.release();
    EXPECT_TRUE(model().emptyingTrash());
    runUntil([&] { return !model().emptyingTrash(); });
    EXPECT_EQ(machine.trash.list(), Strings());
    EXPECT_EQ(model().trashBytes(), 0);
    EXPECT_TRUE(model().trashAccessible());
}

TEST_F(AppModelTrashTest, emptyingSignalsStartAndEnd) {
    machine.trash.put("a", 11);
    model().refreshTrash();
    runUntil([&] { return model().trashBytes() == 11; });
    takeSignals();
    model().emptyTrash();
    runUntil([&] { return !model().emptyingTrash(); });
    EXPECT_EQ(takeSignals(), (Strings{"trash", "trash", "volume"}));
}

TEST_F(AppModelTrashTest, emptiesOnceAtATime) {
    machine.trash.put("a", 11);
    machine.tasks.hold();
    model().emptyTrash();
    model().emptyTrash();
    EXPECT_EQ(machine.tasks.waiting().size(), 1U);
    machine.tasks.release();
    runUntil([&] { return !model().emptyingTrash(); });
    machine.trash.put("b", 9);
    model().emptyTrash();
    runUntil([&] { return !model().emptyingTrash(); });
    EXPECT_EQ(machine.trash.list(), Strings());
}

TEST_F(AppModelTrashTest, emptyingCountsWhatCouldNotBeRemoved) {
    machine.trash.put("a", 11);
    machine.trash.put("kept", 9);
    machine.trash.put("z", 30);
    machine.files.failing = [](const auto& call) { return call.operation == "remove" && call.path.ends_with("/kept"); };
    model().emptyTrash();
    runUntil([&] { return !model().emptyingTrash(); });
    EXPECT_EQ(machine.trash.list(), Strings{machine.trash.path + "/kept"});
    EXPECT_EQ(model().trashBytes(), 9);
    EXPECT_TRUE(model().trashAccessible());
}

TEST_F(AppModelTrashTest, emptyingInaccessibleTrashKeepsLastFigure) {
    machine.trash.put("a", 11);
    model().refreshTrash();
    runUntil([&] { return model().trashBytes() == 11; });
    machine.trash.setAccessible(false);
    model().emptyTrash();
    runUntil([&] { return !model().emptyingTrash(); });
    EXPECT_TRUE(machine.files.pathsOf("remove").empty());
    EXPECT_EQ(model().trashBytes(), 11);
    EXPECT_FALSE(model().trashAccessible());
}

TEST_F(AppModelTrashTest, emptyingReadsVolumeAgain) {
    survey();
    machine.vitals.setVolume(home, VolumeInfo{1'000, 800, 850});
    model().emptyTrash();
    runUntil([&] { return !model().emptyingTrash(); });
    EXPECT_EQ(model().volume(), (VolumeInfo{1'000, 800, 850}));
}

TEST_F(AppModelTrashTest, emptyingReadsVolumeOfFirstRoot) {
    model().setScanRoots({"/data", home});
    machine.vitals.setVolume("/data", VolumeInfo{5'000, 1, 2});
    model().emptyTrash();
    runUntil([&] { return !model().emptyingTrash(); });
    EXPECT_EQ(model().volume(), (VolumeInfo{5'000, 1, 2}));

    model().setScanRoots({});
    model().emptyTrash();
    runUntil([&] { return !model().emptyingTrash(); });
    EXPECT_EQ(machine.vitals.volumeReads(), (Strings{"/data", home}));
}

TEST_F(AppModelTrashTest, unreadableVolumeAfterEmptyingKeepsOldOne) {
    survey();
    machine.vitals.setVolume(home, std::nullopt);
    model().emptyTrash();
    runUntil([&] { return !model().emptyingTrash(); });
    EXPECT_EQ(model().volume(), (VolumeInfo{1'000, 400, 450}));
}

TEST_F(AppModelTrashTest, refreshThatEndsAfterEmptyingWins) {
    machine.trash.put("a", 11);
    machine.tasks.hold();
    model().refreshTrash();
    model().emptyTrash();
    machine.tasks.runAt(1);
    runUntil([&] { return !model().emptyingTrash(); });
    ASSERT_EQ(model().trashBytes(), 0);
    machine.trash.put("new", 5);
    machine.tasks.runAt(0);
    runUntil([&] { return model().trashBytes() != 0; });
    EXPECT_EQ(model().trashBytes(), 5);
}

TEST_F(AppModelTrashTest, emptyingThatEndsAfterRefreshWins) {
    machine.trash.put("a", 11);
    machine.tasks.hold();
    model().emptyTrash();
    model().refreshTrash();
    machine.tasks.runAt(1);
    runUntil([&] { return model().trashBytes() == 11; });
    EXPECT_FALSE(model().trashLoading());
    EXPECT_TRUE(model().emptyingTrash());
    machine.tasks.runAt(0);
    runUntil([&] { return !model().emptyingTrash(); });
    EXPECT_EQ(model().trashBytes(), 0);
}

TEST_F(AppModelTrashTest, modelMayBeDestroyedWhileEmptying) {
    machine.trash.put("a", 11);
    machine.tasks.hold();
    model().emptyTrash();
    destroyModel();
    machine.tasks.release();
    runWhatIsThere();
    EXPECT_EQ(machine.trash.list(), Strings());
}

}  // namespace
}  // namespace zelk
