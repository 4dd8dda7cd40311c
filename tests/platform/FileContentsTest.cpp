// SPDX-License-Identifier: MIT
// What the search for duplicates sees of a real disk.
#include <fcntl.h>
#include <gmock/gmock.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

#include <cstdio>
#include <filesystem>
#include <limits>
#include <string>
#include <vector>

#include "fakes/InChild.h"
#include "fakes/Mounts.h"
#include "fakes/OpenDescriptors.h"
#include "fakes/TestFiles.h"
#include "platform/posix/PosixFileContents.h"
#include "zoo/TempFolder.h"

namespace zelk {
namespace {

using fakes::writeFile;
using testing::ElementsAre;
using testing::IsEmpty;

namespace fs = std::filesystem;
using Strings = std::vector<std::string>;

class FileContentsOnDisk : public testing::Test {
protected:
    Strings namesIn(FolderWalk& walk, std::int64_t smallest = 0) {
        Strings names;
        for (const FolderEntry& entry : walk.list(smallest)) names.push_back(entry.name + (entry.isFolder ? "/" : ""));
        return names;
    }
    Strings namesIn(const std::string& folder) {
        const auto walk = contents.walk(folder);
        return walk ? namesIn(*walk) : Strings{"<none>"};
    }
    static ItemPath item(const std::string& path) { return *ItemPath::from(path); }
    std::string textOf(FileReading& file, std::size_t most = 4096) {
        std::string text;
        std::vector<std::byte> buffer(most);
        while (const std::size_t got = file.read(buffer.data(), most).value_or(0))
            for (std::size_t at = 0; at < got; ++at) text += static_cast<char>(buffer[at]);
        return text;
    }

