// SPDX-License-Identifier: MIT
// Fails and kills every system call of trashing and emptying in turn: the item is always either in place or restorable,
// whole, and never reported in the Trash when it is not.
#include <gmock/gmock.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>

#include "fakes/Mounts.h"
#include "fakes/TestFiles.h"
#include "fakes/TrashContent.h"
#include "platform/TracedTrash.h"
#include "zoo/Zoo.h"

namespace zelk {
namespace {

namespace fs = std::filesystem;

using fakes::CallPosition;
using fakes::fileContent;
using fakes::namesIn;
using fakes::restorable;
using fakes::writeFile;

/// The system calls of the Trash; "?" skips those that this machine lacks.
const std::string tracedCalls =
    "?access,?faccessat,?faccessat2,?open,openat,?openat2,?mkdir,mkdirat,?stat,?lstat,?fstat,?newfstatat,?statx,"
    "?readlink,readlinkat,read,write,fsync,close,?rename,renameat,?renameat2,?unlink,unlinkat,?rmdir,flock,fcntl,"
    "?getdents64,?lseek,?statfs,?fstatfs,?link,linkat,?chmod,?fchmod,"
    "?sync_file_range";

class TrashDurability : public TracedTrash {
protected:
    TrashDurability() : TracedTrash(tracedCalls) {}

    /// Creates an item and a Trash in which its name is taken, nothing else.
    void prepare() {
        for (const std::string& folder : {home, items}) fs::remove_all(folder);
        zoo::makeFolder(items);
        for (const char* name : {"/files/item.txt", "/files/folder/a/file", "/files/folder/b/file"})
            zoo::makeFile(trash + name);
        zoo::makeFolder(trash + "/info");
        for (const char* name : {"item.txt", "folder"}) addInfo(name);
        writeFile(item, "content");
    }

    /// Marks it as written by Zelk, so that it is swept as an orphan.
    void addInfo(const std::string& name) const {
        const std::string path = trash + "/info/" + name + ".trashinfo";
        writeFile(path, "[Trash Info]\nPath=/old/" + name + "\nDeletionDate=2026-01-01T00:00:00\n");
        ASSERT_EQ(::chmod(path.c_str(), 01600), 0);
    }

    /// Trashes one item in a new run, which first sweeps what the last one left.
    void expectNoOrphanAfterTheNextItem() const {
        const std::string next = items + "/next";
        writeFile(next, "next");
        EXPECT_EQ(program.run({ZELK_TRASH_WRITER, "trash", home, next}, {}), 0);
        EXPECT_EQ(namesIn(trash + "/info").size(), namesIn(trash + "/files").size());
    }

    int trashItem(const fakes::Arguments& injections) {
        return program.run({ZELK_TRASH_WRITER, "trash", home, item}, injections);
    }
    int emptyTrash(const fakes::Arguments& injections) {
        return program.run({ZELK_TRASH_WRITER, "empty", home}, injections);
    }

