// SPDX-License-Identifier: MIT
#include "scan/ScanEngine.h"

#include <atomic>
#include <fstream>
#include <thread>

#include "ScanFixture.h"
#include "fakes/Mounts.h"
#include "fakes/SystemCallGate.h"
#include "zoo/TempFolder.h"

namespace zelk {
namespace {

using ScanEngineTest = ScanFixture;

TEST_F(ScanEngineTest, endsWithInsightsThenFinished) {
    disk.file("/r/f", 1);
    const ScanResult result = scan({"/r"});
    EXPECT_EQ(result.order, "if");
    EXPECT_FALSE(result.stats.wasCancelled);
    EXPECT_GE(result.stats.duration, 0);
}

/// Advances by a second whenever it is read.
class MovingClock : public Clock {
public:
    TimePoint now() override { return 0; }
    double monotonic() override { return seconds_++; }

private:
    double seconds_ = 1000;
};

TEST_F(ScanEngineTest, durationIncludesTheRollUp) {
    disk.file("/r/f", 1);
    MovingClock moving;
    const auto queue = std::make_shared<UpdateQueue>();
    const ScanPhases phases = ScanEngine(disk, moving).runHere(queue, {"/r"});
    EXPECT_EQ(ScanResult(queue->takeAll().updates).stats.duration, 2);
    EXPECT_EQ(phases.walk, 1);
    EXPECT_EQ(phases.rollUp, 1);
}

TEST_F(ScanEngineTest, statsReportCancellation) {
    CancelFlag cancel;
    EXPECT_FALSE(statsOf({}, 0, 0, {}, cancel).wasCancelled);
    cancel.set();
    EXPECT_TRUE(statsOf({}, 0, 0, {}, cancel).wasCancelled);
}

TEST_F(ScanEngineTest, statsHoldEveryCount) {
    const ScanCounters::Counts counts{.files = 1, .dirs = 2, .blocked = 3};
    const ScanStats stats = statsOf(counts, 4, 5, {"/r"}, CancelFlag());
    EXPECT_EQ(stats.filesScanned, 1);
    EXPECT_EQ(stats.dirsScanned, 2);
    EXPECT_EQ(stats.blockedPaths, 3);
    EXPECT_EQ(stats.totalBytes, 4);
    EXPECT_EQ(stats.duration, 5);
    EXPECT_EQ(stats.roots, std::vector<std::string>{"/r"});
}

TEST_F(ScanEngineTest, yieldsBlockedFirstAndOnlyIfAny) {
    disk.directory("/r/shut");
    disk.unreadable("/r/shut");
    const ScanResult result = scan({"/r"});
    EXPECT_EQ(result.order, "bif");
    EXPECT_EQ(result.blocked->count, 1);
}

TEST_F(ScanEngineTest, noRootsFinishEmpty) {
    const ScanResult result = scan({});
    EXPECT_EQ(result.order, "if");
    EXPECT_EQ(result.stats.totalBytes, 0);
    EXPECT_TRUE(result.stats.roots.empty());
    EXPECT_TRUE(result.top->children().empty());
    EXPECT_TRUE(result.insights.typeTotals.empty());
}

TEST_F(ScanEngineTest, skipsMissingRootButNamesIt) {
    disk.file("/r/f", 3);
    const ScanResult result = scan({"/missing", "/r"});
    EXPECT_EQ(result.stats.roots, (std::vector<std::string>{"/missing", "/r"}));
    EXPECT_EQ(result.stats.blockedPaths, 0);
    EXPECT_EQ(result.stats.totalBytes, 3);
    EXPECT_EQ(result.top->children().size(), 1U);
}

TEST_F(ScanEngineTest, skipsRootWhoseNameNoNodeHoldsButNamesIt) {
    const std::string longest = "/" + std::string(FSNode::maximumNameLength - 1, 'x');
    disk.file(longest + "/f", 3);
    disk.file(longest + "x/f", 100);
    const ScanResult result = scan({longest + "x", longest});
    EXPECT_EQ(result.stats.roots, (std::vector<std::string>{longest + "x", longest}));
    EXPECT_EQ(result.stats.totalBytes, 3);
    EXPECT_EQ(result.stats.blockedPaths, 0);
    ASSERT_EQ(result.top->children().size(), 1U);
    EXPECT_EQ(result.insights.topFiles[0].path, longest + "/f");
}

TEST_F(ScanEngineTest, finishesEmptyWhenAllRootsAreMissing) {
    const ScanResult result = scan({"/no", "/nor"});
    EXPECT_EQ(result.stats.roots.size(), 2U);
    EXPECT_EQ(result.stats.totalBytes, 0);
    EXPECT_EQ(result.order, "if");
}

TEST_F(ScanEngineTest, fileAsRootIsBlocked) {
    disk.file("/f", 100);
    const ScanResult result = scan({"/f"});
    EXPECT_EQ(result.stats.blockedPaths, 1);
    EXPECT_EQ(result.stats.totalBytes, 0);
    EXPECT_EQ(result.order, "bif");
}

TEST_F(ScanEngineTest, followsLinkedRootAndKeepsItsName) {
    disk.file("/real/f", 8);
    disk.symbolicLink("/link", 1, "/real");
    const ScanResult result = scan({"/link"});
    EXPECT_EQ(result.stats.totalBytes, 8);
    EXPECT_EQ(result.top->children().front().name(), "/link");
    EXPECT_EQ(result.insights.topFiles[0].path, "/link/f");
}

TEST_F(ScanEngineTest, nestedRootCountsTwiceExceptHardLinks) {
    disk.file("/r/in/f", 10);
    disk.file("/r/in/linked", 100);
    disk.hardLink("/r/in/again", "/r/in/linked");
    const ScanResult result = scan({"/r", "/r/in"});
    EXPECT_EQ(result.stats.totalBytes, 2 * 10 + 100);
    EXPECT_EQ(result.stats.filesScanned, 6);
    EXPECT_EQ(result.stats.dirsScanned, 3);
}

TEST_F(ScanEngineTest, walksDuplicateRootTwice) {
    disk.file("/r/f", 10);
    const ScanResult result = scan({"/r", "/r"});
    EXPECT_EQ(result.stats.totalBytes, 20);
    EXPECT_EQ(result.top->children().size(), 2U);
}

TEST_F(ScanEngineTest, rootDateIsInWholeSeconds) {
    disk.directory("/r", 1234.75);
    EXPECT_EQ(scan({"/r"}).top->children().front().lastModified, 1234.0);
}

TEST_F(ScanEngineTest, sortsLargestFilesFirst) {
    for (int i = 0; i < 300; ++i) disk.file("/r/" + std::to_string(i), static_cast<std::uint64_t>(1 + (i * 7) % 300));
    const ScanResult result = scan({"/r"});
    ASSERT_EQ(result.insights.topFiles.size(), 250U);
    for (std::size_t i = 0; i < 250; ++i)
        EXPECT_EQ(result.insights.topFiles[i].size, 300 - static_cast<std::int64_t>(i));
}

TEST_F(ScanEngineTest, equalSizesKeepTheirOrder) {
    for (int i = 0; i < 60; ++i) {
        disk.file("/r/" + std::to_string(i), static_cast<std::uint64_t>(i < 30 ? 70'000'000 : 80'000'000));
        disk.file("/r/" + std::to_string(i) + ".dmg", static_cast<std::uint64_t>(i < 30 ? 70'000'000 : 80'000'000));
    }
    workers(1);
    const ScanResult result = scan({"/r"});
    ASSERT_EQ(result.insights.topFiles.size(), 120U);
    ASSERT_EQ(result.insights.diskImages.size(), 60U);
    for (std::size_t at = 0; at < 60; ++at) {
        const std::string number = "/r/" + std::to_string((at + 30) % 60);
        EXPECT_EQ(result.insights.topFiles[2 * at].path, number);
        EXPECT_EQ(result.insights.topFiles[2 * at + 1].path, number + ".dmg");
        EXPECT_EQ(result.insights.diskImages[at].path, number + ".dmg");
    }
}

/// Shows a fixed time.
class FixedClock : public Clock {
public:
    TimePoint now() override { return 1'234'567.5; }
    double monotonic() override { return 1; }
};

TEST_F(ScanEngineTest, topNodeHasTheDateOfTheScan) {
    disk.directory("/r", 77);
    FixedClock fixed;
    const auto queue = std::make_shared<UpdateQueue>();
    ScanEngine(disk, fixed).runHere(queue, {"/r"});
    EXPECT_EQ(ScanResult(queue->takeAll().updates).top->lastModified, 1'234'567.5);
}

TEST_F(ScanEngineTest, terminatingTheQueueCancelsTheScan) {
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

TEST_F(ScanEngineTest, cancelStopsReadingDirectories) {
    disk.directory("/r/first");
    disk.directory("/r/last");  // last in, first out
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

TEST_F(ScanEngineTest, cancelStopsReadingBelowSharedDirectories) {
    disk.directory("/r/1/2/3/4/5/6/first");
    disk.directory("/r/1/2/3/4/5/6/last/below");
    disk.hold("/r/1/2/3/4/5/6/first");
    workers(1);
    const auto queue = std::make_shared<UpdateQueue>();
    ScanEngine(disk, clock).start(queue, {"/r"});
    disk.waitUntilHeld("/r/1/2/3/4/5/6/first");
    queue->terminate();
    disk.release();
    ASSERT_TRUE(drainThreads(60));
    EXPECT_EQ(disk.timesRead("/r/1/2/3/4/5/6/last"), 0);
}

/// Counts the calls about roots.
class RootCounter : public fakes::FakeDirectoryService {
public:
    std::optional<RootStatus> status(const std::string& path) override {
        ++asked;
        return fakes::FakeDirectoryService::status(path);
    }
    std::atomic<int> asked = 0;
};

TEST(ScanEngineRoots, areNotOpenedAfterCancellation) {
    RootCounter disk;
    disk.directory("/a");
    disk.directory("/b");
    PosixClock clock;
    const auto cancelled = std::make_shared<UpdateQueue>();
    cancelled->terminate();
    ScanEngine(disk, clock).runHere(cancelled, {"/a", "/b"});
    EXPECT_EQ(disk.asked, 0);
    ScanEngine(disk, clock).runHere(std::make_shared<UpdateQueue>(), {"/a", "/b"});
    EXPECT_EQ(disk.asked, 2);
    EXPECT_TRUE(drainThreads(60));
}

TEST_F(ScanEngineTest, cancelBeforeTheFirstRootWalksNothing) {
    disk.directory("/r");
    const auto queue = std::make_shared<UpdateQueue>();
    queue->terminate();
    ScanEngine(disk, clock).start(queue, {"/r"});
    ASSERT_TRUE(drainThreads(60));
    EXPECT_EQ(disk.timesRead("/r"), 0);
    EXPECT_TRUE(queue->takeAll().updates.empty());
}

TEST(WorkerCount, usesTheSetting) {
    EXPECT_EQ(ScanEngine::workerCountFor("8", 2), 8);
    EXPECT_EQ(ScanEngine::workerCountFor("+8", 2), 8);
    EXPECT_EQ(ScanEngine::workerCountFor("1", 64), 1);
    EXPECT_EQ(ScanEngine::workerCountFor("0012", 2), 12);
    EXPECT_EQ(ScanEngine::workerCountFor("9223372036854775807", 2), 9223372036854775807);
}

TEST(WorkerCount, invalidSettingGivesTheDefault) {
    for (const char* text : {"", "8 ", " 8", "0", "-3", "+-3", "-+3", "++3", "+", "-", "8.0", "eight", "0x8",
                             "9223372036854775808", "99999999999999999999"})
        EXPECT_EQ(ScanEngine::workerCountFor(text, 8), 12) << '"' << text << '"';
}

TEST(WorkerCount, defaultsToOneAndAHalfPerProcessorAndAtLeastFour) {
    const std::pair<std::int64_t, std::int64_t> rows[] = {{0, 4}, {1, 4}, {2, 4}, {3, 4}, {4, 6}, {5, 7}, {8, 12}};
    for (const auto& [processors, expected] : rows)
        EXPECT_EQ(ScanEngine::workerCountFor(nullptr, processors), expected) << processors;
}

TEST(WorkerCount, isExactIfItIsSet) {
    EXPECT_EQ(ScanEngine::workerLimitsFor("1", 8).most, 1);
    EXPECT_EQ(ScanEngine::workerLimitsFor("5", 8).most, 5);
    EXPECT_EQ(ScanEngine::workerLimitsFor("9223372036854775807", 2).most, 9223372036854775807);
}

TEST(WorkerCount, isFourTimesAsHighForASlowDiskUpToThirtyTwo) {
    for (const auto& [processors, most] : std::vector<std::pair<std::int64_t, std::int64_t>>{
             {0, 16}, {1, 16}, {2, 16}, {4, 24}, {5, 28}, {6, 32}, {8, 32}, {16, 32}, {24, 36}, {64, 96}})
        EXPECT_EQ(ScanEngine::workerLimitsFor(nullptr, processors).most, most) << processors;
}

TEST(WorkerCount, readsTheEnvironmentAtEachScan) {
    setenv("ZELK_WORKERS", "17", 1);
    EXPECT_EQ(ScanEngine::resolveWorkerCount(), 17);
    unsetenv("ZELK_WORKERS");
    EXPECT_GE(ScanEngine::resolveWorkerCount(), 4);
}

#ifdef __linux__

TEST_F(ScanEngineTest, failureToStartTheScanThreadFinishesEmpty) {
    disk.file("/r/f", 5);
    FixedClock fixed;
    const auto queue = std::make_shared<UpdateQueue>();
    fakes::behindGate(
        SYS_clone3, [](unsigned) { return EAGAIN; }, [&] { ScanEngine(disk, fixed).start(queue, {"/r"}); });
    auto batch = queue->takeAll();
    EXPECT_TRUE(batch.ended);
    const ScanResult result(std::move(batch.updates));
    EXPECT_EQ(result.order, "if");
    EXPECT_EQ(result.stats.roots, std::vector<std::string>{"/r"});
    EXPECT_EQ(result.stats.filesScanned, 0);
    EXPECT_TRUE(result.top->children().empty());
    EXPECT_EQ(result.top->lastModified, 1'234'567.5);
    EXPECT_EQ(disk.timesRead("/r"), 0);
}

TEST_F(ScanEngineTest, completesWithFewOrNoWorkerThreads) {
    for (int i = 0; i < 50; ++i) disk.file("/r/" + std::to_string(i % 5) + "/" + std::to_string(i) + "/f", 1);
    for (const unsigned made : {0U, 2U}) {
        const auto queue = std::make_shared<UpdateQueue>();
        unsigned asked = 0;
        workers(4);
        fakes::behindGate(
            SYS_clone3, [&](unsigned call) { return asked = call + 1, call < made ? 0 : EAGAIN; },
            [&] { ScanEngine(disk, clock).runHere(queue, {"/r"}); });
        EXPECT_EQ(asked, made + 1) << "one refusal is enough";
        EXPECT_EQ(ScanResult(queue->takeAll().updates).stats.filesScanned, 50);
        EXPECT_TRUE(drainThreads(60));
    }
}

TEST(WorkerCount, countsActiveProcessors) {
    const zoo::TempFolder temp;
    fakes::Mounts mounts;
    if (!mounts.allowed()) GTEST_SKIP() << "mounting is not allowed here";
    std::ofstream(temp / "online") << "0-20\n";
    mounts.again(temp / "online", "/sys/devices/system/cpu/online");
    if (std::thread::hardware_concurrency() != 21) GTEST_SKIP() << "the processors are counted elsewhere";
    EXPECT_EQ(ScanEngine::resolveWorkerCount(), 31);
}

#endif

}  // namespace
}  // namespace zelk
