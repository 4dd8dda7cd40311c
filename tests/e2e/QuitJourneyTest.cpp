// SPDX-License-Identifier: MIT
// Quits in every possible way while something is being removed.
#include <gmock/gmock.h>

#include <QAction>

#include "ReclaimingFixture.h"
#include "fakes/FakeTray.h"
#include "ui/shell/AppCommands.h"
#include "ui/shell/QuitQuestion.h"

namespace zelk {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class QuitJourney : public ReclaimingFixture {
protected:
    ~QuitJourney() override { machine.tasks.release(); }

    /// Starts a clean-up of three items and stops it after the first, the Yarn cache.
    void cleanHalfWay() {
        surveyByMouse();
        click("reviewButton");
        untilReviewed();
        machine.tasks.hold();
        click("confirmCleanup");
        machine.tasks.runNext();  // queues the three items
        machine.tasks.runNext();
        ASSERT_EQ(machine.tasks.waiting().size(), 2U);
        ASSERT_THAT(machine.trash.trashed(), ElementsAre(yarn));
    }
    bool asked() { return control(window(), "finishFirst") != nullptr; }
    void untilNotAsked() {
        runUntil([&] { return !asked(); });
    }
    void quitByStatusItem() {
        const QList<QAction*> entries = shell().statusItem().menu().actions();
        ASSERT_EQ(entries.back()->text(), QStringLiteral("Quit Zelk"));
        entries.back()->trigger();
    }
    /// Sends the event by which the desktop, or the entry in the Dock, asks an application to quit.
    static bool letsDesktopQuit() {
        QEvent event(QEvent::Quit);
        QCoreApplication::sendEvent(qApp, &event);
        return event.isAccepted();
    }
};

class QuitJourneyWithTray : public QuitJourney {
protected:
    QuitJourneyWithTray() {
        services.tray = [] {
            auto tray = std::make_unique<fakes::FakeTray>();
            tray->come(true);
            return tray;
        };
        shell();
        runUntil([&] { return shell().statusItem().present(); });
    }
};

}  // namespace

TEST_F(QuitJourney, quitsWithoutQuestionIfNothingIsRemoved) {
    surveyByMouse();
    press(Qt::Key_Q, Qt::ControlModifier);
    EXPECT_EQ(quits, 1);
    quitByStatusItem();
    EXPECT_EQ(quits, 2);
    click("menuTitleZelk");
    runUntil([&] { return find("menuQuit Zelk") != nullptr; });
    click("menuQuit Zelk");
    EXPECT_EQ(quits, 3);
    window().close();
    EXPECT_EQ(quits, 4);
    EXPECT_FALSE(window().isVisible());
    EXPECT_FALSE(main().quitQuestion().asked());
}

TEST_F(QuitJourney, everyWayToQuitAsksDuringCleanup) {
    cleanHalfWay();
    const std::vector<std::pair<const char*, std::function<void()>>> ways{
        {"the key", [&] { press(Qt::Key_Q, Qt::ControlModifier); }},
        {"the menu", [&] { main().commands().run(main().commands().menus().front()->commands().back()); }},
        {"the status item", [&] { quitByStatusItem(); }},
        {"the window", [&] { window().close(); }},
        {"the desktop", [&] { EXPECT_FALSE(letsDesktopQuit()); }},
    };
    for (const auto& [name, quit] : ways) {
        EXPECT_FALSE(asked()) << name;
        quit();
        EXPECT_TRUE(asked()) << name;
        EXPECT_TRUE(window().isVisible()) << name;
        press(Qt::Key_Escape);
        untilNotAsked();
        EXPECT_NE(control(window(), "dryRunList"), nullptr) << name << ": the clean-up goes on below";
    }
    EXPECT_EQ(quits, 0);
    machine.tasks.release();
    untilDone();
    EXPECT_EQ(textOf(window(), "cleanupResult"), "59 MB · 3 items");
    EXPECT_EQ(quits, 0) << "it was cancelled each time";
}

TEST_F(QuitJourney, finishFirstQuitsAfterCleanup) {
    cleanHalfWay();
    press(Qt::Key_Q, Qt::ControlModifier);
    ASSERT_TRUE(asked());
    EXPECT_EQ(focusName(), QStringLiteral("finishFirst"));
    press(Qt::Key_Return);
    untilNotAsked();
    EXPECT_EQ(quits, 0);
    machine.tasks.release();
    runUntil([&] { return quits == 1; });
    EXPECT_THAT(machine.trash.trashed(), ElementsAre(yarn, cursor));
    EXPECT_EQ(machine.processes.calls().size(), 1U);
}

