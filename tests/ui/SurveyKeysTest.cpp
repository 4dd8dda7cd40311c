// SPDX-License-Identifier: MIT
// Keys on the survey screen when the focused control disappears with its phase.
#include "ViewFixture.h"
#include "ui/screens/overview/SurveyScreenModel.h"

namespace zelk {

namespace {

class SurveyKeys : public ViewFixture {
protected:
    SurveyKeys() {
        fillHome();
        addWideFolder(home + "/wide");
        show(QStringLiteral("Zelk.App"), QStringLiteral("SurveyView"), "survey", &screen_, {900, 700});
    }
    ~SurveyKeys() override {
        machine.directories.release();
        close();
    }

    std::string focused() { return window().activeFocusItem()->objectName().toStdString(); }
    /// Starts a survey that is held, and focuses "cancel".
    void surveyWithTheKeyboardAtCancel() {
        machine.directories.hold(home + "/wide/inner");
        model().startScan();
        settle();
        press(Qt::Key_Tab);
        ASSERT_EQ(focused(), "cancelButton");
    }
    void finish() {
        machine.directories.release();
        runUntil([&] { return model().scanPhase() == Phase::finished; });
        settle();
    }

    double now = 100;

private:
    SurveyScreenModel screen_{model(), [this] { return now; }};
};

}  // namespace

TEST_F(SurveyKeys, secondReturnOnCancelStartsNoSurvey) {
    surveyWithTheKeyboardAtCancel();
    press(Qt::Key_Return);
    ASSERT_EQ(model().scanPhase(), Phase::idle);
    ASSERT_EQ(focused(), "scanButton");
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space}) {
        press(key);
        EXPECT_EQ(model().scanPhase(), Phase::idle) << key;
    }
    now += 1;
    press(Qt::Key_Return);
    EXPECT_EQ(model().scanPhase(), Phase::scanning);
}

TEST_F(SurveyKeys, returnMeantForCancelStartsNoSurveyAfterTheEnd) {
    surveyWithTheKeyboardAtCancel();
    finish();
    ASSERT_EQ(focused(), "scanButton");
    for (int again = 0; again < 4; ++again) {
        now += 0.9;
        press(Qt::Key_Return);
        EXPECT_EQ(model().scanPhase(), Phase::finished) << "each press begins the wait anew";
    }
    machine.directories.hold(home + "/wide/inner");  // or the survey may end before it is looked at
    now += 1;
    press(Qt::Key_Return);
    EXPECT_EQ(model().scanPhase(), Phase::scanning);
}

TEST_F(SurveyKeys, heldReturnOnCancelStartsNoSurvey) {
    surveyWithTheKeyboardAtCancel();
    const auto send = [&](QEvent::Type type, bool repeated) {
        QKeyEvent event(type, Qt::Key_Return, Qt::NoModifier, {}, repeated);
        QCoreApplication::sendEvent(&window(), &event);
    };
    send(QEvent::KeyPress, false);
    for (int repeat = 0; repeat < 10; ++repeat) {
        now += 0.5;
        send(QEvent::KeyRelease, true);
        send(QEvent::KeyPress, true);
    }
    send(QEvent::KeyRelease, false);
    settle();
    EXPECT_EQ(model().scanPhase(), Phase::idle);
}

TEST_F(SurveyKeys, spaceHeldOnCancelAtEndStartsNoSurvey) {
    surveyWithTheKeyboardAtCancel();
    QKeyEvent down(QEvent::KeyPress, Qt::Key_Space, Qt::NoModifier);
    QCoreApplication::sendEvent(&window(), &down);
    finish();
    QKeyEvent up(QEvent::KeyRelease, Qt::Key_Space, Qt::NoModifier);
    QCoreApplication::sendEvent(&window(), &up);
    settle();
    EXPECT_EQ(model().scanPhase(), Phase::finished);
}

TEST_F(SurveyKeys, focusedScanButtonTakesReturnAtOnce) {
    machine.directories.hold(home + "/wide/inner");
    press(Qt::Key_Return);
    ASSERT_EQ(model().scanPhase(), Phase::scanning);
    press(Qt::Key_Escape);
    ASSERT_EQ(model().scanPhase(), Phase::idle);
    press(Qt::Key_Return);
    EXPECT_EQ(model().scanPhase(), Phase::scanning);
}

TEST_F(SurveyKeys, mouseStartsSurveyRightAfterCancel) {
    surveyWithTheKeyboardAtCancel();
    click("cancelButton");
    ASSERT_EQ(model().scanPhase(), Phase::idle);
    click("scanButton");
    EXPECT_EQ(model().scanPhase(), Phase::scanning);
}

}  // namespace zelk
