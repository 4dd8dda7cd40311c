// SPDX-License-Identifier: MIT
// Unreadable folders, scanned without root's privileges.
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <cstdint>
#include <cstdio>
#include <string>
#include <vector>

#include "fakes/InChild.h"
#include "zoo/Scan.h"
#include "zoo/TempFolder.h"
#include "zoo/Zoo.h"

namespace zelk::zoo {

namespace {

struct Figures {
    std::int64_t files;
    std::int64_t folders;
    std::int64_t blocked;
    std::size_t roots;  ///< roots in the tree
};

/// Call before the test starts threads: the scan runs in a child process.
void expectAsOrdinaryUser(const std::vector<std::string>& roots, int workers, const Figures& expected) {
    EXPECT_TRUE(fakes::asOrdinaryUser([&] {
        const Scan its = scan(roots, workers);
        expectConsistent(its);
        EXPECT_EQ(its.stats.filesScanned, expected.files);
        EXPECT_EQ(its.stats.dirsScanned, expected.folders);
        EXPECT_EQ(its.stats.blockedPaths, expected.blocked);
        EXPECT_EQ(its.root->children().size(), expected.roots);
        std::fflush(stdout);  // print failures before the child exits
        return !testing::Test::HasFailure();
    }));
}

}  // namespace

TEST(Unreadable, foldersAreCountedOnceAndDoNotStopTheWalk) {
    const TempFolder temp;
    const std::string root = temp / "root";
    makeUnreadable(root);
    makeFile(root + "/a/readable/file");
    makeFile(root + "/z/readable/file");
    makeUnreadable(root + "/1/2/3/4/5/6/7/8");  // below the depth that threads share
    makeFile(root + "/1/2/3/4/5/6/7/8/z/file");
    // The root, a, z, 1 to 8, two called readable, the lower z, and both empty ones.
    for (const int workers : {1, 8}) expectAsOrdinaryUser({root}, workers, {3, 16, 2 * unreadableFolders, 1});
}

TEST(Unreadable, folderWithUnstatableEntryIsBlocked) {
    const TempFolder temp;
    makeFile(temp / "root/list/file", 1);
    ASSERT_EQ(chmod((temp / "root/list").c_str(), 0444), 0);
    expectAsOrdinaryUser({temp / "root"}, 2, {0, 1, 1, 1});
}

TEST(Unreadable, listableEmptyFolderIsEmpty) {
    const TempFolder temp;
    makeFolder(temp / "root/list");
    ASSERT_EQ(chmod((temp / "root/list").c_str(), 0444), 0);
    expectAsOrdinaryUser({temp / "root"}, 2, {0, 2, 0, 1});
}

TEST(Unreadable, rootIsBlockedAndKeepsItsNode) {
    const TempFolder temp;
    makeFile(temp / "root/file");
    ASSERT_EQ(chmod((temp / "root").c_str(), 0000), 0);
    expectAsOrdinaryUser({temp / "root"}, 2, {0, 0, 1, 1});
}

TEST(Unreadable, skipsRootWithoutStatus) {
    const TempFolder temp;
    makeFile(temp / "closed/root/file");
    ASSERT_EQ(chmod((temp / "closed").c_str(), 0000), 0);
    expectAsOrdinaryUser({temp / "closed/root"}, 2, {0, 0, 0, 0});
}

TEST(Unreadable, scanFinishesWhenAllRootsAreBlocked) {
    const TempFolder temp;
    makeUnreadable(temp.path());
    expectAsOrdinaryUser({temp / "none", temp / "search", temp / "list"}, 2, {0, 0, 3, 3});
}

}  // namespace zelk::zoo
