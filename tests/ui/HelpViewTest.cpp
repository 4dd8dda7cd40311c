// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>

#include "ViewFixture.h"
#include "ui/screens/help/HelpModel.h"

namespace zelk {

namespace {

class HelpWindow : public ViewFixture {
protected:
    ~HelpWindow() override { close(); }

    void open(QSize size = {760, 520}) {
        show(QStringLiteral("Zelk.App"), QStringLiteral("HelpView"), "help", &help_, size);
    }
    HelpModel& help() { return help_; }
    bool shows(const std::string& text) {
        const std::vector<std::string> texts = seenTexts();
        return std::find(texts.begin(), texts.end(), text) != texts.end();
    }

private:
    HelpModel help_;
};

}  // namespace

TEST_F(HelpWindow, wantsItsSize) {
    open();
    EXPECT_EQ(view().implicitWidth(), 760);
    EXPECT_EQ(view().implicitHeight(), 520);
}

TEST_F(HelpWindow, opensAtTheFirstTopicWithTheKeyboardOnIt) {
    open();
    EXPECT_EQ(focusName(), "Getting started");
    EXPECT_TRUE(shows("Zelk surveys your drive, shows what's using space, and helps you reclaim it safely."));
}

TEST_F(HelpWindow, theArrowsGoFromTopicToTopic) {
    open();
    press(Qt::Key_Down);
    EXPECT_EQ(focusName(), "Survey");
    EXPECT_TRUE(focusIsRinged());
    EXPECT_TRUE(shows("The home dashboard — your drive at a glance."));
    press(Qt::Key_Up);
    press(Qt::Key_Up);
    EXPECT_EQ(focusName(), "Getting started");
    press(Qt::Key_End);
    EXPECT_EQ(focusName(), "Privacy & trust");
    EXPECT_TRUE(shows("Zelk works entirely on your Mac."));
    press(Qt::Key_Down);
    EXPECT_EQ(focusName(), "Privacy & trust");
    press(Qt::Key_Home);
    EXPECT_EQ(focusName(), "Getting started");
}

TEST_F(HelpWindow, theTopicWithTheKeyboardStaysInSight) {
    open({760, 300});
    for (int row = 0; row < 12; ++row) {
        expectFocusInSight();
        press(Qt::Key_Down);
    }
    press(Qt::Key_Home);
    expectFocusInSight();
}

TEST_F(HelpWindow, onlyTheTopicThatIsReadIsAStopOfTheTabKey) {
    open();
    help().select(3);
    settle();
    view().forceActiveFocus();
    const std::vector<std::string> order = tabOrder();
    EXPECT_EQ(std::count(order.begin(), order.end(), "Clutter"), 1);
    EXPECT_EQ(std::count(order.begin(), order.end(), "Getting started"), 0);
}

TEST_F(HelpWindow, aTopicIsChosenWithTheMouse) {
    open();
    for (QQuickItem* item : seen())
        if (item->inherits("QQuickText") && item->property("text").toString() == QStringLiteral("Lens"))
            tour::clickAt(window(), item->mapToScene(item->boundingRect().center()));
    EXPECT_EQ(help().current(), 5);
    settle();
    EXPECT_TRUE(shows("See where your space went."));
}

TEST_F(HelpWindow, theListIsAListToAScreenReader) {
    open();
    QAccessibleInterface* row = QAccessible::queryAccessibleInterface(window().activeFocusItem());
    ASSERT_NE(row, nullptr);
    // To Qt 6.4 whatever can be pressed is a button.
    EXPECT_THAT(row->role(), testing::AnyOf(QAccessible::ListItem, QAccessible::Button));
    EXPECT_TRUE(row->state().selected);
    expectAllControlsNamed();
}

TEST_F(HelpWindow, aNewTopicIsReadFromItsTop) {
    open({760, 260});
    QQuickItem* page = find("helpPage");
    ASSERT_NE(page, nullptr);
    page->setProperty("contentY", 60);
    help().select(2);
    settle();
    EXPECT_EQ(page->property("contentY").toReal(), 0);
}

TEST_F(HelpWindow, clipsNoTopicWhereTextIsLarge) {
    singleton<TextScale>("TextScale").setFactor(1.5);
    open();
    for (int row = 0; row < 12; ++row) {
        help().select(row);
        settle();
        expectNoTextClipped();
    }
}

}  // namespace zelk
