// SPDX-License-Identifier: MIT
// Mounts below a root as macOS's call reports them: the folder beneath, on the root's device.
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <functional>
#include <string>
#include <vector>

#include "fakes/InChild.h"
#include "fakes/Mounts.h"
#include "platform/macos/BulkDirectoryReader.h"
#include "platform/macos/CoveredFolders.h"
#include "standin/Surveyed.h"
#include "zoo/TempFolder.h"
#include "zoo/Zoo.h"

namespace zelk {
namespace {

class BulkMounts : public testing::Test {
protected:
    BulkMounts() {
        for (const char* file : {"/before/file", "/mounted/beneath", "/mounted2/file", "/deep/down/mounted/beneath"})
            zoo::makeFile(top + file, 1);
    }

    /// Runs `check` in a child with a private mount namespace; its mounts end with it.
    void expectIn(const std::function<bool(fakes::Mounts&)>& check) {
        if (!fakes::inChild([] { return fakes::Mounts().allowed(); })) GTEST_SKIP() << "mounting is not allowed here";
        EXPECT_TRUE(fakes::inChild([&] {
            fakes::Mounts mounts;
            return mounts.allowed() && check(mounts);
        }));
    }

    std::int32_t deviceOf(const DirectoryReader::Entries* entries, std::string_view name) const {
        if (entries != nullptr) {
            for (const DirEntry& entry : *entries)
                if (entry.name == name) return entry.deviceID;
        }
        return -12345;
    }

    const zoo::TempFolder temp;
    const std::string top = temp / "top";
    BulkDirectoryService service;
};

TEST_F(BulkMounts, mountPointHasAnotherDevice) {
    expectIn([&](fakes::Mounts& mounts) {
        mounts.memory(top + "/mounted");
        mounts.memory(top + "/deep/down/mounted");
        const std::int32_t own = service.status(top)->device;
        const auto root = service.openRoot(top);
        const auto reader = service.makeReader();
        const auto* entries = reader->open(*root, "");
        bool right = entries != nullptr && entries->size() == 4 && deviceOf(entries, "mounted") != own &&
                     deviceOf(entries, "mounted2") == own && deviceOf(entries, "before") == own;
        right = right && deviceOf(reader->open(*root, "deep"), "down") == own;
        return right && deviceOf(reader->open(*root, "deep/down"), "mounted") != own;
    });
}

TEST_F(BulkMounts, doesNotReadLaterMounts) {
    expectIn([&](fakes::Mounts& mounts) {
        const std::int32_t own = service.status(top)->device;
        const auto root = service.openRoot(top);
        mounts.memory(top + "/mounted");
        zoo::makeFile(top + "/mounted/file", 1);
        const auto reader = service.makeReader();
        bool right = deviceOf(reader->open(*root, ""), "mounted") == own;
        right = right && reader->descend("mounted") == nullptr;
        reader->ascend();
        right = right && reader->descend("before") != nullptr;
        return right && reader->open(*root, "mounted") == nullptr && reader->open(*root, "mounted2") != nullptr;
    });
}

TEST_F(BulkMounts, countsBindMountedFile) {
    expectIn([&](fakes::Mounts& mounts) {
        mounts.again(top + "/mounted2/file", top + "/before/file");
        const auto root = service.openRoot(top);
        const auto reader = service.makeReader();
        return deviceOf(reader->open(*root, "before"), "file") == service.status(top)->device;
    });
}

TEST_F(BulkMounts, readsMountedFolderAsRoot) {
    expectIn([&](fakes::Mounts& mounts) {
        mounts.memory(top + "/mounted");
        zoo::makeFile(top + "/mounted/folder/file", 1);
        const auto root = service.openRoot(top + "/mounted");
        const auto reader = service.makeReader();
        const auto* entries = reader->open(*root, "");
        return entries != nullptr && entries->size() == 1 && reader->descend("folder") != nullptr;
    });
}

TEST_F(BulkMounts, areOmittedFromASurvey) {
    expectIn([&](fakes::Mounts& mounts) {
        mounts.memory(top + "/mounted");
        mounts.memory(top + "/deep/down/mounted");
        zoo::makeFile(top + "/mounted/file", 5000);
        zoo::makeFile(top + "/deep/down/mounted/file", 5000);
        mounts.memory(top + "/mounted/again");
        const update::Finished got = surveyed(service, top);
        return got.stats.filesScanned == 2 && got.stats.dirsScanned == 5 && got.stats.blockedPaths == 0;
    });
}

Mount mountAt(const std::string& point) {
    Mount mount;
    mount.point = point;
    return mount;
}

TEST(CoveredFolders, areTheOutermostMountsBelowTheTop) {
    const zoo::TempFolder temp;
    const std::string top = temp / "top";
    zoo::makeFolder(top + "/a/b/c");
    zoo::makeFolder(temp / "top2/a");
    const auto statusOf = [](const std::string& path) {
        struct stat status;
        EXPECT_EQ(stat(path.c_str(), &status), 0);
        return status;
    };
    const CoveredFolders covered(
        top, {mountAt("/"), mountAt(temp.path()), mountAt(top), mountAt(top + "/a/b/c"), mountAt(top + "/a/b"),
              mountAt(top + "/a/b2"), mountAt(top + "/x"), mountAt(top + "/missing/y"), mountAt(temp / "top2/a")});
    EXPECT_EQ(covered.in(statusOf(temp.path())), nullptr);
    EXPECT_EQ(covered.in(statusOf(temp / "top2")), nullptr);
    EXPECT_EQ(covered.in(statusOf(top + "/a/b")), nullptr) << "nothing beneath a mount is looked at";
    ASSERT_NE(covered.in(statusOf(top)), nullptr);
    EXPECT_EQ(*covered.in(statusOf(top)), CoveredFolders::Names{"x"});
    ASSERT_NE(covered.in(statusOf(top + "/a")), nullptr);
    EXPECT_EQ(*covered.in(statusOf(top + "/a")), (CoveredFolders::Names{"b", "b2"}));
    EXPECT_EQ(CoveredFolders().in(statusOf(top)), nullptr);

    const CoveredFolders ofAll("/", {mountAt("/"), mountAt("/dev")});
    ASSERT_NE(ofAll.in(statusOf("/")), nullptr);
    EXPECT_EQ(*ofAll.in(statusOf("/")), CoveredFolders::Names{"dev"});
}

}  // namespace
}  // namespace zelk
