// SPDX-License-Identifier: MIT
// Trashed items are restored byte for byte by the usual tools.
#include <gmock/gmock.h>
#include <sys/prctl.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>

#include "fakes/Mounts.h"
#include "fakes/TestFiles.h"
#include "fakes/TracedProgram.h"
#include "platform/linux/trash/LinuxTrash.h"
#include "zoo/TempFolder.h"
#include "zoo/Zoo.h"

namespace zelk {
namespace {

namespace fs = std::filesystem;

using fakes::fileContent;
using fakes::namesIn;
using fakes::runProgram;
using fakes::writeFile;

std::string longName() {
    std::string name;
    while (name.size() < 240) name += "文";
    return name + ".with.txt";
}

/// On the disk, since one of the tools looks for a Trash nowhere else.
class RestoringTrash : public testing::Test {
protected:
    void SetUp() override {
        zoo::makeFolder(home);
        zoo::makeFolder(items);
        zoo::makeFolder(temp / "run");
        ::chmod((temp / "run").c_str(), 0700);
    }

    void trashAll(const std::vector<std::string>& names) {
        for (const std::string& name : names) {
            const std::string path = items + "/" + name;
            writeFile(path, "content of " + name);
            ASSERT_EQ(LinuxTrash(home).trash(ItemPath::from(path).value()).failure, std::nullopt) << name;
        }
        ASSERT_TRUE(namesIn(items).empty());
    }

    void expectBack(const std::vector<std::string>& names) {
        EXPECT_EQ(namesIn(items), std::set<std::string>(names.begin(), names.end()));
        for (const std::string& name : names) EXPECT_EQ(fileContent(items + "/" + name), "content of " + name);
        EXPECT_TRUE(namesIn(home + "/.local/share/Trash/files").empty());
        EXPECT_TRUE(namesIn(home + "/.local/share/Trash/info").empty());
    }

    /// Runs `line` in a shell as the owner of the home folder and waits for everything that it started, since daemons
    /// of a session write into the home folder until they exit.
    int shell(const std::string& line) {
        ::prctl(PR_SET_CHILD_SUBREAPER, 1);
        const int status = runProgram({"env", "-u", "XDG_DATA_HOME", "-u", "DBUS_SESSION_BUS_ADDRESS", "HOME=" + home,
                                       "XDG_RUNTIME_DIR=" + (temp / "run"), "LC_ALL=C.UTF-8",
                                       "PYTHONIOENCODING=utf-8:surrogateescape", "sh", "-c", line});
        while (::wait(nullptr) > 0 || errno == EINTR) {
        }
        return status;
    }

    /// The entries below `folder`, in the tool's order.
    int restoreFirstBelow(const std::string& folder, const std::string& options = "") {
        return shell("cd / && echo 0 | trash-restore " + options + " '" + folder + "' >/dev/null");
    }

    const zoo::TempFolder temp;
    const std::string home = temp / "home";
    const std::string items = temp / "items";
};

// Except names that are not UTF-8, which it restores with replacement characters.
TEST_F(RestoringTrash, trashRestoreRestoresEveryName) {
    const std::vector<std::string> names{"100%25 %", "new\nPath=passwd", "\x01\tü文", ".hidden", longName()};
    trashAll(names);
    for (std::size_t i = 0; i < names.size(); ++i) EXPECT_EQ(restoreFirstBelow(items), 0);
    expectBack(names);
}

TEST_F(RestoringTrash, trashRestoreRestoresFoldersAndLinks) {
    zoo::makeNames(items + "/folder");
    const auto names = namesIn(items + "/folder");
    ASSERT_EQ(LinuxTrash(home).trash(ItemPath::from(items + "/folder").value()).failure, std::nullopt);
    EXPECT_EQ(restoreFirstBelow(items), 0);
    EXPECT_EQ(namesIn(items + "/folder"), names);
    fs::create_symlink("/nowhere", items + "/link");
    ASSERT_EQ(LinuxTrash(home).trash(ItemPath::from(items + "/link").value()).failure, std::nullopt);
    EXPECT_EQ(restoreFirstBelow(items), 0);
    EXPECT_EQ(fs::read_symlink(items + "/link"), "/nowhere");
}

TEST_F(RestoringTrash, trashRestoreRestoresFromVolumeTrash) {
    fakes::Mounts mounts;
    if (!mounts.allowed()) GTEST_SKIP() << "mounting is not allowed here";
    mounts.memory(temp / "stick");
    zoo::makeFolder(temp / "stick/folder");
    const std::string item = temp / "stick/folder/a %";
    writeFile(item, "content");
    ASSERT_EQ(LinuxTrash(home).trash(ItemPath::from(item).value()).failure, std::nullopt);
    EXPECT_FALSE(fs::exists(item));
    restoreFirstBelow(temp / "stick");
    // Newer versions only look for volumes on disks, so tell them about this one.
    const std::string own = temp / "stick/.Trash-" + std::to_string(::getuid());
    if (!fs::exists(item)) restoreFirstBelow(temp / "stick", "--trash-dir '" + own + "'");
    EXPECT_EQ(fileContent(item), "content");
}

// It restores unprintable names in an escaped form, so only the other tool is tested with those.
TEST_F(RestoringTrash, gioRestoresListedItems) {
    const std::vector<std::string> names{"plain.txt", "a b", "100%25", "%", ".hidden", "a.b.c", std::string(250, 'n')};
    trashAll(names);
    EXPECT_EQ(shell("dbus-run-session -- sh -c 'gio trash --list | cut -f 1 | while IFS= read -r item; do "
                    "gio trash --restore \"$item\" || exit 1; done'"),
              0);
    expectBack(names);
}

TEST_F(RestoringTrash, gioRestoresFolderAndLink) {
    for (const char* name : {"/folder/a", "/folder/b/c"}) zoo::makeFile(items + name);
    fs::create_symlink("/nowhere", items + "/link");
    for (const char* name : {"/folder", "/link"})
        ASSERT_EQ(LinuxTrash(home).trash(ItemPath::from(items + name).value()).failure, std::nullopt);
    EXPECT_FALSE(fs::exists(items + "/folder"));
    EXPECT_EQ(shell("dbus-run-session -- sh -c 'gio trash --restore trash:///folder && "
                    "gio trash --restore trash:///link'"),
              0);
    EXPECT_TRUE(fs::exists(items + "/folder/a") && fs::exists(items + "/folder/b/c"));
    EXPECT_EQ(fs::read_symlink(items + "/link"), "/nowhere");
}

TEST_F(RestoringTrash, gioRestoresSecondItemOfTheSameName) {
    for (const char* content : {"first", "second"}) {
        writeFile(items + "/same.txt", content);
        ASSERT_EQ(LinuxTrash(home).trash(ItemPath::from(items + "/same.txt").value()).failure, std::nullopt);
    }
    EXPECT_EQ(shell("dbus-run-session -- gio trash --restore trash:///same.2.txt"), 0);
    EXPECT_EQ(fileContent(items + "/same.txt"), "second");
}

}  // namespace
}  // namespace zelk
