// SPDX-License-Identifier: MIT
// The content of a ModuleCard.
pragma ComponentBehavior: Bound

import QtQuick
import Zelk.Controls

Column {
    id: face

    required property string symbol
    required property string title
    required property real value
    required property string detail
    required property color tint

    Item {
        width: parent.width
        implicitWidth: tile.width + nameText.implicitWidth + chevron.width + 20
        implicitHeight: Math.max(tile.height, nameText.implicitHeight)

        Tile {
            id: tile

            anchors.verticalCenter: parent.verticalCenter
            symbol: face.symbol
            tint: face.tint
        }

        Label {
            id: nameText

            anchors.left: tile.right
            anchors.leftMargin: 10
            anchors.right: chevron.left
            anchors.rightMargin: 10
            anchors.verticalCenter: parent.verticalCenter
            text: face.title
            size: 11
            font.weight: Font.Medium
            soft: true
            mute: true
        }

        SymbolItem {
            id: chevron

            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter
            name: "chevron.right"
            color: Theme.inkSoft
            size: 10
        }
    }

    Item {
        width: 1
        height: 18
    }

    AnimatedNumber {
        value: face.value
        pixelSize: 23
        bold: true
        mute: true
    }

    Item {
        width: 1
        height: 2
    }

    Label {
        width: parent.width
        text: face.detail
        size: 11
        soft: true
        mute: true
    }
}
