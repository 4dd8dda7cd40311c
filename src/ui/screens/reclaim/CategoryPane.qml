// SPDX-License-Identifier: MIT
// The categories as a list and as a bubble map; both select them. The menu above the list selects several at once.
pragma ComponentBehavior: Bound

import QtQuick
import Zelk.App
import Zelk.Charts
import Zelk.Controls

FocusScope {
    id: pane

    required property CategoryList categories

    Item {
        id: mapSide

        anchors.left: parent.left
        anchors.top: parent.top
        anchors.bottom: cleanFooter.top
        width: Math.min(340 * TextScale.factor, pane.width * 0.6)

        Item {
            id: head

            width: parent.width
            implicitHeight: Math.max(40, menuButton.implicitHeight + 8)

            Label {
                id: menuLabel

                anchors.left: parent.left
                anchors.leftMargin: 26
                anchors.verticalCenter: parent.verticalCenter
                text: qsTr("Select:")
                size: 11
                soft: true
            }

            MenuButton {
                id: menuButton

                objectName: "selectMenu"
                anchors.left: menuLabel.right
                anchors.leftMargin: 4
                anchors.verticalCenter: parent.verticalCenter
                text: pane.categories.menuLabel
                said: qsTr("Select:")

                MenuRow {
                    text: qsTr("All")
                    onTriggered: pane.categories.chooseAll()
                }
                MenuRow {
                    text: qsTr("Safe only")
                    onTriggered: pane.categories.chooseSafe()
                }
                MenuRow {
                    text: qsTr("None")
                    onTriggered: pane.categories.chooseNone()
                }
            }
        }

        Divider {
            id: rule

            anchors.top: head.bottom
            width: parent.width
        }

        RowList {
            id: list

            objectName: "categoryList"
            anchors.top: rule.bottom
            anchors.bottom: parent.bottom
            width: parent.width
            topMargin: 8
            bottomMargin: 8
            focus: true
            name: qsTr("Categories")
            model: pane.categories

            Keys.onSpacePressed: event => list.press(event.isAutoRepeat)
            Keys.onReturnPressed: event => list.press(event.isAutoRepeat)
            Keys.onEnterPressed: event => list.press(event.isAutoRepeat)

            function press(again: bool) {
                if (!again)
                    pane.categories.toggle(list.currentIndex);
            }

            delegate: CategoryRow {
                ringed: list.ringed && ListView.isCurrentItem
                onPressed: {
                    list.take(index);
                    pane.categories.toggle(index);
                }
            }
        }
    }

    Divider {
        id: edge

        anchors.left: mapSide.right
        anchors.top: parent.top
        anchors.bottom: cleanFooter.top
    }

    BubbleChart {
        objectName: "categoryMap"
        anchors.left: edge.right
        anchors.right: parent.right
        anchors.top: parent.top
        anchors.bottom: cleanFooter.top
        anchors.margins: 8
        name: qsTr("Map of the categories")
        model: pane.categories.bubbles
    }

    CleanFooter {
        id: cleanFooter

        width: parent.width
        anchors.bottom: parent.bottom
        line: pane.categories.footer
        action: qsTr("Review & Clean")
        ready: pane.categories.reviewable
        onPressed: pane.categories.review()
    }

    // A category: check box, grade, name and size.
    component CategoryRow: ListRow {
        id: row

        required property int index
        required property string name
        required property string note
        required property color tint
        required property real bytes
        required property string itemCount
        required property string grade
        required property bool chosen
        required spoken

        clickable: true
        implicitHeight: Math.max(texts.implicitHeight, figures.implicitHeight) + 2 * 10

        Accessible.role: Accessible.CheckBox
        Accessible.checkable: true
        Accessible.checked: row.chosen
        Accessible.onPressAction: row.pressed()
        Accessible.onToggleAction: row.pressed()

        Rectangle {
            anchors.fill: parent
            anchors.leftMargin: 12
            anchors.rightMargin: 12
            anchors.topMargin: 1
            anchors.bottomMargin: 1
            radius: 10
            color: row.chosen ? Qt.alpha(Theme.accent, 0.1) : row.hovered ? Theme.hoverWash : "transparent"

            FocusRing {
                shown: row.ringed
                corner: 10
            }
        }

        CheckBox {
            id: box

            anchors.left: parent.left
            anchors.leftMargin: Theme.pageMargin - 4  // the box is drawn 4 inside its target
            anchors.verticalCenter: parent.verticalCenter
            text: row.name
            on: row.chosen
            focusPolicy: Qt.NoFocus
            Accessible.ignored: true
            onClicked: row.pressed()
        }

        Rectangle {
            id: dot

            anchors.left: box.right
            anchors.leftMargin: 6
            anchors.verticalCenter: parent.verticalCenter
            width: 8
            height: 8
            radius: 4
            color: row.tint
        }

        TwoLines {
            id: texts

            anchors.left: dot.right
            anchors.leftMargin: 10
            anchors.right: figures.left
            anchors.rightMargin: 12
            anchors.verticalCenter: parent.verticalCenter
            title: row.name
            note: row.note
            weight: Font.DemiBold
            wraps: true
            mute: true
        }

        Column {
            id: figures

            anchors.right: parent.right
            anchors.rightMargin: 24
            anchors.verticalCenter: parent.verticalCenter
            spacing: 2

            AnimatedNumber {
                anchors.right: parent.right
                value: row.bytes
                pixelSize: 12
                bold: true
                mute: true
            }

            Row {
                anchors.right: parent.right
                spacing: 8

                // The dot alone would tell the grade by its colour only.
                Label {
                    text: row.grade
                    size: 10
                    color: Theme.textOn(row.tint, Theme.textGround)
                    mute: true
                }

                Label {
                    text: row.itemCount
                    size: 10
                    soft: true
                    mute: true
                }
            }
        }
    }
}
