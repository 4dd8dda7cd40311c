// SPDX-License-Identifier: MIT
// Large folders, which workers that wait for a folder read together. Entries that are held at the same time show that
// as many threads are in one folder.
#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <string>
#include <thread>
#include <vector>

#include "ScanFixture.h"
#include "platform/Thread.h"
#include "scan/ParallelWalker.h"

namespace zelk {
namespace {

/// Every folder with eight entries or more is shared, in parts of two.
class SharedFolder : public ScanFixture {
protected:
    SharedFolder() { disk.shareFrom(8, 2); }

    void files(const std::string& folder, int count = 8) {
        for (int i = 0; i < count; ++i) disk.file(folder + "/" + std::to_string(i) + ".txt", 10);
    }

    /// Scans "/r" and, once a thread waits at each of `entries`, lets it go on to its end.
    ScanResult scanHolding(const std::vector<std::string>& entries) {
        for (const std::string& entry : entries) disk.holdEntry(entry);
        return scanWhile([&] {
            for (const std::string& entry : entries) disk.waitUntilHeld(entry);
        });
    }
};

TEST_F(SharedFolder, isReadByThoseWhoWait) {
    files("/r");
    workers(4);
    const ScanResult result = scanHolding({"/r/0.txt", "/r/2.txt", "/r/4.txt", "/r/6.txt"});
    EXPECT_EQ(result.stats.totalBytes, 80);
    EXPECT_EQ(result.stats.filesScanned, 8);
    std::set<std::string> readers;
    for (int i = 0; i < 8; i += 2) readers.insert(disk.entryReader("/r/" + std::to_string(i) + ".txt"));
    EXPECT_EQ(readers.size(), 4U);
}

#ifdef __linux__

TEST_F(SharedFolder, wakesThoseWhoWait) {
    const std::vector<std::string> firstOfEachPart{"/r/0.txt", "/r/2.txt", "/r/4.txt", "/r/6.txt"};
    files("/r");
    for (const std::string& name : firstOfEachPart) disk.holdEntry(name);
    EXPECT_EQ(scanWaking(firstOfEachPart).stats.totalBytes, 80);
}

TEST_F(SharedFolder, letsThoseSleepWhoHaveNothingLeftToBegin) {
    files("/r", 40);
    workers(3);
    disk.holdEntry("/r/0.txt");
    const ScanResult result = scanWhile([&] {
        disk.waitUntilHeld("/r/0.txt");
        waitForSleepingWorkers(3);
    });
    EXPECT_EQ(result.stats.totalBytes, 400);
}

// Both owners sleep, the one of "a" for longer, when those end who help in "b".
TEST_F(SharedFolder, wakesItsOwnerAmongOthersThatWait) {
    const std::vector<std::string> entries{"/r/a/0.txt", "/r/a/2.txt", "/r/b/0.txt", "/r/b/2.txt"};
    files("/r/a");
    files("/r/b");
    workers(6);
    for (const std::string& entry : entries) disk.holdEntry(entry);
    const ScanResult result = scanWhile([&] {
        for (const std::string& entry : entries) disk.waitUntilHeld(entry);
        for (const char* const folder : {"/r/a", "/r/b"}) {
            for (const std::string& entry : entries)
                if (disk.entryReader(entry) == disk.lister(folder)) disk.release(entry);
            waitForSleepingWorkers(6);
        }
        disk.release("/r/b/0.txt");
        disk.release("/r/b/2.txt");
        waitForSleepingWorkers(6);
    });
    EXPECT_EQ(result.stats.totalBytes, 160);
}

#endif

TEST_F(SharedFolder, isReadByNobodyElseWithOneWorker) {
    files("/r");
    workers(1);
    EXPECT_EQ(scan({"/r"}).stats.totalBytes, 80);
    EXPECT_EQ(disk.entryReader("/r/0.txt"), "") << "it was shared";
}

TEST_F(SharedFolder, isReadByNobodyElseWithOneReader) {
    class OneReader : public fakes::FakeDirectoryService {
    public:
        std::int64_t maximumReaders() override { return 1; }
    } one;
    one.shareFrom(1, 1);
    one.file("/r/f", 10);
    const auto queue = std::make_shared<UpdateQueue>();
    ScanEngine(one, clock).runHere(queue, {"/r"});
    EXPECT_EQ(ScanResult(queue->takeAll().updates).stats.totalBytes, 10);
    EXPECT_EQ(one.entryReader("/r/f"), "") << "it was shared";
}

TEST_F(SharedFolder, isCompleteWhoeverEndsLast) {
    files("/r/d", 200);
    workers(3);
    for (const int late : {0, 1, 100, 198, 199}) {
        const ScanResult result = scanHolding({"/r/d/" + std::to_string(late) + ".txt"});
        EXPECT_EQ(result.stats.totalBytes, 2000) << late;
        EXPECT_EQ(result.insights.typeTotals[FileType::document], (TypeTally{2000, 200})) << late;
    }
}

TEST_F(SharedFolder, keepsItsOrderWithAnyNumberOfWorkers) {
    std::string wanted;
    for (int i = 0; i < 300; ++i) {
        const std::string name = std::to_string(i * 7919 % 1000);
        if (i % 3 != 0) {
            disk.file("/r/f" + name + ".mp3", static_cast<std::uint64_t>(i));
            if (i % 5 == 0) disk.hardLink("/r/l" + name + ".iso", "/r/f" + name + ".mp3");
            continue;
        }
        disk.file("/r/" + name + "/inside", 1);
        wanted += name + " ";
    }
    std::vector<LargeFile> largest;
    for (const int count : {1, 2, 8}) {
        SCOPED_TRACE(count);
        workers(count);
        const ScanResult result = scan({"/r"});
        std::string names;
        for (const FSNode& child : at(result, "/r")->children()) names += std::string(child.name()) + " ";
        EXPECT_EQ(names, wanted);
        std::int64_t bytes = 100;
        for (int i = 0; i < 300; ++i) bytes += i % 3 != 0 ? i : 0;
        EXPECT_EQ(result.stats.totalBytes, bytes);
        EXPECT_EQ(result.stats.dirsScanned, 101);
        EXPECT_EQ(at(result, "/r")->ownFileBytes, bytes - 100);
        if (largest.empty()) largest = result.insights.topFiles;
        EXPECT_EQ(result.insights.topFiles.size(), 250U);
        for (std::size_t i = 0; i < 150; ++i) EXPECT_EQ(result.insights.topFiles[i], largest[i]) << i;
        EXPECT_EQ(result.insights.typeTotals[FileType::diskImage].bytes, 0) << "counted by its first name";
    }
}

TEST_F(SharedFolder, omitsMountPointsInIt) {
    files("/r", 20);
    disk.device("/r/mounted", 2);
    disk.file("/r/mounted/f", 100);
    disk.file("/r/own/f", 1);
    workers(8);
    const ScanResult result = scan({"/r"});
    EXPECT_EQ(result.stats.totalBytes, 201);
    EXPECT_EQ(result.stats.dirsScanned, 2);
    EXPECT_EQ(disk.timesRead("/r/mounted"), 0);
}

TEST_F(SharedFolder, isUnreadableIfAnyPartOfItIs) {
    files("/r/good");
    files("/r/bad");
    disk.damaged("/r/bad/7.txt");
    workers(4);
    const ScanResult result = scanHolding({"/r/bad/0.txt", "/r/bad/6.txt"});
    EXPECT_EQ(result.stats.blockedPaths, 1);
    EXPECT_EQ(result.stats.totalBytes, 80);
    EXPECT_EQ(result.stats.filesScanned, 8);
    EXPECT_TRUE(at(result, "/r/bad")->isUnreadable());
    EXPECT_EQ(at(result, "/r/bad")->fileCount, 0);
    EXPECT_EQ(result.insights.typeTotals[FileType::document], (TypeTally{80, 8}));
    for (const LargeFile& file : result.insights.topFiles) EXPECT_TRUE(file.path.starts_with("/r/good/")) << file.path;
}

TEST_F(SharedFolder, isOneOfTwoAtOnce) {
    files("/r/a");
    files("/r/b");
    workers(6);  // two in each, and its owner if those two came before it
    const ScanResult result = scanHolding({"/r/a/0.txt", "/r/a/2.txt", "/r/b/0.txt", "/r/b/2.txt"});
    EXPECT_EQ(result.stats.totalBytes, 160);
}

TEST_F(SharedFolder, isSharedBelowTheSharedDepthToo) {
    const std::string deep = "/r/1/2/3/4/5/6/7";
    files(deep);
    disk.file(deep + "/after/f", 1);
    workers(3);
    const ScanResult result = scanHolding({deep + "/0.txt", deep + "/2.txt", deep + "/4.txt"});
    EXPECT_EQ(result.stats.totalBytes, 81);
    EXPECT_EQ(result.stats.dirsScanned, 9);
}

TEST_F(SharedFolder, lendsItsReadersNoLongerThanItTakes) {
    files("/r");
    disk.directory("/r/a");
    disk.directory("/r/b");
    workers(2);
    disk.hold("/r/a");
    disk.hold("/r/b");
    const ScanResult result = scanWhile([&] {
        disk.waitUntilHeld("/r/a");
        disk.waitUntilHeld("/r/b");
    });
    EXPECT_EQ(result.stats.dirsScanned, 3);
}

/// Runs a walk of its own, to see what one that was cancelled leaves.
class CancelledFolder : public SharedFolder {
protected:
    void walk(std::int64_t workerCount) {
        const NodeRef top = FSNode::make("", 0);
        node = NodeRef(&top->append("/r", 0));
        const auto walker = std::make_shared<ParallelWalker>(disk, WorkerLimits{workerCount, workerCount}, collectors,
                                                             trash, cancel, std::make_shared<UpdateQueue>());
        walker->run({{node.get(), disk.openRoot("/r"), 2, 0, 1, false}});
    }

