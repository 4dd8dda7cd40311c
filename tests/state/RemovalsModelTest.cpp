// SPDX-License-Identifier: MIT
#include "state/RemovalsModel.h"

#include <gtest/gtest.h>

#include <QElapsedTimer>
#include <QTimer>
#include <cstdint>
#include <thread>

#include "fakes/EventLoop.h"

namespace zelk {

namespace {

using Progress = RemovalsModel::Progress;

class RemovalsModelTest : public testing::Test {
protected:
    RemovalsModelTest() {
        QObject::connect(&removals, &RemovalsModel::underWayChanged, &removals, [this] { ++turns; });
        QObject::connect(&removals, &RemovalsModel::progressChanged, &removals, [this] { ++told; });
    }

    static void noteAll(Removal& removal) {
        for (std::size_t item = 0; item < removal.items(); ++item) removal.noteDone();
        runWhatIsThere();
    }

    /// Waits for two ticks of the progress timer.
    void lookAgain() {
        bool later = false;
        QTimer::singleShot(1'200, &removals, [&] { later = true; });
        runUntil([&] { return later; });
    }

    RemovalsModel removals;
    int turns = 0;
    int told = 0;
};

}  // namespace

TEST_F(RemovalsModelTest, noneAtFirst) {
    EXPECT_FALSE(removals.underWay());
    EXPECT_FALSE(removals.stopping());
    EXPECT_EQ(removals.progress(), (Progress{0, 0}));
}

TEST_F(RemovalsModelTest, endsWhenEveryItemIsNoted) {
    const auto removal = removals.begin(2);
    EXPECT_TRUE(removals.underWay());
    EXPECT_EQ(turns, 1);
    removal->noteDone();
    runWhatIsThere();
    EXPECT_TRUE(removals.underWay());
    removal->noteSkipped();
    runWhatIsThere();
    EXPECT_FALSE(removals.underWay());
    EXPECT_EQ(turns, 2);
}

TEST_F(RemovalsModelTest, endIsSignalledOnMainThread) {
    const auto removal = removals.begin(1);
    std::thread([&] { removal->noteDone(); }).join();
    EXPECT_TRUE(removals.underWay());
    runWhatIsThere();
    EXPECT_FALSE(removals.underWay());
}

TEST_F(RemovalsModelTest, underWayUntilLastOneEnds) {
    const auto first = removals.begin(3);
    const auto second = removals.begin(1);
    noteAll(*first);
    EXPECT_TRUE(removals.underWay());
    EXPECT_EQ(removals.progress(), (Progress{0, 1})) << "what has ended is no longer counted";
    noteAll(*second);
    EXPECT_FALSE(removals.underWay());
    EXPECT_EQ(turns, 2);
}

TEST_F(RemovalsModelTest, removalWithoutItemsIsNeverUnderWay) {
    removals.begin(0);
    EXPECT_FALSE(removals.underWay());
    EXPECT_EQ(turns, 0);
}

TEST_F(RemovalsModelTest, progressSumsAllRemovals) {
    const auto first = removals.begin(3);
    const auto second = removals.begin(5);
    first->noteDone();
    second->noteDone();
    second->noteDone();
    EXPECT_EQ(removals.progress(), (Progress{3, 8}));
}

TEST_F(RemovalsModelTest, skippedItemsAreNotDone) {
    const auto removal = removals.begin(3);
    removal->noteSkipped();
    removal->noteDone();
    EXPECT_EQ(removal->done(), 1U);
    EXPECT_EQ(removals.progress(), (Progress{1, 3}));
}

TEST_F(RemovalsModelTest, coalescesProgressSignals) {
    const auto removal = removals.begin(2'000);
    for (int item = 0; item < 1'000; ++item) removal->noteDone();
    EXPECT_EQ(told, 0);
    runUntil([&] { return told > 0; });
    EXPECT_EQ(told, 1);
    EXPECT_EQ(removals.progress(), (Progress{1'000, 2'000}));
    lookAgain();
    EXPECT_EQ(told, 1) << "nothing new is not told again";
    removal->noteDone();
    runUntil([&] { return told > 1; });
}

TEST_F(RemovalsModelTest, signalsProgressAtMostTwicePerSecond) {
    const std::int64_t mayBeEarly = 50;  // milliseconds, of each time: timers are no more exact than that
    QElapsedTimer clock;
    clock.start();
    const auto removal = removals.begin(1'000'000'000);
    runUntil([&] {
        removal->noteDone();
        return told == 2;
    });
    EXPECT_GE(clock.elapsed(), 2 * (500 - mayBeEarly));
}

TEST_F(RemovalsModelTest, nextRemovalSignalsItsOwnProgress) {
    for (int time = 1; time <= 2; ++time) {
        const auto removal = removals.begin(2);
        removal->noteDone();
        runUntil([&] { return told == time; });
        removal->noteDone();
        runUntil([&] { return !removals.underWay(); });
    }
    lookAgain();
    EXPECT_EQ(told, 2) << "there is nothing to tell of any more";
}

TEST_F(RemovalsModelTest, stopKeepsFurtherItemsFromBeginning) {
    const auto first = removals.begin(1);
    const auto second = removals.begin(1);
    EXPECT_TRUE(first->mayBegin());
    removals.stop();
    EXPECT_TRUE(removals.stopping());
    EXPECT_FALSE(first->mayBegin());
    EXPECT_FALSE(second->mayBegin());
    EXPECT_TRUE(removals.underWay()) << "what has begun goes on";
}

TEST_F(RemovalsModelTest, stopAppliesToNewRemovalsUntilAllHaveEnded) {
    const auto first = removals.begin(1);
    removals.stop();
    const auto second = removals.begin(1);
    EXPECT_FALSE(second->mayBegin());
    noteAll(*first);
    EXPECT_TRUE(removals.stopping());
    noteAll(*second);
    EXPECT_FALSE(removals.stopping());
    EXPECT_TRUE(removals.begin(1)->mayBegin());
}

TEST_F(RemovalsModelTest, stopWithoutRemovalsIsForgotten) {
    removals.stop();
    EXPECT_FALSE(removals.stopping());
    EXPECT_TRUE(removals.begin(1)->mayBegin());
}

TEST_F(RemovalsModelTest, modelMayBeDestroyedBeforeItsRemovals) {
    auto list = std::make_unique<RemovalsModel>();
    const auto removal = list->begin(1);
    list.reset();
    noteAll(*removal);
    EXPECT_EQ(removal->done(), 1U);
}

}  // namespace zelk
