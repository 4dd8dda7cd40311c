// SPDX-License-Identifier: MIT
// An action as a row of a card: a tile with its symbol, and its title. It may be disabled while what it does goes on.
pragma ComponentBehavior: Bound

import QtQuick
import Zelk.Controls

BaseButton {
    id: row

    required property string symbol
    required property color tint

    // The tile is flush with what stands above and below it; the wash under the pointer is wider.
    leftInset: -8
    rightInset: -8
    verticalPadding: 7
    implicitHeight: content.implicitHeight + row.topPadding + row.bottomPadding
    opacity: row.enabled ? 1 : 0.45

    background: HoverOverlay {
        radius: 10
        control: row
    }

    RingKeeper {
        control: row
    }

    Item {
        id: content

        x: row.leftPadding
        y: row.topPadding
        width: row.availableWidth
        height: row.availableHeight
        implicitHeight: Math.max(tile.height, title.implicitHeight)

        Tile {
            id: tile

            anchors.left: parent.left
            anchors.verticalCenter: parent.verticalCenter
            symbol: row.symbol
            tint: row.tint
            side: 30
            symbolSize: 14
            corner: 8
        }

        Label {
            id: title

            anchors.left: tile.right
            anchors.leftMargin: 12
            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter
            text: row.text
            size: 13
            font.weight: Font.Medium
            wrapMode: Text.Wrap
            mute: true
        }
    }
}
