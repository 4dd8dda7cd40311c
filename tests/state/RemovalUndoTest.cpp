// SPDX-License-Identifier: MIT
// Undoing a removal, on the disk and in the results.
#include "state/RemovalUndo.h"

#include <map>

#include "AppModelFixture.h"

namespace zelk {
namespace {

using Strings = std::vector<std::string>;

class RemovalUndoTest : public AppModelFixture {
protected:
    /// Surveys the home of fillHome(), with files that can be moved to the Trash.
    void surveyHome() {
        fillHome();
        for (const char* file : {"/Library/Caches/Yarn/v6", "/projects/app/node_modules/a.js", "/projects/film.mov",
                                 "/projects/system.iso"})
            machine.files.addFile(home + file, {}, 1'000);
        survey();
        QObject::connect(&undo(), &RemovalUndo::offered, &model(), [this] { ++offers; });
        QObject::connect(&undo(), &RemovalUndo::ended, &model(),
                         [this](const RemovalUndo::Outcome& outcome) { outcomes.push_back(outcome); });
        takeSignals();
    }
    RemovalUndo& undo() { return model().removalUndo(); }
    NodeRef folder(const std::string& below) { return folderAt(model().root(), home + below); }

    void removeFolders(const Strings& folders) {
        std::vector<NodeRef> nodes;
        for (const std::string& below : folders) nodes.push_back(folder(below));
        bool tried = false;
        model().trashAndRemove(nodes, [&](const auto&) { tried = true; });
        runUntil([&] { return tried; });
    }
    void removeFile(const std::string& path) {
        model().trashLargeFile(path);
        runWhatIsThere();
    }
    RemovalUndo::Outcome undone() {
        const std::size_t before = outcomes.size();
        model().undoLastRemoval();
        runUntil([&] { return outcomes.size() > before; });
        runWhatIsThere();
        return outcomes.back();
    }

    /// Everything that a screen shows of the survey.
    struct Results {
        std::map<std::string, std::int64_t> folders;
        std::vector<Reclaimable> reclaimables;
        ScanInsights insights;
        bool operator==(const Results&) const = default;
    };
    Results results() {
        Results all{{}, model().reclaimables(), model().insights()};
        std::vector<const FSNode*> pending{model().root().get()};
        while (!pending.empty()) {
            const FSNode* const node = pending.back();
            pending.pop_back();
            all.folders[node->fullPath()] = node->size;
            for (const FSNode& child : node->children()) pending.push_back(&child);
        }
        return all;
    }
    std::size_t surveys() { return model().history().size(); }
    void untilSurveyed(std::size_t count) {
        runUntil([&] { return surveys() == count && model().scanPhase() == Phase::finished; });
    }

    const std::string film = home + "/projects/film.mov";
    const std::string image = home + "/projects/system.iso";
    int offers = 0;
    std::vector<RemovalUndo::Outcome> outcomes;
};

// Offers.

TEST_F(RemovalUndoTest, offersNothingBeforeARemoval) {
    surveyHome();
    EXPECT_EQ(undo().moved(), 0U);
    EXPECT_EQ(undo().restorable(), 0U);
    model().undoLastRemoval();
    EXPECT_FALSE(undo().underWay());
    runWhatIsThere();
    EXPECT_TRUE(outcomes.empty());
}

TEST_F(RemovalUndoTest, offersWhatTheLastRemovalMoved) {
    surveyHome();
    removeFolders({"/projects/app", "/Library"});
    EXPECT_EQ(offers, 1);
    EXPECT_EQ(undo().source(), RemovalUndo::Source::folders);
    EXPECT_EQ(undo().moved(), 2U);
    EXPECT_EQ(undo().restorable(), 2U);
    removeFile(film);
    EXPECT_EQ(offers, 2);
    EXPECT_EQ(undo().source(), RemovalUndo::Source::largeFile);
    EXPECT_EQ(undo().moved(), 1U) << "the last removal alone";
    EXPECT_EQ(undo().restorable(), 1U);
}

TEST_F(RemovalUndoTest, offersOnlyWhatWasMoved) {
    surveyHome();
    machine.files.failing = [this](const auto& call) {
        return call.operation == "trash" && call.path == home + "/Library";
    };
    removeFolders({"/projects/app", "/Library"});
    EXPECT_EQ(undo().moved(), 1U);
}

TEST_F(RemovalUndoTest, failedRemovalKeepsTheLastOffer) {
    surveyHome();
    removeFile(film);
    machine.files.failing = [](const auto& call) { return call.operation == "trash"; };
    removeFile(image);
    removeFolders({"/Library"});
    EXPECT_EQ(offers, 1);
    EXPECT_EQ(undo().restorable(), 1U);
    EXPECT_EQ(undone().restored, 1U);
    EXPECT_EQ(machine.trash.restored(), Strings{film});
}

TEST_F(RemovalUndoTest, itemsOfUnknownPlaceAreNotRestorable) {
    surveyHome();
    undo().offer(RemovalUndo::Source::folders, 2, {});
    EXPECT_EQ(undo().moved(), 2U);
    EXPECT_EQ(undo().restorable(), 0U);
    model().undoLastRemoval();
    EXPECT_EQ(undo().moved(), 2U);
}

TEST_F(RemovalUndoTest, reportsItemsOfUnknownPlace) {
    surveyHome();
    const TrashResult moved = machine.trash.trash(ItemPath::from(film).value());
    undo().offer(RemovalUndo::Source::folders, 3, {{moved.item.value(), nullptr}});
    const RemovalUndo::Outcome outcome = undone();
    EXPECT_EQ(outcome.restored, 1U);
    EXPECT_EQ(outcome.notFound, 2U);
    EXPECT_EQ(outcome.failures, Strings());
}

// Successful undos.

TEST_F(RemovalUndoTest, restoresFolderToTreeAndLists) {
    surveyHome();
    const Results before = results();
    const NodeRef tree = model().root();
    removeFolders({"/projects"});
    ASSERT_FALSE(folder("/projects"));
    takeSignals();
    const RemovalUndo::Outcome outcome = undone();
    EXPECT_EQ(outcome.restored, 1U);
    EXPECT_EQ(outcome.failures, Strings());
    EXPECT_TRUE(machine.files.exists(film));
    EXPECT_EQ(results(), before);
    EXPECT_EQ(model().root(), tree) << "without another survey";
    EXPECT_EQ(surveys(), 1U);
    for (const char* told : {"root", "reclaimables", "insights"}) EXPECT_GE(timesSignalled(told), 1) << told;
    EXPECT_EQ(undo().moved(), 0U);
    EXPECT_EQ(undo().restorable(), 0U);
}

TEST_F(RemovalUndoTest, restoresFileToItsPlaceInTheList) {
    surveyHome();
    const Results before = results();
    removeFile(film);
    ASSERT_NE(results(), before);
    takeSignals();
    EXPECT_EQ(undone().restored, 1U);
    EXPECT_EQ(results(), before);
    EXPECT_EQ(surveys(), 1U);
    EXPECT_EQ(timesSignalled("insights"), 1);
    EXPECT_EQ(timesSignalled("root"), 0);
}

TEST_F(RemovalUndoTest, restoresFoldersInReverseOrder) {
    surveyHome();
    const Results before = results();
    removeFolders({"/projects/app/node_modules", "/projects/app", "/Library"});
    EXPECT_EQ(undone().restored, 3U);
    EXPECT_EQ(machine.trash.restored(),
              (Strings{home + "/Library", home + "/projects/app", home + "/projects/app/node_modules"}));
    EXPECT_EQ(results(), before);
    EXPECT_EQ(surveys(), 1U);
}

TEST_F(RemovalUndoTest, restoredFolderCanBeRemovedAgain) {
    surveyHome();
    const Results before = results();
    for (const char* below : {"/projects", "/Library", "/projects"}) {
        removeFolders({below});
        EXPECT_FALSE(folder(below));
        EXPECT_EQ(undone().restored, 1U);
        EXPECT_EQ(results(), before) << below;
    }
}

TEST_F(RemovalUndoTest, measuresTheTrashAgain) {
    surveyHome();
    removeFile(film);
    model().refreshTrash();
    runWhatIsThere();
    ASSERT_EQ(model().trashBytes(), 1'000);
    undone();
    runUntil([&] { return model().trashBytes() == 0; });
}

TEST_F(RemovalUndoTest, correctsResultsAfterACancel) {
    surveyHome();
    const Results before = results();
    removeFolders({"/projects"});
    model().cancelScan();  // after the survey has finished: its results stay
    ASSERT_EQ(model().scanPhase(), Phase::idle);
    undone();
    EXPECT_EQ(results(), before);
    EXPECT_EQ(model().scanPhase(), Phase::idle);
}

// Failures.

TEST_F(RemovalUndoTest, reportsWhatWasNotRestoredAndWhy) {
    surveyHome();
    removeFolders({"/projects/app", "/Library"});
    machine.files.addFolder(home + "/Library");
    takeSignals();
    const RemovalUndo::Outcome outcome = undone();
    EXPECT_EQ(outcome.restored, 1U);
    EXPECT_EQ(outcome.failures, Strings{home + "/Library is taken"});
    EXPECT_TRUE(folder("/projects/app"));
    EXPECT_FALSE(folder("/Library"));
    EXPECT_EQ(undo().restorable(), 0U) << "it is not tried again";
}

TEST_F(RemovalUndoTest, failedUndoChangesNothing) {
    surveyHome();
    removeFolders({"/projects"});
    machine.files.failing = [](const auto& call) { return call.operation == "restore"; };
    const Results before = results();
    takeSignals();
    const RemovalUndo::Outcome outcome = undone();
    EXPECT_EQ(outcome.restored, 0U);
    EXPECT_EQ(outcome.failures, Strings{home + "/projects would not come back"});
    EXPECT_EQ(results(), before);
    EXPECT_EQ(takeSignals(), Strings());
    EXPECT_EQ(surveys(), 1U);
}

TEST_F(RemovalUndoTest, missingParentStartsASurvey) {
    surveyHome();
    removeFolders({"/projects/app/node_modules", "/projects/app"});
    machine.files.failing = [this](const auto& call) {
        if (call.operation != "restore" || call.path != home + "/projects/app") return false;
        // Another program restores it meanwhile.
        machine.files.move(machine.trash.path + "/app", call.path);
        return true;
    };
    const RemovalUndo::Outcome outcome = undone();
    EXPECT_EQ(outcome.restored, 1U);
    untilSurveyed(2);
    EXPECT_TRUE(folder("/projects/app/node_modules"));
}

// Threads and surveys.

TEST_F(RemovalUndoTest, mainThreadDoesNotWaitForTheTrash) {
    surveyHome();
    removeFolders({"/projects"});
    machine.tasks.hold();
    int changes = 0;
    QObject::connect(&undo(), &RemovalUndo::changed, &model(), [&] { ++changes; });
    model().undoLastRemoval();
    model().undoLastRemoval();
    EXPECT_EQ(machine.tasks.waiting(), std::vector{TaskPriority::userInitiated}) << "once";
    EXPECT_TRUE(undo().underWay());
    EXPECT_EQ(undo().restorable(), 0U);
    EXPECT_EQ(changes, 1);
    EXPECT_TRUE(machine.trash.restored().empty());
    machine.tasks.runNext();
    EXPECT_EQ(machine.trash.restored(), Strings{home + "/projects"});
    EXPECT_FALSE(folder("/projects"));
    runUntil([&] { return !outcomes.empty(); });
    EXPECT_TRUE(folder("/projects"));
    EXPECT_FALSE(undo().underWay());
    EXPECT_EQ(changes, 2);
    machine.tasks.release();
}

TEST_F(RemovalUndoTest, offersARemovalDuringAnUndoNext) {
    surveyHome();
    removeFile(film);
    machine.tasks.hold();
    model().undoLastRemoval();
    model().trashLargeFile(image);
    machine.tasks.runAt(1);
    runWhatIsThere();
    EXPECT_EQ(undo().moved(), 1U);
    EXPECT_EQ(undo().restorable(), 0U) << "one after the other";
    machine.tasks.release();
    runUntil([&] { return outcomes.size() == 1; });
    EXPECT_EQ(machine.trash.restored(), Strings{film});
    EXPECT_EQ(undo().restorable(), 1U);
    undone();
    EXPECT_EQ(machine.trash.restored(), (Strings{film, image}));
}

TEST_F(RemovalUndoTest, laterSurveyIsFollowedByAnother) {
    surveyHome();
    removeFolders({"/projects"});
    survey();
    EXPECT_EQ(undone().restored, 1U);
    untilSurveyed(3);
    EXPECT_TRUE(folder("/projects"));
}

TEST_F(RemovalUndoTest, runningSurveyIsFollowedByAnother) {
    surveyHome();
    removeFile(film);
    addWideFolder(home + "/wide");
    machine.directories.hold(home + "/wide/inner");
    model().startScan();
    runUntil([&] { return model().itemsScanned() > 0; });
    EXPECT_EQ(undone().restored, 1U);
    ASSERT_EQ(model().scanPhase(), Phase::scanning);
    machine.directories.release();
    untilSurveyed(3);
}

TEST_F(RemovalUndoTest, undoOfARemovalDuringASurveyStartsASurvey) {
    surveyHome();
    addWideFolder(home + "/wide");
    machine.directories.hold(home + "/wide/inner");
    model().startScan();
    runUntil([&] { return model().itemsScanned() > 0; });
    removeFolders({"/projects"});
    machine.directories.release();
    untilSurveyed(2);
    ASSERT_FALSE(folder("/projects"));
    EXPECT_EQ(undone().restored, 1U);
    untilSurveyed(3);
    EXPECT_TRUE(folder("/projects"));
}

TEST_F(RemovalUndoTest, undoOfAFileRemovedDuringASurveyStartsASurvey) {
    surveyHome();
    addWideFolder(home + "/wide");
    machine.directories.hold(home + "/wide/inner");
    model().startScan();
    runUntil([&] { return model().itemsScanned() > 0; });
    removeFile(film);
    machine.directories.release();
    untilSurveyed(2);
    EXPECT_EQ(undone().restored, 1U);
    untilSurveyed(3);
    const auto& files = model().insights().topFiles;
    const auto isFilm = [&](const LargeFile& file) { return file.path == film; };
    EXPECT_EQ(std::count_if(files.begin(), files.end(), isFilm), 1);
}

TEST_F(RemovalUndoTest, surveyBegunDuringAnUndoIsFollowedByAnother) {
    surveyHome();
    removeFile(film);
    machine.tasks.hold();
    model().undoLastRemoval();
    model().startScan();
    machine.tasks.runNext();
    machine.tasks.release();
    untilSurveyed(3);
    EXPECT_EQ(outcomes.size(), 1U);
}

TEST_F(RemovalUndoTest, undoOfAFolderOfAnOlderTreeStartsASurvey) {
    surveyHome();
    const NodeRef old = folder("/projects");
    const NodeRef oldTree = model().root();
    survey();
    bool tried = false;
    model().trashAndRemove({old}, [&](const auto&) { tried = true; });
    runUntil([&] { return tried; });
    ASSERT_FALSE(folder("/projects"));
    EXPECT_EQ(undone().restored, 1U);
    untilSurveyed(3);
    EXPECT_TRUE(folder("/projects"));
}

TEST_F(RemovalUndoTest, newSurveyReleasesTheRemovedFolder) {
    surveyHome();
    const NodeRef removed = folder("/projects");
    removeFolders({"/projects"});
    ASSERT_GT(removed->arena().references(), 1U);
    survey();
    EXPECT_EQ(removed->arena().references(), 1U);
}

TEST_F(RemovalUndoTest, modelMayBeDestroyedMeanwhile) {
    surveyHome();
    removeFolders({"/projects"});
    machine.tasks.hold();
    model().undoLastRemoval();
    destroyModel();
    machine.tasks.release();
    runWhatIsThere();
    EXPECT_EQ(machine.trash.restored(), Strings{home + "/projects"});
    EXPECT_TRUE(outcomes.empty());
}

}  // namespace
}  // namespace zelk
