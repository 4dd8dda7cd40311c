// SPDX-License-Identifier: MIT
// A module in the sidebar, with its group's title above if it is the first of a group. The symbol keeps its position
// when the sidebar collapses.
pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Zelk.Controls

Column {
    id: place

    required property int index
    required property string heading
    required property string title
    required property string symbol
    required property color tint
    required property bool selected
    required property string name

    property bool collapsed: false
    property bool tight: false

    signal pressed(int index)
    // Clicked with the pointer rather than by key.
    signal entered
    signal stepped(int index, int by)
    // It became the selected one, wherever it was chosen.
    signal chosen(Item row)

    onSelectedChanged: {
        if (place.selected)
            place.chosen(row);
    }

    function takeFocus(reason: int) {
        row.forceActiveFocus(reason);
    }

    // Keeps a gap between groups, even when collapsed.
    Item {
        width: parent.width
        height: headingText.text === "" ? 0 : place.collapsed ? (place.tight ? 8 : 16) : headingText.implicitHeight
        visible: height > 0
        clip: true

        Label {
            id: headingText

            width: parent.width
            topPadding: place.tight ? 8 : 20
            bottomPadding: place.tight ? 4 : 8
            leftPadding: 12
            rightPadding: 12
            text: place.heading
            size: 10
            soft: true
            font.weight: Font.DemiBold
            visible: !place.collapsed
            Accessible.role: Accessible.Heading
        }
    }

    T.TabButton {
        id: row

        objectName: place.name
        text: place.title
        // A click must not check it: only the model changes what is selected.
        checkable: false
        focusPolicy: Qt.StrongFocus
        hoverEnabled: true
        width: parent.width
        height: Math.max(place.tight ? 32 : 36, label.implicitHeight + 12)
        onClicked: {
            place.pressed(place.index);
            if (!row.visualFocus)
                place.entered();
        }

        // A press with the pointer hides the focus ring of a row that has it.
        PointHandler {
            onActiveChanged: {
                if (active)
                    row.focusReason = Qt.MouseFocusReason;
            }
        }

        Keys.forwardTo: [buttonKeys]
        Keys.onUpPressed: place.stepped(place.index, -1)
        Keys.onDownPressed: place.stepped(place.index, 1)

        Accessible.name: place.title
        Accessible.selectable: true
        Accessible.selected: place.selected
        Accessible.onPressAction: buttonKeys.press(false)

        ButtonKeys {
            id: buttonKeys

            control: row
        }

        background: Rectangle {
            radius: 8
            color: place.selected ? Qt.alpha(place.tint, Theme.isDark ? 0.18 : 0.16) : row.hovered || row.down ? Theme.hairline : "transparent"
            Behavior on color {
                QuickChange {}
            }

            FocusRing {
                shown: row.visualFocus
                corner: 8
            }
        }

        Item {
            x: row.leftPadding
            y: row.topPadding
            width: row.availableWidth
            height: row.availableHeight

            TextSymbol {
                anchors.left: parent.left
                anchors.leftMargin: 10
                anchors.verticalCenter: parent.verticalCenter
                name: place.symbol
                color: place.selected ? place.tint : Theme.inkSoft
                points: 14
            }

            Label {
                id: label

                anchors.left: parent.left
                anchors.leftMargin: 10 + Math.round(30 * TextScale.factor)
                anchors.right: parent.right
                anchors.rightMargin: 8
                anchors.verticalCenter: parent.verticalCenter
                text: place.title
                size: 14
                mute: true
                font.weight: place.selected ? Font.DemiBold : Font.Medium
                opacity: place.collapsed ? 0 : place.selected ? 1 : 0.88
                visible: opacity > 0
                Behavior on opacity {
                    QuickChange {}
                }
            }
        }

        HelpTip {
            text: place.collapsed ? place.title : ""
            control: row
        }
    }
}
