// SPDX-License-Identifier: MIT
// What the model removes without a review: picked folders, and all safe items at once.
#include "AppModelFixture.h"

namespace zelk {
namespace {

using Strings = std::vector<std::string>;

class AppModelCleaningTest : public AppModelFixture {
protected:
    /// Surveys the home of fillHome(), whose folders and files can be moved to the Trash too.
    void surveyHome() {
        fillHome();
        for (const char* file : {"/Library/Caches/Yarn/v6", "/projects/app/node_modules/a.js", "/projects/film.mov",
                                 "/projects/system.iso"})
            machine.files.addFile(home + file);
        survey();
    }

    NodeRef folder(const std::string& below) { return folderAt(model().root(), home + below); }

    /// Returns when every closure that was posted to the main thread has run.
    void trashAndRemove(FSNode& node) {
        model().trashAndRemove(node);
        runWhatIsThere();
    }

    /// Neither the tree nor the items nor the large files contain it.
    void expectResultsWithoutProjects() {
        const auto isInIt = [&](const auto& one) { return one.path.starts_with(home + "/projects/"); };
        EXPECT_FALSE(folder("/projects"));
        EXPECT_TRUE(std::none_of(model().reclaimables().begin(), model().reclaimables().end(), isInIt));
        EXPECT_TRUE(std::none_of(model().insights().topFiles.begin(), model().insights().topFiles.end(), isInIt));
        EXPECT_FALSE(model().reclaimables().empty());
    }

    static std::int64_t reclaimableCount(const AppModel& model) {
        return static_cast<std::int64_t>(model.reclaimables().size());
    }

