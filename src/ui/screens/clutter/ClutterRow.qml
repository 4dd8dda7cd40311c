// SPDX-License-Identifier: MIT
// A large file: name, folder, age and size, and the button of its context menu. A right click opens the menu at the
// pointer.
pragma ComponentBehavior: Bound

import QtQuick
import Zelk.Controls

ListRow {
    id: row

    required property int index
    required property string symbol
    required property color tint
    required property string name
    required property string folder
    required property string age
    required property string size
    required property string spoken
    required property string actions

    // Where the menu opens unless the pointer asked for it.
    readonly property point menuPlace: Qt.point(more.x, more.y + more.height + 4)

    signal taken
    signal asked(point at)

    implicitHeight: Math.max(tile.height, texts.implicitHeight) + 2 * 10

    Accessible.role: Accessible.ListItem
    Accessible.name: row.spoken

    Rectangle {
        id: ground

        anchors.fill: parent
        anchors.leftMargin: 16
        anchors.rightMargin: 16
        anchors.topMargin: 1
        anchors.bottomMargin: 1
        radius: 10
        color: hover.hovered ? Theme.hoverWash : "transparent"

        FocusRing {
            anchors.margins: 0
            shown: row.ringed
            corner: ground.radius
        }
    }

    HoverHandler {
        id: hover
    }

    TapHandler {
        onTapped: row.taken()
    }

    TapHandler {
        acceptedButtons: Qt.RightButton
        onTapped: eventPoint => {
            row.taken();
            row.asked(eventPoint.position);
        }
    }

    Tile {
        id: tile

        anchors.left: parent.left
        anchors.leftMargin: 26
        anchors.verticalCenter: parent.verticalCenter
        symbol: row.symbol
        tint: row.tint
        side: 36
        symbolSize: 17
    }

    Column {
        id: texts

        anchors.left: tile.right
        anchors.leftMargin: 14
        anchors.right: ageText.left
        anchors.rightMargin: 16
        anchors.verticalCenter: parent.verticalCenter
        spacing: 2

        Label {
            width: parent.width
            text: row.name
            size: 13
            font.weight: Font.Medium
            elide: Text.ElideMiddle
            mute: true
        }

        Label {
            width: parent.width
            text: row.folder
            size: 10
            soft: true
            elide: Text.ElideMiddle
            mute: true
        }
    }

    Label {
        id: ageText

        anchors.right: sizeText.left
        anchors.verticalCenter: parent.verticalCenter
        width: Math.round(90 * TextScale.factor)
        horizontalAlignment: Text.AlignRight
        text: row.age
        size: 11
        soft: true
        mute: true
    }

    Label {
        id: sizeText

        anchors.right: more.left
        anchors.rightMargin: 12
        anchors.verticalCenter: parent.verticalCenter
        width: Math.round(86 * TextScale.factor)
        horizontalAlignment: Text.AlignRight
        text: row.size
        size: 13
        font.weight: Font.DemiBold
        mute: true
    }

    IconButton {
        id: more

        objectName: "fileMenu" + row.index
        anchors.right: parent.right
        anchors.rightMargin: 22
        anchors.verticalCenter: parent.verticalCenter
        text: row.actions
        Accessible.description: qsTr("opens a menu")
        symbol: "ellipsis.circle"
        size: 16
        focusPolicy: Qt.NoFocus
        onClicked: {
            row.taken();
            row.asked(row.menuPlace);
        }
    }
}
