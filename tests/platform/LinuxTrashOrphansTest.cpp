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
#include "platform/linux/trash/LinuxTrash.h"
#include "platform/posix/Descriptor.h"
#include "zoo/TempFolder.h"
#include "zoo/Zoo.h"

namespace zelk {
namespace {

using fakes::namesIn;
using fakes::writeFile;
using testing::IsSupersetOf;
using testing::UnorderedElementsAre;

class TrashOrphans : public testing::Test {
protected:
    void SetUp() override {
        zoo::makeFolder(trash + "/files");
        zoo::makeFolder(info);
    }

    void addInfo(const std::string& name, mode_t mode, const std::string& folder) {
        const std::string path = folder + "/" + name + ".trashinfo";
        writeFile(path, "[Trash Info]\nPath=/was/here\nDeletionDate=2026-01-01T00:00:00\n");
        ASSERT_EQ(::chmod(path.c_str(), mode), 0);
    }
    void addOwnInfo(const std::string& name) { addInfo(name, 01600, info); }

    static Failure trashed(LinuxTrash& itsTrash, const std::string& item) {
        writeFile(item, "content");
        return itsTrash.trash(ItemPath::from(item).value()).failure;
    }

    mode_t modeOfInfo(const std::string& name) {
        struct stat status {};
        EXPECT_EQ(::stat((info + "/" + name + ".trashinfo").c_str(), &status), 0);
        return status.st_mode & 07777;
    }

    const zoo::TempFolder temp{zoo::TempFolder::Medium::memory};
    const std::string home = temp / "home";
    const std::string trash = home + "/.local/share/Trash";
    const std::string info = trash + "/info";
};

TEST_F(TrashOrphans, firstMoveRemovesOwnOrphansOfAnyAge) {
    addOwnInfo("orphan");
    addOwnInfo("kept");
    zoo::makeFile(trash + "/files/kept");
    addInfo("others", 0600, info);
    writeFile(info + "/notes", "");
    ASSERT_EQ(::chmod((info + "/notes").c_str(), 01600), 0);
    LinuxTrash itsTrash(home);
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
    addInfo("others", 0600, info);
    const timespec old[2] = {{1000000000, 0}, {1000000000, 0}};
    ASSERT_EQ(::utimensat(AT_FDCWD, (info + "/others.trashinfo").c_str(), old, 0), 0);
    LinuxTrash itsTrash(home);
    EXPECT_EQ(trashed(itsTrash, temp / "item"), std::nullopt);
    EXPECT_THAT(namesIn(info), UnorderedElementsAre("others.trashinfo", "item.trashinfo"));
}

TEST_F(TrashOrphans, sweepIsPostponedWhileAnotherProcessTrashes) {
    addOwnInfo("orphan");
    LinuxTrash itsTrash(home);
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
    LinuxTrash itsTrash(home);
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
    LinuxTrash first(home);
    EXPECT_EQ(trashed(first, stick + "/item"), std::nullopt);
    const std::string itsInfo = stick + "/.Trash-" + std::to_string(::geteuid()) + "/info";
    LinuxTrash itsTrash(home);
    addInfo("orphan", 01600, itsInfo);
    EXPECT_EQ(trashed(itsTrash, temp / "item"), std::nullopt);
    EXPECT_THAT(namesIn(itsInfo), IsSupersetOf({"orphan.trashinfo"}));
    EXPECT_EQ(trashed(itsTrash, stick + "/item"), std::nullopt);
    EXPECT_FALSE(namesIn(itsInfo).contains("orphan.trashinfo"));
}

TEST_F(TrashOrphans, emptyingRemovesOwnYoungOrphans) {
    addOwnInfo("orphan");
    addInfo("others", 0600, info);
    EXPECT_EQ(LinuxTrash(home).empty(), 0u);
    EXPECT_THAT(namesIn(info), UnorderedElementsAre("others.trashinfo"));
}

// The clock of a file server may be ahead of ours.
TEST_F(TrashOrphans, emptyingKeepsOthersOfTheLastAndTheNextMinute) {
    const std::time_t now = ::time(nullptr);
    for (const std::time_t age : {30, 90, -30, -90, -86400}) {
        const std::string name = std::to_string(age);
        addInfo(name, 0600, info);
        const timespec written[2] = {{now - age, 0}, {now - age, 0}};
        ASSERT_EQ(::utimensat(AT_FDCWD, (info + "/" + name + ".trashinfo").c_str(), written, 0), 0);
    }
    EXPECT_EQ(LinuxTrash(home).empty(), 0u);
    EXPECT_THAT(namesIn(info), UnorderedElementsAre("30.trashinfo", "-30.trashinfo"));
}

TEST_F(TrashOrphans, infoStaysWhereItsContentCannotBeLookedAt) {
    unsigned calls = 1;
    for (unsigned failing = 0; failing < calls; ++failing) {
        for (const std::string& folder : {trash + "/files", info})
            for (const std::string& name : namesIn(folder)) ::unlink((folder + "/" + name).c_str());
        addOwnInfo("kept");
        fakes::writeFile(trash + "/files/kept", "content");
        LinuxTrash itsTrash(home);
        calls = 0;
        fakes::behindGate(
            SYS_newfstatat, [&](unsigned call) { return ++calls, call == failing ? EIO : 0; },
            [&] { static_cast<void>(trashed(itsTrash, temp / "item")); });
        EXPECT_TRUE(namesIn(info).contains("kept.trashinfo")) << failing;
    }
    EXPECT_GE(calls, 2u) << "of the info and of its content";
}

TEST_F(TrashOrphans, infoFilesCarryTheOwnMark) {
    LinuxTrash itsTrash(home);
    EXPECT_EQ(trashed(itsTrash, temp / "item"), std::nullopt);
    EXPECT_EQ(modeOfInfo("item"), 01600u);
}

TEST_F(TrashOrphans, infoIsWrittenUnmarkedWhenTheMarkIsRefused) {
    for (const int error : {EPERM, EINVAL}) {
        bool refused = false;
        for (unsigned failing = 0; !refused && failing < 100; ++failing) {
            LinuxTrash itsTrash(home);
            const ItemPath item = ItemPath::from(temp / "item").value();
            writeFile(item.text(), "content");
            bool moved = false;
            fakes::behindGate(
                SYS_openat, [&](unsigned call) { return call == failing ? error : 0; },
                [&] { moved = !itsTrash.trash(item).failure; });
            refused = moved && modeOfInfo("item") == 0600;
            itsTrash.empty();
        }
        EXPECT_TRUE(refused);
    }
}

}  // namespace
}  // namespace zelk