    const std::string cache = home + "/Library/Caches/Yarn";
};

// Picked folders.

TEST_F(AppModelCleaningTest, movesFolderToTrashAndOutOfTree) {
    surveyHome();
    const std::int64_t before = model().root()->size;
    const std::int64_t scanned = model().bytesScanned();
    trashAndRemove(*folder("/projects"));
    EXPECT_EQ(machine.trash.trashed(), Strings{home + "/projects"});
    EXPECT_TRUE(machine.files.exists(machine.trash.path + "/projects/film.mov"));
    EXPECT_FALSE(folder("/projects"));
    EXPECT_EQ(model().root()->size, before - 3'070'000'000);
    EXPECT_EQ(model().bytesScanned(), scanned);
    EXPECT_EQ(reclaimableCount(model()), 1);
    EXPECT_TRUE(model().insights().topFiles.empty() ||
                !model().insights().topFiles.front().path.starts_with(home + "/projects/"));
    EXPECT_EQ(model().insights().diskImages.size(), 1U);
}

TEST_F(AppModelCleaningTest, failedMoveKeepsFolderInTree) {
    surveyHome();
    machine.files.failing = [](const auto& call) { return call.operation == "trash"; };
    const std::int64_t before = model().root()->size;
    takeSignals();
    trashAndRemove(*folder("/projects"));
    EXPECT_TRUE(folder("/projects"));
    EXPECT_EQ(model().root()->size, before);
    EXPECT_EQ(takeSignals(), Strings());
}

TEST_F(AppModelCleaningTest, movesFolderOffMainThread) {
    surveyHome();
    machine.tasks.hold();
    model().trashAndRemove(*folder("/projects"));
    EXPECT_EQ(machine.tasks.waiting(), std::vector{TaskPriority::userInitiated});
    EXPECT_TRUE(machine.trash.trashed().empty());
    EXPECT_TRUE(folder("/projects"));
    machine.tasks.runNext();
    EXPECT_EQ(machine.trash.trashed(), Strings{home + "/projects"});
    EXPECT_TRUE(folder("/projects"));
    runUntil([&] { return !folder("/projects"); });
    machine.tasks.release();
}

TEST_F(AppModelCleaningTest, ignoresTopOfTree) {
    surveyHome();
    machine.tasks.hold();
    model().trashAndRemove(*model().root());
    EXPECT_TRUE(machine.tasks.waiting().empty());
    machine.tasks.release();
    EXPECT_TRUE(model().root());
}

TEST_F(AppModelCleaningTest, ignoresFileSystemRoot) {
    machine.directories.directory("/data");
    model().setScanRoots({"/"});
    survey();
    machine.tasks.hold();
    model().trashAndRemove(model().root()->children().front());
    EXPECT_TRUE(machine.tasks.waiting().empty());
    machine.tasks.release();
    EXPECT_EQ(model().root()->children().size(), 1U);
}

TEST_F(AppModelCleaningTest, sameFolderTwiceIsRemovedOnce) {
    surveyHome();
    const std::int64_t before = model().root()->size;
    machine.tasks.hold();
    const NodeRef projects = folder("/projects");
    model().trashAndRemove(*projects);
    model().trashAndRemove(*projects);
    machine.tasks.release();
    runWhatIsThere();
    EXPECT_EQ(machine.trash.trashed(), Strings{home + "/projects"});
    EXPECT_EQ(model().root()->size, before - 3'070'000'000);
}

TEST_F(AppModelCleaningTest, folderStaysAliveUntilMoved) {
    surveyHome();
    machine.tasks.hold();
    model().trashAndRemove(*folder("/projects/app"));
    model().removeFromTree(*folder("/projects"));
    machine.tasks.release();
    runWhatIsThere();
    EXPECT_EQ(machine.trash.trashed(), Strings{home + "/projects/app"});
    EXPECT_FALSE(folder("/projects"));
}

TEST_F(AppModelCleaningTest, newTreeLosesFolderToo) {
    surveyHome();
    machine.tasks.hold();
    model().trashAndRemove(*folder("/projects"));
    model().startScan();
    const FSNode* old = model().root().get();  // not held: only what is under way may keep it
    runUntil([&] { return !(model().root() == old); });
    const std::int64_t size = model().root()->size;
    while (machine.tasks.waiting().size() > 1) machine.tasks.runAt(1);
    machine.tasks.release();
    runUntil([&] { return model().scanPhase() == Phase::finished; });
    runWhatIsThere();
    EXPECT_EQ(machine.trash.trashed(), Strings{home + "/projects"});
    expectResultsWithoutProjects();
    EXPECT_EQ(model().root()->size, size - 3'070'000'000);
}

// A running survey may have passed a folder before it was moved.

TEST_F(AppModelCleaningTest, runningSurveyDoesNotReportTrashedFolder) {
    machine.directories.file(home + "/projects too/film.mov", 5'000'000, 1'000);
    surveyHome();
    addWideFolder(home + "/wide");
    machine.directories.hold(home + "/wide/inner");
    machine.tasks.hold();
    model().trashAndRemove(*folder("/projects"));
    model().startScan();
    runUntil([&] { return model().itemsScanned() > 0; });
    machine.tasks.release();
    runWhatIsThere();
    ASSERT_EQ(machine.trash.trashed(), Strings{home + "/projects"});
    ASSERT_EQ(model().scanPhase(), Phase::scanning);
    EXPECT_FALSE(folder("/projects")) << "the results before lose it as well";
    machine.directories.release();
    runUntil([&] { return model().scanPhase() == Phase::finished; });
    expectResultsWithoutProjects();
    EXPECT_TRUE(folder("/projects too"));
    EXPECT_EQ(model().history().back().totalScanned, model().root()->size);
    EXPECT_EQ(model().bytesScanned(), model().root()->size + 3'070'000'000) << "that is the survey as it ran";
    // The one after that believes the disk.
    survey();
    EXPECT_TRUE(folder("/projects"));
}

TEST_F(AppModelCleaningTest, removalFromNewTreeIsDeferredWhileItIsRead) {
    surveyHome();
    machine.tasks.hold();
    model().trashAndRemove(*folder("/projects"));
    model().startScan();
    const NodeRef old = model().root();
    runUntil([&] { return !(model().root() == old); });
    machine.tasks.runNext();
    runWhatIsThere();
    ASSERT_EQ(machine.trash.trashed(), Strings{home + "/projects"});
    EXPECT_FALSE(folderAt(old, home + "/projects"));
    EXPECT_TRUE(folder("/projects"));
    machine.tasks.release();
    runUntil([&] { return model().scanPhase() == Phase::finished; });
    expectResultsWithoutProjects();
    EXPECT_EQ(model().history().back().totalScanned, model().root()->size);
}

TEST_F(AppModelCleaningTest, cancelDoesNotRestoreTrashedFolder) {
    surveyHome();
    const NodeRef oldest = model().root();
    survey();
    const NodeRef before = model().root();
    machine.tasks.hold();
    model().trashAndRemove(*folderAt(oldest, home + "/projects"));
    model().startScan();
    runUntil([&] { return !(model().root() == before); });
    machine.tasks.runNext();
    runWhatIsThere();
    model().cancelScan();
    ASSERT_EQ(model().root(), before);
    EXPECT_FALSE(folder("/projects"));
    EXPECT_FALSE(folderAt(oldest, home + "/projects"));
    machine.tasks.release();
    runWhatIsThere();
}

TEST_F(AppModelCleaningTest, folderOfOlderTreeLeavesCurrentResults) {
    surveyHome();
    const NodeRef old = model().root();
    survey();
    trashAndRemove(*folderAt(old, home + "/projects"));
    EXPECT_FALSE(folderAt(old, home + "/projects"));
    expectResultsWithoutProjects();
}

TEST_F(AppModelCleaningTest, recreatedFolderAppearsInNextSurvey) {
    surveyHome();
    const NodeRef old = model().root();
    survey();
    machine.tasks.hold();
    model().trashAndRemove({folderAt(old, home + "/projects")}, {});
    machine.tasks.release();
    runWhatIsThere();
    survey();
    EXPECT_TRUE(folder("/projects"));
}

TEST_F(AppModelCleaningTest, modelMayBeDestroyedWhileFolderIsMoved) {
    surveyHome();
    machine.tasks.hold();
    model().trashAndRemove(*folder("/projects"));
    destroyModel();
    machine.tasks.release();
    runWhatIsThere();
    EXPECT_EQ(machine.trash.trashed(), Strings{home + "/projects"});
}

TEST_F(AppModelCleaningTest, modelMayBeDestroyedBeforeMoveIsReported) {
    surveyHome();
    machine.tasks.hold();
    model().trashAndRemove(*folder("/projects"));
    machine.tasks.runNext();
    destroyModel();
    machine.tasks.release();
    runWhatIsThere();
    EXPECT_EQ(machine.trash.trashed(), Strings{home + "/projects"});
}

TEST_F(AppModelCleaningTest, movesSeveralFoldersInOneTaskInOrder) {
    surveyHome();
    machine.tasks.hold();
    std::vector<std::string> gone;
    model().trashAndRemove({folder("/projects"), folder("/projects/app"), folder("/Library")},
                           [&](const std::vector<NodeRef>& nodes) {
                               for (const NodeRef& node : nodes) gone.push_back(node->fullPath());
                           });
    EXPECT_EQ(machine.tasks.waiting(), std::vector{TaskPriority::userInitiated});
    machine.tasks.release();
    runWhatIsThere();
    EXPECT_EQ(machine.trash.trashed(), (Strings{home + "/projects", home + "/Library"}))
        << "the one inside had left with the one around it";
    EXPECT_EQ(gone, machine.trash.trashed());
    EXPECT_EQ(model().root()->size, 7'000'000);
}

TEST_F(AppModelCleaningTest, oneFailedMoveDoesNotStopOthers) {
    surveyHome();
    machine.files.failing = [&](const auto& call) {
        return call.operation == "trash" && call.path == home + "/Library";
    };
    bool done = false;
    model().trashAndRemove({folder("/Library"), folder("/projects")}, [&](const std::vector<NodeRef>& nodes) {
        done = true;
        ASSERT_EQ(nodes.size(), 1U);
        EXPECT_EQ(nodes.front()->fullPath(), home + "/projects");
    });
    runUntil([&] { return done; });
    EXPECT_TRUE(folder("/Library"));
    EXPECT_FALSE(folder("/projects"));
}

TEST_F(AppModelCleaningTest, nestedEventLoopDuringRemovalStillReportsEveryFolder) {
    surveyHome();
    QObject::connect(&model(), &AppModel::rootChanged, &model(), [] { runWhatIsThere(); });
    std::size_t gone = 0;
    machine.tasks.hold();
    model().trashAndRemove({folder("/projects"), folder("/Library")},
                           [&](const std::vector<NodeRef>& nodes) { gone = nodes.size(); });
    machine.tasks.release();
    runWhatIsThere();
    EXPECT_EQ(gone, 2U);
}

TEST_F(AppModelCleaningTest, emptySelectionReportsAsynchronously) {
    surveyHome();
    bool done = false;
    model().trashAndRemove({model().root()}, [&](const std::vector<NodeRef>& nodes) { done = nodes.empty(); });
    EXPECT_FALSE(done) << "never before it comes back";
    runUntil([&] { return done; });
    EXPECT_TRUE(machine.trash.trashed().empty());
}

// Safe items.

TEST_F(AppModelCleaningTest, cleansSafeItemsOnlyThenSurveys) {
    surveyHome();
    model().cleanSafeCaches();
    runUntil([&] { return model().scanPhase() == Phase::scanning; });
    EXPECT_EQ(machine.trash.trashed(), Strings{cache});
    EXPECT_TRUE(machine.files.exists(home + "/projects/app/node_modules/a.js"));
    runUntil([&] { return model().scanPhase() == Phase::finished; });
}

TEST_F(AppModelCleaningTest, withoutSafeItemsNothingHappens) {
    machine.directories.file(home + "/projects/app/node_modules/a.js", 10'000'000, 2'000);
    survey();
    ASSERT_EQ(reclaimableCount(model()), 1);
    machine.tasks.hold();
    model().cleanSafeCaches();
    EXPECT_TRUE(machine.tasks.waiting().empty());
    runWhatIsThere();
    EXPECT_EQ(model().scanPhase(), Phase::finished);
    machine.tasks.release();
}

TEST_F(AppModelCleaningTest, cleansSafeItemsOfRunningApplications) {
    const std::string inUse = home + "/Library/Application Support/Cursor/Cache";
    machine.directories.file(inUse + "/data", 1'000, 1'000);
    machine.files.addFile(inUse + "/data");
    machine.workspace.running = {"Cursor"};
    survey();
    ASSERT_EQ(model().safeItems().size(), 1U);
    model().cleanSafeCaches();
    runUntil([&] { return model().scanPhase() == Phase::scanning; });
    EXPECT_EQ(machine.trash.trashed(), Strings{inUse});
    EXPECT_EQ(machine.workspace.runningReads, 0);
    runUntil([&] { return model().scanPhase() == Phase::finished; });
}

TEST_F(AppModelCleaningTest, ageFilterDoesNotApplyToSafeItems) {
    surveyHome();
    model().setAgeFilterDays(365);
    EXPECT_EQ(model().safeBytes(), 50'000'000);
    model().cleanSafeCaches();
    runUntil([&] { return model().scanPhase() == Phase::scanning; });
    EXPECT_EQ(machine.trash.trashed(), Strings{cache});
    runUntil([&] { return model().scanPhase() == Phase::finished; });
}

TEST_F(AppModelCleaningTest, hardDeleteSettingDoesNotApplyToSafeItems) {
    surveyHome();
    model().setHardDeleteEnabled(true);
    model().cleanSafeCaches();
    runUntil([&] { return model().scanPhase() == Phase::scanning; });
    EXPECT_EQ(machine.trash.trashed(), Strings{cache});
    EXPECT_TRUE(machine.files.pathsOf("remove").empty());
    runUntil([&] { return model().scanPhase() == Phase::finished; });
}

TEST_F(AppModelCleaningTest, surveysEvenIfCleaningFails) {
    surveyHome();
    machine.files.failing = [](const auto& call) { return call.operation == "trash"; };
    model().cleanSafeCaches();
    runUntil([&] { return model().scanPhase() == Phase::scanning; });
    EXPECT_TRUE(machine.trash.trashed().empty());
    runUntil([&] { return model().scanPhase() == Phase::finished; });
    EXPECT_EQ(model().safeBytes(), 50'000'000);
}

TEST_F(AppModelCleaningTest, surveyStartsAfterLastSafeItem) {
    surveyHome();
    machine.tasks.hold();
    model().cleanSafeCaches();
    EXPECT_EQ(machine.tasks.waiting().size(), 1U);
    runWhatIsThere();
    EXPECT_EQ(model().scanPhase(), Phase::finished);
    machine.tasks.release();
    EXPECT_EQ(model().scanPhase(), Phase::finished);
    runUntil([&] { return model().scanPhase() == Phase::scanning; });
    runUntil([&] { return model().scanPhase() == Phase::finished; });
}

TEST_F(AppModelCleaningTest, runningSurveyIsFollowedByAnother) {
    surveyHome();
    machine.tasks.hold();
    model().cleanSafeCaches();
    machine.directories.hold(home);
    model().startScan();
    machine.directories.waitUntilHeld(home);
    machine.tasks.release();
    runWhatIsThere();
    EXPECT_EQ(machine.directories.timesRead(home), 2);
    machine.directories.release();
    runUntil([&] { return machine.directories.timesRead(home) == 3 && model().scanPhase() == Phase::finished; });
    runWhatIsThere();
    EXPECT_EQ(machine.directories.timesRead(home), 3);
    EXPECT_EQ(model().scanPhase(), Phase::finished) << "and no other";
}

TEST_F(AppModelCleaningTest, cancelAlsoDropsFollowingSurvey) {
    surveyHome();
    machine.directories.hold(home);
    model().startScan();
    machine.directories.waitUntilHeld(home);
    model().scanAnew();
    model().cancelScan();
    machine.directories.release();
    runWhatIsThere();
    EXPECT_EQ(model().scanPhase(), Phase::idle);
    model().startScan();
    runUntil([&] { return model().scanPhase() == Phase::finished; });
    runWhatIsThere();
    EXPECT_EQ(machine.directories.timesRead(home), 3) << "the cancelled one is forgotten";
}

TEST_F(AppModelCleaningTest, modelMayBeDestroyedWhileCleaning) {
    surveyHome();
    machine.tasks.hold();
    model().cleanSafeCaches();
    destroyModel();
    machine.tasks.release();
    runWhatIsThere();
    EXPECT_EQ(machine.trash.trashed(), Strings{cache});
}

}  // namespace
}  // namespace zelk
