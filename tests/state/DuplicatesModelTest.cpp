// SPDX-License-Identifier: MIT
#include "state/DuplicatesModel.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <condition_variable>
#include <mutex>

#include "AppModelFixture.h"

namespace zelk {
namespace {

using testing::Contains;
using testing::Each;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

using Strings = std::vector<std::string>;
using Sets = std::vector<Strings>;

constexpr std::size_t minimum = 2'000'000;

class Duplicates : public AppModelFixture {
protected:
    Duplicates() {
        for (const char* name : {"/a", "/b", "/c"}) add(name, 'x');
        for (const char* name : {"/1", "/2"}) add(name, 'y', minimum + 1);
    }
    ~Duplicates() override { machine.tasks.finish(); }

    DuplicatesModel& duplicates() {
        DuplicatesModel& its = model().duplicates();
        if (!std::exchange(listening_, true)) {
            const auto note = [&](void (DuplicatesModel::*changed)(), const char* name) {
                QObject::connect(&its, changed, &its, [this, name] { heard.emplace_back(name); });
            };
            note(&DuplicatesModel::groupsChanged, "groups");
            note(&DuplicatesModel::loadingChanged, "loading");
            note(&DuplicatesModel::hasScannedChanged, "hasScanned");
            note(&DuplicatesModel::progressChanged, "progress");
        }
        return its;
    }
    void add(const std::string& name, char letter, std::size_t size = minimum) {
        machine.files.addFile(home + name, std::string(size, letter));
    }
    void search() {
        duplicates().scan({home});
        runUntil([this] { return !duplicates().loading(); });
    }
    Sets sets() {
        Sets paths;
        for (const DuplicateGroup& group : duplicates().groups()) paths.push_back(group.paths);
        return paths;
    }
    void keepFirst(std::size_t group) {
        const DuplicateGroup& its = duplicates().groups().at(group);
        duplicates().trashOthers(its, its.paths.front());
    }
    void settle() {
        runUntil([this] { return !model().removals().underWay(); });
        runWhatIsThere();
    }