    const zoo::TempFolder temp;
    PosixFileContents contents;
};

}  // namespace

TEST_F(FileContentsOnDisk, listsNamesInByteOrder) {
    for (const std::string name : {"b", "B", "a", "\xC3\xA9", "\xFF\xFE", "a\nb", "10", "9", "~"})
        writeFile(temp / name, "x");
    fs::create_directory(temp / "aa");
    EXPECT_THAT(namesIn(temp.path()),
                ElementsAre("10", "9", "B", "a", "a\nb", "aa/", "b", "~", "\xC3\xA9", "\xFF\xFE"));
}

TEST_F(FileContentsOnDisk, leavesOutWhatIsHiddenOrNoRegularFile) {
    writeFile(temp / "file", "x");
    writeFile(temp / ".hidden", "x");
    fs::create_directory(temp / ".folder");
    fs::create_symlink(temp / "file", temp / "link");
    fs::create_directory_symlink(temp.path(), temp / "up");
    ASSERT_EQ(::mkfifo((temp / "pipe").c_str(), 0600), 0);
    const int socket = ::socket(AF_UNIX, SOCK_STREAM, 0);
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    (temp / "socket").copy(address.sun_path, sizeof address.sun_path - 1);
    ASSERT_EQ(::bind(socket, reinterpret_cast<sockaddr*>(&address), sizeof address), 0);
    ::close(socket);
    EXPECT_THAT(namesIn(temp.path()), ElementsAre("file"));
}

TEST_F(FileContentsOnDisk, leavesOutSmallerFilesAndTellsLengths) {
    writeFile(temp / "9", std::string(9, 'x'));
    writeFile(temp / "10", std::string(10, 'x'));
    writeFile(temp / "hole", "");
    fs::resize_file(temp / "hole", 5'000'000'000);
    const auto walk = contents.walk(temp.path());
    EXPECT_THAT(walk->list(10), ElementsAre(FolderEntry{"10", false, 10}, FolderEntry{"hole", false, 5'000'000'000}));
}

TEST_F(FileContentsOnDisk, walksDownAndUp) {
    fs::create_directories(temp / "a/b");
    writeFile(temp / "a/b/deep", "x");
    writeFile(temp / "a/high", "x");
    const auto walk = contents.walk(temp.path());
    const std::optional<FileIdentity> top = walk->identity();
    ASSERT_TRUE(walk->enter("a"));
    EXPECT_NE(walk->identity(), top);
    ASSERT_TRUE(walk->enter("b"));
    EXPECT_THAT(namesIn(*walk), ElementsAre("deep"));
    walk->leave();
    EXPECT_THAT(namesIn(*walk), ElementsAre("b/", "high"));
    EXPECT_THAT(namesIn(*walk), ElementsAre("b/", "high")) << "a second time";
    walk->leave();
    EXPECT_EQ(walk->identity(), top);
}

TEST_F(FileContentsOnDisk, entersNeitherLinksNorFiles) {
    fs::create_directory(temp / "folder");
    fs::create_directory_symlink(temp / "folder", temp / "link");
    writeFile(temp / "file", "x");
    const auto walk = contents.walk(temp.path());
    for (const char* name : {"link", "file", "missing"}) EXPECT_FALSE(walk->enter(name)) << name;
    EXPECT_THAT(namesIn(*walk), ElementsAre("file", "folder/")) << "the current folder is the same";
}

TEST_F(FileContentsOnDisk, resolvesLinksInRoot) {
    fs::create_directories(temp / "real/sub");
    fs::create_directory_symlink(temp / "real", temp / "link");
    const std::string real = fs::canonical(temp / "real/sub").string();
    EXPECT_EQ(contents.walk(temp / "link/sub")->root(), real);
    EXPECT_EQ(contents.walk(temp / "real/./sub//")->root(), real);
    writeFile(temp / "file", "x");
    EXPECT_EQ(contents.walk(temp / "file"), nullptr);
    EXPECT_EQ(contents.walk(temp / "missing"), nullptr);
}

TEST_F(FileContentsOnDisk, walksBeyondTheLongestPath) {
    const std::string name(200, 'n');
    std::string path = temp.path();
    int folder = ::open(path.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    constexpr int depth = 40;
    for (int level = 0; level < depth; ++level) {
        ASSERT_EQ(::mkdirat(folder, name.c_str(), 0700), 0);
        const int next = ::openat(folder, name.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
        ::close(folder);
        folder = next;
        path += "/" + name;
    }
    const int file = ::openat(folder, "end", O_WRONLY | O_CREAT | O_CLOEXEC, 0600);
    ASSERT_EQ(::write(file, "deep", 4), 4);
    ::close(file);
    ::close(folder);

    const auto walk = contents.walk(temp.path());
    for (int level = 0; level < depth; ++level) ASSERT_TRUE(walk->enter(name));
    EXPECT_THAT(namesIn(*walk), ElementsAre("end"));
    for (int level = 0; level < depth; ++level) walk->leave();
    EXPECT_THAT(namesIn(*walk), ElementsAre(name + "/"));
    const auto reading = contents.open(*ItemPath::below(temp.path(), path + "/end"));
    ASSERT_NE(reading, nullptr);
    EXPECT_EQ(textOf(*reading), "deep");
    EXPECT_EQ(contents.stamp(*ItemPath::below(temp.path(), path + "/end")), reading->stamp());
}

TEST_F(FileContentsOnDisk, passesOverUnreadableFolders) {
    fs::create_directories(temp / "locked/inner");
    fs::create_directories(temp / "open");
    writeFile(temp / "closed", "x");
    fakes::giveToOrdinaryUser(temp.path());
    ASSERT_EQ(::chmod((temp / "locked").c_str(), 0), 0);
    ASSERT_EQ(::chmod((temp / "closed").c_str(), 0), 0);
    EXPECT_TRUE(fakes::asOrdinaryUser([&] {
        const auto walk = contents.walk(temp.path());
        EXPECT_THAT(namesIn(*walk), ElementsAre("closed", "locked/", "open/"));
        EXPECT_FALSE(walk->enter("locked"));
        EXPECT_TRUE(walk->enter("open"));
        EXPECT_EQ(contents.walk(temp / "locked"), nullptr);
        EXPECT_EQ(contents.open(item(temp / "closed")), nullptr);
        std::fflush(stdout);
        return !HasFailure();
    }));
}

TEST_F(FileContentsOnDisk, readsToTheEnd) {
    const std::string text(10'000, 't');
    writeFile(temp / "file", text);
    const auto reading = contents.open(item(temp / "file"));
    EXPECT_EQ(reading->stamp().size, 10'000);
    EXPECT_EQ(textOf(*reading, 4096), text);
    EXPECT_EQ(reading->read(nullptr, 0), 0U);
    EXPECT_EQ(reading->stampNow(), reading->stamp());
}

TEST_F(FileContentsOnDisk, prefetchDoesNotMoveTheReader) {
    writeFile(temp / "file", "text");
    const auto reading = contents.open(item(temp / "file"));
    reading->prefetch(0, 4);
    reading->prefetch(2, std::numeric_limits<int>::max());
    EXPECT_EQ(textOf(*reading), "text");
}

#ifdef __linux__
TEST_F(FileContentsOnDisk, readingThatFailsIsNoEnd) {
    // Its first page is not mapped.
    const auto reading = contents.open(item("/proc/self/mem"));
    ASSERT_NE(reading, nullptr);
    std::byte byte{};
    EXPECT_EQ(reading->read(&byte, 1), std::nullopt);
}

TEST_F(FileContentsOnDisk, staysOnTheMountOfTheRoot) {
    EXPECT_TRUE(fakes::inChild([&] {
        fakes::Mounts mounts;
        if (!mounts.allowed()) return false;
        fs::create_directories(temp / "root/again");
        fs::create_directories(temp / "root/plain");
        writeFile(temp / "root/plain/file", "x");
        writeFile(temp / "root/over", "over");
        writeFile(temp / "root/under", "under");
        mounts.memory(temp / "root/memory");
        mounts.again(temp / "root/plain", temp / "root/again");
        mounts.again(temp / "root/under", temp / "root/over");
        const auto walk = contents.walk(temp / "root");
        EXPECT_THAT(namesIn(*walk), ElementsAre("again/", "memory/", "plain/", "under"));
        EXPECT_FALSE(walk->enter("again"));
        EXPECT_FALSE(walk->enter("memory"));
        EXPECT_TRUE(walk->enter("plain"));
        // As a root, the other way to a folder leads to the same one.
        EXPECT_EQ(contents.walk(temp / "root/again")->identity(), walk->identity());
        std::fflush(stdout);
        return !HasFailure();
    }));
}
#endif

TEST_F(FileContentsOnDisk, opensOnlyRegularFilesAndNeverWaits) {
    writeFile(temp / "file", "x");
    fs::create_symlink(temp / "file", temp / "link");
    fs::create_directory(temp / "folder");
    ASSERT_EQ(::mkfifo((temp / "pipe").c_str(), 0600), 0);
    for (const char* name : {"link", "folder", "pipe", "missing", "missing/file", "file/inner"}) {
        EXPECT_EQ(contents.open(item(temp / name)), nullptr) << name;
        EXPECT_EQ(contents.stamp(item(temp / name)), std::nullopt) << name;
    }
    EXPECT_EQ(contents.open(item("/dev/null")), nullptr);
}

TEST_F(FileContentsOnDisk, followsNoLinkBelowTheRoot) {
    fs::create_directories(temp / "real");
    writeFile(temp / "real/file", "x");
    fs::create_directory_symlink(temp / "real", temp / "swapped");
    const auto below = ItemPath::below(temp.path(), temp / "swapped/file");
    EXPECT_EQ(contents.open(*below), nullptr);
    EXPECT_EQ(contents.stamp(*below), std::nullopt);
    EXPECT_NE(contents.open(*ItemPath::below(temp / "swapped", temp / "swapped/file")), nullptr)
        << "a link to the root";
}

TEST_F(FileContentsOnDisk, stampTellsEveryChange) {
    const std::string path = temp / "file";
    writeFile(path, "text");
    const timespec times[2] = {{1'000'000, 0}, {1'000'000, 5}};
    ASSERT_EQ(::utimensat(AT_FDCWD, path.c_str(), times, 0), 0);
    const FileStamp stamp = *contents.stamp(item(path));
    EXPECT_EQ(stamp.size, 4);
    EXPECT_EQ(stamp.modified, (FileTime{1'000'000, 5}));
    EXPECT_GT(stamp.changed.seconds, 1'000'000);
    struct stat status {};
    ASSERT_EQ(::stat(path.c_str(), &status), 0);
    EXPECT_EQ(stamp.identity, (FileIdentity{status.st_dev, status.st_ino}));
    EXPECT_EQ(contents.stamp(item(path)), stamp);

    writeFile(temp / "other", "text");
    ASSERT_EQ(::utimensat(AT_FDCWD, (temp / "other").c_str(), times, 0), 0);
    EXPECT_NE(contents.stamp(item(temp / "other")), stamp) << "another file";
    writeFile(path, "TEXT");
    EXPECT_NE(contents.stamp(item(path))->modified, stamp.modified);
    writeFile(path, "longer");
    EXPECT_EQ(contents.stamp(item(path))->size, 6);
}

TEST_F(FileContentsOnDisk, closesWhatItOpens) {
    fs::create_directories(temp / "a/b");
    writeFile(temp / "a/b/file", "x");
    const auto before = fakes::openDescriptors();
    {
        const auto walk = contents.walk(temp.path());
        walk->enter("a");
        walk->enter("b");
        walk->list(0);
        walk->enter("missing");
        contents.open(item(temp / "a/b/file"));
        contents.open(item(temp / "a/b"));
        contents.stamp(item(temp / "a/b/file"));
    }
    EXPECT_EQ(fakes::openDescriptors(), before);
}

}  // namespace zelk
