// SPDX-License-Identifier: MIT
// Looks at Health in the real window and presses everything there, with the mouse and with the keyboard.
#include <gmock/gmock.h>

#include <QTimer>
#include <string>
#include <utility>
#include <vector>

#include "ShellFixture.h"
#include "fakes/Announcements.h"
#include "ui/screens/health/HealthScreenModel.h"
#include "ui/theme/SystemTexts.h"

namespace zelk {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class HealthJourney : public ShellFixture {
protected:
    HealthJourney() { machine.files.addFile(home + "/Library/Caches/Yarn/v6", {}, 50'000'000); }

    void goThere() {
        shell();
        click("sidebarHealth");
        ASSERT_EQ(model().selection(), Screen::health);
        window().grabWindow();
        ASSERT_NE(find("healthScroll"), nullptr);
        screen();
    }
    HealthScreenModel& screen() {
        if (screen_ == nullptr)
            screen_ = find("healthScroll")->parentItem()->property("health").value<HealthScreenModel*>();
        return *screen_;
    }
    bool timerRuns() { return screen().findChild<QTimer*>()->isActive(); }
    std::size_t samples() const { return machine.vitals.volumeReads().size(); }
    /// Scrolls to the row and clicks it.
    void pressRow(const char* name) {
        window().grabWindow();
        QQuickItem* row = find(name);
        ASSERT_NE(row, nullptr) << name;
        row->forceActiveFocus(Qt::TabFocusReason);
        click(name);
    }
    void untilIdle() {
        runUntil([&] { return !screen().busy(); });
        window().grabWindow();
        runWhatIsThere();
    }
    std::vector<std::string> lines() const {
        std::vector<std::string> all;
        for (const auto& call : machine.processes.calls()) all.push_back(call.arguments.back());
        return all;
    }

private:
    HealthScreenModel* screen_ = nullptr;
};

}  // namespace

TEST_F(HealthJourney, showsVitalsOfMachine) {
    goThere();
    for (const char* text : {"Excellent", "CPU", "8 cores", "8 GB used", "Disk", "1h 0m"})
        EXPECT_TRUE(shows(QString::fromUtf8(text))) << text;
    EXPECT_TRUE(shows(SystemTexts::of(SystemTexts::HealthTitle)));
    EXPECT_EQ(screen().cpu().percent, 0) << "the first frame knows no load";
}

TEST_F(HealthJourney, pressesEveryRow) {
    goThere();
    pressRow("improveMemory");
    untilIdle();
    pressRow("improveDNS");
    untilIdle();
    EXPECT_THAT(lines(),
                ElementsAre("do shell script \"/usr/sbin/purge\" with administrator privileges",
                            "do shell script \"/usr/bin/dscacheutil -flushcache; /usr/bin/killall -HUP mDNSResponder\" "
                            "with administrator privileges"));
    EXPECT_TRUE(shows(QStringLiteral("done")));

    for (const auto& [row, to] : {std::pair("improveDuplicates", Screen::duplicates),
                                  {"improveLargeFiles", Screen::clutter},
                                  {"improveJunk", Screen::reclaim}}) {
        pressRow(row);
        EXPECT_EQ(model().selection(), to) << row;
        click("sidebarHealth");
        EXPECT_FALSE(shows(QStringLiteral("done"))) << "a new visit";
    }
}

TEST_F(HealthJourney, resultIsAnnouncedOnceAndNotOnReturn) {
    goThere();
    fakes::Announcements said(window());
    pressRow("improveDNS");
    untilIdle();
    EXPECT_THAT(said.take(), ElementsAre("done"));
    click("sidebarTools");
    click("sidebarHealth");
    window().grabWindow();
    EXPECT_THAT(said.take(), IsEmpty());
    EXPECT_FALSE(shows(QStringLiteral("done")));
}

/// Without a volume, which only a sample knows, the gauge of the disk would vanish and come back.
TEST_F(HealthJourney, returnShowsAllGaugesAtOnce) {
    goThere();
    runUntil([&] { return screen().watched(); });
    const int gauges = screen().gaugeCount();
    int changes = 0;
    const QObject watching;
    QObject::connect(&screen(), &HealthScreenModel::gaugeCountChanged, &watching, [&] { ++changes; });
    click("sidebarTools");
    click("sidebarHealth");
    runUntil([&] { return screen().watched(); });
    EXPECT_EQ(screen().gaugeCount(), gauges);
    EXPECT_EQ(changes, 0);
}

