// SPDX-License-Identifier: MIT
// Goes to System from the Overview and from the sidebar, and thins and deletes snapshots there: with the mouse, with
// the keyboard alone, on both systems.
#include <gmock/gmock.h>

#include "ReclaimHands.h"
#include "ShellFixture.h"
#include "fakes/SnapshotTools.h"
#include "ui/screens/system/SystemScreenModel.h"
#include "ui/theme/SystemTexts.h"

namespace zelk {

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

class SystemJourney : public ShellFixture {
protected:
    SystemJourney() {
        tools.kept = {{"com.apple.os.update-1", false, 1},
                      {"com.apple.TimeMachine.2024-03-07-101502.local", true, 2},
                      {"NewRoot", true, 3}};
        machine.vitals.setVolume(home, VolumeInfo{500'000'000'000, 120'000'000'000, 150'000'000'000});
    }
    ~SystemJourney() override { SystemTexts::show(before_); }

    void runOn(SystemKind system) {
        machine.system = system;
        SystemTexts::show(system == SystemKind::macOS ? SystemTexts::System::macOS : SystemTexts::System::desktopLinux);
    }
    void handleAll() {
        for (int round = 0; round < 3; ++round) {
            runWhatIsThere();
            window().grabWindow();
        }
    }
    void waitForSurvey() {
        runUntil([&] { return model().scanPhase() == Phase::finished; });
        runUntil([&] { return !model().trashLoading(); });
        handleAll();
    }
    std::string output() { return zelk::textOf(window(), "snapshotOutput"); }

    fakes::SnapshotTools tools{machine};

private:
    const SystemTexts::System before_ = SystemTexts::shown();
};

}  // namespace

TEST_F(SystemJourney, cardOfTheOverviewLeadsThere) {
    runOn(SystemKind::macOS);
    shell();
    click("scanButton");
    waitForSurvey();
    QQuickItem* card = find("findingCard3");
    ASSERT_NE(card, nullptr);
    card->forceActiveFocus(Qt::TabFocusReason);
    press(Qt::Key_Return);
    EXPECT_EQ(model().selection(), Screen::system);
    handleAll();
    EXPECT_TRUE(shows(QStringLiteral("Local snapshots")));
    EXPECT_TRUE(shows(QStringLiteral("30 GB"))) << "what the card said";
    EXPECT_EQ(tools.listings(), 1);
}

TEST_F(SystemJourney, deletesAndThinsWithTheMouse) {
    runOn(SystemKind::macOS);
    shell();
    click("sidebarSystem");
    click("moduleScanButton");
    waitForSurvey();
    ASSERT_TRUE(shows(QStringLiteral("Thin 5 GB")));

    tools.removal = {std::nullopt, 0, "Deleted local snapshot '2024-03-07-101502'\n"};
    tools.removing = [this] { tools.kept.erase(tools.kept.begin() + 1); };
    clickControl(window(), "deleteSnapshot1");
    handleAll();
    EXPECT_EQ(output(), "Deleted local snapshot '2024-03-07-101502'\n");
    EXPECT_EQ(control(window(), "deleteSnapshot2"), nullptr);

    tools.removal = {std::nullopt, 1, "User canceled. (-128)\n"};
    tools.removing = [] {};
    tabTo(window(), "thinSnapshots");
    clickControl(window(), "thinSnapshots");
    handleAll();
    EXPECT_EQ(output(), "cancelled or failed: User canceled. (-128)\n");
    EXPECT_THAT(tools.removals(), ElementsAre(HasSubstr("\"/usr/bin/tmutil deletelocalsnapshots 2024-03-07-101502\""),
                                              HasSubstr("\"/usr/bin/tmutil thinlocalsnapshots / 5000000000 4\"")));
}

TEST_F(SystemJourney, deletesWithKeyboardAloneAfterAQuestion) {
    runOn(SystemKind::desktopLinux);
    tools.kept = {{"apt", false, 4, "pre"}, {"daily", true, 5}, {"weekly", true, 6}};
    tools.removing = [this] { tools.kept.erase(tools.kept.begin() + 1); };
    shell();
    survey();
    model().setSelection(Screen::system);
    handleAll();
    tabTo(window(), "deleteSnapshot1");
    press(Qt::Key_Return);
    handleAll();
    ASSERT_TRUE(shows(QStringLiteral("Delete this snapshot?")));
    EXPECT_THAT(tools.removals(), IsEmpty());
    press(Qt::Key_Tab);
    press(Qt::Key_Space);
    handleAll();
    EXPECT_THAT(tools.removals(), ElementsAre("/usr/bin/env: /usr/bin/snapper -c root delete --sync 5"));
    EXPECT_EQ(output(), "The snapshot is gone.");
    EXPECT_TRUE(hasKeyboard(window(), "reloadSnapshots"));
}

TEST_F(SystemJourney, quittingAsksWhileSnapshotsAreThinned) {
    runOn(SystemKind::macOS);
    shell();
    survey();
    model().setSelection(Screen::system);
    handleAll();
    machine.tasks.hold();
    clickControl(window(), "thinSnapshots");
    press(Qt::Key_Q, Qt::ControlModifier);
    handleAll();
    ASSERT_TRUE(shows(QStringLiteral("Something is still being removed")));
    EXPECT_EQ(quits, 0);
    click("finishFirst");
    EXPECT_EQ(quits, 0);
    machine.tasks.release();
    runUntil([&] { return quits == 1; });
    EXPECT_EQ(tools.removals().size(), 1U);
}

TEST_F(SystemJourney, explainsDiskImageAndRevealsIt) {
    shell();
    survey();
    click("sidebarSystem");
    handleAll();
    clickControl(window(), "revealImage0");
    EXPECT_THAT(machine.workspace.revealed, ElementsAre(std::vector<std::string>{home + "/projects/system.iso"}));
    clickControl(window(), "explainImage0");
    handleAll();
    EXPECT_EQ(textOf(window(), "explanationTitle"), "Disk image / VM");
    press(Qt::Key_Escape);
}

}  // namespace zelk
