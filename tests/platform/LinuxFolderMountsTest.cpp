// SPDX-License-Identifier: MIT
#include "platform/posix/FolderMounts.h"

#include <gtest/gtest.h>
#include <sys/syscall.h>

#include <chrono>
#include <cstdint>
#include <string>
#include <thread>

#include "fakes/Mounts.h"
#include "fakes/SystemCallGate.h"
#include "platform/posix/Descriptor.h"
#include "platform/posix/FileStatus.h"
#include "platform/posix/OpenDirectory.h"
#include "zoo/TempFolder.h"
#include "zoo/Zoo.h"

namespace zelk {
namespace {

class MountsOfAFolder : public testing::Test {
protected:
    MountsOfAFolder() {
        zoo::makeFolder(temp / "folder/a/mounted");
        zoo::makeFolder(temp / "folder/b");
        open();
    }

    /// Its mount is another one in a namespace that was made since.
    void open() {
        folder = Descriptor(openRootDirectory(temp / "folder"));
        mount = fileStatus(folder.get()).value().mount;
    }

    const zoo::TempFolder temp{zoo::TempFolder::Medium::memory};
    Descriptor folder;
    std::uint64_t mount = 0;
};

TEST_F(MountsOfAFolder, areThoseInTheEntryOnly) {
    fakes::Mounts mounts;
    if (!mounts.allowed()) GTEST_SKIP() << "mounting is not allowed here";
    open();
    mounts.memory(temp / "folder/a/mounted");
    FolderMounts known(folder.get());
    EXPECT_TRUE(known.areIn("a", mount));
    EXPECT_FALSE(known.areIn("b", mount));
}

// The table is long on a machine with many containers.
TEST_F(MountsOfAFolder, areReadOnceForSomeEntriesInARow) {
    FolderMounts known(folder.get());
    unsigned reads = 0;
    fakes::behindGate(
        SYS_readlink, [&](unsigned) { return ++reads, 0; },
        [&] {
            for (int entry = 0; entry < 200; ++entry) EXPECT_FALSE(known.areIn("a", mount));
        });
    EXPECT_GE(reads, 1u);
    EXPECT_LT(reads, 200u);
}

TEST_F(MountsOfAFolder, areReadAgainAfterASecond) {
    fakes::Mounts mounts;
    if (!mounts.allowed()) GTEST_SKIP() << "mounting is not allowed here";
    open();
    FolderMounts known(folder.get());
    EXPECT_FALSE(known.areIn("a", mount));
    mounts.memory(temp / "folder/a/mounted");
    std::this_thread::sleep_for(std::chrono::milliseconds(1001));
    EXPECT_TRUE(known.areIn("a", mount));
}

TEST_F(MountsOfAFolder, areUnknownWithoutItsPath) {
    FolderMounts known(-1);
    EXPECT_FALSE(known.areIn("a", mount));
    EXPECT_FALSE(FolderMounts(folder.get()).areIn("missing", 0));
}

}  // namespace
}  // namespace zelk
