// SPDX-License-Identifier: MIT
// The phases of a survey, its updates, and a cancel at every moment that matters.
#include "AppModelFixture.h"

namespace zelk {
namespace {

using AppModelScanTest = AppModelFixture;
using Strings = std::vector<std::string>;

// Every transition of the phase.

TEST_F(AppModelScanTest, startTakesIdleToScanningAndTheEndToFinished) {
    machine.directories.hold(home);
    model().startScan();
    EXPECT_EQ(model().scanPhase(), Phase::scanning);
    machine.directories.release();
    runUntil([&] { return model().scanPhase() != Phase::scanning; });
    EXPECT_EQ(model().scanPhase(), Phase::finished);
}

TEST_F(AppModelScanTest, startTakesFinishedToScanning) {
    survey();
    machine.directories.hold(home);
    model().startScan();
    EXPECT_EQ(model().scanPhase(), Phase::scanning);
    machine.directories.release();
    runUntil([&] { return model().scanPhase() == Phase::finished; });
    EXPECT_EQ(model().history().size(), 2U);
}

TEST_F(AppModelScanTest, startWhileScanningChangesNothing) {
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

TEST_F(AppModelScanTest, cancelTakesScanningToIdle) {
    machine.directories.hold(home);
    model().startScan();
    model().cancelScan();
    EXPECT_EQ(model().scanPhase(), Phase::idle);
    letScansDrain();
    EXPECT_EQ(model().scanPhase(), Phase::idle);
}

TEST_F(AppModelScanTest, cancelLeavesIdleIdle) {
    model().cancelScan();
    EXPECT_EQ(model().scanPhase(), Phase::idle);
    EXPECT_EQ(takeSignals(), Strings{});
}

TEST_F(AppModelScanTest, cancelTakesFinishedToIdleAndKeepsWhatWasFound) {
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

TEST_F(AppModelScanTest, startEmptiesTheFiguresAndKeepsTheTree) {
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

TEST_F(AppModelScanTest, startReadsTheVolumeOfTheFirstRoot) {
    machine.directories.directory("/data");
    machine.vitals.setVolume("/data", VolumeInfo{9'000, 5'000, 5'000});
    model().setScanRoots({"/data", home});
    survey();
    EXPECT_EQ(model().volume(), (VolumeInfo{9'000, 5'000, 5'000}));
    EXPECT_EQ(machine.vitals.volumeReads(), Strings{"/data"});
    EXPECT_EQ(model().stats()->roots, (Strings{"/data", home}));
}

TEST_F(AppModelScanTest, anUnreadableVolumeIsAbsentEvenIfOneWasThereBefore) {
    survey();
    ASSERT_TRUE(model().volume());
    machine.vitals.setVolume(home, std::nullopt);
    survey();
    EXPECT_FALSE(model().volume());
}

TEST_F(AppModelScanTest, noRootsFinishAtOnceWithAnEmptyTreeAndTheVolumeOfTheHome) {
    model().setScanRoots({});
    model().startScan();
    EXPECT_EQ(model().currentPath(), home);
    runUntil([&] { return model().scanPhase() == Phase::finished; });
    EXPECT_TRUE(model().root()->children.empty());
    EXPECT_EQ(model().root()->size, 0);
    EXPECT_EQ(model().stats()->roots, Strings{});
    EXPECT_EQ(model().itemsScanned(), 0);
    EXPECT_EQ(model().volume(), (VolumeInfo{1'000, 400, 450}));
    EXPECT_EQ(machine.directories.timesRead(home), 0);
}

// The updates.

TEST_F(AppModelScanTest, progressShowsInTheFields) {
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

TEST_F(AppModelScanTest, aBatchOfManyUpdatesIsWrittenOnce) {
    for (const char* name : {"/a", "/b", "/c", "/d"}) addWideFolder(home + name);
    model().startScan();
    machine.waitForThreads();
    takeSignals();
    runUntil([&] { return model().scanPhase() == Phase::finished; });
    // Once for all the progress, and once for the final figure where that differs.
    EXPECT_LE(timesSignalled("itemsScanned"), 2);
    EXPECT_LE(timesSignalled("bytesScanned"), 2);
    EXPECT_EQ(timesSignalled("currentPath"), 1);
    EXPECT_EQ(model().itemsScanned(), 80'009);
}

TEST_F(AppModelScanTest, writesOfWhatIsThereAlreadySignalNothing) {
    model().setScanRoots({});
    survey();
    takeSignals();
    survey();
    EXPECT_EQ(timesSignalled("itemsScanned"), 0);
    EXPECT_EQ(timesSignalled("bytesScanned"), 0);
    EXPECT_EQ(timesSignalled("blockedPaths"), 0);
    EXPECT_EQ(timesSignalled("currentPath"), 0);
    EXPECT_EQ(timesSignalled("reclaimables"), 0);
    EXPECT_EQ(timesSignalled("insights"), 0);
    EXPECT_EQ(timesSignalled("volume"), 0);
    EXPECT_EQ(timesSignalled("stats"), 0);
    EXPECT_EQ(timesSignalled("trashBytes"), 0);
    EXPECT_EQ(timesSignalled("trashAccessible"), 0);
    EXPECT_EQ(timesSignalled("root"), 1);
    EXPECT_EQ(timesSignalled("scanPhase"), 2);
}

TEST_F(AppModelScanTest, unreadableFoldersShowAsANumberOnly) {
    machine.directories.unreadable(home + "/a");
    machine.directories.unreadable(home + "/b");
    survey();
    EXPECT_EQ(model().blockedPaths(), 2);
    EXPECT_EQ(model().stats()->blockedPaths, 2);
}

TEST_F(AppModelScanTest, anEventLoopInAHandlerDoesNotLetUpdatesOvertakeEachOther) {
    fillHome();
    addWideFolder(home + "/wide");
    machine.directories.hold(home + "/wide/inner");
    bool nested = false;
    QObject::connect(&model(), &AppModel::itemsScannedChanged, &model(), [&] {
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

TEST_F(AppModelScanTest, aTreeOfFiftyThousandLevelsIsSurveyedAndReleased) {
    machine.directories.chain(home, "d", 50'000, 1);
    survey();
    EXPECT_EQ(model().stats()->dirsScanned, 50'001);
    EXPECT_EQ(model().root()->size, 50'000);
    survey();
    destroyModel();
}

// A second survey while the first drains.

TEST_F(AppModelScanTest, aSecondScanRunsWhileACancelledOneDrains) {
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

TEST_F(AppModelScanTest, theItemsOfACancelledSurveyDoNotReachTheNext) {
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

// The end of the model.

TEST_F(AppModelScanTest, theModelMayGoInMidScan) {
    fillHome();
    machine.directories.hold(home + "/projects");
    model().startScan();
    machine.directories.waitUntilHeld(home + "/projects");
    destroyModel();
    letScansDrain();
    EXPECT_FALSE(historyFile());
}

TEST_F(AppModelScanTest, theModelMayGoWithUpdatesOnTheirWay) {
    fillHome();
    model().startScan();
    machine.waitForThreads();
    destroyModel();
    runWhatIsThere();
    EXPECT_FALSE(historyFile());
}

TEST_F(AppModelScanTest, theModelMayGoDuringClassification) {
    fillHome();
    surveyUpToClassification();
    destroyModel();
    machine.tasks.release();
    runWhatIsThere();
    EXPECT_FALSE(historyFile());
}

TEST_F(AppModelScanTest, theModelMayGoWithTheClassifiersItemsOnTheirWay) {
    fillHome();
    surveyUpToClassification();
    machine.tasks.release();
    destroyModel();
    runWhatIsThere();
    EXPECT_FALSE(historyFile());
}

TEST_F(AppModelScanTest, theModelReleasesItsTreesOnATask) {
    survey();
    const NodeRef tree = model().root();
    machine.tasks.hold();
    destroyModel();
    EXPECT_EQ(machine.tasks.waiting(), std::vector{TaskPriority::utility});
    machine.tasks.release();
}

}  // namespace
}  // namespace zelk
