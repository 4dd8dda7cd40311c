// SPDX-License-Identifier: MIT
// Drives the shared controls with the mouse, the keyboard and a screen reader.
#include <gmock/gmock.h>

#include <QQmlProperty>
#include <QTest>

#include "ControlsFixture.h"
#include "ui/controls/SoftShadow.h"

namespace zelk {

namespace {

using Names = std::vector<std::string>;

struct Pressable {
    const char* object;
    const char* name;
};
constexpr Pressable buttons[] = {{"primary", "Clean"},
                                 {"secondary", "Later"},
                                 {"icon", "Refresh"},
                                 {"link", "Show all"},
                                 {"card", "Large Files, 12 GB, 40 items"}};

class ControlsWindow : public ControlsFixture {};

}  // namespace

TEST_F(ControlsWindow, mousePressesEveryButton) {
    for (const auto& [object, name] : buttons) {
        click(object);
        EXPECT_EQ(told(), object);
    }
}

TEST_F(ControlsWindow, spaceReturnAndEnterPressEveryButton) {
    for (const auto& [object, name] : buttons) {
        give(object);
        for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter}) {
            press(key);
            EXPECT_EQ(told(), object) << key;
        }
    }
}

TEST_F(ControlsWindow, heldKeyPressesOnce) {
    for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter}) {
        for (const auto& [object, name] : buttons) {
            give(object);
            hold(key);
            EXPECT_EQ(told(), object) << key;
        }
        give("toggle");
        hold(key);
        EXPECT_EQ(told(), "toggle") << key;
        EXPECT_EQ(find("toggle")->property("checked").toBool(), key != Qt::Key_Return) << key;
    }
}

TEST_F(ControlsWindow, buttonsHaveRoleAndName) {
    for (const auto& [object, name] : buttons) {
        EXPECT_EQ(roleOf(object), QAccessible::Button) << object;
        EXPECT_EQ(nameOf(find(object)), name);
    }
    const QAccessibleInterface* icon = QAccessible::queryAccessibleInterface(find("icon"));
    EXPECT_EQ(icon->text(QAccessible::Description), QStringLiteral("Reads it again"));
}

TEST_F(ControlsWindow, pressActionPressesButtonOnce) {
    for (const auto& [object, name] : buttons) {
        QAccessible::queryAccessibleInterface(find(object))
            ->actionInterface()
            ->doAction(QAccessibleActionInterface::pressAction());
        EXPECT_EQ(told(), object);
    }
}

TEST_F(ControlsWindow, disabledButtonsAreNotFocusableOrPressable) {
    view().setProperty("able", false);
    settle();
    const Names order = tabOrder();
    for (const auto& [object, name] : buttons) {
        EXPECT_EQ(std::count(order.begin(), order.end(), name), 0) << name;
        click(object);
        QAccessible::queryAccessibleInterface(find(object))
            ->actionInterface()
            ->doAction(QAccessibleActionInterface::pressAction());
        EXPECT_EQ(told(), "") << object;
        EXPECT_LT(find(object)->opacity() * find(object)->property("contentItem").value<QQuickItem*>()->opacity(), 1)
            << object;
    }
}

TEST_F(ControlsWindow, tabVisitsEachControlOnceInOrder) {
    EXPECT_EQ(tabOrder(), (Names{"Start", "Clean", "Later", "Refresh", "Show all", "Large Files, 12 GB, 40 items",
                                 "Delete permanently", "Days", "Light"}));
}

TEST_F(ControlsWindow, showsFocusRingForKeyboardOnly) {
    EXPECT_EQ(rings(), 0);
    for (const char* object : {"primary", "secondary", "icon", "link", "card", "toggle", "stepper"}) {
        click(object);
        EXPECT_EQ(rings(), 0) << object;
        find("start")->forceActiveFocus();
        give(object);
        EXPECT_EQ(rings(), 1) << object;
        find("start")->forceActiveFocus();
        settle();
        EXPECT_EQ(rings(), 0) << object;
    }
    clickItem(segment("Dark"));
    EXPECT_EQ(rings(), 0);
    press(Qt::Key_Left);
    EXPECT_EQ(rings(), 1);
}

