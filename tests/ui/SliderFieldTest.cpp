// SPDX-License-Identifier: MIT
// Keyboard input of a slider whose value is bound as on a screen.
#include "ViewFixture.h"

namespace zelk {

namespace {

constexpr const char* sliderBoard = R"(
import QtQuick
import Zelk.Controls

FocusScope {
    id: board

    focus: true

    property int days: 14
    property string picks

    SliderField {
        objectName: "slider"
        focus: true
        from: 0
        to: 180
        stepSize: 1
        value: board.days
        label: "Age"
        valueText: board.days
        onPicked: value => {
            board.days = value;
            board.picks += value + " ";
        }
    }

    SliderField {
        objectName: "short"
        y: 40
        from: 0
        to: 3
        stepSize: 1
        label: "Level"
        valueText: ""
    }
}
)";

class SliderWindow : public ViewFixture {
protected:
    SliderWindow() { show(QString::fromUtf8(sliderBoard), {300, 100}); }

    double value(const char* name) { return find(name)->property("value").toDouble(); }
    std::string picks() { return view().property("picks").toString().toStdString(); }
};

}  // namespace

TEST_F(SliderWindow, pageKeysMoveByTenthOfRange) {
    press(Qt::Key_PageUp);
    EXPECT_EQ(value("slider"), 32);
    press(Qt::Key_PageUp);
    EXPECT_EQ(value("slider"), 50);
    press(Qt::Key_PageDown);
    EXPECT_EQ(value("slider"), 32);
    EXPECT_EQ(picks(), "32 50 32 ") << "each page is told once";
}

TEST_F(SliderWindow, pageKeysStopAtTheEnds) {
    press(Qt::Key_PageDown);
    EXPECT_EQ(value("slider"), 0);
    press(Qt::Key_PageDown);
    EXPECT_EQ(picks(), "0 ");
    view().setProperty("days", 175);
    press(Qt::Key_PageUp);
    EXPECT_EQ(value("slider"), 180);
}

TEST_F(SliderWindow, keepsBindingAfterPageKey) {
    press(Qt::Key_PageUp);
    view().setProperty("days", 90);
    EXPECT_EQ(value("slider"), 90);
}

TEST_F(SliderWindow, pageKeysMoveShortSliderByOneStep) {
    find("short")->forceActiveFocus();
    press(Qt::Key_PageUp);
    EXPECT_EQ(value("short"), 1);
    press(Qt::Key_PageDown);
    EXPECT_EQ(value("short"), 0);
}

TEST_F(SliderWindow, arrowKeysStillMoveByOneStep) {
    press(Qt::Key_Right);
    EXPECT_EQ(value("slider"), 15);
    press(Qt::Key_Left);
    press(Qt::Key_Left);
    EXPECT_EQ(value("slider"), 13);
    EXPECT_EQ(picks(), "15 14 13 ");
}

}  // namespace zelk
