// SPDX-License-Identifier: MIT
#include "platform/linux/files/LinuxDirectoryReader.h"

#include <fcntl.h>
#include <gmock/gmock.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/statfs.h>
#include <sys/syscall.h>
#include <sys/sysmacros.h>
#include <unistd.h>

#include <filesystem>
#include <limits>
#include <map>
#include <string>
#include <thread>
#include <vector>

#include "fakes/HeapInUse.h"
#include "fakes/InChild.h"
#include "fakes/OpenDescriptors.h"
#include "fakes/SystemCallGate.h"
#include "fakes/TestFiles.h"
#include "platform/linux/files/StatxEntry.h"
#include "platform/posix/Descriptor.h"
#include "zoo/TempFolder.h"
#include "zoo/Zoo.h"

namespace zelk {
namespace {

namespace fs = std::filesystem;

using fakes::openDescriptors;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

using Entries = DirectoryReader::Entries;
using Names = std::vector<std::string>;

std::uint32_t vnodeType(mode_t mode) {
    switch (mode & S_IFMT) {
        case S_IFREG:
            return 1;
        case S_IFDIR:
            return 2;
        case S_IFBLK:
            return 3;
        case S_IFCHR:
            return 4;
        case S_IFLNK:
            return 5;
        case S_IFSOCK:
            return 6;
        case S_IFIFO:
            return 7;
        default:
            return 0;
    }
}

Names namesOf(const Entries* entries) {
    if (entries == nullptr) return {"<nullptr>"};
    Names names;
    for (const DirEntry& entry : *entries) names.emplace_back(entry.name);
    return names;
}

std::uint64_t blocksOf(const std::string& path) {
    struct stat status {};
    return ::lstat(path.c_str(), &status) == 0 ? static_cast<std::uint64_t>(status.st_blocks) * 512 : ~0ULL;
}

class LinuxDirectoryReaderTest : public testing::Test {
protected:
    std::shared_ptr<const DirectoryRoot> open(const std::string& path) {
        auto root = service.openRoot(path);
        EXPECT_NE(root, nullptr) << path;
        return root;
    }

    const Entries* read(const std::string& path) {
        kept = open(path);
        return kept ? reader->open(*kept, "") : nullptr;
    }

    /// The only entry called `name`.
    DirEntry entry(const std::string& folder, const std::string& name) {
        DirEntry found{};
        int times = 0;
        const Entries* const entries = read(folder);
        if (entries != nullptr) {
            for (const DirEntry& one : *entries) {
                if (one.name != name) continue;
                found = one;
                ++times;
            }
        }
        EXPECT_EQ(times, 1) << name;
        return found;
    }