TEST_F(HealthJourney, reclaimsWhatIsSafe) {
    goThere();
    survey();
    ASSERT_TRUE(shows(QStringLiteral("Reclaim 50 MB")));
    pressRow("improveJunk");
    runUntil([&] { return !machine.trash.trashed().empty(); });
    EXPECT_THAT(machine.trash.trashed(), ElementsAre(home + "/Library/Caches/Yarn"));
    EXPECT_EQ(model().selection(), Screen::health);
    runUntil([&] { return model().scanPhase() == Phase::scanning; });
    runUntil([&] { return model().scanPhase() == Phase::finished; });
}

TEST_F(HealthJourney, goesThroughScreenWithKeyboardAlone) {
    shell();
    press(Qt::Key_9, Qt::ControlModifier);
    ASSERT_EQ(model().selection(), Screen::health);
    window().grabWindow();
    ASSERT_EQ(focusName(), QStringLiteral("scoreInfo"));
    EXPECT_TRUE(window().activeFocusItem()->property("visualFocus").toBool());
    press(Qt::Key_Space);
    EXPECT_TRUE(screen().showScoreInfo());
    press(Qt::Key_Escape);
    EXPECT_EQ(focusName(), QStringLiteral("scoreInfo"));
    for (const char* row : {"improveJunk", "improveMemory", "improveDNS"}) {
        press(Qt::Key_Tab);
        EXPECT_EQ(focusName().toStdString(), row);
    }
    press(Qt::Key_Return);
    untilIdle();
    EXPECT_EQ(machine.processes.calls().size(), 1U);
    EXPECT_EQ(focusName(), QStringLiteral("improveDNS"));
    press(Qt::Key_Tab);
    press(Qt::Key_Tab);
    press(Qt::Key_Return);
    EXPECT_EQ(model().selection(), Screen::clutter);
}

TEST_F(HealthJourney, learnsMoreInManual) {
    goThere();
    click("scoreInfo");
    runUntil([&] { return find("learnMore") != nullptr; });
    click("learnMore");
    ASSERT_NE(main().findWindow(WindowId::help), nullptr);
    EXPECT_TRUE(main().findWindow(WindowId::help)->isVisible());
    EXPECT_FALSE(screen().showScoreInfo());
    EXPECT_EQ(find("learnMore"), nullptr);
}

TEST_F(HealthJourney, hiddenOrMinimizedWindowSamplesNothing) {
    goThere();
    runUntil([&] { return screen().watched(); });
    EXPECT_TRUE(timerRuns());
    const auto expectRest = [&](const char* what) {
        runUntil([&] { return !screen().watched(); });
        EXPECT_FALSE(timerRuns()) << what;
        const std::size_t before = samples();
        screen().sample();
        EXPECT_EQ(samples(), before) << what;
    };
    const auto expectWork = [&](const char* what) {
        runUntil([&] { return screen().watched(); });
        EXPECT_TRUE(timerRuns()) << what;
    };
    window().setWindowStates(Qt::WindowMinimized);
    expectRest("minimized");
    window().setWindowStates(Qt::WindowNoState);
    expectWork("restored");
    window().hide();
    expectRest("hidden");
    window().show();
    expectWork("shown");
    model().setSelection(Screen::tools);
    expectRest("another screen");
    model().setSelection(Screen::health);
    expectWork("back");
}

TEST_F(HealthJourney, samplesNothingBeforeFirstVisit) {
    shell();
    survey();
    const std::size_t before = samples();
    for (const Screen screen : allScreens) {
        if (screen == Screen::health) continue;
        model().setSelection(screen);
        runWhatIsThere();
    }
    for (int turn = 0; turn < 5; ++turn) runWhatIsThere();
    EXPECT_EQ(samples(), before);
}

TEST_F(HealthJourney, commandMayOutliveItsVisit) {
    goThere();
    machine.tasks.hold();
    pressRow("improveMemory");
    ASSERT_TRUE(screen().busy());
    click("sidebarTools");
    click("sidebarHealth");
    EXPECT_FALSE(screen().busy());
    machine.tasks.release();
    runWhatIsThere();
    EXPECT_FALSE(shows(QStringLiteral("done")));
}

}  // namespace zelk
