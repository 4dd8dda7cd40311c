// SPDX-License-Identifier: MIT
// Controls where the application reads from right to left: at which side their parts are, and where arrow keys lead.
#include <gmock/gmock.h>

#include "MirrorCheck.h"
#include "ViewFixture.h"
#include "fakes/RightToLeft.h"

namespace zelk {

namespace {

constexpr const char* mirroredBoard = R"(
import QtQuick
import QtQuick.Templates as T
import Zelk.App
import Zelk.Charts
import Zelk.Controls

Window {
    id: board

    property int picked: 1
    property real chosen: 40
    property alias shown: board.contentItem

    LayoutMirroring.enabled: ReadingDirection.mirrored
    LayoutMirroring.childrenInherit: true

    Column {
        x: 20
        y: 20
        width: 360
        spacing: 12

        SliderField {
            objectName: "slider"
            width: 240
            anchors.left: parent.left
            from: 0
            to: 100
            stepSize: 1
            value: board.chosen
            label: "Age"
            valueText: ""
            onPicked: value => board.chosen = value
        }
        ToggleSwitch {
            objectName: "toggle"
            width: parent.width
            text: "Delete"
            checked: true
        }
        StepperField {
            objectName: "stepper"
            width: parent.width
            label: "Days"
            from: 0
            to: 9
            value: 4
        }
        SegmentedPicker {
            objectName: "picker"
            anchors.left: parent.left
            label: "Theme"
            options: ["System", "Light", "Dark"]
            current: board.picked
            onPicked: index => board.picked = index
        }
        ShareBar {
            objectName: "share"
            anchors.left: parent.left
            value: 0.25
            name: "Cleaning"
            progress: "1 of 4"
        }
        Button {
            objectName: "pill"
            anchors.left: parent.left
            kind: Button.Pill
            symbol: "sparkles"
            text: "Reclaim"
        }
        FlowRow {
            width: parent.width
            spacing: 10

            Rectangle { objectName: "flow0"; width: 200; height: 9 }
            Rectangle { objectName: "flow1"; width: 100; height: 9 }
            Rectangle { objectName: "flow2"; width: 120; height: 9 }
        }
        SearchField {
            objectName: "search"
            anchors.left: parent.left
            hint: "Search"
            text: "abc"
        }
        MenuButton {
            objectName: "button"
            anchors.horizontalCenter: parent.horizontalCenter
            text: "None"

            MenuRow { objectName: "all"; text: "All those that are there"; shortcutText: "Ctrl+1" }
        }
        RowList {
            objectName: "list"
            width: parent.width
            height: 100
            name: "Rows"
            model: 2
            delegate: ListRow {
                required property int index

                objectName: "row" + index
                width: 200
                implicitHeight: 20
            }
        }
        UndoBar {
            width: parent.width
            shown: true
            undoable: true
            text: "Moved to the Trash"
        }
    }
}
)";

class MirroredControls : public ViewFixture {
protected:
    MirroredControls() { show(QString::fromUtf8(mirroredBoard), {400, 560}); }
    ~MirroredControls() override { close(); }

    /// The horizontal extent of an item in the window.
    QRectF box(const char* name) { return boxOf(find(name)); }
    static QRectF boxOf(QQuickItem* item) { return item->mapRectToScene(item->boundingRect()); }
    double chosen() { return window().property("chosen").toDouble(); }

    const fakes::RightToLeft direction;
};

}  // namespace

TEST_F(MirroredControls, areMirrorImagesOfThemselves) {
    tour::MirrorCheck check;
    check.look(window(), QStringLiteral("the board"));
    EXPECT_EQ(check.findings(), QStringList(QStringLiteral("")).mid(1));
    EXPECT_GT(check.compared(), 40);
}

TEST_F(MirroredControls, sliderGoesUpToTheLeft) {
    find("slider")->forceActiveFocus(Qt::TabFocusReason);
    press(Qt::Key_Left);
    EXPECT_EQ(chosen(), 41);
    press(Qt::Key_Right);
    press(Qt::Key_Right);
    EXPECT_EQ(chosen(), 39);
    press(Qt::Key_PageUp);
    EXPECT_EQ(chosen(), 49) << "up is up";
    tour::clickAt(window(), {box("slider").left() + 20, box("slider").center().y()});
    EXPECT_GT(chosen(), 80);
}

