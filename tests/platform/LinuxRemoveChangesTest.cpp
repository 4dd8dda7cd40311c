// SPDX-License-Identifier: MIT
// Removal of a tree that others change at the worst moment, and on volumes that answer in other ways.
#include <gmock/gmock.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>
#include <string>
#include <vector>

#include "fakes/InChild.h"
#include "fakes/OpenDescriptors.h"
#include "fakes/SystemCallGate.h"
#include "fakes/TestFiles.h"
#include "platform/linux/files/LinuxFileManager.h"
#include "platform/posix/OpenDirectory.h"
#include "platform/posix/RemoveEntry.h"
#include "zoo/TempFolder.h"
#include "zoo/Zoo.h"

namespace zelk {
namespace {

namespace fs = std::filesystem;

using fakes::behindGate;
using fakes::namesIn;
using fakes::SystemCallRule;
using testing::Optional;

class ChangingTree : public testing::Test {
protected:
    /// Removes the victim, whose system calls `number` are subject to `rule`.
    Failure removedBehind(long number, const SystemCallRule& rule) const {
        Failure failure = "not run";
        behindGate(static_cast<int>(number), rule, [&] { failure = removedNow(); });
        return failure;
    }
    Failure removedNow() const { return LinuxFileManager().remove(ItemPath::from(victim).value()); }

