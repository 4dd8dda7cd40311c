// SPDX-License-Identifier: MIT
// Items on volumes other than that of the home folder, and full volumes.
#include <gmock/gmock.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>
#include <fstream>

#include "fakes/InChild.h"
#include "fakes/Mounts.h"
#include "fakes/TestFiles.h"
#include "fakes/TrashContent.h"
#include "platform/linux/files/LinuxLocations.h"
#include "platform/linux/trash/LinuxTrash.h"
#include "zoo/TempFolder.h"
#include "zoo/Zoo.h"

namespace zelk {
namespace {

namespace fs = std::filesystem;

using fakes::asOrdinaryUser;
using fakes::fileContent;
using fakes::namesIn;
using fakes::restorable;
using fakes::writeFile;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Optional;
using testing::Pair;

class VolumeTrash : public testing::Test {
protected:
    void SetUp() override {
        if (!mounts.allowed()) GTEST_SKIP() << "mounting is not allowed here";
        zoo::makeFolder(home);
        mounts.memory(stick);
        zoo::makeFolder(stick + "/folder");
        writeFile(item, "content");
    }

    Failure trashed(const std::string& path) { return LinuxTrash(home).trash(ItemPath::from(path).value()).failure; }

    /// Expects the item in the volume's trash folder `trash`, with its path on the volume.
    void expectTrashedIn(const std::string& trash) {
        EXPECT_EQ(trashed(item), std::nullopt);
        const auto found = restorable(trash);
        ASSERT_THAT(found, ElementsAre(Pair("folder/item 1", testing::_)));
        EXPECT_EQ(fileContent(found.begin()->second), "content");
        EXPECT_TRUE(LinuxLocations(home).trashPlaces().hold(found.begin()->second)) << found.begin()->second;
        EXPECT_THAT(namesIn(stick + "/folder"), IsEmpty());
    }

    void expectRefused(const std::string& reason) {
        EXPECT_THAT(trashed(item), Optional("“item 1” couldn’t be moved to the Trash: " + reason));
        EXPECT_EQ(fileContent(item), "content");
    }

