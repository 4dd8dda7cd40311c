// SPDX-License-Identifier: MIT
// Workers that wait for the disk get company, up to a limit, and lose it when they no longer wait.
#include <gtest/gtest.h>
#include <sys/syscall.h>

#include <algorithm>
#include <atomic>
#include <cerrno>
#include <condition_variable>
#include <functional>
#include <memory>
#include <mutex>
#include <string>
#include <thread>
#include <utility>
#include <vector>

#include "ScanFixture.h"
#include "fakes/SystemCallGate.h"
#include "platform/Thread.h"
#include "scan/ParallelWalker.h"

namespace zelk {
namespace {

constexpr std::int64_t watched = ParallelWalker::watchedDirectories;
constexpr std::int64_t enough = ParallelWalker::waitingDirectories;  // sleeps in as many directories

/// A disk that knows how many readers there are.
class CountingDisk : public fakes::FakeDirectoryService {
public:
    std::unique_ptr<DirectoryReader> makeReader() override {
        change(1);
        return std::make_unique<Counted>(*this, fakes::FakeDirectoryService::makeReader());
    }

    int made() {
        const std::lock_guard lock(mutex_);
        return made_;
    }
    int most() {
        const std::lock_guard lock(mutex_);
        return most_;
    }
    /// How often every thread has slept before it came.
    std::int64_t sleptBefore = 0;
    /// Called after each folder, on the thread that read it.
    std::function<void()> afterEach = [] {};
    /// Waits until `made` readers were made of which `present` are left.
    void waitUntil(int made, int present) {
        std::unique_lock lock(mutex_);
        changed_.wait(lock, [&] { return made_ == made && present_ == present; });
    }

private:
    struct Counted : DirectoryReader {
        Counted(CountingDisk& disk, std::unique_ptr<DirectoryReader> real) : all(disk), its(std::move(real)) {}
        ~Counted() override { all.change(-1); }
        const Entries* open(const DirectoryRoot& root, const std::string& below) override {
            const Entries* const entries = its->open(root, below);
            all.afterEach();
            return entries;
        }
        const Entries* descend(std::string_view name) override { return its->descend(name); }
        bool ascend() override { return its->ascend(); }
        void setHelpers(Helpers* helpers) override { its->setHelpers(helpers); }
        std::int64_t timesSlept() const override { return all.sleptBefore + its->timesSlept(); }
        CountingDisk& all;
        std::unique_ptr<DirectoryReader> its;
    };

    void change(int by) {
        const std::lock_guard lock(mutex_);
        present_ += by;
        made_ += by > 0 ? 1 : 0;
        most_ = std::max(most_, present_);
        changed_.notify_all();
    }

    std::mutex mutex_;
    std::condition_variable changed_;
    int present_ = 0;
    int made_ = 0;
    int most_ = 0;
};

class WaitingWorkers : public testing::Test {
protected:
    ~WaitingWorkers() override { EXPECT_TRUE(drainThreads(60)); }

    /// The last to be created is the first to be read.
    void folders(const std::string& name, int count) {
        for (int i = 0; i < count; ++i) disk.file("/r/" + name + std::to_string(i) + "/f", 1);
    }

    void walk(WorkerLimits limits) { walk(limits, disk); }
    void walk(WorkerLimits limits, CountingDisk& on) {
        const NodeRef top = FSNode::make("", 0);
        FSNode& node = top->append("/r", 0);
        const auto walker = std::make_shared<ParallelWalker>(on, limits, collectors, TrashPlaces(), cancel,
                                                             std::make_shared<UpdateQueue>());
        walker->run({{&node, on.openRoot("/r"), 2, 0, 1, false}});
    }