TEST_F(MirroredControls, switchIsOnAtTheLeft) {
    QQuickItem* toggle = find("toggle");
    const auto* indicator = toggle->property("indicator").value<QQuickItem*>();
    EXPECT_EQ(boxOf(const_cast<QQuickItem*>(indicator)).left(), box("toggle").left()) << "after its label";
    const auto knob = [&] { return indicator->childItems().at(1)->x(); };
    EXPECT_EQ(knob(), 3);
    press(Qt::Key_Tab);
    toggle->forceActiveFocus(Qt::TabFocusReason);
    press(Qt::Key_Space);
    EXPECT_EQ(knob(), indicator->width() - 14 - 3);
}

TEST_F(MirroredControls, stepperHasPlusAtTheOuterEnd) {
    const QRectF stepper = box("stepper");
    tour::clickAt(window(), {stepper.left() + 8, stepper.center().y()});
    EXPECT_EQ(find("stepper")->property("value").toInt(), 5);
}

TEST_F(MirroredControls, arrowsPickTheSegmentThatTheyPointTo) {
    tour::clickAt(window(), box("picker").center());
    EXPECT_EQ(window().property("picked").toInt(), 1);
    press(Qt::Key_Left);
    EXPECT_EQ(window().property("picked").toInt(), 2);
    press(Qt::Key_Right);
    press(Qt::Key_Right);
    EXPECT_EQ(window().property("picked").toInt(), 0);
    press(Qt::Key_Down);
    EXPECT_EQ(window().property("picked").toInt(), 1) << "down goes on";
}

TEST_F(MirroredControls, barFillsFromTheRight) {
    const QQuickItem* filled = find("share")->childItems().constFirst();
    EXPECT_EQ(filled->x() + filled->width(), find("share")->width());
    EXPECT_EQ(filled->width(), find("share")->width() / 4);
}

TEST_F(MirroredControls, capsuleHasItsSymbolAtTheRight) {
    EXPECT_GT(boxOf(symbol("sparkles")).left(), boxOf(showing("Reclaim")).right());
    EXPECT_NEAR(box("pill").right() - boxOf(symbol("sparkles")).right(), 14, 1.5);
    EXPECT_NEAR(boxOf(showing("Reclaim")).left() - box("pill").left(), 16, 1.5);
}

TEST_F(MirroredControls, wrappingRowBeginsAtTheRight) {
    EXPECT_EQ(find("flow0")->x(), 160);
    EXPECT_EQ(find("flow1")->x(), 50);
    EXPECT_EQ(find("flow2")->x(), 240) << "in the next row";
}

TEST_F(MirroredControls, searchFieldHasItsSymbolBeforeTheText) {
    const QRectF field = box("search");
    EXPECT_NEAR(field.right() - boxOf(symbol("magnifyingglass")).right(), 10, 1);
    EXPECT_LT(box("clearSearch").left(), field.left() + 10);
    EXPECT_EQ(find("search")->property("effectiveHorizontalAlignment").toInt(), static_cast<int>(Qt::AlignRight));
    EXPECT_GT(find("search")->property("rightPadding").toDouble(), 20);
}

TEST_F(MirroredControls, menuOpensBelowTheRightEndOfItsButton) {
    click("button");
    ASSERT_NE(find("all"), nullptr);
    EXPECT_NEAR(box("all").right() + 5, box("button").right(), 1) << "within its padding";
    EXPECT_GT(box("all").width(), box("button").width());
    EXPECT_GT(boxOf(showing("All those that are there")).left(), boxOf(showing("Ctrl+1")).right());
}

TEST_F(MirroredControls, narrowRowsStandAtTheRight) {
    for (const char* row : {"row0", "row1"}) EXPECT_EQ(box(row).right(), box("list").right()) << row;
}

TEST_F(MirroredControls, undoStandsAfterTheText) {
    EXPECT_LT(box("undoRemoval").right(), boxOf(showing("Moved to the Trash")).left());
    EXPECT_LT(box("closeUndoBar").right(), box("undoRemoval").left());
}

}  // namespace zelk
