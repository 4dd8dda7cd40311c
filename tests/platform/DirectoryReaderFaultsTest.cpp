// SPDX-License-Identifier: MIT
// The disk fails, or another program changes it, between two system calls of a reader.
#ifdef __linux__

#include <gmock/gmock.h>
#include <sys/syscall.h>

#include <cerrno>
#include <filesystem>
#include <memory>
#include <set>
#include <string>

#include "fakes/InChild.h"
#include "fakes/OpenDescriptors.h"
#include "fakes/SystemCallGate.h"
#include "platform/linux/files/LinuxDirectoryReader.h"
#include "zoo/TempFolder.h"
#include "zoo/Zoo.h"

namespace zelk {
namespace {

namespace fs = std::filesystem;

using fakes::behindGate;

class DirectoryReaderFaults : public testing::Test {
protected:
    void open(const std::string& path) { root = service.openRoot(path); }

    std::size_t count() {
        const DirectoryReader::Entries* const entries = reader->open(*root, "");
        return entries == nullptr ? unreadable : entries->size();
    }

    /// The number of entries read while every call `number` is subject to `rule`.
    std::size_t countBehind(int number, const fakes::SystemCallRule& rule) {
        std::size_t found = unreadable;
        behindGate(number, rule, [&] { found = count(); });
        return found;
    }

