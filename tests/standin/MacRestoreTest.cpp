// SPDX-License-Identifier: MIT
// Restoring on macOS, with an ordinary folder as the Trash.
#include "platform/macos/MacRestore.h"

#include <gmock/gmock.h>
#include <sys/stat.h>

#include <cerrno>
#include <filesystem>

#include "fakes/OpenDescriptors.h"
#include "fakes/TestFiles.h"
#include "standin/sys/stdio.h"
#include "zoo/TempFolder.h"
#include "zoo/Zoo.h"

namespace zelk {
namespace {

namespace fs = std::filesystem;

using fakes::fileContent;
using fakes::namesIn;
using fakes::writeFile;
using testing::ElementsAre;

FileIdentity identityOnDisk(const std::string& path) {
    struct stat status {};
    EXPECT_EQ(::lstat(path.c_str(), &status), 0) << path;
    return {status.st_dev, status.st_ino};
}

class MacRestore : public testing::Test {
protected:
    void SetUp() override {
        zoo::makeFolder(items);
        zoo::makeFolder(trash);
        setRule(nullptr);
    }
    void TearDown() override { setRule(nullptr); }

    static void setRule(const std::function<int(unsigned)>& rule) {
        RenameStandIn::rule() = rule;
        RenameStandIn::calls() = 0;
    }

    /// Moves it as the system does, which may choose the name.
    TrashedItem trashed(const std::string& path, const std::string& name) {
        fs::rename(path, trash + "/" + name);
        return {ItemPath::below(temp.path(), path).value(),
                identityOnDisk(items),
                trash + "/" + name,
                identityOnDisk(trash + "/" + name),
                {}};
    }
    TrashedItem trashedFile() {
        writeFile(item, "content");
        return trashed(item, "item 10.05.12.txt");
    }
    void expectRefused(const TrashedItem& one, const std::string& reason) {
        EXPECT_EQ(moveOutOfTrash(one), Failure(reason));
        EXPECT_EQ(fileContent(trash + "/item 10.05.12.txt"), "content");
    }

