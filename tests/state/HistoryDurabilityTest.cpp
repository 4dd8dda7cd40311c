// SPDX-License-Identifier: MIT
// Every system call of adding a record, failed and killed in turn: what is left is the old or the new history, whole.
#ifdef __linux__

#include <fcntl.h>
#include <gmock/gmock.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <map>
#include <sstream>
#include <vector>

#include "fakes/TestFiles.h"
#include "platform/linux/LinuxFileManager.h"
#include "platform/linux/LinuxLocations.h"
#include "state/SurveyHistory.h"
#include "zoo/TempFolder.h"

namespace zelk {
namespace {

using fakes::fileContent;
using fakes::namesIn;
using testing::AnyOf;
using testing::ElementsAre;

using Arguments = std::vector<std::string>;
using History = std::vector<SurveyRecord>;

/// What reading and writing a file is made of; "?" passes over those that this machine does not have.
const std::string traced =
    "?access,?faccessat,?faccessat2,?open,openat,?mkdir,mkdirat,?stat,?lstat,?fstat,?newfstatat,?statx,?readlink,"
    "readlinkat,read,write,?writev,?pwrite64,fsync,fdatasync,ftruncate,close,?rename,renameat,?renameat2,?unlink,"
    "unlinkat,"
    "fchmod,flock,fcntl,?getdents64";

/// The exit status, or -1 if a signal ended it.
int run(const Arguments& arguments) {
    const pid_t child = ::fork();
    if (child == 0) {
        std::vector<char*> pointers;
        for (const std::string& argument : arguments) pointers.push_back(const_cast<char*>(argument.c_str()));
        pointers.push_back(nullptr);
        const int quiet = ::open("/dev/null", O_WRONLY);
        ::dup2(quiet, STDERR_FILENO);
        ::execvp(pointers[0], pointers.data());
        ::_exit(127);
    }
    int status = 0;
    while (::waitpid(child, &status, 0) < 0 && errno == EINTR) {
    }
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

/// One call of the program: strace counts each by its name, from 1.
struct Position {
    std::string call;
    int number;
    std::string line;

    std::string injection(const std::string& what) const {
        return "inject=" + call + ":" + what + ":when=" + std::to_string(number);
    }
};

/// Not one of the sanitizers' own, which write into pipes to learn whether memory is there.
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

    /// Adds the record 3 under strace.
    int runTraced(const Arguments& injections) {
        ::unlink(log.c_str());
        Arguments arguments{"strace", "-qq", "-o", log, "-e", "trace=" + traced};
        for (const std::string& injection : injections) arguments.insert(arguments.end(), {"-e", injection});
        arguments.insert(arguments.end(), {ZELK_HISTORY_WRITER, home.path(), "3"});
        return run(arguments);
    }

    /// The calls between the beginning and the end of adding a record.
    std::vector<Position> positions() {
        EXPECT_EQ(runTraced({}), 0);
        std::vector<Position> found;
        std::map<std::string, int> counts;
        bool begun = false;
        std::istringstream lines(fileContent(log));
        for (std::string line; std::getline(lines, line);) {
            const std::string call = line.substr(0, line.find('('));
            const int number = ++counts[call];
            if (begun) found.push_back({call, number, line});
            begun = begun || line.find("/history-writer-begins") != std::string::npos;
        }
        EXPECT_FALSE(found.empty()) << "strace cannot trace a program here. This test needs the package strace and "
                                       "the permission to trace one's own children (ptrace).";
        return found;
    }

    /// The first call of the write, behind those of the reading before it.
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
    const std::string log = home / "log";
    LinuxFileManager files;
    const History old{record(1), record(2)};
    const History added{record(1), record(2), record(3)};
    /// What a history that cannot be read becomes.
    const History fresh{record(3)};
};

TEST_F(HistoryDurability, anAddedRecordIsFlushedWithItsFolder) {
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

TEST_F(HistoryDurability, anErrorOfAnyCallLeavesTheOldOrTheNewHistory) {
    const std::vector<Position> all = positions();
    const std::size_t begin = writeBegins(all);
    for (const char* error : {"EIO", "ENOSPC"}) {
        for (std::size_t i = 0; i < all.size(); ++i) {
            SCOPED_TRACE(std::string(error) + " in " + all[i].line);
            prepare();
            EXPECT_EQ(runTraced({all[i].injection("error=" + std::string(error))}), 0);
            EXPECT_NE(fileContent(log).find("(INJECTED)"), std::string::npos);
            if (i < begin) {
                EXPECT_THAT(stored(), AnyOf(old, added, fresh));
            } else {
                EXPECT_THAT(stored(), AnyOf(old, added));
            }
            EXPECT_FALSE(leftovers());
        }
    }
}

TEST_F(HistoryDurability, aFailedWriteOrFlushLeavesTheOldHistory) {
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

TEST_F(HistoryDurability, aKillAtAnyCallLeavesTheOldOrTheNewHistoryAndTheNextRecordCleansUp) {
    for (const Position& position : positions()) {
        SCOPED_TRACE("killed at " + position.line);
        prepare();
        EXPECT_EQ(runTraced({position.injection("signal=KILL")}), -1);
        const auto left = stored();
        ASSERT_THAT(left, AnyOf(old, added));
        EXPECT_EQ(run({ZELK_HISTORY_WRITER, home.path(), "4"}), 0);
        History next = *left;
        next.push_back(record(4));
        EXPECT_EQ(stored(), next);
        EXPECT_FALSE(leftovers());
    }
}

TEST_F(HistoryDurability, anInterruptedCallIsRepeated) {
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

TEST_F(HistoryDurability, aTemporaryFileThatCannotBeRemovedIsSweptByTheNextRecord) {
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
        EXPECT_EQ(run({ZELK_HISTORY_WRITER, home.path(), "3"}), 0);
        EXPECT_EQ(stored(), added);
        EXPECT_FALSE(leftovers());
    }
}

TEST_F(HistoryDurability, aRefusedFlushOfTheFolderStillTellsTheNewHistory) {
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
