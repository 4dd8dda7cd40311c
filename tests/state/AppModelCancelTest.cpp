// SPDX-License-Identifier: MIT
// Cancels a survey in each of its states. Nothing of it must be left.
#include "AppModelFixture.h"

namespace zelk {
namespace {

class AppModelCancelTest : public AppModelFixture {
protected:
    /// Runs an earlier survey whose figures all differ from those of the one that is cancelled.
    void surveyBefore() {
        machine.directories.file("/before/file", 512);
        model().setScanRoots({"/before"});
        survey();
        before_ = model().root();
        statsBefore_ = model().stats();
        recordBefore_ = historyFile();
        ASSERT_TRUE(before_);
        model().setScanRoots({home});
        fillHome();
    }

    void expectNothingLeft() {
        EXPECT_EQ(model().scanPhase(), Phase::idle);
        EXPECT_TRUE(model().reclaimables().empty());
        EXPECT_EQ(model().insights(), ScanInsights());
        EXPECT_EQ(model().root(), before_);
        EXPECT_EQ(model().stats(), statsBefore_);
        EXPECT_EQ(model().history().size(), 1U);
        EXPECT_EQ(historyFile(), recordBefore_);
    }

    /// Checks now, and again when everything that was running has ended.
    void expectNothingLeftForGood() {
        expectNothingLeft();
        machine.tasks.release();
        letScansDrain();
        expectNothingLeft();
    }

