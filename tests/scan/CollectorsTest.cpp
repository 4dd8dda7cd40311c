// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <thread>
#include <vector>

#include "scan/DiskImageCollector.h"
#include "scan/InodeDeduper.h"
#include "scan/ScanCounters.h"
#include "scan/TopFilesCollector.h"
#include "scan/TypeAggregator.h"

namespace zelk {
namespace {

void offer(TopFilesCollector& collector, std::int64_t size, const std::string& path = "p") {
    collector.offer([&] { return path; }, size, 0, FileType::other);
}

TEST(InodeDeduper, reportsEachFileAsNewOnce) {
    InodeDeduper deduper;
    EXPECT_TRUE(deduper.insertIfNew(1, 42));
    EXPECT_FALSE(deduper.insertIfNew(1, 42));
}

TEST(InodeDeduper, distinguishesDevicesWithinAShard) {
    InodeDeduper deduper;
    EXPECT_TRUE(deduper.insertIfNew(1, 42));
    EXPECT_TRUE(deduper.insertIfNew(2, 42));
    EXPECT_TRUE(deduper.insertIfNew(-2, 42));
    EXPECT_FALSE(deduper.insertIfNew(2, 42));
    EXPECT_EQ(InodeDeduper::shardIndex(42), 10U);
    EXPECT_EQ(InodeDeduper::shardIndex(~0ULL), 15U);
}

TEST(InodeDeduper, concurrentThreadsAgreeOnTheFirst) {
    InodeDeduper deduper;
    std::atomic<int> first{0};
    std::vector<std::thread> threads;
    for (int t = 0; t < 4; ++t) {
        threads.emplace_back([&] {
            for (std::uint64_t inode = 0; inode < 2000; ++inode) first += deduper.insertIfNew(1, inode) ? 1 : 0;
        });
    }
    for (std::thread& thread : threads) thread.join();
    EXPECT_EQ(first, 2000);
}

TEST(TopFiles, largerFileReplacesTheEarliestSmallest) {
    TopFilesCollector collector;
    for (int i = 0; i < 250; ++i) offer(collector, 1, "small" + std::to_string(i));
    offer(collector, 2, "large");
    const std::vector<LargeFile> items = collector.items();
    ASSERT_EQ(items.size(), 250U);
    EXPECT_EQ(items.front().path, "small1");
    EXPECT_EQ(items.back().path, "large");
    EXPECT_EQ(items.back().size, 2);
    EXPECT_EQ(collector.threshold(), 1);
}

TEST(TopFiles, fullListRefusesFileEqualToTheThreshold) {
    TopFilesCollector collector;
    for (int i = 0; i < 250; ++i) offer(collector, 5);
    EXPECT_FALSE(collector.mayTake(5));
    collector.offer([]() -> std::string { throw std::logic_error("no path may be built"); }, 5, 0, FileType::other);
    EXPECT_EQ(collector.items().size(), 250U);
    EXPECT_TRUE(collector.mayTake(6));
}

TEST(TopFiles, fillingTheListSetsTheThreshold) {
    TopFilesCollector collector;
    for (int i = 0; i < 249; ++i) offer(collector, 10 + i);
    EXPECT_EQ(collector.threshold(), 0);
    EXPECT_TRUE(collector.mayTake(1)) << "before the list is full everything passes";
    offer(collector, 7);
    EXPECT_EQ(collector.threshold(), 7);
}

TEST(TopFiles, keepsTheLargestOffersOfConcurrentThreads) {
    TopFilesCollector collector;
    std::vector<std::thread> threads;
    for (int t = 0; t < 4; ++t) {
        threads.emplace_back([&, t] {
            for (std::int64_t i = 0; i < 2000; ++i) {
                const std::int64_t size = 1 + i * 4 + t;
                if (collector.mayTake(size)) offer(collector, size);
            }
        });
    }
    for (std::thread& thread : threads) thread.join();
    std::vector<LargeFile> items = collector.items();
    std::sort(items.begin(), items.end(), [](const LargeFile& a, const LargeFile& b) { return a.size > b.size; });
    ASSERT_EQ(items.size(), 250U);
    for (std::size_t i = 0; i < items.size(); ++i) EXPECT_EQ(items[i].size, 8000 - static_cast<std::int64_t>(i));
}

TEST(ScanCounters, directoryCountsTowardsAnUpdate) {
    EXPECT_TRUE(ScanCounters().recordDirectory(19'999, 0));
    EXPECT_FALSE(ScanCounters().recordDirectory(19'998, 0));
}

TEST(ScanCounters, veryLargeDirectoryCausesOneUpdate) {
    ScanCounters counters;
    EXPECT_TRUE(counters.recordDirectory(50'000, 5));
    EXPECT_FALSE(counters.recordDirectory(19'998, 5)) << "the count starts afresh behind an emission";
    EXPECT_TRUE(counters.recordDirectory(0, 0));
    EXPECT_EQ(counters.counts().files, 69'998);
    EXPECT_EQ(counters.counts().dirs, 3);
    EXPECT_EQ(counters.counts().bytes, 10);
}

TEST(ScanCounters, countsBlockedDirectoriesSeparately) {
    ScanCounters counters;
    counters.recordBlocked();
    EXPECT_EQ(counters.counts().blocked, 1);
    EXPECT_EQ(counters.counts().dirs, 0);
    EXPECT_FALSE(counters.recordDirectory(19'998, 0)) << "it must not count towards an emission";
}

TEST(TypeAggregator, sumsByType) {
    TypeAggregator aggregator;
    TypeTotals directory;
    directory[FileType::video] = {10, 1};
    directory[FileType::other] = {0, 2};
    aggregator.merge(directory);
    aggregator.merge(directory);
    aggregator.merge({});
    EXPECT_EQ(aggregator.totals()[FileType::video], (TypeTally{20, 2}));
    EXPECT_EQ(aggregator.totals()[FileType::other], (TypeTally{0, 4}));
    EXPECT_FALSE(aggregator.totals().contains(FileType::audio));
}

TEST(DiskImages, keepAllInOrderOfArrival) {
    DiskImageCollector collector;
    for (int i = 0; i < 300; ++i) collector.append({std::to_string(i), i, 0, FileType::diskImage});
    ASSERT_EQ(collector.items().size(), 300U);
    EXPECT_EQ(collector.items()[299].path, "299");
}

}  // namespace
}  // namespace zelk
