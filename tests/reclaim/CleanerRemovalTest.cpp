// SPDX-License-Identifier: MIT
// Removing items with the Cleaner, on a machine in memory.
#include <gmock/gmock.h>

#include "fakes/FakePlatform.h"
#include "reclaim/Cleaner.h"

namespace zelk {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

using Results = std::vector<Cleaner::Result>;

Reclaimable toTrash(const std::string& path, const std::string& category = "yarn_cache") {
    Reclaimable item;
    item.id = item.path = path;
    item.size = 1'000;
    item.categoryID = category;
    return item;
}

Reclaimable byTool(const std::string& path, std::vector<std::string> args = {"cargo", "clean"}) {
    Reclaimable item = toTrash(path, "rust_target");
    item.method = ReclaimMethod::command("/usr/bin/env", std::move(args));
    return item;
}

std::vector<std::string> ids(const Results& results) {
    std::vector<std::string> all;
    for (const Cleaner::Result& result : results) all.push_back(result.id);
    return all;
}

class CleanerRemoval : public testing::Test {
protected:
    Cleaner::Status clean(const Reclaimable& item, bool hardDelete = false) {
        const Cleaner::Result result = Cleaner::cleanOne(item, hardDelete, machine.platform());
        EXPECT_EQ(result.id, item.id);
        EXPECT_EQ(result.item.path, item.path);
        EXPECT_EQ(result.item.size, item.size);
        return result.status;
    }

    /// The fake runs tasks immediately, so every item is cleaned when this returns.
    Results cleanAll(std::vector<Reclaimable> items, bool hardDelete = false) {
        Results all;
        int times = 0;
        Cleaner::cleanAll(std::move(items), hardDelete, machine.platform(), [&](Results results) {
            all = std::move(results);
            ++times;
        });
        EXPECT_EQ(times, 1);
        return all;
    }

    std::vector<std::string> removed() { return machine.files.pathsOf("remove"); }

