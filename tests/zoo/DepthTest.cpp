// SPDX-License-Identifier: MIT
// Folders nested far deeper than a path or a stack allows.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "platform/NativePlatform.h"
#include "reclaim/ReclaimClassifier.h"
#include "zoo/Scan.h"
#include "zoo/TempFolder.h"
#include "zoo/Zoo.h"

namespace zelk::zoo {

namespace {

void classify(const Scan& its) {
    NativePlatform native;
    std::vector<Reclaimable> items;
    ReclaimClassifier(native.platform().files, ReclaimPlaces::of(native.platform().locations))
        .collect(*its.root, native.platform().locations.home(), items);
    EXPECT_TRUE(items.empty());
}

}  // namespace

TEST(Depth, walksChainLongerThanPathMax) {
    const TempFolder temp(TempFolder::Medium::memory);
    makeChain(temp / "chain", 1500, 200);
    for (const int workers : {1, 8}) {
        const Scan its = scan({temp / "chain"}, workers);
        expectConsistent(its);
        EXPECT_EQ(its.stats.dirsScanned, 1501);
        EXPECT_EQ(its.stats.filesScanned, 1500);
        EXPECT_EQ(its.stats.blockedPaths, 0);
        classify(its);
    }
}

TEST(Depth, walksFiftyThousandNestedFolders) {
    const TempFolder temp(TempFolder::Medium::memory);
    makeChain(temp / "chain", 50000, 1);
    for (const int workers : {1, 8}) {
        const Scan its = scan({temp / "chain"}, workers);
        expectConsistent(its);
        EXPECT_EQ(its.stats.dirsScanned, 50001);
        EXPECT_EQ(its.stats.filesScanned, 50000);
        EXPECT_EQ(its.stats.blockedPaths, 0);
        const std::vector<const FSNode*> nodes = nodesBelow(*its.root);
        EXPECT_EQ(nodes.back()->fullPath().size(), (temp / "chain").size() + 2 * 50000);
        classify(its);
    }
}

TEST(Depth, walksBranchesOnTheWayBack) {
    const TempFolder temp(TempFolder::Medium::memory);
    std::string at = temp / "chain";
    for (int level = 0; level < 60; ++level) {
        at += "/d";
        for (const char* const branch : {"/a", "/z"}) makeFile(at + branch + "/leaf/file");
    }
    const Scan its = scan({temp / "chain"}, 2);
    expectConsistent(its);
    EXPECT_EQ(its.stats.blockedPaths, 0);
    EXPECT_EQ(its.stats.filesScanned, 120);
    EXPECT_EQ(its.stats.dirsScanned, 1 + 60 + 240);
}

}  // namespace zelk::zoo
