// SPDX-License-Identifier: MIT
// Removal with other volumes mounted below, and while another thread swaps folders for links.
#include <fcntl.h>
#include <gmock/gmock.h>
#include <stdio.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <atomic>
#include <cerrno>
#include <filesystem>
#include <thread>

#include "fakes/Mounts.h"
#include "fakes/SystemCallGate.h"
#include "fakes/TestFiles.h"
#include "platform/linux/files/LinuxFileManager.h"
#include "zoo/TempFolder.h"
#include "zoo/Zoo.h"

namespace zelk {
namespace {

namespace fs = std::filesystem;

using fakes::behindGate;
using fakes::namesIn;
using testing::Optional;

Failure removedEntry(const std::string& path) {
    return LinuxFileManager().remove(ItemPath::from(path).value());
}

class RemoverAndMounts : public testing::Test {
protected:
    void SetUp() override {
        if (!mounts.allowed()) GTEST_SKIP() << "mounting is not allowed here";
        zoo::makeFile(victim + "/a/file");
        zoo::makeFile(victim + "/z/file");
        zoo::makeFile(elsewhere + "/kept");
        zoo::makeFolder(victim + "/m/mounted");
    }

    const zoo::TempFolder temp{zoo::TempFolder::Medium::memory};
    const std::string victim = temp / "victim";
    const std::string elsewhere = temp / "elsewhere";
    const std::string refused = "“victim” couldn’t be removed: another volume is mounted in it";
    fakes::Mounts mounts;
};

TEST_F(RemoverAndMounts, refusesFolderWithBindMount) {
    mounts.again(elsewhere, victim + "/m/mounted");
    EXPECT_THAT(removedEntry(victim), Optional(refused));
    EXPECT_TRUE(fs::exists(victim + "/a/file") && fs::exists(victim + "/z/file"));
    EXPECT_TRUE(fs::exists(elsewhere + "/kept"));
}

TEST_F(RemoverAndMounts, refusesFolderWithAnotherVolume) {
    mounts.memory(victim + "/m/mounted");
    zoo::makeFile(victim + "/m/mounted/kept");
    EXPECT_THAT(removedEntry(victim), Optional(refused));
    EXPECT_TRUE(fs::exists(victim + "/a/file") && fs::exists(victim + "/m/mounted/kept"));
}

TEST_F(RemoverAndMounts, refusesFolderWithMountReachedThroughALink) {
    mounts.again(elsewhere, victim + "/m/mounted");
    fs::create_directory_symlink(temp.path(), temp / "link");
    EXPECT_THAT(removedEntry(temp / "link/victim"), Optional(refused));
    EXPECT_TRUE(fs::exists(victim + "/a/file"));
}

TEST_F(RemoverAndMounts, refusesMountPoint) {
    mounts.again(elsewhere, victim + "/m/mounted");
    EXPECT_THAT(removedEntry(victim + "/m/mounted"),
                Optional(std::string("“mounted” couldn’t be removed: another volume is mounted there")));
    EXPECT_TRUE(fs::exists(elsewhere + "/kept"));
}

TEST_F(RemoverAndMounts, refusesMountedFile) {
    mounts.again(elsewhere + "/kept", victim + "/a/file");
    EXPECT_THAT(removedEntry(victim + "/a/file"),
                Optional(std::string("“file” couldn’t be removed: another volume is mounted there")));
    EXPECT_THAT(removedEntry(victim), Optional(refused));
    EXPECT_TRUE(fs::exists(elsewhere + "/kept"));
}

TEST_F(RemoverAndMounts, removesEntriesWithinAMount) {
    mounts.again(elsewhere, victim + "/m/mounted");
    EXPECT_EQ(removedEntry(victim + "/m/mounted/kept"), std::nullopt);
    EXPECT_TRUE(namesIn(elsewhere).empty());
}

// Two paths lead to the same folder. A mount under one of them makes the folder undeletable under both, although no
// mount is visible under the other.
TEST_F(RemoverAndMounts, refusesFolderWithMountUnderAnotherPath) {
    zoo::makeFolder(temp / "alias");
    mounts.again(temp.path(), temp / "alias");
    mounts.memory(victim + "/m/mounted");
    EXPECT_THAT(removedEntry(temp / "alias/victim"), Optional(refused));
    EXPECT_THAT(removedEntry(temp / "alias/victim/m/mounted"),
                Optional(std::string("“mounted” couldn’t be removed: another volume is mounted in it")));
    for (const char* kept : {"/a/file", "/z/file", "/m/mounted"}) EXPECT_TRUE(fs::exists(victim + kept)) << kept;
    EXPECT_EQ(removedEntry(temp / "alias/victim/a"), std::nullopt);
}

TEST_F(RemoverAndMounts, refusesFolderWithMountUnderAnAliasOfAPart) {
    zoo::makeFolder(temp / "alias");
    mounts.again(victim, temp / "alias");
    mounts.memory(temp / "alias/m/mounted");
    EXPECT_THAT(removedEntry(victim), Optional(refused));
    EXPECT_TRUE(fs::exists(victim + "/a/file") && fs::exists(victim + "/z/file"));
}

TEST_F(RemoverAndMounts, refusesFileMountedUnderAnotherPath) {
    zoo::makeFolder(temp / "alias");
    mounts.again(temp.path(), temp / "alias");
    mounts.again(elsewhere + "/kept", victim + "/z/file");
    EXPECT_THAT(removedEntry(temp / "alias/victim"), Optional(refused));
    EXPECT_TRUE(fs::exists(victim + "/a/file"));
}

// Neither the mount table nor, in the second case, openat2 is needed to stop at a mount.
class RemoverWithoutMountTable : public RemoverAndMounts, public testing::WithParamInterface<bool> {};

TEST_P(RemoverWithoutMountTable, stopsAtAMount) {
    mounts.again(elsewhere, victim + "/m/mounted");
    if (GetParam()) {
        Failure failure;
        behindGate(
            SYS_openat2, [](unsigned) { return ENOSYS; },
            [&] {
                // This thread cannot read links in /proc, so it has no path to look up in the mount table.
                ASSERT_EQ(fakes::filterCalls(SYS_readlink, SECCOMP_RET_ERRNO | ENOENT), 0);
                failure = removedEntry(victim);
            });
        EXPECT_THAT(
            failure,
            Optional(std::string("“mounted” in “victim” couldn’t be removed: another volume is mounted there")));
    } else {
        Failure failure;
        behindGate(
            SYS_readlink, [](unsigned) { return ENOENT; }, [&] { failure = removedEntry(victim); });
        EXPECT_THAT(
            failure,
            Optional(std::string("“mounted” in “victim” couldn’t be removed: another volume is mounted there")));
    }
    EXPECT_TRUE(fs::exists(elsewhere + "/kept"));
}

INSTANTIATE_TEST_SUITE_P(OpenAt2, RemoverWithoutMountTable, testing::Bool());

TEST(RemoverAndSwaps, racingSwapsTouchNothingOutside) {
    const zoo::TempFolder temp(zoo::TempFolder::Medium::memory);
    const std::string outside = temp / "outside";
    const std::string victim = temp / "victim";
    const std::string spare = temp / "spare";
    for (const char* name : {"file", "a/file", "b/c/file", "kept/file"}) zoo::makeFile(outside + "/" + name);
    fs::create_directory_symlink(outside, spare);

    std::atomic<bool> done{false};
    std::atomic<std::size_t> swaps{0};
    std::thread swapper([&] {
        const std::string folder = victim + "/a/b/folder";
        const std::string upper = victim + "/a/b";
        while (!done) {
            // Atomically exchanges the folder and the link, and the same for the parent.
            for (const std::string& place : {folder, upper})
                swaps += ::renameat2(AT_FDCWD, place.c_str(), AT_FDCWD, spare.c_str(), RENAME_EXCHANGE) == 0;
        }
    });
    std::size_t complete = 0;
    for (int run = 0; run < 1000 || swaps == 0; ++run) {
        for (const char* name : {"/a/b/folder/file", "/a/b/c/file", "/a/b/folder/a/file", "/a/b/folder/b/c/file"}) try {
                zoo::makeFile(victim + name);
            } catch (const std::system_error&) {  // swapped while being created; a partial tree is fine
            }
        complete += !removedEntry(victim);
    }
    done = true;
    swapper.join();
    for (const char* name : {"file", "a/file", "b/c/file", "kept/file"})
        EXPECT_TRUE(fs::exists(outside + "/" + name)) << name;
    EXPECT_GT(complete, 0u);
    EXPECT_GT(swaps, 0u);
}

}  // namespace
}  // namespace zelk
