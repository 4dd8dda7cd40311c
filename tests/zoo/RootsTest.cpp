// SPDX-License-Identifier: MIT
// The kinds of scan roots.
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <string>
#include <vector>

#include "zoo/Scan.h"
#include "zoo/TempFolder.h"
#include "zoo/Zoo.h"

namespace zelk::zoo {

namespace {

/// Two files of one block each, in a folder and in its subfolder.
class Roots : public testing::Test {
protected:
    Roots() {
        makeFile(root + "/one", 1);
        makeFile(root + "/below/two", 1);
    }

    static Scan scanned(const std::vector<std::string>& roots) {
        Scan its = scan(roots, 2);
        expectConsistent(its);
        EXPECT_EQ(its.stats.roots, roots);
        EXPECT_FALSE(its.stats.wasCancelled);
        return its;
    }

    const TempFolder temp;
    const std::string root = temp / "root";
};

}  // namespace

TEST_F(Roots, skipsMissingRoot) {
    const Scan its = scanned({temp / "missing"});
    EXPECT_TRUE(its.root->children().empty());
    EXPECT_EQ(its.stats.blockedPaths, 0);
    EXPECT_EQ(its.stats.dirsScanned, 0);
}

TEST_F(Roots, walksOtherRootsBesideAMissingOne) {
    const Scan its = scanned({temp / "missing", root, ""});
    ASSERT_EQ(its.root->children().size(), 1U);
    EXPECT_EQ(its.stats.filesScanned, 2);
}

TEST_F(Roots, noRootsGiveAnEmptyTree) {
    const Scan its = scanned({});
    EXPECT_TRUE(its.root->children().empty());
    EXPECT_EQ(its.stats.totalBytes, 0);
    EXPECT_TRUE(its.insights.typeTotals.empty());
}

TEST_F(Roots, fileIsBlocked) {
    const Scan its = scanned({root + "/one"});
    ASSERT_EQ(its.root->children().size(), 1U);
    EXPECT_EQ(its.root->children().front().name(), root + "/one");
    EXPECT_EQ(its.stats.blockedPaths, 1);
    EXPECT_EQ(its.stats.filesScanned, 0);
    EXPECT_EQ(its.stats.totalBytes, 0);
}

TEST_F(Roots, pipeIsBlockedWithoutWaiting) {
    ASSERT_EQ(mkfifo((temp / "pipe").c_str(), 0644), 0);
    EXPECT_EQ(scanned({temp / "pipe"}).stats.blockedPaths, 1);
}

TEST_F(Roots, pipeWithinIsNotOpened) {
    ASSERT_EQ(mkfifo((root + "/below/pipe").c_str(), 0644), 0);
    const Scan its = scanned({root});
    EXPECT_EQ(its.stats.filesScanned, 3);
    EXPECT_EQ(its.stats.blockedPaths, 0);
}

TEST_F(Roots, deviceIsBlocked) {
    EXPECT_EQ(scanned({"/dev/null"}).stats.blockedPaths, 1);
}

TEST_F(Roots, followsLinkAndKeepsItsName) {
    ASSERT_EQ(symlink("root", (temp / "link").c_str()), 0);
    const Scan its = scanned({temp / "link"});
    ASSERT_EQ(its.root->children().size(), 1U);
    EXPECT_EQ(its.root->children().front().name(), temp / "link");
    EXPECT_EQ(its.stats.filesScanned, 2);
    EXPECT_EQ(its.stats.dirsScanned, 2);
    EXPECT_EQ(its.stats.totalBytes, countedIndependently(root).bytes);
}

TEST_F(Roots, skipsDanglingLink) {
    ASSERT_EQ(symlink("nowhere", (temp / "link").c_str()), 0);
    const Scan its = scanned({temp / "link"});
    EXPECT_TRUE(its.root->children().empty());
    EXPECT_EQ(its.stats.blockedPaths, 0);
}

TEST_F(Roots, walksDuplicateRootTwice) {
    const Scan its = scanned({root, root});
    ASSERT_EQ(its.root->children().size(), 2U);
    EXPECT_EQ(its.stats.filesScanned, 4);
    EXPECT_EQ(its.stats.dirsScanned, 4);
    EXPECT_EQ(its.stats.totalBytes, 2 * countedIndependently(root).bytes);
}

TEST_F(Roots, countsNestedRootTwiceExceptHardLinks) {
    ASSERT_EQ(link((root + "/below/two").c_str(), (root + "/below/three").c_str()), 0);
    const Scan its = scanned({root, root + "/below"});
    ASSERT_EQ(its.root->children().size(), 2U);
    EXPECT_EQ(its.stats.filesScanned, 5);
    EXPECT_EQ(its.stats.dirsScanned, 3);
    EXPECT_EQ(its.stats.totalBytes, countedIndependently(root).bytes);
}

TEST_F(Roots, trailingSlashesGiveSingleSlashes) {
    const Scan its = scanned({root + "/"});
    ASSERT_EQ(its.insights.topFiles.size(), 2U);
    for (const LargeFile& file : its.insights.topFiles) {
        EXPECT_EQ(file.path.find("//"), std::string::npos) << file.path;
        EXPECT_EQ(access(file.path.c_str(), F_OK), 0) << file.path;
    }
}

TEST_F(Roots, walksRootLongerThanPathMax) {
    makeChain(temp / "chain", 40, 200);
    std::string deep = temp / "chain";
    for (int level = 0; level < 30; ++level) deep += '/' + std::string(200, 'd');
    const Scan its = scanned({deep});
    EXPECT_EQ(its.stats.blockedPaths, 0);
    EXPECT_EQ(its.stats.dirsScanned, 11);
    EXPECT_EQ(its.stats.filesScanned, 11);
}

}  // namespace zelk::zoo
