// SPDX-License-Identifier: MIT
// The model counts its removals, and stops between two items on request.
#include "AppModelFixture.h"

namespace zelk {
namespace {

using Progress = RemovalsModel::Progress;
using Strings = std::vector<std::string>;

class AppModelRemovalsTest : public AppModelFixture {
protected:
    void surveyHome() {
        fillHome();
        machine.directories.file(home + "/Library/Developer/Xcode/DerivedData/a", 1'000'000, 1'000);
        for (const char* file : {"/Library/Caches/Yarn/v6", "/Library/Developer/Xcode/DerivedData/a",
                                 "/projects/app/node_modules/a.js", "/projects/film.mov"})
            machine.files.addFile(home + file);
        survey();
        ASSERT_FALSE(model().removals().underWay()) << "a survey takes nothing away";
        machine.tasks.hold();
    }
    NodeRef folder(const std::string& below) { return folderAt(model().root(), home + below); }
    RemovalsModel& removals() { return model().removals(); }
    void endAll() {
        machine.tasks.release();
        runUntil([&] { return !removals().underWay(); });
        runUntil([&] { return model().scanPhase() == Phase::finished; });
    }
};

TEST_F(AppModelRemovalsTest, countsSafeItemsUntilLastIsCleaned) {
    surveyHome();
    const std::size_t safe = model().safeItems().size();
    ASSERT_EQ(safe, 2U);
    model().cleanSafeCaches();
    EXPECT_EQ(removals().progress(), (Progress{0, safe}));
    machine.tasks.runNext();
    machine.tasks.runNext();
    EXPECT_EQ(removals().progress(), (Progress{1, safe}));
    endAll();
}

TEST_F(AppModelRemovalsTest, stopKeepsPendingSafeItems) {
    surveyHome();
    model().cleanSafeCaches();
    machine.tasks.runNext();
    machine.tasks.runNext();
    removals().stop();
    endAll();
    EXPECT_EQ(machine.trash.trashed().size(), 1U);
}

TEST_F(AppModelRemovalsTest, stopTakesEffectBetweenFolders) {
    surveyHome();
    machine.files.failing = [this](const auto& call) {
        if (call.operation == "trash") removals().stop();
        return false;
    };
    std::optional<std::size_t> gone;
    model().trashAndRemove({folder("/projects"), folder("/Library")},
                           [&](const std::vector<NodeRef>& nodes) { gone = nodes.size(); });
    EXPECT_EQ(removals().progress(), (Progress{0, 2}));
    machine.tasks.release();
    runUntil([&] { return gone.has_value(); });
    EXPECT_EQ(gone, 1U);
    EXPECT_EQ(machine.trash.trashed(), Strings{home + "/projects"});
    EXPECT_FALSE(folder("/projects"));
    EXPECT_TRUE(folder("/Library"));
    runUntil([&] { return !removals().underWay(); });
}

TEST_F(AppModelRemovalsTest, failedMoveEndsRemoval) {
    surveyHome();
    machine.files.failing = [](const auto& call) { return call.operation == "trash"; };
    model().trashAndRemove(*folder("/projects"));
    ASSERT_TRUE(removals().underWay());
    endAll();
    EXPECT_TRUE(folder("/projects"));
}

TEST_F(AppModelRemovalsTest, noFolderStartsNoRemoval) {
    surveyHome();
    model().trashAndRemove(*model().root());
    EXPECT_FALSE(removals().underWay());
    machine.tasks.release();
}

TEST_F(AppModelRemovalsTest, countsLargeFileUntilMovedOrFailed) {
    surveyHome();
    for (const bool fails : {true, false}) {
        machine.tasks.hold();
        machine.files.failing = [fails](const auto& call) { return fails && call.operation == "trash"; };
        model().trashLargeFile(home + "/projects/film.mov");
        EXPECT_EQ(removals().progress(), (Progress{0, 1}));
        endAll();
    }
    EXPECT_EQ(machine.trash.trashed(), Strings{home + "/projects/film.mov"});
}

TEST_F(AppModelRemovalsTest, stopKeepsPendingLargeFile) {
    surveyHome();
    const std::size_t listed = model().insights().topFiles.size();
    model().trashLargeFile(home + "/projects/film.mov");
    removals().stop();
    endAll();
    EXPECT_TRUE(machine.trash.trashed().empty());
    EXPECT_EQ(model().insights().topFiles.size(), listed);
}

TEST_F(AppModelRemovalsTest, countsEmptyingOfTrash) {
    surveyHome();
    machine.trash.put("old.zip", 7);
    model().emptyTrash();
    EXPECT_EQ(removals().progress(), (Progress{0, 1}));
    endAll();
    EXPECT_EQ(machine.trash.list(), Strings());
}

TEST_F(AppModelRemovalsTest, stopKeepsTrashThatIsNotEmptiedYet) {
    surveyHome();
    machine.trash.put("old.zip", 7);
    model().emptyTrash();
    removals().stop();
    endAll();
    EXPECT_EQ(machine.trash.list(), Strings{machine.trash.path + "/old.zip"});
    runUntil([&] { return !model().emptyingTrash(); });
}

TEST_F(AppModelRemovalsTest, modelMayBeDestroyedDuringRemoval) {
    surveyHome();
    model().cleanSafeCaches();
    destroyModel();
    machine.tasks.release();
    runWhatIsThere();
    EXPECT_EQ(machine.trash.trashed().size(), 2U);
}

}  // namespace
}  // namespace zelk
