// SPDX-License-Identifier: MIT
#include "platform/ReplacedFile.h"

#include <gmock/gmock.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

#include "fakes/InChild.h"
#include "fakes/TestFiles.h"
#include "zoo/TempFolder.h"

namespace zelk {
namespace {

using Access = ReplacedFile::Access;
using testing::ElementsAre;
using testing::IsEmpty;
using zoo::TempFolder;

unsigned accessOf(const std::string& path) {
    struct stat status {};
    return ::stat(path.c_str(), &status) == 0 ? status.st_mode & 07777 : 0;
}

TEST(ReplacedFile, appearsAtOnceWithAllItsPieces) {
    const TempFolder folder;
    fakes::writeFile(folder / "file", "old");
    ReplacedFile file(folder / "file", Access::owner);
    file.write("one ");
    file.write("");
    file.write("two");
    EXPECT_EQ(fakes::fileContent(folder / "file"), "old");
    EXPECT_EQ(fakes::namesIn(folder.path()).size(), 2U);
    EXPECT_TRUE(file.commit());
    EXPECT_EQ(file.error(), 0);
    EXPECT_EQ(fakes::fileContent(folder / "file"), "one two");
    EXPECT_THAT(fakes::namesIn(folder.path()), ElementsAre("file"));
}

TEST(ReplacedFile, leavesEverythingAsItWasWithoutACommit) {
    const TempFolder folder;
    {
        ReplacedFile file(folder / "file", Access::usual);
        file.write("content");
        EXPECT_EQ(file.error(), 0);
    }
    EXPECT_THAT(fakes::namesIn(folder.path()), IsEmpty());
}

TEST(ReplacedFile, isReadByWhomTheMaskLets) {
    const TempFolder folder;
    for (const auto& [mask, expected] : {std::pair{022U, 0644U}, std::pair{077U, 0600U}, std::pair{0U, 0666U}}) {
        const mode_t before = ::umask(static_cast<mode_t>(mask));
        EXPECT_TRUE(ReplacedFile(folder / "usual", Access::usual).commit());
        EXPECT_TRUE(ReplacedFile(folder / "owner", Access::owner).commit());
        ::umask(before);
        EXPECT_EQ(accessOf(folder / "usual"), expected);
        EXPECT_EQ(accessOf(folder / "owner"), 0600U);
        ::unlink((folder / "usual").c_str());
    }
}

TEST(ReplacedFile, keepsThePermissionsOfTheOldOne) {
    const TempFolder folder;
    for (const Access access : {Access::owner, Access::usual}) {
        fakes::writeFile(folder / "file", "old");
        ::chmod((folder / "file").c_str(), 0640);
        const mode_t before = ::umask(077);
        EXPECT_TRUE(ReplacedFile(folder / "file", access).commit());
        ::umask(before);
        EXPECT_EQ(accessOf(folder / "file"), 0640U);
    }
}

TEST(ReplacedFile, tellsWhyItCannotBe) {
    const TempFolder folder;
    fakes::writeFile(folder / "file", "old");
    ASSERT_EQ(::mkfifo((folder / "pipe").c_str(), 0600), 0);
    ASSERT_EQ(::symlink("loop", (folder / "loop").c_str()), 0);
    const auto reason = [](const std::string& path) {
        ReplacedFile file(path, Access::usual);
        file.write("content");
        EXPECT_FALSE(file.commit());
        return file.error();
    };
    EXPECT_EQ(reason(folder / "missing/file"), ENOENT);
    EXPECT_EQ(reason(folder / "file/below"), ENOTDIR);
    EXPECT_EQ(reason(folder.path()), EISDIR);
    EXPECT_EQ(reason(folder / "."), EISDIR);
    EXPECT_EQ(reason(folder / ""), EISDIR);
    EXPECT_EQ(reason(""), ENOENT);
    EXPECT_EQ(reason(folder / "pipe"), EINVAL);
    EXPECT_EQ(reason(folder / "loop"), ELOOP);
    EXPECT_EQ(fakes::fileContent(folder / "file"), "old");
    EXPECT_THAT(fakes::namesIn(folder.path()), ElementsAre("file", "loop", "pipe"));
}

TEST(ReplacedFile, tellsThatItsFolderIsForbidden) {
    const TempFolder folder;
    ::chmod(folder.path().c_str(), 0555);
    EXPECT_TRUE(fakes::asOrdinaryUser([&] { return ReplacedFile(folder / "file", Access::usual).error() == EACCES; }));
}

}  // namespace
}  // namespace zelk
