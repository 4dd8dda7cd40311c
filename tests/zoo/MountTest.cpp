// SPDX-License-Identifier: MIT
// Mounts inside the tree, in a private mount namespace that ends with the process.
#ifdef __linux__

#include <gtest/gtest.h>
#include <sched.h>
#include <sys/mount.h>
#include <unistd.h>

#include <cerrno>
#include <string>

#include "zoo/Scan.h"
#include "zoo/TempFolder.h"
#include "zoo/Zoo.h"

namespace zelk::zoo {

namespace {

class Mounts : public testing::Test {
protected:
    void SetUp() override {
        if (unshare(CLONE_NEWNS) != 0 || mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) != 0)
            GTEST_SKIP() << "mounting is not allowed here";
        makeFile(root + "/before/file", 1);
        makeFile(root + "/zulu/file", 1);
        makeFolder(root + "/mounted");
    }

    void TearDown() override {
        for (const std::string& place : mounted_) EXPECT_EQ(umount2(place.c_str(), MNT_DETACH), 0) << place;
    }

    void mountMemory(const std::string& place) {
        makeFolder(place);
        ASSERT_EQ(mount("tmpfs", place.c_str(), "tmpfs", 0, "size=4m"), 0) << errno;
        mounted_.push_back(place);
    }

    void mountAgain(const std::string& source, const std::string& place) {
        ASSERT_EQ(mount(source.c_str(), place.c_str(), nullptr, MS_BIND, nullptr), 0) << errno;
        mounted_.push_back(place);
    }

    static void expectAsCounted(const std::string& root) {
        const Count count = countedIndependently(root);
        for (const int workers : {1, 8}) {
            const Scan its = scan({root}, workers);
            expectConsistent(its);
            EXPECT_EQ(its.stats.totalBytes, count.bytes);
            EXPECT_EQ(its.stats.filesScanned, count.files);
            EXPECT_EQ(its.stats.dirsScanned, count.folders);
            EXPECT_EQ(its.stats.blockedPaths, 0);
        }
    }

    const TempFolder temp;
    const std::string root = temp / "root";

private:
    std::vector<std::string> mounted_;
};

}  // namespace

TEST_F(Mounts, omitsAnotherDevice) {
    mountMemory(root + "/mounted");
    makeFile(root + "/mounted/inside/file", 5000);
    const Scan its = scan({root}, 2);
    expectConsistent(its);
    EXPECT_EQ(its.stats.filesScanned, 2);
    EXPECT_EQ(its.stats.dirsScanned, 3);
    EXPECT_EQ(its.stats.blockedPaths, 0);
    for (const FSNode* const node : nodesBelow(*its.root)) EXPECT_NE(node->name(), "mounted");
    expectAsCounted(root);
}

TEST_F(Mounts, omitsAnotherDeviceDeepDown) {
    const std::string place = root + "/1/2/3/4/5/6/7/8/mounted";
    mountMemory(place);
    makeFile(place + "/file", 5000);
    expectAsCounted(root);
}

TEST_F(Mounts, omitsAnotherDeviceInAFolderThatThreadsShare) {
    makeWide(root, 3000, 40);
    for (const char* const place : {"/folder0", "/folder20", "/folder39"}) {
        mountMemory(root + place);
        makeFile(root + place + "/file", 5000);
    }
    const Scan its = scan({root}, 8);
    EXPECT_EQ(its.stats.filesScanned, 3002);
    EXPECT_EQ(its.stats.dirsScanned, 41);
    expectAsCounted(root);
}

TEST_F(Mounts, walksRootOnAnotherDevice) {
    mountMemory(root + "/mounted");
    makeFile(root + "/mounted/inside/file", 5000);
    expectAsCounted(root + "/mounted");
}

TEST_F(Mounts, walksRootsOnTwoDevices) {
    mountMemory(root + "/mounted");
    makeFile(root + "/mounted/inside/file", 5000);
    const Scan its = scan({root, root + "/mounted"}, 2);
    expectConsistent(its);
    EXPECT_EQ(its.stats.filesScanned, 3);
    EXPECT_EQ(its.stats.dirsScanned, 5);
    EXPECT_EQ(its.stats.totalBytes, countedIndependently(root).bytes + countedIndependently(root + "/mounted").bytes);
}

TEST_F(Mounts, countsBindMountedFile) {
    mountMemory(temp / "memory");
    makeFile(temp / "memory/file", 9000);
    makeFile(root + "/place");
    mountAgain(temp / "memory/file", root + "/place");
    const Scan its = scan({root}, 2);
    EXPECT_EQ(its.stats.filesScanned, 3);
    expectAsCounted(root);
}

TEST_F(Mounts, walksBindMountOfTheSameDevice) {
    makeFile(temp / "elsewhere/file", 5000);
    mountAgain(temp / "elsewhere", root + "/mounted");
    const Scan its = scan({root}, 2);
    EXPECT_EQ(its.stats.filesScanned, 3);
    expectAsCounted(root);
}

TEST_F(Mounts, endsOnATreeMountedInsideItself) {
    mountAgain(root, root + "/mounted");
    expectAsCounted(root);
}

}  // namespace zelk::zoo

#endif
