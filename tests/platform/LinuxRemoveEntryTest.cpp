// SPDX-License-Identifier: MIT
#include <fcntl.h>
#include <gmock/gmock.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>
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

using fakes::asOrdinaryUser;
using fakes::behindGate;
using fakes::namesIn;
using testing::ElementsAre;
using testing::Optional;
using zoo::TempFolder;

Failure removed(const std::string& path) {
    return LinuxFileManager().remove(ItemPath::from(path).value());
}

/// Runs the check without openat2, as in containers that lack it. In a child, since the filter is permanent.
template <class Check>
bool withoutTheNewestCall(Check check) {
    return fakes::inChild([&] { return fakes::filterCalls(SYS_openat2, SECCOMP_RET_ERRNO | ENOSYS) == 0 && check(); });
}

class Remover : public testing::Test {
protected:
    /// Everything except `victim`, which must stay untouched.
    void expectOutsideUntouched() const {
        EXPECT_EQ(namesIn(outside), (std::set<std::string>{"file", "folder"}));
        EXPECT_EQ(namesIn(outside + "/folder"), (std::set<std::string>{"below"}));
    }

    /// The hostile zoo, as far as its owner may remove it.
    void makeTree() const {
        const std::string linked = temp / "linked";
        zoo::makeHardLinks(victim + "/hard links", linked);
        zoo::makeLinks(victim + "/links", linked);
        zoo::makeNames(victim + "/names");
        zoo::makeUnequalSizes(victim + "/sizes");
        zoo::makeSpecialFiles(victim + "/special");
        zoo::makeChain(victim + "/chain", 60, 200);
        zoo::makeWide(victim + "/wide", 3000, 300);
        fs::create_directory_symlink(outside, victim + "/away");
        fs::create_symlink(outside + "/file", victim + "/file away");
    }

    void SetUp() override {
        zoo::makeFile(outside + "/file", 10);
        zoo::makeFile(outside + "/folder/below", 10);
    }

    const TempFolder temp{TempFolder::Medium::memory};
    const std::string outside = temp / "outside";
    const std::string victim = temp / "victim";
};

TEST_F(Remover, removesFile) {
    zoo::makeFile(victim, 10);
    EXPECT_EQ(removed(victim), std::nullopt);
    EXPECT_THAT(namesIn(temp.path()), ElementsAre("outside"));
}

TEST_F(Remover, removesEmptyFolder) {
    zoo::makeFolder(victim);
    EXPECT_EQ(removed(victim), std::nullopt);
    EXPECT_THAT(namesIn(temp.path()), ElementsAre("outside"));
}

TEST_F(Remover, removesLinkNotItsTarget) {
    for (const std::string& target : {outside, outside + "/file", std::string("/nowhere"), victim}) {
        fs::create_symlink(target, victim);
        EXPECT_EQ(removed(victim + "/"), std::nullopt);
        EXPECT_THAT(namesIn(temp.path()), ElementsAre("outside"));
        expectOutsideUntouched();
    }
}

TEST_F(Remover, removesHostileTree) {
    makeTree();
    EXPECT_EQ(removed(victim), std::nullopt);
    EXPECT_FALSE(fs::exists(fs::symlink_status(victim)));
    expectOutsideUntouched();
}

TEST_F(Remover, removesHostileTreeWithoutOpenat2) {
    makeTree();
    EXPECT_TRUE(withoutTheNewestCall([&] { return !removed(victim); }));
    EXPECT_FALSE(fs::exists(fs::symlink_status(victim)));
    expectOutsideUntouched();
}

TEST_F(Remover, removesFiftyThousandNestedFoldersWithFewDescriptors) {
    zoo::makeChain(victim, 50000, 1);
    EXPECT_TRUE(fakes::inChild([&] {
        const rlimit few{40, 40};
        return ::setrlimit(RLIMIT_NOFILE, &few) == 0 && !removed(victim);
    }));
    EXPECT_FALSE(fs::exists(victim));
}

TEST_F(Remover, removesTreeDeeperThanPathMax) {
    zoo::makeChain(victim, 100, 200);
    EXPECT_EQ(removed(victim), std::nullopt);
    EXPECT_FALSE(fs::exists(victim));
}

TEST_F(Remover, removesItemWithPathLongerThanPathMax) {
    zoo::makeChain(victim, 60, 100);
    std::string name = *namesIn(victim).begin();
    for (const std::string& entry : namesIn(victim)) {
        if (entry.size() == 100) name = entry;
    }
    std::string deep = victim;
    for (int level = 0; level < 50; ++level) deep += "/" + name;
    ASSERT_GT(deep.size(), 4096u);
    LinuxFileManager files;
    ASSERT_TRUE(files.list(deep));
    EXPECT_EQ(removed(deep), std::nullopt);
    EXPECT_FALSE(files.list(deep));
    EXPECT_TRUE(files.list(deep.substr(0, deep.size() - 101)));
}

