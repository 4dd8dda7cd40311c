// SPDX-License-Identifier: MIT
// A capsule-shaped button with a symbol that opens a module.
pragma ComponentBehavior: Bound

import QtQuick
import Zelk.Controls

BaseButton {
    id: pill

    required property string symbol
    required property color tint

    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    implicitHeight: Math.max(36, implicitContentHeight + topPadding + bottomPadding)
    leftPadding: 14
    rightPadding: 16
    verticalPadding: 8

    opacity: pill.enabled ? 1 : 0.45
    scale: pill.down ? 0.97 : 1
    Behavior on scale {
        NumberAnimation {
            duration: Motion.quick
        }
    }

    background: PillGround {
        control: pill
        tint: pill.tint
    }

    contentItem: ButtonLabel {
        text: pill.text
        symbol: pill.symbol
        symbolColor: pill.tint
        color: Theme.ink
    }
}