    bool isInPlace() const { return fileContent(item) == "content"; }
    bool isInTrash() const {
        const auto found = restorable(trash);
        return found.contains(item) && fileContent(found.at(item)) == "content";
    }
    bool oldOnesAreThere() const {
        const auto found = restorable(trash);
        return found.contains("/old/item.txt") && found.contains("/old/folder") &&
               fs::exists(found.at("/old/folder") + "/a/file") && fs::exists(found.at("/old/folder") + "/b/file");
    }
};

TEST_F(TrashDurability, flushesInfoBeforeMovingTheItem) {
    prepare();
    ASSERT_EQ(trashItem({}), 0);
    std::string order;
    for (const CallPosition& position : positions()) {
        const bool ofInfo = position.line.find(".trashinfo") != std::string::npos && position.call == "openat" &&
                            position.line.find("EEXIST") == std::string::npos;
        if (ofInfo) order += "create ";
        if (position.call == "write" && position.line.find("[Trash Info]") != std::string::npos) order += "write ";
        // Begun and waited for: what fails later, nobody would be told.
        if (position.line.find("SYNC_FILE_RANGE_WRITE|SYNC_FILE_RANGE_WAIT_AFTER") != std::string::npos)
            order += "early ";
        if (position.call == "fsync") order += "fsync ";
        if (position.call.starts_with("rename")) order += "rename ";
    }
    EXPECT_EQ(order, "create write early fsync fsync rename ");
    EXPECT_TRUE(isInTrash() && oldOnesAreThere());
}

TEST_F(TrashDurability, reportsWhetherTheItemMovedOnErrorAtEverySyscall) {
    prepare();
    ASSERT_EQ(trashItem({}), 0);
    for (const CallPosition& position : positions()) {
        for (const char* error : {"EIO", "ENOSPC", "EPERM"}) {
            SCOPED_TRACE(std::string(error) + " in " + position.line);
            prepare();
            const int status = trashItem({position.injection("error=" + std::string(error))});
            EXPECT_TRUE(program.injected());
            EXPECT_TRUE(status == 0 ? isInTrash() && !isInPlace() : status == 1 && isInPlace() && !isInTrash())
                << status;
            EXPECT_TRUE(oldOnesAreThere());
            // Every info file has its content.
            EXPECT_EQ(namesIn(trash + "/info").size(), namesIn(trash + "/files").size());
        }
    }
}

TEST_F(TrashDurability, firstTrashSurvivesErrorAtEverySyscall) {
    prepare();
    fs::remove_all(home);
    zoo::makeFolder(home);
    ASSERT_EQ(trashItem({}), 0);
    for (const CallPosition& position : positions()) {
        SCOPED_TRACE(position.line);
        prepare();
        fs::remove_all(home);
        zoo::makeFolder(home);
        const int status = trashItem({position.injection("error=EACCES")});
        EXPECT_TRUE(status == 0 ? isInTrash() && !isInPlace() : status == 1 && isInPlace() && !isInTrash()) << status;
    }
}

TEST_F(TrashDurability, firstTrashSurvivesKillAtEverySyscall) {
    prepare();
    fs::remove_all(home);
    zoo::makeFolder(home);
    ASSERT_EQ(trashItem({}), 0);
    for (const CallPosition& position : positions()) {
        SCOPED_TRACE("killed at " + position.line);
        prepare();
        fs::remove_all(home);
        zoo::makeFolder(home);
        EXPECT_EQ(trashItem({position.injection("signal=KILL")}), -1);
        EXPECT_TRUE(isInPlace() != isInTrash());
        // A partly created Trash does no harm.
        if (isInPlace()) {
            EXPECT_EQ(trashItem({}), 0);
        }
        EXPECT_TRUE(isInTrash() && !isInPlace());
    }
}

TEST_F(TrashDurability, volumeTrashSurvivesErrorAndKillAtEverySyscall) {
    fakes::Mounts mounts;
    if (!mounts.allowed()) GTEST_SKIP() << "mounting is not allowed here";
    const std::string stick = temp / "stick";
    mounts.memory(stick);
    const std::string onStick = stick + "/item.txt";
    const std::string ownTrash = stick + "/.Trash-" + std::to_string(::geteuid());
    const auto trashIt = [&](const fakes::Arguments& injections) {
        return program.run({ZELK_TRASH_WRITER, "trash", home, onStick}, injections);
    };
    const auto isOnStick = [&] { return fileContent(onStick) == "content"; };
    const auto isInItsTrash = [&] {
        const auto found = restorable(ownTrash);
        return found.contains("item.txt") && fileContent(found.at("item.txt")) == "content";
    };
    for (const bool first : {true, false}) {
        const auto start = [&] {
            fs::remove_all(ownTrash);
            if (!first)
                for (const char* folder : {"/files", "/info"}) zoo::makeFolder(ownTrash + folder);
            if (!first) fs::permissions(ownTrash, fs::perms::owner_all);
            writeFile(onStick, "content");
        };
        start();
        ASSERT_EQ(trashIt({}), 0);
        ASSERT_TRUE(isInItsTrash());
        for (const CallPosition& position : positions()) {
            SCOPED_TRACE((first ? "the first, at " : "at ") + position.line);
            start();
            EXPECT_EQ(trashIt({position.injection("signal=KILL")}), -1);
            EXPECT_TRUE(isOnStick() != isInItsTrash());
            start();
            const int status = trashIt({position.injection("error=EIO")});
            EXPECT_TRUE(status == 0 ? isInItsTrash() && !isOnStick() : status == 1 && isOnStick() && !isInItsTrash())
                << status;
        }
    }
}

TEST_F(TrashDurability, survivesKillAtEverySyscall) {
    prepare();
    ASSERT_EQ(trashItem({}), 0);
    bool killedInPlace = false;
    bool killedInTrash = false;
    for (const CallPosition& position : positions()) {
        SCOPED_TRACE("killed at " + position.line);
        prepare();
        EXPECT_EQ(trashItem({position.injection("signal=KILL")}), -1);
        EXPECT_TRUE(isInPlace() != isInTrash());
        EXPECT_TRUE(oldOnesAreThere());
        (isInPlace() ? killedInPlace : killedInTrash) = true;
        expectNoOrphanAfterTheNextItem();
        EXPECT_TRUE(isInPlace() != isInTrash());
        // What was left does no harm either.
        if (isInPlace()) {
            EXPECT_EQ(trashItem({}), 0);
        }
        EXPECT_TRUE(isInTrash() && !isInPlace());
        EXPECT_TRUE(oldOnesAreThere());
    }
    EXPECT_TRUE(killedInPlace && killedInTrash);
}

TEST_F(TrashDurability, survivesKillWithoutRenameNoReplace) {
    const std::string without = "inject=renameat2:error=EINVAL";
    prepare();
    ASSERT_EQ(trashItem({without}), 0);
    ASSERT_TRUE(isInTrash());
    for (const CallPosition& position : positions()) {
        if (position.call == "renameat2") continue;
        SCOPED_TRACE("killed at " + position.line);
        prepare();
        EXPECT_EQ(trashItem({without, position.injection("signal=KILL")}), -1);
        EXPECT_TRUE(isInPlace() != isInTrash());
        EXPECT_TRUE(oldOnesAreThere());
    }
}

TEST_F(TrashDurability, emptyingSurvivesErrorAtEverySyscall) {
    prepare();
    ASSERT_EQ(emptyTrash({}), 2);
    for (const CallPosition& position : positions()) {
        SCOPED_TRACE(position.line);
        prepare();
        const int removed = emptyTrash({position.injection("error=EIO")});
        EXPECT_TRUE(program.injected());
        const std::size_t left = namesIn(trash + "/files").size();
        EXPECT_EQ(removed, 2 - static_cast<int>(left));
        EXPECT_EQ(restorable(trash).size(), left);
        EXPECT_TRUE(isInPlace());
    }
}

TEST_F(TrashDurability, emptyingSurvivesKillAtEverySyscall) {
    prepare();
    ASSERT_EQ(emptyTrash({}), 2);
    for (const CallPosition& position : positions()) {
        SCOPED_TRACE("killed at " + position.line);
        prepare();
        EXPECT_EQ(emptyTrash({position.injection("signal=KILL")}), -1);
        const std::size_t left = namesIn(trash + "/files").size();
        EXPECT_EQ(restorable(trash).size(), left);
        EXPECT_TRUE(isInPlace());
        expectNoOrphanAfterTheNextItem();
        EXPECT_EQ(emptyTrash({}), static_cast<int>(left) + 1);
        EXPECT_TRUE(namesIn(trash + "/files").empty());
    }
}

}  // namespace
}  // namespace zelk