TEST_F(Remover, removesNamesThatAreNotUtf8) {
    zoo::makeNames(victim);
    EXPECT_EQ(removed(victim), std::nullopt);
    EXPECT_FALSE(fs::exists(victim));
}

TEST_F(Remover, refusesLinkSwappedIntoTheWay) {
    fs::create_directory_symlink(outside, victim);
    const auto refuses = [&] {
        return LinuxFileManager().remove(ItemPath::below(temp.path(), victim + "/folder/below").value()) &&
               LinuxFileManager().remove(ItemPath::below(temp.path(), victim + "/file").value());
    };
    EXPECT_TRUE(refuses());
    EXPECT_TRUE(withoutTheNewestCall(refuses));
    expectOutsideUntouched();
}

TEST_F(Remover, reportsMissingItem) {
    EXPECT_THAT(removed(victim), Optional(std::string("“victim” couldn’t be removed: No such file or directory")));
    EXPECT_THAT(removed(victim + "/below"),
                Optional(std::string("“below” couldn’t be removed: No such file or directory")));
    EXPECT_THAT(removed(outside + "/file/below"),
                Optional(std::string("“below” couldn’t be removed: Not a directory")));
}

TEST_F(Remover, stopsAtAndNamesForbiddenFolderOfAnotherUser) {
    if (::geteuid() != 0) GTEST_SKIP() << "only the superuser can be two users";
    for (const mode_t mode : {0555, 0700}) {
        fs::remove_all(victim);
        zoo::makeFile(victim + "/locked/file");
        fakes::giveToOrdinaryUser(victim);
        ASSERT_EQ(::chown((victim + "/locked").c_str(), 0, 0), 0);
        ASSERT_EQ(::chmod((victim + "/locked").c_str(), mode), 0);
        const std::string name = mode == 0555 ? "file" : "locked";
        EXPECT_TRUE(asOrdinaryUser([&] {
            return removed(victim) == "“" + name + "” in “victim” couldn’t be removed: Permission denied";
        })) << mode;
        EXPECT_TRUE(fs::exists(victim + "/locked/file"));
        EXPECT_EQ(fs::status(victim + "/locked").permissions(), fs::perms(mode));
    }
}

TEST_F(Remover, removesFoldersWithoutOwnerPermission) {
    for (const mode_t mode : {0000, 0100, 0200, 0300, 0400, 0500, 0600}) {
        for (const char* name : {"/file", "/below/file", "/below/deeper/file"})
            zoo::makeFile(victim + "/locked" + name);
        zoo::makeFolder(victim + "/locked/empty");
        ASSERT_EQ(::chmod(temp.path().c_str(), 0777), 0);
        fakes::giveToOrdinaryUser(victim);
        for (const char* folder : {"/locked/below/deeper", "/locked/below", "/locked/empty", "/locked", ""})
            ASSERT_EQ(::chmod((victim + folder).c_str(), mode), 0);
        EXPECT_TRUE(asOrdinaryUser([&] { return !removed(victim); })) << mode;
        EXPECT_FALSE(fs::exists(victim)) << mode;
        fs::remove_all(victim);
    }
}

TEST_F(Remover, removesReadOnlyFoldersWithoutOpenat2) {
    for (const mode_t mode : {0000, 0500}) {
        zoo::makeFile(victim + "/locked/below/file");
        ASSERT_EQ(::chmod(temp.path().c_str(), 0777), 0);
        fakes::giveToOrdinaryUser(victim);
        for (const char* folder : {"/locked/below", "/locked"}) ASSERT_EQ(::chmod((victim + folder).c_str(), mode), 0);
        EXPECT_TRUE(asOrdinaryUser([&] { return withoutTheNewestCall([&] { return !removed(victim); }); })) << mode;
        EXPECT_FALSE(fs::exists(victim)) << mode;
    }
}

TEST_F(Remover, removesDeepReadOnlyTree) {
    zoo::makeChain(victim, 60, 4);
    ASSERT_EQ(::chmod(temp.path().c_str(), 0777), 0);
    fakes::giveToOrdinaryUser(victim);
    std::vector<std::string> folders{victim};
    for (const auto& entry : fs::recursive_directory_iterator(victim)) {
        if (entry.is_directory()) folders.push_back(entry.path().string());
    }
    for (auto folder = folders.rbegin(); folder != folders.rend(); ++folder)
        ASSERT_EQ(::chmod(folder->c_str(), 0500), 0);
    EXPECT_TRUE(asOrdinaryUser([&] { return !removed(victim); }));
    EXPECT_FALSE(fs::exists(victim));
}

