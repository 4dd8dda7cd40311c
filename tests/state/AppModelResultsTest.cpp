// SPDX-License-Identifier: MIT
// The derived values, and the removal of a folder from the results.
#include <QLocale>

#include "AppModelFixture.h"

namespace zelk {
namespace {

using Strings = std::vector<std::string>;

class AppModelResultsTest : public AppModelFixture {
protected:
    Strings reclaimablePaths() {
        Strings paths;
        for (const Reclaimable& item : model().reclaimables()) paths.push_back(item.path);
        std::sort(paths.begin(), paths.end());
        return paths;
    }
    Strings topFilePaths() {
        Strings paths;
        for (const LargeFile& file : model().insights().topFiles) paths.push_back(file.path);
        return paths;
    }
    static Strings names(const std::vector<NodeRef>& nodes) {
        Strings all;
        for (const NodeRef& node : nodes) all.emplace_back(node->name());
        return all;
    }
    void remove(const std::string& path) {
        const NodeRef node = folderAt(model().root(), path);
        ASSERT_TRUE(node) << path;
        model().removeFromTree(*node);
    }
};

// Derived values.

TEST_F(AppModelResultsTest, reclaimableBytesSumAllItems) {
    EXPECT_EQ(model().reclaimableBytes(), 0);
    fillHome();
    survey();
    EXPECT_EQ(model().reclaimableBytes(), 60'000'000);
}

TEST_F(AppModelResultsTest, safeItemsKeepListOrder) {
    fillHome();
    machine.directories.file(home + "/.npm/_cacache/x", 1'000);
    survey();
    Strings safe;
    for (const Reclaimable& item : model().reclaimables())
        if (item.safety == ReclaimSafety::safe) safe.push_back(item.path);
    Strings given;
    for (const Reclaimable& item : model().safeItems()) given.push_back(item.path);
    EXPECT_EQ(given, safe);
    EXPECT_EQ(given.size(), 2U);
    EXPECT_EQ(model().safeBytes(), 50'001'000);
}

TEST_F(AppModelResultsTest, freeBytesUseKnownVolume) {
    model().setVolume(VolumeInfo{100, 42, 50});
    EXPECT_EQ(model().freeBytes(), 42);
    EXPECT_EQ(machine.vitals.volumeReads(), Strings{});
}

TEST_F(AppModelResultsTest, freeBytesReadVolumeIfAbsent) {
    machine.vitals.setVolume("/data", VolumeInfo{100, 77, 80});
    model().setScanRoots({"/data", home});
    EXPECT_EQ(model().freeBytes(), 77);
    model().setScanRoots({});
    EXPECT_EQ(model().freeBytes(), 400);
    EXPECT_FALSE(model().volume());
    machine.vitals.setVolume(home, std::nullopt);
    EXPECT_EQ(model().freeBytes(), 0);
    EXPECT_EQ(machine.vitals.volumeReads(), (Strings{"/data", home, home}));
}

TEST_F(AppModelResultsTest, progressLineFollowsLocale) {
    const QLocale before;
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
    EXPECT_EQ(model().progressLine(), "0 items · 0 bytes");
    addWideFolder(home + "/wide");
    machine.directories.file(home + "/big", 1'200'000'000);
    survey();
    EXPECT_EQ(model().progressLine(), "20,004 items · 1.22 GB");
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    EXPECT_EQ(model().progressLine(), "20.004 items · 1,22 GB");
    QLocale::setDefault(QLocale::c());
    EXPECT_EQ(model().progressLine(), "20,004 items · 1.22 GB") << "as every other figure";
    QLocale::setDefault(before);
}

TEST_F(AppModelResultsTest, reclaimTotalsSumCategoriesLargestFirst) {
    fillHome();
    machine.directories.file(home + "/projects/web/node_modules/b.js", 55'000'000);
    survey();
    const ReclaimTotals totals = model().reclaimTotals();
    ASSERT_EQ(totals.size(), 2U);
    EXPECT_EQ(totals[0].first->id, "node_modules");
    EXPECT_EQ(totals[0].second, 65'000'000);
    EXPECT_EQ(totals[1].first->id, "yarn_cache");
    EXPECT_EQ(totals[1].second, 50'000'000);
}

TEST_F(AppModelResultsTest, reclaimTotalsDropUnknownCategories) {
    Reclaimable known;
    known.categoryID = "expo";
    known.size = 3;
    Reclaimable unknown;
    unknown.categoryID = "no such row";
    unknown.size = 5;
    const ReclaimTotals totals = totalsByCategory({unknown, known});
    ASSERT_EQ(totals.size(), 1U);
    EXPECT_EQ(totals[0].first->id, "expo");
}

TEST_F(AppModelResultsTest, sortsTypeTotalsLargestFirst) {
    fillHome();
    survey();
    const auto totals = model().sortedTypeTotals();
    ASSERT_EQ(totals.size(), 4U);
    EXPECT_EQ(totals[0].first, FileType::video);
    EXPECT_EQ(totals[0].second, (TypeTally{3'000'000'000, 1}));
    for (std::size_t at = 1; at < totals.size(); ++at) EXPECT_GE(totals[at - 1].second.bytes, totals[at].second.bytes);
    EXPECT_EQ(totals.back().first, FileType::archive);
}

TEST_F(AppModelResultsTest, topFoldersOfOneRootAreItsSubfolders) {
    EXPECT_TRUE(model().topFolders().empty());
    fillHome();
    survey();
    EXPECT_EQ(names(model().topFolders()), (Strings{"projects", "Library", ".Trash"}));
}

TEST_F(AppModelResultsTest, topFoldersOfTwoRootsAreTheRoots) {
    fillHome();
    model().setScanRoots({home + "/Library", home + "/projects"});
    survey();
    EXPECT_EQ(names(model().topFolders()), (Strings{home + "/projects", home + "/Library"}));
}

TEST_F(AppModelResultsTest, topFoldersWithoutRootsAreEmpty) {
    model().setScanRoots({});
    survey();
    EXPECT_TRUE(model().topFolders().empty());
}

// Removal.

TEST_F(AppModelResultsTest, removalSubtractsSizeFromAncestors) {
    machine.directories.file(home + "/jobs/big/film.mov", 10'000'000'000);
    machine.directories.file(home + "/jobs/small", 5'000);
    machine.directories.file(home + "/jobs/big/disk.iso", 90'000'000);
    machine.directories.file(home + "/jobs/big/app/node_modules/m", 1'000'000);
    survey();
    const std::int64_t scanned = model().bytesScanned();
    const std::int64_t items = model().itemsScanned();
    const std::optional<ScanStats> stats = model().stats();
    const TypeTotals types = model().insights().typeTotals;
    const NodeRef work = folderAt(model().root(), home + "/jobs");
    ASSERT_EQ(model().reclaimables().size(), 1U);
    takeSignals();

    remove(home + "/jobs/big");
    EXPECT_EQ(model().root()->size, 5'000);
    EXPECT_EQ(model().root()->children().front().size, 5'000);
    EXPECT_EQ(work->size, 5'000);
    EXPECT_TRUE(work->children().empty());
    EXPECT_EQ(reclaimablePaths(), Strings{});
    EXPECT_EQ(topFilePaths(), Strings{home + "/jobs/small"});
    EXPECT_EQ(takeSignals(), (Strings{"root", "reclaimables", "insights"}));

    // What tells of the survey as it ran stays.
    EXPECT_EQ(model().bytesScanned(), scanned);
    EXPECT_EQ(model().itemsScanned(), items);
    EXPECT_EQ(model().stats(), stats);
    EXPECT_EQ(model().insights().typeTotals, types);
    ASSERT_EQ(model().insights().diskImages.size(), 1U);
    EXPECT_EQ(model().insights().diskImages.front().path, home + "/jobs/big/disk.iso");
}

TEST_F(AppModelResultsTest, removalMatchesWholeNamesOnly) {
    machine.directories.file("/a/node_modules/f", 100);
    machine.directories.file("/a/node_modules2/venv/g", 200);
    machine.directories.file("/a/b/venv/h", 300);
    machine.directories.file("/a/bc/venv/i", 400);
    model().setScanRoots({"/a"});
    survey();
    ASSERT_EQ(model().reclaimables().size(), 4U);
    remove("/a/b");
    EXPECT_EQ(reclaimablePaths(), (Strings{"/a/bc/venv", "/a/node_modules", "/a/node_modules2/venv"}));
    EXPECT_EQ(topFilePaths(), (Strings{"/a/bc/venv/i", "/a/node_modules2/venv/g", "/a/node_modules/f"}));
    remove("/a/node_modules");
    EXPECT_EQ(reclaimablePaths(), (Strings{"/a/bc/venv", "/a/node_modules2/venv"}));
    EXPECT_EQ(topFilePaths(), (Strings{"/a/bc/venv/i", "/a/node_modules2/venv/g"}));
}

TEST_F(AppModelResultsTest, removalOfOneRootKeepsOthers) {
    fillHome();
    model().setScanRoots({home + "/Library", home + "/projects"});
    survey();
    remove(home + "/projects");
    EXPECT_EQ(model().root()->size, 50'000'000);
    ASSERT_NE(model().root()->onlyChild(), nullptr);
    EXPECT_EQ(model().root()->onlyChild()->name(), home + "/Library");
    EXPECT_EQ(reclaimablePaths(), Strings{home + "/Library/Caches/Yarn"});
}

TEST_F(AppModelResultsTest, nodeWithoutParentIsNotRemoved) {
    fillHome();
    survey();
    takeSignals();
    model().removeFromTree(*model().root());
    EXPECT_EQ(takeSignals(), Strings{});
    EXPECT_EQ(model().root()->size, 3'127'000'000);
}

TEST_F(AppModelResultsTest, removingTwiceSubtractsOnce) {
    fillHome();
    survey();
    const NodeRef projects = folderAt(model().root(), home + "/projects");
    model().removeFromTree(*projects);
    model().removeFromTree(*projects);
    EXPECT_EQ(model().root()->size, 57'000'000);
}

TEST_F(AppModelResultsTest, removingBelowRemovedFolderSubtractsNothing) {
    fillHome();
    survey();
    const NodeRef projects = folderAt(model().root(), home + "/projects");
    const NodeRef modules = folderAt(model().root(), home + "/projects/app/node_modules");
    model().removeFromTree(*projects);
    model().removeFromTree(*modules);
    EXPECT_EQ(model().root()->size, 57'000'000);
}

TEST_F(AppModelResultsTest, removedNodeOutlivesItsTree) {
    fillHome();
    survey();
    const NodeRef projects = folderAt(model().root(), home + "/projects");
    model().removeFromTree(*projects);
    survey();
    destroyModel();
    EXPECT_EQ(projects->fullPath(), home + "/projects");
}

TEST_F(AppModelResultsTest, removesFromPreviousTreeDuringSurvey) {
    fillHome();
    survey();
    machine.directories.hold(home);
    model().startScan();
    remove(home + "/projects");
    EXPECT_EQ(model().root()->size, 57'000'000);
    model().cancelScan();
    EXPECT_EQ(model().root()->size, 57'000'000);
    letScansDrain();
}

TEST_F(AppModelResultsTest, removalIsDeferredDuringClassification) {
    fillHome();
    surveyUpToClassification();
    remove(home + "/projects");
    EXPECT_EQ(model().root()->size, 3'127'000'000);
    machine.tasks.release();
    runUntil([&] { return model().scanPhase() == Phase::finished; });
    EXPECT_EQ(model().root()->size, 57'000'000);
    EXPECT_EQ(reclaimablePaths(), Strings{home + "/Library/Caches/Yarn"});
    EXPECT_EQ(model().history().front().totalScanned, 57'000'000);
}

TEST_F(AppModelResultsTest, nodeOfReplacedTreeRemovesItsPathsFromNewResults) {
    fillHome();
    survey();
    const NodeRef old = model().root();
    const NodeRef projects = folderAt(old, home + "/projects");
    survey();
    takeSignals();
    model().removeFromTree(*projects);
    EXPECT_EQ(reclaimablePaths(), Strings{home + "/Library/Caches/Yarn"});
    EXPECT_EQ(model().root()->size, 3'127'000'000);
    EXPECT_EQ(takeSignals(), (Strings{"reclaimables", "insights"}));
}

TEST_F(AppModelResultsTest, nodeOfReplacedTreeLeavesThatTree) {
    fillHome();
    survey();
    const NodeRef old = model().root();
    survey();
    model().removeFromTree(*folderAt(old, home + "/projects/app"));
    EXPECT_FALSE(folderAt(old, home + "/projects/app"));
    EXPECT_EQ(old->size, 3'117'000'000);
    EXPECT_EQ(model().root()->size, 3'127'000'000);
}

TEST_F(AppModelResultsTest, withdrawnTreeIsNotChanged) {
    fillHome();
    surveyUpToClassification();
    const NodeRef withdrawn = model().root();
    model().cancelScan();
    model().removeFromTree(*folderAt(withdrawn, home + "/projects"));
    EXPECT_TRUE(folderAt(withdrawn, home + "/projects"));
    machine.tasks.release();
    letScansDrain();
}

TEST_F(AppModelResultsTest, previousTreeIsReleasedInTask) {
    fillHome();
    survey();
    const NodeRef left(model().root()->firstChild());  // tells whether others still hold the tree
    bool gone = false;
    machine.tasks.afterOne = [&] { gone = left->arena().references() == 1; };
    survey();
    EXPECT_TRUE(gone) << "the main thread held on to it, and was the last to";
    machine.tasks.afterOne = [] {};
}

TEST_F(AppModelResultsTest, removedNodeStaysWithItsTree) {
    fillHome();
    survey();
    const FSNode& projects = *folderAt(model().root(), home + "/projects");
    machine.tasks.hold();
    model().removeFromTree(*folderAt(model().root(), home + "/projects"));
    EXPECT_TRUE(machine.tasks.waiting().empty()) << "there is nothing to release";
    machine.tasks.release();
    EXPECT_EQ(projects.fullPath(), home + "/projects");
    EXPECT_TRUE(projects.isRemoved());
}

}  // namespace
}  // namespace zelk