    fakes::FakePlatform machine;
};

// One item.

TEST_F(CleanerRemoval, movesItemToTrash) {
    machine.files.addFile("/home/me/cache/a");
    EXPECT_EQ(clean(toTrash("/home/me/cache")), Cleaner::Status(Cleaner::Trashed{}));
    EXPECT_THAT(machine.trash.trashed(), ElementsAre("/home/me/cache"));
    EXPECT_THAT(removed(), IsEmpty());
}

TEST_F(CleanerRemoval, hardDeleteRemovesAndReportsTrashed) {
    machine.files.addFile("/home/me/cache/a");
    EXPECT_EQ(clean(toTrash("/home/me/cache"), true), Cleaner::Status(Cleaner::Trashed{}));
    EXPECT_THAT(removed(), ElementsAre("/home/me/cache"));
    EXPECT_THAT(machine.trash.trashed(), IsEmpty());
}

TEST_F(CleanerRemoval, failureKeepsSystemErrorText) {
    machine.files.addFile("/home/me/cache/a");
    machine.files.failing = [](const auto& call) { return call.operation == "trash" || call.operation == "remove"; };
    EXPECT_EQ(clean(toTrash("/home/me/cache")),
              Cleaner::Status(Cleaner::Failed{"/home/me/cache would not go to the Trash"}));
    EXPECT_EQ(clean(toTrash("/home/me/cache"), true), Cleaner::Status(Cleaner::Failed{"/home/me/cache would not go"}));
}

TEST_F(CleanerRemoval, missingItemFails) {
    EXPECT_EQ(clean(toTrash("/home/me/gone")), Cleaner::Status(Cleaner::Failed{"/home/me/gone does not exist"}));
    EXPECT_EQ(clean(toTrash("/home/me/gone"), true), Cleaner::Status(Cleaner::Failed{"/home/me/gone does not exist"}));
}

TEST_F(CleanerRemoval, invalidPathFailsWithoutTouchingAnything) {
    for (const std::string path : {"", "/", "relative", "/home/me/../you", "/home/./me"}) {
        for (const bool hardDelete : {false, true}) {
            const Cleaner::Status status = clean(toTrash(path), hardDelete);
            ASSERT_TRUE(std::holds_alternative<Cleaner::Failed>(status)) << path;
            EXPECT_NE(std::get<Cleaner::Failed>(status).error.find("“" + path + "”"), std::string::npos);
        }
    }
    EXPECT_THAT(machine.files.calls(), IsEmpty());
    EXPECT_THAT(machine.trash.trashed(), IsEmpty());
}

// Tools.

TEST_F(CleanerRemoval, runsToolWithItsArgumentsButNotTheItemPath) {
    EXPECT_EQ(clean(byTool("/home/me/project/target")), Cleaner::Status(Cleaner::RanCommand{""}));
    EXPECT_THAT(machine.processes.calls(), ElementsAre(fakes::FakeProcesses::Call{"/usr/bin/env", {"cargo", "clean"}}));
    EXPECT_THAT(machine.trash.trashed(), IsEmpty());
}

TEST_F(CleanerRemoval, silentToolGivesEmptyOutput) {
    EXPECT_EQ(clean(byTool("/target")), Cleaner::Status(Cleaner::RanCommand{""}));
}

TEST_F(CleanerRemoval, keepsToolOutput) {
    machine.processes.outcome = [](const auto&) { return ChildOutcome{std::nullopt, 0, "Removed 3 files\n"}; };
    EXPECT_EQ(clean(byTool("/target")), Cleaner::Status(Cleaner::RanCommand{"Removed 3 files\n"}));
}

TEST_F(CleanerRemoval, hardDeleteStillRunsTool) {
    machine.files.addFile("/target/a");
    EXPECT_EQ(clean(byTool("/target"), true), Cleaner::Status(Cleaner::RanCommand{""}));
    EXPECT_EQ(machine.processes.calls().size(), 1U);
    EXPECT_THAT(removed(), IsEmpty());
}

TEST_F(CleanerRemoval, failingToolReportsStatusAndOutput) {
    machine.processes.outcome = [](const auto&) {
        return ChildOutcome{std::nullopt, 101, "error: could not find Cargo.toml"};
    };
    EXPECT_EQ(clean(byTool("/target")), Cleaner::Status(Cleaner::Failed{"exit 101: error: could not find Cargo.toml"}));
}

TEST_F(CleanerRemoval, silentFailingToolReportsStatus) {
    machine.processes.outcome = [](const auto&) { return ChildOutcome{std::nullopt, 2, ""}; };
    EXPECT_EQ(clean(byTool("/target")), Cleaner::Status(Cleaner::Failed{"exit 2: "}));
}

TEST_F(CleanerRemoval, nonUtf8OutputIsEmpty) {
    int status = 0;
    machine.processes.outcome = [&](const auto&) { return ChildOutcome{std::nullopt, status, "caf\xe9"}; };
    EXPECT_EQ(clean(byTool("/target")), Cleaner::Status(Cleaner::RanCommand{""}));
    status = 1;
    EXPECT_EQ(clean(byTool("/target")), Cleaner::Status(Cleaner::Failed{"exit 1: "}));
}

TEST_F(CleanerRemoval, unlaunchableToolReportsSystemErrorText) {
    machine.processes.outcome = [](const auto&) { return ChildOutcome{"No such file or directory", 0, ""}; };
    EXPECT_EQ(clean(byTool("/target")), Cleaner::Status(Cleaner::Failed{"No such file or directory"}));
}

// Many items.

TEST_F(CleanerRemoval, emptyListFinishesImmediately) {
    machine.tasks.hold();
    EXPECT_THAT(cleanAll({}), IsEmpty());
    EXPECT_THAT(machine.tasks.waiting(), IsEmpty());
    machine.tasks.release();
}

TEST_F(CleanerRemoval, givesOneResultPerItem) {
    machine.files.addFile("/a/file");
    machine.files.addFile("/c/file");
    const Results results = cleanAll({toTrash("/a"), byTool("/b"), toTrash("/c"), toTrash("")});
    EXPECT_THAT(ids(results), UnorderedElementsAre("/a", "/b", "/c", ""));
    EXPECT_THAT(machine.trash.trashed(), UnorderedElementsAre("/a", "/c"));
}

TEST_F(CleanerRemoval, returnsBeforeAnyItemIsCleaned) {
    machine.files.addFile("/a/file");
    machine.tasks.hold();
    Results all;
    Cleaner::cleanAll({toTrash("/a")}, false, machine.platform(), [&](Results results) { all = std::move(results); });
    EXPECT_THAT(machine.tasks.waiting(), ElementsAre(TaskPriority::userInitiated));
    EXPECT_THAT(machine.trash.trashed(), IsEmpty());
    EXPECT_THAT(all, IsEmpty());
    machine.tasks.release();
    EXPECT_THAT(ids(all), ElementsAre("/a"));
}

TEST_F(CleanerRemoval, cleansEachItemInItsOwnTask) {
    machine.tasks.hold();
    bool ended = false;
    Cleaner::cleanAll({toTrash("/a"), toTrash("/b"), toTrash("/c")}, false, machine.platform(),
                      [&](const Results&) { ended = true; });
    machine.tasks.runNext();
    EXPECT_EQ(machine.tasks.waiting().size(), 3U);
    machine.tasks.runNext();
    machine.tasks.runNext();
    EXPECT_FALSE(ended);
    machine.tasks.runNext();
    EXPECT_TRUE(ended);
    machine.tasks.release();
}

TEST_F(CleanerRemoval, ordersResultsByCompletion) {
    machine.files.addFile("/a/file");
    machine.files.addFile("/c/file");
    machine.tasks.hold();
    Results all;
    Cleaner::cleanAll({toTrash("/a"), toTrash("/fails"), toTrash("/c")}, false, machine.platform(),
                      [&](Results results) { all = std::move(results); });
    machine.tasks.runNext();
    machine.tasks.runAt(2);
    machine.tasks.runAt(1);
    machine.tasks.runAt(0);
    EXPECT_THAT(ids(all), ElementsAre("/c", "/fails", "/a"));
    machine.tasks.release();
}

TEST_F(CleanerRemoval, oneFailureDoesNotStopOthers) {
    for (const char* file : {"/a/file", "/b/file", "/c/file"}) machine.files.addFile(file);
    machine.files.failing = [](const auto& call) { return call.operation == "trash" && call.path == "/b"; };
    const Results results = cleanAll({toTrash("/a"), toTrash("/b"), toTrash("/c")});
    ASSERT_EQ(results.size(), 3U);
    for (const Cleaner::Result& result : results)
        EXPECT_EQ(std::holds_alternative<Cleaner::Failed>(result.status), result.id == "/b") << result.id;
    EXPECT_THAT(machine.trash.trashed(), UnorderedElementsAre("/a", "/c"));
}

TEST_F(CleanerRemoval, duplicateItemGivesTwoResults) {
    machine.files.addFile("/a/file");
    const Results results = cleanAll({toTrash("/a"), toTrash("/a")});
    ASSERT_EQ(results.size(), 2U);
    EXPECT_NE(results[0].status, results[1].status);
}

// Running applications.

class CleanerConflict : public testing::Test {
protected:
    std::optional<std::string> conflict(const std::string& path, const std::string& category = "electron_cache") {
        return Cleaner::runningConflict(toTrash(path, category), workspace);
    }

