// SPDX-License-Identifier: MIT
// What processes that share a Trash keep each other from, by the locks of its folders.
#include <fcntl.h>
#include <gmock/gmock.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <cerrno>
#include <string>

#include "fakes/InChild.h"
#include "fakes/SystemCallGate.h"
#include "fakes/TestFiles.h"
#include "fakes/TrashContent.h"
#include "platform/HomeTrash.h"
#include "platform/linux/trash/LinuxTrash.h"
#include "platform/posix/Descriptor.h"
#include "zoo/Zoo.h"

namespace zelk {
namespace {

using fakes::behindGate;
using fakes::namesIn;
using fakes::restorable;

class LockedTrash : public HomeTrash {
protected:
    /// Adds an item, of another program or marked as Zelk's own.
    void add(const std::string& name, mode_t mode = 0600) {
        zoo::makeFile(contentOf(name) + "/below/file");
        addYoungInfo(name);
        ASSERT_EQ(::chmod(infoOf(name).c_str(), mode), 0);
    }

    /// Whether another process could take this lock of `folder` now.
    static bool isFree(const std::string& folder, int operation) {
        const Descriptor others(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
        return ::flock(others.get(), operation | LOCK_NB) == 0 || errno != EWOULDBLOCK;
    }
};

TEST_F(LockedTrash, isEmptiedByOneProcessAlone) {
    add("item");
    unsigned calls = 0;
    behindGate(
        SYS_unlinkat,
        [&](unsigned) {
            ++calls;
            EXPECT_FALSE(isFree(files, LOCK_SH));
            return 0;
        },
        [&] { EXPECT_EQ(itsTrash.empty(), 1u); });
    EXPECT_GE(calls, 3u);
    EXPECT_TRUE(isFree(files, LOCK_EX));
    EXPECT_TRUE(isFree(info, LOCK_EX));
}

// Whoever sweeps then would take the info of an entry that is between its two names for an orphan.
TEST_F(LockedTrash, isNotSweptWhileAnEntryIsRenamed) {
    if (::geteuid() != 0) GTEST_SKIP() << "only the superuser can be two users";
    add("theirs", 01600);
    fakes::giveToOrdinaryUser(home);
    ASSERT_EQ(::chown((files + "/theirs/below").c_str(), 0, 0), 0);
    EXPECT_TRUE(fakes::asOrdinaryUser([&] {
        unsigned renames = 0;
        bool free = false;
        behindGate(
            SYS_renameat2,
            [&](unsigned) {
                ++renames;
                free = free || isFree(info, LOCK_EX);
                return 0;
            },
            [&] { itsTrash.empty(); });
        // Set aside and put back again.
        return renames == 2 && !free;
    }));
    EXPECT_EQ(restorable(trash).count("/was/theirs"), 1u);
}

TEST_F(LockedTrash, isNotSweptWhileAnItemIsMoved) {
    fakes::writeFile(temp / "item", "content");
    unsigned renames = 0;
    behindGate(
        SYS_renameat2,
        [&](unsigned) {
            ++renames;
            EXPECT_FALSE(isFree(info, LOCK_EX));
            EXPECT_TRUE(isFree(info, LOCK_SH)) << "other items may be moved";
            return 0;
        },
        [&] { EXPECT_EQ(itsTrash.trash(ItemPath::from(temp / "item").value()).failure, std::nullopt); });
    EXPECT_EQ(renames, 1u);
}

TEST_F(LockedTrash, isNotEmptiedWithoutKnowingWhoseTurnItIs) {
    add("item");
    behindGate(
        SYS_flock, [](unsigned call) { return call == 0 ? EIO : 0; }, [&] { EXPECT_EQ(itsTrash.empty(), 0u); });
    EXPECT_EQ(restorable(trash).size(), 1u);
}

TEST_F(LockedTrash, keepsAnEntryThatCannotBeRenamedSafely) {
    add("item");
    behindGate(
        SYS_flock, [](unsigned call) { return call == 1 ? EIO : 0; }, [&] { EXPECT_EQ(itsTrash.empty(), 0u); });
    EXPECT_EQ(restorable(trash).size(), 1u);
    EXPECT_THAT(namesIn(files), testing::ElementsAre("item"));
}

}  // namespace
}  // namespace zelk
