// SPDX-License-Identifier: MIT
// What the Overview shows after surveys of a changing drive, and the actions that it offers.
#include <gmock/gmock.h>

#include "ShellFixture.h"
#include "ui/screens/overview/SurveyScreenModel.h"

namespace zelk {

namespace {

class Overview : public ShellFixture {
protected:
    Overview() {
        services.pickFolder = [this] { return picked; };
    }

    void surveyByButton() {
        click("scanButton");
        runUntil([&] { return model().scanPhase() == Phase::finished; });
        runUntil([&] { return !model().trashLoading(); });
    }

    /// Scrolls until the control is visible, then clicks it.
    void scrollToAndClick(const char* name) {
        window().grabWindow();
        QQuickItem* item = find(name);
        ASSERT_NE(item, nullptr) << name;
        QQuickItem* scroll = find("surveyScroll");
        const double below = item->mapToItem(scroll, QPointF(0, item->height())).y() + 20 - scroll->height();
        if (below > 0) scroll->setProperty("contentY", scroll->property("contentY").toReal() + below);
        click(name);
    }

    std::optional<std::string> picked;
};

}  // namespace

TEST_F(Overview, showsResultsAndOpensReclaim) {
    shell();
    surveyByButton();
    EXPECT_TRUE(shows(QStringLiteral("You can reclaim")));
    EXPECT_TRUE(shows(QStringLiteral("film.mov")));
    scrollToAndClick("reviewButton");
    EXPECT_EQ(model().selection(), Screen::reclaim);
}

TEST_F(Overview, secondSurveyShowsTrendsAndChanges) {
    shell();
    surveyByButton();
    EXPECT_EQ(find("changesButton"), nullptr);
    machine.directories.file(home + "/projects/another film.mov", 2'000'000'000, 3'000);
    surveyByButton();
    scrollToAndClick("changesButton");
    window().grabWindow();
    EXPECT_NE(find("changesDone"), nullptr);
    EXPECT_TRUE(shows(QStringLiteral("projects")));
    press(Qt::Key_Escape);
    runUntil([&] { return find("changesDone") == nullptr; });
    EXPECT_EQ(focusName(), QStringLiteral("changesButton"));
    // Return presses the primary button.
    scrollToAndClick("changesButton");
    window().grabWindow();
    press(Qt::Key_Return);
    runUntil([&] { return find("changesDone") == nullptr; });
}

TEST_F(Overview, tabVisitsFindingsInOrder) {
    machine.trash.put("old.zip", 7'000'000);
    shell();
    surveyByButton();
    machine.directories.file(home + "/projects/another film.mov", 2'000'000'000, 3'000);
    surveyByButton();
    find("scanButton")->forceActiveFocus(Qt::TabFocusReason);
    std::vector<std::string> order{"scanButton"};
    double above = 0;
    while (order.back() != "changesButton") {
        press(Qt::Key_Tab);
        window().grabWindow();
        const QQuickItem* item = window().activeFocusItem();
        order.push_back(focusName().toStdString());
        ASSERT_TRUE(find("findings")->isAncestorOf(item)) << order.back() << ": the focus left the findings too early";
        const QQuickItem* scroll = find("surveyScroll");
        EXPECT_TRUE(scroll->boundingRect().contains(item->mapRectToItem(scroll, item->boundingRect())))
            << order.back() << " is not scrolled to";
        const double bottom = item->mapToItem(find("findings"), QPointF(0, item->height())).y();
        EXPECT_GE(bottom, above) << order.back() << " is above its predecessor";
        above = bottom;
    }
    EXPECT_THAT(order, testing::ElementsAre("scanButton", "reviewButton", "trashButton", "findingCard0", "findingCard1",
                                            "findingCard2", "findingCard3", "seeAllButton", "changesButton"));
}

TEST_F(Overview, countsUnreadableFoldersBelowHeadline) {
    shell();
    surveyByButton();
    EXPECT_EQ(find("unreadLine"), nullptr);
    machine.directories.unreadable(home + "/projects");
    surveyByButton();
    window().grabWindow();
    ASSERT_NE(find("unreadLine"), nullptr);
    EXPECT_EQ(find("unreadLine")->property("text").toString(), QStringLiteral("1 folder could not be read."));
    EXPECT_GT(find("unreadLine")->height(), 0);
}

TEST_F(Overview, bannerEmptiesTrash) {
    machine.trash.put("old.zip", 7'000'000);
    shell();
    surveyByButton();
    ASSERT_GT(model().trashBytes(), 0);
    scrollToAndClick("trashButton");
    runUntil([&] { return !model().emptyingTrash() && model().trashBytes() == 0; });
    EXPECT_THAT(machine.trash.list(), testing::Optional(testing::IsEmpty()));
}

TEST_F(Overview, startingSurveyMovesFocusOffTheFindings) {
    machine.trash.put("old.zip", 7'000'000);
    shell();
    surveyByButton();
    QQuickItem* empty = find("trashButton");
    ASSERT_NE(empty, nullptr);
    empty->forceActiveFocus(Qt::TabFocusReason);
    machine.directories.hold(home + "/wide/inner");
    press(Qt::Key_R, Qt::ControlModifier);
    ASSERT_EQ(model().scanPhase(), Phase::scanning);
    press(Qt::Key_Space);
    runWhatIsThere();
    EXPECT_FALSE(model().emptyingTrash());
    EXPECT_THAT(machine.trash.list(), testing::Optional(testing::Not(testing::IsEmpty()))) << "the button is hidden";
    EXPECT_FALSE(empty->hasActiveFocus());
    EXPECT_EQ(focusName(), QStringLiteral("scanButton"));
    EXPECT_TRUE(window().activeFocusItem()->property("visualFocus").toBool()) << "the focus must stay visible";
}

TEST_F(Overview, largestFilesKeepTheirHeaderWhenEmpty) {
    model().setScanRoots({"/data"});
    machine.directories.directory("/data");
    shell();
    surveyByButton();
    ASSERT_TRUE(model().insights().topFiles.empty());
    EXPECT_TRUE(shows(QStringLiteral("Largest files")));
    scrollToAndClick("seeAllButton");
    EXPECT_EQ(model().selection(), Screen::clutter);
}

TEST_F(Overview, cardOpensItsScreen) {
    shell();
    surveyByButton();
    scrollToAndClick("findingCard1");
    EXPECT_EQ(model().selection(), Screen::clutter);
}

TEST_F(Overview, settingsAddAndRemoveFolder) {
    shell();
    click("sidebarSettings");
    const std::vector<std::string> before = model().scanRoots();
    picked = "/data";
    click("addFolderButton");
    EXPECT_THAT(model().scanRoots(), testing::Contains("/data"));
    ASSERT_TRUE(shows(QStringLiteral("/data")));
    picked = std::nullopt;
    click("addFolderButton");
    EXPECT_EQ(model().scanRoots().size(), before.size() + 1);
    // Tabs back from "Add folder..." to the button of the last row.
    find("addFolderButton")->forceActiveFocus(Qt::TabFocusReason);
    press(Qt::Key_Backtab, Qt::ShiftModifier);
    const QString stop = window().activeFocusItem()->property("text").toString();
    press(Qt::Key_Space);
    EXPECT_EQ(model().scanRoots(), before) << stop.toStdString();
}

TEST_F(Overview, finishedSurveyKeepsFocus) {
    shell();
    machine.directories.hold(home + "/wide/inner");
    model().startScan();
    click("sidebarTools");
    const QQuickItem* before = window().activeFocusItem();
    ASSERT_NE(before, nullptr);
    machine.directories.release();
    runUntil([&] { return model().scanPhase() == Phase::finished; });
    runWhatIsThere();
    EXPECT_EQ(window().activeFocusItem(), before);
}

TEST_F(Overview, settingsChangeTheme) {
    shell();
    model().setAppearance(AppModel::Appearance::dark);
    click("sidebarSettings");
    const QColor dark = window().grabWindow().pixelColor(600, 600);
    QQuickItem* light = showing(QStringLiteral("Light"));
    ASSERT_NE(light, nullptr);
    tour::clickAt(window(), light->mapToScene(light->boundingRect().center()));
    EXPECT_EQ(model().appearance(), AppModel::Appearance::light);
    EXPECT_GT(window().grabWindow().pixelColor(600, 600).lightness(), dark.lightness() + 100);
}

TEST_F(Overview, showsWelcomeOnlyOnce) {
    fakes::FakePreferences preferences;
    services.preferences = &preferences;
    services.workspace = &machine.workspace;
    services.accessGranted = [] { return true; };
    shell();
    for (int page = 0; page < 4; ++page) {
        window().grabWindow();
        ASSERT_NE(find("primaryButton"), nullptr) << page;
        press(Qt::Key_Return);
        runWhatIsThere();
    }
    runUntil([&] { return find("primaryButton") == nullptr; });
    EXPECT_TRUE(preferences.flag(didOnboardKey));

    MainWindow second(model(), services);
    second.show();
    runUntil([&] { return second.isUp(); });
    second.window().grabWindow();
    EXPECT_EQ(tour::findControl(second.window(), QStringLiteral("primaryButton")), nullptr);
}

}  // namespace zelk
