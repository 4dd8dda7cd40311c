// SPDX-License-Identifier: MIT
// Fails, and kills the process at, every system call of appending a record: the old or the new history must be whole.
#ifdef __linux__

#include <gmock/gmock.h>
#include <unistd.h>

#include <algorithm>
#include <vector>

#include "fakes/TestFiles.h"
#include "fakes/TracedProgram.h"
#include "platform/linux/files/LinuxFileManager.h"
#include "platform/linux/files/LinuxLocations.h"
#include "state/SurveyHistory.h"
#include "zoo/TempFolder.h"

namespace zelk {
namespace {

using fakes::Arguments;
using fakes::fileContent;
using fakes::namesIn;
using fakes::runProgram;
using testing::AnyOf;
using testing::ElementsAre;

using Position = fakes::CallPosition;
using History = std::vector<SurveyRecord>;

/// The system calls that read and write a file; "?" ignores those that this machine does not have.
const std::string tracedCalls =
    "?access,?faccessat,?faccessat2,?open,openat,?mkdir,mkdirat,?stat,?lstat,?fstat,?newfstatat,?statx,?readlink,"
    "readlinkat,read,write,?writev,?pwrite64,fsync,fdatasync,ftruncate,close,?rename,renameat,?renameat2,?unlink,"
    "unlinkat,"
    "fchmod,flock,fcntl,?getdents64";

/// Excludes the calls of the sanitizers, which write into pipes to probe memory.
bool writesTheHistory(const Position& position) {
    return position.call == "write" && position.line.find("\"[{") != std::string::npos;
}

class HistoryDurability : public testing::Test {
protected:
    /// Puts `old` into an otherwise empty folder.
    void prepare() {
        files.createDirectories(folder);
        for (const std::string& name : namesIn(folder)) ::unlink((folder + "/" + name).c_str());
        ASSERT_TRUE(files.replaceDurably(file, encodeHistory(old)));
    }

    void SetUp() override { prepare(); }

    /// Appends record 3 under strace.
    int runTraced(const Arguments& injections) {
        return traced.run({ZELK_HISTORY_WRITER, home.path(), "3"}, injections);
    }

    /// The calls that append the record.
    std::vector<Position> positions() {
        EXPECT_EQ(runTraced({}), 0);
        EXPECT_FALSE(traced.positions().empty()) << "strace cannot trace a program here";
        return traced.positions();
    }

    /// The first call of the write, after those of the read.
    static std::size_t writeBegins(const std::vector<Position>& all) {
        const auto end = std::find_if(all.rbegin(), all.rend(), [](const Position& p) { return p.call == "read"; });
        return static_cast<std::size_t>(all.rend() - end) + 1;
    }

    std::optional<History> stored() { return decodeHistory(fileContent(file)); }

    bool leftovers() { return namesIn(folder) != std::set<std::string>{"history.json"}; }

    SurveyRecord record(int total) const {
        SurveyRecord made;
        made.totalScanned = total;
        made.folders = SizeByPath{{home.path(), total}};
        return made;
    }