TEST_F(ControlsWindow, mouseSpaceAndReturnSwitchToggle) {
    const auto isOn = [&] { return find("toggle")->property("checked").toBool(); };
    click("toggle");
    EXPECT_TRUE(isOn());
    EXPECT_EQ(told(), "toggle");
    press(Qt::Key_Space);
    EXPECT_FALSE(isOn());
    EXPECT_EQ(told(), "toggle");
    press(Qt::Key_Return);
    EXPECT_TRUE(isOn());
    EXPECT_EQ(told(), "toggle");
}

TEST_F(ControlsWindow, toggleHasCheckBoxRoleAndState) {
    EXPECT_EQ(roleOf("toggle"), QAccessible::CheckBox);
    EXPECT_EQ(nameOf(find("toggle")), "Delete permanently");
    EXPECT_TRUE(stateOf(find("toggle")).checkable);
    EXPECT_FALSE(stateOf(find("toggle")).checked);
    click("toggle");
    EXPECT_TRUE(stateOf(find("toggle")).checked);
}

TEST_F(ControlsWindow, accessibleActionsSwitchToggleOnce) {
    QAccessibleActionInterface* toggle = QAccessible::queryAccessibleInterface(find("toggle"))->actionInterface();
    ASSERT_TRUE(toggle->actionNames().contains(QAccessibleActionInterface::toggleAction()));
    toggle->doAction(QAccessibleActionInterface::toggleAction());
    EXPECT_TRUE(find("toggle")->property("checked").toBool());
    EXPECT_EQ(told(), "toggle");
    toggle->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_FALSE(find("toggle")->property("checked").toBool());
    EXPECT_EQ(told(), "toggle");
    find("toggle")->setEnabled(false);
    toggle->doAction(QAccessibleActionInterface::toggleAction());
    EXPECT_FALSE(find("toggle")->property("checked").toBool());
}

TEST_F(ControlsWindow, arrowsStepWithinRange) {
    give("stepper");
    for (int step = 0; step < 3; ++step) press(Qt::Key_Up);
    EXPECT_EQ(told(), "2 3");
    for (int step = 0; step < 5; ++step) press(Qt::Key_Down);
    EXPECT_EQ(told(), "2 1 0");
}

TEST_F(ControlsWindow, stepperButtonsStepWithinRange) {
    const auto indicator = [&](const char* which) {
        QObject* side = find("stepper")->property(which).value<QObject*>();
        return side->property("indicator").value<QQuickItem*>();
    };
    clickItem(indicator("up"));
    EXPECT_EQ(told(), "2");
    clickItem(indicator("down"));
    clickItem(indicator("down"));
    clickItem(indicator("down"));
    EXPECT_EQ(told(), "1 0");
}

TEST_F(ControlsWindow, stepperHasSpinBoxRoleAndName) {
    EXPECT_EQ(roleOf("stepper"), QAccessible::SpinBox);
    EXPECT_EQ(nameOf(find("stepper")), "Days");
    QAccessibleInterface* stepper = QAccessible::queryAccessibleInterface(find("stepper"));
    ASSERT_NE(stepper->valueInterface(), nullptr);
    EXPECT_EQ(stepper->valueInterface()->currentValue().toInt(), 1);
}

TEST_F(ControlsWindow, arrowsPickSegmentsAndStopAtEnds) {
    segment("Light")->forceActiveFocus(Qt::TabFocusReason);
    press(Qt::Key_Right);
    EXPECT_EQ(told(), "picked2");
    press(Qt::Key_Right);
    EXPECT_EQ(told(), "");
    EXPECT_EQ(focusName(), "Dark");
    press(Qt::Key_Up);
    press(Qt::Key_Left);
    EXPECT_EQ(told(), "picked1 picked0");
    press(Qt::Key_Left);
    EXPECT_EQ(told(), "");
    EXPECT_EQ(focusName(), "System");
    press(Qt::Key_Down);
    EXPECT_EQ(told(), "picked1");
}

