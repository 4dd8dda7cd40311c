// SPDX-License-Identifier: MIT
// Restores items from the trash of a volume other than that of the home folder.
#include <gmock/gmock.h>
#include <sys/mount.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>

#include "fakes/Mounts.h"
#include "fakes/TestFiles.h"
#include "fakes/TrashContent.h"
#include "platform/linux/trash/LinuxTrash.h"
#include "zoo/TempFolder.h"
#include "zoo/Zoo.h"

namespace zelk {
namespace {

namespace fs = std::filesystem;

using fakes::fileContent;
using fakes::namesIn;
using fakes::restorable;
using fakes::writeFile;
using testing::ElementsAre;

class RestoreOnVolume : public testing::Test {
protected:
    void SetUp() override {
        if (!mounts.allowed()) GTEST_SKIP() << "mounting is not allowed here";
        zoo::makeFolder(home);
        mounts.memory(stick);
        zoo::makeFolder(folder);
        writeFile(item, "content");
    }

    void makeSharedTrash() const {
        zoo::makeFolder(stick + "/.Trash");
        ASSERT_EQ(::chmod((stick + "/.Trash").c_str(), 01777), 0);
    }
    TrashedItem trashed(const std::string& path) {
        const TrashResult result = itsTrash.trash(ItemPath::below(temp.path(), path).value());
        EXPECT_EQ(result.failure, std::nullopt);
        return result.item.value();
    }
    /// The item moves to `trash` and back.
    void expectBackFrom(const std::string& trash) {
        const TrashedItem moved = trashed(item);
        EXPECT_EQ(moved.path, trash + "/files/item");
        EXPECT_EQ(moved.info, fileContent(trash + "/info/item.trashinfo"));
        EXPECT_FALSE(fs::exists(item));
        EXPECT_EQ(itsTrash.restore(moved), std::nullopt);
        EXPECT_EQ(fileContent(item), "content");
        for (const char* below : {"/files", "/info"}) EXPECT_TRUE(namesIn(trash + below).empty());
    }
    void expectRefused(const TrashedItem& moved, const std::string& reason) {
        EXPECT_EQ(itsTrash.restore(moved), Failure("“item” couldn’t be put back: " + reason));
    }

    const zoo::TempFolder temp{zoo::TempFolder::Medium::memory};
    const std::string home = temp / "home";
    const std::string stick = temp / "my stick";
    const std::string folder = stick + "/folder";
    const std::string item = folder + "/item";
    const std::string user = std::to_string(::geteuid());
    const std::string own = stick + "/.Trash-" + user;
    const std::string shared = stick + "/.Trash/" + user;
    fakes::Mounts mounts;
    LinuxTrash itsTrash{home};
};

TEST_F(RestoreOnVolume, restoresFromTheUsersOwnTrash) {
    expectBackFrom(own);
}

TEST_F(RestoreOnVolume, restoresFromTheSharedTrash) {
    makeSharedTrash();
    expectBackFrom(shared);
    EXPECT_FALSE(fs::exists(own));
}

TEST_F(RestoreOnVolume, restoresFromAWorldWritableTrashOfAWorldWritableVolume) {
    zoo::makeFolder(own);
    ASSERT_EQ(::chmod(own.c_str(), 0777), 0);
    ASSERT_EQ(::chmod(stick.c_str(), 0777), 0);
    expectBackFrom(own);
}

TEST_F(RestoreOnVolume, restoresAnItemAtTheTop) {
    writeFile(stick + "/top", "top");
    EXPECT_EQ(itsTrash.restore(trashed(stick + "/top")), std::nullopt);
    EXPECT_EQ(fileContent(stick + "/top"), "top");
}

TEST_F(RestoreOnVolume, restoresFromTheOriginalTrashIfAnotherWasCreatedSince) {
    const TrashedItem moved = trashed(item);
    makeSharedTrash();
    for (const char* below : {"", "/files", "/info"}) ASSERT_EQ(::mkdir((shared + below).c_str(), 0700), 0);
    EXPECT_EQ(itsTrash.restore(moved), std::nullopt);
    EXPECT_EQ(fileContent(item), "content");
}

TEST_F(RestoreOnVolume, refusesAnUntrustedSharedTrash) {
    makeSharedTrash();
    const TrashedItem moved = trashed(item);
    ASSERT_EQ(::chmod((stick + "/.Trash").c_str(), 0777), 0);
    expectRefused(moved, "“" + shared + "” is no longer the Trash of its volume");
    EXPECT_EQ(fileContent(shared + "/files/item"), "content");
    EXPECT_FALSE(fs::exists(own));
}

TEST_F(RestoreOnVolume, refusesATrashThatIsNotTheVolumes) {
    TrashedItem moved = trashed(item);
    fs::copy(own, stick + "/.Trash-elsewhere", fs::copy_options::recursive);
    moved.path = stick + "/.Trash-elsewhere/files/item";
    expectRefused(moved, "“" + stick + "/.Trash-elsewhere” is no longer the Trash of its volume");
    EXPECT_TRUE(fs::is_empty(folder));
}

TEST_F(RestoreOnVolume, createsNoTrashIfItIsMissing) {
    const TrashedItem moved = trashed(item);
    fs::rename(own, stick + "/aside");
    expectRefused(moved, "“" + own + "” couldn’t be opened: No such file or directory");
    EXPECT_FALSE(fs::exists(own));
}

TEST_F(RestoreOnVolume, refusesAVolumeMountedOverTheParent) {
    const TrashedItem moved = trashed(item);
    mounts.memory(folder);
    expectRefused(moved, "another folder has taken the place of the one it was in");
    EXPECT_TRUE(fs::is_empty(folder));
    EXPECT_EQ(restorable(own).size(), 1u);
}

TEST_F(RestoreOnVolume, refusesAnUnmountedVolume) {
    const TrashedItem moved = trashed(item);
    ASSERT_EQ(::umount2(stick.c_str(), 0), 0);
    expectRefused(moved, "the folder it was in is no longer there");
    EXPECT_TRUE(fs::is_empty(stick));
}

TEST_F(RestoreOnVolume, refusesAReadOnlyVolume) {
    const TrashedItem moved = trashed(item);
    ASSERT_EQ(::mount(nullptr, stick.c_str(), nullptr, MS_REMOUNT | MS_BIND | MS_RDONLY, nullptr), 0);
    expectRefused(moved, "Read-only file system");
    EXPECT_THAT(restorable(own), ElementsAre(testing::Pair("folder/item", own + "/files/item")));
}

TEST_F(RestoreOnVolume, refusesToReplaceAMountPoint) {
    const TrashedItem moved = trashed(item);
    mounts.memory(item);
    expectRefused(moved, "something else is there now");
    EXPECT_EQ(restorable(own).size(), 1u);
}

}  // namespace
}  // namespace zelk