    const zoo::TempFolder home;
    const std::string folder = home / ".local/share/Zelk";
    const std::string file = folder + "/history.json";
    const fakes::TracedProgram traced{tracedCalls, home / "log", "/history-writer-begins"};
    LinuxFileManager files;
    const History old{record(1), record(2)};
    const History added{record(1), record(2), record(3)};
    /// The history after one that could not be read.
    const History fresh{record(3)};
};

TEST_F(HistoryDurability, flushesRecordAndFolder) {
    const std::vector<Position> all = positions();
    EXPECT_EQ(stored(), added);
    std::string order;
    for (const Position& position : all) {
        if (writesTheHistory(position)) order += "write ";
        for (const char* call : {"fsync", "rename"}) {
            if (position.call.starts_with(call)) order += std::string(call) + " ";
        }
    }
    EXPECT_EQ(order, "write fsync rename fsync ");
}

TEST_F(HistoryDurability, errorAtEverySyscallLeavesOldOrNewHistory) {
    const std::vector<Position> all = positions();
    const std::size_t begin = writeBegins(all);
    for (const char* error : {"EIO", "ENOSPC"}) {
        for (std::size_t i = 0; i < all.size(); ++i) {
            SCOPED_TRACE(std::string(error) + " in " + all[i].line);
            prepare();
            EXPECT_EQ(runTraced({all[i].injection("error=" + std::string(error))}), 0);
            EXPECT_TRUE(traced.injected());
            if (i < begin) {
                EXPECT_THAT(stored(), AnyOf(old, added, fresh));
            } else {
                EXPECT_THAT(stored(), AnyOf(old, added));
            }
            EXPECT_FALSE(leftovers());
        }
    }
}

TEST_F(HistoryDurability, failedWriteOrFlushLeavesOldHistory) {
    for (const Position& position : positions()) {
        const bool ofTheFile = position.line.find("zelk-write") != std::string::npos || writesTheHistory(position);
        if (!ofTheFile) continue;
        SCOPED_TRACE(position.line);
        prepare();
        runTraced({position.injection("error=ENOSPC")});
        EXPECT_EQ(stored(), old);
        EXPECT_FALSE(leftovers());
    }
}

TEST_F(HistoryDurability, killAtEverySyscallLeavesOldOrNewHistory) {
    for (const Position& position : positions()) {
        SCOPED_TRACE("killed at " + position.line);
        prepare();
        EXPECT_EQ(runTraced({position.injection("signal=KILL")}), -1);
        const auto left = stored();
        ASSERT_THAT(left, AnyOf(old, added));
        EXPECT_EQ(runProgram({ZELK_HISTORY_WRITER, home.path(), "4"}), 0);
        History next = *left;
        next.push_back(record(4));
        EXPECT_EQ(stored(), next);
        EXPECT_FALSE(leftovers());
    }
}

TEST_F(HistoryDurability, retriesInterruptedCalls) {
    int repeated = 0;
    for (const Position& position : positions()) {
        static const std::vector<std::string> interruptible{"openat", "read", "write", "fsync", "flock", "close"};
        // The search for what killed writers left is worth one try only.
        const bool search =
            position.line.find("\".\"") != std::string::npos || position.line.find("LOCK_NB") != std::string::npos;
        if (search || std::find(interruptible.begin(), interruptible.end(), position.call) == interruptible.end())
            continue;
        SCOPED_TRACE(position.line);
        prepare();
        EXPECT_EQ(runTraced({position.injection("error=EINTR")}), 0);
        EXPECT_EQ(stored(), added);
        EXPECT_FALSE(leftovers());
        ++repeated;
    }
    EXPECT_GE(repeated, 10);
}

TEST_F(HistoryDurability, nextRecordSweepsTemporaryFile) {
    for (const char* then : {"error=EIO", "signal=KILL"}) {
        SCOPED_TRACE(then);
        prepare();
        std::string write;
        for (const Position& position : positions()) {
            if (writesTheHistory(position)) write = position.injection("error=ENOSPC");
        }
        prepare();
        runTraced({write, "inject=unlinkat:" + std::string(then)});
        EXPECT_EQ(stored(), old);
        EXPECT_TRUE(leftovers());
        EXPECT_EQ(runProgram({ZELK_HISTORY_WRITER, home.path(), "3"}), 0);
        EXPECT_EQ(stored(), added);
        EXPECT_FALSE(leftovers());
    }
}

TEST_F(HistoryDurability, failedFolderFlushKeepsNewHistory) {
    std::vector<Position> all = positions();
    const auto last = std::find_if(all.rbegin(), all.rend(), [](const Position& p) { return p.call == "fsync"; });
    ASSERT_NE(last, all.rend());
    prepare();
    EXPECT_EQ(runTraced({last->injection("error=EINVAL")}), 0);
    EXPECT_EQ(stored(), added);
    EXPECT_FALSE(leftovers());
}

}  // namespace
}  // namespace zelk

#endif
