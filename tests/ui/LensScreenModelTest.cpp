// SPDX-License-Identifier: MIT
// Walking through a survey: the current folder, the selection, and the slices of the bubble chart.
#include "ui/screens/lens/LensScreenModel.h"

#include "LensFixture.h"

namespace zelk {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class LensScreenModelTest : public LensFixture {
protected:
    void tap(const std::string& label) { lens().bubbles()->tap(slice(label)); }
    void tick(const std::string& label) { lens().bubbles()->tick(slice(label)); }
};

}  // namespace

TEST_F(LensScreenModelTest, exposesItsTexts) {
    EXPECT_EQ(lens().title(), QStringLiteral("Lens"));
    EXPECT_EQ(lens().subtitle(),
              QStringLiteral("Explore where your space went — a list and a live bubble map, side by side."));
    EXPECT_EQ(lens().scanLabel(), QStringLiteral("Run survey"));
    EXPECT_EQ(lens().scanningLabel(), QStringLiteral("Surveying your drive…"));
    EXPECT_EQ(lens().symbol(), QStringLiteral("circle.hexagongrid"));
}

TEST_F(LensScreenModelTest, showsProgressAndResultsOfItsSurvey) {
    fill();
    addWideFolder(home + "/wide");
    EXPECT_TRUE(lens().idle());
    machine.directories.hold(home + "/wide/inner");
    lens().scan();
    EXPECT_TRUE(lens().scanning());
    runUntil([&] { return model().itemsScanned() > 0 && lens().scanDetail().toStdString() == model().progressLine(); });
    machine.directories.release();
    runUntil([&] { return model().scanPhase() == Phase::finished; });
    EXPECT_TRUE(lens().results());
    EXPECT_EQ(place(), "me");
}

TEST_F(LensScreenModelTest, hasNothingToMapWithoutTree) {
    EXPECT_FALSE(lens().mapped());
    EXPECT_EQ(place(), "—");
    EXPECT_EQ(lens().placeLine(), QString());
    EXPECT_TRUE(lens().placeIcon().value<QImage>().isNull());
    EXPECT_THAT(names(), IsEmpty());
    EXPECT_THAT(slices(), IsEmpty());
}

TEST_F(LensScreenModelTest, showsEarlierSurvey) {
    fill();
    survey();
    EXPECT_TRUE(lens().mapped());
    EXPECT_THAT(names(), ElementsAre("projects", "Library", "music"));
}

TEST_F(LensScreenModelTest, startsAtSingleChildAndStartOverReturnsThere) {
    fill();
    survey();
    EXPECT_EQ(place(), "me");
    EXPECT_EQ(lens().placeLine(), QStringLiteral("148 MB · 3 folders"));
    EXPECT_FALSE(lens().canGoBack());
    drill("projects");
    drill("app");
    toggle("node_modules");
    EXPECT_EQ(place(), "app");
    lens().startOver();
    EXPECT_EQ(place(), "me");
    EXPECT_FALSE(lens().canGoBack());
    EXPECT_FALSE(lens().removable());
}

TEST_F(LensScreenModelTest, listsSeveralRoots) {
    fill();
    model().setScanRoots({home + "/projects", home + "/music"});
    survey();
    EXPECT_EQ(place(), "Surveyed folders");
    EXPECT_EQ(lens().listName(), QStringLiteral("Surveyed folders"));
    EXPECT_EQ(lens().mapName(), QStringLiteral("Map of the surveyed folders"));
    EXPECT_EQ(lens().placeLine(), QStringLiteral("98 MB · 2 folders"));
    EXPECT_THAT(names(), ElementsAre(home + "/projects", home + "/music"));
    drill(home + "/projects");
    EXPECT_EQ(place(), "projects");
    EXPECT_EQ(lens().listName(), QStringLiteral("Folders in projects"));
    EXPECT_EQ(lens().mapName(), QStringLiteral("Map of projects"));
}

TEST_F(LensScreenModelTest, showsBytesOfLooseFiles) {
    fill();
    put("/notes.txt", 3'000'000);
    survey();
    EXPECT_EQ(lens().looseLine(), QStringLiteral("3 MB in files directly in this folder"));
    drill("projects");
    EXPECT_EQ(lens().looseLine(), QStringLiteral("80 MB in files directly in this folder"));
    drill("app");
    EXPECT_EQ(lens().looseLine(), QString());
}

