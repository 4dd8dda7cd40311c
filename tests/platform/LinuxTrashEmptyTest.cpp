// SPDX-License-Identifier: MIT
#include <fcntl.h>
#include <gmock/gmock.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <filesystem>

#include "fakes/InChild.h"
#include "fakes/SystemCallGate.h"
#include "fakes/TestFiles.h"
#include "fakes/TrashContent.h"
#include "platform/linux/LinuxTrash.h"
#include "platform/posix/Descriptor.h"
#include "zoo/TempFolder.h"
#include "zoo/Zoo.h"

namespace zelk {
namespace {

namespace fs = std::filesystem;

using fakes::asOrdinaryUser;
using fakes::namesIn;
using fakes::restorable;
using fakes::writeFile;
using testing::ElementsAre;
using testing::IsEmpty;

class EmptyingTrash : public testing::Test {
protected:
    void SetUp() override {
        zoo::makeFolder(files);
        zoo::makeFolder(info);
    }

    /// Info as another program wrote it a while ago.
    void addInfo(const std::string& name) {
        const std::string path = info + "/" + name + ".trashinfo";
        writeFile(path, "[Trash Info]\nPath=/was/here\nDeletionDate=2026-01-01T00:00:00\n");
        const timespec old[2] = {{1000000000, 0}, {1000000000, 0}};
        ASSERT_EQ(::utimensat(AT_FDCWD, path.c_str(), old, 0), 0);
    }

    void add(const std::string& name) {
        addInfo(name);
        zoo::makeFile(files + "/" + name, 10);
    }

    const zoo::TempFolder temp{zoo::TempFolder::Medium::memory};
    const std::string home = temp / "home";
    const std::string trash = home + "/.local/share/Trash";
    const std::string files = trash + "/files";
    const std::string info = trash + "/info";
    LinuxTrash itsTrash{home};
};

TEST_F(EmptyingTrash, takesContentAndInfo) {
    add("file");
    add(".hidden");
    add("\xff\n");
    zoo::makeFile(files + "/folder/below/file");
    addInfo("folder");
    EXPECT_EQ(itsTrash.empty(), 4u);
    EXPECT_THAT(namesIn(files), IsEmpty());
    EXPECT_THAT(namesIn(info), IsEmpty());
}

TEST_F(EmptyingTrash, ofNothingIsNothing) {
    EXPECT_EQ(itsTrash.empty(), 0u);
    EXPECT_EQ(LinuxTrash(temp / "missing").empty(), 0u);
    EXPECT_FALSE(fs::exists(temp / "missing"));
}

TEST_F(EmptyingTrash, followsNoLinkOut) {
    zoo::makeFile(temp / "outside/kept");
    fs::create_directory_symlink(temp / "outside", files + "/link");
    zoo::makeFolder(files + "/folder");
    fs::create_directory_symlink(temp / "outside", files + "/folder/link");
    EXPECT_EQ(itsTrash.empty(), 2u);
    EXPECT_THAT(namesIn(files), IsEmpty());
    EXPECT_TRUE(fs::exists(temp / "outside/kept"));
}

TEST_F(EmptyingTrash, thatIsALinkTouchesNothing) {
    fs::rename(trash, temp / "elsewhere");
    zoo::makeFile(temp / "elsewhere/files/kept");
    fs::create_directory_symlink(temp / "elsewhere", trash);
    EXPECT_EQ(itsTrash.empty(), 0u);
    EXPECT_TRUE(fs::exists(temp / "elsewhere/files/kept"));
}

TEST_F(EmptyingTrash, takesContentThatLostItsInfo) {
    zoo::makeFile(files + "/orphan");
    EXPECT_EQ(itsTrash.empty(), 1u);
    EXPECT_THAT(namesIn(files), IsEmpty());
}

TEST_F(EmptyingTrash, takesInfoThatLostItsContentAndDoesNotCountIt) {
    addInfo("orphan");
    add("file");
    EXPECT_EQ(itsTrash.empty(), 1u);
    EXPECT_THAT(namesIn(info), IsEmpty());
}

TEST_F(EmptyingTrash, leavesInfoThatIsYoungerThanAMinute) {
    writeFile(info + "/coming.trashinfo", "");
    EXPECT_EQ(itsTrash.empty(), 0u);
    EXPECT_THAT(namesIn(info), ElementsAre("coming.trashinfo"));
}

TEST_F(EmptyingTrash, leavesInfoOfWhatIsBeingTrashed) {
    addInfo("slow");
    const Descriptor trashing(::open(info.c_str(), O_RDONLY | O_DIRECTORY));
    ASSERT_EQ(::flock(trashing.get(), LOCK_SH), 0);
    EXPECT_EQ(itsTrash.empty(), 0u);
    EXPECT_THAT(namesIn(info), ElementsAre("slow.trashinfo"));
}

TEST_F(EmptyingTrash, leavesWhatIsNoInfo) {
    zoo::makeFile(info + "/notes.txt");
    EXPECT_EQ(itsTrash.empty(), 0u);
    EXPECT_THAT(namesIn(info), ElementsAre("notes.txt"));
}

TEST_F(EmptyingTrash, dropsTheSizesThatOthersKept) {
    writeFile(trash + "/directorysizes", "1 1 folder\n");
    EXPECT_EQ(itsTrash.empty(), 0u);
    EXPECT_TRUE(fs::exists(trash + "/directorysizes"));
    add("file");
    EXPECT_EQ(itsTrash.empty(), 1u);
    EXPECT_FALSE(fs::exists(trash + "/directorysizes"));
}

TEST_F(EmptyingTrash, leavesWhatCannotBeRemovedWithItsInfoAndGoesOn) {
    for (const char* name : {"a", "z"}) add(name);
    zoo::makeFile(files + "/locked/file");
    addInfo("locked");
    fakes::giveToOrdinaryUser(home);
    ASSERT_EQ(::chmod((files + "/locked").c_str(), 0500), 0);
    EXPECT_TRUE(asOrdinaryUser([&] { return itsTrash.empty() == 2; }));
    EXPECT_THAT(namesIn(files), ElementsAre("locked"));
    EXPECT_THAT(namesIn(info), ElementsAre("locked.trashinfo"));
    EXPECT_TRUE(fs::exists(files + "/locked/file"));
}

TEST_F(EmptyingTrash, meetsWhatIsTrashedMeanwhile) {
    add("same");
    writeFile(temp / "same", "newcomer");
    fakes::behindGate(
        SYS_unlinkat,
        [&](unsigned call) {
            // Its content is gone and its info is about to go: the name is not free yet.
            if (call == 1) {
                EXPECT_EQ(LinuxTrash(home).trash(ItemPath::from(temp / "same").value()), std::nullopt);
            }
            return 0;
        },
        [&] { EXPECT_EQ(itsTrash.empty(), 1u); });
    const auto found = restorable(trash);
    ASSERT_EQ(found.size(), 1u);
    EXPECT_EQ(fakes::fileContent(found.at(temp / "same")), "newcomer");
}

TEST_F(EmptyingTrash, numbersBeginAgainAfterwards) {
    for (const char* round : {"one", "two"}) {
        for (const char* content : {"a", "b"}) {
            writeFile(temp / "item", content);
            EXPECT_EQ(itsTrash.trash(ItemPath::from(temp / "item").value()), std::nullopt);
        }
        EXPECT_THAT(namesIn(files), ElementsAre("item", "item.2")) << round;
        EXPECT_EQ(itsTrash.empty(), 2u);
    }
}

}  // namespace
}  // namespace zelk
