// SPDX-License-Identifier: MIT
// Large directories, whose entries several threads query: the list is the one that a single thread makes.
#include <gmock/gmock.h>
#include <sys/syscall.h>

#include <algorithm>
#include <atomic>
#include <cerrno>
#include <chrono>
#include <filesystem>
#include <memory>
#include <string>
#include <thread>
#include <tuple>
#include <vector>

#include "fakes/HeapInUse.h"
#include "fakes/InChild.h"
#include "fakes/Mounts.h"
#include "fakes/OpenDescriptors.h"
#include "fakes/SystemCallGate.h"
#include "fakes/TestFiles.h"
#include "platform/linux/files/LinuxDirectoryReader.h"
#include "zoo/TempFolder.h"
#include "zoo/Zoo.h"

namespace zelk {
namespace {

namespace fs = std::filesystem;

/// Runs the parts on `threads` threads in all, until `stopAfter` of them were begun.
class ThreadedHelpers : public Helpers {
public:
    explicit ThreadedHelpers(int threads) : threads_(threads) {}

    bool run(SharedWork& work) override {
        ++times;
        parts = work.parts();
        std::atomic<std::size_t> next = 0;
        const auto join = [&] {
            for (std::size_t part; (part = next++) < std::min(parts, stopAfter);) work.run(part);
        };
        std::vector<std::thread> others;
        for (int i = 1; i < threads_; ++i) others.emplace_back(join);
        join();
        for (std::thread& other : others) other.join();
        return parts <= stopAfter;
    }

    int times = 0;
    std::size_t parts = 0;
    std::size_t stopAfter = 1'000'000;

private:
    int threads_;
};

/// Runs the parts from the last to the first.
class BackwardHelpers : public Helpers {
public:
    bool run(SharedWork& work) override {
        for (std::size_t part = work.parts(); part > 0; --part) work.run(part - 1);
        return true;
    }
};

using Fields =
    std::tuple<std::string, std::uint32_t, std::uint64_t, std::uint32_t, std::uint64_t, std::int32_t, double>;

class LinuxSharedListing : public testing::Test {
protected:
    void wide(std::size_t files, std::size_t folders) {
        zoo::makeWide(memory / "wide", files, folders);
        root = service.openRoot(memory / "wide");
    }

    /// Everything about every entry; a single one without a name if the directory is unreadable.
    std::vector<Fields> read() {
        const DirectoryReader::Entries* const entries = reader->open(*root, "");
        if (entries == nullptr) return unreadable;
        std::vector<Fields> all;
        for (const DirEntry& one : *entries) {
            all.emplace_back(one.name, one.objType, one.fileID, one.linkCount, one.allocSize, one.deviceID,
                             one.modTime);
        }
        return all;
    }

    std::vector<Fields> readBehind(int number, const fakes::SystemCallRule& rule) {
        std::vector<Fields> all;
        fakes::behindGate(number, rule, [&] { all = read(); });
        return all;
    }

