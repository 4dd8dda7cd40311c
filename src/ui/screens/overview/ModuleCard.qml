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

    text: AccessibleText.joined([card.title, AccessibleText.bytes(card.value), card.detail])
    implicitWidth: Math.max(140, implicitContentWidth + leftPadding + rightPadding)
    implicitHeight: implicitContentHeight + topPadding + bottomPadding
    padding: 16

    scale: card.down ? 0.985 : 1
    Behavior on scale {
        NumberAnimation {
            duration: Motion.quick
        }
    }

    background: CardGround {
        corner: card.corner
        outline: card.hovered && card.enabled ? Qt.alpha(card.tint, 0.5) : Theme.hairline
        shadowOpacity: card.hovered && card.enabled ? 0.25 : 0.06
        shadowRadius: card.hovered && card.enabled ? 12 : 6

        FocusRing {
            shown: card.visualFocus
            corner: card.corner
        }
    }

    contentItem: Column {
        opacity: card.enabled ? 1 : 0.45

        Item {
            width: parent.width
            implicitWidth: tile.width + nameText.implicitWidth + chevron.width + 20
            implicitHeight: Math.max(tile.height, nameText.implicitHeight)

            Tile {
                id: tile

                anchors.verticalCenter: parent.verticalCenter
                symbol: card.symbol
                tint: card.tint
            }

            Label {
                id: nameText

                anchors.left: tile.right
                anchors.leftMargin: 10
                anchors.right: chevron.left
                anchors.rightMargin: 10
                anchors.verticalCenter: parent.verticalCenter
                text: card.title
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
            value: card.value
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
            text: card.detail
            size: 11
            soft: true
            mute: true
        }
    }
}