    /// Starts a survey and cancels it in the first handler of `changed` for which `when` holds.
    template <class When>
    void cancelInHandler(void (AppModel::*changed)(), When when) {
        surveyBefore();
        bool cancelled = false;
        QObject::connect(&model(), changed, &model(), [&] {
            if (cancelled || !when()) return;
            cancelled = true;
            model().cancelScan();
            expectNothingLeft();
        });
        model().startScan();
        runUntil([&] { return cancelled; });
        expectNothingLeftForGood();
    }

private:
    NodeRef before_;
    std::optional<ScanStats> statsBefore_;
    std::optional<std::string> recordBefore_;
};

TEST_F(AppModelCancelTest, beforeAnythingWasRead) {
    surveyBefore();
    machine.directories.hold(home);
    model().startScan();
    model().cancelScan();
    expectNothingLeftForGood();
}

TEST_F(AppModelCancelTest, beforeFirstUpdate) {
    surveyBefore();
    machine.directories.hold(home + "/projects");
    model().startScan();
    machine.directories.waitUntilHeld(home + "/projects");
    model().cancelScan();
    expectNothingLeftForGood();
}

TEST_F(AppModelCancelTest, afterProgress) {
    surveyBefore();
    addWideFolder(home + "/wide");
    machine.directories.hold(home + "/wide/inner");
    model().startScan();
    runUntil([&] { return model().itemsScanned() != 0; });
    model().cancelScan();
    expectNothingLeftForGood();
}

TEST_F(AppModelCancelTest, withAllUpdatesQueued) {
    surveyBefore();
    model().startScan();
    machine.waitForThreads();
    model().cancelScan();
    expectNothingLeftForGood();
}

TEST_F(AppModelCancelTest, betweenInsightsAndFinished) {
    cancelInHandler(&AppModel::insightsChanged, [&] { return !model().insights().topFiles.empty(); });
}

TEST_F(AppModelCancelTest, whenTreeArrives) {
    surveyBefore();
    const NodeRef before = model().root();
    bool cancelled = false;
    QObject::connect(&model(), &AppModel::rootChanged, &model(), [&] {
        if (std::exchange(cancelled, true)) return;
        EXPECT_FALSE(model().root() == before);
        model().cancelScan();
    });
    model().startScan();
    runUntil([&] { return cancelled; });
    expectNothingLeftForGood();
}

TEST_F(AppModelCancelTest, whenFinalFiguresArrive) {
    cancelInHandler(&AppModel::progressChanged, [&] { return model().itemsScanned() != 0; });
}

TEST_F(AppModelCancelTest, duringClassification) {
    surveyBefore();
    surveyUpToClassification();
    EXPECT_EQ(machine.tasks.waiting(), std::vector{TaskPriority::standard});
    model().cancelScan();
    expectNothingLeftForGood();
}

TEST_F(AppModelCancelTest, withClassifiedItemsQueued) {
    surveyBefore();
    surveyUpToClassification();
    machine.tasks.release();
    model().cancelScan();
    expectNothingLeftForGood();
}

TEST_F(AppModelCancelTest, whenClassifiedItemsArrive) {
    cancelInHandler(&AppModel::reclaimablesChanged, [&] { return !model().reclaimables().empty(); });
}

TEST_F(AppModelCancelTest, beforeRecordIsWritten) {
    surveyBefore();
    surveyUpToClassification();
    classifyUpToTheRecord();
    model().cancelScan();
    expectNothingLeftForGood();
}

TEST_F(AppModelCancelTest, whileRecordIsWritten) {
    surveyBefore();
    surveyUpToClassification();
    classifyUpToTheRecord();
    bool cancelled = false;
    machine.files.failing = [&](const fakes::FakeFileManager::Call& call) {
        if (call.operation == "replaceDurably" && !std::exchange(cancelled, true)) model().cancelScan();
        return false;
    };
    machine.tasks.runNext();
    EXPECT_TRUE(cancelled);
    machine.tasks.release();
    letScansDrain();
    expectNothingLeft();
}

TEST_F(AppModelCancelTest, withHistoryQueued) {
    surveyBefore();
    surveyUpToClassification();
    classifyUpToTheRecord();
    machine.tasks.runNext();
    model().cancelScan();
    machine.tasks.release();
    letScansDrain();
    expectNothingLeft();
}

TEST_F(AppModelCancelTest, whenPhaseTurnsScanning) {
    cancelInHandler(&AppModel::scanPhaseChanged, [&] { return model().scanPhase() == Phase::scanning; });
}

TEST_F(AppModelCancelTest, whenCountersAreReset) {
    cancelInHandler(&AppModel::progressChanged, [&] { return model().currentPath() == home; });
}

TEST_F(AppModelCancelTest, recordedSurveyIsNotWithdrawn) {
    fillHome();
    QObject::connect(&model(), &AppModel::historyChanged, &model(), [&] { model().cancelScan(); });
    model().startScan();
    runUntil([&] { return !model().history().empty(); });
    letScansDrain();
    EXPECT_EQ(model().scanPhase(), Phase::idle);
    EXPECT_EQ(model().reclaimables().size(), 2U);
    EXPECT_EQ(model().root()->size, model().history().front().totalScanned);
}

TEST_F(AppModelCancelTest, afterFinishKeepsRecordWhenNextSurveyAppends) {
    survey();
    model().cancelScan();
    survey();
    EXPECT_EQ(model().history().size(), 2U);
}

TEST_F(AppModelCancelTest, inHandlerOfDeferredRemovalKeepsRecordedSurvey) {
    fillHome();
    surveyUpToClassification();
    classifyUpToTheRecord();
    model().removeFromTree(*folderAt(model().root(), home + "/projects"));
    QObject::connect(&model(), &AppModel::rootChanged, &model(), [&] { model().cancelScan(); });
    takeSignals();
    machine.tasks.release();
    runUntil([&] { return model().scanPhase() == Phase::idle; });
    runWhatIsThere();
    EXPECT_EQ(model().history().size(), 1U);
    EXPECT_EQ(timesSignalled("history"), 1);
    EXPECT_EQ(model().root()->size, 57'000'000);
}

TEST_F(AppModelCancelTest, cancelAndRestartInOneHandlerRunsOneSurvey) {
    fillHome();
    bool restarted = false;
    QObject::connect(&model(), &AppModel::scanPhaseChanged, &model(), [&] {
        if (std::exchange(restarted, true)) return;
        model().cancelScan();
        model().startScan();
    });
    survey();
    machine.waitForThreads();
    EXPECT_EQ(machine.directories.timesRead(home), 1);
    EXPECT_EQ(model().history().size(), 1U);
}

TEST_F(AppModelCancelTest, surveyAfterCancelIsComplete) {
    surveyBefore();
    surveyUpToClassification();
    model().cancelScan();
    machine.tasks.release();
    survey();
    EXPECT_EQ(model().reclaimables().size(), 2U);
    EXPECT_EQ(model().history().size(), 2U);
    EXPECT_EQ(model().root()->size, 3'127'000'000);
}

TEST_F(AppModelCancelTest, undeliveredUpdatesAreReleasedOffMainThread) {
    fillHome();
    model().startScan();
    machine.waitForThreads();
    machine.tasks.hold();
    model().cancelScan();
    EXPECT_EQ(machine.tasks.waiting(), std::vector{TaskPriority::utility});
    machine.tasks.release();
}

}  // namespace
}  // namespace zelk