    const std::vector<Fields> unreadable{Fields{}};
    const zoo::TempFolder memory{zoo::TempFolder::Medium::memory};
    LinuxDirectoryService service;
    std::shared_ptr<const DirectoryRoot> root;
    std::unique_ptr<DirectoryReader> reader = service.makeReader();
    ThreadedHelpers helpers{4};
};

TEST_F(LinuxSharedListing, isTheListOfOneThread) {
    wide(9'000, 700);
    const std::vector<Fields> alone = read();
    ASSERT_EQ(alone.size(), 9'700U);
    reader->setHelpers(&helpers);
    EXPECT_EQ(read(), alone);
    EXPECT_EQ(helpers.times, 1);
    EXPECT_GE(helpers.parts, 40U);
    BackwardHelpers backward;
    reader->setHelpers(&backward);
    EXPECT_EQ(read(), alone);
    reader->setHelpers(nullptr);
    EXPECT_EQ(read(), alone);
    EXPECT_EQ(helpers.times, 1);
}

TEST_F(LinuxSharedListing, isMadeOfLargeDirectoriesOnly) {
    wide(1023, 0);
    reader->setHelpers(&helpers);
    EXPECT_EQ(read().size(), 1023U);
    EXPECT_EQ(helpers.times, 0);
    zoo::makeFile(memory / "wide/one more");
    EXPECT_EQ(read().size(), 1024U);
    EXPECT_EQ(helpers.times, 1);
}

TEST_F(LinuxSharedListing, endsWithAPartOfAnySize) {
    wide(1100, 0);
    reader->setHelpers(&helpers);
    for (std::size_t count = 1100; count < 1300; ++count) {
        ASSERT_EQ(read().size(), count);
        zoo::makeFile(memory / "wide/more" + std::to_string(count));
    }
}

TEST_F(LinuxSharedListing, servesEveryStepOfAReader) {
    wide(3'000, 10);
    zoo::makeWide(memory / "wide/folder3/below", 2'000, 0);
    reader->setHelpers(&helpers);
    EXPECT_EQ(read().size(), 3'010U);
    ASSERT_EQ(reader->descend("folder3")->size(), 1U);
    const DirectoryReader::Entries* const below = reader->descend("below");
    ASSERT_NE(below, nullptr);
    EXPECT_EQ(below->size(), 2'000U);
    EXPECT_EQ(helpers.times, 2);
}

TEST_F(LinuxSharedListing, omitsWhatWasRemovedMeanwhile) {
    wide(4'000, 500);
    std::vector<Fields> left = read();
    int index = 0;
    std::vector<std::string> removed;
    std::erase_if(left, [&](const Fields& one) {
        // A single one, a whole part, and the last.
        const bool goes = index == 5 || (index >= 256 && index < 384) || index % 1000 == 999 || index == 4'499;
        ++index;
        if (goes) removed.push_back(std::get<0>(one));
        return goes;
    });
    ASSERT_EQ(left.size(), 4'500U - 134U);
    reader->setHelpers(&helpers);
    const std::vector<Fields> found = readBehind(SYS_statx, [&](unsigned) {
        for (const std::string& name : removed) fs::remove(memory / "wide/" + name);
        removed.clear();
        return 0;
    });
    EXPECT_EQ(found, left);
}

TEST_F(LinuxSharedListing, isEmptyIfAllWasRemovedMeanwhile) {
    wide(2'000, 0);
    reader->setHelpers(&helpers);
    bool isFirst = true;
    const std::vector<Fields> found = readBehind(SYS_statx, [&](unsigned) {
        if (std::exchange(isFirst, false)) {
            for (const std::string& name : fakes::namesIn(memory / "wide")) fs::remove(memory / "wide/" + name);
        }
        return 0;
    });
    EXPECT_EQ(found, std::vector<Fields>{});
}

TEST_F(LinuxSharedListing, isUnreadableIfTheStatusOfAnyFileFails) {
    wide(1'500, 0);
    reader->setHelpers(&helpers);
    for (const unsigned failing : {0U, 127U, 128U, 700U, 1'499U}) {
        const auto found = readBehind(SYS_statx, [&](unsigned call) { return call == failing ? EIO : 0; });
        EXPECT_EQ(found, unreadable) << failing;
    }
    EXPECT_EQ(read().size(), 1'500U) << "the next reading is unaffected";
}

TEST_F(LinuxSharedListing, isGivenUpAtTheFirstFailure) {
    wide(20'000, 0);
    reader->setHelpers(&helpers);
    unsigned calls = 0;
    readBehind(SYS_statx, [&](unsigned call) { return calls = call, EIO; });
    EXPECT_LT(calls, 20U) << "no further part is begun";
}

// As in a listing by one thread: see DirectoryReaderFaults.
TEST_F(LinuxSharedListing, omitsDeadMountPointsAndKeepsDamagedSubfolders) {
    wide(0, 1'500);
    const std::vector<Fields> whole = read();
    reader->setHelpers(&helpers);
    for (const unsigned failing : {0U, 640U, 1'499U}) {
        const auto dead = readBehind(SYS_statx, [&](unsigned call) { return call == failing ? ENOTCONN : 0; });
        EXPECT_EQ(dead.size(), 1'499U) << failing;
        EXPECT_TRUE(std::includes(whole.begin(), whole.end(), dead.begin(), dead.end(),
                                  [&](const Fields& a, const Fields& b) {
                                      return std::find(whole.begin(), whole.end(), a) <
                                             std::find(whole.begin(), whole.end(), b);
                                  }))
            << "in another order";
        const auto damaged = readBehind(SYS_statx, [&](unsigned call) { return call == failing ? EUCLEAN : 0; });
        ASSERT_EQ(damaged.size(), 1'500U) << failing;
        int differing = 0;
        for (std::size_t i = 0; i < damaged.size(); ++i) {
            EXPECT_EQ(std::get<0>(damaged[i]), std::get<0>(whole[i]));
            if (damaged[i] == whole[i]) continue;
            ++differing;
            EXPECT_EQ(std::get<1>(damaged[i]), directoryObjectType);
            EXPECT_EQ(std::get<2>(damaged[i]), 0U) << "its number is unknown";
        }
        EXPECT_EQ(differing, 1);
    }
    EXPECT_EQ(readBehind(SYS_statx, [](unsigned call) { return call >= 700 ? ENOTCONN : 0; }), unreadable);
}

TEST_F(LinuxSharedListing, tellsMountPointsByTheirDevice) {
    wide(2'000, 20);
    EXPECT_TRUE(fakes::inChild([&] {
        fakes::Mounts mounts;
        if (!mounts.allowed()) return false;
        mounts.memory(memory / "wide/folder7");
        root = service.openRoot(memory / "wide");  // among the mounts of this process
        reader->setHelpers(&helpers);
        int others = 0;
        const auto own = service.status(memory / "wide");
        for (const Fields& one : read()) {
            if (std::get<5>(one) == own->device) continue;
            ++others;
            if (std::get<0>(one) != "folder7") return false;
        }
        return others == 1 && helpers.times == 1;
    }));
}

TEST_F(LinuxSharedListing, isUnreadableOnceCancelled) {
    wide(2'000, 0);
    reader->setHelpers(&helpers);
    helpers.stopAfter = 3;
    EXPECT_EQ(read(), unreadable);
    helpers.stopAfter = 1'000'000;
    EXPECT_EQ(read().size(), 2'000U);
}

TEST_F(LinuxSharedListing, leavesNoDescriptor) {
    wide(2'000, 0);
    reader->setHelpers(&helpers);
    const std::ptrdiff_t before = fakes::openDescriptors();
    read();
    const std::ptrdiff_t reading = fakes::openDescriptors();
    helpers.stopAfter = 1;
    read();
    EXPECT_EQ(fakes::openDescriptors(), reading);
    reader.reset();
    EXPECT_EQ(fakes::openDescriptors(), before);
}

TEST_F(LinuxSharedListing, takesTheMemoryOfOneList) {
    wide(40'000, 0);
    const auto heap = [] { return static_cast<std::ptrdiff_t>(fakes::heapInUse()); };
    const std::ptrdiff_t before = heap();
    const DirectoryReader::Entries* entries = reader->open(*root, "");
    EXPECT_EQ(entries->capacity(), 40'000U);
    const std::ptrdiff_t alone = heap() - before;
    reader = service.makeReader();
    reader->setHelpers(&helpers);
    const std::ptrdiff_t between = heap();
    entries = reader->open(*root, "");
    EXPECT_EQ(entries->capacity(), 40'000U);
    EXPECT_LT(heap() - between, alone + 32 * 1024);
    zoo::makeFile(memory / "small/file");
    root = service.openRoot(memory / "small");
    EXPECT_EQ(read().size(), 1U);
    EXPECT_LT(heap() - between, 256 * 1024) << "kept for small folders";
}

TEST(LinuxDirectoryReaderSleep, isCountedForTheThreadThatAsks) {
    LinuxDirectoryService service;
    const auto reader = service.makeReader();
    const auto sleepForty = [] {
        for (int i = 0; i < 40; ++i) std::this_thread::sleep_for(std::chrono::milliseconds(1));
    };
    const std::int64_t before = reader->timesSlept();
    sleepForty();
    const std::int64_t after = reader->timesSlept();
    EXPECT_GE(after - before, 20)
        << "a sleep that another process interrupts at its beginning may be over before it begins";
    std::thread(sleepForty).join();
    EXPECT_LT(reader->timesSlept() - after, 20);
}

}  // namespace
}  // namespace zelk
