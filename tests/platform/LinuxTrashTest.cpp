// SPDX-License-Identifier: MIT
#include "platform/linux/LinuxTrash.h"

#include <gmock/gmock.h>
#include <sys/stat.h>
#include <unistd.h>

#include "fakes/Environment.h"
#include "fakes/InChild.h"
#include "zoo/TempFolder.h"
#include "zoo/Zoo.h"

namespace zelk {
namespace {

using fakes::asOrdinaryUser;
using fakes::EnvironmentVariable;
using testing::IsEmpty;
using testing::Optional;
using testing::UnorderedElementsAre;
using zoo::TempFolder;

TEST(LinuxTrash, liesInTheDataHome) {
    const EnvironmentVariable home("HOME", "/home/me");
    {
        const EnvironmentVariable data("XDG_DATA_HOME", "/data");
        EXPECT_EQ(LinuxTrash().location(), "/data/Trash/files");
        EXPECT_EQ(LinuxTrash("/given").location(), "/given/.local/share/Trash/files");
    }
    const EnvironmentVariable relative("XDG_DATA_HOME", "data");
    EXPECT_EQ(LinuxTrash().location(), "/home/me/.local/share/Trash/files");
}

TEST(LinuxTrash, isEmptyUntilSomebodyUsesIt) {
    const TempFolder home;
    EXPECT_THAT(LinuxTrash(home.path()).list(), Optional(IsEmpty()));
    EXPECT_THAT(LinuxTrash(home / "missing").list(), Optional(IsEmpty()));
    zoo::makeFolder(home / ".local/share/Trash/files");
    EXPECT_THAT(LinuxTrash(home.path()).list(), Optional(IsEmpty()));
}

TEST(LinuxTrash, listsWhatIsInItHiddenEntriesToo) {
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

TEST(LinuxTrash, behindALinkIsListedUnderItsOwnPath) {
    const TempFolder home;
    zoo::makeFile(home / "elsewhere/files/file");
    zoo::makeFolder(home / ".local/share");
    ASSERT_EQ(::symlink((home / "elsewhere").c_str(), (home / ".local/share/Trash").c_str()), 0);
    EXPECT_THAT(LinuxTrash(home.path()).list(), Optional(UnorderedElementsAre(home / ".local/share/Trash/files/file")));
}

TEST(LinuxTrash, isAbsentWhereItMayNotBeLookedInto) {
    const TempFolder home;
    zoo::makeFolder(home / ".local/share/Trash/files");
    ::chmod((home / ".local/share/Trash/files").c_str(), 0);
    EXPECT_TRUE(asOrdinaryUser([&] { return !LinuxTrash(home.path()).list(); }));
    ::chmod((home / ".local").c_str(), 0);
    EXPECT_TRUE(asOrdinaryUser([&] { return !LinuxTrash(home.path()).list(); }));
}

TEST(LinuxTrash, isAbsentWhereItIsNoFolder) {
    const TempFolder home;
    zoo::makeFile(home / ".local/share/Trash/files");
    EXPECT_FALSE(LinuxTrash(home.path()).list());
}

}  // namespace
}  // namespace zelk
