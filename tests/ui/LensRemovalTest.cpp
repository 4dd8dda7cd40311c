// SPDX-License-Identifier: MIT
// Removal moves exactly the selected folders to the Trash and takes them out of the results.
#include "LensFixture.h"

namespace zelk {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class LensRemovalTest : public LensFixture {
protected:
    std::vector<std::string> trashed() const { return machine.trash.trashed(); }
};

}  // namespace

TEST_F(LensRemovalTest, removesSelectedFoldersInPathOrder) {
    fill();
    survey();
    toggle("music");
    toggle("projects");
    drill("Library");
    toggle("Caches");
    QSignalSpy rebuilt(lens().bubbles(), &BubbleModel::rebuilt);
    removeSelected();
    EXPECT_THAT(trashed(), ElementsAre(home + "/Library/Caches", home + "/music", home + "/projects"));
    EXPECT_EQ(lens().version(), 1);
    EXPECT_EQ(rebuilt.size(), 1);
    EXPECT_EQ(caption(), "No items selected");
    EXPECT_THAT(names(), IsEmpty());
    lens().back();
    EXPECT_THAT(names(), IsEmpty()) << "the folder that is left is empty";
    EXPECT_EQ(lens().placeLine(), QStringLiteral("0 bytes · 1 folders"));
}

TEST_F(LensRemovalTest, updatesTotals) {
    fill();
    survey();
    drill("projects");
    toggle("app");
    removeSelected();
    EXPECT_EQ(lens().placeLine(), QStringLiteral("80 MB · 0 folders"));
    EXPECT_EQ(model().root()->size, 138'000'000);
    EXPECT_EQ(model().topFolders().front()->size, 80'000'000);
    EXPECT_EQ(model().bytesScanned(), 148'000'000) << "the count of the survey stays";
    lens().back();
    EXPECT_EQ(lens().placeLine(), QStringLiteral("138 MB · 3 folders"));
    EXPECT_THAT(column(LensRows::sizeRole), ElementsAre("80000000", "50000000", "8000000"));
    EXPECT_EQ(slices().front().bytes, 80'000'000);
}

TEST_F(LensRemovalTest, keepsFailedFolderDeselected) {
    fill();
    survey();
    machine.files.failing = [&](const auto& call) { return call.operation == "trash" && call.path == home + "/music"; };
    lens().selectAll();
    removeSelected();
    EXPECT_THAT(trashed(), ElementsAre(home + "/Library", home + "/projects"));
    EXPECT_THAT(names(), ElementsAre("music"));
    EXPECT_FALSE(ticked("music"));
    EXPECT_EQ(caption(), "No items selected");
    EXPECT_EQ(lens().version(), 1);
}

TEST_F(LensRemovalTest, keepsFolderThatVanishedFromDisk) {
    fill();
    survey();
    ASSERT_FALSE(machine.files.remove(*ItemPath::from(home + "/music")));
    toggle("music");
    removeSelected();
    EXPECT_THAT(trashed(), IsEmpty());
    EXPECT_THAT(names(), ElementsAre("projects", "Library", "music"));
    EXPECT_FALSE(lens().removable());
}

TEST_F(LensRemovalTest, removesOffMainThread) {
    fill();
    survey();
    lens();
    machine.tasks.hold();
    lens().selectAll();
    lens().removeSelected();
    EXPECT_EQ(machine.tasks.waiting(), std::vector{TaskPriority::userInitiated});
    EXPECT_THAT(trashed(), IsEmpty());
    EXPECT_FALSE(lens().removable()) << "a second press is refused";
    machine.tasks.release();
    runUntilRemoved(0);
    EXPECT_THAT(names(), IsEmpty());
}

TEST_F(LensRemovalTest, removesNestedFolderWithItsParent) {
    fill();
    survey();
    toggle("projects");
    drill("projects");
    toggle("app");
    EXPECT_EQ(caption(), "2 selected · 100 MB");
    removeSelected();
    EXPECT_THAT(trashed(), ElementsAre(home + "/projects"));
    EXPECT_EQ(model().root()->size, 58'000'000);
}