    const zoo::TempFolder temp;
    const zoo::TempFolder memory{zoo::TempFolder::Medium::memory};
    LinuxDirectoryService service;
    std::unique_ptr<DirectoryReader> reader = service.makeReader();
    std::shared_ptr<const DirectoryRoot> kept;
};

TEST_F(LinuxDirectoryReaderTest, reportsEveryKindOfEntryLikeLstat) {
    zoo::makeSpecialFiles(temp / "folder");
    zoo::makeUnequalSizes(temp / "folder");
    zoo::makeLinks(temp / "folder", temp / "outside");
    zoo::makeHardLinks(temp / "folder", temp / "outside");
    zoo::makeNames(temp / "folder");
    for (const char* const folder : {"folder", "folder/a", "folder/files", "folder/folders"}) {
        const Entries* const entries = read(temp / folder);
        ASSERT_NE(entries, nullptr);
        EXPECT_EQ(entries->size(), fakes::namesIn(temp / folder).size());
        for (const DirEntry& one : *entries) {
            SCOPED_TRACE(std::string(one.name));
            struct stat status {};
            ASSERT_EQ(::lstat((temp / folder + "/" + std::string(one.name)).c_str(), &status), 0);
            const bool isFolder = S_ISDIR(status.st_mode);
            EXPECT_EQ(one.objType, vnodeType(status.st_mode));
            EXPECT_EQ(one.fileID, status.st_ino);
            EXPECT_EQ(one.linkCount, isFolder ? 0 : status.st_nlink);
            EXPECT_EQ(one.allocSize, isFolder ? 0 : static_cast<std::uint64_t>(status.st_blocks) * 512);
            EXPECT_EQ(one.deviceID, deviceNumber(major(status.st_dev), minor(status.st_dev)));
            EXPECT_EQ(one.modTime,
                      static_cast<double>(status.st_mtim.tv_sec) + static_cast<double>(status.st_mtim.tv_nsec) / 1e9);
        }
    }
}

TEST_F(LinuxDirectoryReaderTest, usesVnodeTypeNumbers) {
    zoo::makeSpecialFiles(temp.path());
    zoo::makeFile(temp / "file");
    zoo::makeFolder(temp / "folder");
    fs::create_symlink("folder", temp / "link");
    EXPECT_EQ(entry(temp.path(), "file").objType, 1u);
    EXPECT_EQ(entry(temp.path(), "folder").objType, directoryObjectType);
    EXPECT_EQ(entry(temp.path(), "link").objType, 5u);
    EXPECT_EQ(entry(temp.path(), "socket").objType, 6u);
    EXPECT_EQ(entry(temp.path(), "pipe").objType, 7u);
    EXPECT_EQ(entry("/dev", "null").objType, 4u);
}

TEST_F(LinuxDirectoryReaderTest, reportsLinkNotItsTarget) {
    zoo::makeFile(temp / "outside", 100000);
    fs::create_symlink(temp / "outside", temp / "link");
    fs::create_symlink(temp / "nowhere", temp / "dangling");
    fs::create_symlink(std::string(200, 'x'), temp / "long");  // takes a block of its own on a disk
    EXPECT_LT(entry(temp.path(), "link").allocSize, 100000u);
    EXPECT_EQ(entry(temp.path(), "link").allocSize, blocksOf(temp / "link"));
    EXPECT_EQ(entry(temp.path(), "dangling").objType, 5u);
    EXPECT_EQ(entry(temp.path(), "long").allocSize, blocksOf(temp / "long"));
}

TEST_F(LinuxDirectoryReaderTest, reportsAllocatedSizeNotLength) {
    zoo::makeUnequalSizes(temp.path());
    EXPECT_LT(entry(temp.path(), "hole.iso").allocSize, 1u << 20);
    EXPECT_GT(entry(temp.path(), "byte").allocSize, 1u);
    EXPECT_EQ(entry(temp.path(), "byte").allocSize % 512, 0u);
    EXPECT_EQ(entry(temp.path(), "none").allocSize, 0u);
    EXPECT_EQ(entry(temp.path(), "reserved").allocSize, blocksOf(temp / "reserved"));
    // Beyond 32 bits, in bytes and in blocks.
    const Descriptor vast(::open((temp / "vast").c_str(), O_WRONLY | O_CREAT | O_CLOEXEC, 0600));
    if (::fallocate(vast.get(), FALLOC_FL_KEEP_SIZE, 0, 5LL << 30) == 0) {
        EXPECT_GE(entry(temp.path(), "vast").allocSize, 5ULL << 30);
    }
}

TEST_F(LinuxDirectoryReaderTest, reportsLinkCountOfFilesOnly) {
    zoo::makeHardLinks(temp / "folder", temp / "outside");
    EXPECT_EQ(entry(temp / "folder/a", "first").linkCount, 3u);
    const std::uint64_t id = entry(temp / "folder/a", "second").fileID;
    EXPECT_EQ(entry(temp / "folder/b", "third").fileID, id);
    EXPECT_EQ(entry(temp / "folder/b", "here").linkCount, 2u);
    const DirEntry folder = entry(temp / "folder", "a");
    EXPECT_EQ(folder.linkCount, 0u);
    EXPECT_EQ(folder.allocSize, 0u);
}

TEST_F(LinuxDirectoryReaderTest, keepsFractionalAndNegativeTimes) {
    const auto withTime = [&](const char* name, timespec modified) {
        zoo::makeFile(temp / name);
        const timespec times[2] = {{1, 2}, modified};  // the access time differs
        ASSERT_EQ(::utimensat(AT_FDCWD, (temp / name).c_str(), times, 0), 0);
    };
    withTime("fraction", {1700000000, 123456789});
    withTime("end", {1700000000, 999999999});
    withTime("zero", {0, 0});
    withTime("before", {-2, 500000000});
    withTime("after2038", {4294967296 + 5, 250000000});
    EXPECT_EQ(entry(temp.path(), "fraction").modTime, 1700000000 + 123456789 / 1e9);
    EXPECT_EQ(entry(temp.path(), "end").modTime, 1700000000 + 999999999 / 1e9);
    EXPECT_EQ(entry(temp.path(), "zero").modTime, 0);
    EXPECT_EQ(entry(temp.path(), "before").modTime, -1.5);
    EXPECT_EQ(entry(temp.path(), "after2038").modTime, 4294967296 + 5.25);
}

TEST_F(LinuxDirectoryReaderTest, keepsNamesByteForByteAndOmitsOnlyDotAndDotDot) {
    const Names names{"...",     "....",    "..a", ".hidden", ".x.",   "\xFF\xFE",
                      "caf\xE9", "a\nb",    "%s",  " ",       "-",     std::string(255, '\xA0'),
                      "1",       "22",      "333", "4444",    "55555", "666666",
                      "7777777", "88888888"};
    for (const std::string& name : names) zoo::makeFile(temp / name);
    EXPECT_THAT(namesOf(read(temp.path())), testing::UnorderedElementsAreArray(names));
}

TEST_F(LinuxDirectoryReaderTest, emptyFolderIsAnEmptyList) {
    zoo::makeFolder(temp / "empty");
    for (int time = 0; time < 2; ++time) {
        const Entries* const entries = read(temp / "empty");
        ASSERT_NE(entries, nullptr);
        EXPECT_THAT(*entries, IsEmpty());
    }
}

TEST_F(LinuxDirectoryReaderTest, readsMoreEntriesThanABufferHolds) {
    for (const auto& [place, entryCount] : {std::pair{memory / "wide", 20000u}, std::pair{temp / "wide", 4000u}}) {
        zoo::makeWide(place, entryCount - 500, 500);
        std::set<std::string> names;
        std::set<std::uint64_t> ids;
        const Entries* const entries = read(place);
        ASSERT_NE(entries, nullptr);
        for (const DirEntry& one : *entries) {
            names.emplace(one.name);
            ids.insert(one.fileID);
        }
        EXPECT_EQ(entries->size(), entryCount);
        EXPECT_EQ(ids.size(), entryCount);
        EXPECT_EQ(names, fakes::namesIn(place));
    }
}

TEST_F(LinuxDirectoryReaderTest, readsBuffersOfLongestNames) {
    Names names;
    for (int number = 1000; number < 2000; ++number) names.push_back(std::to_string(number) + std::string(251, 'n'));
    for (const std::string& name : names) zoo::makeFile(memory / "long/" + name);
    EXPECT_THAT(namesOf(read(memory / "long")), testing::UnorderedElementsAreArray(names));
}

TEST_F(LinuxDirectoryReaderTest, keepsOrderOfDelivery) {
    zoo::makeWide(temp / "wide", 500, 50);
    Names delivered;
    for (const auto& one : fs::directory_iterator(temp / "wide")) delivered.push_back(one.path().filename());
    EXPECT_EQ(namesOf(read(temp / "wide")), delivered);
}

TEST_F(LinuxDirectoryReaderTest, listStaysValidWhileTheDiskChanges) {
    zoo::makeWide(memory / "wide", 3000, 100);
    const Entries* const entries = read(memory / "wide");
    ASSERT_NE(entries, nullptr);
    const Names before = namesOf(entries);
    fs::remove_all(memory / "wide");
    const auto other = service.makeReader();
    const auto root = open(memory.path());
    ASSERT_NE(other->open(*root, ""), nullptr);
    EXPECT_EQ(namesOf(entries), before);
}

TEST_F(LinuxDirectoryReaderTest, oneReaderReadsManyFolders) {
    std::map<std::string, Names> wanted;
    for (int folder = 0; folder < 60; ++folder) {
        const std::string path = memory / "many/" + std::to_string(folder);
        zoo::makeFolder(path);
        for (int file = 0; file < (folder * 37) % 90; ++file) {
            wanted[path].push_back(std::to_string(folder) + "-" + std::to_string(file));
            zoo::makeFile(path + "/" + wanted[path].back());
        }
        wanted[path];
    }
    zoo::makeWide(memory / "many/wide", 3000, 0);
    const auto root = open(memory / "many");
    const std::ptrdiff_t before = openDescriptors();
    for (const auto& [path, names] : wanted) {
        const std::string name = fs::path(path).filename();
        ASSERT_NE(reader->open(*root, ""), nullptr);
        ASSERT_EQ(reader->descend("wide")->size(), 3000u);
        reader->ascend();
        EXPECT_THAT(namesOf(reader->descend(name)), testing::UnorderedElementsAreArray(names));
        reader->ascend();
        EXPECT_EQ(reader->descend("nowhere"), nullptr);
        reader->ascend();
        EXPECT_THAT(namesOf(reader->open(*root, name)), testing::UnorderedElementsAreArray(names));
    }
    reader.reset();
    EXPECT_EQ(openDescriptors(), before);
}

TEST_F(LinuxDirectoryReaderTest, releasesMemoryOfALargeFolder) {
    constexpr std::ptrdiff_t quarter = 256 * 1024;
    zoo::makeFile(memory / "small/file");
    for (int number = 0; number < 22000; ++number)
        zoo::makeFile(memory / "large/" + std::to_string(number) + std::string(200, 'n'));
    ASSERT_EQ(read(memory / "small")->size(), 1u);
    const auto before = static_cast<std::ptrdiff_t>(fakes::heapInUse());
    ASSERT_EQ(read(memory / "large")->size(), 22000u);
    EXPECT_GT(static_cast<std::ptrdiff_t>(fakes::heapInUse()) - before, 20 * quarter);
    const Entries* const entries = read(memory / "small");
    ASSERT_EQ(entries->size(), 1u);
    EXPECT_LT(static_cast<std::ptrdiff_t>(fakes::heapInUse()) - before, quarter);
    EXPECT_LT(entries->capacity() * sizeof(DirEntry), static_cast<std::size_t>(quarter));
}

// As a walk does: the name lies in memory that the step overwrites.
TEST_F(LinuxDirectoryReaderTest, descendAcceptsNameFromItsOwnList) {
    const std::string name(255, 'd');
    zoo::makeFile(temp / "root/" + name + "/below/file");
    const auto root = open(temp / "root");
    const Entries* entries = reader->open(*root, "");
    ASSERT_EQ(namesOf(entries), Names{name});
    entries = reader->descend(entries->front().name);
    ASSERT_EQ(namesOf(entries), Names{"below"});
    EXPECT_EQ(namesOf(reader->descend(entries->front().name)), Names{"file"});
}

TEST_F(LinuxDirectoryReaderTest, closesAllDescriptors) {
    zoo::makeChain(temp / "chain", 60, 100);
    const std::ptrdiff_t before = openDescriptors();
    {
        const auto root = service.openRoot(temp / "chain");
        const auto one = service.makeReader();
        ASSERT_NE(one->open(*root, ""), nullptr);
        for (int level = 0; level < 60; ++level) ASSERT_NE(one->descend(std::string(100, 'd')), nullptr);
        EXPECT_EQ(one->descend("nowhere"), nullptr);
    }
    EXPECT_EQ(service.openRoot(temp / "nowhere"), nullptr);
    EXPECT_EQ(service.openRoot(temp / "chain/" + std::string(100, 'd') + "/file"), nullptr);
    EXPECT_EQ(openDescriptors(), before);
}

TEST_F(LinuxDirectoryReaderTest, readsChainLongerThanPathMax) {
    constexpr int levels = 120;
    const std::string name(200, 'd');
    zoo::makeChain(temp / "chain", levels, name.size());
    const auto root = open(temp / "chain");
    std::string below;
    ASSERT_EQ(namesOf(reader->open(*root, "")), Names{name});
    for (int level = 1; level <= levels; ++level) {
        const Names wanted = level < levels ? Names{name, "file"} : Names{"file"};
        ASSERT_THAT(namesOf(reader->descend(name)), testing::UnorderedElementsAreArray(wanted)) << level;
        below += (below.empty() ? "" : "/") + name;
    }
    for (int level = levels - 1; level >= 1; --level) {
        ASSERT_TRUE(reader->ascend()) << level;
        ASSERT_EQ(reader->descend("file"), nullptr) << level;
        ASSERT_TRUE(reader->ascend()) << level;
    }
    EXPECT_EQ(namesOf(reader->open(*root, below)), Names{"file"});
    EXPECT_FALSE(reader->ascend()) << "it was opened there, and knows nothing above";
}

TEST_F(LinuxDirectoryReaderTest, forbiddenFolderIsUnreadable) {
    zoo::makeUnreadable(temp / "root");
    EXPECT_TRUE(fakes::asOrdinaryUser([&] {
        const auto root = service.openRoot(temp / "root");
        if (root == nullptr || reader->open(*root, "") == nullptr) return false;
        bool right = true;
        for (const char* const name : {"none", "search", "list"}) {
            right = right && reader->descend(name) == nullptr;
            reader->ascend();
            right = right && reader->open(*root, name) == nullptr;
            right = right && reader->open(*root, "") != nullptr;
        }
        const Entries* const empty = reader->descend("empty");
        return right && empty != nullptr && empty->empty() && service.openRoot(temp / "root/none") == nullptr;
    }));
}

TEST_F(LinuxDirectoryReaderTest, statusFollowsLinksAndTruncatesSeconds) {
    zoo::makeFolder(temp / "folder");
    fs::create_directory_symlink("folder", temp / "link");
    fs::create_directory_symlink("nowhere", temp / "dangling");
    const timespec times[2] = {{5, 0}, {1700000000, 900000000}};
    ASSERT_EQ(::utimensat(AT_FDCWD, (temp / "folder").c_str(), times, 0), 0);
    for (const char* const name : {"folder", "link"}) {
        const auto status = service.status(temp / name);
        ASSERT_TRUE(status) << name;
        EXPECT_EQ(status->modified, 1700000000);
        EXPECT_EQ(status->device, entry(temp.path(), "folder").deviceID);
    }
    EXPECT_FALSE(service.status(temp / "dangling"));
    EXPECT_FALSE(service.status(temp / "nowhere"));
    EXPECT_FALSE(service.status(""));
    EXPECT_TRUE(service.status("/dev/null"));
}

TEST_F(LinuxDirectoryReaderTest, statusAcceptsPathOfAnyLength) {
    const std::string name(250, 'd');
    zoo::makeChain(temp / "chain", 40, name.size());
    std::string path = temp / "chain";
    for (int level = 0; level < 40; ++level) path += "/" + name;
    EXPECT_TRUE(service.status(path));
    EXPECT_NE(service.openRoot(path), nullptr);
    EXPECT_EQ(namesOf(read(path)), Names{"file"});
    EXPECT_FALSE(service.status(path + "/nowhere"));
}

// Scans recognize mount points by this: both queries must return the same device number, for every device.
TEST_F(LinuxDirectoryReaderTest, rootAndEntriesHaveTheSameDevice) {
    for (const char* const path : {"/", "/proc", "/dev", "/dev/shm", "/sys"}) {
        const auto status = service.status(path);
        ASSERT_TRUE(status) << path;
        const Entries* const entries = read(path);
        ASSERT_NE(entries, nullptr) << path;
        int same = 0;
        for (const DirEntry& one : *entries) same += one.deviceID == status->device ? 1 : 0;
        EXPECT_TRUE(same > 0 || entries->empty()) << path;
    }
    EXPECT_NE(entry("/", "proc").deviceID, service.status("/")->device);
    EXPECT_EQ(entry("/", "proc").deviceID, service.status("/proc")->device);
}

TEST_F(LinuxDirectoryReaderTest, removedRootIsUnreadable) {
    zoo::makeFolder(temp / "gone");
    const auto root = open(temp / "gone");
    ASSERT_TRUE(fs::remove(temp / "gone"));
    EXPECT_EQ(reader->open(*root, ""), nullptr);
    EXPECT_EQ(reader->open(*root, "below"), nullptr);
}

TEST_F(LinuxDirectoryReaderTest, oneRootServesConcurrentReaders) {
    zoo::makeWide(memory / "wide", 2000, 20);
    const auto root = open(memory.path());
    std::vector<std::thread> threads;
    std::vector<std::size_t> found(4);
    for (std::size_t& count : found) {
        threads.emplace_back([&] {
            const auto own = service.makeReader();
            for (int time = 0; time < 10; ++time) {
                const Entries* const entries = own->open(*root, "wide");
                count += entries != nullptr ? entries->size() : 0;
                own->descend("folder1");
                own->ascend();
                own->open(*root, "");
            }
        });
    }
    for (std::thread& thread : threads) thread.join();
    EXPECT_EQ(found, std::vector<std::size_t>(4, 20200));
}

TEST(StatxEntry, distinguishesGoneFromFailed) {
    const zoo::TempFolder temp;
    zoo::makeFile(temp / "closed/file");
    ASSERT_EQ(::chmod((temp / "closed").c_str(), 0444), 0);
    const Descriptor folder(::open(temp.path().c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    const Descriptor closed(::open((temp / "closed").c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    DirEntry entry{};
    const char* const name = "closed";
    EXPECT_EQ(statxEntry(folder.get(), name, entry), StatxOutcome::ok);
    EXPECT_EQ(entry.name.data(), name);
    EXPECT_EQ(entry.name, "closed");
    EXPECT_EQ(statxEntry(folder.get(), "nowhere", entry), StatxOutcome::gone);
    EXPECT_EQ(statxEntry(-1, "file", entry), StatxOutcome::failed);
    EXPECT_EQ(statxEntry(folder.get(), std::string(256, 'x').c_str(), entry), StatxOutcome::failed);
    EXPECT_TRUE(fakes::asOrdinaryUser([&] { return statxEntry(closed.get(), "file", entry) == StatxOutcome::failed; }));
}

// The first flag would trigger automounts, the second would query a server for every file.
TEST(StatxEntry, triggersNoAutomountAndNoSync) {
    const zoo::TempFolder temp;
    zoo::makeFile(temp / "folder/file");
    for (const unsigned flag : {AT_NO_AUTOMOUNT, AT_STATX_DONT_SYNC, AT_SYMLINK_NOFOLLOW}) {
        EXPECT_TRUE(fakes::inChild([&] {
            const Descriptor folder(::open((temp / "folder").c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
            struct statx status;
            if (fakes::requireBits(SYS_statx, 2, flag, EIO) != 0) return false;
            const unsigned others = (AT_NO_AUTOMOUNT | AT_STATX_DONT_SYNC | AT_SYMLINK_NOFOLLOW) & ~flag;
            const bool refused = ::statx(folder.get(), "file", static_cast<int>(others), STATX_TYPE, &status) != 0;
            DirEntry entry{};
            return refused && statxEntry(folder.get(), "file", entry) == StatxOutcome::ok;
        })) << flag;
    }
}

TEST(DeviceNumber, packsTwelveMajorAndTwentyMinorBits) {
    EXPECT_EQ(deviceNumber(0, 0), 0);
    EXPECT_EQ(deviceNumber(0, 1), 1);
    EXPECT_EQ(deviceNumber(1, 0), 1 << 20);
    EXPECT_EQ(deviceNumber(8, 17), (8 << 20) + 17);
    EXPECT_EQ(deviceNumber(0, (1 << 20) - 1), (1 << 20) - 1);
    EXPECT_EQ(deviceNumber(2047, (1 << 20) - 1), std::numeric_limits<std::int32_t>::max());
    EXPECT_EQ(deviceNumber(2048, 0), std::numeric_limits<std::int32_t>::min());
    EXPECT_EQ(deviceNumber(4095, (1 << 20) - 1), -1);
}

}  // namespace
}  // namespace zelk