    const std::string cache = "/Users/me/Library/Application Support/Cursor/Cache";
    fakes::FakeWorkspace workspace;
};

TEST_F(CleanerConflict, findsRunningApplicationNamedInPath) {
    workspace.running = {"Finder", "Cursor"};
    EXPECT_EQ(conflict(cache), "Cursor");
}

TEST_F(CleanerConflict, ignoresApplicationsThatAreNotInPath) {
    workspace.running = {"Finder", "Curso", "ursor", "cursor", "Cursor2"};
    EXPECT_EQ(conflict(cache), std::nullopt);
    workspace.running = {};
    EXPECT_EQ(conflict(cache), std::nullopt);
}

TEST_F(CleanerConflict, ignoresLastPathComponent) {
    workspace.running = {"Cache"};
    EXPECT_EQ(conflict(cache), std::nullopt);
}

TEST_F(CleanerConflict, takesFirstMatchInSystemOrder) {
    workspace.running = {"Library", "Cursor"};
    EXPECT_EQ(conflict(cache), "Library");
    workspace.running = {"Cursor", "Library"};
    EXPECT_EQ(conflict(cache), "Cursor");
}

TEST_F(CleanerConflict, emptyNameNeverMatches) {
    workspace.running = {""};
    EXPECT_EQ(conflict("/Users/me//Application Support/Cursor/Cache"), std::nullopt);
}

TEST_F(CleanerConflict, skipsCategoriesThatAreNotAppScoped) {
    workspace.running = {"Cursor"};
    for (const ReclaimCategory& category : reclaimCatalogue()) {
        const bool appScoped = category.appScoped;
        workspace.runningReads = 0;
        EXPECT_EQ(conflict(cache, std::string(category.id)).has_value(), appScoped) << category.id;
        EXPECT_EQ(workspace.runningReads, appScoped ? 1 : 0) << category.id;
    }
}

TEST_F(CleanerConflict, skipsUnknownCategories) {
    workspace.running = {"Cursor"};
    EXPECT_EQ(conflict(cache, "no_such_category"), std::nullopt);
    EXPECT_EQ(workspace.runningReads, 0);
}

TEST_F(CleanerConflict, takesEveryApplicationForRunningIfNobodySays) {
    workspace.runningKnown = false;
    for (const ReclaimCategory& category : reclaimCatalogue()) {
        const std::optional<std::string> expected =
            category.appScoped ? std::optional<std::string>(Cleaner::unknownApplication) : std::nullopt;
        EXPECT_EQ(conflict(cache, std::string(category.id)), expected) << category.id;
    }
    EXPECT_EQ(conflict(cache, "no_such_category"), std::nullopt);
}

// The Trash.

TEST_F(CleanerRemoval, emptyingTrashReturnsNumberRemoved) {
    machine.trash.put("a", 1);
    machine.trash.put(".hidden", 1);
    machine.trash.put("folder/b", 1);
    EXPECT_EQ(Cleaner::emptyTrashContents(machine.trash), 3U);
    EXPECT_THAT(*machine.trash.list(), IsEmpty());
}

TEST_F(CleanerRemoval, emptyingTrashContinuesAfterFailure) {
    for (const char* name : {"a", "b", "c"}) machine.trash.put(name, 1);
    machine.files.failing = [](const auto& call) { return call.operation == "remove" && call.path.ends_with("/b"); };
    EXPECT_EQ(Cleaner::emptyTrashContents(machine.trash), 2U);
    EXPECT_THAT(*machine.trash.list(), ElementsAre(machine.trash.path + "/b"));
}

TEST_F(CleanerRemoval, doesNotEmptyInaccessibleTrash) {
    machine.trash.put("a", 1);
    machine.trash.setAccessible(false);
    EXPECT_EQ(Cleaner::emptyTrashContents(machine.trash), 0U);
    EXPECT_THAT(removed(), IsEmpty());
}

}  // namespace
}  // namespace zelk
