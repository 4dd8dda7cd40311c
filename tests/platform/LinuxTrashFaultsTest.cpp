// SPDX-License-Identifier: MIT
// The Trash where the disk fails at the moment of writing or is full, and after an emptying that was killed.
#include <gmock/gmock.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <cerrno>
#include <cstddef>
#include <filesystem>
#include <functional>
#include <set>
#include <string>
#include <tuple>

#include "fakes/InChild.h"
#include "fakes/SystemCallGate.h"
#include "fakes/TestFiles.h"
#include "platform/HomeTrash.h"
#include "platform/linux/trash/LinuxTrash.h"
#include "zoo/Zoo.h"

namespace zelk {
namespace {

namespace fs = std::filesystem;

using fakes::behindGate;
using fakes::fileContent;
using fakes::namesIn;
using fakes::writeFile;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Optional;
using testing::StartsWith;

class FaultyTrash : public HomeTrash {
protected:
    Failure trashed() { return itsTrash.trash(ItemPath::from(item).value()).failure; }

    const std::string item = temp / "item.txt";
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

TEST_F(FaultyTrash, writesEarlyAgainAfterASignal) {
    writeFile(item, "content");
    Failure failure = "not run";
    unsigned calls = 0;
    behindGate(
        SYS_sync_file_range, [&](unsigned call) { return ++calls, call == 0 ? EINTR : 0; },
        [&] { failure = trashed(); });
    EXPECT_EQ(failure, std::nullopt);
    EXPECT_EQ(calls, 2u);
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

// Somebody may have called a file so.
TEST_F(FaultyTrash, countsFromTheLastLeftoverThatAnEmptyingCanHaveMade) {
    const std::string own = "emptying." + std::to_string(::getpid()) + ".";
    for (const char* number : {"0", "1", "4294967295", "99999999999"}) zoo::makeFile(files + "/" + own + number);
    const std::set<std::string> before = namesIn(files);
    std::set<std::string> seen;
    const auto rule = [&](unsigned) {
        for (const std::string& name : namesIn(files))
            if (!before.contains(name)) seen.insert(name);
        return 0;
    };
    behindGate(SYS_unlinkat, rule, [&] { EXPECT_EQ(itsTrash.empty(), 4u); });
    EXPECT_THAT(seen, ElementsAre(own + "2", own + "3", own + "4", own + "5"));
}

// Content without info must not come to the name of info without content, which would tell where it is from.
TEST_F(FaultyTrash, givesContentNoInfoThatALeftoverHas) {
    if (::geteuid() != 0) GTEST_SKIP() << "only the superuser can be two users";
    zoo::makeFile(files + "/locked/theirs/file");
    fakes::giveToOrdinaryUser(home);
    ASSERT_EQ(::chown((files + "/locked/theirs").c_str(), 0, 0), 0);
    EXPECT_TRUE(fakes::asOrdinaryUser([&] {
        writeFile(info + "/emptying." + std::to_string(::getpid()) + ".0.trashinfo", "of something else");
        return itsTrash.empty() == 0;
    }));
    EXPECT_THAT(namesIn(files), ElementsAre("locked"));
    EXPECT_FALSE(namesIn(info).contains("locked.trashinfo"));
}

// Its info would need a longer name than there can be.
TEST_F(FaultyTrash, removesContentWithAVeryLongName) {
    for (const std::size_t bytes : {245U, 246U, 255U}) zoo::makeFile(files + "/" + std::string(bytes, 'n') + "/file");
    zoo::makeFile(info + "/" + std::string(245, 'n') + ".trashinfo");
    EXPECT_EQ(itsTrash.empty(), 3u);
    EXPECT_THAT(namesIn(files), IsEmpty());
    EXPECT_THAT(namesIn(info), IsEmpty());
}

// Emptying is how a full volume gets room again.
class TrashOfAFullVolume : public FaultyTrash, public testing::WithParamInterface<std::tuple<int, int>> {
protected:
    TrashOfAFullVolume() {
        zoo::makeFile(files + "/folder/file");
        zoo::makeFile(files + "/orphan");
        writeFile(info + "/folder.trashinfo", "[Trash Info]\nPath=/was/here\nDeletionDate=2026-01-01T00:00:00\n");
    }

    /// Empties it where there is no room for another name, and looks at each removal.
    std::size_t emptied(const std::function<void()>& look) {
        std::size_t removed = 0;
        const auto [call, error] = GetParam();
        const int number = call;
        const unsigned answer = SECCOMP_RET_ERRNO | static_cast<unsigned>(error);
        behindGate(
            SYS_unlinkat, [&](unsigned) { return look(), 0; },
            [&] {
                ASSERT_EQ(fakes::filterCalls(number, answer), 0);
                removed = itsTrash.empty();
            });
        return removed;
    }
};

TEST_P(TrashOfAFullVolume, isEmptied) {
    EXPECT_EQ(emptied([] {}), 2u);
    EXPECT_THAT(namesIn(files), IsEmpty());
    EXPECT_THAT(namesIn(info), IsEmpty());
}

TEST_P(TrashOfAFullVolume, keepsInfoThatIsNoLongerThatOfTheEntry) {
    bool came = false;
    emptied([&] {
        if (came || fs::exists(files + "/folder/file")) return;
        // The folder is about to go. Another program takes its info for its own, and writes that of a new item.
        came = true;
        fs::remove(info + "/folder.trashinfo");
        writeFile(info + "/folder.trashinfo", "newcomer");
    });
    ASSERT_TRUE(came);
    EXPECT_THAT(namesIn(files), IsEmpty());
    EXPECT_EQ(fileContent(info + "/folder.trashinfo"), "newcomer");
}

TEST_F(FaultyTrash, keepsAnItemThatCameToTheNameOfAnEntryThereWasNoRoomFor) {
    writeFile(files + "/same", "old");
    const auto rule = [&](unsigned) {
        fs::remove(files + "/same");
        writeFile(files + "/same", "newcomer");
        return ENOSPC;
    };
    behindGate(SYS_linkat, rule, [&] { EXPECT_EQ(itsTrash.empty(), 0u); });
    EXPECT_EQ(fileContent(files + "/same"), "newcomer");
}

INSTANTIATE_TEST_SUITE_P(WithoutRoom, TrashOfAFullVolume,
                         testing::Combine(testing::Values(SYS_linkat, SYS_renameat2), testing::Values(ENOSPC, EDQUOT)));

}  // namespace
}  // namespace zelk
