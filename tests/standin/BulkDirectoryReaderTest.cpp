// SPDX-License-Identifier: MIT
#include "platform/macos/BulkDirectoryReader.h"

#include <fcntl.h>
#include <gmock/gmock.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/sysmacros.h>
#include <sys/un.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <map>
#include <string>
#include <thread>

#include "fakes/HeapInUse.h"
#include "platform/linux/files/LinuxDirectoryReader.h"
#include "platform/linux/files/StatxEntry.h"
#include "standin/BulkStandIn.h"

namespace zelk {
namespace {

namespace fs = std::filesystem;

constexpr std::size_t usual = 256 * 1024;

/// A temporary folder with a reader.
class BulkDirectoryReaderTest : public testing::TestWithParam<std::size_t> {
protected:
    BulkDirectoryReaderTest() {
        std::string pattern = fs::temp_directory_path() / "zelk-bulk-XXXXXX";
        top_ = mkdtemp(pattern.data());
        BulkStandIn::here() = {};
        BulkStandIn::unasked().clear();
    }
    ~BulkDirectoryReaderTest() override {
        BulkStandIn::here() = {};
        BulkStandIn::unasked().clear();
        fs::remove_all(top_);
    }

    std::string path(const std::string& name) const { return top_ + "/" + name; }
    void makeFile(const std::string& name, std::size_t bytes = 0) const {
        std::ofstream(path(name)) << std::string(bytes, 'x');
    }
    void makeFiles(int count) const {
        for (int i = 0; i < count; ++i) makeFile("file " + std::to_string(i), i % 3);
    }

    /// The entries of the temporary folder, read with a buffer of `bytes`.
    const DirectoryReader::Entries* read(std::size_t bytes = usual) {
        BulkDirectoryService service(bytes);
        reader_ = service.makeReader();
        root_ = service.openRoot(top_);
        return reader_->open(*root_, "");
    }

