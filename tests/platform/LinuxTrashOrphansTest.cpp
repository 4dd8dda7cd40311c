// SPDX-License-Identifier: MIT
// Info files without content, left behind by a killed run.
#include <fcntl.h>
#include <gmock/gmock.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <cerrno>
#include <ctime>

#include "fakes/Mounts.h"
#include "fakes/SystemCallGate.h"
#include "fakes/TestFiles.h"
#include "fakes/TrashContent.h"
#include "platform/HomeTrash.h"
#include "platform/linux/trash/LinuxTrash.h"
#include "platform/posix/Descriptor.h"
#include "zoo/Zoo.h"

namespace zelk {
namespace {

using fakes::namesIn;
using fakes::writeFile;
using testing::IsSupersetOf;
using testing::UnorderedElementsAre;

class TrashOrphans : public HomeTrash {
protected:
    static void mark(const std::string& path) { ASSERT_EQ(::chmod(path.c_str(), 01600), 0); }

    void addOwnInfo(const std::string& name) const {
        addYoungInfo(name);
        mark(infoOf(name));
    }

    static Failure trashed(LinuxTrash& by, const std::string& item) {
        writeFile(item, "content");
        return by.trash(ItemPath::from(item).value()).failure;
    }

    mode_t modeOfInfo(const std::string& name) {
        struct stat status {};
        EXPECT_EQ(::stat(infoOf(name).c_str(), &status), 0);
        return status.st_mode & 07777;
    }
};

TEST_F(TrashOrphans, firstMoveRemovesOwnOrphansOfAnyAge) {
    addOwnInfo("orphan");
    addOwnInfo("kept");
    zoo::makeFile(contentOf("kept"));
    addYoungInfo("others");
    writeFile(info + "/notes", "");
    mark(info + "/notes");
    EXPECT_EQ(trashed(itsTrash, temp / "item"), std::nullopt);
    EXPECT_THAT(namesIn(info), UnorderedElementsAre("kept.trashinfo", "others.trashinfo", "notes", "item.trashinfo"));
    addOwnInfo("later");
    EXPECT_EQ(trashed(itsTrash, temp / "item"), std::nullopt);
    EXPECT_THAT(namesIn(info), IsSupersetOf({"later.trashinfo"})) << "once in a run";
    LinuxTrash nextRun(home);
    EXPECT_EQ(trashed(nextRun, temp / "item"), std::nullopt);
    EXPECT_FALSE(namesIn(info).contains("later.trashinfo"));
}

TEST_F(TrashOrphans, moveKeepsOrphansOfOtherPrograms) {
    addInfo("others");
    EXPECT_EQ(trashed(itsTrash, temp / "item"), std::nullopt);
    EXPECT_THAT(namesIn(info), UnorderedElementsAre("others.trashinfo", "item.trashinfo"));
}

TEST_F(TrashOrphans, sweepIsPostponedWhileAnotherProcessTrashes) {
    addOwnInfo("orphan");
    {
        const Descriptor others(::open(info.c_str(), O_RDONLY | O_DIRECTORY));
        ASSERT_EQ(::flock(others.get(), LOCK_SH), 0);
        EXPECT_EQ(trashed(itsTrash, temp / "item"), std::nullopt);
        EXPECT_THAT(namesIn(info), IsSupersetOf({"orphan.trashinfo"}));
    }
    EXPECT_EQ(trashed(itsTrash, temp / "item"), std::nullopt);
    EXPECT_FALSE(namesIn(info).contains("orphan.trashinfo"));
}

TEST_F(TrashOrphans, stayWithoutLocks) {
    addOwnInfo("orphan");
    fakes::behindGate(
        SYS_flock, [](unsigned) { return EOPNOTSUPP; },
        [&] { EXPECT_EQ(trashed(itsTrash, temp / "item"), std::nullopt); });
    EXPECT_THAT(namesIn(info), UnorderedElementsAre("orphan.trashinfo", "item.trashinfo"));
}

TEST_F(TrashOrphans, firstMoveSweepsVolumeTrash) {
    fakes::Mounts mounts;
    if (!mounts.allowed()) GTEST_SKIP() << "mounting is not allowed here";
    const std::string stick = temp / "stick";
    mounts.memory(stick);
    LinuxTrash before(home);
    EXPECT_EQ(trashed(before, stick + "/item"), std::nullopt);
    const std::string itsInfo = stick + "/.Trash-" + std::to_string(::geteuid()) + "/info";
    writeFile(itsInfo + "/orphan.trashinfo", fakes::fileContent(itsInfo + "/item.trashinfo"));
    mark(itsInfo + "/orphan.trashinfo");
    EXPECT_EQ(trashed(itsTrash, temp / "item"), std::nullopt);
    EXPECT_THAT(namesIn(itsInfo), IsSupersetOf({"orphan.trashinfo"}));
    EXPECT_EQ(trashed(itsTrash, stick + "/item"), std::nullopt);
    EXPECT_FALSE(namesIn(itsInfo).contains("orphan.trashinfo"));
}

TEST_F(TrashOrphans, emptyingRemovesOwnYoungOrphans) {
    addOwnInfo("orphan");
    addYoungInfo("others");
    EXPECT_EQ(itsTrash.empty(), 0u);
    EXPECT_THAT(namesIn(info), UnorderedElementsAre("others.trashinfo"));
}

// The clock of a file server may be ahead of ours.
TEST_F(TrashOrphans, emptyingKeepsOthersOfTheLastAndTheNextMinute) {
    const std::time_t now = ::time(nullptr);
    for (const std::time_t age : {30, 90, -30, -90, -86400}) {
        const std::string name = std::to_string(age);
        addYoungInfo(name);
        const timespec written[2] = {{now - age, 0}, {now - age, 0}};
        ASSERT_EQ(::utimensat(AT_FDCWD, infoOf(name).c_str(), written, 0), 0);
    }
    EXPECT_EQ(itsTrash.empty(), 0u);
    EXPECT_THAT(namesIn(info), UnorderedElementsAre("30.trashinfo", "-30.trashinfo"));
}

TEST_F(TrashOrphans, infoStaysWhereItsContentCannotBeLookedAt) {
    unsigned calls = 1;
    for (unsigned failing = 0; failing < calls; ++failing) {
        for (const std::string& folder : {files, info})
            for (const std::string& name : namesIn(folder)) ::unlink((folder + "/" + name).c_str());
        addOwnInfo("kept");
        writeFile(contentOf("kept"), "content");
        LinuxTrash nextRun(home);
        calls = 0;
        fakes::behindGate(
            SYS_newfstatat, [&](unsigned call) { return ++calls, call == failing ? EIO : 0; },
            [&] { static_cast<void>(trashed(nextRun, temp / "item")); });
        EXPECT_TRUE(namesIn(info).contains("kept.trashinfo")) << failing;
    }
    EXPECT_GE(calls, 2u) << "of the info and of its content";
}

TEST_F(TrashOrphans, infoFilesCarryTheOwnMark) {
    EXPECT_EQ(trashed(itsTrash, temp / "item"), std::nullopt);
    EXPECT_EQ(modeOfInfo("item"), 01600u);
}

TEST_F(TrashOrphans, infoIsWrittenUnmarkedWhenTheMarkIsRefused) {
    for (const int error : {EPERM, EINVAL}) {
        bool refused = false;
        for (unsigned failing = 0; !refused && failing < 100; ++failing) {
            LinuxTrash nextRun(home);
            const ItemPath item = ItemPath::from(temp / "item").value();
            writeFile(item.text(), "content");
            bool moved = false;
            fakes::behindGate(
                SYS_openat, [&](unsigned call) { return call == failing ? error : 0; },
                [&] { moved = !nextRun.trash(item).failure; });
            refused = moved && modeOfInfo("item") == 0600;
            nextRun.empty();
        }
        EXPECT_TRUE(refused);
    }
}

}  // namespace
}  // namespace zelk
