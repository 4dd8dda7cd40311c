// SPDX-License-Identifier: MIT
// Navigates between the screens with the sidebar.
#include <gmock/gmock.h>

#include <QAccessible>
#include <algorithm>

#include "ShellFixture.h"
#include "ui/theme/ScreenLook.h"

namespace zelk {

namespace {

class Navigation : public ShellFixture {
protected:
    Navigation() { shell(); }

    static std::string rowOf(Screen screen) { return "sidebar" + lookOf(screen).title.toStdString(); }
    void toTheFirstRow() { find("sidebarOverview")->forceActiveFocus(Qt::TabFocusReason); }
    double sidebarWidth() { return find("sidebar")->width(); }
    /// Whether there is an item of this name, visible or not.
    bool isMade(const char* name) { return isMade(*window().contentItem(), QString::fromLatin1(name)); }

private:
    static bool isMade(const QQuickItem& item, const QString& name) {
        const QList<QQuickItem*> children = item.childItems();
        return item.objectName() == name ||
               std::ranges::any_of(children, [&](const QQuickItem* child) { return isMade(*child, name); });
    }
};

}  // namespace

TEST_F(Navigation, clickSelectsScreen) {
    for (const Screen screen : allScreens) {
        click(rowOf(screen).c_str());
        EXPECT_EQ(model().selection(), screen);
        const QAccessible::State state = QAccessible::queryAccessibleInterface(find(rowOf(screen).c_str()))->state();
        EXPECT_TRUE(state.selected) << rowOf(screen);
    }
}

TEST_F(Navigation, rowsAreAccessible) {
    for (const Screen screen : allScreens) {
        QAccessibleInterface* row = QAccessible::queryAccessibleInterface(find(rowOf(screen).c_str()));
        ASSERT_NE(row, nullptr);
        EXPECT_EQ(row->text(QAccessible::Name), lookOf(screen).title);
        EXPECT_EQ(row->role(), QAccessible::PageTab);
        EXPECT_TRUE(row->state().selectable);
        EXPECT_TRUE(row->state().focusable);
        EXPECT_EQ(row->state().selected, screen == Screen::survey);
    }
}

TEST_F(Navigation, arrowKeysMoveFocusAndStopAtTheEnds) {
    toTheFirstRow();
    press(Qt::Key_Up);
    EXPECT_EQ(focusName(), QStringLiteral("sidebarOverview"));
    for (std::size_t row = 1; row < allScreens.size(); ++row) {
        press(Qt::Key_Down);
        EXPECT_EQ(focusName().toStdString(), rowOf(allScreens[row]));
    }
    press(Qt::Key_Down);
    EXPECT_EQ(focusName(), QStringLiteral("sidebarSettings"));
    press(Qt::Key_Up);
    press(Qt::Key_Up);
    EXPECT_EQ(focusName(), QStringLiteral("sidebarSystem"));
    EXPECT_EQ(model().selection(), Screen::survey) << "moving the focus does not select";
}

TEST_F(Navigation, returnAndSpaceSelectScreen) {
    toTheFirstRow();
    press(Qt::Key_Down);
    press(Qt::Key_Return);
    EXPECT_EQ(model().selection(), Screen::reclaim);
    press(Qt::Key_Down);
    press(Qt::Key_Space);
    EXPECT_EQ(model().selection(), Screen::privacy);
    EXPECT_EQ(focusName(), QStringLiteral("sidebarPrivacy")) << "the focus stays in the sidebar";
}

TEST_F(Navigation, tabVisitsEveryRow) {
    std::vector<std::string> wanted;
    for (const Screen screen : allScreens) wanted.push_back(rowOf(screen));
    std::vector<std::string> seen;
    QQuickItem* first = window().activeFocusItem();
    do {
        const std::string name = focusName().toStdString();
        if (name.starts_with("sidebar")) seen.push_back(name);
        press(Qt::Key_Tab);
    } while (window().activeFocusItem() != first);
    EXPECT_EQ(seen, wanted);
}

TEST_F(Navigation, collapsedSidebarKeepsRowsAndHidesGroupTitles) {
    EXPECT_EQ(sidebarWidth(), 234);
    EXPECT_TRUE(shows(QStringLiteral("Explore")));
    click("collapseButton");
    EXPECT_EQ(sidebarWidth(), 60);
    for (const char* group : {"Clean", "Manage", "Explore"}) EXPECT_FALSE(shows(QString::fromLatin1(group))) << group;
    for (const Screen screen : allScreens) {
        QQuickItem* row = find(rowOf(screen).c_str());
        ASSERT_NE(row, nullptr);
        EXPECT_GT(row->height(), 0);
        EXPECT_LE(row->mapRectToScene(row->boundingRect()).right(), 60);
        click(rowOf(screen).c_str());
        EXPECT_EQ(model().selection(), screen);
    }
    click("collapseButton");
    EXPECT_EQ(sidebarWidth(), 234);
    EXPECT_TRUE(shows(QStringLiteral("Explore")));
}

TEST_F(Navigation, collapseIsAnimatedUnlessMotionIsReduced) {
    main().motion().setReduced(false);
    click("collapseButton");
    EXPECT_GT(sidebarWidth(), 60);
    runUntil([&] { return sidebarWidth() == 60; });
}

TEST_F(Navigation, switchTogglesDeveloperView) {
    click("developerSwitch");
    EXPECT_EQ(model().audience(), AppModel::Audience::developer);
    press(Qt::Key_Space);
    EXPECT_EQ(model().audience(), AppModel::Audience::normal);
}

TEST_F(Navigation, switchFollowsModel) {
    model().setAudience(AppModel::Audience::developer);
    EXPECT_TRUE(find("developerSwitch")->property("checked").toBool());
    click("developerSwitch");
    model().setAudience(AppModel::Audience::developer);
    EXPECT_TRUE(find("developerSwitch")->property("checked").toBool())
        << "a click must not break the binding to the model";
}

TEST_F(Navigation, createsScreenOnFirstVisitAndKeepsIt) {
    EXPECT_EQ(find("moduleScanButton"), nullptr);
    click("sidebarLens");
    QQuickItem* button = find("moduleScanButton");
    ASSERT_NE(button, nullptr);
    click("sidebarOverview");
    EXPECT_EQ(find("moduleScanButton"), nullptr);
    click("sidebarLens");
    EXPECT_EQ(find("moduleScanButton"), button);
}

TEST_F(Navigation, newWindowShowsSelectedScreen) {
    click("sidebarLens");
    MainWindow another(model());
    another.show();
    runUntil([&] { return another.isUp(); });
    EXPECT_NE(tour::findControl(another.window(), QStringLiteral("moduleScanButton")), nullptr);
}

TEST_F(Navigation, moduleStartsSurveyAndShowsProgress) {
    click("sidebarLens");
    machine.directories.hold(home + "/wide/inner");
    click("moduleScanButton");
    EXPECT_EQ(model().scanPhase(), Phase::scanning);
    EXPECT_NE(find("moduleProgressBar"), nullptr);
    EXPECT_EQ(find("moduleScanButton"), nullptr);
    runUntil([&] { return model().itemsScanned() > 0 && shows(QString::fromStdString(model().progressLine())); });
    press(Qt::Key_Escape);
    EXPECT_EQ(model().scanPhase(), Phase::idle);
    EXPECT_NE(find("moduleScanButton"), nullptr);
}

TEST_F(Navigation, escapeCancelsSurveyOnlyWhereItIsShown) {
    machine.directories.hold(home + "/wide/inner");
    for (const char* seen : {"sidebarOverview", "sidebarReclaim", "sidebarClutter", "sidebarLens"}) {
        // Creates the screen first, with its shortcut.
        click(seen);
        for (const char* elsewhere : {"sidebarTools", "sidebarSettings", "sidebarApps"}) {
            click(elsewhere);
            model().startScan();
            press(Qt::Key_Escape);
            EXPECT_EQ(model().scanPhase(), Phase::scanning) << elsewhere;
        }
        click(seen);
        press(Qt::Key_Escape);
        EXPECT_EQ(model().scanPhase(), Phase::idle) << seen;
    }
}

TEST_F(Navigation, moduleProgressIsScaledAndAnimatedLikeOtherFigures) {
    main().textScale().setFactor(1.5);
    click("sidebarLens");
    machine.directories.hold(home + "/wide/inner");
    model().startScan();
    runUntil([&] { return find("moduleScanDetail") != nullptr; });
    QQuickItem* detail = find("moduleScanDetail");
    EXPECT_EQ(detail->property("pixelSize").toInt(), 12) << "the item applies the text scale itself";
    main().motion().setReduced(false);
    EXPECT_EQ(detail->property("duration").toInt(), main().motion().count());
    main().motion().setReduced(true);
    detail->setProperty("text", QString(400, u'8'));
    EXPECT_LE(detail->width(), detail->parentItem()->width());
}

TEST_F(Navigation, moduleWithoutDetailShowsOrbAndBar) {
    click("sidebarLens");
    machine.directories.hold(home);
    model().startScan();
    EXPECT_NE(find("moduleProgressBar"), nullptr);
    EXPECT_NE(find("orbRing"), nullptr);
}

TEST_F(Navigation, moduleShowsHeaderAndResultsAfterSurvey) {
    click("sidebarLens");
    survey();
    EXPECT_TRUE(shows(QStringLiteral("Explore where your space went — a list and a live bubble map, side by side.")));
    EXPECT_NE(find("lensList"), nullptr);
}

TEST_F(Navigation, moduleCreatesOnlyThePageThatItShows) {
    click("sidebarLens");
    EXPECT_TRUE(isMade("moduleGlow"));
    EXPECT_FALSE(isMade("moduleProgressBar"));
    EXPECT_FALSE(isMade("lensList"));
    survey();
    EXPECT_TRUE(isMade("moduleProgressBar")) << "it was shown";
    EXPECT_TRUE(isMade("moduleGlow")) << "it is kept";
    EXPECT_TRUE(isMade("lensList"));
}

TEST_F(Navigation, startPageIsNotCreatedForResults) {
    survey();
    click("sidebarLens");
    EXPECT_TRUE(isMade("lensList"));
    EXPECT_FALSE(isMade("moduleGlow"));
    EXPECT_FALSE(isMade("moduleProgressBar"));
}

TEST_F(Navigation, orbPulsesOnlyWhileVisibleAndMotionIsNotReduced) {
    click("sidebarLens");
    machine.directories.hold(home);
    model().startScan();
    QQuickItem* ring = find("orbRing");
    ASSERT_NE(ring, nullptr);
    runWhatIsThere();
    EXPECT_EQ(ring->scale(), 1);
    main().motion().setReduced(false);
    runUntil([&] { return ring->scale() > 1; });
    main().motion().setReduced(true);
    EXPECT_EQ(ring->scale(), 1);
    main().motion().setReduced(false);
    click("sidebarOverview");
    EXPECT_EQ(ring->scale(), 1);
}

TEST_F(Navigation, sidebarClickMovesFocusToScreen) {
    click("sidebarLens");
    EXPECT_EQ(focusName(), QStringLiteral("moduleScanButton"));
    EXPECT_FALSE(window().activeFocusItem()->property("visualFocus").toBool()) << "the mouse needs no ring";
    click("sidebarOverview");
    EXPECT_EQ(focusName(), QStringLiteral("scanButton"));
    toTheFirstRow();
    click("sidebarOverview");
    EXPECT_EQ(focusName(), QStringLiteral("scanButton")) << "also from a row that had the keyboard";
}

TEST_F(Navigation, sidebarClickHidesListFocusRing) {
    survey();
    click("sidebarLens");
    press(Qt::Key_Down);
    ASSERT_TRUE(find("lensList")->property("ringed").toBool());
    click("sidebarOverview");
    click("sidebarLens");
    EXPECT_TRUE(find("lensList")->hasActiveFocus());
    EXPECT_FALSE(find("lensList")->property("ringed").toBool());
}

}  // namespace zelk
