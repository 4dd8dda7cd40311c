// SPDX-License-Identifier: MIT
// Emptying a Trash of so many entries that several threads share them.
#include <fcntl.h>
#include <gmock/gmock.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstddef>
#include <filesystem>
#include <string>

#include "fakes/OpenDescriptors.h"
#include "fakes/SystemCallGate.h"
#include "fakes/TestFiles.h"
#include "fakes/TrashContent.h"
#include "platform/HomeTrash.h"
#include "platform/linux/trash/LinuxTrash.h"
#include "zoo/Zoo.h"

namespace zelk {
namespace {

namespace fs = std::filesystem;

using fakes::behindGate;
using fakes::namesIn;
using fakes::restorable;

class FullTrash : public HomeTrash {
protected:
    static constexpr std::size_t many = 320;

    void addFolders() const {
        for (std::size_t number = 0; number < many; ++number) {
            const std::string name = std::to_string(number);
            for (const char* below : {"/a/file", "/b/file"}) zoo::makeFile(contentOf(name) + below);
            addInfo(name);
        }
    }
};

// The table of mounts is looked up by the path of the folder, which is read from a link.
TEST_F(FullTrash, looksForMountsOnceForManyFolders) {
    addFolders();
    unsigned reads = 0;
    behindGate(
        SYS_readlink, [&](unsigned) { return ++reads, 0; }, [&] { EXPECT_EQ(itsTrash.empty(), many); });
    EXPECT_GE(reads, 1u);
    EXPECT_LT(reads, many / 2);
}

TEST_F(FullTrash, looksForNoMountsInFiles) {
    for (std::size_t number = 0; number < many; ++number) zoo::makeFile(contentOf(std::to_string(number)));
    unsigned reads = 0;
    behindGate(
        SYS_readlink, [&](unsigned) { return ++reads, 0; }, [&] { EXPECT_EQ(itsTrash.empty(), many); });
    EXPECT_EQ(reads, 0u);
}

TEST_F(FullTrash, leavesNoDescriptorOpen) {
    addFolders();
    const std::ptrdiff_t before = fakes::openDescriptors();
    behindGate(
        SYS_unlinkat, [](unsigned call) { return call % 40 == 11 ? EIO : 0; },
        [&] { EXPECT_LT(itsTrash.empty(), many); });
    EXPECT_EQ(fakes::openDescriptors(), before);
    EXPECT_EQ(restorable(trash).size(), namesIn(files).size());
}

TEST_F(FullTrash, isEmptiedByOneThreadIfNoOtherStarts) {
    addFolders();
    behindGate(
        SYS_clone3, [](unsigned) { return EAGAIN; }, [&] { EXPECT_EQ(itsTrash.empty(), many); });
    EXPECT_TRUE(namesIn(files).empty() && namesIn(info).empty());
}

TEST_F(FullTrash, isRestorableAtWhateverMomentItsEmptyingIsKilled) {
    std::size_t inTheMiddle = 0;
    for (std::size_t run = 0; inTheMiddle < 5; ++run) {
        addFolders();
        const pid_t emptying = ::fork();
        if (emptying == 0) ::_exit(LinuxTrash(home).empty() == many ? 0 : 1);
        const std::size_t moment = many - 1 - 67 * run % (many - 1);
        while (namesIn(files).size() > moment) {
        }
        ::kill(emptying, SIGKILL);
        while (::waitpid(emptying, nullptr, 0) < 0 && errno == EINTR) {
        }
        const auto found = restorable(trash);
        EXPECT_EQ(found.size(), namesIn(files).size());
        // Only what was under way may lack some of its content.
        std::size_t broken = 0;
        for (const auto& [path, content] : found)
            broken += fs::exists(content + "/a/file") && fs::exists(content + "/b/file") ? 0U : 1U;
        EXPECT_LE(broken, 4u);
        if (!found.empty()) ++inTheMiddle;
        EXPECT_EQ(LinuxTrash(home).empty(), found.size());
        EXPECT_TRUE(namesIn(files).empty() && namesIn(info).empty());
    }
}

}  // namespace
}  // namespace zelk
