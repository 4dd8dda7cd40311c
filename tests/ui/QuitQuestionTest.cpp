// SPDX-License-Identifier: MIT
#include "ui/shell/QuitQuestion.h"

#include <gtest/gtest.h>

#include "fakes/EventLoop.h"
#include "state/RemovalsModel.h"

namespace zelk {

namespace {

class QuitQuestionTest : public testing::Test {
protected:
    /// Quits while a removal is under way.
    void quitWhileRemoving() {
        removal = removals.begin(1);
        question.quit();
    }
    void endRemoval() {
        removal->noteDone();
        runWhatIsThere();
    }
    void expectNoQuestion() {
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

TEST_F(QuitQuestionTest, quitsAtOnceWithoutRemoval) {
    question.quit();
    EXPECT_EQ(quits, 1);
    expectNoQuestion();
    EXPECT_FALSE(question.asked());
}

TEST_F(QuitQuestionTest, asksDuringRemoval) {
    EXPECT_FALSE(question.holds());
    quitWhileRemoving();
    EXPECT_TRUE(question.holds());
    EXPECT_TRUE(question.asking());
    EXPECT_TRUE(question.shown());
    EXPECT_TRUE(question.asked());
    EXPECT_EQ(quits, 0);
    question.quit();
    EXPECT_TRUE(question.asking());
    EXPECT_EQ(quits, 0) << "quitting again is not an answer";
}

TEST_F(QuitQuestionTest, closesWhenRemovalEnds) {
    quitWhileRemoving();
    endRemoval();
    expectNoQuestion();
    EXPECT_EQ(quits, 0) << "nobody has answered";
    question.quit();
    EXPECT_EQ(quits, 1);
}

TEST_F(QuitQuestionTest, cancelContinuesRemoval) {
    quitWhileRemoving();
    question.cancel();
    expectNoQuestion();
    EXPECT_TRUE(removal->mayBegin());
    endRemoval();
    EXPECT_EQ(quits, 0);
}

TEST_F(QuitQuestionTest, finishFirstQuitsAfterRemoval) {
    quitWhileRemoving();
    question.finishFirst();
    expectNoQuestion();
    EXPECT_TRUE(removal->mayBegin());
    EXPECT_EQ(quits, 0);
    endRemoval();
    EXPECT_EQ(quits, 1);
    endRemoval();
    EXPECT_EQ(quits, 1);
}

TEST_F(QuitQuestionTest, finishFirstWaitsForLaterRemovals) {
    quitWhileRemoving();
    question.finishFirst();
    const auto another = removals.begin(1);
    endRemoval();
    EXPECT_EQ(quits, 0);
    another->noteDone();
    runWhatIsThere();
    EXPECT_EQ(quits, 1);
}

TEST_F(QuitQuestionTest, finishFirstCanBeCancelledByQuittingAgain) {
    quitWhileRemoving();
    question.finishFirst();
    question.quit();
    EXPECT_TRUE(question.asking());
    question.cancel();
    endRemoval();
    EXPECT_EQ(quits, 0);
}

TEST_F(QuitQuestionTest, stopNowQuitsAfterItemsInProgress) {
    quitWhileRemoving();
    question.stopNow();
    EXPECT_FALSE(removal->mayBegin());
    EXPECT_TRUE(question.stopping());
    EXPECT_TRUE(question.shown()) << "it stays until the last items are done";
    EXPECT_FALSE(question.asking());
    EXPECT_EQ(quits, 0);
    question.quit();
    EXPECT_TRUE(question.stopping()) << "there is nothing left to ask";
    endRemoval();
    EXPECT_EQ(quits, 1);
    expectNoQuestion();
}

TEST_F(QuitQuestionTest, ignoresAnswersWithoutQuestion) {
    removal = removals.begin(1);
    question.finishFirst();
    question.stopNow();
    question.cancel();
    EXPECT_TRUE(removal->mayBegin());
    expectNoQuestion();
    endRemoval();
    EXPECT_EQ(quits, 0);
}

TEST_F(QuitQuestionTest, ignoresFurtherAnswers) {
    quitWhileRemoving();
    question.stopNow();
    question.cancel();
    question.finishFirst();
    EXPECT_TRUE(question.stopping());
}

// Being wanted again.

TEST_F(QuitQuestionTest, staysIfItWouldQuitAfterRemoval) {
    quitWhileRemoving();
    question.finishFirst();
    EXPECT_TRUE(question.stay());
    EXPECT_TRUE(removal->mayBegin());
    endRemoval();
    EXPECT_EQ(quits, 0);
}

TEST_F(QuitQuestionTest, stayingLeavesQuestionOpen) {
    EXPECT_TRUE(question.stay()) << "nothing is ending";
    quitWhileRemoving();
    EXPECT_TRUE(question.stay());
    EXPECT_TRUE(question.asking());
    question.finishFirst();
    endRemoval();
    EXPECT_EQ(quits, 1);
}

TEST_F(QuitQuestionTest, doesNotStayIfRemovalWasStopped) {
    quitWhileRemoving();
    question.stopNow();
    EXPECT_FALSE(question.stay());
    EXPECT_TRUE(question.stopping());
    endRemoval();
    EXPECT_EQ(quits, 1);
}

TEST_F(QuitQuestionTest, doesNotStayOnceItHasQuit) {
    question.quit();
    EXPECT_EQ(quits, 1);
    EXPECT_FALSE(question.stay()) << "the events that were on their way are still handled";
}

TEST_F(QuitQuestionTest, doesNotStayOnceTheRemovalHasEnded) {
    quitWhileRemoving();
    question.finishFirst();
    endRemoval();
    EXPECT_FALSE(question.stay());
}

// Quitting without a window for the question.

TEST_F(QuitQuestionTest, quitUnaskedQuitsAtOnceWithoutRemoval) {
    question.quitUnasked();
    EXPECT_EQ(quits, 1);
    EXPECT_FALSE(question.shown());
}

TEST_F(QuitQuestionTest, quitUnaskedStopsRemoval) {
    removal = removals.begin(1);
    question.quitUnasked();
    EXPECT_TRUE(question.stopping());
    EXPECT_FALSE(removal->mayBegin());
    EXPECT_EQ(quits, 0);
    endRemoval();
    EXPECT_EQ(quits, 1);
}

// The end of the session.

TEST_F(QuitQuestionTest, sessionEndIsNotHeldWithoutRemoval) {
    EXPECT_FALSE(question.endSession(true));
    EXPECT_FALSE(question.endSession(false));
    EXPECT_FALSE(question.shown());
    EXPECT_EQ(quits, 0) << "the desktop ends the application";
}

TEST_F(QuitQuestionTest, sessionEndIsHeldUntilAnswered) {
    removal = removals.begin(1);
    EXPECT_TRUE(question.endSession(true));
    EXPECT_TRUE(question.asking());
    EXPECT_TRUE(removal->mayBegin());
}

TEST_F(QuitQuestionTest, sessionEndThatCannotBeHeldStopsRemoval) {
    removal = removals.begin(1);
    EXPECT_FALSE(question.endSession(false));
    EXPECT_TRUE(question.stopping());
    EXPECT_FALSE(removal->mayBegin());
    endRemoval();
    EXPECT_EQ(quits, 1);
}

}  // namespace zelk
