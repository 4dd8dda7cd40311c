// SPDX-License-Identifier: MIT
// Subvolumes on a private btrfs volume, mounted from a file until the process ends.
#ifdef __linux__

#include <gtest/gtest.h>
#include <sys/ioctl.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <string>

#include "fakes/Mounts.h"
#include "fakes/SystemCallGate.h"
#include "zoo/Scan.h"
#include "zoo/TempFolder.h"
#include "zoo/Zoo.h"

namespace zelk::zoo {

namespace {

bool runs(const std::string& line) {
    return std::system((line + " >/dev/null 2>&1").c_str()) == 0;
}

class Subvolumes : public testing::Test {
protected:
    void SetUp() override {
        if (!runs("command -v mkfs.btrfs")) GTEST_SKIP() << "mkfs.btrfs is not installed";
        const std::string image = temp / "image";
        if (!mounts.allowed() || !runs("truncate -s 128M " + image) || !runs("mkfs.btrfs -q " + image) ||
            !runs("mkdir " + volume + " && mount -o loop " + image + " " + volume)) {
            GTEST_SKIP() << "a volume cannot be mounted here";
        }
        mounted = true;
        makeFile(root + "/before/file", 10'000);
        makeFile(root + "/zulu/file", 10'000);
    }

    void TearDown() override { EXPECT_TRUE(!mounted || runs("umount -l " + volume)); }

    static void makeSubvolume(const std::string& path) {
        std::filesystem::create_directories(std::filesystem::path(path).parent_path());
        ASSERT_TRUE(runs("btrfs subvolume create " + path));
    }

    static void makeSnapshot(const std::string& of, const std::string& path, bool readOnly) {
        ASSERT_TRUE(runs("btrfs subvolume snapshot " + std::string(readOnly ? "-r " : "") + of + " " + path));
    }

    /// The kernel's status of the file and of its folder.
    static bool isOnADeviceOfItsOwn(const std::string& path) {
        struct stat own {};
        struct stat above {};
        return ::stat(path.c_str(), &own) == 0 && ::stat((path + "/..").c_str(), &above) == 0 &&
               own.st_dev != above.st_dev;
    }

    /// The names of all folders below the root, sorted.
    static std::string names(const Scan& its) {
        std::vector<std::string> all;
        for (const FSNode* const node : nodesBelow(its.root->children().front())) all.emplace_back(node->name());
        std::sort(all.begin(), all.end());
        std::string text;
        for (const std::string& name : all) text += (text.empty() ? "" : " ") + name;
        return text;
    }

    static void expectFolders(const std::string& root, const std::string& folders, std::int64_t files) {
        for (const int workers : {1, 8}) {
            const Scan its = scan({root}, workers);
            expectConsistent(its);
            EXPECT_EQ(names(its), folders);
            EXPECT_EQ(its.stats.filesScanned, files);
            EXPECT_EQ(its.stats.blockedPaths, 0);
        }
    }

    const TempFolder temp;
    const std::string volume = temp / "volume";
    const std::string root = volume + "/root";
    fakes::Mounts mounts;
    bool mounted = false;
};

}  // namespace

TEST_F(Subvolumes, areEnteredAtAnyDepth) {
    makeSubvolume(root + "/sub");
    makeFile(root + "/sub/inside/file", 50'000);
    makeSubvolume(root + "/sub/inside/nested");
    makeFile(root + "/sub/inside/nested/deeper/file", 50'000);
    makeSubvolume(root + "/1/2/3/4/5/6/7/low");
    makeFile(root + "/1/2/3/4/5/6/7/low/bottom/file", 50'000);
    ASSERT_TRUE(isOnADeviceOfItsOwn(root + "/sub"));
    ::sync();
    expectFolders(root, "1 2 3 4 5 6 7 before bottom deeper inside low nested sub zulu", 5);
    EXPECT_GE(scan({root}, 2).stats.totalBytes, 2 * 10'000 + 3 * 50'000);
}

TEST_F(Subvolumes, onlyReadOnlySnapshotsAreOmitted) {
    makeSubvolume(root + "/sub");
    makeFile(root + "/sub/inside/file", 50'000);
    makeSnapshot(root + "/sub", root + "/kept", true);
    makeSnapshot(root + "/sub", root + "/copy", false);
    makeSnapshot(root + "/sub", root + "/sub/inside/kept-inside", true);
    ASSERT_TRUE(isOnADeviceOfItsOwn(root + "/kept"));
    expectFolders(root, "before copy inside inside sub zulu", 4);
}

TEST_F(Subvolumes, entersReadOnlySubvolumeThatIsNotASnapshot) {
    makeSubvolume(root + "/sub");
    makeFile(root + "/sub/inside/file", 50'000);
    ASSERT_TRUE(runs("btrfs property set -ts " + root + "/sub ro true"));
    expectFolders(root, "before inside sub zulu", 3);
}

TEST_F(Subvolumes, walksSnapshotGivenAsRoot) {
    makeSnapshot(volume, temp / "volume/kept", true);
    expectFolders(volume + "/kept/root", "before zulu", 2);
}

TEST_F(Subvolumes, sameInodeInTwoSubvolumesIsTwoFiles) {
    for (const std::string sub : {"/one", "/two"}) {
        makeSubvolume(root + sub);
        makeFile(root + sub + "/file", 100'000);
        std::filesystem::create_hard_link(root + sub + "/file", root + sub + "/again");
    }
    ::sync();
    struct stat one {};
    struct stat two {};
    ASSERT_EQ(::stat((root + "/one/file").c_str(), &one) | ::stat((root + "/two/file").c_str(), &two), 0);
    ASSERT_EQ(one.st_ino, two.st_ino);
    const Scan its = scan({root}, 2);
    EXPECT_EQ(its.stats.filesScanned, 6);
    EXPECT_EQ(its.stats.totalBytes, 512 * (one.st_blocks + two.st_blocks) +
                                        scan({root + "/before"}, 1).stats.totalBytes +
                                        scan({root + "/zulu"}, 1).stats.totalBytes);
}

TEST_F(Subvolumes, mountsAmongThemAreOmitted) {
    makeSubvolume(root + "/sub");
    makeFolder(root + "/sub/mounted");
    makeFolder(root + "/again");
    mounts.memory(root + "/sub/mounted");
    makeFile(root + "/sub/mounted/inside/file");
    mounts.again(root + "/sub", root + "/again");  // another device and another mount than the root's
    expectFolders(root, "before sub zulu", 2);
}

// The scan's first statx is that of the root, the following ones are those of folders.
TEST_F(Subvolumes, foldersWithoutStatusAreOpened) {
    makeSubvolume(volume + "/folders/sub");
    makeFolder(volume + "/folders/sub/inside/low");
    for (unsigned failing = 1; failing <= 3; ++failing) {
        std::string found;
        fakes::behindGate(
            SYS_statx, [&](unsigned call) { return call == failing ? EIO : 0; },
            [&] { found = names(scan({volume + "/folders"}, 1)); });
        EXPECT_EQ(found, "inside low sub") << failing;
    }
}

TEST_F(Subvolumes, entersSubvolumeWhoseInfoIsRefused) {
    makeSubvolume(root + "/sub");
    makeFile(root + "/sub/inside/file", 50'000);
    makeSnapshot(root + "/sub", root + "/kept", true);
    std::string found;
    fakes::behindGate(
        SYS_ioctl, [](unsigned) { return EPERM; }, [&] { found = names(scan({root}, 1)); });
    EXPECT_EQ(found, "before inside inside kept sub zulu");
}

TEST_F(Subvolumes, areQueriedOnce) {
    makeSubvolume(root + "/sub");
    for (const std::string folder : {"/a", "/b", "/b/c"}) makeFolder(root + "/sub" + folder);
    unsigned asked = 0;
    std::string found;
    fakes::behindGate(
        SYS_ioctl, [&](unsigned) { return ++asked, 0; }, [&] { found = names(scan({root}, 1)); });
    EXPECT_EQ(found, "a b before c sub zulu");
    EXPECT_EQ(asked, 1U);
}

}  // namespace zelk::zoo

#endif
