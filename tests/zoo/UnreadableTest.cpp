// SPDX-License-Identifier: MIT
// Folders that may not be read, met by someone without root's powers.
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <string>
#include <vector>

#include "zoo/Child.h"
#include "zoo/Scan.h"
#include "zoo/TempFolder.h"
#include "zoo/Zoo.h"

namespace zelk::zoo {

namespace {

/// "files folders blocked roots" of a scan without powers.
std::string powerless(const std::vector<std::string>& roots, int workers) {
    return inPowerlessChild([&] {
        const Scan its = scan(roots, workers);
        expectConsistent(its);
        const ScanStats& stats = its.stats;
        std::string text;
        for (const std::int64_t figure :
             {stats.filesScanned, stats.dirsScanned, stats.blockedPaths, std::int64_t(its.root->children.size())})
            text.append(text.empty() ? "" : " ").append(std::to_string(figure));
        return text;
    });
}

}  // namespace

TEST(Unreadable, foldersAreCountedOnceEachAndNeverStopAWalk) {
    const TempFolder temp;
    const std::string root = temp / "root";
    makeUnreadable(root);
    makeFile(root + "/a/readable/file");
    makeFile(root + "/z/readable/file");
    makeUnreadable(root + "/1/2/3/4/5/6/7/8");  // where folders are no longer shared between threads
    makeFile(root + "/1/2/3/4/5/6/7/8/z/file");
    // The root, a, z, 1 to 8, two called readable, the lower z, and both empty ones.
    const std::string expected = "3 16 " + std::to_string(2 * unreadableFolders) + " 1";
    for (const int workers : {1, 8}) EXPECT_EQ(powerless({root}, workers), expected);
}

TEST(Unreadable, folderOfWhichNotAllCanBeAskedIsBlockedWhole) {
    const TempFolder temp;
    makeFile(temp / "root/list/file", 1);
    ASSERT_EQ(chmod((temp / "root/list").c_str(), 0444), 0);
    EXPECT_EQ(powerless({temp / "root"}, 2), "0 1 1 1");
}

TEST(Unreadable, folderThatMayBeListedAndIsEmptyIsEmpty) {
    const TempFolder temp;
    makeFolder(temp / "root/list");
    ASSERT_EQ(chmod((temp / "root/list").c_str(), 0444), 0);
    EXPECT_EQ(powerless({temp / "root"}, 2), "0 2 0 1");
}

TEST(Unreadable, rootIsOneBlockedPathAndKeepsItsNode) {
    const TempFolder temp;
    makeFile(temp / "root/file");
    ASSERT_EQ(chmod((temp / "root").c_str(), 0000), 0);
    EXPECT_EQ(powerless({temp / "root"}, 2), "0 0 1 1");
}

TEST(Unreadable, rootThatCannotEvenBeLookedAtIsPassedOver) {
    const TempFolder temp;
    makeFile(temp / "closed/root/file");
    ASSERT_EQ(chmod((temp / "closed").c_str(), 0000), 0);
    EXPECT_EQ(powerless({temp / "closed/root"}, 2), "0 0 0 0");
}

TEST(Unreadable, allRootsBlockedIsAFinishedScanAllTheSame) {
    const TempFolder temp;
    makeUnreadable(temp.path());
    EXPECT_EQ(powerless({temp / "none", temp / "search", temp / "list"}, 2), "0 0 3 3");
}

}  // namespace zelk::zoo