    const zoo::TempFolder temp{zoo::TempFolder::Medium::memory};
    const std::string home = temp / "home";
    const std::string homeTrash = home + "/.local/share/Trash";
    const std::string stick = temp / "my stick";
    const std::string item = stick + "/folder/item 1";
    const std::string user = std::to_string(::geteuid());
    const std::string own = stick + "/.Trash-" + user;
    fakes::Mounts mounts;
};

TEST_F(VolumeTrash, createsPrivateTrashAndRecordsRelativePath) {
    expectTrashedIn(own);
    for (const char* folder : {"", "/files", "/info"})
        EXPECT_EQ(fs::status(own + folder).permissions(), fs::perms(0700)) << folder;
    EXPECT_FALSE(fs::exists(homeTrash));
}

TEST_F(VolumeTrash, acceptsItemAtTheTopOfTheVolume) {
    writeFile(stick + "/top", "content");
    EXPECT_EQ(trashed(stick + "/top"), std::nullopt);
    EXPECT_THAT(restorable(own), ElementsAre(Pair("top", own + "/files/top")));
}

TEST_F(VolumeTrash, recordsPathOnTheVolumeBehindLinks) {
    fs::create_directory_symlink(stick + "/folder", temp / "link");
    EXPECT_EQ(trashed(temp / "link/item 1"), std::nullopt);
    EXPECT_THAT(restorable(own), ElementsAre(Pair("folder/item 1", testing::_)));
}

TEST_F(VolumeTrash, usesTheItemsOwnMountOfADevice) {
    mounts.memory(temp / "other");
    zoo::makeFolder(temp / "other/sub");
    zoo::makeFolder(temp / "again");
    mounts.again(temp / "other/sub", temp / "again");
    writeFile(temp / "again/item", "content");
    LinuxTrash itsTrash(temp / "other/home");
    EXPECT_EQ(itsTrash.trash(ItemPath::from(temp / "again/item").value()).failure, std::nullopt);
    EXPECT_THAT(restorable(temp / ("again/.Trash-" + user)), ElementsAre(Pair("item", testing::_)));
}

TEST_F(VolumeTrash, usesTrustedSharedTrash) {
    zoo::makeFolder(stick + "/.Trash");
    ASSERT_EQ(::chmod((stick + "/.Trash").c_str(), 01777), 0);
    expectTrashedIn(stick + "/.Trash/" + user);
    EXPECT_EQ(fs::status(stick + "/.Trash/" + user).permissions(), fs::perms(0700));
    EXPECT_FALSE(fs::exists(own));
}

TEST_F(VolumeTrash, ignoresSharedTrashThatIsNotSticky) {
    zoo::makeFolder(stick + "/.Trash");
    ASSERT_EQ(::chmod((stick + "/.Trash").c_str(), 0777), 0);
    expectTrashedIn(own);
    EXPECT_THAT(namesIn(stick + "/.Trash"), IsEmpty());
}

TEST_F(VolumeTrash, ignoresSharedTrashThatIsALink) {
    zoo::makeFolder(stick + "/elsewhere");
    ASSERT_EQ(::chmod((stick + "/elsewhere").c_str(), 01777), 0);
    fs::create_directory_symlink("elsewhere", stick + "/.Trash");
    expectTrashedIn(own);
    EXPECT_THAT(namesIn(stick + "/elsewhere"), IsEmpty());
}

TEST_F(VolumeTrash, ignoresSharedTrashOfAnotherUser) {
    if (::geteuid() != 0) GTEST_SKIP() << "only the superuser can be two users";
    zoo::makeFolder(stick + "/.Trash");
    ASSERT_EQ(::chmod((stick + "/.Trash").c_str(), 01777), 0);
    ASSERT_EQ(::chown((stick + "/.Trash").c_str(), fakes::ordinaryUser, fakes::ordinaryUser), 0);
    expectTrashedIn(own);
    EXPECT_THAT(namesIn(stick + "/.Trash"), IsEmpty());
}

TEST_F(VolumeTrash, ignoresSharedTrashWithAHostileSubfolder) {
    if (::geteuid() != 0) GTEST_SKIP() << "only the superuser can be two users";
    zoo::makeFolder(stick + "/.Trash/" + user);
    ASSERT_EQ(::chmod((stick + "/.Trash").c_str(), 01777), 0);
    ASSERT_EQ(::chown((stick + "/.Trash/" + user).c_str(), fakes::ordinaryUser, fakes::ordinaryUser), 0);
    expectTrashedIn(own);
    EXPECT_THAT(namesIn(stick + "/.Trash/" + user), IsEmpty());
}

TEST_F(VolumeTrash, rejectsTrashOfAnotherUser) {
    if (::geteuid() != 0) GTEST_SKIP() << "only the superuser can be two users";
    zoo::makeFolder(own);
    ASSERT_EQ(::chown(own.c_str(), fakes::ordinaryUser, fakes::ordinaryUser), 0);
    expectRefused("“" + own + "” belongs to another user");
    EXPECT_THAT(namesIn(own), IsEmpty());
}

TEST_F(VolumeTrash, rejectsTrashWritableByOthers) {
    zoo::makeFolder(own);
    ASSERT_EQ(::chmod(own.c_str(), 0777), 0);
    for (const mode_t top : {0755, 01777}) {
        ASSERT_EQ(::chmod(stick.c_str(), top), 0);
        expectRefused("“" + own + "” may be changed by others");
        EXPECT_THAT(namesIn(own), IsEmpty());
    }
}

TEST_F(VolumeTrash, acceptsOpenTrashOnAnOpenVolume) {
    zoo::makeFolder(own);
    ASSERT_EQ(::chmod(own.c_str(), 0777), 0);
    ASSERT_EQ(::chmod(stick.c_str(), 0777), 0);
    expectTrashedIn(own);
}

TEST_F(VolumeTrash, rejectsLink) {
    zoo::makeFolder(stick + "/elsewhere");
    fs::create_directory_symlink("elsewhere", own);
    expectRefused("“" + own + "” is a link");
    EXPECT_THAT(namesIn(stick + "/elsewhere"), IsEmpty());
}

TEST_F(VolumeTrash, rejectsMountPoint) {
    mounts.memory(own);
    expectRefused("“" + own + "” is another volume");
    EXPECT_THAT(namesIn(own), IsEmpty());
}

TEST_F(VolumeTrash, failsWhenTheTopFolderIsNotWritable) {
    if (::geteuid() != 0) GTEST_SKIP() << "only the superuser can be two users";
    ASSERT_EQ(::chown((stick + "/folder").c_str(), fakes::ordinaryUser, fakes::ordinaryUser), 0);
    EXPECT_TRUE(asOrdinaryUser([&] {
        return trashed(item) == "“item 1” couldn’t be moved to the Trash: “" + stick + "/.Trash-" +
                                    std::to_string(fakes::ordinaryUser) + "” couldn’t be created: Permission denied";
    }));
    EXPECT_EQ(fileContent(item), "content");
    EXPECT_THAT(namesIn(stick), ElementsAre("folder"));
}

TEST_F(VolumeTrash, failsOnAReadOnlyVolume) {
    ASSERT_EQ(::mount(nullptr, stick.c_str(), nullptr, MS_REMOUNT | MS_BIND | MS_RDONLY, nullptr), 0) << errno;
    expectRefused("“" + own + "” couldn’t be created: Read-only file system");
}

TEST_F(VolumeTrash, movesLinkToAnotherVolumeIntoTheHomeTrash) {
    zoo::makeFolder(temp / "items");
    fs::create_symlink(item, temp / "items/link");
    fs::create_directory_symlink(stick, temp / "items/volume");
    for (const char* name : {"items/link", "items/volume/"}) EXPECT_EQ(trashed(temp / name), std::nullopt);
    EXPECT_THAT(restorable(homeTrash),
                ElementsAre(Pair(temp / "items/link", testing::_), Pair(temp / "items/volume", testing::_)));
    EXPECT_EQ(fileContent(item), "content");
}

TEST_F(VolumeTrash, refusesMountPoint) {
    EXPECT_THAT(trashed(stick), Optional(std::string("“my stick” couldn’t be moved to the Trash: "
                                                     "another volume is mounted there")));
    EXPECT_EQ(fileContent(item), "content");
    EXPECT_FALSE(fs::exists(homeTrash));
}

TEST_F(VolumeTrash, refusesFolderWithMount) {
    zoo::makeFolder(temp / "items/inside/mounted");
    mounts.again(stick, temp / "items/inside/mounted");
    EXPECT_THAT(trashed(temp / "items/inside"),
                Optional(std::string("“inside” couldn’t be moved to the Trash: another volume is mounted in it")));
    EXPECT_TRUE(fs::exists(temp / "items/inside/mounted/folder"));
}

TEST_F(VolumeTrash, fullVolumeLeavesTheItemAndNoInfo) {
    const std::string full = temp / "full";
    mounts.memory(full, "size=256k,mode=0755");
    zoo::makeFolder(full + "/home/.local/share/Trash/files");
    zoo::makeFolder(full + "/home/.local/share/Trash/info");
    writeFile(full + "/item", "content");
    std::ofstream filling(full + "/filling");
    const std::string page(4096, 'x');
    while (filling.write(page.data(), static_cast<std::streamsize>(page.size())).flush()) {
    }
    EXPECT_THAT(LinuxTrash(full + "/home").trash(ItemPath::from(full + "/item").value()).failure,
                Optional(std::string("“item” couldn’t be moved to the Trash: No space left on device")));
    EXPECT_EQ(fileContent(full + "/item"), "content");
    EXPECT_THAT(namesIn(full + "/home/.local/share/Trash/files"), IsEmpty());
    EXPECT_THAT(namesIn(full + "/home/.local/share/Trash/info"), IsEmpty());
}

TEST_F(VolumeTrash, isNotEmptied) {
    EXPECT_EQ(trashed(item), std::nullopt);
    writeFile(temp / "other", "content");
    EXPECT_EQ(trashed(temp / "other"), std::nullopt);
    EXPECT_EQ(LinuxTrash(home).empty(), 1u);
    EXPECT_EQ(restorable(own).size(), 1u);
    EXPECT_THAT(restorable(homeTrash), IsEmpty());
}

TEST_F(VolumeTrash, emptyingKeepsEntryWithMount) {
    zoo::makeFolder(homeTrash + "/files/entry/mounted");
    zoo::makeFile(homeTrash + "/files/entry/file");
    zoo::makeFile(homeTrash + "/files/other");
    zoo::makeFolder(homeTrash + "/info");
    writeFile(homeTrash + "/info/entry.trashinfo", "[Trash Info]\nPath=/entry\nDeletionDate=2026-01-01T00:00:00\n");
    mounts.again(stick, homeTrash + "/files/entry/mounted");
    EXPECT_EQ(LinuxTrash(home).empty(), 1u);
    EXPECT_TRUE(fs::exists(homeTrash + "/files/entry/file"));
    EXPECT_THAT(restorable(homeTrash), ElementsAre(Pair("/entry", testing::_)));
    EXPECT_EQ(fileContent(item), "content");
}

}  // namespace
}  // namespace zelk