TEST_F(LensScreenModelTest, severalRootsHaveNoLooseFiles) {
    fill();
    model().setScanRoots({home + "/projects", home + "/music"});
    EXPECT_EQ(lens().looseLine(), QString());
    survey();
    EXPECT_EQ(lens().looseLine(), QString());
}

TEST_F(LensScreenModelTest, rootIsNamedSlash) {
    machine.directories.file("/data/file", 1'000);
    model().setScanRoots({"/"});
    survey();
    EXPECT_EQ(place(), "/");
}

TEST_F(LensScreenModelTest, usesPluralForOneFolder) {
    fill();
    survey();
    drill("projects");
    EXPECT_EQ(lens().placeLine(), QStringLiteral("90 MB · 1 folders"));
}

TEST_F(LensScreenModelTest, backReturnsToRowOfLeftFolder) {
    fill();
    survey();
    QSignalSpy arrived(&lens(), &LensScreenModel::arrived);
    drill("Library");
    EXPECT_EQ(arrived.takeFirst().front().toInt(), 0);
    lens().back();
    EXPECT_EQ(place(), "me");
    EXPECT_EQ(arrived.takeFirst().front().toInt(), 1);
    lens().back();
    EXPECT_EQ(arrived.size(), 0) << "the top has no parent";
}

TEST_F(LensScreenModelTest, reportsFolderWithoutSubfolders) {
    EXPECT_FALSE(lens().bare()) << "no tree is shown";
    put("/a file", 5'000'000);
    survey();
    EXPECT_TRUE(lens().mapped());
    EXPECT_TRUE(lens().bare());
    fill();
    QSignalSpy changed(&lens(), &LensScreenModel::placeChanged);
    survey();
    EXPECT_FALSE(lens().bare());
    EXPECT_GE(changed.size(), 1);
}

TEST_F(LensScreenModelTest, entersNoLeafFolderOrInvalidRow) {
    fill();
    survey();
    drill("music");
    EXPECT_EQ(place(), "me");
    lens().drill(77);
    lens().drill(-1);
    lens().toggle(77);
    lens().explain(-1);
    EXPECT_EQ(place(), "me");
    EXPECT_FALSE(lens().removable());
    EXPECT_FALSE(lens().explanation()->shown());
}

TEST_F(LensScreenModelTest, drillingReportsItsDuration) {
    fill();
    survey();
    QSignalSpy drilled(&lens(), &LensScreenModel::drilled);
    drill("Library");
    EXPECT_EQ(drilled.takeFirst().front().toInt(), 180);
    lens().back();
    EXPECT_EQ(drilled.size(), 0);
    tap("Library");
    EXPECT_EQ(drilled.takeFirst().front().toInt(), 200);
}

TEST_F(LensScreenModelTest, reportsBubbleThatIsEnteredAndLeft) {
    addMany("", 20);
    put("/folder 3/inner/file", 1);
    survey();
    QSignalSpy drilled(&lens(), &LensScreenModel::drilled);
    QSignalSpy returned(&lens(), &LensScreenModel::returned);
    std::vector<std::string> listed;
    QObject::connect(&lens(), &LensScreenModel::drilled, &lens(), [&] { listed = names(); });
    drill("folder 3");
    EXPECT_EQ(drilled.takeFirst().at(1).toInt(), 3);
    EXPECT_EQ(listed.size(), 20) << "the bubbles are still those of the folder above";
    lens().back();
    EXPECT_EQ(returned.takeFirst().front().toInt(), 3);
    lens().back();
    EXPECT_EQ(returned.size(), 0) << "the top has no parent";
}

TEST_F(LensScreenModelTest, folderAmongTheRestIsEnteredThroughItsBubble) {
    addMany("", 20);
    put("/folder 18/inner/file", 1);
    survey();
    QSignalSpy drilled(&lens(), &LensScreenModel::drilled);
    drill("folder 18");
    EXPECT_EQ(drilled.takeFirst().at(1).toInt(), 16);
}

TEST_F(LensScreenModelTest, countsEmptyFoldersWithoutListingThem) {
    machine.directories.directory(home + "/hollow/a");
    machine.directories.directory(home + "/hollow/b");
    put("/hollow/file", 1'000);
    put("/music/song.flac", 1'000);
    survey();
    drill("hollow");
    EXPECT_EQ(lens().placeLine(), QStringLiteral("1 KB · 2 folders"));
    EXPECT_THAT(names(), IsEmpty());
    EXPECT_THAT(slices(), IsEmpty());
}

// Bubble chart

TEST_F(LensScreenModelTest, showsSixteenBubbles) {
    addMany("", 16);
    survey();
    EXPECT_EQ(slices().size(), 16U);
    EXPECT_EQ(slices().back().label, QStringLiteral("folder 15"));
}

TEST_F(LensScreenModelTest, foldsFoldersBeyondSixteenIntoOther) {
    addMany("", 17);
    survey();
    ASSERT_EQ(slices().size(), 17U);
    const BubbleSlice& rest = slices().back();
    EXPECT_EQ(rest.id, "__other__");
    EXPECT_EQ(rest.label, QStringLiteral("Other (1)"));
    EXPECT_EQ(rest.bytes, 1'000'000);
    EXPECT_FALSE(rest.reclaimable || rest.selected);
    EXPECT_TRUE(rest.icon.isNull());
    EXPECT_FALSE(rest.color.isValid()) << "the theme decides";
    EXPECT_EQ(lens().rows()->rowCount(), 17) << "the list shows every folder";
}

TEST_F(LensScreenModelTest, otherBubbleIsInert) {
    addMany("", 28);
    survey();
    EXPECT_EQ(slices().back().bytes, 78'000'000);
    tap("Other (12)");
    tick("Other (12)");
    EXPECT_EQ(place(), "me");
    EXPECT_FALSE(lens().removable());
    toggle("folder 27");
    EXPECT_EQ(caption(), "1 selected · 1 MB");
}

TEST_F(LensScreenModelTest, bubbleDescribesItsFolder) {
    fill();
    survey();
    const BubbleSlice& projects = slices().front();
    EXPECT_EQ(projects.id, home + "/projects");
    EXPECT_EQ(projects.label, QStringLiteral("projects"));
    EXPECT_EQ(projects.bytes, 90'000'000);
    EXPECT_EQ(projects.color, QColor(124, 92, 255));
    EXPECT_FALSE(projects.reclaimable);
    EXPECT_FALSE(projects.icon.isNull());
    drill("projects");
    drill("app");
    EXPECT_TRUE(slice("node_modules").reclaimable) << "classified before the screen was made";
}

TEST_F(LensScreenModelTest, tapEntersFolderOrSelectsLeaf) {
    fill();
    survey();
    tap("music");
    EXPECT_TRUE(ticked("music"));
    tap("music");
    EXPECT_FALSE(ticked("music"));
    tap("projects");
    EXPECT_EQ(place(), "projects");
    EXPECT_FALSE(lens().removable());
    lens().bubbles()->leave();
    EXPECT_EQ(place(), "me");
}

TEST_F(LensScreenModelTest, tickSelectsAnyBubble) {
    fill();
    survey();
    tick("projects");
    EXPECT_EQ(place(), "me");
    EXPECT_TRUE(ticked("projects"));
    tick("projects");
    EXPECT_FALSE(ticked("projects"));
}

TEST_F(LensScreenModelTest, listAndChartShareSelection) {
    fill();
    survey();
    toggle("Library");
    EXPECT_TRUE(slice("Library").selected);
    EXPECT_FALSE(slice("music").selected);
    tap("music");
    EXPECT_TRUE(ticked("music"));
    toggle("Library");
    EXPECT_FALSE(slice("Library").selected);
}

TEST_F(LensScreenModelTest, ignoresTapOnVanishedBubble) {
    fill();
    survey();
    const BubbleSlice gone = slice("Library");
    drill("projects");
    lens().bubbles()->tap(gone);
    lens().bubbles()->tick(gone);
    EXPECT_EQ(place(), "projects");
    EXPECT_FALSE(lens().removable());
}

// Selection

TEST_F(LensScreenModelTest, selectAllAddsToSelection) {
    fill();
    survey();
    EXPECT_EQ(lens().selectTitle(), QStringLiteral("None"));
    lens().selectAll();
    EXPECT_EQ(lens().selectTitle(), QStringLiteral("3"));
    EXPECT_EQ(caption(), "3 selected · 148 MB");
    drill("projects");
    lens().selectAll();
    EXPECT_EQ(lens().selectTitle(), QStringLiteral("4"));
    EXPECT_EQ(caption(), "4 selected · 158 MB");
    lens().selectNone();
    EXPECT_EQ(lens().selectTitle(), QStringLiteral("None"));
    lens().back();
    EXPECT_FALSE(ticked("music"));
}

TEST_F(LensScreenModelTest, removalNeedsASelection) {
    fill();
    survey();
    EXPECT_EQ(caption(), "No items selected");
    EXPECT_FALSE(lens().removable());
    lens().removeSelected();
    runWhatIsThere();
    EXPECT_EQ(lens().version(), 0);
    toggle("music");
    EXPECT_EQ(caption(), "1 selected · 8 MB");
    EXPECT_TRUE(lens().removable());
}

TEST_F(LensScreenModelTest, newSurveyKeepsPlaceAndSelection) {
    fill();
    survey();
    drill("projects");
    toggle("app");
    survey();
    EXPECT_EQ(place(), "projects");
    EXPECT_TRUE(ticked("app"));
    EXPECT_EQ(column(LensRows::sizeRole).front(), "10000000");
    EXPECT_EQ(lens().walk().selected().begin()->first, home + "/projects/app")
        << "the path holds although the model has a newer tree";
    EXPECT_EQ(lens().walk().currentNode()->fullPath(), home + "/projects");
    lens().startOver();
    EXPECT_EQ(lens().walk().currentNode(), &model().root()->children().front());
}

TEST_F(LensScreenModelTest, newSurveyReplacesTreeAtTheTop) {
    fill();
    survey();
    EXPECT_EQ(lens().rows()->rowCount(), 3);
    put("/novels/one.txt", 1'000'000'000);
    survey();
    EXPECT_THAT(names(), ElementsAre("novels", "projects", "Library", "music"));
    EXPECT_EQ(slices().front().label, QStringLiteral("novels"));
}

TEST_F(LensScreenModelTest, showsEarlierTreeUntilSurveyFinishes) {
    fill();
    survey();
    lens();
    const NodeRef before = model().root();
    surveyUpToClassification();
    runWhatIsThere();
    EXPECT_EQ(lens().walk().root(), before);
    machine.tasks.release();
    runUntil([&] { return model().scanPhase() == Phase::finished; });
    EXPECT_EQ(lens().walk().root(), model().root());
}

TEST_F(LensScreenModelTest, releasesUnusedTreeOffMainThread) {
    fill();
    survey();
    drill("projects");
    survey();
    const FSNode* old = lens().walk().currentNode()->parent();
    ASSERT_NE(old, nullptr);
    machine.tasks.hold();
    lens().back();
    EXPECT_EQ(machine.tasks.waiting(), std::vector{TaskPriority::utility}) << "a background task releases it";
    machine.tasks.release();
}

// Volume

TEST_F(LensScreenModelTest, showsUsageOfVolume) {
    machine.vitals.setVolume(home, VolumeInfo{994'660'000'000, 212'460'000'000, 0});
    fill();
    EXPECT_FALSE(lens().volumed());
    EXPECT_EQ(lens().volumeLine(), QString());
    QSignalSpy changed(&lens(), &LensScreenModel::volumeChanged);
    survey();
    EXPECT_GT(changed.size(), 0);
    EXPECT_TRUE(lens().volumed());
    EXPECT_EQ(lens().volumeLine(), QStringLiteral("782.2 GB of 994.66 GB used"));
    EXPECT_NEAR(lens().usedShare(), 0.7864, 0.0001);
}

TEST_F(LensScreenModelTest, usageIsZeroForInconsistentVolume) {
    model().setVolume(VolumeInfo{0, 0, 0});
    EXPECT_EQ(lens().usedShare(), 0);
    EXPECT_EQ(lens().volumeLine(), QStringLiteral("0 bytes of 0 bytes used"));
    model().setVolume(VolumeInfo{100, 300, 0});
    EXPECT_EQ(lens().usedShare(), 0);
    EXPECT_EQ(lens().volumeLine(), QStringLiteral("0 bytes of 100 bytes used"));
}

// Explanation

TEST_F(LensScreenModelTest, explainsFolderOfRow) {
    fill();
    survey();
    drill("projects");
    drill("app");
    lens().explain(0);
    EXPECT_TRUE(lens().explanation()->shown());
    EXPECT_EQ(lens().explanation()->title(), QStringLiteral("node_modules"));
    EXPECT_EQ(lens().explanation()->path().toStdString(), home + "/projects/app/node_modules");
    lens().explanation()->close();
    EXPECT_FALSE(lens().explanation()->shown());
}

}  // namespace zelk
