// SPDX-License-Identifier: MIT
#include "reclaim/DuplicateRemoval.h"

#include <gmock/gmock.h>

#include "DuplicatesFixture.h"

namespace zelk {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

class RemovalOfDuplicates : public DuplicatesFixture {
protected:
    RemovalOfDuplicates() {
        for (const std::string& path : {a, b, c, d}) add(path, 'x');
    }
    DuplicateGroup onlyGroup() {
        std::vector<DuplicateGroup> groups = find();
        EXPECT_THAT(groups, SizeIs(1));
        return groups.front();
    }
    MovedDuplicates trash(const DuplicateGroup& group, const std::string& keep) {
        Removal removal(group.paths.size() - 1, [](const Removal&) {});
        MovedDuplicates moved = trashDuplicates(group, keep, machine.platform(), removal);
        done = removal.done();
        return moved;
    }
    /// The paths that go to the Trash if `change` happens after the search.
    Strings trashedAfter(const std::function<void()>& change) {
        const DuplicateGroup group = onlyGroup();
        change();
        trash(group, a);
        return machine.trash.trashed();
    }
    void touch(const std::string& path, FileTime modified, FileTime changed) {
        machine.contents.touch(path, modified, changed);
    }
    FileTime secondsAgo(std::int64_t seconds) { return {static_cast<std::int64_t>(machine.clock.now()) - seconds, 0}; }

    const std::string a = "/home/me/a", b = "/home/me/b", c = "/home/me/c", d = "/home/me/d";
    std::size_t done = 0;
};

}  // namespace

TEST_F(RemovalOfDuplicates, movesAllButTheKeptOneInOrder) {
    const MovedDuplicates moved = trash(onlyGroup(), a);
    EXPECT_THAT(machine.trash.trashed(), ElementsAre(b, c, d));
    EXPECT_EQ(moved.moved, 3U);
    EXPECT_EQ(done, 3U);
    ASSERT_THAT(moved.restorable, SizeIs(3));
    EXPECT_EQ(moved.restorable[1].file.item.text(), c);
    EXPECT_EQ(moved.restorable[1].trashed.origin.text(), c);
    EXPECT_TRUE(machine.files.identity(a));
}

TEST_F(RemovalOfDuplicates, anyFileMayBeKept) {
    trash(onlyGroup(), c);
    EXPECT_THAT(machine.trash.trashed(), ElementsAre(a, b, d));
}

TEST_F(RemovalOfDuplicates, movesNothingIfTheKeptOneIsNotInTheGroup) {
    EXPECT_EQ(trash(onlyGroup(), "/home/me/other").moved, 0U);
    EXPECT_THAT(machine.trash.trashed(), IsEmpty());
}

TEST_F(RemovalOfDuplicates, movesNothingIfTheKeptOneIsGone) {
    EXPECT_THAT(trashedAfter([this] { machine.files.erase(a); }), IsEmpty());
}

TEST_F(RemovalOfDuplicates, movesNothingIfTheKeptOneIsAnotherFile) {
    EXPECT_THAT(trashedAfter([this] { add(a, 'x'); }), IsEmpty());
}

TEST_F(RemovalOfDuplicates, movesNothingIfTheKeptOneIsALink) {
    EXPECT_THAT(trashedAfter([this] { machine.files.addLink(a, b); }), IsEmpty());
}

TEST_F(RemovalOfDuplicates, movesNothingIfTheKeptOneWasWritten) {
    EXPECT_THAT(trashedAfter([this] { touch(a, {1'000, 1}, {1'000, 0}); }), IsEmpty());
}

TEST_F(RemovalOfDuplicates, movesNothingIfThePropertiesOfTheKeptOneChanged) {
    EXPECT_THAT(trashedAfter([this] { touch(a, {1'000, 0}, {1'001, 0}); }), IsEmpty());
}