TEST_F(Remover, keepsPermissionsOfTheParentFolder) {
    zoo::makeFile(victim + "/item/file");
    fakes::giveToOrdinaryUser(victim);
    ASSERT_EQ(::chmod(victim.c_str(), 0500), 0);
    EXPECT_TRUE(
        asOrdinaryUser([&] { return removed(victim + "/item") == "“item” couldn’t be removed: Permission denied"; }));
    EXPECT_EQ(fs::status(victim).permissions(), fs::perms(0500));
}

TEST_F(Remover, keepsPermissionsOfLinkTargets) {
    zoo::makeFolder(victim);
    ASSERT_EQ(::chmod(temp.path().c_str(), 0777), 0);
    fakes::giveToOrdinaryUser(temp.path());
    ASSERT_EQ(::chmod(outside.c_str(), 0500), 0);
    fs::create_directory_symlink(outside, victim + "/away");
    EXPECT_TRUE(asOrdinaryUser([&] { return !removed(victim); }));
    EXPECT_EQ(fs::status(outside).permissions(), fs::perms(0500));
    expectOutsideUntouched();
}

TEST_F(Remover, removesUnreadableEmptyFolder) {
    zoo::makeFolder(victim + "/locked");
    ASSERT_EQ(::chmod(temp.path().c_str(), 0777), 0);
    fakes::giveToOrdinaryUser(victim);
    ASSERT_EQ(::chmod((victim + "/locked").c_str(), 0), 0);
    EXPECT_TRUE(asOrdinaryUser([&] { return !removed(victim); }));
    EXPECT_FALSE(fs::exists(victim));
}

TEST_F(Remover, needsNoReadPermissionOnTheParentFolder) {
    zoo::makeFile(victim + "/item/below/file");
    fakes::giveToOrdinaryUser(victim);
    ASSERT_EQ(::chmod(victim.c_str(), 0300), 0);
    EXPECT_TRUE(asOrdinaryUser([&] { return !removed(victim + "/item"); }));
    ASSERT_EQ(::chmod(victim.c_str(), 0700), 0);
    EXPECT_TRUE(namesIn(victim).empty());
}

TEST_F(Remover, acceptsEntriesRemovedByOthers) {
    for (const long call : {SYS_unlinkat, SYS_openat2, SYS_getdents64}) {
        for (unsigned at = 0; at < 8; ++at) {
            for (const char* name : {"a", "b", "c"}) zoo::makeFile(victim + "/" + name + "/file");
            Failure failure = "not run";
            behindGate(
                static_cast<int>(call),
                [&](unsigned number) {
                    if (number == at) {
                        for (const char* name : {"a", "b", "c"}) fs::remove_all(victim + "/" + name);
                    }
                    return 0;
                },
                [&] { failure = removed(victim); });
            EXPECT_EQ(failure, std::nullopt) << call << " " << at;
            EXPECT_FALSE(fs::exists(victim));
        }
    }
}

TEST_F(Remover, removesNothingAfterAPartialListing) {
    zoo::makeWide(victim, 5000, 0);
    unsigned calls = 0;
    Failure failure;
    behindGate(
        SYS_getdents64, [&](unsigned number) { return ++calls, number == 1 ? EIO : 0; },
        [&] { failure = removed(victim); });
    ASSERT_EQ(calls, 2u) << "the folder takes more than one call to list";
    EXPECT_THAT(failure, Optional(std::string("“victim” couldn’t be removed: Input/output error")));
    EXPECT_EQ(namesIn(victim).size(), 5000u);
    EXPECT_EQ(removed(victim), std::nullopt);
}

TEST_F(Remover, removesEntriesAddedMeanwhile) {
    zoo::makeFile(victim + "/folder/file");
    Failure failure = "not run";
    behindGate(
        SYS_unlinkat,
        [&](unsigned number) {
            // Refill after the only file is gone, just before the folder is removed.
            if (number == 1) zoo::makeFile(victim + "/folder/late/file");
            return 0;
        },
        [&] { failure = removed(victim); });
    EXPECT_EQ(failure, std::nullopt);
    EXPECT_FALSE(fs::exists(victim));
}

