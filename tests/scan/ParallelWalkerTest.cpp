// SPDX-License-Identifier: MIT
#include "scan/ParallelWalker.h"

#include <pthread.h>
#include <sys/syscall.h>

#include <atomic>
#include <cerrno>
#include <mutex>
#include <set>

#include "ScanFixture.h"
#include "fakes/SystemCallGate.h"
#include "platform/Thread.h"

namespace zelk {
namespace {

using ParallelWalkerTest = ScanFixture;

constexpr std::int64_t mb = 1'000'000;

TEST_F(ParallelWalkerTest, sumsFilesPerDirectory) {
    disk.file("/r/a.txt", 10);
    disk.file("/r/d/b.mp4", 20, 7.5);
    disk.file("/r/d/c", 30);
    disk.directory("/r/e", 99.25);
    const ScanResult result = scan({"/r"});
    EXPECT_EQ(result.stats.filesScanned, 3);
    EXPECT_EQ(result.stats.dirsScanned, 3);
    EXPECT_EQ(result.stats.totalBytes, 60);
    EXPECT_EQ(at(result, "/r")->ownFileBytes, 10);
    EXPECT_EQ(at(result, "/r")->fileCount, 1);
    EXPECT_EQ(at(result, "/r")->size, 60);
    EXPECT_EQ(at(result, "/r/d")->ownFileBytes, 50);
    EXPECT_EQ(at(result, "/r/d")->fileCount, 2);
    EXPECT_EQ(at(result, "/r/e")->lastModified, 99.25);
    EXPECT_EQ(result.insights.typeTotals[FileType::video], (TypeTally{20, 1}));
    EXPECT_EQ(result.insights.typeTotals[FileType::document], (TypeTally{10, 1}));
}

TEST_F(ParallelWalkerTest, keepsChildrenInOrderOfDelivery) {
    for (const char* name : {"m", "a", "z", "b"}) disk.directory(std::string("/r/") + name);
    const ScanResult result = scan({"/r"});
    std::string names;
    for (const FSNode& child : at(result, "/r")->children()) names += child.name();
    EXPECT_EQ(names, "mazb");
}

TEST_F(ParallelWalkerTest, rootWithTrailingSlashGivesSingleSlashes) {
    disk.file("/top.dmg", 60 * mb);
    disk.file("/d/in.dmg", 70 * mb);
    const ScanResult result = scan({"/"});
    EXPECT_NE(at(result, "/d"), nullptr);
    ASSERT_EQ(result.insights.diskImages.size(), 2U);
    EXPECT_EQ(result.insights.diskImages[0].path, "/d/in.dmg");
    EXPECT_EQ(result.insights.diskImages[1].path, "/top.dmg");
    EXPECT_EQ(scan({"/d/"}).insights.topFiles[0].path, "/d/in.dmg");
}

// Directories at depth 5 still go through the stack; everything below is walked by the thread that took one. Holding
// two siblings at once shows which: only those on the stack can be visited by two threads.
TEST_F(ParallelWalkerTest, sharesDirectoriesDownToDepthFive) {
    disk.directory("/r/1/2/3/4/a");
    disk.directory("/r/1/2/3/4/b");
    disk.hold("/r/1/2/3/4/a");
    disk.hold("/r/1/2/3/4/b");
    const ScanResult result = scanWhile([&] {
        disk.waitUntilHeld("/r/1/2/3/4/a");
        disk.waitUntilHeld("/r/1/2/3/4/b");
    });
    EXPECT_EQ(result.stats.dirsScanned, 7);
}

TEST_F(ParallelWalkerTest, walksFromDepthSixOnOneThread) {
    disk.directory("/r/1/2/3/4/5/a");
    disk.directory("/r/1/2/3/4/5/b/c");
    disk.hold("/r/1/2/3/4/5/a");
    const ScanResult result = scanWhile([&] {
        disk.waitUntilHeld("/r/1/2/3/4/5/a");
        EXPECT_EQ(disk.timesRead("/r/1/2/3/4/5"), 1);
        EXPECT_EQ(disk.timesRead("/r/1/2/3/4/5/b"), 0);
    });
    EXPECT_EQ(result.stats.dirsScanned, 9);
}

TEST_F(ParallelWalkerTest, countsHardLinkBytesOnceAndEveryName) {
    disk.file("/r/a/x.iso", 10 * mb);
    disk.directory("/r/b");
    disk.hardLink("/r/b/x.iso", "/r/a/x.iso");
    const ScanResult result = scan({"/r"});
    EXPECT_EQ(result.stats.totalBytes, 10 * mb);
    EXPECT_EQ(result.stats.filesScanned, 2);
    const FSNode* a = at(result, "/r/a");
    const FSNode* b = at(result, "/r/b");
    EXPECT_EQ(a->fileCount, 1);
    EXPECT_EQ(b->fileCount, 1);
    EXPECT_EQ(a->ownFileBytes + b->ownFileBytes, 10 * mb);
    EXPECT_TRUE(a->ownFileBytes == 0 || b->ownFileBytes == 0);
    EXPECT_EQ(result.insights.topFiles.size(), 1U);
    EXPECT_EQ(result.insights.typeTotals[FileType::diskImage], (TypeTally{10 * mb, 2}));
}

TEST_F(ParallelWalkerTest, sameInodeOnTwoDevicesIsTwoFiles) {
    disk.device("/other", 7);
    for (const char* root : {"/own", "/other"}) {
        const std::string first = std::string(root) + "/first";
        disk.file(first, 10);
        disk.hardLink(std::string(root) + "/second", first);
        disk.numbers(first, 4711, 2);
    }
    const ScanResult result = scan({"/own", "/other"});
    EXPECT_EQ(result.stats.totalBytes, 20) << "each device's once";
    EXPECT_EQ(result.stats.filesScanned, 4);
}

TEST_F(ParallelWalkerTest, filesWithoutLinkCountAreNotDeduplicated) {
    for (const char* name : {"/r/a", "/r/b", "/r/c"}) {
        disk.file(name, 10);
        disk.numbers(name, 0, 0);
    }
    EXPECT_EQ(scan({"/r"}).stats.totalBytes, 30) << "a system that does not count links says 0";
}

TEST_F(ParallelWalkerTest, doesNotEnterLinkToADirectory) {
    disk.file("/outside/big", 500);
    disk.symbolicLink("/r/link", 1, "/outside");
    const ScanResult result = scan({"/r"});
    EXPECT_EQ(result.stats.totalBytes, 1);
    EXPECT_EQ(result.stats.dirsScanned, 1);
    EXPECT_EQ(disk.timesRead("/outside"), 0);
}

TEST_F(ParallelWalkerTest, omitsMountPoint) {
    disk.file("/r/f", 5);
    disk.device("/r/mount", 2);
    disk.file("/r/mount/f", 100);
    const ScanResult result = scan({"/r"});
    EXPECT_EQ(result.stats.totalBytes, 5);
    EXPECT_EQ(result.stats.dirsScanned, 1);
    EXPECT_EQ(result.stats.blockedPaths, 0);
    EXPECT_TRUE(at(result, "/r")->children().empty());
    EXPECT_EQ(disk.timesRead("/r/mount"), 0);
}

TEST_F(ParallelWalkerTest, rootOnAnotherVolumeUsesItsOwnDevice) {
    disk.device("/r/mount", 2);
    disk.file("/r/mount/d/f", 100);
    const ScanResult result = scan({"/r", "/r/mount"});
    EXPECT_EQ(result.stats.totalBytes, 100);
    EXPECT_EQ(at(result, "/r/mount/d")->size, 100);
}

TEST_F(ParallelWalkerTest, unreadableDirectoryIsCountedOnceAndEmpty) {
    disk.file("/r/f", 5);
    disk.file("/r/shut/f", 100);
    disk.unreadable("/r/shut");
    disk.file("/r/1/2/3/4/5/6/shut/f", 100);
    disk.unreadable("/r/1/2/3/4/5/6/shut");
    disk.file("/r/1/2/3/4/5/6/open/f", 7);
    const ScanResult result = scan({"/r"});
    EXPECT_EQ(result.stats.blockedPaths, 2);
    EXPECT_EQ(result.stats.totalBytes, 12);
    EXPECT_EQ(result.stats.dirsScanned, 8) << "a blocked directory is no scanned one";
    EXPECT_TRUE(at(result, "/r/shut")->isUnreadable());
    EXPECT_TRUE(at(result, "/r/1/2/3/4/5/6/shut")->isUnreadable());
    EXPECT_FALSE(at(result, "/r")->isUnreadable());
    EXPECT_FALSE(at(result, "/r/1/2/3/4/5/6")->isUnreadable());
    const FSNode* shut = at(result, "/r/shut");
    ASSERT_NE(shut, nullptr);
    EXPECT_EQ(shut->size, 0);
    EXPECT_EQ(shut->fileCount, 0);
    EXPECT_TRUE(shut->children().empty());
}

TEST_F(ParallelWalkerTest, endsWhenAllSeedsAreUnreadable) {
    disk.directory("/a");
    disk.directory("/b");
    disk.unreadable("/a");
    disk.unreadable("/b");
    const ScanResult result = scan({"/a", "/b"});
    EXPECT_EQ(result.stats.blockedPaths, 2);
    EXPECT_EQ(result.stats.dirsScanned, 0);
    ASSERT_EQ(result.top->children().size(), 2U);
    EXPECT_TRUE(result.top->children().front().children().empty());
}

TEST_F(ParallelWalkerTest, oneWorkerFindsTheSameAsMany) {
    for (int i = 0; i < 200; ++i) {
        const std::string folder = "/r/" + std::to_string(i % 7) + "/" + std::to_string(i % 13) + "/deep/er/and/deeper";
        disk.file(folder + "/f" + std::to_string(i) + ".mp3", static_cast<std::uint64_t>(i));
    }
    workers(1);
    const ScanResult one = scan({"/r"});
    workers(8);
    const ScanResult eight = scan({"/r"});
    EXPECT_EQ(one.stats.totalBytes, eight.stats.totalBytes);
    EXPECT_EQ(one.stats.totalBytes, 199 * 200 / 2);
    EXPECT_EQ(one.stats.filesScanned, eight.stats.filesScanned);
    EXPECT_EQ(one.stats.dirsScanned, eight.stats.dirsScanned);
    EXPECT_EQ(one.insights.typeTotals, eight.insights.typeTotals);
    EXPECT_EQ(one.insights.topFiles.size(), eight.insights.topFiles.size());
}

TEST_F(ParallelWalkerTest, listsNoEmptyFiles) {
    disk.file("/r/a.dmg", 0);
    disk.file("/r/b", 1);
    const ScanResult result = scan({"/r"});
    ASSERT_EQ(result.insights.topFiles.size(), 1U);
    EXPECT_EQ(result.insights.topFiles[0].path, "/r/b");
    EXPECT_EQ(result.stats.filesScanned, 2);
}

TEST_F(ParallelWalkerTest, rawImageIsTalliedAsImageAndListedAsDiskImage) {
    disk.file("/r/photo.raw", 60 * mb, 3.5);
    disk.file("/r/small.dmg", 50 * mb - 1);
    disk.file("/r/just.dmg", 50 * mb);
    const ScanResult result = scan({"/r"});
    EXPECT_EQ(result.insights.typeTotals[FileType::image], (TypeTally{60 * mb, 1}));
    ASSERT_EQ(result.insights.diskImages.size(), 2U);
    EXPECT_EQ(result.insights.diskImages[0], (LargeFile{"/r/photo.raw", 60 * mb, 3.5, FileType::diskImage}));
    EXPECT_EQ(result.insights.diskImages[1].path, "/r/just.dmg");
    EXPECT_EQ(result.insights.topFiles[0].type, FileType::image);
}

TEST_F(ParallelWalkerTest, keepsNamesThatAreNotUtf8) {
    disk.file("/r/\xFF\xFE/\n\x01.png", 9);
    const ScanResult result = scan({"/r"});
    EXPECT_EQ(result.insights.topFiles[0].path, "/r/\xFF\xFE/\n\x01.png");
}

TEST_F(ParallelWalkerTest, walksFiftyThousandNestedFolders) {
    disk.chain("/r", "d", 50'000, 2);
    const ScanResult result = scan({"/r"});
    EXPECT_EQ(result.stats.dirsScanned, 50'001);
    EXPECT_EQ(result.stats.filesScanned, 50'000);
    EXPECT_EQ(result.stats.totalBytes, 100'000);
    EXPECT_EQ(result.stats.blockedPaths, 0);
}

TEST_F(ParallelWalkerTest, reopensFromTheRootWhenTheWayBackIsLost) {
    const std::string deep = "/root/1/2/3/4/5/6/7";
    for (const char* name : {"/a/b", "/c", "/d"}) disk.file(deep + name + "/file", 100);
    for (const char* name : {"/8/e", "/8/f/g", "/8/h"}) disk.file(deep + name + "/file", 1'000);
    disk.file("/root/1/2/3/4/5/6/z/file", 10'000);
    for (const std::string& lost : {deep, deep + "/8", deep + "/8/f"}) disk.lostOnTheWayBack(lost);
    for (const char* root : {"/root", "/root/"}) {
        const ScanResult result = scan({root});
        EXPECT_FALSE(result.blocked);
        EXPECT_EQ(result.stats.blockedPaths, 0);
        EXPECT_EQ(result.stats.filesScanned, 7);
        EXPECT_EQ(result.top->size, 13'300);
    }
}

TEST_F(ParallelWalkerTest, reopensOnlyWhereSomethingIsLeft) {
    const std::string deep = "/r/1/2/3/4/5/6";
    for (const char* name : {"/a/below/below", "/b/below/below", "/c/below"}) disk.directory(deep + name);
    disk.lostOnTheWayBack(deep);
    workers(1);
    EXPECT_EQ(scan({"/r"}).stats.dirsScanned, 15);
    EXPECT_EQ(disk.timesRead(deep), 3) << "again before the second folder in it and before the third";
    for (const char* name : {"/a", "/a/below", "/a/below/below", "/b", "/b/below", "/b/below/below", "/c", "/c/below"})
        EXPECT_EQ(disk.timesRead(deep + name), 1) << name;
    EXPECT_EQ(disk.timesRead("/r/1/2/3/4/5"), 1);
}

TEST_F(ParallelWalkerTest, reportsProgressEveryTwentyThousandItems) {
    for (int d = 0; d < 5; ++d)
        for (int f = 0; f < 9'999; ++f) disk.file("/r/" + std::to_string(d) + "/" + std::to_string(f), 1);
    workers(1);
    const ScanResult result = scan({"/r"});
    // 1 item for the root, then 10,000 per folder: due after the second and the fourth.
    ASSERT_EQ(result.progress.size(), 2U);
    EXPECT_EQ(result.progress[0].scanned, 20'001);
    EXPECT_EQ(result.progress[0].bytes, 19'998);
    EXPECT_EQ(result.progress[1].scanned, 40'001);
    EXPECT_TRUE(result.progress[1].currentPath.starts_with("/r/")) << result.progress[1].currentPath;
}

TEST_F(ParallelWalkerTest, nodesTakeNinetyBytesEachWhateverIsInThem) {
    std::size_t before = 0;
    for (const int files : {0, 5}) {
        fakes::FakeDirectoryService own;
        constexpr int folders = 20'000;
        for (int d = 0; d < folders; ++d) {
            const std::string path = "/r/" + std::to_string(d % 10) + "/" + std::to_string(d % 97) +
                                     "/1/2/3/4/folder_" + std::to_string(10'000 + d);
            own.directory(path);
            for (int f = 0; f < files; ++f) own.file(path + "/" + std::to_string(f), 1);
        }
        const auto queue = std::make_shared<UpdateQueue>();
        ScanEngine(own, clock).runHere(queue, {"/r"});
        const ScanResult result(queue->takeAll().updates);
        ASSERT_TRUE(drainThreads(60));
        ASSERT_GT(result.stats.dirsScanned, folders);
        ASSERT_EQ(result.stats.filesScanned, folders * files);
        const std::size_t bytes = result.top->arena().usedBytes();
        EXPECT_LE(bytes, 90U * static_cast<std::size_t>(result.stats.dirsScanned + 1));
        if (files > 0) {
            EXPECT_EQ(bytes, before);
        }
        before = bytes;
    }
}

TEST_F(ParallelWalkerTest, aNodeOutlivesEverythingElseOfItsScan) {
    NodeRef deep;
    {
        for (const char* name : {"/a", "/b/c/d/e/f/g/h/i", "/z"}) disk.file(std::string("/r") + name + "/file", 10);
        deep = NodeRef(at(scan({"/r"}), "/r/b/c/d/e/f/g"));
    }
    EXPECT_EQ(deep->fullPath(), "/r/b/c/d/e/f/g");
    EXPECT_EQ(deep->firstChild()->firstChild()->size, 10);
    EXPECT_EQ(deep->arena().references(), 1U);
}

/// Records which threads ask for a reader.
class NotingService : public fakes::FakeDirectoryService {
public:
    std::unique_ptr<DirectoryReader> makeReader() override {
        {
            const std::lock_guard lock(mutex_);
            names_.insert(currentThreadName());
        }
        return fakes::FakeDirectoryService::makeReader();
    }
    std::set<std::string> names() {
        const std::lock_guard lock(mutex_);
        return names_;
    }

private:
    std::mutex mutex_;
    std::set<std::string> names_;
};

TEST(ParallelWalkerThreads, areLimitedByAvailableReaders) {
    class ThreeReaders : public NotingService {
    public:
        std::int64_t maximumReaders() override { return 3; }
    };
    setenv("ZELK_WORKERS", "50", 1);
    ThreeReaders disk;
    for (int i = 0; i < 50; ++i) disk.file("/r/" + std::to_string(i) + "/f", 1);
    PosixClock clock;
    const auto queue = std::make_shared<UpdateQueue>();
    ScanEngine(disk, clock).start(queue, {"/r"});
    ASSERT_TRUE(drainThreads(60));
    EXPECT_EQ(ScanResult(queue->takeAll().updates).stats.filesScanned, 50);
    for (const std::string& name : disk.names())
        EXPECT_TRUE(name == "zelk.scan.worker.0" || name == "zelk.scan.worker.1" || name == "zelk.scan.worker.2")
            << name;
    unsetenv("ZELK_WORKERS");
}

TEST(ParallelWalkerThreads, areNamedByTheirNumber) {
    setenv("ZELK_WORKERS", "3", 1);
    NotingService disk;
    disk.directory("/r/a");
    disk.hold("/r/a");
    PosixClock clock;
    const auto queue = std::make_shared<UpdateQueue>();
    ScanEngine(disk, clock).start(queue, {"/r"});
    disk.waitUntilHeld("/r/a");
    while (disk.names().size() < 3) std::this_thread::yield();
    disk.release();
    ASSERT_TRUE(drainThreads(60));
    EXPECT_EQ(disk.names(), (std::set<std::string>{"zelk.scan.worker.0", "zelk.scan.worker.1", "zelk.scan.worker.2"}));
    unsetenv("ZELK_WORKERS");
}

#ifdef __linux__

TEST_F(ParallelWalkerTest, wakesAsManyAsThereAreFolders) {
    const std::vector<std::string> folders{"/r/a", "/r/b", "/r/c", "/r/d"};
    for (const std::string& folder : folders) disk.directory(folder);
    for (const std::string& folder : folders) disk.hold(folder);
    EXPECT_EQ(scanWaking(folders).stats.dirsScanned, 5);
}

TEST(ParallelWalkerThreads, finishTheWalkWhenSomeCannotStart) {
    setenv("ZELK_WORKERS", "3", 1);
    NotingService disk;
    disk.file("/r/a/f", 1);
    PosixClock clock;
    const auto queue = std::make_shared<UpdateQueue>();
    fakes::behindGate(
        SYS_clone3, [](unsigned call) { return call == 0 ? 0 : EAGAIN; },
        [&] {
            ScanEngine(disk, clock).runHere(queue, {"/r"});
            EXPECT_TRUE(drainThreads(60));
        });
    EXPECT_EQ(ScanResult(queue->takeAll().updates).stats.filesScanned, 1);
    EXPECT_EQ(disk.names(), std::set<std::string>{"zelk.scan.worker.0"});
    unsetenv("ZELK_WORKERS");
}

/// Records the stack sizes of the walking threads.
class StackService : public fakes::FakeDirectoryService {
public:
    std::unique_ptr<DirectoryReader> makeReader() override {
        note(inWorker);
        return fakes::FakeDirectoryService::makeReader();
    }
    std::optional<RootStatus> status(const std::string& path) override {
        note(inBody);
        return fakes::FakeDirectoryService::status(path);
    }
    std::atomic<std::size_t> inWorker = 0;
    std::atomic<std::size_t> inBody = 0;

private:
    static void note(std::atomic<std::size_t>& bytes) {
        std::size_t size = 0;
        pthread_attr_t attributes;
        if (::pthread_getattr_np(::pthread_self(), &attributes) != 0) return;
        ::pthread_attr_getstacksize(&attributes, &size);
        ::pthread_attr_destroy(&attributes);
        bytes = size;
    }
};

TEST(ParallelWalkerThreads, haveStacksOfEightMebibytes) {
    static_assert(ParallelWalker::stackBytes == 8 << 20);
    setenv("ZELK_WORKERS", "1", 1);
    StackService disk;
    disk.directory("/r");
    PosixClock clock;
    ScanEngine(disk, clock).start(std::make_shared<UpdateQueue>(), {"/r"});
    ASSERT_TRUE(drainThreads(60));
    for (const std::size_t bytes : {disk.inWorker.load(), disk.inBody.load()}) {
        EXPECT_GE(bytes, std::size_t{8} << 20);
        EXPECT_LT(bytes, std::size_t{9} << 20);
    }
    unsetenv("ZELK_WORKERS");
}

#endif

}  // namespace
}  // namespace zelk
