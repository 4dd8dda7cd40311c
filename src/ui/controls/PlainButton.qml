// SPDX-License-Identifier: MIT
// A button in a subdued colour until it is hovered or has visible focus.
pragma ComponentBehavior: Bound

import QtQuick
import Zelk.Controls

BaseButton {
    id: plain

    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    implicitHeight: Math.max(32, implicitContentHeight + topPadding + bottomPadding)
    horizontalPadding: 16
    verticalPadding: 6

    opacity: plain.enabled ? 1 : 0.45

    background: Rectangle {
        radius: height / 2
        color: "transparent"
        border.width: 1
        border.color: Theme.hairline

        HoverOverlay {
            anchors.fill: parent
            radius: height / 2
            control: plain
        }

        FocusRing {
            shown: plain.visualFocus
            corner: plain.height / 2
        }
    }

    contentItem: ButtonLabel {
        text: plain.text
        color: plain.hovered || plain.visualFocus ? Theme.ink : Theme.inkSoft
    }
}
