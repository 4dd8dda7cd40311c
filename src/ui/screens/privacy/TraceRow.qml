// SPDX-License-Identifier: MIT
// A trace: tick, symbol, name, where it is, and its size. While its browser runs it is pale, cannot be ticked, and says
// what to quit. A click ticks it.
pragma ComponentBehavior: Bound

import QtQuick
import Zelk.Controls

ListRow {
    id: row

    required property int index
    required property string title
    required property string place
    required property string warning
    required property bool running
    required property bool ticked
    required property string size
    required spoken

    clickable: !row.running
    implicitHeight: Math.max(box.implicitHeight, tile.height, texts.implicitHeight) + 2 * 10

    Accessible.role: Accessible.CheckBox
    Accessible.checkable: !row.running
    Accessible.checked: row.ticked
    Accessible.onPressAction: row.pressed()
    Accessible.onToggleAction: row.pressed()

    Rectangle {
        id: ground

        anchors.fill: parent
        anchors.leftMargin: 16
        anchors.rightMargin: 16
        anchors.topMargin: 1
        anchors.bottomMargin: 1
        radius: 10
        color: row.hovered && row.clickable ? Theme.hoverWash : "transparent"

        FocusRing {
            anchors.margins: 0
            shown: row.ringed
            corner: ground.radius
        }
    }

    Item {
        objectName: "traceContent" + row.index
        anchors.fill: parent
        opacity: row.running ? 0.6 : 1

        CheckBox {
            id: box

            objectName: "traceTick" + row.index
            anchors.left: parent.left
            anchors.leftMargin: 22
            anchors.verticalCenter: parent.verticalCenter
            text: row.title
            on: row.ticked
            enabled: !row.running
            opacity: 1  // the row is pale already
            focusPolicy: Qt.NoFocus
            Accessible.ignored: true
            onClicked: row.pressed()
        }

        Tile {
            id: tile

            anchors.left: box.right
            anchors.leftMargin: 8
            anchors.verticalCenter: parent.verticalCenter
            symbol: "globe"
            tint: Theme.inkSoft
            side: 34
            symbolSize: 16
        }

        Column {
            id: texts

            anchors.left: tile.right
            anchors.leftMargin: 12
            anchors.right: figure.left
            anchors.rightMargin: 16
            anchors.verticalCenter: parent.verticalCenter
            spacing: 2

            Label {
                width: parent.width
                text: row.title
                size: 13
                font.weight: Font.Medium
                elide: Text.ElideMiddle
                mute: true
            }

            Label {
                width: parent.width
                visible: row.running
                text: row.warning
                size: 10
                color: Theme.alertText
                elide: Text.ElideMiddle
                mute: true
            }

            Label {
                width: parent.width
                visible: !row.running
                text: row.place
                size: 10
                soft: true
                elide: Text.ElideMiddle
                mute: true
            }
        }

        Label {
            id: figure

            anchors.right: parent.right
            anchors.rightMargin: Theme.pageMargin
            anchors.verticalCenter: parent.verticalCenter
            text: row.size
            size: 13
            font.weight: Font.DemiBold
            mute: true
        }
    }
}