    std::string top_;
    std::shared_ptr<const DirectoryRoot> root_;
    std::unique_ptr<DirectoryReader> reader_;
};

/// The lstat results for all entries of a folder, by name.
std::map<std::string, struct stat> statsOf(const std::string& folder) {
    std::map<std::string, struct stat> stats;
    for (const auto& item : fs::directory_iterator(folder))
        EXPECT_EQ(lstat(item.path().c_str(), &stats[item.path().filename()]), 0) << item.path();
    return stats;
}

void expectEqualToLstat(const DirectoryReader::Entries& entries, const std::string& folder) {
    auto expected = statsOf(folder);
    for (const DirEntry& entry : entries) {
        const auto found = expected.find(std::string(entry.name));
        ASSERT_NE(found, expected.end()) << "twice, or not there: " << entry.name;
        const struct stat& status = found->second;
        const bool isDirectory = S_ISDIR(status.st_mode);
        EXPECT_EQ(entry.objType == directoryObjectType, isDirectory) << entry.name;
        EXPECT_EQ(entry.objType == 5, S_ISLNK(status.st_mode)) << entry.name;
        EXPECT_EQ(entry.fileID, status.st_ino) << entry.name;
        EXPECT_EQ(entry.linkCount, isDirectory ? 0 : status.st_nlink) << entry.name;
        EXPECT_EQ(entry.allocSize, isDirectory ? 0 : static_cast<std::uint64_t>(status.st_blocks) * 512) << entry.name;
        EXPECT_EQ(entry.deviceID, deviceNumber(major(status.st_dev), minor(status.st_dev))) << entry.name;
        EXPECT_EQ(entry.modTime,
                  static_cast<double>(status.st_mtim.tv_sec) + static_cast<double>(status.st_mtim.tv_nsec) / 1e9)
            << entry.name;
        expected.erase(found);
    }
    for (const auto& [name, status] : expected) ADD_FAILURE() << "left out: " << name;
}

TEST_P(BulkDirectoryReaderTest, reportsEveryKindOfEntryLikeLstat) {
    makeFile("empty");
    makeFile("some", 100000);
    makeFile("linked", 5000);
    fs::create_hard_link(path("linked"), path("linked again"));
    makeFile("sparse");
    ASSERT_EQ(truncate(path("sparse").c_str(), 1 << 30), 0);
    fs::create_directory(path("d"));
    fs::create_directory(path("a directory whose name is longer than the fields it lacks"));
    fs::create_symlink("d", path("link to a directory"));
    fs::create_symlink("nowhere", path("dangling"));
    ASSERT_EQ(mkfifo(path("pipe").c_str(), 0600), 0);
    ASSERT_EQ(mknod(path("device").c_str(), S_IFCHR | 0600, makedev(1, 3)), 0);
    const int server = socket(AF_UNIX, SOCK_STREAM, 0);
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    std::strcpy(address.sun_path, path("socket").c_str());
    ASSERT_EQ(bind(server, reinterpret_cast<const sockaddr*>(&address), sizeof address), 0);
    close(server);
    makeFile("line\nbreak");
    makeFile("not \xFF text");
    makeFile(".hidden");
    makeFile("...");
    timespec old[2] = {{0, UTIME_OMIT}, {-86400, 123456789}};
    ASSERT_EQ(utimensat(AT_FDCWD, path("empty").c_str(), old, 0), 0);

    const auto* entries = read(GetParam());
    ASSERT_NE(entries, nullptr);
    EXPECT_EQ(entries->size(), 16U);
    expectEqualToLstat(*entries, top_);
}

TEST_P(BulkDirectoryReaderTest, joinsBuffersInOrderOfDelivery) {
    constexpr int count = 3500;
    makeFiles(count);
    const auto* entries = read(GetParam());
    ASSERT_NE(entries, nullptr);
    EXPECT_EQ(entries->size(), static_cast<std::size_t>(count));
    EXPECT_GT(BulkStandIn::here().calls.size(), 2U);
    expectEqualToLstat(*entries, top_);

    std::vector<std::string> order;
    for (const DirEntry& entry : *entries) order.emplace_back(entry.name);
    std::vector<std::string> delivered;
    for (const auto& item : fs::directory_iterator(top_)) delivered.push_back(item.path().filename());
    EXPECT_EQ(order, delivered);
}

TEST_P(BulkDirectoryReaderTest, emptyDirectoryIsAnEmptyList) {
    const auto* entries = read(GetParam());
    ASSERT_NE(entries, nullptr);
    EXPECT_TRUE(entries->empty());
}

TEST_P(BulkDirectoryReaderTest, agreesWithTheLinuxReaderOnSystemFolders) {
    BulkDirectoryService bulk(GetParam());
    LinuxDirectoryService own;
    const auto bulkReader = bulk.makeReader();
    const auto ownReader = own.makeReader();
    for (const char* folder : {"/usr/include", "/usr/bin", "/etc"}) {
        const auto* got = bulkReader->open(*bulk.openRoot(folder), "");
        const auto* expected = ownReader->open(*own.openRoot(folder), "");
        ASSERT_NE(got, nullptr) << folder;
        ASSERT_NE(expected, nullptr) << folder;
        ASSERT_EQ(got->size(), expected->size()) << folder;
        for (std::size_t i = 0; i < got->size(); ++i) {
            const DirEntry& a = (*got)[i];
            const DirEntry& b = (*expected)[i];
            EXPECT_EQ(a.name, b.name);
            EXPECT_EQ(std::tie(a.objType, a.fileID, a.linkCount, a.allocSize, a.deviceID, a.modTime),
                      std::tie(b.objType, b.fileID, b.linkCount, b.allocSize, b.deviceID, b.modTime))
                << folder << '/' << a.name;
        }
    }
}

TEST_P(BulkDirectoryReaderTest, entriesWithErrorsHaveNoSizeAndKeepTheOthers) {
    makeFile("film.mov", 5000);
    makeFile("other", 5000);
    fs::create_directories(path("Documents"));
    makeFile("Documents/letter", 100);
    BulkStandIn::unasked() = {"film.mov", "Documents"};
    timespec modified[2] = {{0, UTIME_OMIT}, {1700000000, 0}};
    ASSERT_EQ(utimensat(AT_FDCWD, top_.c_str(), modified, 0), 0);
    const auto* entries = read(GetParam());
    ASSERT_NE(entries, nullptr);
    ASSERT_EQ(entries->size(), 3U);
    struct stat status;
    ASSERT_EQ(lstat(top_.c_str(), &status), 0);
    for (const DirEntry& entry : *entries) {
        const bool asked = entry.name == "other";
        EXPECT_EQ(entry.objType, asked ? 1U : directoryObjectType) << entry.name;
        EXPECT_EQ(entry.allocSize > 0, asked) << entry.name;
        EXPECT_EQ(entry.linkCount, asked ? 1U : 0U) << entry.name;
        EXPECT_EQ(entry.deviceID, deviceNumber(major(status.st_dev), minor(status.st_dev))) << entry.name;
        EXPECT_EQ(entry.modTime == 1700000000, !asked) << entry.name;
    }
    EXPECT_EQ(reader_->descend("film.mov"), nullptr) << "unreadable";
    reader_->ascend();
    entries = reader_->descend("Documents");
    ASSERT_NE(entries, nullptr) << "it can be opened after all";
    expectEqualToLstat(*entries, path("Documents"));
}

INSTANTIATE_TEST_SUITE_P(Buffers, BulkDirectoryReaderTest, testing::Values(usual, 4096, 300),
                         [](const auto& test) { return std::to_string(test.param) + "Bytes"; });

class BulkDirectoryReaderOnceTest : public BulkDirectoryReaderTest {};

TEST_F(BulkDirectoryReaderOnceTest, requestMatchesTheDecoder) {
    ASSERT_NE(read(), nullptr);
    ASSERT_FALSE(BulkStandIn::here().calls.empty());
    const BulkStandIn::Call& call = BulkStandIn::here().calls.front();
    EXPECT_EQ(call.request.bitmapcount, 5);
    EXPECT_EQ(call.request.commonattr, 0x8200040BU);
    EXPECT_EQ(call.request.fileattr, 5U);
    EXPECT_EQ(call.request.volattr, 0U);
    EXPECT_EQ(call.request.dirattr, 0U);
    EXPECT_EQ(call.request.forkattr, 0U);
    EXPECT_EQ(call.options, 9U);
    EXPECT_EQ(call.size, 0x40000U);
}

TEST_F(BulkDirectoryReaderOnceTest, failureAtAnyCallGivesNoList) {
    makeFiles(200);
    ASSERT_NE(read(4096), nullptr);
    const std::size_t calls = BulkStandIn::here().calls.size();
    ASSERT_GT(calls, 3U);
    for (std::size_t failing = 0; failing < calls; ++failing) {
        BulkStandIn::here() = {};
        BulkStandIn::here().failure = [=](std::size_t call) {
            return call == failing ? std::optional(EIO) : std::nullopt;
        };
        EXPECT_EQ(read(4096), nullptr) << failing;
        EXPECT_EQ(BulkStandIn::here().calls.size(), failing + 1) << "nothing is asked again";
    }
}

TEST_F(BulkDirectoryReaderOnceTest, failureWithoutErrnoEndsTheList) {
    makeFiles(200);
    BulkStandIn::here().failure = [](std::size_t call) { return call == 2 ? std::optional(0) : std::nullopt; };
    const auto* entries = read(4096);
    ASSERT_NE(entries, nullptr);
    const auto& calls = BulkStandIn::here().calls;
    ASSERT_EQ(calls.size(), 3U);
    const int delivered = calls[0].result + calls[1].result;
    EXPECT_LE(entries->size(), static_cast<std::size_t>(delivered));
    EXPECT_GE(entries->size(), static_cast<std::size_t>(delivered - 2)) << "only \".\" and \"..\" may be missing";
}

TEST_F(BulkDirectoryReaderOnceTest, ignoresStaleErrno) {
    BulkStandIn::here().failure = [](std::size_t) { return std::optional(0); };
    errno = EIO;
    const auto* entries = read();
    ASSERT_NE(entries, nullptr);
    EXPECT_TRUE(entries->empty());
}

TEST_F(BulkDirectoryReaderOnceTest, brokenRecordInAnyBufferGivesNoList) {
    makeFiles(200);
    for (const std::size_t broken : {0, 1, 2}) {
        BulkStandIn::here() = {};
        BulkStandIn::here().afterwards = [=](std::size_t call, void* buffer, int) {
            if (call == broken) std::memset(buffer, 0xFF, 4);
        };
        EXPECT_EQ(read(4096), nullptr) << broken;
    }
}

TEST_F(BulkDirectoryReaderOnceTest, recordLargerThanTheBufferGivesNoList) {
    makeFile("short");
    makeFile(std::string(255, 'n'));
    EXPECT_EQ(read(300), nullptr);
    const auto* entries = read(4096);
    ASSERT_NE(entries, nullptr);
    expectEqualToLstat(*entries, top_);
}

TEST_F(BulkDirectoryReaderOnceTest, continuesAfterAFailedDirectory) {
    makeFiles(10);
    BulkStandIn::here().failure = [](std::size_t call) { return call == 0 ? std::optional(EIO) : std::nullopt; };
    ASSERT_EQ(read(), nullptr);
    const auto* entries = reader_->open(*root_, "");
    ASSERT_NE(entries, nullptr);
    expectEqualToLstat(*entries, top_);
}

TEST_F(BulkDirectoryReaderOnceTest, preventsFetchingDatalessFolders) {
    for (const int before : {IOPOL_MATERIALIZE_DATALESS_FILES_DEFAULT, IOPOL_MATERIALIZE_DATALESS_FILES_ON}) {
        BulkStandIn::here() = {};
        BulkStandIn::materialising() = before;
        ASSERT_NE(read(), nullptr);
        for (const BulkStandIn::Call& call : BulkStandIn::here().calls)
            EXPECT_EQ(call.materialising, IOPOL_MATERIALIZE_DATALESS_FILES_OFF);
        int elsewhere = -1;
        std::thread([&] { elsewhere = BulkStandIn::materialising(); }).join();
        EXPECT_EQ(elsewhere, IOPOL_MATERIALIZE_DATALESS_FILES_DEFAULT);
        reader_.reset();
        EXPECT_EQ(BulkStandIn::materialising(), before);
    }
    BulkStandIn::materialising() = -1;
    ASSERT_NE(read(), nullptr);
    reader_.reset();
    EXPECT_EQ(BulkStandIn::materialising(), IOPOL_MATERIALIZE_DATALESS_FILES_DEFAULT);
}

TEST_F(BulkDirectoryReaderOnceTest, releasesMemoryOfALargeFolder) {
    constexpr std::ptrdiff_t quarter = 256 * 1024;
    fs::create_directory(path("small"));
    makeFile("small/file");
    fs::create_directory(path("large"));
    for (int number = 0; number < 22000; ++number) makeFile("large/" + std::to_string(number) + std::string(200, 'n'));
    BulkDirectoryService service;
    const auto root = service.openRoot(top_);
    const auto reader = service.makeReader();
    BulkStandIn::here().calls.reserve(1000);
    ASSERT_EQ(reader->open(*root, "small")->size(), 1U);
    const auto before = static_cast<std::ptrdiff_t>(fakes::heapInUse());
    ASSERT_EQ(reader->open(*root, "large")->size(), 22000U);
    EXPECT_GT(static_cast<std::ptrdiff_t>(fakes::heapInUse()) - before, 20 * quarter);
    const auto* entries = reader->open(*root, "small");
    ASSERT_EQ(entries->size(), 1U);
    EXPECT_LT(static_cast<std::ptrdiff_t>(fakes::heapInUse()) - before, quarter);
    EXPECT_LT(entries->capacity() * sizeof(DirEntry), static_cast<std::size_t>(quarter));
}

// It has everything about an entry with its name.
TEST_F(BulkDirectoryReaderOnceTest, hasNothingToShare) {
    struct Unasked : Helpers {
        bool run(SharedWork& work) override {
            ADD_FAILURE() << work.parts() << " parts";
            return false;
        }
    } helpers;
    makeFiles(3000);
    ASSERT_EQ(read()->size(), 3000U);
    reader_->setHelpers(&helpers);
    const DirectoryReader::Entries* const entries = reader_->open(*root_, "");
    ASSERT_NE(entries, nullptr);
    EXPECT_EQ(entries->size(), 3000U);
    EXPECT_EQ(reader_->timesSlept(), 0);
}

TEST_F(BulkDirectoryReaderOnceTest, descendsAndAscendsWithoutFollowingLinks) {
    fs::create_directories(path("a/b/c"));
    makeFile("a/b/file", 10);
    fs::create_directory_symlink("b", path("a/link"));
    ASSERT_NE(read(), nullptr);

    const auto* entries = reader_->descend("a");
    ASSERT_NE(entries, nullptr);
    expectEqualToLstat(*entries, path("a"));
    EXPECT_EQ(reader_->descend("link"), nullptr);
    reader_->ascend();
    EXPECT_EQ(reader_->descend("missing"), nullptr);
    EXPECT_EQ(reader_->descend("below what is missing"), nullptr);
    reader_->ascend();
    reader_->ascend();
    entries = reader_->descend("b");
    ASSERT_NE(entries, nullptr);
    expectEqualToLstat(*entries, path("a/b"));
    EXPECT_EQ(reader_->descend("file"), nullptr) << "not a directory";
    reader_->ascend();
    reader_->ascend();
    reader_->ascend();
    ASSERT_NE(reader_->descend("a"), nullptr);

    entries = reader_->open(*root_, "a/b");
    ASSERT_NE(entries, nullptr);
    expectEqualToLstat(*entries, path("a/b"));
    EXPECT_EQ(reader_->open(*root_, "a/link"), nullptr);
}

TEST_F(BulkDirectoryReaderOnceTest, rootMustBeADirectoryOrALinkToOne) {
    makeFile("file");
    fs::create_directory_symlink(top_, path("link"));
    BulkDirectoryService service;
    EXPECT_EQ(service.openRoot(path("file")), nullptr);
    EXPECT_EQ(service.openRoot(path("missing")), nullptr);
    EXPECT_NE(service.openRoot(path("link")), nullptr);
    EXPECT_FALSE(service.status(path("missing")));

    struct stat status;
    ASSERT_EQ(stat(top_.c_str(), &status), 0);
    for (const std::string& way : {top_, path("link")}) {
        const auto known = service.status(way);
        ASSERT_TRUE(known);
        EXPECT_EQ(known->device, deviceNumber(major(status.st_dev), minor(status.st_dev)));
        EXPECT_EQ(known->modified, static_cast<double>(status.st_mtim.tv_sec));
    }
}

}  // namespace
}  // namespace zelk