    const zoo::TempFolder temp{zoo::TempFolder::Medium::memory};
    const std::string trash = temp / ".Trash";
    const std::string items = temp / "items";
    const std::string item = items + "/item.txt";
    const std::string aside = temp / "aside";
};

TEST_F(MacRestore, restoresUnderTheOriginalName) {
    EXPECT_EQ(moveOutOfTrash(trashedFile()), std::nullopt);
    EXPECT_EQ(fileContent(item), "content");
    EXPECT_TRUE(fs::is_empty(trash));
}

TEST_F(MacRestore, restoresFoldersLinksAndNamesThatAreNotText) {
    zoo::makeFile(items + "/folder/below");
    EXPECT_EQ(moveOutOfTrash(trashed(items + "/folder", "folder")), std::nullopt);
    EXPECT_TRUE(fs::exists(items + "/folder/below"));
    fs::create_symlink("/nowhere", items + "/link");
    EXPECT_EQ(moveOutOfTrash(trashed(items + "/link", "link")), std::nullopt);
    EXPECT_EQ(fs::read_symlink(items + "/link"), "/nowhere");
    writeFile(items + "/a\nb\xff", "content");
    EXPECT_EQ(moveOutOfTrash(trashed(items + "/a\nb\xff", "c\nd\xfe")), std::nullopt);
    EXPECT_EQ(fileContent(items + "/a\nb\xff"), "content");
}

TEST_F(MacRestore, refusesToReplaceAnything) {
    const TrashedItem moved = trashedFile();
    writeFile(item, "newcomer");
    expectRefused(moved, "something else is there now");
    EXPECT_EQ(fileContent(item), "newcomer");
    fs::remove(item);
    fs::create_symlink("/nowhere", item);
    expectRefused(moved, "something else is there now");
    EXPECT_TRUE(fs::is_symlink(fs::symlink_status(item)));
}

TEST_F(MacRestore, refusesAMissingParentAndCreatesNone) {
    const TrashedItem moved = trashedFile();
    fs::rename(items, aside);
    expectRefused(moved, "the folder it was in is no longer there");
    EXPECT_FALSE(fs::exists(items));
    fs::create_directory_symlink(aside, items);
    expectRefused(moved, "the folder it was in is no longer there");
    EXPECT_TRUE(fs::is_empty(aside));
}

TEST_F(MacRestore, refusesAnotherFolderOfTheSameName) {
    const TrashedItem moved = trashedFile();
    fs::rename(items, aside);
    fs::create_directory(items);
    expectRefused(moved, "another folder has taken the place of the one it was in");
    EXPECT_TRUE(fs::is_empty(items));
}

TEST_F(MacRestore, refusesItemsNoLongerInTheTrash) {
    const TrashedItem moved = trashedFile();
    fs::remove(moved.path);
    EXPECT_EQ(moveOutOfTrash(moved), Failure("it is no longer in the Trash"));
    fs::remove(trash);
    EXPECT_EQ(moveOutOfTrash(moved), Failure("it is no longer in the Trash"));
}

TEST_F(MacRestore, refusesAnotherItemUnderItsNameInTheTrash) {
    const TrashedItem moved = trashedFile();
    fs::rename(moved.path, aside);
    writeFile(moved.path, "another");
    EXPECT_EQ(moveOutOfTrash(moved), Failure("the Trash holds something else in its place"));
    EXPECT_EQ(fileContent(moved.path), "another");
    EXPECT_TRUE(fs::is_empty(items));
}

TEST_F(MacRestore, refusesVolumesWithoutExclusiveRename) {
    const TrashedItem moved = trashedFile();
    setRule([](unsigned) { return ENOTSUP; });
    expectRefused(moved, "Operation not supported");
    setRule([](unsigned) { return EXDEV; });
    expectRefused(moved, "it is on another volume than the folder it was in");
    setRule([](unsigned) { return EPERM; });
    expectRefused(moved, "Operation not permitted");
    EXPECT_TRUE(fs::is_empty(items));
}

TEST_F(MacRestore, retriesAfterAnInterruptingSignal) {
    const TrashedItem moved = trashedFile();
    setRule([](unsigned call) { return call == 0 ? EINTR : 0; });
    EXPECT_EQ(moveOutOfTrash(moved), std::nullopt);
    EXPECT_EQ(fileContent(item), "content");
}

TEST_F(MacRestore, neverReplacesAFileCreatedMeanwhile) {
    const TrashedItem moved = trashedFile();
    setRule([&](unsigned) {
        writeFile(item, "newcomer");
        return 0;
    });
    expectRefused(moved, "something else is there now");
    EXPECT_EQ(fileContent(item), "newcomer");
}

TEST_F(MacRestore, followsNoLinkSwappedInForTheParent) {
    const TrashedItem moved = trashedFile();
    setRule([&](unsigned) {
        fs::rename(items, aside);
        fs::create_directory_symlink(trash, items);
        return 0;
    });
    EXPECT_EQ(moveOutOfTrash(moved), std::nullopt);
    EXPECT_EQ(fileContent(aside + "/item.txt"), "content");
    EXPECT_TRUE(fs::is_empty(trash));
}

TEST_F(MacRestore, staysInTheTrashIfTheParentIsRemovedMeanwhile) {
    const TrashedItem moved = trashedFile();
    setRule([&](unsigned) {
        fs::remove(items);
        return 0;
    });
    expectRefused(moved, "the folder it was in is no longer there");
}

TEST_F(MacRestore, movesAnotherItemBackThatTookItsNameInTheTrash) {
    const TrashedItem moved = trashedFile();
    setRule([&](unsigned call) {
        if (call == 0) {
            fs::rename(moved.path, aside);
            writeFile(moved.path, "another");
        }
        return 0;
    });
    EXPECT_EQ(moveOutOfTrash(moved), Failure("the Trash holds something else in its place"));
    EXPECT_EQ(fileContent(moved.path), "another");
    EXPECT_TRUE(fs::is_empty(items));
}

TEST_F(MacRestore, leavesNoDescriptorOpen) {
    const TrashedItem moved = trashedFile();
    const std::ptrdiff_t before = fakes::openDescriptors();
    EXPECT_EQ(moveOutOfTrash(moved), std::nullopt);
    EXPECT_TRUE(moveOutOfTrash(moved));
    EXPECT_EQ(fakes::openDescriptors(), before);
}

}  // namespace
}  // namespace zelk