    CountingDisk disk;
    ScanCollectors collectors;
    const std::shared_ptr<CancelFlag> cancel = std::make_shared<CancelFlag>();
};

TEST_F(WaitingWorkers, areJoinedByMore) {
    folders("held", 5);
    folders("other", static_cast<int>(watched) * 40);
    folders("first", 2);
    disk.sleepsPerFolder(1);
    for (int i = 0; i < 5; ++i) disk.hold("/r/held" + std::to_string(i));
    for (int i = 0; i < 2; ++i) disk.hold("/r/first" + std::to_string(i));
    std::thread walking([&] { walk({2, 5}); });
    // Until both have come, the one that is there sees the other wait for work and calls nobody.
    for (int i = 0; i < 2; ++i) disk.waitUntilHeld("/r/first" + std::to_string(i));
    for (int i = 0; i < 2; ++i) disk.release("/r/first" + std::to_string(i));
    for (int i = 0; i < 5; ++i) disk.waitUntilHeld("/r/held" + std::to_string(i));
    disk.release();
    walking.join();
    EXPECT_EQ(disk.most(), 5);
    EXPECT_EQ(collectors.counters.counts().files, watched * 40 + 7);
}

TEST_F(WaitingWorkers, areJoinedByNoneBeyondTheLimit) {
    folders("other", static_cast<int>(watched) * 100);
    disk.sleepsPerFolder(10);
    walk({1, 3});
    EXPECT_LE(disk.most(), 3);
    EXPECT_EQ(collectors.counters.counts().files, watched * 100);
}

TEST_F(WaitingWorkers, areJoinedByNoneWhileTheyWaitForNothing) {
    folders("other", static_cast<int>(watched) * 40);
    walk({2, 5});
    EXPECT_LE(disk.made(), 2);
}

TEST_F(WaitingWorkers, areJoinedByNoneForWhatTheySleptBeforeTheyCame) {
    folders("other", static_cast<int>(watched) * 4);
    disk.sleptBefore = 1000;
    walk({1, 5});
    EXPECT_EQ(disk.made(), 1);
}

// Below the shared depth, where whoever came would find nothing to do.
TEST_F(WaitingWorkers, areJoinedByNoneIfNothingIsLeftToTake) {
    disk.chain("/r", "d", static_cast<int>(watched) * 10);
    disk.sleepsPerFolder(1);
    walk({1, 5});
    EXPECT_EQ(disk.made(), 1);
}

TEST_F(WaitingWorkers, areJoinedByNoneIfTheNumberIsExact) {
    folders("other", static_cast<int>(watched) * 40);
    disk.sleepsPerFolder(10);
    walk({2, 2});
    EXPECT_LE(disk.made(), 2);
}

TEST_F(WaitingWorkers, areJoinedByNoneBeyondTheReaders) {
    class TwoReaders : public CountingDisk {
    public:
        std::int64_t maximumReaders() override { return 2; }
    } two;
    for (int i = 0; i < watched * 40; ++i) two.file("/r/" + std::to_string(i) + "/f", 1);
    two.sleepsPerFolder(10);
    walk({2, 8}, two);
    EXPECT_LE(two.made(), 2);
    ASSERT_TRUE(drainThreads(60));
}

// What one worker has read when it looks is `watched` directories, so the sleeps of the last of them decide.
TEST_F(WaitingWorkers, waitIfTheySleepOnceInFourDirectories) {
    for (const bool isEnough : {false, true}) {
        CountingDisk own;
        for (int i = 0; i < watched + 5; ++i) own.file("/r/" + std::to_string(i) + "/f", 1);
        std::atomic<std::int64_t> read = 0;
        own.afterEach = [&] {
            const std::int64_t count = ++read;
            own.sleepsPerFolder(count < enough + (isEnough ? 0 : -1) ? 1 : 0);
            if (isEnough && count == watched + 1) own.waitUntil(2, 2);
        };
        own.sleepsPerFolder(1);
        walk({1, 2}, own);
        ASSERT_TRUE(drainThreads(60));
        EXPECT_EQ(own.made(), isEnough ? 2 : 1);
    }
}

TEST_F(WaitingWorkers, shareLargeFoldersWithThoseWhoMayCome) {
    disk.shareFrom(1, 1);
    folders("other", 1);
    walk({1, 2});
    EXPECT_NE(disk.entryReader("/r/other0/f"), "");
}

TEST_F(WaitingWorkers, areLeftByThoseWhoCameWhenTheyWaitNoLonger) {
    folders("other", static_cast<int>(watched) * 20);
    disk.sleepsPerFolder(1);
    std::int64_t read = 0;
    disk.afterEach = [&] {
        if (currentThreadName() == "zelk.scan.worker.1") disk.sleepsPerFolder(0);
        // The worker that was there first stands still until the other has come, read enough and gone.
        if (currentThreadName() == "zelk.scan.worker.0" && ++read == watched + 1) disk.waitUntil(2, 1);
    };
    walk({1, 2});
    EXPECT_GT(read, watched);
    EXPECT_EQ(collectors.counters.counts().files, watched * 20);
}

#ifdef __linux__

// One reads the root while the other finds nothing to do, and then stands still while the other reads the rest. That
// one sleeps once less for the disk than it would have to.
TEST_F(WaitingWorkers, areNotThoseWhoHaveNothingToDo) {
    folders("other", static_cast<int>(watched) * 4);
    std::atomic<bool> isRead = false;  // the root
    std::string reader;                // of the root
    std::atomic<bool> isOver = false;
    std::int64_t read = 0;
    disk.afterEach = [&] {
        if (!isRead) {
            reader = currentThreadName();
            disk.sleepsPerFolder(1);
            isRead = true;
        } else if (currentThreadName() == reader) {
            isOver.wait(false);
        } else if (++read == enough) {
            disk.sleepsPerFolder(0);
        } else if (read == 2 * watched) {
            isOver = true;
            isOver.notify_all();
        }
    };
    disk.hold("/r");
    std::thread walking([&] { walk({2, 3}); });
    disk.waitUntilHeld("/r");
    waitForSleepingWorkers(2);
    disk.release();
    walking.join();
    EXPECT_EQ(disk.made(), 2);
}

TEST_F(WaitingWorkers, areJoinedAgainWhenTheyWaitAgain) {
    folders("other", static_cast<int>(watched) * 20);
    disk.sleepsPerFolder(1);
    std::atomic<unsigned> started = 0;
    std::int64_t read = 0;
    std::vector<unsigned> startedAt;
    std::atomic<bool> isSeen = false;  // that a third was started
    disk.afterEach = [&] {
        if (currentThreadName() == "zelk.scan.worker.1") disk.sleepsPerFolder(0);
        // Otherwise the third might read all that is left before the first comes to look.
        if (currentThreadName() == "zelk.scan.worker.2") isSeen.wait(false);
        if (currentThreadName() != "zelk.scan.worker.0" || ++read % watched != 1 || read == 1) return;
        startedAt.push_back(started);
        if (startedAt.size() == 1) disk.waitUntil(2, 1);
        if (startedAt.size() == 2) disk.sleepsPerFolder(1);
        if (startedAt.size() == 3) {
            isSeen = true;
            isSeen.notify_all();
        }
    };
    fakes::behindGate(
        SYS_clone3, [&](unsigned call) { return started = call + 1, 0; },
        [&] {
            walk({1, 2});
            EXPECT_TRUE(drainThreads(60));
        });
    ASSERT_GE(startedAt.size(), 3U);
    EXPECT_EQ(startedAt[0], 2U);
    EXPECT_EQ(startedAt[1], 2U) << "what it waited before counts no more";
    EXPECT_EQ(startedAt[2], 3U);
}

TEST_F(WaitingWorkers, areJoinedOnceAnotherCanStart) {
    folders("other", static_cast<int>(watched) * 10);
    disk.sleepsPerFolder(1);
    unsigned asked = 0;
    fakes::behindGate(
        SYS_clone3, [&](unsigned call) { return asked = call + 1, call == 1 ? EAGAIN : 0; },
        [&] {
            walk({1, 2});
            EXPECT_TRUE(drainThreads(60));
        });
    EXPECT_EQ(asked, 3U);
    EXPECT_EQ(collectors.counters.counts().files, watched * 10);
}

TEST_F(WaitingWorkers, goOnAloneIfNoOtherCanStart) {
    folders("other", static_cast<int>(watched) * 10);
    disk.sleepsPerFolder(1);
    fakes::behindGate(
        SYS_clone3, [](unsigned call) { return call == 0 ? 0 : EAGAIN; },
        [&] {
            walk({1, 4});
            EXPECT_TRUE(drainThreads(60));
        });
    EXPECT_EQ(disk.made(), 1);
    EXPECT_EQ(collectors.counters.counts().files, watched * 10);
}

#endif

}  // namespace
}  // namespace zelk
