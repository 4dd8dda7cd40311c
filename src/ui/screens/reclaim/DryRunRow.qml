// SPDX-License-Identifier: MIT
// An item that a clean-up would remove.
pragma ComponentBehavior: Bound

import QtQuick
import Zelk.Controls

ListRow {
    id: row

    required property int index
    required property string symbol
    required property string name
    required property string folder
    required property string figure
    required property string method
    required property string spoken

    signal pressed

    implicitHeight: Math.max(texts.implicitHeight, trailing.implicitHeight) + 2 * 6

    Accessible.role: Accessible.ListItem
    Accessible.name: row.spoken

    TapHandler {
        onTapped: row.pressed()
    }

    FocusRing {
        shown: row.ringed
        corner: 8
    }

    SymbolItem {
        id: icon

        x: 14
        anchors.verticalCenter: parent.verticalCenter
        name: row.symbol
        color: Theme.inkSoft
        size: Math.round(13 * TextScale.factor)
    }

    Column {
        id: texts

        anchors.left: icon.right
        anchors.leftMargin: 12
        anchors.right: trailing.left
        anchors.rightMargin: 16
        anchors.verticalCenter: parent.verticalCenter
        spacing: 1

        Label {
            width: parent.width
            text: row.name
            size: 13
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

    Column {
        id: trailing

        anchors.right: parent.right
        anchors.rightMargin: 16
        anchors.verticalCenter: parent.verticalCenter
        spacing: 1

        Label {
            anchors.right: parent.right
            text: row.figure
            size: 12
            font.weight: Font.Medium
            mute: true
        }

        Label {
            anchors.right: parent.right
            width: Math.min(implicitWidth, row.width * 0.45)
            text: row.method
            size: 10
            soft: true
            elide: Text.ElideMiddle
            mute: true
        }
    }
}
