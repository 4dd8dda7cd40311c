// SPDX-License-Identifier: MIT
// The Cleaner with real threads and real programs.
#include <gmock/gmock.h>
#include <signal.h>
#include <sys/stat.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <future>
#include <latch>
#include <set>
#include <thread>

#include "fakes/FakePlatform.h"
#include "fakes/TestFiles.h"
#include "platform/posix/PosixChildProcess.h"
#include "platform/posix/PosixTasks.h"
#include "reclaim/Cleaner.h"
#include "zoo/TempFolder.h"

#ifdef __linux__
#include "fakes/SystemCallGate.h"
#endif

namespace zelk {
namespace {

using Results = std::vector<Cleaner::Result>;

Reclaimable itemToTrash(const std::string& path) {
    Reclaimable item;
    item.id = item.path = path;
    return item;
}

Reclaimable byShell(const std::string& id, const std::string& line) {
    Reclaimable item = itemToTrash(id);
    item.method = ReclaimMethod::command("/bin/sh", {"-c", line});
    return item;
}

class CleanerThreads : public testing::Test {
protected:
    ~CleanerThreads() override { fakes::FakePlatform::waitForThreads(); }

    Platform platform() {
        return {machine.clock, machine.directories, machine.files,     machine.contents,
                machine.trash, machine.vitals,      machine.locations, tasks,
                processes,     machine.workspace,   machine.system};
    }

    Results cleanAll(std::vector<Reclaimable> items) {
        std::promise<Results> ended;
        Cleaner::cleanAll(std::move(items), false, platform(),
                          [&](Results results) { ended.set_value(std::move(results)); });
        return ended.get_future().get();
    }