TEST_F(QuitJourney, stopNowSkipsPendingItems) {
    cleanHalfWay();
    window().close();
    ASSERT_TRUE(asked());
    click("stopNow");
    EXPECT_EQ(quits, 0);
    EXPECT_TRUE(asked()) << "it stays until running items are done";
    machine.tasks.release();
    runUntil([&] { return quits == 1; });
    EXPECT_THAT(machine.trash.trashed(), ElementsAre(yarn));
    EXPECT_THAT(machine.processes.calls(), IsEmpty());
    EXPECT_TRUE(machine.files.exists(cursor + "/data"));
    window().close();
    EXPECT_FALSE(window().isVisible()) << "nothing keeps it open any more";
}

TEST_F(QuitJourney, questionClosesWhenCleanupEnds) {
    cleanHalfWay();
    press(Qt::Key_Q, Qt::ControlModifier);
    ASSERT_TRUE(asked());
    machine.tasks.release();
    untilNotAsked();
    untilDone();
    EXPECT_EQ(quits, 0);
    press(Qt::Key_Return);
    untilClosed();
    untilSurveyed(2);
}

TEST_F(QuitJourney, reviewSheetShowsProgress) {
    surveyByMouse();
    click("reviewButton");
    untilReviewed();
    EXPECT_EQ(control(window(), "cleaningBar"), nullptr);
    machine.tasks.hold();
    click("confirmCleanup");
    QQuickItem* bar = control(window(), "cleaningBar");
    ASSERT_NE(bar, nullptr);
    EXPECT_EQ(bar->property("share").toDouble(), 0);
    QAccessibleInterface* said = QAccessible::queryAccessibleInterface(bar);
    ASSERT_NE(said, nullptr);
    EXPECT_EQ(said->role(), QAccessible::ProgressBar);
    EXPECT_EQ(said->text(QAccessible::Name), QStringLiteral("Cleaning…"));
    EXPECT_EQ(said->text(QAccessible::Description), QStringLiteral("0 of 3"));
    for (int run = 0; run < 3; ++run) machine.tasks.runNext();
    runUntil([&] { return said->text(QAccessible::Description) == QStringLiteral("2 of 3"); });
    runUntil([&] { return bar->property("share").toDouble() > 0.66; });
    EXPECT_DOUBLE_EQ(bar->property("value").toDouble(), 2 / 3.0);
    machine.tasks.release();
    untilDone();
    EXPECT_EQ(control(window(), "cleaningBar"), nullptr);
}

TEST_F(QuitJourney, asksDuringOtherRemovals) {
    surveyByMouse();
    const std::vector<std::pair<const char*, std::function<void()>>> removals{
        {"Lens", [&] { model().trashAndRemove(*folderAt(model().root(), home + "/projects/app")); }},
        {"Clutter", [&] { model().trashLargeFile(home + "/projects/film.mov"); }},
        {"the Trash", [&] { model().emptyTrash(); }},
    };
    int expected = 0;
    for (const auto& [name, remove] : removals) {
        machine.tasks.hold();
        remove();
        press(Qt::Key_Q, Qt::ControlModifier);
        EXPECT_TRUE(asked()) << name;
        click("finishFirst");
        EXPECT_EQ(quits, expected) << name;
        machine.tasks.release();
        runUntil([&] { return quits > expected; });
        ++expected;
    }
}

TEST_F(QuitJourneyWithTray, closingTheWindowNeitherQuitsNorAsks) {
    cleanHalfWay();
    window().close();
    EXPECT_FALSE(window().isVisible());
    EXPECT_FALSE(main().quitQuestion().asked());
    EXPECT_EQ(quits, 0);
}

TEST_F(QuitJourneyWithTray, questionReopensClosedWindow) {
    surveyByMouse();
    machine.tasks.hold();
    model().cleanSafeCaches();  // as the status item does
    window().close();
    quitByStatusItem();
    runUntil([&] { return window().isExposed() && window().isActive(); });
    EXPECT_TRUE(asked());
    EXPECT_EQ(focusName(), QStringLiteral("finishFirst"));
    click("finishFirst");
    machine.tasks.release();
    runUntil([&] { return quits == 1; });
}

}  // namespace zelk
