// SPDX-License-Identifier: MIT
// The Trash where the disk fails at the moment of writing, and after an emptying that was killed.
#include <gmock/gmock.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <cerrno>
#include <set>
#include <string>

#include "fakes/SystemCallGate.h"
#include "fakes/TestFiles.h"
#include "platform/linux/trash/LinuxTrash.h"
#include "zoo/TempFolder.h"
#include "zoo/Zoo.h"

namespace zelk {
namespace {

using fakes::behindGate;
using fakes::fileContent;
using fakes::namesIn;
using fakes::writeFile;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Optional;
using testing::StartsWith;

class FaultyTrash : public testing::Test {
protected:
    FaultyTrash() {
        zoo::makeFolder(files);
        zoo::makeFolder(info);
    }

    Failure trashed() { return itsTrash.trash(ItemPath::from(item).value()).failure; }

    const zoo::TempFolder temp{zoo::TempFolder::Medium::memory};
    const std::string home = temp / "home";
    const std::string files = home + "/.local/share/Trash/files";
    const std::string info = home + "/.local/share/Trash/info";
    const std::string item = temp / "item.txt";
    LinuxTrash itsTrash{home};
};

// The kernel tells of a failed write once: the flush after this call would succeed.
TEST_F(FaultyTrash, staysWhenInfoIsNotOnTheDisk) {
    for (const int error : {EIO, ENOSPC, EDQUOT}) {
        writeFile(item, "content");
        Failure failure;
        behindGate(
            SYS_sync_file_range, [error](unsigned) { return error; }, [&] { failure = trashed(); });
        EXPECT_THAT(failure, Optional(StartsWith("“item.txt” couldn’t be moved to the Trash: "))) << error;
        EXPECT_EQ(fileContent(item), "content");
        EXPECT_THAT(namesIn(files), IsEmpty());
        EXPECT_THAT(namesIn(info), IsEmpty());
    }
}

TEST_F(FaultyTrash, movesWithoutACallToWriteEarly) {
    for (const int error : {ENOSYS, EPERM, EINVAL, ESPIPE}) {
        writeFile(item, "content");
        Failure failure;
        behindGate(
            SYS_sync_file_range, [error](unsigned) { return error; }, [&] { failure = trashed(); });
        EXPECT_EQ(failure, std::nullopt) << error;
    }
}

// Another thread may be setting such a leftover aside, and would take the info of what comes to its name.
TEST_F(FaultyTrash, neverTakesTheNameOfALeftover) {
    const std::string own = "emptying." + std::to_string(::getpid()) + ".";
    for (const char* number : {"2", "7", "70x"}) zoo::makeFile(files + "/" + own + number);
    zoo::makeFile(files + "/file");
    std::set<std::string> seen;
    const auto rule = [&](unsigned) {
        for (const std::string& name : namesIn(files)) seen.insert(name);
        return 0;
    };
    behindGate(SYS_unlinkat, rule, [&] { EXPECT_EQ(itsTrash.empty(), 4u); });
    for (const char* number : {"2", "7", "70x", "file"}) seen.erase(number[0] == 'f' ? number : own + number);
    EXPECT_THAT(seen, ElementsAre(own + "10", own + "11", own + "8", own + "9"));
}

}  // namespace
}  // namespace zelk
