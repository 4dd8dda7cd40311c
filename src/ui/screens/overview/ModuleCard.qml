// SPDX-License-Identifier: MIT
// A card with a module's result that opens the module.
pragma ComponentBehavior: Bound

import QtQuick
import Zelk.Controls

BaseButton {
    id: card

    required property string symbol
    required property string title
    required property real value // bytes
    required property string detail
    required property color tint

    readonly property int corner: 16
    readonly property bool raised: card.hovered && card.enabled

    text: AccessibleText.joined([card.title, AccessibleText.bytes(card.value), card.detail])
    implicitWidth: Math.max(140, implicitContentWidth + leftPadding + rightPadding)
    implicitHeight: implicitContentHeight + topPadding + bottomPadding
    padding: 16

    scale: card.down ? 0.985 : 1
    Behavior on scale {
        QuickChange {}
    }

    background: Rectangle {
        radius: card.corner
        color: Theme.surface
        border.width: 1
        border.color: card.raised ? Qt.alpha(card.tint, 0.5) : Theme.hairline
        Behavior on border.color {
            QuickChange {}
        }

        SoftShadow {
            readonly property real reach: 24

            anchors.fill: parent
            anchors.margins: -reach
            z: -1
            inset: reach
            corner: card.corner
            radius: card.raised ? 12 : 6
            strength: card.raised ? 0.25 : 0.06
            Behavior on radius {
                QuickChange {}
            }
            Behavior on strength {
                QuickChange {}
            }
        }

        FocusRing {
            shown: card.visualFocus
            corner: card.corner
        }
    }

    contentItem: Face {
        symbol: card.symbol
        title: card.title
        value: card.value
        detail: card.detail
        tint: card.tint
        opacity: card.enabled ? 1 : 0.45
    }

    // A component of its own, because an id within `contentItem` would make Qt create the content at once.
    component Face: Column {
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

                anchors.left: parent.left
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
            anchors.left: parent.left
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
            wrapMode: Text.WordWrap
            mute: true
        }
    }
}
