// SPDX-License-Identifier: MIT
#include "ui/screens/duplicates/DuplicatesScreenModel.h"

#include <gmock/gmock.h>

#include <condition_variable>
#include <memory>
#include <mutex>

#include "fakes/DuplicatesHome.h"
#include "state/AppModelFixture.h"

namespace zelk {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class DuplicatesScreen : public AppModelFixture {
protected:
    DuplicatesScreen() { fakes::fillWithDuplicates(machine); }
    ~DuplicatesScreen() override {
        machine.tasks.finish();
        screen_.reset();
    }

    DuplicatesScreenModel& screen() {
        if (!screen_) screen_ = std::make_unique<DuplicatesScreenModel>(model());
        return *screen_;
    }
    void search() {
        screen().scan();
        runUntil([this] { return screen().results(); });
    }
    void settle() {
        runUntil([this] { return !model().removals().underWay(); });
        runWhatIsThere();
    }

private:
    std::unique_ptr<DuplicatesScreenModel> screen_;
};

}  // namespace

TEST_F(DuplicatesScreen, hasItsTexts) {
    EXPECT_EQ(screen().title(), "Duplicates");
    EXPECT_EQ(screen().subtitle(),
              QString::fromUtf8("Find byte-identical files — duplicate downloads, copied media, repeated exports — and "
                                "keep just one."));
    EXPECT_EQ(screen().scanLabel(), "Find duplicates");
    EXPECT_EQ(screen().scanningLabel(), QString::fromUtf8("Hashing candidates… this can take a moment"));
    EXPECT_TRUE(screen().idle());
}

TEST_F(DuplicatesScreen, followsTheSearch) {
    machine.tasks.hold();
    screen().scan();
    EXPECT_TRUE(screen().scanning());
    EXPECT_EQ(screen().scanDetail(), "");
    screen().cancel();
    EXPECT_TRUE(screen().scanning()) << "there is no cancelling";
    machine.tasks.release();
    runUntil([this] { return screen().results(); });
    EXPECT_FALSE(screen().nothing());
    EXPECT_EQ(screen().summary(), QString::fromUtf8("2 sets · 8 MB recoverable"));
    EXPECT_EQ(screen().rows()->rowCount(), 7);
}

TEST_F(DuplicatesScreen, hasNoResultsBeforeOrBetweenSearches) {
    std::vector<ModulePhase> phases;
    QObject watching;
    QObject::connect(&screen(), &ModuleScreenModel::phaseChanged, &watching,
                     [&] { phases.push_back(screen().phase()); });
    search();
    search();
    EXPECT_THAT(phases,
                ElementsAre(ModulePhase::scanning, ModulePhase::results, ModulePhase::scanning, ModulePhase::results));
}

TEST_F(DuplicatesScreen, searchesTheScanRoots) {
    model().setScanRoots({"/home/me/papers"});
    search();
    EXPECT_EQ(screen().summary(), QString::fromUtf8("1 sets · 2 MB recoverable"));
}

TEST_F(DuplicatesScreen, joinsAFinishedSearch) {
    model().duplicates().scan({home});
    runUntil([this] { return !model().duplicates().loading(); });
    EXPECT_TRUE(screen().results());
    EXPECT_EQ(screen().rows()->rowCount(), 7);
}

TEST_F(DuplicatesScreen, withoutSetsSaysWhatItIsAbout) {
    model().setScanRoots({"/home/me/nowhere"});
    search();
    EXPECT_TRUE(screen().nothing());
    EXPECT_EQ(screen().summary(), "identical files");
    EXPECT_EQ(screen().rows()->rowCount(), 0);
}

TEST_F(DuplicatesScreen, tellsHowMuchIsHashed) {
    std::mutex mutex;
    std::condition_variable changed;
    bool released = false;
    machine.contents.reading = [&](const std::string&, std::size_t offset) {
        std::unique_lock lock(mutex);
        if (offset > 0) changed.wait(lock, [&] { return released; });
    };
    machine.tasks.runBeside();
    screen().scan();
    EXPECT_LT(screen().share(), 0) << "what there is to hash is not known yet";
    EXPECT_EQ(screen().doing(), screen().scanningLabel());
    runUntil([this] { return screen().share() >= 0; });
    EXPECT_DOUBLE_EQ(screen().share(), 1'048'576.0 / 16'000'000);
    EXPECT_EQ(screen().doing(), QString::fromUtf8("Hashing candidates… this can take a moment, 1 MB of 16 MB"));
    {
        const std::lock_guard lock(mutex);
        released = true;
        changed.notify_all();
    }
    runUntil([this] { return screen().results(); });
    machine.tasks.finish();
    machine.tasks.hold();
    screen().scan();
    EXPECT_LT(screen().share(), 0) << "the next search begins anew";
    machine.tasks.release();
    runUntil([this] { return screen().results(); });
}

TEST_F(DuplicatesScreen, headKeepsTheFirstFile) {
    search();
    screen().press(0);
    settle();
    EXPECT_THAT(machine.trash.trashed(), ElementsAre("/home/me/copies/film 3.mov", "/home/me/copies/film.mov"));
    EXPECT_EQ(screen().summary(), QString::fromUtf8("1 sets · 2 MB recoverable"));
    EXPECT_TRUE(screen().undoBar()->shown());
    screen().keepFirst(2);  // any row of the set
    settle();
    EXPECT_TRUE(screen().nothing());
}

TEST_F(DuplicatesScreen, pathIsRevealed) {
    search();
    screen().press(2);
    EXPECT_THAT(machine.workspace.revealed, ElementsAre(ElementsAre("/home/me/copies/film 3.mov")));
    EXPECT_THAT(machine.trash.trashed(), IsEmpty());
}

TEST_F(DuplicatesScreen, ignoresRowsThatAreNotThere) {
    search();
    for (const int row : {-1, 7}) screen().press(row);
    screen().keepFirst(-1);
    settle();
    EXPECT_THAT(machine.workspace.revealed, IsEmpty());
    EXPECT_THAT(machine.trash.trashed(), IsEmpty());
}

TEST_F(DuplicatesScreen, undoListsTheSetAgain) {
    search();
    screen().keepFirst(0);
    settle();
    screen().undoBar()->undo();
    runUntil([this] { return !model().removalUndo().underWay(); });
    EXPECT_EQ(screen().summary(), QString::fromUtf8("2 sets · 8 MB recoverable"));
    EXPECT_EQ(screen().undoBar()->text(), "2 items were restored.");
}

}  // namespace zelk