TEST_F(LensRemovalTest, keepsFolderWithLongerName) {
    fill();
    put("/music box/tune", 1'000);
    survey();
    toggle("music");
    removeSelected();
    EXPECT_THAT(names(), ElementsAre("projects", "Library", "music box"));
    EXPECT_TRUE(machine.files.exists(home + "/music box/tune"));
}

TEST_F(LensRemovalTest, goesUpAfterRemovalOfCurrentFolder) {
    fill();
    survey();
    toggle("projects");
    drill("projects");
    drill("app");
    removeSelected();
    EXPECT_THAT(trashed(), ElementsAre(home + "/projects"));
    EXPECT_EQ(lens().walk().currentNode()->fullPath(), home);
    EXPECT_THAT(names(), ElementsAre("Library", "music"));
    EXPECT_FALSE(lens().canGoBack());
    EXPECT_EQ(model().root()->size, 58'000'000);
}

TEST_F(LensRemovalTest, goesUpToNearestFolderThatIsLeft) {
    fill();
    survey();
    drill("projects");
    toggle("app");
    drill("app");
    removeSelected();
    EXPECT_EQ(place(), "projects");
    EXPECT_THAT(names(), IsEmpty());
    EXPECT_EQ(lens().looseLine(), QStringLiteral("80 MB in files directly in this folder"));
    lens().back();
    EXPECT_THAT(names(), ElementsAre("projects", "Library", "music"));
}

TEST_F(LensRemovalTest, staysInsideFolderWithLongerName) {
    fill();
    put("/music box/drawer/tune", 1'000);
    survey();
    toggle("music");
    drill("music box");
    removeSelected();
    EXPECT_EQ(place(), "music box");
}

TEST_F(LensRemovalTest, staysInsideFolderThatCouldNotBeRemoved) {
    fill();
    survey();
    machine.files.failing = [&](const auto& call) { return call.operation == "trash"; };
    toggle("projects");
    drill("projects");
    removeSelected();
    EXPECT_EQ(place(), "projects");
}

TEST_F(LensRemovalTest, goesUpFromRemovedRootToAllRoots) {
    fill();
    model().setScanRoots({home + "/projects", home + "/music"});
    survey();
    toggle(home + "/projects");
    drill(home + "/projects");
    removeSelected();
    EXPECT_THAT(names(), testing::Not(testing::Contains(home + "/projects")));
}

TEST_F(LensRemovalTest, removalFromOlderTreeUpdatesBothTrees) {
    fill();
    survey();
    drill("projects");
    toggle("app");
    survey();
    removeSelected();
    EXPECT_THAT(trashed(), ElementsAre(home + "/projects/app"));
    EXPECT_THAT(names(), IsEmpty());
    EXPECT_EQ(lens().placeLine(), QStringLiteral("80 MB · 0 folders"));
    lens().startOver();
    EXPECT_EQ(lens().placeLine(), QStringLiteral("138 MB · 3 folders"));
    EXPECT_EQ(model().root()->size, 138'000'000);
}

TEST_F(LensRemovalTest, selectionKeepsItsOlderTreeAlive) {
    fill();
    survey();
    toggle("music");
    survey();
    EXPECT_TRUE(ticked("music"));
    removeSelected();
    EXPECT_THAT(trashed(), ElementsAre(home + "/music"));
    EXPECT_THAT(names(), ElementsAre("projects", "Library"));
    EXPECT_EQ(model().root()->size, 140'000'000);
}

TEST_F(LensRemovalTest, removesThousandsOfFoldersOfOlderTree) {
    constexpr int count = 20'000;
    for (int at = 0; at < count; ++at) put("/many/folder " + std::to_string(at) + "/file", 1'000 + at);
    put("/music/song.flac", 8'000'000);
    survey();
    drill("many");
    lens().selectAll();
    survey();
    removeSelected();
    EXPECT_EQ(trashed().size(), std::size_t{count});
    lens().startOver();
    EXPECT_EQ(model().root()->size, 8'000'000);
    EXPECT_THAT(names(), ElementsAre("music"));
}

TEST_F(LensRemovalTest, surveyMayStartDuringRemoval) {
    fill();
    survey();
    toggle("music");
    machine.tasks.hold();
    lens().removeSelected();
    machine.directories.hold(home);
    model().startScan();
    machine.directories.waitUntilHeld(home);
    machine.tasks.release();
    runUntilRemoved(0);
    EXPECT_EQ(model().root()->size, 140'000'000);
    machine.directories.release();
    runUntil([&] { return model().scanPhase() == Phase::finished; });
    EXPECT_EQ(lens().walk().root(), model().root());
    EXPECT_EQ(lens().version(), 1);
    EXPECT_THAT(names(), ElementsAre("projects", "Library"))
        << "the survey may have read the folder before it was removed";
    EXPECT_EQ(model().root()->size, 140'000'000);
}

TEST_F(LensRemovalTest, surveyMayFinishDuringRemoval) {
    fill();
    survey();
    drill("projects");
    toggle("app");
    machine.tasks.hold();
    lens().removeSelected();
    model().startScan();
    const NodeRef old = model().root();
    runUntil([&] { return !(model().root() == old); });
    while (machine.tasks.waiting().size() > 1) machine.tasks.runAt(1);
    machine.tasks.release();
    runUntil([&] { return model().scanPhase() == Phase::finished && lens().version() == 1; });
    EXPECT_THAT(trashed(), ElementsAre(home + "/projects/app"));
    EXPECT_EQ(place(), "projects");
    EXPECT_THAT(names(), IsEmpty()) << "the screen still shows the tree of the earlier survey";
    lens().startOver();
    EXPECT_EQ(model().root()->size, 138'000'000);
    drill("projects");
    EXPECT_EQ(place(), "me") << "the new tree has no folder inside it either";
    EXPECT_EQ(model().reclaimables().size(), 1U);
}

TEST_F(LensRemovalTest, keepsSelectionMadeDuringRemoval) {
    fill();
    survey();
    machine.tasks.hold();
    toggle("music");
    lens().removeSelected();
    toggle("Library");
    toggle("music");
    machine.tasks.release();
    runUntilRemoved(0);
    EXPECT_TRUE(ticked("Library"));
    EXPECT_EQ(caption(), "1 selected · 50 MB") << "the removed folder is not selected";
}

TEST_F(LensRemovalTest, screenMayBeDestroyedDuringRemoval) {
    fill();
    survey();
    toggle("music");
    machine.tasks.hold();
    lens().removeSelected();
    destroyLens();
    machine.tasks.release();
    runUntil([&] { return model().root()->size == 140'000'000; });
    EXPECT_THAT(trashed(), ElementsAre(home + "/music"));
}

TEST_F(LensRemovalTest, removesReclaimablesInsideRemovedFolder) {
    fill();
    survey();
    ASSERT_EQ(model().reclaimables().size(), 2U);
    toggle("projects");
    removeSelected();
    ASSERT_EQ(model().reclaimables().size(), 1U);
    EXPECT_EQ(model().reclaimables().front().path, home + "/Library/Caches/Yarn");
}

}  // namespace zelk
