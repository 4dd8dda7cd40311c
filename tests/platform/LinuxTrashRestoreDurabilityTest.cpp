// SPDX-License-Identifier: MIT
// Fails and kills every system call of restoring an item in turn. The item must be restored or restorable, whole, and
// the reported result must be true.
#include <gmock/gmock.h>
#include <unistd.h>

#include <algorithm>
#include <filesystem>
#include <set>
#include <string>
#include <vector>

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

/// The system calls of restoring; "?" ignores those that this machine lacks.
const std::string callsOfRestoring =
    "?access,?faccessat,?faccessat2,?open,openat,?openat2,?mkdir,mkdirat,?stat,?lstat,?fstat,?newfstatat,?statx,"
    "?readlink,readlinkat,read,write,fsync,close,?rename,renameat,?renameat2,?unlink,unlinkat,?rmdir,flock,fcntl,"
    "?link,linkat";

class RestoreDurability : public TracedTrash {
protected:
    RestoreDurability() : TracedTrash(callsOfRestoring) {}

    void prepare() {
        for (const std::string& folder : {home, items}) fs::remove_all(folder);
        zoo::makeFolder(home);
        zoo::makeFolder(items);
        writeFile(item, "content");
    }

    int restoreItem(const fakes::Arguments& injections) {
        return program.run({ZELK_TRASH_WRITER, "restore", home, item}, injections);
    }

    bool isBack() const { return fileContent(item) == "content"; }
    /// Under any name. A kill may also leave an empty file that reserves a name.
    bool isInTrash() const {
        const auto isItem = [this](const std::string& name) {
            const std::string info = fileContent(trash + "/info/" + name + ".trashinfo");
            return fakes::pathInTrashInfo(info) == item && fileContent(trash + "/files/" + name) == "content";
        };
        const std::set<std::string> names = namesIn(trash + "/files");
        return std::any_of(names.begin(), names.end(), isItem);
    }
};

TEST_F(RestoreDurability, removesInfoAfterFlushingTheItem) {
    prepare();
    ASSERT_EQ(restoreItem({}), 0);
    EXPECT_TRUE(isBack());
    std::string order;
    for (const CallPosition& position : positions()) {
        if (position.call == "renameat2")
            order += position.line.find("\"item.txt\", RENAME_NOREPLACE") != std::string::npos ? "move " : "aside ";
        if (position.call == "fsync") order += "fsync ";
        if (position.call == "unlinkat") order += "unlink ";
    }
    // The first unlink removes the old name of the info, which has its new name by then.
    EXPECT_EQ(order, "aside unlink move fsync fsync unlink ");
}

TEST_F(RestoreDurability, survivesErrorAtEverySystemCall) {
    prepare();
    ASSERT_EQ(restoreItem({}), 0);
    for (const CallPosition& position : positions()) {
        for (const char* error : {"EIO", "EPERM", "EINVAL"}) {
            SCOPED_TRACE(std::string(error) + " in " + position.line);
            prepare();
            const int status = restoreItem({position.injection("error=" + std::string(error))});
            EXPECT_TRUE(program.injected());
            EXPECT_TRUE(status == 0 ? isBack() && !isInTrash() : status == 1 && isInTrash() && !isBack()) << status;
        }
    }
}

TEST_F(RestoreDurability, survivesKillAtEverySystemCall) {
    prepare();
    ASSERT_EQ(restoreItem({}), 0);
    bool killedBack = false;
    bool killedInTrash = false;
    for (const CallPosition& position : positions()) {
        SCOPED_TRACE("killed at " + position.line);
        prepare();
        EXPECT_EQ(restoreItem({position.injection("signal=KILL")}), -1);
        EXPECT_TRUE(isBack() != isInTrash());
        (isBack() ? killedBack : killedInTrash) = true;
        // The next run that trashes something sweeps orphaned info.
        const std::string next = items + "/next";
        writeFile(next, "next");
        EXPECT_EQ(program.run({ZELK_TRASH_WRITER, "trash", home, next}, {}), 0);
        EXPECT_EQ(namesIn(trash + "/info").size(), namesIn(trash + "/files").size());
        EXPECT_TRUE(isBack() != isInTrash());
    }
    EXPECT_TRUE(killedBack && killedInTrash);
}

TEST_F(RestoreDurability, survivesKillWithoutRenameNoReplace) {
    const std::string without = "inject=renameat2:error=EINVAL";
    prepare();
    ASSERT_EQ(restoreItem({without}), 0);
    ASSERT_TRUE(isBack() && !isInTrash());
    for (const CallPosition& position : positions()) {
        if (position.call == "renameat2") continue;
        SCOPED_TRACE("killed at " + position.line);
        prepare();
        EXPECT_EQ(restoreItem({without, position.injection("signal=KILL")}), -1);
        // Between linking and unlinking, the one file has both names.
        EXPECT_TRUE(isBack() || isInTrash());
    }
}

TEST_F(RestoreDurability, survivesErrorAndKillOnARemovableVolume) {
    fakes::Mounts mounts;
    if (!mounts.allowed()) GTEST_SKIP() << "mounting is not allowed here";
    const std::string stick = temp / "stick";
    mounts.memory(stick);
    const std::string onStick = stick + "/item.txt";
    const std::string ownTrash = stick + "/.Trash-" + std::to_string(::geteuid());
    const auto restoreIt = [&](const fakes::Arguments& injections) {
        fs::remove_all(ownTrash);
        writeFile(onStick, "content");
        return program.run({ZELK_TRASH_WRITER, "restore", home, onStick}, injections);
    };
    const auto isOnStick = [&] { return fileContent(onStick) == "content"; };
    const auto isInItsTrash = [&] {
        const auto found = restorable(ownTrash);
        return found.contains("item.txt") && fileContent(found.at("item.txt")) == "content";
    };
    ASSERT_EQ(restoreIt({}), 0);
    ASSERT_TRUE(isOnStick() && !isInItsTrash());
    for (const CallPosition& position : positions()) {
        SCOPED_TRACE(position.line);
        EXPECT_EQ(restoreIt({position.injection("signal=KILL")}), -1);
        EXPECT_TRUE(isOnStick() != isInItsTrash());
        const int status = restoreIt({position.injection("error=EIO")});
        EXPECT_TRUE(status == 0 ? isOnStick() && !isInItsTrash() : status == 1 && isInItsTrash() && !isOnStick())
            << status;
    }
}

}  // namespace
}  // namespace zelk
