// SPDX-License-Identifier: MIT
#include "platform/linux/trash/SharedFlush.h"

#include <gtest/gtest.h>
#include <sys/syscall.h>

#include <atomic>
#include <cerrno>
#include <latch>
#include <thread>
#include <vector>

#include "fakes/Mounts.h"
#include "fakes/OpenDescriptors.h"
#include "fakes/SystemCallGate.h"
#include "platform/posix/Descriptor.h"
#include "platform/posix/OpenDirectory.h"
#include "zoo/TempFolder.h"
#include "zoo/Zoo.h"

namespace zelk {
namespace {

class FlushingTogether : public testing::Test {
protected:
    const zoo::TempFolder temp{zoo::TempFolder::Medium::memory};
    const Descriptor folder{openRootDirectory(temp.path())};
};

TEST_F(FlushingTogether, flushesEachTimeForOneAlone) {
    SharedFlush shared;
    unsigned flushes = 0;
    fakes::behindGate(
        SYS_fsync, [&](unsigned) { return ++flushes, 0; },
        [&] {
            for (int time = 0; time < 3; ++time) shared.flush(folder.get());
        });
    EXPECT_EQ(flushes, 3u);
}

TEST_F(FlushingTogether, neverServesByAFlushThatBeganBefore) {
    std::atomic<int> begun{0};
    std::atomic<int> ended{0};
    SharedFlush shared([&](int) {
        ++begun;
        std::this_thread::yield();
        ++ended;
    });
    std::atomic<int> early{0};
    std::vector<std::thread> threads;
    for (int number = 0; number < 8; ++number) {
        threads.emplace_back([&] {
            for (int time = 0; time < 500; ++time) {
                const int before = begun;
                shared.flush(folder.get());
                early += ended <= before;
            }
        });
    }
    for (std::thread& thread : threads) thread.join();
    EXPECT_EQ(early, 0);
    EXPECT_LE(begun, 8 * 500);
}

TEST_F(FlushingTogether, oneFlushServesAllWhoAskedWhileAnotherRan) {
    constexpr int others = 20;
    int flushes = 0;
    // One of them may come late.
    for (int run = 0; run < 1000 && flushes != 2; ++run) {
        flushes = 0;
        std::latch begun(1);
        std::atomic<int> asking{0};
        SharedFlush shared([&](int) {
            if (++flushes > 1) return;
            begun.count_down();
            while (asking < others) std::this_thread::yield();
            for (int times = 0; times < 1000; ++times) std::this_thread::yield();
        });
        std::vector<std::thread> threads;
        threads.emplace_back([&] { shared.flush(folder.get()); });
        begun.wait();
        for (int number = 0; number < others; ++number) {
            threads.emplace_back([&] {
                ++asking;
                shared.flush(folder.get());
            });
        }
        for (std::thread& thread : threads) thread.join();
        ASSERT_GE(flushes, 2);
    }
    EXPECT_EQ(flushes, 2);
}

TEST_F(FlushingTogether, anotherFolderDoesNotWait) {
    zoo::makeFolder(temp / "other");
    const Descriptor other(openRootDirectory(temp / "other"));
    std::vector<int> flushed;
    SharedFlush* itself = nullptr;
    SharedFlush shared([&](int which) {
        // The first folder's flush is still under way.
        if (which == folder.get()) std::thread([&] { itself->flush(other.get()); }).join();
        flushed.push_back(which);
    });
    itself = &shared;
    shared.flush(folder.get());
    EXPECT_EQ(flushed, (std::vector<int>{other.get(), folder.get()}));
}

// Two volumes number their files alike.
TEST_F(FlushingTogether, folderOfAnotherVolumeHasItsOwnFlush) {
    fakes::Mounts mounts;
    if (!mounts.allowed()) GTEST_SKIP() << "mounting is not allowed here";
    for (const char* name : {"one", "two"}) mounts.memory(temp / name);
    const Descriptor one(openRootDirectory(temp / "one"));
    const Descriptor two(openRootDirectory(temp / "two"));
    ASSERT_EQ(fakes::identityOf(one.get()).second, fakes::identityOf(two.get()).second);
    std::vector<int> flushed;
    SharedFlush* itself = nullptr;
    SharedFlush shared([&](int which) {
        if (which == one.get()) std::thread([&] { itself->flush(two.get()); }).join();
        flushed.push_back(which);
    });
    itself = &shared;
    shared.flush(one.get());
    EXPECT_EQ(flushed, (std::vector<int>{two.get(), one.get()}));
}

TEST_F(FlushingTogether, returnsWhereFoldersCannotBeFlushed) {
    SharedFlush shared;
    for (const int error : {EINVAL, EIO, EROFS})
        fakes::behindGate(
            SYS_fsync, [error](unsigned) { return error; }, [&] { shared.flush(folder.get()); });
    shared.flush(-1);
}

}  // namespace
}  // namespace zelk
