// SPDX-License-Identifier: MIT
#include "ui/controls/UndoBarModel.h"

#include <gmock/gmock.h>

#include "state/AppModelFixture.h"

namespace zelk {
namespace {

class UndoBar : public AppModelFixture {
protected:
    /// Surveys a home with three folders and a film, and creates the bars of both screens.
    void open() {
        for (const char* file : {"/a/x", "/b/x", "/c/x", "/d/x", "/film.mov"}) {
            machine.directories.file(home + file, 60'000'000, 1'000);
            machine.files.addFile(home + file, {}, 60'000'000);
        }
        survey();
        folders = std::make_unique<UndoBarModel>(model(), RemovalUndo::Source::folders);
        files = std::make_unique<UndoBarModel>(model(), RemovalUndo::Source::largeFile);
    }
    ~UndoBar() override {
        machine.directories.release();
        folders.reset();
        files.reset();
    }

    void removeFolders(const std::vector<std::string>& names) {
        std::vector<NodeRef> nodes;
        for (const std::string& name : names) nodes.push_back(folderAt(model().root(), home + "/" + name));
        bool tried = false;
        model().trashAndRemove(nodes, [&](const auto&) { tried = true; });
        runUntil([&] { return tried; });
        runWhatIsThere();
    }
    void removeFilm() {
        model().trashLargeFile(home + "/film.mov");
        runUntil([&] { return files->shown(); });
        runWhatIsThere();
    }
    void undo() {
        folders->undo();
        runUntil([&] { return !model().removalUndo().underWay(); });
        runWhatIsThere();
    }
    void failToRestore() {
        machine.files.failing = [](const auto& call) { return call.operation == "restore"; };
    }
    std::string text() const { return folders->text().toStdString(); }
    std::string details() const { return folders->details().toStdString(); }

    std::unique_ptr<UndoBarModel> folders;
    std::unique_ptr<UndoBarModel> files;
};

TEST_F(UndoBar, isHiddenBeforeRemoval) {
    open();
    EXPECT_FALSE(folders->shown());
    EXPECT_FALSE(folders->undoable());
    folders->undo();
    EXPECT_FALSE(folders->shown());
    EXPECT_FALSE(model().removalUndo().underWay());
}

TEST_F(UndoBar, offersUndoOnTheScreenThatRemoved) {
    open();
    removeFolders({"a"});
    EXPECT_TRUE(folders->shown());
    EXPECT_TRUE(folders->undoable());
    EXPECT_EQ(text(), "Moved to the Trash");
    EXPECT_EQ(details(), "");
    EXPECT_FALSE(files->shown());
}

TEST_F(UndoBar, removalOnAnotherScreenHidesIt) {
    open();
    removeFolders({"a"});
    removeFilm();
    EXPECT_FALSE(folders->shown());
    EXPECT_TRUE(files->undoable());
    folders->undo();
    EXPECT_FALSE(model().removalUndo().underWay()) << "it is not the last removal";
}

TEST_F(UndoBar, isHiddenWhileTheNextRemovalRuns) {
    open();
    removeFolders({"a"});
    machine.tasks.hold();
    model().trashAndRemove(*folderAt(model().root(), home + "/b"));
    EXPECT_FALSE(folders->shown());
    machine.tasks.release();
    runUntil([&] { return folders->shown(); });
    EXPECT_TRUE(folders->undoable());
}

TEST_F(UndoBar, emptyingTheTrashHidesIt) {
    open();
    removeFolders({"a"});
    model().emptyTrash();
    EXPECT_FALSE(folders->shown());
    runUntil([&] { return !model().emptyingTrash(); });
}

TEST_F(UndoBar, newSurveyHidesIt) {
    open();
    removeFolders({"a"});
    model().startScan();
    EXPECT_FALSE(folders->shown());
    runUntil([&] { return model().scanPhase() == Phase::finished; });
    EXPECT_FALSE(folders->shown());
}

TEST_F(UndoBar, ofBackgroundItemsOutlivesSurveysAndOtherRemovals) {
    open();
    UndoBarModel agents(model(), RemovalUndo::Source::backgroundItems);
    const TrashResult film = machine.trash.trash(ItemPath::from(home + "/film.mov").value());
    int putBack = 0;
    const auto back = [&putBack] { return ++putBack > 0; };
    model().removalUndo().offer(RemovalUndo::Source::backgroundItems, 1, {{film.item.value(), back}});
    ASSERT_TRUE(agents.undoable());
    survey();
    EXPECT_TRUE(agents.undoable());
    const auto removal = model().removals().begin(1);
    EXPECT_TRUE(agents.undoable());
    removal->noteDone();
    agents.undo();
    runUntil([&] { return !model().removalUndo().underWay(); });
    EXPECT_EQ(agents.text(), QStringLiteral("1 item was restored."));
    EXPECT_EQ(putBack, 1);
    survey();
    EXPECT_TRUE(agents.shown()) << "what became of it is told all the same";
    runWhatIsThere();
}

TEST_F(UndoBar, ofBackgroundItemsGoesWithTheContentOfTheTrash) {
    open();
    UndoBarModel agents(model(), RemovalUndo::Source::backgroundItems);
    model().removalUndo().offer(RemovalUndo::Source::backgroundItems, 1, {});
    ASSERT_TRUE(agents.shown());
    model().emptyTrash();
    EXPECT_FALSE(agents.shown());
    runUntil([&] { return !model().emptyingTrash(); });
}

TEST_F(UndoBar, ofBackgroundItemsGivesWayToTheNextRemoval) {
    open();
    UndoBarModel agents(model(), RemovalUndo::Source::backgroundItems);
    model().removalUndo().offer(RemovalUndo::Source::backgroundItems, 1, {});
    ASSERT_TRUE(agents.shown());
    removeFolders({"a"});
    EXPECT_FALSE(agents.shown());
    EXPECT_TRUE(folders->undoable());
}

TEST_F(UndoBar, closesWhenDismissed) {
    open();
    removeFolders({"a"});
    int changes = 0;
    QObject::connect(folders.get(), &UndoBarModel::changed, folders.get(), [&] { ++changes; });
    folders->dismiss();
    EXPECT_FALSE(folders->shown());
    EXPECT_FALSE(folders->undoable());
    EXPECT_EQ(changes, 1);
}

TEST_F(UndoBar, failedRemovalShowsNothing) {
    open();
    machine.files.failing = [](const auto& call) { return call.operation == "trash"; };
    removeFolders({"a"});
    EXPECT_FALSE(folders->shown());
}

TEST_F(UndoBar, undoRestoresAndReportsIt) {
    open();
    removeFolders({"a"});
    machine.tasks.hold();
    folders->undo();
    EXPECT_TRUE(folders->shown());
    EXPECT_FALSE(folders->undoable());
    EXPECT_EQ(text(), "Restoring…");
    machine.tasks.release();
    runUntil([&] { return !model().removalUndo().underWay(); });
    EXPECT_EQ(text(), "1 item was restored.");
    EXPECT_EQ(details(), "");
    EXPECT_FALSE(folders->undoable());
    EXPECT_TRUE(machine.files.exists(home + "/a/x"));
    EXPECT_FALSE(files->shown());
}

TEST_F(UndoBar, countsTheRestoredItems) {
    open();
    removeFolders({"a", "b", "c"});
    undo();
    EXPECT_EQ(text(), "3 items were restored.");
}

TEST_F(UndoBar, reportsWhatWasNotRestoredAndWhy) {
    open();
    removeFolders({"a", "b", "c"});
    machine.files.addFolder(home + "/b");
    undo();
    EXPECT_EQ(text(), "2 items were restored. 1 item stays in the Trash.");
    EXPECT_EQ(details(), home + "/b is taken");
    EXPECT_EQ(folders->spoken().toStdString(),
              "2 items were restored. 1 item stays in the Trash. " + home + "/b is taken");
    EXPECT_FALSE(folders->undoable());
}

TEST_F(UndoBar, reportsUpToThreeReasons) {
    open();
    removeFolders({"a", "b", "c"});
    failToRestore();
    undo();
    EXPECT_EQ(text(), "3 items stay in the Trash.");
    EXPECT_EQ(details(),
              home + "/c would not come back\n" + home + "/b would not come back\n" + home + "/a would not come back");
}

TEST_F(UndoBar, countsReasonsBeyondTheThird) {
    open();
    failToRestore();
    removeFolders({"a", "b", "c", "d"});
    undo();
    EXPECT_EQ(folders->details().count(QLatin1Char('\n')), 3);
    EXPECT_TRUE(folders->details().endsWith(QStringLiteral("\nAnd 1 more.")));
    const TrashResult film = machine.trash.trash(ItemPath::from(home + "/film.mov").value());
    const RemovalUndo::Item item{film.item.value(), nullptr};
    model().removalUndo().offer(RemovalUndo::Source::folders, 5, {item, item, item, item, item});
    undo();
    EXPECT_TRUE(folders->details().endsWith(QStringLiteral("\nAnd 2 more.")));
}

TEST_F(UndoBar, reportsItemsWithoutKnownLocation) {
    open();
    const TrashResult film = machine.trash.trash(ItemPath::from(home + "/film.mov").value());
    const RemovalUndo::Item item{film.item.value(), nullptr};
    model().removalUndo().offer(RemovalUndo::Source::folders, 2, {item});
    undo();
    EXPECT_EQ(text(), "1 item was restored. 1 item stays in the Trash.");
    EXPECT_EQ(details(), "The system did not say where 1 of them is there.");
}

TEST_F(UndoBar, cannotUndoItemsWithoutKnownLocation) {
    open();
    model().removalUndo().offer(RemovalUndo::Source::folders, 1, {});
    EXPECT_TRUE(folders->shown());
    EXPECT_FALSE(folders->undoable());
}

TEST_F(UndoBar, outcomeSurvivesSurveyAfterUndo) {
    open();
    const TrashResult film = machine.trash.trash(ItemPath::from(home + "/film.mov").value());
    model().removalUndo().offer(RemovalUndo::Source::folders, 1, {{film.item.value(), nullptr}});
    undo();
    runUntil([&] { return model().history().size() == 2 && model().scanPhase() == Phase::finished; });
    EXPECT_EQ(text(), "1 item was restored.");
}

TEST_F(UndoBar, removalDuringUndoIsOfferedAfterwards) {
    open();
    removeFolders({"a"});
    machine.tasks.hold();
    folders->undo();
    model().trashAndRemove(*folderAt(model().root(), home + "/b"));
    machine.tasks.runAt(1);
    runWhatIsThere();
    EXPECT_EQ(text(), "Restoring…");
    machine.tasks.release();
    runUntil([&] { return folders->undoable(); });
    EXPECT_EQ(text(), "Moved to the Trash");
    undo();
    EXPECT_TRUE(machine.files.exists(home + "/b/x"));
}

TEST_F(UndoBar, repairsNamesThatAreNotText) {
    open();
    const TrashResult film = machine.trash.trash(ItemPath::from(home + "/film.mov").value());
    TrashedItem item = film.item.value();
    item.origin = ItemPath::from(home + "/bad\xff").value();
    model().removalUndo().offer(RemovalUndo::Source::folders, 1, {{item, nullptr}});
    failToRestore();
    undo();
    EXPECT_EQ(details(), home + "/bad\uFFFD would not come back");
}

}  // namespace
}  // namespace zelk