    const zoo::TempFolder temp{zoo::TempFolder::Medium::memory};
    const std::string victim = temp / "victim";
    const std::string folder = victim + "/folder";
    const std::string file = folder + "/file";
};

// Unlinking a folder is refused with EISDIR on Linux and with EPERM elsewhere.
TEST_F(ChangingTree, removesAFolderThatCameForAFile) {
    for (const int answer : {0, EPERM}) {
        zoo::makeFile(file);
        const auto rule = [&](unsigned call) {
            if (call > 0) return 0;
            fs::remove(file);
            zoo::makeFile(file + "/below/file");
            return answer;
        };
        EXPECT_EQ(removedBehind(SYS_unlinkat, rule), std::nullopt) << answer;
        EXPECT_FALSE(fs::exists(victim));
    }
}

TEST_F(ChangingTree, namesAFileThatMayNotBeUnlinked) {
    zoo::makeFile(file);
    const auto rule = [](unsigned) { return EPERM; };
    EXPECT_THAT(removedBehind(SYS_unlinkat, rule),
                Optional(std::string("“file” in “victim” couldn’t be removed: Operation not permitted")));
    fs::remove_all(victim);
    zoo::makeFile(victim);
    EXPECT_THAT(removedBehind(SYS_unlinkat, rule),
                Optional(std::string("“victim” couldn’t be removed: Operation not permitted")));
}

TEST_F(ChangingTree, removesAFileThatCameForAFolder) {
    for (const int answer : {0, ENOSYS}) {  // with openat2 and without
        zoo::makeFile(file);
        const auto rule = [&](unsigned call) {
            if (call != 1) return answer;
            fs::remove_all(folder);
            zoo::makeFile(folder);
            return answer;
        };
        EXPECT_EQ(removedBehind(SYS_openat2, rule), std::nullopt) << answer;
        EXPECT_FALSE(fs::exists(victim));
    }
}

TEST_F(ChangingTree, entersAFolderThatWasALinkForAMoment) {
    for (const int answer : {ELOOP, ENOTDIR}) {
        zoo::makeFile(file);
        const auto rule = [answer](unsigned call) { return call == 1 ? answer : 0; };
        EXPECT_EQ(removedBehind(SYS_openat2, rule), std::nullopt) << answer;
        EXPECT_FALSE(fs::exists(victim));
    }
}

TEST_F(ChangingTree, givesUpOnAFolderThatKeepsBeingALink) {
    zoo::makeFile(file);
    EXPECT_THAT(removedBehind(SYS_openat2, [](unsigned call) { return call == 0 ? 0 : ELOOP; }),
                Optional(std::string("“folder” in “victim” couldn’t be removed: Too many levels of symbolic links")));
    EXPECT_TRUE(fs::exists(file));
}

TEST_F(ChangingTree, entersAFolderAgainThatIsCalledNotEmpty) {
    for (const int answer : {ENOTEMPTY, EEXIST}) {
        zoo::makeFile(file);
        EXPECT_EQ(removedBehind(SYS_unlinkat, [answer](unsigned call) { return call == 1 ? answer : 0; }), std::nullopt)
            << answer;
        EXPECT_FALSE(fs::exists(victim));
    }
}

TEST_F(ChangingTree, acceptsAHundredChanges) {
    for (const unsigned changes : {100U, 101U}) {
        fs::remove_all(victim);
        zoo::makeFile(file);
        // Its file and the folder are removed in turn.
        const auto rule = [&](unsigned call) {
            if (call % 2 == 1 && call < 2 * changes) zoo::makeFile(file);
            return 0;
        };
        EXPECT_EQ(removedBehind(SYS_unlinkat, rule).has_value(), changes > 100);
        EXPECT_EQ(fs::exists(file), changes > 100);
    }
}

// The permissions of somebody else's folder cannot be changed, but an empty one can be removed.
TEST_F(ChangingTree, removesAnEmptyFolderThatCannotBeOpened) {
    if (::geteuid() != 0) GTEST_SKIP() << "only the superuser can be two users";
    zoo::makeFolder(folder);
    ASSERT_EQ(::chmod(temp.path().c_str(), 0777), 0);
    fakes::giveToOrdinaryUser(victim);
    for (const mode_t mode : {0700, 0500}) {
        zoo::makeFolder(folder);
        ASSERT_EQ(::chown(folder.c_str(), 0, 0), 0);
        ASSERT_EQ(::chmod(folder.c_str(), 0), 0);
        ASSERT_EQ(::chmod(victim.c_str(), mode), 0);
        EXPECT_TRUE(fakes::asOrdinaryUser([&] {
            const Descriptor above(openForLookups(victim));
            return removeEntry(above.get(), "folder").has_value() == (mode == 0500);
        })) << mode;
        EXPECT_EQ(fs::exists(folder), mode == 0500) << "what holds the item is not changed";
        EXPECT_EQ(fs::status(victim).permissions(), fs::perms(mode));
    }
    EXPECT_TRUE(fakes::asOrdinaryUser([&] { return !removedNow(); }));
    EXPECT_FALSE(fs::exists(victim));
}

TEST_F(ChangingTree, removesAnEmptyFolderThatAFilterKeepsClosed) {
    zoo::makeFolder(folder);
    EXPECT_TRUE(fakes::inChild([&] {
        Failure failure = "not run";
        const Descriptor above(openForLookups(temp.path()));
        // Opened are, by this call, the item and then the folder in it.
        behindGate(
            SYS_openat, [](unsigned call) { return call == 1 ? EPERM : 0; },
            [&] {
                if (fakes::filterCalls(SYS_openat2, SECCOMP_RET_ERRNO | ENOSYS) == 0)
                    failure = removeEntry(above.get(), "victim", MountsInside::none);
            });
        return !failure;
    }));
    EXPECT_FALSE(fs::exists(victim));
}

// Of a deep way only the lowest folders stay open, and the way back leads to where the moved one is now.
TEST_F(ChangingTree, stopsWhereTheWayBackLeadsElsewhere) {
    const std::string elsewhere = temp / "elsewhere";
    zoo::makeFile(elsewhere + "/kept");
    zoo::makeFolder(elsewhere + "/folder");
    std::string bottom = victim;
    for (int level = 0; level < 40; ++level) bottom += "/folder";
    zoo::makeFile(bottom + "/file");
    const std::ptrdiff_t before = fakes::openDescriptors();
    const auto rule = [&](unsigned call) {
        if (call == 0) fs::rename(victim + "/folder/folder/folder", elsewhere + "/moved");
        return 0;
    };
    EXPECT_THAT(removedBehind(SYS_unlinkat, rule),
                Optional(std::string("“folder” in “victim” couldn’t be removed: Stale file handle")));
    EXPECT_EQ(namesIn(elsewhere), (std::set<std::string>{"folder", "kept", "moved"}));
    EXPECT_TRUE(fs::is_directory(victim + "/folder/folder"));
    EXPECT_EQ(fakes::openDescriptors(), before);
}

TEST_F(ChangingTree, removesManyEntriesOfAFolderAndLeavesWhatCannotGo) {
    constexpr std::size_t many = 200;
    for (std::size_t number = 0; number < many; ++number)
        zoo::makeFile(victim + "/" + std::to_string(number) + (number % 2 == 0 ? "" : "/below/file"));
    std::size_t removed = 0;
    unsigned refused = 0;
    behindGate(
        SYS_unlinkat, [&](unsigned call) { return call % 50 == 7 ? (++refused, EIO) : 0; },
        [&] { removed = removeEntriesOf(Descriptor(openRootDirectory(victim))); });
    EXPECT_GE(refused, 4u);
    EXPECT_EQ(removed, many - refused);
    EXPECT_EQ(namesIn(victim).size(), refused);
}

}  // namespace
}  // namespace zelk