TEST_F(RemovalOfDuplicates, changedFileStays) {
    EXPECT_THAT(trashedAfter([this] { touch(c, {1'001, 0}, {1'001, 0}); }), ElementsAre(b, d));
    EXPECT_EQ(done, 3U);
}

TEST_F(RemovalOfDuplicates, replacedFileStays) {
    EXPECT_THAT(trashedAfter([this] { add(b, 'y'); }), ElementsAre(c, d));
}

TEST_F(RemovalOfDuplicates, stopsWhenTheKeptOneChangesHalfway) {
    const DuplicateGroup group = onlyGroup();
    machine.files.failing = [this](const auto& call) {
        if (call.operation == "trash" && call.path == b) touch(a, {1'001, 0}, {1'001, 0});
        return false;
    };
    trash(group, a);
    EXPECT_THAT(machine.trash.trashed(), ElementsAre(b));
}

TEST_F(RemovalOfDuplicates, refusalOfTheTrashLeavesTheFileAndGoesOn) {
    machine.files.failing = [this](const auto& call) { return call.operation == "trash" && call.path == c; };
    EXPECT_EQ(trash(onlyGroup(), a).moved, 2U);
    EXPECT_THAT(machine.trash.trashed(), ElementsAre(b, d));
    EXPECT_TRUE(machine.files.identity(c));
    EXPECT_EQ(done, 3U);
}

TEST_F(RemovalOfDuplicates, whatCouldNotBeReadIsNeverMoved) {
    machine.contents.broken = {{a, 1'000'000}, {b, 1'000'000}, {c, 1'000'000}, {d, 1'000'000}};
    const DuplicateGroup group = onlyGroup();
    EXPECT_THAT(group.paths, SizeIs(4));
    machine.contents.broken.clear();
    EXPECT_EQ(trash(group, a).moved, 0U);
    EXPECT_THAT(machine.trash.trashed(), IsEmpty());
}

TEST_F(RemovalOfDuplicates, whatWasJustWrittenIsReadAgain) {
    for (const std::string& path : {a, b, c, d}) touch(path, secondsAgo(1), secondsAgo(1));
    const DuplicateGroup group = onlyGroup();
    EXPECT_THAT(machine.contents.read(), ElementsAre(a, b, c, d));
    machine.clock.advance(60);
    trash(group, a);
    EXPECT_THAT(machine.trash.trashed(), ElementsAre(b, c, d));
    EXPECT_THAT(machine.contents.read(), ElementsAre(a, b, c, d, b, a, c, d)) << "the kept one is settled by now";
}

TEST_F(RemovalOfDuplicates, justWrittenFileWhoseContentIsAnotherNowStays) {
    touch(b, secondsAgo(0), secondsAgo(0));
    const DuplicateGroup group = onlyGroup();
    machine.contents.reading = [](const std::string&, std::size_t) {};
    // Its times are as they were.
    add(b, 'y');
    touch(b, secondsAgo(0), secondsAgo(0));
    trash(group, a);
    EXPECT_THAT(machine.trash.trashed(), ElementsAre(c, d));
}

TEST_F(RemovalOfDuplicates, movesNothingIfTheJustWrittenKeptOneHasAnotherContentNow) {
    touch(a, secondsAgo(0), secondsAgo(0));
    const DuplicateGroup group = onlyGroup();
    add(a, 'y');
    touch(a, secondsAgo(0), secondsAgo(0));
    trash(group, a);
    EXPECT_THAT(machine.trash.trashed(), IsEmpty());
}

TEST_F(RemovalOfDuplicates, justWrittenFileThatCannotBeReadAnyMoreStays) {
    touch(b, secondsAgo(0), secondsAgo(0));
    const DuplicateGroup group = onlyGroup();
    machine.contents.locked = {b};
    trash(group, a);
    EXPECT_THAT(machine.trash.trashed(), ElementsAre(c, d));
}

