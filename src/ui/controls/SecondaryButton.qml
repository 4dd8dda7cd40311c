// SPDX-License-Identifier: MIT
// An action beside the main action of a screen.
pragma ComponentBehavior: Bound

import QtQuick
import Zelk.Controls

BaseButton {
    id: secondary

    property string symbol: ""
    property color symbolColor: Theme.ink
    property color textColor: Theme.ink
    property real size: 12

    readonly property real corner: 10

    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    implicitHeight: implicitContentHeight + topPadding + bottomPadding
    horizontalPadding: 16
    verticalPadding: 8

    opacity: secondary.enabled ? 1 : 0.45

    background: Rectangle {
        radius: secondary.corner
        color: Theme.surfaceHi
        border.width: 1
        border.color: Theme.hairline

        HoverOverlay {
            anchors.fill: parent
            radius: secondary.corner
            control: secondary
        }

        FocusRing {
            shown: secondary.visualFocus
            corner: secondary.corner
        }
    }

    contentItem: ButtonLabel {
        text: secondary.text
        symbol: secondary.symbol
        symbolColor: secondary.symbolColor
        color: secondary.textColor
        size: secondary.size
    }
}
