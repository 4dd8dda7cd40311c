// SPDX-License-Identifier: MIT
#include "ui/shell/QuitQuestion.h"

#include <gtest/gtest.h>

#include "fakes/EventLoop.h"
#include "state/RemovalsModel.h"

namespace zelk {

namespace {

class Quitting : public testing::Test {
protected:
    /// Something is being removed, and somebody quits.
    void quitWhileRemoving() {
        removal = removals.begin(1);
        question.quit();
    }
    void endRemoval() {
        removal->noteDone();
        runWhatIsThere();
    }
    void expectNothingAsked() {
        EXPECT_FALSE(question.shown());
        EXPECT_FALSE(question.asking());
        EXPECT_FALSE(question.stopping());
    }

    RemovalsModel removals;
    int quits = 0;
    QuitQuestion question{removals, [this] { ++quits; }};
    std::shared_ptr<Removal> removal;
};

}  // namespace

TEST_F(Quitting, isAtOnceWhereNothingIsRemoved) {
    question.quit();
    EXPECT_EQ(quits, 1);
    expectNothingAsked();
    EXPECT_FALSE(question.asked());
}

TEST_F(Quitting, asksWhileSomethingIsRemoved) {
    EXPECT_FALSE(question.holds());
    quitWhileRemoving();
    EXPECT_TRUE(question.holds());
    EXPECT_TRUE(question.asking());
    EXPECT_TRUE(question.shown());
    EXPECT_TRUE(question.asked());
    EXPECT_EQ(quits, 0);
    question.quit();
    EXPECT_TRUE(question.asking());
    EXPECT_EQ(quits, 0) << "asking twice is no answer";
}

TEST_F(Quitting, theQuestionGoesByItselfWithTheRemoval) {
    quitWhileRemoving();
    endRemoval();
    expectNothingAsked();
    EXPECT_EQ(quits, 0) << "nobody has said how";
    question.quit();
    EXPECT_EQ(quits, 1);
}

TEST_F(Quitting, cancelGoesBackToTheRemoval) {
    quitWhileRemoving();
    question.cancel();
    expectNothingAsked();
    EXPECT_TRUE(removal->mayBegin());
    endRemoval();
    EXPECT_EQ(quits, 0);
}

TEST_F(Quitting, finishFirstEndsBehindTheRemoval) {
    quitWhileRemoving();
    question.finishFirst();
    expectNothingAsked();
    EXPECT_TRUE(removal->mayBegin());
    EXPECT_EQ(quits, 0);
    endRemoval();
    EXPECT_EQ(quits, 1);
    endRemoval();
    EXPECT_EQ(quits, 1);
}

TEST_F(Quitting, finishFirstWaitsForWhatBeganMeanwhile) {
    quitWhileRemoving();
    question.finishFirst();
    const auto another = removals.begin(1);
    endRemoval();
    EXPECT_EQ(quits, 0);
    another->noteDone();
    runWhatIsThere();
    EXPECT_EQ(quits, 1);
}

TEST_F(Quitting, afterFinishFirstItAsksAgainAndCanBeTakenBack) {
    quitWhileRemoving();
    question.finishFirst();
    question.quit();
    EXPECT_TRUE(question.asking());
    question.cancel();
    endRemoval();
    EXPECT_EQ(quits, 0);
}

TEST_F(Quitting, stopNowLetsNothingMoreBeginAndEndsBehindWhatHasBegun) {
    quitWhileRemoving();
    question.stopNow();
    EXPECT_FALSE(removal->mayBegin());
    EXPECT_TRUE(question.stopping());
    EXPECT_TRUE(question.shown()) << "it stays while the last items end";
    EXPECT_FALSE(question.asking());
    EXPECT_EQ(quits, 0);
    question.quit();
    EXPECT_TRUE(question.stopping()) << "there is nothing left to ask";
    endRemoval();
    EXPECT_EQ(quits, 1);
    expectNothingAsked();
}

TEST_F(Quitting, anAnswerWithoutAQuestionDoesNothing) {
    removal = removals.begin(1);
    question.finishFirst();
    question.stopNow();
    question.cancel();
    EXPECT_TRUE(removal->mayBegin());
    expectNothingAsked();
    endRemoval();
    EXPECT_EQ(quits, 0);
}

TEST_F(Quitting, anAnswerIsGivenOnce) {
    quitWhileRemoving();
    question.stopNow();
    question.cancel();
    question.finishFirst();
    EXPECT_TRUE(question.stopping());
}

TEST_F(Quitting, saysWhatEachAnswerDoes) {
    quitWhileRemoving();
    EXPECT_EQ(question.note(),
              QStringLiteral("Finish first, and Zelk quits by itself when everything is removed. Stop now, and what "
                             "has begun is finished while the rest stays where it is."));
    question.stopNow();
    EXPECT_EQ(question.note(),
              QStringLiteral("Nothing more begins. Zelk quits as soon as what has begun is finished."));
}

// Where nobody can be asked.

TEST_F(Quitting, unaskedIsAtOnceWhereNothingIsRemoved) {
    question.quitUnasked();
    EXPECT_EQ(quits, 1);
    EXPECT_FALSE(question.shown());
}

TEST_F(Quitting, unaskedStopsTheRemovalAndEndsBehindIt) {
    removal = removals.begin(1);
    question.quitUnasked();
    EXPECT_TRUE(question.stopping());
    EXPECT_FALSE(removal->mayBegin());
    EXPECT_EQ(quits, 0);
    endRemoval();
    EXPECT_EQ(quits, 1);
}

// The end of the session.

TEST_F(Quitting, aSessionEndsFreelyWhereNothingIsRemoved) {
    EXPECT_FALSE(question.endSession(true));
    EXPECT_FALSE(question.endSession(false));
    EXPECT_FALSE(question.shown());
    EXPECT_EQ(quits, 0) << "the desktop says when";
}

TEST_F(Quitting, aSessionThatMayBeHeldWaitsForTheAnswer) {
    removal = removals.begin(1);
    EXPECT_TRUE(question.endSession(true));
    EXPECT_TRUE(question.asking());
    EXPECT_TRUE(removal->mayBegin());
}

TEST_F(Quitting, aSessionThatMayNotBeHeldStopsTheRemoval) {
    removal = removals.begin(1);
    EXPECT_FALSE(question.endSession(false));
    EXPECT_TRUE(question.stopping());
    EXPECT_FALSE(removal->mayBegin());
    endRemoval();
    EXPECT_EQ(quits, 1);
}

}  // namespace zelk