TEST_F(RemovalOfDuplicates, whatIsSwappedInAtTheLastMomentComesBack) {
    const DuplicateGroup group = onlyGroup();
    machine.files.failing = [this](const auto& call) {
        if (call.operation == "trash" && call.path == b) add(b, 'n', 10);
        return false;
    };
    const MovedDuplicates moved = trash(group, a);
    EXPECT_EQ(machine.files.content(b), std::string(10, 'n'));
    EXPECT_EQ(moved.moved, 2U);
    EXPECT_THAT(machine.trash.restored(), ElementsAre(b));
    ASSERT_THAT(moved.restorable, SizeIs(2));
    EXPECT_EQ(moved.restorable[0].file.item.text(), c);
}

// As where a pool of disks and one of its disks are both searched.
TEST_F(RemovalOfDuplicates, moveThatTakesTheKeptOneAlongIsUndone) {
    const DuplicateGroup group = onlyGroup();
    machine.files.failing = [this](const auto& call) {
        if (call.operation == "trash") machine.files.erase(a);
        return false;
    };
    const MovedDuplicates moved = trash(group, a);
    EXPECT_TRUE(machine.files.identity(b));
    EXPECT_THAT(machine.trash.restored(), ElementsAre(b));
    EXPECT_EQ(moved.moved, 0U);
    EXPECT_THAT(moved.restorable, IsEmpty());
    EXPECT_THAT(moved.stayed, ElementsAre(b, c, d));
}

TEST_F(RemovalOfDuplicates, fileWrittenWhileTheKeptOneIsReadStays) {
    touch(a, secondsAgo(0), secondsAgo(0));
    const DuplicateGroup group = onlyGroup();
    machine.contents.reading = [this](const std::string& path, std::size_t) {
        if (path == a && machine.trash.trashed().empty()) touch(b, secondsAgo(0), secondsAgo(0));
    };
    trash(group, a);
    EXPECT_THAT(machine.trash.trashed(), ElementsAre(c, d));
}

TEST_F(RemovalOfDuplicates, stopEndsTheReadingOfWhatWasJustWritten) {
    for (const std::string& path : {a, b, c, d}) touch(path, secondsAgo(0), secondsAgo(0));
    const DuplicateGroup group = onlyGroup();
    Removal removal(3, [](const Removal&) {});
    machine.contents.reading = [&](const std::string&, std::size_t) { removal.stop(); };
    EXPECT_EQ(trashDuplicates(group, a, machine.platform(), removal).moved, 0U);
    EXPECT_THAT(machine.trash.trashed(), IsEmpty());
}

TEST_F(RemovalOfDuplicates, tellsWhatStayed) {
    const DuplicateGroup group = onlyGroup();
    machine.files.failing = [this](const auto& call) { return call.operation == "trash" && call.path == c; };
    EXPECT_THAT(trash(group, a).stayed, ElementsAre(c));
}

TEST_F(RemovalOfDuplicates, stopSkipsTheRest) {
    const DuplicateGroup group = onlyGroup();
    Removal removal(3, [](const Removal&) {});
    machine.files.failing = [&](const auto& call) {
        if (call.operation == "trash") removal.stop();
        return false;
    };
    EXPECT_EQ(trashDuplicates(group, a, machine.platform(), removal).moved, 1U);
    EXPECT_THAT(machine.trash.trashed(), ElementsAre(b));
    EXPECT_EQ(removal.done(), 1U);
}

TEST_F(RemovalOfDuplicates, endsTheRemovalWhateverIsMoved) {
    for (const char* keep : {"/home/me/other", "/home/me/a", "/home/me/b"}) {
        const DuplicateGroup group = onlyGroup();
        if (keep == a) machine.files.erase(a);
        int ends = 0;
        Removal removal(group.paths.size() - 1, [&](const Removal&) { ++ends; });
        trashDuplicates(group, keep, machine.platform(), removal);
        EXPECT_EQ(ends, 1) << keep;
    }
}

}  // namespace zelk
