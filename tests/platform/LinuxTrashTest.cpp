// SPDX-License-Identifier: MIT
#include "platform/linux/trash/LinuxTrash.h"

#include <gmock/gmock.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>

#include "fakes/Environment.h"
#include "fakes/InChild.h"
#include "fakes/TestFiles.h"
#include "zoo/TempFolder.h"
#include "zoo/Zoo.h"

namespace zelk {
namespace {

namespace fs = std::filesystem;

using fakes::asOrdinaryUser;
using fakes::EnvironmentVariable;
using fakes::fileContent;
using fakes::writeFile;
using testing::IsEmpty;
using testing::Optional;
using testing::UnorderedElementsAre;
using zoo::TempFolder;

TEST(LinuxTrash, isInTheDataHome) {
    const EnvironmentVariable home("HOME", "/home/me");
    {
        const EnvironmentVariable data("XDG_DATA_HOME", "/data");
        EXPECT_EQ(LinuxTrash().location(), "/data/Trash/files");
        EXPECT_EQ(LinuxTrash("/given").location(), "/given/.local/share/Trash/files");
    }
    const EnvironmentVariable relative("XDG_DATA_HOME", "data");
    EXPECT_EQ(LinuxTrash().location(), "/home/me/.local/share/Trash/files");
}

TEST(LinuxTrash, missingTrashIsEmpty) {
    const TempFolder home;
    EXPECT_THAT(LinuxTrash(home.path()).list(), Optional(IsEmpty()));
    EXPECT_THAT(LinuxTrash(home / "missing").list(), Optional(IsEmpty()));
    zoo::makeFolder(home / ".local/share/Trash/files");
    EXPECT_THAT(LinuxTrash(home.path()).list(), Optional(IsEmpty()));
}

TEST(LinuxTrash, doesNotCreateMissingHome) {
    const TempFolder temp;
    zoo::makeFile(temp / "file");
    LinuxTrash trash(temp / "missing/home");
    const Failure failure = trash.trash(*ItemPath::from(temp / "file")).failure;
    ASSERT_TRUE(failure.has_value());
    EXPECT_NE(failure->find("missing/home"), std::string::npos) << *failure;
    EXPECT_EQ(trash.empty(), 0U);
    EXPECT_EQ(fakes::namesIn(temp.path()), std::set<std::string>{"file"});
}

TEST(LinuxTrash, worksInDataHomeOutsideAMissingHome) {
    const TempFolder temp;
    const EnvironmentVariable home("HOME", temp / "missing");
    const EnvironmentVariable data("XDG_DATA_HOME", temp / "data");
    zoo::makeFile(temp / "file");
    EXPECT_EQ(LinuxTrash().trash(*ItemPath::from(temp / "file")).failure, std::nullopt);
    EXPECT_EQ(fakes::namesIn(temp.path()), std::set<std::string>{"data"});
}

TEST(LinuxTrash, listsAllEntriesIncludingHidden) {
    const TempFolder home;
    const std::string files = home / ".local/share/Trash/files/";
    zoo::makeFile(files + "file");
    zoo::makeFile(files + ".hidden");
    zoo::makeFile(files + "\xff\n");
    zoo::makeFile(files + "folder/below");
    zoo::makeFile(home / ".local/share/Trash/info/file.trashinfo");
    EXPECT_THAT(LinuxTrash(home.path()).list(),
                Optional(UnorderedElementsAre(files + "file", files + ".hidden", files + "\xff\n", files + "folder")));
}

TEST(LinuxTrash, listsLinkedTrashUnderItsOwnPath) {
    const TempFolder home;
    zoo::makeFile(home / "elsewhere/files/file");
    zoo::makeFolder(home / ".local/share");
    ASSERT_EQ(::symlink((home / "elsewhere").c_str(), (home / ".local/share/Trash").c_str()), 0);
    EXPECT_THAT(LinuxTrash(home.path()).list(), Optional(UnorderedElementsAre(home / ".local/share/Trash/files/file")));
}

TEST(LinuxTrash, refusesItemsAlreadyInTheTrash) {
    const zoo::TempFolder temp;
    const std::string items = temp / "items";
    const std::string trash = temp / "home/.local/share/Trash";
    zoo::makeFolder(temp / "home");
    LinuxTrash itsTrash(temp / "home");
    const auto trashed = [&](const std::string& path) { return itsTrash.trash(ItemPath::from(path).value()).failure; };
    const std::string project = items + "/project";
    zoo::makeFolder(project + "/cache/deep");
    writeFile(project + "/cache/deep/file", "content");
    EXPECT_EQ(trashed(project), std::nullopt);
    const std::string info = fileContent(trash + "/info/project.trashinfo");
    const std::string inside = trash + "/files/project";
    fs::create_directory_symlink(inside, items + "/way");
    for (const std::string& part : {inside, inside + "/cache", inside + "/cache/deep/file", items + "/way/cache",
                                    trash + "/info/project.trashinfo"})
        EXPECT_THAT(trashed(part), Optional(testing::EndsWith(": it is in the Trash already"))) << part;
    EXPECT_EQ(fileContent(inside + "/cache/deep/file"), "content");
    EXPECT_EQ(fileContent(trash + "/info/project.trashinfo"), info);
    EXPECT_EQ(trashed(items + "/way"), std::nullopt) << "the link itself lies outside";
}

TEST(LinuxTrash, unreadableTrashIsAbsent) {
    const TempFolder home;
    zoo::makeFolder(home / ".local/share/Trash/files");
    ::chmod((home / ".local/share/Trash/files").c_str(), 0);
    EXPECT_TRUE(asOrdinaryUser([&] { return !LinuxTrash(home.path()).list(); }));
    ::chmod((home / ".local").c_str(), 0);
    EXPECT_TRUE(asOrdinaryUser([&] { return !LinuxTrash(home.path()).list(); }));
}

TEST(LinuxTrash, trashBehindDanglingLinkIsAbsent) {
    for (const char* place : {".local/share/Trash/files", ".local/share/Trash", ".local/share", ".local"}) {
        const TempFolder home;
        zoo::makeFolder(fs::path(home / place).parent_path().string());
        fs::create_directory_symlink(home / "nowhere", home / place);
        EXPECT_FALSE(LinuxTrash(home.path()).list()) << place;
        zoo::makeFolder(home / "nowhere");
        EXPECT_THAT(LinuxTrash(home.path()).list(), Optional(IsEmpty())) << place;
    }
}

TEST(LinuxTrash, refusesFoldersWritableByOthers) {
    for (const char* folder : {"", "/files", "/info"}) {
        for (const mode_t mode : {0777, 0702, 0720, 01777}) {
            const TempFolder temp;
            const std::string trash = temp / "home/.local/share/Trash";
            for (const char* made : {"/files", "/info"}) zoo::makeFolder(trash + made);
            writeFile(temp / "item", "content");
            LinuxTrash itsTrash(temp / "home");
            const auto trashed = [&] { return itsTrash.trash(ItemPath::from(temp / "item").value()).failure; };
            ASSERT_EQ(::chmod((trash + folder).c_str(), mode), 0);
            EXPECT_THAT(trashed(), Optional("“item” couldn’t be moved to the Trash: “" + trash + folder +
                                            "” may be changed by others"));
            EXPECT_EQ(fileContent(temp / "item"), "content");
            zoo::makeFile(trash + "/files/kept");
            EXPECT_EQ(itsTrash.empty(), 0u);
            EXPECT_TRUE(fs::exists(trash + "/files/kept"));
            ASSERT_EQ(::chmod((trash + folder).c_str(), 0755), 0);
            EXPECT_EQ(trashed(), std::nullopt);
        }
    }
}

TEST(LinuxTrash, trashThatIsAFileIsAbsent) {
    const TempFolder home;
    zoo::makeFile(home / ".local/share/Trash/files");
    EXPECT_FALSE(LinuxTrash(home.path()).list());
}

}  // namespace
}  // namespace zelk
