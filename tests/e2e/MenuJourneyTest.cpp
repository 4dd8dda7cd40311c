// SPDX-License-Identifier: MIT
// The menu bar, used with the mouse, with the keyboard and by shortcuts.
#include <QQmlListReference>

#include "ShellFixture.h"

namespace zelk {

namespace {

class Menus : public ShellFixture {
protected:
    Menus() { shell(); }
};

}  // namespace

TEST_F(Menus, hasItsRowsOnceItIsOpened) {
    const QQmlListReference menus(find("menus"), "menus");
    ASSERT_GT(menus.size(), 0);
    for (qsizetype at = 0; at < menus.size(); ++at) EXPECT_EQ(menus.at(at)->property("count").toInt(), 0);
    QObject* const first = menus.at(0);
    click(("menuTitle" + first->property("title").toString().toStdString()).c_str());
    const int rows = first->property("count").toInt();
    EXPECT_GT(rows, 0);
    press(Qt::Key_Escape);
    click(("menuTitle" + first->property("title").toString().toStdString()).c_str());
    EXPECT_EQ(first->property("count").toInt(), rows) << "it keeps them";
}

TEST_F(Menus, controlDigitSelectsScreen) {
    for (int place = 8; place >= 0; --place) {
        press(static_cast<Qt::Key>(Qt::Key_1 + place), Qt::ControlModifier);
        EXPECT_EQ(model().selection(), allScreens[static_cast<std::size_t>(place)]);
    }
}

TEST_F(Menus, controlRStartsSurveyFromAnyScreen) {
    click("sidebarTools");
    press(Qt::Key_R, Qt::ControlModifier);
    runUntil([&] { return model().scanPhase() == Phase::finished; });
    EXPECT_EQ(model().history().size(), 1U);
}

TEST_F(Menus, controlRIsIgnoredDuringSurvey) {
    machine.directories.hold(home + "/wide/inner");
    press(Qt::Key_R, Qt::ControlModifier);
    runUntil([&] { return model().itemsScanned() > 0; });
    const std::int64_t items = model().itemsScanned();
    press(Qt::Key_R, Qt::ControlModifier);
    EXPECT_EQ(model().scanPhase(), Phase::scanning);
    EXPECT_EQ(model().itemsScanned(), items);
}

TEST_F(Menus, controlQuestionMarkOpensHelp) {
    press(Qt::Key_Question, Qt::ControlModifier);
    EXPECT_NE(main().findWindow(WindowId::help), nullptr);
}

TEST_F(Menus, controlCommaOpensSettings) {
    press(Qt::Key_Comma, Qt::ControlModifier);
    EXPECT_NE(main().findWindow(WindowId::settings), nullptr);
}

TEST_F(Menus, controlQQuits) {
    press(Qt::Key_Q, Qt::ControlModifier);
    EXPECT_EQ(quits, 1);
}

TEST_F(Menus, shortcutsWorkInOtherWindows) {
    QQuickWindow& about = main().openWindow(WindowId::about);
    runUntil([&] { return about.isActive(); });
    press(about, Qt::Key_4, Qt::ControlModifier);
    EXPECT_EQ(model().selection(), Screen::tune);
}

TEST_F(Menus, mouseChoosesEntry) {
    click("menuTitleGo");
    runUntil([&] { return find("menuSystem") != nullptr; });
    click("menuSystem");
    EXPECT_EQ(model().selection(), Screen::system);
    runUntil([&] { return find("menuSystem") == nullptr; });
}

TEST_F(Menus, keyboardChoosesEntry) {
    press(Qt::Key_F10);
    runUntil([&] { return find("menuAbout Zelk") != nullptr; });
    press(Qt::Key_Right);
    press(Qt::Key_Right);
    runUntil([&] { return find("menuOverview") != nullptr; });
    press(Qt::Key_Down);
    press(Qt::Key_Down);
    press(Qt::Key_Return);
    EXPECT_EQ(model().selection(), Screen::reclaim);
}

TEST_F(Menus, altLetterOpensMenu) {
    press(Qt::Key_H, Qt::AltModifier);
    runUntil([&] { return find("menuZelk Help") != nullptr; });
}

TEST_F(Menus, escapeClosesMenuAndRestoresFocus) {
    QQuickItem* before = window().activeFocusItem();
    click("menuTitleGo");
    runUntil([&] { return find("menuSystem") != nullptr; });
    press(Qt::Key_Escape);
    runUntil([&] { return find("menuSystem") == nullptr; });
    EXPECT_EQ(window().activeFocusItem(), before) << focusName().toStdString();
}

TEST_F(Menus, f1OpensHelpInEveryWindow) {
    press(Qt::Key_F1);
    ASSERT_NE(main().findWindow(WindowId::help), nullptr);
    main().findWindow(WindowId::help)->close();
    QQuickWindow& about = main().openWindow(WindowId::about);
    runUntil([&] { return about.isActive(); });
    press(about, Qt::Key_F1);
    EXPECT_NE(main().findWindow(WindowId::help), nullptr);
}

TEST_F(Menus, screenShortcutShowsFocusRing) {
    click("sidebarTools");
    press(Qt::Key_1, Qt::ControlModifier);
    EXPECT_EQ(focusName(), QStringLiteral("scanButton"));
    EXPECT_TRUE(window().activeFocusItem()->property("visualFocus").toBool());
    press(Qt::Key_6, Qt::ControlModifier);
    EXPECT_EQ(focusName(), QStringLiteral("moduleScanButton"));
    EXPECT_TRUE(window().activeFocusItem()->property("visualFocus").toBool());
}

TEST_F(Menus, shortcutOfCurrentScreenShowsFocusRing) {
    ASSERT_FALSE(window().activeFocusItem()->property("visualFocus").toBool());
    press(Qt::Key_1, Qt::ControlModifier);
    EXPECT_EQ(focusName(), QStringLiteral("scanButton"));
    EXPECT_TRUE(window().activeFocusItem()->property("visualFocus").toBool());
}

TEST_F(Menus, screenShortcutMovesFocusOutOfSidebar) {
    find("sidebarLens")->forceActiveFocus(Qt::TabFocusReason);
    press(Qt::Key_6, Qt::ControlModifier);
    EXPECT_EQ(focusName(), QStringLiteral("moduleScanButton"));
}

TEST_F(Menus, surveyShortcutShowsFocusRing) {
    machine.directories.hold(home + "/wide/inner");
    press(Qt::Key_R, Qt::ControlModifier);
    EXPECT_EQ(focusName(), QStringLiteral("scanButton"));
    EXPECT_TRUE(window().activeFocusItem()->property("visualFocus").toBool());
}

}  // namespace zelk
