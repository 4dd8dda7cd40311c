// SPDX-License-Identifier: MIT
// Restoring on volumes that cannot rename without replacing, and while other programs change the same folders.
#include <gmock/gmock.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>
#include <vector>

#include "RestoreFixture.h"
#include "fakes/InChild.h"
#include "fakes/SystemCallGate.h"

namespace zelk {
namespace {

namespace fs = std::filesystem;

using fakes::behindGate;
using fakes::fileContent;
using fakes::namesIn;
using fakes::restorable;
using fakes::writeFile;
using testing::ElementsAre;
using testing::Pair;

using RestoreRaces = RestoreItem;

// Volumes without RENAME_NOREPLACE.

TEST_F(RestoreRaces, restoresWithoutRenameNoReplace) {
    for (const int error : {EINVAL, ENOSYS, EPERM}) {
        zoo::makeFile(items + "/folder/below");
        fs::create_symlink("/nowhere", items + "/link");
        const std::vector<TrashedItem> all{trashedFile(item), trashed(items + "/folder"), trashed(items + "/link")};
        behindGate(
            SYS_renameat2, [&](unsigned) { return error; },
            [&] {
                for (const TrashedItem& one : all) EXPECT_EQ(restored(one), std::nullopt) << one.path;
            });
        EXPECT_EQ(fileContent(item), "content");
        EXPECT_TRUE(fs::exists(items + "/folder/below"));
        EXPECT_EQ(fs::read_symlink(items + "/link"), "/nowhere");
        expectTrashEmpty();
        fs::remove_all(items + "/folder");
        fs::remove(items + "/link");
    }
}

TEST_F(RestoreRaces, refusesFilesWithoutHardLinksAndRenameNoReplace) {
    const TrashedItem moved = trashedFile(item);
    EXPECT_TRUE(fakes::inChild([&] {
        Failure failure;
        behindGate(
            SYS_renameat2, [](unsigned) { return EINVAL; },
            [&] {
                if (fakes::filterCalls(SYS_linkat, SECCOMP_RET_ERRNO | EPERM) == 0) failure = restored(moved);
            });
        return failure == refusal("Operation not permitted");
    }));
    EXPECT_TRUE(fs::is_empty(items));
    expectOnlyItemInTrash();
}

TEST_F(RestoreRaces, neverRenamesAFileOverAReservation) {
    const TrashedItem moved = trashedFile(item);
    EXPECT_TRUE(fakes::inChild([&] {
        Failure failure = "not run";
        unsigned renames = 0;
        behindGate(
            SYS_renameat, [&](unsigned) { return ++renames, 0; },
            [&] {
                if (fakes::filterCalls(SYS_renameat2, SECCOMP_RET_ERRNO | EINVAL) == 0) failure = restored(moved);
            });
        return !failure && renames == 1;  // within the Trash
    }));
    EXPECT_EQ(fileContent(item), "content");
}

TEST_F(RestoreRaces, staysInTheTrashIfTheOldNameCannotBeUnlinked) {
    const TrashedItem moved = trashedFile(item);
    EXPECT_TRUE(fakes::inChild([&] {
        Failure failure;
        // unlinkat() is called for the old name of the info, then for the item in the Trash.
        behindGate(
            SYS_unlinkat, [](unsigned call) { return call == 1 ? EIO : 0; },
            [&] {
                if (fakes::filterCalls(SYS_renameat2, SECCOMP_RET_ERRNO | EINVAL) == 0) failure = restored(moved);
            });
        return failure == refusal("Input/output error");
    }));
    EXPECT_TRUE(fs::is_empty(items));
    expectOnlyItemInTrash();
}

// Changes at the last moment. renameat2() is called to rename the item within the Trash, then to move it out.

TEST_F(RestoreRaces, neverReplacesAFileCreatedMeanwhile) {
    for (const int answer : {0, EINVAL, EPERM}) {
        const TrashedItem moved = trashedFile(item);
        Failure failure;
        behindGate(
            SYS_renameat2,
            [&](unsigned call) {
                if (call == 1) writeFile(item, "newcomer");
                return call == 1 ? answer : 0;
            },
            [&] { failure = restored(moved); });
        EXPECT_EQ(failure, refusal("something else is there now"));
        EXPECT_EQ(fileContent(item), "newcomer");
        expectOnlyItemInTrash();
        fs::remove(item);
        EXPECT_EQ(itsTrash.empty(), 1u);
    }
}

TEST_F(RestoreRaces, neverReplacesAFolderFilledMeanwhile) {
    const std::string folder = items + "/folder";
    zoo::makeFile(folder + "/below");
    const TrashedItem moved = trashed(folder);
    EXPECT_TRUE(fakes::inChild([&] {
        Failure failure;
        // The second renameat() would replace the empty folder that reserves the name.
        behindGate(
            SYS_renameat,
            [&](unsigned call) {
                if (call == 1) writeFile(folder + "/newcomer", "newcomer");
                return 0;
            },
            [&] {
                if (fakes::filterCalls(SYS_renameat2, SECCOMP_RET_ERRNO | EINVAL) == 0) failure = restored(moved);
            });
        return failure == "“folder” couldn’t be put back: something else is there now";
    }));
    EXPECT_THAT(namesIn(folder), ElementsAre("newcomer"));
    EXPECT_TRUE(fs::exists(restorable(trash).at(folder) + "/below"));
}

TEST_F(RestoreRaces, followsNoLinkSwappedInForTheParent) {
    for (const long number : {SYS_linkat, SYS_renameat2, SYS_unlinkat}) {
        for (const unsigned moment : {0u, 1u}) {
            if (number == SYS_linkat && moment == 1) continue;  // it is called only once
            for (const std::string& path : {items, aside, temp / "other"}) fs::remove_all(path);
            for (const std::string& path : {items, temp / "other"}) fs::create_directory(path);
            const TrashedItem moved = trashedFile(item);
            bool swapped = false;
            Failure failure = "not run";
            behindGate(
                static_cast<int>(number),
                [&](unsigned call) {
                    if (call != moment) return 0;
                    fs::rename(items, aside);
                    fs::create_directory_symlink(temp / "other", items);
                    swapped = true;
                    return 0;
                },
                [&] { failure = restored(moved); });
            EXPECT_TRUE(swapped);
            EXPECT_EQ(failure, std::nullopt);
            EXPECT_EQ(fileContent(aside + "/item.txt"), "content");
            EXPECT_TRUE(fs::is_empty(temp / "other"));
            expectTrashEmpty();
        }
    }
}

TEST_F(RestoreRaces, staysInTheTrashIfTheParentIsRemovedMeanwhile) {
    const TrashedItem moved = trashedFile(item);
    Failure failure;
    behindGate(
        SYS_renameat2,
        [&](unsigned call) {
            if (call == 1) fs::remove(items);
            return 0;
        },
        [&] { failure = restored(moved); });
    EXPECT_EQ(failure, refusal("the folder it was in is no longer there"));
    EXPECT_FALSE(fs::exists(items));
    expectOnlyItemInTrash();
}

TEST_F(RestoreRaces, leavesAnotherItemThatTakesItsNameInTheTrash) {
    const TrashedItem moved = trashedFile(item);
    const std::string inTrash = trash + "/files/item.txt";
    Failure failure;
    behindGate(
        SYS_renameat2,
        [&](unsigned call) {
            if (call == 0) {
                fs::rename(inTrash, aside);
                writeFile(inTrash, "another");
            }
            return 0;
        },
        [&] { failure = restored(moved); });
    EXPECT_EQ(failure, refusal("the Trash holds something else in its place"));
    EXPECT_TRUE(fs::is_empty(items));
    expectOnlyItemInTrash("another");
}

TEST_F(RestoreRaces, keepsInfoOfAnItemTrashedUnderTheSameName) {
    const TrashedItem moved = trashedFile(item);
    zoo::makeFolder(temp / "other");
    Failure failure = "not run";
    behindGate(
        SYS_renameat2,
        [&](unsigned call) {
            if (call == 1) {
                writeFile(temp / "other/item.txt", "another");
                EXPECT_EQ(LinuxTrash(home).trash(ItemPath::from(temp / "other/item.txt").value()).failure,
                          std::nullopt);
            }
            return 0;
        },
        [&] { failure = restored(moved); });
    EXPECT_EQ(failure, std::nullopt);
    EXPECT_EQ(fileContent(item), "content");
    EXPECT_THAT(restorable(trash), ElementsAre(Pair(temp / "other/item.txt", trash + "/files/item.txt")));
    EXPECT_EQ(namesIn(trash + "/info").size(), 1u);
}

TEST_F(RestoreRaces, reportsAnItemThatIsEmptiedMeanwhile) {
    for (const unsigned moment : {0u, 1u}) {
        const TrashedItem moved = trashedFile(item);
        Failure failure;
        behindGate(
            SYS_renameat2,
            [&](unsigned call) {
                if (call == moment) {
                    EXPECT_EQ(LinuxTrash(home).empty(), 1u);
                }
                return 0;
            },
            [&] { failure = restored(moved); });
        EXPECT_EQ(failure, refusal("it is no longer in the Trash"));
        EXPECT_TRUE(fs::is_empty(items));
        itsTrash.empty();
        expectTrashEmpty();
    }
}

}  // namespace
}  // namespace zelk