    static constexpr std::size_t unreadable = 1000000;
    const zoo::TempFolder temp{zoo::TempFolder::Medium::memory};
    LinuxDirectoryService service;
    std::shared_ptr<const DirectoryRoot> root;
    std::unique_ptr<DirectoryReader> reader = service.makeReader();
};

TEST_F(DirectoryReaderFaults, failedListingIsNeverPartial) {
    zoo::makeWide(temp / "wide", 20000, 0);
    open(temp / "wide");
    unsigned calls = 0;
    ASSERT_EQ(countBehind(SYS_getdents64, [&](unsigned) { return ++calls, 0; }), 20000u);
    ASSERT_GT(calls, 2u);
    for (unsigned failing = 0; failing < calls; ++failing) {
        reader = service.makeReader();  // a used reader has a larger buffer and makes fewer calls
        EXPECT_EQ(countBehind(SYS_getdents64, [&](unsigned call) { return call == failing ? EIO : 0; }), unreadable);
    }
    EXPECT_EQ(count(), 20000u);  // the next reading is unaffected
}

TEST_F(DirectoryReaderFaults, failedStatusOfAFileMakesTheFolderUnreadable) {
    zoo::makeWide(temp / "few", 5, 0);
    open(temp / "few");
    for (const int error : {EIO, EACCES, ESTALE, ENOMEM, ELOOP, EOVERFLOW, ENOTDIR}) {
        for (unsigned failing = 0; failing < 5; ++failing) {
            EXPECT_EQ(countBehind(SYS_statx, [&](unsigned call) { return call == failing ? error : 0; }), unreadable)
                << error;
        }
    }
    EXPECT_EQ(count(), 5u);
}

// This is how a dead mount point fails while its parent still answers.
TEST_F(DirectoryReaderFaults, omitsDeadMountPoint) {
    zoo::makeWide(temp / "few", 0, 5);
    open(temp / "few");
    for (const int error : {EACCES, ENOTCONN, EHOSTDOWN, ETIMEDOUT}) {
        EXPECT_EQ(countBehind(SYS_statx, [&](unsigned call) { return call == 2 ? error : 0; }), 4u) << error;
        EXPECT_EQ(countBehind(SYS_statx, [&](unsigned call) { return call >= 2 ? error : 0; }), unreadable) << error;
    }
    EXPECT_EQ(count(), 5u);
}

// A damaged folder is listed, and found unreadable when opened.
TEST_F(DirectoryReaderFaults, keepsDamagedSubfolderAsEntry) {
    zoo::makeWide(temp / "few", 0, 5);
    open(temp / "few");
    for (const int error : {EIO, ESTALE, EUCLEAN}) {
        EXPECT_EQ(countBehind(SYS_statx, [&](unsigned call) { return call == 2 ? error : 0; }), 5u) << error;
        EXPECT_EQ(countBehind(SYS_statx, [&](unsigned call) { return call >= 2 ? error : 0; }), unreadable) << error;
    }
}

TEST_F(DirectoryReaderFaults, omitsEntryRemovedAfterListing) {
    for (const unsigned at : {0u, 2u, 4u}) {
        const std::string folder = temp / std::to_string(at);
        zoo::makeWide(folder, 5, 0);
        open(folder);
        std::set<std::string> left{"file0.txt", "file1.txt", "file2.txt", "file3.txt", "file4.txt"};
        std::set<std::string> found;
        behindGate(
            SYS_statx,
            [&](unsigned call) {
                if (call != at) return 0;
                // Removes all entries not yet queried, in whatever order they come.
                for (const std::string& name : std::set<std::string>(left)) {
                    fs::remove(folder + "/" + name);
                    left.erase(name);
                }
                return 0;
            },
            [&] {
                const DirectoryReader::Entries* const entries = reader->open(*root, "");
                ASSERT_NE(entries, nullptr);
                for (const DirEntry& entry : *entries) found.emplace(entry.name);
            });
        EXPECT_TRUE(left.empty());
        EXPECT_EQ(found.size(), at);
    }
}

// The state at the time of the statx counts, not the listing.
TEST_F(DirectoryReaderFaults, reportsFolderSwappedForALinkAsLink) {
    zoo::makeFolder(temp / "root/folder");
    open(temp / "root");
    behindGate(
        SYS_statx,
        [&](unsigned) {
            fs::remove(temp / "root/folder");
            fs::create_directory_symlink("/", temp / "root/folder");
            return 0;
        },
        [&] {
            const DirectoryReader::Entries* const entries = reader->open(*root, "");
            ASSERT_NE(entries, nullptr);
            ASSERT_EQ(entries->size(), 1u);
            EXPECT_EQ(entries->front().objType, 5u);
        });
    EXPECT_EQ(reader->descend("folder"), nullptr);
}

TEST_F(DirectoryReaderFaults, retriesInterruptedCalls) {
    zoo::makeWide(temp / "few", 3, 2);
    open(temp / "few");
    for (const int number : {SYS_getdents64, SYS_statx, SYS_openat}) {
        EXPECT_EQ(countBehind(number, [](unsigned call) { return call == 0 ? EINTR : 0; }), 5u) << number;
    }
}

// As in containers that lack or forbid some system calls. In a child, since the process remembers it.
TEST_F(DirectoryReaderFaults, worksWithoutNewKernelCalls) {
    zoo::makeFolder(temp / "root/folder/below");
    fs::create_directory_symlink("folder", temp / "root/link");
    open(temp / "root");
    for (const unsigned error : {unsigned{ENOSYS}, unsigned{EPERM}}) {
        EXPECT_TRUE(fakes::inChild([&] {
            if (fakes::filterCalls(SYS_openat2, SECCOMP_RET_ERRNO | error) != 0) return false;
            const auto opens = [&](const char* below) { return reader->open(*root, below) != nullptr; };
            return opens("folder/below") && opens("folder") && opens("") && !opens("link") && !opens("link/below") &&
                   !opens("folder/../../root") && !opens("..") && !opens("nowhere");
        })) << error;
    }
}

TEST_F(DirectoryReaderFaults, retriesLookupAfterEagain) {
    zoo::makeFolder(temp / "root/folder/below");
    open(temp / "root");
    bool opened = false;
    behindGate(
        SYS_openat2, [&](unsigned call) { return call < 2 ? EAGAIN : 0; },
        [&] { opened = reader->open(*root, "folder/below") != nullptr; });
    EXPECT_TRUE(opened);
}

TEST_F(DirectoryReaderFaults, failureLeaksNoDescriptor) {
    zoo::makeFile(temp / "few/folder/file");
    open(temp / "few");
    const std::ptrdiff_t before = fakes::openDescriptors();
    for (const int number : {SYS_getdents64, SYS_statx, SYS_openat}) {
        const auto failing = service.makeReader();
        bool failed = false;
        behindGate(
            number, [](unsigned) { return EIO; },
            [&] { failed = failing->open(*root, "") == nullptr && failing->descend("folder") == nullptr; });
        EXPECT_TRUE(failed) << number;
    }
    EXPECT_EQ(fakes::openDescriptors(), before);
}

}  // namespace
}  // namespace zelk

#endif
