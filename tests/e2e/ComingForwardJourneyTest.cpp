// SPDX-License-Identifier: MIT
// What a user sees who starts the application while it runs.
#include <QPointer>

#include "ReclaimHands.h"
#include "ReclaimingFixture.h"
#include "ShellFixture.h"
#include "fakes/FakeTray.h"
#include "ui/shell/QuitQuestion.h"
#include "ui/shell/SingleInstance.h"

namespace zelk {

namespace {

const Activation startedAgain{QStringLiteral("token"), {}};

/// A meeting point that anybody may have, where the test plays the other start.
class OpenPoint : public MeetingPoint {
public:
    Claim claim() override { return Claim::held; }
    Answer call(const Activation&) override { return Answer::silent; }
    void serve(Handler handler) override { comeForward = std::move(handler); }
    void announce() override { ++announced; }

    Handler comeForward;
    int announced = 0;
};

class ComingForward : public ReclaimingFixture {
protected:
    ComingForward() {
        services.tray = [] {
            auto tray = std::make_unique<fakes::FakeTray>();
            tray->come(true);
            return tray;
        };
    }
    ~ComingForward() override { machine.tasks.release(); }

    bool startAgain() { return shell().comeForward(startedAgain); }
    void expectUp() {
        runUntil([&] { return window().isExposed() && window().isActive(); });
        EXPECT_TRUE(window().isVisible());
        EXPECT_FALSE(window().windowStates().testFlag(Qt::WindowMinimized));
    }
    void closeToStatusItem() {
        runUntil([&] { return shell().statusItem().present(); });
        window().close();
        runUntil([&] { return !window().isExposed(); });
    }
    /// Another window of this application takes the focus, as one of another would.
    void loseFocus() {
        main().openWindow(WindowId::help);
        runUntil([&] { return !window().isActive(); });
    }
};

}  // namespace

TEST_F(ComingForward, focusesMainWindow) {
    shell();
    loseFocus();
    EXPECT_TRUE(startAgain());
    expectUp();
    EXPECT_NE(main().findWindow(WindowId::help), nullptr);
    EXPECT_FALSE(qEnvironmentVariableIsSet("XDG_ACTIVATION_TOKEN")) << "no program that is started may have it";
}

TEST_F(ComingForward, showsWindowThatWasClosedToTheStatusItem) {
    surveyByMouse();
    closeToStatusItem();
    EXPECT_TRUE(startAgain());
    expectUp();
    EXPECT_EQ(quits, 0);
    EXPECT_TRUE(model().scanPhase() == AppModel::ScanPhase::finished) << "what was found is still there";
}

TEST_F(ComingForward, restoresMinimizedWindow) {
    shell();
    window().setWindowStates(Qt::WindowMinimized);
    loseFocus();
    EXPECT_TRUE(startAgain());
    expectUp();
}

TEST_F(ComingForward, leavesMaximizedWindowMaximized) {
    shell();
    window().setWindowStates(Qt::WindowMaximized);
    EXPECT_TRUE(startAgain());
    EXPECT_EQ(window().windowStates(), Qt::WindowStates(Qt::WindowMaximized));
    window().setWindowStates(Qt::WindowMaximized | Qt::WindowMinimized);
    EXPECT_TRUE(startAgain());
    EXPECT_EQ(window().windowStates(), Qt::WindowStates(Qt::WindowMaximized));
    closeToStatusItem();
    EXPECT_TRUE(startAgain());
    expectUp();
    EXPECT_EQ(window().windowStates(), Qt::WindowStates(Qt::WindowMaximized));
}

TEST_F(ComingForward, showsTheOpenQuestion) {
    surveyByMouse();
    machine.tasks.hold();
    model().cleanSafeCaches();
    press(Qt::Key_Q, Qt::ControlModifier);
    ASSERT_TRUE(main().quitQuestion().asking());
    loseFocus();
    EXPECT_TRUE(startAgain());
    expectUp();
    EXPECT_TRUE(main().quitQuestion().asking());
    EXPECT_EQ(quits, 0);
}

TEST_F(ComingForward, staysInsteadOfQuittingAfterRemoval) {
    surveyByMouse();
    machine.tasks.hold();
    model().cleanSafeCaches();
    press(Qt::Key_Q, Qt::ControlModifier);
    main().quitQuestion().finishFirst();
    EXPECT_TRUE(startAgain());
    expectUp();
    machine.tasks.release();
    runUntil([&] { return !main().quitQuestion().holds(); });
    runWhatIsThere();
    EXPECT_EQ(quits, 0);
}

TEST_F(ComingForward, refusesWhileItIsEnding) {
    surveyByMouse();
    machine.tasks.hold();
    model().cleanSafeCaches();
    closeToStatusItem();
    main().quitQuestion().quitUnasked();
    EXPECT_FALSE(startAgain());
    EXPECT_FALSE(window().isVisible());
    machine.tasks.release();
    runUntil([&] { return quits == 1; });
}

TEST_F(ComingForward, isExpectedToAnswerOnceItsContentsArePainted) {
    std::vector<std::unique_ptr<MeetingPoint>> points;
    std::vector<OpenPoint*> open;
    for (int made = 0; made < 2; ++made) {
        auto point = std::make_unique<OpenPoint>();
        open.push_back(point.get());
        points.push_back(std::move(point));
    }
    SingleInstance instance(std::move(points), {});
    ASSERT_EQ(instance.exitStatus(), std::nullopt);
    auto another = std::make_unique<Shell>(model(), services);
    instance.serve(*another);
    another->start();
    EXPECT_EQ(open[0]->announced, 0);
    runUntil([&] { return open[0]->announced == 1 && open[1]->announced == 1; });
    for (const OpenPoint* point : open) {
        another->main().window().close();
        EXPECT_TRUE(point->comeForward(startedAgain));
        EXPECT_TRUE(another->main().window().isVisible());
    }
    another.reset();
    EXPECT_FALSE(open[0]->comeForward(startedAgain)) << "there is no window any more";
}

}  // namespace zelk
