// SPDX-License-Identifier: MIT
#include "reclaim/Cleaner.h"

#include <gmock/gmock.h>

#include "fakes/FakePlatform.h"

#ifdef __linux__
#include <sys/stat.h>
#include <unistd.h>

#include "platform/linux/files/LinuxFileManager.h"
#include "platform/linux/trash/LinuxTrash.h"
#include "zoo/TempFolder.h"
#include "zoo/Zoo.h"
#endif

namespace zelk {
namespace {

using testing::Optional;

class CleanerMeasure : public testing::Test {
protected:
    fakes::FakeFileManager files;
    fakes::FakeTrash trash{files};
};

TEST_F(CleanerMeasure, measuresAllocatedSizeOfFile) {
    files.addFile("/file", "content", 12288);
    EXPECT_EQ(Cleaner::allocatedSize(files, "/file"), 12288u);
}

TEST_F(CleanerMeasure, measuresHiddenFile) {
    files.addFile("/.file", "content", 12288);
    EXPECT_EQ(Cleaner::allocatedSize(files, "/.file"), 12288u);
}

TEST_F(CleanerMeasure, skipsHiddenEntriesBelowFolder) {
    files.addFile("/folder/a", "", 4096);
    files.addFile("/folder/below/b", "", 8192);
    files.addFile("/folder/.hidden", "", 1 << 20);
    files.addFile("/folder/.git/objects/c", "", 1 << 20);
    EXPECT_EQ(Cleaner::allocatedSize(files, "/folder"), 12288u);
}

TEST_F(CleanerMeasure, emptyFolderIsZero) {
    files.addFolder("/folder");
    EXPECT_EQ(Cleaner::allocatedSize(files, "/folder"), 0u);
}

TEST_F(CleanerMeasure, measuresLinkNotTarget) {
    files.addFile("/folder/a", "", 1 << 20);
    files.addLink("/link", "/folder");
    EXPECT_EQ(Cleaner::allocatedSize(files, "/link"), 0u);
}

TEST_F(CleanerMeasure, unreadablePathIsZero) {
    EXPECT_EQ(Cleaner::allocatedSize(files, "/missing"), 0u);
    files.addFile("/file", "", 4096);
    files.failing = [](const auto& call) { return call.operation == "properties"; };
    EXPECT_EQ(Cleaner::allocatedSize(files, "/file"), 0u);
}

TEST_F(CleanerMeasure, emptyTrashIsZero) {
    EXPECT_THAT(Cleaner::measureTrash(files, trash), Optional(0u));
}

TEST_F(CleanerMeasure, sumsTrashEntries) {
    trash.put("file", 4096);
    trash.put("folder/a", 8192);
    trash.put("folder/below/b", 16384);
    EXPECT_THAT(Cleaner::measureTrash(files, trash), Optional(4096u + 8192u + 16384u));
}

TEST_F(CleanerMeasure, countsHiddenTrashEntriesAtTopLevelOnly) {
    trash.put(".hidden", 4096);
    trash.put(".folder/a", 8192);
    trash.put("folder/.hidden", 1 << 20);
    trash.put("folder/.git/objects/c", 1 << 20);
    EXPECT_THAT(Cleaner::measureTrash(files, trash), Optional(4096u + 8192u));
}

TEST_F(CleanerMeasure, inaccessibleTrashHasNoMeasure) {
    trash.put("file", 4096);
    trash.setAccessible(false);
    EXPECT_EQ(Cleaner::measureTrash(files, trash), std::nullopt);
}

TEST_F(CleanerMeasure, ignoresEntriesThatVanishMeanwhile) {
    trash.put("file", 4096);
    trash.put("gone", 4096);
    files.failing = [&](const auto& call) {
        if (call.operation == "properties") files.erase(trash.path + "/gone");
        return false;
    };
    EXPECT_THAT(Cleaner::measureTrash(files, trash), Optional(4096u));
}

#ifdef __linux__
TEST(CleanerOnLinux, measuresARealTrash) {
    const zoo::TempFolder home;
    const std::string trashed = home / ".local/share/Trash/files/";
    zoo::makeFile(trashed + "file", 5000);
    zoo::makeFile(trashed + ".hidden", 5000);
    zoo::makeFile(trashed + "folder/\xff/b", 70000);
    zoo::makeFile(trashed + "folder/.hidden", 70000);
    ASSERT_EQ(::symlink("/usr", (trashed + "link").c_str()), 0);
    std::uint64_t expected = 0;
    for (const char* name : {"file", ".hidden", "folder/\xff/b", "link"}) {
        struct stat status {};
        ASSERT_EQ(::lstat((trashed + name).c_str(), &status), 0);
        expected += static_cast<std::uint64_t>(status.st_blocks) * 512;
    }
    LinuxFileManager files;
    LinuxTrash trash(home.path());
    EXPECT_THAT(Cleaner::measureTrash(files, trash), Optional(expected));
}
#endif

}  // namespace
}  // namespace zelk