TEST_F(ControlsWindow, tabReachesThePickedSegment) {
    clickItem(segment("Dark"));
    EXPECT_EQ(told(), "picked2");
    find("start")->forceActiveFocus();
    press(Qt::Key_Backtab);
    EXPECT_EQ(focusName(), "Dark");
    press(Qt::Key_Space);
    EXPECT_EQ(told(), "picked2") << "picking again keeps it picked";
}

TEST_F(ControlsWindow, segmentsAreRadioButtons) {
    EXPECT_EQ(roleOf("picker"), QAccessible::Grouping);
    EXPECT_EQ(nameOf(find("picker")), "Theme");
    for (const char* name : {"System", "Light", "Dark"}) {
        QQuickItem* radio = segment(name);
        ASSERT_NE(radio, nullptr) << name;
        EXPECT_EQ(QAccessible::queryAccessibleInterface(radio)->role(), QAccessible::RadioButton);
        EXPECT_TRUE(stateOf(radio).checkable) << name;
        EXPECT_EQ(stateOf(radio).checked, name == std::string("Light")) << name;
    }
}

TEST_F(ControlsWindow, checkedSegmentFollowsCurrentIndex) {
    const auto checked = [this] {
        Names names;
        for (const char* name : {"System", "Light", "Dark"})
            if (stateOf(segment(name)).checked) names.emplace_back(name);
        return names;
    };
    clickItem(segment("Dark"));
    EXPECT_EQ(checked(), Names{"Dark"});
    press(Qt::Key_Space);
    EXPECT_EQ(checked(), Names{"Dark"}) << "pressed again";
    view().setProperty("picked", 0);
    settle();
    EXPECT_EQ(checked(), Names{"System"}) << "set by the program";
    // A picker whose owner ignores the pick keeps its segment.
    show(QStringLiteral("import Zelk.Controls\n"
                        "SegmentedPicker { label: \"Theme\"; options: [\"System\", \"Light\", \"Dark\"]; current: 0 }"),
         {300, 60});
    clickItem(segment("Light"));
    EXPECT_EQ(checked(), Names{"System"});
}

TEST_F(ControlsWindow, pressActionPicksSegmentOnce) {
    QAccessibleActionInterface* dark = QAccessible::queryAccessibleInterface(segment("Dark"))->actionInterface();
    dark->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_EQ(told(), "picked2");
}

TEST_F(ControlsWindow, stepperExposesRangeAndAcceptsValue) {
    QAccessibleValueInterface* stepper = QAccessible::queryAccessibleInterface(find("stepper"))->valueInterface();
    EXPECT_EQ(stepper->minimumValue().toInt(), 0);
    EXPECT_EQ(stepper->maximumValue().toInt(), 3);
    stepper->setCurrentValue(3);
    EXPECT_EQ(told(), "3");
}

TEST_F(ControlsWindow, cardIsAtLeast140Wide) {
    EXPECT_GE(find("card")->implicitWidth(), 140);
    for (const char* text : {"title", "value", "detail"}) find("card")->setProperty(text, QStringLiteral("1"));
    settle();
    EXPECT_EQ(find("card")->implicitWidth(), 140);
}

TEST_F(ControlsWindow, hoverRaisesCard) {
    QQuickItem* ground = find("card")->property("background").value<QQuickItem*>();
    const auto* below = ground->findChild<SoftShadow*>();
    const auto shadow = [&] {
        settle();
        return std::pair(below->property("strength").toDouble(), below->property("radius").toDouble());
    };
    const auto outline = [&] { return QQmlProperty::read(ground, QStringLiteral("border.color")).value<QColor>(); };
    tour::restPointer(window());
    EXPECT_EQ(shadow(), std::pair(0.06, 6.0));
    const QColor resting = outline();
    QTest::mouseMove(&window(), find("card")->mapToScene({20, 20}).toPoint());
    EXPECT_EQ(shadow(), std::pair(0.25, 12.0));
    EXPECT_EQ(outline().rgb(), QColor(0x12, 0x34, 0x56).rgb());
    EXPECT_NEAR(outline().alphaF(), 0.5, 0.01);
    tour::restPointer(window());
    EXPECT_EQ(shadow(), std::pair(0.06, 6.0));
    EXPECT_EQ(outline(), resting);
}

}  // namespace zelk
