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

    contentItem: ModuleCardFace {
        symbol: card.symbol
        title: card.title
        value: card.value
        detail: card.detail
        tint: card.tint
        opacity: card.enabled ? 1 : 0.45
    }
}
