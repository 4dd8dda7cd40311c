// SPDX-License-Identifier: MIT
// The phases of a survey and its updates, and the destruction of the model during one.
#include "AppModelFixture.h"

namespace zelk {
namespace {

using AppModelScanTest = AppModelFixture;
using Strings = std::vector<std::string>;

// Every transition of the phase.

TEST_F(AppModelScanTest, startTurnsIdleToScanningThenFinished) {
    machine.directories.hold(home);
    model().startScan();
    EXPECT_EQ(model().scanPhase(), Phase::scanning);
    machine.directories.release();
    runUntil([&] { return model().scanPhase() != Phase::scanning; });
    EXPECT_EQ(model().scanPhase(), Phase::finished);
}

TEST_F(AppModelScanTest, startTurnsFinishedToScanning) {
    survey();
    machine.directories.hold(home);
    model().startScan();
    EXPECT_EQ(model().scanPhase(), Phase::scanning);
    machine.directories.release();
    runUntil([&] { return model().scanPhase() == Phase::finished; });
    EXPECT_EQ(model().history().size(), 2U);
}

TEST_F(AppModelScanTest, startDuringScanDoesNothing) {
    machine.directories.hold(home);
    model().startScan();
    machine.directories.waitUntilHeld(home);
    takeSignals();
    model().startScan();
    EXPECT_EQ(takeSignals(), Strings{});
    machine.directories.release();
    runUntil([&] { return model().scanPhase() == Phase::finished; });
    machine.waitForThreads();
    EXPECT_EQ(machine.directories.timesRead(home), 1);
    EXPECT_EQ(model().history().size(), 1U);
}

TEST_F(AppModelScanTest, cancelTurnsScanningToIdle) {
    machine.directories.hold(home);
    model().startScan();
    model().cancelScan();
    EXPECT_EQ(model().scanPhase(), Phase::idle);
    letScansDrain();
    EXPECT_EQ(model().scanPhase(), Phase::idle);
}

TEST_F(AppModelScanTest, cancelKeepsIdle) {
    model().cancelScan();
    EXPECT_EQ(model().scanPhase(), Phase::idle);
    EXPECT_EQ(takeSignals(), Strings{});
}

TEST_F(AppModelScanTest, cancelTurnsFinishedToIdleAndKeepsResults) {
    fillHome();
    survey();
    const NodeRef tree = model().root();
    const ScanInsights insights = model().insights();
    takeSignals();
    model().cancelScan();
    EXPECT_EQ(model().scanPhase(), Phase::idle);
    EXPECT_EQ(takeSignals(), Strings{"scanPhase"});
    EXPECT_EQ(model().root(), tree);
    EXPECT_TRUE(model().stats());
    EXPECT_EQ(model().reclaimables().size(), 2U);
    EXPECT_EQ(model().insights(), insights);
    EXPECT_EQ(model().history().size(), 1U);
}

// The start.

TEST_F(AppModelScanTest, startResetsCountersAndKeepsTree) {
    fillHome();
    machine.directories.unreadable(home + "/secret");
    survey();
    const NodeRef tree = model().root();
    const std::optional<ScanStats> stats = model().stats();
    ASSERT_EQ(model().blockedPaths(), 1);
    ASSERT_FALSE(model().reclaimables().empty());

    machine.directories.hold(home);
    model().startScan();
    EXPECT_EQ(model().itemsScanned(), 0);
    EXPECT_EQ(model().bytesScanned(), 0);
    EXPECT_EQ(model().blockedPaths(), 0);
    EXPECT_TRUE(model().reclaimables().empty());
    EXPECT_EQ(model().insights(), ScanInsights());
    EXPECT_EQ(model().currentPath(), home);
    EXPECT_EQ(model().root(), tree);
    EXPECT_EQ(model().stats(), stats);
    EXPECT_EQ(model().history().size(), 1U);
    model().cancelScan();
    letScansDrain();
}

TEST_F(AppModelScanTest, startReadsVolumeOfFirstRoot) {
    machine.directories.directory("/data");
    machine.vitals.setVolume("/data", VolumeInfo{9'000, 5'000, 5'000});
    model().setScanRoots({"/data", home});
    survey();
    EXPECT_EQ(model().volume(), (VolumeInfo{9'000, 5'000, 5'000}));
    EXPECT_EQ(machine.vitals.volumeReads(), Strings{"/data"});
    EXPECT_EQ(model().stats()->roots, (Strings{"/data", home}));
}

TEST_F(AppModelScanTest, unreadableVolumeReplacesKnownOne) {
    survey();
    ASSERT_TRUE(model().volume());
    machine.vitals.setVolume(home, std::nullopt);
    survey();
    EXPECT_FALSE(model().volume());
}

TEST_F(AppModelScanTest, withoutRootsFinishesWithEmptyTreeAndVolumeOfHome) {
    model().setScanRoots({});
    model().startScan();
    EXPECT_EQ(model().currentPath(), home);
    runUntil([&] { return model().scanPhase() == Phase::finished; });
    EXPECT_TRUE(model().root()->children().empty());
    EXPECT_EQ(model().root()->size, 0);
    EXPECT_EQ(model().stats()->roots, Strings{});
    EXPECT_EQ(model().itemsScanned(), 0);
    EXPECT_EQ(model().volume(), (VolumeInfo{1'000, 400, 450}));
    EXPECT_EQ(machine.directories.timesRead(home), 0);
}

// The updates.

TEST_F(AppModelScanTest, progressUpdatesFields) {
    addWideFolder(home + "/wide");
    machine.directories.hold(home + "/wide/inner");
    model().startScan();
    runUntil([&] { return model().itemsScanned() != 0; });
    EXPECT_EQ(model().itemsScanned(), 20'002);
    EXPECT_EQ(model().bytesScanned(), 20'000'000);
    EXPECT_EQ(model().currentPath(), home + "/wide");
    EXPECT_EQ(model().scanPhase(), Phase::scanning);
    EXPECT_FALSE(model().root());
    machine.directories.release();
    runUntil([&] { return model().scanPhase() == Phase::finished; });
    EXPECT_EQ(model().itemsScanned(), 20'003);
    EXPECT_EQ(model().currentPath(), home + "/wide");
}

TEST_F(AppModelScanTest, coalescesProgressOfOneBatch) {
    for (const char* name : {"/a", "/b", "/c", "/d"}) addWideFolder(home + name);
    model().startScan();
    machine.waitForThreads();
    takeSignals();
    runUntil([&] { return model().scanPhase() == Phase::finished; });
    // Once for all the progress, and once for the final figures if they differ.
    EXPECT_GE(timesSignalled("progress"), 1);
    EXPECT_LE(timesSignalled("progress"), 2);
    EXPECT_EQ(model().itemsScanned(), 80'009);
}

TEST_F(AppModelScanTest, equalValuesAreNotSignalled) {
    machine.trash.put("a", 11);  // with a figure, measuring again shows no loading
    model().setScanRoots({});
    survey();
    takeSignals();
    survey();
    EXPECT_EQ(timesSignalled("progress"), 0);
    EXPECT_EQ(timesSignalled("reclaimables"), 0);
    EXPECT_EQ(timesSignalled("insights"), 0);
    EXPECT_EQ(timesSignalled("volume"), 0);
    EXPECT_EQ(timesSignalled("trash"), 0);
    EXPECT_EQ(timesSignalled("root"), 1);
    EXPECT_EQ(timesSignalled("scanPhase"), 2);
}

TEST_F(AppModelScanTest, countsUnreadableFolders) {
    machine.directories.unreadable(home + "/a");
    machine.directories.unreadable(home + "/b");
    survey();
    EXPECT_EQ(model().blockedPaths(), 2);
    EXPECT_EQ(model().stats()->blockedPaths, 2);
}

TEST_F(AppModelScanTest, nestedEventLoopKeepsOrderOfUpdates) {
    fillHome();
    addWideFolder(home + "/wide");
    machine.directories.hold(home + "/wide/inner");
    bool nested = false;
    QObject::connect(&model(), &AppModel::progressChanged, &model(), [&] {
        if (std::exchange(nested, true)) return;
        // The progress is being taken up; the end of the survey arrives meanwhile.
        machine.directories.release();
        machine.waitForThreads();
        runWhatIsThere();
        EXPECT_EQ(model().scanPhase(), Phase::scanning);
        EXPECT_FALSE(model().root());
    });
    survey();
    EXPECT_TRUE(nested);
    EXPECT_EQ(model().itemsScanned(), model().stats()->filesScanned + model().stats()->dirsScanned);
    EXPECT_EQ(model().history().size(), 1U);
}

TEST_F(AppModelScanTest, surveysAndReleasesFiftyThousandLevels) {
    machine.directories.chain(home, "d", 50'000, 1);
    survey();
    EXPECT_EQ(model().stats()->dirsScanned, 50'001);
    EXPECT_EQ(model().root()->size, 50'000);
    survey();
    destroyModel();
}

// A second survey while a cancelled one drains.

TEST_F(AppModelScanTest, secondScanRunsWhileCancelledOneDrains) {
    fillHome();
    machine.directories.file("/other/file", 4'096);
    machine.directories.hold(home + "/projects");
    model().startScan();
    machine.directories.waitUntilHeld(home + "/projects");
    model().cancelScan();

    model().setScanRoots({"/other"});
    model().startScan();
    runUntil([&] { return model().scanPhase() == Phase::finished && !model().trashLoading(); });
    EXPECT_EQ(model().root()->size, 4'096);
    takeSignals();

    letScansDrain();
    EXPECT_EQ(takeSignals(), Strings{});
    EXPECT_EQ(model().scanPhase(), Phase::finished);
    EXPECT_EQ(model().root()->size, 4'096);
    EXPECT_EQ(model().history().size(), 1U);
}

TEST_F(AppModelScanTest, itemsOfCancelledSurveyDoNotReachNextOne) {
    fillHome();
    surveyUpToClassification();
    model().cancelScan();
    machine.directories.directory("/other");
    model().setScanRoots({"/other"});
    model().startScan();
    machine.waitForThreads();
    // The old classifier ends now, and only then the second survey is read.
    machine.tasks.runNext();
    runUntil([&] { return static_cast<bool>(model().root()); });
    EXPECT_TRUE(model().reclaimables().empty());
    machine.tasks.release();
    runUntil([&] { return model().scanPhase() == Phase::finished; });
    EXPECT_TRUE(model().reclaimables().empty());
    EXPECT_EQ(model().history().size(), 1U);
}

// Destruction of the model.

TEST_F(AppModelScanTest, modelMayBeDestroyedDuringScan) {
    fillHome();
    machine.directories.hold(home + "/projects");
    model().startScan();
    machine.directories.waitUntilHeld(home + "/projects");
    destroyModel();
    letScansDrain();
    EXPECT_FALSE(historyFile());
}

TEST_F(AppModelScanTest, modelMayBeDestroyedWithUpdatesQueued) {
    fillHome();
    model().startScan();
    machine.waitForThreads();
    destroyModel();
    runWhatIsThere();
    EXPECT_FALSE(historyFile());
}

TEST_F(AppModelScanTest, modelMayBeDestroyedDuringClassification) {
    fillHome();
    surveyUpToClassification();
    destroyModel();
    machine.tasks.release();
    runWhatIsThere();
    EXPECT_FALSE(historyFile());
}

TEST_F(AppModelScanTest, modelMayBeDestroyedWithClassifiedItemsQueued) {
    fillHome();
    surveyUpToClassification();
    machine.tasks.release();
    destroyModel();
    runWhatIsThere();
    EXPECT_FALSE(historyFile());
}

TEST_F(AppModelScanTest, destroyedModelReleasesTreeInTask) {
    survey();
    const NodeRef tree = model().root();
    machine.tasks.hold();
    destroyModel();
    EXPECT_EQ(machine.tasks.waiting(), std::vector{TaskPriority::utility});
    machine.tasks.release();
}

}  // namespace
}  // namespace zelk
