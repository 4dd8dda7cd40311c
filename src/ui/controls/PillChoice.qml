// SPDX-License-Identifier: MIT
// A capsule-shaped radio button with a symbol.
pragma ComponentBehavior: Bound

import QtQuick
import Zelk.Controls

RadioButton {
    id: pill

    required property string symbol
    required property color tint

    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    implicitHeight: Math.max(32, implicitContentHeight + topPadding + bottomPadding)
    leftPadding: ReadingDirection.mirrored ? 16 : 14
    rightPadding: ReadingDirection.mirrored ? 14 : 16
    verticalPadding: 6

    opacity: pill.enabled ? 1 : 0.45
    scale: pill.down ? 0.97 : 1
    Behavior on scale {
        QuickChange {}
    }

    background: Rectangle {
        radius: height / 2
        color: pill.chosen ? Qt.tint(Theme.surface, Qt.alpha(pill.tint, 0.2)) : Theme.surface
        border.width: 1
        border.color: pill.chosen ? Qt.alpha(pill.tint, 0.7) : Theme.hairline

        HoverOverlay {
            anchors.fill: parent
            radius: height / 2
            control: pill
        }
    }

    contentItem: ButtonLabel {
        text: pill.text
        symbol: pill.symbol
        symbolColor: pill.tint
        color: Theme.ink
    }
}
