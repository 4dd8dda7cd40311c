// SPDX-License-Identifier: MIT
// A word that opens a menu: what opens and closes it, and where the keyboard goes.
#include <gmock/gmock.h>

#include "ViewFixture.h"

namespace zelk {

namespace {

constexpr const char* menuBoard = R"(
import QtQuick
import Zelk.Controls

Item {
    id: board

    property bool there: true
    property bool able: true
    property int chosen: 0

    FocusScope {
        objectName: "screen"
        width: 300
        height: 300
        visible: board.there
        focus: true

        MenuButton {
            objectName: "button"
            x: 20
            y: 20
            focus: true
            enabled: board.able
            text: "None"
            said: "Select:"

            MenuRow {
                objectName: "all"
                text: "All"
                onTriggered: board.chosen += 1
            }
            MenuRow {
                objectName: "wide"
                text: "Those that nobody has used"
            }
        }
    }

    Item {
        objectName: "other"
        y: 300
        width: 300
        height: 100
        activeFocusOnTab: true
        Accessible.role: Accessible.Pane
        Accessible.name: "Other"
    }
}
)";

class MenuButtonWindow : public ViewFixture {
protected:
    MenuButtonWindow() { show(QString::fromUtf8(menuBoard), {300, 400}); }

    bool isOpen() { return find("all") != nullptr; }
    bool buttonHasKeyboard() { return find("button") != nullptr && find("button")->hasActiveFocus(); }
};

}  // namespace

TEST_F(MenuButtonWindow, isOpenedAndClosedByPressesOnIt) {
    click("button");
    EXPECT_TRUE(isOpen());
    click("button");
    EXPECT_FALSE(isOpen());
    EXPECT_TRUE(buttonHasKeyboard());
    click("button");
    EXPECT_TRUE(isOpen());
}

TEST_F(MenuButtonWindow, aPressElsewhereAndEscapeCloseIt) {
    click("button");
    tour::clickAt(window(), {150, 350});
    settle();
    EXPECT_FALSE(isOpen());
    click("button");
    press(Qt::Key_Escape);
    EXPECT_FALSE(isOpen());
    EXPECT_TRUE(buttonHasKeyboard());
}

TEST_F(MenuButtonWindow, itsRowsArePressed) {
    click("button");
    click("all");
    EXPECT_FALSE(isOpen());
    EXPECT_EQ(view().property("chosen").toInt(), 1);
    EXPECT_TRUE(buttonHasKeyboard());
}

TEST_F(MenuButtonWindow, isAsWideAsItsWidestRow) {
    click("button");
    ASSERT_TRUE(isOpen());
    EXPECT_GT(find("wide")->implicitWidth(), 160);
    EXPECT_GE(find("wide")->width(), find("wide")->implicitWidth());
    EXPECT_EQ(find("all")->width(), find("wide")->width());
}

TEST_F(MenuButtonWindow, goesWithItsScreenAndLeavesTheKeyboardToTheNext) {
    click("button");
    ASSERT_TRUE(isOpen());
    find("other")->forceActiveFocus();
    view().setProperty("there", false);
    settle();
    EXPECT_FALSE(isOpen());
    EXPECT_EQ(focusName(), "Other");
    view().setProperty("there", true);
    settle();
    EXPECT_FALSE(isOpen());
}

TEST_F(MenuButtonWindow, doesNotTakeTheKeyboardWhereItCannotBePressed) {
    click("button");
    ASSERT_TRUE(isOpen());
    find("other")->forceActiveFocus();
    view().setProperty("able", false);
    press(Qt::Key_Escape);
    tour::clickAt(window(), {150, 350});
    settle();
    EXPECT_FALSE(isOpen());
    EXPECT_FALSE(buttonHasKeyboard());
}

}  // namespace zelk