TEST_F(Remover, givesUpOnAFolderThatKeepsRefilling) {
    zoo::makeFile(victim + "/folder/file");
    Failure failure;
    behindGate(
        SYS_unlinkat,
        [&](unsigned number) {
            zoo::makeFile(victim + "/folder/late" + std::to_string(number));
            return 0;
        },
        [&] { failure = removed(victim); });
    EXPECT_THAT(failure, Optional(std::string("“folder” in “victim” couldn’t be removed: Directory not empty")));
}

TEST_F(Remover, removesLinkSwappedForAFolder) {
    for (const long call : {SYS_openat2, SYS_unlinkat}) {
        for (unsigned at = 0; at < 4; ++at) {
            fs::remove_all(victim);
            fs::remove_all(temp / "aside");
            zoo::makeFile(victim + "/folder/file");
            bool swapped = false;
            Failure failure = "not run";
            behindGate(
                static_cast<int>(call),
                [&](unsigned number) {
                    if (number == at && fs::exists(victim + "/folder")) {
                        fs::rename(victim + "/folder", temp / "aside");
                        fs::create_directory_symlink(outside, victim + "/folder");
                        swapped = true;
                    }
                    return 0;
                },
                [&] { failure = removed(victim); });
            EXPECT_TRUE(swapped || at > 0);
            EXPECT_FALSE(fs::exists(fs::symlink_status(victim))) << failure.value_or("");
            expectOutsideUntouched();
        }
    }
}

TEST_F(Remover, ignoresSwappedParentFolder) {
    zoo::makeFile(temp / "above/victim/folder/file");
    zoo::makeFile(temp / "other/victim/folder/file");
    behindGate(
        SYS_openat2,
        [&](unsigned number) {
            if (number == 0) {
                fs::rename(temp / "above", temp / "aside");
                fs::create_directory_symlink(temp / "other", temp / "above");
            }
            return 0;
        },
        [&] { EXPECT_EQ(removed(temp / "above/victim"), std::nullopt); });
    EXPECT_TRUE(fs::exists(temp / "other/victim/folder/file"));
    EXPECT_TRUE(namesIn(temp / "aside").empty());
}

TEST_F(Remover, reportsErrorOfEverySyscall) {
    for (const long call : {SYS_openat2, SYS_getdents64, SYS_unlinkat, SYS_statx, SYS_fcntl}) {
        unsigned calls = 0;
        zoo::makeFile(victim + "/a/b/file");
        behindGate(
            static_cast<int>(call), [&](unsigned) { return ++calls, 0; },
            [&] { EXPECT_EQ(removed(victim), std::nullopt); });
        ASSERT_GT(calls, 0u) << call;
        const std::ptrdiff_t before = fakes::openDescriptors();
        for (unsigned failing = 0; failing < calls; ++failing) {
            fs::remove_all(victim);
            zoo::makeFile(victim + "/a/b/file");
            Failure failure;
            behindGate(
                static_cast<int>(call), [&](unsigned number) { return number == failing ? EIO : 0; },
                [&] { failure = removed(victim); });
            ASSERT_TRUE(failure) << call << " " << failing;
            EXPECT_TRUE(failure->ends_with("couldn’t be removed: Input/output error")) << *failure;
            EXPECT_TRUE(fs::exists(victim));
        }
        EXPECT_EQ(fakes::openDescriptors(), before);
        EXPECT_EQ(removed(victim), std::nullopt);
    }
}

TEST_F(Remover, emptiesFolderButKeepsIt) {
    zoo::makeFile(victim + "/file");
    zoo::makeFile(victim + "/.hidden/deep/file");
    zoo::makeFile(victim + "/stays/file");
    fs::create_directory_symlink(outside, victim + "/away");
    fakes::giveToOrdinaryUser(temp.path());
    ASSERT_EQ(::chmod((victim + "/stays").c_str(), 0500), 0);
    if (::geteuid() == 0) {
        ASSERT_EQ(::chown((victim + "/stays").c_str(), 0, 0), 0);
        ASSERT_EQ(::chmod((victim + "/stays").c_str(), 0755), 0);
    }
    EXPECT_TRUE(fakes::asOrdinaryUser([&] {
        const Descriptor folder(openRootDirectory(victim));
        return removeEntriesOf(folder) == 3 && removeEntriesOf(folder) == 0;
    }));
    EXPECT_EQ(namesIn(victim), std::set<std::string>{"stays"});
    expectOutsideUntouched();
    ASSERT_EQ(::chmod((victim + "/stays").c_str(), 0700), 0);
    EXPECT_EQ(removeEntriesOf(Descriptor()), 0u);
    EXPECT_EQ(removeEntriesOf(Descriptor(openRootDirectory(victim))), 1u);
    EXPECT_TRUE(namesIn(victim).empty());
}

}  // namespace
}  // namespace zelk
