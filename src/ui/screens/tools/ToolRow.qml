// SPDX-License-Identifier: MIT
// A button with a tool's name, what it does and what it removes.
pragma ComponentBehavior: Bound

import QtQuick
import Zelk.App
import Zelk.Controls

BaseButton {
    id: row

    required property int index
    required property toolFace modelData

    text: row.modelData.spoken
    padding: 16
    implicitHeight: content.implicitHeight + row.topPadding + row.bottomPadding

    background: Rectangle {
        radius: 14
        color: Theme.surface
        border.width: 1
        border.color: row.hovered ? Qt.alpha(row.modelData.look.color, 0.5) : Theme.hairline
        Behavior on border.color {
            ColorAnimation {
                duration: Motion.quick
            }
        }

        HoverOverlay {
            anchors.fill: parent
            radius: parent.radius
            control: row
        }

        FocusRing {
            shown: row.visualFocus
            corner: 14
        }
    }

    Item {
        id: content

        x: row.leftPadding
        y: row.topPadding
        width: row.availableWidth
        height: row.availableHeight
        implicitHeight: Math.max(tile.height, words.height)

        Tile {
            id: tile

            anchors.verticalCenter: parent.verticalCenter
            symbol: row.modelData.look.symbol
            tint: row.modelData.look.color
            side: 40
            symbolSize: 20
        }

        Column {
            id: words

            anchors.left: tile.right
            anchors.leftMargin: 16
            anchors.right: chevron.left
            anchors.rightMargin: 16
            anchors.verticalCenter: parent.verticalCenter
            spacing: 4

            Label {
                width: parent.width
                text: row.modelData.look.title
                size: 17
                font.weight: Font.DemiBold
                wrapMode: Text.Wrap
                mute: true
            }

            Label {
                width: parent.width
                text: row.modelData.detail
                size: 14
                soft: true
                wrapMode: Text.Wrap
                mute: true
            }

            Label {
                width: parent.width
                topPadding: 4
                visible: text !== ""
                text: row.modelData.cleanup
                size: 12
                font.weight: Font.Medium
                wrapMode: Text.Wrap
                mute: true
            }
        }

        SymbolItem {
            id: chevron

            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter
            name: "chevron.right"
            color: Theme.inkSoft
            size: 12
        }
    }
}