    fakes::FakePlatform machine;
    ThreadTasks tasks;
    PosixChildProcess processes;
};

constexpr std::size_t many = 2'000;

std::vector<Reclaimable> manyItems(fakes::FakeFileManager& files) {
    std::vector<Reclaimable> items;
    for (std::size_t number = 0; number < many; ++number) {
        const std::string path = "/cache/" + std::to_string(number);
        files.addFile(path + "/file");
        items.push_back(itemToTrash(path));
    }
    return items;
}

std::size_t countOf(const Results& results, bool failed) {
    return static_cast<std::size_t>(std::count_if(results.begin(), results.end(), [&](const Cleaner::Result& result) {
        return std::holds_alternative<Cleaner::Failed>(result.status) == failed;
    }));
}

TEST_F(CleanerThreads, cleansTwoThousandItemsDespiteOneFailure) {
    const std::vector<Reclaimable> items = manyItems(machine.files);
    machine.files.failing = [](const auto& call) { return call.operation == "trash" && call.path == "/cache/1000"; };
    const Results results = cleanAll(items);
    std::set<std::string> ids;
    for (const Cleaner::Result& result : results) ids.insert(result.id);
    EXPECT_EQ(results.size(), many);
    EXPECT_EQ(ids.size(), many);
    EXPECT_EQ(countOf(results, true), 1U);
    EXPECT_EQ(machine.trash.trashed().size(), many - 1);
    EXPECT_TRUE(machine.files.exists("/cache/1000/file"));
}

// Each item waits for all the others, so one after the other they would never end.
TEST_F(CleanerThreads, cleansItemsConcurrently) {
    std::vector<Reclaimable> items;
    for (const char* path : {"/a", "/b", "/c", "/d", "/e", "/f", "/g", "/h", "/i", "/j", "/k", "/l"}) {
        machine.files.addFolder(path);
        items.push_back(itemToTrash(path));
    }
    std::latch all(static_cast<std::ptrdiff_t>(items.size()));
    machine.files.failing = [&](const auto& call) {
        if (call.operation == "trash") all.arrive_and_wait();
        return false;
    };
    EXPECT_EQ(countOf(cleanAll(items), false), items.size());
}

// More tools than the pool has threads, each of which stalls until the last item is in the Trash.
TEST_F(CleanerThreads, stalledToolsDoNotBlockOtherItems) {
    constexpr std::size_t stalling = 150;
    std::vector<Reclaimable> items;
    for (std::size_t number = 0; number < stalling; ++number)
        items.push_back(byShell("/tool/" + std::to_string(number), "true"));
    machine.files.addFolder("/last");
    items.push_back(itemToTrash("/last"));
    std::latch gone(1);
    machine.processes.outcome = [&](const auto&) {
        gone.wait();
        return ChildOutcome{};
    };
    machine.files.failing = [&](const auto& call) {
        if (call.operation == "trash") gone.count_down();
        return false;
    };
    const Platform stalled{machine.clock,     machine.directories, machine.files,     machine.contents,
                           machine.trash,     machine.vitals,      machine.locations, tasks,
                           machine.processes, machine.workspace,   machine.system};
    std::promise<Results> ended;
    Cleaner::cleanAll(items, false, stalled, [&](Results all) { ended.set_value(std::move(all)); });
    EXPECT_EQ(countOf(ended.get_future().get(), false), stalling + 1);
}

TEST_F(CleanerThreads, deliversResultsOnBackgroundThread) {
    machine.files.addFolder("/a");
    std::promise<std::thread::id> thread;
    Cleaner::cleanAll({itemToTrash("/a")}, false, platform(),
                      [&](const Results&) { thread.set_value(std::this_thread::get_id()); });
    EXPECT_NE(thread.get_future().get(), std::this_thread::get_id());
}

#ifdef __linux__
TEST_F(CleanerThreads, cleansEveryItemWithoutSpareThreads) {
    const std::vector<Reclaimable> items = manyItems(machine.files);
    std::size_t results = 0;
    unsigned refused = 0;
    fakes::behindGate(
        SYS_clone3, [&](unsigned) { return ++refused, EAGAIN; },
        [&] { Cleaner::cleanAll(items, false, platform(), [&](const Results& all) { results = all.size(); }); });
    EXPECT_EQ(results, many);
    EXPECT_EQ(refused, many + 1);
    EXPECT_EQ(machine.trash.trashed().size(), many);
}
#endif

// Real programs.

TEST_F(CleanerThreads, keepsOutputOfRealTool) {
    EXPECT_EQ(Cleaner::cleanOne(byShell("/target", "echo removed; echo warned >&2"), false, platform()).status,
              Cleaner::Status(Cleaner::RanCommand{"removed\nwarned\n"}));
}

TEST_F(CleanerThreads, reportsStatusAndOutputOfFailingRealTool) {
    const Reclaimable item = byShell("/target", "printf 'error: could not find Cargo.toml'; exit 101");
    EXPECT_EQ(Cleaner::cleanOne(item, false, platform()).status,
              Cleaner::Status(Cleaner::Failed{"exit 101: error: could not find Cargo.toml"}));
}

TEST_F(CleanerThreads, nonUtf8OutputOfRealToolIsEmpty) {
    EXPECT_EQ(Cleaner::cleanOne(byShell("/target", "printf 'caf\\351'"), false, platform()).status,
              Cleaner::Status(Cleaner::RanCommand{""}));
}

TEST_F(CleanerThreads, missingToolFailsWithStatusOfEnv) {
    Reclaimable item = itemToTrash("/target");
    item.method = ReclaimMethod::command("/usr/bin/env", {"zelk-has-no-such-tool", "clean"});
    const Cleaner::Status status = Cleaner::cleanOne(item, false, platform()).status;
    ASSERT_TRUE(std::holds_alternative<Cleaner::Failed>(status));
    EXPECT_TRUE(std::get<Cleaner::Failed>(status).error.starts_with("exit 127: "));
}

TEST_F(CleanerThreads, missingExecutableFailsWithSystemErrorText) {
    Reclaimable item = itemToTrash("/target");
    item.method = ReclaimMethod::command("/nowhere/tool", {});
    EXPECT_EQ(Cleaner::cleanOne(item, false, platform()).status,
              Cleaner::Status(Cleaner::Failed{std::strerror(ENOENT)}));
}

// One tool fills its pipe and stalls. The other waits until the first has started, and ends.
TEST_F(CleanerThreads, toolThatFillsPipeStallsOnlyItself) {
    const zoo::TempFolder folder;
    const std::string fifo = folder / "fifo";
    ASSERT_EQ(::mkfifo(fifo.c_str(), 0600), 0);
    std::promise<void> otherEnded;
    machine.processes.outcome = [&](const auto& call) {
        ChildOutcome outcome = processes.run(call.executable, call.arguments);
        if (call.arguments.back().starts_with("cat ")) otherEnded.set_value();
        return outcome;
    };
    Platform noting{machine.clock,     machine.directories, machine.files,     machine.contents,
                    machine.trash,     machine.vitals,      machine.locations, tasks,
                    machine.processes, machine.workspace,   machine.system};
    const std::string stalling =
        "echo $$ > " + (folder / "process") + "; echo > " + fifo + "; exec head -c 1000000 /dev/zero";
    std::promise<Results> ended;
    Cleaner::cleanAll({byShell("/stalls", stalling), byShell("/ends", "cat " + fifo)}, false, noting,
                      [&](Results all) { ended.set_value(std::move(all)); });
    otherEnded.get_future().wait();
    ASSERT_EQ(::kill(std::stoi(fakes::fileContent(folder / "process")), SIGKILL), 0);
    for (const Cleaner::Result& result : ended.get_future().get()) {
        if (result.id == "/ends") {
            EXPECT_EQ(result.status, Cleaner::Status(Cleaner::RanCommand{"\n"}));
        } else {
            ASSERT_TRUE(std::holds_alternative<Cleaner::Failed>(result.status));
            EXPECT_TRUE(std::get<Cleaner::Failed>(result.status).error.starts_with("exit 9: "));
        }
    }
}

}  // namespace
}  // namespace zelk