    std::vector<std::string> heard;

private:
    bool listening_ = false;
};

}  // namespace

TEST_F(Duplicates, beginEmpty) {
    EXPECT_THAT(duplicates().groups(), IsEmpty());
    EXPECT_FALSE(duplicates().loading());
    EXPECT_FALSE(duplicates().hasScanned());
    EXPECT_EQ(duplicates().totalRecoverable(), 0);
    EXPECT_EQ(duplicates().progress(), HashProgress());
    EXPECT_THAT(machine.contents.read(), IsEmpty());
}

TEST_F(Duplicates, searchRunsInTheBackground) {
    machine.tasks.hold();
    duplicates().scan({home});
    EXPECT_TRUE(duplicates().loading());
    EXPECT_TRUE(duplicates().hasScanned());
    EXPECT_THAT(heard, ElementsAre("loading", "hasScanned"));
    EXPECT_THAT(machine.tasks.waiting(), ElementsAre(TaskPriority::userInitiated));
    machine.tasks.release();
    EXPECT_THAT(duplicates().groups(), IsEmpty()) << "the result waits for the main thread";
    runUntil([this] { return !duplicates().loading(); });
    EXPECT_EQ(sets(), (Sets{{home + "/a", home + "/b", home + "/c"}, {home + "/1", home + "/2"}}));
    EXPECT_EQ(duplicates().totalRecoverable(), 2 * 2'000'000 + 2'000'001);
}

TEST_F(Duplicates, smallestSizeIsTwoMillionBytes) {
    for (const char* name : {"/s1", "/s2"}) add(name, 's', minimum - 1);
    search();
    EXPECT_THAT(sets(), SizeIs(2));
}

TEST_F(Duplicates, secondSearchBeginsEmpty) {
    search();
    machine.tasks.hold();
    heard.clear();
    duplicates().scan({home});
    EXPECT_THAT(duplicates().groups(), IsEmpty());
    EXPECT_THAT(heard, ElementsAre("loading", "groups", "progress"));
    machine.tasks.release();
    runUntil([this] { return !duplicates().loading(); });
    EXPECT_THAT(sets(), SizeIs(2));
}

TEST_F(Duplicates, searchesTheGivenRootsAlone) {
    add("/in/a", 'z');
    add("/in/b", 'z');
    duplicates().scan({home + "/in"});
    runUntil([this] { return !duplicates().loading(); });
    EXPECT_EQ(sets(), (Sets{{home + "/in/a", home + "/in/b"}}));
}

TEST_F(Duplicates, ofTwoSearchesTheLastToEndWins) {
    add("/in/a", 'z');
    add("/in/b", 'z');
    machine.tasks.hold();
    duplicates().scan({home + "/in"});
    duplicates().scan({home + "/nowhere"});
    machine.tasks.runAt(1);
    runUntil([this] { return !duplicates().loading(); });
    EXPECT_THAT(sets(), IsEmpty());
    machine.tasks.runNext();
    runUntil([this] { return !duplicates().groups().empty(); });
    EXPECT_EQ(sets(), (Sets{{home + "/in/a", home + "/in/b"}}));
    EXPECT_FALSE(duplicates().loading());
    EXPECT_EQ(duplicates().progress(), HashProgress()) << "that of the later one";
}

TEST_F(Duplicates, progressIsReportedTenTimesASecond) {
    duplicates();
    int chunks = 0;
    machine.contents.reading = [&](const std::string&, std::size_t) {
        // Each file takes three reads; each takes 40 ms.
        machine.clock.advance(0.04);
        ++chunks;
    };
    machine.tasks.hold();
    duplicates().scan({home});
    heard.clear();
    machine.tasks.release();
    runUntil([this] { return !duplicates().loading(); });
    EXPECT_EQ(chunks, 15);
    // At 0.04, 0.16, 0.28, 0.4 and 0.52 seconds.
    EXPECT_EQ(std::count(heard.begin(), heard.end(), "progress"), 5);
    EXPECT_EQ(duplicates().progress().toHash, 3 * 2'000'000 + 2 * 2'000'001);
    duplicates().scan({home + "/nowhere"});
    EXPECT_EQ(duplicates().progress(), HashProgress()) << "another search begins anew";
}

TEST_F(Duplicates, searchGoesOnBesideTheMainThread) {
    std::mutex mutex;
    std::condition_variable changed;
    bool released = false;
    machine.contents.reading = [&](const std::string&, std::size_t offset) {
        std::unique_lock lock(mutex);
        if (offset > 0) changed.wait(lock, [&] { return released; });
    };
    machine.tasks.runBeside();
    duplicates().scan({home});
    runUntil([this] { return duplicates().progress().hashed > 0; });
    model().setSelection(Screen::lens);
    EXPECT_TRUE(duplicates().loading());
    EXPECT_EQ(duplicates().progress(), (HashProgress{1'048'576, 3 * 2'000'000 + 2 * 2'000'001}));
    {
        const std::lock_guard lock(mutex);
        released = true;
        changed.notify_all();
    }
    runUntil([this] { return !duplicates().loading(); });
    EXPECT_THAT(sets(), SizeIs(2));
}

TEST_F(Duplicates, searchEndsWithTheModel) {
    for (const char* name : {"/long1", "/long2"}) add(name, 'l', 60'000'000);
    std::mutex mutex;
    std::condition_variable changed;
    bool reached = false;
    bool released = false;
    std::size_t last = 0;
    machine.contents.reading = [&](const std::string&, std::size_t offset) {
        std::unique_lock lock(mutex);
        last = offset;
        reached = true;
        changed.notify_all();
        changed.wait(lock, [&] { return released; });
    };
    machine.tasks.runBeside();
    duplicates().scan({home});
    {
        std::unique_lock lock(mutex);
        changed.wait(lock, [&] { return reached; });
    }
    destroyModel();
    {
        const std::lock_guard lock(mutex);
        released = true;
        changed.notify_all();
    }
    machine.tasks.finish();
    EXPECT_EQ(last, 0U) << "it ended at the next chunk";
}

TEST_F(Duplicates, trashOthersKeepsOneAndDropsTheGroup) {
    search();
    heard.clear();
    keepFirst(0);
    EXPECT_THAT(heard, ElementsAre("groups")) << "at once";
    EXPECT_EQ(sets(), (Sets{{home + "/1", home + "/2"}}));
    settle();
    EXPECT_THAT(machine.trash.trashed(), ElementsAre(home + "/b", home + "/c"));
    EXPECT_EQ(duplicates().totalRecoverable(), 2'000'001);
}

TEST_F(Duplicates, trashOthersKeepsAnyPath) {
    search();
    duplicates().trashOthers(duplicates().groups()[0], home + "/b");
    settle();
    EXPECT_THAT(machine.trash.trashed(), ElementsAre(home + "/a", home + "/c"));
}

TEST_F(Duplicates, removalIsNoWorkOfTheMainThread) {
    search();
    machine.tasks.hold();
    keepFirst(0);
    EXPECT_THAT(machine.tasks.waiting(), ElementsAre(TaskPriority::userInitiated));
    EXPECT_THAT(machine.trash.trashed(), IsEmpty());
    EXPECT_TRUE(model().removals().underWay()) << "quitting asks first";
    EXPECT_EQ(model().removals().progress().items, 2U);
    machine.tasks.release();
    settle();
    EXPECT_THAT(machine.trash.trashed(), SizeIs(2));
}

TEST_F(Duplicates, removalIsKnownWhenTheGroupLeaves) {
    search();
    bool known = false;
    machine.tasks.hold();
    QObject::connect(&duplicates(), &DuplicatesModel::groupsChanged, &duplicates(),
                     [&] { known = model().removals().underWay(); });
    keepFirst(0);
    EXPECT_TRUE(known);
    machine.tasks.release();
    settle();
}

TEST_F(Duplicates, stoppedRemovalMovesNothingMore) {
    search();
    machine.tasks.hold();
    keepFirst(0);
    model().removals().stop();
    machine.tasks.release();
    settle();
    EXPECT_THAT(machine.trash.trashed(), IsEmpty());
    EXPECT_THAT(sets(), SizeIs(1));
}

TEST_F(Duplicates, groupLeavesThoughTheTrashRefuses) {
    search();
    machine.files.failing = [](const auto& call) { return call.operation == "trash"; };
    keepFirst(1);
    settle();
    EXPECT_EQ(sets(), (Sets{{home + "/a", home + "/b", home + "/c"}}));
    EXPECT_TRUE(machine.files.identity(home + "/2"));
    EXPECT_EQ(model().removalUndo().moved(), 0U);
    machine.files.failing = nullptr;
    search();
    EXPECT_THAT(sets(), SizeIs(2)) << "the next search finds it again";
}

TEST_F(Duplicates, nothingMovesIfTheFirstWasChanged) {
    search();
    add("/a", 'n');
    keepFirst(0);
    settle();
    EXPECT_THAT(machine.trash.trashed(), IsEmpty());
    EXPECT_THAT(sets(), SizeIs(1));
}

TEST_F(Duplicates, groupThatIsNotListedIsRemovedAllTheSame) {
    search();
    const DuplicateGroup group = duplicates().groups()[0];
    duplicates().scan({home + "/nowhere"});
    runUntil([this] { return !duplicates().loading(); });
    heard.clear();
    duplicates().trashOthers(group, group.paths[0]);
    settle();
    EXPECT_THAT(heard, IsEmpty());
    EXPECT_THAT(machine.trash.trashed(), SizeIs(2));
}

TEST_F(Duplicates, removalIsOfferedForUndo) {
    search();
    keepFirst(0);
    settle();
    EXPECT_EQ(model().removalUndo().source(), RemovalUndo::Source::duplicates);
    EXPECT_EQ(model().removalUndo().moved(), 2U);
    EXPECT_FALSE(RemovalUndo::isOfSurvey(RemovalUndo::Source::duplicates));
    model().undoLastRemoval();
    runUntil([this] { return !model().removalUndo().underWay(); });
    EXPECT_TRUE(machine.files.identity(home + "/b"));
    EXPECT_TRUE(machine.files.identity(home + "/c"));
    EXPECT_EQ(sets(), (Sets{{home + "/a", home + "/b", home + "/c"}, {home + "/1", home + "/2"}}));
    EXPECT_EQ(model().scanPhase(), Phase::idle) << "it is no matter of a survey";
}

TEST_F(Duplicates, undoListsWhatCameBackAtOnce) {
    search();
    keepFirst(0);
    settle();
    heard.clear();
    model().undoLastRemoval();
    runUntil([this] { return !model().removalUndo().underWay(); });
    EXPECT_THAT(heard, ElementsAre("groups")) << "and not once for each of thousands of copies";
}

TEST_F(Duplicates, whatDoesNotComeBackIsNotListed) {
    search();
    keepFirst(0);
    settle();
    machine.files.failing = [this](const auto& call) {
        return call.operation == "restore" && call.path == home + "/c";
    };
    model().undoLastRemoval();
    runUntil([this] { return !model().removalUndo().underWay(); });
    EXPECT_EQ(sets(), (Sets{{home + "/1", home + "/2"}, {home + "/a", home + "/b"}})) << "by what they waste now";
}

TEST_F(Duplicates, whatTheTrashRefusedIsListedWithWhatComesBack) {
    search();
    machine.files.failing = [this](const auto& call) { return call.operation == "trash" && call.path == home + "/b"; };
    keepFirst(0);
    settle();
    model().undoLastRemoval();
    runUntil([this] { return !model().removalUndo().underWay(); });
    EXPECT_EQ(sets(), (Sets{{home + "/a", home + "/b", home + "/c"}, {home + "/1", home + "/2"}}));
}

TEST_F(Duplicates, twoRemovalsOfASetNeverMoveAllOfIt) {
    search();
    const DuplicateGroup group = duplicates().groups().at(0);
    machine.tasks.hold();
    duplicates().trashOthers(group, home + "/a");
    duplicates().trashOthers(group, home + "/b");
    machine.tasks.release();
    settle();
    EXPECT_THAT(machine.trash.trashed(), ElementsAre(home + "/b", home + "/c"));
    duplicates().trashOthers(group, home + "/a");
    settle();
    EXPECT_THAT(machine.trash.trashed(), SizeIs(2)) << "it may be removed again, but nothing is left of it";
}

TEST_F(Duplicates, restoredGroupIsReadAgainBeforeItsNextRemoval) {
    search();
    keepFirst(0);
    settle();
    model().undoLastRemoval();
    runUntil([this] { return !model().removalUndo().underWay(); });
    // As the way to the Trash and back leaves it.
    machine.contents.touch(home + "/b", {1'000, 0}, {2'000, 0});
    add("/c", 'n');
    keepFirst(0);
    settle();
    EXPECT_THAT(machine.trash.trashed(), ElementsAre(home + "/b", home + "/c", home + "/b"));
}

TEST_F(Duplicates, anotherSearchForgetsWhatComesBack) {
    search();
    keepFirst(0);
    settle();
    search();
    model().undoLastRemoval();
    runUntil([this] { return !model().removalUndo().underWay(); });
    EXPECT_TRUE(machine.files.identity(home + "/b"));
    EXPECT_EQ(sets(), (Sets{{home + "/1", home + "/2"}}));
}

TEST_F(Duplicates, removalOutlivesTheModel) {
    search();
    machine.tasks.hold();
    keepFirst(0);
    destroyModel();
    machine.tasks.release();
    EXPECT_THAT(machine.trash.trashed(), SizeIs(2));
}

}  // namespace zelk
