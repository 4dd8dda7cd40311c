// SPDX-License-Identifier: MIT
// A scan counts exactly what du and find count, apart from its documented differences.
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "zoo/Scan.h"
#include "zoo/TempFolder.h"
#include "zoo/Zoo.h"

namespace zelk::zoo {

namespace {

/// The number of rounds from the environment; more rounds find rarer races.
int roundsOr(int usual) {
    const char* const given = std::getenv("ZELK_ZOO_ROUNDS");
    return given != nullptr ? std::max(std::atoi(given), 1) : usual;
}

void expectEqual(const Scan& scan, const Count& count) {
    EXPECT_EQ(scan.stats.totalBytes, count.bytes);
    EXPECT_EQ(scan.stats.filesScanned, count.files);
    EXPECT_EQ(scan.stats.dirsScanned, count.folders);
    EXPECT_EQ(scan.stats.blockedPaths, count.blocked);
}

void expectSameEveryTime(const std::string& root, const Count& count, int rounds) {
    for (const int workers : {1, 8}) {
        for (int round = 0; round < rounds; ++round) {
            SCOPED_TRACE(root + " with " + std::to_string(workers) + " workers, round " + std::to_string(round));
            const Scan its = scan({root}, workers);
            expectConsistent(its);
            expectEqual(its, count);
            if (testing::Test::HasFailure()) return;
        }
    }
}

void expectToolsAgree(const Count& count) {
    EXPECT_EQ(count.bytes, count.duBytes);
    EXPECT_EQ(count.files, count.findFiles);
    EXPECT_EQ(count.folders, count.findFolders);
}

}  // namespace

// On a disk, for real blocks, holes and preallocation; creating many folders is slow there.
TEST(Exactness, zooOnDiskMatchesDu) {
    const TempFolder temp;
    makeZoo(temp / "zoo", temp / "outside", 60);
    const Count count = countedIndependently(temp / "zoo");
    ASSERT_GT(count.files, 2800);
    if (count.blocked == 0) expectToolsAgree(count);
    expectSameEveryTime(temp / "zoo", count, roundsOr(20));
}

TEST(Exactness, zooInMemoryMatchesDu) {
    const TempFolder temp(TempFolder::Medium::memory);
    makeZoo(temp / "zoo", temp / "outside", 1500);
    const Count count = countedIndependently(temp / "zoo");
    ASSERT_GT(count.files, 4200);
    if (count.blocked == 0) expectToolsAgree(count);
    expectSameEveryTime(temp / "zoo", count, roundsOr(20));
}

TEST(Exactness, randomTreesMatchDu) {
    for (const std::uint64_t seed : {1, 2, 3, 4}) {
        const TempFolder temp(seed % 2 == 0 ? TempFolder::Medium::memory : TempFolder::Medium::disk);
        makeRandomTree(temp.path(), seed, 120);
        const Count count = countedIndependently(temp.path());
        ASSERT_GE(count.folders, 120) << seed;
        expectToolsAgree(count);
        expectSameEveryTime(temp.path(), count, roundsOr(20));
    }
}

TEST(Exactness, systemFilesMatchDu) {
    // Packages may be installed meanwhile: compare only if the count is equal before and after.
    const std::string root = "/usr";
    Count before = countedIndependently(root);
    while (true) {
        const Scan one = scan({root}, 1);
        const Scan eight = scan({root}, 8);
        const Count after = countedIndependently(root);
        if (before != after) {
            before = after;
            continue;
        }
        expectConsistent(one);
        expectConsistent(eight);
        expectEqual(one, before);
        expectEqual(eight, before);
        if (before.blocked == 0) expectToolsAgree(before);
        break;
    }
    if (std::getenv("ZELK_ZOO_ROUNDS") != nullptr) expectSameEveryTime(root, before, roundsOr(1));
}

TEST(Exactness, largestFilesHaveTheirPathsAndSizes) {
    const TempFolder temp;
    makeZoo(temp / "zoo", temp / "outside", 30);
    const Scan its = scan({temp / "zoo"}, 8);
    ASSERT_FALSE(its.insights.topFiles.empty());
    for (const LargeFile& file : its.insights.topFiles) {
        if (file.path.size() >= 4096) continue;  // too long for lstat
        struct stat status;
        ASSERT_EQ(lstat(file.path.c_str(), &status), 0) << file.path;
        EXPECT_EQ(file.size, status.st_blocks * 512) << file.path;
        EXPECT_FALSE(S_ISDIR(status.st_mode)) << file.path;
    }
}

TEST(Exactness, wideFolderMatchesDu) {
    const TempFolder temp(TempFolder::Medium::memory);
    makeWide(temp / "wide", 40000, 2000);
    for (const int workers : {1, 8}) {
        const Scan its = scan({temp / "wide"}, workers);
        expectConsistent(its);
        EXPECT_EQ(its.stats.filesScanned, 40000);
        EXPECT_EQ(its.stats.dirsScanned, 2001);
        EXPECT_EQ(its.stats.blockedPaths, 0);
    }
}

}  // namespace zelk::zoo
