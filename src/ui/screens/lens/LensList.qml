// SPDX-License-Identifier: MIT
// The subfolders of the current folder. Space selects the current row, Return and Right enter it, Backspace and Left go
// back, I explains it.
pragma ComponentBehavior: Bound

import QtQuick
import Zelk.App
import Zelk.Controls

RowList {
    id: list

    required property LensScreenModel lens

    // Takes the focus, visibly if the keyboard was used.
    function receive(byKeyboard: bool) {
        list.byKey = byKeyboard;
        list.forceActiveFocus(byKeyboard ? Qt.TabFocusReason : Qt.MouseFocusReason);
    }

    // Into the current row by 1, which is where its chevron points, or back by -1.
    function turn(way: int) {
        if (way > 0)
            list.lens.drill(list.currentIndex);
        else
            list.lens.back();
    }

    objectName: "lensList"
    name: list.lens.listName
    model: list.lens.rows
    topMargin: 4
    bottomMargin: 4

    Keys.onSpacePressed: event => {
        if (!event.isAutoRepeat)
            list.lens.toggle(list.currentIndex);
    }
    Keys.onReturnPressed: event => {
        if (!event.isAutoRepeat)
            list.lens.drill(list.currentIndex);
    }
    Keys.onEnterPressed: event => {
        if (!event.isAutoRepeat)
            list.lens.drill(list.currentIndex);
    }
    Keys.onRightPressed: list.turn(ReadingDirection.rightward)
    Keys.onLeftPressed: list.turn(-ReadingDirection.rightward)
    Keys.onPressed: event => {
        if (event.key === Qt.Key_Backspace && !event.isAutoRepeat) {
            list.lens.back();
            event.accepted = true;
        } else if (event.key === Qt.Key_I && event.modifiers === Qt.NoModifier) {
            list.lens.explain(list.currentIndex);
            event.accepted = true;
        }
    }

    Connections {
        target: list.lens

        function onArrived(row: int) {
            list.currentIndex = Math.min(row, list.count - 1);
            list.positionViewAtIndex(list.currentIndex, ListView.Contain);
        }
    }

    delegate: LensRow {
        ringed: list.ringed && ListView.isCurrentItem
        onPressed: {
            list.take(index);
            list.lens.drill(index);
        }
        onOpened: list.lens.drill(index)
        onToggled: {
            list.take(index);
            list.lens.toggle(index);
        }
        onAsked: list.lens.explain(index)
    }

    // A folder. A click enters it, a click on its check box selects it.
    component LensRow: ListRow {
        id: row

        required property int index
        required property string name
        required property real size // bytes
        required property var icon
        required property bool ticked
        required property bool drillable
        required spoken
        required property string info

        signal opened
        signal toggled
        signal asked

        readonly property bool current: ListView.isCurrentItem

        clickable: row.drillable
        implicitHeight: Math.max(content.implicitHeight, label.implicitHeight) + 2 * 8

        Accessible.onPressAction: row.opened()

        Rectangle {
            anchors.fill: parent
            anchors.leftMargin: 10
            anchors.rightMargin: 10
            radius: 8
            color: row.ticked ? Qt.alpha(Theme.accent, 0.1) : row.hovered && row.drillable ? Theme.hoverWash : "transparent"

            FocusRing {
                anchors.margins: 1
                shown: row.ringed && !ask.visualFocus
                corner: 4
            }
        }

        Item {
            id: content

            anchors.left: parent.left
            anchors.leftMargin: Theme.pageMargin
            anchors.right: parent.right
            anchors.rightMargin: 22
            anchors.verticalCenter: parent.verticalCenter
            implicitHeight: Math.max(box.implicitHeight, ask.implicitHeight, picture.height)

            CheckBox {
                id: box

                objectName: "lensTick"
                anchors.left: parent.left
                anchors.leftMargin: -4
                anchors.verticalCenter: parent.verticalCenter
                focusPolicy: Qt.NoFocus
                text: row.name
                on: row.ticked
                onClicked: row.toggled()
            }

            // Only the current row's button is in the focus chain.
            IconButton {
                id: ask

                objectName: "lensInfo"
                anchors.left: box.right
                anchors.leftMargin: 2
                anchors.verticalCenter: parent.verticalCenter
                focusPolicy: row.current || ask.activeFocus ? Qt.TabFocus : Qt.NoFocus
                symbol: "info.circle"
                size: 12
                side: 24
                text: row.info
                help: qsTr("What is this? (I)")
                onClicked: row.asked()
                // Makes the row, not the button, receive the focus when the list gets it back.
                onActiveFocusChanged: {
                    if (!ask.activeFocus && row.current)
                        row.focus = true;
                }
                Keys.onBacktabPressed: row.forceActiveFocus(Qt.BacktabFocusReason)
            }

            Picture {
                id: picture

                anchors.left: ask.right
                anchors.leftMargin: 4
                anchors.verticalCenter: parent.verticalCenter
                width: 22
                height: 22
                image: row.icon
            }

            Label {
                id: label

                anchors.left: picture.right
                anchors.leftMargin: 8
                anchors.right: figure.left
                anchors.rightMargin: 8
                anchors.verticalCenter: parent.verticalCenter
                text: row.name
                size: 13
                elide: Text.ElideMiddle
                mute: true
            }

            AnimatedNumber {
                id: figure

                anchors.right: chevron.left
                anchors.rightMargin: 8
                anchors.verticalCenter: parent.verticalCenter
                value: row.size
                duration: 0
                pixelSize: 12
                mute: true
            }

            SymbolItem {
                id: chevron

                anchors.right: parent.right
                anchors.verticalCenter: parent.verticalCenter
                name: "chevron.right"
                color: Theme.inkSoft
                size: Math.round(9 * TextScale.factor)
                visible: row.drillable
            }
        }
    }
}
