// SPDX-License-Identifier: MIT
#include "scan/ScanEngine.h"

#include "ScanFixture.h"

namespace zelk {
namespace {

using ScanEngineTest = ScanFixture;

TEST_F(ScanEngineTest, closesWithInsightsThenFinished) {
    disk.file("/r/f", 1);
    const ScanResult result = scan({"/r"});
    EXPECT_EQ(result.order, "if");
    EXPECT_FALSE(result.stats.wasCancelled);
    EXPECT_GE(result.stats.duration, 0);
}

TEST_F(ScanEngineTest, blockedComesFirstAndOnlyWhenThereIsSome) {
    disk.directory("/r/shut");
    disk.unreadable("/r/shut");
    const ScanResult result = scan({"/r"});
    EXPECT_EQ(result.order, "bif");
    EXPECT_EQ(result.blocked->count, 1);
}

TEST_F(ScanEngineTest, noRootsFinishAtOnceWithNothing) {
    const ScanResult result = scan({});
    EXPECT_EQ(result.order, "if");
    EXPECT_EQ(result.stats.totalBytes, 0);
    EXPECT_TRUE(result.stats.roots.empty());
    EXPECT_TRUE(result.top->children.empty());
    EXPECT_TRUE(result.insights.typeTotals.empty());
}

TEST_F(ScanEngineTest, aMissingRootIsPassedOverButNamed) {
    disk.file("/r/f", 3);
    const ScanResult result = scan({"/missing", "/r"});
    EXPECT_EQ(result.stats.roots, (std::vector<std::string>{"/missing", "/r"}));
    EXPECT_EQ(result.stats.blockedPaths, 0);
    EXPECT_EQ(result.stats.totalBytes, 3);
    EXPECT_EQ(result.top->children.size(), 1U);
}

TEST_F(ScanEngineTest, allRootsMissing) {
    const ScanResult result = scan({"/no", "/nor"});
    EXPECT_EQ(result.stats.roots.size(), 2U);
    EXPECT_EQ(result.stats.totalBytes, 0);
    EXPECT_EQ(result.order, "if");
}

TEST_F(ScanEngineTest, aPlainFileAsARootIsBlocked) {
    disk.file("/f", 100);
    const ScanResult result = scan({"/f"});
    EXPECT_EQ(result.stats.blockedPaths, 1);
    EXPECT_EQ(result.stats.totalBytes, 0);
    EXPECT_EQ(result.order, "bif");
}

TEST_F(ScanEngineTest, aRootThatIsALinkIsFollowedAndKeepsItsName) {
    disk.file("/real/f", 8);
    disk.symbolicLink("/link", 1, "/real");
    const ScanResult result = scan({"/link"});
    EXPECT_EQ(result.stats.totalBytes, 8);
    EXPECT_EQ(result.top->children[0]->name(), "/link");
    EXPECT_EQ(result.insights.topFiles[0].path, "/link/f");
}

TEST_F(ScanEngineTest, aRootInsideAnotherCountsTwiceButForHardLinks) {
    disk.file("/r/in/f", 10);
    disk.file("/r/in/linked", 100);
    disk.hardLink("/r/in/again", "/r/in/linked");
    const ScanResult result = scan({"/r", "/r/in"});
    EXPECT_EQ(result.stats.totalBytes, 2 * 10 + 100);
    EXPECT_EQ(result.stats.filesScanned, 6);
    EXPECT_EQ(result.stats.dirsScanned, 3);
}

TEST_F(ScanEngineTest, aRootGivenTwiceIsWalkedTwice) {
    disk.file("/r/f", 10);
    const ScanResult result = scan({"/r", "/r"});
    EXPECT_EQ(result.stats.totalBytes, 20);
    EXPECT_EQ(result.top->children.size(), 2U);
}

TEST_F(ScanEngineTest, aRootsDateIsInWholeSeconds) {
    disk.directory("/r", 1234.75);
    EXPECT_EQ(scan({"/r"}).top->children[0]->lastModified, 1234.0);
}

TEST_F(ScanEngineTest, theLargestFilesComeFirst) {
    for (int i = 0; i < 300; ++i) disk.file("/r/" + std::to_string(i), static_cast<std::uint64_t>(1 + (i * 7) % 300));
    const ScanResult result = scan({"/r"});
    ASSERT_EQ(result.insights.topFiles.size(), 250U);
    for (std::size_t i = 0; i < 250; ++i)
        EXPECT_EQ(result.insights.topFiles[i].size, 300 - static_cast<std::int64_t>(i));
}

TEST_F(ScanEngineTest, endingTheQueueCancelsTheWalkAndDeliversNothing) {
    for (int i = 0; i < 50; ++i) disk.file("/r/" + std::to_string(i) + "/f", 1);
    disk.directory("/r/0/held");
    disk.hold("/r/0/held");
    workers(1);
    const auto queue = std::make_shared<UpdateQueue>();
    ScanEngine(disk, clock).start(queue, {"/r"});
    disk.waitUntilHeld("/r/0/held");
    queue->terminate();
    disk.release();
    ASSERT_TRUE(drainThreads(60));
    EXPECT_TRUE(queue->takeAll().updates.empty());
}

TEST_F(ScanEngineTest, aCancelledWalkReadsNoFurtherDirectory) {
    disk.directory("/r/first");
    disk.directory("/r/last");  // the last is taken first
    disk.hold("/r/last");
    workers(1);
    const auto queue = std::make_shared<UpdateQueue>();
    ScanEngine(disk, clock).start(queue, {"/r"});
    disk.waitUntilHeld("/r/last");
    queue->terminate();
    disk.release();
    ASSERT_TRUE(drainThreads(60));
    EXPECT_EQ(disk.timesRead("/r/first"), 0);
}

TEST_F(ScanEngineTest, aCancelBeforeTheFirstRootWalksNothing) {
    disk.directory("/r");
    const auto queue = std::make_shared<UpdateQueue>();
    queue->terminate();
    ScanEngine(disk, clock).start(queue, {"/r"});
    ASSERT_TRUE(drainThreads(60));
    EXPECT_EQ(disk.timesRead("/r"), 0);
    EXPECT_TRUE(queue->takeAll().updates.empty());
}

TEST(WorkerCount, theSettingIsTakenAsItStands) {
    EXPECT_EQ(ScanEngine::workerCountFor("8", 2), 8);
    EXPECT_EQ(ScanEngine::workerCountFor("+8", 2), 8);
    EXPECT_EQ(ScanEngine::workerCountFor("1", 64), 1);
    EXPECT_EQ(ScanEngine::workerCountFor("0012", 2), 12);
    EXPECT_EQ(ScanEngine::workerCountFor("9223372036854775807", 2), 9223372036854775807);
}

TEST(WorkerCount, anythingElseGivesTheDefault) {
    for (const char* text : {"", "8 ", " 8", "0", "-3", "+-3", "-+3", "++3", "+", "-", "8.0", "eight", "0x8",
                             "9223372036854775808", "99999999999999999999"})
        EXPECT_EQ(ScanEngine::workerCountFor(text, 8), 12) << '"' << text << '"';
}

TEST(WorkerCount, theDefaultIsOneAndAHalfPerProcessorAndAtLeastFour) {
    const std::pair<std::int64_t, std::int64_t> rows[] = {{0, 4}, {1, 4}, {2, 4}, {3, 4}, {4, 6}, {5, 7}, {8, 12}};
    for (const auto& [processors, expected] : rows)
        EXPECT_EQ(ScanEngine::workerCountFor(nullptr, processors), expected) << processors;
}

TEST(WorkerCount, isReadFromTheEnvironmentAtEachScan) {
    setenv("ZELK_WORKERS", "17", 1);
    EXPECT_EQ(ScanEngine::resolveWorkerCount(), 17);
    unsetenv("ZELK_WORKERS");
    EXPECT_GE(ScanEngine::resolveWorkerCount(), 4);
}

}  // namespace
}  // namespace zelk