    /// Cancels a walk of two workers in a folder of a hundred files while each is at its first part.
    void cancelWithTwoPartsUnderWay() {
        files("/r", 100);
        disk.holdEntry("/r/0.txt");
        disk.holdEntry("/r/2.txt");
        std::thread walking([&] { walk(2); });
        disk.waitUntilHeld("/r/0.txt");
        disk.waitUntilHeld("/r/2.txt");
        cancel->set();
        disk.release();
        walking.join();
    }

    ScanCollectors collectors;
    NodeRef node;
    const std::shared_ptr<CancelFlag> cancel = std::make_shared<CancelFlag>();
};

TEST_F(CancelledFolder, isLeftBetweenTwoParts) {
    cancelWithTwoPartsUnderWay();
    EXPECT_NE(disk.entryReader("/r/1.txt"), "");
    for (int i = 4; i < 100; ++i) EXPECT_EQ(disk.entryReader("/r/" + std::to_string(i) + ".txt"), "") << i;
}

TEST_F(CancelledFolder, isNeitherUnreadableNorHalfCounted) {
    cancelWithTwoPartsUnderWay();
    EXPECT_FALSE(node->isUnreadable());
    EXPECT_EQ(node->fileCount, 0);
    const ScanCounters::Counts counts = collectors.counters.counts();
    EXPECT_EQ(counts.blocked, 0);
    EXPECT_EQ(counts.files, 0);
    EXPECT_TRUE(collectors.topFiles.items().empty());
}

TEST_F(CancelledFolder, endsWhateverItsWorkersAreAt) {
    for (int folder = 0; folder < 12; ++folder) files("/r/" + std::to_string(folder), 30);
    for (int round = 0; round < 200; ++round) {
        const auto queue = std::make_shared<UpdateQueue>();
        workers(1 + round % 5);
        ScanEngine(disk, clock).start(queue, {"/r"});
        for (int step = 0; step < round * 7; ++step) std::this_thread::yield();
        queue->terminate();
        ASSERT_TRUE(drainThreads(60));
    }
}

TEST_F(CancelledFolder, countsIfItWasComplete) {
    files("/r", 8);
    for (const char* const name : {"/r/0.txt", "/r/2.txt", "/r/4.txt", "/r/6.txt"}) disk.holdEntry(name);
    std::thread walking([&] { walk(4); });
    for (const char* const name : {"/r/0.txt", "/r/2.txt", "/r/4.txt", "/r/6.txt"}) disk.waitUntilHeld(name);
    cancel->set();
    disk.release();
    walking.join();
    EXPECT_EQ(node->fileCount, 8);
}

}  // namespace
}  // namespace zelk
