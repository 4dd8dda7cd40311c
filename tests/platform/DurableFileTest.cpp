// SPDX-License-Identifier: MIT
#include "platform/posix/DurableFile.h"

#include <fcntl.h>
#include <gmock/gmock.h>
#include <signal.h>
#include <sys/file.h>
#include <sys/resource.h>
#include <sys/stat.h>

#include <thread>
#include <vector>

#ifdef __linux__
#include <sched.h>
#include <sys/mount.h>
#endif

#include "fakes/InChild.h"
#include "fakes/TestFiles.h"
#include "platform/posix/Descriptor.h"
#include "zoo/TempFolder.h"

namespace zelk {
namespace {

using fakes::asOrdinaryUser;
using fakes::fileContent;
using fakes::inChild;
using fakes::namesIn;

using fakes::writeFile;
using testing::ElementsAre;
using zoo::TempFolder;

const std::string staleName = ".zelk-write-0123456789abcdef";

unsigned permissions(const std::string& path) {
    struct stat status {};
    return ::lstat(path.c_str(), &status) == 0 ? status.st_mode & 07777 : 0;
}

bool isLink(const std::string& path) {
    struct stat status {};
    return ::lstat(path.c_str(), &status) == 0 && S_ISLNK(status.st_mode);
}

TEST(DurableFile, newFileIsReadableByItsOwnerOnly) {
    const TempFolder folder;
    const mode_t mask = ::umask(0);
    EXPECT_TRUE(replaceFileDurably(folder / "file", "content"));
    ::umask(mask);
    EXPECT_EQ(fileContent(folder / "file"), "content");
    EXPECT_EQ(permissions(folder / "file"), 0600u);
    EXPECT_THAT(namesIn(folder.path()), ElementsAre("file"));
}

TEST(DurableFile, shorterContentReplacesTheWholeFile) {
    const TempFolder folder;
    writeFile(folder / "file", std::string(100000, 'x'));
    EXPECT_TRUE(replaceFileDurably(folder / "file", "short"));
    EXPECT_EQ(fileContent(folder / "file"), "short");
}

TEST(DurableFile, writesAndReadsAnyBytes) {
    const TempFolder folder;
    const std::string zeros("\0\xff\n\0", 4);
    std::string large;
    for (int i = 0; i < 1000000; ++i) large += static_cast<char>(i * 7);
    for (const std::string& content : {std::string(), zeros, large, std::string(4096, 'p'), std::string(4095, 'p')}) {
        EXPECT_TRUE(replaceFileDurably(folder / "file", content));
        EXPECT_EQ(fileContent(folder / "file"), content);
        EXPECT_EQ(readWholeFile(folder / "file"), content);
    }
}

TEST(DurableFile, keepsPermissionsOfExistingFile) {
    const TempFolder folder;
    for (const unsigned mode : {0644u, 0640u, 0400u}) {
        writeFile(folder / "file", "old");
        ::chmod((folder / "file").c_str(), mode);
        EXPECT_TRUE(replaceFileDurably(folder / "file", "new"));
        EXPECT_EQ(permissions(folder / "file"), mode);
        ::unlink((folder / "file").c_str());
    }
}

TEST(DurableFile, replacesTargetOfLink) {
    const TempFolder folder;
    ::mkdir((folder / "dotfiles").c_str(), 0755);
    writeFile(folder / "dotfiles/file", "old");
    ASSERT_EQ(::symlink("dotfiles/file", (folder / "relative").c_str()), 0);
    ASSERT_EQ(::symlink((folder / "relative").c_str(), (folder / "absolute").c_str()), 0);
    EXPECT_TRUE(replaceFileDurably(folder / "relative", "one"));
    EXPECT_EQ(fileContent(folder / "dotfiles/file"), "one");
    EXPECT_TRUE(replaceFileDurably(folder / "absolute", "two"));
    EXPECT_EQ(fileContent(folder / "dotfiles/file"), "two");
    EXPECT_TRUE(isLink(folder / "relative"));
    EXPECT_TRUE(isLink(folder / "absolute"));
    EXPECT_THAT(namesIn(folder / "dotfiles"), ElementsAre("file"));
}

TEST(DurableFile, followsLinkWithLongTarget) {
    const TempFolder folder;
    std::string target = folder.path();
    for (int i = 0; i < 10; ++i) {
        target += "/" + std::string(100, 'd');
        ASSERT_EQ(::mkdir(target.c_str(), 0755), 0);
    }
    target += "/file";
    ASSERT_EQ(::symlink(target.c_str(), (folder / "link").c_str()), 0);
    EXPECT_TRUE(replaceFileDurably(folder / "link", "content"));
    EXPECT_EQ(fileContent(target), "content");
}

TEST(DurableFile, danglingLinkCreatesItsTarget) {
    const TempFolder folder;
    ASSERT_EQ(::symlink("real", (folder / "link").c_str()), 0);
    EXPECT_TRUE(replaceFileDurably(folder / "link", "content"));
    EXPECT_EQ(fileContent(folder / "real"), "content");
    EXPECT_TRUE(isLink(folder / "link"));
}

TEST(DurableFile, linkIntoMissingFolderFails) {
    const TempFolder folder;
    ASSERT_EQ(::symlink("missing/real", (folder / "link").c_str()), 0);
    EXPECT_FALSE(replaceFileDurably(folder / "link", "content"));
    EXPECT_THAT(namesIn(folder.path()), ElementsAre("link"));
}

TEST(DurableFile, linkLoopFails) {
    const TempFolder folder;
    ASSERT_EQ(::symlink("b", (folder / "a").c_str()), 0);
    ASSERT_EQ(::symlink("a", (folder / "b").c_str()), 0);
    EXPECT_FALSE(replaceFileDurably(folder / "a", "content"));
    EXPECT_THAT(namesIn(folder.path()), ElementsAre("a", "b"));
}

TEST(DurableFile, replacesRegularFilesOnly) {
    const TempFolder folder;
    ::mkdir((folder / "folder").c_str(), 0755);
    ASSERT_EQ(::mkfifo((folder / "pipe").c_str(), 0644), 0);
    ASSERT_EQ(::symlink("/dev/null", (folder / "device").c_str()), 0);
    for (const char* name : {"folder", "pipe", "device"}) {
        EXPECT_FALSE(replaceFileDurably(folder / name, "content")) << name;
        EXPECT_EQ(readWholeFile(folder / name), std::nullopt) << name;
    }
    struct stat status {};
    ASSERT_EQ(::stat("/dev/null", &status), 0);
    EXPECT_TRUE(S_ISCHR(status.st_mode));
    EXPECT_THAT(namesIn(folder.path()), ElementsAre("device", "folder", "pipe"));
}

TEST(DurableFile, pathWithoutNameFails) {
    const TempFolder folder;
    for (const std::string& path :
         {std::string(), std::string("/"), folder.path() + "/", folder / ".", folder / ".."}) {
        EXPECT_FALSE(replaceFileDurably(path, "content")) << path;
    }
}

TEST(DurableFile, missingFolderFailsAndIsNotCreated) {
    const TempFolder folder;
    EXPECT_FALSE(replaceFileDurably(folder / "missing/file", "content"));
    EXPECT_THAT(namesIn(folder.path()), ElementsAre());
}

TEST(DurableFile, writesFileWithLongestName) {
    const TempFolder folder;
    const std::string name(255, 'n');
    EXPECT_TRUE(replaceFileDurably(folder / name, "content"));
    EXPECT_THAT(namesIn(folder.path()), ElementsAre(name));
    EXPECT_FALSE(replaceFileDurably(folder / (name + "n"), "content"));
    EXPECT_THAT(namesIn(folder.path()), ElementsAre(name));
}

TEST(DurableFile, relativePathIsInTheWorkingDirectory) {
    const TempFolder folder;
    EXPECT_TRUE(inChild([&] {
        return ::chdir(folder.path().c_str()) == 0 && replaceFileDurably("file", "content") &&
               createDirectoryTree("a/b") && replaceFileDurably("a/b/file", "content");
    }));
    EXPECT_EQ(fileContent(folder / "file"), "content");
    EXPECT_EQ(fileContent(folder / "a/b/file"), "content");
}

TEST(DurableFile, unwritableFolderKeepsTheOldContent) {
    const TempFolder folder;
    writeFile(folder / "file", "old");
    ::chmod(folder.path().c_str(), 0555);
    EXPECT_TRUE(asOrdinaryUser([&] { return !replaceFileDurably(folder / "file", "new"); }));
    EXPECT_EQ(fileContent(folder / "file"), "old");
    EXPECT_THAT(namesIn(folder.path()), ElementsAre("file"));
}

TEST(DurableFile, partialWriteKeepsTheOldContent) {
    const TempFolder folder;
    writeFile(folder / "file", "old");
    // The first write is truncated at the limit, the next one fails.
    EXPECT_TRUE(inChild([&] {
        ::signal(SIGXFSZ, SIG_IGN);
        const rlimit limit{5000, 5000};
        return ::setrlimit(RLIMIT_FSIZE, &limit) == 0 && !replaceFileDurably(folder / "file", std::string(9000, 'n')) &&
               replaceFileDurably(folder / "other", std::string(5000, 'n'));
    }));
    EXPECT_EQ(fileContent(folder / "file"), "old");
    EXPECT_THAT(namesIn(folder.path()), ElementsAre("file", "other"));
}

#ifdef __linux__
TEST(DurableFile, fullVolumeKeepsTheOldContent) {
    const TempFolder folder;
    EXPECT_TRUE(inChild([&] {
        // A volume of 64 KiB visible to this child only.
        const int own = CLONE_NEWNS | (::geteuid() == 0 ? 0 : CLONE_NEWUSER);
        if (::unshare(own) != 0 || ::mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) != 0 ||
            ::mount("tmpfs", folder.path().c_str(), "tmpfs", 0, "size=64k") != 0) {
            std::fputs("This test mounts a tmpfs in a namespace of its own, which is not permitted here.\n", stderr);
            return false;
        }
        const std::string old(30000, 'o');
        const std::string file = folder / "file";
        if (!replaceFileDurably(file, old)) return false;
        if (replaceFileDurably(file, std::string(50000, 'n'))) return false;
        if (fileContent(file) != old || namesIn(folder.path()).size() != 1) return false;
        return replaceFileDurably(file, "small") && fileContent(file) == "small";
    }));
}
#endif

TEST(DurableFile, nextWriteRemovesTemporaryFileOfKilledWriter) {
    const TempFolder folder;
    writeFile(folder / staleName, "half");
    writeFile(folder / ".zelk-write-fedcba9876543210", "of another file");
    EXPECT_TRUE(replaceFileDurably(folder / "file", "content"));
    EXPECT_THAT(namesIn(folder.path()), ElementsAre("file"));
}

TEST(DurableFile, keepsFilesThatOnlyLookTemporary) {
    const TempFolder folder;
    const std::vector<std::string> others{
        ".zelk-write-",
        ".zelk-write-0123456789abcde",
        ".zelk-write-0123456789abcdeX",
        ".zelk-write-0123456789abcdef0",
        "zelk-write-0123456789abcdef",
    };
    for (const std::string& name : others) writeFile(folder / name, "");
    ::mkdir((folder / staleName).c_str(), 0755);  // a folder is never a temporary file
    EXPECT_TRUE(replaceFileDurably(folder / "file", "content"));
    EXPECT_EQ(namesIn(folder.path()).size(), others.size() + 2);
}

TEST(DurableFile, sweepsNothingWhileAnotherWrites) {
    const TempFolder folder;
    writeFile(folder / staleName, "of a living writer");
    {
        const Descriptor other(::open(folder.path().c_str(), O_RDONLY | O_DIRECTORY));
        ASSERT_EQ(::flock(other.get(), LOCK_SH), 0);
        EXPECT_TRUE(replaceFileDurably(folder / "file", "content"));
        EXPECT_THAT(namesIn(folder.path()), ElementsAre(staleName, "file"));
    }
    EXPECT_TRUE(replaceFileDurably(folder / "file", "content"));
    EXPECT_THAT(namesIn(folder.path()), ElementsAre("file"));
}

/// Writes `rounds` times, each time one letter repeated to a different length.
bool writeOften(const std::string& path, char letter, int rounds) {
    bool all = true;
    for (int round = 0; round < rounds; ++round)
        all &= replaceFileDurably(path, std::string(1000 + 997 * round, letter));
    return all;
}

bool isOfOneLetter(const std::string& content) {
    return !content.empty() && content.find_first_not_of(content.front()) == std::string::npos;
}

TEST(DurableFile, concurrentProcessesNeverMixContent) {
    const TempFolder folder;
    const std::string file = folder / "file";
    writeFile(file, "o");
    std::vector<pid_t> writers;
    for (const char letter : {'a', 'b', 'c'}) {
        const pid_t child = ::fork();
        if (child == 0) ::_exit(writeOften(file, letter, 40) ? 0 : 1);
        writers.push_back(child);
    }
    for (int i = 0; i < 200; ++i) EXPECT_TRUE(isOfOneLetter(readWholeFile(file).value_or("")));
    for (const pid_t writer : writers) {
        int status = 1;
        ASSERT_EQ(::waitpid(writer, &status, 0), writer);
        EXPECT_EQ(status, 0);
    }
    EXPECT_TRUE(isOfOneLetter(fileContent(file)));
    EXPECT_THAT(namesIn(folder.path()), ElementsAre("file"));
}

TEST(DurableFile, concurrentThreadsNeverMixContent) {
    const TempFolder folder;
    bool succeeded[3] = {};
    std::vector<std::thread> writers;
    for (int i = 0; i < 3; ++i) {
        writers.emplace_back([&, i] { succeeded[i] = writeOften(folder / "file", static_cast<char>('a' + i), 40); });
    }
    for (std::thread& writer : writers) writer.join();
    EXPECT_THAT(succeeded, testing::Each(true));
    EXPECT_TRUE(isOfOneLetter(fileContent(folder / "file")));
    EXPECT_THAT(namesIn(folder.path()), ElementsAre("file"));
}

TEST(DurableFile, readingMissingFileIsAbsent) {
    const TempFolder folder;
    EXPECT_EQ(readWholeFile(folder / "missing"), std::nullopt);
    EXPECT_EQ(readWholeFile(""), std::nullopt);
}

TEST(DurableFile, readingUnreadableFileIsAbsent) {
    const TempFolder folder;
    writeFile(folder / "file", "secret");
    ::chmod((folder / "file").c_str(), 0);
    EXPECT_TRUE(asOrdinaryUser([&] { return !readWholeFile(folder / "file"); }));
}

TEST(DurableFile, readingTooLargeFileIsAbsent) {
    const TempFolder folder;
    writeFile(folder / "file", "");
    ASSERT_EQ(::truncate((folder / "file").c_str(), (off_t{256} << 20) + 1), 0);
    EXPECT_EQ(readWholeFile(folder / "file"), std::nullopt);
}

TEST(DurableFile, readingFileAboveTheGivenSizeIsAbsent) {
    const TempFolder folder;
    writeFile(folder / "file", "12345");
    EXPECT_EQ(readWholeFile(folder / "file", 5), "12345");
    EXPECT_EQ(readWholeFile(folder / "file", 4), std::nullopt);
}

TEST(DurableFile, createsFoldersForTheUserOnly) {
    const TempFolder folder;
    EXPECT_TRUE(createDirectoryTree(folder / "a/b/c"));
    for (const char* name : {"a", "a/b", "a/b/c"}) EXPECT_EQ(permissions(folder / name), 0700u) << name;
    ::chmod((folder / "a").c_str(), 0755);
    EXPECT_TRUE(createDirectoryTree(folder / "a/b/c"));
    EXPECT_EQ(permissions(folder / "a"), 0755u);
}

TEST(DurableFile, repeatedSlashesCreateNoOtherFolders) {
    const TempFolder folder;
    EXPECT_TRUE(createDirectoryTree(folder / "/a//b///"));
    EXPECT_THAT(namesIn(folder / "a"), ElementsAre("b"));
    EXPECT_TRUE(createDirectoryTree("/"));
    EXPECT_FALSE(createDirectoryTree(""));
}

TEST(DurableFile, fileInPlaceOfFolderFails) {
    const TempFolder folder;
    writeFile(folder / "file", "content");
    EXPECT_FALSE(createDirectoryTree(folder / "file"));
    EXPECT_FALSE(createDirectoryTree(folder / "file/below"));
    EXPECT_EQ(fileContent(folder / "file"), "content");
}

TEST(DurableFile, acceptsLinkToFolder) {
    const TempFolder folder;
    ::mkdir((folder / "real").c_str(), 0755);
    ASSERT_EQ(::symlink("real", (folder / "link").c_str()), 0);
    ASSERT_EQ(::symlink("nothing", (folder / "dangling").c_str()), 0);
    EXPECT_TRUE(createDirectoryTree(folder / "link"));
    EXPECT_TRUE(createDirectoryTree(folder / "link/below"));
    EXPECT_THAT(namesIn(folder / "real"), ElementsAre("below"));
    EXPECT_FALSE(createDirectoryTree(folder / "dangling"));
}

TEST(DurableFile, forbiddenFolderFails) {
    const TempFolder folder;
    ::chmod(folder.path().c_str(), 0555);
    EXPECT_TRUE(asOrdinaryUser([&] { return !createDirectoryTree(folder / "a/b"); }));
    EXPECT_THAT(namesIn(folder.path()), ElementsAre());
}

TEST(DurableFile, concurrentCreationSucceedsForBoth) {
    const TempFolder folder;
    for (int round = 0; round < 50; ++round) {
        const std::string path = folder / (std::to_string(round) + "/a/b/c");
        bool made[2] = {};
        std::thread other([&] { made[0] = createDirectoryTree(path); });
        made[1] = createDirectoryTree(path);
        other.join();
        EXPECT_THAT(made, ElementsAre(true, true));
    }
}

}  // namespace
}  // namespace zelk
