// SPDX-License-Identifier: MIT
#include "platform/linux/files/LinuxFileManager.h"

#include <fcntl.h>
#include <gmock/gmock.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <string>

#include "fakes/InChild.h"
#include "fakes/TestFiles.h"
#include "platform/posix/Descriptor.h"
#include "zoo/TempFolder.h"
#include "zoo/Zoo.h"

namespace zelk {
namespace {

using fakes::asOrdinaryUser;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Optional;
using testing::UnorderedElementsAre;
using zoo::TempFolder;

LinuxFileManager manager;

std::uint64_t allocated(const std::string& path) {
    struct stat status {};
    EXPECT_EQ(::lstat(path.c_str(), &status), 0) << path;
    return static_cast<std::uint64_t>(status.st_blocks) * 512;
}

/// Creates `depth` nested folders of one name with a file "end" of 8192 bytes in the last; returns that file's path.
std::string makeChain(const std::string& top, const std::string& name, int depth) {
    std::string path = top;
    Descriptor at(::open(top.c_str(), O_RDONLY | O_DIRECTORY));
    for (; depth > 0; --depth) {
        EXPECT_EQ(::mkdirat(at.get(), name.c_str(), 0755), 0);
        at = Descriptor(::openat(at.get(), name.c_str(), O_RDONLY | O_DIRECTORY));
        path += "/" + name;
    }
    const Descriptor file(::openat(at.get(), "end", O_WRONLY | O_CREAT, 0644));
    EXPECT_EQ(::write(file.get(), std::string(8192, 'x').data(), 8192), 8192);
    return path;
}

TEST(LinuxFileManager, existenceFollowsLinks) {
    const TempFolder folder;
    zoo::makeFile(folder / "file");
    ASSERT_EQ(::symlink("file", (folder / "link").c_str()), 0);
    ASSERT_EQ(::symlink("nothing", (folder / "dangling").c_str()), 0);
    EXPECT_TRUE(manager.exists(folder.path()));
    EXPECT_TRUE(manager.exists(folder / "file"));
    EXPECT_TRUE(manager.exists(folder / "link"));
    EXPECT_FALSE(manager.exists(folder / "dangling"));
    EXPECT_FALSE(manager.exists(folder / "missing"));
    EXPECT_FALSE(manager.exists(""));
}

TEST(LinuxFileManager, readsSmallFilesOnly) {
    const TempFolder folder;
    fakes::writeFile(folder / "file", "12345");
    ASSERT_EQ(::mkfifo((folder / "pipe").c_str(), 0600), 0);
    ASSERT_EQ(::symlink("/dev/null", (folder / "mask").c_str()), 0);
    EXPECT_EQ(manager.readSmall(folder / "file", 5), "12345");
    for (const char* name : {"file", "pipe", "mask", "missing"})
        EXPECT_EQ(manager.readSmall(folder / name, 4), std::nullopt) << name;
}

TEST(LinuxFileManager, readsStartOfFiles) {
    const TempFolder folder;
    fakes::writeFile(folder / "file", std::string("1\0"
                                                  "345",
                                                  5));
    ASSERT_EQ(::mkfifo((folder / "pipe").c_str(), 0600), 0);
    ASSERT_EQ(::symlink("file", (folder / "link").c_str()), 0);
    EXPECT_EQ(manager.readStart(folder / "file", 3), std::string("1\0"
                                                                 "3",
                                                                 3));
    EXPECT_EQ(manager.readStart(folder / "link", 5), std::string("1\0"
                                                                 "345",
                                                                 5));
    EXPECT_EQ(manager.readStart(folder / "file", 99), std::string("1\0"
                                                                  "345",
                                                                  5));
    EXPECT_EQ(manager.readStart(folder / "file", 0), "");
    for (const char* name : {"pipe", "missing", "."})
        EXPECT_EQ(manager.readStart(folder / name, 3), std::nullopt) << name;
}

TEST(LinuxFileManager, realPathHasNoLinks) {
    const TempFolder folder;
    const std::string real = manager.realPath(folder.path()).value();
    zoo::makeFile(folder / "file");
    ASSERT_EQ(::mkdir((folder / "inner").c_str(), 0755), 0);
    ASSERT_EQ(::symlink("../file", (folder / "inner/link").c_str()), 0);
    ASSERT_EQ(::symlink("inner", (folder / "way").c_str()), 0);
    ASSERT_EQ(::symlink("nothing", (folder / "dangling").c_str()), 0);
    EXPECT_EQ(manager.realPath(folder / "way/link"), real + "/file");
    EXPECT_EQ(manager.realPath(folder / "dangling"), std::nullopt);
    EXPECT_EQ(manager.realPath(folder / "missing"), std::nullopt);
    EXPECT_EQ(manager.realPath(""), std::nullopt);
}

TEST(LinuxFileManager, fullSizeCountsHiddenEntriesToo) {
    const TempFolder folder;
    ASSERT_EQ(::mkdir((folder / ".hidden").c_str(), 0755), 0);
    ASSERT_EQ(::mkdir((folder / "plain").c_str(), 0755), 0);
    for (const char* name : {"a", ".b", ".hidden/c", "plain/.d"}) zoo::makeFile(folder / name, 10000);
    ASSERT_EQ(::symlink("/usr", (folder / ".link").c_str()), 0);
    const std::uint64_t one = allocated(folder / "a");
    EXPECT_EQ(manager.allocatedSizeBelow(folder.path()), one);
    EXPECT_EQ(manager.fullSizeBelow(folder.path()), 4 * one + allocated(folder / ".link"));
    EXPECT_EQ(manager.fullSizeBelow(folder / "missing"), 0U);
}

TEST(LinuxFileManager, propertiesTellTheOwner) {
    const TempFolder folder;
    zoo::makeFile(folder / "file");
    EXPECT_TRUE(manager.properties(folder.path())->isOwn);
    EXPECT_TRUE(manager.properties(folder / "file")->isOwn);
    EXPECT_TRUE(
        asOrdinaryUser([] { return !manager.properties("/etc/passwd")->isOwn && !manager.properties("/etc")->isOwn; }));
}

TEST(LinuxFileManager, propertiesDoNotFollowLinks) {
    const TempFolder folder;
    zoo::makeFile(folder / "file", 10000);
    zoo::makeFolder(folder / "folder");
    ASSERT_EQ(::symlink("folder", (folder / "link").c_str()), 0);

    const auto file = manager.properties(folder / "file");
    ASSERT_TRUE(file);
    EXPECT_FALSE(file->isDirectory);
    EXPECT_FALSE(file->isLink);
    EXPECT_EQ(file->allocatedSize, allocated(folder / "file"));
    EXPECT_GE(file->allocatedSize, 10000u);

    const auto directory = manager.properties(folder / "folder");
    ASSERT_TRUE(directory);
    EXPECT_TRUE(directory->isDirectory);
    EXPECT_FALSE(directory->isLink);
    EXPECT_EQ(directory->allocatedSize, 0u);

    const auto link = manager.properties(folder / "link");
    ASSERT_TRUE(link);
    EXPECT_FALSE(link->isDirectory);
    EXPECT_TRUE(link->isLink);

    EXPECT_FALSE(manager.properties(folder / "missing"));
}

TEST(LinuxFileManager, holesCountNothing) {
    const TempFolder folder;
    zoo::makeFile(folder / "sparse");
    ASSERT_EQ(::truncate((folder / "sparse").c_str(), 1 << 30), 0);
    EXPECT_LT(manager.properties(folder / "sparse")->allocatedSize, 1u << 20);
    EXPECT_LT(manager.allocatedSizeBelow(folder.path()), 1u << 20);
}

TEST(LinuxFileManager, listHoldsAllNamesExceptDots) {
    const TempFolder folder;
    zoo::makeFile(folder / "file");
    zoo::makeFile(folder / ".hidden");
    zoo::makeFile(folder / "line\nbreak");
    zoo::makeFile(folder / "no text \xff");
    zoo::makeFolder(folder / "folder");
    EXPECT_THAT(manager.list(folder.path()),
                Optional(UnorderedElementsAre("file", ".hidden", "line\nbreak", "no text \xff", "folder")));
    EXPECT_THAT(manager.list(folder / "folder"), Optional(IsEmpty()));
}

TEST(LinuxFileManager, listOfANonFolderIsAbsent) {
    const TempFolder folder;
    zoo::makeFile(folder / "file");
    ASSERT_EQ(::mkfifo((folder / "pipe").c_str(), 0644), 0);
    EXPECT_FALSE(manager.list(folder / "file"));
    EXPECT_FALSE(manager.list(folder / "pipe"));
    EXPECT_FALSE(manager.list(folder / "missing"));
    zoo::makeFolder(folder / "locked");
    ::chmod((folder / "locked").c_str(), 0);
    EXPECT_TRUE(asOrdinaryUser([&] { return !manager.list(folder / "locked"); }));
}

TEST(LinuxFileManager, inspectsPathsLongerThanPathMax) {
    const TempFolder folder;
    const std::string path = makeChain(folder.path(), std::string(200, 'd'), 60);
    EXPECT_FALSE(manager.exists(path)) << "what no program reaches by its path is not asked for by its path";
    EXPECT_FALSE(manager.exists(path + "/missing"));
    EXPECT_TRUE(manager.properties(path)->isDirectory);
    EXPECT_GE(manager.properties(path + "/end")->allocatedSize, 8192u);
    EXPECT_THAT(manager.list(path), Optional(ElementsAre("end")));
    EXPECT_EQ(manager.allocatedSizeBelow(path), manager.properties(path + "/end")->allocatedSize);
    EXPECT_EQ(manager.allocatedSizeBelow(folder.path()), manager.properties(path + "/end")->allocatedSize);
    EXPECT_FALSE(manager.exists(std::string(5000, 'n')));
}

TEST(LinuxFileManager, sizeBelowCountsFilesNotFolders) {
    const TempFolder folder;
    zoo::makeFile(folder / "a", 5000);
    zoo::makeFile(folder / "one/b", 70000);
    zoo::makeFile(folder / "one/two/c", 1);
    zoo::makeFile(folder / "three/d", 300000);
    zoo::makeFolder(folder / "empty/emptier");
    std::uint64_t expected = 0;
    for (const char* name : {"a", "one/b", "one/two/c", "three/d"}) expected += allocated(folder / name);
    EXPECT_EQ(manager.allocatedSizeBelow(folder.path()), expected);
    EXPECT_EQ(manager.allocatedSizeBelow(folder / "empty"), 0u);
}

TEST(LinuxFileManager, sizeBelowOmitsHiddenEntries) {
    const TempFolder folder;
    zoo::makeFile(folder / "seen", 5000);
    zoo::makeFile(folder / ".hidden", 50000);
    zoo::makeFile(folder / ".folder/seen", 50000);
    zoo::makeFile(folder / "one/.hidden", 50000);
    zoo::makeFile(folder / "one/.folder/two/seen", 50000);
    EXPECT_EQ(manager.allocatedSizeBelow(folder.path()), allocated(folder / "seen"));
    EXPECT_EQ(manager.allocatedSizeBelow(folder / ".folder"), allocated(folder / ".folder/seen"));
}

TEST(LinuxFileManager, sizeBelowIncludesPackages) {
    const TempFolder folder;
    zoo::makeFile(folder / "Some.app/Contents/MacOS/some", 50000);
    EXPECT_EQ(manager.allocatedSizeBelow(folder.path()), allocated(folder / "Some.app/Contents/MacOS/some"));
}

TEST(LinuxFileManager, sizeBelowDoesNotFollowLinks) {
    const TempFolder folder;
    const TempFolder outside;
    zoo::makeFile(outside / "large", 1000000);
    ASSERT_EQ(::symlink(outside.path().c_str(), (folder / "away").c_str()), 0);
    ASSERT_EQ(::symlink((outside / "large").c_str(), (folder / "file").c_str()), 0);
    ASSERT_EQ(::symlink(".", (folder / "circle").c_str()), 0);
    const std::string longTarget(200, 't');  // stored in a block of its own on many volumes
    ASSERT_EQ(::symlink(longTarget.c_str(), (folder / "long").c_str()), 0);
    std::uint64_t expected = 0;
    for (const char* name : {"away", "file", "circle", "long"}) expected += allocated(folder / name);
    EXPECT_EQ(manager.allocatedSizeBelow(folder.path()), expected);
}

TEST(LinuxFileManager, sizeBelowCountsEveryHardLink) {
    const TempFolder folder;
    zoo::makeFile(folder / "a", 50000);
    zoo::makeFolder(folder / "one");
    ASSERT_EQ(::link((folder / "a").c_str(), (folder / "b").c_str()), 0);
    ASSERT_EQ(::link((folder / "a").c_str(), (folder / "one/c").c_str()), 0);
    EXPECT_EQ(manager.allocatedSizeBelow(folder.path()), 3 * allocated(folder / "a"));
}

TEST(LinuxFileManager, sizeBelowUnreadableFolderIsZero) {
    const TempFolder folder;
    zoo::makeFile(folder / "locked/file", 50000);
    zoo::makeFile(folder / "open/file", 50000);
    const std::uint64_t readable = allocated(folder / "open/file");
    ::chmod((folder / "locked").c_str(), 0);
    EXPECT_TRUE(asOrdinaryUser([&] {
        return manager.allocatedSizeBelow(folder.path()) == readable &&
               manager.allocatedSizeBelow(folder / "locked") == 0;
    }));
    EXPECT_EQ(manager.allocatedSizeBelow(folder / "missing"), 0u);
    EXPECT_EQ(manager.allocatedSizeBelow(folder / "open/file"), 0u);
}

TEST(LinuxFileManager, sizeBelowAcceptsNamesThatAreNotUtf8) {
    const TempFolder folder;
    zoo::makeFile(folder / "\xff\xfe/\n/file", 50000);
    EXPECT_EQ(manager.allocatedSizeBelow(folder.path()), allocated(folder / "\xff\xfe/\n/file"));
}

TEST(LinuxFileManager, sizeBelowWalksFiftyThousandNestedFolders) {
    const TempFolder folder(TempFolder::Medium::memory);
    makeChain(folder.path(), "d", 50000);
    zoo::makeFile(folder / "d/d/top", 8192);
    EXPECT_EQ(manager.allocatedSizeBelow(folder.path()), 2 * allocated(folder / "d/d/top"));
}

TEST(LinuxFileManager, createsFoldersReplacesAndReadsFiles) {
    const TempFolder folder;
    EXPECT_FALSE(manager.replaceDurably(folder / "a/b/file", "content"));
    EXPECT_TRUE(manager.createDirectories(folder / "a/b"));
    EXPECT_TRUE(manager.replaceDurably(folder / "a/b/file", "content"));
    EXPECT_THAT(manager.read(folder / "a/b/file"), Optional(std::string("content")));
    EXPECT_FALSE(manager.read(folder / "a/b"));
}

TEST(LinuxFileManager, tryOpenReturnsErrno) {
    const TempFolder folder;
    zoo::makeFile(folder / "file");
    zoo::makeFile(folder / "locked");
    ASSERT_EQ(::chmod((folder / "locked").c_str(), 0), 0);
    ASSERT_EQ(::mkfifo((folder / "pipe").c_str(), 0600), 0);
    EXPECT_EQ(manager.tryOpen(folder / "file"), 0);
    EXPECT_EQ(manager.tryOpen(folder.path()), 0);
    EXPECT_EQ(manager.tryOpen(folder / "pipe"), 0);  // does not wait for a writer
    EXPECT_EQ(manager.tryOpen(folder / "missing"), ENOENT);
    EXPECT_EQ(manager.tryOpen(folder / "file/below"), ENOTDIR);
    EXPECT_TRUE(asOrdinaryUser([&] { return manager.tryOpen(folder / "locked") == EACCES; }));
}

}  // namespace
}  // namespace zelk
