// SPDX-License-Identifier: MIT
// A help topic in the list. Only the current one is in the focus chain; arrow keys move from there.
pragma ComponentBehavior: Bound

import QtQuick
import Zelk.App
import Zelk.Controls

ItemDelegate {
    id: row

    required property int index
    required property helpTopic modelData

    text: row.modelData.title
    // (It stays there while it has the focus, even when another one becomes current.)
    focusPolicy: row.current || row.activeFocus ? Qt.StrongFocus : Qt.ClickFocus
    leftPadding: 12
    rightPadding: 12
    topPadding: 8
    bottomPadding: 8
    implicitHeight: content.implicitHeight + row.topPadding + row.bottomPadding

    background: Rectangle {
        radius: 8
        color: row.current ? Qt.alpha(row.modelData.tint, 0.18) : "transparent"

        HoverOverlay {
            anchors.fill: parent
            radius: parent.radius
            control: row
        }

        FocusRing {
            shown: row.visualFocus
            corner: 8
        }
    }

    Item {
        id: content

        x: row.leftPadding
        y: row.topPadding
        width: row.availableWidth
        height: row.availableHeight
        implicitHeight: Math.max(symbolItem.height, label.height)

        SymbolItem {
            id: symbolItem

            anchors.verticalCenter: parent.verticalCenter
            name: row.modelData.symbol
            color: row.modelData.tint
            size: 16
        }

        Label {
            id: label

            anchors.left: symbolItem.right
            anchors.leftMargin: 12
            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter
            text: row.modelData.title
            size: 13
            font.weight: row.current ? Font.DemiBold : Font.Medium
            wrapMode: Text.Wrap
            mute: true
        }
    }
}
